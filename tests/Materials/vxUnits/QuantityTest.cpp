#include "vxUnits/Quantity.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using Id = vxMat::PropertyId;
using vxUnits::CatalogueUnit;
using vxUnits::findQuantity;
using vxUnits::quantities;
using vxUnits::Quantity;
using vxUnits::QuantityForm;
using vxUnits::Unit;
using vxUnits::unitOfQuantity;

TEST(Quantities, AreThoseOfTheCatalogue)
{
    std::set<std::int32_t> ids;
    for (const Quantity& one : quantities()) {
        EXPECT_NE(vxMat::findPropertyRecord(one.id), nullptr) << one.id;
        ids.insert(one.id);
    }
    EXPECT_EQ(ids.size(), vxMat::catalogueSize);
    EXPECT_EQ(findQuantity(40), nullptr);
    EXPECT_EQ(findQuantity(201), nullptr);
}

TEST(Quantities, HaveTheFormOfTheCatalogue)
{
    const auto formOf = [](const vxMat::PropertyRecord& record) {
        switch (record.kind) {
        case vxMat::ValueKind::Word:
            return QuantityForm::Word;
        case vxMat::ValueKind::NumberList:
            return QuantityForm::NumberList;
        case vxMat::ValueKind::ModelSwitch:
            return QuantityForm::Switch;
        default:
            return QuantityForm::Number;
        }
    };
    for (const vxMat::PropertyRecord& record : vxMat::propertyRecords())
        EXPECT_EQ(findQuantity(record.id)->form, formOf(record)) << record.name;
}

TEST(Quantities, HaveACoherentUnitOfTheirDimension)
{
    for (const Quantity& one : quantities()) {
        if (!one.hasNumber() || one.id == Id::CreepModulusA)
            continue;
        const auto unit = Unit::parse(one.siUnit);
        ASSERT_TRUE(unit) << one.siUnit;
        EXPECT_EQ(unit->dimension(), one.dimension) << one.siUnit;
        EXPECT_EQ(unit->factor(), 1.0) << one.siUnit;
        EXPECT_EQ(unitOfQuantity(one.id)->text(), one.siUnit);
    }
}

TEST(Quantities, SayWhereTheUnitTextOfTheCatalogueIsAnother)
{
    for (const Quantity& one : quantities()) {
        const std::string catalogue = vxMat::findPropertyRecord(one.id)->unit;
        const std::string id = std::to_string(one.id) + " " + catalogue;
        if (!one.hasNumber()) {
            EXPECT_EQ(catalogue, "-") << id;
            continue;
        }
        const bool pure = one.dimension.isNone() && one.id != Id::CreepModulusA;
        if (one.catalogueUnit == CatalogueUnit::Missing) {
            EXPECT_EQ(catalogue, "-") << id;
            EXPECT_FALSE(pure) << id;
        } else if (one.catalogueUnit == CatalogueUnit::Right) {
            EXPECT_EQ(Unit::parse(catalogue)->dimension(), one.dimension) << id;
        } else {
            const auto unit = Unit::parse(catalogue);
            EXPECT_TRUE(!unit || unit->dimension() != one.dimension) << id;
        }
    }
    EXPECT_EQ(findQuantity(Id::LimitingNetworkStretch)->catalogueUnit, CatalogueUnit::Wrong);
    EXPECT_EQ(findQuantity(Id::ElectricalConductivity)->catalogueUnit, CatalogueUnit::Wrong);
    EXPECT_EQ(findQuantity(Id::PlasticInitialYieldStress)->catalogueUnit, CatalogueUnit::Missing);
}

TEST(Quantities, HaveMeaningsSourcesAndOrderedRanges)
{
    for (const Quantity& one : quantities()) {
        EXPECT_STRNE(one.meaning, "") << one.id;
        EXPECT_STRNE(one.meaningSource, "") << one.id;
        bool range = false;
        for (const auto* const state : {&one.solids, &one.liquids, &one.gases}) {
            if (!*state)
                continue;
            range = true;
            EXPECT_LT((*state)->lowest, (*state)->highest) << one.id;
            EXPECT_STRNE((*state)->lowestIs, "") << one.id;
            EXPECT_STRNE((*state)->highestIs, "") << one.id;
        }
        EXPECT_EQ(range, *one.rangeSource != '\0') << one.id;
        EXPECT_EQ(range, one.hasNumber() && one.id != Id::CreepModulusA) << one.id;
    }
}

TEST(Quantities, TheCreepExponentsAreThoseOfTheMaterial)
{
    const auto exponents = vxUnits::creepExponents(vxMat::CreepMaterial1());
    ASSERT_TRUE(exponents);
    EXPECT_EQ(exponents->n, 5.0);
    EXPECT_EQ(exponents->m, 0.0);
    EXPECT_FALSE(vxUnits::creepExponents(vxMat::StructuralSteel()));
}

} // namespace
