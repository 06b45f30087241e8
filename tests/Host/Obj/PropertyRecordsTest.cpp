#include "Obj/PropertyRecords.h"

#include "HostTesting.h"
#include "ObjTesting.h"

#include "Obj/ProjectObjectGroup.h"

#include <json/reader.h>

#include <memory>
#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using vxtest::Assembly;
using vxtest::Joint;
using vxtest::namesOf;
using vxtest::Part;

/// Returns the JSON text. In it, equal whole numbers of different types in memory are the same.
std::string textOf(const Json::Value& json)
{
    return json.toStyledString();
}

Json::Value parse(const std::string& text)
{
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    Json::Value json;
    EXPECT_TRUE(reader->parse(text.data(), text.data() + text.size(), &json, nullptr)) << text;
    return json;
}

class PropertyRecordsTest : public vxtest::ObjTest
{
protected:
    Assembly& m_assembly = addAssembly();
    Part& m_bolt = m_assembly.addPart("Bolt");
    Joint& m_joint = m_assembly.addJoint();
};

TEST_F(PropertyRecordsTest, HoldEachPropertyThatCanBeEditedInItsOwnForm)
{
    m_joint.first.setValue(&m_bolt);
    m_joint.width.setValue(-3);
    m_joint.torque.setValue(0.1);
    m_joint.locked.setValue(false);
    m_joint.kind.setValue(2);
    m_joint.color.setValue({0.1F, 0.0F, 1.0F, 0.5F});
    m_joint.curve.setValue({{0.0, 1.5}, {2.0, -1e300}});
    m_joint.label.setValue("钢");
    EXPECT_EQ(textOf(Obj::writeProperties(m_joint)), textOf(parse(R"({
        "Label": "钢", "Width": -3, "First": 1, "Second": null, "Torque": 0.1, "Locked": false, "Kind": "sliding",
        "Color": [0.1, 0.0, 1.0, 0.5], "Curve": [[0.0, 1.5], [2.0, -1e300]]})")));
}

TEST_F(PropertyRecordsTest, GiveAnotherObjectTheSameProperties)
{
    m_joint.first.setValue(&m_bolt);
    m_joint.torque.setValue(1e-9);
    m_joint.kind.setValue(1);
    m_joint.color.setValue({0.1F, 0.2F, 0.3F, 0.4F});
    m_joint.curve.setValue({{1.0, 2.0}});
    Joint& other = m_assembly.addJoint("Other");
    EXPECT_THAT(Obj::readProperties(other, Obj::writeProperties(m_joint)), IsEmpty());
    EXPECT_EQ(other.first.getValue(), &m_bolt);
    EXPECT_EQ(other.torque.getValue(), 1e-9);
    EXPECT_EQ(other.kind.getWord(), "hinged");
    EXPECT_TRUE(other.color.getValue() == m_joint.color.getValue());
    EXPECT_EQ(other.curve.getValue(), m_joint.curve.getValue());
}

TEST_F(PropertyRecordsTest, NameWhatCouldNotBeSetAndSetTheRest)
{
    const Json::Value record = parse(R"({"Depth": 1, "ID": 7, "Secret": "told", "Torque": "much", "Width": 1.5,
        "Locked": 1, "Kind": "loose", "Color": [0, 0, 2, 0], "Curve": [[1]], "First": 99, "Label": "set"})");
    EXPECT_THAT(
        Obj::readProperties(m_joint, record),
        UnorderedElementsAre("Depth", "ID", "Secret", "Torque", "Width", "Locked", "Kind", "Color", "Curve", "First"));
    EXPECT_EQ(m_joint.label.getValue(), "set");
    EXPECT_EQ(m_joint.torque.getValue(), 12.5);
    EXPECT_EQ(m_joint.id.getValue(), m_joint.getObjectId());
}

TEST_F(PropertyRecordsTest, LeadReferencesToTheCopiesOfTheirObjects)
{
    Part& copy = m_assembly.addPart("Copy");
    const auto newId = [&](std::uint32_t id) { return id == m_bolt.getObjectId() ? copy.getObjectId() : 0; };
    EXPECT_THAT(Obj::readProperties(m_joint, parse(R"({"First": 1, "Second": 2})"), newId), IsEmpty());
    EXPECT_EQ(m_joint.first.getValue(), &copy);
    EXPECT_EQ(m_joint.second.getValue(), nullptr) << "that object was not copied";
}

TEST_F(PropertyRecordsTest, RefuseWhatIsNotARecord)
{
    EXPECT_THAT(Obj::readProperties(m_joint, Json::Value()), IsEmpty());
    EXPECT_THROW(static_cast<void>(Obj::readProperties(m_joint, parse("[]"))), std::runtime_error);
    EXPECT_THROW(static_cast<void>(Obj::readProperties(m_joint, Json::Value("Label"))), std::runtime_error);
    EXPECT_THROW(static_cast<void>(Obj::readLinks(m_joint, parse("{}"))), std::runtime_error);
}

TEST_F(PropertyRecordsTest, HoldTheLinksThatWereDeclared)
{
    m_joint.first.setValue(&m_bolt);
    EXPECT_TRUE(Obj::writeLinks(m_joint).isNull());
    m_joint.linkTo(m_bolt);
    EXPECT_EQ(textOf(Obj::writeLinks(m_joint)), textOf(parse("[1]")));
    Joint& other = m_assembly.addJoint("Other");
    EXPECT_EQ(Obj::readLinks(other, Obj::writeLinks(m_joint)), 0U);
    EXPECT_THAT(namesOf(other.getLinks()), ElementsAre("Bolt"));
    EXPECT_EQ(Obj::readLinks(other, parse(R"([2, 99, "Bolt", 3, 0])")), 4U) << "unknown, no ids, and itself";
    EXPECT_THAT(namesOf(other.getLinks()), ElementsAre("Bolt", "Joint"));
}

TEST_F(PropertyRecordsTest, HoldTheMembersOfAGroup)
{
    const auto addGroup = [this] {
        return static_cast<Obj::ProjectObjectGroup*>(m_assembly.add_object("Obj::ProjectObjectGroup", "Group"));
    };
    Obj::ProjectObjectGroup& outer = *addGroup();
    Obj::ProjectObjectGroup& inner = *addGroup();
    EXPECT_EQ(Obj::readLinks(outer, parse("[4, 1]")), 0U);
    EXPECT_THAT(namesOf(outer.getMembers()), ElementsAre("Group1", "Bolt"));
    EXPECT_EQ(textOf(Obj::writeLinks(outer)), textOf(parse("[4, 1]")));
    const vxtest::Reports reports;
    EXPECT_EQ(Obj::readLinks(inner, parse("[3]")), 1U) << "a group cannot be inside its own member";
    EXPECT_EQ(reports.errors(), 1);
}

} // namespace
