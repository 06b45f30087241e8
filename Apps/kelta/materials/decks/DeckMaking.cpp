#include "decks/DeckMaking.h"

#include "Obj/ReadableName.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <set>
#include <utility>

namespace desktop {

namespace {

constexpr std::size_t mostLines = 2000;
constexpr int longestBeginning = 400000;

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

Beginning beginningOf(const std::string& text)
{
    Beginning beginning;
    beginning.allLines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    std::size_t end = 0;
    while (beginning.lines < mostLines && end < static_cast<std::size_t>(longestBeginning)) {
        const std::size_t newline = text.find('\n', end);
        if (newline == std::string::npos)
            break;
        end = newline + 1;
        ++beginning.lines;
    }
    beginning.text = QString::fromUtf8(text.data(), static_cast<int>(end));
    return beginning;
}

} // namespace

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

MadeDeck makeDeck(const DeckSource& source, vxDecks::Format format, const vxUnits::UnitSystem& units)
{
    MadeDeck made;
    made.deck = vxDecks::writeDeck(format, source.materials, {units, std::nullopt});
    made.beginning = beginningOf(made.deck.text);
    made.lines = vxInspector::deckLines(made.deck.report);
    made.summary = vxInspector::deckSummary(made.deck.report);
    return made;
}

} // namespace desktop
