#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QTimer>

#include <vector>

namespace vxtest {

/// What a message box showed to the user.
struct ShownBox
{
    QMessageBox::Icon icon;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    bool hasDefaultButton;
    const QWidget* parent;
};

/// While it lives, clicks one button in every message box that opens, or closes the box if it has no such button. Keeps
/// what the boxes showed.
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
