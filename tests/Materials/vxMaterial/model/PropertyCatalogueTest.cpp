#include "vxMaterial/model/PropertyCatalogue.h"

#include "DataFile.h"

#include "vxMaterial/model/NumberText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cfloat>
#include <cstdlib>
#include <memory>
#include <set>
#include <string>
#include <type_traits>
#include <typeindex>
#include <typeinfo>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using vxMat::ePropertyCategory;
using vxMat::findPropertyRecord;
using vxMat::MaterialProperty;
using vxMat::propertyRecords;
using vxMat::ValueKind;

std::unique_ptr<MaterialProperty> create(int id)
{
    return findPropertyRecord(id)->create();
}

ValueKind kindOf(const std::string& word)
{
    if (word == "word")
        return ValueKind::Word;
    if (word == "number list")
        return ValueKind::NumberList;
    return word == "model switch" ? ValueKind::ModelSwitch : ValueKind::Number;
}

/// Expects the default value of a kind of quantity, given as text, and nothing in the other fields.
void expectDefault(const MaterialProperty& property, ValueKind kind, const std::string& value)
{
    const bool isWord = kind == ValueKind::Word;
    const bool isList = kind == ValueKind::NumberList;
    EXPECT_EQ(property.text, isWord ? value : "");
    EXPECT_EQ(property.value, isWord || isList ? 0.0 : std::strtod(value.c_str(), nullptr));
    if (isList)
        EXPECT_THAT(property.values, ElementsAre(std::strtod(value.c_str(), nullptr)));
    else
        EXPECT_THAT(property.values, IsEmpty());
}

TEST(PropertyCatalogue, HoldsEveryQuantityWithItsMetadataAndDefault)
{
    const auto rows = vxtest::readTable("catalogue.tsv");
    ASSERT_EQ(rows.size(), 36U);
    for (const auto& row : rows) {
        SCOPED_TRACE(row[0]);
        const int id = std::atoi(row[1].c_str());
        const vxMat::PropertyRecord* const record = findPropertyRecord(id);
        ASSERT_NE(record, nullptr);
        const auto property = record->create();
        EXPECT_EQ(property->id, id);
        EXPECT_EQ(property->name, row[2]);
        EXPECT_EQ(property->key, row[3]);
        EXPECT_EQ(property->unit, row[4]);
        EXPECT_EQ(property->description, row[5]);
        EXPECT_EQ(static_cast<int>(property->category), std::atoi(row[6].c_str()));
        EXPECT_EQ(record->kind, kindOf(row[7]));
        expectDefault(*property, kindOf(row[7]), row[8]);
    }
}

TEST(PropertyCatalogue, IsBuiltPhysicsByPhysics)
{
    std::vector<int> order;
    for (const auto& record : propertyRecords())
        order.push_back(record.id);
    EXPECT_THAT(order, ElementsAre(4, 401, 202, 203, 21, 31, 5, 6, 28, 29, 30, 23, 27, 26, 128, 127, 25, 32, 33, 37, 34,
                                   35, 36, 41, 38, 39, 42, 44, 43, 45, 46, 47, 48, 301, 302, 303));
}

TEST(PropertyCatalogue, HasNoQuantityInItsGaps)
{
    for (const int id : {0, 40, 201, 24, 400, -4})
        EXPECT_EQ(findPropertyRecord(id), nullptr) << id;
    for (const int id : {402, 2147483647, -2147483647 - 1})
        EXPECT_EQ(findPropertyRecord(id), nullptr) << id;
}

TEST(PropertyCatalogue, FindsEveryQuantityByItsId)
{
    for (std::size_t position = 0; position < vxMat::catalogueSize; ++position) {
        const vxMat::PropertyRecord& record = propertyRecords()[position];
        EXPECT_EQ(findPropertyRecord(record.id), &record) << record.name;
        EXPECT_EQ(vxMat::getCataloguePosition(record.id), position) << record.name;
    }
    EXPECT_EQ(vxMat::getCataloguePosition(40), 36U);
}

TEST(PropertyCatalogue, ReadsTypedTextByTheKindExceptForTwoSwitches)
{
    for (const auto& record : propertyRecords()) {
        const bool readAsNumber = record.id == 42 || record.id == 45;
        EXPECT_EQ(vxMat::getValueKind(record.id), readAsNumber ? ValueKind::Number : record.kind) << record.id;
    }
}

TEST(PropertyCatalogue, UsesNoThermalAndNoAcousticCategory)
{
    for (const auto& record : propertyRecords()) {
        EXPECT_NE(record.category, ePropertyCategory::Thermal) << record.name;
        EXPECT_NE(record.category, ePropertyCategory::Acoustic) << record.name;
        EXPECT_NE(record.category, ePropertyCategory::Undefined) << record.name;
    }
}

TEST(PropertyCatalogue, GivesElasticityTheLargestDoubleAndOthersTheirDefaults)
{
    EXPECT_EQ(create(31)->value, DBL_MAX);
    EXPECT_EQ(create(6)->value, 0.3);
    EXPECT_EQ(create(301)->value, 0.0);
}

TEST(PropertyCatalogue, GivesListsOneElementAndNoNumber)
{
    for (const int id : {38, 39}) {
        EXPECT_THAT(create(id)->values, ElementsAre(1.0));
        EXPECT_EQ(create(id)->value, 0.0);
    }
}

TEST(PropertyCatalogue, GivesTheYieldTypeAWordAndNoNumber)
{
    EXPECT_EQ(create(33)->text, "Mises");
    EXPECT_EQ(create(33)->value, 0.0);
}

TEST(PropertyCatalogue, MakesAnObjectOfTheClassOfTheQuantity)
{
    const auto isA = [](int id, const std::type_info& type) {
        const auto property = create(id);
        const MaterialProperty& object = *property;
        return typeid(object) == type;
    };
    EXPECT_TRUE(isA(4, typeid(vxMat::Density)));
    EXPECT_TRUE(isA(401, typeid(vxMat::SpeedOfSound)));
    EXPECT_TRUE(isA(31, typeid(vxMat::IsotropicElasticity)));
    EXPECT_TRUE(isA(33, typeid(vxMat::PlasticYieldType)));
    EXPECT_TRUE(isA(39, typeid(vxMat::PlasticStrain)));
    EXPECT_TRUE(isA(302, typeid(vxMat::RelativePermittivity)));
    std::set<std::type_index> classes;
    for (const auto& record : propertyRecords()) {
        const auto property = record.create();
        const MaterialProperty& object = *property;
        classes.insert(typeid(object));
    }
    EXPECT_EQ(classes.size(), 36U);
}

TEST(RelativePermittivity, HasADashForUnitNoDescriptionAndTheElectricCategory)
{
    const vxMat::RelativePermittivity property;
    EXPECT_EQ(property.unit, "-");
    EXPECT_EQ(property.description, "");
    EXPECT_EQ(property.category, ePropertyCategory::Electric);
    EXPECT_EQ(property.value, 1.0);
    EXPECT_EQ(vxMat::RelativePermittivity(5.0).value, 5.0);
    EXPECT_EQ(vxMat::RelativePermittivity(5.0).name, "Relative permittivity");
}

TEST(RelativePermittivity, KeepsItsMetadataWhenInitialisedAgain)
{
    vxMat::RelativePermittivity property;
    property.name = "mine";
    property.initProperty();
    EXPECT_EQ(property.name, "mine");
}

TEST(QuantityClass, RestoresItsMetadataButNotItsValueWhenInitialisedAgain)
{
    vxMat::Density density(7850.0);
    density.name = "mine";
    density.id = 99;
    density.initProperty();
    EXPECT_EQ(density.name, "Density");
    EXPECT_EQ(density.id, 4);
    EXPECT_EQ(density.value, 7850.0);
}

TEST(QuantityClass, SetsADescriptionOnlyIfItHasOne)
{
    vxMat::Density density;
    density.description = "mine";
    density.initProperty();
    EXPECT_EQ(density.description, "Mass density");
    for (const auto& record : propertyRecords()) {
        const auto property = record.create();
        property->description = "mine";
        property->initProperty();
        // Relative permittivity has no description either, and initProperty does nothing for it.
        EXPECT_EQ(property->description, *record.description != '\0' ? record.description : "mine") << record.name;
    }
}

// Two switches take no value: their presence alone has a meaning.
static_assert(!std::is_constructible_v<vxMat::IsotropicElasticity, double>);
static_assert(!std::is_constructible_v<vxMat::Plasticity, double>);

TEST(QuantityClass, TakesAGivenValueOfItsKind)
{
    EXPECT_EQ(vxMat::YoungsModulus(2e11).value, 2e11);
    EXPECT_EQ(vxMat::Creep(0.0).value, 0.0);
    EXPECT_EQ(vxMat::PlasticYieldType("Tresca").text, "Tresca");
    EXPECT_THAT(vxMat::PlasticStrain({0.0, 0.1}).values, ElementsAre(0.0, 0.1));
}

TEST(AllowedWords, ComeInTheOrderOfTheDescription)
{
    EXPECT_THAT(vxMat::PlasticYieldType().getOptions(), ElementsAre("Mises", "Mohr-Coulomb", "Drucker-Prager"));
    EXPECT_THAT(vxMat::PlasticHardeningType().getOptions(),
                ElementsAre("Bilinear", "Multilinear", "Swift", "Ramberg-Osgood", "Kinematic", "Combined"));
    EXPECT_THAT(vxMat::getAllowedWords(4), IsEmpty());
}

} // namespace
