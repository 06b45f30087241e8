#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxUnits/Message.h"
#include "vxUnits/UnitSystem.h"

#include <initializer_list>
#include <string>
#include <variant>
#include <vector>

/// Curves of the response of materials, and constants fitted to measured curves.
namespace vxConstitutive {

/// The importance of a finding for the reader of a curve or a fit.
enum class Severity
{
    Note,    ///< the numbers are right
    Warning, ///< the numbers are right, but a user may misread them
    Error    ///< numbers are missing or must not be used
};

/// The findings about models, curves, test data and fits. The comments name the arguments in order.
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
    AbscissaOutside,       ///< abscissa, first value, number, mode
    ResultNotFinite,       ///< abscissa, first value, number, mode
    NoEquilibrium,         ///< abscissa, first value, number, mode
    UnstableBelow,         ///< mode, abscissa, quantity of the abscissa
    UnstableFrom,          ///< mode, abscissa, quantity of the abscissa
    SmallStrainExceeded,   ///< strain
    LockingInsideRange,    ///< mode, locking stretch, end of the range
    SeriesFarFromLangevin, ///< abscissa, percent, part
    DrawnIncompressible,   ///< ratio, stretch
    VolumetricNeedsD1,     ///< model
    NeckingAt,             ///< engineering strain, engineering stress
    StressesMissing,       ///< no argument
    CreepStrainLarge,      ///< creep strain, stress
    PastLastRow,           ///< plastic strain
    NormalisedByCohesion,  ///< yield type
    NormalisedByModulus,   ///< no argument
    NoYieldBeyondApex,     ///< pressure
    NoYieldBeyondMultiple, ///< pressure by the cohesion

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
    SeveralStresses,        ///< column, number of stresses
    StressUnitNeeded,       ///< column
    StressNotConstant,      ///< column, most stresses
    StressNotInColumn,      ///< column, stress
    StressDiffers,          ///< column, its stress, the given one
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
    Undetermined,            ///< constant, the determined combination
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
    BoundForm,               ///< text
    BoundUnknown,            ///< symbol, possible symbols
    BoundOrder,              ///< constant
    BoundUnreadable,         ///< constant, reason
    FitKeepsD1,              ///< bulk by shear modulus, Poisson's ratio
    FitContradictsD1,        ///< bulk by shear modulus, Poisson's ratio
    RatesIgnored,            ///< no argument
    OneStressOnly,           ///< no argument
    RelaxationTimeOutside,   ///< time, first, last
    SolverUnavailable,       ///< model, reason
    ModulusDiffers,          ///< Young's modulus of the curve, the given one, percent
    RankedForConstants,      ///< first model, its residual, this residual, its constants, these constants
    RankedForDoubts,         ///< first model, its residual, this residual
};

/// A remark for the user about a model, curve, test or fit. Its text is made from a table, so that a user interface can
/// translate it.
struct Finding
{
    FindingId id = FindingId::NoNumbers;
    std::vector<std::string> arguments; ///< UTF-8; numbers in SI units with a decimal point in any locale
};

/// The fixed properties of a finding.
struct FindingRecord
{
    FindingId id;
    const char* key; ///< "unstable-from"; does not change with the English text
    Severity severity;
    const char* text; ///< English, with the places %1 to %9 for arguments; the source of translations
};

/// Returns all records, in the order of FindingId. Their texts are the list for translators.
VXCONSTITUTIVE_EXPORT const std::vector<FindingRecord>& findingRecords();

/// Returns the record of a finding.
VXCONSTITUTIVE_EXPORT const FindingRecord& findingRecord(FindingId id);

/// Returns the text of a finding with its arguments in their places: in English, or translated. The context is
/// "vxConstitutive::Finding" for the text. Arguments are translated as words (Texts.h), except those that the text has in
/// quotation marks: they are texts of the user. Stresses and times are in the units of `system`.
VXCONSTITUTIVE_EXPORT std::string describe(const Finding& finding, const vxUnits::Translator& translator = {},
                                           const vxUnits::UnitSystem& system = vxUnits::UnitSystem::si());

/// Returns whether one of the findings is an error.
VXCONSTITUTIVE_EXPORT bool hasError(const std::vector<Finding>& findings);

/// An argument of a finding: a text, or a number, which is written with six digits.
using FindingArgument = std::variant<std::string, double>;

/// Returns a finding with these arguments.
VXCONSTITUTIVE_EXPORT Finding makeFinding(FindingId id, std::initializer_list<FindingArgument> arguments = {});

} // namespace vxConstitutive
