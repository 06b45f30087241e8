#include "Kelta/PluginLoader.h"

#include "ModuleFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLibrary>
#include <gmock/gmock.h>

#include <sys/stat.h>

#ifdef VX_ADDRESS_SANITIZER
#include <sanitizer/lsan_interface.h>
#endif

namespace {

using Kelta::PluginLoader;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using vxtest::ModuleFolder;

/// Returns the counter of a copy of a counting library.
int callsIn(const ModuleFolder& folder, const QString& module)
{
    const auto count = reinterpret_cast<int (*)()>(
        QLibrary::resolve(folder.path(QStringLiteral("lib%1.so").arg(module)), "callCount"));
    return count != nullptr ? count() : -1;
}

/// Returns the reason if loading fails; empty if it succeeds.
std::string whyNot(PluginLoader& loader, const char* module)
{
    return loader.load(QString::fromLatin1(module)) ? std::string() : loader.errorText().toStdString();
}

std::vector<std::string> toStrings(const QStringList& names)
{
    std::vector<std::string> strings;
    for (const QString& name : names)
        strings.push_back(name.toStdString());
    return strings;
}

class PluginLoaderTest : public testing::Test
{
protected:
    ModuleFolder folder;
    PluginLoader loader{{QStringLiteral("/nowhere"), folder.path()}};
    vxtest::Reports reports;
};

TEST_F(PluginLoaderTest, LoadsAModuleByNameAndCallsItsEntriesOnce)
{
    folder.add("Good", "GoodPlugin", R"(["enter", "enterGui"])");
    EXPECT_EQ(whyNot(loader, "Good"), "");
    EXPECT_EQ(callsIn(folder, "Good"), 101) << "each entry once";
    EXPECT_EQ(whyNot(loader, "Good"), "");
    EXPECT_EQ(callsIn(folder, "Good"), 101);
}

TEST_F(PluginLoaderTest, LoadsAllModulesInTheOrderOfDependence)
{
    folder.add("A", "AnnouncingPlugin", R"(["enterThird"])", R"(, "needs": {"B": "1", "C": "1.0"})");
    folder.add("B", "AnnouncingPlugin", R"(["enterSecond"])", R"(, "needs": {"C": "0.9"}, "host": "0.1")");
    folder.add("C", "AnnouncingPlugin", R"(["enterFirst"])");
    const PluginLoader::Outcome outcome = loader.loadAll();
    EXPECT_THAT(toStrings(outcome.loaded), ElementsAre("C", "B", "A"));
    EXPECT_EQ(reports.text(), "first\nsecond\nthird\n");
    EXPECT_THAT(outcome.failed, IsEmpty());
}

TEST_F(PluginLoaderTest, LoadsWhatAModuleNeedsBeforeIt)
{
    folder.add("A", "AnnouncingPlugin", R"(["enterSecond"])", R"(, "needs": {"B": "1"})");
    folder.add("B", "AnnouncingPlugin", R"(["enterFirst"])");
    EXPECT_EQ(whyNot(loader, "A"), "");
    EXPECT_EQ(reports.text(), "first\nsecond\n");
}

TEST_F(PluginLoaderTest, FindsNoModulesInEmptyOrMissingFolders)
{
    const PluginLoader::Outcome outcome = loader.loadAll();
    EXPECT_THAT(outcome.loaded, IsEmpty());
    EXPECT_THAT(outcome.failed, IsEmpty());
    EXPECT_EQ(reports.text(), "");
}

TEST_F(PluginLoaderTest, TellsThatAModuleIsMissingAndWhereItLooked)
{
    PluginLoader other({QStringLiteral("/first/%1"), QStringLiteral("/second")});
    EXPECT_THAT(whyNot(other, "Absent"),
                AllOf(HasSubstr("\"Absent\""), HasSubstr("Absent.module.json"), HasSubstr("/first/%1, /second")));
}

// --- A module that fails, and other modules that work ---

TEST_F(PluginLoaderTest, NamesABrokenDescriptorAndLoadsTheRest)
{
    folder.addDescriptor("Torn", R"({"module": "Torn", )");
    folder.add("Whole", "GoodPlugin", R"(["enter"])");
    const PluginLoader::Outcome outcome = loader.loadAll();
    EXPECT_THAT(toStrings(outcome.loaded), ElementsAre("Whole"));
    EXPECT_EQ(outcome.failed.size(), 1U);
    EXPECT_EQ(reports.errors(), 1);
    EXPECT_THAT(reports.text(), AllOf(HasSubstr("\"Torn\""), HasSubstr("not JSON"),
                                      HasSubstr(folder.path("Torn.module.json").toStdString())));
}

TEST_F(PluginLoaderTest, NamesAMissingLibraryAndLoadsTheRest)
{
    folder.addDescriptor("Hollow", R"({"module": "Hollow", "version": "1", "entries": ["enter"]})");
    folder.add("Whole", "GoodPlugin", R"(["enter"])");
    EXPECT_THAT(toStrings(loader.loadAll().loaded), ElementsAre("Whole"));
    EXPECT_THAT(reports.text(), AllOf(HasSubstr("\"Hollow\""), HasSubstr(folder.path("libHollow.so").toStdString())));
}

TEST_F(PluginLoaderTest, NamesALibraryThatIsAPipeAndLoadsTheRest)
{
    folder.addDescriptor("Pipe", R"({"module": "Pipe", "version": "1", "entries": ["enter"]})");
    ASSERT_EQ(mkfifo(folder.path("libPipe.so").toLocal8Bit().constData(), 0600), 0);
    folder.add("Whole", "GoodPlugin", R"(["enter"])");
    EXPECT_THAT(toStrings(loader.loadAll().loaded), ElementsAre("Whole"));
    EXPECT_THAT(reports.text(), AllOf(HasSubstr("\"Pipe\""), HasSubstr("is not a regular file")));
}

TEST_F(PluginLoaderTest, NamesALibraryThatIsCutOffAndLoadsTheRest)
{
    for (const char* const module : {"Cut1", "Cut2", "Cut3", "Cut4"}) {
        folder.add(QString::fromLatin1(module), "GoodPlugin", R"(["enter"])");
        QFile library(folder.path(QStringLiteral("lib%1.so").arg(QString::fromLatin1(module))));
        // 40 %, 20 %, ... of the library
        ASSERT_TRUE(library.resize(library.size() * ('5' - module[3]) / 10));
    }
    folder.add("Whole", "GoodPlugin", R"(["enter"])");
    EXPECT_THAT(toStrings(loader.loadAll().loaded), ElementsAre("Whole"));
    EXPECT_THAT(reports.text(),
                AllOf(HasSubstr("\"Cut1\""), HasSubstr("libCut1.so is incomplete"), HasSubstr("\"Cut4\"")));
}

/// Loads without leak detection, because Qt does not free the name of a library whose initialisation throws.
PluginLoader::Outcome loadAllDespiteALeakOfQt(PluginLoader& loader)
{
#ifdef VX_ADDRESS_SANITIZER
    const __lsan::ScopedDisabler disabler;
#endif
    return loader.loadAll();
}

TEST_F(PluginLoaderTest, NamesALibraryWhoseInitialisationThrowsAndLoadsTheRest)
{
    folder.add("Lapsed", "StaticThrowPlugin", R"(["enter"])");
    folder.add("Whole", "GoodPlugin", R"(["enter"])");
    EXPECT_THAT(toStrings(loadAllDespiteALeakOfQt(loader).loaded), ElementsAre("Whole"));
    EXPECT_THAT(reports.text(), AllOf(HasSubstr("\"Lapsed\""), HasSubstr("the licence of the year has run out")));
}

TEST_F(PluginLoaderTest, TakesNoLibraryFromTheCurrentFolderOrThatOfTheSystem)
{
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(QStringLiteral(VX_PLUGIN_FOLDER)));
    folder.addDescriptor("Good", R"({"module": "Good", "version": "1", "entries": ["enter"],
                                     "library": "libGoodPlugin.so"})");
    EXPECT_THAT(whyNot(loader, "Good"), HasSubstr(folder.path("libGoodPlugin.so").toStdString()));
    QDir::setCurrent(before);
}

TEST_F(PluginLoaderTest, RefusesAFileThatIsNotALibrary)
{
    folder.addDescriptor("Text", R"({"module": "Text", "version": "1", "entries": ["enter"]})");
    vxtest::writeFile(folder.path("libText.so"), "Dear linker,\nthis is a letter.\n");
    EXPECT_THAT(whyNot(loader, "Text"),
                AllOf(HasSubstr("\"Text\""), HasSubstr(folder.path("libText.so").toStdString())));
}

TEST_F(PluginLoaderTest, RefusesAFolderOfTheNameOfALibrary)
{
    folder.addDescriptor("Folder", R"({"module": "Folder", "version": "1", "entries": ["enter"]})");
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("libFolder.so")));
    EXPECT_THAT(whyNot(loader, "Folder"), AllOf(HasSubstr("\"Folder\""), HasSubstr("libFolder.so")));
}

TEST_F(PluginLoaderTest, TakesAModuleThatWasMendedAtTheNextAttempt)
{
    folder.addDescriptor("Mended", R"({"module": "Mended", "version": "1", "entries": ["enter"]})");
    vxtest::writeFile(folder.path("libMended.so"), "");
    EXPECT_NE(whyNot(loader, "Mended"), "");
    ASSERT_TRUE(QFile::remove(folder.path("libMended.so")));
    folder.addLibrary("Mended", "GoodPlugin");
    EXPECT_EQ(whyNot(loader, "Mended"), "");
    EXPECT_TRUE(loader.errorText().isEmpty());
}

TEST_F(PluginLoaderTest, FindsAMissingSymbolWhenLoadingAndNotLater)
{
    folder.add("Unresolved", "UnresolvedPlugin", R"(["enter"])");
    EXPECT_THAT(whyNot(loader, "Unresolved"),
                AllOf(HasSubstr("\"Unresolved\""), HasSubstr("libUnresolved.so"), HasSubstr("nobodyHasThisFunction")));
}

TEST_F(PluginLoaderTest, CallsNoEntryIfOneIsMissing)
{
    folder.add("Partial", "WithoutEntryPlugin", R"(["enter", "enterGui"])");
    EXPECT_THAT(whyNot(loader, "Partial"),
                AllOf(HasSubstr("\"Partial\""), HasSubstr("libPartial.so"), HasSubstr("\"enterGui\"")));
    EXPECT_EQ(callsIn(folder, "Partial"), 0);
}

TEST_F(PluginLoaderTest, CatchesWhatAnEntryThrows)
{
    folder.add("Error", "ThrowingPlugin", R"(["throwError"])");
    folder.add("Number", "ThrowingPlugin", R"(["throwNumber"])");
    folder.add("Silent", "ThrowingPlugin", R"(["throwNothingToRead"])");
    folder.add("Whole", "GoodPlugin", R"(["enter"])");
    const PluginLoader::Outcome outcome = loader.loadAll();
    EXPECT_THAT(toStrings(outcome.loaded), ElementsAre("Whole"));
    EXPECT_THAT(outcome.failed.at("Error").toStdString(),
                AllOf(HasSubstr("\"throwError\""), HasSubstr("the licence of the week has run out")));
    EXPECT_THAT(outcome.failed.at("Number").toStdString(),
                AllOf(HasSubstr("\"throwNumber\""), HasSubstr("an exception of an unknown kind")));
    EXPECT_THAT(outcome.failed.at("Silent").toStdString(), HasSubstr("an exception without a text"));
}

TEST_F(PluginLoaderTest, TakesTheFirstErrorThatAnEntryReportsForItsFailure)
{
    folder.add("Errors", "ReportingPlugin", R"(["reportErrors"])");
    folder.add("Blank", "ReportingPlugin", R"(["reportWithoutText"])");
    folder.add("Warns", "ReportingPlugin", R"(["warn"])");
    const PluginLoader::Outcome outcome = loader.loadAll();
    EXPECT_THAT(outcome.failed.at("Errors").toStdString(),
                AllOf(HasSubstr("\"reportErrors\""), HasSubstr("first: %1 of 3 tables"), Not(HasSubstr("second")),
                      Not(HasSubstr("information"))));
    EXPECT_THAT(outcome.failed.at("Blank").toStdString(), HasSubstr("an error without a text"));
    EXPECT_THAT(toStrings(outcome.loaded), ElementsAre("Warns")) << "a warning is no failure";
}

TEST_F(PluginLoaderTest, StopsAtTheEntryThatFailsAndCallsItAgainTheNextTime)
{
    folder.add("Errors", "ReportingPlugin", R"(["reportErrors", "warn"])");
    EXPECT_NE(whyNot(loader, "Errors"), "");
    EXPECT_NE(whyNot(loader, "Errors"), "");
    EXPECT_EQ(reports.errors(), 4);
    EXPECT_EQ(reports.warnings(), 0);
}

TEST_F(PluginLoaderTest, SurvivesAListenerThatClearsTheLog)
{
    auto& log = Kelta::MessageLog::instance();
    const auto clearing =
        QObject::connect(&log, &Kelta::MessageLog::reported, [&log](const Kelta::LogMessage&) { log.clear(); });
    folder.add("Errors", "ReportingPlugin", R"(["reportErrors"])");
    EXPECT_THAT(whyNot(loader, "Errors"), HasSubstr("first"));
    QObject::disconnect(clearing);
}

// --- Needed modules ---

TEST_F(PluginLoaderTest, NamesWhatNeedsAModuleThatIsMissing)
{
    folder.add("Plain", "GoodPlugin", R"(["enter"])");
    folder.add("Lonely", "GoodPlugin", R"(["enter"])", R"(, "needs": {"Friend": "1"})");
    const PluginLoader::Outcome outcome = loader.loadAll();
    EXPECT_THAT(toStrings(outcome.loaded), ElementsAre("Plain"));
    EXPECT_THAT(reports.text(), AllOf(HasSubstr("\"Lonely\""), HasSubstr("\"Friend\", which is missing")));
    EXPECT_EQ(reports.errors(), 1);
}

TEST_F(PluginLoaderTest, DoesNotLoadWhatNeedsAModuleThatFailed)
{
    folder.add("A", "GoodPlugin", R"(["enter"])", R"(, "needs": {"B": "1"})");
    folder.add("B", "GoodPlugin", R"(["enter"])", R"(, "needs": {"C": "1"})");
    folder.add("C", "ThrowingPlugin", R"(["throwError"])");
    const PluginLoader::Outcome outcome = loader.loadAll();
    EXPECT_THAT(outcome.loaded, IsEmpty());
    EXPECT_THAT(outcome.failed.at("A").toStdString(), HasSubstr("\"B\", which was not loaded"));
    EXPECT_THAT(outcome.failed.at("B").toStdString(), HasSubstr("\"C\", which was not loaded"));
    EXPECT_EQ(reports.errors(), 3);
    EXPECT_EQ(callsIn(folder, "A"), 0);
}

TEST_F(PluginLoaderTest, RefusesANeedThatIsTooOld)
{
    folder.add("A", "GoodPlugin", R"(["enter"])", R"(, "needs": {"B": "1.0.1"})");
    folder.add("B", "GoodPlugin", R"(["enter"])");
    const PluginLoader::Outcome outcome = loader.loadAll();
    EXPECT_THAT(toStrings(outcome.loaded), ElementsAre("B"));
    EXPECT_THAT(outcome.failed.at("A").toStdString(),
                AllOf(HasSubstr("needs version 1.0.1 of the module \"B\""), HasSubstr("1.0")));
}

TEST_F(PluginLoaderTest, RefusesAModuleThatNeedsANewerHost)
{
    folder.add("Future", "GoodPlugin", R"(["enter"])", R"(, "host": "99.0")");
    folder.add("Present", "GoodPlugin", R"(["enter"])", R"(, "host": "0.1.0")");
    const PluginLoader::Outcome outcome = loader.loadAll();
    EXPECT_THAT(toStrings(outcome.loaded), ElementsAre("Present"));
    EXPECT_THAT(outcome.failed.at("Future").toStdString(), HasSubstr("needs version 99.0 of the program"));
    EXPECT_EQ(callsIn(folder, "Future"), 0);
}

TEST_F(PluginLoaderTest, RefusesAModuleThatNeedsItself)
{
    folder.add("Self", "GoodPlugin", R"(["enter"])", R"(, "needs": {"Self": "1"})");
    EXPECT_THAT(loader.loadAll().failed.at("Self").toStdString(), HasSubstr("it needs itself: Self > Self"));
}

TEST_F(PluginLoaderTest, RefusesACircleOfTwoAndLoadsTheRest)
{
    folder.add("A", "GoodPlugin", R"(["enter"])", R"(, "needs": {"B": "1"})");
    folder.add("B", "GoodPlugin", R"(["enter"])", R"(, "needs": {"A": "1"})");
    folder.add("C", "GoodPlugin", R"(["enter"])");
    const PluginLoader::Outcome outcome = loader.loadAll();
    EXPECT_THAT(toStrings(outcome.loaded), ElementsAre("C"));
    for (const char* const module : {"A", "B"})
        EXPECT_THAT(outcome.failed.at(module).toStdString(), HasSubstr("it needs itself: A > B > A")) << module;
    EXPECT_EQ(reports.errors(), 2);
}

TEST_F(PluginLoaderTest, RefusesACircleOfThreeAndWhatNeedsIt)
{
    folder.add("A", "GoodPlugin", R"(["enter"])", R"(, "needs": {"B": "1"})");
    folder.add("B", "GoodPlugin", R"(["enter"])", R"(, "needs": {"C": "1"})");
    folder.add("C", "GoodPlugin", R"(["enter"])", R"(, "needs": {"D": "1"})");
    folder.add("D", "GoodPlugin", R"(["enter"])", R"(, "needs": {"B": "1"})");
    const PluginLoader::Outcome outcome = loader.loadAll();
    EXPECT_THAT(outcome.loaded, IsEmpty());
    for (const char* const module : {"B", "C", "D"})
        EXPECT_THAT(outcome.failed.at(module).toStdString(), HasSubstr("it needs itself: B > C > D > B")) << module;
    EXPECT_THAT(outcome.failed.at("A").toStdString(), HasSubstr("\"B\", which was not loaded"));
}

// --- Folders ---

TEST_F(PluginLoaderTest, TakesAModuleFromTheFirstFolderThatHasIt)
{
    const ModuleFolder second;
    folder.add("Good", "GoodPlugin", R"(["enter"])");
    second.add("Good", "GoodPlugin", R"(["enter"])");
    PluginLoader both({folder.path(), second.path()});
    EXPECT_THAT(toStrings(both.loadAll().loaded), ElementsAre("Good"));
    EXPECT_EQ(callsIn(folder, "Good"), 1);
    EXPECT_EQ(callsIn(second, "Good"), 0);
}

TEST_F(PluginLoaderTest, DoesNotReplaceABrokenModuleByOneOfALaterFolder)
{
    const ModuleFolder second;
    folder.addDescriptor("Good", "no descriptor");
    second.add("Good", "GoodPlugin", R"(["enter"])");
    PluginLoader both({folder.path(), second.path()});
    EXPECT_THAT(both.loadAll().loaded, IsEmpty());
    EXPECT_EQ(reports.errors(), 1);
}

TEST_F(PluginLoaderTest, NamesAFolderThatIsCalledLikeADescriptor)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Odd.module.json")));
    EXPECT_THAT(loader.loadAll().failed.at("Odd").toStdString(), HasSubstr("is not a file"));
}

TEST(PluginLoader, LooksInTheFoldersOfTheEnvironmentAndBesideTheProgram)
{
    const QByteArray before = qgetenv("KELTA_PLUGIN_PATH");
    qputenv("KELTA_PLUGIN_PATH", "/one::/two:/one");
    EXPECT_EQ(PluginLoader::standardFolders(), QStringList({"/one", "/two"})) << "no program folder without a program";
    int argc = 1;
    char name[] = "program";
    char* argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    const QStringList folders = PluginLoader::standardFolders();
    const QString besideProgram = QCoreApplication::applicationDirPath();
    EXPECT_EQ(folders.mid(0, 2), QStringList({"/one", "/two"}));
    EXPECT_TRUE(folders.contains(besideProgram));
    EXPECT_TRUE(folders.contains(QDir::cleanPath(besideProgram + QStringLiteral("/../lib/vxMaterial"))));
    EXPECT_TRUE(folders.contains(QDir::cleanPath(besideProgram + QStringLiteral("/../lib"))));
    qputenv("KELTA_PLUGIN_PATH", before);
}

} // namespace
