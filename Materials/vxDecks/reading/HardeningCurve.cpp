#include "reading/HardeningCurve.h"

#include "texts/ReadingTexts.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <utility>

namespace vxDecks {

void setHardeningCurve(MaterialReading& material, std::vector<double> stresses, std::vector<double> strains)
{
    using Id = vxMat::PropertyId;
    const double first = strains.front();
    material.setList(Id::PlasticYieldStress, std::move(stresses));
    material.setList(Id::PlasticStrain, std::move(strains));
    if (first != 0.0)
        material.approximate(Id::PlasticStrain, makeMessage(ReadText::CurveNotFromZero, {vxMat::formatNumber(first)}));
}

} // namespace vxDecks
