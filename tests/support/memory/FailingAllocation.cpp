#include "FailingAllocation.h"

#include <atomic>
#include <cstdlib>

namespace {

/// The number of the next allocation that fails, counted from 1; 0 if no allocation fails.
int failing = 0;
std::atomic<long> blocks{0};

void* allocate(std::size_t size)
{
    if (failing > 0 && --failing == 0)
        throw std::bad_alloc();
    void* const memory = std::malloc(size != 0 ? size : 1); // NOLINT(cppcoreguidelines-no-malloc): implements new
    if (memory == nullptr)
        throw std::bad_alloc();
    ++blocks;
    return memory;
}

void release(void* memory)
{
    if (memory != nullptr)
        --blocks;
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc): implements delete
}

} // namespace

void* operator new(std::size_t size)
{
    return allocate(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    try {
        return allocate(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* memory) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    release(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    release(memory);
}

namespace vxtest {

FailingAllocation::FailingAllocation(int which)
{
    failing = which;
}

FailingAllocation::~FailingAllocation()
{
    failing = 0;
}

bool FailingAllocation::hasFailed()
    const // NOLINT(readability-convert-member-functions-to-static): there is one object at a time
{
    return failing == 0;
}

long blocksInUse()
{
    return blocks;
}

} // namespace vxtest
