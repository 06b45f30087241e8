#pragma once

#include "Kelta/KeltaExport.h"

#include <QLibrary>
#include <QString>
#include <QStringList>

#include <map>
#include <memory>

namespace Kelta {

/// Loads plug-in libraries by name and calls their entry functions, which have C linkage, take nothing and answer
/// nothing.
///
/// A library that is loaded stays so until the program ends: objects, types and texts point into it.
class KELTA_EXPORT PluginLoader
{
public:
    /// Looks for plug-ins in these folders, in their order.
    explicit PluginLoader(QStringList folders = standardFolders());
    PluginLoader(const PluginLoader&) = delete;
    PluginLoader& operator=(const PluginLoader&) = delete;
    ~PluginLoader();

    /// The folders of the environment variable KELTA_PLUGIN_PATH, separated as in PATH; then those beside the
    /// program, as a build tree and an installation have them.
    static QStringList standardFolders();

    /// Loads the plug-in "vxMaterial" from libvxMaterial.so and calls its entries, in the order given. Entries that
    /// succeeded before are not called again.
    ///
    /// False when the file is missing or no library, when one of the entries is not in it (then none is called), or
    /// when an entry fails: it reports errors to the message log, or throws. errorText then tells which.
    [[nodiscard]] bool load(const QString& name, const QStringList& entries);
    QString errorText() const { return m_errorText; }

private:
    struct Plugin
    {
        QLibrary library;
        QStringList calledEntries;
    };
    QString findFile(const QString& name) const;
    Plugin* openPlugin(const QString& name);
    bool callEntry(const QString& name, Plugin& plugin, const QString& entry);
    bool fail(const QString& text);

    QStringList m_folders;
    std::map<QString, std::unique_ptr<Plugin>> m_plugins;
    QString m_errorText;
};

} // namespace Kelta
