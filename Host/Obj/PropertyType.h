#pragma once

namespace Obj {

/// What may be done with a property. The values are added.
struct PropertyType
{
    static constexpr short None = 0;
    static constexpr short ReadOnly = 1; ///< shown, not edited
    static constexpr short Hidden = 2;   ///< not shown
    static constexpr short Passive = 8;  ///< no result depends on it, as on how an object is shown
};

} // namespace Obj
