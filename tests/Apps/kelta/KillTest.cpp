#include "KeltaTesting.h"

#include "projectfile/ProjectFile.h"
#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyId.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iostream>
#include <random>
#include <thread>

namespace {

/// The change that a project file holds: its number is the density of the first material. Fails the test when the file
/// is not whole.
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

/// The number behind the last line that begins with `word`; 0 when there is none.
int lastSaid(const QByteArray& output, const QByteArray& word)
{
    int last = 0;
    for (const QByteArray& line : output.split('\n'))
        // The last line may have been cut off.
        if (line.startsWith(word + ' ') && line.endsWith('.'))
            last = std::max(last, line.mid(word.size() + 1).chopped(1).toInt());
    return last;
}

class Kill : public vxtest::Kelta
{
protected:
    Kill()
    {
        first.copyFrom(vxMat::StructuralSteel());
        first.properties.at(vxMat::PropertyId::Density)->value = 1;
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

    /// Runs a list of commands, and kills the program a little after its first word.
    QByteArray runAndKill(const QByteArray& commands)
    {
        vxtest::writeFile(path("list.batch"), commands);
        QProcess program;
        program.setProcessEnvironment(vxtest::cleanEnvironment(path("")));
        program.setWorkingDirectory(path(""));
        program.start(QStringLiteral(KELTA_PROGRAM), {QStringLiteral("--batch"), QStringLiteral("list.batch")});
        EXPECT_TRUE(program.waitForReadyRead(60000)) << program.readAllStandardError().toStdString();
        std::this_thread::sleep_for(std::chrono::microseconds(delay(random)));
        program.kill();
        program.waitForFinished();
        return program.readAllStandardOutput();
    }

    void report(const char* what) const
    {
        std::cout << rounds << " kills while " << what << ": " << killedWithCopy << " left a copy for recovery, "
                  << fileBehind << " a file older than the last change, none lost a change\n";
    }

    static constexpr int rounds = KILL_ROUNDS;
    vxMat::CMaterial first;
    std::mt19937 random{20250314};
    std::uniform_int_distribution<int> delay{0, 40000};
    int killedWithCopy = 0;
    int fileBehind = 0;
};

TEST_F(Kill, WhileSavingLeavesTheOldOrTheNewFile)
{
    int change = 1;
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
        QByteArray commands = "Std_Open p.vxmat\nselect Material1\n";
        for (int i = change + 1; i < change + 200; ++i) {
            const QByteArray number = QByteArray::number(i);
            commands +=
                "set Density " + number + "\nsay applied " + number + ".\nStd_Save\nsay saved " + number + ".\n";
        }
        const QByteArray output = runAndKill(commands);
        const int inFile = changeIn(path("p.vxmat"));
        const int applied = lastSaid(output, "applied");
        EXPECT_GE(inFile, lastSaid(output, "saved")) << "round " << round;
        int newest = inFile;
        for (const QString& copy : copies()) {
            newest = std::max(newest, changeIn(copy));
            ++killedWithCopy;
            QFile::remove(copy);
        }
        EXPECT_GE(newest, applied) << "round " << round;
        EXPECT_LE(newest, std::max(applied, change) + 1) << "round " << round;
        fileBehind += inFile < applied ? 1 : 0;
        change = std::max(inFile, newest);
    }
    report("saving");
}

TEST_F(Kill, WhileKeepingCopiesLosesNoChange)
{
    const QByteArray before = vxtest::readFile(path("p.vxmat"));
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
        QByteArray commands = "Std_Open p.vxmat\nselect Material1\n";
        for (int i = 2; i < 200; ++i)
            commands += "set Density " + QByteArray::number(i) + "\nsay applied " + QByteArray::number(i) + ".\n";
        const int applied = lastSaid(runAndKill(commands), "applied");
        EXPECT_EQ(vxtest::readFile(path("p.vxmat")), before);
        const QStringList kept = copies();
        EXPECT_LE(kept.size(), 1);
        for (const QString& copy : kept) {
            const int change = changeIn(copy);
            EXPECT_GE(change, applied) << "round " << round;
            EXPECT_LE(change, std::max(applied, 1) + 1) << "round " << round;
            ++killedWithCopy;
            QFile::remove(copy);
        }
        EXPECT_TRUE(!kept.isEmpty() || applied == 0) << "round " << round << ": no copy of change " << applied;
    }
    EXPECT_EQ(killedWithCopy, rounds);
    report("keeping copies");
}

} // namespace
