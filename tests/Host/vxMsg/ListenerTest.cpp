#include "HostTesting.h"
#include "ProxyTesting.h"

#include "Obj/ProjectObjectGroup.h"

#include <boost/signals2/connection.hpp>

#include <random>
#include <stdexcept>

/// Listeners that change the signal's argument while requests are carried out. Sanitizers detect invalid accesses.
namespace {

using boost::signals2::scoped_connection;
using Obj::Application;
using Obj::ProjectObject;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using vxtest::Assembly;
using vxtest::Part;

class ListenerTest : public vxtest::MessageProxyTest
{};

// --- Closing ---

TEST_F(ListenerTest, MayCloseTheProjectDirectlyWhenAskedWhetherItMayClose)
{
    part("Bolt");
    proxy().projectClosing.connect([](Obj::Project& project, bool&) { application().closeProject(project); });
    std::vector<std::string> told;
    proxy().projectClosing.connect([&told](Obj::Project& project, bool&) { told.emplace_back(project.get_name()); });
    const vxtest::Reports reports;
    EXPECT_FALSE(closeProject("Machine"));
    EXPECT_THAT(told, ElementsAre("Machine")) << "the next listener gets a complete project";
    EXPECT_THAT(reports.text(), HasSubstr("A listener closed the project \"Machine\""));
    EXPECT_THAT(projects(), IsEmpty());
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(ListenerTest, MayRequestTheClosingAgainWhenAskedWhetherTheProjectMayClose)
{
    int calls = 0;
    proxy().projectClosing.connect([&calls](Obj::Project&, bool&) {
        ++calls;
        EXPECT_FALSE(closeProject("Machine"));
    });
    const vxtest::Reports reports;
    EXPECT_TRUE(closeProject("Machine"));
    EXPECT_EQ(calls, 1);
    EXPECT_THAT(reports.text(), HasSubstr("\"Machine\" is being closed already; nothing was done."));
    EXPECT_THAT(projects(), IsEmpty());
    stack().undo();
    EXPECT_THAT(projects(), ElementsAre("Machine"));
}

TEST_F(ListenerTest, MayUndoTheCreationOfTheProjectThatIsToBeClosed)
{
    EXPECT_TRUE(makeProject("Second"));
    proxy().projectClosing.connect([](Obj::Project&, bool&) { stack().undo(); });
    const vxtest::Reports reports;
    EXPECT_FALSE(closeProject("Second"));
    EXPECT_THAT(projects(), ElementsAre("Machine"));
}

TEST_F(ListenerTest, KeepsAProjectOpenByRefusing)
{
    proxy().projectClosing.connect([](Obj::Project&, bool& refused) { refused = true; });
    proxy().projectClosing.connect([](Obj::Project&, bool&) { throw std::runtime_error("I cannot decide"); });
    const vxtest::Reports reports;
    EXPECT_FALSE(closeProject("Machine"));
    EXPECT_THAT(projects(), ElementsAre("Machine"));
    EXPECT_EQ(reports.errors(), 1);
}

TEST_F(ListenerTest, MayCloseTheProjectWhoseSettingIsChanged)
{
    scoped_connection listening =
        m_project->changed.connect([](const Obj::Property*) { EXPECT_TRUE(closeProject("Machine")); });
    EXPECT_TRUE(proxy().setSetting("Machine", "drawing_scale", "1:10"));
    EXPECT_THAT(projects(), IsEmpty());
    listening.disconnect();
    EXPECT_EQ(stack().count(), 1) << "both are undone together";
    stack().undo();
    ASSERT_THAT(projects(), ElementsAre("Machine"));
    EXPECT_EQ(application().get_project("Machine")->getSetting("drawing_scale"), "");
}

TEST_F(ListenerTest, MayDeleteTheObjectWhoseSettingIsChanged)
{
    ASSERT_TRUE(add("Bolt"));
    const int before = stack().count();
    scoped_connection listening = m_project->objectChanged.connect(
        [](ProjectObject& object, const Obj::Property*) { EXPECT_TRUE(remove(object.get_name_in_project())); });
    EXPECT_TRUE(proxy().setSetting(*m_project->get_object("Bolt"), "measurements", "first"));
    listening.disconnect();
    EXPECT_EQ(m_project->get_object("Bolt"), nullptr);
    EXPECT_EQ(stack().count(), before + 1) << "both are undone together";
    stack().undo();
    ASSERT_NE(m_project->get_object("Bolt"), nullptr);
    EXPECT_THAT(m_project->get_object("Bolt")->getSettings(), IsEmpty());
}

// --- Objects that are removed at once ---

TEST_F(ListenerTest, IsNotNotifiedOfACreatedObjectThatAnotherListenerDeletedByRequest)
{
    int created = 0;
    proxy().objectCreated.connect([&created](ProjectObject&) { ++created; });
    scoped_connection listening = m_project->objectAdded.connect(
        [](ProjectObject& object) { EXPECT_TRUE(remove(object.get_name_in_project())); });
    EXPECT_FALSE(add("Bolt"));
    listening.disconnect();
    EXPECT_EQ(created, 0);
    EXPECT_THAT(names(), IsEmpty());
    stack().undo();
    EXPECT_THAT(names(), IsEmpty()) << "both are undone together";
}

TEST_F(ListenerTest, IsNotNotifiedOfACreatedObjectThatAnotherListenerDestroyed)
{
    int created = 0;
    proxy().objectCreated.connect([&created](ProjectObject&) { ++created; });
    m_project->objectAdded.connect([this](ProjectObject& object) { m_project->removeObject(object.getObjectId()); });
    EXPECT_FALSE(add("Bolt"));
    EXPECT_EQ(created, 0);
    EXPECT_EQ(stack().count(), 0);
    EXPECT_EQ(Part::count(), 0);
}

TEST_F(ListenerTest, MayDestroyACreatedObjectBeforeOthersAreNotified)
{
    std::vector<std::string> told;
    proxy().objectCreated.connect([this](ProjectObject& object) { m_project->removeObject(object.getObjectId()); });
    proxy().objectCreated.connect([&told](ProjectObject& object) { told.push_back(object.label.getValue()); });
    EXPECT_TRUE(add("Bolt"));
    EXPECT_THAT(told, ElementsAre("Bolt"));
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ListenerTest, MayCloseTheProjectToWhichAnObjectIsAdded)
{
    scoped_connection listening =
        m_project->objectAdded.connect([](ProjectObject&) { EXPECT_TRUE(closeProject("Machine")); });
    EXPECT_TRUE(add("Bolt")) << "the object is in a project that can be restored";
    listening.disconnect();
    EXPECT_THAT(projects(), IsEmpty());
    stack().undo();
    EXPECT_THAT(projects(), ElementsAre("Machine"));
    EXPECT_THAT(names(), IsEmpty()) << "the closing and the addition are one step";
    stack().redo();
    EXPECT_THAT(projects(), IsEmpty());
}

TEST_F(ListenerTest, MayDestroyTheProjectToWhichAnObjectIsAdded)
{
    m_project->objectAdded.connect([this](ProjectObject&) { application().closeProject(*m_project); });
    EXPECT_FALSE(add("Bolt"));
    EXPECT_EQ(stack().count(), 0);
    EXPECT_EQ(Part::count(), 0);
}

TEST_F(ListenerTest, MayDestroyAProjectThatIsJustMade)
{
    const scoped_connection closing =
        application().projectAdded.connect([](Obj::Project& project) { application().closeProject(project); });
    int created = 0;
    proxy().projectCreated.connect([&created](Obj::Project&) { ++created; });
    EXPECT_FALSE(makeProject("Second"));
    EXPECT_EQ(created, 0);
    EXPECT_THAT(projects(), ElementsAre("Machine"));
}

TEST_F(ListenerTest, MayDestroyAnObjectWhosePropertyIsChanged)
{
    Part& bolt = part("Bolt");
    m_project->objectChanged.connect(
        [this](ProjectObject& object, const Obj::Property*) { m_project->removeObject(object.getObjectId()); });
    EXPECT_TRUE(proxy().setProperty(vxMsg::PropertyPlace(bolt), "Width", "9"));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(stack().count(), 0);
    Part& nut = m_project->addPart("Nut");
    EXPECT_TRUE(proxy().setSuppressed(nut, true));
    EXPECT_THAT(names(), IsEmpty());
}

// --- One step ---

TEST_F(ListenerTest, HasWhatItAddsUndoneWithTheRequestAProjectIncluded)
{
    scoped_connection listening = m_project->objectAdded.connect([this](ProjectObject& object) {
        if (object.label.getValue() != "Bolt")
            return;
        Obj::Project* const drawing = application().createProject("vxtest::Assembly", "Drawing");
        drawing->add_object("vxtest::Part", "View");
        m_project->addPart("Nut");
    });
    EXPECT_TRUE(add("Bolt"));
    listening.disconnect();
    EXPECT_EQ(stack().count(), 1);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Add \"Bolt\""));
    stack().undo();
    EXPECT_THAT(projects(), ElementsAre("Machine"));
    EXPECT_THAT(names(), IsEmpty());
    stack().redo();
    EXPECT_THAT(projects(), ElementsAre("Machine", "Drawing"));
    EXPECT_NE(application().get_project("Drawing")->get_object("View"), nullptr);
    EXPECT_THAT(names(), ElementsAre("Bolt", "Nut"));
}

TEST_F(ListenerTest, HasWhatItAddsElsewhereUndoneWithANewProject)
{
    scoped_connection listening = application().projectAdded.connect([this](Obj::Project& project) {
        m_project->addPart("Elsewhere");
        project.add_object("vxtest::Part", "Inside");
    });
    EXPECT_TRUE(makeProject("Second"));
    listening.disconnect();
    EXPECT_EQ(stack().count(), 1);
    EXPECT_EQ(stack().undoText(), QStringLiteral("New project \"Second\""));
    EXPECT_THAT(names(), ElementsAre("Elsewhere"));
    stack().undo();
    EXPECT_THAT(projects(), ElementsAre("Machine"));
    EXPECT_THAT(names(), IsEmpty());
    stack().redo();
    EXPECT_NE(application().get_project("Second")->get_object("Inside"), nullptr);
    EXPECT_THAT(names(), ElementsAre("Elsewhere"));
}

TEST_F(ListenerTest, HasWhatItAddsUndoneBeforeTheChangeThatCausedIt)
{
    Part& bolt = part("Bolt");
    std::vector<std::string> order;
    scoped_connection listening = m_project->objectChanged.connect([&](ProjectObject& object, const Obj::Property* p) {
        if (p == &bolt.width && m_project->get_object("Nut") == nullptr)
            m_project->addPart("Nut");
        static_cast<void>(object);
    });
    EXPECT_TRUE(proxy().setProperty(vxMsg::PropertyPlace(bolt), "Width", "9"));
    EXPECT_EQ(stack().count(), 2);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Change \"Width\" of \"Bolt\""));
    listening.disconnect();
    m_project->objectChanged.connect([&order](ProjectObject&, const Obj::Property*) { order.emplace_back("changed"); });
    m_project->objectRemoved.connect([&order](ProjectObject&) { order.emplace_back("removed"); });
    stack().undo();
    EXPECT_THAT(order, ElementsAre("removed", "changed"));
    EXPECT_THAT(names(), ElementsAre("Bolt"));
    EXPECT_EQ(bolt.width.getValue(), 7);
}

TEST_F(ListenerTest, HasItsRequestsInsideADeletionUndoneWithIt)
{
    part("Bolt");
    part("Nut");
    scoped_connection listening = m_project->objectRemoved.connect([](ProjectObject& object) {
        if (object.label.getValue() == "Bolt") {
            EXPECT_TRUE(remove("Nut"));
        }
    });
    EXPECT_TRUE(remove("Bolt"));
    EXPECT_EQ(stack().count(), 3);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Delete \"Bolt\""));
    listening.disconnect();
    stack().undo();
    EXPECT_THAT(names(), ElementsAre("Bolt", "Nut"));
}

TEST_F(ListenerTest, EndsTheHistoryIfItDestroysAnObjectThatARequestDeletes)
{
    part("a");
    part("b").linkTo(*m_project->get_object("a"));
    Part::hooks().removesItselfWithWhatItNeeds = true;
    EXPECT_TRUE(remove("a"));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(stack().count(), 0) << "the changes cannot be undone any more";
}

TEST_F(ListenerTest, EndsTheHistoryIfItClosesAProjectDuringAnUndo)
{
    EXPECT_TRUE(add("a"));
    EXPECT_TRUE(makeProject("Other"));
    EXPECT_TRUE(add("b", "Other"));
    int calls = 0;
    application().get_project("Other")->objectRemoved.connect([&calls, this](ProjectObject&) {
        ++calls;
        application().closeProject(*m_project);
    });
    stack().undo();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(stack().count(), 0);
    EXPECT_THAT(projects(), ElementsAre("Other"));
}

TEST_F(ListenerTest, KeepsARestoredObjectThatThrows)
{
    const Part& bolt = part("Bolt");
    stack().undo();
    Part::hooks().restoredThrows = true;
    const vxtest::Reports reports;
    stack().redo();
    EXPECT_EQ(m_project->get_object("Bolt"), &bolt);
    EXPECT_EQ(reports.errors(), 1);
}

TEST_F(ListenerTest, MayChangeTheHistoryThatAForeignStepUndoes)
{
    /// A step of another module that notifies its listeners.
    class Foreign : public QUndoCommand
    {
    public:
        explicit Foreign(Assembly& assembly) : m_assembly(assembly) {}
        void undo() override
        {
            m_assembly.addPart("added while undoing");
            throw std::runtime_error("a foreign step fails");
        }

    private:
        Assembly& m_assembly;
    };
    proxy().pushDone(std::make_unique<Foreign>(*m_project));
    const vxtest::Reports reports;
    EXPECT_NO_THROW(stack().undo());
    EXPECT_THAT(reports.text(), HasSubstr("An undo or redo failed: a foreign step fails"));
    EXPECT_EQ(stack().count(), 1);
    EXPECT_THAT(names(), ElementsAre("added while undoing"));
}

// --- Random actions ---

/// Makes a random change to the open projects, by request or directly.
class Mischief
{
public:
    explicit Mischief(unsigned int seed) : m_random(seed) {}

    void doSomething()
    {
        // Listeners cause calls of each other; the chain must end.
        if (m_depth >= 3)
            return;
        ++m_depth;
        act(number(14));
        --m_depth;
    }

private:
    int number(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }

    Obj::Project* someProject()
    {
        const auto projects = Application::get_projects();
        return projects.empty() ? nullptr
                                : projects[static_cast<std::size_t>(number(static_cast<int>(projects.size())))];
    }

    ProjectObject* someObject(const Obj::Project& project)
    {
        const auto objects = project.getObjects();
        return objects.empty() ? nullptr : objects[static_cast<std::size_t>(number(static_cast<int>(objects.size())))];
    }

    void act(int what)
    {
        vxMsg::MessageProxy& proxy = vxMsg::MessageProxy::instance();
        Obj::Project* const project = someProject();
        if (project == nullptr || (what == 0 && Application::get_projects().size() < 4)) {
            proxy.newProject("vxtest::Assembly", "Random");
            return;
        }
        const std::string name = project->get_name();
        ProjectObject* const object = someObject(*project);
        if (what == 1)
            proxy.closeProject(name);
        else if (what == 2)
            Application::instance().closeProject(*project);
        else if (what == 3)
            proxy.undoStack().undo();
        else if (what == 4)
            proxy.undoStack().redo();
        else if (what <= 7 && project->getObjectCount() < 30)
            proxy.addObject(name, number(2) == 0 ? "vxtest::Joint" : "Obj::ProjectObjectGroup", "Random");
        else if (what == 8)
            project->add_object("vxtest::Joint", "Direct");
        else if (object != nullptr)
            actOn(*project, *object, what);
    }

    void actOn(Obj::Project& project, ProjectObject& object, int what)
    {
        vxMsg::MessageProxy& proxy = vxMsg::MessageProxy::instance();
        ProjectObject& other = *someObject(project);
        if (what == 9)
            proxy.deleteObject(project.get_name(), object.get_name_in_project());
        else if (what == 10)
            project.removeObject(object.getObjectId());
        else if (what == 11)
            object.linkTo(other);
        else if (what == 12)
            proxy.setProperty(vxMsg::PropertyPlace(object), "First", other.get_name_in_project());
        else if (auto* const group = dynamic_cast<Obj::ProjectObjectGroup*>(&object))
            group->addMember(other);
        else
            proxy.setSuppressed(object, !object.isSuppressed());
    }

    std::mt19937 m_random;
    int m_depth = 0;
};

/// Every listener of every signal makes random changes.
class EveryListener
{
public:
    explicit EveryListener(Mischief& mischief) : m_mischief(mischief)
    {
        Application& application = Application::instance();
        vxMsg::MessageProxy& proxy = vxMsg::MessageProxy::instance();
        const auto act = [this](auto&&...) { m_mischief.doSomething(); };
        for (Obj::Project* const project : Application::get_projects())
            watch(*project);
        m_connections.emplace_back(application.projectAdded.connect([this](Obj::Project& project) { watch(project); }));
        m_connections.emplace_back(application.projectAdded.connect(act));
        m_connections.emplace_back(application.projectRemoved.connect(act));
        m_connections.emplace_back(application.currentProjectChanged.connect(act));
        m_connections.emplace_back(proxy.objectCreated.connect(act));
        m_connections.emplace_back(proxy.projectCreated.connect(act));
        m_connections.emplace_back(proxy.projectClosing.connect(act));
    }

private:
    void watch(Obj::Project& project)
    {
        const auto touch = [this](ProjectObject& object, auto&&...) {
            m_mischief.doSomething();
            // The argument is complete in spite of all changes of the other listeners.
            static_cast<void>(object.label.getValue().size() + object.get_linked_objects().size());
        };
        project.objectAdded.connect(touch);
        project.objectRemoved.connect(touch);
        project.objectChanged.connect(touch);
        project.changed.connect([this](const Obj::Property*) { m_mischief.doSomething(); });
    }

    Mischief& m_mischief;
    std::vector<scoped_connection> m_connections;
};

class ListenersAtRandom : public ListenerTest, public testing::WithParamInterface<unsigned int>
{};

TEST_P(ListenersAtRandom, LeaveEverythingWhole)
{
    Mischief mischief(GetParam());
    {
        const EveryListener listeners(mischief);
        for (int i = 0; i < 200; ++i)
            mischief.doSomething();
        application().closeAllProjects();
        stack().clear();
        for (Obj::Project* const project : Application::get_projects())
            project->objectAdded.disconnect_all_slots();
    }
    stack().clear();
    application().closeAllProjects();
    EXPECT_EQ(Part::count(), 0) << "objects outlive their projects";
}

INSTANTIATE_TEST_SUITE_P(Seed, ListenersAtRandom, testing::Range(0U, 20U));

} // namespace
