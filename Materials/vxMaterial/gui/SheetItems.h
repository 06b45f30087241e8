#pragma once

#include "vxMaterial/gui/SheetRow.h"

#include <memory>
#include <vector>

class QStandardItem;
class QStandardItemModel;

namespace vxMat {
class MaterialProperty;
} // namespace vxMat

/// The cells of the property table. A cell stores the text of the property and the shown translation, so that the
/// table can follow a change of the language.
namespace MatGui {

using SheetItems = std::vector<std::unique_ptr<QStandardItem>>;

/// Returns the row that shows a property. If the property has the translated name or description of the catalogue, as a
/// property made from a row has, the row has the text of the catalogue.
SheetRow rowOf(const vxMat::MaterialProperty& property);

/// Makes the cells of a row. Only the value can be edited.
SheetItems makeItems(const SheetRow& row);

/// Appends a row to a model, which takes ownership of the cells.
void appendRow(QStandardItemModel& model, SheetItems items);

/// Returns the text of a cell before its translation; the shown text if the user has edited the cell.
QString sourceText(const QStandardItem& item);

/// Translates the text of a cell again, unless the user has edited it.
void retranslateItem(QStandardItem& item, int column);

} // namespace MatGui
