#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Model.h"
#include "vxMaterial/model/Material.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace vxConstitutive {

/// A constant without which a model of a material cannot be drawn.
struct MissingConstant
{
    ModelKind model;
    std::int32_t propertyId; ///< vxMat::PropertyId
};

/// The models that a material holds the constants of.
struct MaterialModels
{
    std::vector<std::unique_ptr<Model>> models;
    std::vector<MissingConstant> missing;
    std::vector<Finding> findings; ///< about the material, those of its models included

    VXCONSTITUTIVE_EXPORT const Model* find(ModelKind kind) const; ///< null if there is none
    VXCONSTITUTIVE_EXPORT const Model*
    find(Mode mode) const; ///< the first model with a response in the mode; null if there is none
};

/// The models of a material, by its switches:
///
///  - isotropic elasticity (31): Young's modulus 5, Poisson's ratio 6
///  - Neo-Hookean (28): C10 26, or half of Mu 23 if there is no C10
///  - Mooney-Rivlin (29): C10 26, C01 27, and C11 128 if present
///  - Arruda-Boyce (30): Mu 23, limiting stretch 127
///  - D1 25 with each of the three; incompressible if it is absent or 0
///  - plasticity (32) of Mises (33), Bilinear (37) or without a word: initial yield stress 41, hardening factor 36; Multilinear: yield
///    stresses 38, plastic strains 39; the elastic constants as above. The other hardening types have no constants in
///    the catalogue, which a finding says
///  - plasticity of Drucker-Prager or Mohr-Coulomb: friction angle 35, and 36 and 34 if present
///  - creep (45): A 46, n 47, m 48
///  - visco-elasticity (42): part that relaxes 43, relaxation time 44; the elastic constants give the shear modulus
///
/// All numbers are in SI units, angles in degrees, whatever unit text the properties carry. Words are compared without
/// regard to case. A constant that is absent is named in `missing`, one that is not finite in `findings`; a model with
/// either is left out. Throws nothing but std::bad_alloc.
VXCONSTITUTIVE_EXPORT MaterialModels modelsOf(const vxMat::MaterialBase& material);

} // namespace vxConstitutive
