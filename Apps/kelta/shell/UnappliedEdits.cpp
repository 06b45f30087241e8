#include "kelta/UnappliedEdits.h"

#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Gui/WindowTitle.h"
#include "Kelta/MessageLog.h"
#include "Obj/Project.h"
#include "vxMsg/MessageProxy.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <utility>

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
    if (choice != Choice::Apply)
        return choice == Choice::Continue;
    const bool applied = apply(window);
    // The edits can be undone, the command that asks (such as an export) cannot be.
    vxMsg::MessageProxy::instance().nameStepByItsFirstRequest();
    return applied;
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

Json::Value recordUnapplied(const Gui::MainWindow& mainWindow, const Obj::Project& project)
{
    Json::Value record;
    for (const Gui::MDIWindow* const window : mainWindow.getMdiWindows()) {
        if (!belongsTo(*window, project) || window->getEditedObject() == nullptr)
            continue;
        Json::Value edits = window->unappliedEdits();
        if (edits.isNull())
            continue;
        Json::Value element;
        element["object_id"] = window->getEditedObject()->getObjectId();
        element["edits"] = std::move(edits);
        record.append(std::move(element));
    }
    return record;
}

bool showEdits(Obj::ProjectObject& object, const Json::Value& edits)
{
    const Gui::MainWindow& mainWindow = *Gui::MainWindow::get_main_window_inst();
    Gui::ViewFeeder* const node = Gui::GuiApplication::Instance->get_view_feeder(&object);
    if (node != nullptr && mainWindow.editorOf(object) == nullptr)
        node->setEdit(0);
    Gui::MDIWindow* const editor = mainWindow.editorOf(object);
    return editor != nullptr && editor->restoreEdits(edits);
}

void showUnapplied(const Obj::Project& project, const Json::Value& record)
{
    std::vector<Obj::ProjectObject*> shown;
    for (const Json::Value& element : record.isArray() ? record : Json::Value()) {
        const bool isValid = element.isObject() && element["object_id"].isUInt();
        Obj::ProjectObject* const object = isValid ? project.get_object(element["object_id"].asUInt()) : nullptr;
        if (object == nullptr)
            continue;
        const QString label = QString::fromStdString(object->label.getValue());
        const bool isShown = showEdits(*object, element["edits"]);
        if (isShown)
            shown.push_back(object);
        if (isShown)
            Kelta::MessageLog::information(
                QCoreApplication::translate(
                    "desktop::UnappliedEdits",
                    "The changes of \"%1\" that were not applied are shown in its editor again.")
                    .arg(label));
        else
            Kelta::MessageLog::warning(
                QCoreApplication::translate("desktop::UnappliedEdits",
                                            "The changes of \"%1\" that were not applied cannot be shown again.")
                    .arg(label));
    }
    if (!shown.empty())
        Gui::TreeSelectionSingleton::instance().setSelection({}, shown);
}

bool askToApply(Gui::MainWindow& mainWindow, const Obj::Project& project, const UnappliedQuestion& question)
{
    const auto windows = findUnapplied(mainWindow, project);
    return std::all_of(windows.begin(), windows.end(),
                       [&](const auto& window) { return mayContinue(mainWindow, window, question); });
}

bool applyAll(Gui::MainWindow& mainWindow, const Obj::Project& project)
{
    const auto windows = findUnapplied(mainWindow, project);
    return std::all_of(windows.begin(), windows.end(), [&mainWindow](const auto& window) {
        if (window != nullptr)
            mainWindow.set_active_mdi_window(window);
        return apply(window);
    });
}

} // namespace desktop
