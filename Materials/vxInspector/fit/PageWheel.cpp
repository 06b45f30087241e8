#include "fit/PageWheel.h"

#include <QComboBox>
#include <QEvent>

namespace vxInspector {

PageWheel::PageWheel(QWidget* page) : QObject(page)
{
    for (QComboBox* const list : page->findChildren<QComboBox*>()) {
        list->setFocusPolicy(Qt::StrongFocus); // the wheel does not give it the keyboard
        list->installEventFilter(this);
    }
}

bool PageWheel::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const widget = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::Wheel || widget == nullptr || widget->hasFocus())
        return QObject::eventFilter(watched, event);
    event->ignore(); // the page gets it
    return true;
}

} // namespace vxInspector
