#pragma once

#include "vxUnits/UnitsExport.h"

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace vxUnits {

/// A text of messages: an id that never changes, and the English text.
struct MessageText
{
    const char* id = "";
    const char* english = ""; ///< with the places %1 to %9 for arguments
};

/// Returns the translation of an English text, or the text itself if it has none. The context is "vxUnits::Message" for the
/// texts of messages and "vxUnits::Word" for arguments, which may be words, numbers or texts of the user.
using Translator = std::function<std::string(const char* context, const char* english)>;

/// A message to a user: an English text and its arguments, which are separate so that a program can translate the text.
/// The English text is the source of translation. An argument that is one of wordTexts(), or the name of a quantity, is
/// translated too, unless its place is in quotation marks: what the user typed is quoted as it was typed.
struct Message
{
    const char* id = "";                ///< "units.unknown-unit"; does not change with the English text
    const char* english = "";           ///< lives as long as the program
    std::vector<std::string> arguments; ///< UTF-8; numbers have a decimal point whatever the locale
    /// The parts of arguments that join several texts, such as "Density = 7850 kg/m^3, Specific heat = 434 J/(kg K)", by the
    /// index of the argument. Each part is translated, in place of the argument.
    std::map<std::size_t, std::vector<std::string>> parts = {};
    std::vector<Message> further = {}; ///< messages that follow this one

    /// Returns the text with the arguments in their places, and those of further messages after a blank: in English, or
    /// translated.
    VXUNITS_EXPORT std::string text(const Translator& translator = {}) const;
};

/// Returns every text that a Message can have, for translators.
VXUNITS_EXPORT const std::vector<MessageText>& messageTexts();

/// Returns every word that needs a translation: names of dimensions and of kinds of materials, which are arguments, and the
/// meanings of the quantities.
VXUNITS_EXPORT const std::vector<std::string>& wordTexts();

} // namespace vxUnits
