#pragma once

#include <cstddef>
#include <cstring>

namespace vxtest {

/// The place of a virtual operation in the table of its class. The common C++ ABI keeps it in the pointer to the member:
/// one more than the offset in bytes.
template <typename Class, typename Function>
std::size_t slotOf(Function Class::*member)
{
    std::ptrdiff_t pointer = 0;
    std::memcpy(&pointer, &member, sizeof pointer);
    return static_cast<std::size_t>(pointer - 1) / sizeof(void*);
}

} // namespace vxtest
