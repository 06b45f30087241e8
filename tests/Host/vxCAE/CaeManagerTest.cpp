#include "vxCAE/CaeManager.h"

#include "vxMaterial/exchange/CAESet.h"

#include <gtest/gtest.h>

namespace {

using vxCAE::CAESet;
using vxCAE::CCaeManager;

/// A set that records its destruction.
class WatchedSet : public CAESet
{
public:
    WatchedSet(std::uint32_t project, int& destroyed)
        : CAESet(project, vxCAE::ProjectKind::Material), m_destroyed(destroyed)
    {}
    WatchedSet(const WatchedSet&) = delete;
    WatchedSet& operator=(const WatchedSet&) = delete;
    ~WatchedSet() override { ++m_destroyed; }

private:
    int& m_destroyed;
};

TEST(CaeManager, HoldsASetForEachProject)
{
    CCaeManager manager;
    auto* const first = new CAESet(1, vxCAE::ProjectKind::Material);
    auto* const last = new CAESet(4294967295U, vxCAE::ProjectKind::Material);
    manager.setCAE(1, first);
    manager.setCAE(4294967295U, last);
    EXPECT_EQ(manager.getCAE(1), first);
    EXPECT_EQ(manager.getCAE(4294967295U), last);
    EXPECT_EQ(manager.getCAE(2), nullptr);
    EXPECT_EQ(manager.getCount(), 2U);
}

TEST(CaeManager, DestroysTheSetThatAnotherOneReplaces)
{
    int destroyed = 0;
    CCaeManager manager;
    manager.setCAE(1, new WatchedSet(1, destroyed));
    auto* const second = new WatchedSet(1, destroyed);
    manager.setCAE(1, second);
    EXPECT_EQ(destroyed, 1);
    EXPECT_EQ(manager.getCAE(1), second);
}

TEST(CaeManager, KeepsASetThatItIsGivenASecondTime)
{
    int destroyed = 0;
    CCaeManager manager;
    auto* const set = new WatchedSet(1, destroyed);
    manager.setCAE(1, set);
    manager.setCAE(1, set);
    EXPECT_EQ(destroyed, 0);
    EXPECT_EQ(manager.getCAE(1), set);
}

TEST(CaeManager, MovesASetThatItIsGivenForAnotherProject)
{
    int destroyed = 0;
    CCaeManager manager;
    auto* const set = new WatchedSet(1, destroyed);
    manager.setCAE(1, set);
    manager.setCAE(2, set);
    EXPECT_EQ(destroyed, 0);
    EXPECT_EQ(manager.getCAE(1), nullptr) << "the set belongs to one project only";
    EXPECT_EQ(manager.getCAE(2), set);
}

TEST(CaeManager, LetsGoOfASetForNull)
{
    int destroyed = 0;
    CCaeManager manager;
    manager.setCAE(1, new WatchedSet(1, destroyed));
    manager.setCAE(1, nullptr);
    manager.setCAE(2, nullptr);
    EXPECT_EQ(destroyed, 1);
    EXPECT_EQ(manager.getCAE(1), nullptr);
    EXPECT_EQ(manager.getCount(), 0U);
}

TEST(CaeManager, DestroysItsSetsWithItself)
{
    int destroyed = 0;
    {
        CCaeManager manager;
        manager.setCAE(1, new WatchedSet(1, destroyed));
        manager.setCAE(2, new WatchedSet(2, destroyed));
    }
    EXPECT_EQ(destroyed, 2);
}

TEST(CaeManager, IsTheSameInTheWholeProgram)
{
    CCaeManager& manager = vxCAE::GetCaeManager();
    manager.setCAE(7, new CAESet(7, vxCAE::ProjectKind::Material));
    EXPECT_EQ(&vxCAE::GetCaeManager(), &manager);
    EXPECT_NE(vxCAE::GetCaeManager().getCAE(7), nullptr);
    manager.setCAE(7, nullptr);
}

} // namespace
