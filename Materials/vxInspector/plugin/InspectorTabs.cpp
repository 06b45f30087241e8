#include "plugin/InspectorTabs.h"

#include <QFontMetrics>
#include <QProxyStyle>

#include <algorithm>
#include <vector>

namespace vxInspector {

namespace {

constexpr int margins = 12; // beside a title, in pixels

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
    setElideMode(Qt::ElideRight);
}

NarrowTabBar::~NarrowTabBar() = default;

QSize NarrowTabBar::minimumTabSizeHint(int tab) const
{
    QSize size = tabSizeHint(tab);
    size.setWidth(std::min(size.width(), mostWidth()));
    return size;
}

QSize NarrowTabBar::minimumSizeHint() const
{
    return {count() * leastWidth(), QTabBar::minimumSizeHint().height()};
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

InspectorTabs::InspectorTabs(QWidget* parent) : QTabWidget(parent)
{
    setObjectName(QStringLiteral("inspectorTabs"));
    setTabBar(new NarrowTabBar);
    setDocumentMode(true);
    // The two settings of the tab bar that the call above sets again.
    tabBar()->setUsesScrollButtons(false);
    tabBar()->setElideMode(Qt::ElideRight);
}

InspectorTabs::~InspectorTabs() = default;

void InspectorTabs::setTitle(int tab, const QString& title)
{
    setTabText(tab, title);
    setTabToolTip(tab, title);
}

} // namespace vxInspector
