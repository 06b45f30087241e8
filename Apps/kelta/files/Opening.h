#pragma once

#include "KeptMembers.h"

#include "projectfile/ProjectFile.h"

#include <QCoreApplication>

#include <functional>
#include <string>
#include <utility>
#include <vector>

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

/// Opens project files, of projects of every class.
class Opening
{
    Q_DECLARE_TR_FUNCTIONS(desktop::ProjectFiles)

public:
    /// Handles a file that is an exchange document, not a project. Returns whether its content was imported.
    using OnDocument = std::function<bool(const QString& path)>;

    Opening(Gui::MainWindow& mainWindow, Sessions& sessions, const Questions& questions, OnDocument onDocument)
        : m_mainWindow(mainWindow), m_sessions(sessions), m_questions(questions), m_onDocument(std::move(onDocument))
    {}

    /// Opens a file and selects the project. The guard of its class, if there is one, is asked before. If opening
    /// fails, tells the user the reason, adds no project and returns false.
    bool open(const QString& path);

    /// Makes a project from a file, as open does, without a connection to the file: Save asks for another file.
    bool openCopy(const QString& path);

    /// Asks the guard of the class of a record, if there is one, whether a project may be opened from a file.
    static bool mayOpen(const projectfile::ProjectRecord& record, const QString& path);

    /// Makes a project from a record and selects it. Writes doubts about the record to the message log, with the name
    /// of the file `source`. Returns null, with the reason in the message log, if the project cannot be made.
    /// \throws std::exception if the content is wrong; no project is added
    Obj::Project* makeProject(projectfile::ProjectRecord& record, const QString& source);

    /// Writes doubts about a file to the message log. Shows the log if there are any.
    void warn(const QString& path, const std::vector<std::string>& doubts);

private:
    bool openFile(const QString& path);
    Obj::Project& openProject(projectfile::ProjectRecord& record, const QString& path);
    bool openOrComplain(const QString& path, const std::function<bool()>& action);
    void rememberText(Obj::Project& project, Session& session) const;

    Gui::MainWindow& m_mainWindow;
    Sessions& m_sessions;
    const Questions& m_questions;
    OnDocument m_onDocument;
};

} // namespace desktop
