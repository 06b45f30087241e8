#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QTimer>

#include <vector>

namespace vxtest {

/// The content of a message box that was shown.
struct ShownBox
{
    QMessageBox::Icon icon;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    bool hasDefaultButton;
    QMessageBox::StandardButton preferred; ///< the standard button that Return presses; NoButton for another button
    const QWidget* parent;
};

/// Clicks the same button in every message box that opens, or closes the box if it has no such button. Discard also
/// means a button of the box's own that has the destructive role. Records the content of the boxes. The destructor ends
/// this.
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
