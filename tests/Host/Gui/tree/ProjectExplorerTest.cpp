#include "Gui/ProjectExplorer.h"

#include "GuiTesting.h"

#include "Obj/ProjectObjectGroup.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>

#include <functional>

namespace {

using testing::ElementsAre;
using testing::SizeIs;

class Explorer : public vxtest::Host
{
protected:
    Explorer() : project(makeProject()), first(addObject(project, "First")), second(addObject(project, "Second"))
    {
        focusExplorer();
    }

    void click(const Obj::ProjectObject& object, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(explorer().viewport(), Qt::LeftButton, modifiers, placeOf(object));
    }
    void doubleClick(const Obj::ProjectObject& object) const
    {
        QTest::mouseDClick(explorer().viewport(), Qt::LeftButton, {}, placeOf(object));
    }
    QPoint placeOf(const Obj::ProjectObject& object) const
    {
        model().synchronize();
        explorer().scrollTo(model().indexOf(object));
        return explorer().visualRect(model().indexOf(object)).center();
    }
    QLineEdit* editor() const
    {
        for (QLineEdit* const line : explorer().viewport()->findChildren<QLineEdit*>())
            if (line->isVisible())
                return line;
        return nullptr;
    }

    /// Types a label into the editor of the row, and presses Return.
    void typeLabel(const QString& text) const
    {
        ASSERT_TRUE(vxtest::waitFor([this] { return editor() != nullptr; }));
        editor()->selectAll();
        QTest::keyClicks(editor(), text);
        QTest::keyClick(editor(), Qt::Key_Return);
        // The editor passes its text on when the event loop runs.
        QCoreApplication::processEvents();
    }

    /// Sends an event that opens a context menu, and calls `use` when the menu is open.
    void useMenu(QContextMenuEvent::Reason reason, const QPoint& place, const std::function<void(QMenu&)>& use) const
    {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr)
                return;
            timer.stop();
            use(*menu);
        });
        timer.start(1);
        QContextMenuEvent event(reason, place, explorer().viewport()->mapToGlobal(place));
        QApplication::sendEvent(explorer().viewport(), &event);
    }

    /// Returns the entries of the context menu at a position. Triggers the entry `choose`, and closes the menu.
    QStringList contextMenuAt(const QPoint& place, const QString& choose = {}) const
    {
        QStringList offered;
        useMenu(QContextMenuEvent::Mouse, place, [&](QMenu& menu) {
            for (QAction* const action : menu.actions()) {
                offered << (action->isSeparator() ? QStringLiteral("-") : action->text());
                if (action->text() == choose)
                    action->trigger();
            }
            menu.close();
        });
        return offered;
    }

    /// Opens the context menu at a position, chooses an entry by the keyboard, which closes the menu first, and calls
    /// `then` at once: later, the offscreen platform activates the window again, which ends the edit of a label.
    void chooseByKeysAt(const QPoint& place, const QString& entry, const std::function<void()>& then) const
    {
        useMenu(QContextMenuEvent::Mouse, place, [&](QMenu& menu) {
            for (QAction* const action : menu.actions())
                if (action->text() == entry)
                    menu.setActiveAction(action);
            QTest::keyClick(&menu, menu.activeAction() != nullptr ? Qt::Key_Return : Qt::Key_Escape);
            then();
        });
    }

    /// Presses the menu key, of which the platform makes an event, and triggers the entry "Show it" of the context menu.
    void showByMenuKey() const
    {
        useMenu(QContextMenuEvent::Keyboard, {}, [](QMenu& menu) {
            for (QAction* const action : menu.actions())
                if (action->text() == QStringLiteral("Show it"))
                    action->trigger();
            menu.close();
        });
    }

    /// Chooses an entry of the menu "Display as" of the first object.
    void chooseDisplayMode(const QString& mode) const
    {
        useMenu(QContextMenuEvent::Mouse, placeOf(first), [&mode](QMenu& menu) {
            for (const QMenu* const choices : menu.findChildren<QMenu*>())
                for (QAction* const action : choices->actions()) {
                    EXPECT_EQ(action->isChecked(), action->text() == QStringLiteral("Shaded"));
                    if (action->text() == mode)
                        action->trigger();
                }
            menu.close();
        });
    }

    std::vector<Obj::ProjectObject*> selectedObjects() const
    {
        return selection().get_objects_of_type(Obj::ProjectObject::getClassTypeId());
    }

    vxtest::TestProject& project;
    vxtest::TestObject& first;
    vxtest::TestObject& second;
};

TEST_F(Explorer, SelectsWhatIsClicked)
{
    click(first);
    EXPECT_THAT(selectedObjects(), ElementsAre(&first));
    click(second, Qt::ControlModifier);
    EXPECT_THAT(selectedObjects(), ElementsAre(&first, &second));
    click(second);
    EXPECT_THAT(selectedObjects(), ElementsAre(&second));
}

TEST_F(Explorer, OffersWhatTheWorkbenchAddsInItsContextMenu)
{
    EXPECT_FALSE(contextMenuAt(placeOf(first)).contains(QStringLiteral("Select &all")));
    EXPECT_TRUE(window->setWorkbench("Test::Workbench"));
    EXPECT_TRUE(contextMenuAt(placeOf(first)).contains(QStringLiteral("Select &all")));
}

TEST_F(Explorer, MakesTheProjectOfWhatIsSelectedTheCurrentOne)
{
    makeProject("Other");
    click(first);
    EXPECT_EQ(Obj::Application::get_current_project(), &project);
}

TEST_F(Explorer, ShowsWhatACommandSelects)
{
    select({&second});
    EXPECT_THAT(explorer().selectionModel()->selectedIndexes(), ElementsAre(model().indexOf(second)));
    select({&first, &second});
    EXPECT_EQ(explorer().selectionModel()->selectedIndexes().size(), 2);
}

TEST_F(Explorer, ShowsThatNothingIsSelectedAnyMore)
{
    select({&second});
    selection().clear();
    EXPECT_TRUE(explorer().selectionModel()->selectedIndexes().isEmpty());
}

TEST_F(Explorer, DeselectsWhatIsRemoved)
{
    click(first);
    project.removeObject(first.getObjectId());
    EXPECT_EQ(selection().getCount(), 0U);
    QCoreApplication::processEvents();
    model().synchronize();
    EXPECT_EQ(model().rowCount(model().indexOf(project)), 1);
}

TEST_F(Explorer, SelectsAllObjectsOfTheCurrentProject)
{
    vxtest::TestProject& other = makeProject("Other");
    addObject(other);
    Obj::Application::instance().setCurrentProject(project);
    explorer().selectAllObjects();
    EXPECT_THAT(selectedObjects(), ElementsAre(&first, &second));
}

TEST_F(Explorer, SelectsAllByTheKeyboard)
{
    QTest::keySequence(&explorer(), QKeySequence(QKeySequence::SelectAll));
    EXPECT_THAT(selectedObjects(), ElementsAre(&first, &second));
}

TEST_F(Explorer, SelectsTenThousandAtOnce)
{
    for (int i = 0; i < 10000; ++i)
        addObject(project);
    explorer().selectAllObjects();
    EXPECT_EQ(selection().getCount(), 10002U);
}

TEST_F(Explorer, OpensByADoubleClick)
{
    doubleClick(first);
    EXPECT_EQ(nodeOf(first).opened, 1);
    EXPECT_EQ(nodeOf(second).opened, 0);
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(Explorer, OpensByReturn)
{
    click(second);
    QTest::keyClick(&explorer(), Qt::Key_Return);
    QTest::keyClick(&explorer(), Qt::Key_Enter);
    EXPECT_EQ(nodeOf(second).opened, 2);
}

TEST_F(Explorer, OpensNothingBesideTheRows)
{
    QTest::mouseDClick(explorer().viewport(), Qt::LeftButton, {}, explorer().viewport()->rect().bottomRight());
    EXPECT_EQ(nodeOf(first).opened + nodeOf(second).opened, 0);
}

TEST_F(Explorer, ActsByKeysOnTheCopyOfADuplicate)
{
    click(first);
    ASSERT_TRUE(run("Std_DuplicateSelection"));
    ASSERT_THAT(project.getObjects(), SizeIs(3));
    Obj::ProjectObject& copy = *project.getObjects()[2];
    EXPECT_EQ(explorer().currentIndex(), model().indexOf(copy));
    QTest::keyClick(&explorer(), Qt::Key_Return);
    showByMenuKey();
    EXPECT_EQ(nodeOf(copy).opened, 1);
    EXPECT_THAT(nodeOf(copy).editModes, ElementsAre(7));
    EXPECT_EQ(nodeOf(first).opened, 0);
    EXPECT_THAT(nodeOf(first).editModes, testing::IsEmpty());
}

TEST_F(Explorer, ActsByKeysOnWhatIsPasted)
{
    click(first);
    ASSERT_TRUE(run("Std_Copy"));
    click(second);
    ASSERT_TRUE(run("Std_Paste"));
    ASSERT_THAT(project.getObjects(), SizeIs(3));
    Obj::ProjectObject& copy = *project.getObjects()[2];
    QTest::keyClick(&explorer(), Qt::Key_F2);
    typeLabel("Pasted");
    EXPECT_EQ(copy.label.getValue(), "Pasted");
    showByMenuKey();
    EXPECT_THAT(nodeOf(copy).editModes, ElementsAre(7));
    EXPECT_THAT(nodeOf(second).editModes, testing::IsEmpty());
}

TEST_F(Explorer, ActsByKeysOnWhatARequestAdds)
{
    click(first);
    ASSERT_TRUE(vxMsg::MessageProxy::instance().addObject(project.get_name(), "Test::Object", "Added"));
    QTest::keyClick(&explorer(), Qt::Key_Return);
    EXPECT_EQ(nodeOf(first).opened, 0);
    EXPECT_EQ(nodeOf(*project.getObjects()[2]).opened, 1);
    QTest::keyClick(&explorer(), Qt::Key_Up);
    EXPECT_THAT(selectedObjects(), ElementsAre(&second));
}

TEST_F(Explorer, DoesNothingByKeysWhenNothingIsSelected)
{
    click(first);
    selection().clear();
    QTest::keyClick(&explorer(), Qt::Key_Return);
    QTest::keyClick(&explorer(), Qt::Key_F2);
    EXPECT_EQ(nodeOf(first).opened, 0);
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(Explorer, ActsByKeysOnTheRestWhenTheCurrentRowIsDeselected)
{
    click(first);
    click(second, Qt::ControlModifier);
    click(second, Qt::ControlModifier);
    QTest::keyClick(&explorer(), Qt::Key_Return);
    EXPECT_EQ(nodeOf(second).opened, 0);
    EXPECT_EQ(nodeOf(first).opened, 1);
}

TEST_F(Explorer, RenamesByF2AndTyping)
{
    click(first);
    undoStack().clear();
    QTest::keyClick(&explorer(), Qt::Key_F2);
    typeLabel("Beam");
    EXPECT_EQ(first.label.getValue(), "Beam");
    EXPECT_EQ(nodeOf(first).opened, 0);
    EXPECT_EQ(undoStack().count(), 1);
    undoStack().undo();
    EXPECT_EQ(first.label.getValue(), "First");
}

TEST_F(Explorer, RenamesByTheMenu)
{
    QTest::mouseClick(explorer().viewport(), Qt::RightButton, {}, placeOf(second));
    window->updateCommands();
    chooseByKeysAt(placeOf(second), "Rena&me", [this] { typeLabel("Beam"); });
    EXPECT_EQ(second.label.getValue(), "Beam");
    EXPECT_EQ(first.label.getValue(), "First");
}

TEST_F(Explorer, KeepsTheLabelWhenRenamingIsGivenUp)
{
    click(first);
    ASSERT_TRUE(run("Std_Rename"));
    ASSERT_NE(editor(), nullptr);
    QTest::keyClicks(editor(), "Beam");
    QTest::keyClick(editor(), Qt::Key_Escape);
    EXPECT_EQ(first.label.getValue(), "First");
}

TEST_F(Explorer, DoesNotTakeAnEmptyLabel)
{
    click(first);
    ASSERT_TRUE(run("Std_Rename"));
    typeLabel({});
    QTest::keyClick(&explorer(), Qt::Key_F2);
    ASSERT_NE(editor(), nullptr);
    editor()->clear();
    QTest::keyClick(editor(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(first.label.getValue(), "First");
}

TEST_F(Explorer, RenamesOneObjectOrProjectAlone)
{
    EXPECT_FALSE(explorer().renameSelected());
    select({&first, &second});
    EXPECT_FALSE(explorer().renameSelected());
    selection().setSelection({&project}, {&first});
    EXPECT_FALSE(explorer().renameSelected());
    select({&second});
    EXPECT_TRUE(explorer().renameSelected());
}

TEST_F(Explorer, SurvivesTheRemovalOfTheRowThatIsRenamed)
{
    click(first);
    ASSERT_TRUE(explorer().renameSelected());
    project.removeObject(first.getObjectId());
    model().synchronize();
    QCoreApplication::processEvents();
    EXPECT_EQ(shownText(second), "Second");
}

TEST_F(Explorer, OffersWhatTheNodeDoes)
{
    EXPECT_EQ(contextMenuAt(placeOf(first)),
              QStringList({"Show it", "-", "&Copy", "-", "&Suppress", "-", "Rena&me", "C&olor..."}));
}

TEST_F(Explorer, HandsTheEditModeOfAChosenActionToTheNode)
{
    contextMenuAt(placeOf(first), "Show it");
    EXPECT_THAT(nodeOf(first).editModes, ElementsAre(7));
}

TEST_F(Explorer, OffersToCloseAProjectWhoseNodeHasNoMenu)
{
    EXPECT_EQ(contextMenuAt(explorer().visualRect(model().indexOf(project)).center()),
              QStringList({"&Close project", "-", "Rena&me"}));
}

TEST_F(Explorer, OffersToDeleteAnObjectWhoseNodeHasNoMenu)
{
    Obj::ProjectObject& plain = *project.add_object("Obj::ProjectObjectGroup", "Plain");
    EXPECT_EQ(contextMenuAt(placeOf(plain)), QStringList({"Dele&te", "-", "Rena&me"}));
}

TEST_F(Explorer, SelectsTheRowOnWhichTheMenuOpens)
{
    click(second);
    QTest::mouseClick(explorer().viewport(), Qt::RightButton, {}, placeOf(first));
    EXPECT_THAT(selectedObjects(), ElementsAre(&first));
}

TEST_F(Explorer, HearsTreeKeysWhenItHasTheKeyboardAlone)
{
    click(second);
    window->updateCommands();
    QTest::keyClick(&explorer(), Qt::Key_Delete);
    EXPECT_THAT(project.getObjects(), ElementsAre(&first));
    click(first);
    window->updateCommands();
    auto* const document = new Gui::MDIWindow(nullptr, nullptr);
    auto* const line = new QLineEdit(QStringLiteral("text"));
    document->setCentralWidget(line);
    window->add_mdi_window(document);
    line->setFocus();
    line->setCursorPosition(0);
    QTest::keyClick(line, Qt::Key_Delete);
    EXPECT_THAT(project.getObjects(), ElementsAre(&first));
    EXPECT_EQ(line->text(), "ext");
}

TEST_F(Explorer, HearsTheDeleteKeyBeforeTheCommandIsEnabled)
{
    window->updateCommands();
    select({&first, &second});
    QTest::keyClick(&explorer(), Qt::Key_Delete);
    EXPECT_THAT(project.getObjects(), testing::IsEmpty());
}

TEST_F(Explorer, GivesAKeyOfTwoCommandsToTheFirst)
{
    // The application owns the command.
    static int runs;
    if (commands().findCommand("Test_Delete") == nullptr)
        commands().new_command(new vxtest::TestCommand(
            "Test_Delete", [] { ++runs; }, Gui::CommandType::onTree, QKeySequence(QKeySequence::Delete)));
    runs = 0;
    window->setWorkbench("Gui::StdSimModule");
    select({&second});
    window->updateCommands();
    QTest::keyClick(&explorer(), Qt::Key_Delete);
    EXPECT_EQ(runs, 0);
    EXPECT_THAT(project.getObjects(), ElementsAre(&first));
}

TEST_F(Explorer, ExpandsAProjectWhenObjectsCome)
{
    vxtest::TestProject& other = makeProject("Other");
    addObject(other);
    QCoreApplication::processEvents();
    model().synchronize();
    EXPECT_TRUE(explorer().isExpanded(model().indexOf(other)));
}

TEST_F(Explorer, SelectsTheMembersOfGroupsToo)
{
    auto* const group = static_cast<Obj::ProjectObjectGroup*>(project.add_object("Obj::ProjectObjectGroup", "Group"));
    group->addMember(first);
    explorer().selectAllObjects();
    EXPECT_THAT(selectedObjects(), ElementsAre(&first, &second, group));
}

TEST_F(Explorer, KeepsTheSelectionOfObjectsThatEnterAGroup)
{
    auto* const group = static_cast<Obj::ProjectObjectGroup*>(project.add_object("Obj::ProjectObjectGroup", "Group"));
    click(first);
    group->addMember(first);
    model().synchronize();
    EXPECT_THAT(selectedObjects(), ElementsAre(&first));
    EXPECT_TRUE(explorer().isExpanded(model().indexOf(*group)));
    EXPECT_TRUE(explorer().selectionModel()->isSelected(model().indexOf(first)));
}

TEST_F(Explorer, LeavesTheSelectionOfNodesWithTheirOwnAlone)
{
    nodeOf(first).selectsItself = true;
    click(second);
    click(first);
    EXPECT_THAT(selectedObjects(), testing::IsEmpty());
    explorer().selectAllObjects();
    EXPECT_THAT(selectedObjects(), ElementsAre(&second));
}

TEST_F(Explorer, OffersTheDisplayModesOfANodeThatHasSeveral)
{
    nodeOf(first).displayModes = {"Shaded"};
    EXPECT_FALSE(contextMenuAt(placeOf(first)).contains(QStringLiteral("Display as")));
    nodeOf(first).displayModes = {"Shaded", "Wireframe"};
    EXPECT_TRUE(contextMenuAt(placeOf(first)).contains(QStringLiteral("Display as")));
    nodeOf(first).setDisplayMode("Shaded");
    chooseDisplayMode("Wireframe");
    EXPECT_EQ(nodeOf(first).getDisplayMode(), "Wireframe");
    EXPECT_EQ(nodeOf(second).getDisplayMode(), "");
}

TEST_F(Explorer, OffersInItsEmptyAreaWhatModulesContribute)
{
    const QPoint corner = explorer().viewport()->rect().bottomRight() - QPoint(2, 2);
    EXPECT_FALSE(contextMenuAt(corner).contains(QStringLiteral("Select &all")));
    contributions.addToTreeMenu("Std_SelectAll");
    EXPECT_TRUE(contextMenuAt(corner).contains(QStringLiteral("Select &all")));
    EXPECT_FALSE(contextMenuAt(placeOf(first)).contains(QStringLiteral("Select &all")));
}

} // namespace
