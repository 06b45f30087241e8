#include "window/Panes.h"

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollArea>
#include <QStackedWidget>

#include <algorithm>
#include <tuple>

namespace Gui {

namespace {

bool canHaveFocus(const QWidget& widget)
{
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

/// Returns the widget in `pane` that the Tab key visits first; null if there is none.
QWidget* firstForKeys(QWidget& pane)
{
    for (QWidget* widget = pane.nextInFocusChain(); widget != &pane; widget = widget->nextInFocusChain())
        if (pane.isAncestorOf(widget) && canHaveFocus(*widget))
            return widget;
    return nullptr;
}

/// Returns the widget in a pane to which the focus belongs: the document in front, or the content of the pane.
QWidget* contentOf(QWidget& pane)
{
    if (const auto* const dock = qobject_cast<const QDockWidget*>(&pane))
        return dock->widget();
    const auto* const scrolled = qobject_cast<const QScrollArea*>(&pane);
    QWidget* const content = scrolled != nullptr ? scrolled->widget() : &pane;
    const auto* const pages = qobject_cast<const QStackedWidget*>(content);
    QWidget* const page = pages != nullptr ? pages->currentWidget() : content;
    const auto* const documents = qobject_cast<const QMdiArea*>(page);
    const QMdiSubWindow* const document = documents != nullptr ? documents->currentSubWindow() : nullptr;
    return document != nullptr ? document->widget() : page;
}

/// Returns the widget in `content` that gets the focus.
QWidget* targetIn(QWidget& content)
{
    QWidget* const last = content.focusWidget();
    if (last != nullptr && canHaveFocus(*last))
        return last;
    if (content.focusProxy() != nullptr || canHaveFocus(content))
        return &content;
    return firstForKeys(content);
}

} // namespace

void Panes::move(Step step) const
{
    const std::vector<QWidget*> panes = visiblePanes();
    const QWidget* const focused = QApplication::focusWidget();
    const auto current = std::find_if(panes.begin(), panes.end(), [focused](const QWidget* pane) {
        return focused != nullptr && (pane == focused || pane->isAncestorOf(focused));
    });
    const auto count = static_cast<std::ptrdiff_t>(panes.size());
    const std::ptrdiff_t from = current != panes.end() ? current - panes.begin() : step == Step::Next ? -1 : 0;
    const std::ptrdiff_t to = (from + (step == Step::Next ? 1 : count - 1)) % count;
    focus(*panes[static_cast<std::size_t>(to)]);
}

void Panes::focus(QWidget& pane)
{
    if (auto* const dock = qobject_cast<QDockWidget*>(&pane))
        dock->raise();
    QWidget* const content = contentOf(pane);
    QWidget* const target = content != nullptr ? targetIn(*content) : nullptr;
    if (target == nullptr)
        return;
    // Styles show the focus of buttons only after the Tab key, or with this attribute.
    target->window()->setAttribute(Qt::WA_KeyboardFocusChange);
    target->setFocus(Qt::TabFocusReason);
}

std::vector<QWidget*> Panes::visiblePanes() const
{
    std::vector<QWidget*> panes{m_window.centralWidget()};
    for (QDockWidget* const dock : m_window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (dock->isVisible())
            panes.push_back(dock);
    std::stable_sort(panes.begin(), panes.end(), [this](QWidget* one, QWidget* other) {
        return std::make_tuple(placeOf(*one), one->y(), one->x()) <
               std::make_tuple(placeOf(*other), other->y(), other->x());
    });
    return panes;
}

int Panes::placeOf(QWidget& pane) const
{
    auto* const dock = qobject_cast<QDockWidget*>(&pane);
    if (dock == nullptr)
        return 1;
    switch (m_window.dockWidgetArea(dock)) {
    case Qt::LeftDockWidgetArea:
        return 0;
    case Qt::RightDockWidgetArea:
        return 2;
    default:
        return 3;
    }
}

} // namespace Gui
