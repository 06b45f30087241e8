#include "vxMaterial/exchange/CAEBase.h"

namespace vxCAE {

CAEBase::~CAEBase() = default;

} // namespace vxCAE
