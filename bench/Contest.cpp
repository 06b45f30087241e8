#include "Contest.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string_view>
#include <sys/wait.h>
#include <utility>
#include <vector>

namespace vxbench {

namespace {

constexpr const char* contestFlag = "--contest=";
constexpr const char* memoryFlag = "--peak-memory=";
constexpr const char* oursSuffix = "/ours";
constexpr const char* otherSuffix = "/other";

std::vector<Contest>& contests()
{
    static std::vector<Contest> all;
    return all;
}

/// Returns the text after `flag` in the argument that begins with it.
std::optional<std::string> valueOf(const char* flag, const std::vector<std::string>& arguments)
{
    for (const std::string& argument : arguments) {
        if (argument.rfind(flag, 0) == 0)
            return argument.substr(std::string_view(flag).size());
    }
    return std::nullopt;
}

// --- One contest, in its own process ---

/// Collects the time of every repetition of each side.
class Collector : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration)
                m_times[run.run_name.function_name].push_back(run.GetAdjustedRealTime());
        }
    }

    /// Returns the shortest time of a side, because disturbances only make a run longer.
    double time(const std::string& name) const
    {
        const auto& times = m_times.at(name);
        return *std::min_element(times.begin(), times.end());
    }

private:
    std::map<std::string, std::vector<double>> m_times;
};

void registerSide(const std::string& name, const Measured& measured)
{
    const auto run = [measured](benchmark::State& state) {
        while (state.KeepRunning())
            state.SetIterationTime(std::chrono::duration<double>(measured()).count());
    };
    benchmark::RegisterBenchmark(name.c_str(), run)->UseManualTime()->Unit(benchmark::kMicrosecond);
}

/// Runs both sides alternately, several times, and prints the shortest time of each side.
int runContest(const Contest& contest, const std::vector<std::string>& arguments)
{
    // The arguments follow the defaults, so that they override them.
    std::vector<std::string> texts{"bench", "--benchmark_repetitions=9", "--benchmark_enable_random_interleaving=true",
                                   "--benchmark_min_time=0.1"};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (std::string& text : texts) {
        if (text.rfind("--benchmark", 0) == 0 || text == "bench")
            pointers.push_back(text.data());
    }
    int count = static_cast<int>(pointers.size());
    pointers.push_back(nullptr);

    registerSide("ours", contest.ours);
    registerSide("other", contest.other);
    benchmark::Initialize(&count, pointers.data());
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    std::printf("%.9g %.9g\n", collector.time("ours"), collector.time("other"));
    return 0;
}

/// Runs one side once and prints the peak memory of the process, in KiB.
int runSide(const std::string& side)
{
    for (const Contest& contest : contests()) {
        if (side == contest.name + oursSuffix)
            contest.ours();
        if (side == contest.name + otherSuffix)
            contest.other();
    }
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmHWM:", 0) == 0)
            std::printf("%s\n", line.c_str() + line.find_first_of("0123456789"));
    }
    return 0;
}

// --- The table, over all contests ---

/// Runs this program with `flag` and returns the numbers that it prints; empty if it fails.
std::vector<double> ask(const std::string& program, const std::string& flag, const std::string& further)
{
    const std::string command = "'" + program + "' '" + flag + "'" + further;
    std::FILE* const pipe = popen(command.c_str(), "r"); // NOLINT(cert-env33-c): our own program
    if (pipe == nullptr)
        return {};
    std::string text;
    for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe))
        text += static_cast<char>(c);
    if (pclose(pipe) != 0)
        return {};
    std::istringstream numbers(text);
    std::vector<double> read;
    for (double number = 0.0; numbers >> number;)
        read.push_back(number);
    return read;
}

/// Prints the result of a contest. Returns whether the ratios could be measured and are within the limit.
bool printRow(const std::string& program, const Contest& contest, const std::string& further)
{
    const auto times = ask(program, contestFlag + contest.name, further);
    const auto ours = ask(program, memoryFlag + contest.name + oursSuffix, "");
    const auto other = ask(program, memoryFlag + contest.name + otherSuffix, "");
    if (times.size() != 2 || ours.empty() || other.empty()) {
        std::printf("%-50s failed\n", contest.name.c_str());
        return false;
    }
    constexpr double kibPerMib = 1024.0;
    const double timeRatio = times[0] / times[1];
    const double memoryRatio = ours[0] / other[0];
    const bool memoryWithin = !contest.limitsMemory || memoryRatio <= contest.limit;
    const bool within = contest.limit == 0.0 || (timeRatio <= contest.limit && memoryWithin);
    std::printf("%-50s %11.1f %11.1f %6.2f %9.1f %9.1f %6.2f", contest.name.c_str(), times[0], times[1], timeRatio,
                ours[0] / kibPerMib, other[0] / kibPerMib, memoryRatio);
    if (contest.limit > 0.0)
        std::printf("   %s %.2f", within ? "within" : "OVER", contest.limit);
    std::printf("\n");
    std::fflush(stdout);
    return within;
}

} // namespace

void addContest(Contest contest)
{
    contests().push_back(std::move(contest));
}

int runContests(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (const auto side = valueOf(memoryFlag, arguments))
        return runSide(*side);
    if (const auto name = valueOf(contestFlag, arguments)) {
        for (const Contest& contest : contests()) {
            if (contest.name == *name)
                return runContest(contest, arguments);
        }
        return 2;
    }

    std::string further;
    std::string only;
    for (const std::string& argument : arguments) {
        if (argument.rfind("--", 0) == 0)
            further += " '" + argument + "'";
        else
            only = argument;
    }
    std::printf("%-50s %11s %11s %6s %9s %9s %6s\n", "", "ours, us", "other, us", "ratio", "ours, MiB", "other",
                "ratio");
    bool allWithin = true;
    for (const Contest& contest : contests()) {
        if (contest.name.find(only) != std::string::npos)
            allWithin = printRow(argv[0], contest, further) && allWithin;
    }
    return allWithin ? 0 : 1;
}

} // namespace vxbench
