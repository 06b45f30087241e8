#pragma once

#include <array>
#include <string>
#include <vector>

namespace vxtest {

/// The faces of the cube of one element, whose edges have the length 1.
enum class Face
{
    X0,
    X1,
    Y0,
    Y1,
    Z0,
    Z1
};

/// A displacement of a face, or a force on it, in one direction (1, 2, 3).
struct FaceValue
{
    Face face;
    int direction;
    double value;
};

/// One step of an analysis.
struct SolverStep
{
    bool largeStrain = false;
    bool creeps = false;    ///< *VISCO in place of *STATIC
    double increment = 1.0; ///< fixed
    double duration = 1.0;
    std::vector<FaceValue> displacements; ///< reached at the end of the step
    std::vector<FaceValue> forces;        ///< of the whole face
};

/// A cube of one or more elements of eight nodes (C3D8) on the same nodes.
struct SolverModel
{
    std::vector<std::string> materials; ///< the keyword lines of the material of each element
    std::vector<FaceValue> supports;    ///< displacements that hold in all steps
    Face loaded = Face::X1;             ///< the face with printed force and displacement
    std::vector<SolverStep> steps;
};

/// The output of the solver at the end of an increment. Stresses and strains are those of the first element.
struct SolverState
{
    double time = 0.0;                    ///< since the start of the first step
    std::array<double, 6> stress{};       ///< true: xx, yy, zz, xy, xz, yz
    double plasticStrain = 0.0;           ///< equivalent; the creep strain of a material that creeps
    std::array<double, 3> force{};        ///< on the loaded face
    std::array<double, 3> displacement{}; ///< of a corner of the loaded face that belongs to X1, Y1 and Z1
};

/// Returns a number for a deck: the solver reads no more than 20 characters.
std::string deckNumber(double number);

/// Runs CalculiX in a temporary folder. The test fails if it does not run to the end.
std::vector<SolverState> runCalculix(const SolverModel& model);

} // namespace vxtest
