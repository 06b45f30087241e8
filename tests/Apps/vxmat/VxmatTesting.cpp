#include "VxmatTesting.h"

#include "vxMaterial/json/JsonText.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <gtest/gtest.h>

#include <sstream>
#include <utility>

namespace vxtest {

namespace {

/// The longest time to wait for a program, in milliseconds. Only a failing test takes this long.
constexpr int patience = 120000;

Outcome run(const QString& program, const QStringList& arguments, const std::string& input)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("VXMAT"), QStringLiteral(VXMAT_PROGRAM));
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.write(input.data(), static_cast<qint64>(input.size()));
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(patience)) << process.errorString().toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << "the program crashed";
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

} // namespace

Outcome vxmat(const std::vector<std::string>& arguments, const std::string& input)
{
    QStringList list;
    for (const std::string& argument : arguments)
        list.append(QString::fromStdString(argument));
    return run(QStringLiteral(VXMAT_PROGRAM), list, input);
}

Outcome shell(const std::string& command)
{
    return run(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QString::fromStdString(command)}, {});
}

Json::Value vxmatJson(const std::vector<std::string>& arguments)
{
    const Outcome result = vxmat(arguments);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    auto reading = vxjson::readJsonText(result.out);
    EXPECT_FALSE(reading.error);
    return std::move(reading.document);
}

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

std::string Folder::path(const std::string& name) const
{
    return m_folder.filePath(QString::fromStdString(name)).toStdString();
}

std::string Folder::file(const std::string& name, const std::string& text) const
{
    QFile file(QString::fromStdString(path(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(text.data(), static_cast<qint64>(text.size())), static_cast<qint64>(text.size()));
    return path(name);
}

std::vector<std::string> Folder::names() const
{
    std::vector<std::string> names;
    const QDir folder(m_folder.path());
    for (const QString& name : folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name))
        names.push_back(name.toStdString());
    return names;
}

} // namespace vxtest
