#include "ImportUnits.h"
#include "MaterialsTesting.h"
#include "ProjectUnitsDialog.h"
#include "UnitChoice.h"
#include "UnitsDisplay.h"
#include "UnitsPage.h"

#include "kelta/Batch.h"
#include "projectfile/ExchangeImport.h"
#include "vxInspector/units/ProjectUnits.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest/QtTestGui>

namespace {

using desktop::UnitChoice;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

// What the program and the files call the setting.
static_assert(std::string_view(vxInspector::unitSystemSetting) == projectfile::unitSystemSetting);

QComboBox& systemsOf(const QWidget& widget)
{
    return *widget.findChild<QComboBox*>(QStringLiteral("unitSystems"));
}

QLineEdit& basesOf(const QWidget& widget)
{
    return *widget.findChild<QLineEdit*>(QStringLiteral("baseUnits"));
}

std::string remarkOf(const QWidget& widget)
{
    return widget.findChild<QLabel*>(QStringLiteral("unitRemark"))->text().toStdString();
}

/// Chooses the last entry, and types base units.
void typeOwn(const QWidget& widget, const QString& bases)
{
    systemsOf(widget).setCurrentIndex(systemsOf(widget).count() - 1);
    basesOf(widget).selectAll();
    QTest::keyClick(&basesOf(widget), Qt::Key_Delete);
    QTest::keyClicks(&basesOf(widget), bases);
}

// --- The fields ---

using UnitChoices = vxtest::Materials;

TEST_F(UnitChoices, OfferTheBuiltInSystemsAndOnesOfTheUser)
{
    const UnitChoice choice(UnitChoice::Preference::NotOffered);
    QStringList entries;
    for (int index = 0; index < systemsOf(choice).count(); ++index)
        entries << systemsOf(choice).itemText(index);
    EXPECT_EQ(entries, QStringList({"SI", "mm-t-s", "mm-kg-ms", "cm-g-s", "ft-slug-s", "in-lbf-s", "Own base units"}));
    EXPECT_EQ(choice.system(), QStringLiteral("SI"));
    EXPECT_EQ(basesOf(choice).text(), QStringLiteral("length m, mass kg, time s"));
    EXPECT_FALSE(basesOf(choice).isEnabled());
    EXPECT_EQ(remarkOf(choice), "Stress in Pa, density in kg/m^3, thermal conductivity in W/(m K)");
}

TEST_F(UnitChoices, BeginTheirOwnUnitsWithThoseOfTheSystemBefore)
{
    UnitChoice choice(UnitChoice::Preference::NotOffered);
    choice.setSystem(QStringLiteral("mm-t-s"));
    systemsOf(choice).setCurrentIndex(systemsOf(choice).count() - 1);
    EXPECT_TRUE(basesOf(choice).isEnabled());
    EXPECT_EQ(basesOf(choice).text(), QStringLiteral("length mm, mass t, time s"));
    EXPECT_TRUE(choice.isValid());
}

TEST_F(UnitChoices, SayAtOnceWhyOwnUnitsCannotBeRead)
{
    UnitChoice choice(UnitChoice::Preference::NotOffered);
    const QSignalSpy edits(&choice, &UnitChoice::edited);
    typeOwn(choice, QStringLiteral("length cm, mass g, time"));
    EXPECT_FALSE(choice.isValid());
    EXPECT_EQ(choice.system(), QString());
    EXPECT_THAT(remarkOf(choice), HasSubstr("time"));
    EXPECT_EQ(basesOf(choice).accessibleDescription().toStdString(), remarkOf(choice));
    QTest::keyClicks(&basesOf(choice), QStringLiteral(" us"));
    EXPECT_TRUE(choice.isValid());
    EXPECT_THAT(choice.system().toStdString(), HasSubstr("length cm, mass g, time us"));
    EXPECT_THAT(remarkOf(choice), StartsWith("Stress in "));
    EXPECT_GT(edits.count(), 3);
}

TEST_F(UnitChoices, ShowATextThatIsNoSystemAsOwnUnits)
{
    UnitChoice choice(UnitChoice::Preference::Offered);
    choice.setSystem(QStringLiteral("furlongs"));
    EXPECT_EQ(basesOf(choice).text(), QStringLiteral("furlongs"));
    EXPECT_FALSE(choice.isValid());
    choice.setSystem(QString());
    EXPECT_TRUE(choice.isValid());
    EXPECT_EQ(choice.system(), QString());
    EXPECT_EQ(systemsOf(choice).currentText(), QStringLiteral("As in the preferences (SI)"));
}

TEST_F(UnitChoices, OfferTheSystemOfAProjectFirst)
{
    UnitChoice choice(*vxUnits::UnitSystem::parse("cm-g-s"));
    EXPECT_EQ(systemsOf(choice).currentText(), QStringLiteral("As the project (cm-g-s)"));
    EXPECT_EQ(choice.system(), QString());
    EXPECT_EQ(choice.read()->text(), "cm-g-s");
    EXPECT_THAT(remarkOf(choice), HasSubstr("density in g/cm^3"));
    choice.setSystem(QStringLiteral("SI"));
    EXPECT_EQ(choice.read()->text(), "SI");
}

TEST_F(UnitChoices, ChooseNothingForAnUndecidedUser)
{
    UnitChoice choice(UnitChoice::Preference::Undecided);
    EXPECT_EQ(systemsOf(choice).currentText(), QStringLiteral("Not chosen yet"));
    EXPECT_FALSE(choice.isValid());
    EXPECT_EQ(choice.system(), QString());
    EXPECT_EQ(remarkOf(choice), "");
    EXPECT_EQ(basesOf(choice).text(), QString());
    choice.setSystem(QStringLiteral("mm-t-s"));
    EXPECT_TRUE(choice.isValid());
    choice.setSystem(QString());
    EXPECT_FALSE(choice.isValid());
}

// --- The unit system of a project ---

class ProjectUnits : public vxtest::Materials
{
protected:
    ProjectUnits() { new desktop::UnitsDisplay(*window); } // the window owns it

    QDialog& open()
    {
        EXPECT_TRUE(run("Mat_Units"));
        return *dialog();
    }
    QDialog* dialog() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return window->findChild<QDialog*>(QStringLiteral("projectUnits"));
    }
    static void press(const QDialog& dialog, QDialogButtonBox::StandardButton which)
    {
        dialog.findChild<QDialogButtonBox*>()->button(which)->click();
    }
    static std::string settingOf(const Obj::Project& project)
    {
        return project.getSetting(vxInspector::unitSystemSetting);
    }
    const QLabel& display() const { return *window->findChild<QLabel*>(QStringLiteral("shownUnits")); }
    std::string shown() const
    {
        window->updateCommands();
        return display().isVisible() ? display().text().toStdString() : std::string();
    }
};

TEST_F(ProjectUnits, AreChosenInADialogAsOneStep)
{
    const Mat::DocumentMaterial& project = newProject();
    const int steps = history().count();
    QDialog& units = open();
    systemsOf(units).setCurrentText(QStringLiteral("mm-t-s"));
    press(units, QDialogButtonBox::Ok);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(settingOf(project), "mm-t-s");
    EXPECT_EQ(history().count(), steps + 1);
    EXPECT_EQ(history().undoText(), QStringLiteral("Show \"Materials\" in mm-t-s"));
    history().undo();
    EXPECT_EQ(settingOf(project), "");
    history().redo();
    systemsOf(open()).setCurrentIndex(0);
    press(*dialog(), QDialogButtonBox::Ok);
    EXPECT_EQ(settingOf(project), "");
    EXPECT_EQ(history().undoText(), QStringLiteral("Show \"Materials\" in the units of the preferences"));
}

TEST_F(ProjectUnits, AreNotChangedByCancelOrWithoutAChange)
{
    const Mat::DocumentMaterial& project = newProject();
    const int steps = history().count();
    systemsOf(open()).setCurrentText(QStringLiteral("mm-t-s"));
    QTest::keyClick(dialog(), Qt::Key_Escape);
    EXPECT_EQ(settingOf(project), "");
    press(open(), QDialogButtonBox::Ok);
    EXPECT_EQ(settingOf(project), "");
    EXPECT_EQ(history().count(), steps);
}

TEST_F(ProjectUnits, CannotBeChosenWhileTheyCannotBeRead)
{
    const Mat::DocumentMaterial& project = newProject();
    QDialog& units = open();
    const QPushButton& ok = *units.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    typeOwn(units, QStringLiteral("length cm, mass g"));
    EXPECT_FALSE(ok.isEnabled());
    QTest::keyClick(&basesOf(units), Qt::Key_Return);
    ASSERT_NE(dialog(), nullptr) << "Return does not close the dialog either";
    QTest::keyClicks(&basesOf(units), QStringLiteral(", time us"));
    EXPECT_TRUE(ok.isEnabled());
    QTest::keyClick(&basesOf(units), Qt::Key_Return);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_THAT(settingOf(project), HasSubstr("length cm, mass g, time us"));
}

TEST_F(ProjectUnits, AreOfferedOnlyForAMaterialProject)
{
    EXPECT_FALSE(run("Mat_Units"));
    newProject();
    EXPECT_TRUE(run("Mat_Units"));
}

TEST_F(ProjectUnits, AreNotSetIfTheProjectIsClosedMeanwhile)
{
    newProject();
    systemsOf(open()).setCurrentText(QStringLiteral("mm-t-s"));
    Obj::Application::instance().closeAllProjects();
    press(*dialog(), QDialogButtonBox::Ok);
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(ProjectUnits, AreShownInTheStatusBar)
{
    EXPECT_EQ(shown(), "");
    const Mat::DocumentMaterial& project = newProject();
    EXPECT_EQ(shown(), "Units: SI");
    ASSERT_TRUE(desktop::setProjectUnits(project, QStringLiteral("mm-t-s")));
    EXPECT_TRUE(vxtest::waitFor([this] { return display().text() == QLatin1String("Units: mm-t-s"); }));
    history().undo();
    EXPECT_TRUE(vxtest::waitFor([this] { return display().text() == QLatin1String("Units: SI"); }));
    ASSERT_TRUE(desktop::setProjectUnits(project, QStringLiteral("length cm, mass g, time us")));
    EXPECT_EQ(shown(), "Units: own");
    EXPECT_THAT(display().toolTip().toStdString(), HasSubstr("length cm, mass g, time us"));
}

TEST_F(ProjectUnits, ThatCannotBeReadAreReportedOnce)
{
    newProject().setSetting(vxInspector::unitSystemSetting, "furlongs");
    EXPECT_EQ(shown(), "Units: SI");
    EXPECT_EQ(shown(), "Units: SI");
    EXPECT_THAT(display().toolTip().toStdString(), HasSubstr("cannot be read"));
    const auto texts = messages();
    EXPECT_EQ(std::count_if(texts.begin(), texts.end(),
                            [](const std::string& text) {
                                return text.find("The unit system of the project \"Materials\" cannot be read: ") == 0;
                            }),
              1);
}

TEST_F(ProjectUnits, AreSetByAVerbOfLists)
{
    const Mat::DocumentMaterial& project = newProject();
    EXPECT_EQ(desktop::Batch::runCommand("Mat_Units", {"MM-T-S"}), std::nullopt);
    EXPECT_EQ(settingOf(project), "mm-t-s");
    EXPECT_THAT(desktop::Batch::runCommand("Mat_Units", {"furlongs"}), testing::Ne(std::nullopt));
    EXPECT_THAT(desktop::Batch::runCommand("Mat_Units", {"SI", "mm-t-s"}), testing::Ne(std::nullopt));
    EXPECT_EQ(settingOf(project), "mm-t-s");
    EXPECT_EQ(desktop::Batch::runCommand("Mat_Units", {}), std::nullopt);
    EXPECT_EQ(settingOf(project), "");
}

// --- The preference ---

class UnitPreference : public ProjectUnits
{
protected:
    UnitPreference()
    {
        page.show();
        EXPECT_EQ(systemsOf(page).currentText(), QStringLiteral("SI"));
    }
    desktop::UnitsPage page;
};

TEST_F(UnitPreference, IsStoredAndUsedByProjectsWithoutUnits)
{
    const Mat::DocumentMaterial& project = newProject();
    EXPECT_EQ(shown(), "Units: SI");
    EXPECT_FALSE(page.isChanged());
    systemsOf(page).setCurrentText(QStringLiteral("in-lbf-s"));
    EXPECT_TRUE(page.isChanged());
    EXPECT_EQ(vxInspector::defaultSystem(), vxUnits::UnitSystem::si()) << "before it is stored";
    page.store();
    EXPECT_FALSE(page.isChanged());
    EXPECT_EQ(vxInspector::shownSystem(project).text(), "in-lbf-s");
    EXPECT_EQ(display().text(), QStringLiteral("Units: in-lbf-s"));
    EXPECT_EQ(settingOf(project), "") << "the project is not changed";
}

TEST_F(UnitPreference, CannotBeStoredIfItCannotBeRead)
{
    typeOwn(page, QStringLiteral("length"));
    EXPECT_TRUE(page.isChanged());
    EXPECT_FALSE(page.isValid());
    typeOwn(page, QStringLiteral("length cm, mass g, time us"));
    EXPECT_TRUE(page.isValid());
}

TEST_F(UnitPreference, IsSiIfTheStoredTextIsDamagedWhichIsKept)
{
    QSettings().setValue(QStringLiteral("units/system"), QStringLiteral("furlongs"));
    const desktop::UnitsPage damaged;
    EXPECT_EQ(systemsOf(damaged).currentText(), QStringLiteral("SI"));
    EXPECT_FALSE(damaged.isChanged());
    EXPECT_EQ(QSettings().value(QStringLiteral("units/system")).toString(), QStringLiteral("furlongs"));
}

TEST_F(UnitPreference, IsAPageOfThePreferences)
{
    ASSERT_TRUE(run("Std_Preferences"));
    auto* const preferences = window->findChild<QDialog*>(QStringLiteral("preferences"));
    ASSERT_NE(preferences, nullptr);
    systemsOf(*preferences).setCurrentText(QStringLiteral("cm-g-s"));
    press(*preferences, QDialogButtonBox::Ok);
    EXPECT_EQ(vxInspector::defaultSystem().text(), "cm-g-s");
}

// --- The units of a document ---

/// Returns a material with a Young's modulus, a Poisson's ratio and a density.
projectfile::ImportedMaterial material(const std::string& label, double youngs, double perVolume)
{
    projectfile::ImportedMaterial imported;
    imported.label = label;
    imported.material = std::make_unique<vxMat::CMaterial>(label.c_str());
    for (const auto& [id, value] :
         {std::pair(vxMat::PropertyId::YoungsModulus, youngs), std::pair(vxMat::PropertyId::PoissonsRatio, 0.3),
          std::pair(vxMat::PropertyId::Density, perVolume)})
    {
        auto property = vxMat::findPropertyRecord(id)->create();
        property->value = value;
        imported.material->setProperty(id, std::move(property));
    }
    return imported;
}

class ImportedUnits : public vxtest::Materials
{
protected:
    projectfile::ImportedMaterials document;

    void add(const std::string& label, double youngs, double perVolume)
    {
        document.materials.push_back(material(label, youngs, perVolume));
    }
    std::string fitting() const { return desktop::findFittingSystem(document).toStdString(); }
    double modulusOf(std::size_t index) const
    {
        return document.materials[index].material->findProperty(modulus)->value;
    }
};

TEST_F(ImportedUnits, AreRecognisedIfAllMaterialsFitThem)
{
    EXPECT_EQ(fitting(), "");
    add("Steel", 2.1e11, 7850.0);
    EXPECT_EQ(fitting(), "");
    document.materials.clear();
    add("Steel", 210000.0, 7.85e-9);
    add("Aluminium", 70000.0, 2.7e-9);
    EXPECT_EQ(fitting(), "mm-t-s");
}

TEST_F(ImportedUnits, AreNotRecognisedIfAConversionSpoilsAsManyMaterialsAsItMends)
{
    add("Steel", 210000.0, 7.85e-9);
    add("Aluminium", 7e10, 2700.0);
    EXPECT_EQ(fitting(), "");
    desktop::convertToCatalogue(document, {});
    EXPECT_THAT(document.doubts, ElementsAre("\"Steel\": the numbers look like mm-t-s, not SI."));
}

TEST_F(ImportedUnits, AreRecognisedAlthoughOneMaterialFitsOthers)
{
    add("Steel", 210000.0, 7.85e-9);
    add("Copper", 110000.0, 8.3e-9);
    add("Aluminium", 7e10, 2700.0);
    EXPECT_EQ(fitting(), "mm-t-s");
}

TEST_F(ImportedUnits, AreComparedWithTheChosenOnes)
{
    add("Steel", 2.1e11, 7850.0);
    add("Aluminium", 7e10, 2700.0);
    const auto millimetres = *vxUnits::UnitSystem::parse("mm-t-s");
    EXPECT_EQ(desktop::findFittingSystem(document, millimetres).toStdString(), "SI");
    desktop::convertToCatalogue(document, {millimetres});
    EXPECT_THAT(document.doubts, Contains(HasSubstr("The numbers look like SI, not mm-t-s.")));
}

/// Chooses a system in the dialog of units, and then presses a button of the question.
class UnitAnswers : public QObject
{
public:
    UnitAnswers(const QString& system, const QString& button) : m_system(system), m_button(button)
    {
        connect(&m_timer, &QTimer::timeout, this, [this] { answer(); });
        m_timer.start(0);
    }
    std::string question() const { return m_question.toStdString(); }

private:
    void answer()
    {
        QWidget* const window = QApplication::activeModalWidget();
        if (auto* const dialog = qobject_cast<desktop::ImportUnitsDialog*>(window)) {
            systemsOf(*dialog).setCurrentText(m_system);
            dialog->accept();
        } else if (const auto* const box = qobject_cast<QMessageBox*>(window)) {
            m_question = box->text() + QLatin1Char(' ') + box->informativeText();
            for (QAbstractButton* const button : box->buttons())
                if (button->text().remove(QLatin1Char('&')) == m_button)
                    button->click();
        }
    }

    QString m_system;
    QString m_button;
    QString m_question;
    QTimer m_timer;
};

TEST_F(ImportedUnits, AreAskedForIfTheNumbersLookLikeAnotherSystemThanTheChosenOne)
{
    add("Steel", 2.1e11, 7850.0);
    for (const auto& [button, system] :
         {std::pair("Import as they are", "SI"), std::pair("Convert from mm-t-s", "mm-t-s")}) {
        const UnitAnswers answers(QStringLiteral("mm-t-s"), QString::fromLatin1(button));
        const auto units = desktop::chooseImportUnits(QStringLiteral("/tmp/a.json"), document);
        ASSERT_TRUE(units);
        EXPECT_EQ(units->system.text(), system);
        EXPECT_TRUE(units->areConfirmed);
        EXPECT_THAT(answers.question(), HasSubstr("The numbers in \"a.json\" look like SI. In mm-t-s, they would be "
                                                  "unusual. Steel: "));
    }
}

TEST_F(ImportedUnits, AreNotAskedForTwiceIfTheChosenOnesFit)
{
    add("Steel", 2.1e11, 7850.0);
    const UnitAnswers answers(QStringLiteral("SI"), QString());
    const auto units = desktop::chooseImportUnits(QStringLiteral("/tmp/a.json"), document);
    ASSERT_TRUE(units);
    EXPECT_EQ(units->system, vxUnits::UnitSystem::si());
    EXPECT_EQ(answers.question(), "");
}

TEST_F(ImportedUnits, AreNotChosenIfTheUserCancelsTheQuestion)
{
    add("Steel", 2.1e11, 7850.0);
    const UnitAnswers answers(QStringLiteral("mm-t-s"), QStringLiteral("Cancel"));
    EXPECT_FALSE(desktop::chooseImportUnits(QStringLiteral("/tmp/a.json"), document));
}

TEST_F(ImportedUnits, AreConvertedWithAReport)
{
    add("Steel", 210000.0, 7.85e-9);
    const auto system = vxUnits::UnitSystem::parse("mm-t-s");
    const QString report = desktop::convertToCatalogue(document, {*system});
    EXPECT_DOUBLE_EQ(modulusOf(0), 2.1e11);
    EXPECT_EQ(report.toStdString(),
              "The numbers were converted from mm-t-s to the units of the catalogue. Materials: 1");
    EXPECT_THAT(document.doubts, IsEmpty());
}

TEST_F(ImportedUnits, AreDoubtedWithoutAUser)
{
    add("Steel", 210000.0, 7.85e-9);
    EXPECT_EQ(desktop::convertToCatalogue(document, {}), QString());
    EXPECT_EQ(modulusOf(0), 210000.0);
    EXPECT_THAT(document.doubts, Contains(HasSubstr("The numbers look like mm-t-s, not SI.")));
}

TEST_F(ImportedUnits, NameTheNumbersThatCannotBeConverted)
{
    add("Steel", 210000.0, 7.85e-9);
    auto unknown = std::make_unique<vxMat::MaterialProperty>();
    unknown->id = 999;
    unknown->name = "Colour";
    document.materials[0].material->setProperty(999, std::move(unknown));
    desktop::convertToCatalogue(document, {*vxUnits::UnitSystem::parse("mm-t-s")});
    EXPECT_THAT(document.doubts, Contains(HasSubstr("because their units are not known: \"Colour\"")));
}

TEST_F(ImportedUnits, AreChosenInADialogThatProposesSi)
{
    const desktop::ImportUnitsDialog dialog(QStringLiteral("/tmp/a&b.json"), window.get());
    ASSERT_TRUE(dialog.system());
    EXPECT_EQ(*dialog.system(), vxUnits::UnitSystem::si());
    systemsOf(dialog).setCurrentText(QStringLiteral("in-lbf-s"));
    EXPECT_EQ(dialog.system()->text(), "in-lbf-s");
    EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("baseUnits"))->cursorPosition(), 0) << "shows its start";
    const auto buttons = dialog.findChild<QDialogButtonBox*>()->buttons();
    const auto import = std::find_if(buttons.begin(), buttons.end(),
                                     [](const QAbstractButton* button) { return button->text() == "&Import"; });
    ASSERT_NE(import, buttons.end());
    typeOwn(dialog, QStringLiteral("length"));
    EXPECT_FALSE((*import)->isEnabled());
    EXPECT_FALSE(dialog.system());
}

} // namespace
