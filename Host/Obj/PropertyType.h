#pragma once

namespace Obj {

/// What may be done with a property. The values are added.
struct PropertyType
{
    static constexpr short none = 0;
    static constexpr short readOnly = 1; ///< shown, not edited
    static constexpr short hidden = 2;   ///< not shown
    static constexpr short passive = 8;  ///< no result depends on it, as on how an object is shown
};

} // namespace Obj
