#pragma once

#include <QObject>

namespace Gui {
class MainWindow;
} // namespace Gui

namespace desktop {

class ProjectFiles;

/// Opens project files that the user drops on the main window.
class FileDrops : public QObject
{
    Q_OBJECT

public:
    /// To be installed as an event filter of the main window, which owns it.
    FileDrops(ProjectFiles& files, Gui::MainWindow& mainWindow);
    ~FileDrops() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ProjectFiles& m_files;
};

} // namespace desktop
