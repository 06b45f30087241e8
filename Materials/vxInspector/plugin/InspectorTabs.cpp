#include "plugin/InspectorTabs.h"

#include <QFontMetrics>
#include <QProxyStyle>

#include <algorithm>

namespace vxInspector {

namespace {

constexpr int margins = 14; // beside a title, in pixels

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

/// Short titles remain whole.
QSize NarrowTabBar::minimumTabSizeHint(int tab) const
{
    constexpr int characters = 6;
    QSize size = tabSizeHint(tab);
    size.setWidth(std::min(size.width(), characters * fontMetrics().averageCharWidth() + margins));
    return size;
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
