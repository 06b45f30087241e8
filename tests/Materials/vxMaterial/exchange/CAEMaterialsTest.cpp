#include "vxMaterial/exchange/CAEMaterials.h"

#include "ExchangeTesting.h"

#include "vxMaterial/model/MaterialLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using vxCAE::CAEMaterials;
using vxCAE::MaterialEntry;
using vxtest::json;
using vxtest::makeEntry;
using vxtest::written;

/// A material that counts the existing objects of its class.
class CountedMaterial : public vxMat::CMaterial
{
public:
    explicit CountedMaterial(int& alive) : m_alive(alive) { ++m_alive; }
    CountedMaterial(const CountedMaterial&) = delete;
    CountedMaterial& operator=(const CountedMaterial&) = delete;
    ~CountedMaterial() override { --m_alive; }

private:
    int& m_alive;
};

std::unique_ptr<MaterialEntry> countedEntry(int& alive)
{
    auto entry = std::make_unique<MaterialEntry>();
    entry->material = std::make_unique<CountedMaterial>(alive);
    return entry;
}

/// Returns the only property of "Props" with a type.
const Json::Value& propertyOf(const Json::Value& material, int type)
{
    for (const Json::Value& property : material["Props"]) {
        if (property["prop_type"] == type)
            return property;
    }
    ADD_FAILURE() << "no property " << type;
    return Json::Value::nullSingleton();
}

TEST(CAEMaterials, HasNoEntryForANumberThatItDoesNotHold)
{
    CAEMaterials section;
    EXPECT_EQ(section.getMaterial(1), nullptr);
    for (const unsigned number : {5U, 9U})
        section.addMaterial(number, makeEntry({}));
    for (const unsigned number : {5U, 9U})
        EXPECT_NE(section.getMaterial(number), nullptr) << number;
    // Numbers below, between and above the existing numbers.
    for (const unsigned number : {0U, 4U, 6U, 8U, 10U, 4294967295U})
        EXPECT_EQ(section.getMaterial(number), nullptr) << number;
}

TEST(CAEMaterials, WritesNothingAtAllWhenEmpty)
{
    EXPECT_TRUE(written(CAEMaterials()).isNull());
}

TEST(CAEMaterials, WritesAMaterialToTheLetter)
{
    CAEMaterials section;
    auto entry = makeEntry({{4, 7850.0}});
    entry->setName("Structural Steel");
    section.addMaterial(7, std::move(entry));
    Json::Value document;
    document["proj_type"] = 2;
    section.writeJson(document);
    EXPECT_EQ(vxjson::toStyledText(document), R"({
   "material" : [
      {
         "Props" : [
            {
               "prop_key" : "rho",
               "prop_name" : "Density",
               "prop_type" : 4,
               "prop_value" : 7850.0
            }
         ],
         "mat_id" : 7,
         "mat_name" : "Structural Steel"
      }
   ],
   "proj_type" : 2
}
)");
}

TEST(CAEMaterials, WritesEachMemberInItsKind)
{
    CAEMaterials section;
    section.addMaterial(7, makeEntry({{4, 7850.0}}));
    const Json::Value document = written(section);
    const Json::Value& material = document["material"][0];
    EXPECT_EQ(material["mat_id"].type(), Json::uintValue);
    EXPECT_EQ(material["Props"][0]["prop_type"].type(), Json::intValue);
    EXPECT_EQ(material["Props"][0]["prop_value"].type(), Json::realValue);
}

TEST(CAEMaterials, WritesPropertiesInTheOrderOfTheCatalogue)
{
    CAEMaterials section;
    auto entry = makeEntry({{203, 1.0}, {5, 1.0}, {303, 1.0}, {31, 1.0}, {401, 1.0}, {4, 1.0}});
    entry->material->setProperty(40, std::make_unique<vxMat::MaterialProperty>(40, "unknown", "key", 1.0));
    section.addMaterial(7, std::move(entry));
    const Json::Value document = written(section);
    std::vector<int> types;
    for (const Json::Value& property : document["material"][0]["Props"])
        types.push_back(property["prop_type"].asInt());
    EXPECT_THAT(types, ElementsAre(4, 401, 203, 31, 5, 303, 40));
}

TEST(CAEMaterials, WritesNoCountOfItsMaterials)
{
    CAEMaterials section;
    section.addMaterial(7, makeEntry({}));
    EXPECT_EQ(written(section).getMemberNames(), Json::Value::Members{"material"});
}

TEST(CAEMaterials, WritesTheNumberAndNotTheMaterialsOwnId)
{
    CAEMaterials section;
    auto entry = makeEntry({});
    entry->setId(99);
    section.addMaterial(7, std::move(entry));
    EXPECT_EQ(written(section)["material"][0]["mat_id"], 7U);
}

TEST(CAEMaterials, WritesMaterialsInAscendingNumber)
{
    CAEMaterials section;
    section.addMaterial(9, makeEntry({}));
    section.addMaterial(3, makeEntry({}));
    const Json::Value document = written(section);
    EXPECT_EQ(document["material"][0]["mat_id"], 3U);
    EXPECT_EQ(document["material"][1]["mat_id"], 9U);
}

TEST(CAEMaterials, WritesAMaterialWithoutPropertiesWithoutProps)
{
    CAEMaterials section;
    section.addMaterial(1, makeEntry({}));
    EXPECT_EQ(written(section)["material"][0].getMemberNames(), (Json::Value::Members{"mat_id", "mat_name"}));
}

TEST(CAEMaterials, ListsEveryMaterialTwiceWhenWrittenTwice)
{
    CAEMaterials section;
    section.addMaterial(1, makeEntry({}));
    Json::Value document;
    section.writeJson(document);
    section.writeJson(document);
    EXPECT_EQ(document["material"].size(), 2U);
}

TEST(CAEMaterials, WritesAPropertyUnderItsKeyAndReadsItBackWithTheKeyForId)
{
    CAEMaterials section;
    auto entry = std::make_unique<MaterialEntry>();
    entry->material->copyFrom(vxMat::AcousticMaterial2());
    section.addMaterial(1, std::move(entry));
    const Json::Value document = written(section);
    EXPECT_EQ(propertyOf(document["material"][0], 401)["prop_key"], "rho");

    CAEMaterials read;
    read.readJson(document);
    const auto* const property = read.entries.at(1)->material->findProperty(401);
    EXPECT_EQ(property->id, 401);
    EXPECT_EQ(property->value, 400.0);
}

TEST(CAEMaterials, LosesTheWordOfAYieldType)
{
    CAEMaterials section;
    auto entry = std::make_unique<MaterialEntry>();
    entry->material->setProperty(33, std::make_unique<vxMat::PlasticYieldType>("Mises"));
    section.addMaterial(1, std::move(entry));
    const Json::Value document = written(section);
    EXPECT_EQ(propertyOf(document["material"][0], 33)["prop_value"], 0.0);

    CAEMaterials read;
    read.readJson(document);
    EXPECT_TRUE(read.entries.at(1)->material->hasProperty(33));
    EXPECT_EQ(read.entries.at(1)->getPropertyText(33), "");
}

TEST(CAEMaterials, ReadsPropertiesAsNumbersWithoutUnitAndCategory)
{
    CAEMaterials section;
    section.readJson(json(R"({"material": [{"mat_id": 5, "mat_name": "Bronze", "Props": [
        {"prop_type": 4, "prop_key": "rho", "prop_name": "Density", "prop_value": 8800}]}]})"));
    const MaterialEntry& entry = *section.getMaterial(5);
    EXPECT_EQ(entry.getId(), 5);
    EXPECT_STREQ(entry.getName(), "Bronze");
    EXPECT_EQ(entry.kind, 0);
    const auto& property = *entry.material->findProperty(4);
    EXPECT_EQ(property.id, 4);
    EXPECT_EQ(property.key, "rho");
    EXPECT_EQ(property.name, "Density");
    EXPECT_EQ(property.value, 8800.0);
    EXPECT_EQ(property.unit, "-");
    EXPECT_EQ(property.description, "");
    EXPECT_EQ(property.category, vxMat::ePropertyCategory::Undefined);
}

TEST(CAEMaterials, DoesNotClassifyWhatItReads)
{
    CAEMaterials section;
    section.readJson(json(R"({"material": [{"mat_id": 5, "Props": [{"prop_type": 32}]}]})"));
    EXPECT_EQ(section.entries.at(5)->kind, 0);
    EXPECT_TRUE(section.entries.at(5)->classifyKind());
    EXPECT_EQ(section.entries.at(5)->kind, 12);
}

TEST(CAEMaterials, ReadsMissingMembersAsZeroAndEmpty)
{
    CAEMaterials section;
    section.readJson(json(R"({"material": [{}, {"mat_id": 2, "Props": [{}]}]})"));
    ASSERT_THAT(section.entries, SizeIs(2));
    EXPECT_STREQ(section.entries.at(0)->getName(), "");
    EXPECT_THAT(section.entries.at(0)->material->properties, IsEmpty());
    EXPECT_EQ(section.entries.at(2)->material->properties.at(0)->value, 0.0);
}

TEST(CAEMaterials, KeepsOneFreshMaterialPerNumberWhenReadTwice)
{
    CAEMaterials section;
    const Json::Value document = json(R"({"material": [{"mat_id": 1}, {"mat_id": 2}]})");
    section.readJson(document);
    section.entries.at(1)->setName("changed");
    section.readJson(document);
    EXPECT_THAT(section.entries, SizeIs(2));
    EXPECT_STREQ(section.entries.at(1)->getName(), "");
}

TEST(CAEMaterials, KeepsTheLastMaterialOfARepeatedNumber)
{
    CAEMaterials section;
    section.readJson(json(R"({"material": [{"mat_id": 1, "mat_name": "first"}, {"mat_id": 1, "mat_name": "last"}]})"));
    ASSERT_THAT(section.entries, SizeIs(1));
    EXPECT_STREQ(section.entries.at(1)->getName(), "last");
}

TEST(CAEMaterials, KeepsTheLaterPropertyOfARepeatedType)
{
    CAEMaterials section;
    section.readJson(json(R"({"material": [{"mat_id": 1, "Props": [{"prop_type": 4, "prop_value": 1},
                                                                    {"prop_type": 4, "prop_value": 2}]}]})"));
    ASSERT_THAT(section.entries.at(1)->material->properties, SizeIs(1));
    EXPECT_EQ(section.entries.at(1)->material->properties.at(4)->value, 2.0);
}

TEST(CAEMaterials, DestroysTheEntryThatALaterOneReplaces)
{
    int alive = 0;
    CAEMaterials section;
    section.addMaterial(1, countedEntry(alive));
    section.addMaterial(1, countedEntry(alive));
    EXPECT_EQ(alive, 1);
}

TEST(CAEMaterials, DestroysItsMaterialsWithItself)
{
    int alive = 0;
    {
        CAEMaterials section;
        section.addMaterial(1, countedEntry(alive));
        section.addMaterial(2, countedEntry(alive));
    }
    EXPECT_EQ(alive, 0);
}

TEST(CAEMaterials, KeepsTheMaterialsBeforeTheOneThatCannotBeConverted)
{
    for (const char* const broken :
         {R"({"mat_id": "2"})", R"({"mat_id": -2})", R"({"mat_id": 4294967296})", R"({"mat_id": 1e300})",
          R"({"mat_id": 2, "mat_name": []})", R"({"mat_id": 2, "Props": {"prop_type": 4}})",
          R"({"mat_id": 2, "Props": ["density"]})", R"({"mat_id": 2, "Props": [{"prop_type": -4}]})",
          R"({"mat_id": 2, "Props": [{"prop_type": 4}, {"prop_type": 5, "prop_value": "stiff"}]})", R"([])", R"("x")"})
    {
        CAEMaterials section;
        section.addMaterial(8, makeEntry({}));
        const Json::Value document =
            json(R"({"material": [{"mat_id": 1}, )" + std::string(broken) + ", {\"mat_id\": 3}]}");
        EXPECT_THROW(section.readJson(document), Json::LogicError) << broken;
        std::vector<unsigned> numbers;
        for (const auto& [number, entry] : section.entries)
            numbers.push_back(number);
        EXPECT_THAT(numbers, ElementsAre(1U, 8U)) << broken;
    }
}

TEST(CAEMaterials, RefusesAnObjectInPlaceOfTheArrayAndIgnoresAText)
{
    CAEMaterials section;
    EXPECT_THROW(section.readJson(json(R"({"material": {"mat_id": 1}})")), Json::LogicError);
    EXPECT_NO_THROW(section.readJson(json(R"({"material": "steel"})")));
    EXPECT_THAT(section.entries, IsEmpty());
}

TEST(CAEMaterials, ReadsHolesOfAnArrayAsEmptyMaterials)
{
    Json::Value document;
    document["material"][2]["mat_id"] = 5;
    CAEMaterials section;
    section.readJson(document);
    EXPECT_THAT(section.entries, SizeIs(2));
    EXPECT_NE(section.getMaterial(0), nullptr);
    EXPECT_NE(section.getMaterial(5), nullptr);
}

TEST(CAEMaterials, CarriesAllMaterialsOfTheLibraryNumberByNumber)
{
    CAEMaterials section;
    unsigned number = 0;
    for (const auto& library : vxMat::libraryEntries()) {
        auto entry = std::make_unique<MaterialEntry>();
        entry->material->copyFrom(*library.create());
        section.addMaterial(++number, std::move(entry));
    }
    CAEMaterials read;
    read.readJson(json(vxjson::toStyledText(written(section))));
    ASSERT_THAT(read.entries, SizeIs(26));
    for (const auto& [id, entry] : section.entries) {
        const MaterialEntry& copy = *read.getMaterial(id);
        EXPECT_STREQ(copy.getName(), entry->getName());
        ASSERT_EQ(copy.material->properties.size(), entry->material->properties.size());
        for (const auto& [slot, property] : entry->material->properties) {
            ASSERT_TRUE(copy.material->hasProperty(slot));
            EXPECT_EQ(copy.material->properties.at(slot)->value, property->value) << entry->getName() << slot;
        }
    }
}

} // namespace
