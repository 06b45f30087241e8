#include "AgreementTable.h"
#include "Calculix.h"
#include "RubberConstants.h"

#include "vxConstitutive/response/HyperelasticModel.h"
#include "vxConstitutive/response/LinearElasticModel.h"
#include "vxConstitutive/response/NortonModel.h"
#include "vxConstitutive/response/PlasticModel.h"
#include "vxConstitutive/response/ViscoElasticModel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

using namespace vxConstitutive;
using vxtest::arrudaBoyce;
using vxtest::deckNumber;
using vxtest::Face;
using vxtest::FaceValue;
using vxtest::largestDifference;
using vxtest::mooneyRivlin;
using vxtest::neoHooke;
using vxtest::recordAgreement;
using vxtest::runCalculix;
using vxtest::SolverModel;
using vxtest::SolverState;
using vxtest::SolverStep;

namespace {

/// The allowed difference between curve and solver, by the largest value of the curve.
constexpr double agreement = 1e-3;

const std::vector<FaceValue> symmetry{{Face::X0, 1, 0.0}, {Face::Y0, 2, 0.0}, {Face::Z0, 3, 0.0}};

std::string rangeText(double from, double to)
{
    return deckNumber(from) + " to " + deckNumber(to);
}

/// Returns the cube that is deformed in a mode up to an abscissa.
SolverModel cubeFor(Mode mode, double abscissa, const std::string& material, bool largeStrain)
{
    const double change = abscissa - 1.0;
    SolverModel model;
    model.materials = {material};
    model.supports = symmetry;
    SolverStep step;
    step.largeStrain = largeStrain;
    step.increment = 0.05;
    step.displacements = {{Face::X1, 1, change}};
    if (mode == Mode::Equibiaxial || mode == Mode::Volumetric)
        step.displacements.push_back({Face::Y1, 2, change});
    if (mode == Mode::Planar)
        step.displacements.push_back({Face::Y1, 2, 0.0});
    if (mode == Mode::Volumetric)
        step.displacements.push_back({Face::Z1, 3, change});
    if (mode == Mode::SimpleShear) {
        model.loaded = Face::Y1;
        model.supports = {
            {Face::Y0, 1, 0.0}, {Face::Y0, 2, 0.0}, {Face::Y0, 3, 0.0}, {Face::Y1, 2, 0.0}, {Face::Y1, 3, 0.0}};
        step.displacements = {{Face::Y1, 1, abscissa}};
    }
    model.steps = {step};
    return model;
}

/// The results of the solver.
struct SolverStates
{
    std::vector<double> abscissas;
    std::vector<double> nominal;
    std::vector<double> trueStress;
    std::vector<double> lateral;
};

/// Runs the solver up to an abscissa and appends its states.
void runTo(Mode mode, double abscissa, const std::string& material, bool largeStrain, SolverStates& solver)
{
    const bool shear = mode == Mode::SimpleShear;
    const double rest = shear ? 0.0 : 1.0;
    for (const SolverState& state : runCalculix(cubeFor(mode, abscissa, material, largeStrain))) {
        solver.abscissas.push_back(rest + (abscissa - rest) * state.time);
        solver.nominal.push_back(state.force[0]);
        solver.trueStress.push_back(shear ? state.stress[3] : state.stress[0]);
        solver.lateral.push_back(1.0 + state.displacement[2]);
    }
}

/// Compares a model and a solver material in one mode, from the unloaded state to both ends of a range.
void compare(const Model& model, const std::string& name, const std::string& material, Mode mode, Range range,
             bool largeStrain = true)
{
    SolverStates solver;
    const double rest = mode == Mode::SimpleShear ? 0.0 : 1.0;
    if (range.from < rest)
        runTo(mode, range.from, material, largeStrain, solver);
    if (range.to > rest)
        runTo(mode, range.to, material, largeStrain, solver);
    ASSERT_GE(solver.abscissas.size(), largeStrain ? 20U : 2U); // a linear analysis has one increment

    CurveRequest request;
    request.mode = mode;
    request.abscissas = solver.abscissas;
    request.detail = Detail::Full;
    const Curve curve = model.curve(request);
    ASSERT_GE(curve.columns.size(), 4U);
    double difference = std::max(largestDifference(curve.columns[1].values, solver.nominal),
                                 largeStrain ? largestDifference(curve.columns[2].values, solver.trueStress) : 0.0);
    if (const auto* lateral = curve.find(Quantity::LateralStretch))
        difference = std::max(difference, largestDifference(*lateral, solver.lateral));
    EXPECT_LE(difference, agreement) << name << ", " << modeRecord(mode).name;
    recordAgreement(
        {name, modeRecord(mode).name, rangeText(range.from, range.to), solver.abscissas.size(), difference, ""});
}

// --- Rubber ---

std::string hyperelasticCard(const HyperelasticConstants& c)
{
    // The solver has no incompressible material. This bulk modulus is the largest with which it converges.
    const double shear = StrainEnergy::mooneyRivlin(c.c10, c.c01, c.c11).initialShearModulus() +
                         (c.kind == ModelKind::ArrudaBoyce ? c.mu : 0.0);
    const std::string d1 = deckNumber(c.d1 > 0.0 ? c.d1 : 2e-7 / shear);
    if (c.kind == ModelKind::NeoHooke)
        return "*HYPERELASTIC,NEO HOOKE\n" + deckNumber(c.c10) + "," + d1 + "\n";
    if (c.kind == ModelKind::ArrudaBoyce)
        return "*HYPERELASTIC,ARRUDA-BOYCE\n" + deckNumber(c.mu) + "," + deckNumber(c.limitingStretch) + "," + d1 +
               "\n";
    if (c.c11 == 0.0)
        return "*HYPERELASTIC,MOONEY-RIVLIN\n" + deckNumber(c.c10) + "," + deckNumber(c.c01) + "," + d1 + "\n";
    // The solver needs the second compressibility; a huge one has no effect.
    return "*HYPERELASTIC,POLYNOMIAL,N=2\n" + deckNumber(c.c10) + "," + deckNumber(c.c01) + ",0.," + deckNumber(c.c11) +
           ",0.," + d1 + ",1e20\n";
}

struct RubberCase
{
    std::string name;
    HyperelasticConstants constants;
    double farthest; ///< stretch in tension
};

void PrintTo(const RubberCase& rubber, std::ostream* stream)
{
    *stream << rubber.name;
}

class RubberAgreement : public ::testing::TestWithParam<RubberCase>
{
protected:
    static void compareIn(Mode mode, Range range)
    {
        const RubberCase& rubber = GetParam();
        compare(HyperelasticModel(rubber.constants), rubber.name, hyperelasticCard(rubber.constants), mode, range);
    }
};

TEST_P(RubberAgreement, UniaxialTensionAndCompression)
{
    compareIn(Mode::Uniaxial, {0.3, GetParam().farthest});
}

TEST_P(RubberAgreement, EquibiaxialTensionAndCompression)
{
    compareIn(Mode::Equibiaxial, {0.6, GetParam().farthest});
}

TEST_P(RubberAgreement, PlanarTensionAndCompression)
{
    compareIn(Mode::Planar, {0.4, GetParam().farthest});
}

TEST_P(RubberAgreement, SimpleShear)
{
    compareIn(Mode::SimpleShear, {-1.0, 3.0});
}

TEST_P(RubberAgreement, Volumetric)
{
    if (GetParam().constants.d1 == 0.0)
        GTEST_SKIP() << "an incompressible material has no volumetric response";
    compareIn(Mode::Volumetric, {0.7, 1.6});
}

INSTANTIATE_TEST_SUITE_P(
    , RubberAgreement,
    ::testing::Values(
        RubberCase{"Neo-Hookean, C10 0.5, incompressible", neoHooke(0.5, 0.0), 5.0},
        RubberCase{"Neo-Hookean, C10 0.5, K/mu 1000", neoHooke(0.5, 2e-3), 5.0},
        RubberCase{"Neo-Hookean, C10 1000, D1 0.001 (K/mu 1)", neoHooke(1000.0, 1e-3), 3.0},
        RubberCase{"Mooney-Rivlin, C10 0.4, C01 0.1, incompressible", mooneyRivlin(0.4, 0.1, 0.0, 0.0), 4.0},
        RubberCase{"Mooney-Rivlin, C10 0.1486, C01 0.4849, D1 0.0789 (K/mu 20)",
                   mooneyRivlin(0.1486, 0.4849, 0.0, 0.0789), 3.0},
        RubberCase{"Mooney-Rivlin, C10 0.3, C01 0.05, C11 0.02, incompressible", mooneyRivlin(0.3, 0.05, 0.02, 0.0),
                   4.0},
        RubberCase{"Mooney-Rivlin, C10 0.3, C01 0.05, C11 0.02, K/mu 10", mooneyRivlin(0.3, 0.05, 0.02, 0.2 / 0.7),
                   3.0},
        RubberCase{"Arruda-Boyce, Mu 0.288, lm 4.73, incompressible", arrudaBoyce(0.288, 4.73, 0.0), 6.0},
        RubberCase{"Arruda-Boyce, Mu 0.71, lm 1.7029, D1 0.1408 (K/mu 15)", arrudaBoyce(0.71, 1.7029, 0.1408), 2.5},
        RubberCase{"Arruda-Boyce, Mu 1, lm 3, D1 0.5 (K/mu 4)", arrudaBoyce(1.0, 3.0, 0.5), 4.0}));

// --- Metals ---

std::string elasticCard(double modulus, double poisson)
{
    return "*ELASTIC\n" + deckNumber(modulus) + "," + deckNumber(poisson) + "\n";
}

std::string plasticCard(const std::vector<HardeningPoint>& points)
{
    std::string card = "*PLASTIC\n";
    for (const HardeningPoint& point : points)
        card += deckNumber(point.stress) + "," + deckNumber(point.plasticStrain) + "\n";
    return card;
}

TEST(ElasticAgreement, HookesLawInAllModes)
{
    const LinearElasticModel model(200000.0, 0.3);
    for (const Mode mode : model.modes()) {
        const double rest = mode == Mode::SimpleShear ? 0.0 : 1.0;
        compare(model, "linear elasticity, E 200000, nu 0.3", elasticCard(200000.0, 0.3), mode,
                {rest - 0.01, rest + 0.01}, false);
    }
}

struct MetalCase
{
    std::string name;
    double youngsModulus;
    double poissonsRatio;
    std::vector<HardeningPoint> points; ///< of the card
    double hardeningModulus;            ///< 0 for a multilinear curve
    double farthest;                    ///< engineering strain
};

void PrintTo(const MetalCase& metal, std::ostream* stream)
{
    *stream << metal.name;
}

class MetalAgreement : public ::testing::TestWithParam<MetalCase>
{
protected:
    MetalAgreement() : m_metal(GetParam()) {}

    std::vector<SolverState> stretched(double increment) const
    {
        const double strain = m_metal.farthest;
        SolverModel model =
            cubeFor(Mode::Uniaxial, 1.0 + strain,
                    elasticCard(m_metal.youngsModulus, m_metal.poissonsRatio) + plasticCard(m_metal.points), true);
        model.steps.front().increment = increment;
        return runCalculix(model);
    }

    /// Extrapolates to infinitely short increments: the error of an increment is proportional to its length.
    std::vector<SolverState> exactlyStretched(double increment) const
    {
        std::vector<SolverState> coarse = stretched(increment);
        const std::vector<SolverState> fine = stretched(increment / 2.0);
        EXPECT_EQ(fine.size(), 2 * coarse.size());
        for (std::size_t i = 0; i < coarse.size() && 2 * i + 1 < fine.size(); ++i) {
            coarse[i].force[0] = 2.0 * fine[2 * i + 1].force[0] - coarse[i].force[0];
            coarse[i].plasticStrain = 2.0 * fine[2 * i + 1].plasticStrain - coarse[i].plasticStrain;
        }
        return coarse;
    }

    PlasticModel model() const
    {
        const ElasticConstants elastic{m_metal.youngsModulus, m_metal.poissonsRatio};
        return m_metal.hardeningModulus > 0.0
                   ? PlasticModel(m_metal.points.front().stress, m_metal.hardeningModulus, elastic)
                   : PlasticModel(m_metal.points, elastic);
    }

    const MetalCase& m_metal;
};

TEST_P(MetalAgreement, TrueStressAgainstPlasticStrain)
{
    CurveRequest request;
    request.mode = Mode::Plastic;
    std::vector<double> stress;
    for (const SolverState& state : stretched(0.01)) {
        if (state.plasticStrain == 0.0)
            continue;
        request.abscissas.push_back(state.plasticStrain);
        stress.push_back(state.stress[0]);
    }
    const double difference = largestDifference(model().curve(request).columns[1].values, stress);
    EXPECT_LE(difference, agreement);
    recordAgreement({m_metal.name, "true stress against plastic strain", rangeText(0.0, m_metal.farthest),
                     stress.size(), difference, ""});
}

TEST_P(MetalAgreement, EngineeringStressOfATensileTest)
{
    CurveRequest request;
    request.mode = Mode::Tensile;
    std::vector<double> stress;
    const std::vector<SolverState> states = exactlyStretched(0.02);
    for (const SolverState& state : states) {
        request.abscissas.push_back(m_metal.farthest * state.time);
        stress.push_back(state.force[0]);
    }
    request.detail = Detail::Full;
    const Curve curve = model().curve(request);
    const double difference = largestDifference(curve.columns[1].values, stress);

    // The flow rule of the solver uses the trace of the elastic stretches in place of the stretches. Its plastic strain is
    // therefore larger by the deviatoric elastic strain, 2 (1 + nu)/3 sigma/E, which is visible at large strains.
    const std::vector<double>& plasticStrain = *curve.find(Quantity::PlasticStrain);
    double counted = 0.0;
    for (std::size_t i = 1; i < states.size(); ++i) {
        const double elastic =
            (curve.columns[2].values[i] + curve.columns[2].values[i - 1]) / 2.0 / m_metal.youngsModulus;
        counted += 2.0 * (1.0 + m_metal.poissonsRatio) / 3.0 * elastic * (plasticStrain[i] - plasticStrain[i - 1]);
    }
    const double excess = states.back().plasticStrain - plasticStrain.back();
    EXPECT_NEAR(excess, counted, 0.05 * counted);

    const bool remarked = difference > agreement;
    EXPECT_LE(difference, remarked ? 2.0 * agreement : agreement);
    EXPECT_EQ(remarked, m_metal.farthest > 0.2);
    recordAgreement(
        {m_metal.name, "engineering stress against engineering strain", rangeText(0.0, m_metal.farthest), stress.size(),
         difference,
         remarked ? "the solver's plastic strain grows by 2 (1 + nu)/3 sigma/E more than ln(1 + e) - sigma/E" : ""});
}

INSTANTIATE_TEST_SUITE_P(
    , MetalAgreement,
    ::testing::Values(
        MetalCase{"Mises, bilinear, E 200000, nu 0.3, 250, H 1450",
                  200000.0,
                  0.3,
                  {{0.0, 250.0}, {1.0, 1700.0}},
                  1450.0,
                  0.1},
        MetalCase{"Mises, bilinear to large strain, E 200000, nu 0.3, 250, H 1450",
                  200000.0,
                  0.3,
                  {{0.0, 250.0}, {1.0, 1700.0}},
                  1450.0,
                  0.3},
        MetalCase{"Mises, multilinear, E 206900, nu 0.29, 450 to 780",
                  206900.0,
                  0.29,
                  {{0.0, 450.0}, {0.05, 608.0}, {0.1, 679.0}, {0.2, 732.0}, {0.3, 752.0}, {0.4, 766.0}, {0.5, 780.0}},
                  0.0,
                  0.1}));

TEST(NeckingAgreement, TheForceInTheSolverIsLargestWhereTheCurveNecks)
{
    const std::vector<HardeningPoint> points{{0.0, 450.0}, {0.05, 608.0}, {0.1, 679.0}, {0.2, 732.0}};
    SolverModel cube = cubeFor(Mode::Uniaxial, 1.2, elasticCard(206900.0, 0.29) + plasticCard(points), true);
    cube.steps.front().increment = 0.005;
    double largest = 0.0;
    double where = 0.0;
    for (const SolverState& state : runCalculix(cube)) {
        if (state.force[0] > largest) {
            largest = state.force[0];
            where = 0.2 * state.time;
        }
    }
    const auto neck = PlasticModel(points, ElasticConstants{206900.0, 0.29}).necking();
    ASSERT_TRUE(neck.has_value());
    EXPECT_NEAR(neck->engineeringStrain, where, 0.001); // an increment
    EXPECT_NEAR(neck->engineeringStress, largest, agreement * largest);
    recordAgreement({"Mises, multilinear, E 206900, nu 0.29, 450 to 732", "engineering stress at necking", "0 to 0.2",
                     1, std::fabs(neck->engineeringStress - largest) / largest, ""});
}

// --- Creep ---

/// Returns time and creep strain at the end of each increment of a creep step that begins at the time `begin`.
std::vector<std::pair<double, double>> creepStrains(double a, double n, double m, double stress, double begin,
                                                    double duration, int increments)
{
    SolverModel model;
    model.materials = {elasticCard(200000.0, 0.3) + "*CREEP\n" + deckNumber(a) + "," + deckNumber(n) + "," +
                       deckNumber(m) + "\n"};
    model.supports = symmetry;
    SolverStep load;
    load.increment = begin;
    load.duration = begin;
    load.forces = {{Face::X1, 1, stress}};
    SolverStep creep;
    creep.creeps = true;
    creep.increment = duration / increments;
    creep.duration = duration;
    model.steps = {load, creep};
    std::vector<std::pair<double, double>> strains;
    for (const SolverState& state : runCalculix(model)) {
        if (state.time > begin * 1.000001)
            strains.emplace_back(state.time, state.plasticStrain);
    }
    return strains;
}

/// Extrapolates to infinitely short increments: the error of an increment is proportional to its length.
std::vector<std::pair<double, double>> exactCreepStrains(double a, double n, double m, double stress, double begin,
                                                         double duration, int increments)
{
    auto coarse = creepStrains(a, n, m, stress, begin, duration, increments);
    const auto fine = creepStrains(a, n, m, stress, begin, duration, 2 * increments);
    EXPECT_EQ(fine.size(), 2 * coarse.size());
    for (std::size_t i = 0; i < coarse.size() && 2 * i + 1 < fine.size(); ++i)
        coarse[i].second = 2.0 * fine[2 * i + 1].second - coarse[i].second;
    return coarse;
}

void compareCreep(double a, double n, double m, const std::vector<double>& stresses)
{
    // The solver counts the time from the start of the analysis. The comparison is of the strain since the load.
    const double begin = m == 0.0 ? 1e-6 : 1.0;
    constexpr double duration = 9.0;
    double largest = 0.0;
    std::size_t points = 0;
    for (const double stress : stresses) {
        const auto strains = exactCreepStrains(a, n, m, stress, begin, duration, 50);
        CurveRequest request;
        request.mode = Mode::Creep;
        request.stresses = {stress};
        request.abscissas = {begin};
        std::vector<double> solver;
        for (const auto& [time, strain] : strains) {
            request.abscissas.push_back(time);
            solver.push_back(strain);
        }
        std::vector<double> curve = NortonModel(a, n, m).curve(request).columns[1].values;
        const double first = curve.front();
        curve.erase(curve.begin());
        for (double& strain : curve)
            strain -= first;
        points += curve.size();
        largest = std::max(largest, largestDifference(curve, solver));
    }
    EXPECT_LE(largest, agreement);
    const std::string name = "Norton, A " + deckNumber(a) + ", n " + deckNumber(n) + ", m " + deckNumber(m);
    recordAgreement({name, "creep strain against time, " + std::to_string(stresses.size()) + " stresses",
                     rangeText(begin, begin + duration), points, largest, ""});
}

TEST(CreepAgreement, SecondaryCreepAtSeveralStresses)
{
    compareCreep(1e-14, 5.0, 0.0, {60.0, 100.0, 140.0});
}

TEST(CreepAgreement, PrimaryCreepWithATimeExponent)
{
    compareCreep(1e-14, 5.0, -0.3, {80.0, 120.0});
    compareCreep(2e-10, 3.0, -0.6, {50.0, 100.0});
}

// --- Visco-elasticity ---

/// Returns two elements on the same nodes: one is elastic, the second creeps in proportion to its stress. Together they are
/// a solid with the instantaneous modulus `modulus`, of which the part `ratio` relaxes with the time `time`.
SolverModel standardSolid(double modulus, double poisson, double ratio, double time)
{
    const double relaxing = ratio * modulus / (2.0 * (1.0 + poisson));
    SolverModel model;
    model.materials = {elasticCard(modulus * (1.0 - ratio), poisson),
                       elasticCard(modulus * ratio, poisson) + "*CREEP\n" + deckNumber(1.0 / (3.0 * relaxing * time)) +
                           ",1.,0.\n"};
    model.loaded = Face::Y1;
    model.supports = {
        {Face::Y0, 1, 0.0}, {Face::Y0, 2, 0.0}, {Face::Y0, 3, 0.0}, {Face::Y1, 2, 0.0}, {Face::Y1, 3, 0.0}};
    return model;
}

constexpr double shortly = 1e-6;

/// Returns a quantity of each state after the load of a standard solid, extrapolated to infinitely short increments.
template <class Value>
std::vector<std::pair<double, double>> hold(SolverModel model, SolverStep load, double duration, Value value)
{
    std::vector<std::pair<double, double>> results[2];
    for (const int refinement : {0, 1}) {
        SolverStep creep = load;
        creep.creeps = true;
        creep.duration = duration;
        creep.increment = duration / (refinement == 0 ? 50.0 : 100.0);
        load.increment = shortly;
        load.duration = shortly;
        model.steps = {load, creep};
        for (const SolverState& state : runCalculix(model)) {
            if (state.time > 2.0 * shortly)
                results[refinement].emplace_back(state.time - shortly, value(state));
        }
    }
    EXPECT_EQ(results[1].size(), 2 * results[0].size());
    for (std::size_t i = 0; i < results[0].size() && 2 * i + 1 < results[1].size(); ++i)
        results[0][i].second = 2.0 * results[1][2 * i + 1].second - results[0][i].second;
    return results[0];
}

void compareViscoElasticity(double ratio, double time, Mode mode)
{
    const double modulus = 1000.0;
    const double poisson = 0.3;
    const double amount = 0.01;
    const double duration = 4.0 * time;
    SolverStep load;
    std::vector<std::pair<double, double>> solver;
    if (mode == Mode::Relaxation) {
        load.displacements = {{Face::Y1, 1, amount}};
        solver = hold(standardSolid(modulus, poisson, ratio, time), load, duration,
                      [=](const SolverState& state) { return state.force[0] / amount; });
    } else {
        load.forces = {{Face::Y1, 1, 1.0}};
        solver = hold(standardSolid(modulus, poisson, ratio, time), load, duration,
                      [](const SolverState& state) { return state.displacement[0]; });
    }
    CurveRequest request;
    request.mode = mode;
    std::vector<double> values;
    for (const auto& [at, value] : solver) {
        request.abscissas.push_back(at);
        values.push_back(value);
    }
    const ViscoElasticModel model(ratio, time, modulus / (2.0 * (1.0 + poisson)));
    const double difference = largestDifference(model.curve(request).columns[1].values, values);
    EXPECT_LE(difference, agreement);
    recordAgreement({"visco-elasticity, g " + deckNumber(ratio) + ", tau " + deckNumber(time), modeRecord(mode).name,
                     rangeText(0.0, duration), values.size(), difference, ""});
}

TEST(ViscoElasticAgreement, RelaxationOfTheShearModulus)
{
    compareViscoElasticity(0.5, 1.0, Mode::Relaxation);
    compareViscoElasticity(0.9, 20.0, Mode::Relaxation);
}

TEST(ViscoElasticAgreement, CreepInShear)
{
    compareViscoElasticity(0.5, 1.0, Mode::ShearCreep);
    compareViscoElasticity(0.2, 0.1, Mode::ShearCreep);
}

} // namespace
