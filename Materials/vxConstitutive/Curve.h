#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Finding.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vxConstitutive {

/// The kinds of tests. Each has one abscissa.
enum class Mode
{
    Uniaxial,    ///< tension and compression of a bar; stretch
    Equibiaxial, ///< equal stretch in two directions; stretch
    Planar,      ///< pure shear of a wide strip: one direction is stretched, one is held; stretch
    SimpleShear, ///< planes slide over each other; amount of shear
    Volumetric,  ///< equal stretch in all directions; stretch
    Plastic,     ///< true stress of a metal; plastic strain
    Tensile,     ///< tensile test of a metal; engineering strain
    Yield,       ///< yield surface in the meridian plane; pressure
    Creep,       ///< strain at constant stress; time
    CreepRate,   ///< strain rate; stress
    Relaxation,  ///< shear modulus at constant strain; time
    ShearCreep,  ///< shear compliance at constant stress; time
    Dynamic,     ///< storage and loss modulus in shear; frequency
};

/// The quantity in a column of a curve.
enum class Quantity
{
    // Abscissas
    Stretch,
    AmountOfShear,
    EngineeringStrain,
    PlasticStrain,
    Pressure,
    Time,
    Stress,
    Frequency,

    // Responses
    NominalStress, ///< force by the area before the test
    TrueStress,    ///< force by the area during the test
    NominalShearStress,
    TrueShearStress,
    NormalStressDifference, ///< of simple shear: the stress along the sliding planes less the stress across them
    Slope,                  ///< exact derivative of the first response by the abscissa
    LateralStretch,         ///< in the direction without stress
    VolumeRatio,
    MisesStress,            ///< of a yield surface
    MisesStressCompression, ///< on the meridian of triaxial compression
    MisesStressExtension,   ///< on the meridian of triaxial extension
    MisesStressOuter,       ///< of a cone through the compression meridian
    MisesStressInner,       ///< of a cone through the extension meridian
    MisesStressPlaneStrain, ///< of the cone that yields equally in plane strain
    CreepStrain,
    CreepStrainRate,
    RelaxationModulus,
    CreepCompliance,
    StorageModulus,
    LossModulus,
    LossFactor, ///< loss modulus by storage modulus
};

/// The fixed properties of a quantity.
struct QuantityRecord
{
    Quantity quantity;
    const char* name; ///< English, the source of translations: "nominal stress"
    const char* unit; ///< SI: "Pa"; "1" for a plain number; empty if it depends on the curve
};

/// The fixed properties of a mode.
struct ModeRecord
{
    Mode mode;
    const char* key;  ///< on command lines: "simple-shear"
    const char* name; ///< English, the source of translations: "simple shear"
    Quantity abscissa;
};

/// Returns all modes, in the order of Mode.
VXCONSTITUTIVE_EXPORT const std::vector<ModeRecord>& modeRecords();
VXCONSTITUTIVE_EXPORT const ModeRecord& modeRecord(Mode mode);

/// Returns the mode with a key, in upper or lower case; nothing if there is none.
VXCONSTITUTIVE_EXPORT std::optional<Mode> findMode(std::string_view key);

/// Returns all quantities, in the order of Quantity.
VXCONSTITUTIVE_EXPORT const std::vector<QuantityRecord>& quantityRecords();
VXCONSTITUTIVE_EXPORT const QuantityRecord& quantityRecord(Quantity quantity);

/// An interval on an axis; `from` <= `to`.
struct Range
{
    double from = 0.0;
    double to = 0.0;
};

/// The unit of the values of a column if a constant that the curve needs is not known.
enum class Relative
{
    No,
    ToCohesion,
    ToShearModulus ///< the instantaneous shear modulus
};

/// One column of a curve.
struct Column
{
    Quantity quantity = Quantity::Stretch;
    std::string unit; ///< SI: "Pa", "1/Pa", "1"
    Relative relative = Relative::No;
    std::optional<double> parameter; ///< the stress in Pa of a creep curve; the time in s of a curve of rates
    std::vector<double> values;      ///< NaN if the model has no value
};

/// The response of one model in one mode.
struct Curve
{
    Mode mode = Mode::Uniaxial;
    std::vector<Column> columns; ///< of equal length; the first has the abscissas of the request
    std::vector<Range> unstable; ///< ranges of the abscissa in which the response must not be trusted, in rising order
    std::vector<Finding> findings;

    /// Returns the values of the first column with a quantity; null if there is none.
    VXCONSTITUTIVE_EXPORT const std::vector<double>* find(Quantity quantity) const;
};

/// The change of volume of a hyperelastic or elastic curve.
enum class Compressibility
{
    AsGiven,       ///< with D1 or Poisson's ratio; incompressible if D1 is absent
    Incompressible ///< in spite of D1 or Poisson's ratio
};

/// The columns of a curve.
enum class Detail
{
    Stresses, ///< the abscissa and the measured quantities
    Full      ///< also tangents, lateral stretch and volume ratio
};

/// The law of the chains of the Arruda-Boyce model.
enum class ChainStatistics
{
    FiveTermSeries,  ///< as solvers compute it
    InverseLangevin, ///< the function that the series approximates; infinite at the limiting stretch
};

/// A request for a curve.
struct CurveRequest
{
    Mode mode = Mode::Uniaxial;
    std::vector<double> abscissas; ///< in SI units, in any order; stretches greater than 0
    Compressibility compressibility = Compressibility::AsGiven;
    Detail detail = Detail::Stresses;
    ChainStatistics chains = ChainStatistics::FiveTermSeries;
    std::vector<double> stresses;   ///< Pa; of creep, with one column each
    double time = 1.0;              ///< s; of creep rates
    std::optional<double> cohesion; ///< Pa; of yield surfaces, since the catalogue has no cohesion
};

/// Returns whether a request gives what a finding of the model asks for, such as the cohesion. The finding is then not told.
VXCONSTITUTIVE_EXPORT bool gives(const CurveRequest& request, const Finding& finding);

/// Return `count` values from `from` to `to`, with equal differences or with equal factors. A single value is `from`. Equal
/// factors need bounds of the same sign that are not 0; otherwise the result is empty. The values between the bounds are rounded to
/// 15 digits, or 13 with equal factors: 6 values from 0.5 to 3 include 1.5 and 2.
VXCONSTITUTIVE_EXPORT std::vector<double> evenlySpaced(double from, double to, std::size_t count);
VXCONSTITUTIVE_EXPORT std::vector<double> spacedByFactor(double from, double to, std::size_t count);

/// Returns the name of a column, in English or translated: "nominal stress", "creep strain at 1e+08 Pa", "pressure / cohesion".
VXCONSTITUTIVE_EXPORT std::string columnName(const Column& column, const vxUnits::Translator& translator = {});

} // namespace vxConstitutive
