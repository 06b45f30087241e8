#include "Gui/PropertyPanel.h"

#include "GuiTesting.h"

#include <QAbstractItemView>
#include <QColorDialog>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>

namespace {

class Panel : public vxtest::Host
{
protected:
    Panel() : project(makeProject()), object(addObject(project, "Beam"))
    {
        window->resize(Gui::MainWindow::usualSize); // all rows are visible
        window->activateWindow();
        EXPECT_TRUE(vxtest::waitUntilActive(window.get()));
        undoStack().clear();
        show({&object});
    }

    void show(const std::vector<Obj::ProjectObject*>& objects) const
    {
        select(objects);
        panel().showSelection();
    }

    /// Returns "Group/Property" for each row, in order.
    QStringList rows() const
    {
        QStringList names;
        for (int i = 0; i < panel().topLevelItemCount(); ++i) {
            const QTreeWidgetItem* const group = panel().topLevelItem(i);
            if (group->childCount() == 0)
                names << group->text(0);
            for (int j = 0; j < group->childCount(); ++j)
                names << group->text(0) + QLatin1Char('/') + group->child(j)->text(0);
        }
        return names;
    }

    QTreeWidgetItem* row(const QString& name) const
    {
        const auto found = panel().findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? nullptr : found.first();
    }

    QString value(const QString& name) const
    {
        const QTreeWidgetItem* const item = row(name);
        return item != nullptr ? item->text(1) : QStringLiteral("(none)");
    }

    /// Edits a value like a user: a double click, typing, Return. Returns false if no editor opens.
    bool edit(const QString& name, const QString& text) const
    {
        const QRect place = panel().visualItemRect(row(name));
        const QPoint point(panel().columnViewportPosition(1) + 5, place.center().y());
        QTest::mouseClick(panel().viewport(), Qt::LeftButton, {}, point);
        QTest::mouseDClick(panel().viewport(), Qt::LeftButton, {}, point);
        QLineEdit* editor = nullptr;
        // An earlier editor may not be destroyed yet.
        for (QLineEdit* const line : panel().viewport()->findChildren<QLineEdit*>())
            editor = line->isVisible() ? line : editor;
        if (editor == nullptr)
            return false;
        editor->selectAll();
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents();
        return true;
    }

    vxtest::TestProject& project;
    vxtest::TestObject& object;
};

TEST_F(Panel, ShowsPropertiesOfTheObjectAndItsNodeByGroup)
{
    EXPECT_EQ(rows(), QStringList({"Info/Label", "Info/Fixed", "Values/Count", "View/Color"}));
    EXPECT_EQ(value("Label"), "Beam");
    EXPECT_EQ(value("Count"), "3");
    EXPECT_EQ(value("Fixed"), "as it is");
    EXPECT_EQ(value("Color"), "#8040ff");
}

TEST_F(Panel, ShowsTheDescriptionOfAProperty)
{
    EXPECT_EQ(row("Count")->toolTip(0), "Count\nHow many");
    EXPECT_EQ(row("Count")->toolTip(1), "How many");
}

TEST_F(Panel, DoesNotShowWhatIsHidden)
{
    EXPECT_EQ(row("Secret"), nullptr);
}

TEST_F(Panel, ShowsAColourAsASwatchToo)
{
    const QColor swatch = row("Color")->data(1, Qt::DecorationRole).value<QColor>();
    EXPECT_EQ(swatch.red(), 128);
    EXPECT_EQ(swatch.green(), 64);
    EXPECT_EQ(swatch.blue(), 255);
}

TEST_F(Panel, EditsUndoably)
{
    ASSERT_TRUE(edit("Count", "17"));
    EXPECT_EQ(object.count.getValue(), 17);
    EXPECT_EQ(value("Count"), "17");
    ASSERT_EQ(undoStack().count(), 1);
    undoStack().undo();
    EXPECT_EQ(object.count.getValue(), 3);
    EXPECT_TRUE(vxtest::waitFor([this] { return value("Count") == "3"; }));
    undoStack().redo();
    EXPECT_EQ(object.count.getValue(), 17);
}

TEST_F(Panel, EditsALabel)
{
    ASSERT_TRUE(edit("Label", "Girder"));
    EXPECT_EQ(object.label.getValue(), "Girder");
    EXPECT_EQ(shownText(object), "Girder");
}

TEST_F(Panel, EditsTheColourOfTheNodeUndoably)
{
    EXPECT_FALSE(edit("Color", "1, 0, 0.5, 1")) << "a dialog opens, and no text field";
    auto* const dialog = panel().findChild<QColorDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->currentColor(), QColor(0x80, 0x40, 0xff));
    dialog->setCurrentColor(QColor(255, 0, 51));
    dialog->accept();
    EXPECT_EQ(nodeOf(object).color.getValue(), (Obj::Color{1.0F, 0.0F, 0.2F, 0.0F}));
    EXPECT_TRUE(vxtest::waitFor([this] { return value("Color") == "#ff0033"; }));
    undoStack().undo();
    EXPECT_EQ(nodeOf(object).color.getValue(), (Obj::Color{0.5F, 0.25F, 1.0F, 0.0F}));
}

TEST_F(Panel, KeepsAColourWhoseDialogIsCancelled)
{
    edit("Color", "");
    auto* const dialog = panel().findChild<QColorDialog*>();
    ASSERT_NE(dialog, nullptr);
    dialog->setCurrentColor(Qt::red);
    dialog->reject();
    EXPECT_EQ(nodeOf(object).color.getValue(), (Obj::Color{0.5F, 0.25F, 1.0F, 0.0F}));
    EXPECT_EQ(undoStack().count(), 0);
}

TEST_F(Panel, DoesNotEditReadOnlyProperties)
{
    EXPECT_FALSE(edit("Fixed", "other"));
    EXPECT_EQ(object.fixed.getValue(), "as it is");
}

TEST_F(Panel, RefusesATextThatIsNoValueAndSaysSo)
{
    ASSERT_TRUE(edit("Count", "many"));
    EXPECT_EQ(object.count.getValue(), 3);
    EXPECT_EQ(undoStack().count(), 0);
    EXPECT_EQ(lastMessage(), "The property \"Count\" cannot be \"many\"; nothing was changed.");
    EXPECT_TRUE(vxtest::waitFor([this] { return value("Count") == "3"; }));
}

TEST_F(Panel, RefusesAnEmptyLabel)
{
    ASSERT_TRUE(edit("Label", " "));
    EXPECT_EQ(object.label.getValue(), "Beam");
    EXPECT_EQ(undoStack().count(), 0);
}

TEST_F(Panel, MakesNoStepOfTheSameText)
{
    ASSERT_TRUE(edit("Count", "3"));
    EXPECT_EQ(undoStack().count(), 0);
}

TEST_F(Panel, EditsPropertiesOfAProjectUndoably)
{
    selection().setSelection({&project}, {});
    panel().showSelection();
    ASSERT_TRUE(edit("Count", "5"));
    EXPECT_EQ(project.count.getValue(), 5);
    undoStack().undo();
    EXPECT_EQ(project.count.getValue(), 3);
}

TEST_F(Panel, FollowsChangesMadeElsewhere)
{
    object.count.setValue(8);
    EXPECT_TRUE(vxtest::waitFor([this] { return value("Count") == "8"; }));
}

TEST_F(Panel, UndoesAnEditOfAnObjectThatWasDeletedAndBroughtBackMeanwhile)
{
    ASSERT_TRUE(edit("Count", "17"));
    auto taken = project.takeObject(object.getObjectId());
    undoStack().clear();
    project.restoreObject(std::move(taken));
    show({&object});
    ASSERT_TRUE(edit("Count", "18"));
    EXPECT_EQ(object.count.getValue(), 18);
    undoStack().undo();
    EXPECT_EQ(object.count.getValue(), 17);
}

TEST_F(Panel, SaysWhenNothingIsSelected)
{
    show({});
    EXPECT_EQ(rows(), QStringList({"Nothing is selected."}));
    const Qt::ItemFlags flags = panel().topLevelItem(0)->flags();
    EXPECT_TRUE(flags.testFlag(Qt::ItemIsEnabled)) << "in the color of a text";
    EXPECT_FALSE(flags.testFlag(Qt::ItemIsSelectable));
}

TEST_F(Panel, ShowsNamesAndValuesInANarrowWindow)
{
    panel().setFixedWidth(130);
    QCoreApplication::processEvents();
    EXPECT_TRUE(vxtest::waitFor([this] { return panel().horizontalScrollBar()->maximum() == 0; }));
    EXPECT_GE(panel().columnWidth(0), 60);
    EXPECT_GE(panel().columnWidth(1), 50);
    panel().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(panel().horizontalScrollBar()->value(), 0);
}

TEST_F(Panel, SaysHowManyAreSelected)
{
    show({&object, &addObject(project)});
    EXPECT_EQ(rows(), QStringList({"2 entries are selected."}));
}

TEST_F(Panel, ShowsTheProjectWhenItsOnlyObjectIsRemoved)
{
    const QStringList before = rows();
    project.removeObject(object.getObjectId());
    EXPECT_TRUE(vxtest::waitFor([this] { return selection().is_selected(&project); }));
    EXPECT_TRUE(vxtest::waitFor([&] { return rows() != before; }));
}

TEST_F(Panel, SurvivesTheEndOfTheProjectDuringAnEdit)
{
    panel().editItem(row("Count"), 1);
    ASSERT_NE(panel().viewport()->findChild<QLineEdit*>(), nullptr);
    Obj::Application::instance().closeProject(project);
    EXPECT_TRUE(vxtest::waitFor([this] { return rows() == QStringList({"Nothing is selected."}); }));
}

TEST_F(Panel, KeepsWhatIsBeingTypedWhileTheRestChanges)
{
    panel().editItem(row("Count"), 1);
    QPointer<QLineEdit> editor = panel().viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, "7");
    object.label.setValue("Plate");
    QCoreApplication::processEvents();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->text(), "7");
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(vxtest::waitFor([this] { return value("Label") == "Plate" && value("Count") == "7"; }));
    EXPECT_EQ(object.count.getValue(), 7);
}

TEST_F(Panel, KeepsWhatIsBeingTypedWhenSomethingElseIsSelected)
{
    vxtest::TestObject& other = addObject(project, "Other");
    panel().editItem(row("Count"), 1);
    auto* const editor = panel().viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, "7");
    select({&other});
    EXPECT_TRUE(vxtest::waitFor([this] { return value("Label") == "Other"; }));
    EXPECT_EQ(object.count.getValue(), 7);
    EXPECT_EQ(other.count.getValue(), 3);
}

TEST_F(Panel, EditsPropertiesOfTheNodeOfAProjectUndoably)
{
    auto& node = dynamic_cast<vxtest::TestProjectNode&>(
        *Gui::GuiApplication::Instance->get_project(&project)->get_view_feeder());
    selection().setSelection({&project}, {});
    panel().showSelection();
    ASSERT_TRUE(edit("Order", "5"));
    EXPECT_EQ(node.order.getValue(), 5);
    undoStack().undo();
    EXPECT_EQ(node.order.getValue(), 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return value("Order") == "1"; }));
}

/// The editors for the types of properties.
class TypedPanel : public Panel
{
protected:
    TypedPanel() : typed(addTyped(project, "Typed"))
    {
        undoStack().clear();
        show({&typed});
    }

    QPoint placeOf(const QString& name) const
    {
        const QRect place = panel().visualItemRect(row(name));
        return {panel().columnViewportPosition(1) + 8, place.center().y()};
    }
    /// Returns the list that a double click on a value opens; null if it opens none.
    QComboBox* openList(const QString& name) const
    {
        panel().scrollToItem(row(name));
        QTest::mouseClick(panel().viewport(), Qt::LeftButton, {}, placeOf(name));
        QTest::mouseDClick(panel().viewport(), Qt::LeftButton, {}, placeOf(name));
        for (QComboBox* const list : panel().viewport()->findChildren<QComboBox*>())
            if (list->isVisible())
                return list;
        return nullptr;
    }
    static QStringList entriesOf(const QComboBox& list)
    {
        QStringList texts;
        for (int i = 0; i < list.count(); ++i)
            texts << list.itemText(i);
        return texts;
    }
    /// Chooses an entry with the keyboard, like a user: arrows, then Return.
    static void choose(QComboBox& list, int index)
    {
        list.showPopup();
        list.view()->setCurrentIndex(list.model()->index(index, 0));
        QTest::keyClick(list.view(), Qt::Key_Return);
        QCoreApplication::processEvents();
    }

    vxtest::TypedObject& typed;
};

TEST_F(TypedPanel, ShowsAYesOrNoAsACheckBox)
{
    EXPECT_EQ(row("Active")->checkState(1), Qt::Unchecked);
    EXPECT_EQ(row("Locked")->checkState(1), Qt::Checked);
    typed.active.setValue(true);
    EXPECT_TRUE(QTest::qWaitFor([this] { return row("Active")->checkState(1) == Qt::Checked; }));
}

TEST_F(TypedPanel, TicksAndUnticksUndoably)
{
    QTest::mouseClick(panel().viewport(), Qt::LeftButton, {}, placeOf("Active"));
    EXPECT_TRUE(typed.active.getValue());
    QCoreApplication::processEvents();
    EXPECT_EQ(undoStack().count(), 1);
    undoStack().undo();
    EXPECT_FALSE(typed.active.getValue());
    EXPECT_TRUE(QTest::qWaitFor([this] { return row("Active")->checkState(1) == Qt::Unchecked; }));
    panel().setCurrentItem(row("Active"), 1);
    panel().setFocus();
    QTest::keyClick(&panel(), Qt::Key_Space);
    EXPECT_TRUE(typed.active.getValue());
}

TEST_F(TypedPanel, DoesNotTickReadOnlyProperties)
{
    QTest::mouseClick(panel().viewport(), Qt::LeftButton, {}, placeOf("Locked"));
    EXPECT_TRUE(typed.locked.getValue());
    EXPECT_EQ(row("Locked")->checkState(1), Qt::Checked);
    EXPECT_EQ(undoStack().count(), 0);
}

TEST_F(TypedPanel, OffersTheWordsOfAChoiceUndoably)
{
    EXPECT_EQ(value("Kind"), "Solid");
    QComboBox* const list = openList("Kind");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(entriesOf(*list), QStringList({"Solid", "Hollow"}));
    EXPECT_EQ(list->currentIndex(), 0);
    choose(*list, 1);
    EXPECT_EQ(typed.kind.getWord(), "Hollow");
    EXPECT_TRUE(QTest::qWaitFor([this] { return value("Kind") == "Hollow"; }));
    ASSERT_EQ(undoStack().count(), 1);
    undoStack().undo();
    EXPECT_EQ(typed.kind.getWord(), "Solid");
}

TEST_F(TypedPanel, OffersTheOtherObjectsForAReferenceUndoably)
{
    EXPECT_EQ(value("Partner"), "None");
    QComboBox* const list = openList("Partner");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(entriesOf(*list), QStringList({"None", "Beam"}));
    choose(*list, 1);
    EXPECT_EQ(typed.partner.getValue(), &object);
    EXPECT_TRUE(QTest::qWaitFor([this] { return value("Partner") == "Beam"; }));
    ASSERT_EQ(undoStack().count(), 1);
    undoStack().undo();
    EXPECT_EQ(typed.partner.getValue(), nullptr);
}

TEST_F(TypedPanel, FollowsTheLabelOfTheObjectThatIsReferredTo)
{
    typed.partner.setValue(&object);
    object.label.setValue("Girder");
    EXPECT_TRUE(QTest::qWaitFor([this] { return value("Partner") == "Girder"; }));
    project.removeObject(object.getObjectId());
    EXPECT_TRUE(QTest::qWaitFor([this] { return value("Partner") == "None"; }));
}

TEST_F(TypedPanel, TakesNumbersAloneForARealNumber)
{
    ASSERT_TRUE(edit("Length", "2.5e-3"));
    EXPECT_EQ(typed.length.getValue(), 2.5e-3);
    ASSERT_EQ(undoStack().count(), 1);
    undoStack().undo();
    EXPECT_EQ(typed.length.getValue(), 1.5);
    EXPECT_TRUE(QTest::qWaitFor([this] { return value("Length") == "1.5"; }));
    // The line accepts neither letters nor decimal commas.
    ASSERT_TRUE(edit("Length", "7,x5"));
    EXPECT_EQ(typed.length.getValue(), 75.0);
}

} // namespace
