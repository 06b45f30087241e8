#pragma once

#include "KeptMembers.h"
#include "RecoveryCopy.h"

#include "projectfile/ProjectStore.h"

#include <QByteArray>
#include <QString>
#include <boost/signals2/connection.hpp>
#include <json/value.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Obj {
class ProjectObject;
} // namespace Obj

namespace desktop {

/// The parts of an object in a project file besides its label, properties and material. A change of these parts sends
/// the same signal as a change of the state, which is not in the file. A comparison distinguishes the two changes.
struct Look
{
    bool suppressed = false;
    std::uint32_t group = 0; ///< the id of the group that contains the object; 0 for none
    std::vector<std::uint32_t> links;
    Json::Value node;
    std::size_t content = 0;  ///< a hash of its text
    std::size_t settings = 0; ///< a hash of their texts

    static Look of(Obj::ProjectObject& object);
    friend bool operator==(const Look& a, const Look& b)
    {
        return a.suppressed == b.suppressed && a.group == b.group && a.links == b.links && a.node == b.node &&
               a.content == b.content && a.settings == b.settings;
    }
};

/// A project and its file.
struct Session
{
    QString path; ///< empty before the project is first saved
    projectfile::FileStamp stamp;
    QByteArray checksum;            ///< of the text of the project when the file was opened or last saved
    std::uint64_t nextObjectId = 1; ///< in that text
    std::optional<projectfile::FileLock> lock;
    KeptMembers kept;
    bool isRecovered = false; ///< recovered and not saved afterwards; the file is older
    bool isModified = false;
    bool isCopyDue = false;
    std::unique_ptr<RecoveryCopy> copy;
    Json::Value editsInCopy; ///< the unapplied edits in the copy, as a record of recordUnapplied; null for none
    std::map<std::uint32_t, Look> looks; ///< by the id of the object
    std::vector<boost::signals2::scoped_connection> connections;

    /// Stores the checksum of the project's text, which agrees with the file.
    void rememberText(const std::string& text, std::uint64_t nextId);
    /// Returns whether the project, with this text, agrees with the file.
    bool isRememberedText(const std::string& text) const;
    /// Locks the file. Writes a warning to the message log if another program has it, or if it cannot be locked.
    void takeLock();
    /// Deletes the copy for recovery. Does nothing if there is none.
    void forgetCopy();
};

} // namespace desktop
