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

    /// Saves a project in its file, or asks for one. Returns false if the user gave up, or if the project could not be
    /// saved, which the user has been told; an existing file is then as it was.
    bool save(Obj::Project& project);
    /// Likewise in a file that the user chooses.
    bool saveAs(Obj::Project& project);

private:
    bool saveTo(Obj::Project& project, const QString& path);
    void write(Obj::Project& project, Session& session, const QString& path) const;
    /// Whether a project may be written to a file: asks about other programs and later changes, and takes its lock.
    bool mayWrite(Session& session, const QString& path) const;
    bool mayReplace(const Session& session, const QString& path) const;

    Gui::MainWindow& m_mainWindow;
    Sessions& m_sessions;
    const Questions& m_questions;
};

} // namespace desktop
