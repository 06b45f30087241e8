#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Model.h"
#include "vxMaterial/model/Material.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace vxConstitutive {

/// A missing constant, without which a model has no curve.
struct MissingConstant
{
    ModelKind model;
    std::int32_t propertyId; ///< vxMat::PropertyId
};

/// The models whose constants a material has.
struct MaterialModels
{
    std::vector<std::unique_ptr<Model>> models;
    std::vector<MissingConstant> missing;
    std::vector<Finding> findings; ///< about the material and its models

    /// Return the first model of a kind, or with a response in a mode; null if there is none.
    VXCONSTITUTIVE_EXPORT const Model* find(ModelKind kind) const;
    VXCONSTITUTIVE_EXPORT const Model* find(Mode mode) const;
};

/// Returns the models of a material, by its switches:
///
///  - isotropic elasticity (31): Young's modulus 5, Poisson's ratio 6
///  - Neo-Hookean (28): C10 26, or half of Mu 23 if there is no C10
///  - Mooney-Rivlin (29): C10 26, C01 27, and C11 128 if present
///  - Arruda-Boyce (30): Mu 23, limiting stretch 127
///  - D1 25 with each of the three; incompressible if it is absent or 0
///  - plasticity (32) of Mises (33) with the hardening type (37) Bilinear or none: initial yield stress 41, hardening factor
///    36. With Multilinear: yield stresses 38, plastic strains 39. The elastic constants as above. The catalogue has no
///    constants for the other hardening types; a finding says so
///  - plasticity of Drucker-Prager or Mohr-Coulomb: friction angle 35, and 36 and 34 if present
///  - creep (45): A 46, n 47, m 48
///  - visco-elasticity (42): relaxing part 43, relaxation time 44; the elastic constants give the shear modulus
///
/// All numbers are in SI units, angles in degrees; unit texts of the properties have no effect. Words are compared without
/// regard to case. A model with a constant that is missing or not finite is left out: `missing` and `findings` have the
/// constant. Throws only std::bad_alloc.
VXCONSTITUTIVE_EXPORT MaterialModels modelsOf(const vxMat::MaterialBase& material);

} // namespace vxConstitutive
