#include "DataFile.h"
#include "FilesTesting.h"
#include "HostTesting.h"
#include "MaterialGuards.h"
#include "Mnemonics.h"
#include "RecentFiles.h"
#include "SchemaJudge.h"
#include "TitleUpdate.h"

#include "Gui/ProjectExplorer.h"
#include "Gui/Translator.h"
#include "Kelta/MessageLog.h"
#include "Obj/Placeholder.h"
#include "kelta/OpeningGuard.h"
#include "projectfile/ProjectStore.h"
#include "vxCAE/CaeManager.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QProcess>
#include <QSettings>
#include <QStatusBar>
#include <QUrl>
#include <QtTest/QtTestGui>

#include <map>

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using vxtest::Answers;
using ProjectFiles = vxtest::Files;

std::string text(const QStringList& lines)
{
    return lines.join('\n').toStdString();
}

TEST_F(ProjectFiles, HaveKeysAndMnemonicsOfTheirOwnInEveryLanguage)
{
    // "Mat_Delete" and "Std_Delete" have the same key; only "Std_Delete" reacts to it.
    std::map<QKeySequence, std::string> users;
    for (const QAction* const action : window->actions() + window->getProjectExplorer().actions())
        if (!action->shortcut().isEmpty()) {
            EXPECT_TRUE(users.emplace(action->shortcut(), action->objectName().toStdString()).second)
                << action->objectName().toStdString();
        }
    EXPECT_EQ(users[QKeySequence(QKeySequence::Delete)], "Std_Delete");
    for (const char* const language : {"de", "zh_CN", "en"}) {
        Gui::Translator::instance()->setLanguage(QLatin1String(language));
        QCoreApplication::processEvents();
        EXPECT_EQ(vxtest::mnemonicClashes(*window->menuBar()), QStringList()) << language;
    }
}

TEST_F(ProjectFiles, GiveBackTheSameTreeWithNumbersNamesAndLabels)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial("Steel");
    addMaterial("Gone");
    Mat::MaterialObject& bolt = addMaterial("Bolt");
    bolt.label.setValue("Bolz\xC3\xA9n \xE9\x92\xA2 %1");
    const std::string boltName = bolt.get_name_in_project();
    bolt.setSuppressed(true);
    auto* const colour = dynamic_cast<Obj::PropertyColor*>(
        Gui::GuiApplication::Instance->get_view_feeder(&steel)->get_property_by_name("MaterialColor"));
    colour->setValue({0.25F, 0.5F, 0.75F, 1.0F});
    ASSERT_TRUE(vxMsg::MessageProxy::instance().deleteObject(currentProject()->get_name(), "Gone"));
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(closeProject());
    history().clear();
    Obj::Application::instance().closeAllProjects();

    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    ASSERT_NE(currentProject(), nullptr);
    ASSERT_EQ(currentProject()->getObjectCount(), 2U);
    Mat::MaterialObject* const steelAgain = findMaterial("Steel");
    const Mat::MaterialObject* const boltAgain = findMaterial("Bolz\xC3\xA9n \xE9\x92\xA2 %1");
    ASSERT_NE(steelAgain, nullptr);
    ASSERT_NE(boltAgain, nullptr);
    EXPECT_EQ(steelAgain->getObjectId(), 1U);
    EXPECT_EQ(boltAgain->getObjectId(), 3U);
    EXPECT_EQ(boltAgain->get_name_in_project(), boltName);
    EXPECT_TRUE(boltAgain->isSuppressed());
    EXPECT_EQ(modulusOf(*steelAgain), 2e11);
    EXPECT_EQ(steelAgain->getObjectState(), Obj::eVXObjectState::Ready);
    const auto* const colourAgain = dynamic_cast<Obj::PropertyColor*>(
        Gui::GuiApplication::Instance->get_view_feeder(steelAgain)->get_property_by_name("MaterialColor"));
    EXPECT_EQ(colourAgain->getValue(), (Obj::Color{0.25F, 0.5F, 0.75F, 1.0F}));
    EXPECT_FALSE(history().canUndo());
    EXPECT_FALSE(isModified());
    // The number of the deleted material is not used again either.
    EXPECT_EQ(addMaterial("Next").getObjectId(), 4U);
}

TEST_F(ProjectFiles, AreTheSameBytesWhenNothingHasChanged)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    const QByteArray before = contentOf(path("a.vxmat"));
    ASSERT_TRUE(run("Std_Save"));
    EXPECT_EQ(contentOf(path("a.vxmat")), before);
}

TEST_F(ProjectFiles, KeepMembersThatThisProgramDoesNotKnow)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    QByteArray content = contentOf(path("a.vxmat"));
    content.replace("\"format_version\"", "\"plot\": {\"scale\": 2},\n\"format_version\"");
    content.replace("\"suppressed\"", "\"supplier\": \"Mill 7\", \"suppressed\"");
    writeFile(path("b.vxmat"), content);
    ASSERT_TRUE(run("Std_Open", path("b.vxmat")));
    addMaterial("Another");
    ASSERT_TRUE(run("Std_Save"));
    const QByteArray saved = contentOf(path("b.vxmat"));
    EXPECT_TRUE(saved.contains("\"plot\""));
    EXPECT_TRUE(saved.contains("Mill 7"));
    EXPECT_TRUE(saved.contains("Another"));
}

TEST_F(ProjectFiles, KeepMembersOfTheDatabaseThatThisHostDoesNotKnow)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    QByteArray content = contentOf(path("a.vxmat"));
    content.replace("\"proj_tag\"", "\"proj_owner\": \"Ada\", \"proj_tag\"");
    content.replace("\"obj_id\"", "\"obj_note\": \"thin\", \"obj_id\"");
    writeFile(path("b.vxmat"), content);
    ASSERT_TRUE(run("Std_Open", path("b.vxmat")));
    addMaterial("Another");
    ASSERT_TRUE(run("Std_Save"));
    const QByteArray saved = contentOf(path("b.vxmat"));
    EXPECT_TRUE(saved.contains("\"proj_owner\": \"Ada\""));
    EXPECT_EQ(saved.count("\"obj_note\": \"thin\""), 1);
}

TEST_F(ProjectFiles, AreModifiedEachByItself)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    Mat::DocumentMaterial& first = *currentProject();
    newProject();
    ASSERT_TRUE(run("Std_SaveAs", path("b.vxmat")));
    Mat::DocumentMaterial& second = *currentProject();
    addMaterial();
    Obj::Application::instance().setCurrentProject(first);
    addMaterial("Another");
    files->keepCopies();
    ASSERT_EQ(copies().size(), 2);
    ASSERT_TRUE(run("Std_Save"));
    EXPECT_FALSE(files->isModified(first));
    EXPECT_TRUE(files->isModified(second));
    EXPECT_EQ(copies().size(), 1);
}

TEST_F(ProjectFiles, StayModifiedByChangesThatAreNoStepOfTheHistory)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    steel.label.setValue("Other");
    addMaterial("Another");
    history().undo();
    EXPECT_TRUE(isModified());
}

TEST_F(ProjectFiles, KeepACopyAgainWhenClosingIsUndone)
{
    newProject();
    addMaterial();
    {
        const Answers answers({"Discard"});
        ASSERT_TRUE(closeProject());
    }
    history().undo();
    ASSERT_TRUE(isModified());
    files->keepCopies();
    EXPECT_EQ(copies().size(), 1);
}

TEST_F(ProjectFiles, AreOneByAllWaysThatLeadToThem)
{
    QDir().mkdir(path("real"));
    ASSERT_TRUE(QFile::link(path("real"), path("link")));
    ASSERT_TRUE(QFile::link(path("real/b.vxmat"), path("b.vxmat")));
    newProject();
    ASSERT_TRUE(run("Std_SaveAs", path("link/a.vxmat")));
    ASSERT_TRUE(run("Std_Open", path("real/a.vxmat")));
    EXPECT_EQ(Obj::Application::get_projects().size(), 1U);
    ASSERT_TRUE(run("Std_SaveAs", path("b.vxmat")));
    EXPECT_TRUE(QFileInfo(path("b.vxmat")).isSymLink());
    ASSERT_TRUE(run("Std_Open", path("real/b.vxmat")));
    EXPECT_EQ(Obj::Application::get_projects().size(), 1U);
}

TEST_F(ProjectFiles, SayThatACircleOfLinksIsNoFile)
{
    ASSERT_TRUE(QFile::link(path("b.vxmat"), path("a.vxmat")));
    ASSERT_TRUE(QFile::link(path("a.vxmat"), path("b.vxmat")));
    const Answers answers({"OK"});
    run("Std_Open", path("a.vxmat"));
    EXPECT_EQ(currentProject(), nullptr);
}

TEST_F(ProjectFiles, LeaveTheCurrentProjectWhenAnotherCannotBeOpened)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    QByteArray content = contentOf(path("a.vxmat"));
    writeFile(path("b.vxmat"), content.replace("\"format_version\": 1", "\"format_version\": 9"));
    newProject();
    newProject();
    Obj::Project* const current = Obj::Application::get_projects().front();
    Obj::Application::instance().setCurrentProject(*current);
    const Answers answers({"OK"});
    run("Std_Open", path("b.vxmat"));
    EXPECT_THAT(text(answers.boxes()), HasSubstr("later version"));
    EXPECT_EQ(Obj::Application::get_current_project(), current);
    EXPECT_EQ(Obj::Application::get_projects().size(), 3U);
}

TEST_F(ProjectFiles, KeepTheirNameIfAnotherProjectHasIt)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(QFile::copy(path("a.vxmat"), path("b.vxmat")));
    ASSERT_TRUE(run("Std_Open", path("b.vxmat")));
    EXPECT_STREQ(currentProject()->get_name(), "Materials1");
    EXPECT_FALSE(isModified());
    addMaterial("Another");
    ASSERT_TRUE(run("Std_Save"));
    EXPECT_EQ(projectfile::readProject(contentOf(path("b.vxmat")).toStdString()).name, "Materials");
}

/// Returns the content of a project file without the record of the host, whose numbers differ from run to run, and
/// without colours, of which the host writes the default too.
std::string contentOfModules(const QByteArray& file)
{
    projectfile::ProjectRecord record = projectfile::readProject(file.toStdString());
    record.database = Json::Value();
    for (projectfile::ObjectRecord& object : record.objects)
        object.colour.reset();
    return projectfile::writeProject(record);
}

TEST_F(ProjectFiles, OpenUnchangedIfTheCheckFindsNothingAndNotAtAllIfItRefusesThem)
{
    // The exit status of "vxmat check" is the first line of the expected result beside each file.
    const QDir corpus(QString::fromStdString(vxtest::dataPath("projects")));
    for (const QString& name : corpus.entryList({QStringLiteral("*.vxmat")})) {
        SCOPED_TRACE(name.toStdString());
        const QByteArray status = contentOf(corpus.filePath(name.chopped(6) + QStringLiteral(".expected"))).left(1);
        ASSERT_TRUE(QFile::copy(corpus.filePath(name), path("a.vxmat")));
        const Answers answers(status == "2" ? QStringList("OK") : QStringList());
        run("Std_Open", path("a.vxmat"));
        EXPECT_EQ(Obj::Application::get_projects().size(), status == "2" ? 0U : 1U);
        if (status == "0") {
            EXPECT_FALSE(files->isModified(*Obj::Application::get_current_project()));
            EXPECT_TRUE(run("Std_SaveAs", path("b.vxmat")));
            EXPECT_EQ(contentOfModules(contentOf(path("b.vxmat"))), contentOfModules(contentOf(path("a.vxmat"))));
        }
        Obj::Application::instance().closeAllProjects();
        QFile::remove(path("a.vxmat"));
        QFile::remove(path("b.vxmat"));
    }
}

TEST_F(ProjectFiles, KeepANameThatIsNoneForAnOpenProject)
{
    newProject();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    const QByteArray content = contentOf(path("a.vxmat"));
    Obj::Application::instance().closeAllProjects();
    for (const auto& [name, whenOpen] : {std::pair("\"\"", "Project"), std::pair(R"("Mat\u0000x")", "Mat")}) {
        SCOPED_TRACE(name);
        writeFile(path("b.vxmat"),
                  QByteArray(content).replace("\"name\": \"Materials\"", QByteArray("\"name\": ") + name));
        ASSERT_TRUE(run("Std_Open", path("b.vxmat")));
        EXPECT_STREQ(currentProject()->get_name(), whenOpen);
        EXPECT_FALSE(isModified());
        ASSERT_TRUE(run("Std_SaveAs", path("c.vxmat")));
        EXPECT_TRUE(contentOf(path("c.vxmat")).contains(QByteArray("\"name\": ") + name));
        EXPECT_TRUE(closeProject());
        QFile::remove(path("c.vxmat"));
    }
}

TEST_F(ProjectFiles, KeepObjectsOfClassesThatCannotContainThem)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    for (const char* const name :
         {"Obj::ProjectObject", "Obj::ProjectObjectGroup", "Obj::Project", "Mat::DocumentMaterial"})
    {
        SCOPED_TRACE(name);
        QByteArray content = contentOf(path("a.vxmat"));
        writeFile(path("b.vxmat"), content.replace("Mat::MaterialObject", name));
        ASSERT_TRUE(run("Std_Open", path("b.vxmat")));
        EXPECT_FALSE(isModified());
        ASSERT_TRUE(run("Std_SaveAs", path("c.vxmat")));
        const auto record = projectfile::readProject(contentOf(path("c.vxmat")).toStdString());
        EXPECT_EQ(record.objects.at(0).className, name);
        EXPECT_EQ(record.objects.at(0).material->properties.size(), 9U);
        Obj::Application::instance().closeProject(*currentProject());
        QFile::remove(path("c.vxmat"));
    }
}

TEST_F(ProjectFiles, OpenAProjectOfAClassThatIsNoneAsAPlaceholder)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    QByteArray content = contentOf(path("a.vxmat"));
    writeFile(path("b.vxmat"),
              content.replace("\"name\": \"Materials\"", "\"class\": \"Obj::ProjectObject\", \"name\": \"Materials\""));
    ASSERT_TRUE(run("Std_Open", path("b.vxmat")));
    const Obj::Project& opened = *Obj::Application::get_current_project();
    EXPECT_NE(dynamic_cast<const Obj::PlaceholderProject*>(&opened), nullptr);
    EXPECT_FALSE(files->isModified(opened));
}

/// A material project is open, and another one is opened from a file.
class SecondFile : public ProjectFiles
{
protected:
    SecondFile()
    {
        desktop::addMaterialGuards(Gui::GuiApplication::Instance->get_command_manager());
        newProject();
        addMaterial("In the file");
        run("Std_SaveAs", path("a.vxmat"));
        closeProject();
        newProject();
        addMaterial("First");
    }
    ~SecondFile() override
    {
        desktop::registerOpeningGuard("Mat::DocumentMaterial", [](const QString&) { return true; });
    }
    static std::vector<std::string> labels()
    {
        std::vector<std::string> found;
        for (const Obj::Project* const project : Obj::Application::get_projects())
            for (const Obj::ProjectObject* const object : project->getObjects())
                found.push_back(object->label.getValue());
        return found;
    }
};

TEST_F(SecondFile, IsOpenedAfterTheFirstIsClosed)
{
    const Answers answers({"Close and open", "Discard"});
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    EXPECT_THAT(labels(), testing::ElementsAre("In the file"));
    EXPECT_THAT(text(answers.boxes()), HasSubstr("Only one material project can be used at a time. Close \"Materials"));
    EXPECT_FALSE(isModified());
}

TEST_F(SecondFile, IsNotOpenedIfTheUserKeepsTheFirst)
{
    {
        const Answers answers({"Cancel"});
        run("Std_Open", path("a.vxmat"));
    }
    EXPECT_THAT(labels(), testing::ElementsAre("First"));
    {
        const Answers answers({"Close and open", "Cancel"});
        EXPECT_FALSE(files->open(path("a.vxmat")));
    }
    EXPECT_THAT(labels(), testing::ElementsAre("First"));
}

TEST_F(SecondFile, DoesNotCloseTheFirstIfItIsNotAProject)
{
    writeFile(path("b.vxmat"), "{}");
    const Answers answers({"OK"});
    run("Std_Open", path("b.vxmat"));
    EXPECT_THAT(labels(), testing::ElementsAre("First"));
}

TEST_F(SecondFile, IsRecoveredOnlyIfTheFirstIsClosed)
{
    files->keepCopies();
    ASSERT_EQ(copies().size(), 1);
    crash();
    newProject();
    addMaterial("Later");
    {
        const Answers answers({"Recover", "Cancel"});
        files->offerRecovery();
    }
    EXPECT_THAT(labels(), testing::ElementsAre("Later"));
    EXPECT_EQ(copies().size(), 1);
    {
        const Answers answers({"Recover", "Close and open", "Discard"});
        files->offerRecovery();
    }
    EXPECT_THAT(labels(), testing::ElementsAre("First"));
}

TEST_F(SecondFile, IsNotReplacedByAnExportWithoutAQuestion)
{
    const QByteArray before = contentOf(path("a.vxmat"));
    ASSERT_TRUE(run("Std_SaveAs", path("b.vxmat")));
    const QByteArray first = contentOf(path("b.vxmat"));
    {
        const Answers answers({"Cancel"});
        run("Mat_Export", path("b.vxmat"));
        EXPECT_THAT(text(answers.boxes()), HasSubstr("is the file of the project"));
    }
    EXPECT_EQ(contentOf(path("b.vxmat")), first);
    projectfile::FileLock lock(path("a.vxmat"));
    ASSERT_TRUE(lock.tryLock());
    {
        const Answers answers({"Cancel"});
        run("Mat_Export", path("a.vxmat"));
        EXPECT_THAT(text(answers.boxes()), HasSubstr("is in use by"));
    }
    EXPECT_EQ(contentOf(path("a.vxmat")), before);
    {
        const Answers answers({"Replace"});
        run("Mat_Export", path("a.vxmat"));
    }
    EXPECT_TRUE(contentOf(path("a.vxmat")).contains("proj_type"));
}

TEST_F(ProjectFiles, OfferToImportADocument)
{
    newProject();
    addMaterial("Frame");
    ASSERT_TRUE(currentProject()->exportToFile(path("m.json").toStdString(), 0, 0, 0));
    {
        const Answers answers({"Cancel"});
        run("Std_Open", path("m.json"));
        EXPECT_THAT(text(answers.boxes()), HasSubstr("is an exchange document, not a project file."));
    }
    EXPECT_EQ(currentProject()->getObjects().size(), 1U);
    {
        const Answers answers({"Import", "Import"});
        run("Std_Open", path("m.json"));
        EXPECT_THAT(text(answers.boxes()), HasSubstr("Unit system of the numbers in \"m.json\""));
    }
    EXPECT_EQ(currentProject()->getObjects().size(), 2U);
    Obj::Application::instance().closeAllProjects();
    const Answers answers({"Import", "Import"});
    run("Std_Open", path("m.json"));
    ASSERT_NE(currentProject(), nullptr);
    EXPECT_STREQ(currentProject()->get_name(), "m");
    EXPECT_NE(findMaterial("Frame"), nullptr);
}

TEST_F(ProjectFiles, LeaveNoNewProjectAndNoStepIfTheUnitsAreNotChosen)
{
    newProject();
    addMaterial("Frame");
    ASSERT_TRUE(currentProject()->exportToFile(path("m.json").toStdString(), 0, 0, 0));
    Obj::Application::instance().closeAllProjects();
    history().clear();
    const Answers answers({"Import", "Cancel"});
    run("Std_Open", path("m.json"));
    EXPECT_TRUE(Obj::Application::get_projects().empty());
    EXPECT_EQ(history().count(), 0);
}

TEST_F(ProjectFiles, LeaveNoNewProjectIfADocumentIsWrong)
{
    writeFile(path("m.json"), R"({"proj_type": 2, "material": [{"mat_id": "x"}]})");
    const Answers answers({"Import", "OK"});
    run("Std_Open", path("m.json"));
    EXPECT_TRUE(Obj::Application::get_projects().empty());
}

TEST_F(ProjectFiles, TakeOverALockOfAnotherComputerAfterAQuestion)
{
    newProject();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    Obj::Application::instance().closeAllProjects();
    writeFile(path(".a.vxmat.lock"), "4711\nkelta\nfaraway\n\n\n");
    {
        const Answers answers({"Cancel"});
        run("Std_Open", path("a.vxmat"));
        EXPECT_THAT(text(answers.boxes()), HasSubstr("kelta (4711 on faraway)"));
    }
    EXPECT_EQ(currentProject(), nullptr);
    const Answers answers({"Take over"});
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    EXPECT_FALSE(contentOf(path(".a.vxmat.lock")).contains("faraway"));
}

TEST_F(ProjectFiles, MarkTheProjectThatHasChanges)
{
    newProject();
    EXPECT_FALSE(isModified());
    Mat::MaterialObject& steel = addMaterial();
    EXPECT_TRUE(isModified());
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    EXPECT_FALSE(isModified());
    steel.label.setValue("Other");
    EXPECT_TRUE(isModified());
    ASSERT_TRUE(run("Std_Save"));
    steel.check_input();
    steel.notifyChange();
    EXPECT_FALSE(isModified()) << "the state is no part of the file";
    steel.setSuppressed(true);
    EXPECT_TRUE(isModified());
    ASSERT_TRUE(run("Std_Save"));
    EXPECT_FALSE(isModified());
    dynamic_cast<Obj::PropertyColor*>(
        Gui::GuiApplication::Instance->get_view_feeder(&steel)->get_property_by_name("MaterialColor"))
        ->setValue({1, 1, 1, 1});
    EXPECT_TRUE(isModified());
}

TEST_F(ProjectFiles, AreUnmodifiedAgainWhenTheChangeIsUndone)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    addMaterial("Another");
    EXPECT_TRUE(isModified());
    history().undo();
    EXPECT_FALSE(isModified());
    history().undo();
    EXPECT_TRUE(isModified()) << "the file has the first material";
}

constexpr Obj::Color red{1.0F, 0.25F, 0.0F, 0.0F};

Obj::PropertyColor& colourOf(Obj::ProjectObject* object)
{
    Obj::Property* const property =
        Gui::GuiApplication::Instance->get_view_feeder(object)->get_property_by_name("MaterialColor");
    return dynamic_cast<Obj::PropertyColor&>(*property);
}

TEST_F(ProjectFiles, HaveTheColoursAgainAfterUndo)
{
    newProject();
    colourOf(&addMaterial()).setValue(red);
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    const QByteArray saved = contentOf(path("a.vxmat"));
    ASSERT_TRUE(closeProject());
    history().undo();
    ASSERT_NE(currentProject(), nullptr);
    EXPECT_EQ(colourOf(findMaterial("Steel")).getValue(), red);
    EXPECT_FALSE(isModified());

    Gui::TreeSelectionSingleton::instance().setSelection({}, {findMaterial("Steel")});
    ASSERT_TRUE(run("Mat_Delete"));
    history().undo();
    EXPECT_EQ(colourOf(findMaterial("Steel")).getValue(), red);
    ASSERT_TRUE(run("Std_Save"));
    EXPECT_EQ(contentOf(path("a.vxmat")), saved);
}

TEST_F(ProjectFiles, PasteTheColourAgainAfterRedo)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    colourOf(&steel).setValue(red);
    Gui::TreeSelectionSingleton::instance().setSelection({}, {&steel});
    ASSERT_TRUE(run("Std_Copy"));
    ASSERT_TRUE(run("Std_Paste"));
    ASSERT_EQ(currentProject()->getObjectCount(), 2U);
    history().undo();
    ASSERT_EQ(currentProject()->getObjectCount(), 1U);
    history().redo();
    ASSERT_EQ(currentProject()->getObjectCount(), 2U);
    EXPECT_EQ(colourOf(currentProject()->getObjects().back()).getValue(), red);
}

TEST_F(ProjectFiles, StayModifiedWhenTheHistoryEnds)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    addMaterial("Another");
    history().clear();
    EXPECT_TRUE(isModified());
}

TEST_F(ProjectFiles, MakeApplyInAnEditorUndoable)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    Gui::MDIWindow& editor = editModulus(steel, QStringLiteral("1e9"));
    EXPECT_FALSE(isModified()) << "not applied yet";
    editor.findChild<QAbstractButton*>(QStringLiteral("btnApply"))->click();
    EXPECT_EQ(modulusOf(steel), 1e9);
    EXPECT_TRUE(isModified());
    history().undo();
    EXPECT_EQ(modulusOf(steel), 2e11);
    EXPECT_FALSE(isModified());
    history().redo();
    EXPECT_EQ(modulusOf(steel), 1e9);
    EXPECT_TRUE(isModified());
}

TEST_F(ProjectFiles, MakeOkInAnEditorUndoable)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    editModulus(steel, QStringLiteral("1e9")).findChild<QAbstractButton*>(QStringLiteral("btnOk"))->click();
    EXPECT_EQ(window->get_active_mdi_window(), nullptr);
    EXPECT_EQ(modulusOf(steel), 1e9);
    history().undo();
    EXPECT_EQ(modulusOf(steel), 2e11);
}

TEST_F(ProjectFiles, MakeWhatIsAppliedWhenAnEditorClosesUndoable)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    editModulus(steel, QStringLiteral("1e9"));
    const Answers answers({"Apply"});
    run("Std_CloseWindow");
    EXPECT_TRUE(vxtest::waitFor([&steel] { return modulusOf(steel) == 1e9; }));
    EXPECT_TRUE(isModified());
    EXPECT_EQ(copies().size(), 1);
    history().undo();
    EXPECT_EQ(modulusOf(steel), 2e11);
}

TEST_F(ProjectFiles, ShowWhatWasUndoneInTheOpenEditor)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    editModulus(steel, QStringLiteral("1e9")).findChild<QAbstractButton*>(QStringLiteral("btnApply"))->click();
    history().undo();
    Gui::MDIWindow* const editor = window->get_active_mdi_window();
    ASSERT_NE(editor, nullptr);
    EXPECT_FALSE(editor->isWindowModified());
    editor->findChild<QAbstractButton*>(QStringLiteral("btnApply"))->click();
    EXPECT_EQ(modulusOf(steel), 2e11) << "the editor shows the material as it is";
}

TEST_F(ProjectFiles, MakeNoStepOfAnApplyThatChangesNothing)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    Gui::GuiApplication::Instance->get_view_feeder(&steel)->setEdit(0);
    auto* const apply = window->get_active_mdi_window()->findChild<QAbstractButton*>(QStringLiteral("btnApply"));
    // Only the first Apply may change the material.
    apply->click();
    const int steps = history().count();
    apply->click();
    EXPECT_EQ(history().count(), steps);
}

TEST_F(ProjectFiles, TakeNoExportForAnApply)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    Gui::GuiApplication::Instance->get_view_feeder(&steel)->setEdit(0);
    auto* const apply = window->get_active_mdi_window()->findChild<QAbstractButton*>(QStringLiteral("btnApply"));
    apply->click();
    steel.label.setValue("Renamed");
    const int steps = history().count();
    ASSERT_TRUE(run("Mat_Export", path("a.json")));
    apply->click();
    EXPECT_EQ(history().count(), steps);
}

TEST_F(ProjectFiles, AskAboutChangesInEditorsBeforeSaving)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    editModulus(steel, QStringLiteral("1e9"));
    {
        const Answers answers({"Cancel"});
        run("Std_SaveAs", path("a.vxmat"));
        EXPECT_THAT(text(answers.boxes()), HasSubstr("The changes of \"Steel\" in its editor have not been applied."));
    }
    EXPECT_FALSE(QFileInfo::exists(path("a.vxmat")));
    {
        const Answers answers({"Save without them"});
        run("Std_SaveAs", path("a.vxmat"));
    }
    EXPECT_EQ(modulusOf(steel), 2e11);
    EXPECT_TRUE(contentOf(path("a.vxmat")).contains("200000000000") || contentOf(path("a.vxmat")).contains("2e+11"));
    {
        const Answers answers({"Apply"});
        run("Std_Save");
    }
    EXPECT_EQ(modulusOf(steel), 1e9);
    EXPECT_FALSE(isModified());
    history().undo();
    EXPECT_TRUE(isModified()) << "the file has what was applied";
}

TEST_F(ProjectFiles, AskAboutChangesInEditorsBeforeTheyAskForAFile)
{
    newProject();
    editModulus(addMaterial(), QStringLiteral("1e9"));
    for (const char* const command : {"Std_Save", "Std_SaveAs"}) {
        const Answers answers({"Cancel"});
        run(command);
        EXPECT_THAT(answers.boxes(), testing::SizeIs(1)) << command;
        EXPECT_THAT(text(answers.boxes()), HasSubstr("have not been applied.")) << command;
    }
}

TEST_F(ProjectFiles, SaveNothingWhenAnEditorCannotApply)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    editModulus(steel, QStringLiteral("stiff"));
    const Answers answers({"Apply", "OK"});
    run("Std_SaveAs", path("a.vxmat"));
    EXPECT_THAT(text(answers.boxes()), HasSubstr("Invalid material"));
    EXPECT_FALSE(QFileInfo::exists(path("a.vxmat")));
}

TEST_F(ProjectFiles, AskAboutChangesInEditorsBeforeTheHandOver)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    editModulus(steel, QStringLiteral("1e9"));
    const auto handedOver = [] { return vxCAE::GetCaeManager().getCAE(currentProject()->getProjectId()) != nullptr; };
    {
        const Answers answers({"Cancel"});
        run("Std_Collect");
        EXPECT_EQ(text(answers.boxes()),
                  "Hand over to the solver: The changes of \"Steel\" in its editor have not been applied.");
    }
    EXPECT_FALSE(handedOver());
    {
        const Answers answers({"Hand over without them"});
        run("Std_Collect");
    }
    EXPECT_TRUE(handedOver());
    EXPECT_EQ(modulusOf(steel), 2e11);
    {
        const Answers answers({"Apply"});
        run("Std_Collect");
    }
    EXPECT_EQ(modulusOf(steel), 1e9);
    run("Std_Collect");
}

TEST_F(ProjectFiles, HandNothingOverIfAnEditorCannotApply)
{
    newProject();
    editModulus(addMaterial(), QStringLiteral("stiff"));
    const Answers answers({"Apply", "OK"});
    run("Std_Collect");
    EXPECT_EQ(vxCAE::GetCaeManager().getCAE(currentProject()->getProjectId()), nullptr);
}

TEST_F(ProjectFiles, HandNothingOverOfAProjectThatIsClosedMeanwhile)
{
    newProject();
    addMaterial();
    const std::size_t messages = Kelta::MessageLog::instance().messages().size();
    editModulus(addMaterial(), QStringLiteral("1e9"));
    QTimer::singleShot(0, [] { Obj::Application::instance().closeAllProjects(); });
    const Answers answers({"Hand over without them"});
    run("Std_Collect");
    EXPECT_EQ(Kelta::MessageLog::instance().messages().size(), messages);
}

TEST_F(ProjectFiles, AskBeforeAProjectWithChangesIsClosed)
{
    newProject();
    addMaterial();
    {
        const Answers answers({"Cancel"});
        closeProject();
        EXPECT_THAT(text(answers.boxes()), HasSubstr("have not been saved"));
    }
    ASSERT_NE(currentProject(), nullptr);
    {
        const Answers answers({"Discard"});
        closeProject();
    }
    EXPECT_EQ(currentProject(), nullptr);
}

TEST_F(ProjectFiles, SaveAProjectThatIsClosedWhenAskedTo)
{
    newProject();
    addMaterial();
    Gui::FileDialog::answerNext(path("a.vxmat"));
    const Answers answers({"Save"});
    closeProject();
    EXPECT_EQ(currentProject(), nullptr);
    EXPECT_TRUE(QFileInfo::exists(path("a.vxmat")));
}

TEST_F(ProjectFiles, KeepAProjectThatCouldNotBeSavedOpen)
{
    newProject();
    addMaterial();
    Gui::FileDialog::answerNext(path("missing/a.vxmat"));
    const Answers answers({"Save", "OK"});
    closeProject();
    EXPECT_NE(currentProject(), nullptr);
    EXPECT_TRUE(isModified());
}

TEST_F(ProjectFiles, CloseAProjectWithoutChangesWithoutAsking)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    const Answers answers;
    closeProject();
    EXPECT_EQ(currentProject(), nullptr);
}

TEST_F(ProjectFiles, KnowTheirProjectAgainWhenClosingIsUndone)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(closeProject());
    history().undo();
    ASSERT_NE(currentProject(), nullptr);
    EXPECT_EQ(files->getFile(*currentProject()), QFileInfo(path("a.vxmat")).canonicalFilePath());
}

TEST_F(ProjectFiles, AskAboutEveryProjectBeforeTheProgramEnds)
{
    newProject();
    addMaterial();
    newProject();
    addMaterial();
    {
        const Answers answers({"Discard", "Cancel"});
        EXPECT_FALSE(files->mayEnd());
    }
    {
        const Answers answers({"Discard", "Discard"});
        EXPECT_TRUE(files->mayEnd());
    }
}

TEST_F(ProjectFiles, AskOnceAboutAProjectWithChangesInItsEditorsBeforeTheProgramEnds)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    editModulus(steel, QStringLiteral("1e9"));
    const Answers answers({"Save"});
    EXPECT_TRUE(files->mayEnd());
    EXPECT_THAT(text(answers.boxes()), HasSubstr("Changes in open editors have not been applied."));
    EXPECT_EQ(modulusOf(steel), 1e9);
    EXPECT_FALSE(isModified());
}

TEST_F(ProjectFiles, KeepTheProgramOpenIfAnEditorCannotApplyBeforeItEnds)
{
    newProject();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    editModulus(addMaterial(), QStringLiteral("stiff"));
    const Answers answers({"Save", "OK"});
    EXPECT_FALSE(files->mayEnd());
    EXPECT_TRUE(isModified());
}

TEST_F(ProjectFiles, MarkTheTitleWhileAnEditorHasChanges)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    desktop::updateTitle(*window);
    EXPECT_FALSE(window->isWindowModified());
    Gui::MDIWindow& editor = editModulus(steel, QStringLiteral("1e9"));
    desktop::updateTitle(*window);
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_THAT(window->windowTitle().toStdString(), StartsWith("Steel - a.vxmat[*] - "));
    editor.remove_viewself();
    desktop::updateTitle(*window);
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(ProjectFiles, AreProposedWithTheNameOfTheProject)
{
    Mat::DocumentMaterial& project = newProject();
    ASSERT_TRUE(vxMsg::MessageProxy::instance().renameProject(project.get_name(), "Bridge 7/8: deck"));
    QString proposed;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
            timer.stop();
            proposed = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
            dialog->reject();
        }
    });
    timer.start(1);
    run("Std_Save");
    EXPECT_EQ(proposed, "Bridge 7_8_ deck.vxmat");
}

TEST_F(ProjectFiles, AreCurrentInTheTreeWhenTheyAreOpened)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(closeProject());
    history().clear();
    ASSERT_TRUE(files->open(path("a.vxmat")));
    QCoreApplication::processEvents();
    Gui::ProjectExplorer& tree = window->getProjectExplorer();
    EXPECT_EQ(tree.currentIndex(), tree.model()->index(0, 0));
    EXPECT_EQ(window->focusWidget(), &tree);
    QTest::keyClick(window->focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(Gui::TreeSelectionSingleton::instance().is_selected(findMaterial("Steel"), nullptr));
}

TEST_F(ProjectFiles, OpenAFileOnceAlone)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    const Mat::DocumentMaterial* const first = currentProject();
    newProject();
    ASSERT_TRUE(run("Std_Open", path("./a.vxmat")));
    EXPECT_EQ(Obj::Application::get_projects().size(), 2U);
    EXPECT_TRUE(Gui::TreeSelectionSingleton::instance().is_selected(first));
}

TEST_F(ProjectFiles, DoNotTakeTheFileOfAnotherOpenProject)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    const QByteArray before = contentOf(path("a.vxmat"));
    newProject();
    const Answers answers({"OK"});
    run("Std_SaveAs", path("a.vxmat"));
    EXPECT_THAT(text(answers.boxes()), HasSubstr("which is open"));
    EXPECT_EQ(contentOf(path("a.vxmat")), before);
}

TEST_F(ProjectFiles, SayWhatIsWrongWithAFileAndOpenNothing)
{
    const std::pair<const char*, const char*> wrong[] = {
        {"", "cannot be opened"},
        {"{", "cannot be opened"},
        {"{\"a\": 1}", "cannot be opened"},
        {"{\"format\": \"vxMaterial project\", \"format_version\": 99}", "99"},
    };
    for (const auto& [content, message] : wrong) {
        writeFile(path("wrong.vxmat"), content);
        const Answers answers({"OK"});
        run("Std_Open", path("wrong.vxmat"));
        EXPECT_THAT(text(answers.boxes()), HasSubstr(message)) << content;
        EXPECT_EQ(currentProject(), nullptr);
    }
    const Answers answers({"OK", "OK"});
    run("Std_Open", path("missing.vxmat"));
    run("Std_Open", QFileInfo(path("wrong.vxmat")).absolutePath());
    EXPECT_EQ(currentProject(), nullptr);
}

TEST_F(ProjectFiles, LeaveTheOldFileWhenItCannotBeWritten)
{
    newProject();
    addMaterial();
    QDir().mkdir(path("folder.vxmat"));
    const Answers answers({"OK"});
    run("Std_SaveAs", path("folder.vxmat"));
    EXPECT_TRUE(QFileInfo(path("folder.vxmat")).isDir());
    EXPECT_TRUE(isModified());
    EXPECT_EQ(files->getFile(*currentProject()), "");
}

TEST_F(ProjectFiles, AskBeforeTheyReplaceWhatAnotherProgramWrote)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    addMaterial("Another");
    writeFile(path("a.vxmat"), "of another program");
    {
        const Answers answers({"Cancel"});
        run("Std_Save");
        EXPECT_THAT(text(answers.boxes()), HasSubstr("changed by another program"));
    }
    EXPECT_EQ(contentOf(path("a.vxmat")), "of another program");
    EXPECT_TRUE(isModified());
    {
        const Answers answers({"Replace"});
        run("Std_Save");
    }
    EXPECT_THAT(contentOf(path("a.vxmat")).toStdString(), HasSubstr("Another"));
    const Answers none;
    run("Std_Save");
}

TEST_F(ProjectFiles, WarnOfASecondProgramOnTheSameFile)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(closeProject());
    projectfile::FileLock other(path("a.vxmat"));
    ASSERT_TRUE(other.tryLock());
    {
        const Answers answers({"Cancel"});
        run("Std_Open", path("a.vxmat"));
        EXPECT_THAT(text(answers.boxes()), HasSubstr("is in use by"));
        EXPECT_EQ(answers.preferred(), "Cancel");
    }
    EXPECT_EQ(currentProject(), nullptr);
    const Answers answers({"Use anyway"});
    run("Std_Open", path("a.vxmat"));
    EXPECT_NE(currentProject(), nullptr);
}

TEST_F(ProjectFiles, AreListedTheLatestFirst)
{
    newProject();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(run("Std_SaveAs", path("b & c.vxmat")));
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    const QStringList recent = desktop::RecentFiles::list();
    ASSERT_EQ(recent.size(), 2);
    EXPECT_THAT(recent[0].toStdString(), testing::EndsWith("a.vxmat"));
    EXPECT_THAT(recent[1].toStdString(), testing::EndsWith("b & c.vxmat"));
}

TEST_F(ProjectFiles, AreOfferedInAMenu)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("b & c.vxmat")));
    ASSERT_TRUE(closeProject());
    QMenu& menu = *Gui::GuiApplication::Instance->get_command_manager().findCommand("Std_OpenRecent")->action()->menu();
    Q_EMIT menu.aboutToShow();
    ASSERT_EQ(menu.actions().size(), 1);
    EXPECT_THAT(menu.actions().front()->text().toStdString(), testing::EndsWith("b && c.vxmat"));
    menu.actions().front()->trigger();
    ASSERT_NE(currentProject(), nullptr);
    EXPECT_NE(findMaterial("Steel"), nullptr);
}

TEST_F(ProjectFiles, AreOpenedWhenTheyAreDroppedOnTheWindow)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(closeProject());
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path("a.vxmat"))});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.get(), &drop);
    EXPECT_TRUE(drop.isAccepted());
    QCoreApplication::processEvents();
    ASSERT_NE(currentProject(), nullptr);
    EXPECT_NE(findMaterial("Steel"), nullptr);
}

TEST_F(ProjectFiles, DoNotTakeTextThatIsDroppedOnTheWindow)
{
    QMimeData data;
    data.setText(QStringLiteral("a.vxmat"));
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.get(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(ProjectFiles, TakeInExchangeDocumentsAsOneStep)
{
    newProject();
    addMaterial("Steel");
    ASSERT_TRUE(run("Mat_Export", path("a.json")));
    const int steps = history().count();
    const Answers answers({"Import"});
    ASSERT_TRUE(run("Std_ImportDocument", path("a.json")));
    ASSERT_EQ(currentProject()->getObjectCount(), 2U);
    const auto* const copy = dynamic_cast<Mat::MaterialObject*>(currentProject()->getObjects().back());
    EXPECT_EQ(copy->label.getValue(), "Steel copy");
    EXPECT_EQ(modulusOf(*copy), 2e11);
    EXPECT_EQ(copy->getCMaterial()->findProperty(5)->unit, "Pa");
    EXPECT_EQ(copy->getObjectState(), Obj::eVXObjectState::Ready);
    EXPECT_EQ(history().count(), steps + 1);
    history().undo();
    EXPECT_EQ(currentProject()->getObjectCount(), 1U);
}

TEST_F(ProjectFiles, GiveImportedObjectsLabelsOfTheirOwnAndSaySo)
{
    newProject();
    addMaterial("Beams");
    addMaterial("Beams copy");
    writeFile(path("a.json"), R"({"proj_type": 2, "material": [{"mat_id": 1, "mat_name": "Beams"},
        {"mat_id": 2, "mat_name": "Beams"}, {"mat_id": 3, "mat_name": "Joints"}]})");
    const vxtest::Reports reports;
    const Answers answers({"Import"});
    ASSERT_TRUE(run("Std_ImportDocument", path("a.json")));
    std::vector<std::string> labels;
    for (const Obj::ProjectObject* const object : currentProject()->getObjects())
        labels.push_back(object->label.getValue());
    EXPECT_THAT(labels, testing::ElementsAre("Beams", "Beams copy", "Beams copy 2", "Beams copy 3", "Joints"));
    EXPECT_THAT(reports.text(), HasSubstr("a.json: Objects with a label that was in use have got another one: "
                                          R"("Beams" is now "Beams copy 2", "Beams" is now "Beams copy 3".)"));
    EXPECT_EQ(window->statusBar()->currentMessage(), "Objects imported: 3, with another label: 2");
    EXPECT_EQ(history().undoText(), "Import document or deck");
}

/// A material document of steel, with its modulus and density in mm-t-s.
QByteArray steelInMillimetres()
{
    return R"({"proj_type": 2, "material": [{"mat_id": 7, "mat_name": "Steel", "Props": [
        {"prop_type": 5, "prop_key": "E", "prop_name": "Young's modulus", "prop_value": 206900},
        {"prop_type": 6, "prop_key": "nu", "prop_name": "Poisson's ratio", "prop_value": 0.3},
        {"prop_type": 4, "prop_key": "rho", "prop_name": "Density", "prop_value": 7.85e-9}]}]})";
}

TEST_F(ProjectFiles, ConvertTheNumbersOfADocumentThatLookLikeAnotherUnitSystem)
{
    newProject();
    writeFile(path("a.json"), steelInMillimetres());
    const vxtest::Reports reports;
    {
        const Answers answers({"Import", "Convert from mm-t-s"});
        ASSERT_TRUE(run("Std_ImportDocument", path("a.json")));
        EXPECT_THAT(text(answers.boxes()), HasSubstr("The numbers in \"a.json\" look like mm-t-s."));
    }
    const Mat::MaterialObject* const steel = findMaterial("Steel");
    ASSERT_NE(steel, nullptr);
    EXPECT_DOUBLE_EQ(modulusOf(*steel), 2.069e11);
    EXPECT_DOUBLE_EQ(steel->getCMaterial()->findProperty(4)->value, 7850.0);
    EXPECT_EQ(steel->getCMaterial()->findProperty(4)->unit, "kg/m3");
    EXPECT_THAT(reports.text(), HasSubstr("The numbers were converted from mm-t-s to the units of the catalogue. "
                                          "Materials: 1"));
    history().undo();
    EXPECT_EQ(currentProject()->getObjectCount(), 0U) << "one step of the history";
}

TEST_F(ProjectFiles, TakeInNumbersAsTheyAreIfTheUserWantsThat)
{
    newProject();
    writeFile(path("a.json"), steelInMillimetres());
    const vxtest::Reports reports;
    const Answers answers({"Import", "Import as they are"});
    ASSERT_TRUE(run("Std_ImportDocument", path("a.json")));
    EXPECT_EQ(modulusOf(*findMaterial("Steel")), 206900.0);
    EXPECT_EQ(reports.text(), "") << "the user has decided about the doubt";
}

TEST_F(ProjectFiles, TakeInNothingIfTheUserCancelsTheQuestionAboutUnits)
{
    newProject();
    writeFile(path("a.json"), steelInMillimetres());
    const int steps = history().count();
    const Answers answers({"Import", "Cancel"});
    run("Std_ImportDocument", path("a.json"));
    EXPECT_EQ(currentProject()->getObjectCount(), 0U);
    EXPECT_EQ(history().count(), steps);
}

TEST_F(ProjectFiles, KeepTheSettingsOfTheirProjectWithTheirHistory)
{
    newProject();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    EXPECT_FALSE(contentOf(path("a.vxmat")).contains("settings"));
    ASSERT_TRUE(vxMsg::MessageProxy::instance().setSetting("Materials", "unit_system", "mm-t-s"));
    EXPECT_TRUE(isModified());
    history().undo();
    EXPECT_FALSE(isModified());
    history().redo();
    files->keepCopies();
    ASSERT_EQ(copies().size(), 1);
    EXPECT_TRUE(contentOf(copies().front()).contains("\"unit_system\": \"mm-t-s\"")) << "recovery restores it";
    ASSERT_TRUE(run("Std_Save"));
    EXPECT_FALSE(isModified());
    EXPECT_EQ(vxtest::faultsBySchema("project-file.schema.json", {path("a.vxmat").toStdString()}), "");
    ASSERT_TRUE(closeProject());
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    EXPECT_EQ(currentProject()->getSetting("unit_system"), "mm-t-s");
    EXPECT_FALSE(isModified());
    EXPECT_FALSE(history().canUndo());
}

TEST_F(ProjectFiles, KeepTheMeasurementsOfAMaterialWithItsHistory)
{
    newProject();
    Mat::MaterialObject& rubber = addMaterial("Rubber");
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(vxMsg::MessageProxy::instance().setSetting(rubber, "measurements", "[1, 2]"));
    EXPECT_TRUE(isModified());
    history().undo();
    EXPECT_FALSE(isModified());
    history().redo();
    files->keepCopies();
    ASSERT_EQ(copies().size(), 1);
    EXPECT_TRUE(contentOf(copies().front()).contains("\"measurements\": \"[1, 2]\"")) << "recovery restores it";
    Gui::TreeSelectionSingleton::instance().setSelection({}, {&rubber});
    ASSERT_TRUE(run("Std_DuplicateSelection"));
    ASSERT_TRUE(run("Std_Save"));
    EXPECT_EQ(vxtest::faultsBySchema("project-file.schema.json", {path("a.vxmat").toStdString()}), "");
    ASSERT_TRUE(closeProject());
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    EXPECT_EQ(findMaterial("Rubber")->getSetting("measurements"), "[1, 2]");
    EXPECT_EQ(findMaterial("Rubber copy")->getSetting("measurements"), "[1, 2]");
    EXPECT_FALSE(isModified());
    EXPECT_FALSE(history().canUndo());
}

TEST_F(ProjectFiles, TakeInNothingOfAWrongDocument)
{
    newProject();
    writeFile(path("a.json"), "{\"proj_type\": 2, \"material\": [{\"mat_id\": \"x\"}]}");
    const Answers answers({"OK"});
    run("Std_ImportDocument", path("a.json"));
    EXPECT_THAT(text(answers.boxes()), HasSubstr("a.json"));
    EXPECT_EQ(currentProject()->getObjectCount(), 0U);
}

TEST_F(ProjectFiles, HavePathsWithBlanksQuotesAndChineseCharacters)
{
    newProject();
    addMaterial();
    const QString file = path("\xE6\x9D\x90 \"a'b\" %1.vxmat");
    ASSERT_TRUE(run("Std_SaveAs", file));
    ASSERT_TRUE(closeProject());
    ASSERT_TRUE(run("Std_Open", file));
    EXPECT_NE(findMaterial("Steel"), nullptr);
}

TEST_F(ProjectFiles, KeepACopyAfterEveryApply)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    EXPECT_EQ(copies().size(), 0);
    editModulus(steel, QStringLiteral("1e9")).findChild<QAbstractButton*>(QStringLiteral("btnApply"))->click();
    ASSERT_EQ(copies().size(), 1);
    EXPECT_EQ(vxtest::faultsBySchema("project-file.schema.json", {copies().front().toStdString()}), "");
    EXPECT_TRUE(contentOf(copies().front()).contains("1000000000") || contentOf(copies().front()).contains("1e+09"));
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    EXPECT_EQ(copies().size(), 0);
}

TEST_F(ProjectFiles, KeepACopyEveryMinute)
{
    newProject();
    addMaterial();
    auto* const timer = files->findChild<QTimer*>();
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 60000);
    QMetaObject::invokeMethod(timer, "timeout");
    EXPECT_EQ(copies().size(), 1);
}

TEST_F(ProjectFiles, KeepNoCopyOfWhatHasNotChanged)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    files->keepCopies();
    EXPECT_EQ(copies().size(), 0);
}

TEST_F(ProjectFiles, OfferTheCopiesOfACrashedProgram)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    const QByteArray saved = contentOf(path("a.vxmat"));
    addMaterial("Unsaved");
    files->keepCopies();
    crash();
    {
        const Answers answers({"Recover"});
        files->offerRecovery();
    }
    ASSERT_NE(currentProject(), nullptr);
    EXPECT_NE(findMaterial("Unsaved"), nullptr);
    EXPECT_TRUE(isModified());
    EXPECT_EQ(files->getFile(*currentProject()), QFileInfo(path("a.vxmat")).canonicalFilePath());
    EXPECT_EQ(contentOf(path("a.vxmat")), saved);
    EXPECT_EQ(copies().size(), 1) << "kept until it is saved";
    {
        const Answers answers({"Replace"});
        EXPECT_TRUE(files->save(*currentProject()));
        EXPECT_THAT(text(answers.boxes()), HasSubstr("before the project was recovered"));
    }
    EXPECT_EQ(copies().size(), 0);
    EXPECT_FALSE(contentOf(path("a.vxmat")).contains("recovered_file"));
}

TEST_F(ProjectFiles, RecoverTheUnappliedRowsOfAnOpenEditor)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    editModulus(steel, "7e10");
    EXPECT_FALSE(isModified());
    files->keepCopies();
    ASSERT_EQ(copies().size(), 1) << "also without a change of the project";
    crash();
    const vxtest::Reports reports;
    {
        const Answers answers({"Recover"});
        files->offerRecovery();
    }
    const Mat::MaterialObject* const recovered = findMaterial("Steel");
    ASSERT_NE(recovered, nullptr);
    EXPECT_EQ(modulusOf(*recovered), 2e11);
    Gui::MDIWindow* const editor = window->editorOf(*recovered);
    ASSERT_NE(editor, nullptr);
    EXPECT_TRUE(editor->isWindowModified());
    EXPECT_THAT(reports.text(),
                HasSubstr("The changes of \"Steel\" that were not applied are shown in its editor again."));
    EXPECT_TRUE(Gui::TreeSelectionSingleton::instance().is_selected(recovered, nullptr));
    EXPECT_EQ(Gui::TreeSelectionSingleton::instance().getCount(), 1U);
    EXPECT_EQ(copies().size(), 1) << "the rows are in the new copy too";
    EXPECT_TRUE(editor->applyEdits());
    EXPECT_EQ(modulusOf(*recovered), 7e10);
}

TEST_F(ProjectFiles, FollowTheUnappliedRowsInTheirCopy)
{
    newProject();
    Mat::MaterialObject& steel = addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    editModulus(steel, "7e10");
    files->keepCopies();
    EXPECT_TRUE(contentOf(copies().front()).contains("7e10"));
    editModulus(steel, "8e10");
    files->keepCopies();
    EXPECT_TRUE(contentOf(copies().front()).contains("8e10"));
    window->editorOf(steel)->remove_viewself();
    files->keepCopies();
    EXPECT_EQ(copies().size(), 0) << "nothing is left that could be lost";
}

TEST_F(ProjectFiles, SayWhichRowsCannotBeRecovered)
{
    newProject();
    editModulus(addMaterial(), "7e10");
    files->keepCopies();
    crash();
    QByteArray copy = contentOf(copies().front());
    ASSERT_TRUE(copy.contains("\"checked\""));
    writeFile(copies().front(), copy.replace("\"checked\"", "\"damaged\""));
    const vxtest::Reports reports;
    const Answers answers({"Recover"});
    files->offerRecovery();
    EXPECT_THAT(reports.text(), HasSubstr("The changes of \"Steel\" that were not applied cannot be shown again."));
}

TEST_F(ProjectFiles, OfferACrashOfAProjectWithoutAFile)
{
    newProject();
    addMaterial("Unsaved");
    files->keepCopies();
    crash();
    const Answers answers({"Recover"});
    files->offerRecovery();
    EXPECT_NE(findMaterial("Unsaved"), nullptr);
    EXPECT_EQ(files->getFile(*currentProject()), "");
}

TEST_F(ProjectFiles, OfferACrashAgainLater)
{
    newProject();
    addMaterial("Unsaved");
    files->keepCopies();
    crash();
    {
        const Answers answers({"Later"});
        files->offerRecovery();
    }
    EXPECT_EQ(currentProject(), nullptr);
    {
        const Answers answers({"Discard"});
        files->offerRecovery();
    }
    EXPECT_EQ(copies().size(), 0);
    const Answers none;
    files->offerRecovery();
}

TEST_F(ProjectFiles, KeepTheOldCopyWhenNoNewOneCanBeWritten)
{
    newProject();
    addMaterial("Unsaved");
    files->keepCopies();
    crash();
    const QString copy = copies().front();
    {
        // From now on, the disk is too full for a copy.
        const vxtest::FullDisk full(100);
        const Answers answers({"Recover"});
        files->offerRecovery();
    }
    EXPECT_NE(findMaterial("Unsaved"), nullptr);
    EXPECT_TRUE(QFileInfo::exists(copy));
    EXPECT_GT(QFileInfo(copy).size(), 100);
}

TEST_F(ProjectFiles, LeaveFileAndProjectAsTheyWereOnAFullDisk)
{
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    const QByteArray before = contentOf(path("a.vxmat"));
    addMaterial("Another");
    {
        const vxtest::FullDisk full(100);
        const Answers answers({"OK"});
        run("Std_Save");
        EXPECT_THAT(text(answers.boxes()), HasSubstr("a.vxmat"));
    }
    EXPECT_EQ(contentOf(path("a.vxmat")), before);
    EXPECT_TRUE(isModified());
    ASSERT_TRUE(run("Std_SaveAs", path("elsewhere.vxmat")));
    EXPECT_FALSE(isModified());
    EXPECT_TRUE(contentOf(path("elsewhere.vxmat")).contains("Another"));
}

TEST_F(ProjectFiles, AreSavedElsewhereIfTheirFolderWasRemoved)
{
    QDir().mkdir(path("gone"));
    newProject();
    addMaterial();
    ASSERT_TRUE(run("Std_SaveAs", path("gone/a.vxmat")));
    ASSERT_TRUE(QDir(path("gone")).removeRecursively());
    addMaterial("Another");
    {
        const Answers answers({"OK"});
        run("Std_Save");
    }
    EXPECT_TRUE(isModified());
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    EXPECT_FALSE(isModified());
}

TEST_F(ProjectFiles, KeepACopyThatCannotBeRead)
{
    newProject();
    addMaterial("Unsaved");
    files->keepCopies();
    crash();
    const QString copy = copies().front();
    writeFile(copy, "not JSON");
    const Answers answers({"Recover", "OK"});
    files->offerRecovery();
    EXPECT_EQ(contentOf(copy), "not JSON");
}

TEST_F(ProjectFiles, DoNotOfferTheCopyOfAProgramThatRuns)
{
    newProject();
    addMaterial();
    files->keepCopies();
    ASSERT_EQ(copies().size(), 1);
    const Answers none;
    files->offerRecovery();
}

} // namespace
