#include "vxDecks/Report.h"

#include "vxMaterial/model/PropertyCatalogue.h"

#include <algorithm>
#include <utility>

namespace vxDecks {

namespace {

using vxUnits::Message;

Json::Value toJson(const std::vector<Message>& messages)
{
    Json::Value list(Json::arrayValue);
    for (const Message& message : messages) {
        Json::Value item;
        item["id"] = message.id;
        item["text"] = message.text();
        list.append(std::move(item));
    }
    return list;
}

Json::Value toJson(const Finding& finding)
{
    Json::Value json;
    json["id"] = finding.message.id;
    json["text"] = finding.message.text();
    json["key"] = vxMat::findPropertyRecord(finding.id)->key;
    json["card"] = finding.card;
    json["line"] = finding.line == 0 ? Json::Value() : Json::Value(static_cast<Json::UInt64>(finding.line));
    return json;
}

Json::Value toJson(const ReportRow& row)
{
    Json::Value json;
    const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(row.slot);
    json["id"] = row.slot;
    json["name"] = row.name;
    json["key"] = record != nullptr ? Json::Value(record->key) : Json::Value();
    json["outcome"] = nameOf(row.outcome);
    json["card"] = row.card.empty() ? Json::Value() : Json::Value(row.card);
    json["how"] = toJson(row.how);
    json["refused"] = row.refused;
    return json;
}

Json::Value toJson(const MaterialReport& material)
{
    Json::Value json;
    json["name"] = material.name;
    json["written_name"] = material.writtenName;
    json["number"] = material.id == 0 ? Json::Value() : Json::Value(material.id);
    json["notes"] = toJson(material.notes);
    json["findings"] = Json::arrayValue;
    for (const Finding& finding : material.findings)
        json["findings"].append(toJson(finding));
    json["quantities"] = Json::arrayValue;
    for (const ReportRow& row : material.rows)
        json["quantities"].append(toJson(row));
    return json;
}

} // namespace

const char* nameOf(Outcome outcome)
{
    static constexpr const char* names[] = {"carried", "converted", "approximated", "lost"};
    return names[static_cast<std::size_t>(outcome)];
}

std::size_t countRefused(const Report& report)
{
    std::size_t count = 0;
    for (const MaterialReport& material : report.materials)
        count += static_cast<std::size_t>(std::count_if(material.rows.begin(), material.rows.end(),
                                                        [](const ReportRow& row) { return row.refused; }));
    return count;
}

std::size_t countFindings(const Report& report)
{
    std::size_t count = 0;
    for (const MaterialReport& material : report.materials)
        count += material.findings.size();
    return count;
}

Json::Value toJson(const Report& report)
{
    Json::Value json;
    json["format"] = infoOf(report.format).name;
    json["units"] = report.units;
    json["notes"] = toJson(report.notes);
    json["materials"] = Json::arrayValue;
    for (const MaterialReport& material : report.materials)
        json["materials"].append(toJson(material));
    return json;
}

} // namespace vxDecks
