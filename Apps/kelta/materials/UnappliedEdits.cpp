#include "UnappliedEdits.h"

#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Obj/Project.h"
#include "Obj/ProjectObject.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace desktop {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::UnappliedEdits", text);
}

/// Asks about one editor; returns Apply, Discard for continuing without the edits, or Cancel.
int ask(const Gui::MDIWindow& editor, const UnappliedQuestion& question)
{
    const QString name = QString::fromStdString(editor.getEditedObject()->label.getValue());
    QMessageBox box(QMessageBox::Question, question.title,
                    tr("The changes of \"%1\" in its editor have not been applied.").arg(name),
                    QMessageBox::Apply | QMessageBox::Discard | QMessageBox::Cancel,
                    Gui::MainWindow::get_main_window_inst());
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(question.details);
    box.button(QMessageBox::Discard)->setText(question.without);
    box.setDefaultButton(QMessageBox::Apply);
    return box.exec();
}

/// Applies the edits as the button of the editor does. Returns whether none are left.
bool apply(const QPointer<Gui::MDIWindow>& editor)
{
    auto* const button = editor->findChild<QAbstractButton*>(QStringLiteral("btnApply"));
    if (button != nullptr)
        button->click();
    return editor == nullptr || !editor->isWindowModified();
}

/// Returns whether the caller may continue as far as this editor is concerned.
bool mayContinue(const QPointer<Gui::MDIWindow>& editor, const UnappliedQuestion& question)
{
    // An earlier question ran the event loop, in which this editor may have been closed.
    if (editor == nullptr)
        return true;
    Gui::MainWindow::get_main_window_inst()->set_active_mdi_window(editor);
    const int choice = ask(*editor, question);
    return choice == QMessageBox::Discard || (choice == QMessageBox::Apply && (editor == nullptr || apply(editor)));
}

} // namespace

std::vector<QPointer<Gui::MDIWindow>> findUnapplied(const Obj::Project& project)
{
    std::vector<QPointer<Gui::MDIWindow>> editors;
    const Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst();
    if (mainWindow == nullptr)
        return editors;
    for (Gui::MDIWindow* const window : mainWindow->getMdiWindows()) {
        const Obj::ProjectObject* const object = window->getEditedObject();
        if (object == nullptr || object->get_project() != &project)
            continue;
        window->finishEditing();
        if (window->isWindowModified())
            editors.emplace_back(window);
    }
    return editors;
}

bool askToApply(const Obj::Project& project, const UnappliedQuestion& question)
{
    const auto editors = findUnapplied(project);
    return std::all_of(editors.begin(), editors.end(),
                       [&question](const auto& editor) { return mayContinue(editor, question); });
}

} // namespace desktop
