#pragma once

#include "vxMaterial/model/Material.h"
#include "vxUnits/Quantity.h"
#include "vxUnits/UnitSystem.h"
#include "vxUnits/UnitsExport.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vxUnits {

/// The values of a material by quantity: of a material, or of rows of an editor that are not applied. Derived values and
/// doubts are computed from them.
class MaterialValues
{
public:
    MaterialValues() = default;

    /// Takes the values of a material. The id under which the material holds a property decides which quantity it is,
    /// because the acoustic library materials hold the speed of sound as a second density.
    VXUNITS_EXPORT explicit MaterialValues(const vxMat::MaterialBase& material);

    VXUNITS_EXPORT void setNumber(std::int32_t id, double number);
    VXUNITS_EXPORT void setList(std::int32_t id, std::vector<double> numbers);
    VXUNITS_EXPORT void setWord(std::int32_t id, std::string word);
    VXUNITS_EXPORT void setSwitch(std::int32_t id);
    /// Replaces each number of a quantity, alone or in a list, by its image. Does nothing without the quantity.
    VXUNITS_EXPORT void transform(std::int32_t id, const std::function<double(double)>& image);

    VXUNITS_EXPORT bool has(std::int32_t id) const;
    /// Returns the number of a quantity; absent if there is none, or if its value is not a number.
    VXUNITS_EXPORT std::optional<double> number(std::int32_t id) const;
    /// Returns the numbers of a quantity; empty if there are none, or if its value is not a list.
    VXUNITS_EXPORT const std::vector<double>& list(std::int32_t id) const;
    VXUNITS_EXPORT std::string word(std::int32_t id) const;

    /// Returns the ids of the quantities whose values are numbers or lists, in ascending order.
    VXUNITS_EXPORT std::vector<std::int32_t> numericIds() const;

    VXUNITS_EXPORT std::optional<CreepExponents> creepExponents() const;

private:
    /// A value and its form.
    struct Entry
    {
        std::int32_t id;
        QuantityForm form;
        double number;
        std::vector<double> numbers;
        std::string word;
    };

    void set(Entry entry);
    const Entry* find(std::int32_t id) const;

    std::vector<Entry> m_entries; ///< by ascending id
};

/// Converts every number of a material from one unit system to another. Words and switches do not change. The factor of
/// a creep law does not change if the material has no exponents, because its unit is then unknown.
VXUNITS_EXPORT void convertMaterial(vxMat::MaterialBase& material, const UnitSystem& from, const UnitSystem& to);

/// Returns the slots of the properties whose numbers no conversion changes because their units are not known, in the order
/// of the catalogue: those of quantities that are not in the catalogue, and the factor of a creep law without exponents.
VXUNITS_EXPORT std::vector<std::int32_t> slotsWithoutUnit(const vxMat::MaterialBase& material);

} // namespace vxUnits
