#include "MaterialsTesting.h"

#include "EditorWatch.h"
#include "MaterialContributions.h"
#include "MaterialGuards.h"
#include "MaterialVerbs.h"

#include "Gui/CommandController.h"
#include "Gui/FileDialog.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Obj/Application.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/project/Module.h"
#include "vxMaterial/project/Requests.h"

#include <QLineEdit>
#include <QPushButton>
#include <QtTest/QtTestGui>

#include <stdexcept>

namespace vxtest {

namespace {

MatGui::SheetTableView& tableOf(const MatGui::MaterialView& editor)
{
    return *editor.findChild<MatGui::SheetTableView*>(QStringLiteral("tableView"));
}

} // namespace

Materials::Materials()
{
    initMat();
    initMatGui();
    Mat::registerRequests();
    window = std::make_unique<Gui::MainWindow>();
    desktop::registerMaterialContributions(*Gui::GuiApplication::Instance);
    desktop::addMaterialGuards(Gui::GuiApplication::Instance->get_command_manager());
    desktop::registerMaterialVerbs();
    new desktop::EditorWatch(*window); // the window owns it
    window->setWorkbench("MatGui::SimModule");
    window->show();
    window->activateWindow();
    if (!waitUntilActive(window.get()))
        throw std::logic_error("the window does not get the keyboard");
}

Materials::~Materials()
{
    history().clear();
    Obj::Application::instance().closeAllProjects();
    Gui::TreeSelectionSingleton::instance().clear();
}

bool Materials::run(const char* command)
{
    return Gui::GuiApplication::Instance->get_command_manager().runCommand(command);
}

bool Materials::run(const char* command, const QString& file)
{
    Gui::FileDialog::answerNext(file);
    return run(command);
}

Mat::DocumentMaterial& Materials::newProject(const std::string& name)
{
    if (!vxMsg::MessageProxy::instance().newProject("Mat::DocumentMaterial", name))
        throw std::logic_error("a project was not made");
    return dynamic_cast<Mat::DocumentMaterial&>(*Obj::Application::instance().get_project(name));
}

Mat::MaterialObject& Materials::addMaterial(Mat::DocumentMaterial& project, const std::string& label)
{
    if (!vxMsg::MessageProxy::instance().addObject(project.get_name(), "Mat::MaterialObject", label))
        throw std::logic_error("a material was not added");
    auto& object = dynamic_cast<Mat::MaterialObject&>(*project.getObjects().back());
    object.initCMaterial(vxMat::eMaterialType::StructuralSteel);
    return object;
}

Mat::MaterialObject& Materials::addMaterials(Mat::DocumentMaterial& project, int count)
{
    for (int number = 1; number < count; ++number)
        addMaterial(project, "Steel" + std::to_string(number));
    return addMaterial(project, "Steel" + std::to_string(count));
}

void Materials::select(const std::vector<Obj::ProjectObject*>& objects)
{
    Gui::TreeSelectionSingleton::instance().setSelection({}, objects);
}

MatGui::MaterialView& Materials::edit(Mat::MaterialObject& object)
{
    Gui::GuiApplication::Instance->get_view_feeder(&object)->on_double_clicked();
    return dynamic_cast<MatGui::MaterialView&>(*window->get_active_mdi_window());
}

void Materials::type(MatGui::MaterialView& editor, int id, const QString& text)
{
    MatGui::SheetTableView& table = tableOf(editor);
    ASSERT_TRUE(editor.showRow(id));
    QTest::keyClick(&table, Qt::Key_F2);
    auto* const line = qobject_cast<QLineEdit*>(table.indexWidget(table.currentIndex()));
    ASSERT_NE(line, nullptr);
    line->selectAll();
    QTest::keyClicks(line, text);
    QTest::keyClick(line, Qt::Key_Return);
}

void Materials::apply(MatGui::MaterialView& editor)
{
    QTest::mouseClick(editor.findChild<QPushButton*>(QStringLiteral("btnApply")), Qt::LeftButton);
}

QString Materials::shownValue(const MatGui::MaterialView& editor, int id)
{
    const MatGui::SheetTableView& table = tableOf(editor);
    return table.model()->index(table.findRow(id), MatGui::SheetTableView::Value).data().toString();
}

void Materials::setNumber(const Mat::MaterialObject& object, int id, double number)
{
    object.getCMaterial()->properties.at(id)->value = number;
}

double Materials::modulusOf(const Mat::MaterialObject& object)
{
    double number = 0;
    EXPECT_TRUE(object.getCMaterial()->getPropertyValue(modulus, number));
    return number;
}

std::vector<std::string> Materials::messages()
{
    std::vector<std::string> texts;
    for (const Kelta::LogMessage& message : Kelta::MessageLog::instance().messages())
        texts.push_back(message.text.toStdString());
    return texts;
}

} // namespace vxtest
