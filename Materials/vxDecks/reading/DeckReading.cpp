#include "vxDecks/DeckReading.h"

#include "naming/BaseUnits.h"
#include "reading/DeckReader.h"
#include "reading/TextOfDeck.h"
#include "texts/ReadingTexts.h"
#include "vxMaterial/model/NumberText.h"
#include "vxUnits/SystemFit.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace vxDecks {

namespace {

using vxUnits::Message;
using vxUnits::UnitSystem;

/// The number of lines at the beginning of a file in which units are declared.
constexpr int declaringLines = 50;

/// Returns the readers, in the order in which a file is tried.
const std::vector<const DeckReader*>& readers()
{
    static const std::vector<const DeckReader*> all{&matmlReader(),   &calculixReader(), &lsDynaReader(),
                                                    &nastranReader(), &apdlReader(),     &elmerReader()};
    return all;
}

const DeckReader* findReader(Format format)
{
    const auto& all = readers();
    const auto found =
        std::find_if(all.begin(), all.end(), [format](const DeckReader* one) { return one->format == format; });
    return found == all.end() ? nullptr : *found;
}

Message errorInLine(const Message& reason, std::size_t line, const vxUnits::Translator& translator)
{
    return line == 0 ? reason : makeMessage(ReadText::ErrorInLine, {std::to_string(line), reason.text(translator)});
}

/// Returns the system whose base units are a list as in comments; absent if the list is of other texts.
std::optional<UnitSystem> systemOfBaseUnits(std::string_view list)
{
    for (const UnitSystem& system : UnitSystem::builtIn())
        if (vxMat::equalIgnoringAsciiCase(list, baseUnits(system)))
            return system;
    static constexpr const char* names[] = {"length ", ", mass ", ", time ", ", temperature ", ", current "};
    std::string text;
    for (const char* const name : names) {
        const std::size_t comma = std::min(list.find(','), list.size());
        text.append(name).append(trimmed(list.substr(0, comma)));
        list.remove_prefix(std::min(comma + 1, list.size()));
    }
    auto system = UnitSystem::parse(text);
    return list.empty() && system ? std::optional<UnitSystem>(*system) : std::nullopt;
}

/// The beginning of a file that is read before the file itself.
std::string takeBeginning(std::istream& file)
{
    std::string beginning(recognisedLength, '\0');
    file.read(beginning.data(), static_cast<std::streamsize>(beginning.size()));
    beginning.resize(static_cast<std::size_t>(file.gcount()));
    if (file.bad())
        throw DeckError(makeMessage(ReadText::StreamFailed), 0);
    return beginning;
}

/// A stream buffer that gives a text first, and then the rest of another buffer.
class RejoinedBuffer : public std::streambuf
{
public:
    RejoinedBuffer(std::string beginning, std::streambuf& rest) : m_text(std::move(beginning)), m_rest(rest)
    {
        setg(m_text.data(), m_text.data(), m_text.data() + m_text.size());
    }

protected:
    int_type underflow() override
    {
        m_text.resize(recognisedLength);
        const auto count = m_rest.sgetn(m_text.data(), static_cast<std::streamsize>(m_text.size()));
        setg(m_text.data(), m_text.data(), m_text.data() + count);
        return count == 0 ? traits_type::eof() : traits_type::to_int_type(m_text.front());
    }

private:
    std::string m_text;
    std::streambuf& m_rest;
};

/// Returns the name of the built-in system that fits the numbers of materials as they stand; empty if none fits better than
/// others.
std::string fittingSystem(const std::vector<ReadMaterial>& materials)
{
    std::vector<const vxMat::MaterialBase*> all;
    all.reserve(materials.size());
    for (const ReadMaterial& one : materials)
        all.push_back(one.material.get());
    const std::string fitting = vxUnits::betterFittingSystem(all, UnitSystem::si());
    return fitting.empty() ? vxUnits::betterFittingSystem(all, UnitSystem::builtIn()[1]) : fitting; // mm-t-s
}

void noteUnits(const std::optional<UnitSystem>& declared, const UnitSystem& used, Report& report)
{
    if (!declared)
        report.notes.push_back(makeMessage(ReadText::Units, {used.text()}));
    else if (*declared == used)
        report.notes.push_back(makeMessage(ReadText::UnitsDeclared, {used.text()}));
    else
        report.notes.push_back(makeMessage(ReadText::UnitsOverridden, {declared->text(), used.text()}));
}

/// Calls a reader. A file buffer that cannot read throws std::ios_base::failure.
void readAll(const DeckReader& reader, std::istream& file, const UnitSystem& units, DeclaredUnits& declared,
             ReadDeck& deck)
{
    try {
        reader.read(file, units, declared, deck);
    } catch (const std::ios_base::failure&) {
        throw DeckError(makeMessage(ReadText::StreamFailed), 0);
    }
}

} // namespace

DeckError::DeckError(Message reason, std::size_t line)
    : std::runtime_error(errorInLine(reason, line, {}).text()), m_reason(std::move(reason)), m_line(line)
{}

std::string DeckError::text(const vxUnits::Translator& translator) const
{
    return errorInLine(m_reason, m_line, translator).text(translator);
}

UnitsNeeded::UnitsNeeded(std::string proposal)
    : DeckError(proposal.empty() ? makeMessage(ReadText::UnitsNeeded)
                                 : makeMessage(ReadText::UnitsNeededFitting, {proposal}),
                0),
      m_proposal(std::move(proposal))
{}

std::optional<Format> recognisedFormat(std::string_view beginning)
{
    beginning = withoutMark(beginning);
    for (const DeckReader* const reader : readers())
        if (reader->recognises(beginning))
            return reader->format;
    return std::nullopt;
}

bool canRead(Format format)
{
    const DeckReader* const reader = findReader(format);
    return reader != nullptr && reader->read != nullptr;
}

bool hasOwnUnits(Format format)
{
    return format == Format::Matml;
}

std::optional<UnitSystem> unitsOfComment(std::string_view line, std::string_view comment)
{
    constexpr std::string_view title = "Units:";
    if (comment.empty() || line.substr(0, comment.size()) != comment)
        return std::nullopt;
    line = trimmed(line.substr(comment.size()));
    if (!vxMat::equalIgnoringAsciiCase(line.substr(0, title.size()), title))
        return std::nullopt;
    return systemOfBaseUnits(trimmed(line.substr(title.size())));
}

DeclaredUnits::DeclaredUnits(std::string_view comment, std::optional<UnitSystem> first)
    : m_comment(comment), m_found(std::move(first))
{}

void DeclaredUnits::check(std::string_view line, std::size_t number)
{
    auto units = unitsOfComment(trimmed(line), m_comment);
    if (units && m_found && *units != *m_found)
        throw DeckError(makeMessage(ReadText::OtherUnitsDeclared, {units->text(), m_found->text()}), number);
    if (units)
        m_found = std::move(units);
}

std::optional<UnitSystem> declaredUnits(Format format, std::string_view beginning)
{
    const DeckReader* const reader = findReader(format);
    if (reader == nullptr || reader->comment.empty())
        return std::nullopt;
    std::istringstream text{std::string(withoutMark(beginning))};
    std::string line;
    for (int i = 0; i < declaringLines && std::getline(text, line); ++i)
        if (auto units = unitsOfComment(trimmed(line), reader->comment))
            return units;
    return std::nullopt;
}

void noteForeignCards(ReadDeck& deck)
{
    if (deck.foreign.empty())
        return;
    std::string list;
    for (const ForeignCard& card : deck.foreign)
        list += (list.empty() ? "" : ", ") + card.name + " (" + std::to_string(card.count) + ")";
    deck.report.notes.push_back(makeMessage(ReadText::NotOfMaterials, {list}));
    if (deck.moreForeign > 0)
        deck.report.notes.push_back(makeMessage(ReadText::MoreForeign, {std::to_string(deck.moreForeign)}));
}

ReadDeck readDeck(Format format, std::istream& file, const ReadOptions& options)
{
    if (!canRead(format))
        throw DeckError(makeMessage(ReadText::WrittenOnly, {infoOf(format).title}), 0);
    const DeckReader& reader = *findReader(format);
    std::string beginning = takeBeginning(file);
    const auto declared = declaredUnits(format, beginning);
    RejoinedBuffer buffer(std::move(beginning), *file.rdbuf());
    std::istream whole(&buffer);
    const auto units = options.units ? options.units : declared;
    ReadDeck deck;
    deck.report.format = format;
    DeclaredUnits declarations(reader.comment, declared);
    readAll(reader, whole, units.value_or(UnitSystem::si()), declarations, deck);
    noteForeignCards(deck);
    if (hasOwnUnits(format))
        return deck;
    if (!units && !deck.materials.empty())
        throw UnitsNeeded(fittingSystem(deck.materials));
    deck.report.units = units.value_or(UnitSystem::si()).text();
    if (units)
        noteUnits(declarations.found(), *units, deck.report);
    return deck;
}

} // namespace vxDecks
