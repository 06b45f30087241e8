#include "vxMaterial/exchange/CardSet.h"

#include "ExchangeTesting.h"

#include "vxMaterial/model/MaterialLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using vxCAE::CardSet;
using vxCAE::makeCardSet;
using vxCAE::MaterialEntry;
using vxCAE::MaterialSource;
using vxtest::makeEntry;

std::vector<std::string> namesOf(const CardSet& set)
{
    std::vector<std::string> names;
    for (const auto& card : set.cards)
        names.push_back(card.name);
    return names;
}

/// Returns the English texts of the doubts.
std::vector<std::string> doubtsOf(const CardSet& set)
{
    std::vector<std::string> texts;
    for (const vxMat::MaterialFinding& doubt : set.doubts)
        texts.push_back(toText(doubt));
    return texts;
}

CardSet libraryCards(const vxMat::MaterialBase& material)
{
    MaterialEntry entry;
    entry.material->copyFrom(material);
    entry.classifyKind();
    return makeCardSet(entry, MaterialSource::Complete);
}

CardSet cardsOf(const std::unique_ptr<MaterialEntry>& entry)
{
    return makeCardSet(*entry, MaterialSource::Complete);
}

TEST(CardSet, HoldsTheCardsThatApplyAndNoOthers)
{
    EXPECT_THAT(namesOf(libraryCards(vxMat::StructuralSteel())),
                ElementsAre("elasticity", "density", "specific heat", "thermal conductivity"));
    EXPECT_THAT(namesOf(libraryCards(vxMat::PlasticMaterial1())), ElementsAre("elasticity", "plasticity", "density"));
    EXPECT_THAT(namesOf(libraryCards(vxMat::CreepMaterial1())), ElementsAre("elasticity", "creep", "density"));
    EXPECT_THAT(namesOf(libraryCards(vxMat::ViscoElasticMaterial1())),
                ElementsAre("elasticity", "visco-elasticity", "density"));
    EXPECT_THAT(namesOf(libraryCards(vxMat::EMMaterial1())), IsEmpty());
}

TEST(CardSet, HasNoDoubtsAboutTheLibrary)
{
    for (const auto& entry : vxMat::libraryEntries())
        EXPECT_THAT(doubtsOf(libraryCards(*entry.create())), IsEmpty()) << entry.create()->name;
}

TEST(CardSet, DoubtsACardThatLacksAValue)
{
    const CardSet elasticity = cardsOf(makeEntry({{5, 1.0}}));
    EXPECT_THAT(doubtsOf(elasticity),
                ElementsAre("the elasticity card lacks a value: \"Invalid young_modulus or poisson_ratio.\""));
    const CardSet creep = cardsOf(makeEntry({{45, 1.0}}));
    EXPECT_THAT(namesOf(creep), ElementsAre("creep"));
    EXPECT_THAT(doubtsOf(creep), ElementsAre(HasSubstr("Invalid dModulusA, dModulusN, or dModulusM.")));
}

TEST(CardSet, DoubtsNumbersThatAreNotFinite)
{
    auto entry = makeEntry({{5, std::numeric_limits<double>::infinity()}, {6, 0.3}});
    EXPECT_THAT(doubtsOf(cardsOf(entry)),
                ElementsAre("\"Young's modulus\" has a number that is not finite, which no solver reads"));
    entry = makeEntry({{5, 1.0}, {6, 0.3}});
    auto stresses = vxMat::findPropertyRecord(38)->create();
    stresses->values = {1.0, std::numeric_limits<double>::quiet_NaN()};
    const std::string name = stresses->name;
    entry->material->setProperty(38, std::move(stresses));
    EXPECT_THAT(doubtsOf(cardsOf(entry)), ElementsAre(HasSubstr(name)));
}

TEST(CardSet, DoubtsAPlasticityThatTheSolverDoesNotKnow)
{
    auto entry = makeEntry({{32, 1.0}, {33, 0.0}});
    entry->material->setProperty(37, std::make_unique<vxMat::PlasticHardeningType>("Swift"));
    const CardSet set = cardsOf(entry);
    EXPECT_THAT(namesOf(set), IsEmpty());
    EXPECT_THAT(doubtsOf(set),
                ElementsAre("no plasticity card is written for yield type \"Mises\" with hardening type \"Swift\""));
}

TEST(CardSet, DoubtsACurveWithMoreStressesThanStrains)
{
    auto entry = makeEntry({{32, 1.0}, {33, 0.0}});
    entry->material->setProperty(37, std::make_unique<vxMat::PlasticHardeningType>("Multilinear"));
    entry->material->setProperty(38, std::make_unique<vxMat::PlasticYieldStress>(std::vector{1.0, 2.0, 3.0}));
    entry->material->setProperty(39, std::make_unique<vxMat::PlasticStrain>(std::vector{0.0}));
    EXPECT_THAT(doubtsOf(cardsOf(entry)),
                ElementsAre("the plasticity card leaves out numbers of \"Yield stress\", which have no plastic strain: "
                            "2, 3"));
}

TEST(CardSet, DoubtsACurveWithMoreStrainsThanStresses)
{
    auto entry = makeEntry({{32, 1.0}, {33, 0.0}});
    entry->material->setProperty(37, std::make_unique<vxMat::PlasticHardeningType>("Multilinear"));
    entry->material->setProperty(38, std::make_unique<vxMat::PlasticYieldStress>(std::vector{1.0}));
    entry->material->setProperty(39, std::make_unique<vxMat::PlasticStrain>(std::vector{0.0, 0.25}));
    EXPECT_THAT(doubtsOf(cardsOf(entry)),
                ElementsAre("the plasticity card leaves out numbers of \"Plastic strain\", which have no yield stress: "
                            "0.25"));
}

TEST(CardSet, DoubtsYieldStressesThatACardHasNoPlaceFor)
{
    auto entry = makeEntry({{32, 1.0}, {34, 2.0}, {35, 30.0}});
    entry->material->setProperty(33, std::make_unique<vxMat::PlasticYieldType>("Drucker-Prager"));
    entry->material->setProperty(37, std::make_unique<vxMat::PlasticHardeningType>("Multilinear"));
    entry->material->setProperty(38, std::make_unique<vxMat::PlasticYieldStress>(std::vector{450.0, 608.0}));
    entry->material->setProperty(39, std::make_unique<vxMat::PlasticStrain>(std::vector{0.0, 0.1}));
    EXPECT_THAT(doubtsOf(cardsOf(entry)),
                ElementsAre("the plasticity card leaves out numbers of \"Yield stress\", which the solver does not use "
                            "with yield type \"Drucker-Prager\": 450, 608"));
}

TEST(CardSet, DoubtsTheCurveOfABilinearMaterial)
{
    for (const char* const yield : {"Mises", "Drucker-Prager"}) {
        auto entry = makeEntry({{32, 1.0}, {34, 2.0}, {35, 30.0}, {36, 5.0}, {41, 450.0}});
        entry->material->setProperty(33, std::make_unique<vxMat::PlasticYieldType>(yield));
        entry->material->setProperty(37, std::make_unique<vxMat::PlasticHardeningType>("Bilinear"));
        entry->material->setProperty(38, std::make_unique<vxMat::PlasticYieldStress>(std::vector{450.0, 608.0}));
        entry->material->setProperty(39, std::make_unique<vxMat::PlasticStrain>(std::vector{0.0, 0.1}));
        EXPECT_THAT(doubtsOf(cardsOf(entry)),
                    ElementsAre("the plasticity card leaves out numbers of \"Yield stress\", which the solver does not "
                                "use with bilinear hardening: 450, 608",
                                "the plasticity card leaves out numbers of \"Plastic strain\", which the solver does "
                                "not use with bilinear hardening: 0, 0.1"))
            << yield;
    }
}

TEST(CardSet, DoubtsAMultilinearCardWithoutACurve)
{
    auto entry = makeEntry({{32, 1.0}, {33, 0.0}, {34, 2.0}, {35, 30.0}});
    entry->material->setProperty(37, std::make_unique<vxMat::PlasticHardeningType>("Multilinear"));
    const std::string noStrain =
        "the plasticity card has no hardening curve: the material has no numbers of \"Plastic strain\"";
    EXPECT_THAT(doubtsOf(cardsOf(entry)),
                ElementsAre(noStrain, "the plasticity card has no hardening curve: the material has no numbers of "
                                      "\"Yield stress\""));
    entry->material->setProperty(33, std::make_unique<vxMat::PlasticYieldType>("Mohr-Coulomb"));
    EXPECT_THAT(doubtsOf(cardsOf(entry)), ElementsAre(noStrain));
}

TEST(CardSet, DoubtsTheModelsThatAnotherTakesPrecedenceOver)
{
    EXPECT_THAT(doubtsOf(cardsOf(makeEntry({{42, 1.0}, {43, 1.0}, {44, 1.0}, {45, 1.0}}))),
                ElementsAre(HasSubstr("\"Creep\": another model")));
}

TEST(CardSet, DoubtsThePlasticityOfADocumentThatNamesNoWordOrList)
{
    const auto set = makeCardSet(*makeEntry({{32, 1.0}}), MaterialSource::Document);
    EXPECT_THAT(doubtsOf(set),
                ElementsAre("the plasticity card cannot be complete: exchange documents carry no words and lists"));
}

TEST(CardSet, DoubtsThePlasticityOfADocumentForItsLostWordsAndLists)
{
    MaterialEntry entry;
    entry.material->copyFrom(vxMat::PlasticMaterial1());
    Json::Value document;
    vxCAE::CAEMaterials section;
    section.addMaterial(1, std::make_unique<MaterialEntry>());
    section.entries.at(1)->material->copyFrom(vxMat::PlasticMaterial1());
    section.writeJson(document);
    vxCAE::CAEMaterials read;
    read.readJson(document);
    read.entries.at(1)->classifyKind();
    const CardSet set = makeCardSet(*read.getMaterial(1), MaterialSource::Document);
    EXPECT_THAT(doubtsOf(set),
                ElementsAre("the plasticity card cannot be complete: exchange documents carry no words and "
                            "lists (\"Yield type\", \"Hardening type\", \"Yield stress\", \"Plastic strain\")"));
    EXPECT_THAT(namesOf(set), ElementsAre("elasticity", "density"));
}

} // namespace
