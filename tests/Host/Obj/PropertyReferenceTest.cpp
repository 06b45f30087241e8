#include "Obj/PropertyReference.h"

#include "HostTesting.h"
#include "ObjTesting.h"

#include "Obj/PropertyType.h"

#include <json/writer.h>

#include <utility>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using vxtest::Assembly;
using vxtest::Joint;
using vxtest::namesOf;
using vxtest::Part;

class PropertyReferenceTest : public vxtest::ObjTest
{
protected:
    Assembly& m_assembly = addAssembly();
    Part& m_bolt = m_assembly.addPart("Bolt");
    Part& m_nut = m_assembly.addPart("Nut");
    Joint& m_joint = m_assembly.addJoint();
};

TEST_F(PropertyReferenceTest, RefersToNothingAtFirst)
{
    EXPECT_EQ(m_joint.first.getValue(), nullptr);
    EXPECT_EQ(m_joint.first.getId(), 0U);
    EXPECT_EQ(m_joint.first.toText(), "");
    EXPECT_TRUE(m_joint.first.toJson().isNull());
}

TEST_F(PropertyReferenceTest, RefersToAnObjectByItsIdAndShowsItsName)
{
    EXPECT_TRUE(m_joint.first.setValue(&m_bolt));
    m_bolt.label.setValue("the user's own name");
    EXPECT_EQ(m_joint.first.getValue(), &m_bolt);
    EXPECT_EQ(m_joint.first.toText(), "Bolt");
    EXPECT_EQ(m_joint.first.toJson(), Json::Value(m_bolt.getObjectId()));
    EXPECT_TRUE(m_joint.first.setValue(nullptr));
    EXPECT_EQ(m_joint.first.getValue(), nullptr);
}

TEST_F(PropertyReferenceTest, IsReadFromTextAndJson)
{
    EXPECT_TRUE(m_joint.first.fromText("Nut"));
    EXPECT_EQ(m_joint.first.getValue(), &m_nut);
    EXPECT_FALSE(m_joint.first.fromText("Washer"));
    EXPECT_EQ(m_joint.first.getValue(), &m_nut) << "it is unchanged";
    EXPECT_TRUE(m_joint.first.fromText(""));
    EXPECT_EQ(m_joint.first.getValue(), nullptr);
    EXPECT_TRUE(m_joint.first.fromJson(m_bolt.getObjectId()));
    EXPECT_EQ(m_joint.first.getValue(), &m_bolt);
    for (const Json::Value& wrong : {Json::Value(0), Json::Value(99), Json::Value(-1), Json::Value("Bolt"),
                                     Json::Value(1.5), Json::Value(true), Json::Value(Json::arrayValue)})
        EXPECT_FALSE(m_joint.first.fromJson(wrong)) << wrong;
    EXPECT_EQ(m_joint.first.getValue(), &m_bolt);
    EXPECT_TRUE(m_joint.first.fromJson(Json::Value()));
    EXPECT_EQ(m_joint.first.getValue(), nullptr);
}

TEST_F(PropertyReferenceTest, RefusesObjectsOfOtherProjectsAndOfNone)
{
    Part& stranger = addAssembly("other").addPart("Bolt");
    EXPECT_FALSE(m_joint.first.setValue(&stranger));
    const Obj::OwnedObject away = m_assembly.takeObject(m_nut.getObjectId());
    EXPECT_FALSE(m_joint.first.setValue(&m_nut)) << "it is not in the project now";
    Obj::PropertyReference loose;
    EXPECT_FALSE(loose.setValue(&m_bolt)) << "it has no owner";
    EXPECT_TRUE(loose.setValue(nullptr));
    EXPECT_EQ(m_joint.first.getValue(), nullptr);
}

TEST_F(PropertyReferenceTest, TellsTheOwnerBeforeAndAfterAChange)
{
    Part::hooks().calls.clear();
    m_joint.first.setValue(&m_bolt);
    EXPECT_THAT(Part::hooks().calls, ElementsAre("before ", "changed Bolt"));
}

TEST_F(PropertyReferenceTest, MakesTheOwnerNeedTheObject)
{
    m_joint.first.setValue(&m_bolt);
    m_joint.second.setValue(&m_nut);
    EXPECT_THAT(namesOf(m_joint.getNeededObjects()), ElementsAre("Bolt", "Nut"));
    EXPECT_THAT(namesOf(m_bolt.get_linked_objects()), ElementsAre("Joint"));
    EXPECT_THAT(m_joint.getLinks(), IsEmpty()) << "no link was declared";
    m_joint.first.setValue(&m_nut);
    EXPECT_THAT(m_bolt.get_linked_objects(), IsEmpty());
    m_joint.second.setValue(nullptr);
    EXPECT_THAT(namesOf(m_joint.getNeededObjects()), ElementsAre("Nut")) << "the other reference is left";
    m_joint.first.setValue(nullptr);
    EXPECT_THAT(m_joint.getNeededObjects(), IsEmpty());
    EXPECT_THAT(m_nut.get_linked_objects(), IsEmpty());
}

TEST_F(PropertyReferenceTest, LeavesALinkThatWasDeclaredToo)
{
    m_joint.linkTo(m_bolt);
    m_joint.first.setValue(&m_bolt);
    m_joint.first.setValue(nullptr);
    EXPECT_THAT(namesOf(m_joint.getNeededObjects()), ElementsAre("Bolt"));
    m_joint.first.setValue(&m_bolt);
    Part::hooks().calls.clear();
    m_joint.unlinkFrom(m_bolt);
    EXPECT_THAT(Part::hooks().calls, IsEmpty()) << "the joint still needs it";
    EXPECT_THAT(namesOf(m_joint.getNeededObjects()), ElementsAre("Bolt"));
}

TEST_F(PropertyReferenceTest, MayReferToItsOwner)
{
    EXPECT_TRUE(m_joint.first.setValue(&m_joint));
    EXPECT_EQ(m_joint.first.getValue(), &m_joint);
    EXPECT_THAT(m_joint.getNeededObjects(), IsEmpty());
    EXPECT_TRUE(m_joint.first.setValue(nullptr));
}

TEST_F(PropertyReferenceTest, IsNoneWhileTheObjectIsDeletedAndBackWithIt)
{
    m_joint.first.setValue(&m_bolt);
    Part::hooks().calls.clear();
    Obj::OwnedObject away = m_assembly.takeObject(m_bolt.getObjectId());
    EXPECT_EQ(m_joint.first.getValue(), nullptr);
    EXPECT_EQ(m_joint.first.toText(), "");
    EXPECT_TRUE(m_joint.first.toJson().isNull());
    EXPECT_THAT(Part::hooks().calls, ElementsAre("break Bolt", "changed "));
    Part::hooks().calls.clear();
    m_assembly.restoreObject(std::move(away));
    EXPECT_EQ(m_joint.first.getValue(), &m_bolt);
    EXPECT_THAT(Part::hooks().calls, ElementsAre("changed Bolt", "restored Bolt"));
}

TEST_F(PropertyReferenceTest, IsRestoredThoughTheOwnerClearedItWhenTheObjectLeft)
{
    m_joint.first.setValue(&m_bolt);
    m_joint.second.setValue(&m_bolt);
    m_joint.linkTo(m_bolt);
    Part::hooks().unlinksWhatLeaves = true;
    Part::hooks().action = [this](Obj::ProjectObject&, const std::string& operation) {
        if (operation == "changing" && m_bolt.get_project() == nullptr && m_joint.first.getId() != 0)
            m_joint.first.setValue(nullptr);
    };
    Obj::OwnedObject away = m_assembly.takeObject(m_bolt.getObjectId());
    EXPECT_EQ(m_joint.first.getId(), 0U);
    EXPECT_THAT(m_joint.getLinks(), IsEmpty());
    Part::hooks().action = nullptr;
    m_joint.second.setValue(&m_nut);
    m_assembly.restoreObject(std::move(away));
    EXPECT_EQ(m_joint.first.getValue(), &m_bolt);
    EXPECT_EQ(m_joint.second.getValue(), &m_nut) << "it has been set to another one meanwhile";
    EXPECT_THAT(namesOf(m_joint.getLinks()), ElementsAre("Bolt"));
}

TEST_F(PropertyReferenceTest, FindsItsObjectAgainIfTheOwnerIsRestoredAfterIt)
{
    m_joint.first.setValue(&m_bolt);
    Obj::OwnedObject joint = m_assembly.takeObject(m_joint.getObjectId());
    EXPECT_EQ(m_joint.first.getValue(), nullptr) << "the owner is in no project";
    Obj::OwnedObject bolt = m_assembly.takeObject(m_bolt.getObjectId());
    m_assembly.restoreObject(std::move(bolt));
    m_assembly.restoreObject(std::move(joint));
    EXPECT_EQ(m_joint.first.getValue(), &m_bolt);
    EXPECT_THAT(namesOf(m_joint.getNeededObjects()), ElementsAre("Bolt"));
}

TEST_F(PropertyReferenceTest, IsNoneWhenTheObjectIsDestroyed)
{
    m_joint.first.setValue(&m_bolt);
    m_assembly.removeObject(m_bolt.getObjectId());
    EXPECT_EQ(m_joint.first.getValue(), nullptr);
    EXPECT_TRUE(m_joint.first.setValue(&m_nut));
    EXPECT_THAT(namesOf(m_joint.getNeededObjects()), ElementsAre("Nut"));
}

/// A project that refers to one of its objects.
class Station : public Obj::Project
{
public:
    Station() { registerProperty(m_data, master, "Master", "", Obj::PropertyType::none, ""); }

    Obj::PropertyReference master;

private:
    Obj::PropertyCoreData m_data;
};

TEST_F(PropertyReferenceTest, MayBelongToTheProject)
{
    Station& station = static_cast<Station&>(*application().addProject(std::make_unique<Station>(), "Station"));
    Obj::ProjectObject* const part = station.add_object("vxtest::Part", "Part");
    EXPECT_TRUE(station.master.setValue(part));
    EXPECT_EQ(station.master.toText(), "Part");
    EXPECT_FALSE(station.master.setValue(&m_bolt));
    station.removeObject(part->getObjectId());
    EXPECT_EQ(station.master.getValue(), nullptr);
}

} // namespace
