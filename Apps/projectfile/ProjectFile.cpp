#include "projectfile/ProjectFile.h"

#include "JsonWriter.h"
#include "ProjectCheck.h"
#include "RecordMembers.h"
#include "RecordReading.h"
#include "RecordWriting.h"

#include "projectfile/MaterialRecord.h"
#include "vxMaterial/exchange/JsonText.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace projectfile {

namespace {

Json::Value parse(const std::string& text)
{
    if (text.find_first_not_of(" \t\r\n") == std::string::npos)
        throw ProjectFileError("the file is empty");
    auto reading = vxCAE::readJsonText(text, vxCAE::JsonDialect::Strict);
    if (!reading.error)
        return std::move(reading.document);
    throw ProjectFileError(describe(*reading.error));
}

void refuseOtherDocuments(const Json::Value& document)
{
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
    const Json::Value document = parse(text);
    refuseOtherDocuments(document);
    try {
        ProjectRecord project = detail::readProjectRecord(document);
        detail::checkProject(project);
        project.doubts = detail::findDoubts(project);
        std::sort(project.objects.begin(), project.objects.end(),
                  [](const ObjectRecord& a, const ObjectRecord& b) { return a.objectId < b.objectId; });
        return project;
    } catch (const RecordError& error) {
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
