#include "vxMaterial/model/MaterialCheck.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using vxMat::CMaterial;
using vxMat::MaterialState;

/// Returns the findings of a material, each as "slot: text".
std::vector<std::string> findings(const vxMat::MaterialBase& material)
{
    std::vector<std::string> texts;
    for (const vxMat::MaterialFinding& finding : vxMat::checkMaterial(material))
        texts.push_back(std::to_string(finding.slot) + ": " + toText(finding));
    return texts;
}

/// Adds properties with their defaults.
void add(CMaterial& material, std::initializer_list<int> ids)
{
    for (const int id : ids)
        material.setProperty(id, vxMat::findPropertyRecord(id)->create());
}

void addNumber(CMaterial& material, int id, double number)
{
    add(material, {id});
    material.properties.at(id)->value = number;
}

void addWord(CMaterial& material, int id, const char* word)
{
    add(material, {id});
    material.properties.at(id)->text = word;
}

void addList(CMaterial& material, int id, std::vector<double> numbers)
{
    add(material, {id});
    material.properties.at(id)->values = std::move(numbers);
}

TEST(MaterialCheck, FindsNothingInTheMaterialsOfTheLibrary)
{
    for (const vxMat::LibraryEntry& entry : vxMat::libraryEntries()) {
        const auto material = entry.create();
        EXPECT_THAT(findings(*material), IsEmpty()) << material->name;
        EXPECT_EQ(vxMat::getMaterialState(*material), MaterialState::Ready) << material->name;
    }
}

TEST(MaterialCheck, FindsAMaterialWithoutProperties)
{
    const CMaterial material;
    EXPECT_THAT(findings(material), ElementsAre("0: The material has no properties."));
    EXPECT_EQ(vxMat::getMaterialState(material), MaterialState::Empty);
}

TEST(MaterialCheck, FindsNumbersThatBreakTheirRuleWithTheirRow)
{
    CMaterial material;
    addNumber(material, 6, 0.5);
    addNumber(material, 4, -1.5);
    EXPECT_THAT(findings(material), ElementsAre("4: \"Density\" is -1.5; it must be greater than 0.",
                                                "6: \"Poisson's ratio\" is 0.5; it must be from 0.001 to 0.499."));
    EXPECT_EQ(vxMat::getMaterialState(material), MaterialState::WithFindings);
}

TEST(MaterialCheck, FindsNumbersThatAreNotFiniteOnce)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    CMaterial material;
    addNumber(material, 4, -infinity);
    addNumber(material, 5, std::numeric_limits<double>::quiet_NaN());
    addList(material, 38, {1.0, infinity, infinity});
    addList(material, 39, {0.0, 0.1, 0.2});
    EXPECT_THAT(findings(material), ElementsAre("4: \"Density\" is -inf; a finite number is needed.",
                                                "5: \"Young's modulus\" is nan; a finite number is needed.",
                                                "38: \"Yield stress\" is inf; a finite number is needed."));
}

TEST(MaterialCheck, FindsWordsThatAreNotAllowed)
{
    CMaterial material;
    addWord(material, 33, "Tresca %1");
    addWord(material, 37, "");
    EXPECT_THAT(
        findings(material),
        ElementsAre("33: \"Yield type\" is \"Tresca %1\"; it must be one of Mises, Mohr-Coulomb, Drucker-Prager.",
                    "37: \"Hardening type\" is \"\"; it must be one of Bilinear, Multilinear, Swift, "
                    "Ramberg-Osgood, Kinematic, Combined."));
}

TEST(MaterialCheck, FindsListsOfUnequalLength)
{
    for (const auto& [stresses, strains] : std::initializer_list<std::pair<int, int>>{{7, 5}, {1, 3}}) {
        CMaterial material;
        material.copyFrom(vxMat::PlasticMaterial1());
        addList(material, 38, std::vector<double>(static_cast<std::size_t>(stresses), 450.0));
        addList(material, 39, std::vector<double>(static_cast<std::size_t>(strains), 0.1));
        EXPECT_THAT(findings(material),
                    ElementsAre("38: \"Yield stress\" has " + std::to_string(stresses) +
                                " numbers and \"Plastic strain\" has " + std::to_string(strains) +
                                "; they form pairs, and numbers without a partner have no effect."));
    }
}

TEST(MaterialCheck, FindsListsWithoutANumber)
{
    CMaterial material;
    addList(material, 38, {});
    EXPECT_THAT(findings(material), ElementsAre("38: \"Yield stress\" contains no number."));
}

TEST(MaterialCheck, FindsElasticityWithAHyperelasticModel)
{
    CMaterial material;
    add(material, {31, 5, 6, 28, 26, 25});
    EXPECT_THAT(
        findings(material),
        ElementsAre("31: \"Isotropic elasticity\" and \"Neo-Hookean\" exclude each other; remove one of them."));
}

TEST(MaterialCheck, FindsTheParametersThatAModelLacks)
{
    const auto lacks = [](const char* model, const char* parameter) {
        return std::string("\"") + model + "\" needs \"" + parameter + "\", which the material does not have.";
    };
    CMaterial elastic;
    add(elastic, {31, 5});
    EXPECT_THAT(findings(elastic), ElementsAre("31: " + lacks("Isotropic elasticity", "Poisson's ratio")));
    CMaterial creep;
    add(creep, {45, 46, 47});
    EXPECT_THAT(findings(creep), ElementsAre("45: " + lacks("Creep", "Creep Modulus M")));
    CMaterial rubber;
    add(rubber, {30, 23});
    EXPECT_THAT(findings(rubber), ElementsAre("30: " + lacks("Arruda-Boyce", "Limiting Network Stretch"),
                                              "30: " + lacks("Arruda-Boyce", "Incompressibility Parameter D1")));
}

TEST(MaterialCheck, AsksForTheParametersOfTheYieldAndHardeningType)
{
    const auto missing = [](const char* yield, const char* hardening) {
        CMaterial material;
        add(material, {32});
        if (yield != nullptr)
            addWord(material, 33, yield);
        if (hardening != nullptr)
            addWord(material, 37, hardening);
        std::vector<std::string> names;
        for (const vxMat::MaterialFinding& finding : vxMat::checkMaterial(material))
            if (finding.slot == 32)
                names.push_back(finding.arguments.at(1).text);
        return names;
    };
    EXPECT_THAT(missing(nullptr, nullptr), ElementsAre("Yield type"));
    EXPECT_THAT(missing("mises", nullptr), ElementsAre("Initial yield stress", "Hardening factor"));
    EXPECT_THAT(missing("Mises", "BILINEAR"), ElementsAre("Initial yield stress", "Hardening factor"));
    EXPECT_THAT(missing("Mises", "Multilinear"), ElementsAre("Yield stress", "Plastic strain"));
    EXPECT_THAT(missing("Mises", "Swift"), IsEmpty());
    for (const char* const yield : {"Drucker-Prager", "MOHR-COULOMB"}) {
        EXPECT_THAT(missing(yield, "Bilinear"),
                    ElementsAre("Plastic viscosity", "Internal frictional angle", "Hardening factor"));
        EXPECT_THAT(missing(yield, "Multilinear"),
                    ElementsAre("Plastic viscosity", "Internal frictional angle", "Plastic strain"));
    }
}

TEST(MaterialCheck, WarnsOfAPropertyThatTheCatalogueDoesNotHave)
{
    CMaterial material;
    material.setProperty(201, std::make_unique<vxMat::MaterialProperty>(201, "Expansion", "alpha", 1e-5));
    const auto found = vxMat::checkMaterial(material);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].slot, 201);
    EXPECT_EQ(found[0].severity, vxMat::FindingSeverity::Warning);
    EXPECT_EQ(toText(found[0]), "The catalogue has no quantity 201 (\"Expansion\"); the editor does not show it, and "
                                "applying changes there removes it.");
}

TEST(MaterialCheck, JudgesAPropertyByItsIdAndByItsSlot)
{
    CMaterial material;
    material.setProperty(6, std::make_unique<vxMat::Density>(7850.0));
    material.setProperty(401, std::make_unique<vxMat::Density>(-1.0));
    EXPECT_THAT(findings(material), ElementsAre("401: \"Density\" is -1; it must be greater than 0.",
                                                "6: \"Poisson's ratio\" is 7850; it must be from 0.001 to 0.499."));
}

TEST(MaterialCheck, TellsNamesOfQuantitiesFromOtherArguments)
{
    CMaterial material;
    addNumber(material, 4, 0.0);
    const auto found = vxMat::checkMaterial(material);
    ASSERT_EQ(found.size(), 1U);
    ASSERT_EQ(found[0].arguments.size(), 2U);
    EXPECT_EQ(found[0].arguments[0].kind, vxMat::FindingArgument::Kind::QuantityName);
    EXPECT_EQ(found[0].arguments[1].kind, vxMat::FindingArgument::Kind::Text);
    EXPECT_EQ(found[0].severity, vxMat::FindingSeverity::Error);
}

} // namespace
