#include "Contest.h"

#include "vxMaterial/exchange/CAEBCS.h"
#include "vxMaterial/exchange/CAEMaterials.h"
#include "vxMaterial/model/MaterialLibrary.h"

#include <json/value.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

/// The sections against the same document built, and read, by hand with plain jsoncpp: what the sections add to the
/// cost of the JSON library. The other side of reading makes the same objects, since a program that reads materials
/// needs them; "bare walk" is a reader that looks at every value and keeps none.
namespace {

using vxbench::lazily;
using vxbench::timed;
using vxCAE::CAEBCS;
using vxCAE::CAEMaterials;
using vxCAE::MaterialEntry;

constexpr double limit = 1.10;

// --- Materials ---

/// Materials of nine properties.
std::shared_ptr<CAEMaterials> makeMaterials(std::uint32_t count)
{
    const vxMat::StructuralSteel steel;
    auto section = std::make_shared<CAEMaterials>();
    for (std::uint32_t number = 1; number <= count; ++number) {
        auto entry = std::make_unique<MaterialEntry>();
        entry->material->copyFrom(steel);
        section->addMaterial(number, std::move(entry));
    }
    return section;
}

Json::Value writeBySection(const vxCAE::CAEBase& section)
{
    Json::Value document;
    section.writeJson(document);
    return document;
}

/// A document of such materials, made without them, so that they do not count for its reader's memory.
Json::Value makeDocument(std::uint32_t count)
{
    const Json::Value one = writeBySection(*makeMaterials(1))["material"][0];
    Json::Value document;
    for (std::uint32_t number = 1; number <= count; ++number) {
        Json::Value material = one;
        material["mat_id"] = number;
        document["material"].append(std::move(material));
    }
    return document;
}

Json::Value writeMaterialsByHand(const CAEMaterials& section)
{
    Json::Value materials(Json::arrayValue);
    for (const auto& [number, entry] : section.entries) {
        Json::Value properties(Json::arrayValue);
        for (const auto& [slot, property] : entry->material->properties) {
            Json::Value json;
            json["prop_type"] = slot;
            json["prop_key"] = property->key;
            json["prop_name"] = property->name;
            json["prop_value"] = property->value;
            properties.append(std::move(json));
        }
        Json::Value json;
        json["mat_id"] = number;
        json["mat_name"] = entry->material->name;
        json["Props"] = std::move(properties);
        materials.append(std::move(json));
    }
    Json::Value document;
    document["material"] = std::move(materials);
    return document;
}

template <class Section>
std::unique_ptr<Section> readBySection(const Json::Value& document)
{
    auto section = std::make_unique<Section>();
    section->readJson(document);
    return section;
}

using Materials = std::map<std::uint32_t, std::unique_ptr<vxMat::CMaterial>>;

Materials readMaterialsByHand(const Json::Value& document)
{
    Materials read;
    const Json::Value& materials = document["material"];
    for (Json::ArrayIndex i = 0; i < materials.size(); ++i) {
        const Json::Value& json = materials[i];
        auto material = std::make_unique<vxMat::CMaterial>();
        material->id = json["mat_id"].asInt();
        material->name = json["mat_name"].asString();
        const Json::Value& properties = json["Props"];
        for (Json::ArrayIndex j = 0; j < properties.size(); ++j) {
            const Json::Value& property = properties[j];
            const int type = property["prop_type"].asInt();
            material->setProperty(type, std::make_unique<vxMat::MaterialProperty>(
                                            type, property["prop_name"].asString(), property["prop_key"].asString(),
                                            property["prop_value"].asDouble()));
        }
        read[json["mat_id"].asUInt()] = std::move(material);
    }
    return read;
}

double walkMaterials(const Json::Value& document)
{
    double sum = 0.0;
    const Json::Value& materials = document["material"];
    for (Json::ArrayIndex i = 0; i < materials.size(); ++i) {
        const Json::Value& json = materials[i];
        sum += json["mat_id"].asDouble() + static_cast<double>(json["mat_name"].asString().size());
        const Json::Value& properties = json["Props"];
        for (Json::ArrayIndex j = 0; j < properties.size(); ++j) {
            const Json::Value& property = properties[j];
            sum += property["prop_type"].asDouble() + property["prop_value"].asDouble();
            sum +=
                static_cast<double>(property["prop_key"].asString().size() + property["prop_name"].asString().size());
        }
    }
    return sum;
}

// --- Boundary conditions ---

/// One condition whose steps hold a million values together.
std::shared_ptr<CAEBCS> makeConditions()
{
    constexpr int steps = 1000;
    constexpr std::uint32_t values = 1000;
    auto condition = std::make_unique<vxCAE::CAEBC>(1, "Load", 1, values);
    for (int set = 1; set <= steps; ++set) {
        auto step = std::make_unique<vxCAE::StepValue>();
        step->count = values;
        step->values.assign(values, 0.5);
        step->imposed.assign(values, true);
        condition->addStep(set, std::move(step));
    }
    auto section = std::make_shared<CAEBCS>();
    section->addCondition(std::move(condition));
    return section;
}

Json::Value writeConditionsByHand(const CAEBCS& section)
{
    Json::Value conditions(Json::arrayValue);
    for (const auto& [id, condition] : section.conditions) {
        Json::Value steps(Json::arrayValue);
        for (const auto& [setId, step] : condition->steps) {
            Json::Value imposed(Json::arrayValue);
            Json::Value values(Json::arrayValue);
            for (std::size_t i = 0; i < step->values.size(); ++i) {
                imposed.append(Json::Value(static_cast<bool>(step->imposed[i])));
                values.append(Json::Value(step->values[i]));
            }
            Json::Value json;
            json["set_id"] = setId;
            json["imposed"] = std::move(imposed);
            json["value"] = std::move(values);
            json["valType"] = step->valType;
            steps.append(std::move(json));
        }
        Json::Value json;
        json["obj_id"] = id;
        json["name"] = condition->name;
        json["type"] = condition->type;
        json["steps"] = std::move(steps);
        conditions.append(std::move(json));
    }
    Json::Value document;
    document["boundarycondition"]["BCs"] = std::move(conditions);
    return document;
}

using Conditions = std::map<std::uint32_t, std::unique_ptr<vxCAE::CAEBC>>;

Conditions readConditionsByHand(const Json::Value& document)
{
    Conditions read;
    const Json::Value& conditions = document["boundarycondition"]["BCs"];
    for (Json::ArrayIndex i = 0; i < conditions.size(); ++i) {
        const Json::Value& json = conditions[i];
        auto condition = std::make_unique<vxCAE::CAEBC>();
        condition->obj_id = json["obj_id"].asUInt();
        condition->name = json["name"].asString();
        condition->type = json["type"].asInt();
        const Json::Value& steps = json["steps"];
        for (Json::ArrayIndex j = 0; j < steps.size(); ++j) {
            const Json::Value& imposed = steps[j]["imposed"];
            const Json::Value& values = steps[j]["value"];
            auto step = std::make_unique<vxCAE::StepValue>();
            step->count = values.size();
            step->valType = steps[j]["valType"].asInt();
            for (Json::ArrayIndex k = 0; k < values.size(); ++k) {
                step->imposed.push_back(imposed[k].asBool());
                step->values.push_back(values[k].asDouble());
            }
            condition->steps[steps[j]["set_id"].asInt()] = std::move(step);
        }
        read[condition->obj_id] = std::move(condition);
    }
    return read;
}

// --- Comparisons ---

void addMaterialContests(std::uint32_t count)
{
    const std::string of = " " + std::to_string(count) + " materials";
    const auto section = lazily([count] { return makeMaterials(count); });
    const auto document = lazily([count] { return makeDocument(count); });
    vxbench::addContest({"write" + of, [=] { return timed([&] { return writeBySection(*section()); }); },
                         [=] { return timed([&] { return writeMaterialsByHand(*section()); }); }, limit});
    const auto readOurs = [=] { return timed([&] { return readBySection<CAEMaterials>(document()); }); };
    vxbench::addContest(
        {"read" + of, readOurs, [=] { return timed([&] { return readMaterialsByHand(document()); }); }, limit});
    vxbench::addContest({"read" + of + " against a bare walk", readOurs,
                         [=] { return timed([&] { return walkMaterials(document()); }); }, 0.0});
}

void addConditionContests()
{
    const auto section = lazily([] { return makeConditions(); });
    const auto document = lazily([] { return writeBySection(*makeConditions()); });
    vxbench::addContest({"write a million values of a boundary condition",
                         [=] { return timed([&] { return writeBySection(*section()); }); },
                         [=] { return timed([&] { return writeConditionsByHand(*section()); }); }, limit});
    vxbench::addContest({"read a million values of a boundary condition",
                         [=] { return timed([&] { return readBySection<CAEBCS>(document()); }); },
                         [=] { return timed([&] { return readConditionsByHand(document()); }); }, limit});
}

} // namespace

int main(int argc, char** argv)
{
    for (const std::uint32_t count : {1U, 100U, 10000U, 100000U})
        addMaterialContests(count);
    addConditionContests();
    return vxbench::runContests(argc, argv);
}
