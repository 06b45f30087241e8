#include "program/Interruption.h"

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace commandline {

namespace {

/// A handler of signals can do no more than set a flag of this type.
volatile std::sig_atomic_t isInterrupted = 0;

extern "C" void noteInterruption(int /*signal*/)
{
    isInterrupted = 1;
}

/// Handles a signal, unless the program was started with this signal ignored, as in the background. Returns what the signal
/// did before.
struct sigaction handle(int signal)
{
    struct sigaction earlier = {};
    sigaction(signal, nullptr, &earlier);
    if (earlier.sa_handler == SIG_IGN)
        return earlier;
    struct sigaction action = {};
    action.sa_handler = noteInterruption;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(signal, &action, nullptr);
    return earlier;
}

constexpr const char* clearLine = "\r\033[K";

} // namespace

Interruption::Interruption()
{
    isInterrupted = 0;
    m_earlierInterrupt = handle(SIGINT);
    m_earlierTermination = handle(SIGTERM);
}

Interruption::~Interruption()
{
    sigaction(SIGINT, &m_earlierInterrupt, nullptr);
    sigaction(SIGTERM, &m_earlierTermination, nullptr);
}

bool Interruption::isRequested()
{
    return isInterrupted != 0;
}

ProgressLine::ProgressLine() : m_isTerminal(isatty(STDERR_FILENO) != 0) {}

ProgressLine::~ProgressLine()
{
    if (!m_shown.empty())
        std::fputs(clearLine, stderr);
}

void ProgressLine::show(const vxConstitutive::FitProgress& progress)
{
    constexpr double percent = 100.0;
    if (!m_isTerminal)
        return;
    const std::string text = progress.model + ": " + std::to_string(static_cast<int>(percent * progress.part)) + " %";
    if (text == m_shown)
        return;
    std::fputs((clearLine + text).c_str(), stderr);
    m_shown = text;
}

} // namespace commandline
