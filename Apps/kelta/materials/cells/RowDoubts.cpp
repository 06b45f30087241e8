#include "RowDoubts.h"

#include "TypedValue.h"

#include "vxInspector/units/UnitTexts.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"

#include <QAbstractItemModel>

namespace desktop {

namespace {

using MatGui::SheetTableView;
using vxUnits::MaterialValues;

/// Adds the value of a row, unless it cannot be read.
void add(int id, const std::string& text, MaterialValues& values)
{
    const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(id);
    if (record == nullptr)
        return;
    if (record->kind == vxMat::ValueKind::ModelSwitch)
        return values.setSwitch(id);
    if (!takesNumbers(id))
        return values.setWord(id, text);
    const auto typed = readTyped(id, text, values.creepExponents());
    if (!typed)
        return;
    if (takesList(id))
        values.setList(id, typed->numbers);
    else
        values.setNumber(id, typed->numbers.front());
}

/// Returns the values of rows: id, value, id, value, and so on.
MaterialValues valuesOf(const QStringList& rows)
{
    MaterialValues values;
    for (int i = 0; i + 1 < rows.size(); i += 2)
        add(rows[i].toInt(), rows[i + 1].toStdString(), values);
    return values;
}

} // namespace

QString RowDoubts::about(const QModelIndex& cell)
{
    const QAbstractItemModel& table = *cell.model();
    QStringList rows;
    for (int row = 0; row < table.rowCount(); ++row)
        rows << table.index(row, SheetTableView::Id).data().toString()
             << table.index(row, SheetTableView::Value).data(Qt::EditRole).toString();
    if (rows != m_checked)
        m_doubts = vxUnits::checkPlausibility(valuesOf(rows));
    m_checked = rows;
    const int id = cell.sibling(cell.row(), SheetTableView::Id).data().toInt();
    QStringList texts;
    for (const vxUnits::Doubt& doubt : m_doubts)
        if (doubt.id == id)
            texts << vxInspector::translated(doubt);
    return texts.join(QLatin1Char('\n'));
}

} // namespace desktop
