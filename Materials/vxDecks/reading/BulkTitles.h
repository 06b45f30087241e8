#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vxDecks {

/// The name of a material in a comment.
struct BulkTitle
{
    std::optional<std::uint32_t> number; ///< of the material; absent if the next entry is meant
    std::string name;                    ///< not empty
};

/// Returns the name that a comment of bulk data gives to a material; absent if it gives none. Writers of bulk data use
///
///     $ Material 7: Steel
///     $ Material Record : Steel
///     $HMNAME MAT                     7"Steel" "MAT1"
///     $ANSA_NAME_COMMENT;7;MAT1;Steel;...
///
/// with "=" in place of the colon, an asterisk behind the dollar sign, or words in front of "Material":
/// one, or several if a number follows.
std::optional<BulkTitle> readBulkTitle(std::string_view comment);

/// Returns the number of a material or a table in a field; absent if it is no whole number above 0.
std::optional<std::uint32_t> readBulkId(std::string_view field);

} // namespace vxDecks
