#pragma once

#include "vxUnits/Filter.h"
#include "vxUnits/UnitsExport.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vxUnits {

/// The kind of a text that completes a filter expression.
enum class CompletionKind
{
    Quantity,
    Comparison, ///< "<="
    Unit,
    Word,    ///< a value of a quantity whose values are words
    Keyword, ///< and, or, not, has
};

/// A text that can follow in a filter expression. It replaces a part of the text up to the cursor.
struct Completion
{
    std::size_t begin = 0;  ///< of the replaced part, in bytes
    std::size_t length = 0; ///< of the replaced part, in bytes
    std::string text;
    CompletionKind kind = CompletionKind::Keyword;
    std::string meaning; ///< the name of a quantity that is completed by a symbol; otherwise empty
};

/// Returns the texts that complete a filter expression at the cursor, the likely ones first: quantities, comparisons, units
/// of the dimension of the quantity, words of the quantity, keywords. Empty if nothing fits, for example in quotes. Takes
/// linear time in the length of the text. `cursor` is in bytes. Quantities with an additional name are offered by it, and by
/// their English name if only that fits.
VXUNITS_EXPORT std::vector<Completion> completionsFor(std::string_view text, std::size_t cursor,
                                                      const FilterNames& names = {});

} // namespace vxUnits
