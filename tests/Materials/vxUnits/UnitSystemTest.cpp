#include "vxUnits/UnitSystem.h"

#include "Repetitions.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/DerivedValues.h"
#include "vxUnits/MaterialValues.h"
#include "vxUnits/Quantity.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <random>
#include <string>

namespace {

namespace d = vxUnits::dimensions;
using Id = vxMat::PropertyId;
using vxUnits::converterOfQuantity;
using vxUnits::Dimension;
using vxUnits::FaultCode;
using vxUnits::Unit;
using vxUnits::unitOfQuantity;
using vxUnits::UnitSystem;

UnitSystem parsed(const std::string& text)
{
    const auto system = UnitSystem::parse(text);
    EXPECT_TRUE(system) << text << ": " << (system ? "" : system.failure().text());
    return system ? *system : UnitSystem::si();
}

/// What each system writes for the quantities that have a unit, and the value of steel in it, computed by hand.
struct Expected
{
    const char* system;
    std::int32_t id;
    const char* unit;
    double si;
    double value;
};

const Expected expected[] = {
    {"SI", Id::YoungsModulus, "Pa", 2.1e11, 2.1e11},
    {"SI", Id::Density, "kg/m^3", 7850, 7850},
    {"SI", Id::ThermalConductivity, "W/(m K)", 54, 54},
    {"SI", Id::SpecificHeat, "J/(kg K)", 490, 490},
    {"SI", Id::DynamicViscosity, "Pa s", 1e-3, 1e-3},
    {"SI", Id::IncompressibilityParameterD1, "1/Pa", 1e-9, 1e-9},
    {"SI", Id::ElectricalConductivity, "S/m", 5.8e7, 5.8e7},
    {"SI", Id::SpeedOfSound, "m/s", 5000, 5000},
    {"SI", Id::RelaxationTime, "s", 2, 2},
    {"SI", Id::PlasticFAI, "deg", 30, 30},
    {"mm-t-s", Id::YoungsModulus, "MPa", 2.1e11, 2.1e5},
    {"mm-t-s", Id::PlasticYieldStress, "MPa", 2.5e8, 250},
    {"mm-t-s", Id::Density, "t/mm^3", 7850, 7.85e-9},
    {"mm-t-s", Id::ThermalConductivity, "mW/(mm K)", 54, 54},
    {"mm-t-s", Id::SpecificHeat, "mJ/(t K)", 490, 4.9e8},
    {"mm-t-s", Id::DynamicViscosity, "MPa s", 1e-3, 1e-9},
    {"mm-t-s", Id::IncompressibilityParameterD1, "1/MPa", 1e-9, 1e-3},
    {"mm-t-s", Id::ElectricalConductivity, "kS/mm", 5.8e7, 58},
    {"mm-t-s", Id::SpeedOfSound, "mm/s", 5000, 5e6},
    {"mm-t-s", Id::PlasticFAI, "deg", 30, 30},
    {"mm-kg-ms", Id::YoungsModulus, "GPa", 2.1e11, 210},
    {"mm-kg-ms", Id::Density, "kg/mm^3", 7850, 7.85e-6},
    {"mm-kg-ms", Id::ThermalConductivity, "kW/(mm K)", 54, 5.4e-5},
    {"mm-kg-ms", Id::SpecificHeat, "J/(kg K)", 490, 490},
    {"mm-kg-ms", Id::DynamicViscosity, "GPa ms", 1e-3, 1e-9},
    {"mm-kg-ms", Id::ElectricalConductivity, "S/m", 5.8e7, 5.8e7},
    {"mm-kg-ms", Id::SpeedOfSound, "mm/ms", 5000, 5000},
    {"mm-kg-ms", Id::RelaxationTime, "ms", 2, 2000},
    {"cm-g-s", Id::YoungsModulus, "dyn/cm^2", 2.1e11, 2.1e12},
    {"cm-g-s", Id::Density, "g/cm^3", 7850, 7.85},
    {"cm-g-s", Id::ThermalConductivity, "erg/(s cm K)", 54, 5.4e6},
    {"cm-g-s", Id::SpecificHeat, "erg/(g K)", 490, 4.9e6},
    {"cm-g-s", Id::DynamicViscosity, "P", 1e-3, 1e-2},
    {"cm-g-s", Id::ElectricalConductivity, "GS/m", 5.8e7, 0.058},
    {"cm-g-s", Id::SpeedOfSound, "cm/s", 5000, 5e5},
    // 1 lbf = 4.4482216152605 N, 1 slug = 14.593902937206364 kg
    {"ft-slug-s", Id::YoungsModulus, "psf", 2.1e11, 2.1e11 * 0.3048 * 0.3048 / 4.4482216152605},
    {"ft-slug-s", Id::Density, "slug/ft^3", 7850, 7850 * 0.028316846592 / 14.593902937206364},
    {"ft-slug-s", Id::ThermalConductivity, "lbf/(s degF)", 54, 54 / 4.4482216152605 * 5.0 / 9.0},
    {"ft-slug-s", Id::SpecificHeat, "ft lbf/(slug degF)", 490, 490 / 0.09290304 * 5.0 / 9.0},
    {"ft-slug-s", Id::DynamicViscosity, "lbf s/ft^2", 1e-3, 1e-3 * 0.09290304 / 4.4482216152605},
    {"ft-slug-s", Id::ElectricalConductivity, "A^2 s/(lbf ft^2)", 5.8e7, 5.8e7 * 4.4482216152605 * 0.09290304},
    {"ft-slug-s", Id::SpeedOfSound, "ft/s", 5000, 5000 / 0.3048},
    {"in-lbf-s", Id::YoungsModulus, "psi", 2.1e11, 2.1e11 * 0.00064516 / 4.4482216152605},
    {"in-lbf-s", Id::Density, "lbf s^2/in^4", 7850, 7850 * 4.162314256e-7 / 4.4482216152605},
    {"in-lbf-s", Id::ThermalConductivity, "lbf/(s degF)", 54, 54 / 4.4482216152605 * 5.0 / 9.0},
    {"in-lbf-s", Id::SpecificHeat, "in^2/(s^2 degF)", 490, 490 / 0.00064516 * 5.0 / 9.0},
    {"in-lbf-s", Id::DynamicViscosity, "psi s", 1e-3, 1e-3 * 0.00064516 / 4.4482216152605},
    {"in-lbf-s", Id::IncompressibilityParameterD1, "1/psi", 1e-9, 1e-9 * 4.4482216152605 / 0.00064516},
    {"in-lbf-s", Id::SpeedOfSound, "in/s", 5000, 5000 / 0.0254},
    {"length cm, mass g, time us", Id::YoungsModulus, "g/(cm us^2)", 2.1e11, 2.1},
    {"length cm, mass g, time us", Id::Density, "g/cm^3", 7850, 7.85},
    {"length cm, mass g, time us", Id::SpeedOfSound, "cm/us", 5000, 0.5},
    {"length mm, mass g, time ms", Id::YoungsModulus, "g/(mm ms^2)", 2.1e11, 2.1e5},
    {"length mm, mass g, time ms, temperature degC", Id::ThermalConductivity, "g mm/(ms^3 degC)", 54, 54e-3},
    {"length in, mass lbf s^2/in, time s, temperature degF", Id::YoungsModulus, "lbf/in^2", 2.1e11,
     2.1e11 * 0.00064516 / 4.4482216152605},
};

TEST(UnitSystems, WriteEachQuantityInTheirUnit)
{
    for (const Expected& one : expected) {
        const UnitSystem system = parsed(one.system);
        const Unit unit = *unitOfQuantity(one.id, system);
        EXPECT_EQ(unit.text(), one.unit) << one.system;
        const double value = (*converterOfQuantity(one.id, UnitSystem::si(), system))(one.si);
        EXPECT_NEAR(value / one.value, 1.0, 5e-16) << one.system << ' ' << one.unit;
        const double back = (*converterOfQuantity(one.id, system, UnitSystem::si()))(value);
        EXPECT_NEAR(back / one.si, 1.0, 5e-16) << one.system << ' ' << one.unit;
    }
}

/// The units that engineers write for a dimension in SI, mm-t-s, mm-kg-ms, cm-g-s, ft-slug-s and in-lbf-s.
struct UnitsOfDimension
{
    Dimension dimension;
    const char* units[6];
};

const UnitsOfDimension naturalUnits[] = {
    {d::none, {"1", "1", "1", "1", "1", "1"}},
    {d::angle, {"deg", "deg", "deg", "deg", "deg", "deg"}},
    {d::time, {"s", "s", "ms", "s", "s", "s"}},
    {d::speed, {"m/s", "mm/s", "mm/ms", "cm/s", "ft/s", "in/s"}},
    {d::density, {"kg/m^3", "t/mm^3", "kg/mm^3", "g/cm^3", "slug/ft^3", "lbf s^2/in^4"}},
    {d::pressure, {"Pa", "MPa", "GPa", "dyn/cm^2", "psf", "psi"}},
    {d::compressibility, {"1/Pa", "1/MPa", "1/GPa", "cm^2/dyn", "1/psf", "1/psi"}},
    {d::dynamicViscosity, {"Pa s", "MPa s", "GPa ms", "P", "lbf s/ft^2", "psi s"}},
    {d::kinematicViscosity, {"m^2/s", "mm^2/s", "mm^2/ms", "cm^2/s", "ft^2/s", "in^2/s"}},
    {d::specificHeat, {"J/(kg K)", "mJ/(t K)", "J/(kg K)", "erg/(g K)", "ft lbf/(slug degF)", "in^2/(s^2 degF)"}},
    {d::thermalConductivity, {"W/(m K)", "mW/(mm K)", "kW/(mm K)", "erg/(s cm K)", "lbf/(s degF)", "lbf/(s degF)"}},
    {d::electricalConductivity, {"S/m", "kS/mm", "S/m", "GS/m", "A^2 s/(lbf ft^2)", "A^2 s/(lbf in^2)"}},
    {d::electricalResistivity, {"Ohm m", "mOhm mm", "Ohm m", "nOhm m", "lbf ft^2/(A^2 s)", "lbf in^2/(A^2 s)"}},
    {d::density * d::specificHeat, {"J/(m^3 K)", "mJ/(mm^3 K)", "J/(mm^3 K)", "erg/(cm^3 K)", "psf/degF", "psi/degF"}},
    {d::density * d::speed, {"kg/(m^2 s)", "t/(mm^2 s)", "kg/(mm^2 ms)", "g/(cm^2 s)", "slug/(ft^2 s)", "lbf s/in^3"}},
};

/// Checks that a system writes the natural unit of a dimension, and that this text is read as the same unit.
void expectNatural(const Dimension& dimension, const char* name)
{
    const auto* const row = std::find_if(std::begin(naturalUnits), std::end(naturalUnits),
                                         [&](const UnitsOfDimension& one) { return one.dimension == dimension; });
    ASSERT_NE(row, std::end(naturalUnits)) << name;
    for (std::size_t i = 0; i < UnitSystem::builtIn().size(); ++i) {
        const Unit unit = UnitSystem::builtIn()[i].unitOf(dimension);
        EXPECT_EQ(unit.text(), row->units[i]) << name << " in " << UnitSystem::builtIn()[i].text();
        const auto read = Unit::parse(unit.text());
        ASSERT_TRUE(read) << unit.text();
        EXPECT_EQ(read->dimension(), dimension) << unit.text();
        EXPECT_EQ(read->factor(), unit.factor()) << unit.text();
        EXPECT_EQ(read->text(), unit.text());
    }
}

TEST(UnitSystems, WriteTheUnitsOfEngineersForEveryQuantityAndDerivedValue)
{
    for (const vxUnits::Quantity& quantity : vxUnits::quantities()) {
        if (quantity.hasNumber())
            expectNatural(quantity.dimension, vxMat::findPropertyRecord(quantity.id)->name);
    }
    for (const vxUnits::DerivedQuantity& derived : vxUnits::derivedQuantities())
        expectNatural(derived.dimension, derived.name);
}

TEST(UnitSystems, OfAUserWriteUnitsThatAreRead)
{
    for (const char* const text : {"length cm, mass g, time us", "length in, mass lb, time ms, temperature degR",
                                   "length in, mass lbf s^2/in, time s, temperature degF, current mA",
                                   "length km, mass t, time h, temperature degC", "length um, mass pg, time us"})
    {
        const UnitSystem system = parsed(text);
        for (const UnitsOfDimension& one : naturalUnits) {
            const Unit unit = system.unitOf(one.dimension);
            const auto read = Unit::parse(unit.text());
            ASSERT_TRUE(read) << unit.text();
            EXPECT_EQ(read->dimension(), one.dimension) << unit.text();
            EXPECT_NEAR(read->factor() / unit.factor(), 1.0, 1e-15) << unit.text();
        }
    }
}

TEST(UnitSystems, GiveTypedNumbersBack)
{
    std::mt19937 random(3);
    for (const UnitSystem& system : UnitSystem::builtIn()) {
        for (const UnitsOfDimension& one : naturalUnits) {
            const Unit si = UnitSystem::si().unitOf(one.dimension);
            const Unit other = system.unitOf(one.dimension);
            for (int i = 0; i < vxtest::repetitions(500, 50); ++i) {
                const double typed = static_cast<double>(random() % 1000000 + 1) / 1000.0;
                ASSERT_EQ(convertNumber(convertNumber(typed, si, other), other, si), typed) << other.text();
            }
        }
    }
}

TEST(UnitSystems, GiveLibraryMaterialsBack)
{
    for (const UnitSystem& system : UnitSystem::builtIn()) {
        for (const vxMat::LibraryEntry& entry : vxMat::libraryEntries()) {
            const auto original = entry.create();
            const auto material = entry.create();
            convertMaterial(*material, UnitSystem::si(), system);
            convertMaterial(*material, system, UnitSystem::si());
            for (const auto& [id, property] : original->properties) {
                EXPECT_EQ(material->findProperty(id)->value, property->value) << material->name << ' ' << system.text();
                EXPECT_EQ(material->findProperty(id)->values, property->values) << material->name;
            }
        }
    }
}

TEST(UnitSystems, AreCoherent)
{
    for (const UnitSystem& system : UnitSystem::builtIn()) {
        for (const vxUnits::Quantity& quantity : vxUnits::quantities()) {
            if (!quantity.hasNumber() || quantity.id == Id::CreepModulusA)
                continue;
            double product = 1.0;
            for (const auto base :
                 {Dimension::Length, Dimension::Mass, Dimension::Time, Dimension::Temperature, Dimension::Current})
                product *= std::pow(Unit::parse(system.baseUnit(base))->factor(), quantity.dimension.exponent(base));
            EXPECT_NEAR(system.unitOf(quantity.dimension).factor() / product, 1.0, 1e-14)
                << system.text() << ": " << system.unitOf(quantity.dimension).text();
        }
    }
}

TEST(UnitSystems, TheUnitOfCreepFollowsFromItsExponents)
{
    const vxUnits::CreepExponents exponents{5.0, 0.0};
    EXPECT_EQ(UnitSystem::si().unitOfCreep(exponents).text(), "1/(Pa^5 s)");
    EXPECT_EQ(UnitSystem::si().unitOfCreep({1.0, -0.667}).text(), "1/(Pa s^0.333)");
    EXPECT_TRUE(std::isnan(UnitSystem::si().unitOfCreep({2147483648.0, 1e300}).factor()));
    EXPECT_EQ(parsed("mm-t-s").unitOfCreep(exponents).text(), "1/(MPa^5 s)");
    EXPECT_EQ(parsed("in-lbf-s").unitOfCreep({4.5, -0.5}).text(), "1/(psi^4.5 s^0.5)");
    EXPECT_EQ(parsed("mm-kg-ms").unitOfCreep({1.0, -1.0}).text(), "1/GPa");
    const auto converter = converterOfQuantity(Id::CreepModulusA, UnitSystem::si(), parsed("mm-t-s"), exponents);
    EXPECT_NEAR((*converter)(1e-40), 1e-10, 1e-25);
    EXPECT_EQ(unitOfQuantity(Id::CreepModulusA, parsed("mm-t-s")).failure().code, FaultCode::UnitNotKnown);
}

TEST(UnitSystems, AreReadByNameInAnyCaseAndByOtherNames)
{
    EXPECT_EQ(parsed("si").text(), "SI");
    EXPECT_EQ(parsed(" MM-T-S ").text(), "mm-t-s");
    EXPECT_EQ(parsed("mm-tonne-s").text(), "mm-t-s");
    EXPECT_EQ(parsed("cgs").text(), "cm-g-s");
    EXPECT_EQ(parsed("m-kg-s"), UnitSystem::si());
    EXPECT_EQ(UnitSystem::builtIn().size(), 6U);
    for (const UnitSystem& system : UnitSystem::builtIn())
        EXPECT_EQ(parsed(system.text()), system);
}

TEST(UnitSystems, AUsersOwnIsReadFromItsText)
{
    const UnitSystem own = parsed("Mass g; time µs , length cm");
    EXPECT_EQ(own.text(), "length cm, mass g, time us, temperature K, current A");
    EXPECT_FALSE(own.isBuiltIn());
    EXPECT_EQ(parsed(own.text()), own);
    EXPECT_EQ(parsed("length in, mass lbf s^2/in, time s, temperature degF, current mA").text(),
              "length in, mass lbf s^2/in, time s, temperature degF, current mA");
}

TEST(UnitSystems, MayHaveUnitsOfTheDatabase)
{
    const UnitSystem own = parsed("length furlong, mass firkin/m^3 kg, time fortnight");
    EXPECT_EQ(own.unitOf(d::speed).text(), "furlong/fortnight");
}

TEST(UnitSystems, SayWhatIsWrongWithATheirText)
{
    struct Refusal
    {
        const char* text;
        const char* message;
    };
    const Refusal refusals[] = {
        {"",
         "A unit system needs a name (SI, mm-t-s, mm-kg-ms, cm-g-s, ft-slug-s, in-lbf-s) or its base units (length cm, "
         "mass g, time us)."},
        {"mm-t", "\"mm-t\" is neither the name of a unit system nor base units such as \"length cm, mass g, time us\". "
                 "Did you mean \"mm-t-s\"?"},
        {"mm, kg, ms", "\"mm, kg, ms\" is neither the name of a unit system nor base units such as \"length cm, mass "
                       "g, time us\". Did you mean \"mm-kg-ms\"?"},
        {"ips", "\"ips\" is neither the name of a unit system nor base units such as \"length cm, mass g, time us\"."},
        {"length mm, tonnes t, time s",
         "\"tonnes t\" does not begin with one of length, mass, time, temperature and current."},
        {"length mm mass t time s", "The unit \"mass\" is not known. Did you mean \"length mm, mass t, time s\"?"},
        {"length cm, mass g, time", "The unit of time is missing; a unit such as s is needed."},
        {"length -1 m, mass g, time s", "\"-1 m\" begins with a number; length needs a unit alone, such as m."},
        {"length mm, mass t", "The unit system gives no unit of time."},
        {"length mm, length cm, mass t, time s", "The unit system gives the unit of length twice."},
        {"length kg, mass t, time s", "\"kg\" measures mass; length needs a unit such as m."},
        {"length mmm, mass t, time s", "The unit \"mmm\" is not known. Did you mean \"mm\"?"},
        {"length mm, mass ton, time s", "\"ton\" has more than one meaning; write t (1000 kg), short_ton (2000 lb) or "
                                        "long_ton (2240 lb). Did you mean \"t\"?"},
        {"length, mass t, time s", "The unit of length is missing; a unit such as m is needed."},
    };
    for (const Refusal& one : refusals) {
        const auto system = UnitSystem::parse(one.text);
        ASSERT_FALSE(system) << one.text;
        EXPECT_EQ(system.failure().text(), one.message);
    }
}

} // namespace
