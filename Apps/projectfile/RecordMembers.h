#pragma once

#include "vxMaterial/model/Material.h"

#include <json/value.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

/// The members of the records, each with its name, once, in the order in which they are written. What writes, reads or
/// compares a record walks these with a visitor: `visit(name, field)`.
namespace projectfile::detail {

/// What a project file says of itself under "format".
inline constexpr std::string_view projectFormat = "vxMaterial project";

/// A field whose member must be there.
template <class Field>
struct Required
{
    Field& field;
};

template <class Field>
Required(Field&) -> Required<Field>;

/// The properties of a material, and the members of their records that this program does not know.
template <class Map, class Further>
struct Properties
{
    Map& map;
    Further& further; ///< an object by the key of the property, or null
};

template <class Map, class Further>
Properties(Map&, Further&) -> Properties<Map, Further>;

/// `heldAs` is the key of the property in its material.
template <class Key, class Property, class Visit>
void visitPropertyMembers(Key& heldAs, Property& property, const Visit& visit)
{
    visit("held_as", heldAs);
    visit("id", property.id);
    visit("name", property.name);
    visit("key", property.key);
    visit("value", property.value);
    visit("text", property.text);
    visit("values", property.values);
    visit("description", property.description);
    visit("unit", property.unit);
    visit("category", property.category);
}

template <class Material, class Further, class Visit>
void visitMaterialMembers(Material& material, Further& furtherOfProperties, const Visit& visit)
{
    visit("id", material.id);
    visit("name", material.name);
    visit("library_group", material.libraryGroup);
    visit("properties", Properties{material.properties, furtherOfProperties});
}

/// `material` is what stands for the material on the side of the visitor.
template <class Object, class MaterialField, class Visit>
void visitObjectMembers(Object& object, MaterialField& material, const Visit& visit)
{
    visit("object_id", Required{object.objectId});
    visit("class", Required{object.className});
    visit("name_internal", Required{object.internalName});
    visit("label", Required{object.label});
    visit("suppressed", object.suppressed);
    visit("colour", object.colour);
    visit("material", Required{material});
}

/// `format`, `version` and `materials` are what stands for these on the side of the visitor.
template <class Text, class Version, class Project, class MaterialsField, class Visit>
void visitProjectMembers(Text& format, Version& version, Project& project, MaterialsField& materials,
                         const Visit& visit)
{
    visit("format", Required{format});
    visit("format_version", Required{version});
    visit("name", Required{project.name});
    visit("next_object_id", Required{project.nextObjectId});
    visit("recovered_file", project.recoveredFile);
    visit("database", project.database);
    visit("materials", Required{materials});
}

// The parts of ObjectRecord::further.
inline constexpr const char* partOfObject = "object";
inline constexpr const char* partOfMaterial = "material";
inline constexpr const char* partOfProperties = "properties";

/// The words for the numbers that JSON has not.
inline constexpr std::string_view infinityWord = "Infinity";
inline constexpr std::string_view minusInfinityWord = "-Infinity";
inline constexpr std::string_view notANumberWord = "NaN";

} // namespace projectfile::detail
