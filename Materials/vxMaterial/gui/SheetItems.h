#pragma once

#include "vxMaterial/gui/SheetRow.h"

#include <memory>
#include <vector>

class QStandardItem;
class QStandardItemModel;

namespace vxMat {
class MaterialProperty;
} // namespace vxMat

/// The cells of the property table. A cell keeps the text of the property beside the translation that it shows, so that the
/// table can follow a change of the language.
namespace MatGui {

using SheetItems = std::vector<std::unique_ptr<QStandardItem>>;

/// Returns the row that shows a property. Name and description are those of the catalogue if the property has their
/// translations, as properties made from a table have.
SheetRow rowOf(const vxMat::MaterialProperty& property);

/// Makes the cells of a row, of which only the value can be edited.
SheetItems makeItems(const SheetRow& row);

/// Appends a row to a model, which takes ownership of the cells.
void appendRow(QStandardItemModel& model, SheetItems items);

/// Returns the text of a cell before it was translated; the text that it shows if the user has edited it.
QString sourceText(const QStandardItem& item);

/// Translates the text of a cell again, unless the user has edited it.
void retranslateItem(QStandardItem& item, int column);

} // namespace MatGui
