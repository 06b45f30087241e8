#include "documents/Export.h"

#include "documents/Documents.h"
#include "documents/MaterialNames.h"
#include "program/Arguments.h"
#include "program/Files.h"
#include "units/ChosenUnits.h"
#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/exchange/ExportCheck.h"
#include "vxMaterial/json/JsonText.h"
#include "vxMaterial/model/NumberText.h"

#include <memory>
#include <optional>
#include <set>
#include <utility>

namespace commandline {

namespace {

/// A material to be written.
struct Wanted
{
    std::string argument;                ///< the argument that requests it
    std::optional<std::uint32_t> number; ///< absent if any free number can be used
    std::unique_ptr<vxCAE::MaterialEntry> entry;
};

/// Adds a note about the words and lists of a material, which a document does not carry.
void noteWhatStaysBehind(const vxMat::MaterialBase& material, Answer& answer)
{
    std::string lost;
    for (const auto& [slot, property] : vxCAE::findLostValues(material))
        lost += (lost.empty() ? "\"" : ", \"") + property->name + "\"";
    if (!lost.empty())
        answer.messages.push_back("note: " + material.name +
                                  ": exchange documents carry no words and lists; lost: " + lost);
}

/// Adds a note about the texts that a project keeps beside a material, such as its measurements.
void noteSettings(const FileMaterial& material, Answer& answer)
{
    std::string lost;
    for (const auto& [name, text] : material.object.settings)
        lost += (lost.empty() ? "\"" : ", \"") + name + "\"";
    if (!lost.empty())
        answer.messages.push_back(
            "note: " + material.label +
            ": exchange documents carry no data that a project keeps beside a material; left out: " + lost);
}

/// Throws a Failure for the first property for which readers refuse a document.
void requireThatReadersTake(const std::string& path, const vxMat::MaterialBase& material)
{
    const auto obstacles = vxCAE::findExportObstacles(material);
    if (obstacles.empty())
        return;
    const auto& [slot, property] = obstacles.front().held;
    const std::string title =
        path + ": " + material.name + ": property " + std::to_string(slot) + " \"" + property->name + "\" ";
    if (obstacles.front().fault == vxCAE::ExportFault::NegativeSlot)
        throw Failure(title + "has an id below 0, which readers of exchange documents refuse");
    throw Failure(title + "is " + vxMat::formatNumber(property->value) +
                  "; exchange documents carry only finite numbers");
}

void addProject(const std::string& path, std::vector<Wanted>& all, Answer& answer)
{
    Input input = readInput(path);
    if (!input.project)
        throw Failure(path + ": not a project file; give library materials or project files");
    MaterialFile file = readMaterials(std::move(input));
    answer.add(file.doubts);
    if (!file.others.empty())
        answer.messages.push_back("note: " + path +
                                  ": exchange documents carry only materials; the other objects are left out");
    for (FileMaterial& material : file.materials) {
        requireThatReadersTake(path, *material.entry->material);
        noteSettings(material, answer);
        all.push_back({path + ": " + material.label, material.number, std::move(material.entry)});
    }
}

std::vector<Wanted> collect(const std::vector<std::string>& arguments, const std::string& output, Answer& answer)
{
    const MaterialNames names;
    std::vector<Wanted> all;
    for (const std::string& argument : arguments) {
        const NameAndValue wanted = splitAt(argument, argument.rfind('='));
        const bool isName = names.find(argument).has_value() || names.find(wanted.name).has_value();
        if (!isName && isFile(argument)) {
            requireAnotherFile(argument, output);
            addProject(argument, all, answer);
            continue;
        }
        std::optional<std::uint32_t> number;
        if (wanted.value)
            number = parseNumber(argument, *wanted.value);
        if (!isName)
            throw Failure(names.unknownNameOrFile(wanted.name));
        auto entry = std::make_unique<vxCAE::MaterialEntry>();
        entry->material->copyFrom(names.get(wanted.name));
        all.push_back({argument, number, std::move(entry)});
    }
    return all;
}

/// Gives the smallest free numbers to the materials without a number.
void number(std::vector<Wanted>& all)
{
    std::set<std::uint32_t> taken;
    for (const Wanted& wanted : all) {
        if (wanted.number && !taken.insert(*wanted.number).second)
            throw Failure(wanted.argument + ": another material has this number already");
    }
    std::uint32_t next = 1;
    for (Wanted& wanted : all) {
        if (wanted.number)
            continue;
        while (taken.count(next) != 0)
            ++next;
        wanted.number = next++;
    }
}

/// Converts a material to the given units, notes the quantities that stay unchanged, and refuses a number that is out of
/// range in the units.
void convert(Wanted& wanted, const ChosenUnits& units, const std::string& path, Answer& answer)
{
    const std::string note = units.apply(*wanted.entry->material);
    if (!note.empty())
        answer.messages.push_back("note: " + wanted.argument + ": " + note);
    if (units.areGiven())
        requireThatReadersTake(path, *wanted.entry->material);
}

} // namespace

Answer exportMaterials(const std::vector<std::string>& materials, const std::string& path, Existing existing,
                       const ChosenUnits& units)
{
    Answer answer;
    std::vector<Wanted> all = collect(materials, path, answer);
    number(all);
    vxCAE::CAESet set(0, vxCAE::ProjectKind::Material);
    for (Wanted& wanted : all) {
        convert(wanted, units, path, answer);
        noteWhatStaysBehind(*wanted.entry->material, answer);
        set.materials->addMaterial(*wanted.number, std::move(wanted.entry));
    }
    Json::Value document;
    set.writeJson(document);
    const std::string text = vxjson::toStyledText(document);
    if (path == standardStream)
        answer.text = text;
    else if (isProjectFile(path))
        writeProjectFile(path, text, existing);
    else
        writeFile(path, text);
    if (units.areGiven())
        answer.messages.push_back(units.note(path + " is"));
    return answer;
}

} // namespace commandline
