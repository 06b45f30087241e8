#pragma once

#include <QCoreApplication>

namespace Gui {
class MainWindow;
} // namespace Gui

namespace Obj {
class Project;
} // namespace Obj

namespace desktop {

class Opening;
class Questions;
class RecoveryCopy;
class Sessions;
struct Session;

/// Keeps copies of projects that have changes, and offers those that a program left which ended without saving.
class Recovery
{
    Q_DECLARE_TR_FUNCTIONS(desktop::ProjectFiles)

public:
    Recovery(Gui::MainWindow& mainWindow, Sessions& sessions, const Questions& questions, Opening& opening)
        : m_mainWindow(mainWindow), m_sessions(sessions), m_questions(questions), m_opening(opening)
    {}

    /// Keeps a copy of every project that has changed since its last copy. What fails is written to the message log.
    void keepCopies();
    /// Asks whether the copies of programs that ended are to be recovered, and does that.
    void offer();

private:
    static void keepCopy(Obj::Project& project, Session& session);
    bool recover(RecoveryCopy& copy);
    bool recoverProject(RecoveryCopy& copy);

    Gui::MainWindow& m_mainWindow;
    Sessions& m_sessions;
    const Questions& m_questions;
    Opening& m_opening;
};

} // namespace desktop
