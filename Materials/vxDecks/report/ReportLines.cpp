#include "texts/DeckTexts.h"
#include "texts/ReadingTexts.h"
#include "vxDecks/Report.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <tuple>
#include <utility>

namespace vxDecks {

namespace {

using vxUnits::Message;
using vxUnits::Translator;

/// The number of materials that are told one by one. The materials of a longer report share lines.
constexpr std::size_t mostOneByOne = 10;

/// The number of materials that a line names.
constexpr std::size_t mostNames = 3;

/// The number of different texts of one kind of message that are told. Of more texts, one is an example.
constexpr std::size_t mostTexts = 3;

std::string joined(const std::vector<Message>& messages, const Translator& translator)
{
    std::string text;
    for (const Message& message : messages)
        text += (text.empty() ? "" : "; ") + message.text(translator);
    return text;
}

std::string idsOf(const std::vector<Message>& messages)
{
    return std::accumulate(messages.begin(), messages.end(), std::string(),
                           [](const std::string& all, const Message& message) { return all + message.id + ";"; });
}

/// The kind of a line, in the order of lines.
enum class Kind
{
    Note,
    Finding,
    Carried,
    Converted,
    Approximated,
    Lost,
};

Kind kindOf(Outcome outcome)
{
    return static_cast<Kind>(static_cast<int>(Kind::Carried) + static_cast<int>(outcome));
}

/// A part of the report of one material.
struct Part
{
    Kind kind = Kind::Note;
    std::string quantity; ///< empty if the part is not about one
    std::string text;     ///< the reason; may be empty
    std::string ids;      ///< of the messages in the text; parts with the same ones may share a line
};

std::vector<Part> partsOf(const MaterialReport& material, const Translator& translator)
{
    std::vector<Part> parts;
    for (const Message& note : material.notes)
        parts.push_back({Kind::Note, {}, note.text(translator), note.id});
    for (const Finding& finding : material.findings)
        parts.push_back(
            {Kind::Finding, {}, textOf(finding, translator), finding.message.id + (";" + std::to_string(finding.id))});
    for (const ReportRow& row : material.rows)
        parts.push_back({kindOf(row.outcome), row.name, joined(row.how, translator), idsOf(row.how)});
    return parts;
}

/// Materials by their indices, in ascending order.
using Indices = std::vector<std::size_t>;

/// The parts of one kind, about the same quantity and with the same messages, by their texts.
struct Group
{
    Kind kind = Kind::Note;
    std::string quantity;
    std::vector<std::pair<std::string, Indices>> texts;
};

/// One line: what several materials have in common.
struct Line
{
    Kind kind = Kind::Note;
    std::string quantities;
    std::string text;
    Indices materials;
};

/// Makes the lines of materials.
class Lines
{
public:
    Lines(const Report& report, const Translator& translator) : m_report(report), m_translator(translator) {}

    /// Adds the lines of the materials from one index up to another one.
    void add(std::size_t from, std::size_t end, std::vector<std::string>& texts) const;

private:
    std::vector<Group> groups(std::size_t from, std::size_t end) const;
    std::vector<Line> lines(const std::vector<Group>& groups) const;
    Line exampleOf(const Group& group) const;
    std::string titleOf(const Indices& materials) const;
    std::string toText(const Line& line) const;

    const Report& m_report;
    const Translator& m_translator;
};

std::vector<Group> Lines::groups(std::size_t from, std::size_t end) const
{
    std::vector<Group> groups;
    std::map<std::tuple<Kind, std::string, std::string>, std::size_t> places;
    std::map<std::pair<std::size_t, std::string>, std::size_t> textPlaces;
    for (std::size_t material = from; material < end; ++material) {
        for (Part& part : partsOf(m_report.materials[material], m_translator)) {
            const auto [place, isNew] = places.try_emplace({part.kind, part.quantity, part.ids}, groups.size());
            if (isNew)
                groups.push_back({part.kind, part.quantity, {}});
            Group& group = groups[place->second];
            const auto [textPlace, isNewText] = textPlaces.try_emplace({place->second, part.text}, group.texts.size());
            if (isNewText)
                group.texts.emplace_back(std::move(part.text), Indices());
            Indices& indices = group.texts[textPlace->second].second;
            if (indices.empty() || indices.back() != material)
                indices.push_back(material);
        }
    }
    return groups;
}

/// Returns the line of a group of too many texts.
Line Lines::exampleOf(const Group& group) const
{
    Line line{group.kind, group.quantity, {}, {}};
    for (const auto& [text, indices] : group.texts)
        line.materials.insert(line.materials.end(), indices.begin(), indices.end());
    std::sort(line.materials.begin(), line.materials.end());
    line.materials.erase(std::unique(line.materials.begin(), line.materials.end()), line.materials.end());
    const std::string& name = m_report.materials[group.texts.front().second.front()].name;
    line.text = makeMessage(Text::Example, {name, group.texts.front().first}).text(m_translator);
    return line;
}

/// Returns the lines of groups. Quantities with the same outcome, text and materials share a line.
std::vector<Line> Lines::lines(const std::vector<Group>& groups) const
{
    std::vector<Line> lines;
    std::map<std::tuple<Kind, std::string, Indices>, std::size_t> places;
    const auto add = [&](Line line) {
        const auto [place, isNew] = places.try_emplace({line.kind, line.text, line.materials}, lines.size());
        if (isNew)
            lines.push_back(std::move(line));
        else if (!line.quantities.empty())
            lines[place->second].quantities += ", " + line.quantities;
    };
    for (const Group& group : groups) {
        const bool isOfOneMaterial = group.texts.front().second.front() == group.texts.back().second.back();
        if (group.texts.size() > mostTexts && !isOfOneMaterial) {
            add(exampleOf(group));
            continue;
        }
        for (const auto& [text, indices] : group.texts)
            add({group.kind, group.quantity, text, indices});
    }
    std::stable_sort(lines.begin(), lines.end(),
                     [](const Line& one, const Line& other) { return one.kind < other.kind; });
    return lines;
}

/// Returns "Steel", or "12 materials (Steel, Iron, Copper, ...)".
std::string Lines::titleOf(const Indices& materials) const
{
    std::string names;
    for (std::size_t i = 0; i < std::min(materials.size(), mostNames); ++i)
        names += (names.empty() ? "" : ", ") + m_report.materials[materials[i]].name;
    if (materials.size() == 1)
        return names;
    if (materials.size() > mostNames)
        names += ", ...";
    return makeMessage(Text::SeveralMaterials, {std::to_string(materials.size()), names}).text(m_translator);
}

std::string Lines::toText(const Line& line) const
{
    static constexpr Text outcomes[] = {Text::Carried, Text::Converted, Text::Approximated, Text::Lost};
    std::string text = titleOf(line.materials);
    if (line.kind >= Kind::Carried) {
        const auto outcome = static_cast<std::size_t>(line.kind) - static_cast<std::size_t>(Kind::Carried);
        text += ": " + makeMessage(outcomes[outcome]).text(m_translator) + ": " + line.quantities;
    }
    return line.text.empty() ? text : text + ": " + line.text;
}

void Lines::add(std::size_t from, std::size_t end, std::vector<std::string>& texts) const
{
    for (const Line& line : lines(groups(from, end)))
        texts.push_back(toText(line));
}

} // namespace

std::string textOf(const Finding& finding, const Translator& translator)
{
    std::string text = finding.message.text(translator);
    if (finding.line == 0)
        return finding.card + ": " + text;
    return makeMessage(ReadText::FindingInLine, {std::to_string(finding.line), finding.card, std::move(text)})
        .text(translator);
}

std::vector<std::string> toLines(const Report& report, const Translator& translator)
{
    std::vector<std::string> texts;
    for (const Message& note : report.notes)
        texts.push_back(note.text(translator));
    const Lines lines(report, translator);
    const std::size_t count = report.materials.size();
    const std::size_t step = count > mostOneByOne ? count : 1;
    for (std::size_t from = 0; from < count; from += step)
        lines.add(from, from + step, texts);
    return texts;
}

} // namespace vxDecks
