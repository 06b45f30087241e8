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

/// What a project file has of an object beside its label, properties and material. The signals of a project do not say
/// whether this has changed, or the state, which is not a part of the file.
struct Look
{
    bool suppressed = false;
    std::uint32_t group = 0; ///< the id of the group that it is a member of; 0 for none
    std::vector<std::uint32_t> links;
    Json::Value node;
    std::size_t content = 0; ///< a hash of its text

    static Look of(Obj::ProjectObject& object);
    friend bool operator==(const Look& a, const Look& b)
    {
        return a.suppressed == b.suppressed && a.group == b.group && a.links == b.links && a.node == b.node &&
               a.content == b.content;
    }
};

/// A project and its file.
struct Session
{
    QString path; ///< empty before the project is first saved
    projectfile::FileStamp stamp;
    QByteArray checksum;            ///< of the text that the project had when the file was opened or last saved
    std::uint64_t nextObjectId = 1; ///< in that text
    std::optional<projectfile::FileLock> lock;
    KeptMembers kept;
    bool isRecovered = false; ///< not saved since it was recovered: the file is older
    bool isModified = false;
    bool isCopyDue = false;
    std::unique_ptr<RecoveryCopy> copy;
    std::map<std::uint32_t, Look> looks; ///< by the id of the object
    std::vector<boost::signals2::scoped_connection> connections;

    /// Keeps the text of the project as the one that the file agrees with.
    void rememberText(const std::string& text, std::uint64_t nextId);
    bool isRememberedText(const std::string& text) const;
    /// Reserves the file. Writes to the message log if another program has it, or if no lock can be made.
    void takeLock();
    /// Destroys the copy for recovery, if there is one.
    void forgetCopy();
};

} // namespace desktop
