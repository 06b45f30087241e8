#include "reading/DeckReader.h"
#include "reading/TextOfDeck.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <string>

namespace vxDecks {

namespace {

/// Returns the first line of a text without blanks at its ends and in capitals, and removes it from the text.
std::string takeLine(std::string_view& text)
{
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    std::string line = vxMat::toUpperAscii(trimmed(text.substr(0, end)));
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

bool beginsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

bool beginsWithDigit(std::string_view text)
{
    return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

/// Returns whether a line is a command for a material, with a label and its number: "MP,EX,1,2.1e5", "TB,HYPER,1,1,2,NEO".
bool isMaterialCommand(std::string_view line)
{
    if (!beginsWith(line, "MP,") && !beginsWith(line, "TB,"))
        return false;
    line.remove_prefix(3);
    const std::size_t label = line.find(',');
    return label != std::string_view::npos && !beginsWithDigit(trimmed(line)) &&
           beginsWithDigit(trimmed(line.substr(label + 1)));
}

bool isApdl(std::string_view beginning)
{
    while (!beginning.empty())
        if (isMaterialCommand(takeLine(beginning)))
            return true;
    return false;
}

/// Returns whether a file has a section "Material 1" with an entry such as "Density = Real 7850".
bool isElmer(std::string_view beginning)
{
    constexpr std::string_view section = "MATERIAL ";
    bool isInMaterial = false;
    while (!beginning.empty()) {
        const std::string line = takeLine(beginning);
        if (beginsWith(line, section))
            isInMaterial = beginsWithDigit(trimmed(std::string_view(line).substr(section.size())));
        else if (isInMaterial && (line == "END" || line.find('=') != std::string::npos))
            return true;
    }
    return false;
}

} // namespace

const DeckReader& apdlReader()
{
    static const DeckReader reader{Format::Apdl, isApdl, nullptr, {}};
    return reader;
}

const DeckReader& elmerReader()
{
    static const DeckReader reader{Format::Elmer, isElmer, nullptr, {}};
    return reader;
}

} // namespace vxDecks
