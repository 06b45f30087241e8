#include "vxMaterial/model/Material.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <typeinfo>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using vxMat::CMaterial;
using vxMat::MaterialBase;
using vxMat::MaterialProperty;

/// A property that counts the existing objects of its class.
class CountedProperty : public MaterialProperty
{
public:
    explicit CountedProperty(int& alive) : MaterialProperty(4, "Density", "rho", 1.0), m_alive(alive) { ++m_alive; }
    CountedProperty(const CountedProperty&) = delete;
    CountedProperty& operator=(const CountedProperty&) = delete;
    ~CountedProperty() override { --m_alive; }

private:
    int& m_alive;
};

static_assert(!std::is_copy_constructible_v<MaterialBase> && !std::is_copy_assignable_v<MaterialBase>);
static_assert(!std::is_copy_constructible_v<CMaterial> && !std::is_copy_assignable_v<CMaterial>);

TEST(Material, StartsWithTheNameOfItsClass)
{
    const MaterialBase base;
    EXPECT_EQ(base.id, 0);
    EXPECT_EQ(base.name, "MaterialBase");
    EXPECT_EQ(base.libraryGroup, 0);
    EXPECT_THAT(base.properties, IsEmpty());
    EXPECT_EQ(CMaterial().name, "CMaterial");
    EXPECT_EQ(CMaterial("Bronze").name, "Bronze");
    EXPECT_EQ(CMaterial("Bronze").libraryGroup, 0);
}

TEST(Material, AddsAListReadFromText)
{
    CMaterial material;
    material.addProperty(38, "Yield stress", "450,608", "PYStress", "Vector");
    EXPECT_THAT(material.getPropertyValues(38), ElementsAre(450.0, 608.0));
    double number = 7.0;
    EXPECT_TRUE(material.getPropertyValue(38, number));
    EXPECT_EQ(number, 0.0);
    ASSERT_TRUE(material.hasProperty(38));
    const MaterialProperty& property = *material.findProperty(38);
    EXPECT_EQ(property.id, 38);
    EXPECT_EQ(property.name, "Yield stress");
    EXPECT_EQ(property.key, "PYStress");
    EXPECT_EQ(property.description, "Vector");
    EXPECT_EQ(property.unit, "");
    EXPECT_EQ(property.category, vxMat::ePropertyCategory::Undefined);
}

TEST(Material, IsUnchangedWhenAnAddedTextCannotBeRead)
{
    CMaterial material;
    material.addProperty(4, "Density", "7850", "rho", "");
    EXPECT_THROW(material.addProperty(4, "Density", "heavy", "rho", ""), std::invalid_argument);
    EXPECT_THROW(material.addProperty(5, "Young's modulus", "1e999", "E", ""), std::out_of_range);
    ASSERT_EQ(material.properties.size(), 1U);
    EXPECT_EQ(material.properties.at(4)->value, 7850.0);
}

TEST(Material, DestroysThePropertyThatALaterOneReplaces)
{
    int alive = 0;
    CMaterial material;
    material.setProperty(4, std::make_unique<CountedProperty>(alive));
    material.setProperty(4, std::make_unique<CountedProperty>(alive));
    EXPECT_EQ(alive, 1);
    material.addProperty(4, "Density", "1", "rho", "");
    EXPECT_EQ(alive, 0);
}

TEST(Material, DestroysItsPropertiesWhenCleared)
{
    int alive = 0;
    CMaterial material;
    material.setProperty(4, std::make_unique<CountedProperty>(alive));
    material.setProperty(5, std::make_unique<CountedProperty>(alive));
    material.clearProperties();
    EXPECT_EQ(alive, 0);
    EXPECT_THAT(material.properties, IsEmpty());
}

TEST(Material, DestroysItsPropertiesWithItself)
{
    int alive = 0;
    {
        const std::unique_ptr<MaterialBase> material = std::make_unique<CMaterial>();
        material->setProperty(4, std::make_unique<CountedProperty>(alive));
    }
    EXPECT_EQ(alive, 0);
}

TEST(Material, FindsPropertiesByTheirSlotAndNotByTheirId)
{
    CMaterial material;
    material.setProperty(401, std::make_unique<vxMat::Density>(343.0));
    EXPECT_TRUE(material.hasProperty(401));
    EXPECT_FALSE(material.hasProperty(4));
}

TEST(Material, LeavesTheNumberUnchangedForAnEmptySlot)
{
    double number = 7.0;
    EXPECT_FALSE(CMaterial().getPropertyValue(4, number));
    EXPECT_EQ(number, 7.0);
}

TEST(Material, ReturnsTheEmptyTextForAnEmptySlot)
{
    CMaterial material;
    EXPECT_EQ(material.getPropertyText(33), "");
    material.setProperty(33, std::make_unique<vxMat::PlasticYieldType>("Mises"));
    EXPECT_EQ(material.getPropertyText(33), "Mises");
}

TEST(Material, ReturnsALastingEmptyListForAnEmptySlot)
{
    CMaterial material;
    const auto& none = material.getPropertyValues(38);
    material.setProperty(4, std::make_unique<vxMat::Density>());
    material.clearProperties();
    EXPECT_THAT(none, IsEmpty());
    material.setProperty(38, std::make_unique<vxMat::PlasticYieldStress>());
    EXPECT_THAT(material.getPropertyValues(38), ElementsAre(1.0));
}

TEST(Material, RemovesThePropertyThatIsPointedTo)
{
    int alive = 0;
    CMaterial material;
    material.setProperty(4, std::make_unique<CountedProperty>(alive));
    material.setProperty(5, std::make_unique<vxMat::YoungsModulus>());
    material.removeProperty(material.findProperty(4));
    EXPECT_EQ(alive, 0);
    EXPECT_FALSE(material.hasProperty(4));
    EXPECT_TRUE(material.hasProperty(5));
}

TEST(Material, IsUnchangedByTheRemovalOfAPropertyThatItDoesNotHold)
{
    CMaterial material;
    material.setProperty(4, std::make_unique<vxMat::Density>());
    const vxMat::Density stranger;
    material.removeProperty(&stranger);
    material.removeProperty(nullptr);
    EXPECT_EQ(material.properties.size(), 1U);
}

TEST(CopyPropertiesFrom, KeepsNameIdAndGroup)
{
    CMaterial material("mine");
    material.id = 5;
    material.libraryGroup = 3;
    material.copyPropertiesFrom(vxMat::StructuralSteel());
    EXPECT_EQ(material.name, "mine");
    EXPECT_EQ(material.id, 5);
    EXPECT_EQ(material.libraryGroup, 3);
    EXPECT_EQ(material.properties.size(), 9U);
}

TEST(CopyPropertiesFrom, LosesNothingWhenAMaterialIsCopiedOntoItself)
{
    CMaterial material;
    material.setProperty(4, std::make_unique<vxMat::Density>(7850.0));
    material.copyPropertiesFrom(material);
    ASSERT_EQ(material.properties.size(), 1U);
    EXPECT_EQ(material.properties.at(4)->value, 7850.0);
}

TEST(CopyFrom, ReplacesFivePropertiesByCopiesOfThree)
{
    CMaterial source;
    for (const int id : {4, 5, 6})
        source.setProperty(id, vxMat::findPropertyRecord(id)->create());
    CMaterial target;
    for (const int id : {21, 202, 203, 301, 4})
        target.setProperty(id, vxMat::findPropertyRecord(id)->create());

    target.copyFrom(source);
    ASSERT_EQ(target.properties.size(), 3U);
    for (const auto& [id, property] : source.properties) {
        ASSERT_TRUE(target.hasProperty(id));
        const MaterialProperty& copy = *target.findProperty(id);
        EXPECT_NE(&copy, property.get());
        EXPECT_EQ(copy.value, property->value);
        EXPECT_EQ(copy.unit, property->unit);
        EXPECT_EQ(typeid(copy), typeid(MaterialProperty));
    }
}

TEST(CopyFrom, MakesACopyOfABuiltInMaterialForTheUser)
{
    CMaterial material("mine");
    material.id = 5;
    material.copyFrom(vxMat::StructuralSteel());
    EXPECT_EQ(material.name, "Structural Steel");
    EXPECT_EQ(material.id, 0);
    EXPECT_EQ(material.libraryGroup, 0);
}

TEST(CopyFrom, KeepsTheGroupOfTheTarget)
{
    CMaterial material;
    material.libraryGroup = 3;
    material.copyFrom(vxMat::StructuralSteel());
    EXPECT_EQ(material.libraryGroup, 3);
}

TEST(CopyFrom, EndsTheNameAtItsFirstZeroByte)
{
    CMaterial source;
    source.name = std::string("Steel\0hidden", 12);
    CMaterial target;
    target.copyFrom(source);
    EXPECT_EQ(target.name, "Steel");
}

TEST(CopyFrom, KeepsTheSlotsOfTheAcousticMaterial)
{
    CMaterial copy;
    copy.copyFrom(vxMat::AcousticMaterial1());
    ASSERT_EQ(copy.properties.size(), 2U);
    ASSERT_TRUE(copy.hasProperty(4));
    ASSERT_TRUE(copy.hasProperty(401));
    EXPECT_EQ(copy.properties.at(4)->id, 4);
    EXPECT_EQ(copy.properties.at(401)->id, 4);
}

TEST(CopyAllFrom, CopiesEveryFieldAndKeepsTheSlots)
{
    vxMat::AcousticMaterial1 source;
    source.id = -7;
    source.name = std::string("Air\0hidden", 10);
    CMaterial target("before");
    target.setProperty(5, std::make_unique<vxMat::YoungsModulus>(2e11));
    target.copyAllFrom(source);
    EXPECT_EQ(target.id, -7);
    EXPECT_EQ(target.name, source.name);
    EXPECT_EQ(target.libraryGroup, 7);
    ASSERT_EQ(target.properties.size(), 2U);
    ASSERT_TRUE(target.hasProperty(4));
    ASSERT_TRUE(target.hasProperty(401));
    EXPECT_EQ(target.findProperty(401)->id, 4);
    EXPECT_EQ(target.findProperty(401)->value, source.findProperty(401)->value);
    EXPECT_NE(target.findProperty(401), source.findProperty(401));
}

TEST(CopyAllFrom, LosesNothingWhenAMaterialIsCopiedOntoItself)
{
    CMaterial material("Steel");
    material.id = 3;
    material.setProperty(4, std::make_unique<vxMat::Density>(7850.0));
    material.copyAllFrom(material);
    EXPECT_EQ(material.id, 3);
    EXPECT_EQ(material.name, "Steel");
    ASSERT_EQ(material.properties.size(), 1U);
    EXPECT_EQ(material.findProperty(4)->value, 7850.0);
}

TEST(Swap, ExchangesEveryFieldWithoutCopyingProperties)
{
    CMaterial one("Steel");
    one.id = 3;
    one.libraryGroup = 1;
    one.setProperty(4, std::make_unique<vxMat::Density>(7850.0));
    const MaterialProperty* const density = one.findProperty(4);
    vxMat::MaterialBase other;
    one.swap(other);
    EXPECT_EQ(other.id, 3);
    EXPECT_EQ(other.name, "Steel");
    EXPECT_EQ(other.libraryGroup, 1);
    EXPECT_EQ(other.findProperty(4), density);
    EXPECT_EQ(one.id, 0);
    EXPECT_EQ(one.name, "MaterialBase");
    EXPECT_EQ(one.libraryGroup, 0);
    EXPECT_TRUE(one.properties.empty());
}

TEST(CopyTo, DoesNothingForANullTarget)
{
    const CMaterial material;
    material.copyTo(nullptr);
    EXPECT_EQ(material.name, "CMaterial");
}

TEST(CopyTo, TakesIdNameAndPropertiesButNotTheGroup)
{
    CMaterial source("Bronze");
    source.id = 12;
    source.libraryGroup = 4;
    source.setProperty(4, std::make_unique<vxMat::Density>(8800.0));
    CMaterial target;
    target.libraryGroup = 2;
    source.copyTo(&target);
    EXPECT_EQ(target.id, 12);
    EXPECT_EQ(target.name, "Bronze");
    EXPECT_EQ(target.libraryGroup, 2);
    ASSERT_TRUE(target.hasProperty(4));
    EXPECT_EQ(target.properties.at(4)->value, 8800.0);
}

TEST(CopyTo, TakesTheNameWholeAndAnIdOfZero)
{
    CMaterial source;
    source.name = std::string("Steel\0hidden", 12);
    CMaterial target;
    target.id = 5;
    source.copyTo(&target);
    EXPECT_EQ(target.name, source.name);
    EXPECT_EQ(target.id, 0);
}

TEST(CopyTo, LeavesAMaterialThatIsItsOwnTargetUnchanged)
{
    CMaterial material("Bronze");
    material.setProperty(4, std::make_unique<vxMat::Density>(8800.0));
    material.copyTo(&material);
    EXPECT_EQ(material.name, "Bronze");
    ASSERT_TRUE(material.hasProperty(4));
    EXPECT_EQ(material.properties.at(4)->value, 8800.0);
}

} // namespace
