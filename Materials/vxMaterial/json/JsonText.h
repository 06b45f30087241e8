#pragma once

#include "vxMaterial/json/JsonError.h"
#include "vxMaterial/json/JsonExport.h"
#include "vxMaterial/json/JsonTree.h"

#include <json/value.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vxjson {

/// The content of a text: the document, or the error.
struct JsonReading
{
    Json::Value document; ///< null if there is an error
    std::optional<JsonError> error;
    std::vector<std::string> repeatedMembers; ///< as in JsonTree
};

/// Reads a JSON text as JsonTree::read does, into a value of jsoncpp.
[[nodiscard]] VXJSON_EXPORT JsonReading readJsonText(std::string_view text,
                                                     JsonDialect dialect = JsonDialect::WithComments);

/// Returns a document in the form for files: one member on each line, indented by three blanks, members in the order of
/// their names. JSON cannot express non-finite numbers: an infinite number is written as 1e+9999, which readJsonText
/// refuses; not-a-number is written as null, which reads as 0.
VXJSON_EXPORT std::string toStyledText(const Json::Value& document);

} // namespace vxjson
