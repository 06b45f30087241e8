#include "MessageBoxes.h"

#include <QApplication>
#include <QPushButton>
#include <QtTest/QtTestGui>
#include <QtTest/qtestmouse.h>

namespace vxtest {

MessageBoxes::MessageBoxes(QMessageBox::StandardButton answer) : m_answer(answer)
{
    connect(&m_timer, &QTimer::timeout, this, &MessageBoxes::answerOpenBox);
    m_timer.start(1);
}

void MessageBoxes::answerOpenBox()
{
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible())
        return;
    m_shown.push_back({box->icon(), box->windowTitle(), box->text(), box->standardButtons(),
                       box->defaultButton() != nullptr, box->parentWidget()});
    if (QAbstractButton* const button = box->button(m_answer))
        QTest::mouseClick(button, Qt::LeftButton);
    else
        box->reject();
}

} // namespace vxtest
