#include "FailingAllocation.h"

#include <atomic>
#include <cstdlib>

namespace {

/// Which of the next allocations fails, counted from 1; 0 for none.
int failing = 0;
std::atomic<long> blocks{0};

void* allocate(std::size_t size)
{
    if (failing > 0 && --failing == 0)
        throw std::bad_alloc();
    void* const memory = std::malloc(size != 0 ? size : 1); // NOLINT(cppcoreguidelines-no-malloc): what new is made of
    if (memory == nullptr)
        throw std::bad_alloc();
    ++blocks;
    return memory;
}

void release(void* memory)
{
    if (memory != nullptr)
        --blocks;
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc): what delete is made of
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
    const // NOLINT(readability-convert-member-functions-to-static): there is one at a time
{
    return failing == 0;
}

long blocksInUse()
{
    return blocks;
}

} // namespace vxtest
