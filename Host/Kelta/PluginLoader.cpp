#include "Kelta/PluginLoader.h"

#include "Kelta/Exceptions.h"
#include "Kelta/MessageLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace Kelta {

namespace {

using Entry = void (*)();

QString fileNameOf(const QString& plugin)
{
    return QStringLiteral("lib%1.so").arg(plugin);
}

/// What an entry threw, empty when it returned. A plug-in should let nothing out, but a broken one must not end the
/// program that loads it.
QString whatItThrows(Entry entry)
{
    try {
        entry();
        return {};
    } catch (...) {
        return currentExceptionText();
    }
}

/// Why an entry failed, empty when it did not: what it threw, or the first error that it reported.
QString whyItFails(Entry entry)
{
    QString firstError;
    const QMetaObject::Connection listening =
        QObject::connect(&MessageLog::instance(), &MessageLog::reported, [&firstError](const LogMessage& message) {
            if (message.severity == LogMessage::Severity::Error && firstError.isNull())
                firstError = message.text.isEmpty() ? QStringLiteral("an error without a text") : message.text;
        });
    const QString thrown = whatItThrows(entry);
    QObject::disconnect(listening);
    return thrown.isNull() ? firstError : thrown;
}

} // namespace

PluginLoader::PluginLoader(QStringList folders) : m_folders(std::move(folders)) {}

PluginLoader::~PluginLoader() = default;

QStringList PluginLoader::standardFolders()
{
    const QString paths = qEnvironmentVariable("KELTA_PLUGIN_PATH");
    QStringList folders = paths.split(QDir::listSeparator(), Qt::SkipEmptyParts);
    if (QCoreApplication::instance() != nullptr)
        for (const char* folder : {"../lib/vxMaterial", "../" KELTA_LIBRARY_FOLDER "/vxMaterial", "../lib", "."})
            folders << QDir::cleanPath(QDir(QCoreApplication::applicationDirPath()).filePath(QLatin1String(folder)));
    folders.removeDuplicates();
    return folders;
}

bool PluginLoader::load(const QString& name, const QStringList& entries)
{
    m_errorText.clear();
    Plugin* const plugin = openPlugin(name);
    if (plugin == nullptr)
        return false;
    for (const QString& entry : entries)
        if (plugin->library.resolve(entry.toLatin1().constData()) == nullptr)
            return fail(
                QStringLiteral("The plug-in \"%1\" (%2) has no entry \"%3\"; it is not a plug-in of this program.")
                    .arg(name, plugin->library.fileName(), entry));
    return std::all_of(entries.begin(), entries.end(),
                       [&](const QString& entry) { return callEntry(name, *plugin, entry); });
}

QString PluginLoader::findFile(const QString& name) const
{
    for (const QString& folder : m_folders) {
        QString path = QDir(folder).filePath(fileNameOf(name));
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

PluginLoader::Plugin* PluginLoader::openPlugin(const QString& name)
{
    const auto loaded = m_plugins.find(name);
    if (loaded != m_plugins.end())
        return loaded->second.get();
    const QString path = findFile(name);
    if (path.isEmpty()) {
        fail(QStringLiteral("The plug-in \"%1\" is not there: no %2 in %3.")
                 .arg(name, fileNameOf(name), m_folders.join(QStringLiteral(", "))));
        return nullptr;
    }
    auto plugin = std::make_unique<Plugin>();
    plugin->library.setFileName(path);
    // Whole and at once: a symbol that is missing is found now, not in the middle of the work.
    plugin->library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!plugin->library.load()) {
        fail(QStringLiteral("The plug-in \"%1\" cannot be loaded: %2").arg(name, plugin->library.errorString()));
        return nullptr;
    }
    return m_plugins.emplace(name, std::move(plugin)).first->second.get();
}

bool PluginLoader::callEntry(const QString& name, Plugin& plugin, const QString& entry)
{
    if (plugin.calledEntries.contains(entry))
        return true;
    const QString why = whyItFails(reinterpret_cast<Entry>(plugin.library.resolve(entry.toLatin1().constData())));
    if (!why.isEmpty())
        return fail(QStringLiteral("The plug-in \"%1\" (%2) failed in \"%3\": %4")
                        .arg(name, plugin.library.fileName(), entry, why));
    plugin.calledEntries << entry;
    return true;
}

bool PluginLoader::fail(const QString& text)
{
    m_errorText = text;
    return false;
}

} // namespace Kelta
