#pragma once

#include "vxMaterial/model/Material.h"

#include <string>
#include <vector>

namespace vxtest {

/// The loads on the twin elements.
enum class Physics
{
    Static,   ///< a force in the first direction, in N
    Creep,    ///< the same, then 10 s under it
    Transient ///< power in the insulated volume in W for 2 s, then through a face against 0 K in the steady state
};

/// The result of a step: of the element in SI units, and how much the element in mm-t-s differs from it, relative to it.
struct TwinResult
{
    double value = 0.0;      ///< displacement of the loaded face in m, or its temperature in K
    double difference = 1.0; ///< with full precision, because the solver itself subtracts both values
};

/// The outcome of a run of CalculiX.
struct TwinRun
{
    bool succeeded = false;
    std::string log;
    std::vector<TwinResult> steps;
};

/// Runs CalculiX with two cubes of 1 m, one of them in SI units and one in mm-t-s, whose materials are the decks that the
/// library writes of a material in these units.
TwinRun runTwins(const vxMat::MaterialBase& material, Physics physics, double load);

/// Runs CalculiX with the deck of a material beside an elastic element that does not use it: the solver only reads the deck.
TwinRun readDeck(const vxMat::MaterialBase& material);

} // namespace vxtest
