#include "vxConstitutive/ModelDoubts.h"

#include "vxConstitutive/UsualRange.h"
#include "vxConstitutive/response/HyperelasticModel.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <utility>

namespace vxConstitutive {

namespace {

using Id = vxMat::PropertyId;

/// Returns the constant that makes a rubber unstable: a negative one; if there is none, D1, whose volumetric energy does not resist
/// a volume below a half; without D1 the first constant.
std::int32_t unstableConstant(const vxMat::MaterialBase& material)
{
    const bool isMooneyRivlin = material.hasProperty(Id::MooneyRivlin);
    for (const std::int32_t id : {Id::MaterialConstantC10, Id::MaterialConstantC01, Id::MaterialConstantC11}) {
        double value = 0.0;
        const bool counts = id == Id::MaterialConstantC10 || isMooneyRivlin;
        if (counts && material.getPropertyValue(id, value) && value < 0.0)
            return id;
    }
    if (material.hasProperty(Id::IncompressibilityParameterD1))
        return Id::IncompressibilityParameterD1;
    const bool hasC10 = !material.hasProperty(Id::ArrudaBoyce) && material.hasProperty(Id::MaterialConstantC10);
    return hasC10 ? Id::MaterialConstantC10 : Id::InitialShearModulusMu;
}

/// Returns the quantity that a finding doubts; 0 if the finding is no doubt.
std::int32_t doubtedQuantity(FindingId finding, const vxMat::MaterialBase& material)
{
    switch (finding) {
    case FindingId::C10AndMuDiffer:
        return Id::MaterialConstantC10;
    case FindingId::HardeningWithoutData:
        return Id::PlasticHardeningType;
    case FindingId::HardeningFalls:
        return vxMat::equalIgnoringAsciiCase(material.getPropertyText(Id::PlasticHardeningType), "MULTILINEAR")
                   ? Id::PlasticYieldStress
                   : Id::PlasticHardeningFactor;
    case FindingId::LimitingStretchTooLow:
    case FindingId::LockingInsideRange:
        return Id::LimitingNetworkStretch;
    case FindingId::InitialModulusNegative:
    case FindingId::UnstableBelow:
    case FindingId::UnstableFrom:
        return unstableConstant(material);
    default:
        return 0;
    }
}

/// Collects the doubts about a material.
class Doubts
{
public:
    explicit Doubts(const vxMat::MaterialBase& material) : m_material(material) {}

    void add(const std::vector<Finding>& findings)
    {
        for (const Finding& finding : findings)
            if (const std::int32_t id = doubtedQuantity(finding.id, m_material))
                m_doubts.push_back({finding, id});
    }

    std::vector<ModelDoubt> take() { return std::move(m_doubts); }

private:
    const vxMat::MaterialBase& m_material;
    std::vector<ModelDoubt> m_doubts;
};

/// Returns whether a model of rubber has a response that can become unstable: one that resists at rest.
bool hasResponse(const HyperelasticModel& rubber)
{
    const std::vector<Finding>& findings = rubber.findings();
    return std::none_of(findings.begin(), findings.end(), [](const Finding& finding) {
        return finding.id == FindingId::InitialModulusNegative || finding.id == FindingId::LimitingStretchTooLow;
    });
}

} // namespace

std::vector<ModelDoubt> doubtsAboutModels(const vxMat::MaterialBase& material, const CurveSource& curves)
{
    const MaterialModels models = modelsOf(material);
    Doubts doubts(material);
    doubts.add(models.findings);
    for (const auto& model : models.models) {
        const auto* const rubber = dynamic_cast<const HyperelasticModel*>(model.get());
        if (rubber == nullptr || !hasResponse(*rubber))
            continue;
        for (const Mode mode : rubber->modes()) {
            const Range range = usualRange(*rubber, mode, material);
            CurveRequest request;
            request.mode = mode;
            request.abscissas = {range.from, range.to}; // between which the model searches
            doubts.add(curves ? curves(*rubber, request)->findings : rubber->curve(request).findings);
        }
    }
    return doubts.take();
}

} // namespace vxConstitutive
