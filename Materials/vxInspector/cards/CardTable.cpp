#include "cards/CardTable.h"

#include "values/ValueTable.h"
#include "vxDecks/Deck.h"
#include "vxInspector/decks/DeckLines.h"
#include "vxMaterial/exchange/CardSet.h"
#include "vxMaterial/gui/FindingText.h"

#include <QCoreApplication>

#include <optional>

namespace vxInspector {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::CardTable", text);
}

vxCAE::CardSet cardsOf(const vxMat::CMaterial& material)
{
    vxCAE::MaterialEntry entry;
    material.copyTo(entry.material.get());
    entry.classifyKind();
    return vxCAE::makeCardSet(entry, vxCAE::MaterialSource::Complete);
}

/// Returns a text that begins with a capital letter.
QString sentence(QString text)
{
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

void addUnreadRows(const InspectedMaterial& inspected, TableContent& table)
{
    for (const UnreadRow& unread : inspected.unreadRows)
        table.rows.push_back({{{tr("Missing"), {}, {}, true},
                               textCell(tr("Row %1 cannot be read: %2").arg(unread.number).arg(unread.reason))}});
}

QString reportOf(const DeckLine& line)
{
    if (line.quantities.isEmpty())
        return sentence(line.reason);
    return line.reason.isEmpty() ? line.quantities : line.quantities + QStringLiteral(": ") + line.reason;
}

Cell cardCell(const std::string& text)
{
    QString shown = QString::fromStdString(text);
    if (shown.endsWith(QLatin1Char('\n')))
        shown.chop(1);
    Cell cell{shortened(shown, 4000)};
    cell.isFixed = true;
    if (cell.text != shown)
        cell.whole = shown;
    return cell;
}

} // namespace

TableContent cardTable(const InspectedMaterial& inspected)
{
    const vxCAE::CardSet set = cardsOf(*inspected.material);
    TableContent table{materialSentence(inspected), {tr("Card"), tr("Text")}, {}};
    table.sentence += QLatin1Char(' ') +
                      (set.cards.empty() ? tr("No card applies to it.") : tr("The numbers of cards are in SI units."));
    addUnreadRows(inspected, table);
    for (const vxMat::MaterialFinding& doubt : set.doubts)
        table.rows.push_back({{{tr("Missing"), {}, {}, true}, textCell(sentence(MatGui::findingText(doubt)))}});
    for (const vxCAE::SolverCard& card : set.cards)
        table.rows.push_back(
            {{{QCoreApplication::translate("vxCAE::SolverCard", card.name.c_str())}, cardCell(card.text)}});
    return table;
}

TableContent deckTable(const InspectedMaterial& inspected, const DeckForm& form, const vxUnits::UnitSystem& system)
{
    const vxDecks::DeckMaterial material{inspected.label.toStdString(), inspected.objectId, inspected.material.get()};
    const vxDecks::Deck deck =
        vxDecks::writeDeck(form.format, {material}, {system, std::nullopt, form.dialect, form.fields});
    TableContent table{materialSentence(inspected), {tr("Card"), tr("Text")}, {}};
    table.sentence += QLatin1Char(' ') + deckRemarks(deck.report);
    table.rows.push_back({{{tr("Deck")}, cardCell(deck.text)}});
    addUnreadRows(inspected, table);
    for (const DeckLine& line : deckLines(deck.report)) {
        if (line.kind == DeckLine::Kind::Carried)
            continue;
        const bool isBold = line.kind <= DeckLine::Kind::Lost;
        table.rows.push_back({{{nameOf(line.kind), {}, {}, isBold}, textCell(reportOf(line))}});
    }
    return table;
}

} // namespace vxInspector
