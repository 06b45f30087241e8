#pragma once

#include "projectfile/ContentError.h"
#include "projectfile/ProjectFile.h"
#include "projectfile/ProjectFileExport.h"
#include "vxMaterial/model/Material.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace projectfile {

/// A material for an object of a project.
struct PROJECTFILE_EXPORT ImportedMaterial
{
    std::uint32_t objectId = 0;                    ///< unique among the materials; never 0
    std::string label;                             ///< the label for the user; never empty
    std::unique_ptr<vxMat::MaterialBase> material; ///< never null
};

/// The maximum number of doubts in ImportedMaterials. A document may have millions of empty materials, and a message about
/// each of them takes many times as much memory as the material.
inline constexpr std::size_t mostDoubts = 1000;

/// The materials of an exchange document, completed from the catalogue.
struct PROJECTFILE_EXPORT ImportedMaterials
{
    std::vector<ImportedMaterial> materials; ///< by objectId
    /// Messages about data that the user must check, in the user's language: data that the document does not carry and
    /// that the catalogue does not have, and repeated or missing data. A message names the material and, if it is about
    /// a property, the id of the property. If there are more than mostDoubts, one more message says how many are omitted.
    std::vector<std::string> doubts;
};

/// The source of the numbers of imported materials.
enum class Numbering
{
    OfDocument, ///< the numbers in the document, if objects can have them
    Anew,       ///< 1, 2, ... in the order of the document, for a caller that assigns its own numbers
};

/// Turns the text of a material document ("proj_type" 2) into complete materials. Comments are accepted.
///
/// Documents carry the id, key, name and number of each property. Other data comes from the catalogue of quantities if
/// it knows the id: the unit, the description, the category, an empty name or key, and the first allowed word, with a
/// doubt. Lists stay empty, with a doubt. A property that is not in the catalogue keeps the data of the document,
/// with a doubt. A name or key that differs from the catalogue is kept, with a doubt.
///
/// The label of a material is its name. A material keeps its number. A number that no object can have (0, or a missing
/// number) is replaced by the smallest free number, with a doubt. If several materials have the same number, the last
/// one keeps it, because readers of documents keep the last one too.
///
/// \throws ContentError if the text is not a material document, or a member is of the wrong kind. The error names the
/// path of the member, for example "$.material[2].Props[0].prop_value"
PROJECTFILE_EXPORT ImportedMaterials importExchange(std::string_view text, Numbering numbering = Numbering::OfDocument);

/// Returns whether a text is a JSON object with "proj_type" 2, the mark of a material document. Its members may be wrong.
PROJECTFILE_EXPORT bool isMaterialDocument(std::string_view text);

/// Returns a project with this name and an object for each material, with the same database record as a project that
/// the host makes. Moves the materials into the project.
///
///     auto imported = projectfile::importExchange(text);
///     const std::string project = writeProject(makeProject("Steels", std::move(imported.materials)));
PROJECTFILE_EXPORT ProjectRecord makeProject(const std::string& name, std::vector<ImportedMaterial> materials);

} // namespace projectfile
