#include "Gui/ProjectTreeModel.h"

#include "GuiTesting.h"

#include <QAbstractItemModelTester>
#include <QFont>
#include <QIcon>
#include <QSignalSpy>

namespace {

using Gui::ProjectTreeModel;

/// A model of its own, watched by Qt's tester, which ends the test program when the model breaks the rules.
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

    ProjectTreeModel tree;
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
    const ProjectTreeModel late;
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
    // Every second one of the first ten, and all from there on.
    for (std::uint32_t id = 1; id <= 10; id += 2)
        project.remove_object(id);
    for (std::uint32_t id = 11; id <= 1000; ++id)
        project.remove_object(id);
    tree.synchronize();
    EXPECT_EQ(removed.count(), 6);
    EXPECT_EQ(tree.rowCount(tree.indexOf(project)), 5);
}

TEST_F(Tree, PutsWhatUndoBringsBackWhereItWas)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject* objects[] = {&addObject(project, "A"), &addObject(project, "B"), &addObject(project, "C"),
                                     &addObject(project, "D")};
    tree.synchronize();
    auto b = project.take_object(objects[1]->getObjectId());
    auto d = project.take_object(objects[3]->getObjectId());
    EXPECT_EQ(labelsOf(project), QStringList({"A", "C"}));
    project.restore_object(std::move(d));
    EXPECT_EQ(labelsOf(project), QStringList({"A", "C", "D"}));
    project.restore_object(std::move(b));
    EXPECT_EQ(labelsOf(project), QStringList({"A", "B", "C", "D"}));
}

TEST_F(Tree, ShowsNothingForARowWhoseObjectHasGoneMeanwhile)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& object = addObject(project, "A");
    tree.synchronize();
    const QModelIndex index = tree.indexOf(object);
    project.remove_object(object.getObjectId());
    EXPECT_EQ(tree.objectAt(index), nullptr);
    EXPECT_FALSE(index.data().isValid());
    EXPECT_FALSE(tree.setData(index, "B", Qt::EditRole));
    const QModelIndex parent = tree.indexOf(project);
    Obj::Application::instance().close_project(project);
    EXPECT_EQ(tree.projectAt(parent), nullptr);
    EXPECT_FALSE(parent.data().isValid());
}

TEST_F(Tree, LosesAClosedProjectAndGetsItBackByUndo)
{
    vxtest::TestProject& first = makeProject("First");
    vxtest::TestProject& second = makeProject("Second");
    addObject(first, "A");
    tree.synchronize();
    auto closed = Obj::Application::instance().take_project(first);
    tree.synchronize();
    EXPECT_EQ(tree.rowCount({}), 1);
    EXPECT_EQ(tree.projectAt(tree.index(0, 0, {})), &second);
    Obj::Application::instance().restore_project(std::move(closed));
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
    EXPECT_FALSE(tree.setData(tree.indexOf(project), "B", Qt::EditRole));
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

} // namespace
