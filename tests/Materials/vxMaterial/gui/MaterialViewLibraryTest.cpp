#include "DataFile.h"
#include "EditorTesting.h"
#include "MessageBoxes.h"

#include "vxMaterial/model/MatDBManager.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using vxtest::Editor;
using vxtest::Held;

/// A library material in the table of expected values.
struct Expected
{
    std::string name;
    std::string group;
    std::vector<std::vector<std::string>> properties; ///< slot, class, value
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

/// Returns the data of a property made from a row with this value: words, lists and numbers unchanged, and 1 for the
/// five switches, whose value has no meaning.
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

TEST(MaterialViewLibrary, PickedAndAppliedGivesWhatItsRowsSay)
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
            // The acoustic materials show their speed of sound as a second density; of the two rows the last one
            // counts.
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
        for (const auto& [slot, property] : editor.material().properties) {
            EXPECT_EQ(property->id, slot);
            EXPECT_EQ(property->unit, "");
            EXPECT_EQ(property->category, vxMat::ePropertyCategory::Undefined);
        }
    }
}

TEST(MaterialViewLibrary, OfAcousticsShowsTwoDensitiesWithTheValuesOfTheTable)
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

TEST(MaterialViewLibrary, OpenedAndAppliedChangesNothing)
{
    for (const auto& [type, expected] : library()) {
        SCOPED_TRACE(expected.name);
        if (expected.group == "7")
            continue; // it loses its second density
        Editor editor([t = type](vxtest::MaterialProject& project) {
            project.object().setCMaterial(project.database().materials.at(t).get());
        });
        auto before = vxtest::contents(editor.material());
        if (before.count(31) != 0)
            before[31].value = 1.0; // the value of a switch has no meaning
        editor.click("btnApply");
        EXPECT_EQ(vxtest::contents(editor.material()), before);
    }
}

QStringList itemTexts(const QListWidget& list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts << list.item(row)->text();
    return texts;
}

TEST(MaterialViewLibrary, ListsEachMaterialOnThePageOfItsGroupInTheOrderOfTheLibrary)
{
    const std::map<const char*, QStringList> pages{
        {"lw_lib_general",
         {"Structural Steel", "Aluminum Alloy", "Stainless Steel", "Concrete", "Copper Alloy", "Cast Iron",
          "Titanium Alloy"}},
        {"lw_lib_nonlinear",
         {"Nonlinear Structural Steel", "Nonlinear Stainless Steel", "Nonlinear Aluminum Alloy",
          "Nonlinear Copper Alloy", "Nonlinear Titanium Alloy", "Plastic Example 1", "Plastic Example 2",
          "Viscoelastic Example", "Creep Example"}},
        {"lw_lib_hyper",
         {"Elastomer 1 (Neo-Hookean)", "Elastomer 2 (Mooney-Rivlin)", "Elastomer 3 (Arruda-Boyce)", "Neoprene Rubber"}},
        {"lw_lib_thermal", {"Air", "Water"}},
        {"lw_lib_em", {"Electromangetic Material 1", "Electromangetic Material 2"}},
        {"lw_lib_acoustic", {"Acoustic Material 1", "Acoustic Material 2"}},
    };
    Editor editor;
    for (const auto& [page, names] : pages)
        EXPECT_EQ(itemTexts(editor.list(page)), names) << page;
}

TEST(MaterialViewLibrary, ListsEachQuantityOnThePageOfItsCategoryWithACheckBoxInTheOrderOfTheCatalogue)
{
    const std::map<const char*, QStringList> pages{
        {"lw_build_basic", {"Density", "Speed of sound", "Specific heat", "Thermal conductivity", "Dynamic viscosity"}},
        {"lw_build_linear", {"Isotropic elasticity", "Young's modulus", "Poisson's ratio"}},
        {"lw_build_hyper",
         {"Neo-Hookean", "Mooney-Rivlin", "Arruda-Boyce", "Initial Shear Modulus Mu", "Material Constant C01",
          "Material Constant C10", "Material Constant C11", "Limiting Network Stretch",
          "Incompressibility Parameter D1"}},
        {"lw_build_plastic",
         {"Plasticity", "Yield type", "Hardening type", "Plastic viscosity", "Internal frictional angle",
          "Hardening factor", "Initial yield stress", "Yield stress", "Plastic strain"}},
        {"lw_build_creep", {"Creep", "Creep Modulus A", "Creep Modulus N", "Creep Modulus M"}},
        {"lw_build_viscoelastic", {"Visco-elasticity", "Relaxation time", "Shear relaxation modulus"}},
        {"lw_build_em", {"Electrical conductivity", "Relative permittivity", "Relative permeability"}},
    };
    Editor editor;
    int items = 0;
    for (const auto& [page, names] : pages) {
        const QListWidget& list = editor.list(page);
        EXPECT_EQ(itemTexts(list), names) << page;
        for (int row = 0; row < list.count(); ++row)
            EXPECT_TRUE(list.item(row)->flags() & Qt::ItemIsUserCheckable);
        items += list.count();
    }
    EXPECT_EQ(items, 36);
}

} // namespace
