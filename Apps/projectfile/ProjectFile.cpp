#include "projectfile/ProjectFile.h"

#include "Messages.h"
#include "ProjectCheck.h"
#include "RecordMembers.h"
#include "RecordReading.h"
#include "RecordWriting.h"

#include <algorithm>

namespace projectfile {

namespace {

using detail::tr;

vxjson::JsonTree parse(std::string_view text)
{
    if (text.find_first_not_of(" \t\r\n") == std::string_view::npos)
        throw ContentError(tr("The file is empty.").toStdString());
    auto tree = vxjson::JsonTree::read(text, vxjson::JsonDialect::Strict);
    if (tree.error())
        detail::refuseText(*tree.error());
    return tree;
}

void refuseOtherDocuments(const vxjson::JsonNode& document)
{
    if (!isProject(document))
        throw ContentError(tr(R"(This is not a project file: its member "format" is not "%1".)")
                               .arg(detail::toQString(detail::projectFormat))
                               .toStdString());
    const vxjson::JsonNode version = document["format_version"];
    if (version.number() > formatVersion)
        throw ContentError(tr("The file was written by a later version of the program, in version %1 of the "
                              "format; this program reads up to version %2.")
                               .arg(version.number())
                               .arg(formatVersion)
                               .toStdString());
}

} // namespace

std::string writeProject(const ProjectRecord& project)
{
    detail::checkProject(project);
    if (const auto doubts = detail::findFalseLinks(project); !doubts.empty())
        throw ContentError(doubts.front());
    vxjson::JsonWriter writer;
    detail::writeProjectRecord(writer, project);
    if (writer.fault())
        detail::refuseValue(*writer.fault());
    return writer.take() + "\n";
}

ProjectRecord readProject(std::string_view text)
{
    const vxjson::JsonTree tree = parse(text);
    refuseOtherDocuments(tree.root());
    ProjectRecord project = detail::readProjectRecord(tree.root());
    detail::checkProject(project);
    project.doubts = detail::takeDoubts(project);
    std::sort(project.objects.begin(), project.objects.end(),
              [](const ObjectRecord& a, const ObjectRecord& b) { return a.objectId < b.objectId; });
    return project;
}

bool isProject(const vxjson::JsonNode& document)
{
    return document["format"].text() == detail::projectFormat;
}

bool isProjectText(std::string_view text)
{
    return isProject(vxjson::JsonTree::read(text, vxjson::JsonDialect::WithComments).root());
}

} // namespace projectfile
