#include "vxMaterial/model/CataloguedMaterial.h"

#include "DataFile.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using vxMat::CMaterial;

std::vector<int> slotsOf(const vxMat::MaterialBase& material)
{
    std::vector<int> slots;
    for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(material))
        slots.push_back(slot);
    return slots;
}

TEST(CatalogueOrder, IsTheOrderInWhichTheCatalogueIsBuilt)
{
    const std::vector<int> order{4,  401, 202, 203, 21, 31, 5,  6,  28, 29, 30, 23, 27, 26, 128, 127, 25,  32,
                                 33, 37,  34,  35,  36, 41, 38, 39, 42, 44, 43, 45, 46, 47, 48,  301, 302, 303};
    CMaterial material;
    for (auto id = order.rbegin(); id != order.rend(); ++id)
        material.setProperty(*id, vxMat::findPropertyRecord(*id)->create());
    EXPECT_THAT(slotsOf(material), ElementsAreArray(order));
}

TEST(CatalogueOrder, DoesNotDependOnTheOrderInWhichPropertiesWereAdded)
{
    std::vector<int> ids{4, 202, 31, 5, 6, 301};
    std::sort(ids.begin(), ids.end());
    do {
        CMaterial material;
        for (const int id : ids)
            material.setProperty(id, vxMat::findPropertyRecord(id)->create());
        ASSERT_THAT(slotsOf(material), ElementsAre(4, 202, 31, 5, 6, 301));
    } while (std::next_permutation(ids.begin(), ids.end()));
}

TEST(CatalogueOrder, IsByTheSlotAndNotByTheIdOfTheProperty)
{
    const vxMat::AcousticMaterial2 acoustic;
    const auto held = vxMat::propertiesInCatalogueOrder(acoustic);
    ASSERT_EQ(held.size(), 2U);
    EXPECT_EQ(held[0].slot, 4);
    EXPECT_EQ(held[0].property->value, 1.0);
    EXPECT_EQ(held[1].slot, 401);
    EXPECT_EQ(held[1].property->id, 4);
    EXPECT_EQ(held[1].property->value, 400.0);
}

TEST(CatalogueOrder, HasUnknownSlotsLastInAscendingOrder)
{
    CMaterial material;
    for (const int slot : {303, 2000000000, 40, -3, 402, 0, 4, 201})
        material.setProperty(slot, std::make_unique<vxMat::MaterialProperty>(slot, "name", "key", 1.0));
    EXPECT_THAT(slotsOf(material), ElementsAre(4, 303, -3, 0, 40, 201, 402, 2000000000));
}

TEST(CatalogueOrder, OfAnEmptyMaterialIsEmpty)
{
    EXPECT_THAT(slotsOf(CMaterial()), IsEmpty());
}

TEST(RestoreCatalogueTexts, MakesWhatATableWroteTheSameInEveryLanguage)
{
    for (const auto& row : vxtest::readTable("catalogue.tsv")) {
        SCOPED_TRACE(row[0]);
        const int id = std::atoi(row[1].c_str());
        CMaterial material("Stahl");
        material.addProperty(id, "Name in einer anderen Sprache", "1", row[3], "Beschreibung");
        vxMat::restoreCatalogueTexts(material);
        const vxMat::MaterialProperty* const property = material.findProperty(id);
        ASSERT_NE(property, nullptr);
        EXPECT_EQ(property->name, row[2]);
        EXPECT_EQ(property->key, row[3]);
        EXPECT_EQ(property->unit, row[4]);
        EXPECT_EQ(property->description, row[5]);
        EXPECT_EQ(static_cast<int>(property->category), std::atoi(row[6].c_str()));
        EXPECT_EQ(material.name, "Stahl");
    }
}

TEST(RestoreCatalogueTexts, KeepsKeysAndValues)
{
    CMaterial material;
    material.addProperty(4, "Dichte", "7850", "my_rho", "");
    material.addProperty(33, "Fließbedingung", "MISES", "PYield", "");
    material.addProperty(38, "Fließspannung", "1, 2", "PYStress", "");
    vxMat::restoreCatalogueTexts(material);
    EXPECT_EQ(material.properties.at(4)->key, "my_rho");
    EXPECT_EQ(material.properties.at(4)->value, 7850.0);
    EXPECT_EQ(material.properties.at(33)->text, "MISES");
    EXPECT_THAT(material.properties.at(38)->values, ElementsAre(1.0, 2.0));
}

TEST(RestoreCatalogueTexts, DescribesAPropertyByItsIdAndNotByItsSlot)
{
    CMaterial material;
    material.copyFrom(vxMat::AcousticMaterial1());
    material.properties.at(401)->name = "Dichte";
    vxMat::restoreCatalogueTexts(material);
    EXPECT_EQ(material.properties.at(401)->name, "Density");
    EXPECT_EQ(material.properties.at(401)->unit, "kg/m3");
}

TEST(RestoreCatalogueTexts, LeavesAPropertyThatTheCatalogueDoesNotHave)
{
    CMaterial material;
    material.setProperty(201, std::make_unique<vxMat::MaterialProperty>(201, "Wärmeausdehnung", "alpha", 1e-5));
    vxMat::restoreCatalogueTexts(material);
    EXPECT_EQ(material.properties.at(201)->name, "Wärmeausdehnung");
    EXPECT_EQ(material.properties.at(201)->unit, "-");
}

} // namespace
