#include "vxMaterial/json/JsonText.h"

#include <json/writer.h>

namespace vxjson {

JsonReading readJsonText(std::string_view text, JsonDialect dialect)
{
    const JsonTree tree = JsonTree::read(text, dialect);
    return {tree.root().toJsonValue(), tree.error(), tree.repeatedMembers()};
}

std::string toStyledText(const Json::Value& document)
{
    // All existing files come from this writer and are compared byte by byte. Its successor in jsoncpp indents
    // differently.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    Json::StyledWriter writer;
    return writer.write(document);
#pragma GCC diagnostic pop
}

} // namespace vxjson
