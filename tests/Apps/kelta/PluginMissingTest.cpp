#include "KeltaTesting.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

namespace {

using testing::HasSubstr;
using vxtest::Outcome;

/// The program alone, in a folder without plug-ins.
class PluginMissing : public testing::Test
{
protected:
    PluginMissing()
    {
        QDir(folder.path()).mkpath(QStringLiteral("bin"));
        QDir(folder.path()).mkpath(QStringLiteral("plugins"));
        EXPECT_TRUE(QFile::copy(QStringLiteral(KELTA_PROGRAM), program()));
    }

    QString program() const { return folder.filePath(QStringLiteral("bin/kelta")); }

    Outcome run(const QStringList& arguments) const
    {
        QProcessEnvironment environment = vxtest::cleanEnvironment(folder.path());
        environment.insert(QStringLiteral("KELTA_PLUGIN_PATH"), folder.filePath(QStringLiteral("plugins")));
        // The program looks for its libraries relative to its own folder.
        environment.insert(
            QStringLiteral("LD_LIBRARY_PATH"),
            QDir::cleanPath(QFileInfo(QStringLiteral(KELTA_PROGRAM)).path() + QStringLiteral("/../lib")));
        return vxtest::runKelta(program(), arguments, folder.path(), environment);
    }

    QTemporaryDir folder;
};

TEST_F(PluginMissing, StartsAndSaysSo)
{
    const Outcome outcome = run({"--screenshot", "window.png"});
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("No module was found in"));
    EXPECT_EQ(QImage(folder.filePath(QStringLiteral("window.png"))).size(), QSize(1440, 860));
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(PluginMissing, StartsAndSaysSoWhenItIsBroken)
{
    vxtest::writeFile(folder.filePath(QStringLiteral("plugins/vxMaterial.module.json")),
                      R"({"module": "vxMaterial", "version": "0.1", "entries": ["initMat"]})");
    vxtest::writeFile(folder.filePath(QStringLiteral("plugins/libvxMaterial.so")), "this is no library");
    const Outcome outcome = run({"--screenshot", "window.png"});
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("libvxMaterial.so"));
    EXPECT_FALSE(QImage(folder.filePath(QStringLiteral("window.png"))).isNull());
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(PluginMissing, RunsNoCommands)
{
    vxtest::writeFile(folder.filePath(QStringLiteral("list.batch")), "Mat_NewDoc\n");
    const Outcome outcome = run({"--batch", "list.batch"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("there is no command \"Mat_NewDoc\""));
}

} // namespace
