#pragma once

#include <QString>

#include <string>

/// The texts of library and catalogue in the user's language.
///
/// Material names have the translation context "vxMat::MaterialBase"; texts of a property have the context
/// "vxMat::MaterialProperty" and what they are (Text) as their comment, so that a name and a key that read alike are
/// two entries. A translation of keys, units or values would end up in documents and in solver cards, where they must
/// be understood: the translations that come with the program have names and descriptions only.
namespace MatGui {

/// What a text of a property is; the comment of its translation.
namespace Text {
constexpr const char* name = "name";
constexpr const char* value = "value";
constexpr const char* description = "description";
constexpr const char* key = "key";
constexpr const char* unit = "unit";
} // namespace Text

/// The name of a material, such as "Structural Steel", as the user reads it.
QString translateMaterialName(const std::string& name);

/// A text of a property as the user reads it; `kind` is one of Text.
QString translatePropertyText(const std::string& text, const char* kind);

} // namespace MatGui
