#pragma once

#include "MessageBoxes.h"
#include "Waiting.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Kelta/MessageLog.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMsg/MessageProxy.h"

#include <QTemporaryDir>
#include <QUndoStack>
#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace vxtest {

/// A test with the main window and the application's additions for materials, without project files.
class Materials : public testing::Test
{
protected:
    Materials();
    ~Materials() override;

    /// Runs a command like its menu entry.
    static bool run(const char* command);
    /// Runs a command with the file that it asks for.
    static bool run(const char* command, const QString& file);
    static QUndoStack& history() { return vxMsg::MessageProxy::instance().undoStack(); }

    static Mat::DocumentMaterial& newProject(const std::string& name = "Materials");
    /// Adds structural steel to a project.
    static Mat::MaterialObject& addMaterial(Mat::DocumentMaterial& project, const std::string& label = "Steel");
    static Mat::MaterialObject& addMaterials(Mat::DocumentMaterial& project, int count);
    static void select(const std::vector<Obj::ProjectObject*>& objects);

    /// Opens the editor of a material, like a double click in the tree.
    MatGui::MaterialView& edit(Mat::MaterialObject& object);
    /// Replaces the value in the row of a property by typing, and presses Return.
    static void type(MatGui::MaterialView& editor, int id, const QString& text);
    static void apply(MatGui::MaterialView& editor);
    static QString shownValue(const MatGui::MaterialView& editor, int id);

    static void setNumber(const Mat::MaterialObject& object, int id, double number);
    static double modulusOf(const Mat::MaterialObject& object);
    static std::vector<std::string> messages();
    QString path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    static constexpr int density = 4;
    static constexpr int modulus = 5;

    std::unique_ptr<Gui::MainWindow> window;

private:
    QTemporaryDir m_folder;
};

} // namespace vxtest
