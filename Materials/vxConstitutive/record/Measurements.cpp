#include "vxConstitutive/record/Measurements.h"

#include <algorithm>
#include <utility>

namespace vxConstitutive {

void Measurements::addFit(const std::vector<TestData>& fitted, FitRecord record)
{
    for (const TestData& test : fitted) {
        const auto same =
            std::find_if(tests.begin(), tests.end(), [&test](const TestData& one) { return one.name == test.name; });
        if (same == tests.end())
            tests.push_back(test);
        else
            *same = test;
    }
    fits.push_back(std::move(record));
}

FitRecord recordFit(const FitResult& result, ErrorMeasure error)
{
    FitRecord record;
    record.model = result.model;
    record.constants = result.constants;
    record.tests = result.tests;
    record.residual = result.residual;
    record.residualPerFreedom = result.residualPerFreedom;
    record.rSquared = result.rSquared;
    record.residualWithoutStability = result.residualWithoutStability;
    record.error = error;
    record.stable = result.stable;
    return record;
}

FitRecord recordFit(const FitResult& result, const HyperelasticFitRequest& request)
{
    FitRecord record = recordFit(result, request.error);
    record.stability = request.stability;
    if (request.stability == StabilityDemand::OverRange)
        record.stabilityRange = request.stableRange;
    return record;
}

MeasurementsError::MeasurementsError(vxjson::JsonError fault)
    : std::runtime_error(vxjson::describe(fault)), m_fault(std::move(fault))
{}

MeasurementsError::~MeasurementsError() = default;

} // namespace vxConstitutive
