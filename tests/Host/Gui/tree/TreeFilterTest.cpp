#include "Gui/TreeFilter.h"

#include "GuiTesting.h"

#include "Gui/ProjectTreeModel.h"
#include "Obj/ProjectObjectGroup.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Finds objects by a number: "count 5". Completes "co".
class CountFilter : public Gui::TreeFilter
{
public:
    std::optional<Gui::FilterFault> setExpression(const QString& text) override
    {
        const QStringList words = text.simplified().split(QLatin1Char(' '));
        if (!text.isEmpty() && (words.size() != 2 || words[0] != QLatin1String("count")))
            return Gui::FilterFault{QStringLiteral("Write count and a number."), 0, text.size()};
        m_count = text.isEmpty() ? 0 : words[1].toInt();
        return std::nullopt;
    }
    bool matches(const Obj::ProjectObject& object) override
    {
        const auto* const test = dynamic_cast<const vxtest::TestObject*>(&object);
        return test != nullptr && test->count.getValue() == m_count;
    }
    std::vector<Gui::FilterCompletion> completionsFor(const QString& text, int cursor) const override
    {
        if (text != QLatin1String("co"))
            return {};
        return {{0, cursor, QStringLiteral("colour"), QString()}, {0, cursor, QStringLiteral("count"), "a number"}};
    }
    QString hint() const override { return QStringLiteral("count 5"); }
    QString remark() const override { return m_count == 13 ? QStringLiteral("Did you mean 12?") : QString(); }

private:
    int m_count = 0;
};

class TreeFilter : public vxtest::Host
{
protected:
    TreeFilter()
        : project(makeProject()),
          steel(addObject(project, "Structural Steel")),
          copper(addObject(project, "Copper")),
          alloy(addObject(project, "Steel Alloy"))
    {
        focusExplorer();
    }

    QLineEdit& field() const { return *window->findChild<QLineEdit*>(QStringLiteral("treeFilter")); }
    QLabel& state() const { return *window->findChild<QLabel*>(QStringLiteral("treeFilterState")); }
    QAbstractItemView* completions() const
    {
        auto* const popup = qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
        return popup != nullptr && popup->objectName() == QLatin1String("treeFilterCompletions") ? popup : nullptr;
    }
    void type(const QString& text) const
    {
        run("Std_Find");
        QTest::keyClicks(&field(), text);
    }
    static void settle() { QCoreApplication::processEvents(); }

    /// Returns the labels of the objects that have a row, from top to bottom.
    std::vector<std::string> shown() const
    {
        settle();
        std::vector<std::string> labels;
        for (QModelIndex index = model().index(0, 0, {}); index.isValid(); index = explorer().indexBelow(index))
            if (const Obj::ProjectObject* const object = model().objectAt(index))
                labels.push_back(object->label.getValue());
        return labels;
    }

    vxtest::TestProject& project;
    vxtest::TestObject& steel;
    vxtest::TestObject& copper;
    vxtest::TestObject& alloy;
};

TEST_F(TreeFilter, ShowsObjectsWhoseLabelsHaveAllWords)
{
    EXPECT_FALSE(state().isVisible());
    type("STEEL");
    EXPECT_THAT(shown(), ElementsAre("Structural Steel", "Steel Alloy"));
    EXPECT_EQ(state().text(), "Matches: 2 of 3");
    EXPECT_TRUE(state().isVisible());
    QTest::keyClicks(&field(), " alloy");
    EXPECT_THAT(shown(), ElementsAre("Steel Alloy"));
    QTest::keyClicks(&field(), "s");
    EXPECT_THAT(shown(), IsEmpty());
    EXPECT_EQ(state().text(), "Matches: 0 of 3");
    EXPECT_TRUE(model().indexOf(project).isValid());
}

TEST_F(TreeFilter, IsReachedByItsKeyAndLeftByEscape)
{
    EXPECT_EQ(commands().findCommand("Std_Find")->get_shortcut(), QKeySequence(QStringLiteral("Ctrl+F")));
    type("copper");
    EXPECT_TRUE(field().hasFocus());
    QTest::keyClick(&field(), Qt::Key_Escape);
    EXPECT_EQ(field().text(), "");
    EXPECT_TRUE(explorer().hasFocus());
    EXPECT_THAT(shown(), SizeIs(3));
    EXPECT_FALSE(state().isVisible());
    // The next search replaces the text.
    type("steel");
    type("copper");
    EXPECT_EQ(field().text(), "copper");
}

TEST_F(TreeFilter, IsLeftDownwardsToTheFirstMatch)
{
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return}) {
        selection().clear();
        type("copper");
        QTest::keyClick(&field(), key);
        EXPECT_TRUE(explorer().hasFocus());
        EXPECT_TRUE(selection().is_selected(&copper, nullptr));
        EXPECT_EQ(field().text(), "copper");
    }
}

TEST_F(TreeFilter, DeselectsWhatItHidesAndKeepsTheOthers)
{
    select({&steel, &copper});
    type("steel");
    EXPECT_TRUE(selection().is_selected(&steel, nullptr));
    EXPECT_FALSE(selection().is_selected(&copper, nullptr));
    EXPECT_TRUE(explorer().selectionModel()->isSelected(model().indexOf(steel)));
    field().clear();
    EXPECT_FALSE(selection().is_selected(&copper, nullptr));
    EXPECT_TRUE(explorer().selectionModel()->isSelected(model().indexOf(steel)));
}

TEST_F(TreeFilter, LetsKeysActOnlyOnWhatIsShown)
{
    type("steel");
    QTest::keyClick(&field(), Qt::Key_Down);
    run("Std_SelectAll");
    EXPECT_EQ(selection().getCount(), 2U);
    QTest::keyClick(&explorer(), Qt::Key_Delete);
    settle();
    EXPECT_THAT(project.getObjects(), ElementsAre(&copper));
    run("Std_Undo");
    EXPECT_THAT(shown(), ElementsAre("Structural Steel", "Steel Alloy"));
}

TEST_F(TreeFilter, KeysOfTheFieldDoNotActOnObjects)
{
    select({&steel});
    type("steel");
    QTest::keyClick(&field(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field(), Qt::Key_Delete);
    settle();
    EXPECT_EQ(field().text(), "");
    EXPECT_THAT(project.getObjects(), SizeIs(3));
    EXPECT_FALSE(isApplicable("Std_Delete"));
}

TEST_F(TreeFilter, FiltersRenamedAndRestoredObjectsAtOnce)
{
    type("steel");
    vxMsg::MessageProxy& requests = vxMsg::MessageProxy::instance();
    requests.setProperty(vxMsg::PropertyPlace(copper), "Label", std::string("Copper on steel"));
    EXPECT_THAT(shown(), ElementsAre("Structural Steel", "Copper on steel", "Steel Alloy"));
    EXPECT_EQ(state().text(), "Matches: 3 of 3");
    select({&copper});
    run("Std_Undo");
    EXPECT_THAT(shown(), ElementsAre("Structural Steel", "Steel Alloy"));
    EXPECT_EQ(state().text(), "Matches: 2 of 3\n\"Copper\" does not match and is hidden.");
    // The next key must not act on a neighbour.
    EXPECT_EQ(selection().getCount(), 0U);
}

TEST_F(TreeFilter, SaysThatItHidesAnAddedObject)
{
    type("steel");
    vxtest::TestObject& zinc = addObject(project, "Zinc");
    select({&zinc});
    EXPECT_THAT(shown(), ElementsAre("Structural Steel", "Steel Alloy"));
    EXPECT_EQ(state().text(), "Matches: 2 of 4\n\"Zinc\" does not match and is hidden.");
    EXPECT_FALSE(selection().is_selected(&zinc, nullptr));
    addObject(project, "Tin");
    addObject(project, "Lead");
    addObject(project, "Stainless Steel");
    EXPECT_THAT(shown(), ElementsAre("Structural Steel", "Steel Alloy", "Stainless Steel"));
    EXPECT_EQ(state().text(), "Matches: 3 of 7\nNew or changed objects that do not match and are hidden: 2");
    QTest::keyClicks(&field(), " ");
    EXPECT_EQ(state().text(), "Matches: 3 of 7");
}

TEST_F(TreeFilter, SelectsANewObjectThatMatchesOnlyAfterItHasItsContent)
{
    contributions.setTreeFilter(std::make_unique<CountFilter>());
    type("count 7");
    EXPECT_THAT(shown(), IsEmpty());
    vxtest::TestObject& added = addObject(project, "New");
    select({&added}); // as the request for a new object does, before a module fills it
    added.count.setValue(7);
    EXPECT_THAT(shown(), ElementsAre("New"));
    EXPECT_TRUE(selection().is_selected(&added, nullptr));
    EXPECT_TRUE(explorer().selectionModel()->isSelected(model().indexOf(added)));
    EXPECT_EQ(state().text(), "Matches: 1 of 4");
}

TEST_F(TreeFilter, KeepsGroupsThatHaveMatchesAndExpandsThem)
{
    auto& group = dynamic_cast<Obj::ProjectObjectGroup&>(*project.add_object("Obj::ProjectObjectGroup", "Metals"));
    ASSERT_TRUE(group.addMember(copper));
    settle();
    explorer().collapse(model().indexOf(group));
    type("copper");
    EXPECT_THAT(shown(), ElementsAre("Metals", "Copper"));
    EXPECT_EQ(state().text(), "Matches: 1 of 4");
    EXPECT_EQ(model().objectAt(model().indexOf(copper).parent()), &group);
    field().clear();
    settle();
    EXPECT_FALSE(explorer().isExpanded(model().indexOf(group)));
    EXPECT_TRUE(explorer().isExpanded(model().indexOf(project)));
}

TEST_F(TreeFilter, OfAModuleReplacesTheLabels)
{
    EXPECT_EQ(field().placeholderText(), "Filter by label");
    steel.count.setValue(5);
    contributions.setTreeFilter(std::make_unique<CountFilter>());
    EXPECT_EQ(field().placeholderText(), "count 5");
    type("count 5");
    EXPECT_THAT(shown(), ElementsAre("Structural Steel"));
}

TEST_F(TreeFilter, KeepsTheLastStateWhileTheTextCannotBeRead)
{
    contributions.setTreeFilter(std::make_unique<CountFilter>());
    copper.count.setValue(5);
    type("count 5");
    ASSERT_THAT(shown(), ElementsAre("Copper"));
    QTest::keyClicks(&field(), " x");
    EXPECT_EQ(state().text(), "Write count and a number.");
    EXPECT_THAT(shown(), ElementsAre("Copper"));
    const auto warnings = [this] {
        const QList<QAction*> actions = field().actions();
        return std::count_if(actions.begin(), actions.end(), [](const QAction* action) {
            return action->isVisible() && action->toolTip() == QLatin1String("Write count and a number.");
        });
    };
    EXPECT_EQ(warnings(), 1);
    // A change of the objects does not replace the reason.
    alloy.count.setValue(5);
    EXPECT_THAT(shown(), ElementsAre("Copper", "Steel Alloy"));
    EXPECT_EQ(state().text(), "Write count and a number.");
    QTest::keyClick(&field(), Qt::Key_Backspace);
    QTest::keyClick(&field(), Qt::Key_Backspace);
    EXPECT_EQ(warnings(), 0);
    EXPECT_EQ(state().text(), "Matches: 2 of 3");
}

TEST_F(TreeFilter, CompletesTheTextByAListWhileTheUserTypes)
{
    contributions.setTreeFilter(std::make_unique<CountFilter>());
    type("c");
    EXPECT_EQ(completions(), nullptr);
    QTest::keyClicks(&field(), "o");
    ASSERT_NE(completions(), nullptr);
    ASSERT_EQ(completions()->model()->rowCount(), 2);
    EXPECT_EQ(completions()->model()->index(1, 0).data().toString(), "count   a number");
    QTest::keyClick(completions(), Qt::Key_Down);
    QTest::keyClick(completions(), Qt::Key_Down);
    QTest::keyClick(completions(), Qt::Key_Return);
    EXPECT_EQ(field().text(), "count ");
    EXPECT_EQ(completions(), nullptr);
    // Return takes the first one, because the text cannot be read as it is.
    field().clear();
    QTest::keyClicks(&field(), "co");
    ASSERT_NE(completions(), nullptr);
    QTest::keyClick(completions(), Qt::Key_Return);
    EXPECT_EQ(field().text(), "colour ");
    EXPECT_TRUE(field().hasFocus());
    // Tab takes the first one; Escape closes the list before it clears the field.
    field().clear();
    QTest::keyClicks(&field(), "co");
    ASSERT_NE(completions(), nullptr);
    QTest::keyClick(completions(), Qt::Key_Tab);
    EXPECT_EQ(field().text(), "colour ");
    field().clear();
    QTest::keyClicks(&field(), "co");
    ASSERT_NE(completions(), nullptr);
    QTest::keyClick(completions(), Qt::Key_Escape);
    EXPECT_EQ(completions(), nullptr);
    EXPECT_EQ(field().text(), "co");
}

TEST_F(TreeFilter, KeepsTheListClearOfTheFieldAndTheLinesBelow)
{
    const auto placeOf = [](const QWidget& widget) { return QRect(widget.mapToGlobal(QPoint(0, 0)), widget.size()); };
    contributions.setTreeFilter(std::make_unique<CountFilter>());
    type("co");
    ASSERT_NE(completions(), nullptr);
    ASSERT_EQ(state().text(), "Write count and a number.");
    settle();
    EXPECT_FALSE(placeOf(*completions()->window()).intersects(placeOf(state())));
    EXPECT_FALSE(placeOf(*completions()->window()).intersects(placeOf(field())));
}

TEST_F(TreeFilter, ShowsTheRemarkOfTheFilter)
{
    contributions.setTreeFilter(std::make_unique<CountFilter>());
    type("count 13");
    EXPECT_EQ(state().text(), "Matches: 0 of 3\nDid you mean 12?");
    QTest::keyClick(&field(), Qt::Key_Backspace);
    EXPECT_EQ(state().text(), "Matches: 0 of 3");
}

TEST_F(TreeFilter, IsClearedWhenTheLastProjectIsClosed)
{
    const vxtest::TestProject& second = makeProject("Second");
    type("copper");
    Obj::Application::instance().closeProject(second);
    settle();
    EXPECT_EQ(field().text(), "copper");
    Obj::Application::instance().closeProject(project);
    settle();
    EXPECT_EQ(field().text(), "");
}

TEST_F(TreeFilter, SurvivesHostileTexts)
{
    run("Std_Find");
    field().setMaxLength(200000);
    field().setText(QString(100000, QLatin1Char('(')));
    EXPECT_THAT(shown(), IsEmpty());
    field().setText(QStringLiteral("\n\t<b>&amp;%1%2"));
    EXPECT_THAT(shown(), IsEmpty());
    EXPECT_EQ(state().text(), "Matches: 0 of 3");
}

} // namespace
