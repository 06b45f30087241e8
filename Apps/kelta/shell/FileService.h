#pragma once

#include "kelta/KeltaShellExport.h"

#include <QString>

#include <memory>

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace desktop {

/// The project files of the program, for the program itself and for modules. Each operation reports its errors to the
/// user, and asks the user before anything is lost.
class KELTA_SHELL_EXPORT FileService
{
public:
    FileService() = default;
    FileService(const FileService&) = delete;
    FileService& operator=(const FileService&) = delete;
    virtual ~FileService();

    /// Returns the service; null in a program without files, such as a test of a module.
    static FileService* instance();
    /// Sets the service, and destroys the earlier service; null for none.
    static void setInstance(std::unique_ptr<FileService> service);

    /// Opens a project file and selects the project. A project that is open already is only selected. Offers to import
    /// an exchange document. Returns false if the file is neither open nor imported afterwards.
    virtual bool open(const QString& path) = 0;
    /// Asks about all changes that are not saved. Returns false if the user does not want to end the program.
    virtual bool mayEnd() = 0;
    /// Destroys the copies for recovery. Must be called when the program ends normally, after mayEnd.
    virtual void end() = 0;
    /// Offers the user the copies for recovery of programs that ended before projects were saved.
    virtual void offerRecovery() = 0;
    /// Returns the file of a project; empty before it is first saved.
    virtual QString getFile(const Obj::Project& project) const = 0;
    /// Returns whether a project has changes that its file does not have.
    virtual bool isModified(const Obj::Project& project) const = 0;
    /// Marks the project of an object as modified, and writes a copy for recovery. Must be called by a module after it
    /// has changed content of the object that is not a property, because the project sends no signal for such a change.
    virtual void contentChanged(Obj::ProjectObject& object) = 0;
};

} // namespace desktop
