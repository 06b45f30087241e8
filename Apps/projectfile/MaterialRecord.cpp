#include "projectfile/MaterialRecord.h"

#include "Messages.h"
#include "RecordReading.h"
#include "RecordWriting.h"

namespace projectfile {

namespace {

std::string takeText(vxjson::JsonWriter& writer)
{
    if (writer.fault())
        detail::refuseValue(*writer.fault());
    return writer.take();
}

/// Returns the tree of a text that a writer has just made.
vxjson::JsonTree parse(const std::string& text)
{
    auto tree = vxjson::JsonTree::read(text, vxjson::JsonDialect::Strict);
    if (tree.error())
        detail::refuseText(*tree.error());
    return tree;
}

} // namespace

// Both functions convert the record to a text and back, because the writer and the reader of records work on the texts
// of files.

Json::Value writeMaterial(const vxMat::MaterialBase& material)
{
    vxjson::JsonWriter writer;
    detail::writeMaterialRecord(writer, material);
    return parse(takeText(writer)).root().toJsonValue();
}

void readMaterial(vxMat::MaterialBase& material, const Json::Value& record)
{
    vxjson::JsonWriter writer;
    writer.any(record);
    vxMat::MaterialBase read;
    detail::readMaterialRecord(parse(takeText(writer)).root(), read);
    material.swap(read);
}

} // namespace projectfile
