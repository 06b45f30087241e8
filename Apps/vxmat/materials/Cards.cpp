#include "materials/Cards.h"

#include "documents/Documents.h"
#include "documents/MaterialNames.h"
#include "program/Files.h"
#include "units/ChosenUnits.h"
#include "vxMaterial/exchange/CardSet.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>

namespace commandline {

namespace {

/// A material whose cards are printed.
struct CardMaterial
{
    std::string source; ///< the file; empty for a library material
    std::optional<std::uint32_t> number;
    vxCAE::MaterialSource completeness = vxCAE::MaterialSource::Complete;
    std::unique_ptr<vxCAE::MaterialEntry> entry;
};

std::string titleOf(const CardMaterial& material)
{
    const std::string name = printable(material.entry->material->name);
    return material.number ? std::to_string(*material.number) + " " + name : name;
}

CardMaterial fromLibrary(const vxMat::MaterialBase& material)
{
    auto entry = std::make_unique<vxCAE::MaterialEntry>();
    entry->material->copyFrom(material);
    entry->classifyKind();
    return {"", std::nullopt, vxCAE::MaterialSource::Complete, std::move(entry)};
}

void addFromFile(const std::string& path, std::vector<CardMaterial>& materials, Answer& answer)
{
    MaterialFile file = readMaterials(path);
    answer.add(file.doubts);
    if (file.materials.empty()) {
        answer.messages.push_back(path + ": holds no materials");
        answer.status = Status::Findings;
    }
    for (FileMaterial& material : file.materials)
        materials.push_back({path, material.number, file.source, std::move(material.entry)});
}

std::vector<CardMaterial> collect(const std::vector<std::string>& sources, Answer& answer)
{
    const MaterialNames names;
    std::vector<CardMaterial> materials;
    for (const std::string& source : sources) {
        if (const auto type = names.find(source))
            materials.push_back(fromLibrary(names.get(*type)));
        else if (isFile(source))
            addFromFile(source, materials, answer);
        else
            throw Failure(names.unknownNameOrFile(source));
    }
    return materials;
}

/// Returns notes about the numbers that lose digits in the line of elasticity, which has six decimals. Young's modulus of a
/// gel in GPa is such a number.
std::vector<std::string> notesOnDigits(const vxMat::MaterialBase& material, const vxCAE::CardSet& set)
{
    constexpr double tolerance = 1e-5; // five digits stay
    const bool elastic = std::any_of(set.cards.begin(), set.cards.end(),
                                     [](const vxCAE::SolverCard& card) { return card.name == "elasticity"; });
    std::vector<std::string> notes;
    for (const std::int32_t id : {vxMat::PropertyId::YoungsModulus, vxMat::PropertyId::PoissonsRatio}) {
        double number = 0.0;
        if (!elastic || !material.getPropertyValue(id, number) || !std::isfinite(number))
            continue;
        const std::string printed = vxMat::formatFixed(number);
        if (std::abs(vxMat::readNumber(printed) - number) > tolerance * std::abs(number))
            notes.push_back("the elasticity card has six decimals, so that " +
                            std::string(vxMat::findPropertyRecord(id)->name) + " " + vxMat::formatNumber(number) +
                            " becomes " + printed + "; choose a unit system with a smaller unit");
    }
    return notes;
}

std::string toText(const CardMaterial& material, const vxCAE::CardSet& set)
{
    std::string text = "== " + titleOf(material) + "\n";
    if (set.cards.empty())
        text += "(no card applies)\n";
    for (const vxCAE::SolverCard& card : set.cards) {
        text += "-- " + card.name + "\n" + card.text;
        if (card.text.back() != '\n')
            text += "\n";
    }
    return text;
}

Json::Value toJson(const CardMaterial& material, const vxCAE::CardSet& set)
{
    Json::Value json;
    json["source"] = material.source.empty() ? Json::Value() : Json::Value(material.source);
    json["number"] = material.number ? Json::Value(*material.number) : Json::Value();
    json["name"] = material.entry->material->name;
    json["kind"] = material.entry->kind;
    json["cards"] = Json::arrayValue;
    for (const vxCAE::SolverCard& card : set.cards) {
        Json::Value item;
        item["name"] = card.name;
        item["text"] = card.text;
        json["cards"].append(std::move(item));
    }
    json["doubts"] = Json::arrayValue;
    for (const vxMat::MaterialFinding& doubt : set.doubts)
        json["doubts"].append(toText(doubt));
    return json;
}

} // namespace

Answer printCards(const std::vector<std::string>& sources, Form form, const ChosenUnits& units)
{
    Answer answer;
    Json::Value document;
    if (units.areGiven())
        document["units"] = units.name();
    document["materials"] = Json::arrayValue;
    for (const CardMaterial& material : collect(sources, answer)) {
        const std::string title = (material.source.empty() ? "" : material.source + ": ") + titleOf(material) + ": ";
        if (const std::string note = units.apply(*material.entry->material); !note.empty())
            answer.messages.push_back(std::string("note: ").append(title).append(note));
        const vxCAE::CardSet set = makeCardSet(*material.entry, material.completeness);
        for (const std::string& note : notesOnDigits(*material.entry->material, set))
            answer.messages.push_back(std::string("note: ").append(title).append(note));
        for (const vxMat::MaterialFinding& doubt : set.doubts) {
            answer.messages.push_back(std::string(title).append(toText(doubt)));
            answer.status = Status::Findings;
        }
        if (form == Form::Json)
            document["materials"].append(toJson(material, set));
        else
            answer.text += (answer.text.empty() ? "" : "\n") + toText(material, set);
    }
    if (form == Form::Json)
        answer.text = toJsonText(document);
    if (units.areGiven())
        answer.messages.push_back(units.note("the cards are"));
    return answer;
}

} // namespace commandline
