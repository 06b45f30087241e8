#include "vxMsg/CommandCodes.h"

#include "Kelta/Exceptions.h"
#include "Kelta/MessageLog.h"
#include "vxMsg/MessageProxy.h"

#include <QCoreApplication>

#include <map>

namespace vxMsg {

namespace {

/// Classes by code.
using Codes = std::map<int, std::string>;

Codes& projectCodes()
{
    static Codes codes;
    return codes;
}

Codes& objectCodes()
{
    static Codes codes;
    return codes;
}

QString tr(const char* text)
{
    return QCoreApplication::translate("vxMsg", text);
}

bool report(const QString& text)
{
    Kelta::MessageLog::error(text);
    return false;
}

bool reportUnknownCode(int code)
{
    return report(tr("The request %1 is not known; nothing was done.").arg(code));
}

bool registerCode(Codes& codes, int ownCode, int code, const std::string& className)
{
    const auto [place, isNew] = codes.emplace(code, className);
    if (code != ownCode && (isNew || place->second == className))
        return true;
    if (isNew)
        codes.erase(place);
    return report(tr("The request %1 cannot be registered for the class \"%2\": it has another meaning.")
                      .arg(QString::number(code), QString::fromStdString(className)));
}

/// The boundary of the requests: an exception inside is reported, and the request counts as failed.
template <typename Request>
bool isDone(const Request& request)
{
    bool done = false;
    return Kelta::guarded(tr("A request failed"), [&] { done = request(); }) && done;
}

bool run(int code, int count, const std::vector<std::string>& names)
{
    const auto found = projectCodes().find(code);
    const bool makesProject = found != projectCodes().end();
    if (!makesProject && code != vxCommand::CloseProject)
        return reportUnknownCode(code);
    if (count != 1 || names.size() != 1)
        return report(tr("The request %1 takes one name; nothing was done.").arg(code));
    MessageProxy& proxy = MessageProxy::instance();
    return makesProject ? proxy.newProject(found->second, names[0]) : proxy.closeProject(names[0]);
}

bool run(const MessageData& message)
{
    MessageProxy& proxy = MessageProxy::instance();
    if (message.code == vxCommand::DeleteObject)
        return proxy.deleteObject(message.projectName, message.objectName);
    const auto found = objectCodes().find(message.code);
    if (found == objectCodes().end())
        return reportUnknownCode(message.code);
    return proxy.addObject(message.projectName, found->second, message.objectName);
}

} // namespace

bool registerProjectCode(int code, const std::string& projectClass)
{
    return registerCode(projectCodes(), vxCommand::CloseProject, code, projectClass);
}

bool registerObjectCode(int code, const std::string& objectClass)
{
    return registerCode(objectCodes(), vxCommand::DeleteObject, code, objectClass);
}

bool runCommand(int code, int count, const std::vector<std::string>& names)
{
    return isDone([&] { return run(code, count, names); });
}

bool doCommand(const MessageData& message)
{
    return isDone([&message] { return run(message); });
}

} // namespace vxMsg
