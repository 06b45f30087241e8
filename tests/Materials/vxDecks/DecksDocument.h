#pragma once

#include <string>

namespace vxtest {

/// The tables of docs/decks.md, out of the mapping table of the library.
std::string decksTables();

/// The text of docs/decks.md with these tables in place of the earlier ones: everything after the heading "Tables".
std::string withNewTables(const std::string& document);

} // namespace vxtest
