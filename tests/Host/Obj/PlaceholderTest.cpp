#include "Obj/Placeholder.h"

#include "HostTesting.h"
#include "ObjTesting.h"

#include "Obj/PropertyRecords.h"

#include <json/writer.h>

#include <utility>

namespace {

using Obj::PlaceholderObject;
using Obj::PlaceholderProject;
using testing::HasSubstr;

class PlaceholderTest : public vxtest::ObjTest
{
protected:
    static Json::Value record()
    {
        Json::Value record;
        record["properties"]["Torque"] = 12.5;
        record["properties"]["Name"] = "M 8";
        record["content"]["thread"].append("left");
        return record;
    }

    PlaceholderObject& addBolt() const
    {
        Obj::ProjectObject* const object =
            m_assembly.add_object(std::make_unique<PlaceholderObject>("Fastening::Bolt", record()), "Bolt", 7);
        EXPECT_NE(object, nullptr);
        return static_cast<PlaceholderObject&>(*object);
    }

    vxtest::Assembly& m_assembly = addAssembly();
};

TEST_F(PlaceholderTest, KeepsTheClassAndTheRecordOfTheFile)
{
    const PlaceholderObject& bolt = addBolt();
    EXPECT_EQ(bolt.getOriginalClass(), "Fastening::Bolt");
    EXPECT_EQ(bolt.getRecord(), record());
    EXPECT_EQ(bolt.getObjectId(), 7U);
    EXPECT_STREQ(bolt.getTypeId().get_name(), "Obj::PlaceholderObject");
    EXPECT_TRUE(bolt.is_inherited_from(Obj::ProjectObject::getClassTypeId()));
}

TEST_F(PlaceholderTest, ShowsThePropertiesOfTheRecordReadOnly)
{
    const PlaceholderObject& bolt = addBolt();
    std::vector<Obj::Property*> properties;
    bolt.get_property_array(properties);
    std::vector<std::string> shown;
    for (const Obj::Property* const property : properties) {
        EXPECT_TRUE(bolt.is_read_only(property));
        shown.push_back(bolt.get_property_name(property) + (": " + property->toText()));
    }
    EXPECT_THAT(shown, testing::ElementsAre("Label: Bolt", "ID: 7", "ClassLabel: Fastening::Bolt", "Name: M 8",
                                            "Torque: 12.5"));
    EXPECT_TRUE(Obj::writeProperties(bolt).isNull()) << "the record has them";
}

TEST_F(PlaceholderTest, ShowsItsOwnLabelAndIdInPlaceOfThoseInTheRecord)
{
    Json::Value odd;
    odd["properties"]["Label"] = "Other";
    odd["properties"]["ID"] = 4711;
    const Obj::ProjectObject* const object =
        m_assembly.add_object(std::make_unique<PlaceholderObject>("Fastening::Bolt", odd), "Bolt");
    ASSERT_NE(object, nullptr);
    std::vector<Obj::Property*> properties;
    object->get_property_array(properties);
    EXPECT_THAT(properties, testing::SizeIs(3));
    EXPECT_EQ(object->get_property_by_name("Label")->toText(), "Bolt");
    EXPECT_EQ(object->get_property_by_name("ID")->toText(), "1");
}

TEST_F(PlaceholderTest, DescribesItselfUnderItsOriginalClass)
{
    Json::Value description;
    addBolt().save_jsonDB(description);
    EXPECT_EQ(description["class"], "Fastening::Bolt");
    EXPECT_EQ(description["obj_id"], 7U);
}

TEST_F(PlaceholderTest, IsDeletedAndBroughtBackAsAnyObject)
{
    const PlaceholderObject& bolt = addBolt();
    Obj::OwnedObject away = m_assembly.takeObject(7);
    EXPECT_EQ(m_assembly.restoreObject(std::move(away)), &bolt);
    EXPECT_EQ(bolt.getRecord(), record());
}

TEST_F(PlaceholderTest, IsNeverExecutedOrChecked)
{
    PlaceholderObject& bolt = addBolt();
    EXPECT_TRUE(m_assembly.executeDue().empty());
    m_assembly.update();
    EXPECT_EQ(bolt.getObjectState(), Obj::eVXObjectState::Initial);
}

TEST_F(PlaceholderTest, IsNotMadeByItsName)
{
    const vxtest::Reports reports;
    EXPECT_EQ(m_assembly.add_object("Obj::PlaceholderObject", "Bolt"), nullptr);
    EXPECT_EQ(application().createProject("Obj::PlaceholderProject", "Machine"), nullptr);
    EXPECT_EQ(reports.errors(), 2);
    EXPECT_THAT(reports.text(), HasSubstr("the class cannot create objects"));
}

TEST_F(PlaceholderTest, TakesARecordOfAnyForm)
{
    for (const Json::Value& odd : {Json::Value(), Json::Value("text"), Json::Value(Json::arrayValue)}) {
        const PlaceholderObject object("Any", odd);
        EXPECT_EQ(object.getRecord(), odd);
    }
    Json::Value withOddProperties;
    withOddProperties["properties"] = 3;
    EXPECT_EQ(PlaceholderObject("Any", withOddProperties).getRecord(), withOddProperties);
}

TEST_F(PlaceholderTest, ReplacesAProjectToo)
{
    Obj::Project* const project =
        application().addProject(std::make_unique<PlaceholderProject>("Fastening::Assembly", record()), "Machine");
    ASSERT_NE(project, nullptr);
    EXPECT_EQ(Obj::Application::get_current_project(), project);
    EXPECT_EQ(static_cast<PlaceholderProject*>(project)->getOriginalClass(), "Fastening::Assembly");
    EXPECT_EQ(project->get_property_by_name("Torque")->toText(), "12.5");
    EXPECT_TRUE(project->is_read_only("Torque"));
    EXPECT_NE(project->add_object(std::make_unique<PlaceholderObject>("Fastening::Bolt", record()), "Bolt"), nullptr);
    EXPECT_GT(project->get_memory_usage(), sizeof(PlaceholderProject) + sizeof(PlaceholderObject));
}

} // namespace
