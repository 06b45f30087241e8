#pragma once

#include "vxMsg/vxMsgExport.h"

#include <string>
#include <utility>
#include <vector>

namespace vxMsg {

/// The codes of the host's own requests. The numbers are part of the interface to modules, which register more codes.
struct vxCommand
{
    enum : int
    {
        DeleteObject = 3,
        CloseProject = 22,
    };
};

/// Makes `code` a request of runCommand that makes a project of a registered class, or a request of doCommand that adds
/// an object of a registered class. Safe to call more than once. Returns false, with a report, if the code already has
/// another meaning.
///
///     vxMsg::registerObjectCode(4711, "Fastening::Bolt");
///     vxMsg::doCommand({4711, "Assembly", "Bolt", 0.0});
VXMSG_EXPORT bool registerProjectCode(int code, const std::string& projectClass);
VXMSG_EXPORT bool registerObjectCode(int code, const std::string& objectClass);

/// One request: a code, the names of its project and object, and a number.
struct MessageData
{
    MessageData(int commandCode, std::string project, std::string object, double number)
        : code(commandCode), projectName(std::move(project)), objectName(std::move(object)), value(number)
    {}

    int code;
    std::string projectName;
    std::string objectName;
    double value;
};

/// Carries out a request about a project, which has one name: CloseProject, or a code that makes a project. `count` is
/// the number of names. Returns whether it succeeded. A code that is not such a request, a wrong count and an unknown
/// name are reported to the message log and change nothing. Throws nothing.
VXMSG_EXPORT bool runCommand(int code, int count, const std::vector<std::string>& names);

/// Carries out a request about an object: DeleteObject, or a code that adds an object. Otherwise as runCommand.
VXMSG_EXPORT bool doCommand(const MessageData& message);

} // namespace vxMsg
