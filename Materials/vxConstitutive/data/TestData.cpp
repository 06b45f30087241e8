#include "vxConstitutive/data/TestData.h"

#include <cmath>

namespace vxConstitutive {

bool isInDomain(Mode mode, double abscissa, double ordinate)
{
    if (!std::isfinite(abscissa) || !std::isfinite(ordinate))
        return false;
    if (mode == Mode::SimpleShear || mode == Mode::CreepRate)
        return true;
    if (mode == Mode::Tensile)
        return abscissa > -1.0;
    if (mode == Mode::Plastic || mode == Mode::Creep || mode == Mode::Relaxation)
        return abscissa >= 0.0;
    return abscissa > 0.0;
}

} // namespace vxConstitutive
