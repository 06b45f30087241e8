#pragma once

#include "kelta/KeltaBatchExport.h"

#include <QString>

#include <memory>

namespace Obj {
class Project;
} // namespace Obj

namespace kelta {

/// What the program asks about project files of the side that knows materials, which is loaded after the plug-in.
/// Everything tells the user itself what went wrong, and asks what has to be asked.
class KELTA_BATCH_EXPORT FileService
{
public:
    FileService() = default;
    FileService(const FileService&) = delete;
    FileService& operator=(const FileService&) = delete;
    virtual ~FileService();

    /// Null while the materials module is not there.
    static FileService* instance();
    /// Gives the service to the program, in place of an earlier one; null ends it.
    static void set_instance(std::unique_ptr<FileService> service);

    /// Opens a project file, or brings it to the front when it is open already.
    virtual bool open(const QString& path) = 0;
    /// Asks about everything that has not been saved; false when the program is to go on.
    virtual bool may_end() = 0;
    /// The program ends in order, and everybody has been asked: copies for recovery are destroyed.
    virtual void end() = 0;
    /// Offers what a program that ended without saving has left behind.
    virtual void offer_recovery() = 0;
    /// The file of a project; empty before it is first saved.
    virtual QString get_file(const Obj::Project& project) const = 0;
    /// Whether a project has changes that its file does not have.
    virtual bool is_modified(const Obj::Project& project) const = 0;
};

} // namespace kelta
