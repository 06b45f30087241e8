#pragma once

namespace Obj {

/// How far an object has come. The numbers are part of the interface to modules.
enum class eVXObjectState : int
{
    Initial = 0, ///< nothing has been defined
    Ready = 3,   ///< can be used
};

} // namespace Obj
