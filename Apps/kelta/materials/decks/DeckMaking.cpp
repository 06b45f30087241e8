#include "decks/DeckMaking.h"

#include "Obj/ReadableName.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

namespace desktop {

namespace {

constexpr std::size_t mostLines = 2000;
constexpr int longestBeginning = 400000;
constexpr std::size_t mostBytesOfLine = std::size_t{4} * longestLine; // a character has at most four

/// Returns a sentence about the data that a project keeps beside materials, such as measurements; empty if there is none.
QString describeSettings(const std::vector<Mat::MaterialObject*>& objects)
{
    std::set<QString> names;
    for (const Mat::MaterialObject* const object : objects)
        for (const auto& [name, text] : object->getSettings())
            names.insert(Obj::readableName(name.c_str()));
    return names.empty() ? QString()
                         : QCoreApplication::translate("desktop::DeckExport",
                                                       "A deck carries no data that a project keeps beside its "
                                                       "materials. Not written: %1.")
                               .arg(QStringList(names.begin(), names.end()).join(QStringLiteral(", ")));
}

/// Returns the beginning of a line, without a part of a character at its end.
QString shortened(QString line)
{
    line.truncate(longestLine);
    if (line.at(line.size() - 1).isHighSurrogate())
        line.chop(1);
    return line + QChar(0x2026);
}

} // namespace

Beginning beginningOf(const std::string& text)
{
    Beginning beginning;
    beginning.allLines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    beginning.allLines += text.empty() || text.back() == '\n' ? 0 : 1;
    std::string_view rest = text;
    while (!rest.empty() && beginning.lines < mostLines && beginning.text.size() < longestBeginning) {
        const std::size_t newline = std::min(rest.find('\n'), rest.size());
        const QString line = QString::fromUtf8(rest.data(), static_cast<int>(std::min(newline, mostBytesOfLine)));
        const bool isCut = newline > mostBytesOfLine || line.size() > longestLine;
        beginning.text += isCut ? shortened(line) : line;
        if (newline < rest.size())
            beginning.text += QLatin1Char('\n');
        beginning.hasCutLines |= isCut;
        ++beginning.lines;
        rest.remove_prefix(std::min(newline + 1, rest.size()));
    }
    return beginning;
}

std::shared_ptr<const DeckSource> copyForDeck(const std::vector<Mat::MaterialObject*>& objects)
{
    auto source = std::make_shared<DeckSource>();
    source->copies.reserve(objects.size());
    for (const Mat::MaterialObject* const object : objects) {
        auto copy = std::make_unique<vxMat::CMaterial>();
        copy->copyAllFrom(*object->getCMaterial());
        source->materials.push_back({object->label.getValue(), object->getObjectId(), copy.get()});
        source->copies.push_back(std::move(copy));
        source->suppressed += object->isSuppressed() ? 1U : 0U;
    }
    source->settings = describeSettings(objects);
    return source;
}

MadeDeck makeDeck(const DeckSource& source, const DeckRequest& request)
{
    MadeDeck made;
    made.deck = vxDecks::writeDeck(request.form.format, source.materials,
                                   {request.units, std::nullopt, request.form.dialect, request.form.fields});
    made.beginning = beginningOf(made.deck.text);
    made.lines = vxInspector::deckLines(made.deck.report);
    made.summary = vxInspector::deckSummary(made.deck.report);
    return made;
}

} // namespace desktop
