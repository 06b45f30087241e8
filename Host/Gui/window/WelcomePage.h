#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace Gui {

/// What the middle of the main window shows while no document is open: what to do next, and a button that does it.
class WelcomePage : public QWidget
{
    Q_OBJECT

public:
    explicit WelcomePage(QWidget* parent = nullptr);
    ~WelcomePage() override;

    /// Says what comes next in the present state of the projects.
    void refresh();

private:
    void addButton(const char* commandName);

    QLabel* m_title;
    QLabel* m_text;
    QList<QPushButton*> m_buttons;
};

} // namespace Gui
