#include "Obj/Application.h"

#include "HostTesting.h"
#include "ObjTesting.h"

#include <QTemporaryDir>

namespace {

using Obj::Application;
using Obj::Project;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using vxtest::Assembly;

using ApplicationTest = vxtest::ObjTest;

std::vector<std::string> openProjects()
{
    std::vector<std::string> names;
    for (const Project* const project : Application::get_projects())
        names.emplace_back(project->get_name());
    return names;
}

TEST_F(ApplicationTest, MakesAProjectByItsRegisteredClassAndMakesItCurrent)
{
    EXPECT_EQ(Application::get_current_project(), nullptr);
    Assembly& a = addAssembly("a");
    EXPECT_STREQ(a.get_name(), "a");
    EXPECT_EQ(a.id.getValue(), a.getProjectId());
    EXPECT_GE(a.getProjectId(), 1U);
    EXPECT_EQ(Application::get_current_project(), &a);
    Assembly& b = addAssembly("b");
    EXPECT_EQ(b.getProjectId(), a.getProjectId() + 1);
    EXPECT_EQ(Application::get_current_project(), &b);
    EXPECT_THAT(openProjects(), ElementsAre("a", "b"));
}

TEST_F(ApplicationTest, MakesNothingOfAClassThatIsNotRegisteredOrNoProject)
{
    const vxtest::Reports reports;
    EXPECT_EQ(application().createProject("Test::Nobody", "a"), nullptr);
    EXPECT_EQ(application().createProject(nullptr, "a"), nullptr);
    EXPECT_EQ(application().createProject("vxtest::Part", "a"), nullptr);
    EXPECT_EQ(application().createProject("Obj::Project", "a"), nullptr);
    EXPECT_EQ(reports.errors(), 4);
    EXPECT_THAT(reports.text(), HasSubstr("No project of class \"Test::Nobody\" was made: this class is not known."));
    EXPECT_THAT(reports.text(), HasSubstr("\"vxtest::Part\" was made: this is not a class of projects."));
    EXPECT_THAT(reports.text(), HasSubstr("\"Obj::Project\" was made: the class cannot create objects."));
    EXPECT_THAT(openProjects(), IsEmpty());
}

TEST_F(ApplicationTest, IsUnchangedWhenTheConstructorOfAProjectThrows)
{
    Assembly& a = addAssembly("a");
    Assembly::constructorThrows() = true;
    EXPECT_THROW(application().createProject("vxtest::Assembly", "b"), std::runtime_error);
    EXPECT_THAT(openProjects(), ElementsAre("a"));
    EXPECT_EQ(Application::get_current_project(), &a);
}

TEST_F(ApplicationTest, FindsProjectsByNameIdAndTag)
{
    Assembly& a = addAssembly("钢 %1");
    EXPECT_EQ(application().get_project("钢 %1"), &a);
    EXPECT_EQ(application().get_project(""), nullptr);
    EXPECT_EQ(application().get_project(a.getProjectId()), &a);
    EXPECT_EQ(application().get_project(0U), nullptr);
    EXPECT_THAT(Application::get_projects(vxtest::assemblyTag), ElementsAre(&a));
    EXPECT_THAT(Application::get_projects(1), ElementsAre(&a));
    EXPECT_THAT(Application::get_projects(2), IsEmpty());
}

TEST_F(ApplicationTest, MakesNamesUniqueThatAreTakenOrEmpty)
{
    const std::string first = Application::get_unique_project_name("Thing");
    EXPECT_EQ(first, "Thing");
    EXPECT_NE(Application::get_unique_project_name("Thing"), first);
    addAssembly("Machine");
    Assembly& second = addAssembly("Machine");
    EXPECT_THAT(second.get_name(), HasSubstr("Machine"));
    EXPECT_STRNE(second.get_name(), "Machine");
    EXPECT_THAT(addAssembly("").get_name(), HasSubstr("Project"));
}

TEST_F(ApplicationTest, MakesNoNameOfAProjectThatMayBeRestored)
{
    Obj::OwnedProject away = application().takeProject(addAssembly("Machine1"));
    addAssembly("Machine");
    EXPECT_STREQ(addAssembly("Machine").get_name(), "Machine2");
    const vxtest::Reports reports;
    application().restoreProject(std::move(away));
    EXPECT_EQ(reports.warnings(), 0);
}

TEST_F(ApplicationTest, AddsAProjectThatCodeHasMade)
{
    Obj::Project* const project = application().addProject(std::make_unique<vxtest::Assembly>(), "Machine");
    ASSERT_NE(project, nullptr);
    EXPECT_STREQ(project->get_name(), "Machine");
    EXPECT_EQ(application().get_project(project->getProjectId()), project);
    EXPECT_EQ(Application::get_current_project(), project);
}

TEST_F(ApplicationTest, TellsAllListenersThoughOneClosesTheProject)
{
    std::vector<std::string> told;
    application().projectAdded.connect([](Obj::Project& project) { application().closeProject(project); });
    application().projectAdded.connect([&told](Obj::Project& project) { told.emplace_back(project.get_name()); });
    EXPECT_EQ(application().createProject("vxtest::Assembly", "short-lived"), nullptr);
    EXPECT_THAT(told, ElementsAre("short-lived"));
    EXPECT_EQ(Application::get_current_project(), nullptr);
    application().projectAdded.disconnect_all_slots();
}

TEST_F(ApplicationTest, ChoosesTheCurrentProjectAmongThoseThatAreOpen)
{
    Assembly& a = addAssembly("a");
    addAssembly("b");
    std::vector<Project*> told;
    const boost::signals2::scoped_connection connection =
        application().currentProjectChanged.connect([&told](Project* project) { told.push_back(project); });
    application().setCurrentProject(a);
    application().setCurrentProject(a);
    EXPECT_EQ(Application::get_current_project(), &a);
    EXPECT_THAT(told, ElementsAre(&a));
    Assembly closed;
    application().setCurrentProject(closed);
    EXPECT_EQ(Application::get_current_project(), &a);
}

TEST_F(ApplicationTest, MakesTheLastOneCurrentWhenTheCurrentOneIsClosed)
{
    Assembly& a = addAssembly("a");
    Assembly& b = addAssembly("b");
    Assembly& c = addAssembly("c");
    application().setCurrentProject(b);
    EXPECT_TRUE(application().closeProject(b));
    EXPECT_EQ(Application::get_current_project(), &c);
    EXPECT_TRUE(application().closeProject(a));
    EXPECT_EQ(Application::get_current_project(), &c) << "it stays the current project";
    EXPECT_TRUE(application().closeProject(c));
    EXPECT_EQ(Application::get_current_project(), nullptr);
}

TEST_F(ApplicationTest, GivesAProjectAwayAndOpensItAgainAtItsPlace)
{
    Assembly& a = addAssembly("a");
    a.addPart("part");
    addAssembly("b");
    Obj::OwnedProject away = application().takeProject(a);
    EXPECT_EQ(away.get(), &a);
    EXPECT_THAT(openProjects(), ElementsAre("b"));
    EXPECT_EQ(application().takeProject(a), nullptr);
    EXPECT_FALSE(application().closeProject(a));
    EXPECT_EQ(application().restoreProject(std::move(away)), &a);
    EXPECT_THAT(openProjects(), ElementsAre("a", "b"));
    EXPECT_EQ(Application::get_current_project(), &a);
    EXPECT_NE(a.get_object("part"), nullptr);
    EXPECT_EQ(application().restoreProject(nullptr), nullptr);
}

TEST_F(ApplicationTest, GivesAProjectAUniqueNameWhenItsOwnHasBeenTakenMeanwhile)
{
    Assembly& first = addAssembly("Twin");
    Obj::OwnedProject away = application().takeProject(first);
    Assembly& second = addAssembly("Twin");
    const vxtest::Reports reports;
    application().restoreProject(std::move(away));
    EXPECT_EQ(reports.warnings(), 1);
    EXPECT_STREQ(second.get_name(), "Twin");
    EXPECT_EQ(application().get_project("Twin"), &second);
    EXPECT_EQ(application().get_project(first.get_name()), &first);
}

TEST_F(ApplicationTest, TellsOfProjectsThatComeAndGo)
{
    std::vector<std::string> told;
    const boost::signals2::scoped_connection added = application().projectAdded.connect(
        [&told](Project& project) { told.push_back(std::string("added ") + project.get_name()); });
    const boost::signals2::scoped_connection removed = application().projectRemoved.connect([&told](Project& project) {
        told.push_back(std::string("removed ") + project.get_name());
        EXPECT_EQ(Obj::Application::instance().get_project(project.getProjectId()), nullptr);
    });
    addAssembly("a");
    addAssembly("b");
    application().closeAllProjects();
    EXPECT_THAT(told, ElementsAre("added a", "added b", "removed b", "removed a"));
}

TEST_F(ApplicationTest, SurvivesAListenerThatClosesAProjectAtOnce)
{
    int told = 0;
    const boost::signals2::scoped_connection added = application().projectAdded.connect([&told](Project& project) {
        ++told;
        application().closeProject(project);
    });
    EXPECT_EQ(application().createProject("vxtest::Assembly", "a"), nullptr);
    EXPECT_EQ(Application::get_current_project(), nullptr);
    EXPECT_EQ(told, 1);
}

TEST_F(ApplicationTest, GathersTheRecordsOfAllProjectsInOneDocument)
{
    EXPECT_TRUE(application().save_jsonDB()["projects"].isArray());
    EXPECT_TRUE(application().save_jsonDB()["projects"].empty());
    addAssembly("a").addPart("part");
    addAssembly("b");
    const Json::Value database = application().save_jsonDB();
    ASSERT_EQ(database["projects"].size(), 2U);
    EXPECT_EQ(database["projects"][0]["name"], "a");
    EXPECT_EQ(database["projects"][0]["objects"][0]["label"], "part");
    EXPECT_EQ(database["projects"][1]["name"], "b");
    EXPECT_EQ(database.size(), 1U);
}

TEST(InitObj, ChangesNothingWhenItIsCalledAgain)
{
    Obj::initObj();
    const vxtest::Reports reports;
    Obj::initObj();
    EXPECT_EQ(reports.text(), "");
    EXPECT_TRUE(Kelta::TypeInfo::find("Obj::ProjectObjectGroup").namesAType());
}

} // namespace
