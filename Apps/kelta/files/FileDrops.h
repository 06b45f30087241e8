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
    /// Makes the main window its parent. The caller installs it there as an event filter.
    FileDrops(ProjectFiles& files, Gui::MainWindow& mainWindow);
    ~FileDrops() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ProjectFiles& m_files;
};

} // namespace desktop
