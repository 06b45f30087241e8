#include "Gui/GuiProject.h"

#include "GuiTesting.h"

#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GuiProjectTest : public vxtest::Host
{
protected:
    GuiProjectTest() : project(makeProject()), side(*Gui::GuiApplication::Instance->get_project(&project)) {}

    vxtest::TestProject& project;
    Gui::GuiProject& side;
};

TEST_F(GuiProjectTest, MakesTheNodeThatTheProjectNames)
{
    Gui::ViewFeederProject* const node = side.get_view_feeder();
    EXPECT_NE(dynamic_cast<vxtest::TestProjectNode*>(node), nullptr);
    EXPECT_EQ(node->getProject(), &project);
    EXPECT_EQ(side.get_view_feeder(), node);
}

TEST_F(GuiProjectTest, MakesOneNodeForEachObject)
{
    vxtest::TestObject& object = addObject(project);
    Gui::ViewFeederProjectObject* const node = side.get_view_feeder(&object);
    EXPECT_NE(dynamic_cast<vxtest::TestNode*>(node), nullptr);
    EXPECT_EQ(node->getObject(), &object);
    EXPECT_EQ(side.get_view_feeder(&object), node);
}

TEST_F(GuiProjectTest, HasNoNodeForWhatIsNotInTheProject)
{
    EXPECT_EQ(side.get_view_feeder(nullptr), nullptr);
    EXPECT_EQ(side.get_view_feeder(&addObject(makeProject("Other"))), nullptr);
}

constexpr Obj::Color red{1.0F, 0.25F, 0.0F, 0.0F};

TEST_F(GuiProjectTest, GivesARestoredObjectTheNodeThatItHad)
{
    vxtest::TestObject& object = addObject(project);
    nodeOf(object).color.setValue(red);
    const std::uint32_t objectId = object.getObjectId();
    const std::string name = object.get_name_in_project();
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(vxMsg::MessageProxy::instance().deleteObject(project.get_name(), name));
        vxMsg::MessageProxy::instance().undoStack().undo();
        vxMsg::MessageProxy::instance().undoStack().redo();
        vxMsg::MessageProxy::instance().undoStack().undo();
        EXPECT_EQ(nodeOf(*project.get_object(objectId)).color.getValue(), red) << round;
    }
}

TEST_F(GuiProjectTest, KeepsThePropertiesOfANodeThatNobodyMadeBetweenTwoDeletions)
{
    vxtest::TestObject& object = addObject(project);
    nodeOf(object).color.setValue(red);
    const std::uint32_t objectId = object.getObjectId();
    const Gui::NodeProperties nodes = side.recordNodes();
    Gui::GuiProject again(project, nodes);
    ASSERT_NE(project.restoreObject(project.takeObject(objectId)), nullptr);
    EXPECT_EQ(again.recordNodes().ofObjects.at(objectId), nodes.ofObjects.at(objectId));
}

TEST_F(GuiProjectTest, RecordsOnlyNodesThatHaveChanged)
{
    vxtest::TestObject& object = addObject(project);
    nodeOf(object);
    EXPECT_TRUE(side.recordNodes().ofObjects.empty());
    nodeOf(object).color.setValue(red);
    EXPECT_EQ(side.recordNodes().ofObjects.size(), 1U);
}

TEST_F(GuiProjectTest, RestoresTheNodesOfAProjectThatIsReopened)
{
    vxtest::TestObject& object = addObject(project);
    vxtest::TestObject& deleted = addObject(project, "Deleted");
    nodeOf(object).color.setValue(red);
    nodeOf(deleted).color.setValue(red);
    dynamic_cast<vxtest::TestProjectNode*>(side.get_view_feeder())->order.setValue(7);
    const std::uint32_t deletedId = deleted.getObjectId();
    vxMsg::MessageProxy& requests = vxMsg::MessageProxy::instance();
    ASSERT_TRUE(requests.deleteObject(project.get_name(), deleted.get_name_in_project()));
    ASSERT_TRUE(requests.closeProject(project.get_name()));
    requests.undoStack().undo();
    EXPECT_EQ(nodeOf(object).color.getValue(), red);
    auto* const node = Gui::GuiApplication::Instance->get_project(&project)->get_view_feeder();
    EXPECT_EQ(dynamic_cast<vxtest::TestProjectNode*>(node)->order.getValue(), 7);
    requests.undoStack().undo();
    EXPECT_EQ(nodeOf(*project.get_object(deletedId)).color.getValue(), red);
}

TEST_F(GuiProjectTest, RestoresANodeWithoutAChangeOfTheProject)
{
    vxtest::TestObject& object = addObject(project);
    nodeOf(object).color.setValue(red);
    ASSERT_TRUE(vxMsg::MessageProxy::instance().closeProject(project.get_name()));
    int changes = 0;
    const boost::signals2::scoped_connection counting = project.objectChanged.connect([&](auto&&...) { ++changes; });
    vxMsg::MessageProxy::instance().undoStack().undo();
    EXPECT_EQ(nodeOf(object).color.getValue(), red);
    EXPECT_EQ(changes, 0);
}

/// An object whose node is of an unregistered class, or of the wrong kind.
template <const char* NodeName>
class OddObject final : public Obj::ProjectObject
{
public:
    const char* get_viewfeeder_name() const override { return NodeName; }
    Kelta::TypeInfo getTypeId() const override { return type; }
    static void init(const char* name)
    {
        initSubclass(type, name, "Obj::ProjectObject",
                     []() -> void* { return static_cast<Kelta::RootClass*>(new OddObject); });
    }

private:
    static inline Kelta::TypeInfo type;
};

constexpr char unknownNode[] = "No::Node";
constexpr char wrongNode[] = "Test::ProjectNode";

TEST_F(GuiProjectTest, MakesAPlainNodeWhenThereIsNoneOfTheName)
{
    OddObject<unknownNode>::init("Test::Unknown");
    OddObject<wrongNode>::init("Test::Wrong");
    for (const char* const name : {"Test::Unknown", "Test::Wrong"}) {
        Obj::ProjectObject* const object = project.add_object(name, "Odd");
        const Gui::ViewFeederProjectObject* const node = side.get_view_feeder(object);
        ASSERT_NE(node, nullptr);
        EXPECT_STREQ(node->getTypeId().get_name(), "Gui::ViewFeederProjectObject");
    }
}

/// A node that cannot be created.
class FailingNode final : public Gui::ViewFeederProjectObject
{
public:
    FailingNode() { throw std::runtime_error("no node today"); }
    static void init()
    {
        initSubclass(type, "Test::FailingNode", "Gui::ViewFeederProjectObject",
                     []() -> void* { return static_cast<Kelta::RootClass*>(new FailingNode); });
    }

private:
    static inline Kelta::TypeInfo type;
};

constexpr char failingNode[] = "Test::FailingNode";

TEST_F(GuiProjectTest, MakesAPlainNodeInPlaceOfOneThatFailsAndSaysSoOnce)
{
    FailingNode::init();
    OddObject<failingNode>::init("Test::Failing");
    Obj::ProjectObject* const object = project.add_object("Test::Failing", "Odd");
    const std::size_t errors = Kelta::MessageLog::instance().errorCount();
    const Gui::ViewFeederProjectObject* const node = side.get_view_feeder(object);
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(side.get_view_feeder(object), node);
    EXPECT_EQ(lastMessage(), "The tree node \"Test::FailingNode\" cannot be made: no node today");
    EXPECT_EQ(Kelta::MessageLog::instance().errorCount(), errors + 1);
}

TEST_F(GuiProjectTest, PassesChangesOfPropertiesToTheNode)
{
    vxtest::TestObject& object = addObject(project);
    vxtest::TestNode& node = nodeOf(object);
    object.count.setValue(5);
    object.setSuppressed(true);
    EXPECT_THAT(node.changes, ElementsAre(&object.count));
}

TEST_F(GuiProjectTest, MakesANewNodeAfterUndo)
{
    vxtest::TestObject& object = addObject(project);
    nodeOf(object).opened = 5;
    project.restoreObject(project.takeObject(object.getObjectId()));
    EXPECT_EQ(nodeOf(object).opened, 0);
}

TEST_F(GuiProjectTest, RemovesItsViewsWhenItIsClosed)
{
    const QPointer<Gui::MDIWindow> shown = new Gui::MDIWindow(&side, window.get());
    window->add_mdi_window(shown);
    Gui::MDIWindow notShown(&side, nullptr);
    EXPECT_THAT(side.getViews(), ElementsAre(shown, &notShown));
    Obj::Application::instance().closeProject(project);
    EXPECT_EQ(shown, nullptr);
    EXPECT_EQ(notShown.getGuiProject(), nullptr);
}

TEST_F(GuiProjectTest, ForgetsTheNodesOfDeletedObjectsWhenTheHistoryEnds)
{
    vxMsg::MessageProxy& requests = vxMsg::MessageProxy::instance();
    vxtest::TestObject& deleted = addObject(project, "Deleted");
    vxtest::TestObject& restored = addObject(project, "Restored");
    const std::uint32_t restoredId = restored.getObjectId();
    for (vxtest::TestObject* const object : {&deleted, &restored}) {
        nodeOf(*object).color.setValue(red);
        ASSERT_TRUE(requests.deleteObject(project.get_name(), object->get_name_in_project()));
    }
    EXPECT_EQ(side.recordNodes().ofObjects.size(), 2U);
    requests.undoStack().undo();
    requests.undoStack().clear();
    QCoreApplication::processEvents();
    ASSERT_EQ(side.recordNodes().ofObjects.size(), 1U);
    EXPECT_EQ(side.recordNodes().ofObjects.begin()->first, restoredId);
}

TEST_F(GuiProjectTest, KeepsTheNodeOfAnObjectWhoseDeletionBeginsANewHistory)
{
    vxMsg::MessageProxy& requests = vxMsg::MessageProxy::instance();
    vxtest::TestObject& object = addObject(project, "Kept");
    vxtest::TestObject& destroyed = addObject(project, "Destroyed");
    nodeOf(object).color.setValue(red);
    const std::uint32_t objectId = object.getObjectId();
    {
        const vxMsg::MessageProxy::Group group(QStringLiteral("Tidy"));
        project.removeObject(destroyed.getObjectId());
        ASSERT_TRUE(requests.deleteObject(project.get_name(), "Kept"));
    }
    QCoreApplication::processEvents();
    ASSERT_EQ(requests.undoStack().count(), 1);
    requests.undoStack().undo();
    EXPECT_EQ(nodeOf(*project.get_object(objectId)).color.getValue(), red);
}

} // namespace
