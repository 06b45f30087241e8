#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QTimer>

#include <vector>

namespace vxtest {

/// What a message box that a test answered showed to the user.
struct ShownBox
{
    QMessageBox::Icon icon;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    bool hasDefaultButton;
    const QWidget* parent;
};

/// Answers every message box that comes up while it lives, by a click on one of its buttons, or on the close button of
/// its frame when it has no such button; and keeps what they showed.
class MessageBoxes : public QObject
{
public:
    explicit MessageBoxes(QMessageBox::StandardButton answer = QMessageBox::Ok);

    const std::vector<ShownBox>& shown() const { return m_shown; }

private:
    void answerOpenBox();

    QMessageBox::StandardButton m_answer;
    QTimer m_timer;
    std::vector<ShownBox> m_shown;
};

} // namespace vxtest
