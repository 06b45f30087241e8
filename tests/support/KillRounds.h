#pragma once

#include <cstdlib>

namespace vxtest {

/// Returns how often a test kills a program: 15 times, or VX_KILL_ROUNDS times. The test preset "kill" sets this
/// variable.
inline int killRounds()
{
    constexpr int usual = 15;
    const char* const wanted = std::getenv("VX_KILL_ROUNDS");
    return wanted != nullptr ? std::atoi(wanted) : usual;
}

} // namespace vxtest
