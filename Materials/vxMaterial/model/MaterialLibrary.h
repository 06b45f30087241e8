#pragma once

#include "vxMaterial/model/Material.h"
#include "vxMaterial/model/ModelExport.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace vxMat {

/// One built-in material: the value that selects it and a function that makes it.
struct LibraryEntry
{
    eMaterialType type;
    std::unique_ptr<MaterialBase> (*create)();
};

/// Returns the 26 built-in materials in the order in which a database makes them. Listings use getLibraryPosition.
VXMAT_MODEL_EXPORT const std::vector<LibraryEntry>& libraryEntries();

/// Returns the position of a built-in material in listings, from 0: by group, and in each group with the basic
/// materials first. Returns the number of built-in materials, 26, if the value selects none.
VXMAT_MODEL_EXPORT std::size_t getLibraryPosition(eMaterialType type);

/// Makes a built-in material; returns null if the value selects none.
VXMAT_MODEL_EXPORT std::unique_ptr<MaterialBase> createLibraryMaterial(eMaterialType type);

/// Returns the name of a library group (MaterialBase::libraryGroup) in listings, "Nonlinear Materials" for 2; the empty
/// text if no library page shows the group. 0, the group of the user's materials, has the name of group 1.
VXMAT_MODEL_EXPORT const char* getLibraryGroupName(std::int32_t libraryGroup);

namespace detail {

/// Sets name, library group and properties of a built-in material.
VXMAT_MODEL_EXPORT void fillFromLibrary(MaterialBase& material, eMaterialType type);

} // namespace detail

/// A built-in material. Its values are defaults to start from, not reference data: the copper alloy has the
/// conductivities of aluminium, the elastomers have the density of steel. The values are in the units of the catalogue,
/// except in the four examples, whose moduli and stresses (206900, 450 ...) are far from SI values. The id is 0.
template <eMaterialType Type>
class VXMAT_MODEL_EXPORT LibraryMaterial : public MaterialBase
{
public:
    LibraryMaterial() { detail::fillFromLibrary(*this, Type); }
};

// Linear materials
using StructuralSteel = LibraryMaterial<eMaterialType::StructuralSteel>;
using StainlessSteel = LibraryMaterial<eMaterialType::StainlessSteel>;
using AluminumAlloy = LibraryMaterial<eMaterialType::AluminumAlloy>;
using Concrete = LibraryMaterial<eMaterialType::Concrete>;
using CopperAlloy = LibraryMaterial<eMaterialType::CopperAlloy>;
using CastIron = LibraryMaterial<eMaterialType::CastIron>;
using TitaniumBeta21S = LibraryMaterial<eMaterialType::TitaniumBeta21S>;

// Nonlinear materials: Mises plasticity with bilinear hardening
using StructuralSteelNL = LibraryMaterial<eMaterialType::StructuralSteelNL>;
using StainlessSteelNL = LibraryMaterial<eMaterialType::StainlessSteelNL>;
using AluminumAlloyNL = LibraryMaterial<eMaterialType::AluminumAlloyNL>;
using CopperAlloyNL = LibraryMaterial<eMaterialType::CopperAlloyNL>;
using TitaniumAlloyNL = LibraryMaterial<eMaterialType::TitaniumAlloyNL>;

// Examples of plasticity, visco-elasticity and creep
using PlasticMaterial1 = LibraryMaterial<eMaterialType::PlasticMaterial1>;
using PlasticMaterial2 = LibraryMaterial<eMaterialType::PlasticMaterial2>;
using ViscoElasticMaterial1 = LibraryMaterial<eMaterialType::ViscoElasticMaterial1>;
using CreepMaterial1 = LibraryMaterial<eMaterialType::CreepMaterial1>;

// Hyperelastic materials
using Elastomer1 = LibraryMaterial<eMaterialType::Elastomer1>;
using Elastomer2 = LibraryMaterial<eMaterialType::Elastomer2>;
using Elastomer3 = LibraryMaterial<eMaterialType::Elastomer3>;
using NeopreneRubber = LibraryMaterial<eMaterialType::NeopreneRubber>;

// Electromagnetic and acoustic materials
using EMMaterial1 = LibraryMaterial<eMaterialType::EMMaterial1>;
using EMMaterial2 = LibraryMaterial<eMaterialType::EMMaterial2>;
using AcousticMaterial1 = LibraryMaterial<eMaterialType::AcousticMaterial1>;
using AcousticMaterial2 = LibraryMaterial<eMaterialType::AcousticMaterial2>;

// Fluids
using Air = LibraryMaterial<eMaterialType::Air>;
using Water = LibraryMaterial<eMaterialType::Water>;

} // namespace vxMat
