#pragma once

#include "vxMaterial/model/Material.h"
#include "vxUnits/UnitSystem.h"

#include <optional>
#include <string>
#include <vector>

namespace commandline {

/// The unit system of --units, in which a subcommand prints or reads numbers. Without the option, numbers are in the units of
/// the catalogue, and subcommands that print a project use the unit system of the project.
class ChosenUnits
{
public:
    ChosenUnits() = default;

    /// \throws Failure if a given text is not a unit system
    explicit ChosenUnits(const std::optional<std::string>& text);

    /// Returns these units. If --units is not given, returns those of a project whose setting has the text `recorded`, which
    /// is empty if there is none. If the setting cannot be read, adds a message that begins with `path`.
    ChosenUnits orOfProject(const std::string& recorded, const std::string& path,
                            std::vector<std::string>& messages) const;

    bool areGiven() const { return m_system.has_value(); }

    /// Returns the name of the system, or the base units of a system of the user; empty if --units is not given.
    std::string name() const;

    /// Returns the system; SI, whose units the catalogue has, if --units is not given.
    const vxUnits::UnitSystem& system() const { return m_system ? *m_system : vxUnits::UnitSystem::si(); }

    /// Returns the name in parentheses after a blank, for titles; empty if --units is not given.
    std::string suffix() const;

    /// Returns the note that numbers, for which a format has no place for the unit system, are in this system. `subject`
    /// is the subject of the sentence with its verb: "the cards are".
    std::string note(const std::string& subject) const;

    /// Returns the unit of a quantity of a material in this system. Absent if --units is not given, if the value of the
    /// quantity is not a number, or if its unit is unknown.
    std::optional<vxUnits::Unit> unitOf(std::int32_t slot, const vxMat::MaterialBase& material) const;

    /// Returns a number of a quantity, which is in the unit of the catalogue, in this system. Returns the same number if
    /// unitOf is absent.
    double convert(double number, std::int32_t slot, const vxMat::MaterialBase& material) const;

    /// Converts all numbers of a material from the units of the catalogue to this system, and replaces its unit texts.
    /// Returns a note about the quantities that stay unchanged because their units are unknown; empty if there are none.
    std::string apply(vxMat::MaterialBase& material) const;

    /// Converts all numbers of a material from this system to the units of the catalogue. Returns a note as apply() does.
    std::string revert(vxMat::MaterialBase& material) const;

private:
    std::optional<vxUnits::UnitSystem> m_system;
};

/// Returns the unit system in a text that was given for an option.
/// \throws Failure with the name of the option if the text is not a unit system
vxUnits::UnitSystem readSystem(const std::string& option, const std::string& text);

/// Returns a unit as tables show it: "-" for pure numbers.
std::string textOf(const vxUnits::Unit& unit);

} // namespace commandline
