#pragma once

#include <QDialog>
#include <QString>

#include <cstdint>

namespace Gui {
class MainWindow;
} // namespace Gui

namespace Obj {
class Project;
} // namespace Obj

namespace desktop {

class UnitChoice;

/// Sets the unit system in which a project is shown, as one step of the history. `text` is the text of a system; an empty
/// text means the system of the preferences. Returns false, with the reason in the message log, if it fails.
bool setProjectUnits(const Obj::Project& project, const QString& text);

/// Asks the user for the unit system in which a project is shown. OK sets it if it differs from the present one, and
/// cannot be pressed while it cannot be read.
class ProjectUnitsDialog : public QDialog
{
    Q_OBJECT

public:
    ProjectUnitsDialog(const Obj::Project& project, QWidget& parent);
    ~ProjectUnitsDialog() override;

    void accept() override;

private:
    std::uint32_t m_projectId;
    UnitChoice* m_choice;
};

/// Opens the dialog for a project in front of the main window. Returns at once.
void openProjectUnits(const Obj::Project& project, Gui::MainWindow& window);

} // namespace desktop
