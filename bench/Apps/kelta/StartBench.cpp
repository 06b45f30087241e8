#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

/// Measures the time from the start of kelta, with all modules, until its window is painted, compared with an empty window.
namespace {

constexpr double limit = 2.2;
constexpr int repetitions = 25;

/// Runs a program to its end. Returns the time in milliseconds; clears `passed` if the program fails.
double millisecondsOf(const QString& program, const QProcessEnvironment& environment, bool& passed)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    QElapsedTimer clock;
    clock.start();
    process.start(program, QStringList());
    passed = process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 &&
             passed;
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir home; // without settings of the user
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.path());
    if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM")))
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));

    const QString folder = QCoreApplication::applicationDirPath() + QLatin1Char('/');
    double ours = 1e9;
    double empty = 1e9;
    bool passed = true;
    for (int repetition = 0; repetition < repetitions; ++repetition) {
        ours = std::min(ours, millisecondsOf(folder + QLatin1String("painted_kelta"), environment, passed));
        empty = std::min(empty, millisecondsOf(folder + QLatin1String("empty_window"), environment, passed));
    }
    const double ratio = ours / empty;
    std::printf("%-50s %8.1f ms %8.1f ms   %.2f   %s %.2f\n", "start until the window is painted / an empty window",
                ours, empty, ratio, ratio <= limit ? "within" : "OVER", limit);
    if (!passed)
        std::printf("    FAILED: a program failed or did not paint its window\n");
    return passed && ratio <= limit ? 0 : 1;
}
