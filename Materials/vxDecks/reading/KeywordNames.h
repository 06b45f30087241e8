#pragma once

#include <string>
#include <string_view>

namespace vxDecks {

/// Returns a keyword line's keyword without the asterisk, in capitals and without blanks: "ENDSTEP" for "*End Step, x=1".
/// Empty if the line is a comment, or does not begin with an asterisk and a letter.
std::string keywordOf(std::string_view line);

/// Returns a keyword or a parameter in capitals and without blanks.
std::string foldedKeyword(std::string_view text);

/// Returns the keyword of a keyword line as the manual spells it, with the asterisk: "*END STEP" of "*endstep, x=1". A keyword
/// that is not of the family stays as it is, in capitals. A long one is shortened.
std::string spelledKeyword(std::string_view line);

/// Returns whether a keyword is of the keyword family of CalculiX.
bool isOfKeywordFamily(const std::string& keyword);

/// Returns whether a file is a deck of the keyword family of CalculiX.
bool recognisesCalculix(std::string_view beginning);

/// Returns whether a file is a deck of LS-DYNA.
bool recognisesLsDyna(std::string_view beginning);

} // namespace vxDecks
