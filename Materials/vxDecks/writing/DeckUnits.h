#pragma once

#include "vxUnits/MaterialValues.h"
#include "vxUnits/Unit.h"
#include "vxUnits/UnitSystem.h"

#include <cstdint>
#include <map>
#include <optional>
#include <utility>

namespace vxDecks {

/// The units of a quantity in the catalogue and in the deck; absent if it has no numbers.
struct UnitPair
{
    std::optional<vxUnits::Unit> stored;
    std::optional<vxUnits::Unit> written;

    bool areBothKnown() const { return stored && written; }
};

/// The unit system of a deck. It looks the units of a quantity up once for all materials, because a deck of 10,000 materials
/// takes 0.2 s then, and 0.7 s if they are looked up for each material.
class DeckUnits
{
public:
    explicit DeckUnits(vxUnits::UnitSystem system) : m_system(std::move(system)) {}

    const vxUnits::UnitSystem& system() const { return m_system; }

    /// Returns the units of a quantity. The exponents of creep decide the unit of its factor.
    UnitPair of(std::int32_t id, const std::optional<vxUnits::CreepExponents>& creep);

    /// Converts the numbers of a material from the units of the catalogue.
    void convert(vxMat::MaterialBase& material);

private:
    UnitPair lookUp(std::int32_t id, const std::optional<vxUnits::CreepExponents>& creep) const;

    vxUnits::UnitSystem m_system;
    std::map<std::int32_t, UnitPair> m_known; ///< of quantities whose units do not depend on the material
};

} // namespace vxDecks
