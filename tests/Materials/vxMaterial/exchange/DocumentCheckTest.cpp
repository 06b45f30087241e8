#include "vxMaterial/exchange/DocumentCheck.h"

#include "ExchangeTesting.h"

#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/model/MaterialLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using vxCAE::CAESet;
using vxCAE::checkDocument;
using vxCAE::Finding;
using vxtest::json;
using vxtest::written;

std::vector<std::string> lines(const std::vector<Finding>& findings)
{
    std::vector<std::string> texts;
    for (const Finding& finding : findings)
        texts.push_back(finding.path + ": " + finding.message);
    return texts;
}

std::vector<std::string> findings(const std::string& text)
{
    return lines(checkDocument(json(text)).findings);
}

/// Returns the findings about a material whose "Props" are given as text.
std::vector<std::string> findingsOfProperties(const std::string& properties)
{
    return findings(R"({"proj_type": 2, "material": [{"mat_id": 1, "mat_name": "m", "Props": )" + properties + "}]}");
}

std::string property(int type, const std::string& value)
{
    return R"({"prop_type": )" + std::to_string(type) + R"(, "prop_key": "k", "prop_name": "n", "prop_value": )" +
           value + "}";
}

/// Returns an analysis document without findings, which the tests change.
Json::Value analysis()
{
    CAESet set(1, 1);
    Json::Value document = written(set);
    document["material"].append(json(R"({"mat_id": 7, "mat_name": "Steel", "Props": [)" + property(4, "7850") + "]}"));
    document["domaincondition"]["DCs"].append(json(R"({"obj_id": 3, "mat_id": 7, "mat_name": "Steel",
        "has_bforce": false, "bforce": [0, 0, 0], "topo": "Solid"})"));
    return document;
}

std::vector<std::string> check(const Json::Value& document)
{
    return lines(checkDocument(document).findings);
}

TEST(DocumentCheck, FindsNothingInTheWholeLibrary)
{
    CAESet set(1, 2);
    unsigned number = 0;
    for (const auto& library : vxMat::libraryEntries()) {
        auto entry = std::make_unique<vxCAE::MaterialEntry>();
        entry->material->copyFrom(*library.create());
        set.materials->addMaterial(++number, std::move(entry));
    }
    EXPECT_THAT(check(written(set)), IsEmpty());
}

TEST(DocumentCheck, FindsNothingInAnEmptyMaterialProjectAndASoundAnalysis)
{
    EXPECT_THAT(findings(R"({"proj_type": 2})"), IsEmpty());
    EXPECT_THAT(check(analysis()), IsEmpty());
}

TEST(DocumentCheck, WantsAKnownProjectType)
{
    EXPECT_THAT(findings("{}"), ElementsAre(StartsWith("$.proj_type: is missing")));
    EXPECT_THAT(findings(R"({"proj_type": 3})"), ElementsAre(StartsWith("$.proj_type: is 3; 1 (analysis")));
    EXPECT_THAT(findings(R"({"proj_type": "2"})"), ElementsAre(StartsWith("$.proj_type: is a text")));
    EXPECT_THAT(findings("[]"), ElementsAre("$: is an array; an object is needed"));
}

TEST(DocumentCheck, NamesUnknownQuantitiesWithTheirPath)
{
    EXPECT_THAT(findingsOfProperties("[" + property(40, "1") + "," + property(201, "1") + "]"),
                ElementsAre("$.material[0].Props[0].prop_type: is 40, which is not in the catalogue",
                            "$.material[0].Props[1].prop_type: is 201, which is not in the catalogue"));
}

TEST(DocumentCheck, AppliesTheRulesOfThePropertyTable)
{
    EXPECT_THAT(
        findingsOfProperties("[" + property(4, "-5") + "," + property(6, "0.5") + "]"),
        ElementsAre("$.material[0].Props[0].prop_value: is -5: Mass density must be positive!",
                    "$.material[0].Props[1].prop_value: is 0.5: Poisson's ratio must be between [0.001, 0.499]!"));
    EXPECT_THAT(findingsOfProperties("[" + property(31, "1") + "," + property(28, "1") + "]"),
                ElementsAre("$.material[0].Props: Elasticity and hyper-elasticy cannot be used togeter!"));
    EXPECT_THAT(findingsOfProperties("[" + property(31, "1") + "]"),
                ElementsAre("$.material[0].Props: Elasticity does not define Young's modulus!"));
}

TEST(DocumentCheck, NamesValuesOfTheWrongKind)
{
    EXPECT_THAT(findingsOfProperties("[" + property(5, "\"stiff\"") + "]"),
                ElementsAre("$.material[0].Props[0].prop_value: is a text; a number is needed"));
    EXPECT_THAT(findingsOfProperties("[" + property(5, "null") + "]"),
                ElementsAre("$.material[0].Props[0].prop_value: is null and read as 0"));
    EXPECT_THAT(findingsOfProperties("[" + property(5, "true") + "]"),
                ElementsAre("$.material[0].Props[0].prop_value: is true; a number is needed"));
    EXPECT_THAT(findingsOfProperties(R"([7, []])"),
                ElementsAre("$.material[0].Props[0]: is 7; an object is needed",
                            "$.material[0].Props[1]: is an array; an object is needed"));
    EXPECT_THAT(findingsOfProperties(R"({"a": 1})"),
                ElementsAre("$.material[0].Props: is an object; an array is needed"));
}

TEST(DocumentCheck, NamesIdsThatAreNoUnsignedNumbers)
{
    for (const char* const id : {"-1", "1.5", "4294967296", "\"1\"", "{}", "[]", "1e300"}) {
        EXPECT_THAT(findings(R"({"proj_type": 2, "material": [{"mat_name": "m", "mat_id": )" + std::string(id) + "}]}"),
                    ElementsAre(AllOf(StartsWith("$.material[0].mat_id: is "),
                                      HasSubstr("a whole number from 0 to 4294967295 is needed"))))
            << id;
    }
}

TEST(DocumentCheck, NamesMembersThatAreMissing)
{
    EXPECT_THAT(findings(R"({"proj_type": 2, "material": [{"Props": [{}]}]})"),
                ElementsAre("$.material[0].mat_id: is missing and read as 0",
                            "$.material[0].mat_name: is missing and read as the empty text",
                            "$.material[0].Props[0].prop_key: is missing and read as the empty text",
                            "$.material[0].Props[0].prop_name: is missing and read as the empty text",
                            "$.material[0].Props[0].prop_value: is missing and read as 0",
                            "$.material[0].Props[0].prop_type: is missing and read as 0"));
}

TEST(DocumentCheck, NamesNumbersThatRepeat)
{
    EXPECT_THAT(findings(
                    R"({"proj_type": 2, "material": [{"mat_id": 1, "mat_name": "a"}, {"mat_id": 2, "mat_name": "b"},
                                                           {"mat_id": 1, "mat_name": "c"}]})"),
                ElementsAre("$.material[2].mat_id: is 1 again; readers drop $.material[0] for this one"));
    EXPECT_THAT(
        findingsOfProperties("[" + property(4, "1") + "," + property(4, "2") + "]"),
        ElementsAre("$.material[0].Props[1].prop_type: is 4 again; readers drop $.material[0].Props[0] for this "
                    "one"));
}

TEST(DocumentCheck, NotesWordsListsAndEmptyMaterials)
{
    const auto report = checkDocument(
        json(R"({"proj_type": 2, "material": [{"mat_id": 1, "mat_name": "m", "Props": [)" + property(33, "0") + "," +
             property(38, "0") + R"(]}, {"mat_id": 2, "mat_name": "empty"}]})"));
    EXPECT_THAT(report.findings, IsEmpty());
    EXPECT_THAT(lines(report.notes),
                ElementsAre("$.material[0].Props[0]: \"Yield type\" is a word, which documents do not carry",
                            "$.material[0].Props[1]: \"Yield stress\" is a list, which documents do not carry",
                            "$.material[1]: has no properties"));
}

TEST(DocumentCheck, NamesMaterialsThatDomainsReferToInVain)
{
    Json::Value document = analysis();
    document["domaincondition"]["DCs"][0]["mat_id"] = 8;
    EXPECT_THAT(check(document), ElementsAre(StartsWith("$.domaincondition.DCs[0].mat_id: is 8, a material that")));

    const Json::Value materials = json(R"({"proj_type": 2, "material": [{"mat_id": 8, "mat_name": "m"}]})");
    EXPECT_THAT(checkDocument(document, &materials).findings, IsEmpty());
}

TEST(DocumentCheck, NamesStepArraysOfUnequalLength)
{
    Json::Value document = analysis();
    document["boundarycondition"] = json(R"({"BCs": [{"obj_id": 1, "type": 1, "name": "Fixed", "steps": [
        {"set_id": 1, "valType": 0, "imposed": [true], "value": [1.0]},
        {"set_id": 1, "valType": 0, "imposed": [true, false], "value": [1.0]},
        {"set_id": 1, "valType": 0, "imposed": [1], "value": ["x"]}]}]})");
    EXPECT_THAT(check(document),
                ElementsAre("$.boundarycondition.BCs[0].steps[1]: has 2 elements in \"imposed\" and 1 in \"value\"; "
                            "readers drop such a step",
                            "$.boundarycondition.BCs[0].steps[2].imposed[0]: is 1; true or false is needed",
                            "$.boundarycondition.BCs[0].steps[2].value[0]: is a text; a number is needed",
                            "$.boundarycondition.BCs[0].steps[2].set_id: is 1 again; readers drop "
                            "$.boundarycondition.BCs[0].steps[0] for this one"));
}

TEST(DocumentCheck, NamesCountsThatTurnNegativeWhenRead)
{
    Json::Value document = analysis();
    document["mesh"]["n_nodes"] = 4294967295U;
    EXPECT_THAT(check(document),
                ElementsAre("$.mesh.n_nodes: is 4294967295; a whole number from 0 to 2147483647 is needed"));
}

TEST(DocumentCheck, NamesLoadStepsThatReadersRefuse)
{
    Json::Value document = analysis();
    document["solve"]["n_load_steps"] = 4294967295U;
    EXPECT_THAT(check(document), ElementsAre("$.solve.n_load_steps: is 4294967295, which far exceeds the length of the "
                                             "arrays of the steps; readers refuse the document"));
}

TEST(DocumentCheck, NamesLoadStepArraysOfAnotherLength)
{
    Json::Value document = analysis();
    document["solve"]["n_load_steps"] = 2;
    document["solve"]["auto_timing"] = "always";
    const auto found = check(document);
    EXPECT_THAT(found,
                Contains("$.solve.times: has 1 elements for 2 load steps; missing ones are read as 0, others not "
                         "at all"));
    EXPECT_THAT(found, Contains("$.solve.auto_timing: is a text; an array is needed"));
}

TEST(DocumentCheck, NamesADeformTypeThatNoReaderTakes)
{
    Json::Value document = analysis();
    document["system"]["deform_type"] = 1;
    EXPECT_THAT(check(document),
                ElementsAre("$.system.deform_type: is 1, but readers take \"defrom_type\", which is missing"));
    document["system"]["defrom_type"] = 0;
    EXPECT_THAT(check(document),
                ElementsAre("$.system.deform_type: is 1, but readers take \"defrom_type\", which is 0"));
    document["system"]["defrom_type"] = 1;
    EXPECT_THAT(check(document), IsEmpty());
    document["system"]["defrom_type"] = "large";
    EXPECT_THAT(check(document), ElementsAre(StartsWith("$.system.defrom_type: is a text")));
}

TEST(DocumentCheck, NamesTheSettingsThatAModalOrSpectrumAnalysisLacks)
{
    Json::Value document = analysis();
    document["system"]["analysis_type"] = 3;
    EXPECT_THAT(check(document),
                ElementsAre("$.system.n_eigens: is missing and read as 0", "$.system.lcz_tol: is missing and read as 0",
                            "$.system.lcz_max: is missing and read as 0"));
    document["system"]["analysis_type"] = 4;
    EXPECT_THAT(check(document), ElementsAre("$.system.start_mode: is missing and read as 0",
                                             "$.system.end_mode: is missing and read as 0"));
}

TEST(DocumentCheck, NamesSectionsThatAreMissingOrOfTheWrongKind)
{
    Json::Value document = analysis();
    document.removeMember("mesh");
    document["system"] = Json::arrayValue;
    document["result"] = "none";
    document["solve"] = 7;
    document["connections"] = "none";
    document["initialcondition"] = json(R"({"ICs": "none"})");
    EXPECT_THAT(check(document),
                ElementsAre("$.system: is an array; an object is needed",
                            "$.connections: is a text; an object or null is needed",
                            "$.mesh: is missing; its members are read as 0, false or empty",
                            "$.initialcondition.ICs: is a text; an array is needed",
                            "$.solve: is 7; an object is needed", "$.result: is a text; an object is needed"));
}

TEST(DocumentCheck, NamesFaultsOfDomainsContactsAndMesh)
{
    Json::Value document = analysis();
    Json::Value& domain = document["domaincondition"]["DCs"][0];
    domain["topo"] = "Shell";
    domain["bforce"] = json("[0, 0]");
    document["connections"] = json(R"({"contacts": [{"obj_id": 2, "contact_type": "x", "friction_coeff": 0.1,
        "friction_stiffness": 1, "formulation": "y", "finite_sliding": 0}]})");
    document["mesh"]["wmesh_ids"] = json("[1, -2]");
    document["initialcondition"] = json(R"({"ICs": [{"obj_id": 1, "type": "t", "name": "n", "value": "warm"}]})");
    EXPECT_THAT(check(document),
                ElementsAre("$.domaincondition.DCs[0].thickness: is missing and read as 0",
                            "$.domaincondition.DCs[0].n_inte_points: is missing and read as 0",
                            "$.domaincondition.DCs[0].bforce: has 2 elements; x, y and z are needed",
                            "$.connections.contacts[0].finite_sliding: is 0; true or false is needed",
                            "$.mesh.wmesh_ids[1]: is -2; a whole number from 0 to 4294967295 is needed",
                            "$.initialcondition.ICs[0].value: is a text; a number is needed"));
}

TEST(DocumentCheck, ThrowsNothingForAnyKindOfMember)
{
    const std::string values[] = {"null", "true", "-1", "1e308", "\"x\"", "[]", "[[]]", "[{}]", "{}", "{\"a\": []}"};
    const Json::Value sound = analysis();
    for (const std::string& name : sound.getMemberNames()) {
        for (const std::string& value : values) {
            Json::Value document = sound;
            document[name] = json(value);
            EXPECT_NO_THROW(checkDocument(document)) << name << value;
            if (!sound[name].isObject())
                continue;
            for (const std::string& inner : sound[name].getMemberNames()) {
                document = sound;
                document[name][inner] = json(value);
                EXPECT_NO_THROW(checkDocument(document)) << name << inner << value;
            }
        }
    }
}

} // namespace
