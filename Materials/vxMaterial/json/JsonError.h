#pragma once

#include "vxMaterial/json/JsonExport.h"

#include <string>

namespace vxjson {

/// An error in a JSON text, and its place.
///
/// This library has no translator: `reason` is English and can be looked up in the translator's context
/// "vxjson::JsonError". A program with Qt shows
///
///     QCoreApplication::translate("vxjson::JsonError", error.reason).arg(QString::fromStdString(error.shown))
struct JsonError
{
    int line = 0;            ///< from 1; 0 if no place is known
    int column = 0;          ///< in characters, from 1; 0 if no place is known
    const char* reason = ""; ///< a text of the program, in which %1 is replaced by `shown`; never null
    std::string shown;       ///< the wrong part of the text, or the path of a member; empty if `reason` has no %1
};

/// Returns the error in English: "line 3, column 14: '01' is not a number"; without the place if none is known.
VXJSON_EXPORT std::string describe(const JsonError& error);

} // namespace vxjson
