#pragma once

#include <QTabBar>
#include <QTabWidget>

namespace vxInspector {

/// A tab bar that shows all its tabs in a narrow dock: the margins of their titles are small, and if the tabs do not fit,
/// long titles are elided. The tool tip of a tab is its whole title.
class NarrowTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit NarrowTabBar(QWidget* parent = nullptr);
    ~NarrowTabBar() override;

    QSize minimumSizeHint() const override;

protected:
    QSize minimumTabSizeHint(int tab) const override;

private:
    int leastWidth() const;
    int mostWidth() const;
};

/// The tabs of the inspector.
class InspectorTabs : public QTabWidget
{
    Q_OBJECT

public:
    explicit InspectorTabs(QWidget* parent = nullptr);
    ~InspectorTabs() override;

    /// Sets the title of a tab, which is its tool tip too.
    void setTitle(int tab, const QString& title);
};

} // namespace vxInspector
