#pragma once

namespace vxmat {

/// Carries out a command line and returns the exit status. Results are written to standard output, all else to standard
/// error; nothing is thrown.
int run(int argc, char** argv) noexcept;

} // namespace vxmat
