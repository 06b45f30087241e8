#include "vxMaterial/model/MaterialCheck.h"

#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxMaterial/model/PropertyRules.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace vxMat {

namespace {

using Id = PropertyId;

/// The messages, sources of translations in findingContext.
namespace message {
constexpr const char* noProperties = "The material has no properties.";
constexpr const char* unknownQuantity = "The catalogue has no quantity %1 (\"%2\"); the editor does not show it, and "
                                        "applying changes there removes it.";
constexpr const char* notFinite = "\"%1\" is %2; a finite number is needed.";
constexpr const char* noNumber = "\"%1\" contains no number.";
constexpr const char* notPositive = "\"%1\" is %2; it must be greater than 0.";
constexpr const char* poissonsRatio = "\"%1\" is %2; it must be from 0.001 to 0.499.";
constexpr const char* unknownWord = R"("%1" is "%2"; it must be one of %3.)";
constexpr const char* unequalLists = "\"%1\" has %2 numbers and \"%3\" has %4; they form pairs, and numbers without a "
                                     "partner have no effect.";
constexpr const char* exclusion = R"("%1" and "%2" exclude each other; remove one of them.)";
constexpr const char* missingParameter = R"("%1" needs "%2", which the material does not have.)";
} // namespace message

FindingArgument textArgument(std::string text)
{
    return {FindingArgument::Kind::Text, std::move(text)};
}

/// Returns the name of a quantity; its number if the catalogue does not have it.
FindingArgument nameArgument(std::int32_t id)
{
    const PropertyRecord* const record = findPropertyRecord(id);
    return record != nullptr ? FindingArgument{FindingArgument::Kind::QuantityName, record->name}
                             : textArgument(std::to_string(id));
}

std::string joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : ", ") + word;
    return text;
}

/// The parameters that a material model needs, with the switch first.
struct ModelNeeds
{
    std::int32_t model;
    std::vector<std::int32_t> parameters;
};

const std::vector<ModelNeeds>& modelNeeds()
{
    static const std::vector<ModelNeeds> needs{
        {Id::IsotropicElasticity, {Id::YoungsModulus, Id::PoissonsRatio}},
        {Id::NeoHooke, {Id::MaterialConstantC10, Id::IncompressibilityParameterD1}},
        {Id::MooneyRivlin, {Id::MaterialConstantC10, Id::MaterialConstantC01, Id::IncompressibilityParameterD1}},
        {Id::ArrudaBoyce, {Id::InitialShearModulusMu, Id::LimitingNetworkStretch, Id::IncompressibilityParameterD1}},
        {Id::Plasticity, {Id::PlasticYieldType}},
        {Id::ViscoElasticity, {Id::ShearRelaxationModulus, Id::RelaxationTime}},
        {Id::Creep, {Id::CreepModulusA, Id::CreepModulusN, Id::CreepModulusM}},
    };
    return needs;
}

/// Returns the parameters that plasticity needs besides the yield type. They depend on the words; empty for words for
/// which the solver has no card.
std::vector<std::int32_t> plasticityNeeds(const MaterialBase& material)
{
    const std::string yield = toUpperAscii(material.getPropertyText(Id::PlasticYieldType));
    const std::string hardening = toUpperAscii(material.getPropertyText(Id::PlasticHardeningType));
    const bool mises = yield == "MISES";
    const bool pressureDependent = yield == "DRUCKER-PRAGER" || yield == "MOHR-COULOMB";
    const bool bilinear = hardening.empty() || hardening == "BILINEAR";
    const bool multilinear = hardening == "MULTILINEAR";

    if (mises && bilinear)
        return {Id::PlasticInitialYieldStress, Id::PlasticHardeningFactor};
    if (mises && multilinear)
        return {Id::PlasticYieldStress, Id::PlasticStrain};
    if (pressureDependent && bilinear)
        return {Id::PlasticViscosity, Id::PlasticFAI, Id::PlasticHardeningFactor};
    if (pressureDependent && multilinear)
        return {Id::PlasticViscosity, Id::PlasticFAI, Id::PlasticStrain};
    return {};
}

/// Collects the findings of one material.
class Check
{
public:
    explicit Check(const MaterialBase& material) : m_material(material) {}

    std::vector<MaterialFinding> run();

private:
    void find(std::int32_t slot, const char* text, std::vector<FindingArgument> arguments,
              FindingSeverity severity = FindingSeverity::Error)
    {
        m_findings.push_back({slot, severity, text, std::move(arguments)});
    }
    void checkProperty(std::int32_t slot, const MaterialProperty& property);
    void checkFinite(std::int32_t slot, const MaterialProperty& property, double number);
    void checkList(std::int32_t slot, const MaterialProperty& property);
    void checkRules(std::int32_t slot, std::int32_t id, const MaterialProperty& property);
    void checkPairs();
    void checkExclusion();
    void checkModels();
    void checkNeeds(std::int32_t model, const std::vector<std::int32_t>& parameters);

    const MaterialBase& m_material;
    std::vector<MaterialFinding> m_findings;
};

std::vector<MaterialFinding> Check::run()
{
    if (m_material.properties.empty())
        find(0, message::noProperties, {});
    for (const auto& [slot, property] : propertiesInCatalogueOrder(m_material))
        checkProperty(slot, *property);
    checkPairs();
    checkExclusion();
    checkModels();
    return std::move(m_findings);
}

void Check::checkProperty(std::int32_t slot, const MaterialProperty& property)
{
    if (findPropertyRecord(property.id) == nullptr)
        find(slot, message::unknownQuantity, {textArgument(std::to_string(property.id)), textArgument(property.name)},
             FindingSeverity::Warning);
    checkFinite(slot, property, property.value);
    checkList(slot, property);
    checkRules(slot, property.id, property);
    // The solver uses the property as the quantity of its slot.
    if (slot != property.id)
        checkRules(slot, slot, property);
}

void Check::checkFinite(std::int32_t slot, const MaterialProperty& property, double number)
{
    if (!std::isfinite(number))
        find(slot, message::notFinite, {nameArgument(property.id), textArgument(formatNumber(number))});
}

void Check::checkList(std::int32_t slot, const MaterialProperty& property)
{
    if (getValueKind(property.id) != ValueKind::NumberList)
        return;
    if (property.values.empty())
        find(slot, message::noNumber, {nameArgument(property.id)});
    const auto infinite = std::find_if_not(property.values.begin(), property.values.end(),
                                           [](double number) { return std::isfinite(number); });
    if (infinite != property.values.end())
        checkFinite(slot, property, *infinite);
}

void Check::checkRules(std::int32_t slot, std::int32_t id, const MaterialProperty& property)
{
    // checkProperty reports numbers that are not finite.
    if (std::isfinite(property.value) && checkNumber(id, property.value) != nullptr)
        find(slot, id == Id::PoissonsRatio ? message::poissonsRatio : message::notPositive,
             {nameArgument(id), textArgument(formatNumber(property.value))});
    if (checkWord(id, property.text) != nullptr)
        find(slot, message::unknownWord,
             {nameArgument(id), textArgument(property.text), textArgument(joined(getAllowedWords(id)))});
}

void Check::checkPairs()
{
    const auto lengths = findUnequalCurve(m_material);
    if (!lengths)
        return;
    find(Id::PlasticYieldStress, message::unequalLists,
         {nameArgument(Id::PlasticYieldStress), textArgument(std::to_string(lengths->yieldStresses)),
          nameArgument(Id::PlasticStrain), textArgument(std::to_string(lengths->plasticStrains))});
}

void Check::checkExclusion()
{
    if (!m_material.hasProperty(Id::IsotropicElasticity))
        return;
    for (const std::int32_t model : {Id::NeoHooke, Id::MooneyRivlin, Id::ArrudaBoyce})
        if (m_material.hasProperty(model))
            find(Id::IsotropicElasticity, message::exclusion,
                 {nameArgument(Id::IsotropicElasticity), nameArgument(model)});
}

void Check::checkModels()
{
    for (const auto& [model, parameters] : modelNeeds())
        checkNeeds(model, parameters);
    checkNeeds(Id::Plasticity, plasticityNeeds(m_material));
}

void Check::checkNeeds(std::int32_t model, const std::vector<std::int32_t>& parameters)
{
    if (!m_material.hasProperty(model))
        return;
    for (const std::int32_t parameter : parameters)
        if (!m_material.hasProperty(parameter))
            find(model, message::missingParameter, {nameArgument(model), nameArgument(parameter)});
}

} // namespace

std::vector<MaterialFinding> checkMaterial(const MaterialBase& material)
{
    return Check(material).run();
}

std::string toText(const MaterialFinding& finding)
{
    // One pass is necessary, since arguments may contain "%1" themselves.
    std::string text;
    for (const char* at = finding.message; *at != '\0'; ++at) {
        const int argument = at[0] == '%' ? at[1] - '1' : -1;
        if (argument < 0 || argument >= static_cast<int>(finding.arguments.size())) {
            text += *at;
            continue;
        }
        text += finding.arguments[static_cast<std::size_t>(argument)].text;
        ++at;
    }
    return text;
}

MaterialState getMaterialState(const MaterialBase& material)
{
    if (material.properties.empty())
        return MaterialState::Empty;
    return checkMaterial(material).empty() ? MaterialState::Ready : MaterialState::WithFindings;
}

} // namespace vxMat
