#include "vxMaterial/exchange/CAEDCS.h"

#include "ExchangeTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using vxCAE::CAEDCS;
using vxCAE::ContactEntry;
using vxCAE::DomainEntry;
using vxtest::json;
using vxtest::written;

std::unique_ptr<DomainEntry> makeDomain(const std::string& topology)
{
    auto domain = std::make_unique<DomainEntry>();
    domain->topo = topology;
    domain->thickness = 0.02;
    domain->n_inte_points = 5;
    domain->mat_id = 7;
    domain->material->setName("Steel");
    return domain;
}

TEST(CAEDCS, WritesNullWithoutDomainsAndContacts)
{
    const Json::Value document = written(CAEDCS());
    EXPECT_EQ(document.getMemberNames(), (Json::Value::Members{"connections", "domaincondition"}));
    EXPECT_TRUE(document["domaincondition"].isNull());
    EXPECT_TRUE(document["connections"].isNull());
}

TEST(CAEDCS, WritesADomainInTheKindsOfItsMembers)
{
    CAEDCS section;
    auto domain = makeDomain("Solid");
    domain->has_bforce = true;
    domain->bforce = {0.0, -9.81, 1.5};
    section.addDomain(4, std::move(domain));
    const Json::Value document = written(section);
    ASSERT_EQ(document["domaincondition"].getMemberNames(), Json::Value::Members{"DCs"});
    const Json::Value& json = document["domaincondition"]["DCs"][0];
    EXPECT_EQ(json["obj_id"], 4U);
    EXPECT_EQ(json["obj_id"].type(), Json::uintValue);
    EXPECT_EQ(json["has_bforce"], true);
    EXPECT_EQ(json["bforce"], vxtest::json("[0.0, -9.81, 1.5]"));
    EXPECT_EQ(json["mat_id"], 7U);
    EXPECT_EQ(json["mat_name"], "Steel");
    EXPECT_EQ(json["topo"], "Solid");
    EXPECT_EQ(json.size(), 6U);
}

TEST(CAEDCS, WritesThicknessAndIntegrationPointsOfAShell)
{
    for (const char* const topology : {"Shell", "shell"}) {
        CAEDCS section;
        section.addDomain(4, makeDomain(topology));
        const Json::Value document = written(section);
        EXPECT_EQ(document["domaincondition"]["DCs"][0]["thickness"], 0.02);
        EXPECT_EQ(document["domaincondition"]["DCs"][0]["n_inte_points"], 5U);
    }
}

TEST(CAEDCS, TakesAShellInCapitalsForNone)
{
    CAEDCS section;
    section.addDomain(4, makeDomain("SHELL"));
    const Json::Value document = written(section);
    EXPECT_FALSE(document["domaincondition"]["DCs"][0].isMember("thickness"));
    EXPECT_FALSE(document["domaincondition"]["DCs"][0].isMember("n_inte_points"));

    section.readJson(json(R"({"domaincondition": {"DCs": [
        {"obj_id": 5, "topo": "SHELL", "thickness": 3.0, "n_inte_points": 9},
        {"obj_id": 6, "topo": "Shell", "thickness": 3.0, "n_inte_points": 9}]}})"));
    EXPECT_EQ(section.domains.at(5)->thickness, 0.0);
    EXPECT_EQ(section.domains.at(5)->n_inte_points, 0U);
    EXPECT_EQ(section.domains.at(6)->thickness, 3.0);
    EXPECT_EQ(section.domains.at(6)->n_inte_points, 9U);
}

TEST(CAEDCS, GivesADomainReadAMaterialWithItsNameAlone)
{
    CAEDCS section;
    section.readJson(json(R"({"domaincondition": {"DCs": [{"obj_id": 5, "mat_id": 7, "mat_name": "Steel",
        "has_bforce": true, "bforce": [1.0, 2.0]}]}})"));
    const vxCAE::MaterialEntry* const entry = section.getDomainMaterial(5);
    ASSERT_NE(entry, nullptr);
    EXPECT_STREQ(entry->getName(), "Steel");
    EXPECT_EQ(entry->kind, 0);
    EXPECT_EQ(entry->getId(), 0);
    EXPECT_THAT(entry->material->properties, IsEmpty());
    EXPECT_EQ(section.domains.at(5)->mat_id, 7U);
    EXPECT_TRUE(section.domains.at(5)->has_bforce);
    EXPECT_THAT(section.domains.at(5)->bforce, ElementsAre(1.0, 2.0, 0.0));
    EXPECT_EQ(section.getDomainMaterial(6), nullptr);
}

TEST(CAEDCS, WritesTheNameOfItsMaterialWhole)
{
    CAEDCS section;
    auto domain = makeDomain("Solid");
    domain->material->material->name = std::string("Steel\0hidden", 12);
    section.addDomain(1, std::move(domain));
    EXPECT_EQ(written(section)["domaincondition"]["DCs"][0]["mat_name"].asString(), std::string("Steel\0hidden", 12));
}

TEST(CAEDCS, IgnoresForceComponentsBeyondTheThird)
{
    CAEDCS section;
    section.readJson(json(R"({"domaincondition": {"DCs": [{"obj_id": 5, "bforce": [1, 2, 3, 4, 5]}]}})"));
    EXPECT_THAT(section.domains.at(5)->bforce, ElementsAre(1.0, 2.0, 3.0));
}

TEST(CAEDCS, WritesAFreshContactWithItsDefaults)
{
    CAEDCS section;
    section.addContact(8, std::make_unique<ContactEntry>(8));
    const Json::Value document = written(section);
    ASSERT_EQ(document["connections"].getMemberNames(), Json::Value::Members{"contacts"});
    const Json::Value& contact = document["connections"]["contacts"][0];
    EXPECT_EQ(contact["obj_id"], 8U);
    EXPECT_EQ(contact["contact_type"], "undefined");
    EXPECT_EQ(contact["friction_coeff"], 0.1);
    EXPECT_EQ(contact["friction_stiffness"], 1.0);
    EXPECT_EQ(contact["formulation"], "sLagrange");
    EXPECT_EQ(contact["finite_sliding"], false);
    EXPECT_EQ(contact.size(), 6U);
}

TEST(ContactEntry, SaysItsSlidingInTheSolversWord)
{
    ContactEntry contact(8);
    EXPECT_STREQ(contact.getSlidingText(), "SSLID");
    EXPECT_FALSE(contact.getFiniteSliding());
    contact.setFiniteSliding(true);
    EXPECT_STREQ(contact.getSlidingText(), "FSLID");
    EXPECT_EQ(contact.getContactType(), "undefined");
    EXPECT_EQ(contact.getFormulation(), "sLagrange");
    EXPECT_THAT(contact.solverParameters, ElementsAre(1e-5, 0.001, 1000.0, 1000.0));
}

TEST(CAEDCS, ReadsBackWhatItWrote)
{
    CAEDCS section;
    section.addDomain(9, makeDomain("Shell"));
    section.addDomain(3, makeDomain("Solid"));
    auto contact = std::make_unique<ContactEntry>(8);
    contact->contact_type = "Frictional";
    contact->friction_coeff = 0.3;
    contact->setFiniteSliding(true);
    section.addContact(8, std::move(contact));
    const Json::Value document = written(section);
    EXPECT_EQ(document["domaincondition"]["DCs"][0]["obj_id"], 3U);
    CAEDCS read;
    read.readJson(document);
    EXPECT_EQ(written(read), document);
}

TEST(CAEDCS, KeepsTheLaterOfTwoElementsWithOneId)
{
    CAEDCS section;
    section.readJson(json(R"({
        "domaincondition": {"DCs": [{"obj_id": 1, "topo": "first"}, {"obj_id": 1, "topo": "second"}]},
        "connections": {"contacts": [{"obj_id": 2, "formulation": "first"}, {"obj_id": 2, "formulation": "second"}]}})"));
    ASSERT_THAT(section.domains, SizeIs(1));
    ASSERT_THAT(section.contacts, SizeIs(1));
    EXPECT_EQ(section.domains.at(1)->topo, "second");
    EXPECT_EQ(section.contacts.at(2)->formulation, "second");
}

TEST(CAEDCS, KeepsTheDomainsBeforeTheOneThatCannotBeRead)
{
    CAEDCS section;
    EXPECT_THROW(
        section.readJson(json(R"({"domaincondition": {"DCs": [{"obj_id": 1}, {"obj_id": 2, "bforce": ["x"]}]}})")),
        Json::LogicError);
    EXPECT_THAT(section.domains, SizeIs(1));
    EXPECT_THROW(section.readJson(json(R"({"connections": {"contacts": [{"obj_id": 1}, {"obj_id": "x"}]}})")),
                 Json::LogicError);
    EXPECT_THAT(section.contacts, SizeIs(1));
}

TEST(CAEDCS, CountsAnyKindButZeroAsNonlinear)
{
    CAEDCS section;
    section.addDomain(1, makeDomain("Solid"));
    EXPECT_FALSE(section.hasNonlinearMaterial());
    section.addDomain(2, makeDomain("Solid"));
    for (const int kind : {2, 11, 12, 15, 16, 20, 22, 99}) {
        section.getDomainMaterial(2)->kind = kind;
        EXPECT_TRUE(section.hasNonlinearMaterial()) << kind;
    }
}

TEST(CAEDCS, CountsThreeKindsAsCreepOrViscous)
{
    CAEDCS section;
    section.addDomain(2, makeDomain("Solid"));
    for (const int kind : {2, 20, 22}) {
        section.getDomainMaterial(2)->kind = kind;
        EXPECT_TRUE(section.hasCreepOrViscousMaterial()) << kind;
    }
    for (const int kind : {0, 11, 12, 15, 16}) {
        section.getDomainMaterial(2)->kind = kind;
        EXPECT_FALSE(section.hasCreepOrViscousMaterial()) << kind;
    }
}

} // namespace
