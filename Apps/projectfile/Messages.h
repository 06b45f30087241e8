#pragma once

#include "projectfile/ContentError.h"
#include "vxMaterial/json/JsonError.h"
#include "vxMaterial/json/JsonTree.h"

#include <QString>

#include <string>
#include <string_view>

/// Messages about content, in the user's language.
namespace projectfile::detail {

/// Translates a text in the context "projectfile::ProjectFile".
QString tr(const char* text);

inline QString toQString(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

/// Returns a text in quotes, as JSON has it, its middle left out if it is long.
QString quoted(std::string_view utf8);

/// Returns a value as a message shows it: "an object", "an array", and all else as the text has it, shortened.
QString shown(const vxjson::JsonNode& value);

/// Throws a ContentError about a member. In `text`, which is translated already, %1 means the path of the member, and
/// %2 and so on the arguments.
template <class... Arguments>
[[noreturn]] void refuseMember(const std::string& path, const QString& text, const Arguments&... arguments)
{
    throw ContentError(text.arg(toQString(path), arguments...).toStdString(), path);
}

/// Throws a ContentError for a text that is not JSON.
[[noreturn]] void refuseText(const vxjson::JsonError& error);

/// Throws a ContentError for a value that cannot be written.
[[noreturn]] void refuseValue(const vxjson::JsonError& fault);

} // namespace projectfile::detail
