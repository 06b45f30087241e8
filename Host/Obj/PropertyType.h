#pragma once

namespace Obj {

/// What may be done with a property; the values are added up.
struct PropertyType
{
    static constexpr short None = 0;
    static constexpr short ReadOnly = 1; ///< shown, not edited
    static constexpr short Hidden = 2;   ///< not shown
    static constexpr short Passive = 8;  ///< says how something is shown or defined; no result depends on it
};

} // namespace Obj
