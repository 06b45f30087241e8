#include "naming/Names.h"
#include "reading/CalculixCards.h"
#include "reading/DeckReader.h"
#include "reading/KeywordNames.h"
#include "reading/TextOfDeck.h"
#include "texts/ReadingTexts.h"
#include "vxMaterial/json/Utf8.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace vxDecks {

namespace {

/// The number of different foreign keywords that are counted, and of included files that are told.
constexpr std::size_t mostForeign = 100;
constexpr std::size_t mostIncluded = 100;

/// Reads the materials of a deck of keywords in one pass.
class CalculixDeck
{
public:
    CalculixDeck(std::istream& file, const vxUnits::UnitSystem& units, DeclaredUnits& declared, ReadDeck& deck)
        : m_lines(file), m_units(units), m_declared(declared), m_deck(deck)
    {}

    void read();

private:
    void takeLine();
    void takeContent(std::string_view line);
    void takeKeyword(const std::string& keyword, std::string_view line);
    void takeOtherKeyword(const std::string& keyword, std::string_view line);
    void takeInclude(const KeywordParameters& parameters);
    void takeData(std::string_view line);
    void beginMaterial(const KeywordParameters& parameters);
    void beginCard(const std::string& keyword, std::string_view line);
    void endCard();
    void endMaterial();
    void countForeign(std::string_view line);
    std::string wholeKeywordLine();
    void requireWholeLine() const;

    DeckLines m_lines;
    ReadUnits m_units;
    DeclaredUnits& m_declared;
    ReadDeck& m_deck;
    std::unique_ptr<MaterialReading> m_material; ///< null outside of materials
    MaterialCards m_cards;                       ///< of the material, without the card that is being read
    std::optional<KeywordCard> m_card;           ///< the card that is being read, whose numbers are needed
    bool m_hasLongNumber = false;                ///< whether the material has the note about long numbers
    std::size_t m_included = 0;
    std::string m_comment; ///< in the line above; empty if there is none
};

bool isComment(std::string_view line)
{
    return line.empty() || line.substr(0, 2) == "**";
}

/// Returns whether the writer of decks makes a name of a label, which may have the number of an equal name behind it.
bool isMadeOf(const std::string& name, const std::string& label)
{
    const NameRules rules = calculixNames();
    const std::string made = Names(rules).take(label);
    const std::size_t end = name.find_last_not_of("0123456789");
    const bool hasNumber = end != std::string::npos && end + 1 < name.size() && name[end] == '_';
    const std::size_t longest = rules.longest - (hasNumber ? name.size() - end : 0);
    return name == made || (hasNumber && name.substr(0, end) == made.substr(0, longest));
}

/// Returns the name of a material: the comment above it, if the writer of decks makes the name of it.
std::string labelOf(const std::string& name, const std::string& comment)
{
    const bool isLabel = !comment.empty() && name.size() <= calculixNames().longest && isMadeOf(name, comment);
    return isLabel ? comment : name;
}

void CalculixDeck::read()
{
    while (m_lines.next())
        takeLine();
    endMaterial();
    if (m_included > mostIncluded)
        m_deck.report.notes.push_back(makeMessage(ReadText::MoreIncluded, {std::to_string(m_included - mostIncluded)}));
}

void CalculixDeck::takeLine()
{
    const std::string_view line = trimmed(m_lines.line());
    if (isComment(line)) {
        m_declared.check(line, m_lines.number());
        m_comment = trimmed(line.substr(std::min<std::size_t>(line.size(), 2)));
        return;
    }
    takeContent(line);
    m_comment.clear();
}

void CalculixDeck::takeContent(std::string_view line)
{
    if (line.front() != '*') {
        takeData(line);
        return;
    }
    const std::string keyword = keywordOf(line);
    // A keyword line that nothing is taken from need not be joined with its continuation, which then is a line of data.
    if (m_material == nullptr && keyword != "MATERIAL" && keyword != "INCLUDE")
        countForeign(line);
    else
        takeKeyword(keyword, wholeKeywordLine());
}

/// Returns the keyword line with the lines that continue it, each of which follows a comma.
std::string CalculixDeck::wholeKeywordLine()
{
    requireWholeLine();
    std::string whole(trimmed(m_lines.line()));
    while (whole.back() == ',' && whole.size() < DeckLines::longest && m_lines.next()) {
        requireWholeLine();
        whole += trimmed(m_lines.line());
    }
    return whole;
}

void CalculixDeck::requireWholeLine() const
{
    if (m_lines.isCut())
        throw DeckError(makeMessage(ReadText::LineTooLong, {std::to_string(DeckLines::longest)}), m_lines.number());
}

void CalculixDeck::takeKeyword(const std::string& keyword, std::string_view line)
{
    if (keyword == "INCLUDE") {
        takeInclude(parametersOf(line));
        return;
    }
    endCard();
    if (keyword == "MATERIAL")
        beginMaterial(parametersOf(line));
    else if (hasReadNumbers(keyword))
        beginCard(keyword, line);
    else
        takeOtherKeyword(keyword, line);
}

/// A keyword that is not known does not end the material, because it may be one of its cards.
void CalculixDeck::takeOtherKeyword(const std::string& keyword, std::string_view line)
{
    if (isMaterialCard(keyword) || !isOfKeywordFamily(keyword)) {
        m_material->lose(spelledKeyword(line), reasonWithoutNumbers(keyword));
        return;
    }
    endMaterial();
    countForeign(line);
}

/// An included file has the numbers of a card that has none yet. Behind numbers, it mostly begins with another keyword.
void CalculixDeck::takeInclude(const KeywordParameters& parameters)
{
    if (m_card && m_card->rows.empty())
        m_card->isElsewhere = true;
    else if (m_card && m_card->includedBehind == 0)
        m_card->includedBehind = m_lines.number();
    if (++m_included > mostIncluded)
        return;
    const auto input = parameters.find("INPUT");
    const std::string file = input == parameters.end() ? std::string() : vxjson::shortened(toUtf8(input->second));
    m_deck.report.notes.push_back(makeMessage(ReadText::Included, {file, std::to_string(m_lines.number())}));
}

void CalculixDeck::takeData(std::string_view line)
{
    if (!m_card)
        return;
    requireWholeLine();
    m_card->isElsewhere = m_card->isElsewhere || m_card->includedBehind != 0; // some of its lines are
    const std::string longField = addRow(*m_card, line, m_lines.number());
    if (longField.empty() || m_hasLongNumber)
        return;
    m_hasLongNumber = true;
    m_material->note(
        makeMessage(ReadText::LongNumber, {std::to_string(m_lines.number()), vxjson::shortened(longField)}));
}

void CalculixDeck::beginMaterial(const KeywordParameters& parameters)
{
    endMaterial();
    const auto name = parameters.find("NAME");
    m_material = std::make_unique<MaterialReading>(
        Format::Calculix, name == parameters.end() ? std::string() : labelOf(name->second, m_comment), std::nullopt);
}

void CalculixDeck::beginCard(const std::string& keyword, std::string_view line)
{
    m_card.emplace();
    m_card->keyword = keyword;
    m_card->name = spelledKeyword(line);
    m_card->given = vxjson::shortened(toUtf8(trimmed(line.substr(std::min(line.find(','), line.size() - 1) + 1))));
    m_card->parameters = parametersOf(line);
    m_card->line = m_lines.number();
    m_card->isElsewhere = m_card->hasParameter("INPUT");
}

void CalculixDeck::endCard()
{
    if (!m_card)
        return;
    const auto found = m_cards.find(m_card->keyword);
    if (found != m_cards.end()) {
        const std::string before = std::to_string(found->second.line);
        m_material->refuse(m_card->name, makeMessage(ReadText::Repeated, {before, std::to_string(m_card->line)}));
        m_cards.erase(found);
    }
    m_cards.emplace(m_card->keyword, std::move(*m_card));
    m_card.reset();
}

void CalculixDeck::endMaterial()
{
    endCard();
    if (m_material == nullptr)
        return;
    readCards(m_cards, m_units.system(), *m_material);
    m_material->finish(m_units, m_deck);
    m_material.reset();
    m_cards.clear();
    m_hasLongNumber = false;
}

void CalculixDeck::countForeign(std::string_view line)
{
    if (keywordOf(line).empty())
        return;
    const std::string name = spelledKeyword(line);
    auto& foreign = m_deck.foreign;
    const auto found =
        std::find_if(foreign.begin(), foreign.end(), [&name](const ForeignCard& one) { return one.name == name; });
    if (found != foreign.end())
        ++found->count;
    else if (foreign.size() < mostForeign)
        foreign.push_back({name, 1, m_lines.number()});
    else
        ++m_deck.moreForeign;
}

void readCalculix(std::istream& file, const vxUnits::UnitSystem& units, DeclaredUnits& declared, ReadDeck& deck)
{
    CalculixDeck(file, units, declared, deck).read();
}

} // namespace

const DeckReader& calculixReader()
{
    static const DeckReader reader{Format::Calculix, recognisesCalculix, readCalculix, "**"};
    return reader;
}

} // namespace vxDecks
