#pragma once

#include <QString>

#include <string>

/// The texts of the library and the catalogue in the language of the user.
///
/// Each kind of text has its own translation context. A comment cannot distinguish a name from a key of the same
/// spelling ("Plasticity", "Creep"): compiled translation files drop a comment that no other entry of the same text
/// needs. The translator then finds the translation of the name for the key. A translated key, unit or value would
/// reach documents and solver cards; the translations therefore contain only names and descriptions.
namespace MatGui {

/// The kinds of texts of a property. Each kind has the translation context "vxMat::Property" with the name of the
/// enumerator: "vxMat::PropertyName".
enum class PropertyText
{
    Name,
    Value,
    Description,
    Key,
    Unit,
};

/// Returns the translated name of a material, such as "Structural Steel". The context is "vxMat::MaterialBase".
QString translateMaterialName(const std::string& name);

/// Returns the translated text of a property.
QString translatePropertyText(const std::string& text, PropertyText kind);

} // namespace MatGui
