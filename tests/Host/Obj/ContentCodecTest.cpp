#include "Obj/ContentCodec.h"

#include "ObjTesting.h"

#include <json/writer.h>

namespace {

class ContentCodecTest : public vxtest::ObjTest
{};

Obj::ContentCodec widthCodec(const std::string& member)
{
    return {[member](const Obj::ProjectObject& object) {
                Json::Value content;
                content[member] = Json::Value::Int64(static_cast<const vxtest::Part&>(object).width.getValue());
                return content;
            },
            [member](Obj::ProjectObject& object, const Json::Value& content) {
                static_cast<vxtest::Part&>(object).width.setValue(content[member].asInt64());
            }};
}

TEST_F(ContentCodecTest, IsFoundForAClassAndForThoseThatDescendFromIt)
{
    EXPECT_EQ(Obj::findContentCodec(Obj::ProjectObject::getClassTypeId()), nullptr);
    EXPECT_EQ(Obj::findContentCodec(Kelta::TypeInfo()), nullptr);
    Obj::registerContentCodec("vxtest::Part", widthCodec("part"));
    const Obj::ContentCodec* const ofParts = Obj::findContentCodec(vxtest::Part::getClassTypeId());
    ASSERT_NE(ofParts, nullptr);
    EXPECT_EQ(Obj::findContentCodec(vxtest::Joint::getClassTypeId()), ofParts);
    Obj::registerContentCodec("vxtest::Joint", widthCodec("joint"));
    EXPECT_NE(Obj::findContentCodec(vxtest::Joint::getClassTypeId()), ofParts) << "the class has its own codec now";
}

TEST_F(ContentCodecTest, CarriesContentFromOneObjectToAnother)
{
    Obj::registerContentCodec("vxtest::Part", widthCodec("replaced"));
    Obj::registerContentCodec("vxtest::Part", widthCodec("width"));
    vxtest::Assembly& assembly = addAssembly();
    vxtest::Part& from = assembly.addPart();
    vxtest::Part& to = assembly.addPart();
    from.width.setValue(31);
    const Obj::ContentCodec& codec = *Obj::findContentCodec(from.getTypeId());
    const Json::Value content = codec.write(from);
    EXPECT_EQ(content["width"], 31);
    codec.read(to, content);
    EXPECT_EQ(to.width.getValue(), 31);
}

TEST_F(ContentCodecTest, OfProjectsAreKeptApart)
{
    EXPECT_EQ(Obj::findProjectCodec(vxtest::Assembly::getClassTypeId()), nullptr);
    Obj::registerProjectCodec("vxtest::Assembly", {[](const Obj::Project& project) { return project.get_name(); },
                                                   [](Obj::Project&, const Json::Value&) {}});
    const Obj::ProjectCodec* const codec = Obj::findProjectCodec(vxtest::Assembly::getClassTypeId());
    ASSERT_NE(codec, nullptr);
    EXPECT_EQ(codec->write(addAssembly("Machine")), "Machine");
    EXPECT_EQ(Obj::findProjectCodec(Obj::Project::getClassTypeId()), nullptr);
}

} // namespace
