#include "projectfile/ExchangeImport.h"

#include "CaseName.h"

#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/json/JsonText.h"
#include "vxMaterial/model/MaterialLibrary.h"

#include <QCoreApplication>
#include <QTranslator>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace {

using projectfile::ImportedMaterials;
using projectfile::importExchange;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using vxMat::MaterialProperty;

/// Returns a document of one material with one property.
std::string documentOf(const std::string& property)
{
    return R"({"proj_type": 2, "material": [{"mat_id": 7, "mat_name": "M", "Props": [)" + property + "]}]}";
}

/// Returns the document that the program exports for a material.
std::string exported(const vxMat::MaterialBase& material)
{
    vxCAE::CAESet set(0, vxCAE::ProjectKind::Material);
    auto entry = std::make_unique<vxCAE::MaterialEntry>();
    entry->material->copyFrom(material);
    set.materials->addMaterial(3, std::move(entry));
    Json::Value document;
    set.writeJson(document);
    return vxjson::toStyledText(document);
}

std::vector<std::uint32_t> numbersOf(const ImportedMaterials& imported)
{
    std::vector<std::uint32_t> numbers;
    for (const auto& material : imported.materials)
        numbers.push_back(material.objectId);
    return numbers;
}

std::vector<std::string> labelsOf(const ImportedMaterials& imported)
{
    std::vector<std::string> labels;
    for (const auto& material : imported.materials)
        labels.push_back(material.label);
    return labels;
}

TEST(ExchangeImport, RestoresTheDataOfAQuantityInTheCatalogue)
{
    const ImportedMaterials imported = importExchange(
        documentOf(R"({"prop_type": 4, "prop_key": "rho", "prop_name": "Density", "prop_value": 7850.5})"));
    EXPECT_THAT(imported.doubts, IsEmpty());
    ASSERT_THAT(imported.materials, SizeIs(1));
    EXPECT_EQ(imported.materials[0].objectId, 7U);
    EXPECT_EQ(imported.materials[0].label, "M");
    EXPECT_EQ(imported.materials[0].material->name, "M");
    EXPECT_EQ(imported.materials[0].material->id, 7);
    const MaterialProperty* const density = imported.materials[0].material->findProperty(4);
    ASSERT_NE(density, nullptr);
    EXPECT_EQ(density->id, 4);
    EXPECT_EQ(density->name, "Density");
    EXPECT_EQ(density->key, "rho");
    EXPECT_EQ(density->value, 7850.5);
    EXPECT_EQ(density->unit, "kg/m3");
    EXPECT_EQ(density->description, "Mass density");
    EXPECT_EQ(density->category, vxMat::ePropertyCategory::Basic);
}

TEST(ExchangeImport, RestoresAMissingNameAndKey)
{
    const auto imported = importExchange(documentOf(R"({"prop_type": 6, "prop_name": "", "prop_value": 0.3})"));
    EXPECT_THAT(imported.doubts, IsEmpty());
    const MaterialProperty& ratio = *imported.materials[0].material->findProperty(6);
    EXPECT_EQ(ratio.name, "Poisson's ratio");
    EXPECT_EQ(ratio.key, "nu");
    EXPECT_EQ(ratio.description, "Between [0.001, 0.499]");
    EXPECT_EQ(ratio.category, vxMat::ePropertyCategory::LinearElastic);
}

TEST(ExchangeImport, UsesTheFirstWordInTheCatalogueWithADoubt)
{
    const auto imported = importExchange(
        documentOf(R"({"prop_type": 37, "prop_key": "PHType", "prop_name": "Hardening type", "prop_value": 0.0})"));
    EXPECT_EQ(imported.materials[0].material->getPropertyText(37), "Bilinear");
    EXPECT_THAT(imported.doubts,
                ElementsAre(R"(material 7 "M": property 37 "Hardening type": documents carry no words; "Bilinear" of )"
                            "the catalogue was taken"));
}

TEST(ExchangeImport, LeavesListsEmptyWithADoubt)
{
    const auto imported = importExchange(
        documentOf(R"({"prop_type": 38, "prop_key": "PYStress", "prop_name": "Yield stress", "prop_value": 0.0})"));
    EXPECT_THAT(imported.materials[0].material->getPropertyValues(38), IsEmpty());
    EXPECT_THAT(imported.doubts, ElementsAre(R"(material 7 "M": property 38 "Yield stress": documents carry no lists; )"
                                             "it is empty"));
}

TEST(ExchangeImport, KeepsTheDataOfAPropertyThatTheCatalogueDoesNotKnow)
{
    const auto imported = importExchange(documentOf(
        R"({"prop_type": 201, "prop_key": "alpha", "prop_name": "Thermal Expansion", "prop_value": 1.2e-5})"));
    const MaterialProperty& property = *imported.materials[0].material->findProperty(201);
    EXPECT_EQ(property.id, 201);
    EXPECT_EQ(property.name, "Thermal Expansion");
    EXPECT_EQ(property.key, "alpha");
    EXPECT_EQ(property.value, 1.2e-5);
    EXPECT_EQ(property.unit, "-");
    EXPECT_EQ(property.category, vxMat::ePropertyCategory::Undefined);
    EXPECT_THAT(imported.doubts, ElementsAre(R"(material 7 "M": property 201 "Thermal Expansion": it is not in the )"
                                             "catalogue; its unit, description and category are lost"));
}

TEST(ExchangeImport, KeepsANameThatDiffersFromTheCatalogueWithADoubt)
{
    const auto imported = importExchange(
        documentOf(R"({"prop_type": 401, "prop_key": "rho", "prop_name": "Density", "prop_value": 1500})"));
    const MaterialProperty& speed = *imported.materials[0].material->findProperty(401);
    EXPECT_EQ(speed.id, 401);
    EXPECT_EQ(speed.name, "Density");
    EXPECT_EQ(speed.key, "rho");
    EXPECT_EQ(speed.unit, "m/s");
    EXPECT_THAT(imported.doubts,
                ElementsAre(AllOf(HasSubstr("property 401 \"Speed of sound\": its key is \"rho\" in the document"),
                                  HasSubstr("\"sspeed\" in the catalogue")),
                            AllOf(HasSubstr("property 401 \"Speed of sound\": its name is \"Density\""),
                                  HasSubstr("the name of the document was kept"))));
}

TEST(ExchangeImport, RestoresEveryNumberUnitAndDescriptionOfTheLibrary)
{
    for (const auto& entry : vxMat::libraryEntries()) {
        const auto original = entry.create();
        SCOPED_TRACE(original->name);
        const auto imported = importExchange(exported(*original));
        ASSERT_THAT(imported.materials, SizeIs(1));
        EXPECT_EQ(imported.materials[0].label, original->name);
        EXPECT_EQ(imported.materials[0].objectId, 3U);
        const auto& read = *imported.materials[0].material;
        ASSERT_EQ(read.properties.size(), original->properties.size());
        for (const auto& [slot, property] : original->properties) {
            const MaterialProperty* const back = read.findProperty(slot);
            ASSERT_NE(back, nullptr) << slot;
            EXPECT_EQ(back->name, property->name);
            EXPECT_EQ(back->key, property->key);
            EXPECT_EQ(back->value, property->value);
            // The acoustic materials hold the speed of sound as a density. A document does not carry this difference.
            if (slot != property->id)
                continue;
            EXPECT_EQ(back->id, property->id);
            EXPECT_EQ(back->unit, property->unit);
            EXPECT_EQ(back->description, property->description);
            EXPECT_EQ(back->category, property->category);
        }
    }
}

TEST(ExchangeImport, NamesEveryLostWordAndListOfALibraryMaterial)
{
    const vxMat::PlasticMaterial1 original;
    const auto imported = importExchange(exported(original));
    std::set<std::string> lost;
    for (const std::string& doubt : imported.doubts)
        lost.insert(doubt.substr(0, doubt.find(';')));
    const std::string title = "material 3 \"Plastic Example 1\": property ";
    EXPECT_THAT(lost, testing::UnorderedElementsAre(title + "33 \"Yield type\": documents carry no words",
                                                    title + "37 \"Hardening type\": documents carry no words",
                                                    title + "38 \"Yield stress\": documents carry no lists",
                                                    title + "39 \"Plastic strain\": documents carry no lists"));
}

TEST(ExchangeImport, SortsMaterialsByNumber)
{
    const auto imported = importExchange((R"({"proj_type": 2, "material": [
        {"mat_id": 4294967295, "mat_name": "a"}, {"mat_id": 9, "mat_name": "b"}, {"mat_id": 1, "mat_name": "c"}]})"));
    EXPECT_THAT(numbersOf(imported), ElementsAre(1U, 9U, 4294967295U));
    EXPECT_THAT(labelsOf(imported), ElementsAre("c", "b", "a"));
    EXPECT_THAT(imported.doubts, IsEmpty());
}

TEST(ExchangeImport, GivesFreeNumbersToMaterialsWithoutAValidNumber)
{
    const auto imported = importExchange((R"({"proj_type": 2, "material": [
        {"mat_id": 0, "mat_name": "zero"}, {"mat_name": "none"}, {"mat_id": 2, "mat_name": "two"},
        {"mat_id": -1, "mat_name": "below"}, {"mat_id": 4294967296, "mat_name": "beyond"},
        {"mat_id": 1.5, "mat_name": "fraction"}]})"));
    EXPECT_THAT(numbersOf(imported), ElementsAre(1U, 2U, 3U, 4U, 5U, 6U));
    EXPECT_THAT(labelsOf(imported), ElementsAre("zero", "two", "none", "below", "beyond", "fraction"));
    EXPECT_THAT(
        imported.doubts,
        ElementsAre(
            R"(material 1 "zero": its number in the document is 0, which no object can have; it was given the number 1)",
            R"(material 3 "none": the document has no number for it; it was given the number 3)",
            HasSubstr("is -1, which"), HasSubstr("is 4294967296, which"), HasSubstr("is 1.5, which")));
}

TEST(ExchangeImport, KeepsAllMaterialsWithTheSameNumberAndRenumbersAllButTheLast)
{
    const auto imported = importExchange((R"({"proj_type": 2, "material": [
        {"mat_id": 1, "mat_name": "first"}, {"mat_id": 1, "mat_name": "second"}, {"mat_id": 1, "mat_name": "third"}]})"));
    EXPECT_THAT(numbersOf(imported), ElementsAre(1U, 2U, 3U));
    EXPECT_THAT(labelsOf(imported), ElementsAre("third", "first", "second"));
    EXPECT_THAT(
        imported.doubts,
        ElementsAre(R"(material 2 "first": its number in the document is 1, which a later material has too; it )"
                    "was given the number 2",
                    HasSubstr("material 3 \"second\"")));
}

TEST(ExchangeImport, UsesTheLastOfRepeatedPropertiesWithADoubt)
{
    const auto imported = importExchange(documentOf(R"({"prop_type": 4, "prop_value": 1}, {"prop_type": 4,
                                                        "prop_value": 2})"));
    EXPECT_EQ(imported.materials[0].material->findProperty(4)->value, 2.0);
    EXPECT_THAT(imported.doubts,
                ElementsAre(R"(material 7 "M": property 4 "Density": the document has it more than once; )"
                            "the last one was used"));
}

TEST(ExchangeImport, ReportsMissingMembers)
{
    const auto imported = importExchange((R"({"proj_type": 2, "material": [{"mat_id": 2, "Props": [
        {"prop_type": 5, "prop_value": null}, {"prop_name": "x", "prop_value": 3}]}]})"));
    EXPECT_THAT(labelsOf(imported), ElementsAre("Material"));
    EXPECT_EQ(imported.materials[0].material->findProperty(5)->value, 0.0);
    EXPECT_EQ(imported.materials[0].material->findProperty(0)->value, 3.0);
    EXPECT_THAT(
        imported.doubts,
        ElementsAre(HasSubstr("the document has no name for it"),
                    HasSubstr("property 5 \"Young's modulus\": the document has no number for it, which is read"),
                    HasSubstr("property 0 \"x\": it is not in the catalogue")));
    EXPECT_THAT(importExchange((R"({"proj_type": 2})")).doubts, ElementsAre("the document holds no materials"));
}

TEST(ExchangeImport, MakesAProjectWithTheHostsRecord)
{
    auto imported = importExchange((R"({"proj_type": 2, "material": [
        {"mat_id": 9, "mat_name": "Steel"}, {"mat_id": 4, "mat_name": "Steel"}]})"));
    const auto project = projectfile::makeProject("Parts", std::move(imported.materials));
    EXPECT_EQ(project.name, "Parts");
    EXPECT_EQ(project.nextObjectId, 10U);
    ASSERT_THAT(project.objects, SizeIs(2));
    EXPECT_EQ(project.objects[0].objectId, 4U);
    EXPECT_EQ(project.objects[0].label, "Steel");
    EXPECT_EQ(project.objects[0].className, "Mat::MaterialObject");
    EXPECT_NE(project.objects[0].internalName, project.objects[1].internalName);
    EXPECT_EQ(project.objects[1].material, project.objects[1].ownMaterial.get());
    EXPECT_EQ(project.database["proj_tag"], "Material");
    EXPECT_EQ(project.database["physics_type"], "Material");
    const Json::Value& object = project.database["objects"]["object"][1];
    EXPECT_EQ(object["obj_id"], 9U);
    EXPECT_EQ(object["class"], "Mat::MaterialObject");
    EXPECT_EQ(object["name_internal"], project.objects[1].internalName);
    EXPECT_EQ(object["label"], "Steel");
}

TEST(ExchangeImport, MakesAProjectWithoutMaterials)
{
    const auto project = projectfile::makeProject("Empty", {});
    EXPECT_EQ(project.nextObjectId, 1U);
    EXPECT_TRUE(project.database.isMember("objects"));
    EXPECT_TRUE(project.database["objects"].isNull());
}

TEST(ExchangeImport, MakesProjectsThatCanBeReadBack)
{
    auto imported = importExchange(exported(vxMat::PlasticMaterial2()));
    const auto read = projectfile::readProject(
        projectfile::writeProject(projectfile::makeProject("Parts", std::move(imported.materials))));
    EXPECT_THAT(read.doubts, IsEmpty());
    ASSERT_THAT(read.objects, SizeIs(1));
    EXPECT_EQ(read.objects[0].objectId, 3U);
    EXPECT_EQ(read.objects[0].label, "Plastic Example 2");
    EXPECT_EQ(read.objects[0].material->getPropertyText(33), "Mises");
}

/// A document that causes every kind of doubt.
constexpr const char* doubtful = R"({"proj_type": 2, "material": [
    {"mat_name": "none"}, {"mat_id": 0, "mat_name": "zero"}, {"mat_id": 9, "mat_name": "earlier"}, {"mat_id": 9, "Props": [
        {"prop_type": 4, "prop_name": "D", "prop_key": "d"}, {"prop_type": 4, "prop_value": 1},
        {"prop_type": 33, "prop_value": 0}, {"prop_type": 38, "prop_value": 0}, {"prop_type": 77, "prop_value": 0},
        {"prop_type": 78, "prop_name": "x", "prop_value": 0}]}]})";

/// Returns the messages about a document: its doubts, or the error.
std::vector<std::string> messagesOf(const char* document)
{
    try {
        return importExchange(document).doubts;
    } catch (const projectfile::ContentError& error) {
        return {error.what()};
    }
}

TEST(ExchangeImport, TranslatesItsMessages)
{
    const char* const documents[] = {doubtful,
                                     R"({"proj_type": 2})",
                                     R"({"proj_type": 1})",
                                     "{}",
                                     R"({"format": "vxMaterial project"})",
                                     "[]",
                                     R"({"proj_type": 2, "material": {}})",
                                     R"({"proj_type": 2, "material": [null]})",
                                     R"({"proj_type": 2, "material": [{"mat_id": "1"}]})",
                                     R"({"proj_type": 2, "material": [{"mat_name": true}]})",
                                     R"({"proj_type": 2, "material": [{"Props": [{"prop_type": 0.5}]}]})"};
    int count = 1;
    char name[] = "test";
    char* arguments[] = {name, nullptr};
    const QCoreApplication application(count, arguments);
    for (const char* const language : {"de", "zh_CN"}) {
        for (const char* const document : documents) {
            const auto english = messagesOf(document);
            QTranslator translator;
            ASSERT_TRUE(
                translator.load(QStringLiteral(VX_TRANSLATIONS "/vxMaterial_%1.qm").arg(QLatin1String(language))));
            QCoreApplication::installTranslator(&translator);
            const auto translated = messagesOf(document);
            QCoreApplication::removeTranslator(&translator);
            ASSERT_THAT(english, testing::Not(IsEmpty()));
            ASSERT_EQ(translated.size(), english.size());
            // "null", "proj_type" and texts of the document are not translated.
            for (std::size_t i = 0; i < english.size(); ++i) {
                EXPECT_NE(translated[i], english[i]);
                for (const char* const word : {"document", "is needed", "catalogue", "property", "number"})
                    EXPECT_THAT(translated[i], testing::Not(HasSubstr(word)));
            }
        }
    }
    EXPECT_EQ(messagesOf(doubtful).size(), 12U);
}

/// An invalid document and its error message.
struct Wrong
{
    const char* text;
    const char* reason;
};

void PrintTo(const Wrong& wrong, std::ostream* out)
{
    *out << wrong.text;
}

class WrongDocument : public testing::TestWithParam<Wrong>
{};

TEST_P(WrongDocument, IsRefused)
{
    try {
        importExchange(GetParam().text);
        ADD_FAILURE() << "no error was thrown";
    } catch (const projectfile::ContentError& error) {
        EXPECT_THAT(error.what(), HasSubstr(GetParam().reason));
    }
}

INSTANTIATE_TEST_SUITE_P(
    ExchangeImport, WrongDocument,
    testing::Values(
        Wrong{"[]", "$: is an array; an object is needed"}, Wrong{"{}", "\"proj_type\" must be 2"},
        Wrong{R"({"proj_type": "2"})", "\"proj_type\" must be 2"},
        Wrong{R"({"proj_type": 1})", "an analysis document holds no materials"},
        Wrong{R"({"proj_type": 2, "material": {}})", "$.material: is an object; an array is needed"},
        Wrong{R"({"proj_type": 2, "material": [null]})", "$.material[0]: is null; an object is needed"},
        Wrong{R"({"proj_type": 2, "material": [{"mat_id": "1"}]})", "$.material[0].mat_id: is a text; a number"},
        Wrong{R"({"proj_type": 2, "material": [{"mat_name": 7}]})", "$.material[0].mat_name: is a number; a text"},
        Wrong{R"({"proj_type": 2, "material": [{}, {"Props": 7}]})", "$.material[1].Props: is a number; an array"},
        Wrong{R"({"proj_type": 2, "material": [{"Props": [[]]}]})", "$.material[0].Props[0]: is an array; an object"},
        Wrong{R"({"proj_type": 2, "material": [{"Props": [{"prop_type": "4"}]}]})", "Props[0].prop_type: is a text"},
        Wrong{R"({"proj_type": 2, "material": [{"Props": [{"prop_type": 4.5}]}]})", "prop_type: is a number; a whole"},
        Wrong{R"({"proj_type": 2, "material": [{"Props": [{"prop_type": 4294967296}]}]})", "a whole number from 0 to"},
        Wrong{R"({"proj_type": 2, "material": [{"Props": [{"prop_value": true}]}]})", "prop_value: is true or false"},
        Wrong{R"({"proj_type": 2, "material": [{"Props": [{"prop_name": []}]}]})", "prop_name: is an array; a text"},
        Wrong{R"({"proj_type": 2, "material": [{"Props": [{"prop_key": {}}]}]})", "prop_key: is an object; a text"}),
    [](const auto& wrong) { return vxtest::caseName(wrong.index, wrong.param.text); });

TEST(ExchangeImport, ReportsLineAndColumnIfTheTextIsNotJson)
{
    try {
        importExchange("{\"proj_type\": 2,\n  \"material\": [}");
        ADD_FAILURE() << "no error was thrown";
    } catch (const projectfile::ContentError& error) {
        EXPECT_STREQ(error.what(), "line 2, column 16: a value is needed here");
        EXPECT_EQ(error.line(), 2);
        EXPECT_EQ(error.column(), 16);
        EXPECT_EQ(error.member(), "");
    }
}

TEST(ExchangeImport, NamesTheInvalidMember)
{
    try {
        importExchange(R"({"proj_type": 2, "material": [{}, {"mat_name": 7}]})");
        ADD_FAILURE() << "no error was thrown";
    } catch (const projectfile::ContentError& error) {
        EXPECT_EQ(error.member(), "$.material[1].mat_name");
        EXPECT_EQ(error.line(), 0);
    }
}

TEST(ExchangeImport, UsesTheLastOfRepeatedMembersWithADoubt)
{
    const auto imported = importExchange(documentOf(
        R"({"prop_type": 4, "prop_value": 7850, "prop_v\u0061lue": 7, "prop_key": "rho", "prop_name": "Density"} // a)"
        "\n"));
    ASSERT_THAT(imported.materials, SizeIs(1));
    EXPECT_EQ(imported.materials[0].material->findProperty(4)->value, 7.0);
    EXPECT_THAT(imported.doubts,
                ElementsAre("$.material[0].Props[0].prop_value: occurs more than once; the last one was used"));
}

TEST(ExchangeImport, NumbersMaterialsFromOneWithoutDoubtsIfTheCallerRenumbersThem)
{
    Json::Value document;
    document["proj_type"] = 2;
    for (const int number : {7, 7, 0}) {
        Json::Value material;
        material["mat_id"] = number;
        material["mat_name"] = "Steel";
        material["Props"] = Json::Value(Json::arrayValue);
        document["material"].append(std::move(material));
    }
    const auto imported = importExchange(vxjson::toStyledText(document), projectfile::Numbering::Anew);
    ASSERT_EQ(imported.materials.size(), 3U);
    EXPECT_EQ(imported.materials[0].objectId, 1U);
    EXPECT_EQ(imported.materials[2].objectId, 3U);
    EXPECT_TRUE(imported.doubts.empty()) << imported.doubts.front();
}

TEST(ExchangeImport, ListsOnlyTheFirstDoubtsAboutManyMaterials)
{
    std::string materials;
    for (int i = 0; i < 600; ++i)
        materials += "{},";
    const ImportedMaterials imported = importExchange(R"({"proj_type": 2, "material": [)" + materials + "{}]}");
    EXPECT_THAT(imported.materials, SizeIs(601));
    // Each material lacks a name and a number.
    ASSERT_THAT(imported.doubts, SizeIs(1001));
    EXPECT_THAT(imported.doubts[999], HasSubstr("material 500 "));
    EXPECT_EQ(imported.doubts.back(), "Further doubts are not listed: 202.");
}

} // namespace
