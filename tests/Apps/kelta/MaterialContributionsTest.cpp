#include "FilesTesting.h"

#include "Gui/Contributions.h"
#include "Gui/ProjectExplorer.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using vxtest::Answers;

/// The parts of the window that belong to materials.
class Materials : public vxtest::Files
{
protected:
    static std::vector<std::string> namesIn(const QWidget* widget)
    {
        std::vector<std::string> names;
        for (const QAction* const action : widget->actions())
            names.push_back(action->isSeparator() ? "-" : action->objectName().toStdString());
        return names;
    }
    std::vector<std::string> menu(const QString& title) const
    {
        for (const QAction* const action : window->menuBar()->actions())
            if (action->text() == title)
                return namesIn(action->menu());
        return {};
    }
    std::vector<std::string> menus() const
    {
        std::vector<std::string> titles;
        for (const QAction* const action : window->menuBar()->actions())
            titles.push_back(action->text().toStdString());
        return titles;
    }
    std::vector<std::string> bar(const char* name) const
    {
        return namesIn(window->findChild<QToolBar*>(QLatin1String(name)));
    }

    QWidget* page() const { return window->findChild<QWidget*>(QStringLiteral("welcomePage")); }
    QString pageTitle() const { return page()->findChildren<QLabel*>()[0]->text(); }
    std::vector<std::string> pageButtons() const
    {
        std::vector<std::string> names;
        for (const QPushButton* const button : page()->findChildren<QPushButton*>())
            if (button->isVisible())
                names.push_back(button->objectName().toStdString());
        return names;
    }
};

TEST_F(Materials, HaveTheirCommandsInTheMenus)
{
    EXPECT_THAT(menus(), ElementsAre("&File", "&Edit", "&Project", "&View", "&Material", "&Windows", "&Help"));
    EXPECT_THAT(menu("&File"),
                ElementsAre("Mat_NewDoc", "Std_Open", "Std_OpenRecent", "-", "Std_Save", "Std_SaveAs", "-",
                            "Std_ImportDocument", "Mat_ExportDeck", "-", "Std_CloseProject", "Std_Quit"));
    EXPECT_THAT(menu("&Edit"),
                ElementsAre("Std_Undo", "Std_Redo", "-", "Std_Copy", "Std_Paste", "Std_DuplicateSelection",
                            "Std_Delete", "-", "Std_Find", "Std_SelectAll", "Std_Rename", "Std_Color", "-",
                            "Std_Suppress", "Std_Unsuppress", "-", "Std_Preferences"));
    EXPECT_THAT(menu("&Project"), ElementsAre("Mat_AddMaterial", "Mat_Edit", "-", "Std_ImportDocument", "Mat_Import",
                                              "-", "Std_Collect", "-", "Mat_Units"));
    EXPECT_THAT(menu("&View"),
                ElementsAre("Std_ProjectExplorer", "Std_PropertyPanel", "Std_MessageLog", "Std_ToolBars", "-",
                            "Std_NextPane", "Std_PreviousPane", "-", "Std_ClearMessages", "-", "Std_Language"));
    EXPECT_THAT(menu("&Material"), ElementsAre("Mat_Export", "-", "Mat_ExportDeck", "-", "Mat_Check"));
}

TEST_F(Materials, HaveTheirCommandsInTheToolbars)
{
    EXPECT_THAT(bar("File"),
                ElementsAre("Mat_NewDoc", "Std_Open", "Std_Save", "Mat_AddMaterial", "Std_ImportDocument"));
    EXPECT_THAT(bar("Edit"), ElementsAre("Std_Undo", "Std_Redo", "-", "Std_Copy", "Std_Paste"));
    EXPECT_THAT(bar("Material"), ElementsAre("Mat_Export"));
    EXPECT_THAT(bar("BottomMaterial"), ElementsAre("Mat_Import", "Mat_Export"));
}

TEST_F(Materials, AreImportedFromDocumentsAndDecks)
{
    const QStringList filters = desktop::documentFilters(Mat::DocumentMaterial::getClassTypeId());
    ASSERT_EQ(filters.size(), 3);
    EXPECT_THAT(filters[0].toStdString(), testing::StartsWith("Documents and decks (*.json "));
    EXPECT_THAT(filters[0].toStdString(), HasSubstr(" *.inp"));
    EXPECT_EQ(filters[1], "Exchange documents (*.json)");
    EXPECT_THAT(filters[2].toStdString(), testing::StartsWith("Decks of solvers (*."));
    EXPECT_TRUE(desktop::documentFilters(Obj::Project::getClassTypeId()).isEmpty());
}

TEST_F(Materials, AreTheOnlyWorkbench)
{
    const auto& workbenches = Gui::GuiApplication::Instance->contributions().workbenches();
    ASSERT_EQ(workbenches.size(), 1U);
    EXPECT_EQ(workbenches.front().className, "MatGui::SimModule");
    EXPECT_EQ(workbenches.front().projectClass, "Mat::DocumentMaterial");
}

TEST_F(Materials, AreOfferedStepByStepOnTheWelcomePage)
{
    window->updateCommands();
    EXPECT_EQ(pageTitle(), "No project is open");
    EXPECT_THAT(pageButtons(), ElementsAre("Mat_NewDoc", "Std_Open"));
    newProject();
    window->updateCommands();
    EXPECT_EQ(pageTitle(), "The project has no materials yet");
    EXPECT_THAT(pageButtons(), ElementsAre("Mat_AddMaterial", "Std_ImportDocument"));
    Mat::MaterialObject& steel = addMaterial();
    Gui::TreeSelectionSingleton::instance().clear();
    window->updateCommands();
    EXPECT_EQ(pageTitle(), "No material is open");
    EXPECT_THAT(pageButtons(), ElementsAre("Mat_Edit"));
    EXPECT_FALSE(page()->findChild<QPushButton*>(QStringLiteral("Mat_Edit"))->isEnabled());
    Gui::TreeSelectionSingleton::instance().setSelection({currentProject()}, {});
    window->updateCommands();
    EXPECT_FALSE(page()->findChild<QPushButton*>(QStringLiteral("Mat_Edit"))->isEnabled());
    Gui::TreeSelectionSingleton::instance().setSelection({}, {&steel});
    window->updateCommands();
    EXPECT_TRUE(page()->findChild<QPushButton*>(QStringLiteral("Mat_Edit"))->isEnabled());
}

TEST_F(Materials, CanBeBegunFromTheEmptyTree)
{
    std::vector<std::string> offered;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            timer.stop();
            offered = namesIn(menu);
            menu->close();
        }
    });
    timer.start(1);
    QWidget* const tree = window->getProjectExplorer().viewport();
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), tree->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(tree, &event);
    EXPECT_THAT(offered, ElementsAre("Mat_NewDoc"));
}

TEST_F(Materials, AreDescribedInTheAboutBox)
{
    const Answers boxes({"OK"});
    EXPECT_TRUE(run("Std_About"));
    ASSERT_EQ(boxes.boxes().size(), 1);
    EXPECT_THAT(boxes.boxes().front().toStdString(),
                HasSubstr("<p>Materials for finite-element simulation: 26 ready-made materials"));
}

TEST_F(Materials, AreCheckedByF7)
{
    const Gui::Command* const check = Gui::GuiApplication::Instance->get_command_manager().findCommand("Mat_Check");
    EXPECT_EQ(check->get_shortcut(), QKeySequence(Qt::Key_F7));
}

TEST_F(Materials, ContributeOnceHoweverOftenTheyAreAsked)
{
    const auto before = menus();
    const std::size_t places = Gui::GuiApplication::Instance->contributions().menuPlaces().size();
    desktop::registerMaterialContributions(*Gui::GuiApplication::Instance);
    QCoreApplication::processEvents();
    EXPECT_EQ(menus(), before);
    EXPECT_EQ(Gui::GuiApplication::Instance->contributions().menuPlaces().size(), places);
}

} // namespace
