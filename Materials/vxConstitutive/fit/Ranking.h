#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/fit/Fit.h"

#include <vector>

namespace vxConstitutive {

/// Sorts models fitted to the same tests, best first, stores FitResult::criterion, and adds a finding to each model whose residual
/// is less than that of the first one.
///
/// The criterion is that of Schwarz with McQuarrie's correction for few points:
///
///     n ln(r^2 + r0^2) + n k ln(n) / (n - k - 2)
///
/// r is the residual and r0 FitResult::resolution, so that models which meet the tests better than they are measured are equally
/// good. k is the number of free constants; a constant that is poor or at a bound counts twice, and a model that is not as
/// stable as requested has one constant more. n is the number of points, at most 100 or ten times the largest k: the points of a
/// dense curve repeat each other. Thus a further constant must lower the residual by 2.4 % if there are 100 points, and by 8 %
/// if there are 25.
///
/// Models with undetermined constants are after all others, and failed ones are last.
///
/// Sources: G. Schwarz, Ann. Statist. 6 (1978) 461; A. D. R. McQuarrie, Statist. Probab. Lett. 44 (1999) 79.
VXCONSTITUTIVE_EXPORT void rankFits(std::vector<FitResult>& results);

} // namespace vxConstitutive
