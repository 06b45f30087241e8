#include "ChosenUnits.h"

#include "Answer.h"

#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxUnits/MaterialValues.h"
#include "vxUnits/Quantity.h"

namespace commandline {

namespace {

vxUnits::UnitSystem readSystem(const std::string& text)
{
    auto system = vxUnits::UnitSystem::parse(text);
    if (!system)
        throw Failure("--units: " + system.failure().text() + " \"vxmat units\" lists the systems.");
    return *std::move(system);
}

/// Returns whether a quantity has numbers whose unit is unknown: the quantity is not in the catalogue, or it is the
/// factor of a creep law without exponents.
bool hasUnknownUnit(std::int32_t slot, const vxMat::MaterialBase& material)
{
    const vxUnits::Quantity* const quantity = vxUnits::findQuantity(slot);
    return quantity == nullptr ||
           (quantity->hasNumber() &&
            !vxUnits::unitOfQuantity(slot, vxUnits::UnitSystem::si(), vxUnits::creepExponents(material)));
}

/// Returns a note about the quantities that no conversion changes; empty if there are none.
std::string noteUnchanged(const vxMat::MaterialBase& material)
{
    std::string unchanged;
    for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(material)) {
        if (hasUnknownUnit(slot, material))
            unchanged += (unchanged.empty() ? "\"" : ", \"") + property->name + "\"";
    }
    return unchanged.empty() ? unchanged : "unchanged, because the unit is not known: " + unchanged;
}

} // namespace

ChosenUnits::ChosenUnits(const std::optional<std::string>& text)
{
    if (text)
        m_system = readSystem(*text);
}

std::string ChosenUnits::name() const
{
    return m_system ? m_system->text() : std::string();
}

std::string ChosenUnits::suffix() const
{
    return m_system ? " (" + m_system->text() + ")" : std::string();
}

std::string ChosenUnits::note(const std::string& subject) const
{
    return "note: " + subject + " in " + name() + "; the format has no place for the unit system";
}

std::optional<vxUnits::Unit> ChosenUnits::unitOf(std::int32_t slot, const vxMat::MaterialBase& material) const
{
    if (!m_system)
        return std::nullopt;
    auto unit = vxUnits::unitOfQuantity(slot, *m_system, vxUnits::creepExponents(material));
    return unit ? std::optional<vxUnits::Unit>(*std::move(unit)) : std::nullopt;
}

double ChosenUnits::convert(double number, std::int32_t slot, const vxMat::MaterialBase& material) const
{
    const auto shown = unitOf(slot, material);
    if (!shown)
        return number;
    const auto stored = vxUnits::unitOfQuantity(slot, vxUnits::UnitSystem::si(), vxUnits::creepExponents(material));
    return vxUnits::convertNumber(number, *stored, *shown);
}

std::string ChosenUnits::apply(vxMat::MaterialBase& material) const
{
    if (!m_system)
        return {};
    vxUnits::convertMaterial(material, vxUnits::UnitSystem::si(), *m_system);
    for (const auto& [slot, property] : material.properties) {
        if (const auto unit = unitOf(slot, material))
            property->unit = textOf(*unit);
    }
    return noteUnchanged(material);
}

std::string ChosenUnits::revert(vxMat::MaterialBase& material) const
{
    if (!m_system)
        return {};
    vxUnits::convertMaterial(material, *m_system, vxUnits::UnitSystem::si());
    return noteUnchanged(material);
}

std::string textOf(const vxUnits::Unit& unit)
{
    return unit.text() == "1" ? "-" : unit.text();
}

} // namespace commandline
