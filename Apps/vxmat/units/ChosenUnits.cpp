#include "units/ChosenUnits.h"

#include "program/Answer.h"
#include "vxUnits/MaterialValues.h"
#include "vxUnits/Quantity.h"

namespace commandline {

namespace {

/// Returns a note about the quantities that no conversion changes; empty if there are none.
std::string noteUnchanged(const vxMat::MaterialBase& material)
{
    std::string unchanged;
    for (const std::int32_t slot : vxUnits::slotsWithoutUnit(material))
        unchanged += (unchanged.empty() ? "\"" : ", \"") + material.findProperty(slot)->name + "\"";
    return unchanged.empty() ? unchanged : "unchanged, because the unit is not known: " + unchanged;
}

} // namespace

vxUnits::UnitSystem readSystem(const std::string& option, const std::string& text)
{
    auto system = vxUnits::UnitSystem::parse(text);
    if (!system)
        throw Failure(option + ": " + system.failure().text() + " \"vxmat units\" lists the systems.");
    return *std::move(system);
}

ChosenUnits::ChosenUnits(const std::optional<std::string>& text)
{
    if (text)
        m_system = readSystem("--units", *text);
}

ChosenUnits ChosenUnits::orOfProject(const std::string& recorded, const std::string& path,
                                     std::vector<std::string>& messages) const
{
    if (m_system || recorded.empty())
        return *this;
    ChosenUnits units;
    if (auto system = vxUnits::UnitSystem::parse(recorded))
        units.m_system = *std::move(system);
    else
        messages.push_back(path + ": the unit system of the project cannot be read: " + system.failure().text() +
                           " SI is used.");
    return units;
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
