#include "projectfile/MaterialRecord.h"

#include "vxMaterial/model/MatDBManager.h"

#include <gmock/gmock.h>
#include <json/reader.h>
#include <json/writer.h>

#include <cmath>
#include <limits>
#include <memory>
#include <random>

namespace {

using testing::HasSubstr;
using testing::SizeIs;
using vxMat::MaterialBase;
using vxMat::MaterialProperty;

constexpr double infinity = std::numeric_limits<double>::infinity();

/// Through the text that a file or the clipboard has.
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

/// NaN is equal to NaN here, and 0 is not equal to -0.
bool isSame(double a, double b)
{
    return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
}

void expectSame(const MaterialProperty& a, const MaterialProperty& b)
{
    EXPECT_EQ(a.id, b.id);
    EXPECT_EQ(a.name, b.name);
    EXPECT_EQ(a.key, b.key);
    EXPECT_TRUE(isSame(a.value, b.value)) << a.value << " and " << b.value;
    EXPECT_EQ(a.text, b.text);
    ASSERT_EQ(a.values.size(), b.values.size());
    for (std::size_t i = 0; i < a.values.size(); ++i)
        EXPECT_TRUE(isSame(a.values[i], b.values[i])) << a.values[i] << " and " << b.values[i];
    EXPECT_EQ(a.description, b.description);
    EXPECT_EQ(a.unit, b.unit);
    EXPECT_EQ(a.category, b.category);
}

void expectSame(const MaterialBase& a, const MaterialBase& b)
{
    EXPECT_EQ(a.id, b.id);
    EXPECT_EQ(a.name, b.name);
    EXPECT_EQ(a.libraryGroup, b.libraryGroup);
    ASSERT_EQ(a.properties.size(), b.properties.size());
    for (const auto& [key, property] : a.properties) {
        SCOPED_TRACE(key);
        ASSERT_NE(b.findProperty(key), nullptr);
        expectSame(*property, *b.findProperty(key));
    }
}

TEST(MaterialRecord, CarriesEveryLibraryMaterialFieldByField)
{
    vxMat::MatDBManager database;
    database.initMaterialLibrary();
    ASSERT_THAT(database.materials, SizeIs(26));
    for (const auto& [type, material] : database.materials) {
        SCOPED_TRACE(material->name);
        expectSame(*material, *roundTrip(*material));
    }
}

/// Materials with whatever a field can hold.
class Dice
{
public:
    std::unique_ptr<MaterialBase> makeMaterial()
    {
        auto material = std::make_unique<MaterialBase>();
        material->id = whole();
        material->name = text();
        material->libraryGroup = whole();
        for (int i = upTo(8); i > 0; --i)
            material->setProperty(whole(), makeProperty());
        return material;
    }

private:
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(m_engine); }
    std::int32_t whole()
    {
        return std::uniform_int_distribution<std::int32_t>(std::numeric_limits<std::int32_t>::min(),
                                                           std::numeric_limits<std::int32_t>::max())(m_engine);
    }
    double number()
    {
        using limits = std::numeric_limits<double>;
        const double special[] = {0.0,
                                  -0.0,
                                  limits::max(),
                                  limits::lowest(),
                                  limits::min(),
                                  limits::denorm_min(),
                                  infinity,
                                  -infinity,
                                  limits::quiet_NaN(),
                                  0.1};
        if (upTo(1) == 0)
            return special[upTo(9)];
        return std::ldexp(std::uniform_real_distribution<double>(-1.0, 1.0)(m_engine), upTo(600) - 300);
    }
    std::string text()
    {
        static const std::string pieces[] = {
            "a",    "\"", "\\",       "\n",           "\t",           std::string(1, '\0'), "\x01", "\x1f",
            "\x7f", "/",  "\xC3\xA4", "\xE2\x82\xAC", "\xE9\x92\xA2", "\xF0\x9F\x94\xA9",   " "};
        std::string made;
        for (int i = upTo(12); i > 0; --i)
            made += pieces[upTo(14)];
        return made;
    }
    std::unique_ptr<MaterialProperty> makeProperty()
    {
        auto property = std::make_unique<MaterialProperty>();
        property->id = whole();
        property->name = text();
        property->key = text();
        property->value = number();
        property->text = text();
        for (int i = upTo(5); i > 0; --i)
            property->values.push_back(number());
        property->description = text();
        property->unit = text();
        property->category = static_cast<vxMat::ePropertyCategory>(upTo(9));
        return property;
    }

    std::mt19937 m_engine{20240229};
};

TEST(MaterialRecord, CarriesAThousandMaterialsOfAllThatFieldsCanHold)
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

TEST(MaterialRecord, HasWordsForNumbersThatJsonHasNot)
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

TEST(MaterialRecord, ListsPropertiesInTheOrderOfTheirKeys)
{
    MaterialBase material;
    for (const int key : {401, -3, 6, 5})
        material.setProperty(key, std::make_unique<MaterialProperty>());
    const Json::Value record = projectfile::writeMaterial(material);
    std::vector<int> keys;
    for (const Json::Value& property : record["properties"])
        keys.push_back(property["held_as"].asInt());
    EXPECT_THAT(keys, testing::ElementsAre(-3, 5, 6, 401));
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

/// A wrong record, and what is said of it.
struct Wrong
{
    const char* text;
    const char* reason;
};

class WrongRecord : public testing::TestWithParam<Wrong>
{};

TEST_P(WrongRecord, IsRefusedAndLeavesTheMaterialAsItWas)
{
    MaterialBase material;
    material.id = 7;
    material.name = "Before";
    material.setProperty(5, std::make_unique<MaterialProperty>());
    Json::Value record;
    ASSERT_TRUE(Json::Reader().parse(GetParam().text, record));
    try {
        projectfile::readMaterial(material, record);
        ADD_FAILURE() << "nothing was said";
    } catch (const projectfile::RecordError& error) {
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
                    Wrong{R"({"properties": [{"held_as": 4}, {"held_as": 4}]})", "is there twice"}));

} // namespace
