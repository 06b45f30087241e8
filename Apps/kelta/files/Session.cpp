#include "Session.h"

#include "FilePaths.h"
#include "ProjectRecording.h"

#include "Kelta/MessageLog.h"
#include "Obj/Placeholder.h"
#include "Obj/ProjectObjectGroup.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <boost/container_hash/hash.hpp>
#include <json/writer.h>

#include <functional>

namespace desktop {

namespace {

QByteArray checksumOf(const std::string& text)
{
    return QCryptographicHash::hash(QByteArray::fromRawData(text.data(), static_cast<int>(text.size())),
                                    QCryptographicHash::Md5);
}

/// Returns a hash of the content; 0 for a material, whose module reports changes, and for a placeholder, which never
/// changes.
std::size_t hashOfContent(Obj::ProjectObject& object)
{
    const bool isPlaceholder = dynamic_cast<const Obj::PlaceholderObject*>(&object) != nullptr;
    const Json::Value content =
        isPlaceholder || findMaterial(object) != nullptr ? Json::Value() : recordContent(object);
    return content.isNull() ? 0 : std::hash<std::string>()(Json::writeString(Json::StreamWriterBuilder(), content));
}

} // namespace

Look Look::of(Obj::ProjectObject& object)
{
    Look look;
    look.suppressed = object.isSuppressed();
    if (const Obj::ProjectObjectGroup* const group = object.getParentGroup())
        look.group = group->getObjectId();
    for (const Obj::ProjectObject* const other : object.getLinks())
        look.links.push_back(other->getObjectId());
    look.node = recordNode(object);
    look.content = hashOfContent(object);
    look.settings = boost::hash_value(object.getSettings());
    return look;
}

void Session::rememberText(const std::string& text, std::uint64_t nextId)
{
    checksum = checksumOf(text);
    nextObjectId = nextId;
}

bool Session::isRememberedText(const std::string& text) const
{
    return checksumOf(text) == checksum;
}

void Session::takeLock()
{
    try {
        lock.emplace(path);
        if (!lock->tryLock() && !lock->holder().isEmpty())
            Kelta::MessageLog::warning(QCoreApplication::translate("desktop::ProjectFiles", "\"%1\" is in use by %2.")
                                           .arg(shownPath(path), lock->holder()));
    } catch (const projectfile::StoreError& error) {
        Kelta::MessageLog::warning(QString::fromUtf8(error.what()));
    }
}

void Session::forgetCopy()
{
    isCopyDue = false;
    editsInCopy = Json::Value();
    if (copy != nullptr)
        copy->remove();
    copy.reset();
}

} // namespace desktop
