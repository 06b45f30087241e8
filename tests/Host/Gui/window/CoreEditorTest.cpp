#include "GuiTesting.h"

namespace {

using testing::HasSubstr;

/// Objects that name a window as their editor, for nodes that open nothing themselves.
class CoreEditor : public vxtest::Host
{
protected:
    CoreEditor() : project(makeProject()), object(addObject(project, "Beam"))
    {
        object.coreEditor = "Test::Editor";
        nodeOf(object).opensItself = false;
        focusExplorer();
    }

    void doubleClick() const
    {
        const QPoint place = explorer().visualRect(model().indexOf(object)).center();
        QTest::mouseDClick(explorer().viewport(), Qt::LeftButton, {}, place);
    }
    vxtest::TestEditor* editor() const { return dynamic_cast<vxtest::TestEditor*>(window->get_active_mdi_window()); }

    vxtest::TestProject& project;
    vxtest::TestObject& object;
};

TEST_F(CoreEditor, OpensByADoubleClick)
{
    doubleClick();
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->shownLabel, "Beam");
    EXPECT_EQ(editor()->getEditedObject(), &object);
    EXPECT_EQ(editor()->getGuiProject(), Gui::GuiApplication::Instance->get_project(&project));
    EXPECT_EQ(editor()->windowTitle(), "Beam[*]");
    EXPECT_EQ(nodeOf(object).opened, 1);
}

TEST_F(CoreEditor, IsBroughtToTheFrontTheSecondTime)
{
    doubleClick();
    const Gui::MDIWindow* const first = editor();
    window->add_mdi_window(new Gui::MDIWindow(nullptr, nullptr));
    ASSERT_EQ(editor(), nullptr);
    doubleClick();
    EXPECT_EQ(editor(), first);
    EXPECT_EQ(window->getMdiWindows().size(), 2);
}

TEST_F(CoreEditor, IsTheEditorOfItsObjectOnly)
{
    EXPECT_EQ(window->editorOf(object), nullptr);
    doubleClick();
    EXPECT_EQ(window->editorOf(object), editor());
    EXPECT_EQ(window->editorOf(addObject(project, "Plate")), nullptr);
    editor()->remove_viewself();
    EXPECT_EQ(window->editorOf(object), nullptr);
}

TEST_F(CoreEditor, AppliesNothingUnlessItOverridesThat)
{
    doubleClick();
    EXPECT_TRUE(editor()->applyEdits());
    editor()->setWindowModified(true);
    EXPECT_FALSE(editor()->applyEdits());
}

TEST_F(CoreEditor, IsLeftAloneByNodesThatOpenThemselves)
{
    nodeOf(object).opensItself = true;
    doubleClick();
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(CoreEditor, FollowsTheLabel)
{
    doubleClick();
    ASSERT_NE(editor(), nullptr);
    object.label.setValue("Girder");
    EXPECT_EQ(editor()->windowTitle(), "Girder[*]");
}

TEST_F(CoreEditor, IsClosedWithItsObject)
{
    doubleClick();
    const QPointer<Gui::MDIWindow> open = editor();
    ASSERT_NE(open, nullptr);
    const auto taken = project.takeObject(object.getObjectId());
    EXPECT_EQ(open, nullptr);
}

TEST_F(CoreEditor, IsClosedWithItsProject)
{
    doubleClick();
    const QPointer<Gui::MDIWindow> open = editor();
    ASSERT_NE(open, nullptr);
    Obj::Application::instance().closeProject(project);
    EXPECT_EQ(open, nullptr);
}

TEST_F(CoreEditor, ThatIsNotRegisteredIsReported)
{
    for (const char* const name : {"No::Editor", "Test::Object"}) {
        object.coreEditor = name;
        doubleClick();
        EXPECT_EQ(editor(), nullptr);
        EXPECT_THAT(lastMessage(), HasSubstr(std::string("\"Beam\" cannot be opened: its editor \"") + name));
    }
}

} // namespace
