#pragma once

#include "vxConstitutive/response/HyperelasticModel.h"

namespace vxtest {

/// Return the constants of a hyperelastic material: stresses in Pa, D1 in 1/Pa and 0 for an incompressible material.
inline vxConstitutive::HyperelasticConstants neoHooke(double c10, double d1 = 0.0)
{
    vxConstitutive::HyperelasticConstants constants;
    constants.kind = vxConstitutive::ModelKind::NeoHooke;
    constants.c10 = c10;
    constants.d1 = d1;
    return constants;
}

inline vxConstitutive::HyperelasticConstants mooneyRivlin(double c10, double c01, double c11 = 0.0, double d1 = 0.0)
{
    vxConstitutive::HyperelasticConstants constants = neoHooke(c10, d1);
    constants.kind = vxConstitutive::ModelKind::MooneyRivlin;
    constants.c01 = c01;
    constants.c11 = c11;
    return constants;
}

inline vxConstitutive::HyperelasticConstants arrudaBoyce(double mu, double limitingStretch, double d1 = 0.0)
{
    vxConstitutive::HyperelasticConstants constants;
    constants.kind = vxConstitutive::ModelKind::ArrudaBoyce;
    constants.mu = mu;
    constants.limitingStretch = limitingStretch;
    constants.d1 = d1;
    return constants;
}

} // namespace vxtest
