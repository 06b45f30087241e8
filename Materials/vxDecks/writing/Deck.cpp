#include "vxDecks/Deck.h"

#include "texts/DeckTexts.h"
#include "vxMaterial/model/NumberText.h"
#include "writing/DeckWriter.h"

#include <algorithm>
#include <utility>

namespace vxDecks {

namespace {

using vxUnits::UnitSystem;

std::unique_ptr<DeckWriter> makeWriter(Format format)
{
    switch (format) {
    case Format::Nastran:
        return makeCardWriter(nastranFormat());
    case Format::Apdl:
        return makeCardWriter(apdlFormat());
    case Format::LsDyna:
        return makeCardWriter(lsDynaFormat());
    case Format::Elmer:
        return makeCardWriter(elmerFormat());
    case Format::Matml:
        return makeMatmlWriter();
    case Format::Calculix:
        break;
    }
    return makeCardWriter(calculixFormat());
}

std::vector<std::uint32_t> numbersOf(const std::vector<DeckMaterial>& materials, std::uint32_t largest,
                                     const DeckOptions& options)
{
    if (largest == 0)
        return std::vector<std::uint32_t>(materials.size(), 0);
    std::vector<std::optional<std::uint32_t>> wanted;
    wanted.reserve(materials.size());
    for (const DeckMaterial& material : materials)
        wanted.push_back(material.number);
    return numberMaterials(wanted, options.firstNumber, largest);
}

/// Returns the number that a material should have; absent if any will do.
std::optional<std::uint32_t> expectedNumber(const DeckMaterial& material, std::size_t index, const DeckOptions& options)
{
    if (options.firstNumber)
        return *options.firstNumber + static_cast<std::uint32_t>(index);
    return material.number;
}

/// Returns the note that a material has another name in the deck than for the user.
vxUnits::Message renamed(const std::string& name, const std::string& written, const NameRules& rules)
{
    const bool isShortened = rules.isText && name.size() > rules.longest;
    return isShortened ? makeMessage(Text::Shortened, {written, std::to_string(rules.longest)})
                       : makeMessage(Text::Renamed, {written});
}

void noteHeading(MaterialReport& report, const Heading& heading, const NameRules& rules,
                 const std::optional<std::uint32_t>& expected)
{
    report.writtenName = heading.name;
    report.id = heading.number;
    if (heading.name != report.name)
        report.notes.push_back(renamed(report.name, heading.name, rules));
    if (expected && heading.number != 0 && *expected != heading.number)
        report.notes.push_back(
            makeMessage(Text::Renumbered, {std::to_string(heading.number), std::to_string(*expected)}));
}

/// Notes that no card has anything of a material. A model that uses it does not run.
void noteNothing(MaterialReport& report)
{
    const bool isNothing = std::all_of(report.rows.begin(), report.rows.end(),
                                       [](const ReportRow& row) { return row.outcome == Outcome::Lost; });
    if (isNothing)
        report.notes.push_back(makeMessage(Text::NothingWritten));
}

Deck writeIn(const UnitSystem& units, Format format, const std::vector<DeckMaterial>& materials,
             const DeckOptions& options)
{
    const std::unique_ptr<DeckWriter> writer = makeWriter(format);
    const std::uint32_t largest = infoOf(format).largestNumber;
    const std::vector<std::uint32_t> numbers = numbersOf(materials, largest, options);
    const NameRules rules = writer->names();
    Names names(rules);
    DeckUnits deckUnits(units);
    Deck deck{writer->begin(units), {format, units.text(), {}, {}}};
    if (options.firstNumber && largest == 0)
        deck.report.notes.push_back(makeMessage(Text::NamesOnly));
    for (std::size_t i = 0; i < materials.size(); ++i) {
        const Heading heading{names.take(materials[i].name), numbers[i]};
        MaterialDeck one(format, materials[i], heading, deckUnits, options);
        writer->write(one);
        deck.text += one.text();
        deck.report.materials.push_back(one.finish());
        noteHeading(deck.report.materials.back(), heading, rules, expectedNumber(materials[i], i, options));
        noteNothing(deck.report.materials.back());
    }
    deck.text += writer->end();
    return deck;
}

bool hasDialect(Format format, Dialect dialect)
{
    const auto& all = dialects();
    return std::any_of(all.begin(), all.end(), [format, dialect](const DialectInfo& one) {
        return one.format == format && one.dialect == dialect;
    });
}

} // namespace

std::optional<FieldForm> findFieldForm(std::string_view name)
{
    static const std::vector<std::pair<const char*, FieldForm>> all{
        {"small", FieldForm::Small}, {"large", FieldForm::Large}, {"free", FieldForm::Free}};
    const auto found = std::find_if(all.begin(), all.end(),
                                    [name](const auto& one) { return vxMat::equalIgnoringAsciiCase(one.first, name); });
    return found == all.end() ? std::nullopt : std::optional(found->second);
}

Deck writeDeck(Format format, const std::vector<DeckMaterial>& materials, const DeckOptions& chosen)
{
    DeckOptions options = chosen;
    if (!hasDialect(format, options.dialect))
        options.dialect = Dialect::Standard;
    Deck deck = writeIn(options.units.value_or(UnitSystem::si()), format, materials, options);
    const std::size_t refused = countRefused(deck.report);
    if (!options.units && refused > 0) {
        const UnitSystem& other = UnitSystem::builtIn()[1]; // mm-t-s
        Deck second = writeIn(other, format, materials, options);
        if (countRefused(second.report) < refused) {
            second.report.notes.push_back(makeMessage(Text::UnitsChosen, {other.text(), deck.report.units}));
            return second;
        }
    }
    deck.report.notes.push_back(makeMessage(Text::DeckUnits, {deck.report.units}));
    return deck;
}

} // namespace vxDecks
