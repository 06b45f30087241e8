#include "vxMsg/CommandCodes.h"

#include "HostTesting.h"
#include "ProxyTesting.h"

#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using vxtest::addPartCode;
using vxtest::makeAssemblyCode;
using vxtest::Part;

class CommandCodes : public vxtest::MessageProxyTest
{};

TEST_F(CommandCodes, OfTheHostAreThoseThatModulesKnow)
{
    EXPECT_EQ(static_cast<int>(vxMsg::vxCommand::DeleteObject), 3);
    EXPECT_EQ(static_cast<int>(vxMsg::vxCommand::CloseProject), 22);
}

TEST_F(CommandCodes, MakeObjectsAndProjectsOfTheirClasses)
{
    EXPECT_TRUE(vxMsg::registerObjectCode(6001, "vxtest::Joint"));
    EXPECT_TRUE(vxMsg::doCommand({6001, "Machine", "Hinge", 0.0}));
    EXPECT_STREQ(m_project->get_object("Hinge")->getTypeId().get_name(), "vxtest::Joint");
    EXPECT_TRUE(vxMsg::runCommand(makeAssemblyCode, 1, {"Second"}));
    EXPECT_THAT(projects(), ElementsAre("Machine", "Second"));
}

TEST_F(CommandCodes, AreRefusedIfTheyAreNotKnown)
{
    const vxtest::Reports reports;
    for (const int code : {0, -1, 3, addPartCode, 1028, 4711})
        EXPECT_FALSE(vxMsg::runCommand(code, 1, {"Machine"})) << code;
    for (const int code : {0, -1, 22, makeAssemblyCode, 1028, 4711})
        EXPECT_FALSE(vxMsg::doCommand({code, "Machine", "Bolt", 0.0})) << code;
    EXPECT_EQ(reports.errors(), 12);
    EXPECT_THAT(reports.text(), HasSubstr("The request 4711 is not known; nothing was done."));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(projects(), ElementsAre("Machine"));
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(CommandCodes, AreRegisteredOnce)
{
    const vxtest::Reports reports;
    EXPECT_TRUE(vxMsg::registerObjectCode(addPartCode, "vxtest::Part")) << "as before";
    EXPECT_EQ(reports.errors(), 0);
    EXPECT_FALSE(vxMsg::registerObjectCode(addPartCode, "vxtest::Joint"));
    EXPECT_FALSE(vxMsg::registerProjectCode(makeAssemblyCode, "Obj::Project"));
    EXPECT_FALSE(vxMsg::registerObjectCode(3, "vxtest::Part")) << "the host's own";
    EXPECT_FALSE(vxMsg::registerProjectCode(22, "vxtest::Assembly"));
    EXPECT_EQ(reports.errors(), 4);
    EXPECT_TRUE(add("Bolt"));
    EXPECT_STREQ(m_project->get_object("Bolt")->getTypeId().get_name(), "vxtest::Part") << "it keeps its meaning";
    EXPECT_TRUE(remove("Bolt"));
}

TEST_F(CommandCodes, OfAClassThatIsNotRegisteredMakeNothing)
{
    EXPECT_TRUE(vxMsg::registerObjectCode(6002, "Missing::Bolt"));
    const vxtest::Reports reports;
    EXPECT_FALSE(vxMsg::doCommand({6002, "Machine", "Bolt", 0.0}));
    EXPECT_THAT(reports.text(), HasSubstr("\"Missing::Bolt\""));
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(CommandCodes, TakeAsManyNamesAsTheCountSays)
{
    const vxtest::Reports reports;
    EXPECT_FALSE(vxMsg::runCommand(makeAssemblyCode, 2, {"a"}));
    EXPECT_FALSE(vxMsg::runCommand(makeAssemblyCode, 1, {"a", "b"}));
    EXPECT_FALSE(vxMsg::runCommand(makeAssemblyCode, 2, {"a", "b"}));
    EXPECT_FALSE(vxMsg::runCommand(vxMsg::vxCommand::CloseProject, 0, {}));
    EXPECT_FALSE(vxMsg::runCommand(vxMsg::vxCommand::CloseProject, 1, {}));
    EXPECT_FALSE(vxMsg::runCommand(vxMsg::vxCommand::CloseProject, -1, {"Machine"}));
    EXPECT_EQ(reports.errors(), 6);
    EXPECT_THAT(reports.text(), HasSubstr("The request 5001 takes one name; nothing was done."));
    EXPECT_THAT(projects(), ElementsAre("Machine"));
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(CommandCodes, ReportWhatAConstructorThrowsAndChangeNothing)
{
    Part::hooks().constructorThrows = true;
    vxtest::Assembly::constructorThrows() = true;
    const vxtest::Reports reports;
    EXPECT_FALSE(add("a"));
    EXPECT_FALSE(makeProject("Second"));
    EXPECT_EQ(reports.errors(), 2);
    EXPECT_THAT(reports.text(), HasSubstr("A request failed: a part cannot be made today\n"));
    EXPECT_THAT(reports.text(), HasSubstr("A request failed: an assembly cannot be made today\n"));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(projects(), ElementsAre("Machine"));
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(CommandCodes, ReportWhatIsThrownWithoutAText)
{
    Part::hooks().action = [](Obj::ProjectObject&, const std::string& operation) {
        if (operation == "configuring")
            throw 42;
    };
    const vxtest::Reports reports;
    EXPECT_FALSE(add("a"));
    EXPECT_THAT(reports.text(), HasSubstr("A request failed: an exception of an unknown kind"));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(stack().count(), 0);
    Part::hooks().action = nullptr;
    EXPECT_TRUE(add("a")) << "the next request is not disturbed";
}

TEST_F(CommandCodes, LetNothingOutThatAListenerOfTheLogThrows)
{
    const auto listening =
        QObject::connect(&Kelta::MessageLog::instance(), &Kelta::MessageLog::reported,
                         [](const Kelta::LogMessage&) { throw std::runtime_error("the log cannot be written"); });
    EXPECT_NO_THROW(EXPECT_FALSE(vxMsg::runCommand(4711, 1, {"Machine"})));
    EXPECT_NO_THROW(EXPECT_FALSE(remove("Nobody")));
    Part::hooks().constructorThrows = true;
    EXPECT_NO_THROW(EXPECT_FALSE(add("a")));
    QObject::disconnect(listening);
}

} // namespace
