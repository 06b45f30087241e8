#include "Obj/Signal.h"

#include "Kelta/MessageLog.h"

#include <QString>

#include <exception>

namespace Obj {

void reportException(const char* where)
{
    QString reason;
    try {
        throw;
    } catch (const std::exception& exception) {
        reason = QString::fromUtf8(exception.what());
    } catch (...) {
        reason = QStringLiteral("an exception of an unknown kind");
    }
    Kelta::MessageLog::error(QStringLiteral("Something went wrong in %1: %2").arg(QString::fromUtf8(where), reason));
}

} // namespace Obj
