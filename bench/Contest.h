#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <utility>

/// Speed is measured as a ratio: what the project does against the same done another way, in one run and in turns, so
/// that the speed of the machine cancels out.
namespace vxbench {

/// Does a thing once and answers the time that the measured part of it took.
using Measured = std::function<std::chrono::nanoseconds()>;

/// Two ways to do one thing, and how much longer or larger than the second the first may be.
struct Contest
{
    std::string name;
    Measured ours;
    Measured other;
    double limit;             ///< of the ratio of times and of peak memories; 0 when the ratio is for information
    bool limitsMemory = true; ///< false when the sides hold different things, and the limit is of times alone
};

/// The time that `action` takes; what it answers is destroyed after the clock has stopped.
template <class Action>
std::chrono::nanoseconds timed(Action action)
{
    const auto begin = std::chrono::steady_clock::now();
    [[maybe_unused]] const auto result = action();
    return std::chrono::steady_clock::now() - begin;
}

void addContest(Contest contest);

/// Runs all contests, or those whose name contains the argument, each in a process of its own, and prints a table:
/// the shortest time of each side over repetitions in turns, and the peak memory of a process that does the side
/// once. Options of Google Benchmark are passed on. Answers 1 when a ratio is over its limit.
int runContests(int argc, char** argv);

} // namespace vxbench
