#include "table/ContentView.h"

#include "Kelta/Exceptions.h"
#include "table/ContentModel.h"
#include "table/FrozenColumn.h"
#include "table/TextPieces.h"
#include "values/RangeDelegate.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>
#include <utility>

namespace vxInspector {

namespace {

int sumOf(const std::vector<NeededWidth>& needed, int NeededWidth::*width)
{
    return std::accumulate(needed.begin(), needed.end(), 0,
                           [width](int sum, const NeededWidth& column) { return sum + column.*width; });
}

/// Returns the widths of columns that share a width. If the texts do not fit in one line, all columns get the same part of
/// what their texts need, so that these have a similar number of lines. If the words do not fit, all columns get the same
/// part of what their words need beyond the least width, and none gets less than that.
std::vector<int> shareWidth(const std::vector<NeededWidth>& needed, int width)
{
    const bool doWordsFit = sumOf(needed, &NeededWidth::longest) <= width;
    const auto most = doWordsFit ? &NeededWidth::whole : &NeededWidth::longest;
    const auto least = doWordsFit ? &NeededWidth::longest : &NeededWidth::least;
    const int wanted = sumOf(needed, most);
    const int needs = sumOf(needed, least);
    const double share =
        wanted > needs ? std::clamp((width - needs) / static_cast<double>(wanted - needs), 0.0, 1.0) : 1.0;
    std::vector<int> widths;
    widths.reserve(needed.size());
    for (const NeededWidth& column : needed)
        widths.push_back(column.*least + static_cast<int>(share * (column.*most - column.*least)));
    return widths;
}

/// Sets the least widths of columns that share a width. If the names in the first column are not whole beside narrow bars,
/// units are broken for them, and the names get the rest of the width. In a table that is scrolled anyway, they are whole
/// if they leave half of the width, so that they can stay in sight.
void limitLeast(std::vector<NeededWidth>& needed, int width)
{
    if (needed.empty())
        return;
    NeededWidth& names = needed.front();
    const auto rest = [&] { return width - sumOf(needed, &NeededWidth::least) + names.least; };
    if (rest() < names.longest)
        std::for_each(needed.begin() + 1, needed.end(), [](NeededWidth& other) { other.least = other.broken; });
    const bool isScrolled = rest() < names.least;
    names.least = std::min(isScrolled ? width / 2 : rest(), names.longest);
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
    horizontalHeader()->setTextElideMode(Qt::ElideRight);
    horizontalHeader()->viewport()->installEventFilter(this);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, &ContentView::noteWidthOfUser);
    connect(this, &QTableView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT chosen(index.row(), index.column()); });
    m_frozen = new FrozenColumn(*this);
    createActions();
    retranslate();
}

ContentView::~ContentView() = default;

/// The header resizes its columns by itself too: the last one with the table, also while a mouse button is pressed elsewhere.
bool ContentView::eventFilter(QObject* object, QEvent* event)
{
    if (object == horizontalHeader()->viewport()) {
        const QEvent::Type type = event->type();
        if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick)
            m_isHeaderPressed = true;
        else if (type == QEvent::MouseButtonRelease)
            m_isHeaderPressed = false;
    }
    return QTableView::eventFilter(object, event);
}

void ContentView::noteWidthOfUser(int column)
{
    const bool isLast = column == m_model->columnCount() - 1;
    if (m_isHeaderPressed && !m_fitting && !isLast)
        m_columnsOfUser.insert(column);
}

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
    m_frozen->follow();
}

void ContentView::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitColumns();
}

void ContentView::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    QTableView::scrollTo(index, hint);
    if (index.column() <= 0)
        return;
    const int hidden = m_frozen->coveredWidth() - visualRect(index).left();
    if (hidden > 0)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - hidden);
}

/// A header of the inspector is whole, but the label of a material may be long.
NeededWidth ContentView::neededWidth(int column) const
{
    if (m_columnsOfUser.count(column) != 0)
        return {columnWidth(column), columnWidth(column), columnWidth(column), columnWidth(column)};
    constexpr int mostOfHeader = 12;                                    // characters; the rest is elided
    const int header = horizontalHeader()->sectionSizeHint(column) + 2; // advances are rounded
    const int leastOfHeader = std::min(header, mostOfHeader * fontMetrics().averageCharWidth());
    NeededWidth needed{header, header, leastOfHeader, leastOfHeader};
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const NeededWidth ofCell = neededWidth(m_model->index(row, column));
        needed.whole = std::max(needed.whole, ofCell.whole);
        needed.longest = std::max(needed.longest, ofCell.longest);
        needed.least = std::max(needed.least, ofCell.least);
        needed.broken = std::max(needed.broken, ofCell.broken);
    }
    return needed;
}

NeededWidth ContentView::neededWidth(const QModelIndex& index) const
{
    const Cell& cell = m_model->cell(index);
    if (cell.bar) {
        const int bar = sizeHintForIndex(index).width();
        return {bar, bar * 2 / 3, bar / 2, bar / 2}; // names are whole before bars are wide
    }
    const QFontMetricsF metrics(index.data(Qt::FontRole).value<QFont>().resolve(font()));
    const int margin = RangeDelegate::marginOf(*this, cell);
    // The size hint of a wrapped cell would depend on the present width of the column.
    double line = 0.0;
    const QString text = RangeDelegate::shownText(cell);
    for (const QString& one : text.split(QLatin1Char('\n')))
        line = std::max(line, metrics.horizontalAdvance(one));
    const int whole = static_cast<int>(std::ceil(line)) + margin;
    if (cell.isFixed)
        return {whole, whole, whole, whole};
    const int width = viewport()->width();
    constexpr int mostOfName = 8; // characters in a line; the rest is elided
    const PieceWidths pieces = pieceWidths(cell.isInOneLine ? cell.text : text, metrics);
    constexpr int shortText = 4; // characters that are in one line also without blanks
    const bool isName = index.column() == 0;
    const int most = isName ? width * 3 / 5 : width / 2;
    const int longest = std::min(cell.text.size() <= shortText ? whole : pieces.longest + margin, most);
    const int least = isName ? mostOfName * fontMetrics().averageCharWidth() + margin : width * 3 / 7;
    const int number = pieces.longestNumber > 0 ? pieces.longestNumber + margin : 0;
    const int broken = std::max(std::min(longest, least), number);
    if (cell.isInOneLine)
        return {whole, std::max(std::min(whole, width / 2), broken), std::max(std::min(whole, width / 3), broken),
                broken};
    return {whole, std::max(longest, number), broken, broken};
}

/// A scroll bar that appears with the new heights of the rows takes width from the columns, so they are fitted again.
void ContentView::fitColumns()
{
    if (m_fitting)
        return;
    const QScopedValueRollback<bool> fitting(m_fitting, true);
    constexpr int mostPasses = 3; // the bar may go with the new widths
    for (int pass = 0; pass < mostPasses; ++pass) {
        const int width = viewport()->width();
        fitToWidth();
        updateGeometries();
        if (viewport()->width() == width)
            break;
    }
    m_frozen->follow();
}

void ContentView::fitToWidth()
{
    const int height = fontMetrics().height();
    setIconSize({height, height});
    std::vector<NeededWidth> needed;
    for (int column = 0; column < m_model->columnCount(); ++column)
        needed.push_back(neededWidth(column));
    limitLeast(needed, viewport()->width());
    const std::vector<int> widths = shareWidth(needed, viewport()->width());
    for (int column = 0; column < m_model->columnCount(); ++column)
        if (m_columnsOfUser.count(column) == 0)
            setColumnWidth(column, widths[static_cast<std::size_t>(column)]);
    resizeRowsToContents();
}

} // namespace vxInspector
