#include "DataFile.h"
#include "EditorTesting.h"

#include "Gui/GuiApplication.h"
#include "Kelta/RootClass.h"

#include <QAccessible>
#include <QGridLayout>
#include <QLabel>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBox>
#include <QtTest/QtTestGui>
#include <gmock/gmock.h>

namespace {

using MatGui::MaterialView;
using testing::IsEmpty;
using vxtest::Editor;

// --- Type and meta-object ---

TEST(MaterialView, HasItsSlotsInTheirOrderAllProtected)
{
    const QMetaObject& meta = MaterialView::staticMetaObject;
    EXPECT_STREQ(meta.className(), "MatGui::MaterialView");
    EXPECT_STREQ(meta.superClass()->className(), "Gui::MDIWindow");
    EXPECT_EQ(vxtest::ownMethods(meta, QMetaMethod::Slot),
              QStringList({"on_btnOK_clicked()", "on_btnApply_clicked()", "on_btnCancel_clicked()",
                           "on_btnClear_clicked()", "on_btnAddMat_clicked()", "currentTagChangedSlot(int)",
                           "on_property_itemChanged(QListWidgetItem*)", "on_material_double_clicked(QListWidgetItem*)",
                           "on_property_double_clicked(QListWidgetItem*)"}));
    EXPECT_THAT(vxtest::ownMethods(meta, QMetaMethod::Signal), IsEmpty());
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
        EXPECT_EQ(meta.method(index).access(), QMetaMethod::Protected) << index;
    EXPECT_STREQ(meta.method(meta.methodOffset() + 1).typeName(), "bool");
    EXPECT_STREQ(meta.method(meta.methodOffset()).typeName(), "void");
}

TEST(MaterialView, IsRegisteredButNeverMadeByItsName)
{
    const vxtest::MaterialProject registered;
    EXPECT_STREQ(MaterialView::getClassTypeId().get_name(), "MatGui::MaterialView");
    EXPECT_EQ(MaterialView::create(), nullptr);
    Editor editor;
    EXPECT_EQ(editor.view()->getTypeId(), MaterialView::getClassTypeId());
    EXPECT_TRUE(editor.view()->is_inherited_from(Gui::MDIWindow::getClassTypeId()));
}

TEST(MaterialView, ReturnsNothingToTheHost)
{
    Editor editor;
    MaterialView& view = *editor.view();
    const char* answer = "kept";
    EXPECT_STREQ(view.getName(), "MaterialView");
    EXPECT_EQ(view.getMaterialObject(), &editor.project().object());
    EXPECT_FALSE(view.has_message_handler("ViewFit"));
    EXPECT_FALSE(view.message_handler("ViewFit", &answer));
    EXPECT_STREQ(answer, "kept");
    EXPECT_FALSE(view.currentIndex().isValid());
    EXPECT_THAT(view.selectedIndexes(), IsEmpty());
    const int width = editor.table().columnWidth(1);
    view.resizeColumn(1, 5);
    view.resizeRow(0, 5);
    view.updateCell(nullptr);
    EXPECT_EQ(editor.table().columnWidth(1), width);
}

TEST(MaterialView, TakesItselfOutOfTheMainWindow)
{
    Editor editor;
    editor.view()->remove_viewself();
    EXPECT_TRUE(editor.isClosed());
}

// --- The form ---

struct Widget
{
    const char* name;
    const char* type;
    const char* text;
};

TEST(MaterialView, HasTheWidgetsOfItsForm)
{
    Editor editor;
    for (const Widget& widget : std::initializer_list<Widget>{{"MaterialWidget", "QWidget", ""},
                                                              {"splitter", "QSplitter", ""},
                                                              {"tabWidget", "QTabWidget", ""},
                                                              {"tabLibrary", "QWidget", ""},
                                                              {"toolBoxLibrary", "QToolBox", ""},
                                                              {"btnAddMat", "QPushButton", "Import"},
                                                              {"tabBuild", "QWidget", ""},
                                                              {"toolBoxBuild", "QToolBox", ""},
                                                              {"layoutWidget", "QWidget", ""},
                                                              {"label_2", "QLabel", "Material Properties"},
                                                              {"tableView", "MatGui::SheetTableView", ""},
                                                              {"btnOk", "QPushButton", "OK"},
                                                              {"btnApply", "QPushButton", "Apply"},
                                                              {"btnCancel", "QPushButton", "Cancel"},
                                                              {"btnClear", "QPushButton", "Clear"}})
    {
        const auto* const found = editor.view()->findChild<QWidget*>(widget.name);
        ASSERT_NE(found, nullptr) << widget.name;
        EXPECT_STREQ(found->metaObject()->className(), widget.type) << widget.name;
        EXPECT_EQ(found->property("text").toString(), widget.text) << widget.name;
    }
    for (const char* const layout :
         {"gridLayout", "gridLayout_2", "gridLayout_3", "horizontalLayout", "hl_main", "verticalLayout", "hl_buttons"})
        EXPECT_NE(editor.view()->findChild<QLayout*>(layout), nullptr) << layout;
    EXPECT_EQ(editor.view()->centralWidget()->objectName(), "MaterialWidget");
    EXPECT_EQ(editor.view()->centralWidget()->windowTitle(), "Form");
}

void expectPages(const QToolBox& box, const std::vector<std::array<const char*, 3>>& pages)
{
    ASSERT_EQ(box.count(), static_cast<int>(pages.size()));
    for (int page = 0; page < box.count(); ++page) {
        const auto& [name, list, text] = pages[static_cast<std::size_t>(page)];
        EXPECT_EQ(box.widget(page)->objectName(), name);
        EXPECT_EQ(box.itemText(page), text);
        EXPECT_TRUE(box.itemIcon(page).isNull());
        ASSERT_NE(box.widget(page)->findChild<QListWidget*>(list), nullptr) << list;
        EXPECT_EQ(box.widget(page)->findChildren<QListWidget*>().size(), 1);
    }
    EXPECT_EQ(box.currentIndex(), 0);
    EXPECT_EQ(box.font().pointSize(), 10);
    EXPECT_EQ(box.frameShape(), QFrame::WinPanel);
    EXPECT_EQ(box.frameShadow(), QFrame::Sunken);
}

TEST(MaterialView, HasSixLibraryPages)
{
    Editor editor;
    const auto& box = editor.child<QToolBox>("toolBoxLibrary");
    expectPages(box, {{{"pg_lib_general", "lw_lib_general", "General Materials"}},
                      {{"pg_lib_nonlinear", "lw_lib_nonlinear", "Nonlinear Materials"}},
                      {{"pg_lib_hyper", "lw_lib_hyper", "Hyperelastic Materials"}},
                      {{"pg_lib_thermal", "lw_lib_thermal", "Thermal && Fluid Materials"}},
                      {{"pg_lib_em", "lw_lib_em", "Electromagnetc Materials"}},
                      {{"pg_lib_acoustic", "lw_lib_acoustic", "Acoustic Materials"}}});
    EXPECT_EQ(box.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    EXPECT_EQ(box.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
}

TEST(MaterialView, HasSevenBuildPagesTheFirstWithANarrowList)
{
    Editor editor;
    expectPages(editor.child<QToolBox>("toolBoxBuild"), {{{"pg_build_basic", "lw_build_basic", "Basic"}},
                                                         {{"pg_build_linear", "lw_build_linear", "Linear Elastic"}},
                                                         {{"pg_build_hyper", "lw_build_hyper", "Hyper-elastic"}},
                                                         {{"pg_build_plastic", "lw_build_plastic", "Plastic"}},
                                                         {{"pg_build_creep", "lw_build_creep", "Creep"}},
                                                         {{"pg_build_visco", "lw_build_viscoelastic", "Visco-elastic"}},
                                                         {{"pg_build_em", "lw_build_em", "Electromagnetic"}}});
    EXPECT_EQ(editor.list("lw_build_basic").maximumSize(), QSize(361, QWIDGETSIZE_MAX));
    for (const char* const other : {"lw_build_linear", "lw_build_hyper", "lw_build_plastic", "lw_build_creep",
                                    "lw_build_viscoelastic", "lw_build_em"})
        EXPECT_EQ(editor.list(other).maximumWidth(), QWIDGETSIZE_MAX) << other;
}

TEST(MaterialView, HasTwoTabsAsTheFormSetsThem)
{
    Editor editor;
    const auto& tabs = editor.child<QTabWidget>("tabWidget");
    ASSERT_EQ(tabs.count(), 2);
    EXPECT_EQ(tabs.tabText(0), "Library");
    EXPECT_EQ(tabs.tabText(1), "Build");
    EXPECT_EQ(tabs.widget(0)->objectName(), "tabLibrary");
    EXPECT_EQ(tabs.widget(1)->objectName(), "tabBuild");
    EXPECT_EQ(tabs.currentIndex(), 0);
    EXPECT_EQ(tabs.font().pointSize(), 11);
    EXPECT_EQ(tabs.tabShape(), QTabWidget::Triangular);
    EXPECT_EQ(tabs.iconSize(), QSize(16, 16));
    EXPECT_FALSE(tabs.tabsClosable());
    EXPECT_FALSE(tabs.isMovable());
    EXPECT_FALSE(tabs.tabBarAutoHide());
}

TEST(MaterialView, LaysItsWidgetsOutAsTheFormSays)
{
    Editor editor;
    const auto& splitter = editor.child<QSplitter>("splitter");
    EXPECT_EQ(splitter.orientation(), Qt::Horizontal);
    EXPECT_EQ(splitter.handleWidth(), 0);
    EXPECT_EQ(splitter.widget(0)->objectName(), "tabWidget");
    EXPECT_EQ(splitter.widget(1)->objectName(), "layoutWidget");
    EXPECT_EQ(splitter.widget(0)->sizePolicy().horizontalStretch(), 1);
    EXPECT_EQ(splitter.widget(1)->sizePolicy().horizontalStretch(), 3);
    for (const char* const name : {"gridLayout", "gridLayout_2"}) {
        const auto& grid = editor.child<QGridLayout>(name);
        EXPECT_EQ(grid.contentsMargins(), QMargins()) << name;
        EXPECT_EQ(grid.horizontalSpacing(), 0) << name;
        EXPECT_EQ(grid.verticalSpacing(), 0) << name;
    }
    for (const char* const name : {"horizontalLayout", "verticalLayout", "hl_buttons", "hl_main"})
        EXPECT_EQ(editor.child<QLayout>(name).spacing(), 1) << name;
}

/// Returns the names of the widgets of a row, spacers as "-".
QStringList rowOf(const QLayout& layout)
{
    QStringList names;
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem* const item = layout.itemAt(i);
        names << (item->widget() != nullptr ? item->widget()->objectName() : QString("-"));
        if (item->spacerItem() != nullptr) {
            EXPECT_EQ(item->sizeHint(), QSize(40, 20));
            EXPECT_TRUE(item->expandingDirections() & Qt::Horizontal);
        }
    }
    return names;
}

TEST(MaterialView, HasItsButtonsInRows)
{
    Editor editor;
    EXPECT_EQ(rowOf(editor.child<QLayout>("horizontalLayout")), QStringList({"-", "btnAddMat", "-"}));
    EXPECT_EQ(rowOf(editor.child<QLayout>("hl_buttons")),
              QStringList({"btnOk", "btnApply", "btnCancel", "-", "btnClear"}));
    for (const char* const button : {"btnOk", "btnApply", "btnCancel", "btnClear"})
        EXPECT_EQ(editor.child<QPushButton>(button).font().pointSize(), 12) << button;
    const auto& label = editor.child<QLabel>("label_2");
    EXPECT_EQ(label.font().pointSize(), 12);
    EXPECT_EQ(label.alignment(), Qt::AlignCenter);
    EXPECT_EQ(label.margin(), 2);
    EXPECT_EQ(editor.table().frameShape(), QFrame::WinPanel);
    EXPECT_EQ(editor.table().frameShadow(), QFrame::Plain);
    EXPECT_EQ(editor.table().lineWidth(), 1);
}

TEST(MaterialView, IsTranslatedInTheContextOfItsForm)
{
    const vxtest::TestTranslator translator(vxtest::Translations{{"MaterialWidget||Library", "Bibliothek"},
                                                                 {"MaterialWidget||Apply", "Anwenden"},
                                                                 {"vxMat::MaterialBase||Concrete", "Beton"},
                                                                 {"vxMat::PropertyName||Density", "Dichte"}});
    Editor editor;
    EXPECT_EQ(editor.child<QTabWidget>("tabWidget").tabText(0), "Bibliothek");
    EXPECT_EQ(editor.child<QPushButton>("btnApply").text(), "Anwenden");
    EXPECT_NE(editor.item("Beton"), nullptr);
    EXPECT_NE(editor.item("Dichte"), nullptr);
}

TEST(MaterialView, FollowsAChangeOfTheLanguageWithoutTouchingItsRows)
{
    Editor editor;
    const std::vector<int> before = editor.rowIds();
    {
        const vxtest::TestTranslator translator(vxtest::Translations{{"MaterialWidget||Clear", "Leeren"},
                                                                     {"vxMat::MaterialBase||Concrete", "Beton"},
                                                                     {"vxMat::PropertyName||Density", "Dichte"},
                                                                     {"MatGui::SheetTableView||Value", "Wert"}});
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(editor.child<QPushButton>("btnClear").text(), "Leeren");
        EXPECT_NE(editor.item("Beton"), nullptr);
        EXPECT_NE(editor.item("Dichte"), nullptr);
        EXPECT_EQ(editor.table().model()->headerData(2, Qt::Horizontal).toString(), "Wert");
    }
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(editor.child<QPushButton>("btnClear").text(), "Clear");
    EXPECT_EQ(editor.rowIds(), before);
}

// --- Keyboard and assistive technology ---

/// Returns the widgets that the Tab key visits, from the tabs on, until they repeat.
QStringList tabOrder(Editor& editor)
{
    auto* const start = editor.child<QTabWidget>("tabWidget").tabBar();
    start->setFocus(Qt::TabFocusReason);
    QStringList names;
    do {
        QWidget* const focus = QApplication::focusWidget();
        const QString name = focus->objectName();
        names << (name == "qt_toolbox_toolboxbutton" ? "page " + focus->accessibleName() : name);
        QTest::keyClick(focus, Qt::Key_Tab);
    } while (QApplication::focusWidget() != start && names.size() < 40);
    return names;
}

TEST(MaterialView, IsVisitedByTabInTheOrderInWhichItIsRead)
{
    Editor editor;
    EXPECT_EQ(tabOrder(editor),
              QStringList({"qt_tabwidget_tabbar", "page General Materials", "lw_lib_general",
                           "page Nonlinear Materials", "page Hyperelastic Materials", "page Thermal & Fluid Materials",
                           "page Electromagnetc Materials", "page Acoustic Materials", "btnAddMat", "tableView",
                           "btnOk", "btnApply", "btnCancel", "btnClear"}));
    editor.turnTo(editor.list("lw_build_plastic"));
    EXPECT_EQ(tabOrder(editor),
              QStringList({"qt_tabwidget_tabbar", "page Basic", "page Linear Elastic", "page Hyper-elastic",
                           "page Plastic", "lw_build_plastic", "page Creep", "page Visco-elastic",
                           "page Electromagnetic", "tableView", "btnOk", "btnApply", "btnCancel", "btnClear"}));
}

TEST(MaterialView, TurnsItsPagesByTheKeyboard)
{
    Editor editor;
    auto& box = editor.child<QToolBox>("toolBoxLibrary");
    editor.child<QTabWidget>("tabWidget").setFocus();
    for (int presses = 0; presses < 30 && QApplication::focusWidget()->accessibleName() != "Acoustic Materials";
         ++presses)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(box.currentIndex(), 5);
}

TEST(MaterialView, GivesTheKeyboardToTheValuesWhenItIsActivated)
{
    Editor editor;
    Gui::MainWindow::get_main_window_inst()->set_active_mdi_window(editor.view());
    EXPECT_EQ(QApplication::focusWidget(), &editor.table());
    EXPECT_EQ(editor.table().currentIndex(), editor.table().model()->index(0, 2));
    EXPECT_TRUE(editor.table().selectionModel()->isSelected(editor.table().currentIndex()));
}

TEST(MaterialView, GivesTheKeyboardToItsTabsWhenItHasNoValues)
{
    Editor editor;
    editor.click("btnClear");
    editor.view()->setFocus();
    EXPECT_EQ(QApplication::focusWidget(), editor.child<QTabWidget>("tabWidget").tabBar());
}

TEST(MaterialView, TellsAssistiveTechnologyTheNamesOfListsTableAndButtons)
{
    Editor editor;
    const auto nameOf = [&](const char* widget) {
        QAccessibleInterface* const interface =
            QAccessible::queryAccessibleInterface(editor.view()->findChild<QWidget*>(widget));
        return interface != nullptr ? interface->text(QAccessible::Name) : QString("none");
    };
    EXPECT_EQ(nameOf("lw_lib_thermal"), "Thermal & Fluid Materials");
    EXPECT_EQ(nameOf("lw_build_viscoelastic"), "Visco-elastic");
    EXPECT_EQ(nameOf("tableView"), "Material Properties");
    EXPECT_EQ(nameOf("btnOk"), "OK");
    EXPECT_EQ(nameOf("btnAddMat"), "Import");
    for (const QListWidget* const list : editor.view()->findChildren<QListWidget*>())
        EXPECT_FALSE(list->accessibleName().isEmpty()) << list->objectName().toStdString();
    for (const QPushButton* const button : editor.view()->findChildren<QPushButton*>())
        EXPECT_FALSE(button->accessibleDescription().isEmpty()) << button->objectName().toStdString();
}

} // namespace
