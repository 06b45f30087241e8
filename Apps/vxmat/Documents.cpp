#include "Documents.h"

#include "Answer.h"
#include "Files.h"

namespace vxmat {

void readInto(vxCAE::CAESet& set, const std::string& path, const Json::Value& document)
{
    try {
        set.readJson(document);
    } catch (const Json::Exception& error) {
        throw Failure(path + ": " + error.what() + " 'vxmat check' tells where.");
    }
}

Json::Value readMaterialDocument(const std::string& path)
{
    Json::Value document = readDocument(path);
    const Json::Value& materials = static_cast<const Json::Value&>(document)["material"];
    if (vxCAE::readProjectKind(document) == vxCAE::ProjectKind::Analysis && materials.isNull())
        throw Failure(path + ": an analysis document holds no materials; give the material document");
    if (!materials.isNull() && !materials.isArray())
        throw Failure(path + ": \"material\" is not an array; 'vxmat check' tells more");
    return document;
}

} // namespace vxmat
