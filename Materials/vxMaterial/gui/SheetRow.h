#pragma once

#include <QString>

namespace MatGui {

/// A row of the property table. The texts are the untranslated texts of the property; the value is the typed text.
struct SheetRow
{
    int id = 0;
    QString name;
    QString value;
    QString description;
    QString key;
    QString unit;

    friend bool operator==(const SheetRow& one, const SheetRow& other)
    {
        return one.id == other.id && one.name == other.name && one.value == other.value &&
               one.description == other.description && one.key == other.key && one.unit == other.unit;
    }
};

/// A row whose value prevents making a property from it.
struct UnreadableRow
{
    enum class Reason
    {
        NoNumber,  ///< a number is needed, and the text does not begin with one
        OutOfRange ///< a double cannot hold the number
    };
    int number; ///< of the row, from 1
    QString name;
    QString value;
    Reason reason;
};

/// A row with a value that would be read only in part, such as "210 GPa".
struct PartlyReadRow
{
    int number; ///< of the row, from 1
    QString name;
    QString value;
    QString ignored; ///< the text that would be ignored: "GPa"
    QString readAs;  ///< the value that would be read: "210"
    QString unit;    ///< of the value: "Pa"; empty if it has none
    QString fault;   ///< the reason of the delegate, see SheetTableDelegate::findFault; empty if it has none
};

} // namespace MatGui
