#include "vxConstitutive/Finding.h"

#include "TranslatedText.h"

#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace vxConstitutive {

namespace {

// In the order of FindingId.
constexpr FindingRecord findingTable[]{
    // Models of a material
    {FindingId::ConstantMissing, "constant-missing", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1: the constant \"%2\" is missing; without it the model has no curve.")},
    {FindingId::ConstantNotFinite, "constant-not-finite", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1: the constant \"%2\" is %3; a finite number is needed.")},
    {FindingId::ConstantNotPositive, "constant-not-positive", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1: the constant \"%2\" is %3; it must be greater than 0.")},
    {FindingId::PoissonsRatioOutside, "poissons-ratio-outside", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "Poisson's ratio is %1; it must be greater than -1 and less than 0.5.")},
    {FindingId::C10AndMuDiffer, "c10-and-mu-differ", Severity::Warning,
     QT_TRANSLATE_NOOP(
         "vxConstitutive",
         "The material has a C10 of %1 Pa and a Mu whose half is %2 Pa; the curve uses C10. Remove one of them.")},
    {FindingId::D1Zero, "d1-zero", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "%1: D1 is 0, which is taken as incompressible. Some solvers do the same, others use a bulk "
                       "modulus of 20 times the shear modulus; remove D1 or give it a value.")},
    {FindingId::D1Negative, "d1-negative", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "%1: D1 is %2 1/Pa; a bulk modulus below 0 means nothing. The curve is incompressible.")},
    {FindingId::FarFromIncompressible, "far-from-incompressible", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "The bulk modulus is only %1 times the shear modulus (Poisson's ratio "
                                         "%2), while rubber has some hundred times; check D1.")},
    {FindingId::LimitingStretchTooLow, "limiting-stretch-too-low", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "The limiting stretch is %1; chains at rest have the stretch 1, so it must be greater than 1.")},
    {FindingId::InitialModulusNegative, "initial-modulus-negative", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "%1: the initial shear modulus is %2 Pa; the material is unstable without any load.")},
    {FindingId::InitialModulusDerived, "initial-modulus-derived", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "Mu is the factor of the series, %1 Pa; the initial shear modulus that follows is %2 Pa.")},
    {FindingId::HardeningWithoutData, "hardening-without-data", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "The catalogue has no constants for the hardening type \"%1\", so there "
                                         "is no curve. Bilinear and Multilinear have them.")},
    {FindingId::HardeningUnknown, "hardening-unknown", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "The hardening type \"%1\" is not known. Use Bilinear or Multilinear.")},
    {FindingId::YieldTypeUnknown, "yield-type-unknown", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "The yield type \"%1\" is not known. Use Mises, Mohr-Coulomb or Drucker-Prager.")},
    {FindingId::HardeningFalls, "hardening-falls", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "The stress falls from the plastic strain %1 on; a solver finds no unique solution there.")},
    {FindingId::HardeningStiff, "hardening-stiff", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "The hardening modulus %1 Pa is more than a tenth of Young's modulus %2 "
                                         "Pa; check whether it is the slope against plastic strain.")},
    {FindingId::TableLengthsDiffer, "table-lengths-differ", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "There are %1 yield stresses and %2 plastic strains; those without a partner are left out.")},
    {FindingId::TableFirstStrain, "table-first-strain", Severity::Warning,
     QT_TRANSLATE_NOOP(
         "vxConstitutive",
         "The first plastic strain is %1; a table begins with 0. Some solvers shift it without a message.")},
    {FindingId::TableStrainsNotRising, "table-strains-not-rising", Severity::Error,
     QT_TRANSLATE_NOOP(
         "vxConstitutive",
         "Row %1: the plastic strain %2 is not greater than that of the row before; the row is left out.")},
    {FindingId::CohesionMissing, "cohesion-missing", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1: the catalogue has no cohesion. Give one with the curve, or read the "
                                         "curve in multiples of the cohesion.")},
    {FindingId::ViscosityAmbiguous, "viscosity-ambiguous", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "The plastic viscosity is %1. Solver cards have a cohesion at its place; no curve uses it.")},
    {FindingId::FrictionMatchMissing, "friction-match-missing", Severity::Note,
     QT_TRANSLATE_NOOP(
         "vxConstitutive",
         "Drucker-Prager: the catalogue does not say which cone belongs to the friction angle. The curve shows "
         "three: through the compression meridian, through the extension meridian, and for plane strain.")},
    {FindingId::DilationMissing, "dilation-missing", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1: the catalogue has no dilation angle, which solvers need.")},
    {FindingId::FrictionAngleOutside, "friction-angle-outside", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "The friction angle is %1 degrees; it must be at least 0 and less than 90.")},
    {FindingId::FrictionAngleRadian, "friction-angle-radian", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "The friction angle is taken as %1 degrees. If it is in radians, multiply it by 57.3.")},
    {FindingId::CreepTimeExponent, "creep-time-exponent", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "The time exponent m is %1; the rate form needs -1 < m <= 0. Values from "
                                         "0 to 1 belong to the total form, whose exponent is m + 1.")},
    {FindingId::CreepStressExponent, "creep-stress-exponent", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "The stress exponent n is %1; it must be greater than 0.")},
    {FindingId::CreepConstantSmall, "creep-constant-small", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive", "The creep constant A is %1 in Pa and s. CalculiX takes a value below "
                                         "1e-20 for 1e-20; write its input in MPa.")},
    {FindingId::RelaxationRatioOutside, "relaxation-ratio-outside", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "The part of the shear modulus that relaxes is %1; it must be at least 0 and less than 1.")},
    {FindingId::RelaxationRatioModulus, "relaxation-ratio-modulus", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "The shear relaxation modulus is %1. It is taken as the part of the shear modulus that "
                       "relaxes, which must be less than 1; divide a modulus in Pa by the shear modulus.")},
    {FindingId::ModulusMissing, "modulus-missing", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1: without Young's modulus and Poisson's ratio some curves are missing "
                                         "or are only multiples of a modulus.")},
    // Curves
    {FindingId::ModeNotOfModel, "mode-not-of-model", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "%2 has no response in the mode \"%1\".")},
    {FindingId::AbscissaOutside, "abscissa-outside", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "The model has no value at %3 points; the first has the %1 %2.")},
    {FindingId::ResultNotFinite, "result-not-finite", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "No finite value exists at %3 points; the first has the %1 %2. The constants or the range "
                       "are too large, the chains are at their limit, or there is no equilibrium.")},
    {FindingId::UnstableFrom, "unstable-from", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "In %1 the material is unstable from %2 on by Drucker's criterion; a solver may fail there.")},
    {FindingId::SmallStrainExceeded, "small-strain-exceeded", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "The curve goes to a strain of %1; linear elasticity is meant for strains below 0.05.")},
    {FindingId::LockingInsideRange, "locking-inside-range", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "In %1 the chains reach their limiting stretch at %2, inside the range to "
                                         "%3; the five-term series has no limit there.")},
    {FindingId::SeriesFarFromLangevin, "series-far-from-langevin", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive", "At %1 the chains are at %3 of their limiting stretch; the five-term "
                                         "series is %2 % below the inverse Langevin function.")},
    {FindingId::DrawnIncompressible, "drawn-incompressible", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "The curve is incompressible, but D1 says otherwise: with it the stress "
                                         "differs by a factor of up to %1, at the stretch %2.")},
    {FindingId::VolumetricNeedsD1, "volumetric-needs-d1", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1: an incompressible material has no volumetric response. Give D1 or "
                                         "Poisson's ratio, and do not ask for an incompressible curve.")},
    {FindingId::NeckingAt, "necking-at", Severity::Note,
     QT_TRANSLATE_NOOP(
         "vxConstitutive",
         "The bar necks at the engineering strain %1, at the largest engineering stress %2 Pa (Considere).")},
    {FindingId::StressesMissing, "stresses-missing", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "A creep curve needs at least one stress.")},
    {FindingId::PastLastRow, "past-last-row", Severity::Note,
     QT_TRANSLATE_NOOP(
         "vxConstitutive",
         "Behind the last row, from the plastic strain %1 on, the stress stays constant, as solvers continue it.")},
    {FindingId::NormalisedByCohesion, "normalised-by-cohesion", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "%1: pressure and Mises stress are multiples of the cohesion, which is not known.")},
    {FindingId::NormalisedByModulus, "normalised-by-modulus", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "The curve is a multiple of the shear modulus at once after loading, which is not known.")},
    {FindingId::NoYieldBeyondApex, "no-yield-beyond-apex", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive", "There is no yield surface below the pressure %1, where its apex is.")},
    // Test data
    {FindingId::NotText, "not-text", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "This is no text: at byte %1 there is a character that no text has. Export the data as CSV.")},
    {FindingId::NoNumbers, "no-numbers", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "There are no lines with two numbers. A test needs a column of strains, "
                                         "stretches or times and a column of stresses or the like.")},
    {FindingId::OneColumn, "one-column", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "There is only one number in each line. If there are more, give the separator.")},
    {FindingId::LinesSkipped, "lines-skipped", Severity::Warning,
     QT_TRANSLATE_NOOP(
         "vxConstitutive",
         "%1 lines between and behind the numbers are not numbers and are left out, the first is line %2.")},
    {FindingId::CellsSkipped, "cells-skipped", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "%1 lines have a cell that is not a number or belongs to no column; the first is line %2.")},
    {FindingId::DecimalCommaUnderstood, "decimal-comma-understood", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive", "The numbers have decimal commas.")},
    {FindingId::CommaMayGroupThousands, "comma-may-group-thousands", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "Commas are taken for decimal commas, but they may group thousands: \"%1\". Say which.")},
    {FindingId::ColumnNeeded, "column-needed", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "No column was found with: %1. Choose one.")},
    {FindingId::MeasureNeeded, "measure-needed", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "Column \"%1\": say what it holds: %2.")},
    {FindingId::UnitNeeded, "unit-needed", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "Column \"%1\" has no unit. Give one.")},
    {FindingId::UnitUnknown, "unit-unknown", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "Column \"%1\": the unit \"%2\" is not known or does not fit. Give another one.")},
    {FindingId::StressOfTestNeeded, "stress-of-test-needed", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "A creep curve needs the stress at which it was measured. Give it.")},
    {FindingId::MeasureAssumed, "measure-assumed", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "Column \"%1\" does not say whether it is true or engineering; it is taken as %2.")},
    {FindingId::ColumnRepeated, "column-repeated", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive", "Several columns fit; column \"%1\" is taken.")},
    {FindingId::PointsUnsorted, "points-unsorted", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1 points lie before the point in front of them.")},
    {FindingId::PointsRepeated, "points-repeated", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1 points repeat another point.")},
    {FindingId::PointsNegative, "points-negative", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1 points lie in compression or below 0.")},
    {FindingId::PointsOutside, "points-outside", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "%1 points are left out: they are incomplete, or outside the domain of the test.")},
    {FindingId::AllZero, "all-zero", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "Test \"%1\": all measured values are 0.")},
    {FindingId::NoPoints, "no-points", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "Test \"%1\" has no usable point.")},
    {FindingId::Condensed, "condensed", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive", "Test \"%1\" has %2 points; the fit uses %3 averages of neighbours.")},
    // Fits
    {FindingId::DataMissing, "data-missing", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1: there are no data that this model can be fitted to.")},
    {FindingId::FewPoints, "few-points", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "%1: %2 points are no more than the constants; there is no measure of the error.")},
    {FindingId::Undetermined, "undetermined", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "The data do not determine %1; they determine %2 alone. Add another kind of test.")},
    {FindingId::NoInfluence, "no-influence", Severity::Warning,
     QT_TRANSLATE_NOOP(
         "vxConstitutive",
         "%1 has no influence on these tests; its value is arbitrary. Add another kind of test, or hold it fixed.")},
    {FindingId::PoorlyDetermined, "poorly-determined", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1 is poorly determined: its standard error is %2 % of its value.")},
    {FindingId::AtBound, "at-bound", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1 lies at its bound %2; the data would have it go further.")},
    {FindingId::LimitingStretchInfinite, "limiting-stretch-infinite", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "The limiting stretch runs towards infinity: the data, with chain "
                                         "stretches up to %1, show no stiffening by it. Use a model without it.")},
    {FindingId::StabilityCost, "stability-cost", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive", "Stability over the range raises the residual from %2 to %1.")},
    {FindingId::StabilityNotReached, "stability-not-reached", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1: the constants are not stable over the whole range that was asked for.")},
    {FindingId::NoMinimum, "no-minimum", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1: no constants of a stable material come near to the data. Check "
                                         "signs, units and the mode of the tests.")},
    {FindingId::Cancelled, "cancelled", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "%1: the fit was cancelled.")},
    {FindingId::StressFalls, "stress-falls", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "The stress falls by up to %1 % of its largest value as the plastic "
                                         "strain rises; neighbours are averaged so that it does not.")},
    {FindingId::CutAtNecking, "cut-at-necking", Severity::Note,
     QT_TRANSLATE_NOOP(
         "vxConstitutive",
         "%2 points behind the largest force, at the engineering strain %1, are left out: the bar necks there.")},
    {FindingId::ModulusFromCurve, "modulus-from-curve", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "Young's modulus %1 Pa is taken from the first part of the curve. Give it if it is known.")},
    {FindingId::NoElasticPart, "no-elastic-part", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive",
                       "Test \"%1\" has no elastic part from which Young's modulus could be taken. Give it.")},
    {FindingId::NoPlasticPart, "no-plastic-part", Severity::Error,
     QT_TRANSLATE_NOOP("vxConstitutive", "Test \"%1\" does not reach the offset yield stress.")},
    {FindingId::VolumetricIgnored, "volumetric-ignored", Severity::Warning,
     QT_TRANSLATE_NOOP(
         "vxConstitutive",
         "The volumetric tests have a stress against the change of volume; D1 is not fitted. Check their sign.")},
    {FindingId::RatesIgnored, "rates-ignored", Severity::Note,
     QT_TRANSLATE_NOOP("vxConstitutive", "Creep rates are left out, since there are creep curves.")},
    {FindingId::OneStressOnly, "one-stress-only", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "All creep data are at one stress, which does not determine the exponent "
                                         "n. Add another stress, or hold n at a known value.")},
    {FindingId::RelaxationTimeOutside, "relaxation-time-outside", Severity::Warning,
     QT_TRANSLATE_NOOP("vxConstitutive", "The relaxation time %1 s lies outside the times measured, %2 s to %3 s.")},
};

std::string textOf(const FindingArgument& argument)
{
    const double* const number = std::get_if<double>(&argument);
    return number != nullptr ? vxMat::formatGeneral(*number) : std::get<std::string>(argument);
}

} // namespace

const std::vector<FindingRecord>& findingRecords()
{
    static const std::vector<FindingRecord> records(std::begin(findingTable), std::end(findingTable));
    return records;
}

const FindingRecord& findingRecord(FindingId id)
{
    return findingTable[static_cast<std::size_t>(id)];
}

std::string describe(const Finding& finding)
{
    const std::string_view text = findingRecord(finding.id).text;
    std::string description;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t digit = i + 1 < text.size() ? static_cast<std::size_t>(text[i + 1] - '1') : 9;
        if (text[i] == '%' && digit < finding.arguments.size()) {
            description += finding.arguments[digit];
            ++i;
        } else {
            description += text[i];
        }
    }
    return description;
}

bool hasError(const std::vector<Finding>& findings)
{
    return std::any_of(findings.begin(), findings.end(),
                       [](const Finding& finding) { return findingRecord(finding.id).severity == Severity::Error; });
}

Finding makeFinding(FindingId id, std::initializer_list<FindingArgument> arguments)
{
    Finding finding;
    finding.id = id;
    for (const FindingArgument& argument : arguments)
        finding.arguments.push_back(textOf(argument));
    return finding;
}

} // namespace vxConstitutive
