#pragma once

#include "vxMaterial/exchange/ExchangeExport.h"

#include <json/value.h>

#include <string>
#include <string_view>
#include <vector>

namespace vxCAE {

/// One thing to say about a document, and where: "$.material[2].Props[0].prop_value".
struct Finding
{
    std::string path;
    std::string message;
};

/// What a check found, in the order of the document's sections.
struct CheckReport
{
    std::vector<Finding> findings; ///< what is wrong: lost, misread or refused by a reader, or out of its range
    std::vector<Finding> notes;    ///< what is as it should be but worth knowing: words and lists do not travel
};

/// Checks an exchange document of either kind against what its readers make of it and against the rules for property
/// values (vxMat::checkNumber, vxMat::CombinationCheck). Nothing is thrown whatever the values are.
///
/// `materials` is the material document that belongs to an analysis document, when it is at hand: domains may refer
/// to its materials as well as to those in `document` itself.
VXCAE_EXPORT CheckReport checkDocument(const Json::Value& document, const Json::Value* materials = nullptr);

/// The members that stand twice or more in one object of a readable JSON text, each with its path. Readers take the
/// last and lose the others without a word, so a document does not show them any more.
VXCAE_EXPORT std::vector<Finding> findRepeatedMembers(std::string_view text);

} // namespace vxCAE
