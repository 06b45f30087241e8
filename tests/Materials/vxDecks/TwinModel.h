#pragma once

#include "vxMaterial/model/Material.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace vxtest {

/// The analysis of a run.
enum class Physics
{
    SmallStrain, ///< forces in the first direction
    LargeStrain, ///< the same with large strains
    Creep,       ///< a force for a second, which then stays for the time of the request
    Heat         ///< power in the insulated volume for 2 s, then through a face against 0 K in the steady state
};

/// A material, and the loads of both of its cubes.
struct Twin
{
    const vxMat::MaterialBase* material = nullptr; ///< not null; in SI units
    std::vector<double> loads; ///< of each step: nominal stresses in Pa; of heat W/m^3, then W/m^2; of creep only one
};

/// A run of the solver: all materials are in one model.
struct TwinRequest
{
    Physics physics = Physics::SmallStrain;
    std::vector<Twin> twins;
    std::array<const char*, 2> systems{"SI", "mm-t-s"}; ///< the unit systems of the cubes of each twin, with seconds
    std::vector<double> times{};                        ///< of creep: the ends of its steps in s, above 1
    int increments = 0;                                 ///< of each step; 0 if the solver chooses them
};

/// The result of a step.
struct TwinState
{
    double value = 0.0;      ///< strain in the direction of the force, or temperature in K
    double lateral = 0.0;    ///< strain across the force
    double difference = 1.0; ///< of both cubes, relative to the value; with full precision: the solver itself subtracts
};

/// The outcome of a run of CalculiX.
struct TwinRun
{
    bool succeeded = false;
    std::string log;
    std::size_t refused = 0;                    ///< number of quantities that the decks refuse
    std::vector<std::vector<TwinState>> states; ///< of each twin after each step
};

/// Runs CalculiX with two cubes for each material, one in each unit system. Their materials are the decks that the library
/// writes of all materials in these units.
TwinRun runTwins(const TwinRequest& request);

/// Runs CalculiX with the deck of materials beside an elastic element that does not use them: the solver only reads the deck.
TwinRun readDeck(const std::vector<const vxMat::MaterialBase*>& materials);

/// Returns the largest difference of both cubes in all states of a run.
double largestDifference(const TwinRun& run);

} // namespace vxtest
