#include "vxMaterial/json/JsonPath.h"

#include "vxMaterial/json/Utf8.h"

namespace vxjson {

std::string JsonPath::toText() const
{
    std::string text;
    for (const Level& level : m_levels) {
        if (level.index != noElement) {
            text += "[" + std::to_string(level.index) + "]";
        } else {
            text += text.empty() ? "" : ".";
            text += shortened(level.name);
        }
    }
    return shortened(text);
}

} // namespace vxjson
