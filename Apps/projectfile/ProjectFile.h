#pragma once

#include "projectfile/ContentError.h"
#include "projectfile/ProjectFileExport.h"
#include "vxMaterial/json/JsonTree.h"
#include "vxMaterial/model/Material.h"

#include <json/value.h>

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace projectfile {

/// The version of the format that this program writes. The program reads this version and earlier ones.
inline constexpr int formatVersion = 1;

/// The maximum number of groups around an object.
inline constexpr int deepestGroups = 100;

/// The class of a material project, and the default if a file names no class.
inline constexpr const char* materialProjectClass = "Mat::DocumentMaterial";
/// The class of the materials in a material project.
inline constexpr const char* materialClass = "Mat::MaterialObject";

/// The setting that names the unit system in which the values of a project are shown. The numbers of the file are in the
/// units of the catalogue whatever it is.
inline constexpr const char* unitSystemSetting = "unit_system";

/// One object of a project: a material, which has `material`, or an object of another class, which may have `content`.
struct PROJECTFILE_EXPORT ObjectRecord
{
    std::uint32_t objectId = 0; ///< unique in the project, deleted objects included; never 0
    std::string className;      ///< the registered class of the object; not empty
    std::string internalName;   ///< unique in the project; not empty
    std::string label;          ///< the label for the user
    bool suppressed = false;
    /// The "MaterialColor" of the tree node of a material: red, green, blue, opacity, each from 0 to 1.
    std::optional<std::array<float, 4>> colour;
    Json::Value properties; ///< the other properties by name; an object or null
    Json::Value node;       ///< the properties of the tree node by name, besides the colour; an object or null
    /// The numbers of the objects that this one needs, in order; for a group, the numbers of its members. Each number
    /// occurs once and belongs to another object of the project.
    std::vector<std::uint32_t> links;
    std::map<std::string, std::string> settings;   ///< texts by name; settings of any name are kept
    const vxMat::MaterialBase* material = nullptr; ///< null for an object of another class; see `ownMaterial`
    /// The content of an object of another class, in the form that its module writes; null if there is none.
    Json::Value content;
    /// Unknown members, which are written back: "object", "material" and "properties" (by the number under which the
    /// material holds the property), each an object or absent.
    Json::Value further;

    std::unique_ptr<vxMat::MaterialBase> ownMaterial; ///< owns `material` if a reader made the record
};

/// The content of a project file.
struct PROJECTFILE_EXPORT ProjectRecord
{
    std::string className = materialProjectClass; ///< the registered class of the project; not empty
    std::string name;                             ///< the name of the project
    std::uint64_t nextObjectId = 1;               ///< larger than all object numbers; at most 4294967296
    std::map<std::string, std::string> settings;  ///< texts by name; settings of any name are kept
    Json::Value properties;                       ///< the properties of the project by name; an object or null
    Json::Value record;                           ///< the record that the module of the class writes; or null
    /// The record of the project in the host's project database, or null. In a material project, its objects agree with
    /// `objects`.
    Json::Value database;
    std::vector<ObjectRecord> objects; ///< sorted by number after reading; written in this order
    /// Only in a recovery copy: the path, in UTF-8, of the file from which the project was opened or to which it was
    /// last saved; empty if there is no such file. Absent in a file that the user saved.
    std::optional<std::string> recoveredFile;
    /// Only in a recovery copy: the edits in open editors that were not applied, in the form that the application uses; an
    /// array or null.
    Json::Value unappliedEdits;
    Json::Value further; ///< unknown members of the file, which are written back

    /// Messages about data that the reader corrected, in the user's language: a label that differs in the database
    /// (the label beside the material is used), a label among the properties of an object and an invalid link (both are
    /// removed).
    std::vector<std::string> doubts;
};

/// Returns the text of a project file, in UTF-8. A property of a material is one line, so that version control shows
/// which property changed.
/// \throws ContentError if readProject could not read back the same project: a text is not UTF-8, a number
/// outside the properties of materials is not finite, or readProject would refuse or correct the text
PROJECTFILE_EXPORT std::string writeProject(const ProjectRecord& project);

/// Returns the project in a text.
/// \throws ContentError if the text is not a project file, is of a later version, or is inconsistent: two objects with
/// the same number or internal name, a number out of range, an object in the database that is not in `objects`
PROJECTFILE_EXPORT ProjectRecord readProject(std::string_view text);

/// Returns whether the member "format" of a JSON document has the value of project files. Other errors do not matter.
PROJECTFILE_EXPORT bool isProject(const vxjson::JsonNode& document);
/// The same for the text of a file.
/// \throws std::exception if the text is not JSON
PROJECTFILE_EXPORT bool isProjectText(std::string_view text);

} // namespace projectfile
