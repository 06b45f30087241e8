#include "DataFile.h"
#include "EditorTesting.h"
#include "MessageBoxes.h"

#include "vxMaterial/model/MatDBManager.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using vxtest::Editor;
using vxtest::Held;

/// A library material as the table of expected values has it.
struct Expected
{
    std::string name;
    std::string group;
    std::vector<std::vector<std::string>> properties; ///< key, class, value
};

std::map<int, Expected> library()
{
    std::map<int, Expected> materials;
    for (const auto& row : vxtest::readTable("library.tsv")) {
        Expected& material = materials[std::stoi(row[1])];
        material.name = row[2];
        material.group = row[3];
        material.properties.push_back({row[4], row[5], row[6]});
    }
    return materials;
}

std::map<std::string, std::vector<std::string>> catalogue()
{
    std::map<std::string, std::vector<std::string>> classes;
    for (const auto& row : vxtest::readTable("catalogue.tsv"))
        classes[row[0]] = row;
    return classes;
}

std::vector<double> numbers(const std::string& list)
{
    std::vector<double> all;
    for (const QString& text : QString::fromStdString(list).split(','))
        all.push_back(text.trimmed().toDouble());
    return all;
}

/// What reading a row with this value makes of it: words and lists as they are, the five switches that say no more than
/// that they are there 1, and numbers as they are.
Held read(int id, const std::string& value)
{
    switch (id) {
    case 28:
    case 29:
    case 30:
    case 31:
    case 32:
        return {1.0, "", {}};
    case 33:
    case 37:
        return {0.0, value, {}};
    case 38:
    case 39:
        return {0.0, "", numbers(value)};
    default:
        return {QString::fromStdString(value).toDouble(), "", {}};
    }
}

TEST(MaterialViewLibrary, PickedAndAppliedIsWhatReadingItsRowsMakes)
{
    const auto classes = catalogue();
    const auto materials = library();
    ASSERT_EQ(materials.size(), 26U);
    Editor editor;
    vxtest::MessageBoxes boxes;
    for (const auto& [type, expected] : materials) {
        SCOPED_TRACE(expected.name);
        editor.doubleClick(editor.item(QString::fromStdString(expected.name)));

        std::map<int, Held> held;
        for (const auto& property : expected.properties) {
            const int id = std::stoi(classes.at(property[1])[1]);
            // The acoustic materials show their speed of sound as a second density; the row that comes last stays.
            const bool twice = expected.group == "7";
            const std::string value = twice ? editor.cell(editor.rowCount() - 1, 2).toStdString() : property[2];
            held[id] = read(id, value);
        }
        EXPECT_EQ(editor.rowCount(), static_cast<int>(expected.properties.size()));

        QString message;
        EXPECT_TRUE(editor.table().validateRows(message)) << message.toStdString();
        editor.click("btnApply");
        EXPECT_TRUE(boxes.shown().empty());
        EXPECT_EQ(vxtest::contents(editor.material()), held);
        for (const auto& [key, property] : editor.material().properties) {
            EXPECT_EQ(property->id, key);
            EXPECT_EQ(property->unit, "");
            EXPECT_EQ(property->category, vxMat::ePropertyCategory::Undefined);
        }
    }
}

TEST(MaterialViewLibrary, OfAcousticsShowsTwoDensitiesOfWhichTheValuesAreThoseOfTheTable)
{
    Editor editor;
    editor.doubleClick(editor.item("Acoustic Material 2"));
    ASSERT_EQ(editor.rowCount(), 2);
    EXPECT_EQ(editor.cell(0, 1), "Density");
    EXPECT_EQ(editor.cell(1, 1), "Density");
    const std::set<QString> values{editor.cell(0, 2), editor.cell(1, 2)};
    EXPECT_EQ(values, (std::set<QString>{"1", "400"}));
    EXPECT_EQ(editor.item("Speed of sound")->checkState(), Qt::Checked);
    EXPECT_EQ(editor.item("Density")->checkState(), Qt::Checked);
}

TEST(MaterialViewLibrary, AppliedAgainAfterOpeningAnewChangesNothing)
{
    for (const auto& [type, expected] : library()) {
        SCOPED_TRACE(expected.name);
        if (expected.group == "7")
            continue; // loses its second density
        Editor editor([t = type](vxtest::MaterialProject& project) {
            project.object().setCMaterial(project.database().materials.at(t).get());
        });
        auto before = vxtest::contents(editor.material());
        if (before.count(31) != 0)
            before[31].value = 1.0; // a switch says no more than that it is there
        editor.click("btnApply");
        EXPECT_EQ(vxtest::contents(editor.material()), before);
    }
}

TEST(MaterialViewLibrary, ListsEachMaterialOnThePageOfItsGroupInTheOrderOfTheDatabase)
{
    const std::map<std::string, const char*> pages{{"1", "lw_lib_general"}, {"2", "lw_lib_nonlinear"},
                                                   {"3", "lw_lib_hyper"},   {"4", "lw_lib_thermal"},
                                                   {"6", "lw_lib_em"},      {"7", "lw_lib_acoustic"}};
    Editor editor;
    std::map<std::string, QStringList> expected;
    const auto materials = library();
    for (const auto& [type, material] : editor.project().database().materials)
        expected[materials.at(type).group] << QString::fromStdString(materials.at(type).name);
    for (const auto& [group, page] : pages) {
        QStringList shown;
        for (int row = 0; row < editor.list(page).count(); ++row)
            shown << editor.list(page).item(row)->text();
        EXPECT_EQ(shown, expected[group]) << page;
    }
}

TEST(MaterialViewLibrary, ListsEachQuantityOnThePageOfItsCategoryWithACheckBox)
{
    const std::map<std::string, const char*> pages{
        {"0", "lw_build_basic"}, {"1", "lw_build_linear"},       {"2", "lw_build_hyper"}, {"3", "lw_build_plastic"},
        {"4", "lw_build_creep"}, {"5", "lw_build_viscoelastic"}, {"7", "lw_build_em"}};
    Editor editor;
    std::map<std::string, QStringList> expected;
    for (const auto& [id, property] : editor.project().database().propertyCatalogue)
        for (const auto& row : vxtest::readTable("catalogue.tsv"))
            if (row[1] == std::to_string(id))
                expected[row[6]] << QString::fromStdString(row[2]);
    int items = 0;
    for (const auto& [category, page] : pages) {
        QStringList shown;
        for (int row = 0; row < editor.list(page).count(); ++row) {
            shown << editor.list(page).item(row)->text();
            EXPECT_TRUE(editor.list(page).item(row)->flags() & Qt::ItemIsUserCheckable);
        }
        EXPECT_EQ(shown, expected[category]) << page;
        items += static_cast<int>(shown.size());
    }
    EXPECT_EQ(items, 36);
}

} // namespace
