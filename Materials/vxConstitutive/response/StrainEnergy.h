#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Curve.h"
#include "vxConstitutive/response/Langevin.h"

namespace vxConstitutive {

/// The derivatives of a strain energy by the first and second invariant, in Pa.
struct EnergySlopes
{
    double w1 = 0.0;
    double w2 = 0.0;
    double w11 = 0.0;
    double w12 = 0.0;
};

/// The hyperelastic energy (J/m3 = Pa) of a change of shape. It depends on
///
///     I1 = l1^2 + l2^2 + l3^2     I2 = l1^-2 + l2^-2 + l3^-2
///
/// where l1, l2, l3 are the principal stretches divided by the cube root of the volume ratio, so that l1 l2 l3 = 1.
class VXCONSTITUTIVE_EXPORT StrainEnergy
{
public:
    /// W = C10 (I1 - 3) + C01 (I2 - 3) + C11 (I1 - 3)(I2 - 3)
    ///
    /// Constants in Pa. Neo-Hookean: C01 = C11 = 0. Mooney-Rivlin with two constants: C11 = 0. The initial shear
    /// modulus is mu0 = 2 (C10 + C01). Valid for rubber up to a stretch of 1.5 (Neo-Hookean) or 2 to 3 (Mooney-Rivlin).
    ///
    /// Sources: M. Mooney, "A theory of large elastic deformation", Journal of Applied Physics 11 (1940), 582-592;
    /// R. S. Rivlin, "Large elastic deformations of isotropic materials. IV", Philosophical Transactions of the Royal
    /// Society A 241 (1948), 379-397; A. G. James, A. Green, G. M. Simpson, "Strain energy functions of rubber. I",
    /// Journal of Applied Polymer Science 19 (1975), 2033-2058 (the term with C11).
    static StrainEnergy mooneyRivlin(double c10, double c01 = 0.0, double c11 = 0.0);

    /// Arruda-Boyce: eight chains from the centre of a cube to its corners. Solvers compute a series of five terms:
    ///
    ///     W = mu [ 1/2 (I1 - 3) + 1/(20 lm^2) (I1^2 - 9) + 11/(1050 lm^4) (I1^3 - 27)
    ///              + 19/(7000 lm^6) (I1^4 - 81) + 519/(673750 lm^8) (I1^5 - 243) ]
    ///
    /// which approximates the inverse Langevin function:
    ///
    ///     dW/dI1 = mu/6 (1/x) InverseLangevin(x)     x = sqrt(I1/3) / lm
    ///
    /// mu (Pa) is the factor of the series, lm > 1 the limiting stretch of a chain. The initial shear modulus is
    /// mu0 = mu (1 + 3/(5 lm^2) + 99/(175 lm^4) + 513/(875 lm^6) + 42039/(67375 lm^8)), not mu. The series has no limit at
    /// x = 1. It is 0.5 % too low at x = 0.6, 10 % at 0.8 and 34 % at 0.9. With the inverse function, slopes are NaN from x = 1
    /// on.
    ///
    /// Source: E. M. Arruda, M. C. Boyce, "A three-dimensional constitutive model for the large stretch behavior of
    /// rubber elastic materials", Journal of the Mechanics and Physics of Solids 41 (1993), 389-412.
    static StrainEnergy arrudaBoyce(double mu, double limitingStretch,
                                    ChainStatistics chains = ChainStatistics::FiveTermSeries);

    /// Returns dW/dI1 of the five terms by mu as a function of I1/lm^2, and its derivative.
    static ValueAndSlope fiveTermSlope(double invariantByLimit);

    EnergySlopes slopes(double i1, double i2) const;

    /// Returns the shear modulus at stretch 1, in Pa.
    double initialShearModulus() const;

    /// Returns whether the energy is known to be convex in the logarithms of the stretches, hence stable by Drucker's criterion in
    /// each state of constant volume. The invariants are sums of exponentials, which are convex; so is a rising convex function
    /// of one of them.
    bool isConvex() const;

    /// Returns x of the chains at a first invariant; 0 for energies without chains.
    double partOfLimit(double i1) const;

private:
    enum class Form
    {
        Polynomial,
        Series,
        Langevin
    };

    EnergySlopes seriesSlopes(double i1) const;
    EnergySlopes langevinSlopes(double i1) const;

    Form m_form = Form::Polynomial;
    double m_c10 = 0.0;
    double m_c01 = 0.0;
    double m_c11 = 0.0;
    double m_mu = 0.0;
    double m_limit = 0.0;
};

/// The hyperelastic energy of a change of volume with the ratio J.
class VXCONSTITUTIVE_EXPORT VolumetricEnergy
{
public:
    enum class Form
    {
        Quadratic,  ///< U = (J - 1)^2 / D1, with Neo-Hookean and Mooney-Rivlin
        Logarithmic ///< U = ((J^2 - 1)/2 - ln J) / D1, with Arruda-Boyce
    };

    /// `d1` is in 1/Pa. Both forms have the initial bulk modulus K0 = 2/D1. The material is incompressible unless D1 is greater
    /// than 0.
    ///
    /// Sources: the manuals of the common keyword solvers, CalculiX among them, for both forms.
    VolumetricEnergy(Form form, double d1) : m_form(form), m_d1(d1) {}

    bool isIncompressible() const { return !(m_d1 > 0.0); }
    double initialBulkModulus() const; ///< Pa; infinite if incompressible

    /// Returns the mean Kirchhoff stress J dU/dJ in Pa and its derivative by ln J.
    ValueAndSlope kirchhoffStress(double logVolumeRatio) const;

private:
    Form m_form;
    double m_d1;
};

} // namespace vxConstitutive
