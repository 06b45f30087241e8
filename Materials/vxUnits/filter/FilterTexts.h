#pragma once

#include "vxUnits/Result.h"

#include <string>
#include <vector>

namespace vxUnits {

/// The texts of messages about filters. The table in FilterTexts.cpp has them in this order.
enum class FilterText : std::size_t
{
    QuoteNotClosed,
    ConditionMissingBefore,
    ConditionMissingAfter,
    ParenthesisNotClosed,
    ParenthesisNotOpened,
    TooDeep,
    QuantityMissingBefore,
    QuantityMissingAfter,
    UnknownQuantity,
    ValueMissing,
    TwoComparisons,
    QuantityFirst,
    OnlyEqual,
    UnknownWord,
    SwitchHasNoValue,
    RangeIsNotCompared,
    RangeEndMissing,
    CreepInSystem,
    UnitOrCondition,
    SearchedInLabels,
    Count
};

Failure makeFailure(FaultCode code, FilterText text, std::vector<std::string> arguments = {},
                    std::string suggestion = {});

Message makeMessage(FilterText text, std::vector<std::string> arguments);

void addFilterTexts(std::vector<MessageText>& collected);

} // namespace vxUnits
