#pragma once

#include <QPointer>

#include <vector>

namespace Gui {
class MainWindow;
class MDIWindow;
} // namespace Gui

namespace Obj {
class Project;
} // namespace Obj

namespace desktop {

class Questions;

/// The open editors of projects, as far as saving depends on them.
class Editors
{
public:
    Editors(Gui::MainWindow& mainWindow, const Questions& questions) : m_mainWindow(mainWindow), m_questions(questions)
    {}

    /// Whether an editor of the project has changes that are not applied.
    bool haveChanges(const Obj::Project& project) const;

    /// Asks about each editor of the project that has changes, and applies those that the user wants, by pressing the
    /// button "btnApply" of the editor. Returns false if the project must not be saved: the user has cancelled, or an
    /// editor could not apply.
    bool applyChanges(const Obj::Project& project) const;

private:
    std::vector<QPointer<Gui::MDIWindow>> findChanged(const Obj::Project& project) const;
    bool deal(const QPointer<Gui::MDIWindow>& editor) const;

    Gui::MainWindow& m_mainWindow;
    const Questions& m_questions;
};

} // namespace desktop
