#include "ProjectTesting.h"

#include <cstdlib>
#include <memory>
#include <new>

namespace {

/// Which of the next allocations fails, counted from 1; 0 for none.
int failing = 0;

void* allocate(std::size_t size)
{
    if (failing > 0 && --failing == 0)
        throw std::bad_alloc();
    if (void* const memory = std::malloc(size != 0 ? size : 1)) // NOLINT(cppcoreguidelines-no-malloc)
        return memory;
    throw std::bad_alloc();
}

} // namespace

// Every library of the program allocates by these.
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
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc)
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc)
}

void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc)
}

namespace {

using ExhaustedMemory = vxtest::MaterialProject;

TEST_F(ExhaustedMemory, LeavesAMaterialWithoutAResultOfItsExecution)
{
    Mat::MaterialObject& object = addMaterial("Steel");
    // The result is one allocation, its text another.
    for (const int which : {1, 2}) {
        SCOPED_TRACE(which);
        const Obj::ProjectObjectExecReturn* result = nullptr;
        failing = which;
        EXPECT_NO_THROW(result = object.execute());
        EXPECT_EQ(failing, 0) << "the allocation was not asked for";
        failing = 0;
        EXPECT_EQ(result, nullptr);
    }
    EXPECT_NE(std::unique_ptr<Obj::ProjectObjectExecReturn>(object.execute()), nullptr);
}

} // namespace
