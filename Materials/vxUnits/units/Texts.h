#pragma once

#include "vxUnits/Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace vxUnits {

/// The texts of messages about numbers, units and unit systems. The table in Message.cpp has them in this order.
enum class Text : std::size_t
{
    DidYouMean,
    Empty,
    BadEncoding,
    NumberMissing,
    NotFinite,
    Hexadecimal,
    ExponentWithoutDigits,
    ExponentApart,
    ExponentNotWhole,
    ExponentLetter,
    TwoPoints,
    DecimalComma,
    CommaNotClear,
    ThousandsSeparator,
    SeveralNumbers,
    OutOfRange,
    IllegalCharacter,
    UnitMissing,
    NumberInUnit,
    PowerMissing,
    PowerTooLarge,
    PowerWithExponent,
    ParenthesisNotClosed,
    ParenthesisNotOpened,
    UnitTooLong,
    UnitTooDeep,
    UnknownUnit,
    AmbiguousUnit,
    WrongDimension,
    WrongDimensionOf,
    NotPure,
    Reciprocal,
    TemperatureScale,
    TemperatureDifference,
    BelowAbsoluteZero,
    TakesWord,
    TakesSwitch,
    NoQuantity,
    UnitOfCreep,
    UnitOfCreepPart,
    UnitOfCreepRange,
    UnitOfCreepUnread,
    DatabaseUnreadable,
    ListItemEmpty,
    ListUnitMissing,
    ListDecimalComma,
    ListCommaNotClear,
    SystemEmpty,
    SystemUnknown,
    SystemBaseUnknown,
    SystemUnitMissing,
    SystemUnitWithNumber,
    SystemBaseRepeated,
    SystemBaseMissing,
    NoteCalorie,
    NoteBtu,
    NoteYear,
    NoteOunce,
    NoteGallon,
    NoteHorsepower,
    NoteConductivityOfCopper,
    NoteDatabase,
    Count
};

Message makeMessage(Text text, std::vector<std::string> arguments = {});
Failure makeFailure(FaultCode code, Text text, std::vector<std::string> arguments = {}, std::string suggestion = {});

/// Returns the first 60 bytes of a text for a quotation in a message: valid UTF-8 without control characters.
std::string excerpt(std::string_view text);

} // namespace vxUnits
