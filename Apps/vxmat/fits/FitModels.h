#pragma once

#include "fits/TestFiles.h"
#include "vxConstitutive/fit/HyperelasticFit.h"
#include "vxConstitutive/record/Measurements.h"
#include "vxUnits/UnitSystem.h"

#include <optional>
#include <string>
#include <vector>

namespace commandline {

/// How models are fitted, as it was typed.
struct FitSettings
{
    std::vector<std::string> models;          ///< keys, or "all"
    std::optional<std::string> stability;     ///< "data", "none" or FROM:TO
    std::optional<std::string> error;         ///< "largest", "each" or "absolute"
    std::vector<std::string> bounds;          ///< CONSTANT=LOWER:UPPER or CONSTANT=VALUE
    std::optional<std::string> youngsModulus; ///< "curve", which is usual, "material", or an amount
    std::optional<std::string> poissonsRatio;
    std::optional<std::string> offset;
    std::optional<std::string> tolerance;
};

/// What can be fitted with one set of tests.
enum class FitFamily
{
    Rubber,
    Metal,
    Creep,
    Relaxation
};

/// What is fixed about a model that can be fitted.
struct FitModelRecord
{
    const char* key;  ///< on command lines
    const char* name; ///< FitResult::model
    FitFamily family;
};

/// All models that can be fitted.
const std::vector<FitModelRecord>& fitModelRecords();

/// Returns the key of a fitted model.
const char* keyOf(const vxConstitutive::FitResult& result);

/// Checks that settings and tests agree, then fits the models and returns them best first.
class Fitting
{
public:
    /// Numbers without a unit are in `system`.
    /// \throws Failure if a setting cannot be read, if the tests do not belong together, or if a model or an option does
    /// not fit to them; the message names the option
    Fitting(const FitSettings& settings, const std::vector<MeasuredTest>& tests, const vxUnits::UnitSystem& system);

    std::vector<vxConstitutive::FitResult> run(const vxConstitutive::FitControl& control) const;

    /// Returns how a result was fitted, for the project that keeps it.
    vxConstitutive::FitRecord record(const vxConstitutive::FitResult& result) const;

    const std::vector<vxConstitutive::TestData>& tests() const { return m_tests; }

private:
    vxConstitutive::HyperelasticFitRequest rubberRequest() const;
    std::vector<vxConstitutive::FitResult> fitMetal(const vxConstitutive::FitControl& control) const;

    FitFamily m_family;
    std::vector<const FitModelRecord*> m_models;
    std::vector<vxConstitutive::TestData> m_tests;
    vxConstitutive::ErrorMeasure m_error = vxConstitutive::ErrorMeasure::OfLargest;
    std::optional<vxConstitutive::Range> m_stableRange; ///< absent for the range of the data
    bool m_stable = true;
    vxConstitutive::BoundsById m_bounds;
    std::optional<double> m_youngsModulus;
    std::optional<double> m_poissonsRatio;
    std::optional<double> m_offset;
    std::optional<double> m_tolerance;
};

} // namespace commandline
