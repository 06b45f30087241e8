#pragma once

#include "Kelta/KeltaExport.h"

#include <QString>
#include <QStringList>

#include <map>
#include <memory>

namespace Kelta {

/// Finds modules by their descriptors, loads their libraries in the order of dependence, and calls their entry
/// functions. Entry functions have C linkage, take nothing and return nothing.
///
///     Kelta::PluginLoader loader;
///     const Kelta::LoadedModules modules = loader.loadAll();   // failures are in the message log
///
/// A loaded library stays loaded until the program ends, because objects, types and texts point into it.
class KELTA_EXPORT PluginLoader
{
public:
    /// Searches these folders for descriptors. If several folders have a descriptor of the same name, the first folder
    /// counts, even if its descriptor is broken.
    explicit PluginLoader(QStringList folders = standardFolders());
    PluginLoader(const PluginLoader&) = delete;
    PluginLoader& operator=(const PluginLoader&) = delete;
    ~PluginLoader();

    /// Returns the folders of the environment variable KELTA_PLUGIN_PATH, separated as in PATH, and then the folders
    /// beside the program, in a build tree and in an installation.
    static QStringList standardFolders();

    /// The results for the modules of the folders.
    struct Outcome
    {
        QStringList loaded;                ///< names, in the order of loading
        std::map<QString, QString> failed; ///< translated reasons by name
    };

    /// Loads every module of the folders, each after the modules that it needs. Reports a failed module to the message
    /// log by its name with the reason, and loads the others. Failures: its descriptor or library is broken, an entry
    /// is missing (then none is called), an entry throws or reports an error, it needs a newer host, or it needs a
    /// module that is missing, too old, failed, or part of a cycle. Entries that succeeded before are not called again.
    Outcome loadAll();

    /// Loads a module and the modules that it needs. Returns false, with the reason in errorText, if it fails.
    [[nodiscard]] bool load(const QString& name);
    QString errorText() const { return m_errorText; }

private:
    class Run;
    struct Library;

    QStringList m_folders;
    std::map<QString, std::unique_ptr<Library>> m_libraries; ///< loaded libraries, by path
    QString m_errorText;
};

} // namespace Kelta
