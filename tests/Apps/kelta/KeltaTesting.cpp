#include "KeltaTesting.h"

#include <QFile>

namespace vxtest {

QProcessEnvironment cleanEnvironment(const QString& home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "KELTA_PLUGIN_PATH", "LANGUAGE"})
        environment.remove(QLatin1String(name));
    environment.insert(QStringLiteral("HOME"), home);
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home);
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home);
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home);
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    // Whole call stacks distinguish the leaks of the offscreen platform from leaks of the application.
    const QString sanitizer = QStringLiteral("ASAN_OPTIONS");
    environment.insert(sanitizer, environment.value(sanitizer) + QStringLiteral(":fast_unwind_on_malloc=0"));
    return environment;
}

Outcome runKelta(const QString& program, const QStringList& arguments, const QString& folder,
                 const QProcessEnvironment& environment, const QString& outputFile)
{
    QProcess process;
    if (!outputFile.isEmpty())
        process.setStandardOutputFile(outputFile);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(patience)) << process.errorString().toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void writeFile(const QString& path, const QByteArray& text)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(text);
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

Outcome Kelta::run(const QStringList& arguments, const QString& outputFile) const
{
    return runKelta(QStringLiteral(KELTA_PROGRAM), arguments, m_folder.path(), cleanEnvironment(m_folder.path()),
                    outputFile);
}

Outcome Kelta::runBatch(const QByteArray& commands) const
{
    writeFile(path("list.batch"), commands);
    return run({QStringLiteral("--batch"), QStringLiteral("list.batch")});
}

} // namespace vxtest
