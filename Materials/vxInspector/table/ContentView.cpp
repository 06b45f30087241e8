#include "table/ContentView.h"

#include "Kelta/Exceptions.h"
#include "table/ContentModel.h"
#include "values/RangeDelegate.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QStyle>

#include <algorithm>
#include <memory>
#include <utility>

namespace vxInspector {

namespace {

/// Returns the widths of columns that share a width. If the texts do not fit in one line, all columns get the same part of
/// what their texts need, so that these have a similar number of lines; but no column is narrower than its words.
std::vector<int> shareWidth(const std::vector<NeededWidth>& needed, int width)
{
    int whole = 0;
    int longest = 0;
    for (const NeededWidth& column : needed) {
        whole += column.whole;
        longest += column.longest;
    }
    const bool isEnough = whole <= width;
    const double share = whole > longest ? std::max(width - longest, 0) / static_cast<double>(whole - longest) : 0.0;
    std::vector<int> widths;
    widths.reserve(needed.size());
    for (const NeededWidth& column : needed)
        widths.push_back(isEnough ? column.whole
                                  : column.longest + static_cast<int>(share * (column.whole - column.longest)));
    return widths;
}

int longestWord(const QString& text, const QFontMetrics& font)
{
    int longest = 0;
    for (const QString& line : text.split(QLatin1Char('\n')))
        for (const QString& word : line.split(QLatin1Char(' ')))
            longest = std::max(longest, font.horizontalAdvance(word));
    return longest;
}

/// Returns the row of a table with the same place and the same first cell; -1 if there is none.
int findRow(const TableContent& table, const Row& row)
{
    const auto isSame = [&row](const Row& other) {
        return other.place == row.place && other.cells.front().text == row.cells.front().text;
    };
    const auto found = std::find_if(table.rows.begin(), table.rows.end(), isSame);
    return found != table.rows.end() ? static_cast<int>(found - table.rows.begin()) : -1;
}

} // namespace

ContentView::ContentView(QWidget* parent)
    : QTableView(parent),
      m_model(new ContentModel(this)),
      m_copy(new QAction(this)),
      m_copyAll(new QAction(this)),
      m_selectAll(new QAction(this))
{
    setModel(m_model);
    setItemDelegate(new RangeDelegate(this));
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setAlternatingRowColors(true);
    setShowGrid(false);
    verticalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // The header resizes its last column by itself too.
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column) {
        if (!m_fitting && QApplication::mouseButtons() != Qt::NoButton)
            m_columnsOfUser.insert(column);
    });
    connect(this, &QTableView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT chosen(index.row(), index.column()); });
    createActions();
    retranslate();
}

ContentView::~ContentView() = default;

void ContentView::createActions()
{
    m_copy->setShortcut(QKeySequence::Copy);
    m_selectAll->setShortcut(QKeySequence::SelectAll);
    for (QAction* const action : {m_copy, m_copyAll, m_selectAll}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        addAction(action);
    }
    setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_copy, &QAction::triggered, this, &ContentView::copySelected);
    connect(m_copyAll, &QAction::triggered, this, &ContentView::copyAll);
    connect(m_selectAll, &QAction::triggered, this, &ContentView::selectAll);
}

void ContentView::retranslate()
{
    m_copy->setText(tr("&Copy"));
    m_copyAll->setText(tr("Copy &table"));
    m_selectAll->setText(tr("Select &all"));
}

const TableContent& ContentView::content() const
{
    return m_model->content();
}

void ContentView::setContent(TableContent content)
{
    const QModelIndex current = currentIndex();
    const int column = std::max(current.column(), 0);
    const int row =
        current.isValid() ? findRow(content, m_model->content().rows[static_cast<std::size_t>(current.row())]) : -1;
    if (content.headers != m_model->content().headers)
        m_columnsOfUser.clear();
    m_model->setContent(std::move(content));
    if (!currentIndex().isValid() && row >= 0)
        setCurrentIndex(m_model->index(row, std::min(column, m_model->columnCount() - 1)));
    fitColumns();
}

void ContentView::copySelected() const
{
    std::set<int> rows;
    std::set<int> columns;
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    for (const QModelIndex& index : selected) {
        rows.insert(index.row());
        columns.insert(index.column());
    }
    Kelta::guarded(tr("The cells cannot be copied"), [&] {
        if (selected.size() == 1)
            QApplication::clipboard()->setText(m_model->cell(selected.front()).copied());
        else if (!selected.isEmpty())
            copy({{rows.begin(), rows.end()}, {columns.begin(), columns.end()}});
    });
}

void ContentView::copyAll() const
{
    Kelta::guarded(tr("The cells cannot be copied"), [this] { copy(wholeOf(content())); });
}

void ContentView::copy(const TablePart& part) const
{
    auto both = std::make_unique<QMimeData>();
    both->setText(toTabText(content(), part));
    both->setHtml(toHtml(content(), part));
    QApplication::clipboard()->setMimeData(both.release()); // takes ownership
}

void ContentView::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && currentIndex().isValid())
        Q_EMIT chosen(currentIndex().row(), currentIndex().column());
    else
        QTableView::keyPressEvent(event);
}

void ContentView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        fitColumns();
}

void ContentView::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitColumns();
}

NeededWidth ContentView::neededWidth(int column) const
{
    if (m_columnsOfUser.count(column) != 0)
        return {columnWidth(column), columnWidth(column)};
    const int header = horizontalHeader()->sectionSizeHint(column);
    // The margins of a cell, and one pixel because advances are rounded.
    const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1) + 1;
    int whole = header;
    int longest = 0;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const Cell& cell = content().rows[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(column)];
        if (cell.bar)
            return {std::max(header, sizeHintForIndex(m_model->index(row, column)).width()), header};
        const auto own = m_model->index(row, column).data(Qt::FontRole).value<QFont>();
        const QFontMetrics metrics(own.resolve(font()));
        // The size hint of a wrapped cell would depend on the present width of the column.
        for (const QString& line : cell.text.split(QLatin1Char('\n')))
            whole = std::max(whole, metrics.horizontalAdvance(line) + margin);
        longest = std::max(longest, longestWord(cell.text, metrics) + margin);
    }
    const int most = viewport()->width() / 3;
    return {whole, std::min({std::max(longest, header), whole, most})};
}

void ContentView::fitColumns()
{
    if (m_fitting)
        return;
    const QScopedValueRollback<bool> fitting(m_fitting, true);
    std::vector<NeededWidth> needed;
    for (int column = 0; column < m_model->columnCount(); ++column)
        needed.push_back(neededWidth(column));
    const std::vector<int> widths = shareWidth(needed, viewport()->width());
    for (int column = 0; column < m_model->columnCount(); ++column)
        if (m_columnsOfUser.count(column) == 0)
            setColumnWidth(column, widths[static_cast<std::size_t>(column)]);
    resizeRowsToContents();
}

} // namespace vxInspector
