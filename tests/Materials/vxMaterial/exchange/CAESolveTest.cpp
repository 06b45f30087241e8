#include "vxMaterial/exchange/CAESolve.h"

#include "ExchangeTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using vxCAE::CAESolve;
using vxtest::json;
using vxtest::written;

TEST(CAESolve, WritesItsDefaults)
{
    const Json::Value document = written(CAESolve());
    ASSERT_EQ(document.getMemberNames(), Json::Value::Members{"solve"});
    const Json::Value& solve = document["solve"];
    EXPECT_EQ(solve["solver"], "");
    EXPECT_EQ(solve["solver_method"], "UnknownSolver");
    EXPECT_EQ(solve["n_iterations"], 10000U);
    EXPECT_EQ(solve["residual_thold"], 1e-8);
    EXPECT_EQ(solve["n_load_steps"], 1U);
    EXPECT_EQ(solve["times"], json("[1.0]"));
    EXPECT_EQ(solve["auto_timing"], json("[true]"));
    EXPECT_EQ(solve["n_substeps"], json("[25]"));
    EXPECT_EQ(solve["time_inc"], json("[1.0]"));
    EXPECT_EQ(solve["nl_abs_tol"], json("[1e-8]"));
    EXPECT_EQ(solve["nl_rel_tol"], json("[1e-6]"));
    EXPECT_EQ(solve["nl_max_its"], json("[25]"));
    EXPECT_EQ(solve.size(), 12U);
    EXPECT_EQ(solve["n_load_steps"].type(), Json::uintValue);
    EXPECT_EQ(solve["n_substeps"][0].type(), Json::intValue);
    EXPECT_EQ(solve["times"][0].type(), Json::realValue);
}

TEST(CAESolve, LeavesTheArraysOutWithoutLoadSteps)
{
    CAESolve solve;
    solve.n_load_steps = 0;
    const Json::Value document = written(solve);
    EXPECT_EQ(document["solve"].getMemberNames(),
              (Json::Value::Members{"n_iterations", "n_load_steps", "residual_thold", "solver", "solver_method"}));
}

TEST(CAESolve, WritesAsManyElementsAsThereAreLoadSteps)
{
    CAESolve solve;
    solve.times = {1.0, 2.0, 3.0};
    EXPECT_EQ(written(solve)["solve"]["times"], json("[1.0]"));
}

TEST(CAESolve, RefusesToWriteAListThatIsTooShort)
{
    CAESolve solve;
    solve.n_load_steps = 2;
    Json::Value document;
    try {
        solve.writeJson(document);
        ADD_FAILURE() << "no exception";
    } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), "\"times\" has 1 elements for 2 load steps");
    }
    int substeps = -1;
    double tolerance = -1.0;
    EXPECT_THROW(solve.getLoadStep(2, substeps, tolerance, substeps), std::out_of_range);
    EXPECT_TRUE(document.isNull());
}

TEST(CAESolve, ReadsBackWhatItWrote)
{
    CAESolve solve;
    solve.solver = "direct";
    solve.n_load_steps = 2;
    solve.times = {0.5, 1.0};
    solve.auto_timing = {false, true};
    solve.n_substeps = {10, 20};
    solve.time_inc = {0.1, 0.2};
    solve.nl_abs_tol = {1e-3, 1e-4};
    solve.nl_rel_tol = {1e-5, 1e-6};
    solve.nl_max_its = {7, 8};
    CAESolve read;
    read.readJson(written(solve));
    EXPECT_EQ(read.solver, "direct");
    EXPECT_EQ(read.times, solve.times);
    EXPECT_EQ(read.auto_timing, solve.auto_timing);
    EXPECT_EQ(read.n_substeps, solve.n_substeps);
    EXPECT_EQ(read.time_inc, solve.time_inc);
    EXPECT_EQ(read.nl_abs_tol, solve.nl_abs_tol);
    EXPECT_EQ(read.nl_rel_tol, solve.nl_rel_tol);
    EXPECT_EQ(read.nl_max_its, solve.nl_max_its);
}

TEST(CAESolve, ReadsTheStepsThatAnArrayLacksAsZero)
{
    CAESolve solve;
    solve.readJson(json(R"({"solve": {"n_load_steps": 3, "times": [1.5, 2.5], "auto_timing": [true]}})"));
    EXPECT_THAT(solve.times, ElementsAre(1.5, 2.5, 0.0));
    EXPECT_THAT(solve.auto_timing, ElementsAre(true, false, false));
    EXPECT_THAT(solve.nl_max_its, ElementsAre(0, 0, 0));
}

TEST(CAESolve, IgnoresElementsBeyondTheLoadSteps)
{
    CAESolve solve;
    solve.readJson(json(R"({"solve": {"n_load_steps": 1, "times": [1.5, 2.5]}})"));
    EXPECT_THAT(solve.times, ElementsAre(1.5));
}

TEST(CAESolve, IsEmptyFromADocumentWithoutSolve)
{
    CAESolve solve;
    solve.readJson(json("{}"));
    EXPECT_EQ(solve.solver_method, "");
    EXPECT_EQ(solve.n_load_steps, 0U);
    EXPECT_THAT(solve.times, IsEmpty());
}

TEST(CAESolve, KeepsWhatItHeldWhenAnElementCannotBeConverted)
{
    CAESolve solve;
    EXPECT_THROW(solve.readJson(json(R"({"solve": {"n_load_steps": 1, "n_substeps": [-1]}})")), Json::LogicError);
    EXPECT_THROW(solve.readJson(json(R"({"solve": {"n_load_steps": 1, "times": ["one"]}})")), Json::LogicError);
    EXPECT_THROW(solve.readJson(json(R"({"solve": {"n_load_steps": 1, "times": {"a": 1}}})")), Json::LogicError);
    EXPECT_EQ(solve.solver_method, "UnknownSolver");
    EXPECT_THAT(solve.times, ElementsAre(1.0));
}

TEST(CAESolve, RefusesAColumnThatIsNoArrayUnlessThereAreNoSteps)
{
    for (const char* const column : {"\"always\"", "7", "true", "{\"a\": 1}"}) {
        const std::string times = R"("times": )" + std::string(column) + "}}";
        CAESolve solve;
        EXPECT_THROW(solve.readJson(json(R"({"solve": {"n_load_steps": 1, )" + times)), Json::LogicError) << column;
        EXPECT_NO_THROW(solve.readJson(json(R"({"solve": {"n_load_steps": 0, )" + times))) << column;
    }
}

TEST(CAESolve, TakesAMillionStepsMoreThanItsLongestArray)
{
    Json::Value document;
    for (int step = 0; step < 3; ++step)
        document["solve"]["times"].append(1.0);
    CAESolve solve;
    document["solve"]["n_load_steps"] = 1000004;
    EXPECT_THROW(solve.readJson(document), Json::RuntimeError);
    document["solve"]["n_load_steps"] = 1000003;
    solve.readJson(document);
    EXPECT_EQ(solve.n_substeps.size(), 1000003U);
}

TEST(CAESolve, RefusesLoadStepsThatNoMemoryHolds)
{
    CAESolve solve;
    try {
        solve.readJson(json(R"({"solve": {"n_load_steps": 4294967295, "times": [1.0]}})"));
        ADD_FAILURE() << "no exception";
    } catch (const Json::RuntimeError& error) {
        EXPECT_THAT(error.what(), testing::HasSubstr("\"n_load_steps\" is 4294967295"));
    }
    EXPECT_EQ(solve.n_load_steps, 1U);
}

TEST(CAESolve, ReturnsALoadStepCountedFromOne)
{
    CAESolve solve;
    solve.readJson(json(R"({"solve": {"n_load_steps": 2, "n_substeps": [10, 20], "nl_abs_tol": [0.1, 0.2],
                                      "nl_max_its": [7, 8]}})"));
    int substeps = -1;
    double tolerance = -1.0;
    int iterations = -1;
    solve.getLoadStep(2, substeps, tolerance, iterations);
    EXPECT_EQ(substeps, 20);
    EXPECT_EQ(tolerance, 0.2);
    EXPECT_EQ(iterations, 8);
}

TEST(CAESolve, ClearsTwoOutputsAndLeavesTheThirdForAStepThatItDoesNotHave)
{
    CAESolve solve;
    solve.n_substeps = {25, 26};
    solve.nl_abs_tol = {1e-8, 1e-9};
    solve.nl_max_its = {25, 27};
    for (const unsigned step : {0U, 2U}) {
        int substeps = -1;
        double tolerance = -1.0;
        int iterations = -1;
        solve.getLoadStep(step, substeps, tolerance, iterations);
        EXPECT_EQ(substeps, 0);
        EXPECT_EQ(tolerance, 0.0);
        EXPECT_EQ(iterations, -1);
    }
}

} // namespace
