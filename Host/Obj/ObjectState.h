#pragma once

namespace Obj {

/// Whether an object is usable. The numbers are part of the interface to modules.
enum class eVXObjectState : int
{
    Initial = 0, ///< not defined yet
    Ready = 3,   ///< can be used
};

} // namespace Obj
