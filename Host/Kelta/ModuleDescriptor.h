#pragma once

#include "Kelta/KeltaExport.h"

#include <QString>
#include <QStringList>
#include <QVersionNumber>

#include <map>

namespace Kelta {

/// The description of a module in the file `<name>.module.json` beside its library:
///
///     {"module": "Fastening", "version": "1.2.0", "host": "0.1", "library": "libFastening.so",
///      "entries": ["initFastening", "initFasteningGui"], "needs": {"Geometry": "0.4"}}
///
/// "module", "version" and "entries" are required. Versions are numbers separated by points.
struct ModuleDescriptor
{
    QString file;                            ///< path of the descriptor
    QString module;                          ///< "module", which is also the name of the file
    QVersionNumber version;                  ///< "version"
    QVersionNumber host;                     ///< "host", the lowest suitable version of the host; null for any
    QString library;                         ///< path of "library", by default lib<module>.so beside the descriptor
    QStringList entries;                     ///< "entries", the functions to call, in this order
    std::map<QString, QVersionNumber> needs; ///< "needs", other modules with their lowest suitable versions
};

/// The ending of the file name of each descriptor.
constexpr const char* descriptorSuffix = ".module.json";

/// Returns the version of this host.
KELTA_EXPORT QVersionNumber hostVersion();

/// Returns whether `version` is lower than `needed`; "0.1" and "0.1.0" are the same version.
KELTA_EXPORT bool isOlder(const QVersionNumber& version, const QVersionNumber& needed);

/// Reads the descriptor at `path`.
/// \throws std::runtime_error with the reason, translated, if the file cannot be read or is not a descriptor, or if the
///     module needs a newer host
KELTA_EXPORT ModuleDescriptor readModuleDescriptor(const QString& path);

} // namespace Kelta
