#pragma once

namespace commandline {

/// Executes a command line and returns the exit status. Writes results to standard output, and notes and errors to
/// standard error.
int run(int argc, char** argv) noexcept;

} // namespace commandline
