#include "Kelta/MessageLog.h"

extern "C" {

__attribute__((visibility("default"))) void enterFirst()
{
    Kelta::MessageLog::information(QStringLiteral("first"));
}

__attribute__((visibility("default"))) void enterSecond()
{
    Kelta::MessageLog::information(QStringLiteral("second"));
}

__attribute__((visibility("default"))) void enterThird()
{
    Kelta::MessageLog::information(QStringLiteral("third"));
}
}
