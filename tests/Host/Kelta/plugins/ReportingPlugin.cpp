#include "Kelta/MessageLog.h"

extern "C" {

__attribute__((visibility("default"))) void reportErrors()
{
    Kelta::MessageLog::error(QStringLiteral("first: %1 of 3 tables"));
    Kelta::MessageLog::error(QStringLiteral("second"));
    Kelta::MessageLog::information(QStringLiteral("for your information"));
}

__attribute__((visibility("default"))) void reportWithoutText()
{
    Kelta::MessageLog::error(QString());
}

__attribute__((visibility("default"))) void warn()
{
    Kelta::MessageLog::warning(QStringLiteral("only a warning"));
}
}
