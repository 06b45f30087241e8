#include "documents/Import.h"

#include "documents/Documents.h"
#include "documents/NewProject.h"
#include "projectfile/ExchangeImport.h"
#include "units/ChosenUnits.h"
#include "vxDecks/DeckReading.h"
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

struct DoubtsAboutSystem
{
    std::vector<std::string> texts;
    bool areAboutAll =
        false; ///< whether most numbers of the file look like another system, and not those of a few materials
};

/// Returns doubts about numbers that look like another system than the assumed one: one doubt if this system explains most
/// doubts about all materials, otherwise one for each system that such materials look like.
DoubtsAboutSystem findOtherSystems(const ImportedMaterials& materials, const vxUnits::UnitSystem& assumed,
                                   const std::string& document)
{
    std::vector<const vxMat::MaterialBase*> all;
    for (const projectfile::ImportedMaterial& imported : materials)
        all.push_back(imported.material.get());
    if (const std::string fitting = vxUnits::betterFittingSystem(all, assumed); !fitting.empty())
        return {{doubtAboutSystem(document, fitting, assumed)}, true};
    std::map<std::string, std::vector<const projectfile::ImportedMaterial*>> bySystem;
    for (const projectfile::ImportedMaterial& imported : materials) {
        const std::string fitting = vxUnits::betterFittingSystem({imported.material.get()}, assumed);
        if (!fitting.empty())
            bySystem[fitting].push_back(&imported);
    }
    DoubtsAboutSystem doubts;
    for (const auto& [fitting, some] : bySystem)
        doubts.texts.push_back(doubtAboutSystem(document + ": " + titleOf(some), fitting, assumed));
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
        for (const std::string& doubt : findOtherSystems(imported.materials, request.units.system(), document).texts)
            notes.push_back("note: " + doubt);
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

/// Returns the findings about materials besides those that the report tells. Materials with the same finding share a text.
std::vector<std::string> findBesides(const ImportedMaterials& materials, const vxDecks::Report& report,
                                     const std::string& path)
{
    std::map<std::string, std::vector<const projectfile::ImportedMaterial*>> byText;
    for (std::size_t i = 0; i < materials.size(); ++i)
        for (const vxMat::MaterialFinding& one : vxDecks::findingsBesides(report.materials[i], *materials[i].material))
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

Json::Value toJson(const vxDecks::ReadDeck& deck)
{
    Json::Value json = vxDecks::toJson(deck.report);
    json["foreign"] = Json::arrayValue;
    for (const vxDecks::ForeignCard& card : deck.foreign) {
        Json::Value item;
        item["name"] = card.name;
        item["count"] = static_cast<Json::UInt64>(card.count);
        item["line"] = static_cast<Json::UInt64>(card.line);
        json["foreign"].append(std::move(item));
    }
    return json;
}

void addReport(const vxDecks::ReadDeck& deck, Form form, Answer& answer)
{
    if (form == Form::Json) {
        answer.text = toJsonText(toJson(deck));
        return;
    }
    for (const std::string& line : toLines(deck.report))
        answer.messages.push_back("note: " + line);
}

Answer importDeck(std::istream& file, vxDecks::Format format, const ImportRequest& request, Form form)
{
    vxDecks::ReadDeck deck = readDeckFile(file, format, request);
    Answer answer;
    addReport(deck, form, answer);
    if (deck.materials.empty()) {
        answer.messages.push_back(request.file + ": the deck has no materials; no project is written");
        answer.status = Status::Error;
        return answer;
    }
    if (countRefused(deck.report) > 0 || countFindings(deck.report) > 0)
        answer.status = Status::Findings;
    ImportedMaterials objects = toObjects(std::move(deck.materials));
    const DoubtsAboutSystem doubts = findOtherSystemsOfDeck(objects, deck.report.units, request.file);
    const bool isDoubtful = !doubts.texts.empty() && (doubts.areAboutAll || request.units.areGiven());
    const std::vector<std::string> findings = findBesides(objects, deck.report, request.file);
    if (isDoubtful || !findings.empty())
        answer.status = Status::Findings;
    answer.add(findings);
    for (const std::string& doubt : doubts.texts)
        answer.messages.push_back((isDoubtful ? "" : "note: ") + doubt);
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
