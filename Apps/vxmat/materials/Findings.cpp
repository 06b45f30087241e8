#include "materials/Findings.h"

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

} // namespace

std::vector<std::string> messagesAbout(const std::string& title, const std::vector<Finding>& findings,
                                       const UnitSystem& system)
{
    std::vector<std::string> messages;
    for (const Finding& finding : findings) {
        const bool isNote = findingRecord(finding.id).severity == Severity::Note;
        messages.push_back((isNote ? "note: " : "") + title + ": " + describe(finding, {}, system));
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
        item["message"] = describe(finding, {}, system);
        json.append(std::move(item));
    }
    return json;
}

} // namespace commandline
