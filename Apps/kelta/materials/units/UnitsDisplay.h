#pragma once

#include <QObject>
#include <QString>

#include <cstdint>
#include <string>

class QLabel;

namespace Gui {
class MainWindow;
} // namespace Gui

namespace Mat {
class DocumentMaterial;
} // namespace Mat

namespace desktop {

/// Shows at the end of the status bar in which unit system the current project is shown. Shows nothing if the current
/// project is not a material project. Warns once in the message log about a unit system of a project that cannot be read.
class UnitsDisplay : public QObject
{
    Q_OBJECT

public:
    /// Makes the main window its parent.
    explicit UnitsDisplay(Gui::MainWindow& mainWindow);
    ~UnitsDisplay() override;

private:
    void update();
    void show(const Mat::DocumentMaterial& project);
    QString findFault(const Mat::DocumentMaterial& project);

    QLabel* m_label; ///< the status bar owns it
    std::uint32_t m_warnedProject = 0;
    std::string m_warnedSetting;
};

} // namespace desktop
