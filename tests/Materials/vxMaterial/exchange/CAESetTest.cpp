#include "vxMaterial/exchange/CAESet.h"

#include "ExchangeTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using vxCAE::CAESet;
using vxtest::json;
using vxtest::makeEntry;
using vxtest::written;

/// Returns an analysis set with one domain whose material has a kind.
std::unique_ptr<CAESet> withDomainKind(int kind)
{
    auto set = std::make_unique<CAESet>(3, 1);
    set->system->setAnalysisType(1);
    set->domainConditions->addDomain(1, std::make_unique<vxCAE::DomainEntry>());
    set->domainConditions->getDomainMaterial(1)->kind = kind;
    return set;
}

void addContact(CAESet& set)
{
    set.domainConditions->addContact(5, std::make_unique<vxCAE::ContactEntry>(5));
}

TEST(ProjectKind, IsReadFromADocumentOfAnyKind)
{
    EXPECT_EQ(vxCAE::readProjectKind(json(R"({"proj_type": 2})")), 2U);
    EXPECT_EQ(vxCAE::readProjectKind(json(R"({"proj_type": 1.0})")), 1U);
    for (const char* const document :
         {"{}", "[]", "7", R"({"proj_type": "2"})", R"({"proj_type": -1})", R"({"proj_type": []})"})
        EXPECT_EQ(vxCAE::readProjectKind(json(document)), 0U) << document;
}

TEST(CAESet, CreatesAllEightSections)
{
    const CAESet set(3, 2);
    EXPECT_EQ(set.projectId, 3U);
    EXPECT_EQ(set.projectKind, 2U);
    const std::pair<int, const char*> sections[] = {{1, "CAESystem"}, {3, "CAEMesh"},  {4, "CAEBCS"},
                                                    {5, "CAEDCS"},    {6, "CAEICS"},   {7, "CAEMaterials"},
                                                    {8, "CAESolve"},  {9, "CAEResult"}};
    for (const auto& [index, name] : sections) {
        ASSERT_NE(set.getSection(index), nullptr) << index;
        EXPECT_STREQ(set.getSection(index)->typeName(), name);
    }
    EXPECT_EQ(set.getSection(7), set.materials.get());
}

TEST(CAESet, HasNoSectionUnderZeroTwoAndOtherNumbers)
{
    const CAESet set(3, 2);
    for (const int index : {0, 2, 10, -1, 2147483647})
        EXPECT_EQ(set.getSection(index), nullptr) << index;
}

/// The calls of the sections of a set, in order.
struct Log
{
    std::vector<std::string> written;
    std::vector<std::string> read;
    std::vector<std::string> destroyed;
};

/// A section that logs its calls.
template <class Section>
class Watched : public Section
{
public:
    Watched(Log& log) : m_log(log) {}
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;
    ~Watched() override { m_log.destroyed.emplace_back(Section::typeName()); }

    void writeJson(Json::Value& document) const override
    {
        m_log.written.emplace_back(Section::typeName());
        Section::writeJson(document);
    }
    void readJson(const Json::Value& document) override
    {
        m_log.read.emplace_back(Section::typeName());
        Section::readJson(document);
    }

private:
    Log& m_log;
};

/// Returns a set of a kind whose sections log their calls.
std::unique_ptr<CAESet> watchedSet(unsigned kind, Log& log)
{
    auto set = std::make_unique<CAESet>(3, kind);
    set->system = std::make_unique<Watched<vxCAE::CAESystem>>(log);
    set->materials = std::make_unique<Watched<vxCAE::CAEMaterials>>(log);
    set->mesh = std::make_unique<Watched<vxCAE::CAEMesh>>(log);
    set->boundaryConditions = std::make_unique<Watched<vxCAE::CAEBCS>>(log);
    set->domainConditions = std::make_unique<Watched<vxCAE::CAEDCS>>(log);
    set->initialConditions = std::make_unique<Watched<vxCAE::CAEICS>>(log);
    set->solve = std::make_unique<Watched<vxCAE::CAESolve>>(log);
    set->result = std::make_unique<Watched<vxCAE::CAEResult>>(log);
    return set;
}

TEST(CAESet, DestroysItsSectionsInTheOrderOfTheirMaking)
{
    Log log;
    watchedSet(1, log).reset();
    EXPECT_THAT(log.destroyed, ElementsAre("CAESystem", "CAEMesh", "CAEBCS", "CAEDCS", "CAEICS", "CAEMaterials",
                                           "CAESolve", "CAEResult"));
}

TEST(CAESet, DestroysTheOtherSectionsInOrderWhereOneIsMissing)
{
    Log log;
    auto set = watchedSet(1, log);
    set->mesh = nullptr;
    log = {};
    set.reset();
    EXPECT_THAT(log.destroyed,
                ElementsAre("CAESystem", "CAEBCS", "CAEDCS", "CAEICS", "CAEMaterials", "CAESolve", "CAEResult"));
}

TEST(CAESet, WritesAndReadsTheSectionsOfAnAnalysisInTheSameOrder)
{
    Log log;
    const auto set = watchedSet(1, log);
    const Json::Value document = written(*set);
    set->readJson(document);
    EXPECT_THAT(log.written,
                ElementsAre("CAESystem", "CAEDCS", "CAEMesh", "CAEICS", "CAEBCS", "CAESolve", "CAEResult"));
    EXPECT_EQ(log.read, log.written);
}

TEST(CAESet, WritesAndReadsNoOtherSectionOfAMaterialProject)
{
    Log log;
    const auto set = watchedSet(2, log);
    set->readJson(written(*set));
    EXPECT_THAT(log.written, ElementsAre("CAEMaterials"));
    EXPECT_THAT(log.read, ElementsAre("CAEMaterials"));
}

TEST(CAESet, WritesTheMaterialsOfAMaterialProjectAlone)
{
    CAESet set(3, 2);
    EXPECT_EQ(written(set), json(R"({"proj_type": 2})"));
    set.materials->addMaterial(1, makeEntry({}));
    EXPECT_EQ(written(set).getMemberNames(), (Json::Value::Members{"material", "proj_type"}));
}

TEST(CAESet, WritesEverythingButTheMaterialsOfAnAnalysisProject)
{
    CAESet set(3, 1);
    set.materials->addMaterial(1, makeEntry({{4, 7850.0}}));
    const Json::Value document = written(set);
    EXPECT_EQ(document["proj_type"], 1);
    EXPECT_EQ(document.getMemberNames(),
              (Json::Value::Members{"boundarycondition", "connections", "domaincondition", "initialcondition", "mesh",
                                    "proj_type", "result", "solve", "system"}));
}

TEST(CAESet, WritesAndReadsNothingForAnotherKind)
{
    for (const unsigned kind : {0U, 3U}) {
        CAESet set(3, kind);
        set.materials->addMaterial(1, makeEntry({}));
        EXPECT_TRUE(written(set).empty()) << kind;
        set.readJson(json(R"({"proj_type": 2, "material": [{"mat_id": 9}], "system": {"dim": 3}})"));
        EXPECT_THAT(set.materials->entries, SizeIs(1));
        EXPECT_EQ(set.system->dim, 0);
    }
}

TEST(CAESet, ReadsByItsOwnKindAndNotByTheDocuments)
{
    const Json::Value document = json(R"({"proj_type": 1, "material": [{"mat_id": 9}], "system": {"dim": 3}})");
    CAESet materials(3, 2);
    materials.readJson(document);
    EXPECT_THAT(materials.materials->entries, SizeIs(1));
    EXPECT_EQ(materials.system->ambient_temp, 22.3);

    CAESet analysis(3, 1);
    analysis.readJson(document);
    EXPECT_THAT(analysis.materials->entries, IsEmpty());
    EXPECT_EQ(analysis.system->dim, 3);
    EXPECT_EQ(analysis.result->rst_fname, "");
}

TEST(CAESet, ReadsBackAnAnalysisApartFromItsDeformType)
{
    CAESet set(3, 1);
    set.system->time_inte = "Explicit";
    set.system->deform_type = 1;
    set.mesh->wmesh_ids = {4};
    set.solve->solver = "direct";
    set.boundaryConditions->addCondition(std::make_unique<vxCAE::CAEBC>(2, "Fixed", 1, 3));
    set.initialConditions->addCondition(std::make_unique<vxCAE::CAEIC>());
    set.domainConditions->addDomain(4, std::make_unique<vxCAE::DomainEntry>());
    addContact(set);
    Json::Value document = written(set);
    CAESet read(3, 1);
    read.readJson(document);
    document["system"]["deform_type"] = 0;
    EXPECT_EQ(written(read), document);
}

TEST(CAESet, ReadsItsSectionsInOrderAndKeepsThoseReadBeforeOneThatFails)
{
    // System, domains, mesh, initial conditions, boundary conditions, solve, result; the mesh cannot be read.
    CAESet set(3, 1);
    const Json::Value document = json(R"({"system": {"dim": 3}, "domaincondition": {"DCs": [{"obj_id": 1}]},
        "mesh": {"n_nodes": "many"}, "initialcondition": {"ICs": [{"obj_id": 1}]},
        "boundarycondition": {"BCs": [{"obj_id": 1}]}, "solve": {"solver": "s"}, "result": {"rst_path": "p"}})");
    EXPECT_THROW(set.readJson(document), Json::LogicError);
    EXPECT_EQ(set.system->dim, 3);
    EXPECT_THAT(set.domainConditions->domains, SizeIs(1));
    EXPECT_EQ(set.mesh->mesh_fname, "undefined.vxmsh");
    EXPECT_THAT(set.initialConditions->conditions, IsEmpty());
    EXPECT_THAT(set.boundaryConditions->conditions, IsEmpty());
    EXPECT_EQ(set.solve->solver, "");
    EXPECT_EQ(set.solve->solver_method, "UnknownSolver");
    EXPECT_EQ(set.result->rst_path, "");
}

TEST(CAESet, ToleratesMissingSectionsWhenWritingAndReading)
{
    CAESet set(3, 1);
    set.mesh = nullptr;
    EXPECT_FALSE(written(set).isMember("mesh"));
    EXPECT_NO_THROW(set.readJson(json(R"({"mesh": {"mesh_dim": "x"}})")));
}

TEST(CAESet, ForwardsWhatTheSystemSays)
{
    CAESet set(3, 1);
    set.system->setPhysicsAndAnalysis(2, 4);
    set.system->solver_form = 6;
    set.system->deform_type = 1;
    set.system->dim = 3;
    set.system->cal_stress = true;
    EXPECT_EQ(set.getPhysicsAndAnalysis().physics, 2);
    EXPECT_EQ(set.getPhysicsAndAnalysis().analysis, 4);
    EXPECT_EQ(set.getSolverForm(), 6);
    EXPECT_EQ(set.getDeformType(), 1);
    EXPECT_EQ(set.getDimension(), 3);
    EXPECT_TRUE(set.getCalculateStress());
}

TEST(CAESet, LeavesModalSettingsAndModesAloneWithoutASystem)
{
    CAESet set(3, 1);
    unsigned eigenvalues = 1;
    double tolerance = 2.0;
    unsigned limit = 3;
    unsigned first = 4;
    unsigned last = 6;
    const auto ask = [&] {
        set.getModalSettings(eigenvalues, tolerance, limit);
        set.getSpectrumModes(first, last);
    };
    auto system = std::move(set.system);
    ask();
    EXPECT_EQ(eigenvalues, 1U);
    EXPECT_EQ(tolerance, 2.0);
    EXPECT_EQ(limit, 3U);
    EXPECT_EQ(first, 4U);
    EXPECT_EQ(last, 6U);
    set.system = std::move(system);
    ask();
    EXPECT_EQ(eigenvalues, 5U);
    EXPECT_EQ(tolerance, 1e-8);
    EXPECT_EQ(limit, 60U);
    EXPECT_EQ(first, 1U);
    EXPECT_EQ(last, 5U);
}

TEST(CAESet, FallsBackWithoutAResultSection)
{
    CAESet set(3, 1);
    set.result->output_time_log = true;
    set.result->output_freq = 7;
    set.result->monitor_trans = true;
    bool timeLog = false;
    bool iterationLog = true;
    set.getLogFlags(timeLog, iterationLog);
    EXPECT_TRUE(timeLog);
    EXPECT_FALSE(iterationLog);
    EXPECT_EQ(set.getOutputFrequency(), 7U);
    EXPECT_TRUE(set.getMonitorTransient());

    set.result = nullptr;
    set.getLogFlags(timeLog, iterationLog);
    EXPECT_TRUE(timeLog);
    EXPECT_FALSE(iterationLog);
    EXPECT_EQ(set.getOutputFrequency(), 1U);
    EXPECT_FALSE(set.getMonitorTransient());
}

TEST(CAESet, CopiesTheColumnsOfTheLoadStepTable)
{
    CAESet set(3, 1);
    EXPECT_THAT(set.getAutoTiming(), ElementsAre(true));
    EXPECT_THAT(set.getSubsteps(), ElementsAre(25));
    EXPECT_THAT(set.getTimeIncrements(), ElementsAre(1.0));
    set.solve = nullptr;
    EXPECT_THAT(set.getAutoTiming(), IsEmpty());
    EXPECT_THAT(set.getSubsteps(), IsEmpty());
    EXPECT_THAT(set.getTimeIncrements(), IsEmpty());
}

TEST(ThermalLabel, IsHeatForAThermalAnalysisOnly)
{
    CAESet set(3, 1);
    EXPECT_STREQ(set.getThermalLabel(), "Unknown");
    set.system->setPhysicsType(2);
    EXPECT_STREQ(set.getThermalLabel(), "HEAT");
    set.system = nullptr;
    EXPECT_STREQ(set.getThermalLabel(), "Unknown");
}

TEST(AnalysisLabel, FollowsTheAnalysisType)
{
    CAESet set(3, 1);
    const std::pair<int, const char*> labels[] = {
        {0, "Unknown"}, {1, "STATIC"}, {2, "Dynamic"}, {3, "Eigen"}, {5, "Unknown"}};
    for (const auto& [type, label] : labels) {
        set.system->setAnalysisType(type);
        EXPECT_STREQ(set.getAnalysisLabel(), label) << type;
    }
    set.system = nullptr;
    EXPECT_STREQ(set.getAnalysisLabel(), "Unknown");
}

TEST(AnalysisLabel, CallsASpectrumResponseDynamic)
{
    CAESet set(3, 1);
    set.system->setAnalysisType(4);
    EXPECT_STREQ(set.getAnalysisLabel(), "Dynamic");
}

TEST(AnalysisLabel, IsNonlinearStaticByContactDeformationOrMaterial)
{
    EXPECT_STREQ(withDomainKind(0)->getAnalysisLabel(), "STATIC");
    EXPECT_STREQ(withDomainKind(12)->getAnalysisLabel(), "NLSTATIC");

    auto contactInSystem = withDomainKind(0);
    contactInSystem->system->has_contact = true;
    EXPECT_STREQ(contactInSystem->getAnalysisLabel(), "NLSTATIC");

    auto largeDeformation = withDomainKind(0);
    largeDeformation->system->deform_type = 1;
    EXPECT_STREQ(largeDeformation->getAnalysisLabel(), "NLSTATIC");

    auto contact = withDomainKind(0);
    addContact(*contact);
    EXPECT_STREQ(contact->getAnalysisLabel(), "NLSTATIC");

    auto withoutDomains = withDomainKind(12);
    withoutDomains->domainConditions = nullptr;
    EXPECT_STREQ(withoutDomains->getAnalysisLabel(), "STATIC");
}

TEST(SolverFamily, IsExplicitForTheWordSpelledExactlySo)
{
    CAESet set(3, 1);
    EXPECT_EQ(set.getSolverFamily(), 1);
    set.system->time_inte = "Explicit";
    EXPECT_EQ(set.getSolverFamily(), 11);
    for (const char* const word : {"explicit", "EXPLICIT", "Explicit ", "Implicit"}) {
        set.system->time_inte = word;
        EXPECT_EQ(set.getSolverFamily(), 1) << word;
    }
    set.system = nullptr;
    EXPECT_EQ(set.getSolverFamily(), 1);
}

TEST(Nonlinear, AsksSystemAndMaterialsButNotContactsBetweenDomains)
{
    auto set = withDomainKind(0);
    addContact(*set);
    EXPECT_FALSE(set->isNonlinear());
    set->system->has_contact = true;
    EXPECT_TRUE(set->isNonlinear());
    set = withDomainKind(16);
    EXPECT_TRUE(set->isNonlinear());
    set->system = nullptr;
    EXPECT_FALSE(set->isNonlinear());
    set = withDomainKind(16);
    set->domainConditions = nullptr;
    EXPECT_FALSE(set->isNonlinear());
}

TEST(CreepOrViscousMaterial, IsAssumedWithoutASystem)
{
    auto set = withDomainKind(0);
    EXPECT_FALSE(set->hasCreepOrViscousMaterial());
    set->system = nullptr;
    EXPECT_TRUE(set->hasCreepOrViscousMaterial());
}

TEST(CreepOrViscousMaterial, IsThatOfThreeKinds)
{
    for (const int kind : {2, 20, 22})
        EXPECT_TRUE(withDomainKind(kind)->hasCreepOrViscousMaterial()) << kind;
    EXPECT_FALSE(withDomainKind(12)->hasCreepOrViscousMaterial());
    auto set = withDomainKind(22);
    set->domainConditions = nullptr;
    EXPECT_FALSE(set->hasCreepOrViscousMaterial());
}

TEST(Contacts, AreAssumedWithoutASystemAndNotWithoutDomains)
{
    CAESet set(3, 1);
    EXPECT_FALSE(set.hasContacts());
    addContact(set);
    EXPECT_TRUE(set.hasContacts());
    set.domainConditions = nullptr;
    EXPECT_FALSE(set.hasContacts());
    set.system = nullptr;
    EXPECT_TRUE(set.hasContacts());
}

TEST(LoadStep, IsClearedWithoutASolveSection)
{
    CAESet set(3, 1);
    int substeps = -1;
    double tolerance = -1.0;
    int iterations = -1;
    set.getLoadStep(1, substeps, tolerance, iterations);
    EXPECT_EQ(substeps, 25);
    EXPECT_EQ(tolerance, 1e-8);
    EXPECT_EQ(iterations, 25);
    set.solve = nullptr;
    iterations = -1;
    set.getLoadStep(1, substeps, tolerance, iterations);
    EXPECT_EQ(substeps, 0);
    EXPECT_EQ(tolerance, 0.0);
    EXPECT_EQ(iterations, -1);
}

TEST(Tags, NameProjectAndObjectOrAnError)
{
    CAESet set(3, 1);
    set.mesh->obj_id = 12;
    set.system->solution_id = 4294967295U;
    EXPECT_EQ(set.getMeshTag(), "p3o12");
    EXPECT_EQ(set.getSolutionTag(), "p3o4294967295");
    set.mesh = nullptr;
    set.system = nullptr;
    EXPECT_EQ(set.getMeshTag(), "error");
    EXPECT_EQ(set.getSolutionTag(), "error");
}

} // namespace
