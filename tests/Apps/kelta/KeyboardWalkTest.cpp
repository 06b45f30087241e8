// A user without a mouse: from the empty program to an applied material, and back to the explorer.

#include "FilesTesting.h"

#include "Gui/ProjectExplorer.h"
#include "vxMaterial/project/Requests.h"

#include <QListWidget>
#include <QTableView>
#include <QtTest/QtTestGui>

namespace {

constexpr std::int32_t densityId = 4;

class KeyboardWalk : public vxtest::Files
{
protected:
    KeyboardWalk()
    {
        Mat::registerRequests();
        window->activateWindow();
        EXPECT_TRUE(vxtest::waitUntilActive(window.get()));
    }

    static QString focus()
    {
        const QWidget* const widget = QApplication::focusWidget();
        return widget != nullptr ? widget->objectName() : QString();
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QWidget* const target = QApplication::focusWidget();
        QTest::keyClick(target != nullptr ? target : window.get(), static_cast<Qt::Key>(key), modifiers);
        QCoreApplication::processEvents();
    }
    /// Presses a key until the widget with this name has the keyboard focus.
    void pressUntil(int key, const char* widget) const
    {
        constexpr int most = 60;
        for (int i = 0; i < most && focus() != QLatin1String(widget); ++i)
            press(key);
        ASSERT_EQ(focus(), widget);
    }
    static void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
};

TEST_F(KeyboardWalk, LeadsFromTheEmptyProgramToAnAppliedMaterialAndBackToTheExplorer)
{
    press(Qt::Key_N, Qt::ControlModifier);
    ASSERT_NE(currentProject(), nullptr);
    EXPECT_EQ(focus(), "projectExplorer");
    press(Qt::Key_M, Qt::ControlModifier);
    ASSERT_EQ(currentProject()->getObjectCount(), 1U);
    EXPECT_EQ(focus(), "projectExplorer");
    auto& object = dynamic_cast<Mat::MaterialObject&>(*currentProject()->getObjects().front());
    EXPECT_TRUE(object.getCMaterial()->properties.empty());

    press(Qt::Key_Return);
    Gui::MDIWindow* const editor = window->get_active_mdi_window();
    ASSERT_NE(editor, nullptr);
    EXPECT_TRUE(editor->isAncestorOf(QApplication::focusWidget()));

    pressUntil(Qt::Key_Tab, "lw_lib_general");
    press(Qt::Key_Home);
    press(Qt::Key_Space);
    ASSERT_EQ(editor->findChild<QListWidget*>("lw_lib_general")->selectedItems().size(), 1);
    pressUntil(Qt::Key_Tab, "btnAddMat");
    press(Qt::Key_Space);
    pressUntil(Qt::Key_Tab, "tableView");
    const auto* const table = editor->findChild<QTableView*>("tableView");
    EXPECT_EQ(table->currentIndex(), table->model()->index(0, 2)) << "the value of the first row";
    press(Qt::Key_F2);
    type("7800");
    press(Qt::Key_Return);
    EXPECT_TRUE(editor->isWindowModified());

    // Another pane, and back to the same place.
    press(Qt::Key_F6);
    EXPECT_FALSE(editor->isAncestorOf(QApplication::focusWidget()));
    press(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(focus(), "tableView");

    pressUntil(Qt::Key_Tab, "btnApply");
    press(Qt::Key_Space);
    EXPECT_FALSE(editor->isWindowModified());
    double density = 0;
    ASSERT_TRUE(object.getCMaterial()->getPropertyValue(densityId, density));
    EXPECT_EQ(density, 7800);

    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(vxtest::waitFor([] { return focus() == QLatin1String("projectExplorer"); }));
    EXPECT_TRUE(window->getMdiWindows().isEmpty());
    press(Qt::Key_Return);
    EXPECT_EQ(window->getMdiWindows().size(), 1) << "the material is still the current entry";
    EXPECT_EQ(focus(), "tableView") << "the material has values to edit";
    EXPECT_EQ(window->get_active_mdi_window()->findChild<QTableView*>("tableView")->currentIndex().column(), 2);
}

TEST_F(KeyboardWalk, HasKeysForTheCommandsThatAreUsedMost)
{
    const std::vector<std::pair<const char*, const char*>> keys = {
        {"Mat_NewDoc", "Ctrl+N"},       {"Mat_AddMaterial", "Ctrl+M"}, {"Std_Open", "Ctrl+O"},
        {"Std_Save", "Ctrl+S"},         {"Mat_Export", "Ctrl+E"},      {"Mat_Check", "F7"},
        {"Std_SaveAs", "Ctrl+Shift+S"}, {"Std_NextPane", "F6"},        {"Std_PreviousPane", "Shift+F6"},
    };
    for (const auto& [name, key] : keys) {
        const Gui::Command* const command = Gui::GuiApplication::Instance->get_command_manager().findCommand(name);
        ASSERT_NE(command, nullptr) << name;
        EXPECT_EQ(command->get_shortcut(), QKeySequence(key)) << name;
        EXPECT_EQ(command->action()->shortcut(), QKeySequence(key)) << name;
    }
}

} // namespace
