#include "vxMaterial/model/MaterialProperty.h"

#include "CommaLocale.h"

#include "vxMaterial/model/PropertyCatalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <typeinfo>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using vxMat::ePropertyCategory;
using vxMat::MaterialProperty;

MaterialProperty fromText(int id, const std::string& text)
{
    return MaterialProperty(id, "a name", text, "key", "a hint");
}

TEST(MaterialProperty, StartsEmptyAndUndefined)
{
    const MaterialProperty property;
    EXPECT_EQ(property.objectTag, 0);
    EXPECT_EQ(property.id, 0);
    EXPECT_EQ(property.name, "");
    EXPECT_EQ(property.key, "");
    EXPECT_EQ(property.value, 0.0);
    EXPECT_EQ(property.text, "");
    EXPECT_THAT(property.values, IsEmpty());
    EXPECT_EQ(property.description, "");
    EXPECT_EQ(property.unit, "");
    EXPECT_EQ(property.category, ePropertyCategory::Undefined);
    EXPECT_FALSE(property.marked);
}

TEST(MaterialPropertyFromText, StoresIdNameKeyAndDescriptionButNoUnit)
{
    const MaterialProperty property = fromText(5, "2e11");
    EXPECT_EQ(property.id, 5);
    EXPECT_EQ(property.name, "a name");
    EXPECT_EQ(property.key, "key");
    EXPECT_EQ(property.description, "a hint");
    EXPECT_EQ(property.value, 2e11);
    EXPECT_EQ(property.unit, "");
    EXPECT_EQ(property.category, ePropertyCategory::Undefined);
    EXPECT_FALSE(property.marked);
}

TEST(MaterialPropertyFromText, GivesEveryModelSwitchTheValueOneForAnyText)
{
    for (const int id : {28, 29, 30, 31, 32}) {
        EXPECT_EQ(fromText(id, "abc").value, 1.0) << id;
        EXPECT_EQ(fromText(id, "").value, 1.0) << id;
        EXPECT_EQ(fromText(id, "1.7976931348623157e308").value, 1.0) << id;
    }
}

TEST(MaterialPropertyFromText, ReadsTheSwitchesOfViscoElasticityAndCreepAsNumbers)
{
    EXPECT_EQ(fromText(42, "1").value, 1.0);
    EXPECT_EQ(fromText(45, "2.5").value, 2.5);
    for (const int id : {42, 45}) {
        try {
            fromText(id, "on");
            ADD_FAILURE() << "no exception";
        } catch (const std::invalid_argument& error) {
            EXPECT_STREQ(error.what(), "invalid stod argument");
        }
    }
}

TEST(MaterialPropertyFromText, SplitsYieldStressesAtTheirCommas)
{
    const MaterialProperty property = fromText(38, "450,608,679,732");
    EXPECT_THAT(property.values, ElementsAre(450.0, 608.0, 679.0, 732.0));
    EXPECT_EQ(property.value, 0.0);
    EXPECT_EQ(property.text, "");
}

TEST(MaterialPropertyFromText, GivesAnEmptyListForATextWithoutNumbers)
{
    EXPECT_THAT(fromText(38, "").values, IsEmpty());
    EXPECT_THAT(fromText(39, "abc").values, IsEmpty());
}

TEST(MaterialPropertyFromText, StoresAWordUnchangedWithItsBlanks)
{
    const MaterialProperty property = fromText(33, " Mises");
    EXPECT_EQ(property.text, " Mises");
    EXPECT_EQ(property.value, 0.0);
    EXPECT_EQ(fromText(37, "no such word").text, "no such word");
}

TEST(MaterialPropertyFromText, IgnoresTextAfterANumber)
{
    EXPECT_EQ(fromText(4, "  7850 kg").value, 7850.0);
}

TEST(MaterialPropertyFromText, RefusesANumberOutOfRange)
{
    try {
        fromText(4, "1e999");
        ADD_FAILURE() << "no exception";
    } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), "stod argument out of range");
    }
    EXPECT_THROW(fromText(38, "1, 1e999"), std::out_of_range);
}

TEST(MaterialPropertyFromText, ReadsPointsUnderACommaLocale)
{
    const vxtest::CommaLocale comma;
    EXPECT_EQ(fromText(6, "0.3").value, 0.3);
    EXPECT_THAT(fromText(39, "0.05, 0.1").values, ElementsAre(0.05, 0.1));
}

TEST(MaterialPropertyFromNumber, HasADashForUnitAndNoCategory)
{
    const MaterialProperty property(4, "Density", "rho", 7850.0);
    EXPECT_EQ(property.id, 4);
    EXPECT_EQ(property.name, "Density");
    EXPECT_EQ(property.key, "rho");
    EXPECT_EQ(property.value, 7850.0);
    EXPECT_EQ(property.unit, "-");
    EXPECT_EQ(property.category, ePropertyCategory::Undefined);
    EXPECT_EQ(property.description, "");
    EXPECT_EQ(property.text, "");
    EXPECT_THAT(property.values, IsEmpty());
}

TEST(MaterialPropertyCopy, HasEverythingExceptTheMarkAndTheClass)
{
    vxMat::PlasticYieldStress source({1.0, 2.0});
    source.value = 3.0;
    source.text = "word";
    source.description = "other";
    source.objectTag = 8;
    source.marked = true;

    const MaterialProperty copy(source);
    EXPECT_EQ(copy.id, 38);
    EXPECT_EQ(copy.name, "Yield stress");
    EXPECT_EQ(copy.key, "PYStress");
    EXPECT_EQ(copy.value, 3.0);
    EXPECT_EQ(copy.text, "word");
    EXPECT_THAT(copy.values, ElementsAre(1.0, 2.0));
    EXPECT_EQ(copy.unit, "-");
    EXPECT_EQ(copy.description, "other");
    EXPECT_EQ(copy.category, ePropertyCategory::Plastic);
    EXPECT_FALSE(copy.marked);
    EXPECT_EQ(copy.objectTag, 0);
    EXPECT_TRUE(source.marked);
    EXPECT_EQ(typeid(copy), typeid(MaterialProperty));
}

TEST(MaterialProperty, IsNotChangedByInitProperty)
{
    MaterialProperty property(4, "mine", "k", 1.0);
    property.initProperty();
    EXPECT_EQ(property.name, "mine");
    EXPECT_EQ(property.unit, "-");
}

TEST(MaterialProperty, ReturnsValueAndText)
{
    const MaterialProperty property = fromText(33, "Mises");
    EXPECT_EQ(property.getValue(), 0.0);
    EXPECT_EQ(&property.getText(), &property.text);
}

TEST(PropertyCategoryName, IsUndefinedOutsideZeroToEight)
{
    const char* const names[] = {"Basic",        "Linear Elastic", "Hyperelastic", "Plastic", "Creep",
                                 "Viscoelastic", "Thermal",        "Electric",     "Acoustic"};
    for (int category = 0; category < 9; ++category)
        EXPECT_STREQ(vxMat::getPropertyCategoryName(category), names[category]);
    for (const int category : {9, 42, -1, 2147483647, -2147483647 - 1})
        EXPECT_STREQ(vxMat::getPropertyCategoryName(category), "Undefined");
}

TEST(PropertyTypeName, IsEmptyForAllButFiveIds)
{
    EXPECT_STREQ(vxMat::getPropertyTypeName(4), "Density");
    EXPECT_STREQ(vxMat::getPropertyTypeName(201), "Thermal Expansion");
    EXPECT_STREQ(vxMat::getPropertyTypeName(301), "Electrical Conductivity");
    EXPECT_STREQ(vxMat::getPropertyTypeName(302), "Relative Permittivity");
    EXPECT_STREQ(vxMat::getPropertyTypeName(303), "Relative Permeability");
    for (const int id : {0, 5, 202, 401, -4})
        EXPECT_STREQ(vxMat::getPropertyTypeName(id), "") << id;
}

TEST(PropertyValueText, IsTheShortestNumberTheWordOrTheJoinedListByTheKindOfTheId)
{
    const auto text = [](int id, double value) {
        return vxMat::formatValue(vxMat::MaterialProperty(id, "", "", value));
    };
    EXPECT_EQ(text(5, 2e11), "2e+11");
    EXPECT_EQ(text(6, 0.3), "0.3");
    EXPECT_EQ(text(4, 7850.0), "7850");
    EXPECT_EQ(text(31, 1.7976931348623157e308), "1.7976931348623157e+308");
    EXPECT_EQ(text(42, 1.0), "1");
    EXPECT_EQ(vxMat::formatValue({33, "", " Mises", "", ""}), " Mises");
    EXPECT_EQ(vxMat::formatValue({38, "", "450;608.5 1e-10", "", ""}), "450, 608.5, 1e-10");
    // A property of a document has a number even if its kind is a word or a list; the number is not shown.
    EXPECT_EQ(text(33, 5.0), "");
    EXPECT_EQ(text(39, 5.0), "");
}

} // namespace
