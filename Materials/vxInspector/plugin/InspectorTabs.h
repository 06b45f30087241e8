#pragma once

#include <QTabBar>
#include <QTabWidget>

namespace vxInspector {

/// A tab bar that shows all its tabs in a narrow dock: the margins of their titles are small. If the tabs do not fit, their
/// font becomes a little smaller, or they are in two rows. If that is not enough, long titles are elided in their middle,
/// so that a number at the end stays. The tool tip of a tab is its whole title.
class NarrowTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit NarrowTabBar(QWidget* parent = nullptr);
    ~NarrowTabBar() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Chooses font and rows for the width of the parent widget. To be called when the titles, the font or the width
    /// change.
    void fitTitles();

    /// Returns the place of a tab. QTabBar::tabRect does not know of rows.
    QRect placeOf(int tab) const;

protected:
    QSize minimumTabSizeHint(int tab) const override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    bool fits(double partOfFont, int rows);
    int tabAtPlace(const QPoint& point) const;
    int leastWidth() const;
    int mostWidth() const;

    int m_rows = 1;
};

/// The tabs of the inspector.
class InspectorTabs : public QTabWidget
{
    Q_OBJECT

public:
    explicit InspectorTabs(QWidget* parent = nullptr);
    ~InspectorTabs() override;

    NarrowTabBar& bar() const { return *m_bar; }
    /// Sets the title of a tab, which is its tool tip too.
    void setTitle(int tab, const QString& title);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void fitTitles();

    NarrowTabBar* m_bar;
};

} // namespace vxInspector
