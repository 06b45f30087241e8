#include "vxUnits/Unit.h"
#include "vxUnits/UnitSystem.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <udunits2.h>

/// The definitions of the built-in units against those of UDUNITS.
namespace {

using vxUnits::Unit;
using vxUnits::UnitSystem;

struct FreeSystem
{
    void operator()(ut_system* system) const { ut_free_system(system); }
};
struct FreeUnit
{
    void operator()(ut_unit* unit) const { ut_free(unit); }
};
struct FreeConverter
{
    void operator()(cv_converter* converter) const { cv_free(converter); }
};

class Udunits
{
public:
    Udunits() : m_system(ut_read_xml(nullptr)) {}

    /// Returns one unit in another one; absent if a unit is not known, or the dimensions differ.
    std::optional<double> factor(const std::string& from, const std::string& to) const
    {
        const std::unique_ptr<ut_unit, FreeUnit> one(ut_parse(m_system.get(), from.c_str(), UT_UTF8));
        const std::unique_ptr<ut_unit, FreeUnit> other(ut_parse(m_system.get(), to.c_str(), UT_UTF8));
        if (!one || !other || ut_are_convertible(one.get(), other.get()) == 0)
            return std::nullopt;
        const std::unique_ptr<cv_converter, FreeConverter> converter(ut_get_converter(one.get(), other.get()));
        return cv_convert_double(converter.get(), 1.0);
    }

private:
    std::unique_ptr<ut_system, FreeSystem> m_system;
};

/// The units of which UDUNITS has another definition, and why.
const std::map<std::string, std::string> different = {
    {"slug", "rounded to six digits"},
    {"ozf", "rounded to seven digits"},
    {"hp", "rounded to seven digits"},
    {"Torr", "the millimetre of mercury instead of 1/760 atm"},
    {"eV", "a value before the definition of 2019"},
    {"yr", "the tropical year"},
};

TEST(BuiltInUnits, HaveTheDefinitionsOfUdunits)
{
    ut_set_error_message_handler(ut_ignore);
    const Udunits udunits;
    int compared = 0;
    for (const Unit& unit : vxUnits::builtInUnits()) {
        const auto factor = udunits.factor(unit.text(), UnitSystem::si().unitOf(unit.dimension()).text());
        if (unit.isTemperatureScale() || !factor)
            continue;
        ++compared;
        const double error = std::abs(*factor / unit.factor() - 1.0);
        EXPECT_EQ(error < 1e-9, different.count(unit.text()) == 0) << unit.text() << ": " << *factor;
    }
    EXPECT_GE(compared, 60);
}

} // namespace
