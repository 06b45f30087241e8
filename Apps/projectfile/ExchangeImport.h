#pragma once

#include "projectfile/ContentError.h"
#include "projectfile/ProjectFile.h"
#include "projectfile/ProjectFileExport.h"
#include "vxMaterial/model/Material.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace projectfile {

/// A material as an object of a project is to hold it.
struct PROJECTFILE_EXPORT ImportedMaterial
{
    std::uint32_t objectId = 0;                    ///< no other material has it; never 0
    std::string label;                             ///< what the user sees; never empty
    std::unique_ptr<vxMat::MaterialBase> material; ///< never null
};

/// The materials of an exchange document, made complete again.
struct PROJECTFILE_EXPORT ImportedMaterials
{
    std::vector<ImportedMaterial> materials; ///< by objectId
    /// What the user must look after, a sentence each, in the user's language: what did not travel and is not known,
    /// and what the document says twice or not at all. A sentence names the material and, if it is about a property,
    /// the id of the property.
    std::vector<std::string> doubts;
};

/// Where the numbers of imported materials come from.
enum class Numbering
{
    OfDocument, ///< the document's, as far as objects can have them
    Anew,       ///< 1, 2, ... in the document's order, for a caller that gives them other numbers
};

/// Turns the text of a material document ("proj_type" 2) into complete materials. Comments are accepted.
///
/// Documents carry id, key, name and number of each property. What did not travel comes from the catalogue of
/// quantities if the id is known: unit, description and category, a name or key that is empty, and of a quantity that
/// takes words the first of them, which is doubted. Lists stay empty and are doubted. A property that the catalogue
/// does not know keeps what travelled, and is doubted. A name or key that differs from the catalogue's stays.
///
/// A material keeps its number and has its name as label. A number that no object can have (0, or none at all) is
/// replaced by the smallest that is free. So are numbers that repeat: the last material keeps its own, as it does where
/// readers lose the others.
/// 	hrows ContentError if the text is not a material document, or a member is of a kind that cannot be read. Members
/// are named by their path, "$.material[2].Props[0].prop_value".
PROJECTFILE_EXPORT ImportedMaterials importExchange(std::string_view text, Numbering numbering = Numbering::OfDocument);

/// Returns a project of the name with these materials, as the host makes them: its record, and an object for each. The
/// materials move into it.
///
///     auto imported = projectfile::importExchange(text);
///     const std::string project = writeProject(makeProject("Steels", std::move(imported.materials)));
PROJECTFILE_EXPORT ProjectRecord makeProject(const std::string& name, std::vector<ImportedMaterial> materials);

} // namespace projectfile
