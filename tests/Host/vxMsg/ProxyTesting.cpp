#include "ProxyTesting.h"

namespace vxtest {

using vxMsg::vxCommand;

MessageProxyTest::MessageProxyTest()
{
    EXPECT_TRUE(vxMsg::registerProjectCode(makeAssemblyCode, "vxtest::Assembly"));
    EXPECT_TRUE(vxMsg::registerObjectCode(addPartCode, "vxtest::Part"));
    EXPECT_TRUE(makeProject("Machine"));
    m_project = static_cast<Assembly*>(application().get_project("Machine"));
    stack().clear();
}

MessageProxyTest::~MessageProxyTest()
{
    proxy().objectCreated.disconnect_all_slots();
    proxy().projectCreated.disconnect_all_slots();
    proxy().projectClosing.disconnect_all_slots();
    Part::hooks() = {};
    stack().clear();
}

bool MessageProxyTest::closeProject(const std::string& name)
{
    return vxMsg::runCommand(vxCommand::CloseProject, 1, {name});
}

bool MessageProxyTest::add(const std::string& name, const std::string& project)
{
    return vxMsg::doCommand({addPartCode, project, name, 0.0});
}

bool MessageProxyTest::remove(const std::string& name, const std::string& project)
{
    return vxMsg::doCommand({vxCommand::DeleteObject, project, name, 0.0});
}

Part& MessageProxyTest::part(const std::string& name)
{
    EXPECT_TRUE(add(name));
    return static_cast<Part&>(*m_project->getObjects().back());
}

std::vector<std::string> MessageProxyTest::projects()
{
    std::vector<std::string> names;
    for (const Obj::Project* const project : Obj::Application::get_projects())
        names.emplace_back(project->get_name());
    return names;
}

} // namespace vxtest
