#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vxDecks {

/// The parameters of a keyword line by their names in capitals and without blanks. A parameter without a value has an empty
/// one. Values have no quotation marks around them.
using KeywordParameters = std::map<std::string, std::string>;

/// Returns the parameters of a keyword line: NAME = "Steel" of "*MATERIAL, NAME=Steel". The last one of several parameters
/// with the same name counts.
KeywordParameters parametersOf(std::string_view keywordLine);

/// A card of a material in a deck of keywords, with its lines of data.
struct KeywordCard
{
    /// The fields of a line; absent if a field is blank. Of a line with more fields than any card has, the first ones are kept,
    /// and the last one that is not blank.
    using Row = std::vector<std::optional<double>>;

    std::string keyword; ///< in capitals, without asterisk and blanks: "SPECIFICHEAT"
    std::string name;    ///< as the manual spells it: "*SPECIFIC HEAT"
    std::string given;   ///< the parameters as they stand in the file, for messages
    KeywordParameters parameters;
    std::size_t line = 0; ///< of the keyword, from 1
    std::vector<Row> rows;
    bool hasParametersAsNumbers = false; ///< whether a field is a parameter: "<modulus>"
    bool isElsewhere = false;            ///< whether lines of data are in another file
    std::size_t includedBehind =
        0; ///< the line of a file that is included behind the data, which may go on in it; or 0

    bool hasParameter(const char* parameter) const { return parameters.count(parameter) != 0; }
    /// Returns the value of a parameter in capitals and without blanks; empty if there is none.
    std::string word(const char* parameter) const;
};

/// The longest card that is kept.
inline constexpr std::size_t mostRows = 100000;

/// The fields of a line that are kept, so that the memory does not grow with the blank ones. No card has as many.
inline constexpr std::size_t mostFields = 16;

/// The number of characters of a number that the solver reads.
inline constexpr std::size_t readCharacters = 20;

/// Adds a line of data to a card. Returns the first field that is longer than the solver reads; empty if there is none.
/// \throws DeckError with the number of the line if a field is no number, or the card has too many lines
std::string addRow(KeywordCard& card, std::string_view line, std::size_t number);

} // namespace vxDecks
