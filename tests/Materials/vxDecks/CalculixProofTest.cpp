#include "RandomMaterials.h"
#include "ReadingTesting.h"
#include "RunTable.h"
#include "TwinModel.h"

#include "vxConstitutive/MaterialModels.h"
#include "vxDecks/Mapping.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/MaterialValues.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

// The decks of the built-in materials and of random ones are run, and compared with the curves that users see.

namespace {

using Id = vxMat::PropertyId;
using vxConstitutive::CurveRequest;
using vxConstitutive::MaterialModels;
using vxConstitutive::Mode;
using vxConstitutive::ModelKind;
using vxtest::MadeMaterial;
using vxtest::Numbers;
using vxtest::Physics;
using vxtest::TwinRequest;
using vxtest::TwinRun;
using vxtest::TwinState;

using States = std::vector<TwinState>;

/// The largest difference of both unit systems, and the largest deviation from a curve.
constexpr double alike = 1e-9;
constexpr double agreement = 1e-3;

/// A material that is run, and its models.
struct Specimen
{
    explicit Specimen(const vxMat::MaterialBase& one)
        : material(&one), values(one), models(vxConstitutive::modelsOf(one))
    {}

    double number(std::int32_t id) const { return values.number(id).value_or(0.0); }
    double youngsModulus() const { return number(Id::YoungsModulus); }
    double poissonsRatio() const { return number(Id::PoissonsRatio); }
    bool has(ModelKind kind) const { return models.find(kind) != nullptr; }

    const vxMat::MaterialBase* material;
    vxUnits::MaterialValues values;
    MaterialModels models;
};

/// Returns whether the deck of a material has all its quantities.
bool isComplete(const Specimen& one)
{
    const vxDecks::Deck deck = vxtest::deckOf(vxDecks::Format::Calculix, *one.material, "mm-t-s");
    return vxDecks::countRefused(deck.report) == 0;
}

/// The materials of an analysis.
struct Group
{
    std::vector<MadeMaterial> made;
    std::vector<vxDecks::ReadMaterial> read;
    std::vector<Specimen> specimens;
    std::size_t builtIn = 0;
    std::size_t ofCorpus = 0;

    using Choice = std::function<bool(const Specimen&)>;
    using Maker = MadeMaterial (*)(Numbers&);

    /// Adds the built-in materials that a function chooses.
    void addBuiltIn(const Choice& isChosen)
    {
        for (const vxMat::MaterialBase* const material : vxtest::libraryMaterials()) {
            Specimen specimen(*material);
            if (isChosen(specimen))
                specimens.push_back(std::move(specimen));
        }
        builtIn = specimens.size();
    }

    /// Adds the materials of decks as people write them that a function chooses, and whose decks refuse nothing.
    void addCorpus(const Choice& isChosen)
    {
        read = vxtest::readCorpus();
        for (const vxDecks::ReadMaterial& one : read) {
            Specimen specimen(*one.material);
            if (!isChosen(specimen) || !isComplete(specimen))
                continue;
            specimens.push_back(std::move(specimen));
            ++ofCorpus;
        }
    }

    void addRandom(Maker make, int count)
    {
        Numbers numbers(static_cast<std::uint32_t>(count));
        for (int i = 0; i < count; ++i) {
            made.push_back(make(numbers));
            specimens.emplace_back(made.back()->get());
        }
    }
};

/// Returns the values of a quantity in a curve.
std::vector<double> curveOf(const vxConstitutive::Model& model, const CurveRequest& request,
                            vxConstitutive::Quantity quantity)
{
    const vxConstitutive::Curve curve = model.curve(request);
    const std::vector<double>* const values = curve.find(quantity);
    EXPECT_NE(values, nullptr) << vxConstitutive::modelRecord(model.kind()).name;
    return values == nullptr ? std::vector<double>() : *values;
}

/// Returns the true stress at a plastic strain.
double hardenedStress(const Specimen& one, double plasticStrain)
{
    CurveRequest request;
    request.mode = Mode::Plastic;
    request.abscissas = {plasticStrain};
    return curveOf(*one.models.find(ModelKind::MisesPlasticity), request, vxConstitutive::Quantity::TrueStress).at(0);
}

/// Returns whether the deck of a material has no other keywords than these.
bool hasOnly(const Specimen& one, const std::set<std::string>& keywords)
{
    std::istringstream deck(vxtest::deckOf(vxDecks::Format::Calculix, *one.material, "mm-t-s").text);
    for (std::string line; std::getline(deck, line);) {
        const bool isKeyword = line.size() > 1 && line[0] == '*' && line[1] != '*';
        if (isKeyword && keywords.count(line.substr(0, line.find(','))) == 0)
            return false;
    }
    return true;
}

bool isOnlyElastic(const Specimen& one)
{
    return one.has(ModelKind::LinearElasticity) && !one.has(ModelKind::MisesPlasticity) &&
           !one.has(ModelKind::NortonCreep);
}

Group elasticGroup()
{
    Group group;
    group.addBuiltIn(isOnlyElastic);
    group.addCorpus([](const Specimen& one) {
        return isOnlyElastic(one) && one.poissonsRatio() > 0.0 && hasOnly(one, {"*MATERIAL", "*ELASTIC", "*DENSITY"});
    });
    group.addRandom(vxtest::makeElastic, 60);
    return group;
}

bool isPlastic(const Specimen& one)
{
    return one.has(ModelKind::MisesPlasticity);
}

Group plasticGroup()
{
    Group group;
    group.addBuiltIn(isPlastic);
    group.addCorpus([](const Specimen& one) {
        return isPlastic(one) && one.poissonsRatio() > 0.0 && std::isfinite(hardenedStress(one, 0.03)) &&
               hardenedStress(one, 0.03) > hardenedStress(one, 0.002) &&
               hasOnly(one, {"*MATERIAL", "*ELASTIC", "*DENSITY", "*PLASTIC"});
    });
    group.addRandom(vxtest::makeBilinear, 40);
    group.addRandom(vxtest::makeMultilinear, 41);
    return group;
}

bool isKinematic(const Specimen& one)
{
    return one.has(ModelKind::LinearElasticity) && one.values.has(Id::PlasticHardeningFactor) &&
           one.material->getPropertyText(Id::PlasticHardeningType) == "Kinematic";
}

Group kinematicGroup()
{
    Group group;
    group.addCorpus([](const Specimen& one) {
        return isKinematic(one) && hasOnly(one, {"*MATERIAL", "*ELASTIC", "*DENSITY", "*PLASTIC"});
    });
    group.addRandom(vxtest::makeKinematic, 20);
    return group;
}

bool isRubber(const Specimen& one)
{
    return one.has(ModelKind::NeoHooke) || one.has(ModelKind::MooneyRivlin) || one.has(ModelKind::ArrudaBoyce);
}

const vxConstitutive::Model& rubberOf(const Specimen& one)
{
    return *one.models.find(Mode::Uniaxial);
}

bool isOnlyRubber(const Specimen& one)
{
    return isRubber(one) && hasOnly(one, {"*MATERIAL", "*HYPERELASTIC", "*DENSITY"});
}

std::vector<double> nominalStresses(const Specimen& one, std::vector<double> stretches)
{
    CurveRequest request;
    request.abscissas = std::move(stretches);
    return curveOf(rubberOf(one), request, vxConstitutive::Quantity::NominalStress);
}

/// Returns the nominal stresses of the loads of rubber.
std::vector<double> rubberLoads(const Specimen& one)
{
    return nominalStresses(one, {1.1, 1.4, 0.85});
}

std::vector<double> stretchingLoads(const Specimen& one)
{
    return nominalStresses(one, {1.1, 1.25, 1.4});
}

bool stiffens(const std::vector<double>& loads)
{
    return loads.at(2) < 0.0 && loads.at(0) > 0.0 && loads.at(1) > loads.at(0);
}

Group rubberGroup()
{
    Group group;
    group.addBuiltIn(isRubber);
    group.addCorpus([](const Specimen& one) {
        return isOnlyRubber(one) && one.number(Id::IncompressibilityParameterD1) > 0.0 &&
               !one.values.has(Id::MaterialConstantC11) && stiffens(rubberLoads(one));
    });
    group.addRandom(vxtest::makeNeoHooke, 30);
    group.addRandom(vxtest::makeMooneyRivlin, 50);
    group.addRandom(vxtest::makeArrudaBoyce, 31);
    return group;
}

/// The rubbers of the corpus with C11. They have bulk moduli of 1000 shear moduli, with which the solver ends at another stretch
/// after the way back from tension to compression; they are stretched only.
Group stretchedGroup()
{
    Group group;
    group.addCorpus([](const Specimen& one) {
        return isOnlyRubber(one) && one.number(Id::IncompressibilityParameterD1) > 0.0 &&
               one.values.has(Id::MaterialConstantC11);
    });
    return group;
}

Group incompressibleGroup()
{
    Group group;
    group.addCorpus([](const Specimen& one) {
        return isOnlyRubber(one) && one.number(Id::IncompressibilityParameterD1) == 0.0 && stiffens(rubberLoads(one));
    });
    group.addRandom(vxtest::makeIncompressible, 30);
    return group;
}

bool isCreeping(const Specimen& one)
{
    return one.has(ModelKind::NortonCreep);
}

Group creepGroup()
{
    Group group;
    group.addBuiltIn(isCreeping);
    group.addRandom(vxtest::makeCreepingSoftly, 30);
    return group;
}

Group creepingMetalGroup()
{
    Group group;
    group.addCorpus([](const Specimen& one) {
        return isCreeping(one) && hasOnly(one, {"*MATERIAL", "*ELASTIC", "*CREEP", "*DENSITY"});
    });
    group.addRandom(vxtest::makeCreepingMetal, 20);
    return group;
}

bool isConducting(const Specimen& one)
{
    return one.values.has(Id::Density) && one.values.has(Id::SpecificHeat) && one.values.has(Id::ThermalConductivity);
}

Group heatGroup()
{
    Group group;
    group.addBuiltIn(isConducting);
    group.addCorpus(isConducting);
    group.addRandom(vxtest::makeConducting, 60);
    return group;
}

/// Returns the largest difference of two lists by the largest value of the first.
double deviationOf(const std::vector<double>& expected, const std::vector<double>& measured)
{
    EXPECT_EQ(expected.size(), measured.size());
    double largest = 0.0;
    double deviation = 0.0;
    for (std::size_t i = 0; i < std::min(expected.size(), measured.size()); ++i) {
        EXPECT_TRUE(std::isfinite(expected[i]) && std::isfinite(measured[i])) << expected[i] << " and " << measured[i];
        largest = std::max(largest, std::abs(expected[i]));
        deviation = std::max(deviation, std::abs(expected[i] - measured[i]));
    }
    EXPECT_GT(largest, 0.0);
    return deviation / largest;
}

/// Returns the deviation of the nominal stress from the curve of uniaxial tension.
double tensionDeviation(const vxConstitutive::Model& model, const std::vector<double>& loads, const States& states)
{
    CurveRequest request;
    for (const TwinState& state : states)
        request.abscissas.push_back(1.0 + state.value);
    return deviationOf(curveOf(model, request, vxConstitutive::Quantity::NominalStress), loads);
}

/// Returns the deviation of the strains across the load.
double lateralDeviation(const std::vector<double>& expected, const States& states)
{
    std::vector<double> lateral;
    for (const TwinState& state : states)
        lateral.push_back(state.lateral);
    return deviationOf(expected, lateral);
}

/// Returns a run with the loads of each specimen.
template <class Loads>
TwinRequest requestOf(const Group& group, Physics physics, Loads loadsOf)
{
    TwinRequest request;
    request.physics = physics;
    for (const Specimen& one : group.specimens)
        request.twins.push_back({one.material, loadsOf(one)});
    return request;
}

/// Runs several requests of the same materials, and returns the states of all of them.
TwinRun runAll(const std::vector<TwinRequest>& requests)
{
    TwinRun all = runTwins(requests.at(0));
    for (std::size_t i = 1; i < requests.size(); ++i) {
        const TwinRun run = runTwins(requests[i]);
        all.succeeded = all.succeeded && run.succeeded;
        all.log += run.log;
        all.refused += run.refused;
        for (std::size_t twin = 0; twin < all.states.size(); ++twin)
            all.states[twin].insert(all.states[twin].end(), run.states[twin].begin(), run.states[twin].end());
    }
    return all;
}

/// The analysis of a group, and the reference of its results.
struct Proof
{
    std::string analysis;
    const Group& group;
    std::vector<TwinRequest> requests;
    std::string reference;
    double limit = agreement; ///< of the deviation from the reference
    std::size_t refused = 0;  ///< number of quantities that the decks of each unit system refuse
};

/// Runs the decks and records the largest deviation, which a function returns for each specimen, its loads and its states.
template <class Deviation>
void prove(const Proof& proof, Deviation deviation)
{
    const std::vector<Specimen>& specimens = proof.group.specimens;
    const TwinRun run = runAll(proof.requests);
    ASSERT_TRUE(run.succeeded) << run.log;
    EXPECT_EQ(run.refused, 2 * proof.requests.size() * proof.refused) << "the decks are not complete";
    double largest = 0.0;
    for (std::size_t i = 0; i < specimens.size(); ++i) {
        SCOPED_TRACE(specimens[i].material->name);
        std::vector<double> loads;
        for (const TwinRequest& request : proof.requests)
            loads.insert(loads.end(), request.twins[i].loads.begin(), request.twins[i].loads.end());
        ASSERT_GE(run.states[i].size(), loads.size()) << run.log;
        const double one = deviation(specimens[i], loads, run.states[i]);
        EXPECT_LT(one, proof.limit);
        largest = std::max(largest, one);
    }
    EXPECT_LT(largestDifference(run), alike);
    const auto& systems = proof.requests.front().systems;
    vxtest::recordRun({proof.analysis, proof.group.builtIn, proof.group.ofCorpus,
                       specimens.size() - proof.group.builtIn - proof.group.ofCorpus,
                       std::string(systems[0]) + "; " + systems[1], largestDifference(run), proof.reference, largest});
}

TEST(CalculixProof, LinearMaterialsStretchAlongTheirCurves)
{
    const Group group = elasticGroup();
    const auto loads = [](const Specimen& one) {
        return std::vector<double>{1e-3 * one.youngsModulus(), -2e-3 * one.youngsModulus()};
    };
    const Proof proof{
        "linear elasticity",         group,     {requestOf(group, Physics::SmallStrain, loads)},
        "curve of uniaxial tension", agreement, 3}; // Ramberg-Osgood hardening of a built-in material has no curve
    prove(proof, [](const Specimen& one, const std::vector<double>& stresses, const States& states) {
        const double ratio = one.poissonsRatio();
        return std::max(tensionDeviation(*one.models.find(ModelKind::LinearElasticity), stresses, states),
                        lateralDeviation({-1e-3 * ratio, 2e-3 * ratio}, states));
    });
}

/// Returns the deviation from the curve of true stress over plastic strain, and of the strain across, which keeps the volume.
double plasticDeviation(const Specimen& one, const std::vector<double>& stresses, const States& states)
{
    CurveRequest request;
    request.mode = Mode::Plastic;
    std::vector<double> lateral;
    for (std::size_t i = 0; i < states.size(); ++i) {
        const double elastic = stresses[i] / one.youngsModulus();
        const double plastic = states[i].value - elastic;
        request.abscissas.push_back(plastic);
        lateral.push_back(-one.poissonsRatio() * elastic - plastic / 2.0);
    }
    const auto curve =
        curveOf(*one.models.find(ModelKind::MisesPlasticity), request, vxConstitutive::Quantity::TrueStress);
    return std::max(deviationOf(curve, stresses), lateralDeviation(lateral, states));
}

TEST(CalculixProof, MetalsHardenAlongTheirCurves)
{
    // One increment for each load: from the second plastic increment on, the solver iterates stresses in Pa less exactly.
    const Group group = plasticGroup();
    Proof proof{"plasticity of Mises", group, {}, "curve of true stress over plastic strain"};
    for (const double strain : {0.002, 0.01, 0.03}) {
        proof.requests.push_back(requestOf(group, Physics::SmallStrain, [strain](const Specimen& one) {
            return std::vector<double>{hardenedStress(one, strain)};
        }));
        proof.requests.back().increments = 1;
    }
    prove(proof, plasticDeviation);
}

/// A point of a bar that hardens kinematically. The plastic strain is (s - s0) / H, on the way back (s + s0) / H.
struct KinematicPoint
{
    double nominalStress;
    double strain;
};

KinematicPoint kinematicPoint(const Specimen& one, double stress, double plasticStrain)
{
    const double elastic = stress / one.youngsModulus();
    const double lateral = -one.poissonsRatio() * elastic - plasticStrain / 2.0;
    return {stress * std::exp(2.0 * lateral), std::expm1(elastic + plasticStrain)};
}

std::vector<KinematicPoint> kinematicPoints(const Specimen& one)
{
    constexpr double strain = 0.001;
    const double most = one.number(Id::PlasticInitialYieldStress) + strain * one.number(Id::PlasticHardeningFactor);
    return {kinematicPoint(one, most, strain), kinematicPoint(one, -most, -strain)};
}

TEST(CalculixProof, KinematicHardeningYieldsEarlierOnTheWayBack)
{
    // With isotropic hardening, the way back would be elastic.
    const Group group = kinematicGroup();
    EXPECT_GT(group.ofCorpus, 0U);
    const auto loads = [](const Specimen& one) {
        std::vector<double> stresses;
        for (const KinematicPoint& point : kinematicPoints(one))
            stresses.push_back(point.nominalStress);
        return stresses;
    };
    const Proof proof{
        "kinematic hardening, there and back", group, {requestOf(group, Physics::LargeStrain, loads)}, "formula"};
    prove(proof, [](const Specimen& one, const std::vector<double>&, const States& states) {
        const std::vector<KinematicPoint> points = kinematicPoints(one);
        return deviationOf({points[0].strain, points[1].strain}, {states.at(0).value, states.at(1).value});
    });
}

TwinRequest rubberRequest(const Group& group)
{
    return requestOf(group, Physics::LargeStrain, rubberLoads);
}

/// Returns the lateral strains of the curve at the measured stretches.
std::vector<double> lateralCurve(const vxConstitutive::Model& model, const States& states)
{
    CurveRequest request;
    request.detail = vxConstitutive::Detail::Full;
    for (const TwinState& state : states)
        request.abscissas.push_back(1.0 + state.value);
    std::vector<double> strains = curveOf(model, request, vxConstitutive::Quantity::LateralStretch);
    for (double& one : strains)
        one -= 1.0;
    return strains;
}

TEST(CalculixProof, RubbersStretchAlongTheirCurves)
{
    const Group group = rubberGroup();
    prove({"hyperelasticity", group, {rubberRequest(group)}, "curve of uniaxial tension"},
          [](const Specimen& one, const std::vector<double>& stresses, const States& states) {
              return std::max(tensionDeviation(rubberOf(one), stresses, states),
                              lateralDeviation(lateralCurve(rubberOf(one), states), states));
          });
}

TEST(CalculixProof, RubbersWithTheThirdConstantStretchAlongTheirCurves)
{
    const Group group = stretchedGroup();
    EXPECT_GT(group.ofCorpus, 0U);
    prove({"hyperelasticity with C11, in tension",
           group,
           {requestOf(group, Physics::LargeStrain, stretchingLoads)},
           "curve of uniaxial tension"},
          [](const Specimen& one, const std::vector<double>& stresses, const States& states) {
              return tensionDeviation(rubberOf(one), stresses, states);
          });
}

TEST(CalculixProof, RubbersThatAreNotQuiteIncompressibleStretchNearlyAlongTheirCurves)
{
    // The deck has a bulk modulus of 500 shear moduli, and the report says so: Young's modulus is smaller by 0.07 %, at
    // larger stretches a little more.
    const Group group = incompressibleGroup();
    prove({"incompressible hyperelasticity", group, {rubberRequest(group)}, "curve of uniaxial tension", 1.5e-3},
          [](const Specimen& one, const std::vector<double>& stresses, const States& states) {
              return tensionDeviation(rubberOf(one), stresses, states);
          });
}

const std::vector<double> creepTimes{1.5, 2.5, 5.0, 10.0};

/// Returns the stress at which the creep strain is 1e-4 after ten seconds.
std::vector<double> creepLoad(const Specimen& one)
{
    const double power = one.number(Id::CreepModulusM) + 1.0;
    const double base = 1e-4 * power / (one.number(Id::CreepModulusA) * std::pow(10.0, power));
    return {std::pow(base, 1.0 / one.number(Id::CreepModulusN))};
}

/// Returns the deviation of the creep strain since the load, which the solver applies in the first second.
double creepDeviation(const Specimen& one, double stress, const States& states)
{
    CurveRequest request;
    request.mode = Mode::Creep;
    request.stresses = {stress};
    request.abscissas = {1.0};
    request.abscissas.insert(request.abscissas.end(), creepTimes.begin(), creepTimes.end());
    std::vector<double> curve =
        curveOf(*one.models.find(ModelKind::NortonCreep), request, vxConstitutive::Quantity::CreepStrain);
    const double first = curve.front();
    curve.erase(curve.begin());
    for (double& strain : curve)
        strain -= first;
    std::vector<double> measured;
    for (std::size_t i = 1; i < states.size(); ++i)
        measured.push_back(states[i].value - states[0].value);
    return deviationOf(curve, measured);
}

/// Runs creep with two lengths of increments: the error of an increment is proportional to its length.
void proveCreep(const std::string& analysis, const Group& group, const std::array<const char*, 2>& systems)
{
    TwinRequest request = requestOf(group, Physics::Creep, creepLoad);
    request.systems = systems;
    request.times = creepTimes;
    request.increments = 10;
    const TwinRun coarse = runTwins(request);
    ASSERT_TRUE(coarse.succeeded) << coarse.log;
    request.increments = 20;
    std::size_t next = 0;
    prove({analysis, group, {request}, "curve of creep strain over time"},
          [&](const Specimen& one, const std::vector<double>& stresses, States states) {
              const States& longer = coarse.states.at(next++);
              EXPECT_EQ(states.size(), longer.size());
              for (std::size_t i = 0; i < std::min(states.size(), longer.size()); ++i)
                  states[i].value = 2.0 * states[i].value - longer[i].value;
              return creepDeviation(one, stresses.front(), states);
          });
}

TEST(CalculixProof, SoftSolidsCreepAlongTheirCurves)
{
    proveCreep("creep", creepGroup(), {"SI", "mm-t-s"});
}

TEST(CalculixProof, MetalsCreepAlongTheirCurves)
{
    proveCreep("creep of metals", creepingMetalGroup(), {"mm-t-s", "length um, mass t, time s"});
}

TEST(CalculixProof, HeatWarmsAndPassesAsTheFormulasSay)
{
    const Group group = heatGroup();
    const auto loads = [](const Specimen& one) {
        return std::vector<double>{one.number(Id::Density) * one.number(Id::SpecificHeat),
                                   3.0 * one.number(Id::ThermalConductivity)};
    };
    // q t / (rho c) after 2 s; q L / k
    prove({"heat", group, {requestOf(group, Physics::Heat, loads)}, "formula"},
          [](const Specimen&, const std::vector<double>&, const States& states) {
              return deviationOf({2.0, 3.0}, {states.at(0).value, states.at(1).value});
          });
}

/// Adds the quantities that the decks of a group carry.
void addCarried(const Group& group, std::set<std::int32_t>& carried)
{
    for (const Specimen& one : group.specimens) {
        const vxDecks::Deck deck = vxtest::deckOf(vxDecks::Format::Calculix, *one.material, "mm-t-s");
        for (const vxDecks::ReportRow& row : deck.report.materials.at(0).rows) {
            if (row.outcome != vxDecks::Outcome::Lost)
                carried.insert(row.slot);
        }
    }
}

TEST(CalculixProof, HasEveryQuantityThatTheTableCallsRun)
{
    std::set<std::int32_t> carried;
    for (Group (*const make)() : {elasticGroup, plasticGroup, kinematicGroup, rubberGroup, stretchedGroup,
                                  incompressibleGroup, creepGroup, creepingMetalGroup, heatGroup})
        addCarried(make(), carried);
    for (const vxDecks::Mapping& row : vxDecks::mappings()) {
        const bool isRun = row.transport != vxDecks::Transport::None && row.proof == vxDecks::Proof::Run;
        EXPECT_TRUE(!isRun || row.format == vxDecks::Format::Calculix) << row.id;
        EXPECT_TRUE(!isRun || carried.count(row.id) == 1) << row.id;
    }
}

} // namespace
