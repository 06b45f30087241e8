#include "KeltaTesting.h"
#include "SchemaJudge.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>

namespace {

using testing::HasSubstr;
using vxtest::Outcome;

using ProgramFiles = vxtest::Kelta;

TEST_F(ProgramFiles, AreSavedAndOpenedByLists)
{
    const Outcome saved =
        runBatch("Mat_NewDoc\nMat_AddMaterial\nset \"Young's modulus\" 7e10\nStd_SaveAs \"a b.vxmat\"\n"
                 "set Density 2700\nStd_Save\n");
    ASSERT_EQ(saved.status, 0) << saved.errors.toStdString();
    const Outcome opened = runBatch("Std_Open \"a b.vxmat\"\nselect Material\ncards\n");
    ASSERT_EQ(opened.status, 0) << opened.errors.toStdString();
    EXPECT_THAT(opened.output.toStdString(), HasSubstr("70000000000"));
}

TEST_F(ProgramFiles, AreOpenedFromTheCommandLine)
{
    ASSERT_EQ(runBatch("Mat_NewDoc\nMat_AddMaterial\nStd_SaveAs a.vxmat\n").status, 0);
    vxtest::writeFile(path("list.batch"), "select Material\ncheck\n");
    const Outcome outcome = run({"--batch", "list.batch", "a.vxmat"});
    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
}

TEST_F(ProgramFiles, ThatCannotBeOpenedEndAProgramWithoutWindows)
{
    const Outcome outcome = run({"--screenshot", "a.png", "missing.vxmat"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("missing.vxmat"));
    EXPECT_FALSE(QFileInfo::exists(path("a.png")));
}

TEST_F(ProgramFiles, LeaveNoCopiesAndNoLocks)
{
    ASSERT_EQ(runBatch("Mat_NewDoc\nMat_AddMaterial\nStd_SaveAs a.vxmat\nset Density 1\n").status, 0);
    EXPECT_EQ(QDir(path("vxMaterial/kelta/recovery")).entryList(QDir::Files | QDir::Hidden).size(), 0);
    EXPECT_EQ(QDir(path("")).entryList({"*lock*"}, QDir::Files | QDir::Hidden).size(), 0);
}

TEST_F(ProgramFiles, WithALockOfAnotherComputerAreUsedOnlyIfForced)
{
    ASSERT_EQ(runBatch("Mat_NewDoc\nMat_AddMaterial\nStd_SaveAs a.vxmat\n").status, 0);
    vxtest::writeFile(path(".a.vxmat.lock"), "4711\nkelta\nfaraway\n\n\n");
    const QByteArray list = "Std_Open a.vxmat\nselect Material\nset Density 4321\nStd_Save\n";
    const Outcome refused = runBatch(list);
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.errors.toStdString(), HasSubstr("kelta (4711 on faraway)"));
    EXPECT_FALSE(vxtest::readFile(path("a.vxmat")).contains("4321"));
    vxtest::writeFile(path("list.batch"), list);
    const Outcome forced = run({"--force", "--batch", "list.batch"});
    EXPECT_EQ(forced.status, 0) << forced.errors.toStdString();
    EXPECT_TRUE(vxtest::readFile(path("a.vxmat")).contains("4321"));
}

TEST_F(ProgramFiles, ImportExchangeDocumentsCompletely)
{
    ASSERT_EQ(runBatch("Mat_NewDoc\nMat_AddMaterial\nMat_Export a.json\n").status, 0);
    const Outcome outcome = runBatch("Mat_NewDoc\nStd_ImportDocument a.json\nselect Material\nStd_SaveAs a.vxmat\n");
    ASSERT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    EXPECT_THAT(vxtest::readFile(path("a.vxmat")).toStdString(), HasSubstr("\"unit\": \"Pa\""));
}

TEST_F(ProgramFiles, ImportDocumentsInTheUnitsOfTheList)
{
    vxtest::writeFile(path("a.json"),
                      R"({"proj_type": 2, "material": [{"mat_id": 1, "mat_name": "Steel", "Props": [)"
                      R"({"prop_type": 5, "prop_key": "E", "prop_name": "Young's modulus", "prop_value": 206900},)"
                      R"({"prop_type": 6, "prop_key": "nu", "prop_name": "Poisson's ratio", "prop_value": 0.3},)"
                      R"({"prop_type": 4, "prop_key": "rho", "prop_name": "Density", "prop_value": 7.85e-9}]}]})");
    const Outcome converted = runBatch("Mat_NewDoc\nStd_ImportDocument a.json mm-t-s\nStd_SaveAs a.vxmat\n");
    EXPECT_EQ(converted.status, 0);
    EXPECT_THAT(converted.errors.toStdString(),
                HasSubstr("The numbers were converted from mm-t-s to the units of the catalogue. Materials: 1\n"));
    EXPECT_TRUE(vxtest::readFile(path("a.vxmat")).contains("\"value\": 2.069e+11,"));
    const Outcome asTheyAre = runBatch("Mat_NewDoc\nStd_ImportDocument a.json\nStd_SaveAs b.vxmat\n");
    EXPECT_EQ(asTheyAre.status, 0) << "a list is not asked";
    EXPECT_THAT(asTheyAre.errors.toStdString(), HasSubstr("The numbers look like mm-t-s, not SI. "));
    EXPECT_TRUE(vxtest::readFile(path("b.vxmat")).contains("\"value\": 206900,"));
    const Outcome other = runBatch("Mat_NewDoc\nStd_ImportDocument a.json in-lbf-s\n");
    EXPECT_THAT(other.errors.toStdString(), HasSubstr("The numbers look like mm-t-s, not in-lbf-s. "));
    EXPECT_THAT(other.errors.toStdString(), HasSubstr("the second argument of Std_ImportDocument gives it"));
    const Outcome wrong = runBatch("Mat_NewDoc\nStd_ImportDocument a.json mm-t\n");
    EXPECT_EQ(wrong.status, 1);
    EXPECT_THAT(wrong.errors.toStdString(), HasSubstr("list.batch:2: "));
}

TEST_F(ProgramFiles, RecordTheUnitSystemOfTheirProject)
{
    const Outcome outcome = runBatch("Mat_NewDoc\nMat_Units MM-T-S\nStd_SaveAs a.vxmat\nMat_Units\n"
                                     "Std_SaveAs b.vxmat\nStd_Undo\nStd_SaveAs c.vxmat\nMat_Units furlongs\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("list.batch:8: "));
    EXPECT_TRUE(vxtest::readFile(path("a.vxmat")).contains("\"unit_system\": \"mm-t-s\""));
    EXPECT_FALSE(vxtest::readFile(path("b.vxmat")).contains("settings"));
    EXPECT_TRUE(vxtest::readFile(path("c.vxmat")).contains("\"unit_system\": \"mm-t-s\""));
}

TEST_F(ProgramFiles, AreValidByTheirSchemas)
{
    const Outcome outcome = runBatch("Mat_NewDoc\nMat_AddMaterial\nuse \"Plastic Example 1\"\nMat_AddMaterial\nclear\n"
                                     "Mat_AddMaterial\nStd_Suppress\nStd_SaveAs a.vxmat\nMat_Export a.json\n");
    ASSERT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    EXPECT_EQ(vxtest::faultsBySchema("project-file.schema.json", {path("a.vxmat").toStdString()}), "");
    EXPECT_EQ(vxtest::faultsBySchema("exchange-document.schema.json", {path("a.json").toStdString()}), "");
}

TEST_F(ProgramFiles, FailToBeSavedOnAFullDevice)
{
    const Outcome outcome = runBatch("Mat_NewDoc\nMat_AddMaterial\nStd_SaveAs /dev/full\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("/dev/full"));
}

TEST_F(ProgramFiles, LeaveNoCopiesOfAListThatIsKilled)
{
    vxtest::writeFile(path("list.batch"), "Mat_NewDoc\nMat_AddMaterial\nset Density 4321\nsay set\n" +
                                              QByteArray("screenshot a.png\n").repeated(1000));
    QProcess program;
    program.setProcessEnvironment(vxtest::cleanEnvironment(path("")));
    program.setWorkingDirectory(path(""));
    program.start(QStringLiteral(KELTA_PROGRAM), {QStringLiteral("--batch"), QStringLiteral("list.batch")});
    ASSERT_TRUE(program.waitForReadyRead(vxtest::patience));
    program.kill();
    ASSERT_TRUE(program.waitForFinished(vxtest::patience));
    EXPECT_FALSE(QDir(path("vxMaterial/kelta/recovery")).exists());
}

TEST_F(ProgramFiles, AreNotWrittenElsewhereWithoutAHomeAndATemporaryFolder)
{
    vxtest::writeFile(path("list.batch"), "Mat_NewDoc\nMat_AddMaterial\nset Density 4321\nStd_SaveAs a.vxmat\n");
    QProcessEnvironment environment = vxtest::cleanEnvironment(path(""));
    for (const char* const name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        environment.remove(QLatin1String(name));
    environment.insert(QStringLiteral("TMPDIR"), QStringLiteral("/no/such/folder"));
    const auto outcome = vxtest::runKelta(QStringLiteral(KELTA_PROGRAM), {"--keep-copies", "--batch", "list.batch"},
                                          path(""), environment);
    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    EXPECT_THAT(outcome.errors.toStdString(), testing::HasSubstr("HOME is not the name of a folder"));
    EXPECT_EQ(QDir(path("")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
              (QStringList{"a.vxmat", "list.batch"}));
    EXPECT_FALSE(QDir(QStringLiteral("/.local/share/vxMaterial/kelta")).exists());
    EXPECT_FALSE(QFile::exists(QStringLiteral("/.config/vxMaterial/kelta.conf")));
}

} // namespace
