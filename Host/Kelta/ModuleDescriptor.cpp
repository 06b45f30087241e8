#include "Kelta/ModuleDescriptor.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>

namespace Kelta {

namespace {

/// More than any descriptor needs; a larger file is not a descriptor.
constexpr qint64 largestDescriptor = qint64{64} * 1024;

QString tr(const char* text)
{
    return QCoreApplication::translate("Kelta::ModuleDescriptor", text);
}

[[noreturn]] void refuse(const QString& reason)
{
    throw std::runtime_error(reason.toStdString());
}

QByteArray readText(const QString& path)
{
    // Opening a pipe would block until its writer opens it.
    if (!QFileInfo(path).isFile())
        refuse(tr("the descriptor is not a file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(tr("the descriptor cannot be read: %1").arg(file.errorString()));
    QByteArray text = file.read(largestDescriptor + 1);
    if (text.size() > largestDescriptor)
        refuse(tr("the descriptor is larger than %1 bytes").arg(largestDescriptor));
    return text;
}

QJsonObject parse(const QByteArray& text)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        refuse(tr("the descriptor is not JSON: %1 at byte %2").arg(error.errorString()).arg(error.offset));
    if (!document.isObject())
        refuse(tr("the descriptor is not a JSON object"));
    return document.object();
}

/// Returns the text of a member; `otherwise` if the member is absent.
QString textOf(const QJsonObject& json, const QString& member, const QString& otherwise)
{
    const QJsonValue value = json.value(member);
    if (value.isUndefined())
        return otherwise;
    if (!value.isString() || value.toString().isEmpty())
        refuse(tr("\"%1\" in the descriptor is not a text").arg(member));
    return value.toString();
}

QString textOf(const QJsonObject& json, const QString& member)
{
    if (!json.contains(member))
        refuse(tr("\"%1\" is missing in the descriptor").arg(member));
    return textOf(json, member, {});
}

QVersionNumber toVersion(const QString& text, const QString& member)
{
    // The end of the number is not requested: Qt declares the function pure, so the compiler may drop that output.
    QVersionNumber version = QVersionNumber::fromString(text);
    if (version.isNull() || version.toString() != text)
        refuse(
            tr(R"("%1" of "%2" in the descriptor is not a version; an example of one is "0.1.0")").arg(text, member));
    return version;
}

/// Refuses a module that needs a newer host. Checked first, because this host may not know the rest of the descriptor.
QVersionNumber readHost(const QJsonObject& json)
{
    const QString text = textOf(json, QStringLiteral("host"), {});
    QVersionNumber needed = text.isNull() ? QVersionNumber() : toVersion(text, QStringLiteral("host"));
    if (isOlder(hostVersion(), needed))
        refuse(tr("it needs version %1 of the program, which has version %2")
                   .arg(needed.toString(), hostVersion().toString()));
    return needed;
}

void refuseUnknownMembers(const QJsonObject& json)
{
    static const QStringList known{"module", "version", "host", "library", "entries", "needs"};
    for (const QString& member : json.keys())
        if (!known.contains(member))
            refuse(tr("\"%1\" in the descriptor is unknown; the known members are %2")
                       .arg(member, known.join(QStringLiteral(", "))));
}

QString readModule(const QJsonObject& json, const QString& path)
{
    QString module = textOf(json, QStringLiteral("module"));
    if (module + QLatin1String(descriptorSuffix) != QFileInfo(path).fileName())
        refuse(tr(R"("module" in the descriptor is "%1", which differs from the name of the file)").arg(module));
    return module;
}

QString readLibrary(const QJsonObject& json, const QString& module, const QString& path)
{
    const QString library = textOf(json, QStringLiteral("library"), QStringLiteral("lib%1.so").arg(module));
    if (library.contains(QLatin1Char('/')))
        refuse(tr(R"("library" in the descriptor is "%1"; it must be a file beside the descriptor, without a folder)")
                   .arg(library));
    return QFileInfo(path).absoluteDir().filePath(library);
}

QStringList readEntries(const QJsonObject& json)
{
    QStringList entries;
    for (const auto& entry : json.value(QStringLiteral("entries")).toArray())
        entries << entry.toString();
    if (entries.isEmpty() || entries.contains(QString()))
        refuse(tr("\"entries\" in the descriptor is not a list of names of functions"));
    return entries;
}

std::map<QString, QVersionNumber> readNeeds(const QJsonObject& json)
{
    const QString member = QStringLiteral("needs");
    if (json.contains(member) && !json.value(member).isObject())
        refuse(tr("\"needs\" in the descriptor is not an object of modules with their versions"));
    const QJsonObject modules = json.value(member).toObject();
    std::map<QString, QVersionNumber> needs;
    for (const QString& module : modules.keys())
        needs[module] = toVersion(textOf(modules, module), module);
    return needs;
}

} // namespace

bool isOlder(const QVersionNumber& version, const QVersionNumber& needed)
{
    return version.normalized() < needed.normalized();
}

QVersionNumber hostVersion()
{
    return QVersionNumber::fromString(QStringLiteral(KELTA_HOST_VERSION));
}

ModuleDescriptor readModuleDescriptor(const QString& path)
{
    const QJsonObject json = parse(readText(path));
    ModuleDescriptor descriptor;
    descriptor.file = path;
    descriptor.module = readModule(json, path);
    descriptor.host = readHost(json);
    refuseUnknownMembers(json);
    descriptor.version = toVersion(textOf(json, QStringLiteral("version")), QStringLiteral("version"));
    descriptor.library = readLibrary(json, descriptor.module, path);
    descriptor.entries = readEntries(json);
    descriptor.needs = readNeeds(json);
    return descriptor;
}

} // namespace Kelta
