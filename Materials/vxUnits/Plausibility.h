#pragma once

#include "vxMaterial/model/Material.h"
#include "vxUnits/MaterialValues.h"
#include "vxUnits/Message.h"
#include "vxUnits/UnitSystem.h"
#include "vxUnits/UnitsExport.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Checks whether a known material could have the values of a material. A number that was typed in a wrong unit shows in
/// this way: no known material has it, or none has it together with the other values. docs/quantities.md lists the ranges
/// and relations with their sources.
///
/// A doubt is a warning and never refuses a value. Not found are errors by less than a factor of about two, and errors in
/// values that no other value depends on: a relaxation time in hours, the shear modulus of a gel in kPa.
namespace vxUnits {

/// The certainty of a doubt.
enum class Severity
{
    Unlikely,   ///< no known material has such values
    Impossible, ///< physics excludes the value
};

/// The change of one quantity by a remedy: its number is in another unit than the unit of the catalogue.
struct Change
{
    std::int32_t id = 0;
    std::string unit;        ///< "MPa"
    double factor = 1.0;     ///< multiplies the number
    bool reciprocal = false; ///< whether the number is the reciprocal of the quantity: a resistivity for a conductivity

    /// Returns the number in the unit of the catalogue: 206900 becomes 2.069e11, the number that "206900 MPa" is read as.
    VXUNITS_EXPORT double apply(double number) const;
};

/// A change of unit that explains a doubt and removes it. The user decides whether to apply it.
struct Remedy
{
    Message message;             ///< "206900 MPa is usual for steel: multiply by 1e6"
    std::vector<Change> changes; ///< not empty; several if all stresses, or all numbers, are in another unit
    std::string system;          ///< the unit system of all numbers; empty if not all of them are in another system
};

/// A value that no known material has, or not together with the other values.
struct Doubt
{
    std::int32_t id = 0; ///< the quantity in doubt
    double value = 0.0;  ///< its number in the unit of the catalogue, or the element in doubt of its list
    std::string lowest;  ///< "10 Pa": the bounds of known materials, for the value or for the relation in the message,
    std::string highest; ///< in the units of the message; empty if there are none
    Message message;
    Severity severity = Severity::Unlikely;
    std::optional<Remedy> remedy;

    /// Returns the message, followed by that of the remedy if there is one: in English, or translated.
    VXUNITS_EXPORT std::string text(const Translator& translator = {}) const;
};

/// A relation between quantities that lies within bounds for all known materials.
struct Relation
{
    const char* name = "";      ///< "wave speed in a bar"
    const char* formula = "";   ///< "sqrt(E / rho)", in the keys of the catalogue
    const char* condition = ""; ///< "above 6000 kg/m^3"; empty if the bounds hold for all materials
    double lowest = 0.0;        ///< in `unit`
    double highest = 0.0;
    const char* unit = ""; ///< "m/s"; "1" for pure numbers
    const char* source = "";
};

/// Returns the relations that are checked, apart from the order of lists.
VXUNITS_EXPORT const std::vector<Relation>& relations();

/// Returns the doubts about the values of a material in the catalogue's units, sorted by the ids of the quantities. Empty
/// for a material without numbers. The texts show the numbers in the units of `shown`. Takes less than 2 ms for the largest
/// library material.
VXUNITS_EXPORT std::vector<Doubt> checkPlausibility(const MaterialValues& values,
                                                    const UnitSystem& shown = UnitSystem::si());
VXUNITS_EXPORT std::vector<Doubt> checkPlausibility(const vxMat::MaterialBase& material,
                                                    const UnitSystem& shown = UnitSystem::si());

/// Returns the text of the unit system that all numbers of a material fit, if it is not the system of the catalogue; empty
/// otherwise.
VXUNITS_EXPORT std::string fittingSystem(const vxMat::MaterialBase& material);

/// Applies the changes of a remedy to the quantities that the material has.
VXUNITS_EXPORT void applyRemedy(const Remedy& remedy, vxMat::MaterialBase& material);
VXUNITS_EXPORT void applyRemedy(const Remedy& remedy, MaterialValues& values);

} // namespace vxUnits
