#pragma once

#include "DecksTesting.h"

#include <memory>
#include <random>

namespace vxtest {

/// Numbers that are the same in every run and on every computer.
class Numbers
{
public:
    explicit Numbers(std::uint32_t seed) : m_engine(seed) {}

    double between(double low, double high);
    /// Returns a number whose logarithm is evenly distributed.
    double ofSize(double low, double high);
    /// Returns true once in `count` times.
    bool once(std::uint32_t count) { return m_engine() % count == 0; }

private:
    std::mt19937 m_engine;
};

using MadeMaterial = std::unique_ptr<MaterialMaker>;

/// Make random materials of a model, in SI units, with numbers far beyond those of real materials.
MadeMaterial makeElastic(Numbers& numbers);
MadeMaterial makeBilinear(Numbers& numbers);
/// Elastic strains are small, because the solver computes kinematic hardening rightly only with large strains, where its plastic
/// strain grows with the elastic one.
MadeMaterial makeKinematic(Numbers& numbers);
MadeMaterial makeMultilinear(Numbers& numbers);
MadeMaterial makeNeoHooke(Numbers& numbers);
MadeMaterial makeMooneyRivlin(Numbers& numbers); ///< half of them with C11
MadeMaterial makeArrudaBoyce(Numbers& numbers);
MadeMaterial makeIncompressible(Numbers& numbers); ///< one of the three, with D1 = 0
/// A soft solid, so that its factor is large enough for the solver in SI units.
MadeMaterial makeCreepingSoftly(Numbers& numbers);
/// A metal, whose factor is large enough only in units of MPa.
MadeMaterial makeCreepingMetal(Numbers& numbers);
MadeMaterial makeConducting(Numbers& numbers);

} // namespace vxtest
