#pragma once

#include "vxUnits/Unit.h"

#include <cstdint>
#include <map>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace vxDecks {

/// A declaration of a property or a parameter in a MatML document.
struct MatmlDeclaration
{
    std::string id;
    std::string name;                    ///< "Density"; the id if there is none
    std::string unitText;                ///< "kg m^-3"; "1" for a pure number
    std::optional<vxUnits::Unit> unit;   ///< absent if the unit is not known
    std::optional<vxUnits::Unit> degree; ///< the unit with "C" and "F" as degrees of temperature; absent if it has none
    double factor = 1.0;                 ///< multiplies the numbers
    std::optional<std::int32_t> quantity; ///< the quantity of the catalogue with this name
};

using MatmlDeclarations = std::map<std::string, MatmlDeclaration, std::less<>>;

/// Returns the first child element with a name, with or without a prefix of a namespace; null if there is none.
pugi::xml_node matmlChild(const pugi::xml_node& parent, std::string_view name);

/// Returns the name of an element without a prefix.
std::string_view matmlName(const pugi::xml_node& element);

/// Returns the declarations of the children of Metadata with a name, "PropertyDetails" or "ParameterDetails", by their ids.
MatmlDeclarations readMatmlDeclarations(const pugi::xml_node& metadata, std::string_view element);

/// Returns the quantity of the catalogue that a name in a document means, whatever its case, blanks and signs; absent if there
/// is none: "Young's Modulus", "Elastic modulus", "YOUNGS_MODULUS".
std::optional<std::int32_t> matmlQuantity(std::string_view name);

} // namespace vxDecks
