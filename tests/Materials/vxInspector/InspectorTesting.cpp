#include "InspectorTesting.h"

#include "Gui/GuiApplication.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Obj/Application.h"
#include "plugin/InspectorTabs.h"
#include "plugin/Module.h"
#include "plugin/TabPage.h"
#include "table/ContentView.h"
#include "vxMaterial/project/Module.h"
#include "vxMaterial/project/Requests.h"
#include "vxMsg/MessageProxy.h"

#include <QLabel>
#include <QtTest/QtTestGui>

#include <stdexcept>

namespace vxtest {

namespace {

constexpr const char* pageNames[] = {"inspectorValues", "inspectorFindings", "inspectorCards", "inspectorCompare"};

} // namespace

InspectorTest::InspectorTest()
{
    initMat();
    initMatGui();
    Mat::registerRequests();
    initInspector();
    window = std::make_unique<Gui::MainWindow>();
    window->setWorkbench("MatGui::SimModule");
    window->resize(1400, 900);
    window->show();
    window->activateWindow();
    if (!waitUntilActive(window.get()))
        throw std::logic_error("the window does not get the keyboard");
    // The first window on the screen of tests has no room for the inspector.
    if (!window->isDockShown("Inspector"))
        window->toggleDock("Inspector");
}

InspectorTest::~InspectorTest()
{
    history().clear();
    Obj::Application::instance().closeAllProjects();
    Gui::TreeSelectionSingleton::instance().clear();
}

QUndoStack& InspectorTest::history()
{
    return vxMsg::MessageProxy::instance().undoStack();
}

Mat::DocumentMaterial& InspectorTest::newProject()
{
    if (!vxMsg::MessageProxy::instance().newProject("Mat::DocumentMaterial", "Materials"))
        throw std::logic_error("a project was not made");
    return dynamic_cast<Mat::DocumentMaterial&>(*Obj::Application::instance().get_project("Materials"));
}

Mat::MaterialObject& InspectorTest::addMaterial(Mat::DocumentMaterial& project, const std::string& label,
                                                vxMat::eMaterialType type)
{
    auto& object = dynamic_cast<Mat::MaterialObject&>(*project.add_object("Mat::MaterialObject", label));
    object.getCMaterial()->copyPropertiesFrom(*project.getMatMgr().materials.at(static_cast<std::int32_t>(type)));
    return object;
}

void InspectorTest::select(const std::vector<Mat::MaterialObject*>& objects)
{
    Gui::TreeSelectionSingleton::instance().setSelection({}, {objects.begin(), objects.end()});
}

void InspectorTest::setNumber(const Mat::MaterialObject& object, int id, double number)
{
    object.getCMaterial()->properties.at(id)->value = number;
}

double InspectorTest::numberOf(const Mat::MaterialObject& object, int id)
{
    double number = 0.0;
    EXPECT_TRUE(object.getCMaterial()->getPropertyValue(id, number));
    return number;
}

MatGui::MaterialView& InspectorTest::edit(Mat::MaterialObject& object) const
{
    Gui::GuiApplication::Instance->get_view_feeder(&object)->on_double_clicked();
    return dynamic_cast<MatGui::MaterialView&>(*window->get_active_mdi_window());
}

MatGui::SheetTableView& InspectorTest::tableOf(const MatGui::MaterialView& editor)
{
    return *editor.findChild<MatGui::SheetTableView*>();
}

QLineEdit* InspectorTest::startTyping(MatGui::MaterialView& editor, int id, const QString& text)
{
    MatGui::SheetTableView& table = tableOf(editor);
    EXPECT_TRUE(editor.showRow(id));
    QTest::keyClick(&table, Qt::Key_F2);
    auto* const line = qobject_cast<QLineEdit*>(table.indexWidget(table.currentIndex()));
    if (line == nullptr)
        throw std::logic_error("no editor opens");
    line->selectAll();
    QTest::keyClicks(line, text);
    return line;
}

QTabWidget& InspectorTest::tabs() const
{
    const auto find = [this] { return window->findChild<QTabWidget*>(QStringLiteral("inspectorTabs")); };
    if (!waitFor([&] { return find() != nullptr; }))
        throw std::logic_error("the inspector has no tabs");
    return *find();
}

void InspectorTest::turnTo(Tab tab) const
{
    vxInspector::NarrowTabBar& bar = dynamic_cast<vxInspector::InspectorTabs&>(tabs()).bar();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.placeOf(tab).center());
    EXPECT_EQ(tabs().currentIndex(), tab);
}

vxInspector::ContentView& InspectorTest::view(Tab tab) const
{
    return tabs().findChild<vxInspector::TabPage*>(QLatin1String(pageNames[tab]))->view();
}

std::string InspectorTest::sentence(Tab tab) const
{
    const auto* const page = tabs().findChild<vxInspector::TabPage*>(QLatin1String(pageNames[tab]));
    return page->findChild<QLabel*>(QStringLiteral("sentence"))->text().toStdString();
}

std::string InspectorTest::cell(Tab tab, int row, int column) const
{
    return view(tab).model()->index(row, column).data().toString().toStdString();
}

int InspectorTest::findRow(Tab tab, const std::string& text, int column) const
{
    for (int row = 0; row < view(tab).model()->rowCount(); ++row)
        if (cell(tab, row, column).rfind(text, 0) == 0)
            return row;
    return -1;
}

bool InspectorTest::becomes(Tab tab, const std::string& name, int column, const std::string& text) const
{
    return waitFor([&] { return cell(tab, findRow(tab, name), column) == text; });
}

bool InspectorTest::says(Tab tab, const std::string& text) const
{
    return waitFor([&] { return sentence(tab).find(text) != std::string::npos; });
}

std::vector<std::string> textsOf(const vxInspector::TableContent& table, std::size_t row)
{
    std::vector<std::string> texts;
    for (const vxInspector::Cell& cell : table.rows.at(row).cells)
        texts.push_back(cell.text.toStdString());
    return texts;
}

std::size_t rowOf(const vxInspector::TableContent& table, const std::string& text, std::size_t column)
{
    for (std::size_t row = 0; row < table.rows.size(); ++row)
        if (table.rows[row].cells.at(column).text.toStdString().rfind(text, 0) == 0)
            return row;
    throw std::logic_error("the table has no row " + text);
}

} // namespace vxtest
