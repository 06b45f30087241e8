#include "Kelta/Exceptions.h"

#include "Kelta/MessageLog.h"

#include <QCoreApplication>

#include <exception>

namespace Kelta {

QString currentExceptionText()
{
    try {
        throw;
    } catch (const std::exception& exception) {
        const QString text = QString::fromUtf8(exception.what());
        return text.isEmpty() ? QCoreApplication::translate("Kelta", "an exception without a text") : text;
    } catch (...) {
        return QCoreApplication::translate("Kelta", "an exception of an unknown kind");
    }
}

void reportException(const QString& failure) noexcept
{
    try {
        MessageLog::error(QStringLiteral("%1: %2").arg(failure, currentExceptionText()));
    } catch (...) {
        // Memory is exhausted: the report cannot be made.
        return;
    }
}

} // namespace Kelta
