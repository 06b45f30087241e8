#pragma once

#include "projectfile/ContentError.h"
#include "projectfile/ProjectFileExport.h"
#include "vxMaterial/json/JsonTree.h"
#include "vxMaterial/model/Material.h"

#include <json/value.h>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace projectfile {

/// The version of the format that this program writes. It reads this one and earlier ones.
inline constexpr int formatVersion = 1;

/// The class of a project whose file names no class: of a material project.
inline constexpr const char* materialProjectClass = "Mat::DocumentMaterial";
/// The class of the materials in such a project.
inline constexpr const char* materialClass = "Mat::MaterialObject";

/// One object of a project: a material, which has `material`, or an object of another class, which may have `content`.
struct PROJECTFILE_EXPORT ObjectRecord
{
    std::uint32_t objectId = 0; ///< no other object of the project has, or had, this number; never 0
    std::string className;      ///< the registered class of the object; not empty
    std::string internalName;   ///< unique in the project; not empty
    std::string label;          ///< what the user sees
    bool suppressed = false;
    /// The "MaterialColor" of the tree node of a material: red, green, blue, opacity, each from 0 to 1.
    std::optional<std::array<float, 4>> colour;
    Json::Value properties; ///< by name, what is not said above; an object or null
    Json::Value node;       ///< the properties of the tree node by name, besides the colour; an object or null
    /// The numbers of the objects that this one needs, in order: of a group, its members. Each is an object of the
    /// project, another than this one, and is there once.
    std::vector<std::uint32_t> links;
    const vxMat::MaterialBase* material = nullptr; ///< null for an object of another class; see `ownMaterial`
    /// What an object of another class holds, as its module has written it; null if it holds nothing more.
    Json::Value content;
    /// Members that this program does not know, to be written back: "object", "material" and "properties" (by the
    /// number under which each is held), each an object or absent.
    Json::Value further;

    std::unique_ptr<vxMat::MaterialBase> ownMaterial; ///< what `material` points to if a reader made the record
};

/// Everything that a project file holds.
struct PROJECTFILE_EXPORT ProjectRecord
{
    std::string className = materialProjectClass; ///< the registered class of the project; not empty
    std::string name;                             ///< the name of the project
    std::uint64_t nextObjectId = 1;               ///< larger than all numbers of objects; 4294967296 at most
    Json::Value properties;                       ///< of the project, by name; an object or null
    Json::Value record;                           ///< what the module of the class keeps of the project; or null
    /// The record that the host's project database has of the project, or null. In a material project, the objects in
    /// it agree with `objects`.
    Json::Value database;
    std::vector<ObjectRecord> objects; ///< by number when they were read; written in this order
    /// Only of a copy kept for recovery: the file that the project was opened from or last saved in, in UTF-8; empty
    /// if there is none. Absent in a file that the user saved.
    std::optional<std::string> recoveredFile;
    Json::Value further; ///< members of the file that this program does not know, to be written back

    /// What a reader doubted, a sentence each, in the user's language: a label that is different in the database,
    /// where the one beside the material counts; a link to an object that is not there, which is left out.
    std::vector<std::string> doubts;
};

/// Returns the text of a project file, in UTF-8. A property of a material is one line, so that version control shows
/// what changed.
/// \throws ContentError if the text could not be read back as the same: for a text that is not UTF-8, a number that is
/// not finite, and all that readProject refuses or doubts
PROJECTFILE_EXPORT std::string writeProject(const ProjectRecord& project);

/// Returns the project that a text describes.
/// \throws ContentError if it describes none, is of a later version, or contradicts itself: a number or internal name
/// that two objects have, a number out of range, an object in the database that `objects` does not have
PROJECTFILE_EXPORT ProjectRecord readProject(std::string_view text);

/// Whether a JSON document says of itself that it is a project file, whatever else may be wrong with it.
PROJECTFILE_EXPORT bool isProject(const vxjson::JsonNode& document);

} // namespace projectfile
