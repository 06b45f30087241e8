#include "Obj/ProjectObjectGroup.h"

#include "ObjTesting.h"

namespace {

using Obj::ProjectObjectGroup;
using testing::ElementsAre;
using testing::IsEmpty;
using vxtest::Assembly;
using vxtest::namesOf;
using vxtest::Part;

class ProjectObjectGroupTest : public vxtest::ObjTest
{
protected:
    ProjectObjectGroup& addGroup(const char* name)
    {
        Obj::ProjectObject* const object = m_assembly.add_object("Obj::ProjectObjectGroup", name);
        if (object == nullptr)
            throw std::logic_error("a group was not added");
        return static_cast<ProjectObjectGroup&>(*object);
    }

    Assembly& m_assembly = addAssembly();
};

TEST_F(ProjectObjectGroupTest, IsMadeByItsRegisteredName)
{
    ProjectObjectGroup& group = addGroup("Group");
    EXPECT_EQ(group.getTypeId(), ProjectObjectGroup::getClassTypeId());
    EXPECT_TRUE(group.is_inherited_from(Obj::ProjectObject::getClassTypeId()));
    EXPECT_EQ(group.classLabel.getValue(), "Group");
    EXPECT_EQ(group.id.getValue(), group.getObjectId());
    EXPECT_EQ(group.get_property_type("ID"), 1);
}

/// Reaches the protected operations.
class OpenGroup : public ProjectObjectGroup
{
public:
    using ProjectObjectGroup::get_property_data;
    using ProjectObjectGroup::get_property_data_ref;
};

TEST_F(ProjectObjectGroupTest, DescribesItsPropertiesBesideThoseOfAnyObject)
{
    const OpenGroup group;
    EXPECT_EQ(&group.get_property_data(), OpenGroup::get_property_data_ref());
    EXPECT_NE(group.get_property_data().find("ClassLabel"), nullptr);
    ASSERT_NE(group.get_property_data().parent(), nullptr);
    EXPECT_NE(group.get_property_data().parent()->find("Label"), nullptr);
}

TEST_F(ProjectObjectGroupTest, HasMembersInTheOrderInWhichTheyCame)
{
    ProjectObjectGroup& group = addGroup("Group");
    Part& a = m_assembly.addPart("a");
    Part& b = m_assembly.addPart("b");
    group.add_member(b);
    group.add_member(a);
    group.add_member(b);
    EXPECT_THAT(namesOf(group.get_members()), ElementsAre("b", "a"));
    group.remove_member(b);
    EXPECT_THAT(namesOf(group.get_members()), ElementsAre("a"));
    EXPECT_EQ(m_assembly.get_object("b"), &b) << "it owns none of them";
}

TEST_F(ProjectObjectGroupTest, DoesNotCountTheGroupAroundItAsAMember)
{
    ProjectObjectGroup& outer = addGroup("outer");
    ProjectObjectGroup& inner = addGroup("inner");
    outer.add_member(inner);
    EXPECT_THAT(inner.get_members(), IsEmpty());
    EXPECT_THAT(namesOf(outer.get_members()), ElementsAre("inner"));
}

TEST_F(ProjectObjectGroupTest, LosesAMemberWhileItIsAwayForUndo)
{
    ProjectObjectGroup& group = addGroup("Group");
    Part& part = m_assembly.addPart("a");
    group.add_member(part);
    auto away = m_assembly.take_object(part.getObjectId());
    EXPECT_THAT(group.get_members(), IsEmpty());
    m_assembly.restore_object(std::move(away));
    EXPECT_THAT(namesOf(group.get_members()), ElementsAre("a"));
}

TEST_F(ProjectObjectGroupTest, LeavesItsMembersWhenItGoes)
{
    ProjectObjectGroup& group = addGroup("Group");
    Part& part = m_assembly.addPart("a");
    group.add_member(part);
    m_assembly.remove_object(group.getObjectId());
    EXPECT_THAT(part.get_linked_objects(), IsEmpty());
    EXPECT_EQ(m_assembly.get_object("a"), &part);
}

} // namespace
