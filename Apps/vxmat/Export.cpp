#include "Export.h"

#include "Arguments.h"
#include "Files.h"
#include "MaterialNames.h"

#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/exchange/JsonText.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <memory>
#include <optional>
#include <set>
#include <utility>

namespace vxmat {

namespace {

/// One NAME or NAME=NUMBER of the command line.
struct Wanted
{
    std::string name;
    std::optional<std::uint32_t> number;
};

Wanted parseWanted(const std::string& argument)
{
    const std::size_t sign = argument.rfind('=');
    if (sign == std::string::npos)
        return {argument, std::nullopt};
    return {argument.substr(0, sign), parseNumber(argument, argument.substr(sign + 1))};
}

std::vector<Wanted> parseAll(const std::vector<std::string>& arguments)
{
    std::vector<Wanted> all;
    std::set<std::uint32_t> taken;
    for (const std::string& argument : arguments) {
        all.push_back(parseWanted(argument));
        if (all.back().number && !taken.insert(*all.back().number).second)
            throw Failure(argument + ": another material has this number already");
    }
    std::uint32_t next = 1;
    for (Wanted& wanted : all) {
        if (wanted.number)
            continue;
        while (taken.count(next) != 0)
            ++next;
        wanted.number = next++;
    }
    return all;
}

/// What of a material the document does not carry, besides units and descriptions, which the catalogue knows.
void noteWhatStaysBehind(const vxMat::MaterialBase& material, Answer& answer)
{
    std::string lost;
    for (const vxMat::PropertyRecord& record : vxMat::propertyRecords()) {
        const bool isNumber = record.kind == vxMat::eValueKind::Number || record.kind == vxMat::eValueKind::ModelSwitch;
        if (material.hasProperty(record.id) && !isNumber)
            lost += (lost.empty() ? "\"" : ", \"") + std::string(record.name) + "\"";
    }
    if (!lost.empty())
        answer.messages.push_back("note: " + material.name +
                                  ": exchange documents carry no words and lists; lost: " + lost);
}

} // namespace

Answer exportMaterials(const std::vector<std::string>& materials, const std::string& path)
{
    const MaterialNames names;
    Answer answer;
    vxCAE::CAESet set(0, vxCAE::ProjectKind::Material);
    for (const Wanted& wanted : parseAll(materials)) {
        const vxMat::MaterialBase& material = names.get(wanted.name);
        noteWhatStaysBehind(material, answer);
        auto entry = std::make_unique<vxCAE::MaterialEntry>();
        entry->material->copyFrom(material);
        set.materials->addMaterial(*wanted.number, std::move(entry));
    }
    Json::Value document;
    set.writeJson(document);
    const std::string text = vxCAE::toStyledText(document);
    if (path == standardStream)
        answer.text = text;
    else
        writeFile(path, text);
    return answer;
}

} // namespace vxmat
