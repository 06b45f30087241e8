#pragma once

#include "vxMaterial/model/Material.h"
#include "vxMaterial/model/ModelExport.h"

#include <cstdint>
#include <string>
#include <vector>

/// The faults of a material. The project tree, the check commands and the programs without windows all use these
/// functions. Only the input check of a material object has stricter rules of its own.
namespace vxMat {

enum class FindingSeverity
{
    Error,   ///< the solver cannot use the material
    Warning, ///< the solver can use it, but a part of it has no effect
};

/// An argument of a finding's message.
struct FindingArgument
{
    enum class Kind
    {
        Text,         ///< a number or a text of the user; the same in every language
        QuantityName, ///< the name of a quantity in the catalogue, which a user interface translates, as it does the others
        Word,         ///< a value of a quantity that takes words
        CardName,     ///< the name of a solver card
    };
    Kind kind;
    std::string text;
};

/// One fault of a material.
struct MaterialFinding
{
    std::int32_t slot; ///< slot of the property to change; 0 if the finding is about the whole material
    FindingSeverity severity;
    const char* message; ///< a sentence, with "%1" and so on for the arguments; to be translated in findingContext
    std::vector<FindingArgument> arguments;
};

/// The translation context of the messages of findings.
inline constexpr const char* findingContext = "vxMat::MaterialFinding";

/// Returns all faults of a material: first the faults of single properties in the order of the catalogue, then the
/// faults of several properties together. The list is empty if there are no faults. It contains
/// - a material without properties,
/// - numbers that are infinite or not a number, and numbers and words that break the rules of PropertyRules.h,
/// - lists without a number, and yield stresses and plastic strains whose numbers differ,
/// - isotropic elasticity together with a hyperelastic model,
/// - a material model that lacks one of its parameters,
/// - properties that the catalogue does not have.
VXMAT_MODEL_EXPORT std::vector<MaterialFinding> checkMaterial(const MaterialBase& material);

/// Returns the message of a finding in English, with its arguments.
VXMAT_MODEL_EXPORT std::string toText(const MaterialFinding& finding);

/// The state of a material.
enum class MaterialState
{
    Empty,        ///< it has no properties
    WithFindings, ///< checkMaterial finds something
    Ready,
};

VXMAT_MODEL_EXPORT MaterialState getMaterialState(const MaterialBase& material);

} // namespace vxMat
