#pragma once

#include "MessageBoxes.h"
#include "Waiting.h"

#include "Gui/CommandController.h"
#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Kelta/MessageLog.h"
#include "Obj/Application.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/Module.h"
#include "vxMaterial/project/Requests.h"
#include "vxMsg/MessageProxy.h"

#include <QUndoStack>
#include <QtTest/QtTestGui>
#include <QtTest/qtestcase.h>
#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace vxtest {

/// A test with the main window and the materials workbench, in their state after the start of the application.
class Workbench : public testing::Test
{
protected:
    Workbench()
    {
        initMat();
        Mat::registerRequests();
        initMatGui();
        Mat::registerRequests();
        window = std::make_unique<Gui::MainWindow>();
        window->setWorkbench("MatGui::SimModule");
        window->show();
        errorsBefore = Kelta::MessageLog::instance().errorCount();
    }

    ~Workbench() override
    {
        EXPECT_EQ(Kelta::MessageLog::instance().errorCount(), errorsBefore) << lastMessage();
        vxMsg::MessageProxy::instance().undoStack().clear();
        Obj::Application::instance().closeAllProjects();
        Gui::TreeSelectionSingleton::instance().clear();
    }

    static std::string lastMessage()
    {
        const auto& messages = Kelta::MessageLog::instance().messages();
        return messages.empty() ? std::string() : messages.back().text.toStdString();
    }

    /// Expects one more error in the message log, whose text begins with `start`.
    void expectError(const std::string& start)
    {
        EXPECT_EQ(Kelta::MessageLog::instance().errorCount(), ++errorsBefore);
        EXPECT_THAT(lastMessage(), testing::StartsWith(start));
    }

    static Gui::CommandController& commands() { return Gui::GuiApplication::Instance->get_command_manager(); }
    static bool run(const char* command) { return commands().runCommand(command); }
    static bool isApplicable(const char* command) { return commands().findCommand(command)->is_applicable(); }
    static QUndoStack& undoStack() { return vxMsg::MessageProxy::instance().undoStack(); }
    static Gui::TreeSelectionSingleton& selection() { return Gui::TreeSelectionSingleton::instance(); }

    static Mat::DocumentMaterial& makeProject(const char* name = "Materials")
    {
        return *static_cast<Mat::DocumentMaterial*>(
            Obj::Application::instance().createProject("Mat::DocumentMaterial", name));
    }

    static Mat::MaterialObject& addMaterial(Obj::Project& project, const std::string& label = "Material")
    {
        auto& object = *static_cast<Mat::MaterialObject*>(project.add_object("Mat::MaterialObject", label));
        object.initCMaterial(vxMat::eMaterialType::StructuralSteel);
        return object;
    }

    static void select(const std::vector<Obj::ProjectObject*>& objects) { selection().setSelection({}, objects); }

    static Gui::ViewFeederProjectObject& nodeOf(Obj::ProjectObject& object)
    {
        return *Gui::GuiApplication::Instance->get_view_feeder(&object);
    }

    /// Returns the active editor; null if there is none.
    MatGui::MaterialView* activeEditor() const
    {
        return dynamic_cast<MatGui::MaterialView*>(window->get_active_mdi_window());
    }

    std::unique_ptr<Gui::MainWindow> window;
    std::size_t errorsBefore = 0;
};

} // namespace vxtest
