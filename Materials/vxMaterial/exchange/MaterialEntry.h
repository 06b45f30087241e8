#pragma once

#include "vxMaterial/exchange/ExchangeExport.h"
#include "vxMaterial/model/Material.h"

#include <cstdint>
#include <memory>
#include <string>

namespace vxCAE {

/// The material model that a material uses: MaterialEntry::kind. The solver relies on the numbers.
struct MaterialKind
{
    enum : std::int32_t
    {
        Linear = 0,
        CreepOrViscous = 2, ///< counts as creep or viscous; classifyKind never sets it
        ArrudaBoyce = 11,
        Plastic = 12,
        MooneyRivlin = 15,
        NeoHooke = 16,
        ViscoElastic = 20,
        Creep = 22,
    };
};

/// A material in the form for the solver, with its model kind and its solver cards. The entry owns the material.
///
/// The cards are the solver's text form of nonlinear and thermal data. No operation fails: a model that does not apply
/// gives the empty text, and a missing value gives one of the messages below in place of the data. Messages begin with
/// "Invalid" and end with a line feed. The writer of solver input decides whether to use such a card. Numbers have six
/// significant digits unless noted otherwise.
class VXCAE_EXPORT MaterialEntry
{
public:
    /// A number of a material with a flag for its presence; 0.0 if the material does not have it.
    struct FoundValue
    {
        double value = 0.0;
        bool found = false;
    };

    MaterialEntry();

    std::int32_t getId() const;
    void setId(std::int32_t id);
    const char* getName() const;
    void setName(const char* name); ///< not null
    std::string getPropertyText(std::int32_t propertyId) const;

    /// Sets `kind` by the first model switch that the material has, in this order: plasticity, Mooney-Rivlin,
    /// Arruda-Boyce, Neo-Hooke, visco-elasticity, creep. Returns false, with the linear kind, if it has none.
    bool classifyKind();

    FoundValue getDensity() const;
    /// Returns whether the material has all of density, specific heat and thermal conductivity.
    bool hasThermalData() const;

    /// Returns Young's modulus and Poisson's ratio with six decimals and without a line end,
    /// " 200000000000.000000, 0.300000"; if one is missing, "Invalid young_modulus or poisson_ratio.\n".
    std::string getElasticLine() const;

    /// Returns `number` in fixed notation with six decimals, as in the elasticity line.
    static std::string formatReal(double number);

    /// Returns the plasticity card, for the plastic kind and the yield and hardening types that the solver supports:
    /// - Mises, bilinear (also without a hardening type): initial yield stress and hardening factor, or "Invalid
    ///   dIniYStress and dHFactor\n";
    /// - Mises, multilinear: a line of yield stress and plastic strain for each pair of the two lists. Yield stresses
    ///   without a strain at their position are omitted;
    /// - Drucker-Prager and Mohr-Coulomb, bilinear (also without a hardening type): viscosity, friction angle and
    ///   hardening factor, or "Invalid dViscosity, dFAI, and dHFactor.\n";
    /// - Drucker-Prager and Mohr-Coulomb, multilinear: friction angle, then plastic strain and viscosity line by line
    ///   under a header that contains MISES, or "Invalid dFAI and dViscosity.\n". The solver expects this form.
    ///
    /// The comparison of words ignores case.
    std::string getPlasticityCard() const;

    /// Returns the card of the visco-elastic kind: shear relaxation modulus and relaxation time, or "Invalid
    /// dShearRelaxation or dRelaxationTime.\n".
    std::string getViscoElasticCard() const;

    /// Returns the card of the creep kind: A, N and M of Norton's law, or "Invalid dModulusA, dModulusN, or
    /// dModulusM.\n".
    std::string getCreepCard() const;

    // Tables over temperature: the constant value at 0 and at 1e+06. Materials of every kind have them.
    std::string getDensityTable() const;             ///< a missing density is written as 0
    std::string getSpecificHeatTable() const;        ///< "Invalid dSpecificHeat.\n" if it is missing
    std::string getThermalConductivityTable() const; ///< "Invalid dThermalConduct.\n" if it is missing

    std::int32_t kind = MaterialKind::Linear;
    std::unique_ptr<vxMat::CMaterial> material; ///< never null, unless its owner moves it away
};

} // namespace vxCAE
