#pragma once

#include "vxUnits/Message.h"

#include <string>
#include <vector>

namespace vxDecks {

/// The texts of messages about bulk data and MatML documents that are read. The table in BulkTexts.cpp has them in this order.
enum class BulkText : std::size_t
{
    TooManyFields,
    TooManyEntries,
    NoMaterialNumber,
    FieldWithoutNumber,
    EntriesNotTaken,
    MoreEntriesNotTaken,
    EntryRepeated,
    ContinuationMissing,
    TemperatureTables,
    Contradicts,
    BlankMeans,
    FromShearModulus,
    FromBulkModulus,
    FromHalfBulkModulus,
    FromTotalCreep,
    FromTotalStrain,
    FromTotalStrainRounded,
    OtherFirstSlope,
    CompressionNotTaken,
    HeatPerVolume,
    OtherMeaningWithout,
    OtherCreepLaw,
    TableMissing,
    TableBeyondBound,
    TableOfOtherKind,
    TableNotFromOrigin,
    TableWithoutPoints,
    XmlTooLarge,
    XmlNotWellFormed,
    XmlDoctype,
    XmlNoMatml,
    XmlOwnUnits,
    PropertyNotDeclared,
    PropertyWithoutValue,
    PropertyRepeated,
    UnitNotReadable,
    UnitOfOtherKind,
    ValueOverParameter,
    DataWithoutWord,
    Redundant,
    TableReplaces,
    XmlTooManyNodes,
    Count
};

vxUnits::Message makeMessage(BulkText text, std::vector<std::string> arguments = {});

/// Returns all texts of this table.
std::vector<vxUnits::MessageText> bulkTexts();

} // namespace vxDecks
