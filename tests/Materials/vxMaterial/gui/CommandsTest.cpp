#include "vxMaterial/gui/Commands.h"

#include "TestObjects.h"
#include "VirtualOrder.h"
#include "WorkbenchTesting.h"

#include "Gui/FileDialog.h"
#include "Gui/GuiProject.h"
#include "Gui/Translator.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMsg/CommandCodes.h"

#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMdiArea>
#include <QPointer>
#include <QPushButton>
#include <QTabBar>
#include <QTemporaryDir>
#include <json/reader.h>

#include <algorithm>
#include <functional>
#include <map>
#include <type_traits>
#include <utility>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using vxtest::MessageBoxes;
using vxtest::slotOf;

/// The expected fields of a command that the user and the host see.
struct Row
{
    const char* name;
    const char* className;
    const char* menuText;
    const char* tip;
    const char* whatsThis;
    const char* pixmap;
    const char* module;
    const char* group;
    QKeySequence shortcut;
    int typeFlags;
};

// Fields that a command does not set have the host's default: no pixmap, no module, no shortcut, flags 0.
const std::vector<Row>& expectedRows()
{
    static const std::vector<Row> rows = {
        {"Mat_NewDoc",
         "MatCmdNewDoc",
         "&New material project",
         "Create a new material project",
         "Mat_NewDoc",
         "norvex_materialproject",
         "",
         "File",
         {},
         0},
        {"Mat_DelDoc",
         "MatCmdDelDoc",
         "Close project",
         "Delete a material project",
         "Mat_DelDoc",
         "norvex_gui_closedoc",
         "Mat",
         "Mat",
         {},
         0},
        {"Mat_AddMaterial",
         "MatCmdMaterial",
         "Add material",
         "Add a new material",
         "Mat_AddMaterial",
         "norvex_materialobject",
         "Mat",
         "Mat",
         {},
         0},
        {"Mat_Delete", "MatCmdDelete", "&Delete", "Deletes the selected material objects", "Mat_Delete", "", "", "Edit",
         QKeySequence(QKeySequence::Delete), 8},
        {"Mat_Edit", "MatCmdEdit", "Edit", "Edit current material", "Mat_Edit", "", "Mat", "Mat", {}, 0},
        {"Mat_Import",
         "CmdMatImport",
         "Import materials",
         "Import CSV file into material",
         "Import CSV file into material",
         "norvex_importmaterial",
         "AppMaterial",
         "AppMaterial",
         {},
         0},
        {"Mat_Export",
         "CmdMatExport",
         "Export materials",
         "Export materials to JSON file",
         "Export materials to JSON file",
         "norvex_exportmaterial",
         "AppMaterial",
         "AppMaterial",
         {},
         0},
    };
    return rows;
}

/// Gives access to fields of commands that the host stores and does not show.
struct ProtectedFields : Gui::Command
{
    static auto moduleNameOf() { return &ProtectedFields::module; }
    static auto ofGroup() { return &ProtectedFields::group; }
};

class Commands : public vxtest::Workbench
{
protected:
    Commands() { vxtest::initForeignClasses(); }

    static Obj::Project& makeAnalysis(const char* name = "Analysis")
    {
        return *Obj::Application::instance().createProject("Fem::FemProject", name);
    }

    /// Expects the message log to contain once that the analysis project takes no materials.
    void expectRefusal()
    {
        EXPECT_EQ(Kelta::MessageLog::instance().errorCount(), ++errorsBefore);
        EXPECT_THAT(lastMessage(), HasSubstr("projects of class \"Fem::FemProject\" do not take such objects"));
    }

    /// Opens the editor of a material and changes a value in it, without Apply.
    MatGui::MaterialView& editUnapplied(Mat::MaterialObject& material) const
    {
        nodeOf(material).on_double_clicked();
        MatGui::MaterialView& editor = *activeEditor();
        QAbstractItemModel& rows = *tableOf(editor).model();
        EXPECT_TRUE(rows.setData(rows.index(0, MatGui::SheetTableView::Value), QStringLiteral("17")));
        EXPECT_TRUE(editor.isWindowModified());
        return editor;
    }

    static MatGui::SheetTableView& tableOf(const MatGui::MaterialView& editor)
    {
        return *editor.findChild<MatGui::SheetTableView*>();
    }

    /// Returns whether the editor that a double click opens shows the values of the material.
    bool showsTheMaterial(Mat::MaterialObject& material) const
    {
        nodeOf(material).on_double_clicked();
        const QAbstractItemModel& rows = *tableOf(*activeEditor()).model();
        const auto& properties = material.getCMaterial()->properties;
        bool same = rows.rowCount() == static_cast<int>(properties.size()) && !activeEditor()->isWindowModified();
        for (int row = 0; row < rows.rowCount(); ++row) {
            const int id = rows.index(row, MatGui::SheetTableView::Id).data().toInt();
            const double value = rows.index(row, MatGui::SheetTableView::Value).data().toDouble();
            same = same && properties.count(id) == 1 && properties.at(id)->value == value;
        }
        return same;
    }

    static std::map<int, double> numbersOf(const Mat::MaterialObject& material)
    {
        std::map<int, double> numbers;
        for (const auto& [id, property] : material.getCMaterial()->properties)
            numbers[id] = property->value;
        return numbers;
    }
};

TEST_F(Commands, AreRegisteredInTheirOrder)
{
    std::vector<std::string> names;
    for (const Gui::Command* const command : commands().getCommands())
        if (command->getName().rfind("Mat_", 0) == 0)
            names.push_back(command->getName());
    EXPECT_THAT(names, ElementsAre("Mat_NewDoc", "Mat_DelDoc", "Mat_AddMaterial", "Mat_Delete", "Mat_Edit",
                                   "Mat_Import", "Mat_Export"));
}

TEST_F(Commands, HaveTheFieldsOfTheTable)
{
    for (const Row& row : expectedRows()) {
        SCOPED_TRACE(row.name);
        const Gui::Command* const command = commands().findCommand(row.name);
        ASSERT_NE(command, nullptr);
        EXPECT_STREQ(command->getClassName(), row.className);
        EXPECT_EQ(command->get_menu_info(), row.menuText);
        EXPECT_EQ(command->get_tooltip_info(), row.tip);
        EXPECT_EQ(command->get_statustip(), row.tip);
        EXPECT_STREQ(command->get_pixmap(), row.pixmap);
        EXPECT_STREQ(command->*ProtectedFields::moduleNameOf(), row.module);
        EXPECT_STREQ(command->*ProtectedFields::ofGroup(), row.group);
        EXPECT_EQ(command->get_shortcut(), row.shortcut);
        EXPECT_EQ(command->getTypeFlags(), row.typeFlags);
    }
}

TEST_F(Commands, ShowTheirFieldsInTheirActions)
{
    for (const Row& row : expectedRows()) {
        SCOPED_TRACE(row.name);
        const QAction* const action = commands().findCommand(row.name)->action();
        ASSERT_NE(action, nullptr);
        EXPECT_EQ(action->objectName(), row.name);
        EXPECT_EQ(action->text(), row.menuText);
        EXPECT_EQ(action->toolTip(), row.tip);
        EXPECT_EQ(action->statusTip(), row.tip);
        EXPECT_EQ(action->whatsThis(), row.whatsThis);
        EXPECT_EQ(action->icon().isNull(), *row.pixmap == '\0');
        // A missing picture would be shown as a grey square.
        EXPECT_TRUE(*row.pixmap == '\0' ||
                    QFile::exists(QStringLiteral(":icons/%1.svg").arg(QLatin1String(row.pixmap))));
        EXPECT_EQ(action->shortcut(), row.shortcut);
    }
}

TEST(CommandClasses, HaveTheVirtualOperationsInTheOrderOfTheHost)
{
    using Gui::CommandBase;
    const std::vector<std::size_t> places = {
        slotOf(&CommandBase::new_action),       slotOf(&CommandBase::on_language_changed),
        slotOf(&CommandBase::getClassName),     slotOf(&CommandBase::get_menu_info),
        slotOf(&CommandBase::get_tooltip_info), slotOf(&CommandBase::get_statustip),
        slotOf(&CommandBase::get_pixmap),       slotOf(&CommandBase::get_shortcut),
        slotOf(&CommandBase::activated),        slotOf(&CommandBase::is_applicable),
    };
    // The two destructors precede them.
    EXPECT_THAT(places, ElementsAre(2, 3, 4, 5, 6, 7, 8, 9, 10, 11));
    EXPECT_EQ(slotOf(&MatGui::MatCmdDelete::activated), slotOf(&CommandBase::activated));
    EXPECT_EQ(slotOf(&MatGui::MatCmdDelete::is_applicable), slotOf(&CommandBase::is_applicable));
    EXPECT_EQ(slotOf(&MatGui::CmdMatExport::getClassName), slotOf(&CommandBase::getClassName));
}

TEST_F(Commands, AreApplicableWithACurrentProjectOfAnyKind)
{
    const std::vector<const char*> needProject = {"Mat_AddMaterial", "Mat_Delete", "Mat_Edit", "Mat_Import",
                                                  "Mat_Export"};
    for (const char* const name : needProject)
        EXPECT_FALSE(isApplicable(name)) << name;
    EXPECT_TRUE(isApplicable("Mat_NewDoc"));
    EXPECT_TRUE(isApplicable("Mat_DelDoc"));
    makeAnalysis();
    for (const char* const name : needProject)
        EXPECT_TRUE(isApplicable(name)) << name;
}

// --- New project ---

TEST_F(Commands, NewDocMakesAMaterialProjectUndoably)
{
    EXPECT_TRUE(run("Mat_NewDoc"));
    const auto projects = Obj::Application::get_projects(2);
    ASSERT_THAT(projects, SizeIs(1));
    EXPECT_EQ(std::string(projects[0]->get_name()).rfind("Materials", 0), 0U);
    EXPECT_STREQ(projects[0]->getTypeId().get_name(), "Mat::DocumentMaterial");
    EXPECT_EQ(undoStack().index(), 1);
    undoStack().undo();
    EXPECT_THAT(Obj::Application::get_projects(), IsEmpty());
}

TEST_F(Commands, NewDocWarnsAndMakesNothingWhileThereIsAMaterialProject)
{
    makeProject();
    const MessageBoxes boxes;
    EXPECT_TRUE(run("Mat_NewDoc"));
    ASSERT_THAT(boxes.shown(), SizeIs(1));
    EXPECT_EQ(boxes.shown()[0].icon, QMessageBox::Warning);
    EXPECT_EQ(boxes.shown()[0].title, "Material project");
    EXPECT_EQ(boxes.shown()[0].text, "Material project is already presented in Project Explorer window.");
    EXPECT_EQ(boxes.shown()[0].buttons, QMessageBox::Ok);
    EXPECT_EQ(boxes.shown()[0].parent, window.get());
    EXPECT_THAT(Obj::Application::get_projects(), SizeIs(1));
}

TEST_F(Commands, NewDocIgnoresProjectsOfOtherKinds)
{
    makeAnalysis();
    const MessageBoxes boxes;
    EXPECT_TRUE(run("Mat_NewDoc"));
    EXPECT_THAT(boxes.shown(), IsEmpty());
    EXPECT_THAT(Obj::Application::get_projects(2), SizeIs(1));
}

// --- Close project ---

TEST_F(Commands, DelDocClosesTheSelectedMaterialProjectUndoably)
{
    Mat::DocumentMaterial& project = makeProject();
    selection().setSelection({&project}, {});
    EXPECT_TRUE(run("Mat_DelDoc"));
    EXPECT_THAT(Obj::Application::get_projects(), IsEmpty());
    undoStack().undo();
    EXPECT_THAT(Obj::Application::get_projects(), ElementsAre(&project));
}

TEST_F(Commands, DelDocDoesNothingWithTwoMaterialProjectsSelected)
{
    Mat::DocumentMaterial& first = makeProject("First");
    Mat::DocumentMaterial& second = makeProject("Second");
    selection().setSelection({&first, &second}, {});
    const MessageBoxes boxes;
    EXPECT_TRUE(run("Mat_DelDoc"));
    EXPECT_THAT(Obj::Application::get_projects(), ElementsAre(&first, &second));
    EXPECT_THAT(boxes.shown(), IsEmpty());
}

TEST_F(Commands, DelDocDoesNothingWithoutASelectedMaterialProject)
{
    makeProject();
    Obj::Project& analysis = makeAnalysis();
    EXPECT_TRUE(run("Mat_DelDoc"));
    selection().setSelection({&analysis}, {});
    EXPECT_TRUE(run("Mat_DelDoc"));
    EXPECT_THAT(Obj::Application::get_projects(), SizeIs(2));
}

TEST_F(Commands, DelDocClosesTheMaterialProjectAmongOtherSelectedOnes)
{
    Mat::DocumentMaterial& project = makeProject();
    Obj::Project& analysis = makeAnalysis();
    selection().setSelection({&project, &analysis}, {});
    EXPECT_TRUE(run("Mat_DelDoc"));
    EXPECT_THAT(Obj::Application::get_projects(), ElementsAre(&analysis));
}

TEST_F(Commands, DelDocFindsTheSelectedMaterialProjectEvenIfItIsNotCurrent)
{
    Mat::DocumentMaterial& project = makeProject();
    Obj::Project& analysis = makeAnalysis();
    selection().setSelection({&project}, {});
    Obj::Application::instance().setCurrentProject(analysis);
    EXPECT_TRUE(run("Mat_DelDoc"));
    EXPECT_THAT(Obj::Application::get_projects(), ElementsAre(&analysis));
}

TEST_F(Commands, DelDocDropsUnappliedRowsWithoutAQuestionAndUndoBringsTheMaterialsBackUnchanged)
{
    Mat::DocumentMaterial& project = makeProject();
    Mat::MaterialObject& first = addMaterial(project, "First");
    Mat::MaterialObject& second = addMaterial(project, "Second");
    const auto before = numbersOf(first);
    editUnapplied(first);
    editUnapplied(second);
    selection().setSelection({&project}, {});
    const MessageBoxes boxes;
    EXPECT_TRUE(run("Mat_DelDoc"));
    QCoreApplication::processEvents();
    EXPECT_THAT(window->getMdiWindows(), IsEmpty());
    EXPECT_THAT(boxes.shown(), IsEmpty());
    undoStack().undo();
    EXPECT_EQ(numbersOf(first), before);
    EXPECT_EQ(numbersOf(second), before);
    EXPECT_TRUE(showsTheMaterial(first));
    EXPECT_TRUE(showsTheMaterial(second));
}

TEST_F(Commands, DelDocTakesTheOpenEditorsOfTheProjectWithIt)
{
    Mat::DocumentMaterial& project = makeProject();
    for (int i = 0; i < 3; ++i)
        nodeOf(addMaterial(project)).on_double_clicked();
    EXPECT_THAT(window->getMdiWindows(), SizeIs(3));
    selection().setSelection({&project}, {});
    EXPECT_TRUE(run("Mat_DelDoc"));
    EXPECT_THAT(window->getMdiWindows(), IsEmpty());
    undoStack().undo();
    EXPECT_TRUE(nodeOf(*project.getObjects()[1]).on_double_clicked());
    EXPECT_THAT(window->getMdiWindows(), SizeIs(1));
}

// --- Add ---

TEST_F(Commands, AddMaterialAddsOneUndoably)
{
    Mat::DocumentMaterial& project = makeProject();
    EXPECT_TRUE(run("Mat_AddMaterial"));
    ASSERT_THAT(project.getObjects(), SizeIs(1));
    EXPECT_EQ(project.getObjects()[0]->label.getValue(), "Material");
    EXPECT_STREQ(project.getObjects()[0]->getTypeId().get_name(), "Mat::MaterialObject");
    undoStack().undo();
    EXPECT_THAT(project.getObjects(), IsEmpty());
    undoStack().redo();
    EXPECT_THAT(project.getObjects(), SizeIs(1));
}

TEST_F(Commands, AddMaterialSaysThatThereIsNoMaterialProject)
{
    makeAnalysis();
    const MessageBoxes boxes;
    EXPECT_TRUE(run("Mat_AddMaterial"));
    ASSERT_THAT(boxes.shown(), SizeIs(1));
    EXPECT_EQ(boxes.shown()[0].icon, QMessageBox::Critical);
    EXPECT_EQ(boxes.shown()[0].title, "Invalid project");
    EXPECT_EQ(boxes.shown()[0].text, "No material project.");
    EXPECT_EQ(boxes.shown()[0].buttons, QMessageBox::Ok);
    EXPECT_EQ(boxes.shown()[0].parent, window.get());
}

TEST_F(Commands, AddMaterialAddsToTheMaterialProjectEvenIfItIsNotCurrent)
{
    Mat::DocumentMaterial& project = makeProject();
    Obj::Project& analysis = makeAnalysis();
    ASSERT_EQ(Obj::Application::get_current_project(), &analysis);
    EXPECT_TRUE(run("Mat_AddMaterial"));
    EXPECT_THAT(project.getObjects(), SizeIs(1));
    EXPECT_THAT(analysis.getObjects(), IsEmpty());
}

TEST_F(Commands, AddMaterialMakesTheNameUniqueInTheMaterialProject)
{
    Mat::DocumentMaterial& project = makeProject();
    Mat::MaterialObject& taken = addMaterial(project, "Material");
    makeAnalysis();
    EXPECT_TRUE(run("Mat_AddMaterial"));
    ASSERT_THAT(project.getObjects(), SizeIs(2));
    const Obj::ProjectObject& added = *project.getObjects()[1];
    EXPECT_STREQ(taken.get_name_in_project(), "Material");
    EXPECT_STRNE(added.get_name_in_project(), "Material");
    EXPECT_EQ(project.get_object(added.get_name_in_project()), &added);
    EXPECT_EQ(added.label.getValue(), added.get_name_in_project());
}

TEST_F(Commands, AddMaterialAddsToTheFirstOfTwoMaterialProjects)
{
    Mat::DocumentMaterial& first = makeProject("First");
    Mat::DocumentMaterial& second = makeProject("Second");
    EXPECT_TRUE(run("Mat_AddMaterial"));
    EXPECT_TRUE(run("Mat_AddMaterial"));
    EXPECT_THAT(first.getObjects(), SizeIs(2));
    EXPECT_THAT(second.getObjects(), IsEmpty());
}

TEST_F(Commands, AddMaterialDoesNothingWithoutACurrentProject)
{
    const MessageBoxes boxes;
    EXPECT_FALSE(run("Mat_AddMaterial"));
    EXPECT_THAT(boxes.shown(), IsEmpty());
}

// --- Edit ---

TEST_F(Commands, EditOpensTheEditorsOfAllSelectedMaterials)
{
    Mat::DocumentMaterial& project = makeProject();
    std::vector<Obj::ProjectObject*> objects;
    for (int i = 0; i < 10; ++i)
        objects.push_back(&addMaterial(project));
    select(objects);
    EXPECT_TRUE(run("Mat_Edit"));
    EXPECT_THAT(window->getMdiWindows(), SizeIs(10));
    EXPECT_TRUE(run("Mat_Edit"));
    EXPECT_THAT(window->getMdiWindows(), SizeIs(10));
}

TEST_F(Commands, EditFindsTheMaterialProjectEvenIfItIsNotCurrent)
{
    Mat::MaterialObject& material = addMaterial(makeProject());
    select({&material});
    Obj::Application::instance().setCurrentProject(makeAnalysis());
    EXPECT_TRUE(run("Mat_Edit"));
    ASSERT_NE(activeEditor(), nullptr);
    EXPECT_EQ(activeEditor()->getMaterialObject(), &material);
}

TEST_F(Commands, EditOpensNothingWithoutASelection)
{
    addMaterial(makeProject());
    EXPECT_TRUE(run("Mat_Edit"));
    EXPECT_THAT(window->getMdiWindows(), IsEmpty());
}

TEST_F(Commands, EditDoesNothingWithoutAMaterialProject)
{
    Obj::Project& analysis = makeAnalysis();
    select({analysis.add_object("Fem::FemLoad", "Load")});
    EXPECT_TRUE(run("Mat_Edit"));
    EXPECT_THAT(window->getMdiWindows(), IsEmpty());
}

TEST_F(Commands, EditPassesOverObjectsThatAreNoMaterials)
{
    Mat::DocumentMaterial& project = makeProject();
    select({&addMaterial(project), project.add_object("Fem::FemLoad", "Load")});
    EXPECT_TRUE(run("Mat_Edit"));
    EXPECT_THAT(window->getMdiWindows(), SizeIs(1));
}

TEST_F(Commands, EditLooksAtTheFirstMaterialProjectAlone)
{
    makeProject("First");
    Mat::DocumentMaterial& second = makeProject("Second");
    select({&addMaterial(second)});
    EXPECT_TRUE(run("Mat_Edit"));
    EXPECT_THAT(window->getMdiWindows(), IsEmpty());
}

// --- Delete ---

TEST_F(Commands, DeleteTakesAllSelectedObjectsInOneStep)
{
    Mat::DocumentMaterial& project = makeProject();
    Mat::MaterialObject& first = addMaterial(project, "First");
    Mat::MaterialObject& kept = addMaterial(project, "Kept");
    Mat::MaterialObject& last = addMaterial(project, "Last");
    undoStack().clear();
    select({&first, &last});
    const MessageBoxes boxes;
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_THAT(project.getObjects(), ElementsAre(&kept));
    EXPECT_THAT(boxes.shown(), IsEmpty());
    EXPECT_EQ(undoStack().count(), 1);
    undoStack().undo();
    EXPECT_THAT(project.getObjects(), ElementsAre(&first, &kept, &last));
}

TEST_F(Commands, DeleteLeavesObjectsOfTheFiveProtectedClassesInPlace)
{
    Obj::Project& analysis = makeAnalysis();
    std::vector<Obj::ProjectObject*> objects;
    for (const char* const name : vxtest::protectedNames)
        objects.push_back(analysis.add_object(name, "Frame"));
    select(objects);
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_EQ(analysis.getObjects(), objects);
}

TEST_F(Commands, DeleteLeavesAStudyOfAnotherProjectInPlace)
{
    Mat::DocumentMaterial& project = makeProject();
    Obj::Project& analysis = makeAnalysis();
    Obj::ProjectObject* const frame = analysis.add_object("Fem::FemStudy", "Study");
    select({&addMaterial(project), frame, analysis.add_object("Fem::FemLoad", "Load")});
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_THAT(project.getObjects(), IsEmpty());
    EXPECT_THAT(analysis.getObjects(), ElementsAre(frame));
}

TEST_F(Commands, DeleteAsksNothingAboutLinksToTheProtectedClasses)
{
    Mat::DocumentMaterial& project = makeProject();
    Mat::MaterialObject& material = addMaterial(project);
    for (const char* const name : vxtest::protectedNames)
        project.add_object(name, "Frame")->linkTo(material);
    select({&material});
    const MessageBoxes boxes(QMessageBox::Yes);
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_THAT(boxes.shown(), IsEmpty());
    EXPECT_THAT(project.getObjects(), SizeIs(5));
}

TEST_F(Commands, DeleteAsksNothingAboutLinksToGroups)
{
    Mat::DocumentMaterial& project = makeProject();
    Mat::MaterialObject& material = addMaterial(project);
    project.add_object("Fem::FemLoadGroup", "Group")->linkTo(material);
    select({&material});
    const MessageBoxes boxes(QMessageBox::Yes);
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_THAT(boxes.shown(), IsEmpty());
    EXPECT_THAT(project.getObjects(), SizeIs(1));
}

TEST_F(Commands, DeleteAsksNothingAboutLinksAmongTheSelected)
{
    Mat::DocumentMaterial& project = makeProject();
    Mat::MaterialObject& material = addMaterial(project);
    Obj::ProjectObject* const load = project.add_object("Fem::FemLoad", "Load");
    load->linkTo(material);
    select({&material, load});
    const MessageBoxes boxes(QMessageBox::Yes);
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_THAT(boxes.shown(), IsEmpty());
    EXPECT_THAT(project.getObjects(), IsEmpty());
}

TEST_F(Commands, DeleteAsksForTheLinksOfASelectedProtectedObjectToo)
{
    Obj::Project& analysis = makeAnalysis();
    Obj::ProjectObject* const study = analysis.add_object("Fem::FemStudy", "Study");
    Obj::ProjectObject* const load = analysis.add_object("Fem::FemLoad", "Load");
    Obj::ProjectObject* const other = analysis.add_object("Fem::FemLoad", "Other");
    load->linkTo(*study);
    select({study, other});
    const MessageBoxes boxes(QMessageBox::Yes);
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_THAT(boxes.shown(), SizeIs(1));
    EXPECT_THAT(analysis.getObjects(), ElementsAre(study, load));
}

/// A material on which a load depends, selected.
class DependencyQuestion : public Commands
{
protected:
    DependencyQuestion() : project(makeProject()), material(addMaterial(project))
    {
        project.add_object("Fem::FemLoad", "Load")->linkTo(material);
        select({&material});
    }

    bool isDeleted() const { return project.getObjects().size() == 1; }

    /// Runs the command and calls `answer` with the shown box.
    void deleteAnswering(const std::function<void(QMessageBox&)>& answer) const
    {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&answer] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                answer(*box);
        });
        timer.start(1);
        EXPECT_TRUE(run("Mat_Delete"));
    }

    Mat::DocumentMaterial& project;
    Mat::MaterialObject& material;
};

TEST_F(DependencyQuestion, OffersYesAlone)
{
    const MessageBoxes boxes(QMessageBox::Yes);
    EXPECT_TRUE(run("Mat_Delete"));
    ASSERT_THAT(boxes.shown(), SizeIs(1));
    EXPECT_EQ(boxes.shown()[0].icon, QMessageBox::Question);
    EXPECT_EQ(boxes.shown()[0].title, "Object dependencies");
    EXPECT_EQ(boxes.shown()[0].text, "This object is linked to other objects thus these objects might be broken.\n"
                                     "Do you want to continue?");
    EXPECT_EQ(boxes.shown()[0].buttons, QMessageBox::Yes);
    EXPECT_FALSE(boxes.shown()[0].hasDefaultButton);
    EXPECT_EQ(boxes.shown()[0].parent, window.get());
    EXPECT_TRUE(isDeleted());
}

TEST_F(DependencyQuestion, KeepsTheObjectWhenItIsAnsweredWithNo)
{
    deleteAnswering([](QMessageBox& box) { box.done(QMessageBox::No); });
    EXPECT_FALSE(isDeleted());
}

TEST_F(DependencyQuestion, KeepsTheObjectWhenItIsClosed)
{
    deleteAnswering([](QMessageBox& box) { box.close(); });
    EXPECT_FALSE(isDeleted());
}

TEST_F(DependencyQuestion, KeepsTheObjectOnEscape)
{
    deleteAnswering([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_FALSE(isDeleted());
}

TEST_F(DependencyQuestion, IsAnsweredWithYesByReturnAndSpace)
{
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        SCOPED_TRACE(key);
        ASSERT_FALSE(isDeleted());
        select({&material});
        deleteAnswering([key](QMessageBox& box) {
            // The box gets the keyboard focus soon after it is shown.
            if (box.focusWidget() == nullptr)
                return;
            EXPECT_EQ(box.focusWidget(), box.button(QMessageBox::Yes));
            QTest::keyClick(box.focusWidget(), key);
        });
        EXPECT_TRUE(isDeleted());
        undoStack().undo();
    }
}

/// A project whose memory is overwritten when it is freed, so that later access to it fails.
class ShortLivedProject final : public Obj::Project
{
public:
    static void init()
    {
        initSubclass(type, "Test::ShortLivedProject", "Obj::Project",
                     []() -> void* { return static_cast<Kelta::RootClass*>(new ShortLivedProject); });
    }
    Kelta::TypeInfo getTypeId() const override { return type; }

    static void* operator new(std::size_t size) { return ::operator new(size); }
    static void operator delete(void* memory, std::size_t size)
    {
        // Volatile, since the compiler may drop other writes to memory that is freed.
        auto* const bytes = static_cast<volatile unsigned char*>(memory);
        std::fill(bytes, bytes + size, static_cast<unsigned char>(0xee));
        ::operator delete(memory);
    }

private:
    static inline Kelta::TypeInfo type;
};

TEST_F(DependencyQuestion, SurvivesTheRemovalOfObjectsAndProjectsWhileItIsOpen)
{
    ShortLivedProject::init();
    Obj::Application& application = Obj::Application::instance();
    Obj::Project& shortLived = *application.createProject("Test::ShortLivedProject", "Later");
    Mat::DocumentMaterial& last = makeProject("Last");
    Mat::MaterialObject& removed = addMaterial(project, "Removed");
    select({&material, &removed, shortLived.add_object("Fem::FemLoad", "Load"), &addMaterial(last)});
    const auto removedId = removed.getObjectId();
    deleteAnswering([&](QMessageBox& box) {
        project.removeObject(removedId);
        application.closeProject(shortLived);
        QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    });
    EXPECT_TRUE(isDeleted());
    EXPECT_THAT(last.getObjects(), IsEmpty());
}

TEST_F(DependencyQuestion, SurvivesTheClosingOfItsOwnProjectWhileItIsOpen)
{
    Mat::DocumentMaterial& last = makeProject("Last");
    select({&material, &addMaterial(last)});
    deleteAnswering([this](QMessageBox& box) {
        Obj::Application::instance().closeProject(project);
        QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    });
    EXPECT_THAT(Obj::Application::get_projects(), ElementsAre(&last));
    EXPECT_THAT(last.getObjects(), IsEmpty());
    EXPECT_TRUE(window->updatesEnabled());
}

TEST_F(DependencyQuestion, KeepsTheWholeSelectionOfTheProject)
{
    select({&material, &addMaterial(project, "Free")});
    const MessageBoxes boxes(QMessageBox::No);
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_THAT(boxes.shown(), SizeIs(1));
    EXPECT_THAT(project.getObjects(), SizeIs(3));
}

TEST_F(DependencyQuestion, IsAskedForEachProjectByItself)
{
    Mat::DocumentMaterial& other = makeProject("Other");
    Mat::MaterialObject& second = addMaterial(other);
    other.add_object("Fem::FemLoad", "Load")->linkTo(second);
    select({&material, &second});
    int asked = 0;
    deleteAnswering([&asked](QMessageBox& box) {
        if (++asked == 1)
            box.close();
        else
            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    });
    EXPECT_EQ(asked, 2);
    EXPECT_FALSE(isDeleted());
    EXPECT_THAT(other.getObjects(), SizeIs(1));
}

TEST_F(DependencyQuestion, StopsNoOtherProject)
{
    Mat::DocumentMaterial& other = makeProject("Other");
    select({&material, &addMaterial(other)});
    const MessageBoxes boxes(QMessageBox::No);
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_THAT(boxes.shown(), SizeIs(1));
    EXPECT_FALSE(isDeleted());
    EXPECT_THAT(other.getObjects(), IsEmpty());
}

TEST_F(DependencyQuestion, IsAskedOnceForSeveralLinks)
{
    for (int i = 0; i < 3; ++i)
        project.add_object("Fem::FemLoad", "Load")->linkTo(material);
    const MessageBoxes boxes(QMessageBox::Yes);
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_THAT(boxes.shown(), SizeIs(1));
}

TEST_F(Commands, DeleteKeepsTheWindowFromRepaintingMeanwhile)
{
    Mat::DocumentMaterial& project = makeProject();
    select({&addMaterial(project)});
    bool repaints = true;
    project.objectRemoved.connect([this, &repaints](Obj::ProjectObject&) { repaints = window->updatesEnabled(); });
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_FALSE(repaints);
    EXPECT_TRUE(window->updatesEnabled());
}

TEST_F(Commands, DeleteDoesNothingWithoutASelection)
{
    Mat::DocumentMaterial& project = makeProject();
    addMaterial(project);
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_THAT(project.getObjects(), SizeIs(1));
    EXPECT_EQ(undoStack().count(), 1);
}

TEST_F(Commands, DeleteIgnoresObjectsThatLeftTheProjectMeanwhile)
{
    Mat::DocumentMaterial& project = makeProject();
    Mat::MaterialObject& first = addMaterial(project, "First");
    Mat::MaterialObject& second = addMaterial(project, "Second");
    select({&first, &second});
    // The removal of the first object removes the second, as for an object that owns others.
    const auto secondId = second.getObjectId();
    boost::signals2::scoped_connection chain = project.objectRemoved.connect([&](Obj::ProjectObject& object) {
        if (&object == &first)
            project.removeObject(secondId);
    });
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_THAT(project.getObjects(), IsEmpty());
    EXPECT_EQ(selection().getCount(), 0U);
}

/// A node that does not let its object be deleted.
class StubbornNode final : public Gui::ViewFeederProjectObject
{
public:
    static void init()
    {
        initSubclass(type, "Test::StubbornNode", "Gui::ViewFeederProjectObject",
                     []() -> void* { return static_cast<Kelta::RootClass*>(new StubbornNode); });
    }
    bool onDelete(const std::vector<std::string>& subElements) override
    {
        EXPECT_THAT(subElements, IsEmpty());
        return false;
    }

private:
    static inline Kelta::TypeInfo type;
};

class StubbornObject final : public Obj::ProjectObject
{
public:
    static void init()
    {
        initSubclass(type, "Test::StubbornObject", "Obj::ProjectObject",
                     []() -> void* { return static_cast<Kelta::RootClass*>(new StubbornObject); });
    }
    Kelta::TypeInfo getTypeId() const override { return type; }
    const char* get_viewfeeder_name() const override { return "Test::StubbornNode"; }

private:
    static inline Kelta::TypeInfo type;
};

TEST_F(Commands, DeleteKeepsAnObjectIfItsNodeRefuses)
{
    StubbornNode::init();
    StubbornObject::init();
    Mat::DocumentMaterial& project = makeProject();
    Obj::ProjectObject* const kept = project.add_object("Test::StubbornObject", "Kept");
    select({kept, &addMaterial(project)});
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_THAT(project.getObjects(), ElementsAre(kept));
}

TEST_F(Commands, DeleteOfAMaterialWithAnOpenEditorClosesItAndUndoBringsTheMaterialBackUnchanged)
{
    Mat::DocumentMaterial& project = makeProject();
    Mat::MaterialObject& material = addMaterial(project);
    const std::size_t properties = material.getCMaterial()->properties.size();
    nodeOf(material).on_double_clicked();
    // Empty the table without applying the change.
    QTest::mouseClick(activeEditor()->findChild<QPushButton*>(QStringLiteral("btnClear")), Qt::LeftButton);
    select({&material});
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_THAT(window->getMdiWindows(), IsEmpty());
    undoStack().undo();
    ASSERT_THAT(project.getObjects(), ElementsAre(&material));
    EXPECT_EQ(material.getCMaterial()->properties.size(), properties);
    EXPECT_TRUE(showsTheMaterial(material));
}

TEST_F(Commands, DeleteOfAMaterialWhoseCellIsBeingEditedClosesTheEditorAndDropsTheText)
{
    Mat::DocumentMaterial& project = makeProject();
    Mat::MaterialObject& material = addMaterial(project);
    const auto before = numbersOf(material);
    nodeOf(material).on_double_clicked();
    MatGui::SheetTableView& table = tableOf(*activeEditor());
    const QModelIndex cell = table.model()->index(0, MatGui::SheetTableView::Value);
    table.setCurrentIndex(cell);
    table.edit(cell, QAbstractItemView::EditKeyPressed, nullptr);
    auto* const line = qobject_cast<QLineEdit*>(table.indexWidget(cell));
    ASSERT_NE(line, nullptr);
    line->setText(QStringLiteral("17"));
    select({&material});
    const MessageBoxes boxes;
    EXPECT_TRUE(run("Mat_Delete"));
    QCoreApplication::processEvents();
    EXPECT_THAT(window->getMdiWindows(), IsEmpty());
    EXPECT_THAT(boxes.shown(), IsEmpty());
    undoStack().undo();
    EXPECT_EQ(numbersOf(material), before);
    EXPECT_TRUE(showsTheMaterial(material));
}

// --- Keys of the host in an editor ---

TEST_F(Commands, UndoAndRedoByTheKeyboardActOnTheRowsOfAnEditorBeforeTheProject)
{
    Mat::DocumentMaterial& project = makeProject();
    Mat::MaterialObject& material = addMaterial(project);
    addMaterial(project, "Other");
    undoStack().undo();
    ASSERT_TRUE(vxtest::waitUntilActive(window.get()));
    const QPointer<MatGui::MaterialView> editor = &editUnapplied(material);
    QCoreApplication::processEvents();
    QWidget* const button = editor->findChild<QPushButton*>(QStringLiteral("btnApply"));
    button->setFocus();
    const auto press = [button](QKeySequence::StandardKey key) {
        QTest::keySequence(button, QKeySequence(key));
        QCoreApplication::processEvents();
    };
    press(QKeySequence::Undo);
    EXPECT_FALSE(editor->isWindowModified());
    EXPECT_THAT(project.getObjects(), ElementsAre(&material));
    for (int redo = 0; redo < 2; ++redo) {
        press(QKeySequence::Redo);
        EXPECT_TRUE(editor->isWindowModified());
        EXPECT_THAT(project.getObjects(), ElementsAre(&material));
    }
    press(QKeySequence::Undo);
    press(QKeySequence::Undo);
    EXPECT_THAT(project.getObjects(), IsEmpty());
    EXPECT_EQ(editor, nullptr);
}

/// Three editors whose rows are not applied.
class ClosingEditors : public Commands
{
protected:
    ClosingEditors() : project(makeProject())
    {
        for (const char* const name : {"First", "Second", "Third"})
            editUnapplied(addMaterial(project, name));
        addMaterial(project, "Unchanged");
        nodeOf(*project.getObjects()[3]).on_double_clicked();
    }

    Mat::DocumentMaterial& project;
};

TEST_F(ClosingEditors, AreAskedForOneByOneWhenAllAreToClose)
{
    const MessageBoxes boxes(QMessageBox::Discard);
    EXPECT_TRUE(run("Std_CloseAllWindows"));
    EXPECT_TRUE(vxtest::waitFor([this] { return window->getMdiWindows().isEmpty(); }));
    ASSERT_THAT(boxes.shown(), SizeIs(3));
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(
            boxes.shown()[static_cast<std::size_t>(i)].text,
            QStringLiteral("The changes of \"%1\" have not been applied.")
                .arg(QString::fromStdString(project.getObjects()[static_cast<std::size_t>(i)]->label.getValue())));
}

TEST_F(ClosingEditors, AreInFrontWhileTheyAreAskedFor)
{
    nodeOf(*project.getObjects()[3]).on_double_clicked();
    EXPECT_TRUE(run("Std_CloseAllWindows"));
    for (int i = 0; i < 3; ++i) {
        const Obj::ProjectObject* const material = project.getObjects()[static_cast<std::size_t>(i)];
        ASSERT_TRUE(vxtest::waitFor([this] { return !window->findChildren<QMessageBox*>().isEmpty(); }));
        QCoreApplication::processEvents();
        EXPECT_EQ(window->get_active_mdi_window(), window->editorOf(*material)) << i;
        QMessageBox* const question = window->findChildren<QMessageBox*>().front();
        question->button(QMessageBox::Discard)->click();
        ASSERT_TRUE(vxtest::waitFor([&] { return window->editorOf(*material) == nullptr; }));
    }
}

TEST_F(ClosingEditors, HaveOneQuestionOpenAtATime)
{
    EXPECT_TRUE(run("Std_CloseAllWindows"));
    QCoreApplication::processEvents();
    EXPECT_THAT(window->findChildren<QMessageBox*>(), SizeIs(1));
    EXPECT_THAT(window->getMdiWindows(), SizeIs(3)) << "the window without changes is closed";
}

TEST_F(ClosingEditors, StayOpenFromTheOneOnWhoseQuestionIsCancelled)
{
    const MessageBoxes boxes(QMessageBox::Cancel);
    EXPECT_TRUE(run("Std_CloseAllWindows"));
    EXPECT_TRUE(vxtest::waitFor([&boxes] { return !boxes.shown().empty(); }));
    QCoreApplication::processEvents();
    EXPECT_THAT(boxes.shown(), SizeIs(1));
    EXPECT_THAT(window->getMdiWindows(), SizeIs(3));
}

TEST_F(ClosingEditors, AskAgainAfterTheWindowThatWasAskedAboutIsClosed)
{
    EXPECT_TRUE(run("Std_CloseAllWindows"));
    project.removeObject(project.getObjects()[0]->getObjectId());
    QCoreApplication::processEvents();
    EXPECT_THAT(window->getMdiWindows(), SizeIs(2));
    const MessageBoxes boxes(QMessageBox::Discard);
    EXPECT_TRUE(run("Std_CloseAllWindows"));
    EXPECT_TRUE(vxtest::waitFor([this] { return window->getMdiWindows().isEmpty(); }));
    EXPECT_THAT(boxes.shown(), SizeIs(2));
}

TEST_F(ClosingEditors, AreAskedForByTheCommandAndByTheButtonOfTheTab)
{
    nodeOf(*project.getObjects()[1]).on_double_clicked();
    QCoreApplication::processEvents();
    const auto answers = [](const std::function<void()>& closing) {
        const MessageBoxes boxes(QMessageBox::Cancel);
        closing();
        EXPECT_TRUE(vxtest::waitFor([&boxes] { return !boxes.shown().empty(); }));
        QCoreApplication::processEvents();
        return boxes.shown().size();
    };
    EXPECT_EQ(answers([] { EXPECT_TRUE(run("Std_CloseWindow")); }), 1U);
    auto* const tabs = window->findChild<QMdiArea*>()->findChild<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(answers([tabs] { Q_EMIT tabs->tabCloseRequested(1); }), 1U);
    EXPECT_THAT(window->getMdiWindows(), SizeIs(4));
}

// --- Import and export ---

TEST_F(Commands, ImportAddsAnEmptyMaterialAndReadsNothing)
{
    Mat::DocumentMaterial& project = makeProject();
    Gui::FileDialog::answerNext("/nowhere/steel.csv");
    EXPECT_TRUE(run("Mat_Import"));
    ASSERT_THAT(project.getObjects(), SizeIs(1));
    const auto* const object = dynamic_cast<Mat::MaterialObject*>(project.getObjects()[0]);
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->label.getValue(), "Material");
    EXPECT_THAT(object->getCMaterial()->properties, IsEmpty());
    EXPECT_EQ(object->getObjectState(), Obj::eVXObjectState::Initial);
    undoStack().undo();
    EXPECT_THAT(project.getObjects(), IsEmpty());
}

TEST_F(Commands, ImportAddsNothingWhenNoFileIsChosen)
{
    Mat::DocumentMaterial& project = makeProject();
    Gui::FileDialog::answerNext({});
    EXPECT_TRUE(run("Mat_Import"));
    EXPECT_THAT(project.getObjects(), IsEmpty());
}

TEST_F(Commands, ImportAddsToTheCurrentProject)
{
    makeProject("First");
    Mat::DocumentMaterial& second = makeProject("Second");
    Gui::FileDialog::answerNext("steel.csv");
    EXPECT_TRUE(run("Mat_Import"));
    EXPECT_THAT(second.getObjects(), SizeIs(1));
}

TEST_F(Commands, ImportIsRefusedByAProjectOfAnotherKind)
{
    makeProject();
    const Obj::Project& analysis = makeAnalysis();
    Gui::FileDialog::answerNext("steel.csv");
    EXPECT_TRUE(run("Mat_Import"));
    EXPECT_THAT(analysis.getObjects(), IsEmpty());
    expectError("No object of class \"Mat::MaterialObject\" was added to the project \"Analysis\"");
}

TEST_F(Commands, PasteIsRefusedByAProjectOfAnotherKind)
{
    select({&addMaterial(makeProject())});
    EXPECT_TRUE(run("Std_Copy"));
    const Obj::Project& analysis = makeAnalysis();
    EXPECT_TRUE(run("Std_Paste"));
    EXPECT_THAT(analysis.getObjects(), IsEmpty());
    expectError("\"Material\" cannot be pasted into \"Analysis\"");
}

TEST_F(Commands, TheRequestToAddAMaterialIsRefusedByAProjectOfAnotherKind)
{
    const Obj::Project& analysis = makeAnalysis();
    EXPECT_FALSE(vxMsg::doCommand({Mat::Request::AddMaterial, analysis.get_name(), "Steel", 0.0}));
    expectError("No object of class \"Mat::MaterialObject\" was added to the project \"Analysis\"");
    EXPECT_THAT(analysis.getObjects(), IsEmpty());
    EXPECT_EQ(undoStack().count(), 0);
}

/// The content of a file dialog before the user cancels it.
struct ShownDialog
{
    int count = 0;
    QString caption;
    QStringList filters;
    QWidget* parent = nullptr;
    QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen;
};

ShownDialog cancelDialogsOf(const std::function<void()>& action)
{
    ShownDialog shown;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&shown] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        shown = {shown.count + 1, dialog->windowTitle(), dialog->nameFilters(), dialog->parentWidget(),
                 dialog->acceptMode()};
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    timer.start(1);
    action();
    return shown;
}

/// Chooses a file in the next dialog, after another action.
void chooseMeanwhile(const QString& path, const std::function<void()>& meanwhile, const std::function<void()>& action)
{
    bool done = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || std::exchange(done, true))
            return;
        meanwhile();
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
        static_cast<QDialog*>(dialog)->accept();
    });
    timer.start(1);
    action();
    EXPECT_TRUE(done);
}

TEST_F(Commands, ImportSurvivesTheClosingOfTheProjectWhileTheDialogIsOpen)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("steel.csv"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    makeProject();
    chooseMeanwhile(
        path, [] { Obj::Application::instance().closeAllProjects(); }, [] { EXPECT_TRUE(run("Mat_Import")); });
    EXPECT_THAT(Obj::Application::get_projects(), IsEmpty());
}

TEST_F(Commands, ExportSurvivesTheClosingOfTheProjectWhileTheDialogIsOpen)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("materials.json"));
    addMaterial(makeProject());
    chooseMeanwhile(
        path,
        [] {
            Obj::Application::instance().closeAllProjects();
            makeProject("Other");
        },
        [] { EXPECT_TRUE(run("Mat_Export")); });
    EXPECT_FALSE(QFile::exists(path)) << "the user did not export the other project";
}

TEST_F(Commands, ImportAsksForAFile)
{
    Mat::DocumentMaterial& project = makeProject();
    const ShownDialog shown = cancelDialogsOf([] { EXPECT_TRUE(run("Mat_Import")); });
    EXPECT_EQ(shown.count, 1);
    EXPECT_EQ(shown.caption, "Import file");
    EXPECT_EQ(shown.filters, QStringList("All (*)"));
    EXPECT_EQ(shown.parent, window.get());
    EXPECT_EQ(shown.mode, QFileDialog::AcceptOpen);
    EXPECT_THAT(project.getObjects(), IsEmpty());
}

TEST_F(Commands, ExportAsksForAFile)
{
    makeProject();
    const ShownDialog shown = cancelDialogsOf([] { EXPECT_TRUE(run("Mat_Export")); });
    EXPECT_EQ(shown.count, 1);
    EXPECT_EQ(shown.caption, "Export materials");
    EXPECT_EQ(shown.filters, QStringList({"JSON file(*.json)", "All files(*.*)"}));
    EXPECT_EQ(shown.parent, window.get());
    EXPECT_EQ(shown.mode, QFileDialog::AcceptSave);
}

TEST_F(Commands, ExportOpensNoDialogWithoutAMaterialProject)
{
    makeAnalysis();
    const ShownDialog shown = cancelDialogsOf([] { EXPECT_TRUE(run("Mat_Export")); });
    EXPECT_EQ(shown.count, 0);
}

TEST_F(Commands, ExportOpensNoDialogWithTwoMaterialProjects)
{
    makeProject("First");
    makeProject("Second");
    const ShownDialog shown = cancelDialogsOf([] { EXPECT_TRUE(run("Mat_Export")); });
    EXPECT_EQ(shown.count, 0);
}

/// A project of another module that uses the tag of material projects.
class LookalikeProject final : public Obj::Project
{
public:
    LookalikeProject() { documentTag = Mat::materialProjectTag; }
    static void init()
    {
        initSubclass(type, "Test::LookalikeProject", "Obj::Project",
                     []() -> void* { return static_cast<Kelta::RootClass*>(new LookalikeProject); });
    }
    Kelta::TypeInfo getTypeId() const override { return type; }

private:
    static inline Kelta::TypeInfo type;
};

TEST_F(Commands, ExportOpensNoDialogForAProjectThatOnlyHasTheTag)
{
    LookalikeProject::init();
    Obj::Application::instance().createProject("Test::LookalikeProject", "Lookalike");
    const ShownDialog shown = cancelDialogsOf([] { EXPECT_TRUE(run("Mat_Export")); });
    EXPECT_EQ(shown.count, 0);
}

TEST_F(Commands, ExportFindsTheMaterialProjectEvenIfItIsNotCurrent)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("materials.json"));
    addMaterial(makeProject());
    Obj::Application::instance().setCurrentProject(makeAnalysis());
    Gui::FileDialog::answerNext(path);
    EXPECT_TRUE(run("Mat_Export"));
    EXPECT_TRUE(QFile::exists(path));
}

TEST_F(Commands, ExportWritesTheMaterialsUnchecked)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("materials.json"));
    Mat::DocumentMaterial& project = makeProject();
    addMaterial(project);
    project.add_object("Mat::MaterialObject", "Empty");
    Gui::FileDialog::answerNext(path);
    const MessageBoxes boxes;
    EXPECT_TRUE(run("Mat_Export"));
    EXPECT_THAT(boxes.shown(), IsEmpty());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    Json::Value document;
    ASSERT_TRUE(Json::Reader().parse(file.readAll().toStdString(), document));
    EXPECT_EQ(document["proj_type"].asInt(), 2);
    ASSERT_EQ(document["material"].size(), 2U);
    EXPECT_EQ(document["material"][0]["mat_name"].asString(), "Material");
    EXPECT_EQ(document["material"][0]["Props"].size(), 9U);
    EXPECT_EQ(document["material"][1]["Props"].size(), 0U);
}

TEST_F(Commands, ExportWritesNothingWhenNoFileIsChosen)
{
    const Mat::MaterialObject& material = addMaterial(makeProject(), "Frame");
    ASSERT_EQ(material.getCMaterial()->name, "Structural Steel");
    Gui::FileDialog::answerNext({});
    EXPECT_TRUE(run("Mat_Export"));
    // An export would set its name to the label.
    EXPECT_EQ(material.getCMaterial()->name, "Structural Steel");
}

// --- Languages ---

TEST_F(Commands, ShowTheirBoxesInTheLanguageOfTheUser)
{
    struct Texts
    {
        const char* language;
        std::vector<std::pair<std::string, std::string>> boxes; ///< titles and parts of the texts, in order
        std::vector<std::string> captions;
    };
    const std::vector<Texts> expected = {
        {"de",
         {{"Ungültiges Projekt", "Kein Materialprojekt."},
          {"Materialprojekt", "Im Projektbaum gibt es bereits ein Materialprojekt."},
          {"Abhängigkeiten", "mit anderen verknüpft"},
          {"Materialeditor", "Die Änderungen an „Material“ wurden nicht angewendet."}},
         {"Datei importieren", "Materialien exportieren"}},
        {"zh_CN",
         {{"无效项目", "没有材料项目。"},
          {"材料项目", "项目浏览器中已有材料项目。"},
          {"对象依赖", "此对象与其他对象相关联，因此这些对象可能会损坏。\n是否继续？"},
          {"材料编辑器", "“Material”的更改尚未应用。"}},
         {"导入文件", "导出材料"}},
    };
    for (const Texts& texts : expected) {
        SCOPED_TRACE(texts.language);
        Gui::Translator::instance()->setLanguage(QLatin1String(texts.language));
        makeAnalysis();
        const MessageBoxes boxes(QMessageBox::Ok);
        EXPECT_TRUE(run("Mat_AddMaterial"));
        Mat::DocumentMaterial& project = makeProject();
        EXPECT_TRUE(run("Mat_NewDoc"));
        Mat::MaterialObject& material = addMaterial(project);
        project.add_object("Fem::FemLoad", "Load")->linkTo(material);
        select({&material});
        EXPECT_TRUE(run("Mat_Delete"));
        editUnapplied(material).close();
        EXPECT_TRUE(vxtest::waitFor([&boxes] { return boxes.shown().size() >= 4; }));
        ASSERT_THAT(boxes.shown(), SizeIs(texts.boxes.size()));
        for (std::size_t i = 0; i < texts.boxes.size(); ++i) {
            EXPECT_EQ(boxes.shown()[i].title.toStdString(), texts.boxes[i].first);
            EXPECT_THAT(boxes.shown()[i].text.toStdString(), testing::HasSubstr(texts.boxes[i].second));
        }
        std::vector<std::string> captions;
        for (const char* const command : {"Mat_Import", "Mat_Export"})
            captions.push_back(cancelDialogsOf([command] { EXPECT_TRUE(run(command)); }).caption.toStdString());
        EXPECT_EQ(captions, texts.captions);
        Obj::Application::instance().closeAllProjects();
        Gui::Translator::instance()->setLanguage("en");
    }
}

// --- Many materials ---

TEST_F(Commands, DeleteAndUndoWithTenThousandMaterials)
{
    Mat::DocumentMaterial& project = makeProject();
    for (int i = 0; i < 10000; ++i)
        project.add_object("Mat::MaterialObject", "Material");
    QCoreApplication::processEvents();
    EXPECT_TRUE(run("Std_SelectAll"));
    EXPECT_EQ(selection().getCount(), 10000U);
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_THAT(project.getObjects(), IsEmpty());
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_THAT(project.getObjects(), SizeIs(10000));
}

} // namespace
