#include "data/MeasureConversion.h"

#include <cmath>

namespace vxConstitutive {

namespace {

/// Returns the ratio of true to nominal stress at constant volume.
double trueByNominal(Mode mode, double abscissa)
{
    if (mode == Mode::Tensile)
        return 1.0 + abscissa;
    const bool stretched = mode == Mode::Uniaxial || mode == Mode::Equibiaxial || mode == Mode::Planar;
    return stretched ? abscissa : 1.0;
}

} // namespace

double canonicalAbscissa(Mode mode, Measure measure, double value)
{
    if (mode == Mode::Tensile && measure == Measure::Stretch)
        return value - 1.0;
    if (mode == Mode::Tensile && measure == Measure::TrueStrain)
        return std::expm1(value);
    if (mode == Mode::Tensile)
        return value;
    if (measure == Measure::EngineeringStrain || measure == Measure::VolumetricStrain)
        return 1.0 + value;
    return measure == Measure::TrueStrain ? std::exp(value) : value;
}

double measuredAbscissa(Mode mode, Measure measure, double abscissa)
{
    if (mode == Mode::Tensile && measure == Measure::Stretch)
        return abscissa + 1.0;
    if (mode == Mode::Tensile && measure == Measure::TrueStrain)
        return std::log1p(abscissa);
    if (mode == Mode::Tensile)
        return abscissa;
    if (measure == Measure::EngineeringStrain || measure == Measure::VolumetricStrain)
        return abscissa - 1.0;
    return measure == Measure::TrueStrain ? std::log(abscissa) : abscissa;
}

double canonicalOrdinate(Mode mode, Measure measure, double value, double abscissa)
{
    if (measure == Measure::Pressure)
        return -value;
    return measure == Measure::TrueStress ? value / trueByNominal(mode, abscissa) : value;
}

double measuredOrdinate(Mode mode, Measure measure, double ordinate, double abscissa)
{
    if (measure == Measure::Pressure)
        return -ordinate;
    return measure == Measure::TrueStress ? ordinate * trueByNominal(mode, abscissa) : ordinate;
}

} // namespace vxConstitutive
