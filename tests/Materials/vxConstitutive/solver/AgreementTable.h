#pragma once

#include <string>
#include <vector>

namespace vxtest {

/// The agreement of a curve and a solver.
struct AgreementRow
{
    std::string model; ///< with its constants
    std::string mode;  ///< the compared test
    std::string range; ///< of the abscissa
    std::size_t points = 0;
    double difference = 0.0; ///< largest difference by the largest value of the curve
    std::string remark;      ///< the reason of a large difference, or empty
};

/// Adds a row to the table, which is printed after the last test. Expects that docs/solver-agreement.md has the row. If the
/// environment variable VX_AGREEMENT_TABLE has the path of a file, writes the table to it instead.
void recordAgreement(const AgreementRow& row);

/// Returns the largest difference of two lists by the largest value of the first. The test fails if their lengths differ.
double largestDifference(const std::vector<double>& curve, const std::vector<double>& solver);

} // namespace vxtest
