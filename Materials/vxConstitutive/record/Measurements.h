#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/data/TestData.h"
#include "vxConstitutive/fit/Fit.h"
#include "vxConstitutive/fit/HyperelasticFit.h"
#include "vxMaterial/json/JsonError.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vxConstitutive {

/// The name of the setting of a material's object in which projects keep its measurements.
inline constexpr const char* measurementsSetting = "measurements";

/// How a model was fitted. A record has no clock and no machine in it, so the same fit gives the same record.
struct FitRecord
{
    std::string model;                     ///< English, as FitResult::model
    std::vector<FittedConstant> constants; ///< with units and standard errors
    std::vector<TestAgreement> tests;      ///< the tests that were fitted, by their names, and how well each is met
    double residual = 0.0;
    double residualPerFreedom = 0.0;
    double rSquared = 0.0;
    std::optional<double> residualWithoutStability; ///< if the demand for stability changed the result
    ErrorMeasure error = ErrorMeasure::OfLargest;
    std::optional<StabilityDemand> stability; ///< absent for a model that is not hyperelastic
    std::optional<Range> stabilityRange;      ///< with StabilityDemand::OverRange: the stretches of the demand
    std::vector<StableRange> stable;          ///< where the fitted model is stable
};

/// What was measured of a material, and how its constants were fitted to that.
struct Measurements
{
    std::vector<TestData> tests;
    std::vector<FitRecord> fits; ///< the latest is last

    bool empty() const { return tests.empty() && fits.empty(); }

    /// Adds the tests and the record of a fit. A test replaces a test of the same name.
    VXCONSTITUTIVE_EXPORT void addFit(const std::vector<TestData>& fitted, FitRecord record);
};

/// Returns the record of a fit; the demand for stability is left for the caller to add.
VXCONSTITUTIVE_EXPORT FitRecord recordFit(const FitResult& result, ErrorMeasure error);
/// Returns the record of a hyperelastic fit.
VXCONSTITUTIVE_EXPORT FitRecord recordFit(const FitResult& result, const HyperelasticFitRequest& request);

/// An error of writing or reading measurements. what() is English and names the place: `"tests[2].abscissas[7]" must be
/// a finite number`.
class VXCONSTITUTIVE_EXPORT MeasurementsError : public std::runtime_error
{
public:
    explicit MeasurementsError(vxjson::JsonError fault);
    ~MeasurementsError() override;

    /// Returns the reason and the place, for a program that translates it (context "vxjson::JsonError").
    const vxjson::JsonError& fault() const { return m_fault; }

private:
    vxjson::JsonError m_fault;
};

/// Returns the measurements as a compact JSON text, whose members docs/project-files.md describes. Every number reads
/// back as the same double. The text is empty if there are no measurements.
/// \throws MeasurementsError if readMeasurements would refuse the text: a text that is not UTF-8, a point, parameter or
/// weight that is not finite, a test with more or fewer ordinates than abscissas
VXCONSTITUTIVE_EXPORT std::string writeMeasurements(const Measurements& measurements);

/// Returns the measurements of a text; none if it is empty.
/// \throws MeasurementsError if the text is not JSON, has a repeated member, is of a later version, or if a member is
/// missing, unknown or of a wrong kind. Unknown members are refused, because writing the measurements again would lose
/// them.
VXCONSTITUTIVE_EXPORT Measurements readMeasurements(std::string_view text);

} // namespace vxConstitutive
