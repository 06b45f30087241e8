#include "vxConstitutive/MaterialModels.h"

#include "vxConstitutive/response/FrictionModel.h"
#include "vxConstitutive/response/HyperelasticModel.h"
#include "vxConstitutive/response/LinearElasticModel.h"
#include "vxConstitutive/response/NortonModel.h"
#include "vxConstitutive/response/PlasticModel.h"
#include "vxConstitutive/response/ViscoElasticModel.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

namespace vxConstitutive {

namespace {

using vxMat::PropertyId;

std::string nameOf(std::int32_t propertyId)
{
    const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(propertyId);
    return record != nullptr ? record->name : std::to_string(propertyId);
}

/// Reads the constants of one model. Notes those that are missing or not finite.
class Constants
{
public:
    Constants(const vxMat::MaterialBase& material, ModelKind kind, MaterialModels& result)
        : m_material(material), m_kind(kind), m_result(result)
    {}

    /// Returns an optional constant.
    std::optional<double> find(std::int32_t propertyId)
    {
        double value = 0.0;
        if (!m_material.getPropertyValue(propertyId, value))
            return std::nullopt;
        if (std::isfinite(value))
            return value;
        m_complete = false;
        m_result.findings.push_back(
            makeFinding(FindingId::ConstantNotFinite, {modelName(), nameOf(propertyId), value}));
        return std::nullopt;
    }

    /// Returns a required constant; 0 if it is missing.
    double need(std::int32_t propertyId)
    {
        if (!m_material.hasProperty(propertyId))
            lack(propertyId);
        return find(propertyId).value_or(0.0);
    }

    void lack(std::int32_t propertyId)
    {
        m_complete = false;
        m_result.missing.push_back({m_kind, propertyId});
        m_result.findings.push_back(makeFinding(FindingId::ConstantMissing, {modelName(), nameOf(propertyId)}));
    }

    std::string word(std::int32_t propertyId) const
    {
        return vxMat::toUpperAscii(m_material.getPropertyText(propertyId));
    }

    /// Returns D1; 0 if the material is incompressible.
    double compressibility()
    {
        const double d1 = find(PropertyId::IncompressibilityParameterD1).value_or(0.0);
        if (d1 < 0.0)
            m_result.findings.push_back(makeFinding(FindingId::D1Negative, {modelName(), d1}));
        else if (d1 == 0.0 && m_material.hasProperty(PropertyId::IncompressibilityParameterD1))
            m_result.findings.push_back(makeFinding(FindingId::D1Zero, {modelName()}));
        return std::max(d1, 0.0);
    }

    /// Returns the elastic constants; nothing without a Young's modulus.
    std::optional<ElasticConstants> elastic()
    {
        const std::optional<double> modulus = find(PropertyId::YoungsModulus);
        if (!modulus || !(*modulus > 0.0))
            return std::nullopt;
        return ElasticConstants{*modulus, find(PropertyId::PoissonsRatio).value_or(0.5)};
    }

    const vxMat::MaterialBase& material() const { return m_material; }
    bool complete() const { return m_complete; }
    void note(Finding finding) { m_result.findings.push_back(std::move(finding)); }
    std::string modelName() const { return modelRecord(m_kind).name; }

    template <class SomeModel, class... Arguments>
    void make(Arguments&&... arguments)
    {
        if (!m_complete)
            return;
        auto model = std::make_unique<SomeModel>(std::forward<Arguments>(arguments)...);
        const auto& findings = model->findings();
        m_result.findings.insert(m_result.findings.end(), findings.begin(), findings.end());
        m_result.models.push_back(std::move(model));
    }

private:
    const vxMat::MaterialBase& m_material;
    ModelKind m_kind;
    MaterialModels& m_result;
    bool m_complete = true;
};

void addLinearElasticity(Constants constants)
{
    const double modulus = constants.need(PropertyId::YoungsModulus);
    constants.make<LinearElasticModel>(modulus, constants.need(PropertyId::PoissonsRatio));
}

void addNeoHooke(Constants constants)
{
    HyperelasticConstants values;
    values.kind = ModelKind::NeoHooke;
    const std::optional<double> mu = constants.find(PropertyId::InitialShearModulusMu);
    const bool fromMu = mu && !constants.material().hasProperty(PropertyId::MaterialConstantC10);
    values.c10 = fromMu ? *mu / 2.0 : constants.need(PropertyId::MaterialConstantC10);
    constexpr double tolerance = 1e-6;
    if (mu && std::fabs(*mu / 2.0 - values.c10) > tolerance * std::fabs(values.c10))
        constants.note(makeFinding(FindingId::C10AndMuDiffer, {values.c10, *mu / 2.0}));
    values.d1 = constants.compressibility();
    constants.make<HyperelasticModel>(values);
}

void addMooneyRivlin(Constants constants)
{
    HyperelasticConstants values;
    values.kind = ModelKind::MooneyRivlin;
    values.c10 = constants.need(PropertyId::MaterialConstantC10);
    values.c01 = constants.need(PropertyId::MaterialConstantC01);
    values.c11 = constants.find(PropertyId::MaterialConstantC11).value_or(0.0);
    values.d1 = constants.compressibility();
    constants.make<HyperelasticModel>(values);
}

void addArrudaBoyce(Constants constants)
{
    HyperelasticConstants values;
    values.kind = ModelKind::ArrudaBoyce;
    values.mu = constants.need(PropertyId::InitialShearModulusMu);
    values.limitingStretch = constants.need(PropertyId::LimitingNetworkStretch);
    values.d1 = constants.compressibility();
    if (constants.complete() && !(values.limitingStretch > 0.0)) {
        constants.note(
            makeFinding(FindingId::ConstantNotPositive,
                        {constants.modelName(), nameOf(PropertyId::LimitingNetworkStretch), values.limitingStretch}));
        return;
    }
    constants.make<HyperelasticModel>(values);
}

void addBilinear(Constants constants)
{
    const double yield = constants.need(PropertyId::PlasticInitialYieldStress);
    const double modulus = constants.need(PropertyId::PlasticHardeningFactor);
    constants.make<PlasticModel>(yield, modulus, constants.elastic());
}

void addMultilinear(Constants constants)
{
    const auto& stresses = constants.material().getPropertyValues(PropertyId::PlasticYieldStress);
    const auto& strains = constants.material().getPropertyValues(PropertyId::PlasticStrain);
    if (stresses.empty())
        constants.lack(PropertyId::PlasticYieldStress);
    if (strains.empty())
        constants.lack(PropertyId::PlasticStrain);
    if (stresses.empty() || strains.empty())
        return;
    if (stresses.size() != strains.size())
        constants.note(makeFinding(FindingId::TableLengthsDiffer,
                                   {static_cast<double>(stresses.size()), static_cast<double>(strains.size())}));
    std::vector<HardeningPoint> points;
    for (std::size_t i = 0; i < std::min(stresses.size(), strains.size()); ++i) {
        if (!std::isfinite(stresses[i]) || !std::isfinite(strains[i])) {
            const bool stress = !std::isfinite(stresses[i]);
            constants.note(makeFinding(FindingId::ConstantNotFinite,
                                       {constants.modelName(),
                                        nameOf(stress ? PropertyId::PlasticYieldStress : PropertyId::PlasticStrain),
                                        stress ? stresses[i] : strains[i]}));
            return;
        }
        points.push_back({strains[i], stresses[i]});
    }
    constants.make<PlasticModel>(std::move(points), constants.elastic());
}

void addMises(Constants constants)
{
    const std::string hardening = constants.word(PropertyId::PlasticHardeningType);
    if (hardening == "BILINEAR" || hardening.empty()) // the solver cards do the same
        return addBilinear(constants);
    if (hardening == "MULTILINEAR")
        return addMultilinear(constants);
    const auto& known = vxMat::getAllowedWords(PropertyId::PlasticHardeningType);
    const bool isKnown = std::any_of(known.begin(), known.end(), [&](const std::string& word) {
        return vxMat::equalIgnoringAsciiCase(word, hardening);
    });
    constants.note(makeFinding(isKnown ? FindingId::HardeningWithoutData : FindingId::HardeningUnknown,
                               {constants.material().getPropertyText(PropertyId::PlasticHardeningType)}));
}

void addFriction(Constants constants, ModelKind kind)
{
    FrictionConstants values;
    values.kind = kind;
    values.frictionAngle = constants.need(PropertyId::PlasticFAI);
    values.hardeningModulus = constants.find(PropertyId::PlasticHardeningFactor);
    values.viscosity = constants.find(PropertyId::PlasticViscosity);
    constants.make<FrictionModel>(values);
}

void addPlasticity(const vxMat::MaterialBase& material, MaterialModels& result)
{
    const auto constants = [&](ModelKind kind) { return Constants(material, kind, result); };
    Constants mises = constants(ModelKind::MisesPlasticity);
    const std::string yield = mises.word(PropertyId::PlasticYieldType);
    if (yield == "MISES")
        addMises(mises);
    else if (yield == "DRUCKER-PRAGER")
        addFriction(constants(ModelKind::DruckerPrager), ModelKind::DruckerPrager);
    else if (yield == "MOHR-COULOMB")
        addFriction(constants(ModelKind::MohrCoulomb), ModelKind::MohrCoulomb);
    else if (yield.empty())
        mises.lack(PropertyId::PlasticYieldType);
    else
        mises.note(makeFinding(FindingId::YieldTypeUnknown, {material.getPropertyText(PropertyId::PlasticYieldType)}));
}

void addCreep(Constants constants)
{
    const double a = constants.need(PropertyId::CreepModulusA);
    const double n = constants.need(PropertyId::CreepModulusN);
    constants.make<NortonModel>(a, n, constants.need(PropertyId::CreepModulusM));
}

void addViscoElasticity(Constants constants)
{
    const double ratio = constants.need(PropertyId::ShearRelaxationModulus);
    const double time = constants.need(PropertyId::RelaxationTime);
    const std::optional<double> modulus = constants.find(PropertyId::YoungsModulus);
    const std::optional<double> poisson = constants.find(PropertyId::PoissonsRatio);
    std::optional<double> shear;
    if (modulus && poisson && *poisson > -1.0)
        shear = *modulus / (2.0 * (1.0 + *poisson));
    constants.make<ViscoElasticModel>(ratio, time, shear);
}

/// A switch and the model that it selects.
struct SwitchedModel
{
    std::int32_t switchId;
    ModelKind kind;
    void (*add)(Constants);
};

const std::vector<SwitchedModel>& switchedModels()
{
    static const std::vector<SwitchedModel> table{
        {PropertyId::IsotropicElasticity, ModelKind::LinearElasticity, addLinearElasticity},
        {PropertyId::NeoHooke, ModelKind::NeoHooke, addNeoHooke},
        {PropertyId::MooneyRivlin, ModelKind::MooneyRivlin, addMooneyRivlin},
        {PropertyId::ArrudaBoyce, ModelKind::ArrudaBoyce, addArrudaBoyce},
        {PropertyId::Creep, ModelKind::NortonCreep, addCreep},
        {PropertyId::ViscoElasticity, ModelKind::ViscoElasticity, addViscoElasticity},
    };
    return table;
}

} // namespace

const Model* MaterialModels::find(ModelKind kind) const
{
    const auto found =
        std::find_if(models.begin(), models.end(), [kind](const auto& model) { return model->kind() == kind; });
    return found == models.end() ? nullptr : found->get();
}

const Model* MaterialModels::find(Mode mode) const
{
    const auto found = std::find_if(models.begin(), models.end(), [mode](const auto& model) {
        const std::vector<Mode> modes = model->modes();
        return std::find(modes.begin(), modes.end(), mode) != modes.end();
    });
    return found == models.end() ? nullptr : found->get();
}

MaterialModels modelsOf(const vxMat::MaterialBase& material)
{
    MaterialModels result;
    for (const SwitchedModel& model : switchedModels()) {
        if (material.hasProperty(model.switchId))
            model.add(Constants(material, model.kind, result));
    }
    if (material.hasProperty(PropertyId::Plasticity))
        addPlasticity(material, result);
    return result;
}

} // namespace vxConstitutive
