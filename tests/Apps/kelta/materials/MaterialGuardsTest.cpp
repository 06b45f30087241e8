#include "MaterialsTesting.h"

#include "Gui/CommandController.h"
#include "Gui/FileDialog.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Obj/Application.h"
#include "Obj/Placeholder.h"
#include "projectfile/ExchangeImport.h"
#include "projectfile/ProjectStore.h"

#include <QFile>
#include <QFileInfo>
#include <QtTest/QtTestGui>

#include <limits>

namespace {

using testing::Contains;
using testing::HasSubstr;
using vxtest::MessageBoxes;

std::vector<std::string> projectNames()
{
    std::vector<std::string> names;
    for (const Obj::Project* const project : Obj::Application::get_projects())
        names.emplace_back(project->get_name());
    return names;
}

class SecondProject : public vxtest::Materials
{};

TEST_F(SecondProject, IsMadeAfterTheFirstIsClosed)
{
    newProject("First");
    const MessageBoxes boxes(QMessageBox::Yes);
    EXPECT_TRUE(run("Mat_NewDoc"));
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown().front().icon, QMessageBox::Question);
    EXPECT_EQ(boxes.shown().front().buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(boxes.shown().front().preferred, QMessageBox::No);
    EXPECT_EQ(boxes.shown().front().text,
              "Only one material project can be used at a time. Close \"First\" and make a new one?");
    EXPECT_THAT(projectNames(), testing::ElementsAre("Materials"));
}

TEST_F(SecondProject, IsTakenBackWithTheClosingInOneStep)
{
    newProject("First");
    {
        const MessageBoxes boxes(QMessageBox::Yes);
        EXPECT_TRUE(run("Mat_NewDoc"));
    }
    history().undo();
    EXPECT_THAT(projectNames(), testing::ElementsAre("First"));
    history().redo();
    EXPECT_THAT(projectNames(), testing::ElementsAre("Materials"));
}

TEST_F(SecondProject, IsNotMadeIfTheUserKeepsTheFirst)
{
    newProject("First");
    const MessageBoxes boxes(QMessageBox::No);
    EXPECT_TRUE(run("Mat_NewDoc"));
    EXPECT_EQ(boxes.shown().size(), 1U);
    EXPECT_THAT(projectNames(), testing::ElementsAre("First"));
}

TEST_F(SecondProject, IsNotMadeIfTheFirstRefusesToClose)
{
    newProject("First");
    const boost::signals2::scoped_connection keeper =
        vxMsg::MessageProxy::instance().projectClosing.connect([](Obj::Project&, bool& refused) { refused = true; });
    const MessageBoxes boxes(QMessageBox::Yes);
    EXPECT_TRUE(run("Mat_NewDoc"));
    EXPECT_THAT(projectNames(), testing::ElementsAre("First"));
}

TEST_F(SecondProject, IsTheFirstWithoutAnother)
{
    const MessageBoxes boxes;
    EXPECT_TRUE(run("Mat_NewDoc"));
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_THAT(projectNames(), testing::ElementsAre("Materials"));
}

class Export : public vxtest::Materials
{
protected:
    static std::string contentOf(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().toStdString();
    }
    static std::string lastMessage() { return messages().back(); }
    double writtenModulus() const
    {
        const auto imported = projectfile::importExchange(projectfile::readFile(file));
        return imported.materials.at(0).material->findProperty(modulus)->value;
    }
    /// Exports, presses one button in the expected box, and returns the text of the box.
    std::string exportAnswering(QMessageBox::StandardButton answer)
    {
        const MessageBoxes boxes(answer);
        EXPECT_TRUE(run("Mat_Export", file));
        EXPECT_EQ(boxes.shown().size(), 1U);
        return boxes.shown().empty() ? "" : boxes.shown().front().text.toStdString();
    }

    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& steel = addMaterial(project);
    const QString file = path("a.json");
};

TEST_F(Export, SaysWhereHowManyMaterialsWereWritten)
{
    addMaterial(project);
    const MessageBoxes boxes;
    EXPECT_TRUE(run("Mat_Export", file));
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(lastMessage(), "Materials written to \"" + file.toStdString() + "\": 2.");
    EXPECT_EQ(projectfile::importExchange(projectfile::readFile(file)).materials.size(), 2U);
}

TEST_F(Export, CountsSuppressedMaterialsWhichItWritesToo)
{
    addMaterial(project).setSuppressed(true);
    EXPECT_TRUE(run("Mat_Export", file));
    EXPECT_EQ(lastMessage(),
              "Materials written to \"" + file.toStdString() + "\": 2. Suppressed materials among them: 1.");
}

TEST_F(Export, NamesWordsAndListsThatAreNotWritten)
{
    for (const auto& [type, material] : project.getMatMgr().materials)
        if (material->name == "Plastic Example 1")
            steel.setCMaterial(material.get());
    EXPECT_TRUE(run("Mat_Export", file));
    EXPECT_THAT(messages(), Contains(testing::AllOf(HasSubstr("\"Steel\": An exchange document carries no words and "
                                                              "lists. Not written: \""),
                                                    HasSubstr("\"Yield stress\""))));
}

TEST_F(Export, NamesWhatTheProjectKeepsBesideAMaterial)
{
    steel.setSetting("measurements", "[1, 2]");
    EXPECT_TRUE(run("Mat_Export", file));
    EXPECT_THAT(messages(), Contains("\"Steel\": An exchange document carries no data that a project keeps beside a "
                                     "material. Not written: \"measurements\"."));
    EXPECT_EQ(projectfile::readFile(file).find("measurements"), std::string::npos);
}

TEST_F(Export, AsksBeforeItReplacesAProjectFileThatIsNotOpen)
{
    const std::string text = R"({"format": "vxMaterial project"})";
    projectfile::writeFile(file, text);
    exportAnswering(QMessageBox::Cancel);
    EXPECT_EQ(projectfile::readFile(file), text);
    const MessageBoxes boxes(QMessageBox::Cancel);
    EXPECT_TRUE(run("Mat_Export", file));
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown().front().text, "\"" + file + "\" is a project file. Replace it by an exchange document?");
    projectfile::writeFile(file, R"({"format": "another"})");
    EXPECT_TRUE(run("Mat_Export", file));
    EXPECT_EQ(boxes.shown().size(), 1U);
    EXPECT_THAT(projectfile::readFile(file), HasSubstr("proj_type"));
}

TEST_F(Export, AppliesEditsIfTheUserWants)
{
    type(edit(steel), modulus, "7e10");
    EXPECT_EQ(exportAnswering(QMessageBox::Apply), "The changes of \"Steel\" in its editor have not been applied.");
    EXPECT_EQ(modulusOf(steel), 7e10);
    EXPECT_EQ(writtenModulus(), 7e10);
}

TEST_F(Export, LeavesAStepThatIsNamedAfterTheEditsThatItHasApplied)
{
    MatGui::MaterialView& editor = edit(steel);
    type(editor, modulus, "6e10");
    apply(editor);
    const QString nameOfEdits = history().undoText();
    EXPECT_THAT(nameOfEdits.toStdString(), HasSubstr("\"Steel\""));
    type(editor, modulus, "7e10");
    exportAnswering(QMessageBox::Apply);
    EXPECT_EQ(history().undoText(), nameOfEdits);
    history().undo();
    EXPECT_EQ(modulusOf(steel), 6e10);
}

TEST_F(Export, WritesWithoutEditsIfTheUserWants)
{
    type(edit(steel), modulus, "7e10");
    exportAnswering(QMessageBox::Discard);
    EXPECT_EQ(modulusOf(steel), 2e11);
    EXPECT_EQ(writtenModulus(), 2e11);
    EXPECT_TRUE(window->get_active_mdi_window()->isWindowModified());
}

TEST_F(Export, WritesNothingIfTheUserCancels)
{
    type(edit(steel), modulus, "7e10");
    exportAnswering(QMessageBox::Cancel);
    Gui::FileDialog::answerNext({});
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_TRUE(window->get_active_mdi_window()->isWindowModified());
}

TEST_F(Export, WritesNothingIfEditsCannotBeApplied)
{
    type(edit(steel), modulus, "stiff");
    // Two boxes: the question, and the editor's reason, which is closed.
    const MessageBoxes boxes(QMessageBox::Apply);
    EXPECT_TRUE(run("Mat_Export", file));
    EXPECT_EQ(boxes.shown().size(), 2U);
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(Export, RefusesNumbersThatNoDocumentCanContain)
{
    setNumber(steel, density, std::numeric_limits<double>::infinity());
    EXPECT_EQ(exportAnswering(QMessageBox::Ok),
              "The value of \"Density\" of \"Steel\" is inf. An exchange document contains only finite numbers. Change "
              "the value, then export again.");
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(Export, RefusesAPropertyThatReadersOfDocumentsRefuse)
{
    auto odd = std::make_unique<vxMat::MaterialProperty>();
    odd->name = "Odd";
    steel.getCMaterial()->setProperty(-3, std::move(odd));
    EXPECT_EQ(exportAnswering(QMessageBox::Ok),
              "The property \"Odd\" of \"Steel\" has the number -3. Readers of exchange documents refuse numbers below "
              "0. Make the material again without this property, then export again.");
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(Export, SaysThatAFileCannotBeWritten)
{
    const MessageBoxes boxes;
    EXPECT_TRUE(run("Mat_Export", path("no/such/folder.json")));
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_THAT(boxes.shown().front().text.toStdString(), HasSubstr("folder.json\" cannot be written: "));
    EXPECT_TRUE(run("Mat_Export", path("")));
    ASSERT_EQ(boxes.shown().size(), 2U);
    EXPECT_THAT(boxes.shown().back().text.toStdString(), HasSubstr("is not a regular file."));
}

TEST_F(Export, SaysThatItNeedsASingleProject)
{
    newProject("Second");
    EXPECT_EQ(exportAnswering(QMessageBox::Ok),
              "Material projects that are open: 2. Only one project can be exported. Close the other projects first.");
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(Export, IsSilentIfTheUserChoosesNoFile)
{
    const std::size_t before = messages().size();
    const MessageBoxes boxes;
    EXPECT_TRUE(run("Mat_Export", QString()));
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(messages().size(), before);
}

class EditCommand : public vxtest::Materials
{
protected:
    int editors() const { return window->getMdiWindows().size(); }

    Mat::DocumentMaterial& project = newProject();
};

TEST_F(EditCommand, OpensTenEditorsUnasked)
{
    addMaterials(project, 10);
    select(project.getObjects());
    const MessageBoxes boxes(QMessageBox::No);
    EXPECT_TRUE(run("Mat_Edit"));
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(editors(), 10);
}

TEST_F(EditCommand, IsGreyWithoutASelectedMaterial)
{
    Mat::MaterialObject& material = addMaterial(project);
    const Gui::Command* const command = Gui::GuiApplication::Instance->get_command_manager().findCommand("Mat_Edit");
    Gui::TreeSelectionSingleton::instance().setSelection({&project}, {});
    window->updateCommands();
    EXPECT_FALSE(command->action()->isEnabled());
    select({&material});
    window->updateCommands();
    EXPECT_TRUE(command->action()->isEnabled());
}

TEST_F(EditCommand, AsksBeforeItOpensMore)
{
    addMaterials(project, 11);
    select(project.getObjects());
    {
        const MessageBoxes boxes(QMessageBox::No);
        EXPECT_TRUE(run("Mat_Edit"));
        ASSERT_EQ(boxes.shown().size(), 1U);
        EXPECT_EQ(boxes.shown().front().text, "Open 11 editors?");
        EXPECT_EQ(editors(), 0);
    }
    const MessageBoxes boxes(QMessageBox::Yes);
    EXPECT_TRUE(run("Mat_Edit"));
    EXPECT_EQ(editors(), 11);
}

TEST_F(EditCommand, CountsNoEditorsThatAreOpen)
{
    edit(addMaterials(project, 11));
    select(project.getObjects());
    const MessageBoxes boxes(QMessageBox::No);
    EXPECT_TRUE(run("Mat_Edit"));
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(editors(), 11);
}

TEST_F(EditCommand, RefusesMoreThanAHundred)
{
    addMaterials(project, 101);
    select(project.getObjects());
    const MessageBoxes boxes(QMessageBox::Yes);
    EXPECT_TRUE(run("Mat_Edit"));
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown().front().icon, QMessageBox::Warning);
    EXPECT_EQ(boxes.shown().front().text,
              "Materials selected: 101. At most 100 can be opened at a time. Select fewer.");
    EXPECT_EQ(editors(), 0);
}

/// Deletion with the key in a tree that contains materials and objects of the host.
class DeleteKey : public vxtest::Materials
{
protected:
    static Obj::Project& newPlainProject()
    {
        return *Obj::Application::instance().addProject(
            Obj::OwnedProject(new Obj::PlaceholderProject("absent::Frame", Json::Value())), "Plain");
    }
    static Obj::ProjectObject& addGroup(Obj::Project& project)
    {
        return *project.add_object("Obj::ProjectObjectGroup", "Group");
    }
    void press() const
    {
        Gui::ProjectExplorer& tree = window->getProjectExplorer();
        tree.setFocus();
        window->updateCommands();
        QTest::keyClick(&tree, Qt::Key_Delete);
    }
};

TEST_F(DeleteKey, DeletesMaterialsWithTheQuestionOfTheirModule)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& steel = addMaterial(project);
    Mat::MaterialObject& alloy = addMaterial(project, "Alloy");
    alloy.linkTo(steel);
    select({&steel});
    const MessageBoxes boxes(QMessageBox::Yes);
    press();
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown().front().title, "Object dependencies");
    EXPECT_THAT(project.getObjects(), testing::ElementsAre(&alloy));
    EXPECT_EQ(history().undoText(), "Delete \"Steel\"");
    history().undo();
    EXPECT_THAT(project.getObjects(), testing::ElementsAre(&steel, &alloy));
}

TEST_F(DeleteKey, DeletesObjectsOfProjectsThatHaveNoMaterials)
{
    newProject();
    Obj::Project& plain = newPlainProject();
    select({&addGroup(plain)});
    const MessageBoxes boxes;
    press();
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_THAT(plain.getObjects(), testing::IsEmpty());
}

TEST_F(DeleteKey, DeletesMaterialsAndOtherObjectsTogetherWithOneQuestion)
{
    Mat::DocumentMaterial& project = newProject();
    Mat::MaterialObject& steel = addMaterial(project);
    Mat::MaterialObject& alloy = addMaterial(project, "Alloy");
    alloy.linkTo(steel);
    Obj::Project& plain = newPlainProject();
    select({&steel, &addGroup(plain)});
    history().clear();
    const MessageBoxes boxes(QMessageBox::Yes);
    press();
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_THAT(boxes.shown().front().text.toStdString(), HasSubstr("\"Alloy\""));
    EXPECT_THAT(project.getObjects(), testing::ElementsAre(&alloy));
    EXPECT_THAT(plain.getObjects(), testing::IsEmpty());
    EXPECT_EQ(history().count(), 1);
}

} // namespace
