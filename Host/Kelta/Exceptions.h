#pragma once

#include "Kelta/KeltaExport.h"

#include <QString>

#include <utility>

namespace Kelta {

/// Returns the text of the exception that is being handled, or a translated text if the exception has none or is of an
/// unknown kind. To be called inside a handler.
KELTA_EXPORT QString currentExceptionText();

/// Reports the exception that is being handled to the message log, as "`failure`: text of the exception". To be called
/// inside a handler. Throws nothing; if memory does not suffice for the report, there is none.
KELTA_EXPORT void reportException(const QString& failure) noexcept;

/// Runs `action` and returns whether it ran to its end. If it throws, the exception is reported to the message log behind
/// `failure`, a translated text that says what failed. For every boundary that no exception may cross.
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
