#include "Contest.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Filter.h"
#include "vxUnits/Plausibility.h"
#include "vxUnits/Reading.h"
#include "vxUnits/Unit.h"

#include <memory>
#include <numeric>
#include <string>
#include <udunits2.h>
#include <vector>

/// Conversions and readings against UDUNITS, which does both for a text that it takes.
namespace {

using vxbench::timed;
using vxUnits::Converter;
using vxUnits::Unit;

constexpr std::size_t million = 1000000;
constexpr double limit = 1.5;

/// Read when it is first needed, so that a process that measures the other side does not hold it.
ut_system* database()
{
    static ut_system* const system = [] {
        ut_set_error_message_handler(ut_ignore);
        return ut_read_xml(nullptr);
    }();
    return system;
}

struct FreeUnit
{
    void operator()(ut_unit* unit) const { ut_free(unit); }
};
struct FreeConverter
{
    void operator()(cv_converter* converter) const { cv_free(converter); }
};
using UnitPointer = std::unique_ptr<ut_unit, FreeUnit>;
using ConverterPointer = std::unique_ptr<cv_converter, FreeConverter>;

ConverterPointer otherConverter(const char* from, const char* to)
{
    const UnitPointer one(ut_parse(database(), from, UT_UTF8));
    const UnitPointer other(ut_parse(database(), to, UT_UTF8));
    return ConverterPointer(ut_get_converter(one.get(), other.get()));
}

std::vector<double> numbers()
{
    std::vector<double> made(million);
    std::iota(made.begin(), made.end(), 1.0);
    return made;
}

std::chrono::nanoseconds convertByOurs(const char* from, const char* to)
{
    static const std::vector<double> in = numbers();
    static std::vector<double> out(million);
    const Converter converter = *Converter::between(*Unit::parse(from), *Unit::parse(to));
    return timed([&] {
        converter.convert(in.data(), in.size(), out.data());
        return out.back();
    });
}

std::chrono::nanoseconds convertByOther(const char* from, const char* to)
{
    static const std::vector<double> in = numbers();
    static std::vector<double> out(million);
    const ConverterPointer converter = otherConverter(from, to);
    return timed([&] {
        for (std::size_t i = 0; i < million; ++i)
            out[i] = cv_convert_double(converter.get(), in[i]);
        return out.back();
    });
}

void addConversion(const char* from, const char* to)
{
    vxbench::addContest({std::string("a million numbers from ") + from + " to " + to,
                         [=] { return convertByOurs(from, to); }, [=] { return convertByOther(from, to); }, limit,
                         false});
}

/// Numbers that are rounded as if they were typed in the unit, as the programs convert the numbers of materials.
void addMaterialConversion(const char* from, const char* to)
{
    constexpr int times = 1000;
    const auto ours = [=] {
        const Unit one = *Unit::parse(from);
        const Unit other = *Unit::parse(to);
        return timed([&] {
            double sum = 0.0;
            for (int i = 0; i < times; ++i)
                sum += vxUnits::convertNumber(i + 0.1, one, other);
            return sum;
        });
    };
    const auto other = [=] {
        const ConverterPointer converter = otherConverter(from, to);
        return timed([&] {
            double sum = 0.0;
            for (int i = 0; i < times; ++i)
                sum += cv_convert_double(converter.get(), i + 0.1);
            return sum;
        });
    };
    vxbench::addContest({std::string("a thousand numbers, rounded once, from ") + from + " to " + to, ours, other, 0.0,
                         false}); // no limit: the other side rounds twice
}

/// What each side makes of a text of one unit; UDUNITS takes the unit without the number.
void addReading()
{
    constexpr int times = 1000;
    const auto ours = [] {
        return timed([] {
            double sum = 0.0;
            for (int i = 0; i < times; ++i)
                sum += vxUnits::readQuantity(vxMat::PropertyId::ThermalConductivity, "31 Btu/(h ft degF)")->value;
            return sum;
        });
    };
    const auto other = [] {
        database();
        return timed([] {
            double sum = 0.0;
            for (int i = 0; i < times; ++i)
                sum += cv_convert_double(otherConverter("Btu/(h ft degF)", "W/(m K)").get(), 31.0);
            return sum;
        });
    };
    vxbench::addContest({"a thousand texts read", ours, other, 0.0, false});
}

/// The check of a library material, which an editor makes at each keystroke, against a tenth of the 16 ms of a frame.
void addCheck(vxMat::eMaterialType type)
{
    const std::shared_ptr<const vxMat::MaterialBase> material = vxMat::createLibraryMaterial(type);
    const auto ours = [material] { return timed([&] { return vxUnits::checkPlausibility(*material); }); };
    vxbench::addContest({"plausibility of " + material->name + " / a tenth of a frame", ours,
                         [] { return std::chrono::microseconds(1600); }, 1.0, false});
}

/// Ten thousand materials with the values of steel, which differ.
std::vector<vxUnits::FilterSubject> manySubjects()
{
    constexpr int count = 10000;
    const auto material = vxMat::createLibraryMaterial(vxMat::eMaterialType::StructuralSteel);
    std::vector<vxUnits::FilterSubject> subjects;
    for (int i = 0; i < count; ++i) {
        vxUnits::MaterialValues values(*material);
        values.setNumber(vxMat::PropertyId::YoungsModulus, 2e7 * (i * 7919 % count));
        values.setNumber(vxMat::PropertyId::Density, 1.0 * (i * 104729 % count));
        subjects.emplace_back("Material " + std::to_string(i), std::move(values));
    }
    return subjects;
}

/// A filter over the values of many materials against a loop that compares the same values with the same numbers.
void addFilter()
{
    static const auto subjects = vxbench::lazily(manySubjects);
    const auto ours = [] {
        const vxUnits::Filter filter = *vxUnits::readFilter("E > 100 GPa and rho < 3 g/cm3").filter;
        const auto& all = subjects();
        return timed([&] {
            std::size_t found = 0;
            for (const vxUnits::FilterSubject& subject : all)
                found += filter.matches(subject) ? 1 : 0;
            return found;
        });
    };
    const auto other = [] {
        const auto& all = subjects();
        return timed([&] {
            std::size_t found = 0;
            for (const vxUnits::FilterSubject& subject : all) {
                const bool isStiff = subject.number(vxMat::PropertyId::YoungsModulus) > 1e11;
                found += isStiff && subject.number(vxMat::PropertyId::Density) < 3000.0 ? 1 : 0;
            }
            return found;
        });
    };
    constexpr double limitOfFilter = 2.0;
    vxbench::addContest({"a filter over 10,000 materials", ours, other, limitOfFilter, false});
}

} // namespace

int main(int argc, char** argv) // NOLINT(bugprone-exception-escape): a text that is refused ends the measurement
{
    addConversion("MPa", "Pa");
    addConversion("Pa", "GPa");
    addConversion("psi", "Pa");
    addConversion("W/(m K)", "mW/(mm K)");
    addMaterialConversion("psi", "Pa");
    addReading();
    addFilter();
    addCheck(vxMat::eMaterialType::StructuralSteelNL); // the largest one
    addCheck(vxMat::eMaterialType::CreepMaterial1);    // with doubts, for which remedies are looked for
    return vxbench::runContests(argc, argv);
}
