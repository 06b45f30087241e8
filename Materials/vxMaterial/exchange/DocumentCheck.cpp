#include "vxMaterial/exchange/DocumentCheck.h"

#include "MemberCheck.h"
#include "SectionMembers.h"

#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyRules.h"

#include <set>
#include <string_view>
#include <utility>

namespace vxCAE {

namespace {

using detail::Conversion;
using detail::MemberCheck;
using detail::SeenNumbers;

using Numbers = std::set<std::uint32_t>;

// --- Materials ---

/// Notes that the word or list of a quantity is not exchanged.
void noteWhatStaysBehind(MemberCheck& check, const vxMat::PropertyRecord& quantity, const std::string& path)
{
    const std::string name = "\"" + std::string(quantity.name) + "\"";
    if (quantity.kind == vxMat::ValueKind::Word)
        check.note(path, name + " is a word, which documents do not carry");
    else if (quantity.kind == vxMat::ValueKind::NumberList)
        check.note(path, name + " is a list, which documents do not carry");
}

void checkProperty(MemberCheck& check, const Json::Value& property, const std::string& path)
{
    check.checkValue(property, "prop_key", Conversion::Text, path);
    check.checkValue(property, "prop_name", Conversion::Text, path);
    const bool hasNumber = check.checkValue(property, "prop_value", Conversion::Real, path);
    if (!check.checkValue(property, "prop_type", Conversion::Unsigned, path))
        return;

    const auto id = static_cast<std::int32_t>(property["prop_type"].asUInt());
    const vxMat::PropertyRecord* const quantity = vxMat::findPropertyRecord(id);
    if (quantity == nullptr) {
        check.find(path + ".prop_type", "is " + property["prop_type"].asString() + ", which is not in the catalogue");
        return;
    }
    noteWhatStaysBehind(check, *quantity, path);
    if (!hasNumber)
        return;
    const double number = property["prop_value"].asDouble();
    if (const char* const fault = vxMat::checkNumber(id, number))
        check.find(path + ".prop_value",
                   "is " + vxMat::formatNumber(number) + ": " + std::string(vxMat::withoutRowNumber(fault)));
}

void checkMaterial(MemberCheck& check, const Json::Value& material, const std::string& path)
{
    check.checkValue(material, "mat_id", Conversion::Unsigned, path);
    check.checkValue(material, "mat_name", Conversion::Text, path);

    SeenNumbers types;
    check.checkList(material, "Props", path, [&](const Json::Value& property, const std::string& propertyPath) {
        check.checkRepetition(property, "prop_type", propertyPath, types);
        checkProperty(check, property, propertyPath);
    });
    if (material["Props"].empty())
        check.note(path, "has no properties");

    vxMat::CombinationCheck combination;
    for (const auto& [type, propertyPath] : types)
        combination.note(static_cast<std::int32_t>(type));
    if (const char* const fault = combination.result())
        check.find(path + ".Props", fault);
}

void checkMaterials(MemberCheck& check, const Json::Value& document)
{
    SeenNumbers numbers;
    check.checkList(document, "material", "$", [&](const Json::Value& material, const std::string& path) {
        check.checkRepetition(material, "mat_id", path, numbers);
        checkMaterial(check, material, path);
    });
}

// --- Sections that are one object ---

/// Returns the object under `key`; null, with a finding, if there is none.
const Json::Value* checkObject(MemberCheck& check, const Json::Value& document, const char* key)
{
    const Json::Value& section = document[key];
    if (section.isObject())
        return &section;
    const std::string path = std::string("$.") + key;
    if (section.isNull())
        check.find(path, "is missing; its members are read as 0, false or empty");
    else
        check.find(path, detail::wrongKind(section, "an object"));
    return nullptr;
}

/// Checks a member whose keys for writing and reading differ. Reading loses the written value unless both are equal.
template <class Row>
void checkOneWayMember(MemberCheck& check, const Json::Value& section, const Row& row, const std::string& path)
{
    const Json::Value& written = section[row.key];
    const Json::Value& read = section[row.readKey];
    const auto numberOf = [](const Json::Value& value) { return value.isNumeric() ? value.asDouble() : 0.0; };
    const bool differs = !written.isNull() && (!written.isNumeric() || numberOf(written) != numberOf(read));
    if (section.isMember(row.readKey) && !check.checkValue(section, row.readKey, row.conversion, path))
        return;
    if (differs)
        check.find(path + "." + row.key, "is " + detail::shown(written) + ", but readers take \"" + row.readKey +
                                             "\", which is " + (read.isNull() ? "missing" : detail::shown(read)));
}

void checkSystem(MemberCheck& check, const Json::Value& document)
{
    const Json::Value* const system = checkObject(check, document, "system");
    if (system == nullptr)
        return;
    const std::string path = "$.system";
    detail::forEachMember(detail::systemMembers, [&](const auto& row) {
        if (std::string_view(row.key) == row.readKey)
            check.checkValue(*system, row.readKey, row.conversion, path);
        else
            checkOneWayMember(check, *system, row, path);
    });
    const Json::Value& type = (*system)["analysis_type"];
    if (type.isUInt() && type.asUInt() == AnalysisType::Modal)
        check.checkMembers(*system, detail::modalMembers, path);
    if (type.isUInt() && type.asUInt() == AnalysisType::SpectrumResponse)
        check.checkMembers(*system, detail::spectrumMembers, path);
}

void checkSolve(MemberCheck& check, const Json::Value& document)
{
    const Json::Value* const solve = checkObject(check, document, "solve");
    if (solve == nullptr)
        return;
    const std::string path = "$.solve";
    check.checkMembers(*solve, detail::solveMembers, path);
    const Json::Value& steps = (*solve)["n_load_steps"];
    if (steps.isUInt() && detail::claimsTooManySteps(*solve, steps.asUInt())) {
        check.find(path + ".n_load_steps",
                   "is " + steps.asString() +
                       ", which far exceeds the length of the arrays of the steps; readers refuse the document");
        return;
    }
    detail::forEachMember(detail::stepColumns, [&](const auto& column) {
        const bool fits = check.checkArray(*solve, column.key, column.conversion, path);
        const Json::ArrayIndex length = (*solve)[column.key].size();
        if (fits && steps.isUInt() && length != steps.asUInt())
            check.find(path + "." + column.key, "has " + std::to_string(length) + " elements for " + steps.asString() +
                                                    " load steps; missing ones are read as " +
                                                    detail::fallbackName(column.conversion) + ", others not at all");
    });
}

void checkMesh(MemberCheck& check, const Json::Value& document)
{
    const Json::Value* const mesh = checkObject(check, document, "mesh");
    if (mesh == nullptr)
        return;
    check.checkMembers(*mesh, detail::meshMembers, "$.mesh");
    check.checkArray(*mesh, "wmesh_ids", Conversion::Unsigned, "$.mesh");
}

void checkResult(MemberCheck& check, const Json::Value& document)
{
    if (const Json::Value* const result = checkObject(check, document, "result"))
        check.checkMembers(*result, detail::resultMembers, "$.result");
}

// --- Sections that hold one list ---

/// Visits the objects of the list `listKey` in the section `key`. A section without elements is null.
template <class Visit>
void checkListSection(MemberCheck& check, const Json::Value& document, const char* key, const char* listKey,
                      Visit visit)
{
    const Json::Value& section = document[key];
    const std::string path = std::string("$.") + key;
    if (section.isNull())
        return;
    if (!section.isObject()) {
        check.find(path, detail::wrongKind(section, "an object or null"));
        return;
    }
    SeenNumbers numbers;
    check.checkList(section, listKey, path, [&](const Json::Value& json, const std::string& elementPath) {
        check.checkRepetition(json, "obj_id", elementPath, numbers);
        visit(json, elementPath);
    });
}

/// Checks a step, and returns whether readers keep it.
bool checkStep(MemberCheck& check, const Json::Value& step, const std::string& path)
{
    check.checkValue(step, "set_id", Conversion::Count, path);
    check.checkValue(step, "valType", Conversion::Count, path);
    const bool flagsFit = check.checkArray(step, "imposed", Conversion::Boolean, path);
    const bool valuesFit = check.checkArray(step, "value", Conversion::Real, path);
    const Json::ArrayIndex flags = step["imposed"].size();
    const Json::ArrayIndex values = step["value"].size();
    if (flagsFit && valuesFit && flags != values)
        check.find(path, "has " + std::to_string(flags) + " elements in \"imposed\" and " + std::to_string(values) +
                             " in \"value\"; readers drop such a step");
    return flags == values;
}

void checkBoundaryConditions(MemberCheck& check, const Json::Value& document)
{
    checkListSection(
        check, document, "boundarycondition", "BCs", [&](const Json::Value& condition, const std::string& path) {
            check.checkMembers(condition, detail::boundaryConditionMembers, path);
            SeenNumbers sets;
            check.checkList(condition, "steps", path, [&](const Json::Value& step, const std::string& stepPath) {
                if (checkStep(check, step, stepPath))
                    check.checkRepetition(step, "set_id", stepPath, sets);
            });
        });
}

void checkInitialConditions(MemberCheck& check, const Json::Value& document)
{
    checkListSection(check, document, "initialcondition", "ICs",
                     [&](const Json::Value& condition, const std::string& path) {
                         check.checkMembers(condition, detail::initialConditionMembers, path);
                     });
}

void checkDomain(MemberCheck& check, const Json::Value& domain, const std::string& path, const Numbers& materials)
{
    check.checkValue(domain, "obj_id", Conversion::Unsigned, path);
    check.checkValue(domain, "mat_name", Conversion::Text, path);
    check.checkMembers(domain, detail::domainMembers, path);
    const Json::Value& topology = domain["topo"];
    if (topology == "Shell" || topology == "shell")
        check.checkMembers(domain, detail::shellMembers, path);

    const Json::ArrayIndex components = domain["bforce"].size();
    if (check.checkArray(domain, "bforce", Conversion::Real, path) && components != 3)
        check.find(path + ".bforce", "has " + std::to_string(components) + " elements; x, y and z are needed");

    const Json::Value& material = domain["mat_id"];
    if (material.isUInt() && materials.count(material.asUInt()) == 0)
        check.find(path + ".mat_id", "is " + material.asString() +
                                         ", a material that is neither here nor in a document given with this one");
}

void checkDomains(MemberCheck& check, const Json::Value& document, const Numbers& materials)
{
    checkListSection(
        check, document, "domaincondition", "DCs",
        [&](const Json::Value& domain, const std::string& path) { checkDomain(check, domain, path, materials); });
}

void checkContacts(MemberCheck& check, const Json::Value& document)
{
    checkListSection(check, document, "connections", "contacts",
                     [&](const Json::Value& contact, const std::string& path) {
                         check.checkMembers(contact, detail::contactMembers, path);
                     });
}

// --- The document ---

void collectMaterialNumbers(const Json::Value& document, Numbers& numbers)
{
    if (!document.isObject() || !document["material"].isArray())
        return;
    for (const Json::Value& material : document["material"]) {
        if (material.isObject() && material["mat_id"].isUInt())
            numbers.insert(material["mat_id"].asUInt());
    }
}

void checkAnalysis(MemberCheck& check, const Json::Value& document, const Json::Value* materials)
{
    Numbers numbers;
    collectMaterialNumbers(document, numbers);
    if (materials != nullptr)
        collectMaterialNumbers(*materials, numbers);

    checkSystem(check, document);
    checkDomains(check, document, numbers);
    checkContacts(check, document);
    checkMesh(check, document);
    checkInitialConditions(check, document);
    checkBoundaryConditions(check, document);
    checkSolve(check, document);
    checkResult(check, document);
}

} // namespace

CheckReport checkDocument(const Json::Value& document, const Json::Value* materials)
{
    CheckReport report;
    MemberCheck check(report);
    if (!document.isObject()) {
        check.find("$", detail::wrongKind(document, "an object"));
        return report;
    }

    const Json::Value& stated = document["proj_type"];
    const std::uint32_t kind = readProjectKind(document);
    if (kind != ProjectKind::Analysis && kind != ProjectKind::Material)
        check.find("$.proj_type", (stated.isNull() ? "is missing" : "is " + detail::shown(stated)) +
                                      "; 1 (analysis project) or 2 (material project) is needed");
    checkMaterials(check, document);
    if (kind == ProjectKind::Analysis)
        checkAnalysis(check, document, materials);
    return report;
}

} // namespace vxCAE
