#pragma once

namespace Obj {

/// The restrictions of a property. The values are combined by addition.
struct PropertyType
{
    static constexpr short none = 0;
    static constexpr short readOnly = 1; ///< shown, not edited
    static constexpr short hidden = 2;   ///< not shown
    static constexpr short passive = 8;  ///< no result depends on it, for example the appearance of an object
};

} // namespace Obj
