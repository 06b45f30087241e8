#include "ConstitutiveTesting.h"

#include "DataFile.h"

#include "vxConstitutive/data/TestReading.h"
#include "vxConstitutive/data/UnitFactor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace vxConstitutive;

namespace vxtest {

bool has(const std::vector<Finding>& findings, FindingId id)
{
    return std::any_of(findings.begin(), findings.end(), [id](const Finding& finding) { return finding.id == id; });
}

std::string firstArgument(const std::vector<Finding>& findings, FindingId id, std::size_t index)
{
    for (const Finding& finding : findings) {
        if (finding.id == id)
            return finding.arguments.at(index);
    }
    ADD_FAILURE() << "there is no finding " << findingRecord(id).key;
    return {};
}

double valueAt(const Model& model, Mode mode, double abscissa, Quantity quantity, Compressibility compressibility)
{
    CurveRequest request;
    request.mode = mode;
    request.abscissas = {abscissa};
    request.compressibility = compressibility;
    request.detail = Detail::Full;
    const Curve curve = model.curve(request);
    const std::vector<double>* const values = curve.find(quantity);
    if (values == nullptr) {
        ADD_FAILURE() << "the curve has no " << quantityRecord(quantity).name;
        return std::nan("");
    }
    return values->front();
}

double derivative(const std::function<double(double)>& function, double at, double step)
{
    const std::vector<double> weights{4.0 / 5.0, -1.0 / 5.0, 4.0 / 105.0, -1.0 / 280.0};
    double sum = 0.0;
    for (std::size_t i = 0; i < weights.size(); ++i) {
        const double offset = step * static_cast<double>(i + 1);
        sum += weights[i] * (function(at + offset) - function(at - offset));
    }
    return sum / step;
}

TestData makeTest(Mode mode, const std::vector<double>& abscissas, const std::function<double(double)>& ordinate)
{
    TestData test;
    test.name = modeRecord(mode).key;
    test.mode = mode;
    test.abscissas = abscissas;
    for (const double abscissa : abscissas)
        test.ordinates.push_back(ordinate(abscissa));
    return test;
}

TestData rubberTest(const std::string& file, Mode mode)
{
    TestReadRequest request;
    request.name = file;
    request.mode = mode;
    const TestTable table = readTestTable(readText(dataPath("rubber/" + file)), unitFactor);
    const TestReading reading = takeTest(table, request, unitFactor);
    EXPECT_TRUE(reading.data.has_value()) << file;
    return reading.data.value_or(TestData());
}

} // namespace vxtest
