#include "Kelta/PluginLoader.h"

#include "HostTesting.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace {

using Kelta::PluginLoader;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

const QString folder = QStringLiteral(VX_PLUGIN_FOLDER);

/// What the counter of a fixture plug-in says.
int callsIn(const QString& plugin)
{
    const auto count =
        reinterpret_cast<int (*)()>(QLibrary::resolve(folder + QStringLiteral("/lib%1.so").arg(plugin), "callCount"));
    return count != nullptr ? count() : -1;
}

/// Why loading fails; empty when it does not.
std::string whyNot(PluginLoader& loader, const char* plugin, const QStringList& entries)
{
    return loader.load(QString::fromLatin1(plugin), entries) ? std::string() : loader.errorText().toStdString();
}

TEST(PluginLoader, LoadsAPluginByNameAndCallsItsEntriesOnce)
{
    PluginLoader loader({QStringLiteral("/nowhere"), folder});
    const int before = callsIn(QStringLiteral("GoodPlugin"));
    EXPECT_EQ(whyNot(loader, "GoodPlugin", {"enter"}), "");
    EXPECT_EQ(callsIn(QStringLiteral("GoodPlugin")), before + 1);
    EXPECT_EQ(whyNot(loader, "GoodPlugin", {"enter", "enterGui"}), "");
    EXPECT_EQ(callsIn(QStringLiteral("GoodPlugin")), before + 101) << "each entry once";
    EXPECT_EQ(whyNot(loader, "GoodPlugin", {}), "");
}

TEST(PluginLoader, TellsThatAPluginIsMissingAndWhereItLooked)
{
    PluginLoader loader({QStringLiteral("/first/%1"), QStringLiteral("/second")});
    EXPECT_THAT(whyNot(loader, "AbsentPlugin", {"enter"}),
                AllOf(HasSubstr("\"AbsentPlugin\""), HasSubstr("libAbsentPlugin.so"), HasSubstr("/first/%1, /second")));
}

TEST(PluginLoader, RefusesAFileThatIsNoLibrary)
{
    const QTemporaryDir place;
    const QString path = place.filePath(QStringLiteral("libTextPlugin.so"));
    vxtest::writeFile(path, "Dear linker,\nthis is a letter.\n");
    PluginLoader loader({place.path()});
    EXPECT_THAT(whyNot(loader, "TextPlugin", {"enter"}),
                AllOf(HasSubstr("\"TextPlugin\""), HasSubstr(path.toStdString())));
}

TEST(PluginLoader, RefusesAFolderOfTheNameOfALibrary)
{
    const QTemporaryDir place;
    ASSERT_TRUE(QDir(place.path()).mkdir(QStringLiteral("libFolderPlugin.so")));
    PluginLoader loader({place.path()});
    EXPECT_THAT(whyNot(loader, "FolderPlugin", {"enter"}),
                AllOf(HasSubstr("\"FolderPlugin\""), HasSubstr("libFolderPlugin.so")));
}

TEST(PluginLoader, TakesAFileThatWasMendedAtTheNextAttempt)
{
    const QTemporaryDir place;
    const QString path = place.filePath(QStringLiteral("libMendedPlugin.so"));
    vxtest::writeFile(path, "");
    PluginLoader loader({place.path()});
    EXPECT_NE(whyNot(loader, "MendedPlugin", {"enter"}), "");
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QFile::copy(folder + QStringLiteral("/libGoodPlugin.so"), path));
    EXPECT_EQ(whyNot(loader, "MendedPlugin", {"enter"}), "");
    EXPECT_TRUE(loader.errorText().isEmpty());
}

TEST(PluginLoader, FindsAMissingSymbolWhenLoadingAndNotLater)
{
    PluginLoader loader({folder});
    EXPECT_THAT(whyNot(loader, "UnresolvedPlugin", {"enter"}),
                AllOf(HasSubstr("\"UnresolvedPlugin\""), HasSubstr("libUnresolvedPlugin.so"),
                      HasSubstr("nobodyHasThisFunction")));
}

TEST(PluginLoader, CallsNoEntryWhenOneIsMissing)
{
    PluginLoader loader({folder});
    EXPECT_THAT(
        whyNot(loader, "WithoutEntryPlugin", {"enter", "enterGui"}),
        AllOf(HasSubstr("\"WithoutEntryPlugin\""), HasSubstr("libWithoutEntryPlugin.so"), HasSubstr("\"enterGui\"")));
    EXPECT_EQ(callsIn(QStringLiteral("WithoutEntryPlugin")), 0);
}

TEST(PluginLoader, CatchesWhatAnEntryThrows)
{
    PluginLoader loader({folder});
    EXPECT_THAT(whyNot(loader, "ThrowingPlugin", {"throwError"}),
                AllOf(HasSubstr("\"ThrowingPlugin\""), HasSubstr("libThrowingPlugin.so"), HasSubstr("\"throwError\""),
                      HasSubstr("the licence of the week has run out")));
    EXPECT_THAT(whyNot(loader, "ThrowingPlugin", {"throwNumber"}),
                AllOf(HasSubstr("\"throwNumber\""), HasSubstr("an exception of an unknown kind")));
    EXPECT_THAT(whyNot(loader, "ThrowingPlugin", {"throwNothingToRead"}), HasSubstr("an exception without a text"));
}

TEST(PluginLoader, TakesTheFirstErrorThatAnEntryReportsForItsFailure)
{
    PluginLoader loader({folder});
    EXPECT_THAT(whyNot(loader, "ReportingPlugin", {"reportErrors"}),
                AllOf(HasSubstr("\"ReportingPlugin\""), HasSubstr("\"reportErrors\""),
                      HasSubstr("first: %1 of 3 tables"), Not(HasSubstr("second")), Not(HasSubstr("information"))));
    EXPECT_THAT(whyNot(loader, "ReportingPlugin", {"reportWithoutText"}), HasSubstr("an error without a text"));
    EXPECT_EQ(whyNot(loader, "ReportingPlugin", {"warn"}), "") << "a warning is no failure";
}

TEST(PluginLoader, StopsAtTheEntryThatFailsAndCallsItAgainTheNextTime)
{
    PluginLoader loader({folder});
    const QStringList entries{"reportErrors", "warn"};
    const vxtest::Reports reports;
    EXPECT_NE(whyNot(loader, "ReportingPlugin", entries), "");
    EXPECT_NE(whyNot(loader, "ReportingPlugin", entries), "");
    EXPECT_EQ(reports.errors(), 4);
    EXPECT_EQ(reports.warnings(), 0);
}

TEST(PluginLoader, SurvivesAListenerThatClearsTheLog)
{
    auto& log = Kelta::MessageLog::instance();
    const auto clearing =
        QObject::connect(&log, &Kelta::MessageLog::reported, [&log](const Kelta::LogMessage&) { log.clear(); });
    PluginLoader loader({folder});
    EXPECT_THAT(whyNot(loader, "ReportingPlugin", {"reportErrors"}), HasSubstr("first"));
    QObject::disconnect(clearing);
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
