#include "materials/Query.h"

#include "documents/Documents.h"
#include "program/Files.h"
#include "program/TextTable.h"
#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/model/NumberText.h"

#include <optional>
#include <unordered_map>

namespace commandline {

namespace {

/// Copies the materials to the domains of an analysis that refer to them.
void supplyMaterials(vxCAE::CAESet& analysis, const std::string& materialsPath, Answer& answer)
{
    const MaterialFile file = readMaterials(materialsPath);
    answer.messages = file.doubts;
    std::unordered_map<std::uint32_t, const vxCAE::MaterialEntry*> materials;
    for (const FileMaterial& material : file.materials)
        materials[material.number] = material.entry.get();
    for (auto& [id, domain] : analysis.domainConditions->domains) {
        const auto found = materials.find(domain->mat_id);
        if (found == materials.end()) {
            answer.messages.push_back(materialsPath + ": has no material " + std::to_string(domain->mat_id) +
                                      ", which domain " + std::to_string(id) + " refers to");
            answer.status = Status::Findings;
            continue;
        }
        domain->material->material->copyFrom(*found->second->material);
        domain->material->classifyKind();
    }
}

Json::Value loadSteps(const vxCAE::CAESet& set)
{
    Json::Value steps(Json::arrayValue);
    for (std::uint32_t step = 1; step <= set.solve->n_load_steps; ++step) {
        std::int32_t substeps = 0;
        double tolerance = 0.0;
        std::int32_t iterations = 0;
        set.getLoadStep(step, substeps, tolerance, iterations);
        Json::Value json;
        json["step"] = step;
        json["substeps"] = substeps;
        json["absolute_tolerance"] = tolerance;
        json["iteration_limit"] = iterations;
        steps.append(std::move(json));
    }
    return steps;
}

Json::Value answers(const vxCAE::CAESet& set)
{
    Json::Value json;
    json["analysis_label"] = set.getAnalysisLabel();
    json["thermal_label"] = set.getThermalLabel();
    json["solver_family"] = set.getSolverFamily();
    json["nonlinear"] = set.isNonlinear();
    json["creep_or_viscous_material"] = set.hasCreepOrViscousMaterial();
    json["contacts"] = set.hasContacts();
    json["mesh_tag"] = set.getMeshTag();
    json["solution_tag"] = set.getSolutionTag();
    json["load_steps"] = loadSteps(set);
    return json;
}

std::string toText(const Json::Value& json)
{
    const auto yesOrNo = [](const Json::Value& flag) { return flag.asBool() ? "yes" : "no"; };
    TextTable table({"Question", "Answer"});
    table.add({"Analysis label", json["analysis_label"].asString()});
    table.add({"Thermal label", json["thermal_label"].asString()});
    table.add({"Solver family", json["solver_family"].asString()});
    table.add({"Nonlinear", yesOrNo(json["nonlinear"])});
    table.add({"Creep or viscous material", yesOrNo(json["creep_or_viscous_material"])});
    table.add({"Contacts", yesOrNo(json["contacts"])});
    table.add({"Mesh tag", json["mesh_tag"].asString()});
    table.add({"Solution tag", json["solution_tag"].asString()});

    TextTable steps({"Load step", "Substeps", "Absolute tolerance", "Iteration limit"});
    for (const Json::Value& step : json["load_steps"]) {
        steps.add({step["step"].asString(), step["substeps"].asString(),
                   vxMat::formatNumber(step["absolute_tolerance"].asDouble()), step["iteration_limit"].asString()});
    }
    return table.text() + "\n" + steps.text();
}

} // namespace

Answer queryFile(const std::string& path, const std::optional<std::string>& materialsPath, std::uint32_t projectId,
                 Form form)
{
    const Input input = readInput(path);
    if (input.project)
        throw Failure(path + ": not an analysis document but a project file");
    const Json::Value document = toDocument(input);
    if (vxCAE::readProjectKind(document) != vxCAE::ProjectKind::Analysis)
        throw Failure(path + ": not an analysis document: \"proj_type\" must be 1");

    Answer answer;
    vxCAE::CAESet set(projectId, vxCAE::ProjectKind::Analysis);
    readInto(set, path, document);
    if (materialsPath)
        supplyMaterials(set, *materialsPath, answer);
    else if (!set.domainConditions->domains.empty())
        answer.messages.push_back(path + ": note: analysis documents do not carry material models; give the "
                                         "material document or project with --materials FILE");
    const Json::Value json = answers(set);
    answer.text = form == Form::Json ? toJsonText(json) : toText(json);
    return answer;
}

} // namespace commandline
