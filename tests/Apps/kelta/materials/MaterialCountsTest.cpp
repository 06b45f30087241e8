#include "MaterialCounts.h"

#include "MaterialsTesting.h"

#include "Gui/TreeSelectionSingleton.h"

#include <QLabel>
#include <QStatusBar>

namespace {

class Counts : public vxtest::Materials
{
protected:
    Counts() { new desktop::MaterialCounts(*window); } // the window owns it

    std::string shown() const
    {
        window->updateCommands();
        const auto* const label = window->findChild<QLabel*>(QStringLiteral("materialCounts"));
        return label->isVisible() ? label->text().toStdString() : std::string();
    }
};

TEST_F(Counts, AreShownOnlyWithAMaterialProject)
{
    EXPECT_EQ(shown(), "");
    newProject();
    EXPECT_EQ(shown(), "Materials: 0, selected: 0, not ready: 0");
    Obj::Application::instance().closeAllProjects();
    EXPECT_EQ(shown(), "");
}

TEST_F(Counts, FollowMaterialsTheirStateAndTheSelection)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& steel = addMaterial(project);
    Mat::MaterialObject& light = addMaterial(project, "Light");
    select({&steel});
    EXPECT_EQ(shown(), "Materials: 2, selected: 1, not ready: 0");
    setNumber(light, density, -1.0);
    light.refreshProperties(true);
    steel.getCMaterial()->clearProperties();
    steel.refreshProperties(true);
    select({&steel, &light});
    EXPECT_EQ(shown(), "Materials: 2, selected: 2, not ready: 2");
    ASSERT_TRUE(vxMsg::MessageProxy::instance().deleteObject(project.get_name(), "Light"));
    EXPECT_EQ(shown(), "Materials: 1, selected: 1, not ready: 1");
    history().undo();
    EXPECT_EQ(shown(), "Materials: 2, selected: 1, not ready: 2");
}

TEST_F(Counts, GiveWayToAMessageThatNeedsTheirPlace)
{
    addMaterial(newProject());
    window->resize(900, 600);
    const std::string counts = shown();
    ASSERT_NE(counts, "");
    const QString message(400, QLatin1Char('x'));
    Gui::MainWindow::announce(message);
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(window->statusBar()->toolTip(), message);
    Gui::MainWindow::announce(QStringLiteral("short"));
    EXPECT_EQ(shown(), counts);
    Gui::MainWindow::announce(message);
    window->statusBar()->clearMessage();
    EXPECT_EQ(shown(), counts);
    EXPECT_EQ(window->statusBar()->toolTip(), "");
}

TEST_F(Counts, AreThoseOfTheCurrentProject)
{
    addMaterials(newProject("First"), 3);
    addMaterial(newProject("Second"));
    EXPECT_EQ(shown(), "Materials: 1, selected: 1, not ready: 0");
}

} // namespace
