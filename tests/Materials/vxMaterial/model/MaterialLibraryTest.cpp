#include "vxMaterial/model/MaterialLibrary.h"

#include "DataFile.h"

#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <set>
#include <string>
#include <typeindex>
#include <typeinfo>
#include <vector>

namespace {

using testing::ElementsAre;
using vxMat::createLibraryMaterial;
using vxMat::eMaterialType;
using vxMat::MaterialBase;
using vxMat::MaterialProperty;

/// Expects the value that the table of materials contains for a property.
void expectValue(const MaterialProperty& property, const std::string& value)
{
    switch (vxMat::getValueKind(property.id)) {
    case vxMat::ValueKind::Word:
        EXPECT_EQ(property.text, value);
        break;
    case vxMat::ValueKind::NumberList:
        EXPECT_EQ(vxMat::formatNumberList(property.values), value);
        break;
    default:
        EXPECT_EQ(property.value, std::strtod(value.c_str(), nullptr));
        break;
    }
}

TEST(MaterialLibrary, HoldsExactlyTheValuesOfItsTable)
{
    std::map<int, std::size_t> counts;
    for (const auto& row : vxtest::readTable("library.tsv")) {
        SCOPED_TRACE(row[0] + " " + row[5]);
        const int type = std::atoi(row[1].c_str());
        const auto material = createLibraryMaterial(static_cast<eMaterialType>(type));
        ASSERT_NE(material, nullptr);
        EXPECT_EQ(material->name, row[2]);
        EXPECT_EQ(material->libraryGroup, std::atoi(row[3].c_str()));
        EXPECT_EQ(material->id, 0);
        const MaterialProperty* const property = material->findProperty(std::atoi(row[4].c_str()));
        ASSERT_NE(property, nullptr);
        expectValue(*property, row[6]);
        ++counts[type];
    }
    ASSERT_EQ(counts.size(), 26U);
    for (const auto& [type, count] : counts) {
        const auto material = createLibraryMaterial(static_cast<eMaterialType>(type));
        ASSERT_NE(material, nullptr) << type;
        EXPECT_EQ(material->properties.size(), count) << type;
    }
}

TEST(MaterialLibrary, GivesEveryPropertyTheMetadataOfItsQuantity)
{
    for (const auto& row : vxtest::readTable("library.tsv")) {
        const auto material = createLibraryMaterial(static_cast<eMaterialType>(std::atoi(row[1].c_str())));
        ASSERT_NE(material, nullptr) << row[0];
        ASSERT_TRUE(material->hasProperty(std::atoi(row[4].c_str()))) << row[0] << " " << row[5];
        const MaterialProperty& property = *material->findProperty(std::atoi(row[4].c_str()));
        const auto quantity = vxMat::findPropertyRecord(property.id)->create();
        const MaterialProperty& fresh = *quantity;
        EXPECT_EQ(typeid(property), typeid(fresh)) << row[0] << " " << row[5];
        EXPECT_EQ(property.name, fresh.name);
        EXPECT_EQ(property.key, fresh.key);
        EXPECT_EQ(property.unit, fresh.unit);
        EXPECT_EQ(property.description, fresh.description);
        EXPECT_EQ(property.category, fresh.category);
    }
}

TEST(MaterialLibrary, CountsThePropertiesOfItsMaterials)
{
    EXPECT_EQ(vxMat::StructuralSteel().properties.size(), 9U);
    EXPECT_EQ(vxMat::Concrete().properties.size(), 6U);
    EXPECT_EQ(vxMat::CastIron().properties.size(), 6U);
    EXPECT_EQ(vxMat::Air().properties.size(), 6U);
    EXPECT_EQ(vxMat::Water().properties.size(), 6U);
    EXPECT_EQ(vxMat::EMMaterial1().properties.size(), 3U);
    EXPECT_EQ(vxMat::EMMaterial2().properties.size(), 3U);
    EXPECT_EQ(vxMat::AcousticMaterial1().properties.size(), 2U);
    EXPECT_EQ(vxMat::AcousticMaterial2().properties.size(), 2U);
}

TEST(MaterialLibrary, GivesThePlasticExampleSevenPointsOfItsCurve)
{
    const vxMat::PlasticMaterial1 material;
    EXPECT_THAT(material.getPropertyValues(38), ElementsAre(450.0, 608.0, 679.0, 732.0, 752.0, 766.0, 780.0));
    EXPECT_THAT(material.getPropertyValues(39), ElementsAre(0.0, 0.05, 0.1, 0.2, 0.3, 0.4, 0.5));
}

TEST(MaterialLibrary, KeepsTheCapitalsOfTheSecondPlasticExampleAndItsMissingHardening)
{
    const vxMat::PlasticMaterial2 material;
    EXPECT_EQ(material.getPropertyText(33), "DRUCKER-PRAGER");
    EXPECT_FALSE(material.hasProperty(37));
}

TEST(MaterialLibrary, KeepsTheSpeedOfSoundOfAcousticMaterialsAsASecondDensity)
{
    const vxMat::AcousticMaterial2 material;
    ASSERT_TRUE(material.hasProperty(401));
    const MaterialProperty& sound = *material.findProperty(401);
    EXPECT_EQ(sound.id, 4);
    EXPECT_EQ(sound.value, 400.0);
    EXPECT_EQ(sound.name, "Density");
    EXPECT_EQ(sound.key, "rho");
    EXPECT_EQ(sound.unit, "kg/m3");
    EXPECT_EQ(sound.description, "Mass density");
    EXPECT_NE(&sound, material.findProperty(4));
}

TEST(MaterialLibrary, UsesNeitherGroupFiveNorAnIdOtherThanZero)
{
    for (const auto& entry : vxMat::libraryEntries()) {
        const auto material = entry.create();
        EXPECT_EQ(material->id, 0) << material->name;
        EXPECT_NE(material->libraryGroup, 5) << material->name;
        EXPECT_STRNE(vxMat::getLibraryGroupName(material->libraryGroup), "") << material->name;
    }
}

TEST(MaterialLibrary, NamesItsGroups)
{
    EXPECT_STREQ(vxMat::getLibraryGroupName(0), "General Materials");
    EXPECT_STREQ(vxMat::getLibraryGroupName(1), "General Materials");
    EXPECT_STREQ(vxMat::getLibraryGroupName(2), "Nonlinear Materials");
    EXPECT_STREQ(vxMat::getLibraryGroupName(3), "Hyperelastic Materials");
    EXPECT_STREQ(vxMat::getLibraryGroupName(4), "Thermal & Fluid Materials");
    EXPECT_STREQ(vxMat::getLibraryGroupName(6), "Electromagnetic Materials");
    EXPECT_STREQ(vxMat::getLibraryGroupName(7), "Acoustic Materials");
    for (const int group : {5, 8, -1})
        EXPECT_STREQ(vxMat::getLibraryGroupName(group), "");
}

TEST(MaterialLibrary, IsBuiltInAFixedOrder)
{
    std::vector<int> order;
    for (const auto& entry : vxMat::libraryEntries())
        order.push_back(static_cast<int>(entry.type));
    EXPECT_THAT(order, ElementsAre(0, 26, 4, 11, 46, 10, 27, 40, 39, 36, 38, 41, 32, 33, 34, 35, 42, 43, 44, 45, 47, 48,
                                   49, 50, 2, 53));
}

TEST(MaterialLibrary, IsListedGroupByGroupInTheOrderOfItsTables)
{
    const std::vector<eMaterialType> order{
        eMaterialType::StructuralSteel,
        eMaterialType::AluminumAlloy,
        eMaterialType::StainlessSteel,
        eMaterialType::Concrete,
        eMaterialType::CopperAlloy,
        eMaterialType::CastIron,
        eMaterialType::TitaniumBeta21S,
        eMaterialType::StructuralSteelNL,
        eMaterialType::StainlessSteelNL,
        eMaterialType::AluminumAlloyNL,
        eMaterialType::CopperAlloyNL,
        eMaterialType::TitaniumAlloyNL,
        eMaterialType::PlasticMaterial1,
        eMaterialType::PlasticMaterial2,
        eMaterialType::ViscoElasticMaterial1,
        eMaterialType::CreepMaterial1,
        eMaterialType::Elastomer1,
        eMaterialType::Elastomer2,
        eMaterialType::Elastomer3,
        eMaterialType::NeopreneRubber,
        eMaterialType::Air,
        eMaterialType::Water,
        eMaterialType::EMMaterial1,
        eMaterialType::EMMaterial2,
        eMaterialType::AcousticMaterial1,
        eMaterialType::AcousticMaterial2,
    };
    for (std::size_t position = 0; position < order.size(); ++position)
        EXPECT_EQ(vxMat::getLibraryPosition(order[position]), position);
    for (const int type : {1, 37, 54, -1})
        EXPECT_EQ(vxMat::getLibraryPosition(static_cast<eMaterialType>(type)), 26U) << type;
}

TEST(MaterialLibrary, MakesNothingForANumberThatSelectsNoMaterial)
{
    for (const int type : {1, 3, 9, 12, 25, 28, 31, 37, 51, 52, 54, -1})
        EXPECT_EQ(createLibraryMaterial(static_cast<eMaterialType>(type)), nullptr) << type;
}

TEST(MaterialLibrary, HasAClassForEachMaterial)
{
    EXPECT_EQ(vxMat::StructuralSteel().name, "Structural Steel");
    EXPECT_EQ(vxMat::AluminumAlloy().name, "Aluminum Alloy");
    EXPECT_EQ(vxMat::StainlessSteel().name, "Stainless Steel");
    EXPECT_EQ(vxMat::Concrete().name, "Concrete");
    EXPECT_EQ(vxMat::CopperAlloy().name, "Copper Alloy");
    EXPECT_EQ(vxMat::CastIron().name, "Cast Iron");
    EXPECT_EQ(vxMat::TitaniumBeta21S().name, "Titanium Alloy");
    EXPECT_EQ(vxMat::StructuralSteelNL().name, "Nonlinear Structural Steel");
    EXPECT_EQ(vxMat::StainlessSteelNL().name, "Nonlinear Stainless Steel");
    EXPECT_EQ(vxMat::AluminumAlloyNL().name, "Nonlinear Aluminum Alloy");
    EXPECT_EQ(vxMat::CopperAlloyNL().name, "Nonlinear Copper Alloy");
    EXPECT_EQ(vxMat::TitaniumAlloyNL().name, "Nonlinear Titanium Alloy");
    EXPECT_EQ(vxMat::PlasticMaterial1().name, "Plastic Example 1");
    EXPECT_EQ(vxMat::PlasticMaterial2().name, "Plastic Example 2");
    EXPECT_EQ(vxMat::ViscoElasticMaterial1().name, "Viscoelastic Example");
    EXPECT_EQ(vxMat::CreepMaterial1().name, "Creep Example");
    EXPECT_EQ(vxMat::Elastomer1().name, "Elastomer 1 (Neo-Hookean)");
    EXPECT_EQ(vxMat::Elastomer2().name, "Elastomer 2 (Mooney-Rivlin)");
    EXPECT_EQ(vxMat::Elastomer3().name, "Elastomer 3 (Arruda-Boyce)");
    EXPECT_EQ(vxMat::NeopreneRubber().name, "Neoprene Rubber");
    EXPECT_EQ(vxMat::Air().name, "Air");
    EXPECT_EQ(vxMat::Water().name, "Water");
    EXPECT_EQ(vxMat::EMMaterial1().name, "Electromangetic Material 1");
    EXPECT_EQ(vxMat::EMMaterial2().name, "Electromangetic Material 2");
    EXPECT_EQ(vxMat::AcousticMaterial1().name, "Acoustic Material 1");
    EXPECT_EQ(vxMat::AcousticMaterial2().name, "Acoustic Material 2");
}

TEST(MaterialLibrary, MakesEachMaterialOfItsClass)
{
    std::set<std::type_index> classes;
    for (const auto& entry : vxMat::libraryEntries()) {
        const auto material = entry.create();
        const MaterialBase& object = *material;
        classes.insert(typeid(object));
    }
    EXPECT_EQ(classes.size(), 26U);
    const auto air = createLibraryMaterial(eMaterialType::Air);
    const MaterialBase& object = *air;
    EXPECT_EQ(typeid(object), typeid(vxMat::Air));
}

} // namespace
