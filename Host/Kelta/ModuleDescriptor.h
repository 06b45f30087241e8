#pragma once

#include "Kelta/KeltaExport.h"

#include <QString>
#include <QStringList>
#include <QVersionNumber>

#include <map>

namespace Kelta {

/// What a module says about itself in the file `<name>.module.json` beside its library:
///
///     {"module": "Fastening", "version": "1.2.0", "host": "0.1", "library": "libFastening.so",
///      "entries": ["initFastening", "initFasteningGui"], "needs": {"Geometry": "0.4"}}
///
/// "module", "version" and "entries" are required. Versions are numbers separated by points.
struct ModuleDescriptor
{
    QString file;                            ///< path of the descriptor
    QString module;                          ///< "module", the name that the file has too
    QVersionNumber version;                  ///< "version"
    QVersionNumber host;                     ///< "host", the lowest version of the host that serves; null for any
    QString library;                         ///< path of "library", by default lib<module>.so beside the descriptor
    QStringList entries;                     ///< "entries", the functions to call, in this order
    std::map<QString, QVersionNumber> needs; ///< "needs", other modules with the lowest version that serves
};

/// Ends the name of each descriptor.
constexpr const char* descriptorSuffix = ".module.json";

/// The version of this host.
KELTA_EXPORT QVersionNumber hostVersion();

/// Whether `version` is lower than `needed`; "0.1" and "0.1.0" are the same version.
KELTA_EXPORT bool isOlder(const QVersionNumber& version, const QVersionNumber& needed);

/// Reads the descriptor at `path`.
/// \throws std::runtime_error with the reason, translated, if the file cannot be read or is not a descriptor, or if the
///     module needs a newer host
KELTA_EXPORT ModuleDescriptor readModuleDescriptor(const QString& path);

} // namespace Kelta
