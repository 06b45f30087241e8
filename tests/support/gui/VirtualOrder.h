#pragma once

#include <cstddef>
#include <cstring>

namespace vxtest {

/// Returns the index of a virtual function in the virtual table of its class. In the common C++ ABI, a pointer to a
/// virtual member function contains the offset in the table, in bytes, plus one.
template <typename Class, typename Function>
std::size_t slotOf(Function Class::*member)
{
    std::ptrdiff_t pointer = 0;
    std::memcpy(&pointer, &member, sizeof pointer);
    return static_cast<std::size_t>(pointer - 1) / sizeof(void*);
}

} // namespace vxtest
