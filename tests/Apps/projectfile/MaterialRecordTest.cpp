#include "projectfile/MaterialRecord.h"

#include "CaseName.h"
#include "ProjectTesting.h"

#include "vxMaterial/model/MatDBManager.h"

#include <gmock/gmock.h>
#include <json/reader.h>
#include <json/writer.h>

#include <cmath>
#include <limits>
#include <memory>

namespace {

using testing::HasSubstr;
using testing::SizeIs;
using vxMat::MaterialBase;
using vxMat::MaterialProperty;
using vxtest::Dice;
using vxtest::expectSame;

constexpr double infinity = std::numeric_limits<double>::infinity();

/// Converts a record to a text, as in a file or the clipboard, and back.
Json::Value throughText(const Json::Value& record)
{
    const std::string text = Json::writeString(Json::StreamWriterBuilder(), record);
    Json::Value read;
    std::string errors;
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    EXPECT_TRUE(reader->parse(text.data(), text.data() + text.size(), &read, &errors)) << errors;
    return read;
}

std::unique_ptr<MaterialBase> roundTrip(const MaterialBase& material)
{
    auto read = std::make_unique<MaterialBase>();
    projectfile::readMaterial(*read, throughText(projectfile::writeMaterial(material)));
    return read;
}

TEST(MaterialRecord, KeepsEveryFieldOfEveryLibraryMaterial)
{
    vxMat::MatDBManager database;
    database.initMaterialLibrary();
    ASSERT_THAT(database.materials, SizeIs(26));
    for (const auto& [type, material] : database.materials) {
        SCOPED_TRACE(material->name);
        expectSame(*material, *roundTrip(*material));
    }
}

TEST(MaterialRecord, KeepsEveryFieldOfAThousandRandomMaterials)
{
    Dice dice;
    for (int i = 0; i < 1000; ++i) {
        SCOPED_TRACE(i);
        const auto material = dice.makeMaterial();
        expectSame(*material, *roundTrip(*material));
        if (testing::Test::HasFailure())
            return;
    }
}

TEST(MaterialRecord, WritesNumbersThatJsonCannotExpressAsTexts)
{
    MaterialBase material;
    auto property = std::make_unique<MaterialProperty>();
    property->value = -infinity;
    property->values = {infinity, std::numeric_limits<double>::quiet_NaN()};
    material.setProperty(4, std::move(property));
    const Json::Value record = projectfile::writeMaterial(material)["properties"][0];
    EXPECT_EQ(record["value"], Json::Value("-Infinity"));
    EXPECT_EQ(record["values"][0], Json::Value("Infinity"));
    EXPECT_EQ(record["values"][1], Json::Value("NaN"));
    EXPECT_EQ(record["held_as"], Json::Value(4));
    EXPECT_EQ(record["id"], Json::Value(0));
}

TEST(MaterialRecord, ListsPropertiesInTheOrderOfTheirSlots)
{
    MaterialBase material;
    for (const int slot : {401, -3, 6, 5})
        material.setProperty(slot, std::make_unique<MaterialProperty>());
    const Json::Value record = projectfile::writeMaterial(material);
    std::vector<int> slots;
    for (const Json::Value& property : record["properties"])
        slots.push_back(property["held_as"].asInt());
    EXPECT_THAT(slots, testing::ElementsAre(-3, 5, 6, 401));
}

TEST(MaterialRecord, GivesMissingMembersTheirDefaults)
{
    MaterialBase material;
    material.name = "Before";
    material.setProperty(5, std::make_unique<MaterialProperty>());
    projectfile::readMaterial(material, Json::Value(Json::objectValue));
    EXPECT_EQ(material.name, "");
    EXPECT_THAT(material.properties, SizeIs(0));
    Json::Value record;
    record["properties"][0]["id"] = 4;
    projectfile::readMaterial(material, record);
    const MaterialProperty* const property = material.findProperty(4);
    ASSERT_NE(property, nullptr);
    EXPECT_EQ(property->value, 0.0);
    EXPECT_EQ(property->category, vxMat::ePropertyCategory::Undefined);
}

/// An invalid record and its error message.
struct Wrong
{
    const char* text;
    const char* reason;
};

void PrintTo(const Wrong& wrong, std::ostream* out)
{
    *out << wrong.text;
}

class WrongRecord : public testing::TestWithParam<Wrong>
{};

TEST_P(WrongRecord, IsRefusedAndLeavesTheMaterialUnchanged)
{
    MaterialBase material;
    material.id = 7;
    material.name = "Before";
    material.setProperty(5, std::make_unique<MaterialProperty>());
    Json::Value record;
    ASSERT_TRUE(Json::Reader().parse(GetParam().text, record));
    try {
        projectfile::readMaterial(material, record);
        ADD_FAILURE() << "no error was thrown";
    } catch (const projectfile::ContentError& error) {
        EXPECT_THAT(error.what(), HasSubstr(GetParam().reason));
    }
    EXPECT_EQ(material.id, 7);
    EXPECT_EQ(material.name, "Before");
    EXPECT_NE(material.findProperty(5), nullptr);
    EXPECT_THAT(material.properties, SizeIs(1));
}

INSTANTIATE_TEST_SUITE_P(
    MaterialRecord, WrongRecord,
    testing::Values(Wrong{"[]", "must be an object"}, Wrong{"[1]", "must be an object"},
                    Wrong{R"({"id": "7"})", "\"id\""}, Wrong{R"({"id": 1.5})", "\"id\""},
                    Wrong{R"({"id": 3000000000})", "\"id\""}, Wrong{R"({"id": 1e300})", "\"id\""},
                    Wrong{R"({"name": 7})", "\"name\""}, Wrong{R"({"library_group": []})", "\"library_group\""},
                    Wrong{R"({"properties": {}})", "\"properties\""}, Wrong{R"({"properties": 7})", "\"properties\""},
                    Wrong{R"({"properties": [7]})", "\"properties[0]\""},
                    Wrong{R"({"properties": [{"value": "many"}]})", "\"properties[0].value\""},
                    Wrong{R"({"properties": [{"value": true}]})", "\"properties[0].value\""},
                    Wrong{R"({"properties": [{"value": []}]})", "\"properties[0].value\""},
                    Wrong{R"({"properties": [{"values": 7}]})", "\"properties[0].values\""},
                    Wrong{R"({"properties": [{"values": [1, null]}]})", "\"properties[0].values[1]\""},
                    Wrong{R"({"properties": [{"text": 7}]})", "\"properties[0].text\""},
                    Wrong{R"({"properties": [{"category": "Basic"}]})", "\"properties[0].category\""},
                    Wrong{R"({"properties": [{"category": 10}]})", "\"properties[0].category\""},
                    Wrong{R"({"properties": [{"category": -1}]})", "\"properties[0].category\""},
                    Wrong{R"({"properties": [{"held_as": 1.5}]})", "\"properties[0].held_as\""},
                    Wrong{R"({"properties": [{"held_as": 4}, {"held_as": 4}]})", "occurs twice"}),
    [](const auto& wrong) { return vxtest::caseName(wrong.index, wrong.param.text); });

} // namespace
