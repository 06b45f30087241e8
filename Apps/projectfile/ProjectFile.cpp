#include "projectfile/ProjectFile.h"

#include "JsonWriter.h"
#include "ProjectCheck.h"
#include "RecordMembers.h"
#include "RecordReading.h"
#include "RecordWriting.h"

#include "projectfile/MaterialRecord.h"
#include "vxMaterial/exchange/JsonText.h"

#include <QCoreApplication>

#include <algorithm>
#include <string_view>
#include <utility>

namespace projectfile {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("projectfile::ProjectFile", text);
}

Json::Value parse(const std::string& text)
{
    if (text.find_first_not_of(" \t\r\n") == std::string::npos)
        throw ProjectFileError(tr("The file is empty.").toStdString());
    auto reading = vxCAE::readJsonText(text, vxCAE::JsonDialect::Strict);
    if (!reading.error)
        return std::move(reading.document);
    throw ProjectFileError(describe(*reading.error));
}

void refuseOtherDocuments(const Json::Value& document)
{
    if (!isProject(document))
        throw ProjectFileError(tr(R"(This is no project file: its member "format" is not "%1".)")
                                   .arg(QLatin1String(detail::projectFormat.data()))
                                   .toStdString());
    const Json::Value& version = document["format_version"];
    if (version.isNumeric() && version.asDouble() > formatVersion)
        throw ProjectFileError(tr("The file was written by a later version of the program, in version %1 of the "
                                  "format; this program reads up to version %2.")
                                   .arg(QString::fromStdString(version.asString()))
                                   .arg(formatVersion)
                                   .toStdString());
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
