#pragma once

#include <QCoreApplication>
#include <json/value.h>

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

/// Writes copies of modified projects and of the unapplied edits in their editors, and offers the copies of programs that
/// ended before projects were saved.
class Recovery
{
    Q_DECLARE_TR_FUNCTIONS(desktop::ProjectFiles)

public:
    Recovery(Gui::MainWindow& mainWindow, Sessions& sessions, const Questions& questions, Opening& opening)
        : m_mainWindow(mainWindow), m_sessions(sessions), m_questions(questions), m_opening(opening)
    {}

    /// Writes a copy of every project that has changed since its last copy, or whose open editors have. Errors are written
    /// to the message log.
    void keepCopies();
    /// If there are copies of programs that ended, asks whether to recover or discard them, and does so.
    void offer();

private:
    void updateCopy(Obj::Project& project, Session& session);
    static void keepCopy(Obj::Project& project, Session& session, Json::Value edits);
    bool recover(RecoveryCopy& copy);
    bool recoverProject(RecoveryCopy& copy);

    Gui::MainWindow& m_mainWindow;
    Sessions& m_sessions;
    const Questions& m_questions;
    Opening& m_opening;
};

} // namespace desktop
