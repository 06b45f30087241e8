#include "AgreementTable.h"

#include "DataFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>

namespace vxtest {

namespace {

std::vector<AgreementRow>& rows()
{
    static std::vector<AgreementRow> all;
    return all;
}

/// What identifies a row.
std::string beginning(const AgreementRow& row)
{
    return "| " + row.model + " | " + row.mode + " | " + row.range + " | ";
}

std::string textOf(const AgreementRow& row)
{
    // Two digits of a percentage; what is smaller than the solver's output resolves is not told apart.
    char difference[32] = "less than 0.0001";
    if (row.difference >= 1e-6)
        std::snprintf(difference, sizeof difference, "%.2g", row.difference * 100.0);
    return beginning(row) + std::to_string(row.points) + " | " + difference + " | " + row.remark + " |\n";
}

std::string tableText()
{
    std::string text = "| model | test | range | points | largest difference, % | remark |\n"
                       "|---|---|---|---|---|---|\n";
    for (const AgreementRow& row : rows())
        text += textOf(row);
    return text;
}

constexpr const char* introduction =
    "# Curves and a solver\n\n"
    "This table is made by the program `solver_agreement_tests`; do not edit it. For each row CalculiX 2.20 computed "
    "a\n"
    "cube of one element (C3D8) in small increments, and the nominal stress (force on a face), the true stress or the\n"
    "strain that it printed was compared with the curve at the same abscissas. The difference is the largest of all\n"
    "points, in percent of the largest value of the curve. To make it anew:\n\n"
    "    VX_AGREEMENT_TABLE=docs/solver-agreement.md build/default/bin/solver_agreement_tests\n\n"
    "Numbers are in MPa (D1 in 1/MPa), h for creep; K/mu is the ratio of the initial bulk and shear modulus. "
    "Incompressible\n"
    "curves are compared with a solver material of K/mu = 1e7. What no solver here can prove stands below the "
    "table.\n\n";

constexpr const char* without =
    "\nWithout a proof by this solver:\n\n"
    "- Drucker-Prager and Mohr-Coulomb: CalculiX 2.20 has no such keyword; the yield surfaces are checked by hand\n"
    "  calculations in the unit tests.\n"
    "- Visco-elasticity has no keyword either. Relaxation and creep in shear are proved by two elements on the same "
    "nodes,\n"
    "  one of them elastic, the other one creeping in proportion to its stress (`*CREEP` with n = 1): together the "
    "same\n"
    "  solid. Storage and loss modulus follow from the relaxation curve by a Fourier integral, which a unit test does\n"
    "  numerically.\n"
    "- The inverse Langevin function: solvers compute the five-term series.\n";

/// Prints the table, or writes it, when all tests have run.
class TableAtEnd : public ::testing::Environment
{
public:
    void TearDown() override
    {
        if (rows().empty())
            return;
        std::cout << tableText();
        const char* const path = std::getenv("VX_AGREEMENT_TABLE"); // NOLINT(concurrency-mt-unsafe): one thread
        if (path != nullptr)
            std::ofstream(path) << introduction << tableText() << without;
    }
};

[[maybe_unused]] const ::testing::Environment* const tableAtEnd = ::testing::AddGlobalTestEnvironment(new TableAtEnd);

} // namespace

void recordAgreement(const AgreementRow& row)
{
    rows().push_back(row);
    if (std::getenv("VX_AGREEMENT_TABLE") != nullptr) // NOLINT(concurrency-mt-unsafe): one thread
        return;
    EXPECT_NE(readText(VX_AGREEMENT_DOC).find(beginning(row)), std::string::npos)
        << "docs/solver-agreement.md has no row " << beginning(row) << "; make it anew as it says";
}

double largestDifference(const std::vector<double>& curve, const std::vector<double>& solver)
{
    EXPECT_EQ(curve.size(), solver.size());
    double largest = 0.0;
    double difference = 0.0;
    for (std::size_t i = 0; i < std::min(curve.size(), solver.size()); ++i) {
        largest = std::max(largest, std::fabs(curve[i]));
        difference = std::max(difference, std::fabs(curve[i] - solver[i]));
        if (!std::isfinite(curve[i]) || !std::isfinite(solver[i]))
            return HUGE_VAL;
    }
    EXPECT_GT(largest, 0.0);
    return difference / largest;
}

} // namespace vxtest
