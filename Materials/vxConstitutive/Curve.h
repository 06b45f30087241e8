#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/Finding.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vxConstitutive {

/// The tests that a material can be put to. Each has one abscissa.
enum class Mode
{
    Uniaxial,    ///< tension and compression of a bar; stretch
    Equibiaxial, ///< two directions stretched alike; stretch
    Planar,      ///< pure shear of a wide strip: one direction stretched, one held; stretch
    SimpleShear, ///< planes slide over each other; amount of shear
    Volumetric,  ///< all directions stretched alike; stretch
    Plastic,     ///< true stress of a metal; plastic strain
    Tensile,     ///< tensile test of a metal; engineering strain
    Yield,       ///< yield surface in the meridian plane; pressure
    Creep,       ///< strain at constant stress; time
    CreepRate,   ///< strain rate; stress
    Relaxation,  ///< shear modulus at constant strain; time
    ShearCreep,  ///< shear compliance at constant stress; time
    Dynamic,     ///< storage and loss modulus in shear; frequency
};

/// What stands in a column of a curve.
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
    NominalStress,          ///< force by the area before the test
    TrueStress,             ///< force by the area during the test
    NominalShearStress,     ///<
    TrueShearStress,        ///<
    NormalStressDifference, ///< of simple shear: along the planes that slide less across them
    Slope,                  ///< derivative of the first response by the abscissa, exact
    LateralStretch,         ///< in the direction without stress
    VolumeRatio,            ///<
    MisesStress,            ///< of a yield surface
    MisesStressCompression, ///< the same on the meridian of triaxial compression
    MisesStressExtension,   ///< the same on the meridian of triaxial extension
    MisesStressOuter,       ///< of a cone through the compression meridian
    MisesStressInner,       ///< of a cone through the extension meridian
    MisesStressPlaneStrain, ///< of a cone that yields alike in plane strain
    CreepStrain,            ///<
    CreepStrainRate,        ///<
    RelaxationModulus,      ///<
    CreepCompliance,        ///<
    StorageModulus,         ///<
    LossModulus,            ///<
    LossFactor,             ///< loss modulus by storage modulus
};

/// What is fixed about a quantity.
struct QuantityRecord
{
    Quantity quantity;
    const char* name; ///< English, the source of translations: "nominal stress"
    const char* unit; ///< SI: "Pa"; "1" for a plain number; empty if it depends on the curve
};

/// What is fixed about a mode.
struct ModeRecord
{
    Mode mode;
    const char* key;   ///< on command lines: "simple-shear"
    const char* name;  ///< English, the source of translations: "simple shear"
    Quantity abscissa; ///<
};

/// All modes in the order of Mode.
VXCONSTITUTIVE_EXPORT const std::vector<ModeRecord>& modeRecords();
VXCONSTITUTIVE_EXPORT const ModeRecord& modeRecord(Mode mode);

/// The mode with a key; absent for an unknown one.
VXCONSTITUTIVE_EXPORT std::optional<Mode> findMode(std::string_view key);

/// All quantities in the order of Quantity.
VXCONSTITUTIVE_EXPORT const std::vector<QuantityRecord>& quantityRecords();
VXCONSTITUTIVE_EXPORT const QuantityRecord& quantityRecord(Quantity quantity);

/// An interval on an axis; `from` <= `to`.
struct Range
{
    double from = 0.0;
    double to = 0.0;
};

/// What the values of a column are multiples of, where a constant that the curve needs is not there.
enum class Relative
{
    No,
    ToCohesion,
    ToShearModulus ///< the shear modulus at once after loading
};

/// One column of a curve.
struct Column
{
    Quantity quantity = Quantity::Stretch;
    std::string unit; ///< SI: "Pa", "1/Pa", "1"
    Relative relative = Relative::No;
    std::optional<double> parameter; ///< the stress in Pa of a creep curve, the time in s of a curve of rates
    std::vector<double> values;      ///< NaN where the model has no value
};

/// The response of one model in one mode.
struct Curve
{
    Mode mode = Mode::Uniaxial;
    std::vector<Column> columns;   ///< all of the same length; the abscissas come first, as they were asked for
    std::vector<Range> unstable;   ///< parts of the abscissa where the response must not be trusted, in rising order
    std::vector<Finding> findings; ///<

    /// The values of the first column of a quantity; null if there is none.
    VXCONSTITUTIVE_EXPORT const std::vector<double>* find(Quantity quantity) const;
};

/// Which volume change a hyperelastic or elastic curve is drawn with.
enum class Compressibility
{
    AsGiven,       ///< with D1 or Poisson's ratio; incompressible if D1 is absent
    Incompressible ///< whatever D1 or Poisson's ratio say
};

/// Which columns a curve has.
enum class Detail
{
    Stresses, ///< the abscissa and what a test measures
    Full      ///< with tangents, lateral stretch and volume ratio
};

/// How the chains of the Arruda-Boyce model resist.
enum class ChainStatistics
{
    FiveTermSeries,  ///< what solvers compute
    InverseLangevin, ///< what the series approximates; infinite at the limiting stretch
};

/// What a curve is asked for.
struct CurveRequest
{
    Mode mode = Mode::Uniaxial;
    std::vector<double> abscissas; ///< in SI units, in any order; stretches greater than 0
    Compressibility compressibility = Compressibility::AsGiven;
    Detail detail = Detail::Stresses;
    ChainStatistics chains = ChainStatistics::FiveTermSeries;
    std::vector<double> stresses;   ///< Pa; of creep: one column each
    double time = 1.0;              ///< s; of creep rates
    std::optional<double> cohesion; ///< Pa; of yield surfaces, for which the catalogue has none
};

/// `count` values from `from` to `to`, both included; evenly spaced, or by equal factors. Empty if `count` is 0; a
/// single value is `from`. Equal factors need bounds of the same sign that are not 0; otherwise the result is empty.
VXCONSTITUTIVE_EXPORT std::vector<double> evenlySpaced(double from, double to, std::size_t count);
VXCONSTITUTIVE_EXPORT std::vector<double> spacedByFactor(double from, double to, std::size_t count);

/// The English name of a column: "nominal stress", "creep strain at 1e+08 Pa", "pressure / cohesion".
VXCONSTITUTIVE_EXPORT std::string columnName(const Column& column);

} // namespace vxConstitutive
