#pragma once

#include "vxConstitutive/Curve.h"
#include "vxConstitutive/response/StrainEnergy.h"

#include <array>

namespace vxConstitutive {

using Triple = std::array<double, 3>;
using SymmetricTriple = std::array<Triple, 3>;

/// The stresses of a strain energy at principal stretches l1, l2, l3 with l1 l2 l3 = 1: the deviatoric principal Kirchhoff
/// stresses s_i = dW/d(ln l_i), and their derivatives H_ij = ds_i/d(ln l_j). Both depend only on the shape: the sum of the
/// stresses is 0, and so is the sum of each row of the derivatives.
struct PrincipalStress
{
    Triple stress{};
    SymmetricTriple stiffness{};
};

PrincipalStress principalStress(const StrainEnergy& energy, const Triple& stretches);

/// The quadratic form of a stiffness for changes of shape, in an orthonormal basis of the plane e1 + e2 + e3 = 0.
struct ShapeStiffness
{
    double uu = 0.0;
    double uv = 0.0;
    double vv = 0.0;

    double smallestEigenvalue() const;
    double largestEigenvalue() const;
};

ShapeStiffness onChangesOfShape(const SymmetricTriple& stiffness);

/// The principal stretches as functions of the stretch l of a test and its volume ratio J:
/// ln l_i = load_i ln l + free_i ln J. The third direction has no stress.
struct TestPath
{
    Triple load;
    Triple free;

    /// Returns the principal stretches divided by the cube root of the volume ratio.
    Triple shape(double logStretch, double logVolumeRatio) const;
};

/// Returns the path of a uniaxial, equibiaxial or planar test. Simple shear has the path of planar tension with its principal
/// stretch.
const TestPath& testPath(Mode mode);

/// Returns the logarithm of the largest principal stretch in simple shear.
double logStretchOfShear(double amountOfShear);

} // namespace vxConstitutive
