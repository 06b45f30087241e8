#pragma once

#include <QCoreApplication>

namespace Gui {
class MainWindow;
} // namespace Gui

namespace Obj {
class Project;
} // namespace Obj

namespace desktop {

class Questions;
class Sessions;
struct Session;

/// Saves projects of every class.
class Saving
{
    Q_DECLARE_TR_FUNCTIONS(desktop::ProjectFiles)

public:
    Saving(Gui::MainWindow& mainWindow, Sessions& sessions, const Questions& questions)
        : m_mainWindow(mainWindow), m_sessions(sessions), m_questions(questions)
    {}

    /// Saves a project in its file; asks the user for a file if it has none. Returns false if the user cancels. If the
    /// project cannot be saved, tells the user the reason and returns false; an existing file is then unchanged.
    bool save(Obj::Project& project);
    /// Saves a project in a file that the user chooses. Returns the same as save().
    bool saveAs(Obj::Project& project);

private:
    /// Asks about the unapplied edits of the project. Returns false if the user cancels or the project has been closed.
    bool mayLeaveEdits(Obj::Project& project) const;
    bool saveTo(Obj::Project& project, const QString& path);
    void write(Obj::Project& project, Session& session, const QString& path) const;
    /// Returns whether a project may be written to a file, and takes its lock. Asks the user if another program uses
    /// the file or has changed it.
    bool mayWrite(Session& session, const QString& path) const;
    bool mayReplace(const Session& session, const QString& path) const;

    Gui::MainWindow& m_mainWindow;
    Sessions& m_sessions;
    const Questions& m_questions;
};

} // namespace desktop
