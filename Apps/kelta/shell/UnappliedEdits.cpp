#include "kelta/UnappliedEdits.h"

#include "Gui/GuiProject.h"
#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"

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

/// Asks about one window. Returns Apply, Discard (to continue without the edits), or Cancel.
int ask(Gui::MainWindow& mainWindow, const Gui::MDIWindow& window, const UnappliedQuestion& question)
{
    const QString name = window.windowTitle().remove(QStringLiteral("[*]"));
    QMessageBox box(QMessageBox::Question, question.title,
                    QCoreApplication::translate("desktop::UnappliedEdits",
                                                "The changes of \"%1\" in its editor have not been applied.")
                        .arg(name),
                    QMessageBox::Apply | QMessageBox::Discard | QMessageBox::Cancel, &mainWindow);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(question.details);
    box.button(QMessageBox::Discard)->setText(question.without);
    box.setDefaultButton(QMessageBox::Apply);
    return box.exec();
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
    const int choice = ask(mainWindow, *window, question);
    return choice == QMessageBox::Discard || (choice == QMessageBox::Apply && apply(window));
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
