#include "reading/HardeningCurve.h"

#include "texts/ReadingTexts.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace vxDecks {

void setHardeningCurve(MaterialReading& material, std::vector<double> stresses, std::vector<double> strains)
{
    using Id = vxMat::PropertyId;
    const bool ascends = std::adjacent_find(strains.begin(), strains.end(), std::greater_equal<>()) == strains.end();
    const double first = strains.front();
    material.setList(Id::PlasticYieldStress, std::move(stresses));
    material.setList(Id::PlasticStrain, std::move(strains));
    if (first != 0.0)
        material.approximate(Id::PlasticStrain, makeMessage(ReadText::CurveNotFromZero, {vxMat::formatNumber(first)}));
    if (!ascends)
        material.approximate(Id::PlasticStrain, makeMessage(ReadText::CurveNotAscending));
}

} // namespace vxDecks
