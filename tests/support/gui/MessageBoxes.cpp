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

namespace {

/// Returns the standard button, or for Discard the first button with the destructive role; null if there is none.
QAbstractButton* findButton(const QMessageBox& box, QMessageBox::StandardButton wanted)
{
    if (QAbstractButton* const button = box.button(wanted))
        return button;
    for (QAbstractButton* const button : box.buttons())
        if (wanted == QMessageBox::Discard && box.buttonRole(button) == QMessageBox::DestructiveRole)
            return button;
    return nullptr;
}

} // namespace

void MessageBoxes::answerOpenBox()
{
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible())
        return;
    m_shown.push_back({box->icon(), box->windowTitle(), box->text(), box->standardButtons(),
                       box->defaultButton() != nullptr, box->standardButton(box->defaultButton()),
                       box->parentWidget()});
    if (QAbstractButton* const button = findButton(*box, m_answer))
        QTest::mouseClick(button, Qt::LeftButton);
    else
        box->reject();
}

} // namespace vxtest
