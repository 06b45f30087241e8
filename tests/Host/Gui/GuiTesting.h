#pragma once

#include "MessageBoxes.h"
#include "Waiting.h"

#include "Gui/Command.h"
#include "Gui/CommandController.h"
#include "Gui/Contributions.h"
#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/PropertyPanel.h"
#include "Gui/StdSimModule.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "Obj/PropertyReference.h"
#include "Obj/PropertyType.h"
#include "vxMsg/MessageProxy.h"

#include <QUndoStack>
#include <QtTest/QtTestGui>
#include <QtTest/qtestcase.h>
#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace vxtest {

/// A project class of a module.
class TestProject final : public Obj::Project
{
public:
    TestProject() { registerProperty(data, count, "Count", "Values", Obj::PropertyType::none, "How many"); }
    Kelta::TypeInfo getTypeId() const override { return type; }
    const char* get_viewfeeder_name() const override { return "Test::ProjectNode"; }
    void collect_frontend_data() override;
    static void init();

    Obj::PropertyInteger count{3};
    int collections = 0;
    bool collectFails = false;

private:
    static inline Kelta::TypeInfo type;
    static inline Obj::PropertyCoreData data;
};

/// A project class of another module without contributions.
class OtherProject final : public Obj::Project
{
public:
    Kelta::TypeInfo getTypeId() const override { return type; }
    static void init();

private:
    static inline Kelta::TypeInfo type;
};

/// An object class of a module, with an editable, a read-only and a hidden property.
class TestObject final : public Obj::ProjectObject
{
public:
    TestObject();
    Kelta::TypeInfo getTypeId() const override { return type; }
    const char* get_viewfeeder_name() const override { return "Test::Node"; }
    static void init();

    const char* getCoreEditor() const override { return coreEditor.c_str(); }

    Obj::PropertyInteger count{3};
    Obj::PropertyString fixed{"as it is"};
    Obj::PropertyString hidden{"unseen"};
    std::string content;
    std::string coreEditor;

private:
    static inline Kelta::TypeInfo type;
    static inline Obj::PropertyCoreData data;
};

/// An object class with a property for each type of editor.
class TypedObject final : public Obj::ProjectObject
{
public:
    TypedObject();
    Kelta::TypeInfo getTypeId() const override { return type; }
    const char* get_viewfeeder_name() const override { return "Test::Node"; }
    static void init();

    Obj::PropertyReal length{1.5};
    Obj::PropertyBool active;
    Obj::PropertyBool locked{true};
    Obj::PropertyChoice kind{{"Solid", "Hollow"}};
    Obj::PropertyReference partner;

private:
    static inline Kelta::TypeInfo type;
    static inline Obj::PropertyCoreData data;
};

/// The node of a test object. It counts the calls of its operations.
class TestNode final : public Gui::ViewFeederProjectObject
{
public:
    TestNode();
    Kelta::TypeInfo getTypeId() const override { return type; }
    static void init();
    bool setEdit(int mode) override;
    void updateData(const Obj::Property* changed) override { changes.push_back(changed); }
    void build_context_menu(const char* recipient, Gui::MenuItem* menu) override;
    void build_context_menu(QMenu* menu, QObject* receiver, const char* slot) override;

    Obj::PropertyColor color;
    void leaveOutPicture() { pixmapName = ""; }
    bool isShow() const override { return shown; }
    bool useNewSelectionModel() const override { return selectsItself; }
    std::vector<std::string> getDisplayModes() const override { return displayModes; }
    bool on_double_clicked() override { return ++opened > 0 && opensItself; }

    bool shown = true;
    bool selectsItself = false;
    bool opensItself = true;
    std::vector<std::string> displayModes;

    int opened = 0;
    std::vector<int> editModes;
    std::vector<const Obj::Property*> changes;

private:
    static inline Kelta::TypeInfo type;
    static inline Obj::PropertyCoreData data;
};

/// The node of a test project.
class TestProjectNode final : public Gui::ViewFeederProject
{
public:
    TestProjectNode();
    Kelta::TypeInfo getTypeId() const override { return type; }
    static void init();

    Obj::PropertyInteger order{1};

private:
    static inline Kelta::TypeInfo type;
    static inline Obj::PropertyCoreData data;
};

/// A document window that an object can name as its editor.
class TestEditor final : public Gui::MDIWindow
{
public:
    TestEditor() : MDIWindow(nullptr, nullptr) {}
    Kelta::TypeInfo getTypeId() const override { return type; }
    static void init();
    void editObject(Gui::GuiProject& project, Obj::ProjectObject& object) override;

    std::string shownLabel;

private:
    static inline Kelta::TypeInfo type;
};

/// A command that runs a function of the test.
class TestCommand : public Gui::Command
{
public:
    TestCommand(const char* name, std::function<void()> action, int flags = Gui::CommandType::none,
                const QKeySequence& keys = {});
    ~TestCommand() override;
    const char* getClassName() const override { return "TestCommand"; }
    void activated(int index) override;
    bool is_applicable() override { return applicable; }

    bool applicable = true;
    int lastIndex = -1;

private:
    std::function<void()> m_action;
};

/// A workbench that overrides every operation. Activations are counted over all workbenches of the class.
class TestWorkbench final : public Gui::StdSimModule
{
public:
    Kelta::TypeInfo getTypeId() const override { return type; }
    static void init();
    /// "&Test" with "Std_Copy", a menu "&More" and two nested menus without commands.
    Gui::MenuItem* build_menu_bar() const override;
    /// "Test" with "Std_Copy" and a menu "&More".
    Gui::ToolBarGadget* build_toolbars() const override;
    void build_context_menu(const char* recipient, Gui::MenuItem* menu) const override;
    void build_context_popup_menu(Gui::MenuItem* menu) const override;
    Gui::ToolBarGadget* build_docking_windows() const override;
    void activated() override { ++activations; }
    void deactivated() override { ++deactivations; }

    static inline int activations = 0;
    static inline int deactivations = 0;

private:
    static inline Kelta::TypeInfo type;
};

/// A test with a main window and the standard workbench.
class Host : public testing::Test
{
protected:
    Host();
    ~Host() override;

    static Gui::CommandController& commands() { return Gui::GuiApplication::Instance->get_command_manager(); }
    static bool run(const char* command) { return commands().runCommand(command); }
    static bool isApplicable(const char* command) { return commands().findCommand(command)->is_applicable(); }
    static QUndoStack& undoStack() { return vxMsg::MessageProxy::instance().undoStack(); }
    static Gui::TreeSelectionSingleton& selection() { return Gui::TreeSelectionSingleton::instance(); }
    static void select(const std::vector<Obj::ProjectObject*>& objects) { selection().setSelection({}, objects); }
    static std::string lastMessage();

    static TestProject& makeProject(const char* name = "Project");
    static TestObject& addObject(Obj::Project& project, const char* label = "Object");
    static TypedObject& addTyped(Obj::Project& project, const char* label = "Typed");
    static TestNode& nodeOf(Obj::ProjectObject& object);

    Gui::ProjectExplorer& explorer() const { return window->getProjectExplorer(); }
    Gui::ProjectTreeModel& model() const { return dynamic_cast<Gui::ProjectTreeModel&>(*explorer().model()); }
    Gui::PropertyPanel& panel() const { return *window->findChild<Gui::PropertyPanel*>(); }
    /// Sets the keyboard focus to the explorer, and expands all its rows.
    void focusExplorer() const;
    /// Returns the present text of a row.
    QString shownText(const Obj::ProjectObject& object) const;

    Gui::Contributions contributions; ///< contributions of modules to the window
    std::unique_ptr<Gui::MainWindow> window;
};

} // namespace vxtest
