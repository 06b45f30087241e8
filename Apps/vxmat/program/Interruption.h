#pragma once

#include "vxConstitutive/fit/Fit.h"

#include <csignal>
#include <string>

namespace commandline {

/// While an object of this class exists, the first SIGINT (Ctrl+C) or SIGTERM does not end the program, but sets a flag. The
/// next one ends the program. A signal that the program ignores from its start stays ignored. The destructor restores what
/// the signals did before. There must be one object at a time.
class Interruption
{
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    /// Returns whether such a signal has come since the construction.
    static bool isRequested();

private:
    struct sigaction m_earlierInterrupt = {};
    struct sigaction m_earlierTermination = {};
};

/// Shows on standard error how far a fit is, if standard error is a terminal. The destructor removes the text.
class ProgressLine
{
public:
    ProgressLine();
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void show(const vxConstitutive::FitProgress& progress);

private:
    bool m_isTerminal;
    std::string m_shown;
};

} // namespace commandline
