#include "vxConstitutive/fit/FittedVolume.h"

#include "vxConstitutive/fit/EstimateText.h"
#include "vxConstitutive/response/HyperelasticModel.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>

namespace vxConstitutive {

namespace {

constexpr std::int32_t d1Id = vxMat::PropertyId::IncompressibilityParameterD1;

bool determinesD1(const MaterialChange& change)
{
    return std::any_of(change.set.begin(), change.set.end(),
                       [](const PropertyValue& value) { return value.propertyId == d1Id; });
}

} // namespace

bool FittedVolume::contradictsFit() const
{
    return bulkRatio && !(*bulkRatio >= nearlyIncompressible);
}

std::optional<FittedVolume> fittedVolume(const FitResult& result, const vxMat::MaterialBase& material)
{
    const auto* const model = dynamic_cast<const HyperelasticModel*>(result.fitted.get());
    if (model == nullptr || determinesD1(result.change) || !(model->initialShearModulus() > 0.0))
        return std::nullopt;
    FittedVolume volume;
    volume.shearModulus = model->initialShearModulus();
    const vxMat::MaterialProperty* const d1 = material.findProperty(d1Id);
    if (d1 == nullptr || d1->value == 0.0)
        return volume;
    volume.bulkRatio = 2.0 / d1->value / volume.shearModulus;
    volume.finding =
        makeFinding(volume.contradictsFit() ? FindingId::FitContradictsD1 : FindingId::FitKeepsD1,
                    {roundedText(*volume.bulkRatio, residualDigits), poissonsRatio(*volume.bulkRatio, 1.0)});
    return volume;
}

MaterialChange changeOf(const FitResult& result, const FittedVolume& volume, D1Treatment treatment, double bulkRatio)
{
    MaterialChange change = result.change;
    if (treatment == D1Treatment::Remove)
        change.remove.push_back(d1Id);
    else if (treatment == D1Treatment::Set)
        change.set.push_back({d1Id, 2.0 / (bulkRatio * volume.shearModulus), {}, {}});
    return change;
}

} // namespace vxConstitutive
