#include "KeltaTesting.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using vxtest::Outcome;

/// The program with plug-ins, whose loader reports each library that it loads.
class InspectorPlugin : public testing::Test
{
protected:
    InspectorPlugin()
    {
        environment.insert(QStringLiteral("LD_DEBUG"), QStringLiteral("files"));
        // The first window on the screen of tests has no room for the inspector.
        vxtest::writeFile(folder.filePath(QStringLiteral("empty.batch")), "Dock_Inspector\n");
        vxtest::writeFile(folder.filePath(QStringLiteral("list.batch")),
                          "Dock_Inspector\nMat_NewDoc\nMat_AddMaterial\n");
    }

    std::string errorsOf(const QStringList& arguments, int status) const
    {
        const Outcome outcome = vxtest::runKelta(QStringLiteral(KELTA_PROGRAM), arguments, folder.path(), environment);
        EXPECT_EQ(outcome.status, status) << outcome.errors.toStdString();
        return outcome.errors.toStdString();
    }

    QTemporaryDir folder;
    QProcessEnvironment environment = vxtest::cleanEnvironment(folder.path());
};

TEST_F(InspectorPlugin, LoadsItsTabsAndPlotsAfterTheFirstPicture)
{
    EXPECT_THAT(
        errorsOf({"--batch", "empty.batch"}, 0),
        AllOf(HasSubstr("libvxInspector.so"), Not(HasSubstr("libvxInspectorTabs.so")), Not(HasSubstr("libqwt"))));
    EXPECT_THAT(errorsOf({"--batch", "list.batch", "--screenshot", "window.png"}, 0),
                AllOf(HasSubstr("libvxInspectorTabs.so"), HasSubstr("libqwt")));
}

TEST_F(InspectorPlugin, SaysThatTheLibraryOfItsTabsIsMissing)
{
    const QDir libraries(QFileInfo(QStringLiteral(KELTA_PROGRAM)).path() + QStringLiteral("/../lib"));
    const QDir plugins(folder.filePath(QStringLiteral("plugins")));
    plugins.mkpath(QStringLiteral("."));
    for (const char* const name : {"vxMaterial", "vxInspector"}) {
        for (const QString& file : {QStringLiteral("lib%1.so"), QStringLiteral("%1.module.json")}) {
            const QString copied = file.arg(QLatin1String(name));
            ASSERT_TRUE(QFile::copy(libraries.filePath(copied), plugins.filePath(copied)));
        }
    }
    environment.remove(QStringLiteral("LD_DEBUG"));
    environment.insert(QStringLiteral("KELTA_PLUGIN_PATH"), plugins.path());
    environment.insert(QStringLiteral("LD_LIBRARY_PATH"), libraries.canonicalPath());
    EXPECT_THAT(errorsOf({"--batch", "list.batch", "--screenshot", "window.png"}, 1),
                AllOf(HasSubstr("The inspector cannot be loaded: the file "),
                      HasSubstr("/plugins/libvxInspectorTabs.so is missing")));
}

} // namespace
