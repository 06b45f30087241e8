#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

/// Speed is measured as a ratio: the time of the project's code divided by the time of other code for the same task.
/// Both run alternately in one process, so that the speed of the machine cancels out.
namespace vxbench {

/// Runs an action once and returns the time of its measured part.
using Measured = std::function<std::chrono::nanoseconds()>;

/// Two implementations of a task, and the limit for the ratio of the first to the second.
struct Contest
{
    std::string name;
    Measured ours;
    Measured other;
    double limit;             ///< for the ratios of times and of peak memories; 0 for no limit
    bool limitsMemory = true; ///< false if the limit is only for times, because the sides hold different data
};

/// Returns the time of `action`. Its result is destroyed after the clock has stopped.
template <class Action>
std::chrono::nanoseconds timed(Action action)
{
    const auto begin = std::chrono::steady_clock::now();
    [[maybe_unused]] const auto result = action();
    return std::chrono::steady_clock::now() - begin;
}

/// Returns a function that makes an object in its first call and returns it in every call, so that a process that
/// measures memory makes only the objects that it needs.
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

/// Adds a contest to the list for runContests().
void addContest(Contest contest);

/// Runs all contests, or the contests whose name contains the argument, each in its own process. Prints a table: the
/// shortest time of each side, and the peak memory of a process that runs the side once. Passes options to Google
/// Benchmark. Returns 1 if a ratio is over its limit or could not be measured.
int runContests(int argc, char** argv);

} // namespace vxbench
