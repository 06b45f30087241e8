#include "reading/BulkData.h"
#include "reading/BulkTitles.h"
#include "reading/DeckReader.h"
#include "reading/MaterialReading.h"
#include "reading/NastranCards.h"
#include "reading/TextOfDeck.h"
#include "texts/BulkTexts.h"
#include "texts/ReadingTexts.h"
#include "vxMaterial/json/Utf8.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <utility>

namespace vxDecks {

namespace {

/// The number of included files, of different foreign entries, and of different entries without a material that are told one by
/// one. The others are counted.
constexpr std::size_t mostTold = 100;

/// The entries that have the same number of a material.
struct BulkMaterial
{
    std::uint32_t number = 0;
    std::string title;
    std::vector<BulkEntry> entries;

    std::size_t firstLine() const
    {
        const auto first = std::min_element(entries.begin(), entries.end(),
                                            [](const auto& one, const auto& other) { return one.line < other.line; });
        return first->line;
    }
    bool isRead() const
    {
        return std::any_of(entries.begin(), entries.end(), [](const BulkEntry& one) { return isReadCard(one.name); });
    }
};

bool isMaterialCard(std::string_view name)
{
    return isReadCard(name) || name.substr(0, 3) == "MAT";
}

/// Collects the materials and the tables of bulk data, and makes the materials at the end, because entries refer to each
/// other in any order.
class MaterialCollector : public BulkVisitor
{
public:
    MaterialCollector(DeclaredUnits& declared, ReadDeck& deck) : m_declared(declared), m_deck(deck) {}

    void comment(std::string_view text, std::size_t line) override;
    void beginBulk() override;
    void include(std::string_view file, std::size_t line) override;
    bool begin(BulkEntry& entry) override;
    void take(BulkEntry entry) override;

    void finish(const vxUnits::UnitSystem& units);

private:
    void note(vxUnits::Message message);
    void countForeign(const BulkEntry& entry);
    BulkMaterial& materialOf(std::uint32_t number);
    std::string titleOf(const BulkMaterial& material) const;
    void noteEntriesWithoutMaterial();

    DeclaredUnits& m_declared;
    ReadDeck& m_deck;
    std::vector<BulkMaterial> m_materials;
    std::unordered_map<std::uint32_t, std::size_t> m_positions; ///< of the materials, by number
    std::map<std::uint32_t, std::string> m_titles;              ///< of comments with a number
    std::unordered_map<std::string, std::size_t> m_foreign;     ///< positions in the list of the deck
    std::string m_nextTitle;                                    ///< of a comment without a number
    BulkTables m_tables;
    std::size_t m_included = 0;
    bool m_isInBulk = false;
};

void MaterialCollector::comment(std::string_view text, std::size_t line)
{
    constexpr std::size_t mostTitles =
        100000; // a bound of memory: comments may name materials that the file does not have
    m_declared.check(text, line);
    auto title = readBulkTitle(text);
    if (title && !title->number)
        m_nextTitle = std::move(title->name);
    else if (title && m_titles.size() < mostTitles)
        m_titles.emplace(*title->number, std::move(title->name));
}

/// Forgets what stands in front of the bulk data: lines of the control sections, which are no entries.
void MaterialCollector::beginBulk()
{
    if (std::exchange(m_isInBulk, true))
        return;
    m_deck.foreign.clear();
    m_deck.moreForeign = 0;
    m_foreign.clear();
    m_materials.clear();
    m_positions.clear();
    m_tables = {};
}

void MaterialCollector::include(std::string_view file, std::size_t line)
{
    if (++m_included <= mostTold)
        note(makeMessage(ReadText::Included, {vxjson::shortened(toUtf8(file)), std::to_string(line)}));
}

void MaterialCollector::note(vxUnits::Message message)
{
    m_deck.report.notes.push_back(std::move(message));
}

void MaterialCollector::countForeign(const BulkEntry& entry)
{
    auto& foreign = m_deck.foreign;
    const auto known = m_foreign.find(entry.name);
    if (known != m_foreign.end()) {
        ++foreign[known->second].count;
    } else if (foreign.size() < mostTold) {
        m_foreign.emplace(entry.name, foreign.size());
        foreign.push_back({toUtf8(entry.name), 1, entry.line});
    } else {
        ++m_deck.moreForeign;
    }
}

bool MaterialCollector::begin(BulkEntry& entry)
{
    std::string title = std::exchange(m_nextTitle, {});
    if (isMaterialCard(entry.name)) {
        entry.title = std::move(title);
        return true;
    }
    if (entry.name == "TABLES1")
        return true;
    countForeign(entry);
    return false;
}

BulkMaterial& MaterialCollector::materialOf(std::uint32_t number)
{
    const auto [position, isNew] = m_positions.emplace(number, m_materials.size());
    if (isNew)
        m_materials.push_back({number, {}, {}});
    return m_materials[position->second];
}

void MaterialCollector::take(BulkEntry entry)
{
    if (entry.name == "TABLES1") {
        m_tables.add(entry);
        return;
    }
    const auto number = readBulkId(entry.field(0));
    if (!number && isReadCard(entry.name))
        throw DeckError(makeMessage(BulkText::NoMaterialNumber, {toUtf8(entry.field(0)), entry.name}), entry.line);
    if (!number) {
        countForeign(entry);
        return;
    }
    if (!isReadCard(entry.name))
        entry.fields = {};
    constexpr std::size_t mostEntries = 100;
    BulkMaterial& material = materialOf(*number);
    if (material.entries.size() >= mostEntries)
        throw DeckError(makeMessage(BulkText::TooManyEntries, {std::to_string(*number), std::to_string(mostEntries)}),
                        entry.line);
    if (material.title.empty())
        material.title = entry.title;
    while (!entry.fields.empty() && entry.fields.back().empty())
        entry.fields.pop_back();
    material.entries.push_back(std::move(entry));
}

std::string MaterialCollector::titleOf(const BulkMaterial& material) const
{
    const auto title = m_titles.find(material.number);
    return title == m_titles.end() ? material.title : title->second;
}

/// Adds notes about entries of materials of which nothing is taken.
void MaterialCollector::noteEntriesWithoutMaterial()
{
    std::map<std::string, ForeignCard> cards;
    for (const BulkMaterial& material : m_materials) {
        if (material.isRead())
            continue;
        for (const BulkEntry& entry : material.entries) {
            ForeignCard& card = cards.emplace(entry.name, ForeignCard{entry.name, 0, entry.line}).first->second;
            ++card.count;
        }
    }
    std::size_t told = 0;
    for (const auto& [name, card] : cards) {
        if (++told > mostTold)
            break;
        note(makeMessage(BulkText::EntriesNotTaken,
                         {toUtf8(name), std::to_string(card.count), std::to_string(card.line)}));
    }
    if (cards.size() > mostTold)
        note(makeMessage(BulkText::MoreEntriesNotTaken, {std::to_string(cards.size() - mostTold)}));
}

void MaterialCollector::finish(const vxUnits::UnitSystem& units)
{
    if (m_included > mostTold)
        note(makeMessage(ReadText::MoreIncluded, {std::to_string(m_included - mostTold)}));
    noteEntriesWithoutMaterial();
    std::sort(m_materials.begin(), m_materials.end(),
              [](const BulkMaterial& one, const BulkMaterial& other) { return one.firstLine() < other.firstLine(); });
    const ReadUnits readUnits(units);
    for (BulkMaterial& material : m_materials) {
        if (material.isRead()) {
            MaterialReading reading(Format::Nastran, titleOf(material), material.number);
            readBulkCards(material.entries, m_tables, reading);
            reading.finish(readUnits, m_deck);
        }
        material.entries = {};
    }
}

void readNastran(std::istream& file, const vxUnits::UnitSystem& units, DeclaredUnits& declared, ReadDeck& deck)
{
    MaterialCollector collector(declared, deck);
    readBulkData(file, collector);
    collector.finish(units);
}

} // namespace

const DeckReader& nastranReader()
{
    static const DeckReader reader{Format::Nastran, isBulkData, readNastran, "$"};
    return reader;
}

} // namespace vxDecks
