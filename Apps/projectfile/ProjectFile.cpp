#include "projectfile/ProjectFile.h"

#include "JsonWriter.h"
#include "ProjectCheck.h"
#include "RecordReading.h"
#include "RecordWriting.h"
#include "TextSource.h"

#include "projectfile/MaterialRecord.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace projectfile {

namespace {

using detail::TextSource;

/// What stands for the material of an object while that is read.
struct MaterialOfObject
{
    ProjectRecord& project;
    ObjectRecord& object;
};

void readField(TextSource& source, const MaterialOfObject& field)
{
    Json::Value further;
    Json::Value furtherOfProperties;
    auto material = std::make_unique<vxMat::MaterialBase>();
    detail::readMaterialRecord(source, *material, &further, &furtherOfProperties);
    field.object.material = material.get();
    field.project.materials.push_back(std::move(material));
    if (!further.isNull())
        field.object.further[detail::partOfMaterial] = std::move(further);
    if (!furtherOfProperties.isNull())
        field.object.further[detail::partOfProperties] = std::move(furtherOfProperties);
}

/// What stands for the array of materials while that is read.
struct Materials
{
    ProjectRecord& project;
};

void readField(TextSource& source, const Materials& field)
{
    detail::demand(source, detail::JsonKind::Array, "an array of objects");
    source.readArray([&] {
        ObjectRecord& object = field.project.objects.emplace_back();
        const MaterialOfObject material{field.project, object};
        Json::Value further;
        detail::readMembers(
            source, [&](const auto& visit) { detail::visitObjectMembers(object, material, visit); }, &further);
        if (!further.isNull())
            object.further[detail::partOfObject] = std::move(further);
    });
}

/// \throws RecordError when the text is a JSON document but none of a project
ProjectRecord readRecord(std::string_view text)
{
    ProjectRecord project;
    std::string format;
    std::int32_t version = 0;
    const Materials materials{project};
    TextSource source(text);
    detail::readMembers(
        source, [&](const auto& visit) { detail::visitProjectMembers(format, version, project, materials, visit); },
        &project.further);
    source.readEnd();
    if (format != detail::projectFormat)
        throw RecordError("\"format\" is another");
    if (version < 1 || version > formatVersion)
        throw RecordError("\"format_version\" is " + std::to_string(version) + " but must be from 1 to " +
                          std::to_string(formatVersion));
    detail::checkProject(project);
    return project;
}

/// Says what a text is that cannot be read as a project of this version, when it is something else.
/// \throws ProjectFileError when it is no JSON document, none of a project, or of a later version
void refuseOtherDocuments(std::string_view text)
{
    TextSource source(text);
    const Json::Value document = source.readAny();
    source.readEnd();
    if (!isProject(document))
        throw ProjectFileError("this is no project file: its member \"format\" is not \"" +
                               std::string(detail::projectFormat) + "\"");
    const Json::Value& version = document["format_version"];
    if (version.isNumeric() && version.asDouble() > formatVersion)
        throw ProjectFileError("the file was written by a later version of the program, in version " +
                               version.asString() + " of the format; this program reads up to version " +
                               std::to_string(formatVersion));
}

} // namespace

ProjectFileError::~ProjectFileError() = default;

std::string writeProject(const ProjectRecord& project)
{
    try {
        detail::checkProject(project);
    } catch (const RecordError& error) {
        throw ProjectFileError(error.what());
    }
    detail::JsonWriter writer;
    detail::writeProjectRecord(writer, project);
    return writer.take() + "\n";
}

ProjectRecord readProject(const std::string& text)
{
    try {
        ProjectRecord project = readRecord(text);
        project.doubts = detail::findDoubts(project);
        std::sort(project.objects.begin(), project.objects.end(),
                  [](const ObjectRecord& a, const ObjectRecord& b) { return a.objectId < b.objectId; });
        return project;
    } catch (const RecordError& error) {
        refuseOtherDocuments(text);
        throw ProjectFileError(error.what());
    }
}

bool isProject(const Json::Value& document)
{
    const Json::Value* const format =
        document.isObject() ? document.find("format", "format" + std::string_view("format").size()) : nullptr;
    return format != nullptr && *format == Json::Value(detail::projectFormat.data());
}

} // namespace projectfile
