#pragma once

#include "vxConstitutive/record/Measurements.h"

#include <cstdint>

/// The members of the records with their names, in the order in which they are written. The writer and the reader visit
/// them: `visit(name, field)`.
namespace vxConstitutive::members {

/// The version of the format that is written, and the only one that is read.
inline constexpr std::int64_t formatVersion = 1;

/// The reason for refusing a test, see vxjson::JsonError.
inline constexpr const char* lengthsDiffer = R"("%1" must have as many ordinates as abscissas)";

/// A number that must be finite. Other numbers may be infinite or NaN.
template <class Number>
struct Finite
{
    Number& number;
};

template <class Number>
Finite(Number&) -> Finite<Number>;

template <class Visit, class Column>
void visitMembers(Column& column, const Visit& visit, const MeasuredColumn* /*kind*/)
{
    visit("name", column.name);
    visit("unit", column.unit);
    visit("measure", column.measure);
}

template <class Visit, class Test>
void visitMembers(Test& test, const Visit& visit, const TestData* /*kind*/)
{
    visit("name", test.name);
    visit("mode", test.mode);
    visit("parameter", Finite{test.parameter});
    visit("weight", Finite{test.weight});
    visit("abscissa_column", test.abscissaColumn);
    visit("ordinate_column", test.ordinateColumn);
    visit("abscissas", test.abscissas);
    visit("ordinates", test.ordinates);
}

template <class Visit, class Constant>
void visitMembers(Constant& constant, const Visit& visit, const FittedConstant* /*kind*/)
{
    visit("property", constant.propertyId);
    visit("symbol", constant.symbol);
    visit("unit", constant.unit);
    visit("value", constant.value);
    visit("standard_error", constant.standardError);
    visit("determination", constant.determination);
}

template <class Visit, class Agreement>
void visitMembers(Agreement& agreement, const Visit& visit, const TestAgreement* /*kind*/)
{
    visit("test", agreement.test);
    visit("mode", agreement.mode);
    visit("points", agreement.points);
    visit("rms", agreement.rms);
    visit("relative_error", agreement.relativeError);
    visit("largest_error", agreement.largestError);
    visit("r_squared", agreement.rSquared);
}

template <class Visit, class Interval>
void visitMembers(Interval& range, const Visit& visit, const Range* /*kind*/)
{
    visit("from", range.from);
    visit("to", range.to);
}

template <class Visit, class Stable>
void visitMembers(Stable& stable, const Visit& visit, const StableRange* /*kind*/)
{
    visit("mode", stable.mode);
    visit("range", stable.range);
    visit("unstable_below", stable.unstableBelow);
    visit("unstable_above", stable.unstableAbove);
}

template <class Visit, class Fit>
void visitMembers(Fit& fit, const Visit& visit, const FitRecord* /*kind*/)
{
    visit("model", fit.model);
    visit("constants", fit.constants);
    visit("tests", fit.tests);
    visit("residual", fit.residual);
    visit("residual_per_freedom", fit.residualPerFreedom);
    visit("r_squared", fit.rSquared);
    visit("residual_without_stability", fit.residualWithoutStability);
    visit("error_measure", fit.error);
    visit("stability", fit.stability);
    visit("stability_range", fit.stabilityRange);
    visit("stable", fit.stable);
}

/// `version` is the visitor's own representation of this member.
template <class Visit, class Version, class Measured>
void visitDocument(Version& version, Measured& measurements, const Visit& visit)
{
    visit("version", version);
    visit("tests", measurements.tests);
    visit("fits", measurements.fits);
}

/// A value of an enumeration and its word in the text.
template <class Value>
struct Word
{
    Value value;
    const char* word;
};

inline constexpr Word<Determination> determinationWords[] = {
    {Determination::Determined, "determined"}, {Determination::Poor, "poor"},
    {Determination::AtBound, "at-bound"},      {Determination::Undetermined, "undetermined"},
    {Determination::Fixed, "fixed"},
};

inline constexpr Word<ErrorMeasure> errorMeasureWords[] = {
    {ErrorMeasure::OfLargest, "of-largest"},
    {ErrorMeasure::OfEach, "of-each"},
    {ErrorMeasure::Absolute, "absolute"},
};

inline constexpr Word<StabilityDemand> stabilityWords[] = {
    {StabilityDemand::OverData, "over-data"},
    {StabilityDemand::OverRange, "over-range"},
    {StabilityDemand::None, "none"},
};

constexpr const auto& wordsOf(const Determination& /*kind*/)
{
    return determinationWords;
}

constexpr const auto& wordsOf(const ErrorMeasure& /*kind*/)
{
    return errorMeasureWords;
}

constexpr const auto& wordsOf(const StabilityDemand& /*kind*/)
{
    return stabilityWords;
}

} // namespace vxConstitutive::members
