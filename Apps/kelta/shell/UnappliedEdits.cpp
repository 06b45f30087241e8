#include "kelta/UnappliedEdits.h"

#include "Gui/GuiProject.h"
#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Gui/WindowTitle.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace desktop {

namespace {

bool belongsTo(const Gui::MDIWindow& window, const Obj::Project& project)
{
    return window.getGuiProject() != nullptr && &window.getGuiProject()->get_project() == &project;
}

enum class Choice
{
    Apply,
    Continue, ///< without the edits
    Cancel,
};

/// Asks about one window.
Choice ask(Gui::MainWindow& mainWindow, const Gui::MDIWindow& window, const UnappliedQuestion& question)
{
    const QString name = Gui::shownTitle(window.windowTitle());
    QMessageBox box(QMessageBox::Question, question.title,
                    QCoreApplication::translate("desktop::UnappliedEdits",
                                                "The changes of \"%1\" in its editor have not been applied.")
                        .arg(name),
                    QMessageBox::Apply | QMessageBox::Cancel, &mainWindow);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(question.details);
    // A standard button would get its standard text back if the language changes while the box is shown.
    const QAbstractButton* const without = box.addButton(question.without, QMessageBox::DestructiveRole);
    box.setDefaultButton(QMessageBox::Apply);
    const int answer = box.exec();
    if (box.clickedButton() == without)
        return Choice::Continue;
    return answer == QMessageBox::Apply ? Choice::Apply : Choice::Cancel;
}

/// Returns whether no edits are left.
bool apply(const QPointer<Gui::MDIWindow>& window)
{
    // Each box runs the event loop, in which the window may be closed.
    if (window == nullptr)
        return true;
    const bool applied = window->applyEdits();
    return applied || window == nullptr;
}

/// Asks about the edits of one window. Returns whether the caller may continue.
bool mayContinue(Gui::MainWindow& mainWindow, const QPointer<Gui::MDIWindow>& window, const UnappliedQuestion& question)
{
    if (window == nullptr)
        return true;
    mainWindow.set_active_mdi_window(window);
    const Choice choice = ask(mainWindow, *window, question);
    return choice == Choice::Continue || (choice == Choice::Apply && apply(window));
}

} // namespace

std::vector<QPointer<Gui::MDIWindow>> findUnapplied(const Gui::MainWindow& mainWindow, const Obj::Project& project)
{
    std::vector<QPointer<Gui::MDIWindow>> windows;
    for (Gui::MDIWindow* const window : mainWindow.getMdiWindows()) {
        if (!belongsTo(*window, project))
            continue;
        window->completeEdits();
        if (window->isWindowModified())
            windows.emplace_back(window);
    }
    return windows;
}

bool askToApply(Gui::MainWindow& mainWindow, const Obj::Project& project, const UnappliedQuestion& question)
{
    const auto windows = findUnapplied(mainWindow, project);
    return std::all_of(windows.begin(), windows.end(),
                       [&](const auto& window) { return mayContinue(mainWindow, window, question); });
}

} // namespace desktop
