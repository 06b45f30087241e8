#pragma once

#include <string>
#include <vector>

namespace vxtest {

/// How well a curve and a solver agree.
struct AgreementRow
{
    std::string model; ///< with its constants
    std::string mode;  ///< what was compared
    std::string range; ///< of the abscissa
    std::size_t points = 0;
    double difference = 0.0; ///< largest difference by the largest value of the curve
    std::string remark;      ///< why the difference is larger than elsewhere; empty if it is not
};

/// Takes a row into the table, which is printed when all tests have run, and expects that docs/solver-agreement.md has
/// the row too. With VX_AGREEMENT_TABLE in the environment, the table is written to the file that it names instead.
void recordAgreement(const AgreementRow& row);

/// The largest difference of two lists by the largest value of the first. The test fails if their lengths differ.
double largestDifference(const std::vector<double>& curve, const std::vector<double>& solver);

} // namespace vxtest
