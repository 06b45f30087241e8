#pragma once

#include "ObjTesting.h"

#include "vxMsg/MessageProxy.h"

#include <string>
#include <vector>

namespace vxtest {

/// Codes of the tests' own requests.
constexpr int makeAssemblyCode = 5001;
constexpr int addPartCode = 5002;

/// A project "Machine" without a history, and requests by their codes.
class MessageProxyTest : public ObjTest
{
protected:
    MessageProxyTest();
    ~MessageProxyTest() override;

    static vxMsg::MessageProxy& proxy() { return vxMsg::MessageProxy::instance(); }
    static QUndoStack& stack() { return proxy().undoStack(); }

    static bool makeProject(const std::string& name) { return vxMsg::runCommand(makeAssemblyCode, 1, {name}); }
    static bool closeProject(const std::string& name);
    static bool add(const std::string& name, const std::string& project = "Machine");
    static bool remove(const std::string& name, const std::string& project = "Machine");

    /// Adds a part by request, which must succeed.
    Part& part(const std::string& name);

    /// Return the names of the objects of "Machine", and of all open projects.
    std::vector<std::string> names() const { return namesOf(m_project->getObjects()); }
    static std::vector<std::string> projects();

    Assembly* m_project = nullptr;
};

} // namespace vxtest
