#include "vxDecks/Deck.h"

#include "texts/DeckTexts.h"
#include "writing/Writers.h"

#include <algorithm>
#include <set>
#include <utility>

namespace vxDecks {

namespace {

using vxUnits::Dimension;
using vxUnits::UnitSystem;

const FormatWriter& writerOf(Format format)
{
    switch (format) {
    case Format::Calculix:
        break;
    }
    return calculixWriter();
}

/// Calls the writer of each card in the order of the mapping table.
void writeCards(Format format, const FormatWriter& writer, MaterialDeck& deck)
{
    std::set<std::string_view> written{""};
    for (const Mapping& row : mappings()) {
        if (row.format != format || !written.insert(row.card).second)
            continue;
        const auto card = std::find_if(writer.cards.begin(), writer.cards.end(), [&row](const CardWriter& one) {
            return std::string_view(one.card) == row.card;
        });
        if (card != writer.cards.end())
            card->write(deck);
    }
}

std::vector<std::uint32_t> numbersOf(const std::vector<DeckMaterial>& materials, const FormatWriter& writer,
                                     const DeckOptions& options)
{
    if (writer.largestNumber == 0)
        return std::vector<std::uint32_t>(materials.size(), 0);
    std::vector<std::optional<std::uint32_t>> wanted;
    for (const DeckMaterial& material : materials)
        wanted.push_back(material.number);
    return numberMaterials(wanted, options.firstNumber, writer.largestNumber);
}

void noteHeading(MaterialReport& report, const DeckMaterial& material, const Heading& heading,
                 const DeckOptions& options)
{
    report.writtenName = heading.name;
    report.id = heading.number;
    if (heading.name != material.name)
        report.notes.push_back(makeMessage(Text::Renamed, {heading.name}));
    const bool isOwn = !options.firstNumber && material.number && heading.number != 0;
    if (isOwn && *material.number != heading.number)
        report.notes.push_back(
            makeMessage(Text::Renumbered, {std::to_string(heading.number), std::to_string(*material.number)}));
}

Deck writeIn(const UnitSystem& units, Format format, const std::vector<DeckMaterial>& materials,
             const DeckOptions& options)
{
    const FormatWriter& writer = writerOf(format);
    const std::vector<std::uint32_t> numbers = numbersOf(materials, writer, options);
    Names names(writer.names);
    Deck deck{writer.beginDeck(units), {format, units.text(), {}, {}}};
    for (std::size_t i = 0; i < materials.size(); ++i) {
        const Heading heading{names.take(materials[i].name), numbers[i]};
        MaterialDeck one(format, materials[i], units);
        writer.beginMaterial(one, heading, materials[i].name);
        writeCards(format, writer, one);
        deck.text += one.text();
        deck.report.materials.push_back(one.finish());
        noteHeading(deck.report.materials.back(), materials[i], heading, options);
    }
    return deck;
}

} // namespace

Deck writeDeck(Format format, const std::vector<DeckMaterial>& materials, const DeckOptions& options)
{
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

std::string commentText(std::string_view text, std::size_t longest)
{
    std::size_t length = std::min(text.size(), longest);
    const auto continuesCharacter = [text](std::size_t at) {
        return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
    };
    while (length > 0 && continuesCharacter(length))
        --length;
    std::string comment(text.substr(0, length));
    std::replace_if(
        comment.begin(), comment.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, ' ');
    return comment;
}

std::string baseUnits(const UnitSystem& units)
{
    std::string text;
    for (const auto base :
         {Dimension::Length, Dimension::Mass, Dimension::Time, Dimension::Temperature, Dimension::Current})
        text += (text.empty() ? "" : ", ") + units.baseUnit(base);
    return text;
}

} // namespace vxDecks
