#pragma once

#include "vxUnits/Message.h"

#include <string>
#include <vector>

namespace vxDecks {

/// The texts of messages that the mapping table does not have. The table in DeckTexts.cpp has them in this order.
enum class Text : std::size_t
{
    Carried,
    Converted,
    Approximated,
    Lost,
    DeckUnits,
    UnitsChosen,
    Renamed,
    Renumbered,
    OtherUnit,
    TwoPoints,
    FirstPointAdded,
    BulkModulusLimited,
    PointsOfCurve,
    NotFinite,
    NotInCatalogue,
    NeedsAnother,
    NeedsModel,
    ValueOutside,
    NotUsedByModel,
    ModelReplaces,
    SeveralModels,
    NoModel,
    YieldTypeLost,
    NoHardeningData,
    CombinedShares,
    CurveLengths,
    CurveEmpty,
    CurveStart,
    CurveOrder,
    CurveGivesYield,
    BelowFloor,
    CreepBesidePlasticity,
    FactorNeedsExponents,
    NoResistivity,
    AsResistivity,
    AsShearModulus,
    AsTangentModulus,
    AsTotalStrain,
    NoArrudaBoyce,
    AsBulkModulus,
    AsHalfBulkModulus,
    AsPoissonsRatio,
    AsLinks,
    SolidHasNumber,
    CreepExponents,
    AsTotalCreep,
    CurveIsIsotropic,
    OneModelOnly,
    AsLongTermModulus,
    AsDecay,
    AsParameter,
    NoCardHasPlace,
    NamesOnly,
    RoundedToField,
    CreepFactorSmall,
    NeedsLargeStrains,
    AsAcousticBulk,
    AsPermittivity,
    AsPermeability,
    TotalStrainsDoNotAscend,
    Shortened,
    NoWord,
    WordAssumed,
    OtherName,
    NothingWritten,
    SeveralMaterials,
    Example,
    Count
};

vxUnits::Message makeMessage(Text text, std::vector<std::string> arguments = {});

/// Returns all texts of this table.
std::vector<vxUnits::MessageText> deckTexts();

} // namespace vxDecks
