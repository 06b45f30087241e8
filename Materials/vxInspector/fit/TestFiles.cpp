#include "fit/TestFiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <stdexcept>

namespace vxInspector {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::FitPage", text);
}

[[noreturn]] void refuse(const QString& path, const QString& reason)
{
    throw std::runtime_error(tr(R"(The file "%1" cannot be read: %2)").arg(path, reason).toStdString());
}

} // namespace

std::string readTestFile(const QString& path)
{
    constexpr qint64 mostBytes = qint64(200) * 1024 * 1024;
    const QFileInfo info(path);
    // Opening a pipe would wait for a writer.
    if (info.exists() && !info.isFile())
        refuse(path, QCoreApplication::translate("Kelta", "this is not a file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(path, file.errorString());
    // The size of a growing file, and of some files of the system, is not known before.
    const QByteArray bytes = file.read(mostBytes + 1);
    if (file.error() != QFileDevice::NoError)
        refuse(path, file.errorString());
    if (bytes.size() > mostBytes)
        throw std::runtime_error(tr(R"(The file "%1" is larger than 200 MB and is not read.)").arg(path).toStdString());
    return bytes.toStdString();
}

} // namespace vxInspector
