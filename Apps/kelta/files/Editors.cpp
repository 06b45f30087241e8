#include "Editors.h"

#include "Questions.h"

#include "Gui/GuiProject.h"
#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"

#include <QAbstractButton>

#include <algorithm>

namespace desktop {

std::vector<QPointer<Gui::MDIWindow>> Editors::findChanged(const Obj::Project& project) const
{
    std::vector<QPointer<Gui::MDIWindow>> editors;
    for (Gui::MDIWindow* const window : m_mainWindow.getMdiWindows())
        if (window->isWindowModified() && window->getGuiProject() != nullptr &&
            &window->getGuiProject()->get_project() == &project)
            editors.emplace_back(window);
    return editors;
}

bool Editors::haveChanges(const Obj::Project& project) const
{
    return !findChanged(project).empty();
}

bool Editors::applyChanges(const Obj::Project& project) const
{
    const std::vector<QPointer<Gui::MDIWindow>> editors = findChanged(project);
    return std::all_of(editors.begin(), editors.end(),
                       [this](const QPointer<Gui::MDIWindow>& editor) { return deal(editor); });
}

bool Editors::deal(const QPointer<Gui::MDIWindow>& editor) const
{
    // Each question runs the event loop, in which an editor can close.
    if (editor == nullptr)
        return true;
    m_mainWindow.set_active_mdi_window(editor);
    const auto choice = m_questions.askAboutEditor(editor->windowTitle().remove(QStringLiteral("[*]")));
    if (choice != Questions::EditorChoice::Apply)
        return choice == Questions::EditorChoice::SaveWithout;
    // The editor itself tells the user what cannot be applied.
    auto* const apply = editor != nullptr ? editor->findChild<QAbstractButton*>(QStringLiteral("btnApply")) : nullptr;
    if (apply != nullptr)
        apply->click();
    return editor == nullptr || !editor->isWindowModified();
}

} // namespace desktop
