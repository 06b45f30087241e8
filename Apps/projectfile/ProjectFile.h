#pragma once

#include "projectfile/ProjectFileExport.h"
#include "vxMaterial/model/Material.h"

#include <json/value.h>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace projectfile {

/// The version of the format that this program writes. It reads this one and earlier ones.
inline constexpr int formatVersion = 1;

/// A text that is none of a project, and what is wrong with it. The message names the line and column, or the path of
/// the member, but not the file, which the caller knows.
class PROJECTFILE_EXPORT ProjectFileError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
    ~ProjectFileError() override;
};

/// One material of a project: what the host knows of its object, and the material.
struct PROJECTFILE_EXPORT ObjectRecord
{
    std::uint32_t objectId = 0; ///< no other object of the project has, or had, this number; never 0
    std::string className;      ///< the registered class of the object
    std::string internalName;   ///< unique in the project
    std::string label;          ///< what the user sees
    bool suppressed = false;
    std::optional<std::array<float, 4>> colour;    ///< of the node: red, green, blue, opacity, each from 0 to 1
    const vxMat::MaterialBase* material = nullptr; ///< never null when written; belongs to whoever made the record
    /// Members that this program does not know, to be written back: "object", "material" and "properties" (by the key
    /// under which each is held), each an object or absent.
    Json::Value further;
};

/// Everything that a project file holds.
struct PROJECTFILE_EXPORT ProjectRecord
{
    std::string name;               ///< the name of the project
    std::uint64_t nextObjectId = 1; ///< the number of the next object; one more than the largest may be
    /// The record that the host's project database has of the project. Numbers and names in it agree with `objects`.
    Json::Value database;
    std::vector<ObjectRecord> objects; ///< by number
    /// For a copy that is kept for recovery alone: the file that the project was opened from or last saved in, in UTF-8;
    /// empty for a project that has none. Absent in a file that the user saved.
    std::optional<std::string> recoveredFile;
    Json::Value further; ///< members of the file that this program does not know, to be written back

    /// The materials that a reader made; `objects` point to them.
    std::vector<std::unique_ptr<vxMat::MaterialBase>> materials;
    /// What a reader had to doubt, a sentence each: a label that stands differently in the database and beside the
    /// material, where the latter counts.
    std::vector<std::string> doubts;
};

/// The text of a project file, in UTF-8. A property is a line, so that version control shows what changed.
/// \throws ProjectFileError when it would not read back as the same: a text that is not UTF-8, or what readProject
/// refuses
PROJECTFILE_EXPORT std::string writeProject(const ProjectRecord& project);

/// The project that a text describes.
/// \throws ProjectFileError when it is none, is of a later version, or contradicts itself: a number or an internal name
/// twice, a number out of range, an object in the database without its material or the other way round
PROJECTFILE_EXPORT ProjectRecord readProject(const std::string& text);

/// Whether a JSON document says of itself that it is a project file, whatever else may be wrong with it.
PROJECTFILE_EXPORT bool isProject(const Json::Value& document);

} // namespace projectfile
