#pragma once

#include <string_view>

/// The members of the records with their names, in the order in which they are written. The writer and the reader of
/// records visit them: `visit(name, field)`.
namespace projectfile::detail {

/// The value of the member "format" of project files.
inline constexpr std::string_view projectFormat = "vxMaterial project";

/// A field whose member is required.
template <class Field>
struct Required
{
    Field& field;
};

template <class Field>
Required(Field&) -> Required<Field>;

/// A value of any kind. A null value is not written.
template <class Value>
struct Optional
{
    Value& value;
};

template <class Value>
Optional(Value&) -> Optional<Value>;

/// A value that must be an object. A null value is not written.
template <class Value>
struct OptionalObject
{
    Value& value;
};

template <class Value>
OptionalObject(Value&) -> OptionalObject<Value>;

/// The properties of a material, and the unknown members of their records.
template <class Map, class Further>
struct Properties
{
    Map& map;
    Further& further; ///< an object by the number under which the material holds the property, or null
};

template <class Map, class Further>
Properties(Map&, Further&) -> Properties<Map, Further>;

/// `heldAs` is the number under which the material holds the property.
template <class HeldAs, class Property, class Visit>
void visitPropertyMembers(HeldAs& heldAs, Property& property, const Visit& visit)
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

/// The first members of every object. Called only by the functions below.
template <class Object, class Visit>
void visitIdentity(Object& object, const Visit& visit)
{
    visit("object_id", Required{object.objectId});
    visit("class", Required{object.className});
    visit("name_internal", Required{object.internalName});
    visit("label", Required{object.label});
    visit("suppressed", object.suppressed);
}

template <class Object, class Visit>
void visitCommonMembers(Object& object, const Visit& visit)
{
    visit("properties", OptionalObject{object.properties});
    visit("node", OptionalObject{object.node});
    visit("links", object.links);
    visit("settings", object.settings);
}

/// The members of an object that is a material. `material` is the visitor's own representation of the material.
template <class Object, class MaterialField, class Visit>
void visitMaterialObjectMembers(Object& object, MaterialField& material, const Visit& visit)
{
    visitIdentity(object, visit);
    visit("colour", object.colour);
    visitCommonMembers(object, visit);
    visit("material", Required{material});
}

/// The members of an object of another class.
template <class Object, class Visit>
void visitOtherObjectMembers(Object& object, const Visit& visit)
{
    visitIdentity(object, visit);
    visitCommonMembers(object, visit);
    visit("content", Optional{object.content});
}

/// `format`, `version`, `className`, `materials` and `others` are the visitor's own representations of these members.
template <class Text, class Version, class ClassName, class Project, class Materials, class Others, class Visit>
void visitProjectMembers(Text& format, Version& version, ClassName& className, Project& project, Materials& materials,
                         Others& others, const Visit& visit)
{
    visit("format", Required{format});
    visit("format_version", Required{version});
    visit("class", className);
    visit("name", Required{project.name});
    visit("next_object_id", Required{project.nextObjectId});
    visit("recovered_file", project.recoveredFile);
    visit("unapplied_edits", Optional{project.unappliedEdits});
    visit("settings", project.settings);
    visit("properties", OptionalObject{project.properties});
    visit("record", Optional{project.record});
    visit("database", project.database);
    visit("materials", Required{materials});
    visit("objects", others);
}

// The parts of ObjectRecord::further.
inline constexpr const char* partOfObject = "object";
inline constexpr const char* partOfMaterial = "material";
inline constexpr const char* partOfProperties = "properties";

} // namespace projectfile::detail
