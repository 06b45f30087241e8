#include "writing/DeckWriter.h"

#include <algorithm>
#include <set>

namespace vxDecks {

namespace {

class CardDeckWriter : public DeckWriter
{
public:
    explicit CardDeckWriter(const CardFormat& format) : m_format(format) {}

    NameRules names() const override { return m_format.names; }
    std::string begin(const vxUnits::UnitSystem& units) override { return m_format.begin(units); }
    void write(MaterialDeck& deck) override;

private:
    void writeCards(MaterialDeck& deck) const;

    const CardFormat& m_format;
};

void CardDeckWriter::write(MaterialDeck& deck)
{
    if (m_format.beginMaterial != nullptr)
        m_format.beginMaterial(deck);
    writeCards(deck);
    if (m_format.endMaterial != nullptr)
        m_format.endMaterial(deck);
}

/// Calls the writer of each card in the order of the mapping table.
void CardDeckWriter::writeCards(MaterialDeck& deck) const
{
    std::set<std::string_view> written{""};
    for (const Mapping& row : mappings(deck.options().dialect)) {
        if (row.format != m_format.format || !written.insert(row.card).second)
            continue;
        const auto& cards = m_format.cards;
        const auto card =
            std::find_if(cards.begin(), cards.end(), [&row](const CardWriter& one) { return one.card == row.card; });
        if (card != cards.end())
            card->write(deck);
    }
}

} // namespace

CardWriter quantityCard(std::string_view card, std::string_view label, std::int32_t id, EntryWriter write)
{
    return {card, [label, id, write](MaterialDeck& deck) {
                if (const auto number = deck.values().number(id)) {
                    write(deck, label, {*number, id});
                    deck.carry(id);
                }
            }};
}

std::unique_ptr<DeckWriter> makeCardWriter(const CardFormat& format)
{
    return std::make_unique<CardDeckWriter>(format);
}

} // namespace vxDecks
