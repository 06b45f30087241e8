#include "vxMaterial/gui/SheetTableView.h"

#include "CatalogueText.h"
#include "CellText.h"
#include "SheetItems.h"

#include "vxMaterial/gui/ItemDelegates.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyRules.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QStandardItemModel>
#include <QToolTip>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace MatGui {

namespace {

/// An event for a table whose columns have new widths. The table gets it before it is painted.
const auto fitEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

/// Returns the value text for the rules. The table reads numbers as QString does, and the rules read them differently;
/// the rules get the number that QString finds.
std::string ruleText(int id, const QString& value)
{
    const bool isNumber = vxMat::getValueKind(id) == vxMat::ValueKind::Number;
    return isNumber ? vxMat::formatNumber(value.toDouble()) : value.toStdString();
}

/// Returns whether a typed word means an allowed word. The program shows the translation of the word.
bool matchesTranslated(std::string_view allowed, std::string_view typed)
{
    const QString word = translatePropertyText(std::string(allowed), PropertyText::Value);
    const QString text = QString::fromUtf8(typed.data(), static_cast<int>(typed.size()));
    return word.compare(text, Qt::CaseInsensitive) == 0;
}

/// Returns a text for a tool tip, in lines of a readable length. A list of thousands of numbers is cut.
QString toolTipOf(const QString& text)
{
    constexpr int most = 2000;
    const QString shown = text.size() <= most ? text : text.left(most) + QChar(0x2026);
    return QStringLiteral("<qt>%1</qt>").arg(shown.toHtmlEscaped().replace(QLatin1Char(','), QLatin1String(",<wbr>")));
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
    // Tab moves the keyboard focus out of the table.
    setTabKeyNavigation(false);
    // A row may be higher than the table.
    setVerticalScrollMode(ScrollPerPixel);
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
    // The table is white with black text in dark colour schemes too; every other colour in it must fit.
    QPalette colours;
    colours.setBrush(QPalette::Base, QBrush(QColor(255, 255, 255)));
    colours.setBrush(QPalette::Text, QBrush(Qt::black));
    colours.setBrush(QPalette::AlternateBase, QBrush(QColor(245, 245, 245)));
    colours.setBrush(QPalette::PlaceholderText, QBrush(QColor(96, 96, 96)));
    colours.setBrush(QPalette::Highlight, QBrush(QColor(31, 99, 168)));
    colours.setBrush(QPalette::HighlightedText, QBrush(Qt::white));
    colours.setBrush(QPalette::Inactive, QPalette::Highlight, QBrush(QColor(177, 200, 225)));
    colours.setBrush(QPalette::Inactive, QPalette::HighlightedText, QBrush(Qt::black));
    colours.setBrush(QPalette::Disabled, QPalette::Highlight, QBrush(QColor(208, 208, 208)));
    colours.setBrush(QPalette::Disabled, QPalette::HighlightedText, QBrush(Qt::black));
    setPalette(colours);
}

void SheetTableView::setupModel()
{
    m_model->setColumnCount(ColumnCount);
    retranslateHeaders();
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
    // Texts wrap, so the widths of the columns determine the heights of the rows.
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, &SheetTableView::noteWidth);
}

void SheetTableView::retranslate()
{
    retranslateHeaders();
    retranslateRows();
    fitColumns();
}

void SheetTableView::retranslateHeaders()
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

void SheetTableView::retranslateRows()
{
    for (int row = 0; row < m_model->rowCount(); ++row)
        for (const Column column : {Name, Value, Description, Key, Unit})
            retranslateItem(*m_model->item(row, column), column);
}

void SheetTableView::loadMaterialObject()
{
    const vxMat::CMaterial* const material = materialObject != nullptr ? materialObject->getCMaterial() : nullptr;
    setRows(material != nullptr ? rowsOf(*material) : std::vector<SheetRow>());
}

void SheetTableView::showMaterial(vxMat::MaterialBase* material)
{
    if (material != nullptr)
        setRows(rowsOf(*material));
}

void SheetTableView::togglePropertyRow(bool checked, const vxMat::MaterialProperty* property)
{
    if (property == nullptr)
        return;
    if (checked)
        appendRow(*m_model, makeItems(rowOf(*property)));
    else
        for (const QStandardItem* const item : m_model->findItems(QString::number(property->id), Qt::MatchExactly, Id))
            m_model->removeRow(item->row());
    fitColumns();
}

std::vector<SheetRow> SheetTableView::rowsOf(const vxMat::MaterialBase& material) const
{
    std::vector<SheetRow> rows;
    // A property shows its own id, in another slot too: the acoustic library materials list density twice.
    for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(material))
        if (isCatalogued(property->id))
            rows.push_back(rowOf(*property));
    return rows;
}

std::vector<SheetRow> SheetTableView::rows() const
{
    std::vector<SheetRow> all;
    for (int row = 0; row < m_model->rowCount(); ++row)
        all.push_back(rowAt(row));
    return all;
}

std::vector<SheetRow> SheetTableView::rowsWithTypedText() const
{
    std::vector<SheetRow> all = rows();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const auto* const editor = qobject_cast<QLineEdit*>(openEditor(row));
        const SheetTableDelegate* const delegate = valueDelegate(row);
        if (editor != nullptr && delegate != nullptr)
            all[static_cast<std::size_t>(row)].value = delegate->textToStore(*editor, m_model->index(row, Value));
    }
    return all;
}

SheetRow SheetTableView::rowAt(int row) const
{
    const auto source = [this, row](Column column) { return sourceText(*m_model->item(row, column)); };
    return {rowId(row), source(Name), source(Value), source(Description), source(Key), source(Unit)};
}

void SheetTableView::setRows(const std::vector<SheetRow>& rows)
{
    const QModelIndex current = currentIndex();
    const int currentId = current.isValid() ? rowId(current.row()) : -1;
    std::vector<SheetItems> items;
    items.reserve(rows.size());
    for (const SheetRow& row : rows)
        items.push_back(makeItems(row));

    m_model->removeRows(0, m_model->rowCount());
    for (SheetItems& row : items)
        appendRow(*m_model, std::move(row));
    const int row = findRow(currentId);
    if (row >= 0)
        selectionModel()->setCurrentIndex(m_model->index(row, current.column()), QItemSelectionModel::NoUpdate);
    fitColumns();
}

int SheetTableView::findRow(int id) const
{
    const QList<QStandardItem*> items = m_model->findItems(QString::number(id), Qt::MatchExactly, Id);
    return items.isEmpty() ? -1 : items.front()->row();
}

void SheetTableView::setCurrentRow(int row)
{
    const QModelIndex value = m_model->index(row, Value);
    if (!value.isValid())
        return;
    selectionModel()->setCurrentIndex(value, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(value);
}

void SheetTableView::showRow(int row)
{
    setCurrentRow(row);
    if (m_model->index(row, Value).isValid())
        setFocus(Qt::OtherFocusReason);
}

QString SheetTableView::cellText(int row, int column) const
{
    return m_model->index(row, column).data(Qt::DisplayRole).toString();
}

bool SheetTableView::validateRows(QString& message) const
{
    const auto failure = findBrokenRule();
    if (!failure)
        return true;
    const QString text = tr(failure->message);
    message = failure->row > 0 ? text.arg(failure->row) : text;
    return false;
}

std::optional<vxMat::RuleFailure> SheetTableView::findBrokenRule() const
{
    std::vector<std::string> values;
    std::vector<vxMat::PropertyRow> rows;
    for (int row = 0; row < m_model->rowCount(); ++row)
        values.push_back(ruleText(rowId(row), cellText(row, Value)));
    for (int row = 0; row < m_model->rowCount(); ++row)
        rows.push_back({rowId(row), values[static_cast<std::size_t>(row)]});
    return vxMat::checkRows(rows, matchesTranslated);
}

int SheetTableView::findRefusedRow() const
{
    const auto failure = findBrokenRule();
    if (!failure)
        return -1;
    return failure->row > 0 ? static_cast<int>(failure->row) - 1 : findRow(vxMat::PropertyId::IsotropicElasticity);
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

/// The catalogue writes "-" for a quantity without a unit.
QString SheetTableView::unitOf(int row) const
{
    const QString unit = cellText(row, Unit);
    return unit != QLatin1String("-") ? unit : QString();
}

std::optional<PartlyReadRow> SheetTableView::findPartlyReadRow() const
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const auto ignored = vxMat::findIgnoredText(rowId(row), cellText(row, Value).toStdString());
        if (!ignored)
            continue;
        const SheetTableDelegate* const delegate = valueDelegate(row);
        return PartlyReadRow{row + 1,
                             cellText(row, Name),
                             cellText(row, Value),
                             QString::fromStdString(ignored->text),
                             QString::fromStdString(ignored->readAs),
                             unitOf(row),
                             delegate != nullptr ? delegate->findFault(m_model->index(row, Value)) : QString()};
    }
    return std::nullopt;
}

void SheetTableView::applyToMaterial()
{
    vxMat::CMaterial* const material = materialObject != nullptr ? materialObject->getCMaterial() : nullptr;
    if (material == nullptr)
        return;
    // The properties are made in a copy: the material stays unchanged if a row cannot be read.
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

QWidget* SheetTableView::openEditor(int row) const
{
    return indexWidget(m_model->index(row, Value));
}

/// Returns null if the application has installed a delegate of another kind.
const SheetTableDelegate* SheetTableView::valueDelegate(int row) const
{
    return qobject_cast<const SheetTableDelegate*>(itemDelegate(m_model->index(row, Value)));
}

void SheetTableView::finishEditing()
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (QWidget* const editor = openEditor(row)) {
            commitData(editor);
            closeEditor(editor, QAbstractItemDelegate::NoHint);
        }
    }
}

void SheetTableView::commitData(QWidget* editor)
{
    QTableView::commitData(editor);
    fitColumns();
}

void SheetTableView::keyPressEvent(QKeyEvent* event)
{
    const QModelIndex value = m_model->index(currentIndex().row(), Value);
    const bool edits = event->key() == Qt::Key_F2 || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!edits || !value.isValid() || state() == EditingState) {
        QTableView::keyPressEvent(event);
        return;
    }
    setCurrentIndex(value);
    edit(value, EditKeyPressed, event);
    event->accept();
}

void SheetTableView::focusInEvent(QFocusEvent* event)
{
    QTableView::focusInEvent(event);
    const QModelIndex current = currentIndex();
    if (current.isValid() && current.column() != Value && event->reason() != Qt::MouseFocusReason)
        setCurrentIndex(m_model->index(current.row(), Value));
}

// The pages of the window determine the rows, and the columns are fixed: these entries change nothing.
void SheetTableView::insertRows() {}

void SheetTableView::removeRows() {}

void SheetTableView::insertColumns() {}

void SheetTableView::removeColumns() {}

void SheetTableView::cellProperties() {}

int SheetTableView::sizeHintForColumn(int column) const
{
    int width = 0;
    for (int row = 0; row < m_model->rowCount(); ++row)
        width = std::max(width, cellTextSize(cellText(row, column), font(), QWIDGETSIZE_MAX).width());
    return width + cellPadding();
}

int SheetTableView::cellPadding() const
{
    return 2 * cellTextMargin(this) + (showGrid() ? 1 : 0);
}

int SheetTableView::longestWord(int column) const
{
    // A cell breaks a text at these characters, and inside a part that is wider than the cell.
    static const QRegularExpression breaks(QStringLiteral("(?<=[ ,;])"));
    int longest = 0;
    for (int row = 0; row < m_model->rowCount(); ++row)
        for (const QString& word : cellText(row, column).split(breaks))
            longest = std::max(longest, fontMetrics().horizontalAdvance(word));
    // Advances are rounded, and a word that is wider by a fraction would be broken.
    return longest + 1 + cellPadding();
}

int SheetTableView::sizeHintForRow(int row) const
{
    const int grid = showGrid() ? 1 : 0;
    int height = fontMetrics().lineSpacing();
    for (const Column column : {Name, Value, Description}) {
        const int width = columnWidth(column) - cellPadding();
        height = std::max(height, cellTextSize(cellText(row, column), font(), width).height());
    }
    height = std::min(height, mostLines * fontMetrics().lineSpacing()) + grid;
    return std::max(height, verticalHeader()->defaultSectionSize());
}

int SheetTableView::fittingWidth(int column) const
{
    // Long texts wrap, so that the descriptions have space too. Words and numbers do not wrap if there is space.
    const int table = viewport()->width();
    const int whole = std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column));
    const int enough = std::max(table * 3 / 10, longestWord(column));
    const int description =
        std::max(horizontalHeader()->sectionSizeHint(Description), std::min(longestWord(Description), table * 3 / 10));
    const int others = column == Value ? columnWidth(Name) + description : table / 2;
    return std::min({whole, enough, std::max(table * 3 / 10, table - others)});
}

void SheetTableView::noteWidth(int column)
{
    if (!m_sized || m_fittingColumns)
        return;
    if (column == Name || column == Value)
        m_columnsOfUser.insert(column);
    // The header reports a width before it applies the width, so the columns are fitted later.
    if (!std::exchange(m_fitIsPosted, true))
        QCoreApplication::postEvent(this, new QEvent(fitEvent), Qt::HighEventPriority);
}

bool SheetTableView::event(QEvent* event)
{
    if (event->type() != fitEvent)
        return QTableView::event(event);
    m_fitIsPosted = false;
    fitColumns();
    return true;
}

QStyleOptionViewItem SheetTableView::viewOptions() const
{
    QStyleOptionViewItem options = QTableView::viewOptions();
    const QWidget* const focus = QApplication::focusWidget();
    const bool hasKeyboard = focus != nullptr && (focus == this || isAncestorOf(focus));
    options.state.setFlag(QStyle::State_Active, hasKeyboard);
    return options;
}

bool SheetTableView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QTableView::viewportEvent(event);
    const auto* const help = static_cast<const QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    const QString text = cellText(index.row(), index.column());
    const QRect cell = visualRect(index);
    if (!index.isValid() || !isCellTextCut(text, font(), cellTextArea(cell.size(), this)))
        return QTableView::viewportEvent(event);
    QToolTip::showText(help->globalPos(), toolTipOf(text), viewport(), cell);
    return true;
}

void SheetTableView::fitColumns()
{
    if (!m_sized || m_fittingColumns)
        return;
    {
        const QScopedValueRollback<bool> fitting(m_fittingColumns, true);
        horizontalHeader()->setMinimumSectionSize(horizontalHeader()->sectionSizeHint(Description));
        for (const Column column : {Name, Value})
            if (m_columnsOfUser.count(column) == 0)
                setColumnWidth(column, fittingWidth(column));
    }
    fitRows();
}

void SheetTableView::fitRows()
{
    m_rowsAreOutdated = true;
    if (!m_sized || m_fittingColumns || m_fittingRows)
        return;
    // The new heights may show or hide the scroll bar. This changes the widths, and the widths change the heights.
    constexpr int mostRounds = 3;
    const QScopedValueRollback<bool> fitting(m_fittingRows, true);
    for (int round = 0; m_rowsAreOutdated && round < mostRounds; ++round) {
        m_rowsAreOutdated = false;
        resizeRowsToContents();
    }
}

void SheetTableView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        fitColumns();
}

void SheetTableView::showEvent(QShowEvent* event)
{
    QTableView::showEvent(event);
    m_sized = true;
    fitColumns();
}

} // namespace MatGui
