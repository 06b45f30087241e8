#include "vxConstitutive/response/ViscoElasticModel.h"

#include "ConstitutiveTesting.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace vxConstitutive;
using vxtest::derivative;
using vxtest::has;
using vxtest::valueAt;

namespace {

TEST(ViscoElasticity, RelaxesFromTheInstantaneousToTheLongTermModulus)
{
    const ViscoElasticModel model(0.5, 2.0, 100.0);
    EXPECT_DOUBLE_EQ(valueAt(model, Mode::Relaxation, 0.0, Quantity::RelaxationModulus), 100.0);
    EXPECT_NEAR(valueAt(model, Mode::Relaxation, 2.0, Quantity::RelaxationModulus), 50.0 + 50.0 / M_E, 1e-12);
    EXPECT_NEAR(valueAt(model, Mode::Relaxation, 1e3, Quantity::RelaxationModulus), 50.0, 1e-12);
}

TEST(ViscoElasticity, CreepsFromTheInstantaneousToTheLongTermCompliance)
{
    const ViscoElasticModel model(0.75, 2.0, 100.0);
    EXPECT_DOUBLE_EQ(valueAt(model, Mode::ShearCreep, 0.0, Quantity::CreepCompliance), 0.01);
    EXPECT_NEAR(valueAt(model, Mode::ShearCreep, 8.0, Quantity::CreepCompliance), 0.04 - 0.03 / M_E, 1e-14);
    EXPECT_NEAR(valueAt(model, Mode::ShearCreep, 1e4, Quantity::CreepCompliance), 0.04, 1e-14);
}

/// Integrates by Simpson's rule.
double integral(const std::function<double(double)>& function, double to, int steps)
{
    const double h = to / steps;
    double sum = function(0.0) + function(to);
    for (int i = 1; i < steps; ++i)
        sum += (i % 2 == 1 ? 4.0 : 2.0) * function(i * h);
    return sum * h / 3.0;
}

TEST(ViscoElasticity, CreepAndRelaxationAreInverseToEachOther)
{
    // The integral of G(t - s) J(s) over s from 0 to t is t, for every linear material.
    const ViscoElasticModel model(0.6, 1.5, 40.0);
    const double time = 3.0;
    const auto product = [&](double s) {
        return valueAt(model, Mode::Relaxation, time - s, Quantity::RelaxationModulus) *
               valueAt(model, Mode::ShearCreep, s, Quantity::CreepCompliance);
    };
    EXPECT_NEAR(integral(product, time, 200), time, 1e-9);
}

TEST(ViscoElasticity, StorageAndLossAreTheFourierIntegralsOfTheRelaxation)
{
    // G' = Ginf + w * integral of (G - Ginf) sin(w t), G'' = w * integral of (G - Ginf) cos(w t)
    const ViscoElasticModel model(0.6, 1.5, 40.0);
    for (const double frequency : {0.01, 0.1, 1.0}) {
        const double w = 2.0 * M_PI * frequency;
        const auto decay = [&](double t) {
            return valueAt(model, Mode::Relaxation, t, Quantity::RelaxationModulus) - 16.0;
        };
        const double storage = 16.0 + w * integral([&](double t) { return decay(t) * std::sin(w * t); }, 60.0, 20000);
        const double loss = w * integral([&](double t) { return decay(t) * std::cos(w * t); }, 60.0, 20000);
        EXPECT_NEAR(valueAt(model, Mode::Dynamic, frequency, Quantity::StorageModulus), storage, 1e-7);
        EXPECT_NEAR(valueAt(model, Mode::Dynamic, frequency, Quantity::LossModulus), loss, 1e-7);
        EXPECT_NEAR(valueAt(model, Mode::Dynamic, frequency, Quantity::LossFactor), loss / storage, 1e-8);
    }
}

TEST(ViscoElasticity, SlopesAreTheDerivatives)
{
    const ViscoElasticModel model(0.6, 1.5, 40.0);
    const std::vector<std::pair<Mode, Quantity>> responses{{Mode::Relaxation, Quantity::RelaxationModulus},
                                                           {Mode::ShearCreep, Quantity::CreepCompliance},
                                                           {Mode::Dynamic, Quantity::StorageModulus}};
    for (const auto& [mode, quantity] : responses) {
        const Mode which = mode;
        const Quantity what = quantity;
        const double expected = derivative([&](double at) { return valueAt(model, which, at, what); }, 0.5, 1e-3);
        EXPECT_NEAR(valueAt(model, mode, 0.5, Quantity::Slope), expected, 1e-8 * std::fabs(expected));
    }
}

TEST(ViscoElasticity, AMaterialThatRelaxesCompletelyFlows)
{
    const ViscoElasticModel model(1.0, 2.0, 100.0);
    EXPECT_TRUE(has(model.findings(), FindingId::RelaxationRatioOutside));
    EXPECT_NEAR(valueAt(model, Mode::ShearCreep, 6.0, Quantity::CreepCompliance), 0.04, 1e-15); // (1 + t/tau)/G0
}

TEST(ViscoElasticity, WithoutAModulusCurvesAreMultiplesOfIt)
{
    const ViscoElasticModel model(0.5, 2.0, std::nullopt);
    CurveRequest request;
    request.mode = Mode::Relaxation;
    request.abscissas = {0.0};
    const Curve curve = model.curve(request);
    EXPECT_EQ(curve.columns[1].values[0], 1.0);
    EXPECT_EQ(curve.columns[1].unit, "1");
    EXPECT_EQ(columnName(curve.columns[1]), "relaxation modulus / shear modulus");
    EXPECT_TRUE(has(curve.findings, FindingId::NormalisedByModulus));
    EXPECT_TRUE(has(model.findings(), FindingId::ModulusMissing));
}

TEST(ViscoElasticity, AModulusInPlaceOfARatioIsReported)
{
    EXPECT_TRUE(has(ViscoElasticModel(5e5, 1.0, 1e6).findings(), FindingId::RelaxationRatioModulus));
    EXPECT_TRUE(has(ViscoElasticModel(-0.1, 1.0, 1e6).findings(), FindingId::RelaxationRatioOutside));
    EXPECT_TRUE(has(ViscoElasticModel(0.5, 0.0, 1e6).findings(), FindingId::ConstantNotPositive));
    EXPECT_TRUE(ViscoElasticModel(0.5, 1.0, 1e6).findings().empty());
}

TEST(ViscoElasticity, AnyConstantsGiveACurveOrFindings)
{
    const double values[] = {0.0, 1.0, -1.0, 1e300, -1e300, std::numeric_limits<double>::infinity(), std::nan("")};
    CurveRequest request;
    request.abscissas = {-1.0, 0.0, 1.0, 1e300, std::nan("")};
    request.detail = Detail::Full;
    for (const double g : values) {
        for (const double tau : values) {
            const ViscoElasticModel model(g, tau, g);
            for (const Mode mode : model.modes()) {
                request.mode = mode;
                for (const Column& column : model.curve(request).columns)
                    EXPECT_EQ(column.values.size(), 5U);
            }
        }
    }
}

TEST(ViscoElasticity, VeryHighFrequenciesHaveTheInstantaneousModulus)
{
    const ViscoElasticModel model(0.5, 2.0, 100.0);
    EXPECT_EQ(valueAt(model, Mode::Dynamic, 1e200, Quantity::StorageModulus), 100.0);
    EXPECT_EQ(valueAt(model, Mode::Dynamic, 0.0, Quantity::LossModulus), 0.0);
}

} // namespace
