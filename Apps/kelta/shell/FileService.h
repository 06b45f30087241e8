#pragma once

#include "kelta/KeltaShellExport.h"

#include <QString>

#include <memory>

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace desktop {

/// The project files of the program, for the program itself and for modules. Each operation tells the user what went
/// wrong, and asks what must be asked.
class KELTA_SHELL_EXPORT FileService
{
public:
    FileService() = default;
    FileService(const FileService&) = delete;
    FileService& operator=(const FileService&) = delete;
    virtual ~FileService();

    /// Null in a program without files, such as a test of a module.
    static FileService* instance();
    /// Gives the service to the program, in place of an earlier one; null ends it.
    static void setInstance(std::unique_ptr<FileService> service);

    /// Opens a project file and selects the project. A project that is open already is only selected.
    virtual bool open(const QString& path) = 0;
    /// Asks about everything that is not saved; false if the program is to go on.
    virtual bool mayEnd() = 0;
    /// The program ends in order, and all questions have been asked: copies for recovery are destroyed.
    virtual void end() = 0;
    /// Offers the copies for recovery of programs that ended without saving.
    virtual void offerRecovery() = 0;
    /// Returns the file of a project; empty before it is first saved.
    virtual QString getFile(const Obj::Project& project) const = 0;
    /// Whether a project has changes that its file does not have.
    virtual bool isModified(const Obj::Project& project) const = 0;
    /// To be called by a module when the content of an object, which is not a property, has changed in a way that no
    /// signal of the project tells. Keeps a copy for recovery.
    virtual void contentChanged(Obj::ProjectObject& object) = 0;
};

} // namespace desktop
