#include "Check.h"

#include "Documents.h"
#include "Files.h"
#include "ProjectFindings.h"

#include "vxMaterial/exchange/DocumentCheck.h"

namespace commandline {

namespace {

Json::Value toJson(const std::vector<vxCAE::Finding>& findings)
{
    Json::Value list(Json::arrayValue);
    for (const vxCAE::Finding& finding : findings) {
        Json::Value json;
        json["path"] = finding.path;
        json["message"] = finding.message;
        list.append(std::move(json));
    }
    return list;
}

vxCAE::CheckReport check(const std::string& path, const std::optional<std::string>& materialsPath)
{
    const Input input = readInput(path);
    if (input.project)
        return checkProject(input);
    Json::Value materials;
    if (materialsPath)
        materials = readMaterialDocument(*materialsPath);

    vxCAE::CheckReport report = vxCAE::checkDocument(toDocument(input), materialsPath ? &materials : nullptr);
    const auto repeated = findRepeatedMembers(input);
    report.findings.insert(report.findings.begin(), repeated.begin(), repeated.end());
    return report;
}

} // namespace

Answer checkFile(const std::string& path, const std::optional<std::string>& materialsPath, Form form)
{
    const vxCAE::CheckReport report = check(path, materialsPath);
    Answer answer;
    answer.status = report.findings.empty() ? Status::Clean : Status::Findings;
    if (form == Form::Json) {
        Json::Value document;
        document["file"] = path;
        document["findings"] = toJson(report.findings);
        document["notes"] = toJson(report.notes);
        answer.text = toJsonText(document);
        return answer;
    }
    for (const vxCAE::Finding& finding : report.findings)
        answer.text += path + ": " + printable(finding.path) + ": " + printable(finding.message) + "\n";
    for (const vxCAE::Finding& note : report.notes)
        answer.messages.push_back(path + ": note: " + note.path + ": " + note.message);
    return answer;
}

} // namespace commandline
