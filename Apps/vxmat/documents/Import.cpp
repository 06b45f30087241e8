#include "documents/Import.h"

#include "documents/Documents.h"
#include "documents/NewProject.h"
#include "projectfile/ExchangeImport.h"
#include "units/ChosenUnits.h"
#include "vxDecks/DeckReading.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxUnits/MaterialValues.h"
#include "vxUnits/SystemFit.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <utility>

namespace commandline {

namespace {

using ImportedMaterials = std::vector<projectfile::ImportedMaterial>;

std::string doubtAboutSystem(const std::string& subject, const std::string& fitting, const vxUnits::UnitSystem& assumed)
{
    return subject + ": the numbers look like " + fitting + ", not " + assumed.text() +
           "; --units gives the unit system of its numbers";
}

std::string titleOf(const projectfile::ImportedMaterial& imported)
{
    return std::to_string(imported.objectId) + " " + imported.label;
}

/// Returns "3 Steel" or "12 materials (3 Steel, 4 Iron, 7 Copper, ...)".
std::string titleOf(const std::vector<const projectfile::ImportedMaterial*>& materials)
{
    constexpr std::size_t mostNames = 3;
    if (materials.size() == 1)
        return titleOf(*materials.front());
    std::string names;
    for (std::size_t i = 0; i < std::min(materials.size(), mostNames); ++i)
        names += (names.empty() ? "" : ", ") + titleOf(*materials[i]);
    return std::to_string(materials.size()) + " materials (" + names + (materials.size() > mostNames ? ", ...)" : ")");
}

/// A doubt that numbers are in the assumed unit system.
struct DoubtAboutSystem
{
    std::string fitting;                ///< the system that they look like
    std::vector<std::string> materials; ///< labels; empty if most numbers of the file are meant
    std::string text;
};

using DoubtsAboutSystem = std::vector<DoubtAboutSystem>;

/// Returns whether the doubts are about most numbers of the file, and not about those of a few materials.
bool areAboutAll(const DoubtsAboutSystem& doubts)
{
    return doubts.size() == 1 && doubts.front().materials.empty();
}

std::vector<std::string> labelsOf(const std::vector<const projectfile::ImportedMaterial*>& materials)
{
    std::vector<std::string> labels;
    labels.reserve(materials.size());
    for (const projectfile::ImportedMaterial* const one : materials)
        labels.push_back(one->label);
    return labels;
}

/// Returns doubts about numbers that look like another system than the assumed one: one doubt if this system explains most
/// doubts about all materials, otherwise one for each system that such materials look like.
DoubtsAboutSystem findOtherSystems(const ImportedMaterials& materials, const vxUnits::UnitSystem& assumed,
                                   const std::string& document)
{
    std::vector<const vxMat::MaterialBase*> all;
    for (const projectfile::ImportedMaterial& imported : materials)
        all.push_back(imported.material.get());
    if (const std::string fitting = vxUnits::betterFittingSystem(all, assumed); !fitting.empty())
        return {{fitting, {}, doubtAboutSystem(document, fitting, assumed)}};
    std::map<std::string, std::vector<const projectfile::ImportedMaterial*>> bySystem;
    for (const projectfile::ImportedMaterial& imported : materials) {
        const std::string fitting = vxUnits::betterFittingSystem({imported.material.get()}, assumed);
        if (!fitting.empty())
            bySystem[fitting].push_back(&imported);
    }
    DoubtsAboutSystem doubts;
    for (const auto& [fitting, some] : bySystem)
        doubts.push_back(
            {fitting, labelsOf(some), doubtAboutSystem(document + ": " + titleOf(some), fitting, assumed)});
    return doubts;
}

/// Converts materials from the given units. Returns notes about numbers that stay unchanged.
std::vector<std::string> convert(ImportedMaterials& materials, const ChosenUnits& units, const std::string& document)
{
    std::vector<std::string> notes;
    for (projectfile::ImportedMaterial& imported : materials)
        if (const std::string note = units.revert(*imported.material); !note.empty())
            notes.push_back(std::string("note: ")
                                .append(document)
                                .append(": ")
                                .append(titleOf(imported))
                                .append(": ")
                                .append(note));
    return notes;
}

/// Returns the text of a document. The tree of its values, which takes more memory than the text, is not kept.
std::string textOf(Input input)
{
    if (input.project)
        throw Failure(input.path + ": it is a project file, which needs no import");
    return std::move(input.text);
}

Answer importDocument(Input input, const ImportRequest& request)
{
    const std::string document = input.path;
    const std::string text = textOf(std::move(input));
    Answer answer;
    std::vector<std::string> notes;
    try {
        projectfile::ImportedMaterials imported = projectfile::importExchange(text);
        for (const std::string& doubt : imported.doubts)
            answer.messages.push_back(std::string(document).append(": ").append(doubt));
        for (const DoubtAboutSystem& doubt : findOtherSystems(imported.materials, request.units.system(), document))
            notes.push_back("note: " + doubt.text);
        for (std::string& note : convert(imported.materials, request.units, document))
            notes.push_back(std::move(note));
        writeNewProject(request.output, std::move(imported.materials), request.existing, answer);
    } catch (const projectfile::ContentError& error) {
        throw Failure(document + ": " + error.what());
    }
    answer.status = answer.messages.empty() ? Status::Clean : Status::Findings;
    answer.add(notes);
    return answer;
}

/// Returns the materials of a deck as objects. They keep their numbers; a material without a number, or with a number that an
/// earlier one has, gets the smallest free one.
ImportedMaterials toObjects(std::vector<vxDecks::ReadMaterial> materials)
{
    std::set<std::uint32_t> used{0};
    std::vector<bool> keeps;
    keeps.reserve(materials.size());
    for (const vxDecks::ReadMaterial& one : materials)
        keeps.push_back(one.number && used.insert(*one.number).second);
    ImportedMaterials objects;
    std::uint32_t free = 1;
    for (std::size_t i = 0; i < materials.size(); ++i) {
        while (!keeps[i] && !used.insert(free).second)
            ++free;
        projectfile::ImportedMaterial& object = objects.emplace_back();
        object.objectId = keeps[i] ? *materials[i].number : free;
        object.label = std::move(materials[i].name);
        object.material = std::move(materials[i].material);
    }
    return objects;
}

/// Returns the doubts of findOtherSystems about materials whose numbers were read in a unit system.
DoubtsAboutSystem findOtherSystemsOfDeck(const ImportedMaterials& materials, const std::string& units,
                                         const std::string& path)
{
    const auto system = vxUnits::UnitSystem::parse(units);
    if (!system)
        return {}; // each number has its own unit
    ImportedMaterials inDeck;
    for (const projectfile::ImportedMaterial& one : materials) {
        projectfile::ImportedMaterial& copy = inDeck.emplace_back();
        copy.objectId = one.objectId;
        copy.label = one.label;
        copy.material = std::make_unique<vxMat::CMaterial>();
        copy.material->copyAllFrom(*one.material);
        vxUnits::convertMaterial(*copy.material, vxUnits::UnitSystem::si(), *system);
    }
    return findOtherSystems(inDeck, *system, path);
}

/// The findings about each material besides those that the report tells.
using FindingsBesides = std::vector<std::vector<vxMat::MaterialFinding>>;

FindingsBesides findingsOf(const ImportedMaterials& materials, const vxDecks::Report& report)
{
    FindingsBesides findings;
    findings.reserve(materials.size());
    for (std::size_t i = 0; i < materials.size(); ++i)
        findings.push_back(vxDecks::findingsBesides(report.materials[i], *materials[i].material));
    return findings;
}

/// Returns the findings as texts. Materials with the same finding share a text.
std::vector<std::string> toTexts(const FindingsBesides& findings, const ImportedMaterials& materials,
                                 const std::string& path)
{
    std::map<std::string, std::vector<const projectfile::ImportedMaterial*>> byText;
    for (std::size_t i = 0; i < materials.size(); ++i)
        for (const vxMat::MaterialFinding& one : findings[i])
            byText[toText(one)].push_back(&materials[i]);
    std::vector<std::string> texts;
    texts.reserve(byText.size());
    for (const auto& [text, some] : byText)
        texts.push_back(std::string(path).append(": ").append(titleOf(some)).append(": ").append(text));
    return texts;
}

vxDecks::ReadDeck readDeckFile(std::istream& file, vxDecks::Format format, const ImportRequest& request)
{
    vxDecks::ReadOptions options;
    if (request.units.areGiven())
        options.units = request.units.system();
    try {
        return vxDecks::readDeck(format, file, options);
    } catch (const vxDecks::UnitsNeeded& error) {
        const std::string& proposal = error.proposal();
        throw Failure(request.file + ": " + error.what() +
                      (proposal.empty() ? "; --units gives it" : "; if they are, give --units " + proposal));
    } catch (const vxDecks::DeckError& error) {
        throw Failure(request.file + ": " + error.what());
    }
}

Json::Value toJson(const std::vector<vxDecks::ForeignCard>& cards)
{
    Json::Value list(Json::arrayValue);
    for (const vxDecks::ForeignCard& card : cards) {
        Json::Value item;
        item["name"] = card.name;
        item["count"] = static_cast<Json::UInt64>(card.count);
        item["line"] = static_cast<Json::UInt64>(card.line);
        list.append(std::move(item));
    }
    return list;
}

/// Returns a finding in the form of those of the report, without a card and a line.
Json::Value toJson(const vxMat::MaterialFinding& finding)
{
    const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(finding.slot);
    Json::Value json;
    json["id"] = Json::Value();
    json["text"] = toText(finding);
    json["key"] = record == nullptr ? Json::Value() : Json::Value(record->key);
    json["card"] = Json::Value();
    json["line"] = Json::Value();
    return json;
}

Json::Value toJson(const DoubtsAboutSystem& doubts)
{
    Json::Value list(Json::arrayValue);
    for (const DoubtAboutSystem& doubt : doubts) {
        Json::Value item;
        item["system"] = doubt.fitting;
        item["materials"] = Json::Value();
        for (const std::string& label : doubt.materials)
            item["materials"].append(label);
        item["text"] = doubt.text;
        list.append(std::move(item));
    }
    return list;
}

/// The findings of an import besides its report.
struct Besides
{
    FindingsBesides findings; ///< of each material
    DoubtsAboutSystem doubts;
    bool areDoubtsFindings = false; ///< and not only notes

    bool areFindings() const
    {
        return areDoubtsFindings ||
               std::any_of(findings.begin(), findings.end(), [](const auto& some) { return !some.empty(); });
    }
};

Besides findBesides(const ImportedMaterials& materials, const vxDecks::Report& report, const ImportRequest& request)
{
    Besides besides{findingsOf(materials, report), findOtherSystemsOfDeck(materials, report.units, request.file)};
    besides.areDoubtsFindings = !besides.doubts.empty() && (areAboutAll(besides.doubts) || request.units.areGiven());
    return besides;
}

std::string jsonTextOf(const vxDecks::ReadDeck& deck, const Besides& besides)
{
    Json::Value json = vxDecks::toJson(deck.report);
    for (std::size_t i = 0; i < besides.findings.size(); ++i)
        for (const vxMat::MaterialFinding& one : besides.findings[i])
            json["materials"][static_cast<Json::ArrayIndex>(i)]["findings"].append(toJson(one));
    json["foreign"] = toJson(deck.foreign);
    json["doubts"] = toJson(besides.doubts);
    return toJsonText(json);
}

void addTexts(const vxDecks::Report& report, const Besides& besides, const ImportedMaterials& materials,
              const std::string& path, Answer& answer)
{
    for (const std::string& line : toLines(report))
        answer.messages.push_back("note: " + line);
    answer.add(toTexts(besides.findings, materials, path));
    for (const DoubtAboutSystem& doubt : besides.doubts)
        answer.messages.push_back((besides.areDoubtsFindings ? "" : "note: ") + doubt.text);
}

Answer importDeck(std::istream& file, vxDecks::Format format, const ImportRequest& request, Form form)
{
    vxDecks::ReadDeck deck = readDeckFile(file, format, request);
    ImportedMaterials objects = toObjects(std::move(deck.materials));
    const Besides besides = findBesides(objects, deck.report, request);
    Answer answer;
    if (form == Form::Json)
        answer.text = jsonTextOf(deck, besides);
    else
        addTexts(deck.report, besides, objects, request.file, answer);
    if (objects.empty()) {
        answer.messages.push_back(request.file + ": the deck has no materials; no project is written");
        answer.status = Status::Error;
        return answer;
    }
    if (countRefused(deck.report) > 0 || countFindings(deck.report) > 0 || besides.areFindings())
        answer.status = Status::Findings;
    writeNewProject(request.output, std::move(objects), request.existing, answer);
    return answer;
}

/// A deck is read from the file, and needs no memory for its text.
Answer importRegularFile(const ImportRequest& request, Form form)
{
    std::ifstream file(request.file, std::ios::binary);
    std::string beginning(vxDecks::recognisedLength, '\0');
    file.read(beginning.data(), static_cast<std::streamsize>(beginning.size()));
    beginning.resize(static_cast<std::size_t>(file.gcount()));
    const auto format = deckFormatOf(beginning);
    if (!format)
        return importDocument(readInput(request.file), request);
    file.clear();
    file.seekg(0);
    return importDeck(file, *format, request, form);
}

/// Imports standard input or an open file, which can be read only once.
Answer importStream(const ImportRequest& request, Form form)
{
    std::string text = readFile(request.file, Content::JsonOrDeck);
    const auto format = deckFormatOf(text);
    if (!format)
        return importDocument(parseInput(request.file, std::move(text)), request);
    std::istringstream file(text);
    return importDeck(file, *format, request, form);
}

} // namespace

Answer importFile(const ImportRequest& request, Form form)
{
    if (form == Form::Json && request.output == standardStream)
        throw Failure("--json: the report and the project cannot both be on standard output; -o gives a file");
    requireAnotherFile(request.file, request.output);
    const bool isRegular =
        request.file != standardStream && QFileInfo(QFile::decodeName(request.file.c_str())).isFile();
    Answer answer = isRegular ? importRegularFile(request, form) : importStream(request, form);
    if (form == Form::Json && answer.text.empty()) {
        Json::Value json;
        json["format"] = Json::Value();
        json["messages"] = Json::arrayValue;
        for (const std::string& message : answer.messages)
            json["messages"].append(message);
        answer.messages.clear();
        answer.text = toJsonText(json);
    }
    return answer;
}

} // namespace commandline
