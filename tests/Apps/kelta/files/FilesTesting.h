#pragma once

#include "EditorWatch.h"
#include "FileCommands.h"
#include "FileDrops.h"
#include "MaterialContributions.h"
#include "MaterialFiles.h"
#include "ProjectFiles.h"
#include "Waiting.h"

#include "Gui/CommandController.h"
#include "Gui/FileDialog.h"
#include "Gui/GuiApplication.h"
#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Obj/Application.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMsg/MessageProxy.h"

#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <QUndoStack>
#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace vxtest {

/// Presses the buttons with these texts (without mnemonics) in the message boxes, and in other dialogs with a row of
/// buttons, that open during its lifetime, one after the other. Records the texts of the boxes, and the first text of
/// dialogs. Closes an unexpected one by its frame.
class Answers : public QObject
{
public:
    explicit Answers(QStringList buttons = {});
    /// The test fails unless the number of boxes equals the number of texts.
    ~Answers() override;
    Answers(const Answers&) = delete;
    Answers& operator=(const Answers&) = delete;

    /// Returns "Title: text" of each box.
    const QStringList& boxes() const { return m_boxes; }
    /// Returns the text of the button that Return presses in the last box.
    const QString& preferred() const { return m_preferred; }

private:
    void answer();

    QStringList m_buttons;
    QStringList m_boxes;
    QString m_preferred;
    int m_unexpected = 0;
    QTimer m_timer;
};

/// A test with the main window and project files, as the application has them before modules are loaded.
class FilesWindow : public testing::Test
{
protected:
    FilesWindow();
    ~FilesWindow() override;

    static bool run(const char* command);
    /// Runs a command with the file that it asks for.
    static bool run(const char* command, const QString& file);
    static QUndoStack& history() { return vxMsg::MessageProxy::instance().undoStack(); }

    QString path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    static QByteArray contentOf(const QString& path);
    static void writeFile(const QString& path, const QByteArray& content);
    /// Returns the existing copies for recovery.
    static QStringList copies();
    /// Simulates a crash and a new start of the program for its files: asks no questions.
    void crash();

    std::unique_ptr<Gui::MainWindow> window;
    desktop::ProjectFiles* files = nullptr; ///< the file service owns it

private:
    void startFiles();

    QTemporaryDir m_folder;
};

/// A test with project files, the materials module and its workbench.
class Files : public FilesWindow
{
protected:
    Files();
    ~Files() override;

    static Mat::DocumentMaterial& newProject();
    /// Closes the current project with the command of the menu.
    static bool closeProject();
    static Mat::MaterialObject& addMaterial(const std::string& label = "Steel");
    static Mat::DocumentMaterial* currentProject();
    static Mat::MaterialObject* findMaterial(const std::string& label);
    /// Sets the Young's modulus of the material in its editor without keys. Leaves the editor open, and returns it.
    Gui::MDIWindow& editModulus(Mat::MaterialObject& object, const QString& text);
    static double modulusOf(const Mat::MaterialObject& object);
    bool isModified() const { return files->isModified(*currentProject()); }
};

} // namespace vxtest
