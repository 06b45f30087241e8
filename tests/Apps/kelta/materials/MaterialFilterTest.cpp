#include "MaterialFilter.h"

#include "MaterialsTesting.h"

#include "Gui/CommandController.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QTranslator>
#include <QtTest/QtTestGui>

#include <algorithm>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MaterialFilter : public vxtest::Materials
{
protected:
    MaterialFilter()
        : project(newProject()),
          steel(addMaterial(project, "Steel")),
          light(addMaterial(project, "Light")),
          soft(addMaterial(project, "Soft"))
    {
        setNumber(light, density, 1200.0);
        setNumber(soft, modulus, 2e6);
        QCoreApplication::processEvents();
    }

    QLineEdit& field() const { return *window->findChild<QLineEdit*>(QStringLiteral("treeFilter")); }
    QString state() const { return window->findChild<QLabel*>(QStringLiteral("treeFilterState"))->text(); }

    /// Types an expression in place of the one before.
    void filter(const QString& text) const
    {
        run("Std_Find");
        QTest::keyClicks(&field(), text);
    }
    std::vector<std::string> shown() const
    {
        QCoreApplication::processEvents();
        const Gui::ProjectExplorer& tree = window->getProjectExplorer();
        const auto& model = dynamic_cast<const Gui::ProjectTreeModel&>(*tree.model());
        std::vector<std::string> labels;
        for (QModelIndex index = model.index(0, 0, {}); index.isValid(); index = tree.indexBelow(index))
            if (const Obj::ProjectObject* const object = model.objectAt(index))
                labels.push_back(object->label.getValue());
        return labels;
    }
    static QAbstractItemView* completions()
    {
        return qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
    }

    Mat::DocumentMaterial& project;
    Mat::MaterialObject& steel;
    Mat::MaterialObject& light;
    Mat::MaterialObject& soft;
};

TEST_F(MaterialFilter, FindsMaterialsByTheirValuesAndLabels)
{
    filter("E > 100 GPa and rho < 3 g/cm3");
    EXPECT_THAT(shown(), ElementsAre("Light"));
    EXPECT_EQ(state(), "Matches: 1 of 3");
    filter("E < 1e9 or light");
    EXPECT_THAT(shown(), ElementsAre("Light", "Soft"));
    // 200 GPa / (2 * 1.3)
    filter("G 76.9..77 GPa and not light");
    EXPECT_THAT(shown(), ElementsAre("Steel"));
    filter("li");
    EXPECT_THAT(shown(), ElementsAre("Light"));
}

TEST_F(MaterialFilter, SaysWhyAnExpressionCannotBeReadAndKeepsTheTree)
{
    filter("soft");
    filter("densty > 5");
    EXPECT_EQ(state(), "No quantity is called \"densty\". Did you mean \"Density\"?");
    filter("E > 2,1 GPa");
    EXPECT_EQ(state(), "\"2,1 GPa\" has a decimal comma; the decimal sign is a point. Did you mean \"2.1 GPa\"?");
    filter("soft");
    EXPECT_THAT(shown(), ElementsAre("Soft"));
}

TEST_F(MaterialFilter, SuggestsTheConditionThatWordsForLabelsLookLike)
{
    filter("rho 7850");
    EXPECT_EQ(state(), "Matches: 0 of 3\nSearched in labels; did you mean \"rho = 7850\"?");
    filter("soft");
    EXPECT_EQ(state(), "Matches: 1 of 3");
}

/// The names of two quantities in German.
class GermanNames : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        const QByteArray name = QByteArray(context) + "/" + text;
        if (name == "vxMat::PropertyName/Density")
            return QStringLiteral("Dichte");
        return name == "vxUnits::Word/Shear modulus" ? QStringLiteral("Schubmodul") : QString();
    }
    bool isEmpty() const override { return false; }
};

TEST_F(MaterialFilter, TakesAndCompletesTheNamesOfQuantitiesInTheLanguageOfTheUser)
{
    filter("Dichte < 3 g/cm3");
    EXPECT_EQ(state(), "No quantity is called \"Dichte\".");
    GermanNames names;
    QCoreApplication::installTranslator(&names);
    filter("Dichte < 3 g/cm3 and Schubmodul > 1 GPa");
    EXPECT_THAT(shown(), ElementsAre("Light"));
    filter("Density < 3 g/cm3");
    EXPECT_THAT(shown(), ElementsAre("Light"));
    filter("Dihcte > 5");
    EXPECT_EQ(state(), "No quantity is called \"Dihcte\". Did you mean \"Dichte\"?");
    filter("dich");
    ASSERT_NE(completions(), nullptr);
    QTest::keyClick(completions(), Qt::Key_Tab);
    EXPECT_EQ(field().text(), "Dichte ");
}

TEST_F(MaterialFilter, FollowsAppliedEditsAndTheirUndo)
{
    filter("E > 100 GPa");
    ASSERT_THAT(shown(), ElementsAre("Steel", "Light"));
    MatGui::MaterialView& editor = edit(soft);
    type(editor, modulus, "3e11");
    EXPECT_THAT(shown(), ElementsAre("Steel", "Light"));
    apply(editor);
    EXPECT_THAT(shown(), ElementsAre("Steel", "Light", "Soft"));
    history().undo();
    EXPECT_THAT(shown(), ElementsAre("Steel", "Light"));
    EXPECT_EQ(state(), "Matches: 2 of 3\n\"Soft\" does not match and is hidden.");
}

TEST_F(MaterialFilter, FollowsDeletionsRenamingAndNewProjects)
{
    filter("has E and s");
    ASSERT_THAT(shown(), ElementsAre("Steel", "Soft"));
    ASSERT_TRUE(vxMsg::MessageProxy::instance().deleteObject(project.get_name(), "Soft"));
    EXPECT_THAT(shown(), ElementsAre("Steel"));
    history().undo();
    EXPECT_THAT(shown(), ElementsAre("Steel", "Soft"));
    Mat::DocumentMaterial& second = newProject("Second");
    addMaterial(second, "Brass");
    addMaterial(second, "Zinc");
    EXPECT_THAT(shown(), ElementsAre("Steel", "Soft", "Brass"));
    EXPECT_EQ(state(), "Matches: 3 of 5\n\"Zinc\" does not match and is hidden.");
}

TEST_F(MaterialFilter, ShowsANewMaterialThatMatchesAndSelectsIt)
{
    // The request makes an empty material, which a listener fills.
    const boost::signals2::scoped_connection filling =
        vxMsg::MessageProxy::instance().objectCreated.connect([](Obj::ProjectObject& object) {
            static_cast<Mat::MaterialObject&>(object).initCMaterial(vxMat::eMaterialType::StructuralSteel);
        });
    filter("E > 100 GPa");
    run("Mat_AddMaterial");
    EXPECT_EQ(shown().size(), 3U);
    EXPECT_TRUE(Gui::TreeSelectionSingleton::instance().is_selected(project.getObjects().back(), nullptr));
}

TEST_F(MaterialFilter, CompletesQuantitiesSignsAndUnits)
{
    filter("you");
    ASSERT_NE(completions(), nullptr);
    QTest::keyClick(completions(), Qt::Key_Tab);
    EXPECT_EQ(field().text(), "Young's modulus ");
    QTest::keyClicks(&field(), "> 100 M");
    ASSERT_NE(completions(), nullptr);
    QTest::keyClick(completions(), Qt::Key_Tab);
    EXPECT_EQ(field().text(), "Young's modulus > 100 MPa");
    EXPECT_THAT(shown(), ElementsAre("Steel", "Light"));
}

TEST_F(MaterialFilter, KeepsTheListOfCompletionsClearOfTheReasonAndTheMatches)
{
    const auto placeOf = [](const QWidget& widget) { return QRect(widget.mapToGlobal(QPoint(0, 0)), widget.size()); };
    const QWidget& line = *window->findChild<QLabel*>(QStringLiteral("treeFilterState"));
    filter("E > 100 G");
    ASSERT_NE(completions(), nullptr);
    EXPECT_EQ(state(), "The unit \"G\" is not known.");
    EXPECT_FALSE(placeOf(*completions()->window()).intersects(placeOf(line)));
    EXPECT_FALSE(placeOf(*completions()->window()).intersects(placeOf(field())));
    QTest::keyClick(completions(), Qt::Key_Tab);
    EXPECT_EQ(completions(), nullptr) << "the first matches are in sight";
    EXPECT_EQ(state(), "Matches: 2 of 3");
    QTest::keyClick(&field(), Qt::Key_Space);
    ASSERT_NE(completions(), nullptr) << "and, or";
    EXPECT_FALSE(placeOf(*completions()->window()).intersects(placeOf(line)));
}

TEST_F(MaterialFilter, IsConfirmedByReturnIfItCanBeReadAlthoughTextsAreOffered)
{
    filter("creep");
    ASSERT_NE(completions(), nullptr);
    QTest::keyClick(completions(), Qt::Key_Return);
    EXPECT_EQ(completions(), nullptr);
    EXPECT_EQ(field().text(), "creep");
    EXPECT_TRUE(window->getProjectExplorer().hasFocus());
}

TEST_F(MaterialFilter, SurvivesUnitsAndTextsOfOtherScripts)
{
    field().setText(QString::fromUtf8("E > 5 \xE5\xB8\x95"));
    EXPECT_FALSE(state().isEmpty());
    field().setText(QString::fromUtf8("\xE9\x92\xA2 \xF0\x9F\x94\xA9"));
    EXPECT_THAT(shown(), IsEmpty());
    field().setText(QString(100000, QLatin1Char('(')));
    // The field takes 32767 characters.
    EXPECT_EQ(state(), R"(More than 100 parentheses and "not" are inside each other.)");
}

} // namespace
