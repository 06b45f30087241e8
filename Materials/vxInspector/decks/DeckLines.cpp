#include "vxInspector/decks/DeckLines.h"

#include "vxInspector/units/UnitTexts.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>
#include <map>
#include <tuple>
#include <utility>

namespace vxInspector {

namespace {

using Kind = DeckLine::Kind;
using vxDecks::Outcome;

constexpr std::size_t mostNames = 3;

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::DeckLines", text);
}

QString joined(const std::vector<vxUnits::Message>& messages, const QString& separator)
{
    QStringList texts;
    for (const vxUnits::Message& message : messages)
        texts << translated(message);
    return texts.join(separator);
}

Kind kindOf(const vxDecks::ReportRow& row)
{
    switch (row.outcome) {
    case Outcome::Carried:
        return Kind::Carried;
    case Outcome::Converted:
        return Kind::Converted;
    case Outcome::Approximated:
        return Kind::Approximated;
    case Outcome::Lost:
        break;
    }
    return row.refused ? Kind::Refused : Kind::Lost;
}

/// What the materials of a line have in common.
struct Entry
{
    Kind kind;
    QString quantity;
    QString reason;

    friend bool operator<(const Entry& one, const Entry& other)
    {
        return std::tie(one.kind, one.quantity, one.reason) < std::tie(other.kind, other.quantity, other.reason);
    }
};

/// The entries of a report in the order in which they appear, each with the indices of its materials.
class Entries
{
public:
    Entries(const vxDecks::Report& report, const std::vector<std::vector<DeckFinding>>& findings) : m_report(report)
    {
        for (std::size_t i = 0; i < std::min(findings.size(), report.materials.size()); ++i)
            for (const DeckFinding& finding : findings[i])
                add({finding.kind, {}, finding.text}, i);
        for (std::size_t i = 0; i < report.materials.size(); ++i) {
            for (const vxUnits::Message& note : report.materials[i].notes)
                add({Kind::Remark, {}, translated(note)}, i);
            for (const vxDecks::ReportRow& row : report.materials[i].rows)
                add({kindOf(row), QCoreApplication::translate("vxMat::PropertyName", row.name.c_str()),
                     joined(row.how, QStringLiteral("; "))},
                    i);
        }
    }

    /// Returns the lines. Quantities with the same outcome, reason and materials share a line.
    std::vector<DeckLine> lines() const
    {
        std::vector<DeckLine> lines;
        std::map<std::tuple<Kind, QString, std::vector<std::size_t>>, std::size_t> places;
        for (const auto& [entry, materials] : m_entries) {
            const auto [place, isNew] = places.try_emplace({entry.kind, entry.reason, materials}, lines.size());
            if (isNew)
                lines.push_back({entry.kind, entry.quantity, entry.reason, namesOf(materials)});
            else
                lines[place->second].quantities += QStringLiteral(", ") + entry.quantity;
        }
        std::stable_sort(lines.begin(), lines.end(),
                         [](const DeckLine& one, const DeckLine& other) { return one.kind < other.kind; });
        return lines;
    }

private:
    void add(const Entry& entry, std::size_t material)
    {
        const auto [place, isNew] = m_places.try_emplace(entry, m_entries.size());
        if (isNew)
            m_entries.push_back({entry, {}});
        m_entries[place->second].second.push_back(material);
    }

    QString namesOf(const std::vector<std::size_t>& materials) const
    {
        if (materials.size() > mostNames && materials.size() == m_report.materials.size())
            return tr("all %1").arg(materials.size());
        QStringList names;
        for (std::size_t i = 0; i < std::min(materials.size(), mostNames); ++i)
            names << QString::fromStdString(m_report.materials[materials[i]].name);
        const QString first = names.join(QStringLiteral(", "));
        return materials.size() <= mostNames
                   ? first
                   : tr("%1 and %2 more").arg(first, QString::number(materials.size() - mostNames));
    }

    const vxDecks::Report& m_report;
    std::vector<std::pair<Entry, std::vector<std::size_t>>> m_entries;
    std::map<Entry, std::size_t> m_places;
};

} // namespace

std::vector<DeckLine> deckLines(const vxDecks::Report& report, const std::vector<std::vector<DeckFinding>>& findings)
{
    return Entries(report, findings).lines();
}

QString deckRemarks(const vxDecks::Report& report)
{
    return joined(report.notes, QStringLiteral(" "));
}

QString deckSummary(const vxDecks::Report& report)
{
    std::array<std::size_t, 4> counts{};
    for (const vxDecks::MaterialReport& material : report.materials)
        for (const vxDecks::ReportRow& row : material.rows)
            ++counts[static_cast<std::size_t>(row.outcome)];
    return tr("Quantities carried: %1, converted: %2, approximated: %3, lost: %4.")
        .arg(counts[0])
        .arg(counts[1])
        .arg(counts[2])
        .arg(counts[3]);
}

QString nameOf(DeckLine::Kind kind)
{
    static constexpr const char* names[] = {QT_TRANSLATE_NOOP("vxInspector::DeckLines", "Finding"),
                                            QT_TRANSLATE_NOOP("vxInspector::DeckLines", "Refused"),
                                            QT_TRANSLATE_NOOP("vxInspector::DeckLines", "Lost"),
                                            QT_TRANSLATE_NOOP("vxInspector::DeckLines", "Approximated"),
                                            QT_TRANSLATE_NOOP("vxInspector::DeckLines", "Doubt"),
                                            QT_TRANSLATE_NOOP("vxInspector::DeckLines", "Remark"),
                                            QT_TRANSLATE_NOOP("vxInspector::DeckLines", "Converted"),
                                            QT_TRANSLATE_NOOP("vxInspector::DeckLines", "Carried")};
    return tr(names[static_cast<std::size_t>(kind)]);
}

} // namespace vxInspector
