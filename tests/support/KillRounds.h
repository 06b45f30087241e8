#pragma once

#include <cstdlib>

namespace vxtest {

/// Returns the number of times that a test kills a program: VX_KILL_ROUNDS if this environment variable is set,
/// otherwise 15. The test preset "kill" sets the variable.
inline int killRounds()
{
    constexpr int usual = 15;
    const char* const wanted = std::getenv("VX_KILL_ROUNDS");
    return wanted != nullptr ? std::atoi(wanted) : usual;
}

} // namespace vxtest
