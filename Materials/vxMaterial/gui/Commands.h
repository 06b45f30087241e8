#pragma once

#include "Gui/Command.h"
#include "vxMaterial/project/PluginExport.h"

namespace MatGui {

/// The base class of the module's commands. The fields of all commands are in one table, by command name.
class VXMATERIAL_EXPORT MaterialCommand : public Gui::Command
{
public:
    explicit MaterialCommand(const char* name);
    ~MaterialCommand() override;
};

/// "Mat_NewDoc": makes a material project, unless one is open.
class VXMATERIAL_EXPORT MatCmdNewDoc final : public MaterialCommand
{
public:
    MatCmdNewDoc();
    ~MatCmdNewDoc() override;
    const char* getClassName() const override;
    void activated(int index) override;
};

/// "Mat_DelDoc": closes the material project that is selected in the tree. Does nothing unless exactly one is selected.
class VXMATERIAL_EXPORT MatCmdDelDoc final : public MaterialCommand
{
public:
    MatCmdDelDoc();
    ~MatCmdDelDoc() override;
    const char* getClassName() const override;
    void activated(int index) override;
};

/// "Mat_AddMaterial": adds a material to the material project.
class VXMATERIAL_EXPORT MatCmdMaterial final : public MaterialCommand
{
public:
    MatCmdMaterial();
    ~MatCmdMaterial() override;
    const char* getClassName() const override;
    void activated(int index) override;
    bool is_applicable() override;
};

/// "Mat_Delete": deletes the selected objects of all projects, after a question if other objects depend on them.
class VXMATERIAL_EXPORT MatCmdDelete final : public MaterialCommand
{
public:
    MatCmdDelete();
    ~MatCmdDelete() override;
    const char* getClassName() const override;
    void activated(int index) override;
    bool is_applicable() override;
};

/// "Mat_Edit": opens the editor of each selected material.
class VXMATERIAL_EXPORT MatCmdEdit final : public MaterialCommand
{
public:
    MatCmdEdit();
    ~MatCmdEdit() override;
    const char* getClassName() const override;
    void activated(int index) override;
    bool is_applicable() override;
};

/// "Mat_Import": asks for a file and adds an empty material to the current project. The file is not read.
class VXMATERIAL_EXPORT CmdMatImport final : public MaterialCommand
{
public:
    CmdMatImport();
    ~CmdMatImport() override;
    const char* getClassName() const override;
    void activated(int index) override;
    bool is_applicable() override;
};

/// "Mat_Export": asks for a file and writes the material project to it, without checking the materials.
class VXMATERIAL_EXPORT CmdMatExport final : public MaterialCommand
{
public:
    CmdMatExport();
    ~CmdMatExport() override;
    const char* getClassName() const override;
    void activated(int index) override;
    bool is_applicable() override;
};

} // namespace MatGui
