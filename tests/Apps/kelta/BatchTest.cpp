#include "KeltaTesting.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;
using vxtest::Outcome;

using Batch = vxtest::Kelta;

std::string errorsOf(const Outcome& outcome)
{
    return outcome.errors.toStdString();
}

TEST_F(Batch, DoesNothingWithAnEmptyList)
{
    const Outcome outcome = runBatch("\n   \n# a comment\n  # another\n");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(errorsOf(outcome), "");
    EXPECT_EQ(outcome.output, "");
}

TEST_F(Batch, IsSilentWithoutAFolderOfTheSession)
{
    vxtest::writeFile(path("list.batch"), "Mat_NewDoc\n");
    QProcessEnvironment environment = vxtest::cleanEnvironment(path(""));
    environment.remove(QStringLiteral("XDG_RUNTIME_DIR"));
    const Outcome outcome =
        vxtest::runKelta(QStringLiteral(KELTA_PROGRAM), {"--batch", path("list.batch")}, path(""), environment, {});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(errorsOf(outcome), "");
}

TEST_F(Batch, MakesAMaterialAndExportsIt)
{
    const Outcome outcome = runBatch("Mat_NewDoc\r\nMat_AddMaterial\r\nMat_Export \"a b.json\"\r\n");
    ASSERT_EQ(outcome.status, 0) << errorsOf(outcome);
    const QJsonObject document = QJsonDocument::fromJson(vxtest::readFile(path("a b.json"))).object();
    EXPECT_EQ(document["proj_type"].toInt(), 2);
    EXPECT_EQ(document["material"].toArray().size(), 1);
}

TEST_F(Batch, ShowsAndHidesTheDockOfTheInspector)
{
    const Outcome outcome =
        runBatch("Mat_NewDoc\nMat_AddMaterial\nlabel Frame\nselect Frame\nDock_Inspector\nDock_Inspector\n");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(errorsOf(outcome), "");
}

TEST_F(Batch, NamesFileAndLineOfAnUnknownCommand)
{
    const Outcome outcome = runBatch("Mat_NewDoc\n\nMat_Nowhere\nMat_AddMaterial\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(errorsOf(outcome), "list.batch:3: there is no command \"Mat_Nowhere\"\n");
}

TEST_F(Batch, SaysThatACommandCannotBeDoneNow)
{
    EXPECT_THAT(errorsOf(runBatch("Mat_AddMaterial\n")),
                EndsWith("list.batch:1: Mat_AddMaterial cannot be done now\n"));
    EXPECT_THAT(errorsOf(runBatch("Std_Undo\n")), EndsWith("list.batch:1: Std_Undo cannot be done now\n"));
}

TEST_F(Batch, CannotReadAFileThatIsNotThere)
{
    const Outcome outcome = run({"--batch", "missing.batch"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(errorsOf(outcome), StartsWith("missing.batch: "));
}

TEST_F(Batch, CannotReadAFolder)
{
    EXPECT_EQ(run({"--batch", "."}).status, 2);
}

TEST_F(Batch, ReadsStandardInput)
{
    // The standard input is closed.
    EXPECT_EQ(run({"--batch", "-"}).status, 0);
}

TEST_F(Batch, WritesBoxesWithMarkupAsPlainText)
{
    const Outcome outcome = runBatch("Std_About\n");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(errorsOf(outcome), HasSubstr("kelta "));
    EXPECT_THAT(errorsOf(outcome), testing::Not(HasSubstr("<")));
}

TEST_F(Batch, AnswersBoxesAndFailsWhenTheyWarn)
{
    const Outcome outcome = runBatch("Mat_NewDoc\nMat_Export no/such/folder.json\n");
    EXPECT_EQ(outcome.status, 1);
    const std::string box = "Export materials: \"no/such/folder.json\" cannot be written: No such file or directory.\n";
    EXPECT_EQ(errorsOf(outcome), box + "list.batch:2: " + box);
}

TEST_F(Batch, FailsWhenTheMaterialsAreNotReady)
{
    const Outcome outcome = runBatch("Mat_NewDoc\nMat_AddMaterial\nselect Material\nclear\ncheck\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(errorsOf(outcome), HasSubstr("Not ready in \"Materials\": 1 of 1 materials. Findings: 1."));
    EXPECT_THAT(errorsOf(outcome), HasSubstr("list.batch:5: "));
}

TEST_F(Batch, RefusesWrongArguments)
{
    for (const auto& [line, reason] :
         {std::pair("select Nobody", "the current project has no object with the label"),
          std::pair("label", "give a label, and select exactly one object"),
          std::pair("label A B", "give a label, and select exactly one object"),
          std::pair("select-project Nowhere", "there is no such project"),
          std::pair("use Unobtainium", "the library has no material \"Unobtainium\""),
          std::pair("set Colour 7", "the catalogue has no quantity \"Colour\""),
          std::pair("set Density", "a quantity and its value"), std::pair("Mat_Export a b", "needs one argument"),
          std::pair("Mat_Export", "needs one argument"), std::pair("Mat_NewDoc", "is open; close it first"),
          std::pair("Std_Copy a b", "takes at most one argument"),
          std::pair("set E \"210 GPas\"", "Did you mean \"210 GPa\"?"),
          std::pair("screenshot", "one file name is needed"),
          std::pair("screenshot no/such/folder.png", "cannot be written"),
          std::pair("database all", "arguments are not allowed here"),
          std::pair("collect all", "arguments are not allowed here"),
          std::pair("clear all", "arguments are not allowed here"),
          std::pair("cards all", "arguments are not allowed here"),
          std::pair("check all", "arguments are not allowed here")})
    {
        SCOPED_TRACE(line);
        const Outcome outcome = runBatch(QByteArray("Mat_NewDoc\nMat_AddMaterial\nselect Material\n") + line + "\n");
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(errorsOf(outcome), HasSubstr("list.batch:4: "));
        EXPECT_THAT(errorsOf(outcome), HasSubstr(reason));
    }
}

TEST_F(Batch, RefusesAValueThatIsNone)
{
    const Outcome outcome = runBatch("Mat_NewDoc\nMat_AddMaterial\nselect Material\nset Density heavy\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(errorsOf(outcome), HasSubstr("list.batch:4: "));
}

TEST_F(Batch, CopiesAndPastesWordsAndLists)
{
    const Outcome outcome = runBatch("Mat_NewDoc\nMat_AddMaterial\nselect Material\nuse \"Plastic Example 1\"\n"
                                     "Std_Copy\nStd_Paste\nlabel Copy\ncards\n");
    ASSERT_EQ(outcome.status, 0) << errorsOf(outcome);
    // The cards of the copy equal the cards of the original.
    const int copy = outcome.output.indexOf("\nCopy\n");
    ASSERT_GT(copy, 0);
    const QString original = outcome.output.mid(QString("Material\n").size(), copy + 1 - QString("Material\n").size());
    EXPECT_EQ(original.trimmed(), outcome.output.mid(copy + QString("\nCopy\n").size()).trimmed());
    EXPECT_THAT(original.toStdString(), HasSubstr(","));
}

TEST_F(Batch, OpensEditorsAgainAfterTheyWereClosed)
{
    const Outcome outcome = runBatch("Mat_NewDoc\nMat_AddMaterial\nselect Material\nMat_Edit\nStd_CloseWindow\n"
                                     "Mat_Edit\nStd_CloseWindow\n");
    EXPECT_EQ(outcome.status, 0) << errorsOf(outcome);
}

TEST_F(Batch, ActsOnTheSelectionInTheTreeWhileAnEditorIsOpen)
{
    const Outcome outcome = runBatch("Mat_NewDoc\nMat_AddMaterial\nselect Material\nMat_Edit\nStd_DuplicateSelection\n"
                                     "Std_Copy\nStd_Paste\nMat_Edit\nStd_Delete\n");
    EXPECT_EQ(outcome.status, 0) << errorsOf(outcome);
}

TEST_F(Batch, DeletesAndUndoes)
{
    const Outcome outcome = runBatch("Mat_NewDoc\nMat_AddMaterial\nMat_AddMaterial\nStd_SelectAll\nMat_Edit\n"
                                     "Mat_Delete\nStd_Undo\nselect Material\nselect Material1\nselect-project\n"
                                     "Mat_DelDoc\nStd_Undo\nselect Material\ndatabase\n");
    ASSERT_EQ(outcome.status, 0) << errorsOf(outcome);
    const QJsonObject database = QJsonDocument::fromJson(outcome.output.toUtf8()).object();
    EXPECT_EQ(database["projects"].toArray().size(), 1);
}

TEST_F(Batch, DoesTheTour)
{
    QDir(path(".")).mkdir("out");
    const Outcome outcome = run({"--batch", KELTA_TOUR});
    ASSERT_EQ(outcome.status, 0) << errorsOf(outcome);
    const QJsonObject document = QJsonDocument::fromJson(vxtest::readFile(path("out/tour.json"))).object();
    EXPECT_EQ(document["material"].toArray().size(), 2);
    EXPECT_EQ(document["material"].toArray()[0].toObject()["mat_name"].toString(), "Frame");
    EXPECT_TRUE(vxtest::readFile(path("out/tour.vxmat")).contains("\"Resin\""));
    const QImage picture(path("out/tour.png"));
    EXPECT_GE(picture.width(), 800);
    EXPECT_THAT(outcome.output.toStdString(), HasSubstr("Resin"));
}

TEST_F(Batch, ReplacesNoOtherProject)
{
    ASSERT_EQ(runBatch("Mat_NewDoc\nMat_AddMaterial\nStd_SaveAs own.vxmat\nStd_SaveAs own.vxmat\n").status, 0);
    const QByteArray before = vxtest::readFile(path("own.vxmat"));
    ASSERT_FALSE(before.isEmpty());
    for (const char* const command : {"Std_SaveAs", "Std_Save"}) {
        const Outcome outcome = runBatch(QByteArray("Mat_NewDoc\n") + command + " own.vxmat\n");
        EXPECT_EQ(outcome.status, 1) << command;
        EXPECT_THAT(errorsOf(outcome), HasSubstr("own.vxmat\" exists already")) << command;
        EXPECT_EQ(vxtest::readFile(path("own.vxmat")), before) << command;
    }
}

TEST_F(Batch, ReplacesNoProjectByAPicture)
{
    vxtest::writeFile(path("own.vxmat"), "{}");
    const Outcome verb = runBatch("Mat_NewDoc\nscreenshot own.vxmat\n");
    EXPECT_EQ(verb.status, 1);
    EXPECT_THAT(errorsOf(verb), HasSubstr("own.vxmat is not a picture and is not replaced"));
    EXPECT_EQ(run({"--screenshot", "own.vxmat"}).status, 2);
    EXPECT_EQ(vxtest::readFile(path("own.vxmat")), "{}");
    vxtest::writeFile(path("empty.png"), "");
    EXPECT_EQ(runBatch("screenshot empty.png\nscreenshot empty.png\n").status, 0);
    EXPECT_FALSE(QImage(path("empty.png")).isNull());
}

TEST_F(Batch, SavesTheColoursThatUndoRestores)
{
    const Outcome outcome = runBatch("Mat_NewDoc\nMat_AddMaterial\nselect Material\n"
                                     "property MaterialColor \"1, 0.25, 0, 0\"\nStd_SaveAs a.vxmat\n"
                                     "Mat_Delete\nStd_Undo\nStd_CloseProject\nStd_Undo\nStd_SaveAs b.vxmat\n"
                                     "select Material\nproperties\n");
    ASSERT_EQ(outcome.status, 0) << errorsOf(outcome);
    EXPECT_THAT(outcome.output.toStdString(), HasSubstr("MaterialColor = 1, 0.25, 0, 0\n"));
    EXPECT_EQ(vxtest::readFile(path("b.vxmat")), vxtest::readFile(path("a.vxmat")));
}

TEST_F(Batch, FailsIfACommandGetsNoFileName)
{
    for (const char* const line : {"Std_Save", "Std_SaveAs", "Std_SaveAs \"\"", "Std_Open", "Std_ImportDocument"}) {
        SCOPED_TRACE(line);
        const Outcome outcome = runBatch(QByteArray("Mat_NewDoc\nMat_AddMaterial\n") + line + "\nsay more\n");
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(errorsOf(outcome), HasSubstr("list.batch:3: "));
        EXPECT_THAT(errorsOf(outcome), HasSubstr("needs one argument, the name of a file"));
        EXPECT_EQ(outcome.output, "");
    }
}

TEST_F(Batch, FailsIfACommandDoesNotUseItsFile)
{
    const Outcome outcome = runBatch("Mat_NewDoc\nMat_AddMaterial\nStd_Save first.vxmat\nStd_Save second.vxmat\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(errorsOf(outcome), "list.batch:4: Std_Save did not use the argument \"second.vxmat\"\n");
    EXPECT_TRUE(QFile::exists(path("first.vxmat")));
}

TEST_F(Batch, FailsIfACommandHasNothingToActOn)
{
    for (const char* const line : {"Mat_Edit", "Mat_Delete", "Mat_DelDoc", "Mat_Import a.csv"}) {
        SCOPED_TRACE(line);
        const Outcome outcome = runBatch(QByteArray("Mat_NewDoc\nMat_AddMaterial\nselect\n") + line + "\n");
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(errorsOf(outcome), HasSubstr("list.batch:4: "));
    }
}

TEST_F(Batch, FailsAtTextBehindAZeroCharacter)
{
    const Outcome outcome = runBatch(QByteArray("say one\nsay two\0 three\nsay four\n", 31));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "one\n");
    EXPECT_EQ(errorsOf(outcome), "list.batch:2: the line contains a zero character\n");
}

TEST_F(Batch, ReadsUtf8Alone)
{
    EXPECT_EQ(runBatch("say \xC3\xA4\xE5\xBC\xB9\n").output, QString::fromUtf8("\xC3\xA4\xE5\xBC\xB9\n"));
    const Outcome outcome = runBatch("say one\nlabel \xE4\n");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(errorsOf(outcome), "list.batch: the list is not UTF-8\n");
    EXPECT_EQ(outcome.output, "");
}

TEST_F(Batch, PassesNoControlCharactersToTheTerminal)
{
    const Outcome outcome = runBatch("Mat_NewDoc\nMat_AddMaterial\nlabel \"a\x1B[31mb\"\ncards\nproperties\n"
                                     "select \"c\x1B[2J\xC2\x9B\"\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output.toStdString(), testing::StartsWith("a\\u001b[31mb\n"));
    EXPECT_THAT(outcome.output.toStdString(), HasSubstr("Label = a\\u001b[31mb\n"));
    EXPECT_EQ(errorsOf(outcome),
              "list.batch:6: the current project has no object with the label \"c\\u001b[2J\\u009b\"\n");
}

TEST_F(Batch, EndsAtQuit)
{
    EXPECT_EQ(runBatch("Mat_NewDoc\nStd_Quit\n\n# the end\n").status, 0);
    const Outcome outcome = runBatch("Mat_NewDoc\nStd_Quit\nsay more\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(errorsOf(outcome), EndsWith("list.batch:3: the program has been closed by Std_Quit; no line may "
                                            "follow\n"));
}

TEST_F(Batch, FailsIfItsOutputCannotBeWritten)
{
    for (const char* const line : {"say more", "cards", "database", "properties", "screenshot /dev/full"}) {
        SCOPED_TRACE(line);
        vxtest::writeFile(path("list.batch"),
                          QByteArray("Mat_NewDoc\nMat_AddMaterial\nselect Material\n") + line + "\n");
        const Outcome outcome = run({"--batch", "list.batch"}, "/dev/full");
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(errorsOf(outcome), HasSubstr("list.batch:4: "));
        EXPECT_THAT(errorsOf(outcome), HasSubstr("cannot be written"));
    }
}

TEST_F(Batch, ReadsNoListThatNeverEnds)
{
    const Outcome outcome = run({"--batch", "/dev/zero"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(errorsOf(outcome), "/dev/zero: this is not a regular file\n");
    QFile list(path("long.batch"));
    ASSERT_TRUE(list.open(QIODevice::WriteOnly) && list.resize(qint64{100} << 20));
    EXPECT_EQ(errorsOf(run({"--batch", "long.batch"})), "long.batch: the list is longer than 64 MiB\n");
}

TEST_F(Batch, TellsHowItIsUsed)
{
    EXPECT_EQ(run({"--help"}).status, 0);
    EXPECT_THAT(run({"--version"}).output.toStdString(), StartsWith("kelta "));
    EXPECT_EQ(run({"--no-such-option"}).status, 2);
    EXPECT_EQ(run({"--batch"}).status, 2);
}

TEST_F(Batch, SpeaksTheLanguageItIsAskedTo)
{
    vxtest::writeFile(path("list.batch"), "Mat_Nowhere\n");
    const Outcome outcome = run({"--language", "de", "--batch", "list.batch"});
    EXPECT_EQ(errorsOf(outcome), "list.batch:1: es gibt keinen Befehl „Mat_Nowhere“\n");
}

TEST_F(Batch, RefusesALanguageWithoutTexts)
{
    vxtest::writeFile(path("list.batch"), "Mat_Nowhere\n");
    for (const char* const language : {"xx", "german", "zh_TW"}) {
        const Outcome outcome = run({"--language", language, "--batch", "list.batch"});
        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(errorsOf(outcome),
                    StartsWith("--language: \"" + std::string(language) + "\" is not one of de, en, zh_CN\n"));
    }
    const Outcome austrian = run({"--language", "de_AT", "--batch", "list.batch"});
    EXPECT_EQ(errorsOf(austrian), "list.batch:1: es gibt keinen Befehl „Mat_Nowhere“\n");
}

TEST_F(Batch, SavesAScreenshot)
{
    EXPECT_EQ(run({"--screenshot", "window.png"}).status, 0);
    EXPECT_EQ(QImage(path("window.png")).size(), QSize(1440, 860));
    const Outcome refused = run({"--language", "de", "--screenshot", "no/such/window.png"});
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(errorsOf(refused), "kelta: no/such/window.png kann nicht geschrieben werden\n");
}

} // namespace
