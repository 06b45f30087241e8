#include "materials/Findings.h"

#include "units/ShownUnits.h"
#include "vxConstitutive/Curve.h"
#include "vxMaterial/model/NumberText.h"
#include "vxUnits/Message.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <utility>

namespace commandline {

namespace {

using vxConstitutive::Finding;
using vxConstitutive::Severity;
using vxUnits::UnitSystem;

const char* nameOf(Severity severity)
{
    static constexpr const char* names[] = {"note", "warning", "error"};
    return names[static_cast<std::size_t>(severity)];
}

std::string shown(const std::string& number, const ShownUnit& unit)
{
    return vxMat::formatGeneral(unit.convert(vxMat::readNumber(number)));
}

/// Returns where a unit stands behind the place of an argument, as in "%2 Pa"; std::string::npos if it does not.
std::size_t findUnit(const std::string& text, std::size_t argument, std::string_view unit)
{
    const std::string place = "%" + std::to_string(argument + 1) + " ";
    const std::size_t at = text.find(place);
    if (at == std::string::npos || text.compare(at + place.size(), unit.size(), unit) != 0)
        return std::string::npos;
    const std::size_t end = at + place.size() + unit.size();
    const bool isWhole = end == text.size() || std::isalnum(static_cast<unsigned char>(text[end])) == 0;
    return isWhole ? at + place.size() : std::string::npos;
}

/// Adds the unit to the abscissa of a finding that names the abscissa first. A pressure may be a multiple of an unknown
/// cohesion and gets no unit.
void addUnitOfAbscissa(const Finding& finding, const UnitSystem& system, std::vector<std::string>& arguments)
{
    using namespace vxConstitutive;
    const bool namesAbscissa = finding.id == FindingId::AbscissaOutside || finding.id == FindingId::ResultNotFinite ||
                               finding.id == FindingId::NoEquilibrium;
    if (!namesAbscissa)
        return;
    const auto& quantities = quantityRecords();
    const auto found = std::find_if(quantities.begin(), quantities.end(),
                                    [&](const QuantityRecord& record) { return record.name == arguments[0]; });
    if (found == quantities.end() || found->quantity == Quantity::Pressure)
        return;
    const std::string_view kept = found->unit;
    if (kept.empty() || kept == "1")
        return;
    const ShownUnit unit = showIn(system, found->unit);
    arguments[1] = shown(arguments[1], unit) + " " + unit.text;
}

/// Returns the text of a finding with its numbers in the units of a system.
std::string describe(const Finding& finding, const UnitSystem& system)
{
    std::string text = findingRecord(finding.id).text;
    std::vector<std::string> arguments = finding.arguments;
    addUnitOfAbscissa(finding, system, arguments);
    for (const std::string_view kept : {"Pa", "1/Pa", "s"}) {
        const ShownUnit unit = showIn(system, std::string(kept));
        for (std::size_t i = 0; unit.text != kept && i < arguments.size(); ++i) {
            const std::size_t at = findUnit(text, i, kept);
            if (at == std::string::npos)
                continue;
            text.replace(at, kept.size(), unit.text);
            arguments[i] = shown(arguments[i], unit);
        }
    }
    return vxUnits::Message{findingRecord(finding.id).key, text.c_str(), arguments}.text();
}

} // namespace

std::vector<std::string> messagesAbout(const std::string& title, const std::vector<Finding>& findings,
                                       const UnitSystem& system)
{
    std::vector<std::string> messages;
    for (const Finding& finding : findings) {
        const bool isNote = findingRecord(finding.id).severity == Severity::Note;
        messages.push_back((isNote ? "note: " : "") + title + ": " + describe(finding, system));
    }
    return messages;
}

Json::Value findingsToJson(const std::vector<Finding>& findings, const UnitSystem& system)
{
    Json::Value json = Json::arrayValue;
    for (const Finding& finding : findings) {
        const vxConstitutive::FindingRecord& record = findingRecord(finding.id);
        Json::Value item;
        item["id"] = record.key;
        item["severity"] = nameOf(record.severity);
        item["message"] = describe(finding, system);
        json.append(std::move(item));
    }
    return json;
}

} // namespace commandline
