#include "vxMaterial/json/JsonError.h"

namespace vxjson {

std::string describe(const JsonError& error)
{
    std::string text;
    if (error.line > 0)
        text = "line " + std::to_string(error.line) + ", column " + std::to_string(error.column) + ": ";
    const std::size_t reason = text.size();
    text += error.reason;
    if (const std::size_t mark = text.find("%1", reason); mark != std::string::npos)
        text.replace(mark, 2, error.shown);
    return text;
}

} // namespace vxjson
