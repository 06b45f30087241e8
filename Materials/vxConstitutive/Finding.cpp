#include "vxConstitutive/Finding.h"

#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vxConstitutive {

namespace {

// In the order of FindingId.
constexpr FindingRecord findingTable[]{
    // Models of a material
    {FindingId::ConstantMissing, "constant-missing", Severity::Error,
     "%1: the constant %2 is missing. The model has no curve without it."},
    {FindingId::ConstantNotFinite, "constant-not-finite", Severity::Error,
     "%1: the constant %2 is %3. It must be a finite number."},
    {FindingId::ConstantNotPositive, "constant-not-positive", Severity::Error,
     "%1: the constant %2 is %3 in SI units. It must be greater than 0."},
    {FindingId::PoissonsRatioOutside, "poissons-ratio-outside", Severity::Error,
     "Poisson's ratio is %1. It must be greater than -1 and less than 0.5."},
    {FindingId::C10AndMuDiffer, "c10-and-mu-differ", Severity::Warning,
     "C10 is %1 Pa, but half of Mu is %2 Pa. The curve uses C10. Remove one of the two constants."},
    {FindingId::D1Zero, "d1-zero", Severity::Warning,
     "%1: D1 is 0, so the curve is incompressible. Some solvers do the same, others use a bulk modulus of 20 times the "
     "shear modulus. Remove D1 or give it a value."},
    {FindingId::D1Negative, "d1-negative", Severity::Error,
     "%1: D1 is %2 1/Pa. A bulk modulus cannot be negative. The curve is incompressible."},
    {FindingId::FarFromIncompressible, "far-from-incompressible", Severity::Warning,
     "The bulk modulus is only %1 times the shear modulus (Poisson's ratio %2). For rubber it is some hundred times. "
     "Check D1."},
    {FindingId::LimitingStretchTooLow, "limiting-stretch-too-low", Severity::Error,
     "The limiting stretch is %1. It must be greater than 1, which is the stretch of the chains at rest."},
    {FindingId::InitialModulusNegative, "initial-modulus-negative", Severity::Error,
     "%1: the initial shear modulus is %2 Pa. It must be greater than 0; otherwise the material is unstable without "
     "any load."},
    {FindingId::InitialModulusDerived, "initial-modulus-derived", Severity::Note,
     "Mu, the factor of the series, is %1 Pa. The initial shear modulus is %2 Pa."},
    {FindingId::HardeningWithoutData, "hardening-without-data", Severity::Error,
     R"(The catalogue has no constants for the hardening type "%1", so there is no curve. Use Bilinear or Multilinear.)"},
    {FindingId::HardeningUnknown, "hardening-unknown", Severity::Error,
     R"(The hardening type "%1" is not known. Use Bilinear or Multilinear.)"},
    {FindingId::YieldTypeUnknown, "yield-type-unknown", Severity::Error,
     R"(The yield type "%1" is not known. Use Mises, Mohr-Coulomb or Drucker-Prager.)"},
    {FindingId::HardeningFalls, "hardening-falls", Severity::Warning,
     "The stress falls from the plastic strain %1 on. A solver finds no unique solution there."},
    {FindingId::HardeningStiff, "hardening-stiff", Severity::Warning,
     "The hardening modulus %1 Pa is more than a tenth of Young's modulus %2 Pa. Check that it is the slope against "
     "plastic strain."},
    {FindingId::TableLengthsDiffer, "table-lengths-differ", Severity::Error,
     "There are %1 yield stresses and %2 plastic strains. The values without a partner are left out."},
    {FindingId::TableFirstStrain, "table-first-strain", Severity::Warning,
     "The first plastic strain is %1. A table must begin with 0. Some solvers shift it without a message."},
    {FindingId::TableStrainsNotRising, "table-strains-not-rising", Severity::Error,
     "Row %1: the plastic strain %2 is not greater than the one in the row before. The row is left out."},
    {FindingId::CohesionMissing, "cohesion-missing", Severity::Warning,
     "%1: the catalogue has no cohesion. Give a cohesion with the curve, or read the curve in multiples of the "
     "cohesion."},
    {FindingId::ViscosityAmbiguous, "viscosity-ambiguous", Severity::Warning,
     "The plastic viscosity is %1. Solver cards have a cohesion in its place. No curve uses it."},
    {FindingId::FrictionMatchMissing, "friction-match-missing", Severity::Note,
     "Drucker-Prager: the catalogue does not say which cone belongs to the friction angle. The curve shows three "
     "cones: through the compression meridian, through the extension meridian, and for plane strain."},
    {FindingId::DilationMissing, "dilation-missing", Severity::Note,
     "%1: the catalogue has no dilation angle. Solvers need one."},
    {FindingId::FrictionAngleOutside, "friction-angle-outside", Severity::Error,
     "The friction angle is %1 degrees. It must be at least 0 and less than 90."},
    {FindingId::FrictionAngleRadian, "friction-angle-radian", Severity::Warning,
     "The friction angle is taken as %1 degrees. If it is in radians, multiply it by 57.3."},
    {FindingId::CreepTimeExponent, "creep-time-exponent", Severity::Warning,
     "The time exponent m is %1. The rate form needs -1 < m <= 0. A value between 0 and 1 belongs to the total form, "
     "whose exponent is m + 1."},
    {FindingId::CreepStressExponent, "creep-stress-exponent", Severity::Warning,
     "The stress exponent n is %1. It must be greater than 0."},
    {FindingId::CreepConstantSmall, "creep-constant-small", Severity::Note,
     "The creep constant A is %1 in Pa and s. CalculiX replaces a value below 1e-20 by 1e-20. Write its input in MPa."},
    {FindingId::RelaxationRatioOutside, "relaxation-ratio-outside", Severity::Error,
     "The relaxing part of the shear modulus is %1. It must be at least 0 and less than 1."},
    {FindingId::RelaxationRatioModulus, "relaxation-ratio-modulus", Severity::Error,
     "The shear relaxation modulus is %1. It is taken as the relaxing part of the shear modulus, which must be less "
     "than 1. Divide a modulus in Pa by the shear modulus."},
    {FindingId::ModulusMissing, "modulus-missing", Severity::Warning,
     "%1: without Young's modulus and Poisson's ratio, some curves are missing or are multiples of a modulus."},
    // Curves
    {FindingId::ModeNotOfModel, "mode-not-of-model", Severity::Error, "%2 has no response in the mode %1."},
    {FindingId::AbscissaOutside, "abscissa-outside", Severity::Error,
     "%4: the model has no value at %3 of the points. At the first of them, the %1 is %2."},
    {FindingId::ResultNotFinite, "result-not-finite", Severity::Error,
     "%4: no finite value exists at %3 of the points. At the first of them, the %1 is %2. The constants or the range "
     "are too large, or the chains are at their limit."},
    {FindingId::NoEquilibrium, "no-equilibrium", Severity::Error,
     "%4: there is no equilibrium at %3 of the points. At the first of them, the %1 is %2. There the material resists "
     "a change of volume too little to keep the lateral surface free of stress. Check D1."},
    {FindingId::UnstableBelow, "unstable-below", Severity::Warning,
     "%1: the material is unstable below the %3 %2 by Drucker's criterion. A solver may fail there."},
    {FindingId::UnstableFrom, "unstable-from", Severity::Warning,
     "%1: the material is unstable above the %3 %2 by Drucker's criterion. A solver may fail there."},
    {FindingId::SmallStrainExceeded, "small-strain-exceeded", Severity::Warning,
     "The curve has strains up to %1. Linear elasticity is valid for strains below 0.05."},
    {FindingId::LockingInsideRange, "locking-inside-range", Severity::Warning,
     "%1: the chains reach their limiting stretch at %2, inside the range up to %3. The five-term series has no limit "
     "there."},
    {FindingId::SeriesFarFromLangevin, "series-far-from-langevin", Severity::Note,
     "At %1, the chains are at %3 of their limiting stretch. The five-term series is %2 % below the inverse Langevin "
     "function."},
    {FindingId::DrawnIncompressible, "drawn-incompressible", Severity::Warning,
     "The curve is incompressible, but the material has a D1. With D1 the stress differs by a factor of up to %1, at "
     "the stretch %2."},
    {FindingId::VolumetricNeedsD1, "volumetric-needs-d1", Severity::Error,
     "%1: an incompressible material has no volumetric response. Give D1 or Poisson's ratio, and do not request an "
     "incompressible curve."},
    {FindingId::NeckingAt, "necking-at", Severity::Note,
     "The bar necks at the engineering strain %1, where the engineering stress is largest: %2 Pa (Considere)."},
    {FindingId::StressesMissing, "stresses-missing", Severity::Error, "A creep curve needs at least one stress."},
    {FindingId::CreepStrainLarge, "creep-strain-large", Severity::Warning,
     "The creep strain reaches %1 at the stress %2 Pa. No creep law is valid for strains above 1. Check the range, and "
     "the units of the creep constants."},
    {FindingId::PastLastRow, "past-last-row", Severity::Note,
     "After the last row, from the plastic strain %1 on, the stress stays constant, as in solvers."},
    {FindingId::NormalisedByCohesion, "normalised-by-cohesion", Severity::Note,
     "%1: the cohesion is not known. Pressure and Mises stress are multiples of it."},
    {FindingId::NormalisedByModulus, "normalised-by-modulus", Severity::Note,
     "The instantaneous shear modulus is not known. The curve is a multiple of it."},
    {FindingId::NoYieldBeyondApex, "no-yield-beyond-apex", Severity::Note,
     "There is no yield surface below the pressure %1 Pa, which is its apex."},
    {FindingId::NoYieldBeyondMultiple, "no-yield-beyond-multiple", Severity::Note,
     "There is no yield surface below the pressure of %1 times the cohesion, which is its apex."},
    // Test data
    {FindingId::NotText, "not-text", Severity::Error,
     "The data are not text: byte %1 is a character that text does not have. Export the data as CSV."},
    {FindingId::NoNumbers, "no-numbers", Severity::Error,
     "No line has two numbers. A test needs a column such as strain, stretch or time, and a column such as stress."},
    {FindingId::OneColumn, "one-column", Severity::Error,
     "Each line has only one number. If there are more, give the separator."},
    {FindingId::LinesSkipped, "lines-skipped", Severity::Warning,
     "Lines between or after the numbers that are left out, because they are not numbers: %1. The first is line %2."},
    {FindingId::CellsSkipped, "cells-skipped", Severity::Warning,
     "Lines with a cell that is not a number or belongs to no column: %1. The first is line %2."},
    {FindingId::DecimalCommaUnderstood, "decimal-comma-understood", Severity::Note, "The numbers have decimal commas."},
    {FindingId::CommaMayGroupThousands, "comma-may-group-thousands", Severity::Warning,
     R"(Commas are read as decimal commas, but they may group thousands: "%1". Give the decimal mark.)"},
    {FindingId::ColumnNeeded, "column-needed", Severity::Error, "No column was found for: %1. Choose a column."},
    {FindingId::MeasureNeeded, "measure-needed", Severity::Error, R"(Column "%1": choose its meaning: %2.)"},
    {FindingId::UnitNeeded, "unit-needed", Severity::Error, R"(Column "%1" has no unit. Give one.)"},
    {FindingId::UnitUnknown, "unit-unknown", Severity::Error,
     R"(Column "%1": the unit "%2" is not known or does not fit. Give another unit.)"},
    {FindingId::StressOfTestNeeded, "stress-of-test-needed", Severity::Error,
     "A creep curve needs the stress of the test. Give the stress."},
    {FindingId::SeveralStresses, "several-stresses", Severity::Error,
     R"(Column "%1" has %2 stresses, each of which is a creep test. Choose one of them.)"},
    {FindingId::StressUnitNeeded, "stress-unit-needed", Severity::Error,
     R"(Column "%1" has the stress of the creep test, but no unit of stress. Write the unit behind its name, or give the stress.)"},
    {FindingId::StressNotConstant, "stress-not-constant", Severity::Error,
     R"(Column "%1" has more than %2 different stresses, but a creep test has a constant one. Give the stress.)"},
    {FindingId::StressNotInColumn, "stress-not-in-column", Severity::Error,
     R"(Column "%1" has several stresses, but none is %2 Pa.)"},
    {FindingId::StressDiffers, "stress-differs", Severity::Warning,
     R"(Column "%1" has the stress %2 Pa, but %3 Pa is given and used.)"},
    {FindingId::MeasureAssumed, "measure-assumed", Severity::Note,
     R"(Column "%1" does not say whether it is true or engineering. It is taken as %2.)"},
    {FindingId::ColumnRepeated, "column-repeated", Severity::Note, R"(Several columns fit. Column "%1" is used.)"},
    {FindingId::PointsUnsorted, "points-unsorted", Severity::Note,
     "Points with a smaller abscissa than the point before: %1."},
    {FindingId::PointsRepeated, "points-repeated", Severity::Note, "Points that repeat another point: %1."},
    {FindingId::PointsNegative, "points-negative", Severity::Note, "Points in compression or below 0: %1."},
    {FindingId::PointsOutside, "points-outside", Severity::Warning,
     "Points that are left out, because they are incomplete or outside the domain of the test: %1."},
    {FindingId::AllZero, "all-zero", Severity::Warning, R"(Test "%1": all measured values are 0.)"},
    {FindingId::NoPoints, "no-points", Severity::Error, R"(Test "%1" has no usable point.)"},
    {FindingId::Condensed, "condensed", Severity::Note,
     R"(Test "%1" has %2 points. The fit uses %3 averages of neighbours.)"},
    // Fits
    {FindingId::DataMissing, "data-missing", Severity::Error, "%1: there are no data for a fit of this model."},
    {FindingId::FewPoints, "few-points", Severity::Warning,
     "%1: there are %2 points, no more than constants. The error cannot be estimated."},
    {FindingId::Undetermined, "undetermined", Severity::Warning,
     "The data do not determine %1. They determine only %2. Add another kind of test."},
    {FindingId::NoInfluence, "no-influence", Severity::Warning,
     "%1 has no influence on these tests. Its value is arbitrary. Add another kind of test, or hold it fixed."},
    {FindingId::PoorlyDetermined, "poorly-determined", Severity::Warning,
     "%1 is poorly determined: its standard error is %2 % of its value."},
    {FindingId::AtBound, "at-bound", Severity::Warning, "%1 is at its bound %2. The best fit is beyond it."},
    {FindingId::LimitingStretchInfinite, "limiting-stretch-infinite", Severity::Warning,
     "The limiting stretch tends to infinity: the data, with chain stretches up to %1, show no stiffening. Use a model "
     "without a limiting stretch."},
    {FindingId::StabilityCost, "stability-cost", Severity::Note,
     "Stability over the range raises the residual from %2 to %1."},
    {FindingId::StabilityNotReached, "stability-not-reached", Severity::Warning,
     "%1: the constants are not stable over the whole requested range."},
    {FindingId::NoMinimum, "no-minimum", Severity::Error,
     "%1: no constants of a stable material come near the data. Check the signs, units and modes of the tests."},
    {FindingId::Cancelled, "cancelled", Severity::Warning, "%1: the fit was cancelled."},
    {FindingId::StressFalls, "stress-falls", Severity::Warning,
     "The stress falls by up to %1 % of its largest value while the plastic strain rises. Neighbours are averaged so "
     "that it does not fall."},
    {FindingId::CutAtNecking, "cut-at-necking", Severity::Note,
     "%2 points after the largest force, at the engineering strain %1, are left out because the bar necks there."},
    {FindingId::ModulusFromCurve, "modulus-from-curve", Severity::Note,
     "Young's modulus %1 Pa is taken from the first part of the curve. Give it if it is known."},
    {FindingId::NoElasticPart, "no-elastic-part", Severity::Error,
     R"(Test "%1" has no elastic part for Young's modulus. Give Young's modulus.)"},
    {FindingId::NoPlasticPart, "no-plastic-part", Severity::Error,
     R"(Test "%1" does not reach the offset yield stress.)"},
    {FindingId::VolumetricIgnored, "volumetric-ignored", Severity::Warning,
     "In the volumetric tests, the stress opposes the change of volume. D1 is not fitted. Check the sign of the "
     "stress."},
    {FindingId::BoundForm, "bound-form", Severity::Error,
     R"("%1" must have the form CONSTANT=LOWER:UPPER or CONSTANT=VALUE.)"},
    {FindingId::BoundUnknown, "bound-unknown", Severity::Error,
     R"("%1" is not a constant of these models; they have %2.)"},
    {FindingId::BoundOrder, "bound-order", Severity::Error, "%1: the lower bound is above the upper one."},
    {FindingId::BoundUnreadable, "bound-unreadable", Severity::Error, "%1: %2"},
    {FindingId::FitKeepsD1, "fit-keeps-d1", Severity::Note,
     "The fit is incompressible. With the D1 of the material, the bulk modulus is %1 times the shear modulus "
     "(Poisson's "
     "ratio %2)."},
    {FindingId::FitContradictsD1, "fit-contradicts-d1", Severity::Warning,
     "The fit is incompressible, but the D1 of the material contradicts it: the bulk modulus would be only %1 times "
     "the "
     "shear modulus (Poisson's ratio %2). For rubber it is some hundred times."},
    {FindingId::RatesIgnored, "rates-ignored", Severity::Note,
     "Creep rates are left out because there are creep curves."},
    {FindingId::OneStressOnly, "one-stress-only", Severity::Warning,
     "All creep data are at one stress, which does not determine the exponent n. Add another stress, or hold n fixed."},
    {FindingId::RelaxationTimeOutside, "relaxation-time-outside", Severity::Warning,
     "The relaxation time %1 s is outside the measured times, %2 s to %3 s."},
    {FindingId::SolverUnavailable, "solver-unavailable", Severity::Error,
     "%1: the library of the solver cannot be loaded: %2. Install the program again."},
    {FindingId::ModulusDiffers, "modulus-differs", Severity::Warning,
     "Young's modulus of the first part of the curve is %1 Pa. It differs by %3 % from the given %2 Pa, with which the "
     "elastic part is taken off."},
    {FindingId::RankedForConstants, "ranked-for-constants", Severity::Note,
     "The residual is less than that of %1 (%3 instead of %2), but not by so much that %5 free constants are better "
     "than "
     "%4."},
    {FindingId::RankedForDoubts, "ranked-for-doubts", Severity::Note,
     "The residual is less than that of %1 (%3 instead of %2), but the data do not determine all constants well, or "
     "the "
     "model is not as stable as requested."},
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
