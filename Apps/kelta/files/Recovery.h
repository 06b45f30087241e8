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

/// Writes copies of modified projects, and offers the copies of programs that ended before projects were saved.
class Recovery
{
    Q_DECLARE_TR_FUNCTIONS(desktop::ProjectFiles)

public:
    Recovery(Gui::MainWindow& mainWindow, Sessions& sessions, const Questions& questions, Opening& opening)
        : m_mainWindow(mainWindow), m_sessions(sessions), m_questions(questions), m_opening(opening)
    {}

    /// Writes a copy of every project that has changed since its last copy. Errors are written to the message log.
    void keepCopies();
    /// If there are copies of programs that ended, asks whether to recover or discard them, and does so.
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
