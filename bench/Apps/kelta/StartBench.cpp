#include "FirstPicture.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

/// Measures the start of kelta until its first picture is painted, and until its window is complete, compared with that
/// of an empty window: the time for which the processor works. On an idle machine this is the time that the user waits,
/// since nothing is waited for; on a busy one it varies less.
///
/// The first picture is the window as the last run has kept it; one run compares it with the complete window, which must
/// look the same. The window is complete when all modules are loaded, the bars and docks have their contents, and
/// that is painted. At the first start of a user, modules are loaded before the first picture.
namespace {

constexpr int repetitions = 25;

/// The shortest times of several runs, in milliseconds.
struct Times
{
    double painted = 1e9;
    double complete = 1e9;
};

class Runs
{
public:
    /// Runs a program of this folder to its end, and keeps the times if they are shorter.
    void run(const char* program, const QString& home, Times& times, const QStringList& arguments = {})
    {
        QProcess process;
        process.setProcessEnvironment(environmentOf(home));
        process.start(QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(program), arguments);
        process.waitForFinished(-1);
        bool isPainted = false;
        for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
            const double time = line.mid(2).toDouble();
            isPainted = isPainted || line.startsWith(vxbench::painted);
            if (line.startsWith(vxbench::painted))
                times.painted = std::min(times.painted, time);
            if (line.startsWith(vxbench::completed))
                times.complete = std::min(times.complete, time);
        }
        m_passed = m_passed && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 && isPainted;
    }

    /// Returns false if a program failed or did not paint its window.
    bool passed() const { return m_passed; }

private:
    static QProcessEnvironment environmentOf(const QString& home)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), home);
        environment.insert(QStringLiteral("XDG_CACHE_HOME"), home);
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home);
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home);
        if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM")))
            environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        return environment;
    }

    bool m_passed = true;
};

/// Prints a row of the table. Returns whether the ratio is within its limit.
bool judge(const char* name, double ours, double empty, double limit)
{
    const double ratio = ours / empty;
    std::printf("%-50s %8.1f ms %8.1f ms   %.2f   %s %.2f\n", name, ours, empty, ratio,
                ratio <= limit ? "within" : "OVER", limit);
    return ratio <= limit;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir home; // with the settings of the first run
    Runs runs;
    Times first;
    Times later;
    Times empty;
    runs.run("painted_kelta", home.path(), first);
    Times compared;
    runs.run("painted_kelta", home.path(), compared, {QStringLiteral("compare")});
    for (int repetition = 0; repetition < repetitions; ++repetition) {
        const QTemporaryDir newHome;
        runs.run("painted_kelta", home.path(), later);
        runs.run("empty_window", home.path(), empty);
        runs.run("painted_kelta", newHome.path(), first);
    }
    bool within = judge("start until the first picture / an empty window", later.painted, empty.painted, 1.3);
    within = judge("start until the window is complete / the same", later.complete, empty.painted, 2.9) && within;
    within = judge("first start of a user, until painted / the same", first.painted, empty.painted, 2.3) && within;
    if (!runs.passed())
        std::printf("    FAILED: a program failed or did not paint its window as it is\n");
    return runs.passed() && within ? 0 : 1;
}
