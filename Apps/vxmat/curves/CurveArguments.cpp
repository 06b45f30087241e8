#include "curves/CurveArguments.h"

#include "materials/ModelKeys.h"
#include "program/Answer.h"
#include "program/Arguments.h"
#include "units/ShownUnits.h"

#include <cctype>
#include <string_view>
#include <utility>

namespace commandline {

namespace {

using vxConstitutive::CurveRequest;
using vxConstitutive::Mode;
using vxConstitutive::Quantity;
using vxUnits::UnitSystem;

/// Returns the unit of SI in which the library keeps a quantity.
std::string unitOf(Quantity quantity)
{
    return vxConstitutive::quantityRecord(quantity).unit;
}

bool isDigitAt(const std::string& text, std::size_t place)
{
    return place < text.size() && std::isdigit(static_cast<unsigned char>(text[place])) != 0;
}

/// Refuses a list in which some commas are directly between digits and other separators are not: "1,5, 2".
void refuseDecimalCommas(const std::string& option, const std::string& text)
{
    std::size_t between = 0;
    std::size_t others = 0;
    for (std::size_t at = text.find_first_of(",;"); at != std::string::npos; at = text.find_first_of(",;", at + 1)) {
        const bool isBetween = text[at] == ',' && at > 0 && isDigitAt(text, at - 1) && isDigitAt(text, at + 1);
        ++(isBetween ? between : others);
    }
    if (between > 0 && others > 0)
        throw Failure(option + ": \"" + text +
                      R"(" may have decimal commas; the decimal sign is a point: write "1.5, 2" or "1, 5, 2")");
}

std::vector<double> readAmounts(const std::string& option, const std::string& text, const std::string& unit,
                                const UnitSystem& system)
{
    refuseDecimalCommas(option, text);
    std::vector<double> numbers;
    std::string_view rest = text;
    while (true) {
        const std::size_t end = rest.find_first_of(",;");
        numbers.push_back(readAmount(option, std::string(rest.substr(0, end)), unit, system));
        if (end == std::string_view::npos)
            return numbers;
        rest.remove_prefix(end + 1);
    }
}

std::size_t readPoints(const CurveArguments& arguments)
{
    if (!arguments.points)
        return usualPoints;
    const std::size_t points = parseNumber("--points", *arguments.points);
    if (points == 0 || points > mostCurvePoints)
        throw Failure("--points: a curve has 1 to " + std::to_string(mostCurvePoints) + " points");
    return points;
}

void requireOneWay(const CurveArguments& arguments)
{
    if (arguments.at && (arguments.from || arguments.to || arguments.points || arguments.logarithmic))
        throw Failure("--at gives all points; --from, --to, --points and --log are then not possible");
    if (!arguments.at && (!arguments.from || !arguments.to))
        throw Failure("give the points of the curve: --from and --to, or --at");
}

std::vector<double> readAbscissas(const CurveArguments& arguments, const std::string& unit, const UnitSystem& system)
{
    requireOneWay(arguments);
    if (arguments.at)
        return readAmounts("--at", *arguments.at, unit, system);
    const double from = readAmount("--from", *arguments.from, unit, system);
    const double to = readAmount("--to", *arguments.to, unit, system);
    const std::size_t points = readPoints(arguments);
    if (!arguments.logarithmic)
        return vxConstitutive::evenlySpaced(from, to, points);
    std::vector<double> abscissas = vxConstitutive::spacedByFactor(from, to, points);
    if (abscissas.empty())
        throw Failure("--log needs bounds of the same sign that are not 0");
    return abscissas;
}

/// An option that only one mode takes.
struct OptionOfMode
{
    const char* option;
    bool given;
    Mode mode;
};

void requireMode(const CurveArguments& arguments, Mode mode)
{
    const OptionOfMode options[] = {{"--stress", arguments.stresses.has_value(), Mode::Creep},
                                    {"--time", arguments.time.has_value(), Mode::CreepRate},
                                    {"--cohesion", arguments.cohesion.has_value(), Mode::Yield}};
    for (const OptionOfMode& option : options) {
        if (option.given && option.mode != mode)
            throw Failure(std::string(option.option) + " belongs to --mode " +
                          vxConstitutive::modeRecord(option.mode).key);
    }
    if (mode == Mode::Creep && !arguments.stresses)
        throw Failure("--mode creep: give the stress of the curve, or several, such as --stress \"100 MPa, 150 MPa\"");
}

} // namespace

CurveRequest readCurveRequest(const CurveArguments& arguments, const UnitSystem& system)
{
    using namespace vxConstitutive;
    const std::string stress = unitOf(Quantity::Stress);
    CurveRequest request;
    request.mode = readMode("--mode", arguments.mode);
    requireMode(arguments, request.mode);
    request.abscissas = readAbscissas(arguments, unitOf(modeRecord(request.mode).abscissa), system);
    request.compressibility = arguments.incompressible ? Compressibility::Incompressible : Compressibility::AsGiven;
    request.detail = arguments.full ? Detail::Full : Detail::Stresses;
    request.chains = arguments.inverseLangevin ? ChainStatistics::InverseLangevin : ChainStatistics::FiveTermSeries;
    if (arguments.stresses)
        request.stresses = readAmounts("--stress", *arguments.stresses, stress, system);
    if (arguments.time)
        request.time = readAmount("--time", *arguments.time, unitOf(Quantity::Time), system);
    if (arguments.cohesion)
        request.cohesion = readAmount("--cohesion", *arguments.cohesion, stress, system);
    return request;
}

} // namespace commandline
