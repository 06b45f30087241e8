#include "Obj/ReadableName.h"

#include <QCoreApplication>

namespace Obj {

namespace {

/// Puts a blank before each capital letter that begins a word, and makes it small. "ID" is one word.
QString separateWords(const QString& name)
{
    QString words;
    for (int i = 0; i < name.size(); ++i) {
        const bool isWord = i > 0 && name[i].isUpper() && name[i - 1].isLower();
        if (isWord)
            words += QLatin1Char(' ');
        const bool isAcronym = i + 1 == name.size() || name[i + 1].isUpper();
        words += isWord && !isAcronym ? name[i].toLower() : name[i];
    }
    return words;
}

} // namespace

QString readableName(const char* propertyName)
{
    if (*propertyName == '\0')
        return {};
    const QString name = QString::fromUtf8(propertyName);
    const QString translation = QCoreApplication::translate("Property", propertyName);
    return translation != name ? translation : separateWords(name);
}

} // namespace Obj
