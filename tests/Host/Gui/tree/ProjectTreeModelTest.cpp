#include "Gui/ProjectTreeModel.h"

#include "GuiTesting.h"

#include "Gui/ObjectStatus.h"
#include "Obj/Placeholder.h"
#include "Obj/ProjectObjectGroup.h"

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QSignalSpy>

#include <random>

namespace {

using Gui::ProjectTreeModel;

/// A model watched by Qt's tester, which ends the test program if the model breaks a rule of Qt's item models.
class Tree : public vxtest::Host
{
protected:
    Tree() : tester(&tree, QAbstractItemModelTester::FailureReportingMode::Fatal) {}

    QStringList labelsOf(const Obj::Project& project)
    {
        tree.synchronize();
        QStringList labels;
        const QModelIndex parent = tree.indexOf(project);
        for (int row = 0; row < tree.rowCount(parent); ++row)
            labels << tree.index(row, 0, parent).data().toString();
        return labels;
    }

    ProjectTreeModel tree{*Gui::GuiApplication::Instance};
    QAbstractItemModelTester tester;
};

TEST_F(Tree, ShowsProjectsAndTheirObjectsInOrder)
{
    vxtest::TestProject& first = makeProject("First");
    vxtest::TestProject& second = makeProject("Second");
    addObject(second, "B1");
    addObject(first, "A1");
    addObject(second, "B2");
    EXPECT_EQ(labelsOf(first), QStringList({"A1"}));
    EXPECT_EQ(labelsOf(second), QStringList({"B1", "B2"}));
    EXPECT_EQ(tree.rowCount({}), 2);
    EXPECT_EQ(tree.index(0, 0, {}).data().toString(), "First");
    EXPECT_EQ(tree.projectAt(tree.index(1, 0, {})), &second);
    EXPECT_EQ(tree.objectAt(tree.index(1, 0, {})), nullptr);
}

TEST_F(Tree, ShowsProjectsThatWereOpenBeforeIt)
{
    vxtest::TestProject& project = makeProject();
    addObject(project, "A");
    const ProjectTreeModel late(*Gui::GuiApplication::Instance);
    EXPECT_EQ(late.rowCount({}), 1);
    EXPECT_EQ(late.rowCount(late.indexOf(project)), 1);
}

TEST_F(Tree, ShowsANodeWithoutAPictureAndSaysNothing)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& object = addObject(project, "A");
    nodeOf(object).leaveOutPicture();
    tree.synchronize();
    const std::size_t messages = Kelta::MessageLog::instance().messages().size();
    EXPECT_TRUE(tree.indexOf(object).data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_EQ(Kelta::MessageLog::instance().messages().size(), messages);
}

TEST_F(Tree, TakesChangesOverWhenTheEventLoopIsIdle)
{
    vxtest::TestProject& project = makeProject();
    addObject(project, "A");
    EXPECT_EQ(tree.rowCount({}), 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return tree.rowCount({}) == 1; }));
    EXPECT_EQ(tree.rowCount(tree.indexOf(project)), 1);
}

TEST_F(Tree, MakesFewBlocksOfManyChanges)
{
    vxtest::TestProject& project = makeProject();
    tree.synchronize();
    QSignalSpy inserted(&tree, &ProjectTreeModel::rowsInserted);
    QSignalSpy removed(&tree, &ProjectTreeModel::rowsRemoved);
    for (int i = 0; i < 1000; ++i)
        addObject(project);
    tree.synchronize();
    EXPECT_EQ(inserted.count(), 1);
    // Every second object of the first ten, and all others.
    for (std::uint32_t id = 1; id <= 10; id += 2)
        project.removeObject(id);
    for (std::uint32_t id = 11; id <= 1000; ++id)
        project.removeObject(id);
    tree.synchronize();
    EXPECT_EQ(removed.count(), 6);
    EXPECT_EQ(tree.rowCount(tree.indexOf(project)), 5);
}

TEST_F(Tree, PutsRestoredObjectsAtTheirEarlierPlaces)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject* objects[] = {&addObject(project, "A"), &addObject(project, "B"), &addObject(project, "C"),
                                     &addObject(project, "D")};
    tree.synchronize();
    auto b = project.takeObject(objects[1]->getObjectId());
    auto d = project.takeObject(objects[3]->getObjectId());
    EXPECT_EQ(labelsOf(project), QStringList({"A", "C"}));
    project.restoreObject(std::move(d));
    EXPECT_EQ(labelsOf(project), QStringList({"A", "C", "D"}));
    project.restoreObject(std::move(b));
    EXPECT_EQ(labelsOf(project), QStringList({"A", "B", "C", "D"}));
}

TEST_F(Tree, ShowsNothingForARowWhoseObjectWasRemoved)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& object = addObject(project, "A");
    tree.synchronize();
    const QModelIndex index = tree.indexOf(object);
    project.removeObject(object.getObjectId());
    EXPECT_EQ(tree.objectAt(index), nullptr);
    EXPECT_FALSE(index.data().isValid());
    EXPECT_FALSE(tree.setData(index, "B", Qt::EditRole));
    const QModelIndex parent = tree.indexOf(project);
    Obj::Application::instance().closeProject(project);
    EXPECT_EQ(tree.projectAt(parent), nullptr);
    EXPECT_FALSE(parent.data().isValid());
}

TEST_F(Tree, LosesAClosedProjectAndGetsItBackByUndo)
{
    vxtest::TestProject& first = makeProject("First");
    vxtest::TestProject& second = makeProject("Second");
    addObject(first, "A");
    tree.synchronize();
    auto closed = Obj::Application::instance().takeProject(first);
    tree.synchronize();
    EXPECT_EQ(tree.rowCount({}), 1);
    EXPECT_EQ(tree.projectAt(tree.index(0, 0, {})), &second);
    Obj::Application::instance().restoreProject(std::move(closed));
    EXPECT_EQ(labelsOf(first), QStringList({"A"}));
    EXPECT_EQ(tree.indexOf(first).row(), 0);
}

TEST_F(Tree, RenamesUndoably)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& object = addObject(project, "A");
    tree.synchronize();
    undoStack().clear();
    const QModelIndex index = tree.indexOf(object);
    EXPECT_TRUE((tree.flags(index) & Qt::ItemIsEditable) != 0);
    EXPECT_TRUE(tree.setData(index, QStringLiteral("Grün"), Qt::EditRole));
    EXPECT_EQ(object.label.getValue(), "Grün");
    EXPECT_EQ(undoStack().count(), 1);
    undoStack().undo();
    EXPECT_EQ(index.data().toString(), "A");
    EXPECT_FALSE(tree.setData(index, "B", Qt::DisplayRole));
    EXPECT_FALSE(tree.setData(tree.indexOf(project), "B", Qt::DisplayRole));
    EXPECT_TRUE(tree.setData(tree.indexOf(project), "B", Qt::EditRole));
    EXPECT_STREQ(project.get_name(), "B");
}

TEST_F(Tree, SaysWhichRowHasChanged)
{
    vxtest::TestProject& project = makeProject();
    addObject(project, "A");
    vxtest::TestObject& object = addObject(project, "B");
    tree.synchronize();
    QSignalSpy spy(&tree, &ProjectTreeModel::dataChanged);
    object.label.setValue("C");
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy[0][0].toModelIndex(), tree.indexOf(object));
}

TEST_F(Tree, ShowsWhatTheJudgeOfTheClassFinds)
{
    vxtest::TypedObject& object = addTyped(makeProject(), "A");
    tree.synchronize();
    const auto tip = [&] { return tree.indexOf(object).data(Qt::ToolTipRole).toString().toStdString(); };
    Gui::ObjectStatus status{Gui::ObjectStatus::Level::WithFindings, {"too short", "too thin"}};
    Gui::registerObjectJudge("Test::Typed", [&status](const Obj::ProjectObject&) { return status; });
    EXPECT_EQ(tip(), "A\nNot ready. Findings: 2\ntoo short\ntoo thin");
    for (int i = 0; i < 10; ++i)
        status.findings << QStringLiteral("more");
    EXPECT_EQ(tip().substr(tip().size() - 9), "\nmore\n...");
    status = {Gui::ObjectStatus::Level::Ready};
    EXPECT_EQ(tip(), "A\nReady");
    Gui::registerObjectJudge("Test::Typed", [](const Obj::ProjectObject&) -> Gui::ObjectStatus {
        throw std::runtime_error("no tape measure");
    });
    EXPECT_EQ(tip(), "A\nNot ready. Findings: 1\nno tape measure");
    Gui::registerObjectJudge("Test::Typed", [](const Obj::ProjectObject&) { return Gui::ObjectStatus(); });
}

TEST_F(Tree, ShowsWhetherAnObjectIsReadyEmptyOrSuppressed)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& object = addObject(project, "A");
    tree.synchronize();
    const QModelIndex index = tree.indexOf(object);
    const auto look = [&index] { return index.data(Qt::DecorationRole).value<QIcon>().pixmap(32).toImage(); };
    const QImage empty = look();
    EXPECT_EQ(index.data(Qt::ToolTipRole).toString(), "A\nEmpty: nothing is defined yet");
    object.setObjectState(Obj::eVXObjectState::Ready);
    const QImage ready = look();
    EXPECT_EQ(index.data(Qt::ToolTipRole).toString(), "A\nReady");
    object.setSuppressed(true);
    EXPECT_EQ(index.data(Qt::ToolTipRole).toString(), "A\nReady\nSuppressed");
    EXPECT_TRUE(index.data(Qt::FontRole).value<QFont>().strikeOut());
    EXPECT_TRUE(index.data(Qt::ForegroundRole).isValid());
    EXPECT_NE(empty, ready);
    EXPECT_NE(ready, look());
    object.setSuppressed(false);
    EXPECT_FALSE(index.data(Qt::FontRole).value<QFont>().strikeOut());
    EXPECT_FALSE(index.data(Qt::ForegroundRole).isValid());
}

TEST_F(Tree, ShowsTheColourOfAnObject)
{
    vxtest::TestObject& object = addObject(makeProject());
    tree.synchronize();
    const auto pixel = [&] {
        const QImage picture = tree.indexOf(object).data(Qt::DecorationRole).value<QIcon>().pixmap(32).toImage();
        return picture.pixelColor(7, 24);
    };
    EXPECT_EQ(pixel(), QColor(0x80, 0x40, 0xff));
    nodeOf(object).color.setValue(Obj::Color{1.0F, 0.0F, 0.0F, 0.0F});
    EXPECT_EQ(pixel(), QColor(255, 0, 0));
}

TEST_F(Tree, ShowsMarkupInALabelAsItIs)
{
    vxtest::TestObject& object = addObject(makeProject());
    object.label.setValue("<b>5 & 6</b>");
    tree.synchronize();
    EXPECT_EQ(tree.indexOf(object).data().toString(), "<b>5 & 6</b>");
    EXPECT_TRUE(tree.indexOf(object)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .startsWith(QStringLiteral("<qt>&lt;b&gt;5 &amp; 6&lt;/b&gt;<br>")));
}

TEST_F(Tree, HoldsTenThousandObjects)
{
    vxtest::TestProject& project = makeProject();
    for (int i = 0; i < 10000; ++i)
        addObject(project);
    tree.synchronize();
    const QModelIndex parent = tree.indexOf(project);
    ASSERT_EQ(tree.rowCount(parent), 10000);
    EXPECT_EQ(tree.objectAt(tree.index(9999, 0, parent)), project.get_object(10000U));
}

/// Returns the tree of groups and their members as text: "Group[A, Inner[B]], C".
class Groups : public Tree
{
protected:
    Groups() : project(makeProject()) { undoStack().clear(); }

    Obj::ProjectObjectGroup& addGroup(const char* label)
    {
        return *static_cast<Obj::ProjectObjectGroup*>(project.add_object("Obj::ProjectObjectGroup", label));
    }
    std::string shape()
    {
        tree.synchronize();
        return below(tree.indexOf(project));
    }
    // NOLINTNEXTLINE(misc-no-recursion): a few levels
    std::string below(const QModelIndex& parent) const
    {
        std::string text;
        for (int row = 0; row < tree.rowCount(parent); ++row) {
            const QModelIndex index = tree.index(row, 0, parent);
            text += (row > 0 ? ", " : "") + index.data().toString().toStdString();
            if (tree.rowCount(index) > 0)
                text += "[" + below(index) + "]";
        }
        return text;
    }

    vxtest::TestProject& project;
};

TEST_F(Groups, HaveTheirMembersUnderThem)
{
    Obj::ProjectObjectGroup& group = addGroup("Group");
    vxtest::TestObject& a = addObject(project, "A");
    vxtest::TestObject& b = addObject(project, "B");
    addObject(project, "C");
    EXPECT_EQ(shape(), "Group, A, B, C");
    group.addMember(b);
    group.addMember(a);
    EXPECT_EQ(shape(), "Group[A, B], C");
    EXPECT_EQ(tree.parent(tree.indexOf(a)), tree.indexOf(group));
    EXPECT_EQ(tree.objectAt(tree.index(1, 0, tree.indexOf(group))), &b);
}

TEST_F(Groups, TakeMembersInAndLetThemGoWhenTheEventLoopIsIdle)
{
    Obj::ProjectObjectGroup& group = addGroup("Group");
    vxtest::TestObject& a = addObject(project, "A");
    EXPECT_EQ(shape(), "Group, A");
    group.addMember(a);
    EXPECT_TRUE(QTest::qWaitFor([&] { return tree.rowCount(tree.indexOf(group)) == 1; }));
    group.removeMember(a);
    EXPECT_TRUE(QTest::qWaitFor([&] { return tree.rowCount(tree.indexOf(group)) == 0; }));
    EXPECT_EQ(shape(), "Group, A");
}

TEST_F(Groups, MoveRowsThatKeepTheirIdentity)
{
    Obj::ProjectObjectGroup& group = addGroup("Group");
    vxtest::TestObject& a = addObject(project, "A");
    tree.synchronize();
    const QPersistentModelIndex index = tree.indexOf(a);
    QSignalSpy moved(&tree, &ProjectTreeModel::rowsMoved);
    QSignalSpy removed(&tree, &ProjectTreeModel::rowsRemoved);
    group.addMember(a);
    tree.synchronize();
    EXPECT_EQ(moved.count(), 1);
    EXPECT_EQ(removed.count(), 0);
    EXPECT_EQ(index, tree.indexOf(a));
}

TEST_F(Groups, CanBeInGroups)
{
    Obj::ProjectObjectGroup& inner = addGroup("Inner");
    vxtest::TestObject& a = addObject(project, "A");
    Obj::ProjectObjectGroup& outer = addGroup("Outer");
    inner.addMember(a);
    outer.addMember(inner);
    EXPECT_EQ(shape(), "Outer[Inner[A]]");
    // In the opposite order.
    outer.removeMember(inner);
    inner.addMember(outer);
    EXPECT_EQ(shape(), "Inner[A, Outer]");
}

TEST_F(Groups, ShowAMemberThatIsPutIntoAnotherGroupThere)
{
    Obj::ProjectObjectGroup& first = addGroup("First");
    Obj::ProjectObjectGroup& second = addGroup("Second");
    vxtest::TestObject& a = addObject(project, "A");
    second.addMember(a);
    EXPECT_EQ(shape(), "First, Second[A]");
    first.addMember(a);
    EXPECT_TRUE(QTest::qWaitFor([&] { return tree.parent(tree.indexOf(a)) == tree.indexOf(first); }));
    EXPECT_EQ(shape(), "First[A], Second");
}

TEST_F(Groups, LeaveOutMembersThatAreNotShown)
{
    Obj::ProjectObjectGroup& group = addGroup("Group");
    vxtest::TestObject& a = addObject(project, "A");
    vxtest::TestObject& b = addObject(project, "B");
    group.addMember(a);
    group.addMember(b);
    nodeOf(a).shown = false;
    EXPECT_EQ(shape(), "Group[B]");
}

/// A group whose node can be hidden.
class GroupWithNode final : public Obj::ProjectObjectGroup
{
public:
    Kelta::TypeInfo getTypeId() const override { return type; }
    const char* get_viewfeeder_name() const override { return "Test::Node"; }
    static void init()
    {
        initSubclass(type, "Test::GroupWithNode", "Obj::ProjectObjectGroup",
                     []() -> void* { return static_cast<Kelta::RootClass*>(new GroupWithNode); });
    }

private:
    static inline Kelta::TypeInfo type;
};

TEST_F(Groups, ThatAreNotShownLeaveTheirMembersWhereTheyAreThemselves)
{
    GroupWithNode::init();
    auto& group = static_cast<GroupWithNode&>(*project.add_object("Test::GroupWithNode", "Group"));
    group.addMember(addObject(project, "A"));
    EXPECT_EQ(shape(), "Group[A]");
    nodeOf(group).shown = false;
    group.notifyChange();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !tree.indexOf(group).isValid(); }));
    EXPECT_EQ(shape(), "A");
}

TEST_F(Groups, GiveTheirMembersBackWhenTheyAreDeleted)
{
    Obj::ProjectObjectGroup& outer = addGroup("Outer");
    Obj::ProjectObjectGroup& inner = addGroup("Inner");
    vxtest::TestObject& a = addObject(project, "A");
    vxtest::TestObject& b = addObject(project, "B");
    outer.addMember(inner);
    inner.addMember(a);
    inner.addMember(b);
    EXPECT_EQ(shape(), "Outer[Inner[A, B]]");
    auto taken = project.takeObject(inner.getObjectId());
    EXPECT_EQ(shape(), "Outer, A, B");
    project.restoreObject(std::move(taken));
    EXPECT_EQ(shape(), "Outer[Inner[A, B]]");
    project.removeObject(b.getObjectId());
    EXPECT_EQ(shape(), "Outer[Inner[A]]");
    project.removeObject(a.getObjectId());
    EXPECT_EQ(shape(), "Outer[Inner]");
    project.removeObject(outer.getObjectId());
    EXPECT_EQ(shape(), "Inner");
}

TEST_F(Groups, LoseMembersThatAreDeletedWithThem)
{
    Obj::ProjectObjectGroup& group = addGroup("Group");
    vxtest::TestObject& a = addObject(project, "A");
    addObject(project, "B");
    group.addMember(a);
    EXPECT_EQ(shape(), "Group[A], B");
    project.removeObject(group.getObjectId());
    project.removeObject(a.getObjectId());
    EXPECT_EQ(shape(), "B");
}

TEST_F(Groups, FollowRandomChanges)
{
    std::vector<Obj::ProjectObjectGroup*> groups;
    std::vector<Obj::ProjectObject*> objects;
    for (int i = 0; i < 5; ++i)
        objects.push_back(groups.emplace_back(&addGroup("Group")));
    for (int i = 0; i < 20; ++i)
        objects.push_back(&addObject(project));
    std::mt19937 random(7);
    std::vector<Obj::OwnedObject> away;
    for (int round = 0; round < 500; ++round) {
        Obj::ProjectObjectGroup& group = *groups[random() % groups.size()];
        Obj::ProjectObject& object = *objects[random() % objects.size()];
        switch (random() % 4) {
        case 0:
            group.addMember(object);
            break;
        case 1:
            group.removeMember(object);
            break;
        case 2:
            if (object.get_project() != nullptr)
                away.push_back(project.takeObject(object.getObjectId()));
            break;
        default:
            if (!away.empty()) {
                project.restoreObject(std::move(away.back()));
                away.pop_back();
            }
        }
        // A new model shows the same rows, and the tester has checked every step.
        const ProjectTreeModel fresh(*Gui::GuiApplication::Instance);
        tree.synchronize();
        for (const Obj::ProjectObject* const present : project.getObjects()) {
            EXPECT_TRUE(tree.indexOf(*present).isValid());
            EXPECT_EQ(tree.objectAt(tree.indexOf(*present).parent()), fresh.objectAt(fresh.indexOf(*present).parent()));
            EXPECT_EQ(tree.indexOf(*present).row(), fresh.indexOf(*present).row());
        }
    }
}

TEST_F(Groups, OfTenThousandAreMovedInOneTurn)
{
    Obj::ProjectObjectGroup& group = addGroup("Group");
    for (int i = 0; i < 10000; ++i)
        group.addMember(addObject(project));
    tree.synchronize();
    EXPECT_EQ(tree.rowCount(tree.indexOf(group)), 10000);
    EXPECT_EQ(tree.rowCount(tree.indexOf(project)), 1);
}

TEST_F(Tree, LeavesOutNodesThatAreNotShown)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& hidden = addObject(project, "Hidden");
    addObject(project, "Shown");
    nodeOf(hidden).shown = false;
    EXPECT_EQ(labelsOf(project), QStringList({"Shown"}));
    EXPECT_FALSE(tree.indexOf(hidden).isValid());
    nodeOf(hidden).shown = true;
    hidden.notifyChange();
    EXPECT_TRUE(QTest::qWaitFor([&] { return tree.indexOf(hidden).isValid(); }));
    EXPECT_EQ(labelsOf(project), QStringList({"Hidden", "Shown"}));
}

TEST_F(Tree, DoesNotSelectNodesThatHaveASelectionOfTheirOwn)
{
    vxtest::TestObject& object = addObject(makeProject(), "A");
    tree.synchronize();
    EXPECT_TRUE((tree.flags(tree.indexOf(object)) & Qt::ItemIsSelectable) != 0);
    nodeOf(object).selectsItself = true;
    EXPECT_TRUE((tree.flags(tree.indexOf(object)) & Qt::ItemIsSelectable) == 0);
}

TEST_F(Tree, ShowsObjectsOfAMissingModuleGreyedWithTheReason)
{
    const auto isGrey = [](const QModelIndex& index) {
        return index.data(Qt::ForegroundRole).value<QBrush>() ==
               QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    };
    vxtest::TestProject& project = makeProject();
    Obj::ProjectObject& object =
        *project.add_object(std::make_unique<Obj::PlaceholderObject>("Lost::Bolt", Json::Value()), "Bolt");
    tree.synchronize();
    EXPECT_EQ(tree.indexOf(object).data().toString(), "Bolt");
    EXPECT_TRUE(isGrey(tree.indexOf(object)));
    EXPECT_EQ(tree.indexOf(object).data(Qt::ToolTipRole).toString(),
              "Bolt\nThe module for \"Lost::Bolt\" is not loaded. Its data are saved unchanged, but cannot be "
              "edited.");
    EXPECT_FALSE(isGrey(tree.indexOf(project)));
    const Obj::Project* const lost = Gui::GuiApplication::Instance->requests().openProject(
        Obj::OwnedProject(new Obj::PlaceholderProject("Lost::Assembly", Json::Value())), "Assembly",
        [](Obj::Project&) {});
    ASSERT_NE(lost, nullptr);
    tree.synchronize();
    EXPECT_TRUE(isGrey(tree.indexOf(*lost)));
    EXPECT_TRUE(tree.indexOf(*lost).data(Qt::ToolTipRole).toString().contains("\"Lost::Assembly\""));
}

} // namespace
