#include "DataFile.h"
#include "VxmatTesting.h"

#include "projectfile/ExchangeImport.h"
#include "projectfile/ProjectFile.h"
#include "vxMaterial/json/JsonText.h"
#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace {

using testing::HasSubstr;
using vxtest::Folder;
using vxtest::Outcome;
using vxtest::vxmat;

/// Returns the text of a project with one material that has these properties.
std::string projectOf(std::vector<std::unique_ptr<vxMat::MaterialProperty>> properties)
{
    auto material = std::make_unique<vxMat::CMaterial>("M");
    for (auto& property : properties) {
        const std::int32_t slot = property->id;
        material->setProperty(slot, std::move(property));
    }
    projectfile::ImportedMaterial object;
    object.objectId = 5;
    object.label = "M";
    object.material = std::move(material);
    std::vector<projectfile::ImportedMaterial> materials;
    materials.push_back(std::move(object));
    return projectfile::writeProject(projectfile::makeProject("p", std::move(materials)));
}

std::string projectOf(std::unique_ptr<vxMat::MaterialProperty> property)
{
    std::vector<std::unique_ptr<vxMat::MaterialProperty>> properties;
    properties.push_back(std::move(property));
    return projectOf(std::move(properties));
}

/// Checks the text of a project.
Outcome check(const std::string& project)
{
    return vxmat({"check", "-"}, project);
}

TEST(CheckOfAProject, FindsNoErrorsInTheLibrary)
{
    std::vector<std::string> arguments{"new", "-o", "-"};
    for (const auto& entry : vxMat::libraryEntries())
        arguments.push_back(entry.create()->name);
    const Outcome run = check(vxmat(arguments).out);
    EXPECT_EQ(run.status, 0);
    for (std::string_view lines = run.out; !lines.empty(); lines.remove_prefix(lines.find('\n') + 1))
        EXPECT_EQ(lines.substr(0, 9), "-: doubt:");
    EXPECT_THAT(run.err, HasSubstr("is property 4 \"Density\" but held as 401 \"Speed of sound\""));
}

TEST(CheckOfAProject, FindsNumbersOutOfRange)
{
    const Outcome density = check(projectOf(std::make_unique<vxMat::Density>(-1.0)));
    EXPECT_EQ(density.status, 1);
    EXPECT_EQ(density.out, "-: $.materials[0].material.properties[0]: \"Density\" is -1; it must be greater than 0.\n");
    EXPECT_EQ(density.err, "");
    EXPECT_THAT(check(projectOf(std::make_unique<vxMat::PoissonsRatio>(0.5))).out,
                HasSubstr("properties[0]: \"Poisson's ratio\" is 0.5; it must be from 0.001 to 0.499."));
}

TEST(CheckOfAProject, FindsWordsThatAreNotAllowed)
{
    const Outcome run = check(projectOf(std::make_unique<vxMat::PlasticYieldType>("Tresca")));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "-: $.materials[0].material.properties[0]: \"Yield type\" is \"Tresca\"; it must be one of "
                       "Mises, Mohr-Coulomb, Drucker-Prager.\n");
    EXPECT_EQ(check(projectOf(std::make_unique<vxMat::PlasticYieldType>("MISES"))).status, 0);
}

TEST(CheckOfAProject, FindsNumbersThatAreNotFinite)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const Outcome number = check(projectOf(std::make_unique<vxMat::YoungsModulus>(infinity)));
    EXPECT_EQ(number.status, 1);
    EXPECT_EQ(number.out, "-: $.materials[0].material.properties[0]: \"Young's modulus\" is inf; a finite number is "
                          "needed.\n");
    const Outcome list = check(projectOf(std::make_unique<vxMat::PlasticYieldStress>(
        std::vector<double>{1.0, std::numeric_limits<double>::quiet_NaN()})));
    EXPECT_EQ(list.out, "-: $.materials[0].material.properties[0]: \"Yield stress\" is nan; a finite number is "
                        "needed.\n");
}

TEST(CheckOfAProject, FindsEmptyLists)
{
    const Outcome run = check(projectOf(std::make_unique<vxMat::PlasticStrain>(std::vector<double>{})));
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.out, HasSubstr("properties[0]: \"Plastic strain\" contains no number."));
}

TEST(CheckOfAProject, FindsQuantitiesThatTheCatalogueDoesNotKnow)
{
    auto property = std::make_unique<vxMat::MaterialProperty>(201, "Thermal Expansion", "alpha", 1.0);
    const Outcome run = check(projectOf(std::move(property)));
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.out, HasSubstr("properties[0]: The catalogue has no quantity 201 (\"Thermal Expansion\")"));
}

TEST(CheckOfAProject, FindsCombinationsThatExcludeEachOther)
{
    std::vector<std::unique_ptr<vxMat::MaterialProperty>> properties;
    properties.push_back(std::make_unique<vxMat::IsotropicElasticity>());
    properties.push_back(std::make_unique<vxMat::NeoHooke>());
    const Outcome run = check(projectOf(std::move(properties)));
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.out,
                HasSubstr("\"Isotropic elasticity\" and \"Neo-Hookean\" exclude each other; remove one of them."));
}

TEST(CheckOfAProject, FindsUnequalNumbersOfYieldStressesAndPlasticStrains)
{
    std::vector<std::unique_ptr<vxMat::MaterialProperty>> properties;
    properties.push_back(std::make_unique<vxMat::PlasticYieldStress>(std::vector<double>{450.0, 608.0, 679.0}));
    properties.push_back(std::make_unique<vxMat::PlasticStrain>(std::vector<double>{0.0, 0.1}));
    const Outcome run = check(projectOf(std::move(properties)));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out,
              "-: $.materials[0].material.properties[0]: \"Yield stress\" has 3 numbers and \"Plastic strain\" "
              "has 2; they form pairs, and numbers without a partner have no effect.\n");
}

TEST(CheckOfAProject, ChecksAPropertyAlsoAsTheQuantityUnderWhichItIsHeld)
{
    auto material = std::make_unique<vxMat::CMaterial>("M");
    material->setProperty(6, std::make_unique<vxMat::Density>(7850.0));
    std::vector<projectfile::ImportedMaterial> materials(1);
    materials[0].objectId = 1;
    materials[0].label = "M";
    materials[0].material = std::move(material);
    const Outcome run = check(projectfile::writeProject(projectfile::makeProject("p", std::move(materials))));
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.out, HasSubstr("\"Poisson's ratio\" is 7850; it must be from 0.001 to 0.499."));
    EXPECT_THAT(run.err, HasSubstr("note: $.materials[0].material.properties[0]: is property 4 \"Density\" but held "
                                   "as 6 \"Poisson's ratio\""));
}

TEST(CheckOfAProject, NamesThePlaceOfAValueInTheFile)
{
    // Neither the materials nor the properties are sorted here.
    const Outcome run = check(R"({"format": "vxMaterial project", "format_version": 1, "name": "p",
        "next_object_id": 9, "materials": [
        {"object_id": 8, "class": "Mat::MaterialObject", "name_internal": "b", "label": "b", "material": {"properties": [
            {"id": 6, "value": 0.3}, {"id": 4, "value": -8}]}},
        {"object_id": 2, "class": "Mat::MaterialObject", "name_internal": "a", "label": "a", "material": {"properties": [
            {"id": 4, "value": -2}]}}]})");
    EXPECT_EQ(run.out, "-: $.materials[0].material.properties[1]: \"Density\" is -8; it must be greater than 0.\n"
                       "-: $.materials[1].material.properties[0]: \"Density\" is -2; it must be greater than 0.\n");
}

TEST(CheckOfAProject, ReportsTheDoubtsOfTheReader)
{
    std::string text = vxmat({"new", "Air", "-o", "-"}).out;
    const std::string label = "\"label\": \"Air\"";
    text.replace(text.find(label), label.size(), "\"label\": \"Wind\"");
    const Outcome run = check(text);
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.out, testing::StartsWith("-: $: "));
    EXPECT_THAT(run.out, HasSubstr("\"Wind\""));
    const Outcome cards = vxmat({"cards", "-"}, text);
    EXPECT_EQ(cards.status, 0);
    EXPECT_THAT(cards.err, HasSubstr("\"Wind\""));
}

TEST(CheckOfAProject, FindsMaterialsWithoutProperties)
{
    const Outcome run = check(projectOf(std::vector<std::unique_ptr<vxMat::MaterialProperty>>()));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "-: $.materials[0].material: The material has no properties.\n");
    EXPECT_EQ(run.err, "");
}

TEST(CheckOfAProject, FindsModelsThatLackAParameter)
{
    const Outcome run = check(projectOf(std::make_unique<vxMat::IsotropicElasticity>()));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "-: $.materials[0].material.properties[0]: \"Isotropic elasticity\" needs \"Young's modulus\", "
                       "which the material does not have.\n"
                       "-: $.materials[0].material.properties[0]: \"Isotropic elasticity\" needs \"Poisson's ratio\", "
                       "which the material does not have.\n");
}

TEST(CheckOfAProject, PrintsFindingsAsJson)
{
    const Outcome run = vxmat({"check", "-", "--json"}, projectOf(std::make_unique<vxMat::Density>(0.0)));
    EXPECT_EQ(run.status, 1);
    const auto reading = vxjson::readJsonText(run.out);
    ASSERT_FALSE(reading.error);
    EXPECT_EQ(reading.document["findings"][0]["path"], "$.materials[0].material.properties[0]");
    EXPECT_TRUE(reading.document["notes"].empty());
}

TEST(CheckOfAProject, SuppliesTheMaterialsOfAnAnalysis)
{
    const Folder folder;
    const std::string analysis = vxtest::dataPath("documents/03-analysis.json");
    const std::string document = folder.path("d.json");
    const std::string project = folder.path("p.vxmat");
    ASSERT_EQ(vxmat({"export", "Air=7", "Water=9", "-o", document}).status, 0);
    ASSERT_EQ(vxmat({"import", document, "-o", project}).status, 0);
    const Outcome run = vxmat({"check", analysis, "--materials", project});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
    ASSERT_EQ(vxmat({"new", "Air", "-o", project, "--force"}).status, 0);
    EXPECT_THAT(vxmat({"check", analysis, "--materials", project}).out, HasSubstr("is 7, a material that is neither"));
}

} // namespace
