#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace vxtest {

/// The longest time to wait for another program, in milliseconds. Only a failing test takes this long.
constexpr int patience = 120000;

/// The output of a program and its exit status.
struct Outcome
{
    int status = -1;
    QString output;
    QString errors;
};

/// Returns the environment of a program without a display, with its own settings and English texts.
QProcessEnvironment cleanEnvironment(const QString& home);

/// Runs the application without a display, from `folder`. Its standard output is written to `outputFile` if there is
/// one.
Outcome runKelta(const QString& program, const QStringList& arguments, const QString& folder,
                 const QProcessEnvironment& environment, const QString& outputFile = {});

/// Writes a text to a file.
void writeFile(const QString& path, const QByteArray& text);
QByteArray readFile(const QString& path);

/// A test of the application in the build tree, with its own folder.
class Kelta : public testing::Test
{
protected:
    Outcome run(const QStringList& arguments, const QString& outputFile = {}) const;
    /// Runs a list of commands from the file list.batch.
    Outcome runBatch(const QByteArray& commands) const;
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

private:
    QTemporaryDir m_folder;
};

} // namespace vxtest
