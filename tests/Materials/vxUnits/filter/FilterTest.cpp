#include "vxUnits/Filter.h"

#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <string>
#include <vector>

namespace {

using Id = vxMat::PropertyId;
using testing::ElementsAre;
using testing::IsEmpty;
using vxUnits::Filter;
using vxUnits::FilterSubject;
using vxUnits::MaterialValues;
using vxUnits::readFilter;
using vxUnits::UnitSystem;

/// Library materials by short names, in the order of the test data.
struct Known
{
    const char* shortName;
    const char* name;
};
constexpr Known known[] = {
    {"St", "Structural Steel"},
    {"Air", "Air"},
    {"Al", "Aluminum Alloy"},
    {"Ci", "Cast Iron"},
    {"Con", "Concrete"},
    {"Ss", "Stainless Steel"},
    {"Ti", "Titanium Alloy"},
    {"P1", "Plastic Example 1"},
    {"P2", "Plastic Example 2"},
    {"Ve", "Viscoelastic Example"},
    {"Cr", "Creep Example"},
    {"NAl", "Nonlinear Aluminum Alloy"},
    {"NCu", "Nonlinear Copper Alloy"},
    {"NSs", "Nonlinear Stainless Steel"},
    {"NSt", "Nonlinear Structural Steel"},
    {"NTi", "Nonlinear Titanium Alloy"},
    {"El1", "Elastomer 1 (Neo-Hookean)"},
    {"El2", "Elastomer 2 (Mooney-Rivlin)"},
    {"El3", "Elastomer 3 (Arruda-Boyce)"},
    {"Neo", "Neoprene Rubber"},
    {"Cu", "Copper Alloy"},
    {"Em1", "Electromangetic Material 1"},
    {"Em2", "Electromangetic Material 2"},
    {"Ac1", "Acoustic Material 1"},
    {"Ac2", "Acoustic Material 2"},
    {"Water", "Water"},
};

/// An expression, and the library materials that it finds.
struct Finding
{
    const char* expression;
    const char* found; ///< short names, each followed by a blank
};

/// Worked out from the table of the library by hand. E in GPa: St 200, Al 71, Ci 110, Con 30, Ss 194, Ti 97, the plastic,
/// viscoelastic and creep examples 206900 Pa, NAl 71, NCu 110, NSs 193, NSt 200, NTi 96, Cu 110.
const Finding findings[] = {
    // Numbers with units
    {"E > 100 GPa", "St Ci Ss NCu NSs NSt Cu "},
    {"E > 100 GPa and rho < 7.8 g/cm3", "Ci "},
    {"E < 71 GPa", "Con P1 P2 Ve Cr "},
    {"E <= 71 GPa and E > 1 GPa", "Al Con NAl "},
    {"E >= 200 GPa", "St NSt "},
    {"E = 71000 MPa", "Al NAl "},
    {"E = 200 GPa", "St NSt "},
    {"E != 200 GPa and steel", "Ss NSs "},
    {"E = 206900", "P1 P2 Ve Cr "},
    {"rho = 1 g/cm3", "Ac1 Water "},
    {"k = 238 W/(m K) and not plasticity", "Al NAl NCu Cu "},
    {"(k > 100 W/(m K)) and rho > 8000", "NCu Cu "},
    {"sspeed > 1 km/s", "Water "},
    {"dv < 20 uPa s", "Air "},
    // Ranges have both ends, in either order
    {"E 96..110 GPa", "Ci Ti NCu NTi Cu "},
    {"E = 110 GPa .. 96 GPa", "Ci Ti NCu NTi Cu "},
    {"nu 0.18..0.29", "Ci Con P1 P2 Ve Cr "},
    {"steel Density 7000..8000 and nu > 0.305", "Ss NSs "},
    {"nu != 0.28..0.33", "Con Ti NTi Cu "},
    // Names, keys, ids, symbols
    {"Young's modulus > 199 GPa", "St NSt "},
    {"youngs MODULUS > 199 GPa", "St NSt "},
    {"5 > 199 GPa", "St NSt "},
    {"e > 199 GPa", "St NSt "},
    {"\"Young's modulus\" > 199 GPa", "St NSt "},
    {"\xCF\x81 > 8000 kg/m^3", "NCu Cu "},
    {"Poisson\xE2\x80\x99s ratio = 0.18", "Con "},
    {"cp = 4184", "Water "},
    {"c > 1000", "Water "},
    // A symbol that is typed exactly wins: g is the shear relaxation modulus, G the shear modulus, k and K likewise.
    {"g = 0.5", "Ve "},
    {"G > 75 GPa", "St NSt "},                 // 200 / 2.6 = 76.9; Ss 194 / 2.64 = 73.5; NSs 193 / 2.62 = 73.7
    {"K > 179 GPa", "Ss "},                    // 194 / (3 * 0.36) = 179.6; NSs 193 / (3 * 0.38) = 169
    {"Shear modulus 26..27 GPa", "Al NAl "},   // 71 / 2.66 = 26.7
    {"Wave speed in a bar > 5.1 km/s", "Al "}, // sqrt(71e9 / 2700) = 5128; NAl sqrt(71e9 / 2770) = 5063; St 5048
    {"has K and has sspeed", ""},
    {"has Z", "Air Ac1 Ac2 Water "}, // the acoustic materials hold a density under the id of the speed of sound
    // Lists match if one number does
    {"Yield stress > 779", "P1 "},
    {"Yield stress > 780", ""},
    {"Plastic strain = 0.05", "P1 "},
    {"Plastic strain 0.06..0.09", ""},
    // Words and switches
    {"Yield type = mises", "P1 NAl NCu NSs NSt NTi "},
    {"yield criterion != Mises", "P2 "},
    {"PYield = \"Drucker-Prager\"", "P2 "},
    {"PYield = drucker prager", "P2 "},
    {"has creep", "Cr "},
    {"has Neo-Hookean or has Mooney-Rivlin", "El1 El2 Neo "},
    {"has Young's modulus steel", "St Ss NSs NSt "},
    // Labels
    {"steel", "St Ss NSs NSt "},
    {"STEEL nonlinear", "NSs NSt "},
    {"\"steel nonlinear\"", ""},
    {"\"r steel\"", ""},
    {"\"(neo-hookean)\"", "El1 "},
    {"elastomer (1)", "El1 "},
    {"creep", "Cr "},
    {"\"and\"", ""},
    // Combinations
    {"air or water", "Air Water "},
    {"air or water and rho > 100", "Air Water "},
    {"(air or water) and rho > 100", "Water "},
    {"not has rho", "Em1 Em2 "},
    {"not not has Creep", "Cr "},
    {"not (rho > 0 or has epsilonr)", ""},
    {"steel and not nonlinear and not stainless", "St "},
    {"steel AND NOT (nonlinear OR stainless)", "St "},
    {"titanium or copper or has creep and nu > 0.3", "Ti NCu NTi Cu "},
    {"E>199GPa and(nu<0.31)", "St NSt "},
    // Full-width signs, and signs of mathematics
    {"E \xEF\xBC\x9E 199 GPa", "St NSt "},
    {"E \xE2\x89\xA5 200 GPa", "St NSt "},
    {"\xEF\xBC\x88"
     "air or water\xEF\xBC\x89 rho \xE2\x89\xA0 1.225",
     "Water "},
    {"\xE2\x80\x9Cstructural steel\xE2\x80\x9D", "St NSt "},
};

class LibraryFilter : public testing::Test
{
protected:
    LibraryFilter() { m_library.initMaterialLibrary(); }

    std::string find(const std::string& expression, const vxUnits::ReadingContext& context = {}) const
    {
        const auto reading = readFilter(expression, context);
        if (!reading)
            return reading.failure.text();
        std::string found;
        for (const auto& [shortName, name] : known)
            if (reading.filter->matches(FilterSubject(name, MaterialValues(materialOf(name)))))
                found += std::string(shortName) + " ";
        return found;
    }

    const vxMat::MaterialBase& materialOf(const std::string& name) const
    {
        const auto found = std::find_if(m_library.materials.begin(), m_library.materials.end(),
                                        [&name](const auto& entry) { return entry.second->name == name; });
        EXPECT_NE(found, m_library.materials.end()) << name;
        return *found->second;
    }

private:
    vxMat::MatDBManager m_library;
};

TEST_F(LibraryFilter, FindsTheMaterialsThatAreFoundByHand)
{
    for (const auto& [expression, found] : findings)
        EXPECT_EQ(find(expression), found) << expression;
}

TEST_F(LibraryFilter, ReadsPlainNumbersInTheUnitSystemOfTheContext)
{
    const UnitSystem millimetres = *UnitSystem::parse("mm-t-s");
    vxUnits::ReadingContext context;
    context.plainNumbers = &millimetres;
    EXPECT_EQ(find("E > 199000", context), "St NSt ");
    EXPECT_EQ(find("E > 199 GPa", context), "St NSt ");
    EXPECT_EQ(find("G 75000..78000", context), "St NSt ");
    EXPECT_EQ(find("rho > 8e-9", context), "NCu Cu ");
}

TEST(Filters, OfNothingMatchEverythingAndOthersNameTheirQuantities)
{
    const Filter all = *readFilter("  ").filter;
    EXPECT_TRUE(all.isEmpty());
    EXPECT_FALSE(all.looksAtValues());
    EXPECT_TRUE(all.matches(FilterSubject("anything")));
    EXPECT_TRUE(Filter().matches(FilterSubject("")));

    const Filter label = *readFilter("steel").filter;
    EXPECT_FALSE(label.isEmpty());
    EXPECT_FALSE(label.looksAtValues());

    const Filter named = *readFilter("rho > 1 and (G > 2 or has Creep) and rho < 3").filter;
    std::vector<std::string> names;
    for (const auto& quantity : named.quantities())
        names.emplace_back(quantity.name());
    EXPECT_THAT(names, ElementsAre("Density", "Shear modulus", "Creep"));
}

TEST(Filters, TakeNumbersAsEqualWithinTheTolerance)
{
    const auto holds = [](const std::string& expression, double number) {
        MaterialValues values;
        values.setNumber(Id::Density, number);
        return readFilter(expression).filter->matches(FilterSubject("", values));
    };
    // 0.9 of a millionth is equal, 1.1 of it is not.
    for (const double near : {1000.0009, 999.9991, 1000.0}) {
        EXPECT_TRUE(holds("rho = 1000", near));
        EXPECT_TRUE(holds("rho <= 1000", near));
        EXPECT_TRUE(holds("rho >= 1000", near));
        EXPECT_FALSE(holds("rho < 1000", near));
        EXPECT_FALSE(holds("rho > 1000", near));
        EXPECT_FALSE(holds("rho != 1000", near));
    }
    EXPECT_TRUE(holds("rho > 1000", 1000.0011));
    EXPECT_TRUE(holds("rho < 1000", 999.9989));
    EXPECT_TRUE(holds("rho != 1000", 1000.0011));
    EXPECT_TRUE(holds("rho = 0", 0.0));
    EXPECT_FALSE(holds("rho = 0", 1e-300));
    EXPECT_TRUE(holds("rho < 0", -1e-300));
    EXPECT_TRUE(holds("rho -2..-1", -1.5));
}

TEST(Filters, CompareInfinitiesAndNeverNotANumber)
{
    const double infinity = std::numeric_limits<double>::infinity();
    MaterialValues values;
    values.setNumber(Id::Density, infinity);
    EXPECT_TRUE(readFilter("rho > 1e308").filter->matches(FilterSubject("", values)));
    values.setNumber(Id::Density, -infinity);
    EXPECT_TRUE(readFilter("rho < 0").filter->matches(FilterSubject("", values)));
    values.setNumber(Id::Density, std::nan(""));
    for (const char* const expression : {"rho < 0", "rho > 0", "rho = 0", "rho != 0", "rho >= 0", "rho <= 0"})
        EXPECT_FALSE(readFilter(expression).filter->matches(FilterSubject("", values))) << expression;
    EXPECT_TRUE(readFilter("not rho > 0").filter->matches(FilterSubject("", values)));
}

TEST(Filters, FindLettersOfManyScriptsWithoutCase)
{
    const auto holds = [](const char* expression, const char* label) {
        return readFilter(expression).filter->matches(FilterSubject(label));
    };
    EXPECT_TRUE(holds("\xC3\x84TZ", "Ge\xC3\xA4tztes Blech"));                                  // AE TZ in Geaetztes
    EXPECT_TRUE(holds("\xD0\xA1\xD0\xA2\xD0\x90", "\xD1\x81\xD1\x82\xD0\xB0\xD0\xBB\xD1\x8C")); // Cyrillic
    EXPECT_TRUE(holds("\xE9\x92\xA2", "\xE7\xBB\x93\xE6\x9E\x84\xE9\x92\xA2"));                 // Chinese: steel
    EXPECT_FALSE(holds("\xE9\x93\x9D", "\xE7\xBB\x93\xE6\x9E\x84\xE9\x92\xA2"));
    EXPECT_TRUE(holds("\"E > 5\"", "wood, E > 5"));
    EXPECT_TRUE(holds("St-37", "steel ST-37"));
}

TEST(Filters, TellQuantitiesApartThatDifferInCaseAlone)
{
    const auto nameOf = [](const std::string& symbol) {
        return std::string(readFilter("has " + symbol).filter->quantities().front().name());
    };
    EXPECT_EQ(nameOf("k"), "Thermal conductivity");
    EXPECT_EQ(nameOf("K"), "Bulk modulus");
    EXPECT_EQ(nameOf("g"), "Shear relaxation modulus");
    EXPECT_EQ(nameOf("G"), "Shear modulus");
    EXPECT_EQ(nameOf("a"), "Thermal diffusivity");
    EXPECT_EQ(nameOf("A"), "Creep Modulus A");
    EXPECT_EQ(nameOf("m"), "Creep Modulus M");
    EXPECT_EQ(nameOf("M"), "Constrained modulus");
    EXPECT_EQ(nameOf("C"), "Speed of sound");
}

TEST(Filters, ReadTheNameOfEveryQuantity)
{
    for (const vxUnits::Quantity& quantity : vxUnits::quantities()) {
        const vxUnits::FilterQuantity named{quantity.id, nullptr};
        const auto reading = readFilter("has " + std::string(named.name()));
        ASSERT_TRUE(reading) << named.name();
        EXPECT_THAT(reading.filter->quantities(), ElementsAre(named)) << named.name();
    }
    std::set<std::string> ids;
    for (const vxUnits::DerivedQuantity& derived : vxUnits::derivedQuantities()) {
        const vxUnits::FilterQuantity named{0, &derived};
        EXPECT_THAT(readFilter("has " + std::string(derived.name)).filter->quantities(), ElementsAre(named));
        EXPECT_THAT(readFilter("has " + std::string(derived.symbol)).filter->quantities(), ElementsAre(named));
        ids.insert(derived.id);
    }
    EXPECT_EQ(ids.size(), 20U);
}

TEST(FilterSubjects, TakeNewValues)
{
    FilterSubject subject("Frame");
    EXPECT_FALSE(subject.hasValues());
    const Filter filter = *readFilter("Acoustic impedance > 1000").filter;
    EXPECT_FALSE(filter.matches(subject));
    MaterialValues values;
    values.setNumber(Id::Density, 1000.0);
    values.setNumber(Id::SpeedOfSound, 1500.0);
    subject.setValues(values);
    EXPECT_TRUE(filter.matches(subject));
    values.setNumber(Id::Density, 0.1);
    subject.setValues(values);
    EXPECT_FALSE(filter.matches(subject));
}

} // namespace
