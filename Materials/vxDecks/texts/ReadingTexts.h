#pragma once

#include "vxUnits/Message.h"

#include <string>
#include <vector>

namespace vxDecks {

/// The texts of messages about decks that are read. The table in ReadingTexts.cpp has them in this order.
enum class ReadText : std::size_t
{
    ErrorInLine,
    UnitsNeeded,
    UnitsNeededFitting,
    WrittenOnly,
    Binary,
    StreamFailed,
    Units,
    UnitsDeclared,
    UnitsOverridden,
    OtherUnitsDeclared,
    NotOfMaterials,
    Included,
    ReadOtherUnit,
    NotFiniteInCatalogue,
    NoQuantity,
    NameAdded,
    NothingRead,
    AtTemperature,
    BadNumber,
    TooFewNumbers,
    TooManyLines,
    LineTooLong,
    TemperatureTable,
    MoreThanTemperature,
    TypeNotIsotropic,
    NoModelForKind,
    NoModelForTerms,
    Repeated,
    InAnotherFile,
    MayGoOnElsewhere,
    ByParameters,
    UnknownKeyword,
    LongNumber,
    FromTwoPoints,
    FromOnePoint,
    FromPolynomial,
    SecondOrderOfVolume,
    IncompressibleByZero,
    ValueAbsent,
    HardeningOfTime,
    SeveralTerms,
    BulkRelaxes,
    FromLongTerm,
    RelaxesWholly,
    OverFrequency,
    OverStrainRate,
    CurveNotFromZero,
    CurveNotAscending,
    FromAbsolute,
    FromBulkModulus,
    NoSpeedOfSound,
    MoreCards,
    MoreIncluded,
    MoreForeign,
    FindingInLine,
    ModelsExclude,
    OtherSpecificHeat,
    ParameterNotRead,
    Count
};

vxUnits::Message makeMessage(ReadText text, std::vector<std::string> arguments = {});

/// Returns all texts of this table.
std::vector<vxUnits::MessageText> readingTexts();

} // namespace vxDecks
