#include "SheetItems.h"

#include "CatalogueText.h"

#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <QStandardItemModel>

namespace MatGui {

namespace {

/// The data that a cell stores in addition to the shown text.
enum CellRole : int
{
    SourceRole = Qt::UserRole + 1, ///< the text before its translation
    TranslationRole,               ///< the translation; the cell shows another text if the user has edited it
};

PropertyText kindOf(int column)
{
    switch (column) {
    case SheetTableView::Name:
        return PropertyText::Name;
    case SheetTableView::Value:
        return PropertyText::Value;
    case SheetTableView::Description:
        return PropertyText::Description;
    case SheetTableView::Key:
        return PropertyText::Key;
    default:
        return PropertyText::Unit;
    }
}

void showTranslated(QStandardItem& item, const QString& source, int column)
{
    const QString translation = translatePropertyText(source.toStdString(), kindOf(column));
    item.setData(source, SourceRole);
    item.setData(translation, TranslationRole);
    item.setText(translation);
}

bool isEdited(const QStandardItem& item)
{
    return item.text() != item.data(TranslationRole).toString();
}

/// Returns the text of the catalogue if a property has its translation; otherwise the text of the property.
QString untranslated(const std::string& text, const char* catalogued, PropertyText kind)
{
    const QString own = QString::fromStdString(text);
    return translatePropertyText(catalogued, kind) == own ? QString::fromUtf8(catalogued) : own;
}

} // namespace

SheetRow rowOf(const vxMat::MaterialProperty& property)
{
    SheetRow row{property.id,
                 QString::fromStdString(property.name),
                 QString::fromStdString(vxMat::formatValue(property)),
                 QString::fromStdString(property.description),
                 QString::fromStdString(property.key),
                 QString::fromStdString(property.unit)};
    if (const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(property.id)) {
        row.name = untranslated(property.name, record->name, PropertyText::Name);
        row.description = untranslated(property.description, record->description, PropertyText::Description);
    }
    return row;
}

SheetItems makeItems(const SheetRow& row)
{
    SheetItems items;
    items.push_back(std::make_unique<QStandardItem>(QString::number(row.id)));
    for (const QString* const text : {&row.name, &row.value, &row.description, &row.key, &row.unit}) {
        const auto column = static_cast<int>(items.size());
        items.push_back(std::make_unique<QStandardItem>());
        showTranslated(*items.back(), *text, column);
    }
    for (std::size_t column = 0; column < items.size(); ++column)
        items[column]->setEditable(column == SheetTableView::Value);
    return items;
}

void appendRow(QStandardItemModel& model, SheetItems items)
{
    QList<QStandardItem*> row;
    for (std::unique_ptr<QStandardItem>& item : items)
        row << item.release();
    model.appendRow(row);
}

QString sourceText(const QStandardItem& item)
{
    return isEdited(item) ? item.text() : item.data(SourceRole).toString();
}

void retranslateItem(QStandardItem& item, int column)
{
    if (!isEdited(item))
        showTranslated(item, item.data(SourceRole).toString(), column);
}

} // namespace MatGui
