#pragma once

#include "vxMaterial/model/Material.h"
#include "vxUnits/Dimension.h"
#include "vxUnits/Result.h"
#include "vxUnits/Unit.h"
#include "vxUnits/UnitSystem.h"
#include "vxUnits/UnitsExport.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace vxUnits {

/// The form of the value of a quantity.
enum class QuantityForm
{
    Number,
    NumberList,
    Word,
    Switch
};

/// The relation of the unit text of the catalogue to the unit of the number.
enum class CatalogueUnit
{
    Right,   ///< the text is the unit
    Missing, ///< the text is "-", but the number has a unit
    Wrong,   ///< the text is another unit
};

/// The range of a quantity over all known materials, at room temperature and atmospheric pressure unless the source says
/// otherwise. The numbers are in the unit of the quantity.
struct KnownRange
{
    double lowest = 0.0;
    double highest = 0.0;
    const char* lowestIs = "";  ///< the material with the lowest value: "aerogel"
    const char* highestIs = ""; ///< "osmium"
};

/// The physical meaning of one of the 36 quantities of the catalogue.
struct Quantity
{
    std::int32_t id = 0; ///< vxMat::PropertyId
    QuantityForm form = QuantityForm::Number;
    Dimension dimension; ///< none for the creep factor; see unitOfQuantity
    const char* siUnit =
        ""; ///< the unit of the stored number, coherent SI except for the angle; "" for words and switches
    CatalogueUnit catalogueUnit = CatalogueUnit::Right;
    const char* meaning = ""; ///< the meaning of the number for a solver
    const char* meaningSource = "";
    std::optional<KnownRange> solids;
    std::optional<KnownRange> liquids;
    std::optional<KnownRange> gases;
    const char* rangeSource = ""; ///< "" if there is no range

    bool hasNumber() const { return form == QuantityForm::Number || form == QuantityForm::NumberList; }
};

inline constexpr std::size_t quantityCount = 36;

/// Returns the 36 quantities, sorted by id.
VXUNITS_EXPORT const std::array<Quantity, quantityCount>& quantities();

/// Returns the quantity of an id; null if there is none.
VXUNITS_EXPORT const Quantity* findQuantity(std::int32_t id);

/// Returns the exponents of the creep law of a material; absent if the material has neither.
VXUNITS_EXPORT std::optional<CreepExponents> creepExponents(const vxMat::MaterialBase& material);

/// Returns the unit of a quantity in a unit system. Fails for words and switches, and for the factor of creep, whose
/// unit is that of stress^-n time^-(m+1), if the exponents are missing or not between -50 and 50.
VXUNITS_EXPORT Result<Unit> unitOfQuantity(std::int32_t id, const UnitSystem& system = UnitSystem::si(),
                                           const std::optional<CreepExponents>& creep = std::nullopt);

/// Returns the converter of numbers of a quantity from one system to another. Fails as unitOfQuantity does.
VXUNITS_EXPORT Result<Converter> converterOfQuantity(std::int32_t id, const UnitSystem& from, const UnitSystem& to,
                                                     const std::optional<CreepExponents>& creep = std::nullopt);

} // namespace vxUnits
