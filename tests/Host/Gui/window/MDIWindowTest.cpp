#include "Gui/MDIWindow.h"

#include "GuiTesting.h"

namespace {

using MDIWindowTest = vxtest::Host;

TEST_F(MDIWindowTest, IsAWindowAndAView)
{
    Gui::MDIWindow document(nullptr, nullptr);
    EXPECT_STREQ(document.getName(), "MDIWindow");
    EXPECT_STREQ(document.getTypeId().get_name(), "Gui::MDIWindow");
    EXPECT_TRUE(document.is_inherited_from(Gui::BaseView::getClassTypeId()));
    EXPECT_EQ(document.getGuiProject(), nullptr);
}

TEST_F(MDIWindowTest, ShowsNothingByItself)
{
    Gui::MDIWindow document(nullptr, nullptr);
    const char* answer = nullptr;
    EXPECT_FALSE(document.has_message_handler("Undo"));
    EXPECT_FALSE(document.message_handler("Undo", &answer));
    EXPECT_FALSE(document.currentIndex().isValid());
    EXPECT_TRUE(document.selectedIndexes().isEmpty());
    document.viewAll();
    document.resizeColumn(0, 10);
    document.resizeRow(0, 10);
    document.updateCell(nullptr);
    document.finishEditing();
    EXPECT_EQ(document.getUndoStack(), nullptr);
}

TEST_F(MDIWindowTest, RemovesItself)
{
    const QPointer<Gui::MDIWindow> document = new Gui::MDIWindow(nullptr, window.get());
    window->add_mdi_window(document);
    document->remove_viewself();
    EXPECT_EQ(document, nullptr);
}

TEST_F(MDIWindowTest, ReturnsItsProjectWhileTheProjectIsOpen)
{
    vxtest::TestProject& project = makeProject();
    Gui::GuiProject* const side = Gui::GuiApplication::Instance->get_project(&project);
    Gui::MDIWindow document(side, nullptr);
    EXPECT_EQ(document.getGuiProject(), side);
    Obj::Application::instance().closeProject(project);
    EXPECT_EQ(document.getGuiProject(), nullptr);
}

} // namespace
