#pragma once

#include "Kelta/KeltaExport.h"

#include <QString>
#include <QStringList>

#include <map>
#include <memory>

namespace Kelta {

/// Finds modules by their descriptors, loads their libraries in the order of dependence, and calls their entry functions,
/// which have C linkage, take nothing and return nothing.
///
///     Kelta::PluginLoader loader;
///     const Kelta::LoadedModules modules = loader.loadAll();   // what fails is in the message log
///
/// A library that is loaded stays loaded until the program ends, because objects, types and texts point into it.
class KELTA_EXPORT PluginLoader
{
public:
    /// Looks for descriptors in these folders. If several folders have a descriptor of one name, the first folder counts,
    /// even if its descriptor is broken.
    explicit PluginLoader(QStringList folders = standardFolders());
    PluginLoader(const PluginLoader&) = delete;
    PluginLoader& operator=(const PluginLoader&) = delete;
    ~PluginLoader();

    /// The folders of the environment variable KELTA_PLUGIN_PATH, separated as in PATH, and then those beside the
    /// program, as a build tree and an installation have them.
    static QStringList standardFolders();

    /// What became of the modules of the folders.
    struct Outcome
    {
        QStringList loaded;                ///< names, in the order of loading
        std::map<QString, QString> failed; ///< translated reasons by name
    };

    /// Loads every module of the folders, each behind those that it needs. A module that fails is reported to the message
    /// log by its name with the reason, and the others are loaded: its descriptor or library is broken, an entry is
    /// missing (then none is called), an entry throws or reports an error, it needs a newer host, or it needs a module
    /// that is missing, too old, failed, or needs it in turn. Entries that succeeded before are not called again.
    Outcome loadAll();

    /// Loads one module by its name, and those that it needs. False, with the reason in errorText, if it fails.
    [[nodiscard]] bool load(const QString& name);
    QString errorText() const { return m_errorText; }

private:
    class Run;
    struct Library;

    QStringList m_folders;
    std::map<QString, std::unique_ptr<Library>> m_libraries; ///< those that are loaded, by path
    QString m_errorText;
};

} // namespace Kelta
