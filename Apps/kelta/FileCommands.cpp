#include "FileCommands.h"

#include "ProjectFiles.h"

#include "Gui/Command.h"
#include "Gui/CommandController.h"
#include "Gui/FileDialog.h"
#include "Gui/MainWindow.h"
#include "Obj/Application.h"
#include "vxMaterial/project/DocumentMaterial.h"

#include <QDir>
#include <QMenu>

namespace kelta {

namespace {

constexpr const char* context = "FileCommand";

/// The project that is saved: the current one, when it holds materials.
Mat::DocumentMaterial* currentProject()
{
    return dynamic_cast<Mat::DocumentMaterial*>(Obj::Application::get_current_project());
}

QString askForFile(const char* title, const QString& filter)
{
    return Gui::FileDialog::getOpenFileName(Gui::MainWindow::get_main_window_inst(),
                                            QCoreApplication::translate(context, title), {}, filter);
}

void open(ProjectFiles& files)
{
    const QString path = askForFile(QT_TRANSLATE_NOOP("FileCommand", "Open project"),
                                    QCoreApplication::translate(context, "Material project (*.vxmat)") +
                                        QStringLiteral(";;") + QCoreApplication::translate(context, "All files (*)"));
    if (!path.isEmpty())
        files.open(path);
}

void importDocument(ProjectFiles& files)
{
    Mat::DocumentMaterial* const project = currentProject();
    const QString path = askForFile(QT_TRANSLATE_NOOP("FileCommand", "Import exchange document"),
                                    QCoreApplication::translate(context, "Exchange document (*.json)") +
                                        QStringLiteral(";;") + QCoreApplication::translate(context, "All files (*)"));
    // The dialog may have outlasted the project.
    if (!path.isEmpty() && project != nullptr && project == currentProject())
        files.importDocument(*project, path);
}

struct Row
{
    const char* name;
    const char* menuText;
    const char* toolTip;
    const char* pixmap;
    QKeySequence::StandardKey key;
    void (*run)(ProjectFiles&);
    bool (*isApplicable)();
};

constexpr auto noKey = QKeySequence::UnknownKey;

bool always()
{
    return true;
}

bool hasProject()
{
    return currentProject() != nullptr;
}

const Row rows[] = {
    {"Std_Open", QT_TRANSLATE_NOOP("FileCommand", "&Open..."),
     QT_TRANSLATE_NOOP("FileCommand", "Open a material project from a file"), "kelta_open", QKeySequence::Open, open,
     always},
    {"Std_Save", QT_TRANSLATE_NOOP("FileCommand", "&Save"),
     QT_TRANSLATE_NOOP("FileCommand", "Save the project in its file"), "kelta_save", QKeySequence::Save,
     [](ProjectFiles& files) { files.save(*currentProject()); }, hasProject},
    {"Std_SaveAs", QT_TRANSLATE_NOOP("FileCommand", "Save &as..."),
     QT_TRANSLATE_NOOP("FileCommand", "Save the project in another file"), "", QKeySequence::SaveAs,
     [](ProjectFiles& files) { files.saveAs(*currentProject()); }, hasProject},
    {"Std_ImportDocument", QT_TRANSLATE_NOOP("FileCommand", "I&mport exchange document..."),
     QT_TRANSLATE_NOOP("FileCommand", "Add the materials of an exchange document to the project"), "", noKey,
     importDocument, hasProject},
};

class FileCommand : public Gui::Command
{
public:
    FileCommand(const Row& row, ProjectFiles& files) : Command(row.name), m_row(row), m_files(files)
    {
        menuText = row.menuText;
        toolTip = row.toolTip;
        statusTip = row.toolTip;
        whatsThis = row.toolTip;
        pixmap = row.pixmap;
        if (row.key != noKey)
            shortcut = get_shortcut_from_keys(row.key);
    }

    const char* get_class_name() const override { return context; }
    void activated(int) override { m_row.run(m_files); }
    bool is_applicable() override { return m_row.isApplicable(); }

private:
    const Row& m_row;
    ProjectFiles& m_files;
};

/// A menu of the files last used. As a command it opens the latest.
class OpenRecentCommand final : public Gui::Command
{
public:
    explicit OpenRecentCommand(ProjectFiles& files) : Command("Std_OpenRecent"), m_files(files)
    {
        menuText = QT_TRANSLATE_NOOP("FileCommand", "Open &recent");
        toolTip = QT_TRANSLATE_NOOP("FileCommand", "Open one of the projects last used");
        statusTip = toolTip;
        whatsThis = toolTip;
    }

    const char* get_class_name() const override { return context; }

    QAction* new_action(QObject* parent) override
    {
        QAction* const action = Command::new_action(parent);
        // The menu belongs to the window that the action belongs to.
        auto* const menu = new QMenu(qobject_cast<QWidget*>(parent));
        action->setMenu(menu);
        QObject::connect(menu, &QMenu::aboutToShow, menu, [this, menu] { fill(*menu); });
        return action;
    }

    void activated(int index) override
    {
        const QStringList paths = ProjectFiles::recentFiles();
        if (index >= 0 && index < paths.size())
            m_files.open(paths[index]);
    }

    bool is_applicable() override { return !ProjectFiles::recentFiles().isEmpty(); }

private:
    void fill(QMenu& menu)
    {
        menu.clear();
        const QStringList paths = ProjectFiles::recentFiles();
        for (int index = 0; index < paths.size(); ++index) {
            QString text = QDir::toNativeSeparators(paths[index]);
            text.replace(QLatin1Char('&'), QStringLiteral("&&"));
            const QString number = index < 9 ? QStringLiteral("&%1 ").arg(index + 1) : QString();
            QObject::connect(menu.addAction(number + text), &QAction::triggered, &menu,
                             [this, path = paths[index]] { m_files.open(path); });
        }
    }

    ProjectFiles& m_files;
};

} // namespace

void addFileCommands(Gui::CommandController& commands, ProjectFiles& files)
{
    for (const Row& row : rows)
        commands.new_command(new FileCommand(row, files));
    commands.new_command(new OpenRecentCommand(files));
}

} // namespace kelta
