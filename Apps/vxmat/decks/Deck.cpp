#include "decks/Deck.h"

#include "documents/Documents.h"
#include "documents/MaterialNames.h"
#include "program/Arguments.h"
#include "program/Files.h"
#include "program/TextTable.h"
#include "units/ChosenUnits.h"
#include "vxDecks/Deck.h"
#include "vxDecks/DeckReading.h"
#include "vxDecks/Mapping.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace commandline {

namespace {

/// The materials of a deck, which are in the library or in files.
struct Collected
{
    std::vector<vxDecks::DeckMaterial> materials;
    std::vector<std::unique_ptr<vxCAE::MaterialEntry>> entries; ///< of the files
};

/// Returns the slots of the numbers that a material of a document does not have, and that its reader reads as 0.
std::vector<std::int32_t> missingNumbers(const Json::Value& material)
{
    std::vector<std::int32_t> slots;
    for (const Json::Value& property : material["Props"]) {
        const auto slot = static_cast<std::int32_t>(property["prop_type"].asUInt());
        const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(slot);
        if (record != nullptr && record->kind == vxMat::ValueKind::Number && property["prop_value"].isNull())
            slots.push_back(slot);
    }
    return slots;
}

/// Leaves out the quantities whose numbers a document does not have, and tells them.
void removeMissingNumbers(const Json::Value& document, MaterialFile& file, Answer& answer)
{
    for (const Json::Value& element : document["material"]) {
        const auto material = std::find_if(file.materials.begin(), file.materials.end(), [&element](const auto& one) {
            return one.number == element["mat_id"].asUInt();
        });
        for (const std::int32_t slot : missingNumbers(element)) {
            vxMat::CMaterial& made = *material->entry->material;
            const vxMat::MaterialProperty* const property = made.findProperty(slot);
            if (property == nullptr || property->value != 0.0)
                continue;
            answer.messages.push_back(file.path + ": " + material->label + ": the document has no number for " +
                                      vxMat::findPropertyRecord(slot)->name + "; the deck does not have it");
            answer.status = Status::Findings;
            made.removeProperty(property);
        }
    }
}

MaterialFile readSource(const std::string& path, Answer& answer)
{
    Input input = readInput(path);
    if (input.project)
        return readMaterials(std::move(input));
    const Json::Value document = toDocument(input);
    MaterialFile file = readMaterials(std::move(input));
    removeMissingNumbers(document, file, answer);
    return file;
}

void addFromFile(const std::string& path, Collected& collected, Answer& answer)
{
    MaterialFile file = readSource(path, answer);
    answer.add(file.doubts);
    if (file.materials.empty()) {
        answer.messages.push_back(path + ": holds no materials");
        answer.status = Status::Findings;
    }
    if (file.source == vxCAE::MaterialSource::Document)
        answer.messages.push_back("note: " + path + ": exchange documents carry no words and lists");
    for (FileMaterial& material : file.materials) {
        collected.materials.push_back({material.label, material.number, material.entry->material.get()});
        collected.entries.push_back(std::move(material.entry));
    }
}

Collected collect(const DeckRequest& request, const MaterialNames& names, Answer& answer)
{
    Collected collected;
    for (const std::string& source : request.sources) {
        if (const auto type = names.find(source)) {
            const vxMat::MaterialBase& material = names.get(*type);
            collected.materials.push_back({material.name, std::nullopt, &material});
        } else if (isFile(source)) {
            if (request.output != standardStream)
                requireAnotherFile(source, request.output);
            addFromFile(source, collected, answer);
        } else {
            throw Failure(names.unknownNameOrFile(source));
        }
    }
    return collected;
}

/// Checks that a deck replaces no project, whose materials would be lost.
void requireNoProject(const std::string& output)
{
    if (output != standardStream && isProjectFile(output))
        throw Failure(output + ": this file is a project, which the deck would replace; give another name");
}

const vxDecks::FormatInfo& findSolver(const std::string& name)
{
    if (const vxDecks::FormatInfo* const format = vxDecks::findFormat(name))
        return *format;
    std::string known;
    for (const vxDecks::FormatInfo& format : vxDecks::formats())
        known += (known.empty() ? "" : ", ") + std::string(format.name);
    throw Failure("--solver: there is no solver \"" + name + "\"; the solvers are: " + known);
}

vxDecks::Dialect findDialect(const vxDecks::FormatInfo& format, const std::string& name)
{
    if (const vxDecks::DialectInfo* const dialect = vxDecks::findDialect(format.format, name))
        return dialect->dialect;
    std::string known;
    for (const vxDecks::DialectInfo& dialect : vxDecks::dialects()) {
        if (dialect.format == format.format)
            known += (known.empty() ? "" : ", ") + std::string(dialect.name);
    }
    if (known.empty())
        throw Failure("--dialect: " + std::string(format.name) + " has no dialects");
    throw Failure("--dialect: " + std::string(format.name) + " has no dialect \"" + name +
                  "\"; the dialects are: " + known);
}

vxDecks::FieldForm findFields(const vxDecks::FormatInfo& format, const std::string& name)
{
    if (format.format != vxDecks::Format::Nastran)
        throw Failure("--fields: only nastran has fields of different forms");
    if (const auto form = vxDecks::findFieldForm(name))
        return *form;
    throw Failure("--fields: there is no form \"" + name + "\"; the forms are: small, large, free");
}

/// Checks that the numbers from the first one on are in the range of the format.
void requireNumbers(const vxDecks::FormatInfo& format, std::uint32_t first, std::size_t count)
{
    const std::uint32_t largest = format.largestNumber;
    if (largest == 0 || (first <= largest && count <= largest - first + std::size_t{1}))
        return;
    throw Failure("--ids: " + std::to_string(count) + " materials cannot be numbered from " + std::to_string(first) +
                  "; the largest number in " + format.title + " is " + std::to_string(largest));
}

vxDecks::DeckOptions optionsOf(const DeckRequest& request, const vxDecks::FormatInfo& format)
{
    vxDecks::DeckOptions options;
    if (request.dialect)
        options.dialect = findDialect(format, *request.dialect);
    if (request.fields)
        options.fields = findFields(format, *request.fields);
    if (request.units)
        options.units = readSystem("--units", *request.units);
    if (request.firstNumber)
        options.firstNumber = parseNumber("--ids", *request.firstNumber);
    if (options.firstNumber == 0U)
        throw Failure("--ids: the number of a material must be above 0");
    return options;
}

std::string cardOf(const vxDecks::Mapping& row)
{
    return row.transport == vxDecks::Transport::None ? "-" : row.card;
}

Json::Value toJson(const vxDecks::Mapping& row)
{
    Json::Value json;
    const bool isCarried = row.transport != vxDecks::Transport::None;
    json["card"] = isCarried ? Json::Value(row.card) : Json::Value();
    json["field"] = isCarried ? Json::Value(row.field) : Json::Value();
    json["how"] = row.how.english;
    json["manual"] = row.manual;
    json["proof"] = isCarried ? Json::Value(nameOf(row.proof)) : Json::Value();
    return json;
}

Json::Value dialectsOf(vxDecks::Format format)
{
    Json::Value list(Json::arrayValue);
    for (const vxDecks::DialectInfo& dialect : vxDecks::dialects()) {
        if (dialect.format != format)
            continue;
        Json::Value json;
        json["name"] = dialect.name;
        json["title"] = dialect.title;
        json["manual"] = dialect.manual;
        list.append(std::move(json));
    }
    return list;
}

/// Returns the places of a quantity in the dialects that are not those of the solvers of the formats.
Json::Value placesInDialects(std::int32_t id)
{
    Json::Value places(Json::objectValue);
    for (const vxDecks::DialectInfo& dialect : vxDecks::dialects()) {
        if (dialect.dialect != vxDecks::Dialect::Standard)
            places[dialect.name] = toJson(*vxDecks::findMapping(dialect.format, id, dialect.dialect));
    }
    return places;
}

Json::Value solversAsJson()
{
    Json::Value document;
    for (const vxDecks::FormatInfo& format : vxDecks::formats()) {
        Json::Value json;
        json["name"] = format.name;
        json["title"] = format.title;
        json["manual"] = format.manual;
        json["extension"] = format.extension;
        json["canRead"] = vxDecks::canRead(format.format);
        json["largestNumber"] = format.largestNumber == 0 ? Json::Value() : Json::Value(format.largestNumber);
        json["dialects"] = dialectsOf(format.format);
        document["solvers"].append(std::move(json));
    }
    for (const vxMat::PropertyRecord& record : vxMat::propertyRecords()) {
        Json::Value json;
        json["id"] = record.id;
        json["name"] = record.name;
        json["key"] = record.key;
        for (const vxDecks::FormatInfo& format : vxDecks::formats())
            json["solvers"][format.name] = toJson(*vxDecks::findMapping(format.format, record.id));
        json["dialects"] = placesInDialects(record.id);
        document["quantities"].append(std::move(json));
    }
    return document;
}

/// Returns the names of the dialects of a format, apart from that of its solver; "-" if there are none.
std::string dialectNames(vxDecks::Format format)
{
    std::string names;
    for (const vxDecks::DialectInfo& dialect : vxDecks::dialects()) {
        if (dialect.format == format && dialect.dialect != vxDecks::Dialect::Standard)
            names += (names.empty() ? "" : ", ") + std::string(dialect.name);
    }
    return names.empty() ? "-" : names;
}

TextTable solverTable()
{
    TextTable table({"Solver", "Title", "Decks are", "File", "Dialects"});
    for (const vxDecks::FormatInfo& format : vxDecks::formats())
        table.add({format.name, format.title, vxDecks::canRead(format.format) ? "written, read" : "written",
                   std::string(".").append(format.extension), dialectNames(format.format)});
    return table;
}

TextTable cardTable()
{
    TextTable::Row heading{"Quantity", "Key"};
    for (const vxDecks::FormatInfo& format : vxDecks::formats())
        heading.emplace_back(format.name);
    TextTable table(heading);
    for (const vxMat::PropertyRecord& record : vxMat::propertyRecords()) {
        TextTable::Row row{record.name, record.key};
        for (const vxDecks::FormatInfo& format : vxDecks::formats())
            row.push_back(cardOf(*vxDecks::findMapping(format.format, record.id)));
        table.add(row);
    }
    return table;
}

} // namespace

Answer writeSolverDeck(const DeckRequest& request, Form form)
{
    const vxDecks::FormatInfo& format = findSolver(request.solver);
    const vxDecks::DeckOptions options = optionsOf(request, format);
    requireNoProject(request.output);
    Answer answer;
    const MaterialNames names;
    const Collected collected = collect(request, names, answer);
    if (options.firstNumber)
        requireNumbers(format, *options.firstNumber, collected.materials.size());
    vxDecks::Deck deck = vxDecks::writeDeck(format.format, collected.materials, options);
    if (vxDecks::countRefused(deck.report) > 0)
        answer.status = Status::Findings;
    const bool isToStandardOutput = request.output == standardStream;
    if (!isToStandardOutput)
        writeFile(request.output, deck.text);
    if (form == Form::Json) {
        Json::Value document = toJson(deck.report);
        if (isToStandardOutput)
            document["deck"] = deck.text;
        answer.text = toJsonText(document);
        return answer;
    }
    for (const std::string& line : toLines(deck.report))
        answer.messages.push_back("note: " + line);
    if (isToStandardOutput)
        answer.text = std::move(deck.text);
    return answer;
}

Answer listSolvers(Form form)
{
    if (form == Form::Json)
        return {toJsonText(solversAsJson()), {}, Status::Clean};
    return {solverTable().text() + "\n" + cardTable().text(), {}, Status::Clean};
}

} // namespace commandline
