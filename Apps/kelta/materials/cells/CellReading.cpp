#include "CellReading.h"

#include "TypedValue.h"

#include "vxInspector/units/UnitTexts.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <QAbstractItemModel>
#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace desktop {

namespace {

using Creep = std::optional<vxUnits::CreepExponents>;
using MatGui::SheetTableView;

constexpr int longestPart = 200; ///< of a remark; longer texts would hide the table

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::CellReading", text);
}

int idOf(const QModelIndex& cell)
{
    return cell.sibling(cell.row(), SheetTableView::Id).data().toInt();
}

std::optional<double> numberOf(const QString& text)
{
    if (text.trimmed().isEmpty())
        return std::nullopt;
    return vxMat::readWholeNumber(text.toStdString()).value_or(std::nan(""));
}

/// Returns the number in the row of a quantity: NaN if its text is not one number; absent if the table has no such row, or its
/// text is blank.
std::optional<double> numberIn(const QAbstractItemModel& rows, int id)
{
    for (int row = 0; row < rows.rowCount(); ++row)
        if (rows.index(row, SheetTableView::Id).data().toInt() == id)
            return numberOf(rows.index(row, SheetTableView::Value).data().toString());
    return std::nullopt;
}

/// Returns the exponents of the creep law in the rows of a table.
Creep exponentsIn(const QAbstractItemModel& rows)
{
    return vxUnits::CreepExponents{numberIn(rows, vxMat::PropertyId::CreepModulusN),
                                   numberIn(rows, vxMat::PropertyId::CreepModulusM)};
}

QString shortened(const QString& text)
{
    return text.size() <= longestPart ? text : text.left(longestPart) + QChar(0x2026);
}

/// Returns the part of a long suggestion where it differs from the typed text, since the user finds it there.
QString partToChange(const QString& suggestion, const QString& typed)
{
    constexpr int before = 20;
    constexpr int after = 40;
    if (suggestion.size() <= before + after)
        return suggestion;
    const auto [changed, original] =
        std::mismatch(suggestion.cbegin(), suggestion.cend(), typed.cbegin(), typed.cend());
    const int place = static_cast<int>(changed - suggestion.cbegin());
    const int begin = std::max(0, place - before);
    const QString start = begin > 0 ? QString(QChar(0x2026)) : QString();
    const QString end = place + after < suggestion.size() ? QString(QChar(0x2026)) : QString();
    return start + suggestion.mid(begin, place - begin + after) + end;
}

/// Returns what to type into a blank cell.
QString promptFor(int id, const QString& unit)
{
    const bool isPure = unit == QLatin1String("1");
    if (takesList(id))
        return isPure ? tr("Type numbers, separated by commas.")
                      : tr("Type numbers in %1, or with a unit, separated by commas.").arg(unit);
    return isPure ? tr("Type a number.") : tr("Type a number in %1, or with a unit.").arg(unit);
}

/// Returns the number and the ends of a list that is too long to be shown: "1000 numbers from 250 to 900 Pa".
QString summaryOf(const TypedValue& value, const QString& unit)
{
    const auto text = [](double number) { return QString::fromStdString(vxMat::formatNumber(number)); };
    return tr("%1 numbers: %2, ..., %3")
               .arg(QString::number(value.numbers.size()), text(value.numbers.front()), text(value.numbers.back())) +
           (unit == QLatin1String("1") ? QString() : QLatin1Char(' ') + unit);
}

QString meaningOf(const TypedValue& value, const QString& unit)
{
    const QString understood = QString::fromStdString(value.understood);
    if (understood.size() > longestPart && value.numbers.size() > 2)
        return summaryOf(value, unit);
    if (unit == QLatin1String("1"))
        return understood.contains(QLatin1Char('=')) ? understood : tr("%1 (pure number)").arg(understood);
    // A creep factor is read without its unit if the exponents are missing.
    return understood.endsWith(unit) ? understood : understood + QLatin1Char(' ') + unit;
}

CellReading accepted(const TypedValue& value, const QString& unit)
{
    QString remark = shortened(meaningOf(value, unit));
    if (*value.note.id != '\0')
        remark += QLatin1Char('\n') + vxInspector::translated(value.note);
    return {true, false, QString::fromStdString(value.stored), remark};
}

} // namespace

QString reasonOf(vxUnits::Failure failure, const QString& typed)
{
    failure.suggestion = partToChange(QString::fromStdString(failure.suggestion), typed).toStdString();
    return vxInspector::translated(failure);
}

std::optional<CellReading> readCell(const QModelIndex& cell, const QString& text)
{
    const int id = idOf(cell);
    if (!takesNumbers(id))
        return std::nullopt;
    const Creep creep = id == vxMat::PropertyId::CreepModulusA ? exponentsIn(*cell.model()) : Creep();
    const QString unit = QString::fromStdString(siUnitOf(id, creep));
    if (text.trimmed().isEmpty())
        return CellReading{takesList(id), true, takesList(id) ? QString() : text, promptFor(id, unit)};
    const auto value = readTyped(id, text.toStdString(), creep);
    return value ? accepted(*value, unit) : CellReading{false, false, text, reasonOf(value.failure(), text)};
}

} // namespace desktop
