#pragma once

#include "vxUnits/Message.h"

#include <array>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace vxDecks {

/// Returns the message of a row in a table of texts. The rows are in the order of the enumeration `Text`.
template <class Text, std::size_t Count>
vxUnits::Message messageOf(const std::array<vxUnits::MessageText, Count>& texts, Text text,
                           std::vector<std::string> arguments)
{
    const vxUnits::MessageText& one = texts[static_cast<std::size_t>(text)];
    return {one.id, one.english, std::move(arguments)};
}

} // namespace vxDecks
