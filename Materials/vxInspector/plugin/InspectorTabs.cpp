#include "plugin/InspectorTabs.h"

#include <QEvent>
#include <QFont>
#include <QFontInfo>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QProxyStyle>
#include <QResizeEvent>
#include <QStyleOptionTab>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>
#include <vector>

namespace vxInspector {

namespace {

constexpr int margins = 8; // beside a title, in pixels

/// The style of the platform with small margins of the titles.
class NarrowTabStyle : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        return metric == PM_TabBarTabHSpace ? margins : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

} // namespace

NarrowTabBar::NarrowTabBar(QWidget* parent) : QTabBar(parent)
{
    auto* const narrow = new NarrowTabStyle;
    narrow->setParent(this);
    setStyle(narrow);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideMiddle);
}

NarrowTabBar::~NarrowTabBar() = default;

QSize NarrowTabBar::minimumTabSizeHint(int tab) const
{
    QSize size = tabSizeHint(tab);
    size.setWidth(std::min(size.width(), mostWidth()));
    return size;
}

QSize NarrowTabBar::sizeHint() const
{
    const QSize ofRow = QTabBar::sizeHint();
    return {ofRow.width(), m_rows * ofRow.height()};
}

QSize NarrowTabBar::minimumSizeHint() const
{
    return {count() * leastWidth(), m_rows * QTabBar::minimumSizeHint().height()};
}

/// Sets font and rows. Returns whether all titles are whole.
bool NarrowTabBar::fits(double partOfFont, int rows)
{
    QFont font = parentWidget()->font();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * partOfFont);
    setFont(font);
    m_rows = rows;
    int sum = 0;
    int widest = 0;
    for (int tab = 0; tab < count(); ++tab) {
        sum += tabSizeHint(tab).width();
        widest = std::max(widest, tabSizeHint(tab).width());
    }
    const int width = parentWidget()->width();
    return rows == 1 ? sum <= width : widest <= placeOf(0).width();
}

/// A slightly smaller font is better than a second row, which takes height from the table.
void NarrowTabBar::fitTitles()
{
    constexpr double whole = 1.0;
    constexpr double smaller = 0.93;
    constexpr double small = 0.86; // still smaller texts are hard to read
    if (parentWidget() == nullptr || fits(whole, 1) || fits(smaller, 1) || fits(whole, 2) || fits(smaller, 2))
        return;
    fits(small, 2);
}

QRect NarrowTabBar::placeOf(int tab) const
{
    if (m_rows == 1)
        return tabRect(tab);
    const int columns = (count() + m_rows - 1) / m_rows;
    const int total = parentWidget()->width();
    const int height = QTabBar::sizeHint().height();
    const int left = total * (tab % columns) / columns;
    const int right = total * (tab % columns + 1) / columns;
    return {left, tab / columns * height, right - left, height};
}

int NarrowTabBar::tabAtPlace(const QPoint& point) const
{
    for (int tab = 0; tab < count(); ++tab)
        if (placeOf(tab).contains(point))
            return tab;
    return -1;
}

bool NarrowTabBar::event(QEvent* event)
{
    if (m_rows == 1 || event->type() != QEvent::ToolTip)
        return QTabBar::event(event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const int tab = tabAtPlace(help.pos());
    QToolTip::showText(help.globalPos(), tab >= 0 ? tabToolTip(tab) : QString(), this);
    return true;
}

void NarrowTabBar::paintEvent(QPaintEvent* event)
{
    if (m_rows == 1)
        return QTabBar::paintEvent(event);
    QStylePainter painter(this);
    for (int tab = 0; tab < count(); ++tab) {
        QStyleOptionTab option;
        initStyleOption(&option, tab);
        option.rect = placeOf(tab);
        const int room = style()->subElementRect(QStyle::SE_TabBarTabText, &option, this).width();
        option.text = fontMetrics().elidedText(tabText(tab), elideMode(), room);
        painter.drawControl(QStyle::CE_TabBarTab, option);
    }
}

void NarrowTabBar::mousePressEvent(QMouseEvent* event)
{
    if (m_rows == 1)
        return QTabBar::mousePressEvent(event);
    const int tab = event->button() == Qt::LeftButton ? tabAtPlace(event->pos()) : -1;
    if (tab >= 0)
        setCurrentIndex(tab);
    else
        event->ignore();
}

int NarrowTabBar::leastWidth() const
{
    constexpr int characters = 4;
    return characters * fontMetrics().averageCharWidth() + margins;
}

/// Returns the width of the elided titles: short titles remain whole.
int NarrowTabBar::mostWidth() const
{
    std::vector<int> widths(static_cast<std::size_t>(count()));
    for (int tab = 0; tab < count(); ++tab)
        widths[static_cast<std::size_t>(tab)] = tabSizeHint(tab).width();
    std::sort(widths.begin(), widths.end());
    int room = parentWidget() != nullptr ? parentWidget()->width() : width();
    int most = room;
    auto left = static_cast<int>(widths.size());
    for (const int width : widths) {
        most = room / left;
        if (width > most)
            break;
        room -= width;
        --left;
        most = width;
    }
    return std::max(most, leastWidth());
}

InspectorTabs::InspectorTabs(QWidget* parent) : QTabWidget(parent), m_bar(new NarrowTabBar)
{
    setObjectName(QStringLiteral("inspectorTabs"));
    setTabBar(m_bar);
    setDocumentMode(true);
    // The two settings of the tab bar that the call above sets again.
    m_bar->setUsesScrollButtons(false);
    m_bar->setElideMode(Qt::ElideMiddle);
}

InspectorTabs::~InspectorTabs() = default;

void InspectorTabs::setTitle(int tab, const QString& title)
{
    setTabToolTip(tab, title);
    if (title == tabText(tab))
        return;
    setTabText(tab, title);
    fitTitles();
}

void InspectorTabs::fitTitles()
{
    m_bar->fitTitles();
    QResizeEvent same(size(), size());
    QTabWidget::resizeEvent(&same); // lays out the bar and the page
}

void InspectorTabs::resizeEvent(QResizeEvent* event)
{
    if (event->size().width() != event->oldSize().width())
        m_bar->fitTitles();
    QTabWidget::resizeEvent(event);
}

void InspectorTabs::changeEvent(QEvent* event)
{
    QTabWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitTitles();
}

} // namespace vxInspector
