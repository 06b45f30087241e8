#pragma once

#include <gtest/gtest.h>

#include <new>

namespace vxtest {

// A program that links this file has its own operator new, which all of its libraries use.

/// While it lives, one of the allocations of memory fails.
class FailingAllocation
{
public:
    /// \param which counted from 1, which is the next allocation
    explicit FailingAllocation(int which);
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation();

    /// Whether so many allocations were asked for that one failed.
    bool hasFailed() const;
};

/// How many blocks of memory the program has allocated and not freed.
long blocksInUse();

/// Calls `action` with the first allocation failing, then with the second one, and so on until it makes fewer. Each time
/// it must throw std::bad_alloc; then `check` is called. Returns how many allocations failed.
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
