#pragma once

#include "projectfile/ProjectFile.h"
#include "projectfile/ProjectFileExport.h"
#include "vxMaterial/model/Material.h"

#include <json/value.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace projectfile {

/// A document that is no material document, and what is wrong with it: the message names the member by its path
/// ("$.material[2].Props[0].prop_value"), but not the file, which the caller knows. It is in the user's language.
class PROJECTFILE_EXPORT ImportError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
    ~ImportError() override;
};

/// A material as an object of a project is to hold it.
struct PROJECTFILE_EXPORT ImportedMaterial
{
    std::uint32_t objectId = 0;                    ///< no other one has it; never 0
    std::string label;                             ///< what the user sees; never empty
    std::unique_ptr<vxMat::MaterialBase> material; ///< never null
};

/// The materials of an exchange document, made complete again.
struct PROJECTFILE_EXPORT ImportedMaterials
{
    std::vector<ImportedMaterial> materials; ///< by objectId
    /// What the user has to look after, a sentence each that names the material and, where it is one of a property,
    /// the property's id, in the user's language: what did not travel and is not known, and what the document says
    /// twice or not at all.
    std::vector<std::string> doubts;
};

/// Where the numbers of imported materials come from.
enum class Numbering
{
    OfDocument, ///< the document's, as far as objects can have them
    Anew,       ///< 1, 2, ... in the document's order, for a caller who gives them others
};

/// Turns a material document ("proj_type" 2) into complete materials.
///
/// Documents carry of each property id, key, name and number. What did not travel comes from the catalogue of
/// quantities where the id is known: unit, description and category, a name or key that is empty, and of a quantity
/// that takes words the first of them, which is doubted. Lists stay empty and are doubted. A property that the
/// catalogue does not know keeps what travelled, and is doubted. A name or key that is not the catalogue's stays.
///
/// A material keeps its number and has its name as label. A number that no object can have (0, or none at all) is
/// replaced by the smallest that is free. So are numbers that repeat: the last material keeps its own, as it does where
/// readers lose the others.
/// \throws ImportError when the document is none of materials, or a member is of a kind that cannot be read
PROJECTFILE_EXPORT ImportedMaterials importExchange(const Json::Value& document,
                                                    Numbering numbering = Numbering::OfDocument);

/// A project of the name with these materials, as the host makes them: its record, and an object for each. The
/// materials move into it.
///
///     auto imported = projectfile::importExchange(document);
///     const std::string text = writeProject(makeProject("Steels", std::move(imported.materials)));
PROJECTFILE_EXPORT ProjectRecord makeProject(const std::string& name, std::vector<ImportedMaterial> materials);

} // namespace projectfile
