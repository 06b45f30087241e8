#include "Obj/ProjectObjectGroup.h"

#include "HostTesting.h"
#include "ObjTesting.h"

#include <utility>

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

/// Makes the protected operations accessible.
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
    group.addMember(b);
    group.addMember(a);
    group.addMember(b);
    EXPECT_THAT(namesOf(group.getMembers()), ElementsAre("b", "a"));
    group.removeMember(b);
    EXPECT_THAT(namesOf(group.getMembers()), ElementsAre("a"));
    EXPECT_EQ(m_assembly.get_object("b"), &b) << "it owns none of them";
}

TEST_F(ProjectObjectGroupTest, DoesNotCountTheGroupAroundItAsAMember)
{
    ProjectObjectGroup& outer = addGroup("outer");
    ProjectObjectGroup& inner = addGroup("inner");
    outer.addMember(inner);
    EXPECT_THAT(inner.getMembers(), IsEmpty());
    EXPECT_THAT(namesOf(outer.getMembers()), ElementsAre("inner"));
}

TEST_F(ProjectObjectGroupTest, LosesAMemberWhileItIsAwayForUndo)
{
    ProjectObjectGroup& group = addGroup("Group");
    Part& part = m_assembly.addPart("a");
    group.addMember(part);
    auto away = m_assembly.takeObject(part.getObjectId());
    EXPECT_THAT(group.getMembers(), IsEmpty());
    m_assembly.restoreObject(std::move(away));
    EXPECT_THAT(namesOf(group.getMembers()), ElementsAre("a"));
}

TEST_F(ProjectObjectGroupTest, LeavesItsMembersInTheProjectWhenItIsDeleted)
{
    ProjectObjectGroup& group = addGroup("Group");
    Part& part = m_assembly.addPart("a");
    group.addMember(part);
    m_assembly.removeObject(group.getObjectId());
    EXPECT_THAT(part.get_linked_objects(), IsEmpty());
    EXPECT_EQ(m_assembly.get_object("a"), &part);
}

TEST_F(ProjectObjectGroupTest, IsTheParentOfItsMembers)
{
    ProjectObjectGroup& group = addGroup("Group");
    Part& part = m_assembly.addPart("a");
    EXPECT_EQ(part.getParentGroup(), nullptr);
    EXPECT_TRUE(group.addMember(part));
    EXPECT_EQ(part.getParentGroup(), &group);
    group.removeMember(part);
    EXPECT_EQ(part.getParentGroup(), nullptr);
    part.linkTo(group);
    EXPECT_EQ(part.getParentGroup(), nullptr) << "an object that needs a group is not its member";
}

TEST_F(ProjectObjectGroupTest, TakesAMemberFromTheGroupThatHadIt)
{
    ProjectObjectGroup& first = addGroup("first");
    ProjectObjectGroup& second = addGroup("second");
    Part& part = m_assembly.addPart("a");
    first.addMember(part);
    EXPECT_TRUE(second.addMember(part));
    EXPECT_EQ(part.getParentGroup(), &second);
    EXPECT_THAT(first.getMembers(), IsEmpty());
    EXPECT_THAT(namesOf(second.getMembers()), ElementsAre("a"));
}

TEST_F(ProjectObjectGroupTest, CannotBeInsideItselfOrItsMembers)
{
    ProjectObjectGroup& outer = addGroup("outer");
    ProjectObjectGroup& middle = addGroup("middle");
    ProjectObjectGroup& inner = addGroup("inner");
    EXPECT_TRUE(outer.addMember(middle));
    EXPECT_TRUE(middle.addMember(inner));
    const vxtest::Reports reports;
    EXPECT_FALSE(outer.addMember(outer));
    EXPECT_FALSE(inner.addMember(outer));
    EXPECT_FALSE(inner.addMember(middle));
    EXPECT_EQ(reports.errors(), 3);
    EXPECT_THAT(reports.text(),
                testing::HasSubstr("\"outer\" cannot be a member of \"inner\", because \"inner\" is inside it"));
    EXPECT_EQ(outer.getParentGroup(), nullptr);
    EXPECT_THAT(inner.getMembers(), IsEmpty());
}

TEST_F(ProjectObjectGroupTest, TakesAsMembersWhatItIsLinkedTo)
{
    ProjectObjectGroup& outer = addGroup("outer");
    ProjectObjectGroup& inner = addGroup("inner");
    EXPECT_TRUE(outer.linkTo(inner));
    EXPECT_EQ(inner.getParentGroup(), &outer);
    const vxtest::Reports reports;
    EXPECT_FALSE(inner.linkTo(outer));
    EXPECT_EQ(reports.errors(), 1);
    EXPECT_EQ(outer.getParentGroup(), nullptr);
}

TEST_F(ProjectObjectGroupTest, IsNestedOnlyAHundredLevelsDeep)
{
    std::vector<ProjectObjectGroup*> groups;
    for (int i = 0; i <= ProjectObjectGroup::deepestNesting; ++i) {
        groups.push_back(&addGroup("Group"));
        if (i > 0) {
            EXPECT_TRUE(groups[groups.size() - 2]->addMember(*groups.back()));
        }
    }
    ProjectObjectGroup& outer = addGroup("outer");
    ProjectObjectGroup& inner = addGroup("inner");
    const vxtest::Reports reports;
    EXPECT_FALSE(groups.back()->addMember(inner));
    EXPECT_FALSE(outer.addMember(*groups.front()));
    EXPECT_TRUE(groups[groups.size() - 2]->addMember(inner));
    EXPECT_EQ(reports.errors(), 2);
    EXPECT_THAT(reports.text(),
                testing::HasSubstr("\"inner\" cannot be a member of \"Group100\", because groups would be "
                                   "nested too deeply"));
    EXPECT_EQ(groups.front()->getParentGroup(), nullptr);
}

TEST_F(ProjectObjectGroupTest, RefusesMembersOfOtherProjects)
{
    ProjectObjectGroup& group = addGroup("Group");
    Part& stranger = addAssembly("other").addPart("a");
    const vxtest::Reports reports;
    EXPECT_FALSE(group.addMember(stranger));
    EXPECT_EQ(reports.errors(), 1);
    EXPECT_THAT(group.getMembers(), IsEmpty());
}

TEST_F(ProjectObjectGroupTest, TellsThatAMemberCameOrLeft)
{
    ProjectObjectGroup& group = addGroup("Group");
    Part& part = m_assembly.addPart("a");
    std::vector<std::pair<std::string, bool>> told;
    m_assembly.objectChanged.connect([&told](Obj::ProjectObject& object, const Obj::Property* property) {
        EXPECT_EQ(property, nullptr);
        told.emplace_back(object.get_name_in_project(), object.getParentGroup() != nullptr);
    });
    group.addMember(part);
    group.addMember(part);
    group.removeMember(part);
    group.removeMember(part);
    EXPECT_THAT(told, ElementsAre(std::pair("a", true), std::pair("a", false)));
}

TEST_F(ProjectObjectGroupTest, HasItsMembersAgainWhenItIsRestored)
{
    ProjectObjectGroup& group = addGroup("Group");
    Part& a = m_assembly.addPart("a");
    Part& b = m_assembly.addPart("b");
    group.addMember(a);
    group.addMember(b);
    Obj::OwnedObject away = m_assembly.takeObject(group.getObjectId());
    EXPECT_EQ(a.getParentGroup(), nullptr);
    ProjectObjectGroup& other = addGroup("other");
    other.addMember(b);
    m_assembly.restoreObject(std::move(away));
    EXPECT_EQ(a.getParentGroup(), &group);
    EXPECT_EQ(b.getParentGroup(), &other) << "it is in the last group to which it was added";
    EXPECT_THAT(namesOf(group.getMembers()), ElementsAre("a"));
}

} // namespace
