#include "vxDecks/Report.h"

#include "texts/DeckTexts.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <algorithm>
#include <utility>

namespace vxDecks {

namespace {

using vxUnits::Message;
using vxUnits::Translator;

std::string joined(const std::vector<Message>& messages, const Translator& translator)
{
    std::string text;
    for (const Message& message : messages)
        text += (text.empty() ? "" : "; ") + message.text(translator);
    return text;
}

/// The quantities of a material that share a line.
struct Line
{
    Outcome outcome;
    std::string how;
    std::string names;
};

std::vector<Line> linesOf(const MaterialReport& material, const Translator& translator)
{
    std::vector<Line> lines;
    for (const ReportRow& row : material.rows) {
        const std::string how = joined(row.how, translator);
        const auto same = std::find_if(lines.begin(), lines.end(), [&](const Line& line) {
            return line.outcome == row.outcome && line.how == how;
        });
        if (same != lines.end())
            same->names += ", " + row.name;
        else
            lines.push_back({row.outcome, how, row.name});
    }
    std::stable_sort(lines.begin(), lines.end(),
                     [](const Line& one, const Line& other) { return one.outcome < other.outcome; });
    return lines;
}

std::string outcomeText(Outcome outcome, const Translator& translator)
{
    static constexpr Text texts[] = {Text::Carried, Text::Converted, Text::Approximated, Text::Lost};
    return makeMessage(texts[static_cast<std::size_t>(outcome)]).text(translator);
}

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

std::vector<std::string> toLines(const Report& report, const Translator& translator)
{
    std::vector<std::string> lines;
    for (const Message& note : report.notes)
        lines.push_back(note.text(translator));
    for (const MaterialReport& material : report.materials) {
        const std::string title = material.name + ": ";
        for (const Message& note : material.notes)
            lines.push_back(title + note.text(translator));
        for (const Line& line : linesOf(material, translator)) {
            const std::string why = line.how.empty() ? std::string() : ": " + line.how;
            lines.push_back(std::string(title)
                                .append(outcomeText(line.outcome, translator))
                                .append(": ")
                                .append(line.names)
                                .append(why));
        }
    }
    return lines;
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
