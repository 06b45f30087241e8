#include "MaterialsTesting.h"

#include "Gui/Command.h"
#include "Gui/CommandController.h"
#include "Gui/MessageLogView.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/ProjectTreeModel.h"
#include "Gui/TreeSelectionSingleton.h"
#include "kelta/Batch.h"
#include "vxCAE/CaeManager.h"
#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/gui/SheetTableView.h"

#include <QAction>
#include <QMenuBar>
#include <QStatusBar>
#include <QtTest/QtTestGui>

namespace {

using testing::Contains;
using testing::HasSubstr;
using vxtest::MessageBoxes;

/// Chooses a command in a menu of the window. The test fails if the menu has no such entry, or if the entry is grey.
class Check : public vxtest::Materials
{
protected:
    void chooseInMenu(const char* menuTitle, const char* command) const
    {
        QCoreApplication::processEvents();
        window->updateCommands();
        for (const QAction* const menu : window->menuBar()->actions())
            if (menu->text() == QLatin1String(menuTitle))
                for (QAction* const entry : menu->menu()->actions())
                    if (entry->objectName() == QLatin1String(command)) {
                        EXPECT_TRUE(entry->isEnabled());
                        return entry->trigger();
                    }
        FAIL() << menuTitle << " has no " << command;
    }
    static const Kelta::LogMessage& lastMessage() { return Kelta::MessageLog::instance().messages().back(); }

    Mat::DocumentMaterial& project = newProject();
};

TEST_F(Check, OfReadyMaterialsSaysHowManyWereChecked)
{
    addMaterial(project);
    addMaterial(project);
    window->updateCommands();
    QTest::keyClick(window.get(), Qt::Key_F7);
    const std::string text = "All materials of \"Materials\" are ready (2 checked).";
    EXPECT_EQ(lastMessage().text.toStdString(), text);
    EXPECT_EQ(lastMessage().severity, Kelta::LogMessage::Severity::Information);
    EXPECT_EQ(window->statusBar()->currentMessage().toStdString(), text);
}

TEST_F(Check, ListsEachFindingWithTheLabelOfItsMaterial)
{
    addMaterial(project);
    addMaterial(project, "Empty").getCMaterial()->clearProperties();
    setNumber(addMaterial(project, "Light"), density, -1.0);
    const MessageBoxes boxes;
    chooseInMenu("&Material", "Mat_Check");
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_THAT(messages(), Contains(HasSubstr("\"Empty\": ")));
    EXPECT_THAT(messages(), Contains(testing::AllOf(HasSubstr("\"Light\": "), HasSubstr("-1"))));
    EXPECT_THAT(messages(), testing::Not(Contains(HasSubstr("\"Steel\": "))));
    EXPECT_EQ(lastMessage().text, "Not ready in \"Materials\": 2 of 3 materials. Findings: 2.");
    EXPECT_EQ(lastMessage().severity, Kelta::LogMessage::Severity::Warning);
}

TEST_F(Check, LeadsFromAFindingToItsRow)
{
    addMaterial(project);
    Mat::MaterialObject& light = addMaterial(project, "Light");
    setNumber(light, density, -1.0);
    select({});
    EXPECT_TRUE(run("Mat_Check"));
    Gui::MessageLogView& log = window->getMessageLog();
    const QList<QListWidgetItem*> lines = log.findItems(QStringLiteral("\"Light\": "), Qt::MatchStartsWith);
    ASSERT_FALSE(lines.isEmpty());
    log.setCurrentItem(lines.last());
    QTest::keyClick(&log, Qt::Key_Return);
    const Gui::MDIWindow* const editor = window->editorOf(light);
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(window->get_active_mdi_window(), editor);
    const auto* const table = editor->findChild<MatGui::SheetTableView*>();
    EXPECT_EQ(table->currentIndex(), table->model()->index(table->findRow(density), MatGui::SheetTableView::Value));
    EXPECT_THAT(Gui::TreeSelectionSingleton::instance().get_objects_of_type(Obj::ProjectObject::getClassTypeId()),
                testing::ElementsAre(&light));
}

TEST_F(Check, IsShownInTheTreeByThreeStates)
{
    Mat::MaterialObject& ready = addMaterial(project, "Ready one");
    Mat::MaterialObject& empty = addMaterial(project, "Empty one");
    empty.getCMaterial()->clearProperties();
    Mat::MaterialObject& light = addMaterial(project, "Light");
    setNumber(light, density, -1.0);
    auto& tree = dynamic_cast<Gui::ProjectTreeModel&>(*window->getProjectExplorer().model());
    tree.synchronize();
    const auto look = [&tree](const Obj::ProjectObject& object) {
        return tree.indexOf(object).data(Qt::DecorationRole).value<QIcon>().pixmap(32).toImage();
    };
    EXPECT_NE(look(ready), look(empty));
    EXPECT_NE(look(ready), look(light));
    EXPECT_NE(look(empty), look(light));
    const auto tip = [&tree](const Obj::ProjectObject& object) {
        return tree.indexOf(object).data(Qt::ToolTipRole).toString().toStdString();
    };
    EXPECT_EQ(tip(ready), "Ready one\nReady");
    EXPECT_EQ(tip(empty), "Empty one\nEmpty: nothing is defined yet");
    EXPECT_THAT(tip(light), testing::StartsWith("Light\nNot ready. Findings: 1\n"));
    EXPECT_TRUE(run("Mat_Check"));
    const std::string finding = tip(light).substr(tip(light).rfind('\n') + 1);
    EXPECT_THAT(messages(), Contains("\"Light\": " + finding));
}

TEST_F(Check, AcceptsMaterialsWithWordsAndLists)
{
    Mat::MaterialObject& plastic = addMaterial(project);
    for (const auto& [type, material] : project.getMatMgr().materials)
        if (material->name == "Plastic Example 1")
            plastic.setCMaterial(material.get());
    const MessageBoxes boxes;
    EXPECT_TRUE(run("Mat_Check"));
    EXPECT_EQ(lastMessage().text, "All materials of \"Materials\" are ready (1 checked).");
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(Check, SaysThatEditsAreNotAppliedYet)
{
    type(edit(addMaterial(project)), density, "-1");
    EXPECT_TRUE(run("Mat_Check"));
    EXPECT_THAT(lastMessage().text.toStdString(),
                testing::StartsWith("Changes in open editors that are not applied were not checked: 1. All materials"));
}

TEST_F(Check, ListsAThousandFindingsAndCountsTheOthers)
{
    addMaterials(project, 1002);
    for (Obj::ProjectObject* const object : project.getObjects())
        static_cast<Mat::MaterialObject*>(object)->getCMaterial()->clearProperties();
    Kelta::MessageLog::instance().clear();
    EXPECT_TRUE(run("Mat_Check"));
    ASSERT_EQ(messages().size(), 1002U);
    EXPECT_EQ(messages()[1000], "Further findings are not listed: 2.");
    EXPECT_EQ(messages()[1001], "Not ready in \"Materials\": 1002 of 1002 materials. Findings: 1002.");
}

TEST_F(Check, NeedsAProjectOfMaterials)
{
    vxMsg::MessageProxy::instance().closeProject(project.get_name());
    EXPECT_FALSE(run("Mat_Check"));
}

TEST_F(Check, FailsAListOfCommandsIfThereAreFindings)
{
    for (const char* const command : {"check", "Mat_Check"}) {
        EXPECT_EQ(desktop::Batch::runCommand(QLatin1String(command), {}), std::nullopt);
    }
    addMaterial(project).getCMaterial()->clearProperties();
    for (const char* const command : {"check", "Mat_Check"}) {
        const auto failure = desktop::Batch::runCommand(QLatin1String(command), {});
        EXPECT_EQ(failure.value_or(""), "Not ready in \"Materials\": 1 of 1 materials. Findings: 1.");
    }
}

TEST_F(Check, IsFollowedByTheHandOverToTheSolver)
{
    addMaterial(project);
    chooseInMenu("&Project", "Std_Collect");
    const vxCAE::CAESet* const set = vxCAE::GetCaeManager().getCAE(project.getProjectId());
    ASSERT_NE(set, nullptr);
    EXPECT_EQ(set->materials->entries.size(), 1U);
    EXPECT_EQ(lastMessage().text, "\"Materials\" was handed over to the solver.");
    vxCAE::GetCaeManager().setCAE(project.getProjectId(), nullptr);
}

} // namespace
