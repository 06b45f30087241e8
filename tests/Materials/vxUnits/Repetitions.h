#pragma once

namespace vxtest {

/// Returns `usual`, or `sanitized` in a program with AddressSanitizer, which takes about twenty times as long: how often a
/// test repeats something.
constexpr int repetitions([[maybe_unused]] int usual, [[maybe_unused]] int sanitized)
{
#ifdef __SANITIZE_ADDRESS__
    return sanitized;
#else
    return usual;
#endif
}

} // namespace vxtest
