#include "Interruption.h"

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace commandline {

namespace {

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): a handler of signals can only set such a flag
volatile std::sig_atomic_t isInterrupted = 0;

extern "C" void noteInterruption(int /*signal*/)
{
    isInterrupted = 1;
}

void handle(int signal)
{
    struct sigaction action = {};
    action.sa_handler = noteInterruption;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(signal, &action, nullptr);
}

constexpr const char* clearLine = "\r\033[K";

} // namespace

Interruption::Interruption()
{
    isInterrupted = 0;
    handle(SIGINT);
    handle(SIGTERM);
}

Interruption::~Interruption()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
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
