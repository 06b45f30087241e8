#include "AgreementTable.h"

#include "DataFile.h"
#include "TableAtEnd.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>

namespace vxtest {

namespace {

constexpr const char* documentVariable = "VX_AGREEMENT_TABLE";

std::vector<AgreementRow>& rows()
{
    static std::vector<AgreementRow> all;
    return all;
}

/// Returns the columns that identify a row.
std::string beginning(const AgreementRow& row)
{
    return "| " + row.model + " | " + row.mode + " | " + row.range + " | ";
}

std::string textOf(const AgreementRow& row)
{
    return beginning(row) + std::to_string(row.points) + " | " + percentText(row.difference) + " | " + row.remark +
           " |\n";
}

std::string tableText()
{
    if (rows().empty())
        return {};
    std::string text = "| model | test | range | points | largest difference, % | remark |\n"
                       "|---|---|---|---|---|---|\n";
    for (const AgreementRow& row : rows())
        text += textOf(row);
    return text;
}

constexpr const char* introduction = R"(# Agreement of the curves with a solver

The program `solver_agreement_tests` writes this table; do not edit it. For each row, CalculiX 2.20 computed a cube of one
element (C3D8) in small increments. The test compares its nominal stress (force on a face), true stress or strain with the
curve at the same abscissas. The difference is the largest of all points, in percent of the largest value of the curve.
To update the table:

    VX_AGREEMENT_TABLE=docs/solver-agreement.md build/default/bin/solver_agreement_tests

Numbers are in MPa (D1 in 1/MPa), and in h for creep. K/mu is the ratio of the initial bulk modulus to the initial shear
modulus. Incompressible curves are compared with a solver material of K/mu = 1e7. Models that this solver cannot prove are
listed below the table.

)";

constexpr const char* unproved = R"(
Not proved by this solver:

- Drucker-Prager and Mohr-Coulomb: CalculiX 2.20 has no such keyword. Unit tests compare the yield surfaces with hand
  calculations.
- Visco-elasticity: there is no keyword either. Relaxation and creep in shear are proved by two elements on the same nodes.
  One is elastic, the second creeps in proportion to its stress (`*CREEP` with n = 1); together they are the same solid.
  Storage and loss modulus follow from the relaxation curve by a Fourier integral, which a unit test computes numerically.
- The inverse Langevin function: solvers compute the five-term series.
)";

void writeDocument(const std::string& path)
{
    std::ofstream(path) << introduction << tableText() << unproved;
}

[[maybe_unused]] const ::testing::Environment* const tableAtEnd =
    ::testing::AddGlobalTestEnvironment(new TableAtEnd(documentVariable, tableText, writeDocument));

} // namespace

void recordAgreement(const AgreementRow& row)
{
    rows().push_back(row);
    if (documentToWrite(documentVariable) != nullptr)
        return;
    EXPECT_NE(readText(VX_AGREEMENT_DOC).find(beginning(row)), std::string::npos)
        << "docs/solver-agreement.md has no row " << beginning(row) << "; update it as its introduction says";
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
