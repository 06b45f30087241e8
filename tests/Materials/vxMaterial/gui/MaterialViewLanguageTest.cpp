// The material editor with the translations of the program.

#include "EditorTesting.h"
#include "MessageBoxes.h"

#include "Gui/Translator.h"
#include "vxMaterial/gui/FindingText.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <QAbstractButton>
#include <QTabWidget>
#include <QToolBox>
#include <QtTest/QtTestGui>
#include <gmock/gmock.h>

namespace {

using testing::IsEmpty;
using vxtest::Editor;

/// The language of the program as long as the object exists; English afterwards.
class Language
{
public:
    explicit Language(const char* name) { set(name); }
    ~Language() { set("en"); }
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;
    static void set(const char* name)
    {
        Gui::Translator::instance()->setLanguage(name);
        QCoreApplication::sendPostedEvents();
    }
};

/// Checks every quantity of the catalogue.
void checkEverything(Editor& editor)
{
    editor.click("btnClear");
    for (const QListWidget* const list : editor.view()->findChildren<QListWidget*>())
        for (int row = 0; row < list->count(); ++row)
            if (list->item(row)->flags() & Qt::ItemIsUserCheckable && list->objectName().startsWith("lw_build"))
                list->item(row)->setCheckState(Qt::Checked);
    ASSERT_EQ(editor.rowCount(), 36);
}

TEST(MaterialViewLanguage, WritesKeysAndUnitsOfTheCatalogueInEveryLanguage)
{
    for (const char* const name : {"en", "de", "zh_CN"}) {
        SCOPED_TRACE(name);
        const Language language(name);
        Editor editor;
        checkEverything(editor);
        for (const vxMat::PropertyRecord& record : vxMat::propertyRecords()) {
            const int row = editor.rowOf(record.id);
            EXPECT_EQ(editor.cell(row, 4), record.key);
            EXPECT_EQ(editor.cell(row, 5), record.unit);
        }
        // The hyperelastic models exclude elasticity.
        for (const int model : {28, 29, 30})
            editor.table().togglePropertyRow(false, editor.project().database().propertyCatalogue.at(model).get());
        const vxtest::MessageBoxes boxes;
        editor.click("btnApply");
        ASSERT_THAT(boxes.shown(), IsEmpty());
        EXPECT_EQ(editor.material().properties.size(), 33U);
        for (const auto& [slot, property] : editor.material().properties)
            EXPECT_EQ(property->key, vxMat::findPropertyRecord(slot)->key);
    }
}

TEST(MaterialViewLanguage, TranslatesEveryNameAndDescription)
{
    for (const char* const name : {"de", "zh_CN"}) {
        SCOPED_TRACE(name);
        const Language language(name);
        Editor editor;
        checkEverything(editor);
        for (const vxMat::PropertyRecord& record : vxMat::propertyRecords()) {
            const int row = editor.rowOf(record.id);
            const bool isProperName = record.id >= 28 && record.id <= 30; // Mooney-Rivlin
            EXPECT_TRUE(isProperName || editor.cell(row, 1) != record.name) << record.name;
            EXPECT_TRUE(*record.description == '\0' || editor.cell(row, 3) != record.description) << record.description;
        }
    }
}

TEST(MaterialViewLanguage, NamesImportAndApplyDifferently)
{
    for (const char* const name : {"de", "zh_CN"}) {
        const Language language(name);
        Editor editor;
        const QString import = editor.child<QPushButton>("btnAddMat").text();
        EXPECT_NE(import, editor.child<QPushButton>("btnApply").text()) << name;
        EXPECT_NE(import, QString::fromUtf8("Übernehmen"));
    }
}

TEST(MaterialViewLanguage, ReachesAllOfAnOpenEditorWhenItChanges)
{
    Editor editor;
    editor.typeValue(4, "0210");
    editor.doubleClick(editor.item("Plastic Example 1"));
    editor.typeValue(33, "MISES");
    const int englishWidth = editor.table().columnWidth(1);
    const std::vector<int> rows = editor.rowIds();
    {
        const Language language("de");
        EXPECT_EQ(editor.cell(editor.rowOf(4), 1), "Dichte");
        EXPECT_EQ(editor.cell(editor.rowOf(4), 3), "Massendichte");
        EXPECT_EQ(editor.cell(editor.rowOf(33), 2), "MISES");
        EXPECT_EQ(editor.cell(editor.rowOf(32), 4), "Plasticity");
        EXPECT_EQ(editor.table().model()->headerData(2, Qt::Horizontal).toString(), "Wert");
        EXPECT_EQ(editor.child<QTabWidget>("tabWidget").tabText(1), "Aufbau");
        const auto& box = editor.child<QToolBox>("toolBoxLibrary");
        EXPECT_EQ(box.itemText(1), "Nichtlinear");
        QStringList headers;
        for (const auto* const header : box.findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly))
            headers << header->accessibleName();
        EXPECT_EQ(headers, QStringList({"Allgemein", "Nichtlinear", "Hyperelastisch",
                                        QString::fromUtf8("Wärme & Fluide"), "Elektromagnetisch", "Akustisch"}));
        EXPECT_NE(editor.item("Beton"), nullptr);
        EXPECT_NE(editor.item("Dichte"), nullptr);
        EXPECT_NE(editor.table().columnWidth(1), englishWidth);
        EXPECT_EQ(editor.child<QPushButton>("btnOk").accessibleDescription(),
                  QString::fromUtf8("Schreibt die Tabelle in das Material und schließt das Fenster"));
    }
    EXPECT_EQ(editor.cell(editor.rowOf(4), 1), "Density");
    EXPECT_EQ(editor.table().columnWidth(1), englishWidth);
    EXPECT_EQ(editor.rowIds(), rows);
}

TEST(MaterialViewLanguage, IsNoEditWhenItChanges)
{
    Editor editor;
    const Language language("de");
    EXPECT_FALSE(editor.view()->isWindowModified());
    EXPECT_TRUE(editor.view()->unappliedEdits().isNull());
}

TEST(MaterialViewLanguage, IsFollowedByAMaterialThatWasAppliedInAnotherOne)
{
    Editor editor;
    {
        const Language language("de");
        editor.click("btnApply");
        EXPECT_EQ(editor.material().properties.at(4)->name, "Dichte");
    }
    EXPECT_EQ(editor.cell(editor.rowOf(4), 1), "Density");
}

TEST(MaterialViewLanguage, IsThatOfTheNamesInFindings)
{
    const vxMat::MaterialFinding finding{
        4,
        vxMat::FindingSeverity::Error,
        "\"%1\" is %2; it must be greater than 0.",
        {{vxMat::FindingArgument::Kind::QuantityName, "Density"}, {vxMat::FindingArgument::Kind::Text, "Density %1"}}};
    EXPECT_EQ(MatGui::findingText(finding), "\"Density\" is Density %1; it must be greater than 0.");
    const vxtest::TestTranslator translator(
        vxtest::Translations{{"vxMat::PropertyName||Density", "Dichte"},
                             {"vxMat::MaterialFinding||\"%1\" is %2; it must be greater than 0.", "%2 als %1"}});
    EXPECT_EQ(MatGui::findingText(finding), "Density %1 als Dichte");
}

} // namespace
