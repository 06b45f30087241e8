#include "vxMaterial/gui/MaterialView.h"

#include "EditorTesting.h"
#include "MessageBoxes.h"

#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <QAction>
#include <QLineEdit>
#include <QTabWidget>
#include <QToolBox>
#include <QtTest/QtTestGui>
#include <QtTest/qtestmouse.h>
#include <gmock/gmock.h>

#include <map>
#include <set>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using vxtest::Editor;
using vxtest::MessageBoxes;

/// Returns the names of the items that are checked on the Build tab.
std::set<QString> checkedItems(const Editor& editor)
{
    std::set<QString> names;
    for (const QListWidget* const list : editor.view()->findChildren<QListWidget*>())
        for (int row = 0; row < list->count(); ++row)
            if (list->item(row)->checkState() == Qt::Checked)
                names.insert(list->item(row)->text());
    return names;
}

void expectOneBox(const MessageBoxes& boxes, const QString& title, const QString& text)
{
    ASSERT_EQ(boxes.shown().size(), 1U);
    const vxtest::ShownBox& box = boxes.shown().front();
    EXPECT_EQ(box.icon, QMessageBox::Critical);
    EXPECT_EQ(box.title, title);
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.buttons, QMessageBox::Ok);
    EXPECT_EQ(box.parent, Gui::MainWindow::get_main_window_inst());
}

bool apply(Editor& editor)
{
    bool applied = false;
    EXPECT_TRUE(QMetaObject::invokeMethod(editor.view(), "on_btnApply_clicked", Q_RETURN_ARG(bool, applied)));
    return applied;
}

/// Calls a slot with an item, like a signal of a list.
void call(Editor& editor, const char* slot, QListWidgetItem* item)
{
    EXPECT_TRUE(QMetaObject::invokeMethod(editor.view(), slot, Q_ARG(QListWidgetItem*, item)));
}

// --- Opening ---

TEST(MaterialView, OpensWithTheMaterialOfItsObject)
{
    Editor editor;
    EXPECT_THAT(editor.rowIds(), UnorderedElementsAre(4, 31, 5, 6, 202, 203, 301, 302, 303));
    EXPECT_THAT(checkedItems(editor),
                UnorderedElementsAre("Density", "Isotropic elasticity", "Young's modulus", "Poisson's ratio",
                                     "Specific heat", "Thermal conductivity", "Electrical conductivity",
                                     "Relative permittivity", "Relative permeability"));
}

TEST(MaterialView, ChangesNothingOfTheMaterialByOpeningAndClosing)
{
    Editor editor;
    const auto before = vxtest::contents(editor.material());
    const auto name = editor.material().name;
    editor.click("btnCancel");
    ASSERT_TRUE(editor.isClosed());
    EXPECT_EQ(vxtest::contents(editor.material()), before);
    EXPECT_EQ(editor.material().name, name);
}

// A material object always has a material. The windows also accept an object without one, which only tests make.
template <auto Member>
struct MaterialAccess
{
    friend auto& materialOf(Mat::MaterialObject& object) { return object.*Member; }
};
auto& materialOf(Mat::MaterialObject& object);
template struct MaterialAccess<&Mat::MaterialObject::material>;

TEST(MaterialView, HasAnEmptyBuildTabAndTableForAnObjectWithoutAMaterial)
{
    Editor editor([](vxtest::MaterialProject& project) { materialOf(project.object()).reset(); });
    EXPECT_EQ(editor.rowCount(), 0);
    for (const char* const list : {"lw_build_basic", "lw_build_linear", "lw_build_hyper", "lw_build_plastic",
                                   "lw_build_creep", "lw_build_viscoelastic", "lw_build_em"})
        EXPECT_EQ(editor.list(list).count(), 0) << list;
    const std::map<const char*, int> counts{{"lw_lib_general", 7}, {"lw_lib_nonlinear", 9}, {"lw_lib_hyper", 4},
                                            {"lw_lib_thermal", 2}, {"lw_lib_em", 2},        {"lw_lib_acoustic", 2}};
    for (const auto& [list, count] : counts)
        EXPECT_EQ(editor.list(list).count(), count) << list;
    editor.doubleClick(editor.item("Concrete"));
    EXPECT_EQ(editor.rowCount(), 6);
    EXPECT_TRUE(apply(editor));
    EXPECT_EQ(editor.project().object().getCMaterial(), nullptr);
}

TEST(MaterialView, HasNoItemForAGroupWithoutAPage)
{
    Editor editor([](vxtest::MaterialProject& project) {
        for (const int group : {5, 8, -1}) {
            auto material = std::make_unique<vxMat::MaterialBase>();
            material->name = "Nowhere";
            material->libraryGroup = group;
            project.database().materials[1000 + group] = std::move(material);
        }
        auto material = std::make_unique<vxMat::MaterialBase>();
        material->name = "Zero";
        project.database().materials[999] = std::move(material);
        auto property = std::make_unique<vxMat::MaterialProperty>(900, "Heat", "h", 1.0);
        property->category = vxMat::ePropertyCategory::Thermal;
        project.database().propertyCatalogue[900] = std::move(property);
    });
    int items = 0;
    for (const QListWidget* const list : editor.view()->findChildren<QListWidget*>()) {
        items += list->count();
        EXPECT_THAT(list->findItems("Nowhere", Qt::MatchExactly), IsEmpty());
        EXPECT_THAT(list->findItems("Heat", Qt::MatchExactly), IsEmpty());
    }
    EXPECT_EQ(items, 26 + 1 + 36);
    EXPECT_EQ(editor.list("lw_lib_general").findItems("Zero", Qt::MatchExactly).size(), 1);
}

TEST(MaterialView, LeavesTheHostWhenItIsDestroyed)
{
    Editor editor;
    const auto& project = *Gui::GuiApplication::Instance->get_project(&editor.project().document());
    EXPECT_THAT(project.getViews(), ElementsAre(static_cast<Gui::BaseView*>(editor.view())));
    delete editor.view();
    EXPECT_THAT(project.getViews(), IsEmpty());
}

TEST(MaterialView, ClosesWithItsProject)
{
    auto project = std::make_unique<vxtest::MaterialProject>();
    Gui::MainWindow mainWindow;
    const QPointer<MatGui::MaterialView> view = new MatGui::MaterialView(
        Gui::GuiApplication::Instance->get_project(&project->document()), &project->object(), &mainWindow);
    mainWindow.add_mdi_window(view);
    project.reset();
    EXPECT_EQ(view, nullptr);
}

// --- Library ---

TEST(MaterialView, ShowsADoubleClickedLibraryMaterialAndLeavesTheMaterialUntilApply)
{
    Editor editor;
    const auto before = vxtest::contents(editor.material());
    editor.doubleClick(editor.item("Air"));
    EXPECT_THAT(editor.rowIds(), UnorderedElementsAre(4, 401, 202, 203, 21, 301));
    EXPECT_THAT(checkedItems(editor),
                UnorderedElementsAre("Density", "Speed of sound", "Specific heat", "Thermal conductivity",
                                     "Dynamic viscosity", "Electrical conductivity"));
    EXPECT_EQ(editor.cell(editor.rowOf(4), 2), "1.225");
    EXPECT_EQ(editor.cell(editor.rowOf(21), 2), "1.81e-05");
    EXPECT_EQ(vxtest::contents(editor.material()), before);
    editor.click("btnApply");
    ASSERT_EQ(editor.material().properties.count(401), 1U);
    EXPECT_EQ(editor.material().properties.size(), 6U);
    EXPECT_EQ(editor.material().properties.at(401)->value, 343.0);
}

TEST(MaterialView, ImportsTheSelectedMaterialOfTheCurrentPage)
{
    Editor editor;
    MessageBoxes boxes;
    editor.select(editor.item("Water"));
    editor.click("btnAddMat");
    EXPECT_THAT(boxes.shown(), IsEmpty());
    EXPECT_EQ(editor.cell(editor.rowOf(401), 2), "1484");
}

TEST(MaterialView, ImportsByTheKeyboardAlone)
{
    Editor editor;
    QListWidget& list = editor.list("lw_lib_general");
    editor.child<QTabWidget>("tabWidget").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), &list);
    QTest::keyClick(&list, Qt::Key_End);
    const QString chosen = list.currentItem()->text();
    while (QApplication::focusWidget() != &editor.child<QPushButton>("btnAddMat"))
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    editor.click("btnClear");
    QTest::keyClick(&editor.child<QPushButton>("btnAddMat"), Qt::Key_Space);
    EXPECT_GE(editor.rowCount(), 6) << chosen.toStdString();
}

TEST(MaterialView, AsksForASelectionWhenNoneIsMadeOnTheCurrentPage)
{
    Editor editor;
    const std::vector<int> before = editor.rowIds();
    MessageBoxes boxes;
    editor.select(editor.item("Water"));
    editor.turnTo(editor.list("lw_lib_em"));
    editor.click("btnAddMat");
    expectOneBox(boxes, "Invalid selection", "Please selection one material.");
    EXPECT_EQ(editor.rowIds(), before);
}

TEST(MaterialView, AsksForASelectionWhenSeveralMaterialsAreSelected)
{
    Editor editor;
    MessageBoxes boxes;
    editor.list("lw_lib_general").setSelectionMode(QAbstractItemView::MultiSelection);
    editor.list("lw_lib_general").selectAll();
    editor.click("btnAddMat");
    expectOneBox(boxes, "Invalid selection", "Please selection one material.");
}

TEST(MaterialView, ImportsNothingFromAPageWithoutAListOrFromNoPage)
{
    Editor editor;
    MessageBoxes boxes;
    auto& box = editor.child<QToolBox>("toolBoxLibrary");
    delete &editor.list("lw_lib_general");
    editor.click("btnAddMat");
    while (box.count() > 0)
        box.removeItem(0);
    editor.click("btnAddMat");
    EXPECT_THAT(boxes.shown(), IsEmpty());
    EXPECT_EQ(editor.rowCount(), 9);
}

TEST(MaterialView, IgnoresItemsThatItDoesNotKnow)
{
    Editor editor;
    const std::vector<int> before = editor.rowIds();
    const auto checked = checkedItems(editor);
    QListWidgetItem stranger("Unobtainium");
    stranger.setCheckState(Qt::Checked);
    for (QListWidgetItem* const item : {&stranger, static_cast<QListWidgetItem*>(nullptr)}) {
        call(editor, "on_material_double_clicked", item);
        call(editor, "on_property_itemChanged", item);
        call(editor, "on_property_double_clicked", item);
    }
    EXPECT_EQ(stranger.checkState(), Qt::Unchecked);
    call(editor, "on_property_itemChanged", &stranger);
    EXPECT_EQ(editor.rowIds(), before);
    EXPECT_EQ(checkedItems(editor), checked);
}

// --- Build ---

TEST(MaterialView, AddsARowWithTheDefaultWhenAnItemIsTickedByMouseSpaceOrDoubleClick)
{
    for (const auto tick : {&Editor::tickByMouse, &Editor::tickBySpace, &Editor::doubleClick}) {
        Editor editor;
        QListWidgetItem* const item = editor.item("Dynamic viscosity");
        (editor.*tick)(item);
        EXPECT_EQ(item->checkState(), Qt::Checked);
        ASSERT_EQ(editor.rowCount(), 10);
        EXPECT_EQ(editor.cell(9, 0), "21");
        EXPECT_EQ(editor.cell(9, 2), "1");
        (editor.*tick)(item);
        EXPECT_EQ(item->checkState(), Qt::Unchecked);
        EXPECT_EQ(editor.rowCount(), 9);
        EXPECT_EQ(editor.rowOf(21), -1);
    }
}

TEST(MaterialView, HasOneRowAfterCheckUncheckCheck)
{
    Editor editor;
    QListWidgetItem* const item = editor.item("Creep");
    for (int i = 0; i < 3; ++i)
        editor.tickByMouse(item);
    const auto ids = editor.rowIds();
    EXPECT_EQ(std::count(ids.begin(), ids.end(), 45), 1);
}

TEST(MaterialView, RemovesARowAtAnyPositionWhenItsItemIsUnticked)
{
    Editor editor;
    const std::vector<int> before = editor.rowIds();
    editor.tickByMouse(editor.item("Young's modulus"));
    std::vector<int> expected = before;
    expected.erase(std::find(expected.begin(), expected.end(), 5));
    EXPECT_EQ(editor.rowIds(), expected);
}

TEST(MaterialView, KeepsEditedValuesOfOtherRowsWhenAnItemIsTicked)
{
    Editor editor;
    editor.typeValue(5, "7.1e10");
    editor.tickByMouse(editor.item("Density"));
    EXPECT_EQ(editor.cell(editor.rowOf(5), 2), "7.1e10");
}

TEST(MaterialView, AddsTheDefaultAgainAfterAnEditedRowWasUnticked)
{
    Editor editor;
    editor.typeValue(4, "2700");
    editor.tickByMouse(editor.item("Density"));
    editor.tickByMouse(editor.item("Density"));
    EXPECT_EQ(editor.cell(editor.rowOf(4), 2), "1");
}

// --- Apply, OK, Cancel ---

TEST(MaterialView, WritesEditedValuesOnApplyAndStaysOpen)
{
    Editor editor;
    MessageBoxes boxes;
    editor.typeValue(5, "7.1e10");
    EXPECT_EQ(editor.material().properties.at(5)->value, 2e11);
    editor.click("btnApply");
    EXPECT_EQ(editor.material().properties.at(5)->value, 7.1e10);
    EXPECT_THAT(boxes.shown(), IsEmpty());
    EXPECT_NE(editor.view(), nullptr);
    EXPECT_TRUE(apply(editor));
}

TEST(MaterialView, TakesOverTextThatIsStillBeingTypedOnApply)
{
    Editor editor;
    editor.startTyping(5, "123");
    EXPECT_TRUE(apply(editor));
    EXPECT_EQ(editor.material().properties.at(5)->value, 123.0);
}

TEST(MaterialView, WritesAndClosesOnOk)
{
    Editor editor;
    editor.typeValue(4, "2700");
    editor.click("btnOk");
    ASSERT_TRUE(editor.isClosed());
    EXPECT_EQ(editor.material().properties.at(4)->value, 2700.0);
}

TEST(MaterialView, ClosesOnCancelWithoutWriting)
{
    Editor editor;
    const auto before = vxtest::contents(editor.material());
    editor.typeValue(4, "2700");
    editor.click("btnCancel");
    ASSERT_TRUE(editor.isClosed());
    EXPECT_EQ(vxtest::contents(editor.material()), before);
}

TEST(MaterialView, ReportsARowThatFailsAndKeepsWindowAndMaterial)
{
    for (const char* const button : {"btnApply", "btnOk"}) {
        Editor editor;
        const auto before = vxtest::contents(editor.material());
        editor.typeValue(4, "-1");
        MessageBoxes boxes;
        editor.click(button);
        expectOneBox(boxes, "Invalid material",
                     QString("Row %1: Mass density must be positive!").arg(editor.rowOf(4) + 1));
        EXPECT_NE(editor.view(), nullptr);
        EXPECT_EQ(vxtest::contents(editor.material()), before);
        EXPECT_FALSE(apply(editor));
    }
}

TEST(MaterialView, ReportsARowThatPassesButCannotBeReadAndLosesNothing)
{
    for (const char* const button : {"btnApply", "btnOk"}) {
        for (const auto& [text, reason] :
             std::vector<std::pair<QString, QString>>{{"stiff", "is not a number!"},
                                                      {"", "is not a number!"},
                                                      {"1e999", "is out of the range of numbers!"},
                                                      {"%1 %2", "is not a number!"},
                                                      {"<b>2</b>", "is not a number!"}})
        {
            Editor editor;
            const auto before = vxtest::contents(editor.material());
            editor.typeValue(5, text);
            const QString row = QString::number(editor.rowOf(5) + 1);
            MessageBoxes boxes;
            editor.click(button);
            expectOneBox(boxes, "Invalid material",
                         "Row " + row + ": The value \"" + text + "\" of \"Young's modulus\" " + reason);
            EXPECT_NE(editor.view(), nullptr);
            EXPECT_EQ(vxtest::contents(editor.material()), before);
            EXPECT_EQ(editor.cell(editor.rowOf(5), 2), text);
            EXPECT_FALSE(apply(editor));
        }
    }
}

TEST(MaterialView, ReportsAnEmptyTable)
{
    for (const char* const button : {"btnApply", "btnOk"}) {
        Editor editor([](vxtest::MaterialProject& project) { project.material().clearProperties(); });
        MessageBoxes boxes;
        editor.click(button);
        expectOneBox(boxes, "Empty property", "No property is defined.");
        EXPECT_NE(editor.view(), nullptr);
        EXPECT_FALSE(apply(editor));
    }
}

TEST(MaterialView, ReportsAnEmptyTableOnApplyAfterClear)
{
    Editor editor;
    const auto before = vxtest::contents(editor.material());
    editor.click("btnClear");
    EXPECT_EQ(editor.rowCount(), 0);
    EXPECT_THAT(checkedItems(editor), IsEmpty());
    MessageBoxes boxes;
    editor.click("btnApply");
    expectOneBox(boxes, "Empty property", "No property is defined.");
    EXPECT_EQ(vxtest::contents(editor.material()), before);
}

TEST(MaterialView, LeavesTheMaterialAsItWasAfterClearAndCancel)
{
    Editor editor;
    const auto before = vxtest::contents(editor.material());
    editor.click("btnClear");
    editor.click("btnCancel");
    ASSERT_TRUE(editor.isClosed());
    EXPECT_EQ(vxtest::contents(editor.material()), before);
}

TEST(MaterialView, ClearsRowsThatHaveNoItem)
{
    Editor editor;
    editor.doubleClick(editor.item("Acoustic Material 1"));
    editor.click("btnClear");
    EXPECT_EQ(editor.rowCount(), 0);
    EXPECT_THAT(checkedItems(editor), IsEmpty());
}

TEST(MaterialView, ShowsTheTextsOfItsBoxesInTheLanguageOfTheUser)
{
    const vxtest::TestTranslator translator(
        vxtest::Translations{{"MatGui::MaterialView||Empty property", "Keine Eigenschaft"},
                             {"MatGui::MaterialView||No property is defined.", "Nichts da."}});
    Editor editor;
    editor.click("btnClear");
    MessageBoxes boxes;
    editor.click("btnApply");
    expectOneBox(boxes, "Keine Eigenschaft", "Nichts da.");
}

/// Throws while a text is translated, as if memory runs out. This is the only way to make a material of the database
/// throw while it is shown.
class ThrowingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        if (armed && qstrncmp(context, "vxMat::Property", 15) == 0)
            throw std::runtime_error("no memory");
        (void)text;
        return {};
    }
    bool armed = false;
};

TEST(MaterialView, ReportsWhatASlotThrowsAndLeavesMaterialAndTable)
{
    Editor editor;
    ThrowingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    const auto material = vxtest::contents(editor.material());
    const std::vector<int> rows = editor.rowIds();
    const auto checked = checkedItems(editor);
    QCoreApplication::sendPostedEvents(); // the change of language
    translator.armed = true;
    {
        MessageBoxes boxes;
        editor.doubleClick(editor.item("Concrete"));
        expectOneBox(boxes, "Material editor", "An error occurred: no memory");
    }
    EXPECT_EQ(editor.rowIds(), rows);
    EXPECT_EQ(checkedItems(editor), checked);
    EXPECT_EQ(vxtest::contents(editor.material()), material);
    {
        // The validation translates the allowed words.
        editor.table().togglePropertyRow(false, editor.project().database().propertyCatalogue.at(33).get());
        MessageBoxes boxes;
        editor.table().model()->setData(editor.table().model()->index(0, 0), "33");
        EXPECT_FALSE(apply(editor));
        expectOneBox(boxes, "Material editor", "An error occurred: no memory");
    }
    translator.armed = false;
    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(vxtest::contents(editor.material()), material);
}

// --- Keys ---

/// Records the keys that reach a widget.
class KeyNotes : public QObject
{
public:
    explicit KeyNotes(QObject* watched) { watched->installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Shift && key != Qt::Key_Control && key != Qt::Key_Alt)
            keys.push_back(key);
        return false;
    }
    std::vector<int> keys;
};

TEST(MaterialView, SwallowsTheDeleteKeyWithAndWithoutModifiers)
{
    Editor editor;
    const auto before = vxtest::contents(editor.material());
    const KeyNotes outside(editor.view()->parentWidget());
    for (const auto modifier : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        QTest::keyClick(editor.view(), Qt::Key_Delete, modifier);
    QTest::keyClick(&editor.child<QPushButton>("btnOk"), Qt::Key_Delete);
    EXPECT_THAT(outside.keys, IsEmpty());
    EXPECT_EQ(vxtest::contents(editor.material()), before);
    EXPECT_EQ(editor.rowCount(), 9);
    QTest::keyClick(editor.view(), Qt::Key_F7);
    QTest::keyClick(editor.view(), Qt::Key_Backspace);
    EXPECT_THAT(outside.keys, ElementsAre(Qt::Key_F7, Qt::Key_Backspace));
}

TEST(MaterialView, KeepsTheDeleteKeyFromAShortcutOfTheHost)
{
    Editor editor;
    QAction deleteObject;
    deleteObject.setShortcut(Qt::Key_Delete);
    bool deleted = false;
    QObject::connect(&deleteObject, &QAction::triggered, [&deleted] { deleted = true; });
    Gui::MainWindow::get_main_window_inst()->addAction(&deleteObject);
    editor.child<QPushButton>("btnApply").setFocus();
    QTest::keyClick(&editor.child<QPushButton>("btnApply"), Qt::Key_Delete);
    EXPECT_FALSE(deleted);
    QTest::keyClick(Gui::MainWindow::get_main_window_inst(), Qt::Key_Delete);
    EXPECT_TRUE(deleted);
}

TEST(MaterialView, RemovesBothRowsOfOneIdWhenItsItemIsUnticked)
{
    Editor editor;
    editor.doubleClick(editor.item("Acoustic Material 2"));
    ASSERT_EQ(editor.rowIds(), (std::vector<int>{4, 4}));
    editor.tickByMouse(editor.item("Density"));
    EXPECT_EQ(editor.rowCount(), 0);
}

TEST(MaterialView, IsMarkedAsModifiedUntilItsChangesAreApplied)
{
    Editor editor;
    EXPECT_FALSE(editor.view()->isWindowModified());
    editor.typeValue(4, "2700");
    EXPECT_TRUE(editor.view()->isWindowModified());
    editor.click("btnApply");
    EXPECT_FALSE(editor.view()->isWindowModified());
}

// --- Closing with unapplied changes ---

void close()
{
    Gui::MainWindow::get_main_window_inst()->close_current_window();
}

/// Closes the window and waits for `count` boxes. Clicks `answer` in each box that has this button.
std::vector<vxtest::ShownBox> closeAnswering(QMessageBox::StandardButton answer, std::size_t count = 1)
{
    const MessageBoxes boxes(answer);
    close();
    EXPECT_TRUE(vxtest::waitFor([&] { return boxes.shown().size() >= count; }));
    QCoreApplication::processEvents();
    return boxes.shown();
}

TEST(MaterialView, AsksWhetherToApplyTheChangesBeforeItCloses)
{
    Editor editor;
    editor.typeValue(4, "2700");
    const auto boxes = closeAnswering(QMessageBox::Cancel);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_EQ(boxes[0].title, "Material editor");
    EXPECT_EQ(boxes[0].text, "The changes of \"Steel\" have not been applied.");
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Apply | QMessageBox::Discard | QMessageBox::Cancel);
    EXPECT_TRUE(boxes[0].hasDefaultButton);
}

TEST(MaterialView, DiscardsByAKeyOfItsQuestion)
{
    Editor editor;
    editor.typeValue(4, "2700");
    close();
    const auto question = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
    ASSERT_TRUE(vxtest::waitFor([&] { return question() != nullptr && question()->isActiveWindow(); }));
    QTest::keyClick(question(), Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(vxtest::waitFor([&] { return editor.isClosed(); }));
}

TEST(MaterialView, ShowsTheLabelLiterallyInItsQuestion)
{
    for (const char* const label : {"<b>Steel</b>", "%1 %2", "结构钢", ""}) {
        Editor editor([label](vxtest::MaterialProject& project) { project.object().label.setValue(label); });
        editor.typeValue(4, "2700");
        const auto boxes = closeAnswering(QMessageBox::Cancel);
        ASSERT_EQ(boxes.size(), 1U);
        EXPECT_EQ(boxes[0].text, QStringLiteral("The changes of \"%1\" have not been applied.").arg(QString(label)));
    }
}

TEST(MaterialView, StaysOpenWithItsChangesWhenTheQuestionIsCancelledOrClosed)
{
    // The frame closes a box without a No button.
    for (const auto answer : {QMessageBox::Cancel, QMessageBox::No}) {
        Editor editor;
        editor.typeValue(4, "2700");
        EXPECT_EQ(closeAnswering(answer).size(), 1U);
        ASSERT_NE(editor.view(), nullptr);
        EXPECT_THAT(Gui::MainWindow::get_main_window_inst()->getMdiWindows(), testing::SizeIs(1));
        EXPECT_TRUE(editor.view()->isWindowModified());
        EXPECT_EQ(editor.cell(editor.rowOf(4), 2), "2700");
        EXPECT_EQ(editor.material().properties.at(4)->value, 7850.0);
        EXPECT_EQ(closeAnswering(answer).size(), 1U) << "asked again";
    }
}

TEST(MaterialView, DropsItsChangesOnDiscardAndCloses)
{
    Editor editor;
    const auto before = vxtest::contents(editor.material());
    editor.typeValue(4, "2700");
    EXPECT_EQ(closeAnswering(QMessageBox::Discard).size(), 1U);
    EXPECT_TRUE(editor.isClosed());
    EXPECT_EQ(vxtest::contents(editor.material()), before);
}

TEST(MaterialView, WritesItsChangesWhenTheQuestionIsAnsweredWithApplyAndCloses)
{
    Editor editor;
    editor.typeValue(4, "2700");
    EXPECT_EQ(closeAnswering(QMessageBox::Apply).size(), 1U);
    EXPECT_TRUE(editor.isClosed());
    EXPECT_EQ(editor.material().properties.at(4)->value, 2700.0);
}

TEST(MaterialView, StaysOpenWhenItsChangesCannotBeApplied)
{
    Editor editor;
    const auto before = vxtest::contents(editor.material());
    editor.typeValue(4, "-1");
    const auto boxes = closeAnswering(QMessageBox::Apply, 2);
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[1].title, "Invalid material");
    ASSERT_NE(editor.view(), nullptr);
    EXPECT_THAT(Gui::MainWindow::get_main_window_inst()->getMdiWindows(), testing::SizeIs(1));
    EXPECT_EQ(vxtest::contents(editor.material()), before);
}

TEST(MaterialView, AsksAboutTextThatIsStillBeingTyped)
{
    Editor editor;
    editor.startTyping(5, "123");
    EXPECT_EQ(closeAnswering(QMessageBox::Apply).size(), 1U);
    EXPECT_TRUE(editor.isClosed());
    EXPECT_EQ(editor.material().properties.at(5)->value, 123.0);
}

TEST(MaterialView, ClosesWithoutAQuestionWhenNothingIsLeftToApply)
{
    const MessageBoxes boxes;
    {
        Editor untouched;
        untouched.table().setCurrentIndex(untouched.table().model()->index(0, 2));
        QTest::keyClick(&untouched.table(), Qt::Key_F2);
        close();
        EXPECT_TRUE(untouched.isClosed());
    }
    {
        Editor applied;
        applied.typeValue(4, "2700");
        applied.click("btnApply");
        close();
        EXPECT_TRUE(applied.isClosed());
    }
    EXPECT_THAT(boxes.shown(), IsEmpty());
}

TEST(MaterialView, ClosesWithoutAQuestionByItsOwnButtons)
{
    for (const char* const button : {"btnOk", "btnCancel"}) {
        Editor editor;
        editor.typeValue(4, "2700");
        const MessageBoxes boxes;
        editor.click(button);
        EXPECT_TRUE(editor.isClosed()) << button;
        EXPECT_THAT(boxes.shown(), IsEmpty()) << button;
    }
}

TEST(MaterialView, ClosesWithItsMaterialWithoutAQuestionAndClosesAnOpenOne)
{
    {
        Editor editor;
        editor.typeValue(4, "2700");
        const MessageBoxes boxes;
        Gui::MainWindow::get_main_window_inst()->remove_mdi_window(editor.view());
        EXPECT_EQ(editor.view(), nullptr);
        EXPECT_THAT(boxes.shown(), IsEmpty());
    }
    Editor editor;
    editor.typeValue(4, "2700");
    close();
    const QPointer<QMessageBox> question = editor.view()->findChild<QMessageBox*>();
    ASSERT_NE(question, nullptr);
    Gui::MainWindow::get_main_window_inst()->remove_mdi_window(editor.view());
    EXPECT_EQ(editor.view(), nullptr);
    EXPECT_EQ(question, nullptr);
    QCoreApplication::processEvents();
}

TEST(MaterialView, AsksAgainAfterApplyingHasThrown)
{
    Editor editor;
    ThrowingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents(); // the change of language
    // The validation translates the allowed words.
    editor.table().model()->setData(editor.table().model()->index(0, 0), "33");
    translator.armed = true;
    const auto boxes = closeAnswering(QMessageBox::Apply, 2);
    translator.armed = false;
    QCoreApplication::removeTranslator(&translator);
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[1].text, "An error occurred: no memory");
    ASSERT_NE(editor.view(), nullptr);
    EXPECT_EQ(closeAnswering(QMessageBox::Discard).size(), 1U);
    EXPECT_TRUE(editor.isClosed());
}

TEST(MaterialView, AsksOnceHoweverOftenItIsToClose)
{
    Editor editor;
    editor.typeValue(4, "2700");
    close();
    const MessageBoxes boxes(QMessageBox::Discard);
    close();
    EXPECT_TRUE(editor.isClosed());
    EXPECT_EQ(boxes.shown().size(), 1U);
}

} // namespace
