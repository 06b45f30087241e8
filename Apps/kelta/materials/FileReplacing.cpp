#include "FileReplacing.h"

#include "Obj/Application.h"
#include "kelta/FileService.h"
#include "projectfile/ProjectFile.h"
#include "projectfile/ProjectStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include <exception>

namespace desktop {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::MaterialGuards", text);
}

/// Returns the use of an existing file as a project: by the name of the open project, or by another program. Empty if
/// the file is not in use.
QString findUse(const QString& path)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    if (file.isEmpty())
        return {};
    for (const Obj::Project* const project : Obj::Application::get_projects())
        if (const auto* const files = FileService::instance(); files != nullptr && files->getFile(*project) == file)
            return tr(R"("%1" is the file of the project "%2", which is open.)")
                .arg(QDir::toNativeSeparators(path), QString::fromUtf8(project->get_name()));
    projectfile::FileLock lock(file);
    return lock.tryLock() || lock.holder().isEmpty()
               ? QString()
               : tr("\"%1\" is in use by %2.").arg(QDir::toNativeSeparators(path), lock.holder());
}

/// Returns a sentence if an existing file is a project file; an empty text otherwise.
QString findProject(const QString& path)
{
    try {
        if (QFileInfo::exists(path) && projectfile::isProjectText(projectfile::readFile(path)))
            return tr("\"%1\" is a project file.").arg(QDir::toNativeSeparators(path));
    } catch (const std::exception&) {
        // Not readable, and therefore not a project; the export reports whether the file can be written.
    }
    return {};
}

} // namespace

bool consent(const Question& question, const QString& button, QWidget& parent)
{
    QMessageBox box(QMessageBox::Question, question.title, question.text, QMessageBox::Cancel, &parent);
    box.setTextFormat(Qt::PlainText);
    const QAbstractButton* const yes = box.addButton(button, QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == yes;
}

bool mayReplace(const QString& path, const Question& question, QWidget& parent)
{
    QString use = findUse(path);
    if (use.isEmpty())
        use = findProject(path);
    return use.isEmpty() || consent({question.title, use + QLatin1Char(' ') + question.text}, tr("&Replace"), parent);
}

} // namespace desktop
