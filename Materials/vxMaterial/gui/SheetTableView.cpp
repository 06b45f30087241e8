#include "vxMaterial/gui/SheetTableView.h"

#include "CatalogueText.h"

#include "vxMaterial/gui/ItemDelegates.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyRules.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QResizeEvent>
#include <QStandardItemModel>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

namespace MatGui {

namespace {

/// The id of a row as the hidden column shows it.
QString idText(const vxMat::MaterialProperty& property)
{
    return QString::number(property.id);
}

/// The texts of the row that shows the property.
QStringList rowOf(const vxMat::MaterialProperty& property)
{
    return {idText(property),
            translatePropertyText(property.name, Text::name),
            translatePropertyText(vxMat::formatValue(property), Text::value),
            translatePropertyText(property.description, Text::description),
            translatePropertyText(property.key, Text::key),
            translatePropertyText(property.unit, Text::unit)};
}

/// The cells of a row; whoever gets them owns them. Only the value can be edited.
QList<QStandardItem*> makeItems(const QStringList& texts)
{
    QList<QStandardItem*> items;
    for (int column = 0; column < texts.size(); ++column) {
        items << new QStandardItem(texts[column]);
        items.back()->setEditable(column == SheetTableView::Value);
    }
    return items;
}

/// What the rules look at in a value. The table reads numbers as QString does, the rules in a way of their own: they
/// are given the number that QString found.
std::string ruleText(int id, const QString& value)
{
    const bool isNumber = vxMat::getValueKind(id) == vxMat::eValueKind::Number;
    return isNumber ? vxMat::formatNumber(value.toDouble()) : value.toStdString();
}

/// Whether the user means an allowed word, which may be typed as the program shows it in the user's language.
bool matchesTranslated(std::string_view allowed, std::string_view typed)
{
    const QString word = translatePropertyText(std::string(allowed), Text::value);
    const QString text = QString::fromUtf8(typed.data(), static_cast<int>(typed.size()));
    return word.compare(text, Qt::CaseInsensitive) == 0;
}

} // namespace

SheetViewHeader::SheetViewHeader(Qt::Orientation orientation, QWidget* parent) : QHeaderView(orientation, parent)
{
    setSectionsClickable(true);
}

void SheetViewHeader::mouseReleaseEvent(QMouseEvent* event)
{
    QHeaderView::mouseReleaseEvent(event);
    Q_EMIT resizeFinished();
}

SheetTableDelegate::SheetTableDelegate(QObject* parent) : QItemDelegate(parent) {}

QWidget* SheetTableDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                          const QModelIndex& /*index*/) const
{
    auto* const editor = new QLineEdit(parent);
    connect(editor, SIGNAL(returnPressed()), this, SLOT(commitAndCloseEditor()));
    return editor;
}

void SheetTableDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* const line = qobject_cast<QLineEdit*>(editor))
        line->setText(index.data(Qt::EditRole).toString());
}

void SheetTableDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (const auto* const line = qobject_cast<QLineEdit*>(editor))
        model->setData(index, line->text(), Qt::EditRole);
}

QSize SheetTableDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const
{
    return {};
}

bool SheetTableDelegate::eventFilter(QObject* object, QEvent* event)
{
    // The base would commit on Return once more, when the editor that has just been closed belongs to nobody.
    if (event->type() == QEvent::KeyPress && qobject_cast<QLineEdit*>(object) != nullptr) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            return false;
    }
    return QItemDelegate::eventFilter(object, event);
}

void SheetTableDelegate::commitAndCloseEditor()
{
    auto* const editor = qobject_cast<QLineEdit*>(sender());
    if (editor == nullptr)
        return;
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor, NoHint);
}

SheetTableView::SheetTableView(QWidget* parent) : QTableView(parent)
{
    setFrameShape(QFrame::WinPanel);
    setFrameShadow(QFrame::Plain);
    createActions();
    createHeaders();
    createDelegates();
    setReadablePalette();
    m_model = std::make_unique<QStandardItemModel>(this);
    setupModel();
    connectActions();
    // Else Tab would never leave the table.
    setTabKeyNavigation(false);
}

SheetTableView::~SheetTableView()
{
    m_model->removeRows(0, m_model->rowCount());
    m_model.reset();
    m_readOnlyDelegate.reset();
    m_valueDelegate.reset();
}

void SheetTableView::createActions()
{
    m_insertRows = new QAction(this);
    m_removeRows = new QAction(this);
    m_insertColumns = new QAction(this);
    m_removeColumns = new QAction(this);
    m_properties = new QAction(this);
}

void SheetTableView::createHeaders()
{
    const auto install = [](SheetViewHeader* header, const QList<QAction*>& actions) {
        header->addActions(actions);
        header->setContextMenuPolicy(Qt::ActionsContextMenu);
    };
    auto* const horizontal = new SheetViewHeader(Qt::Horizontal, this);
    install(horizontal, {m_insertColumns, m_removeColumns});
    setHorizontalHeader(horizontal);
    auto* const vertical = new SheetViewHeader(Qt::Vertical, this);
    install(vertical, {m_insertRows, m_removeRows});
    setVerticalHeader(vertical);
}

void SheetTableView::createDelegates()
{
    m_readOnlyDelegate = std::make_unique<NotEditableDelegate>(this);
    m_valueDelegate = std::make_unique<SheetTableDelegate>(this);
    setItemDelegate(m_valueDelegate.get());
}

void SheetTableView::setReadablePalette()
{
    // The table is white with black text under dark colours too, so all that is drawn on it must suit that.
    QPalette colours;
    colours.setBrush(QPalette::Base, QBrush(QColor(255, 255, 255)));
    colours.setBrush(QPalette::Text, QBrush(Qt::black));
    colours.setBrush(QPalette::AlternateBase, QBrush(QColor(245, 245, 245)));
    colours.setBrush(QPalette::PlaceholderText, QBrush(QColor(96, 96, 96)));
    colours.setBrush(QPalette::Highlight, QBrush(QColor(31, 99, 168)));
    colours.setBrush(QPalette::HighlightedText, QBrush(Qt::white));
    colours.setBrush(QPalette::Disabled, QPalette::Highlight, QBrush(QColor(208, 208, 208)));
    colours.setBrush(QPalette::Disabled, QPalette::HighlightedText, QBrush(Qt::black));
    setPalette(colours);
}

void SheetTableView::setupModel()
{
    m_model->setColumnCount(ColumnCount);
    retranslate();
    setModel(m_model.get());
    for (const Column hidden : {Id, Key, Unit})
        setColumnHidden(hidden, true);
    horizontalHeader()->setStretchLastSection(true);
    const QItemSelectionModel* const replaced = selectionModel();
    setSelectionModel(new QItemSelectionModel(m_model.get(), this));
    delete replaced;
    for (const Column readOnly : {Name, Description, Unit})
        setItemDelegateForColumn(readOnly, m_readOnlyDelegate.get());
}

void SheetTableView::connectActions()
{
    connect(m_insertRows, SIGNAL(triggered()), this, SLOT(insertRows()));
    connect(m_insertColumns, SIGNAL(triggered()), this, SLOT(insertColumns()));
    connect(m_removeRows, SIGNAL(triggered()), this, SLOT(removeRows()));
    connect(m_removeColumns, SIGNAL(triggered()), this, SLOT(removeColumns()));
    addAction(m_properties);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_properties, SIGNAL(triggered()), this, SLOT(cellProperties()));
    // Texts wrap, so that a row is as high as the widths of its columns make it.
    connect(horizontalHeader(), SIGNAL(sectionResized(int, int, int)), this, SLOT(resizeRowsToContents()));
}

void SheetTableView::retranslate()
{
    m_insertRows->setText(tr("Insert rows"));
    m_removeRows->setText(tr("Remove rows"));
    m_insertColumns->setText(tr("Insert columns"));
    m_removeColumns->setText(tr("Remove columns"));
    m_properties->setText(tr("Properties..."));
    const QStringList headers{tr("enum"), tr("Name"), tr("Value"), tr("Description"), tr("Key"), tr("Unit")};
    for (int column = 0; column < ColumnCount; ++column)
        m_model->setHeaderData(column, Qt::Horizontal, headers[column], Qt::EditRole);
}

void SheetTableView::loadMaterialObject()
{
    const vxMat::CMaterial* const material = materialObject != nullptr ? materialObject->getCMaterial() : nullptr;
    replaceRows(material != nullptr ? rowsOf(*material) : Rows());
}

void SheetTableView::showMaterial(vxMat::MaterialBase* material)
{
    if (material != nullptr)
        replaceRows(rowsOf(*material));
}

void SheetTableView::togglePropertyRow(bool checked, const vxMat::MaterialProperty* property)
{
    if (property == nullptr)
        return;
    if (checked) {
        m_model->appendRow(makeItems(rowOf(*property)));
        widenColumns();
        return;
    }
    for (const QStandardItem* const item : m_model->findItems(idText(*property), Qt::MatchExactly, Id))
        m_model->removeRow(item->row());
}

SheetTableView::Rows SheetTableView::rowsOf(const vxMat::MaterialBase& material) const
{
    Rows rows;
    // A property under a foreign key shows its own id: the acoustic library materials list density twice.
    for (const auto& [key, property] : material.properties)
        if (isCatalogued(property->id))
            rows.push_back(rowOf(*property));
    return rows;
}

void SheetTableView::replaceRows(const Rows& rows)
{
    m_model->removeRows(0, m_model->rowCount());
    for (const QStringList& row : rows)
        m_model->appendRow(makeItems(row));
    fitColumns();
}

QString SheetTableView::cellText(int row, int column) const
{
    return m_model->index(row, column).data(Qt::DisplayRole).toString();
}

bool SheetTableView::validateRows(QString& message) const
{
    std::vector<std::string> values;
    std::vector<vxMat::PropertyRow> rows;
    for (int row = 0; row < m_model->rowCount(); ++row)
        values.push_back(ruleText(rowId(row), cellText(row, Value)));
    for (int row = 0; row < m_model->rowCount(); ++row)
        rows.push_back({rowId(row), values[static_cast<std::size_t>(row)]});

    const auto failure = vxMat::checkRows(rows, matchesTranslated);
    if (!failure)
        return true;
    const QString text = tr(failure->message);
    message = failure->row > 0 ? text.arg(failure->row) : text;
    return false;
}

int SheetTableView::rowId(int row) const
{
    return m_model->index(row, Id).data(Qt::DisplayRole).toInt();
}

void SheetTableView::addRowTo(vxMat::MaterialBase& material, int row) const
{
    material.addProperty(rowId(row), cellText(row, Name).toStdString(), cellText(row, Value).toStdString(),
                         cellText(row, Key).toStdString(), cellText(row, Description).toStdString());
}

std::optional<UnreadableRow::Reason> SheetTableView::unreadableReason(int row) const
{
    try {
        vxMat::CMaterial trial;
        addRowTo(trial, row);
    } catch (const std::invalid_argument&) {
        return UnreadableRow::Reason::NoNumber;
    } catch (const std::out_of_range&) {
        return UnreadableRow::Reason::OutOfRange;
    }
    return std::nullopt;
}

std::optional<UnreadableRow> SheetTableView::findUnreadableRow() const
{
    for (int row = 0; row < m_model->rowCount(); ++row)
        if (const auto reason = unreadableReason(row))
            return UnreadableRow{row + 1, cellText(row, Name), cellText(row, Value), *reason};
    return std::nullopt;
}

void SheetTableView::applyToMaterial()
{
    vxMat::CMaterial* const material = materialObject != nullptr ? materialObject->getCMaterial() : nullptr;
    if (material == nullptr)
        return;
    // Built aside, so that a row that cannot be read costs the user nothing.
    vxMat::CMaterial rebuilt;
    for (int row = 0; row < m_model->rowCount(); ++row)
        addRowTo(rebuilt, row);
    material->clearProperties();
    material->properties.swap(rebuilt.properties);
}

bool SheetTableView::isCatalogued(int id) const
{
    return materialObject != nullptr && materialObject->getMatMgr().propertyCatalogue.count(id) != 0;
}

bool SheetTableView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    if (trigger == DoubleClicked || trigger == EditKeyPressed || trigger == AnyKeyPressed)
        m_lastEdited = index;
    return QTableView::edit(index, trigger, event);
}

void SheetTableView::finishEditing()
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (QWidget* const editor = indexWidget(m_model->index(row, Value))) {
            commitData(editor);
            closeEditor(editor, QAbstractItemDelegate::NoHint);
        }
    }
}

void SheetTableView::commitData(QWidget* editor)
{
    QTableView::commitData(editor);
    widenColumns();
}

// Which rows there are is decided by the pages of the window, and the columns are fixed: whatever is selected stays.
void SheetTableView::insertRows() {}

void SheetTableView::removeRows() {}

void SheetTableView::insertColumns() {}

void SheetTableView::removeColumns() {}

void SheetTableView::cellProperties() {}

QSize SheetTableView::textSize(int row, int column, int width) const
{
    // The value delegate asks for no size; the other one draws alike and does.
    QStyleOptionViewItem option = viewOptions();
    option.rect = QRect(0, 0, width, 1);
    option.features.setFlag(QStyleOptionViewItem::WrapText, width > 0);
    return m_readOnlyDelegate->sizeHint(option, m_model->index(row, column));
}

int SheetTableView::cellMargin() const
{
    return style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
}

int SheetTableView::sizeHintForColumn(int column) const
{
    if (column != Value)
        return QTableView::sizeHintForColumn(column);
    int width = 0;
    for (int row = 0; row < m_model->rowCount(); ++row)
        width = std::max(width, textSize(row, Value, 0).width());
    return width;
}

int SheetTableView::longestWord(int column) const
{
    int longest = 0;
    for (int row = 0; row < m_model->rowCount(); ++row)
        for (const QString& word : cellText(row, column).split(QLatin1Char(' ')))
            longest = std::max(longest, fontMetrics().horizontalAdvance(word) + 2 * (cellMargin() + 1));
    return longest;
}

int SheetTableView::sizeHintForRow(int row) const
{
    // Qt measures wrapped text without the margins that it then draws it with, and cuts what gets a line longer by it.
    const int grid = showGrid() ? 1 : 0;
    int height = verticalHeader()->defaultSectionSize();
    for (const Column column : {Name, Value, Description})
        height = std::max(height, textSize(row, column, columnWidth(column) - 2 * cellMargin() - grid).height() + grid);
    return height;
}

int SheetTableView::fittingWidth(int column) const
{
    // One more pixel than the text takes, or it wraps.
    const int grid = (showGrid() ? 1 : 0) + 1;
    const int whole = std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column)) + grid;
    // Long texts wrap, so that the descriptions have room too. A word, or a number, does not.
    const int enough = std::max(viewport()->width() * 3 / 10, longestWord(column) + grid);
    return std::min(whole, enough);
}

void SheetTableView::fitColumns()
{
    if (!m_sized)
        return;
    for (const Column column : {Name, Value})
        setColumnWidth(column, fittingWidth(column));
    resizeRowsToContents();
}

void SheetTableView::widenColumns()
{
    if (!m_sized)
        return;
    for (const Column column : {Name, Value})
        setColumnWidth(column, std::max(columnWidth(column), fittingWidth(column)));
    resizeRowsToContents();
}

void SheetTableView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    // A window is often shown small at first, and its names wrapped.
    if (event->size().width() > event->oldSize().width())
        widenColumns();
}

void SheetTableView::showEvent(QShowEvent* event)
{
    QTableView::showEvent(event);
    if (m_sized)
        return;
    m_sized = true;
    fitColumns();
}

} // namespace MatGui
