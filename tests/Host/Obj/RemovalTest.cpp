#include "Obj/Removal.h"

#include "ObjTesting.h"

namespace {

using Obj::RemovalGuard;
using vxtest::Assembly;
using vxtest::Part;

class RemovalTest : public vxtest::ObjTest
{
protected:
    Assembly& m_assembly = addAssembly();
};

TEST_F(RemovalTest, DestroysAtOnceWithoutAGuard)
{
    const Part& part = m_assembly.addPart();
    EXPECT_TRUE(m_assembly.removeObject(part.getObjectId()));
    EXPECT_EQ(Part::count(), 0);
}

TEST_F(RemovalTest, WaitsForTheLastGuard)
{
    Part& part = m_assembly.addPart("Bolt");
    {
        const RemovalGuard outer;
        {
            const RemovalGuard inner;
            EXPECT_FALSE(RemovalGuard::isDoomed(part));
            EXPECT_TRUE(m_assembly.removeObject(part.getObjectId()));
            EXPECT_TRUE(RemovalGuard::isDoomed(part));
        }
        EXPECT_EQ(Part::count(), 1);
        EXPECT_STREQ(part.get_name_in_project(), "Bolt") << "it is still complete";
        EXPECT_EQ(part.get_project(), nullptr);
    }
    EXPECT_EQ(Part::count(), 0);
}

TEST_F(RemovalTest, KeepsAClosedProjectWithItsObjects)
{
    m_assembly.addPart();
    {
        const RemovalGuard guard;
        EXPECT_TRUE(application().closeProject(m_assembly));
        EXPECT_TRUE(RemovalGuard::isDoomed(m_assembly));
        EXPECT_EQ(m_assembly.getObjectCount(), 1U);
    }
    EXPECT_EQ(Part::count(), 0);
}

/// An object that removes another one while it is destroyed.
class Chained : public Obj::ProjectObject
{
public:
    Chained(Assembly& assembly, std::uint32_t next) : m_assembly(assembly), m_next(next) {}
    ~Chained() override
    {
        const RemovalGuard guard;
        m_assembly.removeObject(m_next);
    }

private:
    Assembly& m_assembly;
    std::uint32_t m_next;
};

TEST_F(RemovalTest, DestroysWhatDestructorsRemove)
{
    const std::uint32_t last = m_assembly.addPart("last").getObjectId();
    const auto add = [this](std::uint32_t next) {
        return m_assembly.add_object(std::make_unique<Chained>(m_assembly, next), "link")->getObjectId();
    };
    const std::uint32_t first = add(add(last));
    {
        const RemovalGuard guard;
        EXPECT_TRUE(m_assembly.removeObject(first));
        EXPECT_EQ(m_assembly.getObjectCount(), 2U);
    }
    EXPECT_EQ(m_assembly.getObjectCount(), 0U);
    EXPECT_EQ(Part::count(), 0);
}

} // namespace
