#pragma once

#include "Kelta/KeltaExport.h"

#include <QString>

#include <utility>

namespace Kelta {

/// Returns the text of the exception that is being handled, or a translated text if the exception has none or is of an
/// unknown kind. Must be called inside a handler.
KELTA_EXPORT QString currentExceptionText();

/// Reports the exception that is being handled to the message log, as "`failure`: text of the exception". Must be
/// called inside a handler. Throws nothing. Reports nothing if memory is insufficient.
KELTA_EXPORT void reportException(const QString& failure) noexcept;

/// Runs `action` and returns whether it ended without an exception. An exception is reported to the message log after
/// `failure`, a translated text about the failed operation. For every boundary that no exception may cross.
///
///     const bool done = Kelta::guarded(tr("The file cannot be saved"), [&] { save(path); });
template <typename Action>
bool guarded(const QString& failure, Action&& action)
{
    try {
        std::forward<Action>(action)();
        return true;
    } catch (...) {
        reportException(failure);
        return false;
    }
}

} // namespace Kelta
