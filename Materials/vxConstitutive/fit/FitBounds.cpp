#include "vxConstitutive/fit/FitBounds.h"

#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Reading.h"

#include <optional>
#include <utility>
#include <vector>

namespace vxConstitutive {

namespace {

using vxMat::PropertyId;

/// What is fitted to the tests of a mode.
enum class Family
{
    Rubber,
    Metal,
    Creep,
    Relaxation
};

Family familyOf(Mode mode)
{
    switch (mode) {
    case Mode::Plastic:
    case Mode::Tensile:
        return Family::Metal;
    case Mode::Creep:
    case Mode::CreepRate:
        return Family::Creep;
    case Mode::Relaxation:
        return Family::Relaxation;
    default:
        return Family::Rubber;
    }
}

/// A constant of a model that can be bounded.
struct BoundedConstant
{
    const char* symbol;
    std::int32_t propertyId;
    Family family;
};

constexpr BoundedConstant boundedConstants[]{
    {"C10", PropertyId::MaterialConstantC10, Family::Rubber},
    {"C01", PropertyId::MaterialConstantC01, Family::Rubber},
    {"C11", PropertyId::MaterialConstantC11, Family::Rubber},
    {"Mu", PropertyId::InitialShearModulusMu, Family::Rubber},
    {"lm", PropertyId::LimitingNetworkStretch, Family::Rubber},
    {"sigma0", PropertyId::PlasticInitialYieldStress, Family::Metal},
    {"H", PropertyId::PlasticHardeningFactor, Family::Metal},
    {"A", PropertyId::CreepModulusA, Family::Creep},
    {"n", PropertyId::CreepModulusN, Family::Creep},
    {"m", PropertyId::CreepModulusM, Family::Creep},
    {"g", PropertyId::ShearRelaxationModulus, Family::Relaxation},
    {"tau", PropertyId::RelaxationTime, Family::Relaxation},
};

std::string trimmed(std::string_view text)
{
    constexpr const char* blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string()
                                           : std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

/// Reads one bound.
class BoundReader
{
public:
    BoundReader(Mode mode, const vxUnits::UnitSystem& system, const vxUnits::Translator& translator)
        : m_family(familyOf(mode)), m_system(system), m_translator(translator)
    {}

    /// Returns whether the text could be read.
    bool read(std::string_view text, BoundsById& bounds)
    {
        const std::size_t sign = text.find('=');
        if (sign == std::string_view::npos)
            return fail(makeFinding(FindingId::BoundForm, {trimmed(text)}));
        if (!find(trimmed(text.substr(0, sign))))
            return false;
        const std::string_view range = text.substr(sign + 1);
        const std::size_t colon = range.find(':');
        const bool isRange = colon != std::string_view::npos;
        const auto lower = side(range.substr(0, colon), -infinity, isRange);
        const auto upper = isRange && lower ? side(range.substr(colon + 1), infinity, true) : lower;
        if (!lower || !upper)
            return false;
        if (*lower > *upper)
            return fail(makeFinding(FindingId::BoundOrder, {std::string(m_constant->symbol)}));
        bounds[m_constant->propertyId] = {*lower, *upper};
        return true;
    }

    std::string takeProblem() { return std::move(m_problem); }

private:
    static constexpr double infinity = std::numeric_limits<double>::infinity();

    bool fail(const Finding& finding)
    {
        m_problem = describe(finding, m_translator);
        return false;
    }

    bool find(const std::string& symbol)
    {
        std::string possible;
        for (const BoundedConstant& constant : boundedConstants) {
            if (constant.family != m_family)
                continue;
            if (symbol == constant.symbol)
                m_constant = &constant;
            possible += (possible.empty() ? "" : ", ") + std::string(constant.symbol);
        }
        return m_constant != nullptr || fail(makeFinding(FindingId::BoundUnknown, {symbol, possible}));
    }

    std::optional<double> side(std::string_view text, double ifEmpty, bool mayBeEmpty)
    {
        const std::string number = trimmed(text);
        if (number.empty() && mayBeEmpty)
            return ifEmpty;
        vxUnits::ReadingContext context;
        if (m_constant->propertyId != PropertyId::CreepModulusA)
            context.plainNumbers = &m_system;
        const auto reading = vxUnits::readQuantity(m_constant->propertyId, number, context);
        if (reading)
            return reading->value;
        fail(makeFinding(FindingId::BoundUnreadable,
                         {std::string(m_constant->symbol), reading.failure().text(m_translator)}));
        return std::nullopt;
    }

    Family m_family;
    const vxUnits::UnitSystem& m_system;
    const vxUnits::Translator& m_translator;
    const BoundedConstant* m_constant = nullptr;
    std::string m_problem;
};

} // namespace

std::string readBound(std::string_view text, Mode mode, const vxUnits::UnitSystem& system, BoundsById& bounds,
                      const vxUnits::Translator& translator)
{
    BoundReader reader(mode, system, translator);
    reader.read(text, bounds);
    return reader.takeProblem();
}

BoundsReading readBounds(std::string_view text, Mode mode, const vxUnits::UnitSystem& system,
                         const vxUnits::Translator& translator)
{
    BoundsReading reading;
    while (!text.empty() && reading.problem.empty()) {
        const std::size_t end = text.find(';');
        const std::string_view bound = text.substr(0, end);
        if (!trimmed(bound).empty())
            reading.problem = readBound(bound, mode, system, reading.bounds, translator);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    }
    if (!reading.problem.empty())
        reading.bounds.clear();
    return reading;
}

} // namespace vxConstitutive
