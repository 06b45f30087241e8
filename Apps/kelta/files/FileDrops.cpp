#include "FileDrops.h"

#include "ProjectFiles.h"

#include "Gui/MainWindow.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

namespace desktop {

namespace {

QStringList filesIn(const QMimeData* data)
{
    QStringList files;
    for (const QUrl& url : data->urls())
        if (url.isLocalFile())
            files << url.toLocalFile();
    return files;
}

} // namespace

FileDrops::FileDrops(ProjectFiles& files, Gui::MainWindow& mainWindow) : QObject(&mainWindow), m_files(files) {}

FileDrops::~FileDrops() = default;

bool FileDrops::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto* const drop = static_cast<QDropEvent*>(event);
    const QStringList files = filesIn(drop->mimeData());
    // While a dialog is open, no file is opened.
    if (files.isEmpty() || QApplication::activeModalWidget() != nullptr)
        return QObject::eventFilter(watched, event);
    drop->acceptProposedAction();
    // Opened when the event loop is next idle: opening may ask questions, and the program from which the files are
    // dragged waits until the drop has ended.
    if (event->type() == QEvent::Drop)
        QTimer::singleShot(0, this, [this, files] {
            for (const QString& file : files)
                m_files.open(file);
        });
    return true;
}

} // namespace desktop
