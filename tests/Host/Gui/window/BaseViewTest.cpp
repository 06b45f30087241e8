#include "Gui/BaseView.h"

#include "GuiTesting.h"

namespace {

using Gui::BaseView;
using testing::ElementsAre;
using testing::IsEmpty;

using BaseViewTest = vxtest::Host;

Gui::GuiProject* guiOf(const Obj::Project& project)
{
    return Gui::GuiApplication::Instance->get_project(&project);
}

TEST_F(BaseViewTest, IsOneOfTheViewsOfItsProjectWhileItLives)
{
    const vxtest::TestProject& project = makeProject();
    {
        BaseView view(guiOf(project));
        EXPECT_EQ(view.getGuiProject(), guiOf(project));
        EXPECT_THAT(guiOf(project)->getViews(), ElementsAre(&view));
    }
    EXPECT_THAT(guiOf(project)->getViews(), IsEmpty());
}

TEST_F(BaseViewTest, MayBelongToNoProject)
{
    const BaseView view(nullptr);
    EXPECT_EQ(view.getGuiProject(), nullptr);
}

TEST_F(BaseViewTest, ForgetsAProjectThatIsClosed)
{
    const vxtest::TestProject& project = makeProject();
    const BaseView view(guiOf(project));
    Obj::Application::instance().closeProject(project);
    EXPECT_EQ(view.getGuiProject(), nullptr);
}

/// A view that counts its removals from the window.
class RemovedView final : public BaseView
{
public:
    using BaseView::BaseView;
    void remove_viewself() override { ++removals; }
    int removals = 0;
};

TEST_F(BaseViewTest, IsTakenOutWithItsProject)
{
    const vxtest::TestProject& project = makeProject();
    const vxtest::TestProject& other = makeProject("Other");
    RemovedView view(guiOf(project));
    Obj::Application::instance().closeProject(other);
    EXPECT_EQ(view.removals, 0);
    Obj::Application::instance().closeProject(project);
    EXPECT_EQ(view.removals, 1);
}

TEST_F(BaseViewTest, CarriesOutNoMessagesItself)
{
    BaseView view(nullptr);
    const char* answer = "as it was";
    EXPECT_FALSE(view.has_message_handler("ViewFit"));
    EXPECT_FALSE(view.message_handler("ViewFit", &answer));
    EXPECT_STREQ(answer, "as it was");
}

TEST_F(BaseViewTest, HasNothingCurrentAndNothingSelected)
{
    const BaseView view(nullptr);
    EXPECT_STREQ(view.getName(), "BaseView");
    EXPECT_FALSE(view.currentIndex().isValid());
    EXPECT_TRUE(view.selectedIndexes().isEmpty());
}

TEST_F(BaseViewTest, IsTheBaseOfDocumentWindowsInTheTypeSystem)
{
    const Gui::MDIWindow document(nullptr, nullptr);
    EXPECT_TRUE(document.is_inherited_from(BaseView::getClassTypeId()));
    EXPECT_FALSE(BaseView(nullptr).is_inherited_from(Gui::MDIWindow::getClassTypeId()));
}

} // namespace
