#include "Contest.h"

#include "vxConstitutive/data/TestReading.h"
#include "vxConstitutive/data/UnitFactor.h"
#include "vxConstitutive/fit/HyperelasticFit.h"
#include "vxConstitutive/fit/PlasticFit.h"
#include "vxConstitutive/response/HyperelasticModel.h"

#include <algorithm>
#include <array>
#include <ceres/ceres.h>
#include <chrono>
#include <cmath>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace vxConstitutive;
using vxbench::timed;

namespace {

/// Returns a side that takes the whole budget, so that the ratio is the used part of it.
vxbench::Measured budget(std::chrono::nanoseconds time)
{
    return [time] { return time; };
}

void addBudget(const std::string& name, const vxbench::Measured& ours, std::chrono::nanoseconds time)
{
    vxbench::addContest({name, ours, budget(time), 1.0, false});
}

// --- Curves ---

HyperelasticConstants rubber(ModelKind kind, double d1)
{
    HyperelasticConstants constants;
    constants.kind = kind;
    constants.c10 = 0.19e6;
    constants.c01 = 0.01e6;
    constants.c11 = 1e3;
    constants.mu = 0.288e6;
    constants.limitingStretch = 4.73;
    constants.d1 = d1;
    return constants;
}

vxbench::Measured curveOf(ModelKind kind, double d1, Mode mode)
{
    auto model = std::make_shared<HyperelasticModel>(rubber(kind, d1));
    CurveRequest request;
    request.mode = mode;
    request.abscissas = evenlySpaced(0.5, 4.0, 200);
    request.detail = Detail::Full;
    return [model, request] { return timed([&] { return model->curve(request); }); };
}

void addCurveContests()
{
    using namespace std::chrono_literals;
    const std::vector<ModelKind> kinds{ModelKind::NeoHooke, ModelKind::MooneyRivlin, ModelKind::ArrudaBoyce};
    for (const ModelKind kind : kinds) {
        for (const Mode mode : {Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar}) {
            const std::string name = std::string(modelRecord(kind).key) + " " + modeRecord(mode).key;
            addBudget("curve of 200 points, " + name, curveOf(kind, 0.0, mode), 1ms);
            addBudget("curve with D1, " + name, curveOf(kind, 1e-9, mode), 5ms);
        }
    }
}

// --- Fits ---

TestData readTest(const std::string& file, Mode mode)
{
    std::ifstream stream(std::string(VX_RUBBER_DATA) + "/" + file);
    const std::string text((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    TestReadRequest request;
    request.name = file;
    request.mode = mode;
    return takeTest(readTestTable(text, unitFactor), request, unitFactor).data.value();
}

HyperelasticFitRequest treloar(std::vector<HyperelasticForm> forms)
{
    HyperelasticFitRequest request;
    request.tests = {readTest("treloar-uniaxial.csv", Mode::Uniaxial),
                     readTest("treloar-equibiaxial.csv", Mode::Equibiaxial),
                     readTest("treloar-planar.csv", Mode::Planar)};
    request.forms = std::move(forms);
    return request;
}

vxbench::Measured fit(const HyperelasticFitRequest& request)
{
    return [request] { return timed([&] { return fitHyperelastic(request); }); };
}

/// A point of the plain fits. Its residual is the difference by the largest stress of the test, so that all tests have equal
/// weight.
struct PlainPoint
{
    double neoHooke;  ///< stress of C10 = 1
    double second;    ///< stress of C01 = 1
    double invariant; ///< I1
    double stress;
    double factor;
};

std::vector<PlainPoint> plainPoints(const HyperelasticFitRequest& request)
{
    std::vector<PlainPoint> points;
    for (const TestData& test : request.tests) {
        const double largest = *std::max_element(test.ordinates.begin(), test.ordinates.end());
        const double factor = 1.0 / largest / std::sqrt(3.0 * static_cast<double>(test.abscissas.size()));
        for (std::size_t i = 0; i < test.abscissas.size(); ++i) {
            const double l = test.abscissas[i];
            const double square = l * l;
            const double power = test.mode == Mode::Uniaxial ? 2.0 : test.mode == Mode::Equibiaxial ? 5.0 : 3.0;
            const double stress = 2.0 * (l - std::pow(l, -power));
            const double second = test.mode == Mode::Uniaxial      ? stress / l
                                  : test.mode == Mode::Equibiaxial ? stress * square
                                                                   : stress;
            const double invariant = test.mode == Mode::Uniaxial      ? square + 2.0 / l
                                     : test.mode == Mode::Equibiaxial ? 2.0 * square + 1.0 / (square * square)
                                                                      : square + 1.0 + 1.0 / square;
            points.push_back({stress, second, invariant, test.ordinates[i], factor});
        }
    }
    return points;
}

/// One residual of Mooney-Rivlin, in units of MPa.
class PlainMooney final : public ceres::SizedCostFunction<1, 2>
{
public:
    explicit PlainMooney(const PlainPoint& point) : m_point(point) {}
    bool Evaluate(double const* const* c, double* residual, double** jacobians) const override
    {
        const double a = 1e6 * m_point.factor * m_point.neoHooke;
        const double b = 1e6 * m_point.factor * m_point.second;
        *residual = a * c[0][0] + b * c[0][1] - m_point.factor * m_point.stress;
        if (jacobians != nullptr && jacobians[0] != nullptr) {
            jacobians[0][0] = a;
            jacobians[0][1] = b;
        }
        return true;
    }

private:
    PlainPoint m_point;
};

/// One residual of Arruda-Boyce with the parameters mu (MPa) and limiting stretch.
class PlainArrudaBoyce final : public ceres::SizedCostFunction<1, 2>
{
public:
    explicit PlainArrudaBoyce(const PlainPoint& point) : m_point(point) {}
    bool Evaluate(double const* const* c, double* residual, double** jacobians) const override
    {
        const double limit = c[0][1];
        const double u = m_point.invariant / (limit * limit);
        const double series = 0.5 + u * (0.1 + u * (33.0 / 1050.0 + u * (76.0 / 7000.0 + u * 2595.0 / 673750.0)));
        const double slope = 0.1 + u * (66.0 / 1050.0 + u * (228.0 / 7000.0 + u * 10380.0 / 673750.0));
        const double scale = 1e6 * m_point.factor * m_point.neoHooke;
        *residual = scale * c[0][0] * series - m_point.factor * m_point.stress;
        if (jacobians != nullptr && jacobians[0] != nullptr) {
            jacobians[0][0] = scale * series;
            jacobians[0][1] = scale * c[0][0] * slope * -2.0 * u / limit;
        }
        return true;
    }

private:
    PlainPoint m_point;
};

/// Minimises by the Levenberg-Marquardt method of Ceres with its default options, from one start.
template <class Cost>
double solvePlainly(const std::vector<PlainPoint>& points, std::array<double, 2> start)
{
    ceres::Problem problem;
    for (const PlainPoint& point : points)
        problem.AddResidualBlock(new Cost(point), nullptr, start.data());
    ceres::Solver::Options options;
    options.linear_solver_type = ceres::DENSE_QR;
    options.logging_type = ceres::SILENT;
    ceres::Solver::Summary summary;
    ceres::Solve(options, &problem, &summary);
    return summary.final_cost;
}

template <class Cost>
vxbench::Measured plainFit(const HyperelasticFitRequest& request, std::array<double, 2> start)
{
    const std::vector<PlainPoint> points = plainPoints(request);
    return [points, start] { return timed([&] { return solvePlainly<Cost>(points, start); }); };
}

void addFitContests()
{
    using namespace std::chrono_literals;
    addBudget("fit of all models to three tests", fit(treloar(hyperelasticForms())), 1s);

    // Ours is solved directly. It also computes standard errors, stability and agreement.
    const HyperelasticFitRequest mooney = treloar({HyperelasticForm::MooneyRivlin});
    vxbench::addContest(
        {"mooney-rivlin against a plain fit", fit(mooney), plainFit<PlainMooney>(mooney, {1.0, 1.0}), 0.0});
    // Ours starts from the best of 24 limiting stretches, the plain fit from one.
    const HyperelasticFitRequest chains = treloar({HyperelasticForm::ArrudaBoyce});
    vxbench::addContest({"arruda-boyce, best of 24 starts, against a plain fit of one", fit(chains),
                         plainFit<PlainArrudaBoyce>(chains, {0.3, 6.0}), 0.0});
}

// --- Data ---

void addDataContests()
{
    using namespace std::chrono_literals;
    auto text = std::make_shared<std::string>("strain [-];stress [MPa]\n");
    for (int i = 0; i < 100000; ++i)
        *text += std::to_string(i * 1e-6) + ";" + std::to_string(i * 0.001) + "\n";
    addBudget(
        "read a table of 100,000 lines", [text] { return timed([&] { return readTestTable(*text, {}); }); }, 1s);

    PlasticFitRequest request;
    TestData test;
    test.mode = Mode::Plastic;
    test.abscissas = evenlySpaced(0.0, 0.5, 100000);
    for (const double strain : test.abscissas)
        test.ordinates.push_back(300e6 + 500e6 * std::pow(strain, 0.3));
    request.tests = {test};
    addBudget(
        "reduce a hardening curve of 100,000 points",
        [request] { return timed([&] { return fitMultilinear(request); }); }, 1s);
}

} // namespace

int main(int argc, char** argv)
{
    addCurveContests();
    addFitContests();
    addDataContests();
    return vxbench::runContests(argc, argv);
}
