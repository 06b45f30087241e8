#pragma once

namespace vxtest {

/// Returns `usual`, or `sanitized` in a program with AddressSanitizer, which takes about twenty times as long: how often a
/// test repeats something.
template <class Count>
constexpr Count repetitions([[maybe_unused]] Count usual, [[maybe_unused]] Count sanitized)
{
#ifdef VX_ADDRESS_SANITIZER
    return sanitized;
#else
    return usual;
#endif
}

} // namespace vxtest
