#pragma once

#include <QString>

#include <string>

/// The texts of library and catalogue in the language of the user.
///
/// Each kind of text has a translation context of its own. A comment cannot tell apart a name and a key of the same
/// spelling ("Plasticity", "Creep"): compiled translation files drop a comment that no other entry of the same text needs,
/// and the translator then finds the translation of the name for the key as well. A translated key, unit or value would
/// reach documents and solver cards; the translations of the program therefore contain names and descriptions only.
namespace MatGui {

/// What a text of a property is. Each has the translation context "vxMat::Property" with the name of the enumerator:
/// "vxMat::PropertyName".
enum class PropertyText
{
    Name,
    Value,
    Description,
    Key,
    Unit,
};

/// Returns the name of a material, such as "Structural Steel", as the user reads it. The context is "vxMat::MaterialBase".
QString translateMaterialName(const std::string& name);

/// Returns a text of a property as the user reads it.
QString translatePropertyText(const std::string& text, PropertyText kind);

} // namespace MatGui
