#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

/// Speed is measured as a ratio: what the project does against the same done in another way, in one run and in turns, so
/// that the speed of the machine cancels out.
namespace vxbench {

/// Does something once and returns the time of its measured part.
using Measured = std::function<std::chrono::nanoseconds()>;

/// Two ways to do the same, and how much longer or larger than the second the first may be.
struct Contest
{
    std::string name;
    Measured ours;
    Measured other;
    double limit;             ///< of the ratio of times and of peak memories; 0 if the ratio is for information
    bool limitsMemory = true; ///< false if the sides hold different things, so that the limit is only of times
};

/// Returns the time that `action` takes; its result is destroyed after the clock has stopped.
template <class Action>
std::chrono::nanoseconds timed(Action action)
{
    const auto begin = std::chrono::steady_clock::now();
    [[maybe_unused]] const auto result = action();
    return std::chrono::steady_clock::now() - begin;
}

/// Returns a function that makes something when it is first called, so that a process that measures memory makes only
/// what it needs.
template <class Make>
auto lazily(Make make)
{
    using Made = std::decay_t<decltype(make())>;
    return [make, made = std::make_shared<std::unique_ptr<Made>>()]() -> const Made& {
        if (!*made)
            *made = std::make_unique<Made>(make());
        return **made;
    };
}

void addContest(Contest contest);

/// Runs all contests, or those whose name contains the argument, each in its own process, and prints a table:
/// the shortest time of each side over repetitions in turns, and the peak memory of a process that does the side
/// once. Options of Google Benchmark are passed on. Returns 1 if a ratio is over its limit.
int runContests(int argc, char** argv);

} // namespace vxbench
