#include "KeltaTesting.h"
#include "KillRounds.h"

#include "projectfile/ProjectFile.h"
#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyId.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cmath>

namespace {

/// Returns the number of the change in a project file: the density of the first material. The test fails if the file is
/// incomplete.
int changeIn(const QString& path)
{
    try {
        const projectfile::ProjectRecord project = projectfile::readProject(vxtest::readFile(path).toStdString());
        EXPECT_EQ(project.objects.size(), 200U) << path.toStdString();
        double density = 0;
        EXPECT_TRUE(project.objects.at(0).material->getPropertyValue(vxMat::PropertyId::Density, density));
        return static_cast<int>(std::lround(density));
    } catch (const std::exception& error) {
        ADD_FAILURE() << path.toStdString() << ": " << error.what();
        return 0;
    }
}

/// Returns the number in the last line that begins with `word`; 0 if there is no such line.
int lastSaid(const QByteArray& output, const QByteArray& word)
{
    int last = 0;
    for (const QByteArray& line : output.split('\n'))
        if (line.startsWith(word + ' '))
            last = std::max(last, line.mid(word.size() + 1).toInt());
    return last;
}

/// A program that is killed while it changes and saves a project, in a given call that changes files. The calls, unlike
/// times, cover each point of its work on a machine of any speed.
class Kill : public vxtest::Kelta
{
protected:
    Kill()
    {
        first.copyFrom(vxMat::StructuralSteel());
        projectfile::ProjectRecord project;
        project.name = "Materials";
        for (std::uint32_t id = 1; id <= 200; ++id) {
            projectfile::ObjectRecord object;
            object.objectId = id;
            object.className = "Mat::MaterialObject";
            object.internalName = object.label = "Material" + std::to_string(id);
            object.material = &first;
            project.objects.push_back(std::move(object));
        }
        project.nextObjectId = 201;
        first.properties.at(vxMat::PropertyId::Density)->value = change;
        vxtest::writeFile(path("p.vxmat"), QByteArray::fromStdString(projectfile::writeProject(project)));
    }

    QStringList copies() const
    {
        const QDir folder(path("vxMaterial/kelta/recovery"));
        QStringList paths;
        for (const QString& name : folder.entryList({QStringLiteral("*.vxmat")}, QDir::Files))
            paths << folder.filePath(name);
        return paths;
    }

    /// Opens the project and makes the next three changes, each followed by the commands `afterChange`, in which # is
    /// the number of the change. Kills the program in call `lastCall`; 0 for never. Returns its output.
    QByteArray change3Times(const QByteArray& afterChange, int lastCall)
    {
        QByteArray commands = "Std_Open p.vxmat\nselect Material1\n";
        for (int number = change + 1; number <= change + 3; ++number)
            commands +=
                QByteArray("set Density #\nsay applied #\n" + afterChange).replace('#', QByteArray::number(number));
        vxtest::writeFile(path("list.batch"), commands + "Std_SaveAs end.vxmat\n");
        QFile::remove(path("calls"));
        QFile::remove(path("end.vxmat"));
        QProcessEnvironment environment = vxtest::cleanEnvironment(path(""));
        environment.insert(QStringLiteral("VX_DIE_IN_FILE_CALL"), QString::number(lastCall));
        environment.insert(QStringLiteral("VX_FILE_CALLS"), path("calls"));
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(path(""));
        program.start(QStringLiteral(MORTAL_KELTA),
                      {QStringLiteral("--keep-copies"), QStringLiteral("--batch"), QStringLiteral("list.batch")});
        EXPECT_TRUE(program.waitForFinished(vxtest::patience)) << program.errorString().toStdString();
        EXPECT_TRUE(lastCall > 0 || program.exitCode() == 0) << program.readAllStandardError().toStdString();
        return program.readAllStandardOutput();
    }

    /// Returns the calls of the last run, except the calls of the last command.
    QList<QByteArray> calls() const
    {
        QList<QByteArray> names;
        for (const QByteArray& name : vxtest::readFile(path("calls")).split('\n')) {
            if (name.contains("end.vxmat"))
                break;
            names << name;
        }
        return names;
    }

    /// Kills the program in calls from the first to the last, and passes its output to `check`.
    template <class Check>
    void killInAllPartsOf(const QByteArray& afterChange, const Check& check)
    {
        EXPECT_EQ(lastSaid(change3Times(afterChange, 0), "applied"), change + 3);
        const int last = calls().size();
        EXPECT_GT(last, 20) << "calls are not counted";
        change = changeIn(path("p.vxmat"));
        const int rounds = vxtest::killRounds();
        for (int round = 0; round < rounds && !HasFailure(); ++round) {
            const QByteArray output = change3Times(afterChange, 1 + round * (last - 1) / std::max(1, rounds - 1));
            SCOPED_TRACE("killed in the last of " + calls().join(", ").toStdString());
            check(output);
            for (const QString& copy : copies())
                QFile::remove(copy);
        }
    }

    vxMat::CMaterial first;
    int change = 1; ///< the number of the change in the file
};

TEST_F(Kill, WhileSavingLeavesTheOldOrTheNewFile)
{
    killInAllPartsOf("Std_Save\nsay saved #\n", [this](const QByteArray& output) {
        const int inFile = changeIn(path("p.vxmat"));
        const int applied = lastSaid(output, "applied");
        EXPECT_GE(inFile, std::max(lastSaid(output, "saved"), change));
        int newest = inFile;
        for (const QString& copy : copies())
            newest = std::max(newest, changeIn(copy));
        EXPECT_GE(newest, applied);
        EXPECT_LE(newest, std::max(applied, change) + 1);
        change = inFile;
    });
}

TEST_F(Kill, WhileKeepingCopiesLosesNoChange)
{
    const QByteArray before = vxtest::readFile(path("p.vxmat"));
    killInAllPartsOf("", [&](const QByteArray& output) {
        EXPECT_EQ(vxtest::readFile(path("p.vxmat")), before);
        const int applied = lastSaid(output, "applied");
        const QStringList kept = copies();
        EXPECT_LE(kept.size(), 1);
        EXPECT_TRUE(!kept.isEmpty() || applied == 0) << "no copy of change " << applied;
        for (const QString& copy : kept) {
            EXPECT_GE(changeIn(copy), applied);
            EXPECT_LE(changeIn(copy), std::max(applied, change) + 1);
        }
    });
}

} // namespace
