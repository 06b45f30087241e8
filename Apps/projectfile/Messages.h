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

/// Returns a text in quotes, as in JSON. Omits the middle of a long text.
QString quoted(std::string_view utf8);

/// Returns a value for a message: "an object", "an array", or the JSON text of another value, shortened.
QString shown(const vxjson::JsonNode& value);

/// Throws a ContentError about a member. `text` is translated already; %1 in it is the path of the member, %2, %3, ...
/// are the arguments.
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
