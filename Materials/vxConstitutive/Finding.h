#pragma once

#include "vxConstitutive/ConstitutiveExport.h"

#include <initializer_list>
#include <string>
#include <variant>
#include <vector>

/// What the constants of a material mean: curves of stress and strain, and constants from measured curves.
namespace vxConstitutive {

/// How much a finding matters to the reader of a curve or a fit.
enum class Severity
{
    Note,    ///< worth knowing; the numbers are as they should be
    Warning, ///< the numbers are right, but not what a user may take them for
    Error    ///< numbers are missing or must not be used
};

/// What the library has to say about models, curves, test data and fits. The comment names the arguments in order.
enum class FindingId
{
    // Models of a material
    ConstantMissing,        ///< model, constant
    ConstantNotFinite,      ///< model, constant, value
    ConstantNotPositive,    ///< model, constant, value
    PoissonsRatioOutside,   ///< value
    C10AndMuDiffer,         ///< C10, half of Mu
    D1Zero,                 ///< model
    D1Negative,             ///< model, D1
    FarFromIncompressible,  ///< bulk by shear modulus, Poisson's ratio
    LimitingStretchTooLow,  ///< limiting stretch
    InitialModulusNegative, ///< model, modulus
    InitialModulusDerived,  ///< Mu, initial shear modulus
    HardeningWithoutData,   ///< hardening type
    HardeningUnknown,       ///< hardening type
    YieldTypeUnknown,       ///< yield type
    HardeningFalls,         ///< plastic strain
    HardeningStiff,         ///< hardening modulus, Young's modulus
    TableLengthsDiffer,     ///< stresses, strains
    TableFirstStrain,       ///< first strain
    TableStrainsNotRising,  ///< row, strain
    CohesionMissing,        ///< yield type
    ViscosityAmbiguous,     ///< value
    FrictionMatchMissing,   ///< no argument
    DilationMissing,        ///< yield type
    FrictionAngleOutside,   ///< value
    FrictionAngleRadian,    ///< value
    CreepTimeExponent,      ///< m
    CreepStressExponent,    ///< n
    CreepConstantSmall,     ///< A
    RelaxationRatioOutside, ///< g
    RelaxationRatioModulus, ///< g
    ModulusMissing,         ///< model

    // Curves
    ModeNotOfModel,        ///< mode, model
    AbscissaOutside,       ///< abscissa, first value, number
    ResultNotFinite,       ///< abscissa, first value, number
    UnstableFrom,          ///< mode, abscissa
    SmallStrainExceeded,   ///< strain
    LockingInsideRange,    ///< mode, locking stretch, end of the range
    SeriesFarFromLangevin, ///< abscissa, percent, part
    DrawnIncompressible,   ///< ratio, stretch
    VolumetricNeedsD1,     ///< model
    NeckingAt,             ///< engineering strain, engineering stress
    StressesMissing,       ///< no argument
    PastLastRow,           ///< plastic strain
    NormalisedByCohesion,  ///< yield type
    NormalisedByModulus,   ///< no argument
    NoYieldBeyondApex,     ///< pressure

    // Test data
    NotText,                ///< offset
    NoNumbers,              ///< no argument
    OneColumn,              ///< no argument
    LinesSkipped,           ///< number, first line
    CellsSkipped,           ///< lines, first line
    DecimalCommaUnderstood, ///< no argument
    CommaMayGroupThousands, ///< cell
    ColumnNeeded,           ///< measures
    MeasureNeeded,          ///< column, measures
    UnitNeeded,             ///< column
    UnitUnknown,            ///< column, unit
    StressOfTestNeeded,     ///< no argument
    MeasureAssumed,         ///< column, measure
    ColumnRepeated,         ///< column
    PointsUnsorted,         ///< number
    PointsRepeated,         ///< number
    PointsNegative,         ///< number
    PointsOutside,          ///< number
    AllZero,                ///< test
    NoPoints,               ///< test
    Condensed,              ///< test, points, averages

    // Fits
    DataMissing,             ///< model
    FewPoints,               ///< model, points
    Undetermined,            ///< constant, what is determined
    NoInfluence,             ///< constant
    PoorlyDetermined,        ///< constant, percent
    AtBound,                 ///< constant, bound
    LimitingStretchInfinite, ///< chain stretch
    StabilityCost,           ///< residual, residual without
    StabilityNotReached,     ///< model
    NoMinimum,               ///< model
    Cancelled,               ///< model
    StressFalls,             ///< percent
    CutAtNecking,            ///< engineering strain, points
    ModulusFromCurve,        ///< Young's modulus
    NoElasticPart,           ///< test
    NoPlasticPart,           ///< test
    VolumetricIgnored,       ///< no argument
    RatesIgnored,            ///< no argument
    OneStressOnly,           ///< no argument
    RelaxationTimeOutside,   ///< time, first, last
};

/// A thing worth saying, as a record that a user interface can translate and show.
struct Finding
{
    FindingId id = FindingId::NoNumbers;
    std::vector<std::string> arguments; ///< texts; numbers in SI units with a decimal point
};

/// What is fixed about a finding.
struct FindingRecord
{
    FindingId id;
    const char* key; ///< stable name for machines: "unstable-from"
    Severity severity;
    const char* text; ///< English, the source of translations; "%1" is the first argument
};

/// All records in the order of FindingId.
VXCONSTITUTIVE_EXPORT const std::vector<FindingRecord>& findingRecords();

/// The record of one finding.
VXCONSTITUTIVE_EXPORT const FindingRecord& findingRecord(FindingId id);

/// The English text of a finding with its arguments put in.
VXCONSTITUTIVE_EXPORT std::string describe(const Finding& finding);

/// Returns whether one of the findings is an error.
VXCONSTITUTIVE_EXPORT bool hasError(const std::vector<Finding>& findings);

/// An argument of a finding: a text, or a number that is written with six digits.
using FindingArgument = std::variant<std::string, double>;

/// Makes a finding.
VXCONSTITUTIVE_EXPORT Finding makeFinding(FindingId id, std::initializer_list<FindingArgument> arguments = {});

} // namespace vxConstitutive
