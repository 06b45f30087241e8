#pragma once

#include "vxMaterial/exchange/ExchangeExport.h"

#include <json/value.h>

#include <string>
#include <vector>

namespace vxCAE {

/// A message about a place in a document, and the path of that: "$.material[2].Props[0].prop_value".
struct Finding
{
    std::string path;
    std::string message;
};

/// The result of a check, in the order of the document's sections. The messages are English: they are for the command
/// line, whose output other programs read, and no program with a translator shows them.
struct CheckReport
{
    std::vector<Finding> findings; ///< what is wrong: lost, misread or refused by a reader, or out of its range
    std::vector<Finding> notes;    ///< what is right but worth knowing: words and lists are not exchanged
};

/// Checks whether readers take an exchange document of either kind as it says, and whether it keeps the rules for property
/// values (vxMat::checkNumber, vxMat::CombinationCheck). Nothing is thrown, whatever the values are.
///
/// `materials` is the material document that belongs to an analysis document, or null: domains may refer to its materials
/// as well as to those in `document` itself.
///
/// Members that are there more than once are not found: a document has only the last of them. The reader of its text
/// names them (vxjson::JsonReading::repeatedMembers).
VXCAE_EXPORT CheckReport checkDocument(const Json::Value& document, const Json::Value* materials = nullptr);

} // namespace vxCAE
