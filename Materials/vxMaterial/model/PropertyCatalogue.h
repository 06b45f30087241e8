#pragma once

#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/ModelExport.h"
#include "vxMaterial/model/PropertyId.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vxMat {

inline constexpr std::size_t catalogueSize = 36;

/// One quantity of the catalogue: its metadata, and a function that makes a property of it.
struct PropertyRecord
{
    std::int32_t id;                               ///< PropertyId
    const char* name;                              ///< the name that the user sees
    const char* key;                               ///< short name in documents
    const char* unit;                              ///< "-" for a quantity without a unit
    const char* description;                       ///< a hint for the user; empty for a quantity without one
    ePropertyCategory category;                    ///< page of the editor
    ValueKind kind;                                ///< form of the value; getValueKind returns the form of typed text
    double defaultNumber;                          ///< of a number or switch; the only element of a list; 0 for a word
    std::unique_ptr<MaterialProperty> (*create)(); ///< makes a property of the quantity's class, with its default
};

/// Returns the 36 quantities in the order of the catalogue, grouped by physics. Tables, lists and documents show
/// quantities in this order.
VXMAT_MODEL_EXPORT const std::array<PropertyRecord, catalogueSize>& propertyRecords();

/// Returns the record of a quantity; null if the catalogue does not have the id.
VXMAT_MODEL_EXPORT const PropertyRecord* findPropertyRecord(std::int32_t id);

/// Returns the position of a quantity in the catalogue, from 0; catalogueSize if the catalogue does not have the id.
VXMAT_MODEL_EXPORT std::size_t getCataloguePosition(std::int32_t id);

/// Returns the words that a quantity takes, in the order of its description, the default first; an empty list if the
/// value of the quantity is not a word. Materials may spell them in capitals, since the solver cards ignore the case.
VXMAT_MODEL_EXPORT const std::vector<std::string>& getAllowedWords(std::int32_t id);

namespace detail {

/// Sets name, key, unit, description, category and id, in this order, from the quantity's record. The description stays
/// unchanged if the quantity has none.
VXMAT_MODEL_EXPORT void describe(MaterialProperty& property, std::int32_t id);

} // namespace detail

// The classes of the quantities. Id is a PropertyId of the kind of the class.

/// A quantity whose value is one number. All classes of quantities have the same constructors: the default constructor
/// stores the catalogue's default, the second one the given value; both call initProperty, which sets the metadata.
template <std::int32_t Id>
class VXMAT_MODEL_EXPORT NumberProperty : public MaterialProperty
{
public:
    NumberProperty() : NumberProperty(findPropertyRecord(Id)->defaultNumber) {}
    explicit NumberProperty(double number)
    {
        NumberProperty::initProperty();
        value = number;
    }
    void initProperty() override { detail::describe(*this, Id); }
};

/// A quantity whose presence switches a material model on. It takes no value.
template <std::int32_t Id>
class VXMAT_MODEL_EXPORT SwitchProperty : public MaterialProperty
{
public:
    SwitchProperty()
    {
        SwitchProperty::initProperty();
        value = findPropertyRecord(Id)->defaultNumber;
    }
    void initProperty() override { detail::describe(*this, Id); }
};

/// A quantity whose value is a word. The class stores any word; the rules of PropertyRules.h accept the words of
/// getAllowedWords.
template <std::int32_t Id>
class VXMAT_MODEL_EXPORT WordProperty : public MaterialProperty
{
public:
    WordProperty() : WordProperty(getAllowedWords(Id).front().c_str()) {}
    explicit WordProperty(const char* word) // must not be null
    {
        WordProperty::initProperty();
        text = word;
    }
    void initProperty() override { detail::describe(*this, Id); }

    /// Returns the allowed words in the order of the description.
    std::vector<std::string> getOptions() const { return getAllowedWords(Id); }
};

/// A quantity whose value is a list of numbers.
template <std::int32_t Id>
class VXMAT_MODEL_EXPORT ListProperty : public MaterialProperty
{
public:
    ListProperty() : ListProperty({findPropertyRecord(Id)->defaultNumber}) {}
    explicit ListProperty(const std::vector<double>& numbers)
    {
        ListProperty::initProperty();
        values = numbers;
    }
    void initProperty() override { detail::describe(*this, Id); }
};

// Mechanics and fluids

/// Mass density rho: mass per volume, kg/m3, above 0.
using Density = NumberProperty<PropertyId::Density>;
/// Young's modulus E: stress over strain in uniaxial tension, sigma = E eps; Pa, above 0.
using YoungsModulus = NumberProperty<PropertyId::YoungsModulus>;
/// Poisson's ratio nu: transverse over axial strain; no unit, accepted from 0.001 to 0.499. Towards 0.5 the material
/// becomes incompressible and the elasticity matrix singular.
using PoissonsRatio = NumberProperty<PropertyId::PoissonsRatio>;
/// Dynamic viscosity: shear stress over shear rate of a Newtonian fluid; Pa.s.
using DynamicViscosity = NumberProperty<PropertyId::DynamicViscosity>;
/// Switch: linear isotropic elasticity by E and nu. Excludes the hyperelastic models. Its catalogue default is the
/// largest double, which is also the value in every library material that has the switch.
using IsotropicElasticity = SwitchProperty<PropertyId::IsotropicElasticity>;

// Hyperelasticity: strain energy W of the invariants I1, I2 of the isochoric strain and of the volume ratio J

/// Switch: W = C10 (I1 - 3) + (J - 1)^2 / D1.
using NeoHooke = NumberProperty<PropertyId::NeoHooke>;
/// Switch: W = C10 (I1 - 3) + C01 (I2 - 3) + (J - 1)^2 / D1.
using MooneyRivlin = NumberProperty<PropertyId::MooneyRivlin>;
/// Switch: the eight-chain network model by mu, the limiting stretch and D1 (Arruda and Boyce, J. Mech. Phys. Solids
/// 41, 1993).
using ArrudaBoyce = NumberProperty<PropertyId::ArrudaBoyce>;
/// mu of the eight-chain model: its initial shear modulus; Pa.
using InitialShearModulusMu = NumberProperty<PropertyId::InitialShearModulusMu>;
/// D1: compressibility, 2 over the initial bulk modulus; 1/Pa.
using IncompressibilityParameterD1 = NumberProperty<PropertyId::IncompressibilityParameterD1>;
/// C10: factor of I1 - 3; Pa.
using MaterialConstantC10 = NumberProperty<PropertyId::MaterialConstantC10>;
/// C01: factor of I2 - 3; Pa.
using MaterialConstantC01 = NumberProperty<PropertyId::MaterialConstantC01>;
/// C11: factor of (I1 - 3)(I2 - 3); Pa.
using MaterialConstantC11 = NumberProperty<PropertyId::MaterialConstantC11>;
/// The stretch at which the chains of the eight-chain model are fully extended. It is a ratio; its unit text "Pa" is
/// kept because existing documents have it.
using LimitingNetworkStretch = NumberProperty<PropertyId::LimitingNetworkStretch>;

// Plasticity. Its stresses are in the unit of the elastic moduli; the catalogue states none.

/// Switch: plasticity by yield type and hardening type.
using Plasticity = SwitchProperty<PropertyId::Plasticity>;
/// The yield criterion: Mises, Mohr-Coulomb or Drucker-Prager.
using PlasticYieldType = WordProperty<PropertyId::PlasticYieldType>;
/// Viscosity of the pressure-dependent criteria.
using PlasticViscosity = NumberProperty<PropertyId::PlasticViscosity>;
/// Internal frictional angle of the pressure-dependent criteria; degrees.
using PlasticFAI = NumberProperty<PropertyId::PlasticFAI>;
/// Hardening factor: slope of yield stress over plastic strain in bilinear hardening.
using PlasticHardeningFactor = NumberProperty<PropertyId::PlasticHardeningFactor>;
/// The hardening law: Bilinear, Multilinear, Swift, Ramberg-Osgood, Kinematic or Combined.
using PlasticHardeningType = WordProperty<PropertyId::PlasticHardeningType>;
/// Yield stresses of multilinear hardening, one for each plastic strain.
using PlasticYieldStress = ListProperty<PropertyId::PlasticYieldStress>;
/// Plastic strains of multilinear hardening, one for each yield stress, the first 0.
using PlasticStrain = ListProperty<PropertyId::PlasticStrain>;
/// Initial yield stress of bilinear hardening.
using PlasticInitialYieldStress = NumberProperty<PropertyId::PlasticInitialYieldStress>;

// Visco-elasticity: one term of a Prony series, G(t) / G(0) = 1 - g (1 - exp(-t / tau))

/// Switch: visco-elasticity.
using ViscoElasticity = NumberProperty<PropertyId::ViscoElasticity>;
/// g: the share of the shear modulus that relaxes.
using ShearRelaxationModulus = NumberProperty<PropertyId::ShearRelaxationModulus>;
/// tau: relaxation time.
using RelaxationTime = NumberProperty<PropertyId::RelaxationTime>;

// Creep: Norton's law with time hardening, strain rate = A sigma^N t^M

/// Switch: creep.
using Creep = NumberProperty<PropertyId::Creep>;
/// A: factor of the creep law.
using CreepModulusA = NumberProperty<PropertyId::CreepModulusA>;
/// N: exponent of the stress.
using CreepModulusN = NumberProperty<PropertyId::CreepModulusN>;
/// M: exponent of the time.
using CreepModulusM = NumberProperty<PropertyId::CreepModulusM>;

// Heat

/// Specific heat capacity: heat per mass and temperature; J/(kg*K).
using SpecificHeat = NumberProperty<PropertyId::SpecificHeat>;
/// Thermal conductivity k of Fourier's law q = -k grad T; W/(m*K).
using ThermalConductivity = NumberProperty<PropertyId::ThermalConductivity>;

// Electromagnetics

/// Electrical conductivity sigma of Ohm's law j = sigma E. The unit text "1/(Wm)" means 1/(Ohm m).
using ElectricalConductivity = NumberProperty<PropertyId::ElectricalConductivity>;
/// Relative permeability mu_r: permeability over the permeability of vacuum; no unit.
using RelativePermeability = NumberProperty<PropertyId::RelativePermeability>;

/// Relative permittivity epsilon_r: permittivity over the permittivity of vacuum; no unit. Unlike the other classes it
/// sets its metadata in its constructors: initProperty does nothing.
class VXMAT_MODEL_EXPORT RelativePermittivity : public MaterialProperty
{
public:
    RelativePermittivity();
    explicit RelativePermittivity(double number);
};

// Acoustics

/// Speed of sound; m/s.
using SpeedOfSound = NumberProperty<PropertyId::SpeedOfSound>;

} // namespace vxMat
