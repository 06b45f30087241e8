#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Curve.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vxConstitutive {

/// The kind of the numbers in a column, for the conversion of its unit.
enum class Dimension
{
    Number, ///< stretch, strain
    Stress, ///< and moduli
    Time,
    Rate ///< 1/time
};

/// Returns the factor from a unit to SI (1, Pa, s, 1/s); nothing if the unit is unknown or of another dimension. The text is
/// UTF-8 without brackets: "MPa", "%", "mm/mm", "1/h". See unitFactor().
using UnitFactor = std::function<std::optional<double>(std::string_view unit, Dimension dimension)>;

/// The quantity that a column was measured as.
enum class Measure
{
    Stretch,
    EngineeringStrain,
    TrueStrain, ///< logarithmic
    VolumeRatio,
    VolumetricStrain, ///< volume ratio - 1
    AmountOfShear,
    PlasticStrain, ///< logarithmic
    NominalStress, ///< engineering
    TrueStress,
    Pressure, ///< positive in compression
    Time,
    CreepStrain,
    StrainRate,
    Modulus
};

/// A column of a file, as the file and the user name it.
struct MeasuredColumn
{
    std::string name; ///< without the unit; empty if the file has none
    std::string unit; ///< "MPa"
    Measure measure = Measure::Stretch;
};

/// The data of a test in SI units. Their meaning depends on the mode:
///
/// | mode | abscissa | ordinate | parameter |
/// |---|---|---|---|
/// | Uniaxial, Equibiaxial, Planar | stretch > 0 | nominal stress, tension positive | |
/// | SimpleShear | amount of shear | shear stress | |
/// | Volumetric | volume ratio > 0 | mean true stress, tension positive | |
/// | Tensile | engineering strain > -1 | engineering stress | |
/// | Plastic | logarithmic plastic strain | true stress | |
/// | Creep | time >= 0 | creep strain | stress |
/// | CreepRate | stress | rate of creep strain | |
/// | Relaxation | time >= 0 | shear modulus | |
struct TestData
{
    std::string name;
    Mode mode = Mode::Uniaxial;
    std::vector<double> abscissas;
    std::vector<double> ordinates; ///< as many as abscissas
    double parameter = 0.0;
    double weight = 1.0; ///< in a fit of several tests; a test is left out unless its weight is greater than 0
    std::optional<MeasuredColumn> abscissaColumn =
        std::nullopt; ///< where the abscissas are from; absent if it is not known
    std::optional<MeasuredColumn> ordinateColumn = std::nullopt; ///< likewise of the ordinates
};

/// Returns whether a point of a test, in the meaning of TestData, is finite and inside the domain of its mode.
VXCONSTITUTIVE_EXPORT bool isInDomain(Mode mode, double abscissa, double ordinate);

} // namespace vxConstitutive
