#include "TitleUpdate.h"

#include "Gui/GuiProject.h"
#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Gui/WindowTitle.h"
#include "Obj/Application.h"
#include "kelta/FileService.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace desktop {

namespace {

/// Returns the name of a project for the title: the name of its file, if it has one.
QString nameOf(const Obj::Project& project)
{
    const QString file = FileService::instance()->getFile(project);
    return file.isEmpty() ? QString::fromUtf8(project.get_name()) : QFileInfo(file).fileName();
}

bool hasEdits(const Gui::MainWindow& window, const Obj::Project& project)
{
    const QList<Gui::MDIWindow*> documents = window.getMdiWindows();
    return std::any_of(documents.begin(), documents.end(), [&project](const Gui::MDIWindow* document) {
        return document->isWindowModified() && document->getGuiProject() != nullptr &&
               &document->getGuiProject()->get_project() == &project;
    });
}

} // namespace

void updateTitle(Gui::MainWindow& window)
{
    QStringList parts;
    if (const Gui::MDIWindow* const document = window.get_active_mdi_window())
        parts << Gui::escapedForTitle(Gui::shownTitle(document->windowTitle()));
    const Obj::Project* const project = Obj::Application::get_current_project();
    if (project != nullptr)
        parts << Gui::markedTitle(nameOf(*project));
    parts << QCoreApplication::applicationName();
    window.setWindowTitle(parts.join(QStringLiteral(" - ")));
    window.setWindowModified(project != nullptr &&
                             (FileService::instance()->isModified(*project) || hasEdits(window, *project)));
}

} // namespace desktop
