#include "Cards.h"

#include "Documents.h"
#include "Files.h"
#include "MaterialNames.h"

#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/exchange/CardSet.h"

#include <QFile>

#include <memory>
#include <optional>
#include <utility>

namespace vxmat {

namespace {

/// A material whose cards are wanted.
struct CardMaterial
{
    std::string source; ///< file; empty for the library
    std::optional<std::uint32_t> number;
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
    return {"", std::nullopt, std::move(entry)};
}

void addFromDocument(const std::string& path, std::vector<CardMaterial>& materials, Answer& answer)
{
    vxCAE::CAESet set(0, vxCAE::ProjectKind::Material);
    readInto(set, path, readMaterialDocument(path));
    if (set.materials->entries.empty()) {
        answer.messages.push_back(path + ": holds no materials");
        answer.status = Status::Findings;
    }
    for (auto& [number, entry] : set.materials->entries) {
        entry->classifyKind();
        materials.push_back({path, number, std::move(entry)});
    }
}

bool isFile(const std::string& argument)
{
    return argument == standardStream || argument.find_first_of("/.") != std::string::npos ||
           QFile::exists(QFile::decodeName(argument.c_str()));
}

std::vector<CardMaterial> collect(const std::vector<std::string>& sources, Answer& answer)
{
    const MaterialNames names;
    std::vector<CardMaterial> materials;
    for (const std::string& source : sources) {
        if (const auto type = names.find(source))
            materials.push_back(fromLibrary(names.get(*type)));
        else if (isFile(source))
            addFromDocument(source, materials, answer);
        else
            throw Failure(names.unknown(source) + " There is no file of that name either.");
    }
    return materials;
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
    for (const std::string& doubt : set.doubts)
        json["doubts"].append(doubt);
    return json;
}

} // namespace

Answer printCards(const std::vector<std::string>& sources, Form form)
{
    Answer answer;
    Json::Value document;
    document["materials"] = Json::arrayValue;
    for (const CardMaterial& material : collect(sources, answer)) {
        const bool complete = material.source.empty();
        const vxCAE::CardSet set =
            makeCardSet(*material.entry, complete ? vxCAE::MaterialSource::Complete : vxCAE::MaterialSource::Document);
        for (const std::string& doubt : set.doubts) {
            answer.messages.push_back((complete ? "" : material.source + ": ") + titleOf(material) + ": " + doubt);
            answer.status = Status::Findings;
        }
        if (form == Form::Json)
            document["materials"].append(toJson(material, set));
        else
            answer.text += (answer.text.empty() ? "" : "\n") + toText(material, set);
    }
    if (form == Form::Json)
        answer.text = toJsonText(document);
    return answer;
}

} // namespace vxmat
