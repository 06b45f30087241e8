#pragma once

#include "fit/FitJob.h"

#include <optional>
#include <string>
#include <vector>

namespace vxInspector {

/// A fit that has ended.
struct FinishedFit
{
    FitOrder order;
    std::vector<vxConstitutive::FitResult> results; ///< not empty
    std::string model;                              ///< the selected one, by its English name
    std::optional<double> curveModulus;             ///< Pa; see FitPage
};

/// The latest fits, by their tests. A user who looks at another material and returns finds the fit of its tests again.
class FinishedFits
{
public:
    /// Keeps a fit in place of an earlier one of the same tests. Forgets the oldest fits if there are too many, or if their
    /// tests have too many points together.
    void keep(FinishedFit fit);
    /// Returns the fit of these tests, which must be the same in the same order; null if there is none. The pointer is valid
    /// until keep().
    const FinishedFit* of(const std::vector<const vxConstitutive::TestData*>& tests) const;

private:
    std::vector<FinishedFit> m_fits; ///< the latest is first
};

} // namespace vxInspector
