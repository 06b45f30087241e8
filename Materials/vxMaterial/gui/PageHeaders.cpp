#include "PageHeaders.h"

#include <QAbstractButton>
#include <QEvent>
#include <QListWidget>
#include <QPainter>
#include <QScrollArea>
#include <QToolBox>

namespace MatGui {

namespace {

/// A frame over a widget, visible while the widget has the keyboard focus.
class FocusFrame final : public QWidget
{
public:
    explicit FocusFrame(QWidget& framed) : QWidget(&framed)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        setVisible(framed.hasFocus());
        framed.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::Resize)
            setGeometry(parentWidget()->rect());
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
            setVisible(event->type() == QEvent::FocusIn);
        return QWidget::eventFilter(watched, event);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        constexpr int thickness = 2;
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Highlight), thickness));
        painter.drawRect(rect().adjusted(thickness / 2, thickness / 2, -thickness / 2, -thickness / 2));
    }
};

QList<QAbstractButton*> headersOf(const QToolBox& box)
{
    return box.findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
}

QListWidget* listOf(const QToolBox& box, int page)
{
    return box.widget(page)->findChild<QListWidget*>();
}

/// Lets a page of any height show a list, with the scroll bars of the list only.
void shrinkToFewRows(QListWidget& list)
{
    constexpr int rows = 2;
    constexpr int characters = 8;
    list.setMinimumSize(characters * list.fontMetrics().averageCharWidth(), rows * list.fontMetrics().lineSpacing());
}

} // namespace

QWidget* makePagesReachable(const QToolBox& box, QWidget* before)
{
    for (QScrollArea* const frame : box.findChildren<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly))
        frame->setFocusPolicy(Qt::NoFocus);
    const QList<QAbstractButton*> headers = headersOf(box);
    for (int page = 0; page < headers.size(); ++page) {
        headers[page]->setFocusPolicy(Qt::TabFocus);
        new FocusFrame(*headers[page]); // the header owns the frame
        QListWidget* const list = listOf(box, page);
        shrinkToFewRows(*list);
        QWidget::setTabOrder(before, headers[page]);
        QWidget::setTabOrder(headers[page], list);
        before = list;
    }
    namePageHeaders(box);
    return before;
}

void namePageHeaders(const QToolBox& box)
{
    const QList<QAbstractButton*> headers = headersOf(box);
    for (int page = 0; page < headers.size(); ++page)
        if (const QListWidget* const list = listOf(box, page)) {
            headers[page]->setAccessibleName(list->accessibleName());
            headers[page]->setToolTip(list->accessibleName());
        }
}

} // namespace MatGui
