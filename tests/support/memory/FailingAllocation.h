#pragma once

#include <gtest/gtest.h>

#include <new>

namespace vxtest {

// A program that links this file has its own operator new, which all its libraries use.

/// Makes one of the next memory allocations fail. The destructor ends this.
class FailingAllocation
{
public:
    /// \param which the number of the allocation; 1 is the next allocation
    explicit FailingAllocation(int which);
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation();

    /// Returns whether the allocation has failed.
    bool hasFailed() const;
};

/// Returns the number of memory blocks that the program has allocated and not freed.
long blocksInUse();

/// Calls `action` repeatedly. In the first call the first allocation fails, in the second call the second one, and so
/// on, until `action` makes fewer allocations. If an allocation fails, `action` must throw std::bad_alloc; the function
/// then calls `check`. Returns the number of failed allocations.
template <class Action, class Check>
int failEachAllocationOf(const Action& action, const Check& check)
{
    for (int which = 1;; ++which) {
        bool hasThrown = false;
        const FailingAllocation failing(which);
        try {
            action();
        } catch (const std::bad_alloc&) {
            hasThrown = true;
        }
        EXPECT_EQ(hasThrown, failing.hasFailed()) << "allocation " << which;
        if (!failing.hasFailed())
            return which - 1;
        check();
        if (testing::Test::HasFailure()) {
            ADD_FAILURE() << "where allocation " << which << " failed";
            return which;
        }
    }
}

} // namespace vxtest
