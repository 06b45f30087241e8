#include "Obj/Project.h"

#include "HostTesting.h"
#include "ObjTesting.h"

#include <QTemporaryDir>
#include <boost/signals2/connection.hpp>

#include <algorithm>
#include <random>
#include <set>

namespace {

using Obj::Project;
using Obj::ProjectObject;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using vxtest::Assembly;
using vxtest::namesOf;
using vxtest::Part;
using vxtest::slotOf;

constexpr std::uint64_t lastId = 4294967295;

class ProjectTest : public vxtest::ObjTest
{
protected:
    std::vector<std::string> names() const { return namesOf(m_assembly.getObjects()); }
    std::vector<std::uint32_t> ids() const
    {
        std::vector<std::uint32_t> ids;
        for (const ProjectObject* const object : m_assembly.getObjects())
            ids.push_back(object->getObjectId());
        return ids;
    }

    Assembly& m_assembly = addAssembly();
};

TEST_F(ProjectTest, GivesAnObjectIdNameAndLabel)
{
    Part& part = m_assembly.addPart("Bolt");
    EXPECT_EQ(part.getObjectId(), 1U);
    EXPECT_EQ(part.id.getValue(), 1);
    EXPECT_STREQ(part.get_name_in_project(), "Bolt");
    EXPECT_EQ(part.label.getValue(), "Bolt");
    EXPECT_EQ(part.get_project(), &m_assembly);
    EXPECT_EQ(m_assembly.addPart("Nut").getObjectId(), 2U);
}

TEST_F(ProjectTest, FindsObjectsByIdAndByName)
{
    Part& part = m_assembly.addPart("Bolt");
    EXPECT_EQ(m_assembly.get_object(1U), &part);
    EXPECT_EQ(m_assembly.get_object("Bolt"), &part);
    EXPECT_EQ(m_assembly.get_object(0U), nullptr);
    EXPECT_EQ(m_assembly.get_object(2U), nullptr);
    EXPECT_EQ(m_assembly.get_object(""), nullptr);
    EXPECT_EQ(m_assembly.get_object("bolt"), nullptr);
}

TEST_F(ProjectTest, MakesANameUniqueThatIsTakenOrEmpty)
{
    m_assembly.addPart("Bolt");
    m_assembly.addPart("Bolt");
    m_assembly.addPart("");
    m_assembly.addPart("Bolt");
    m_assembly.addPart("");
    EXPECT_THAT(names(), ElementsAre("Bolt", "Bolt1", "Object", "Bolt2", "Object1"));
    EXPECT_EQ(m_assembly.get_unique_object_name("Bolt"), "Bolt3");
    EXPECT_EQ(m_assembly.get_unique_object_name("Bolt"), "Bolt4") << "each name is returned once";
}

TEST_F(ProjectTest, TakesAnyTextAsAName)
{
    for (const std::string& name : {std::string(10000, 'x'), std::string("钢"), std::string("%1 %n")}) {
        Part& part = m_assembly.addPart(name);
        EXPECT_EQ(part.get_name_in_project(), name);
        EXPECT_EQ(m_assembly.get_object(name), &part);
        EXPECT_EQ(part.label.getValue(), name);
    }
}

TEST_F(ProjectTest, LeavesTheNameWhenTheLabelIsEdited)
{
    Part& part = m_assembly.addPart("Bolt");
    part.label.setValue("");
    EXPECT_STREQ(part.get_name_in_project(), "Bolt");
    EXPECT_EQ(m_assembly.get_object("Bolt"), &part);
    part.label.setValue(std::string(10000, 'x'));
    Json::Value record;
    part.save_jsonDB(record);
    EXPECT_EQ(record["label"].asString().size(), 10000U);
}

TEST_F(ProjectTest, AddsNothingOfAClassThatIsNotRegisteredOrNoObject)
{
    const vxtest::Reports reports;
    EXPECT_EQ(m_assembly.add_object("Test::Nobody", "a"), nullptr);
    EXPECT_EQ(m_assembly.add_object(nullptr, "a"), nullptr);
    EXPECT_EQ(m_assembly.add_object("vxtest::Assembly", "a"), nullptr);
    EXPECT_EQ(m_assembly.add_object("Obj::ProjectObject", "a"), nullptr) << "a class that creates no objects";
    EXPECT_EQ(reports.errors(), 4);
    EXPECT_THAT(reports.text(), HasSubstr("No object of class \"Test::Nobody\" was added to the project \"Assembly\": "
                                          "this class is not known."));
    EXPECT_THAT(reports.text(), HasSubstr("this is not a class of objects of a project"));
    EXPECT_THAT(reports.text(), HasSubstr("the class cannot create objects"));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(m_assembly.addPart().getObjectId(), 1U);
}

TEST_F(ProjectTest, IsUnchangedWhenAConstructorThrows)
{
    Part::hooks().constructorThrows = true;
    EXPECT_THROW(m_assembly.add_object("vxtest::Part", "a"), std::runtime_error);
    EXPECT_THROW(m_assembly.add_object("vxtest::Part", "a", 5), std::runtime_error);
    Part::hooks().constructorThrows = false;
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(m_assembly.addPart("a").getObjectId(), 1U);
}

TEST_F(ProjectTest, TakesAnObjectBackThatCannotBeConfigured)
{
    int told = 0;
    m_assembly.objectAdded.connect([&told](ProjectObject&) { ++told; });
    Part::hooks().configuringThrows = true;
    EXPECT_THROW(m_assembly.add_object("vxtest::Part", "a"), std::runtime_error);
    EXPECT_EQ(told, 0);
    EXPECT_EQ(Part::count(), 0);
    EXPECT_EQ(m_assembly.get_object("a"), nullptr);
    Part::hooks().configuringThrows = false;
    EXPECT_EQ(m_assembly.addPart("a").getObjectId(), 2U) << "the id has been used";
}

TEST_F(ProjectTest, ConfiguresAnObjectBeforeListenersAreNotified)
{
    m_assembly.objectAdded.connect([](ProjectObject&) { Part::hooks().calls.emplace_back("told"); });
    m_assembly.addPart("a");
    EXPECT_THAT(Part::hooks().calls, testing::Contains("configuring a"));
    EXPECT_EQ(Part::hooks().calls.back(), "told");
}

TEST_F(ProjectTest, NeverUsesTheIdOfADeletedObjectAgain)
{
    m_assembly.addPart("a");
    m_assembly.addPart("b");
    EXPECT_TRUE(m_assembly.removeObject(2));
    EXPECT_EQ(m_assembly.addPart("c").getObjectId(), 3U);
    const vxtest::Reports reports;
    EXPECT_EQ(m_assembly.add_object("vxtest::Part", "d", 2), nullptr) << "not even by number";
    EXPECT_EQ(m_assembly.add_object("vxtest::Part", "d", 1), nullptr);
    EXPECT_EQ(reports.errors(), 2);
    EXPECT_EQ(m_assembly.getNextObjectId(), 4U);
}

TEST_F(ProjectTest, TakesIdsThatNoObjectHadInAnyOrder)
{
    for (const std::uint64_t id : {7U, 3U, 5U, 1U, 6U, 4U, 2U, 20U, 19U, 9U}) {
        ASSERT_NE(m_assembly.add_object("vxtest::Part", std::to_string(id), id), nullptr) << id;
        EXPECT_EQ(m_assembly.add_object("vxtest::Part", "again" + std::to_string(id), id), nullptr) << id;
    }
    EXPECT_THAT(ids(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 9, 19, 20)) << "in the order of their ids";
    EXPECT_EQ(m_assembly.addPart("next").getObjectId(), 21U);
    for (const std::uint64_t id : {8U, 10U, 14U, 18U})
        EXPECT_NE(m_assembly.add_object("vxtest::Part", std::to_string(id), id), nullptr) << id;
}

TEST_F(ProjectTest, TakesEachIdOnceHoweverTheyComeAndGo)
{
    std::mt19937 random(1);
    std::uniform_int_distribution<std::uint64_t> someId(1, 300);
    std::set<std::uint64_t> used;
    const vxtest::Reports reports;
    for (int i = 0; i < 2000; ++i) {
        const std::uint64_t id = someId(random);
        const bool added = m_assembly.add_object("vxtest::Part", "p" + std::to_string(i), id) != nullptr;
        EXPECT_EQ(added, used.insert(id).second) << id;
        if (added && i % 3 == 0)
            m_assembly.removeObject(static_cast<std::uint32_t>(id));
        if (i % 50 == 0)
            used.insert(m_assembly.addPart("q" + std::to_string(i)).getObjectId());
    }
}

TEST_F(ProjectTest, FindsObjectsByIdsThatLeaveGapsOfEveryWidth)
{
    std::vector<std::uint64_t> given{4294967295, 1, 5000, 900, 2900, 4000, 5500, 1000000, 20000, 7};
    for (const std::uint64_t id : given)
        ASSERT_NE(m_assembly.add_object("vxtest::Part", std::to_string(id), id), nullptr);
    for (const std::uint64_t id : given) {
        const ProjectObject* const object = m_assembly.get_object(static_cast<std::uint32_t>(id));
        ASSERT_NE(object, nullptr) << id;
        EXPECT_EQ(object->getObjectId(), id);
    }
    for (const std::uint64_t id : {0U, 2U, 899U, 4999U, 5001U, 5501U, 4294967294U})
        EXPECT_EQ(m_assembly.get_object(static_cast<std::uint32_t>(id)), nullptr) << id;
    EXPECT_TRUE(m_assembly.removeObject(5000));
    EXPECT_EQ(m_assembly.get_object(5000U), nullptr);
}

TEST_F(ProjectTest, RefusesIdsBeyond32Bits)
{
    const vxtest::Reports reports;
    EXPECT_EQ(m_assembly.add_object("vxtest::Part", "a", 4294967296), nullptr);
    EXPECT_EQ(m_assembly.add_object("vxtest::Part", "a", 4294967297), nullptr) << "it must not be cut to 1";
    EXPECT_EQ(m_assembly.add_object("vxtest::Part", "a", 0), nullptr);
    EXPECT_EQ(reports.errors(), 3);
    EXPECT_THAT(reports.text(), HasSubstr("\"a\""));
    EXPECT_THAT(reports.text(), HasSubstr("4294967296"));
    EXPECT_THAT(names(), IsEmpty());
    const ProjectObject* const last = m_assembly.add_object("vxtest::Part", "last", lastId);
    ASSERT_NE(last, nullptr);
    EXPECT_EQ(last->getObjectId(), 4294967295U);
    EXPECT_EQ(last->id.getValue(), 4294967295);
}

TEST_F(ProjectTest, AddsNothingWhenAllIdsAreUsedUp)
{
    m_assembly.skipObjectIds(lastId);
    EXPECT_EQ(m_assembly.addPart("last").getObjectId(), lastId);
    const vxtest::Reports reports;
    EXPECT_EQ(m_assembly.add_object("vxtest::Part", "more"), nullptr);
    EXPECT_THAT(reports.text(), HasSubstr("all ids are used up"));
    EXPECT_TRUE(m_assembly.removeObject(4294967295U));
    EXPECT_EQ(m_assembly.add_object("vxtest::Part", "more"), nullptr) << "also if an id is free again";
    EXPECT_NE(m_assembly.add_object("vxtest::Part", "more", 17), nullptr) << "a skipped id can be requested";
}

TEST_F(ProjectTest, LeavesOutIds)
{
    m_assembly.skipObjectIds(10);
    m_assembly.skipObjectIds(5);
    EXPECT_EQ(m_assembly.getNextObjectId(), 10U);
    EXPECT_EQ(m_assembly.addPart("a").getObjectId(), 10U);
    EXPECT_NE(m_assembly.add_object("vxtest::Part", "b", 9), nullptr) << "a skipped id can be requested, as by a file";
}

TEST_F(ProjectTest, RefusesANameThatIsTakenOrEmptyForAnObjectWithAnId)
{
    m_assembly.addPart("a");
    const vxtest::Reports reports;
    EXPECT_EQ(m_assembly.add_object("vxtest::Part", "a", 5), nullptr);
    EXPECT_EQ(m_assembly.add_object("vxtest::Part", "", 5), nullptr);
    EXPECT_EQ(m_assembly.add_object("Test::Nobody", "b", 5), nullptr);
    EXPECT_EQ(reports.errors(), 3);
    EXPECT_NE(m_assembly.add_object("vxtest::Part", "b", 5), nullptr) << "the id is still free";
}

TEST_F(ProjectTest, GivesAnObjectAwayAndTakesItBackAtItsPlace)
{
    m_assembly.addPart("a");
    Part& b = m_assembly.addPart("b");
    m_assembly.addPart("c");
    b.label.setValue("the second");
    std::vector<std::string> told;
    m_assembly.objectRemoved.connect([&](ProjectObject& object) {
        told.emplace_back(object.get_name_in_project());
        EXPECT_EQ(object.get_project(), nullptr);
        EXPECT_EQ(m_assembly.get_object(2U), nullptr);
    });
    Obj::OwnedObject away = m_assembly.takeObject(2);
    EXPECT_EQ(away.get(), &b);
    EXPECT_THAT(told, ElementsAre("b"));
    EXPECT_THAT(names(), ElementsAre("a", "c"));
    EXPECT_EQ(m_assembly.get_object("b"), nullptr);
    EXPECT_EQ(m_assembly.takeObject(2), nullptr);
    EXPECT_FALSE(m_assembly.removeObject(2));

    EXPECT_EQ(m_assembly.restoreObject(std::move(away)), &b);
    EXPECT_THAT(names(), ElementsAre("a", "b", "c"));
    EXPECT_EQ(m_assembly.get_object("b"), &b);
    EXPECT_EQ(b.get_project(), &m_assembly);
    EXPECT_EQ(b.label.getValue(), "the second");
    EXPECT_EQ(Part::hooks().calls.back(), "restored b");
}

TEST_F(ProjectTest, GivesAnObjectAUniqueNameWhenItsOwnHasBeenTakenMeanwhile)
{
    Part& first = m_assembly.addPart("Bolt");
    Obj::OwnedObject away = m_assembly.takeObject(1);
    Part& second = m_assembly.addPart("Bolt");
    const vxtest::Reports reports;
    ASSERT_EQ(m_assembly.restoreObject(std::move(away)), &first);
    EXPECT_EQ(reports.warnings(), 1);
    EXPECT_THAT(reports.text(), HasSubstr("\"Bolt\" was restored as \"Bolt1\""));
    EXPECT_EQ(m_assembly.get_object("Bolt"), &second);
    EXPECT_EQ(m_assembly.get_object("Bolt1"), &first);
    EXPECT_TRUE(m_assembly.removeObject(1));
    EXPECT_EQ(m_assembly.get_object("Bolt"), &second);
}

TEST_F(ProjectTest, RestoresOnlyItsOwnObjects)
{
    Assembly& other = addAssembly("other");
    for (const char* const name : {"a", "b", "c"})
        other.addPart(name);
    m_assembly.addPart("mine");
    m_assembly.addPart("away");
    const Obj::OwnedObject away = m_assembly.takeObject(2);
    const vxtest::Reports reports;
    EXPECT_EQ(m_assembly.restoreObject(other.takeObject(1)), nullptr) << "its id is taken here";
    EXPECT_EQ(m_assembly.restoreObject(other.takeObject(2)), nullptr) << "its id is free here";
    EXPECT_EQ(m_assembly.restoreObject(other.takeObject(3)), nullptr) << "no object has had its id here";
    EXPECT_EQ(m_assembly.restoreObject(std::make_unique<Part>()), nullptr) << "it has never been in a project";
    EXPECT_EQ(m_assembly.restoreObject(nullptr), nullptr);
    EXPECT_EQ(reports.errors(), 5);
    EXPECT_THAT(names(), ElementsAre("mine"));
}

TEST_F(ProjectTest, HasAnObjectBackThatFailsWhenItComes)
{
    Part& part = m_assembly.addPart("a");
    Obj::OwnedObject away = m_assembly.takeObject(1);
    int told = 0;
    m_assembly.objectAdded.connect([&told](ProjectObject&) { ++told; });
    Part::hooks().restoredThrows = true;
    const vxtest::Reports reports;
    EXPECT_EQ(m_assembly.restoreObject(std::move(away)), &part);
    EXPECT_EQ(told, 1);
    EXPECT_THAT(reports.text(), HasSubstr("a part cannot come back"));
}

TEST_F(ProjectTest, ReturnsObjectsOfATypeAndOfDescendantsInOrder)
{
    m_assembly.addPart("a");
    m_assembly.add_object("Obj::ProjectObjectGroup", "g");
    m_assembly.addPart("b");
    EXPECT_THAT(namesOf(m_assembly.get_objects_of_type(Part::getClassTypeId())), ElementsAre("a", "b"));
    EXPECT_THAT(namesOf(m_assembly.get_objects_of_type(ProjectObject::getClassTypeId())), ElementsAre("a", "g", "b"));
    EXPECT_THAT(m_assembly.get_objects_of_type(Project::getClassTypeId()), IsEmpty());
    EXPECT_THAT(m_assembly.get_objects_of_type(Kelta::TypeInfo()), IsEmpty());
}

TEST_F(ProjectTest, LetsListenersAddAndRemoveOthers)
{
    m_assembly.objectAdded.connect([this](ProjectObject& object) {
        if (std::string(object.get_name_in_project()) == "nut")
            m_assembly.addPart("washer");
    });
    m_assembly.objectRemoved.connect([this](ProjectObject& object) {
        if (std::string(object.get_name_in_project()) == "nut")
            m_assembly.removeObject(m_assembly.get_object("washer")->getObjectId());
    });
    m_assembly.addPart("nut");
    EXPECT_THAT(names(), ElementsAre("nut", "washer"));
    m_assembly.removeObject(1);
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ProjectTest, IsClosedWhileItsObjectsAreObserved)
{
    Part& part = m_assembly.addPart("a");
    m_assembly.addPart("b").linkTo(part);
    int calls = 0;
    const auto touch = [&](ProjectObject&) {
        ++calls;
        EXPECT_EQ(m_assembly.getObjects().size(), m_assembly.getObjectCount());
    };
    const boost::signals2::scoped_connection added = m_assembly.objectAdded.connect(touch);
    const boost::signals2::scoped_connection removed = m_assembly.objectRemoved.connect(touch);
    const boost::signals2::scoped_connection changed =
        m_assembly.objectChanged.connect([&](ProjectObject& object, const Obj::Property*) { touch(object); });
    const boost::signals2::scoped_connection closed = application().projectRemoved.connect([&](Project& project) {
        // A closed project is still complete.
        EXPECT_EQ(project.get_object("a"), &part);
        part.label.setValue("last words");
    });
    EXPECT_TRUE(application().closeProject(m_assembly));
    EXPECT_EQ(calls, 1) << "one for the label, none during the destruction";
    EXPECT_FALSE(added.connected());
}

/// An object whose destructor looks for its project and its neighbours, and notifies.
class LoudPart : public ProjectObject
{
public:
    static void* create() { return static_cast<Kelta::RootClass*>(new LoudPart); }
    static inline Kelta::TypeInfo type;
    static inline int withProject = 0;
    Kelta::TypeInfo getTypeId() const override { return type; }
    ~LoudPart() override
    {
        withProject += get_project() != nullptr ? 1 : 0;
        ProjectObject::notifyChange();
        static_cast<void>(get_linked_objects());
    }
};

TEST_F(ProjectTest, IsOutOfSightOfItsObjectsWhileTheyAreDestroyed)
{
    Kelta::RootClass::initSubclass(LoudPart::type, "Test::LoudPart", "Obj::ProjectObject", &LoudPart::create);
    ProjectObject* const a = m_assembly.add_object("Test::LoudPart", "a");
    ProjectObject* const b = m_assembly.add_object("Test::LoudPart", "b");
    ASSERT_TRUE(a != nullptr && b != nullptr);
    a->linkTo(*b);
    b->linkTo(*a);
    int calls = 0;
    m_assembly.objectChanged.connect([&calls](ProjectObject&, const Obj::Property*) { ++calls; });
    EXPECT_TRUE(application().closeProject(m_assembly));
    EXPECT_EQ(LoudPart::withProject, 0);
    EXPECT_EQ(calls, 0);
}

TEST_F(ProjectTest, ComesThroughTenThousandObjectsDeletedInRandomOrderAndBroughtBack)
{
    constexpr int count = 10000;
    for (int i = 0; i < count; ++i)
        m_assembly.addPart("Part").label.setValue("label " + std::to_string(i));
    const std::vector<ProjectObject*> before = m_assembly.getObjects();
    const std::vector<std::string> namesBefore = names();
    std::vector<std::uint32_t> order = ids();
    std::mt19937 random(2);
    std::shuffle(order.begin(), order.end(), random);
    std::vector<Obj::OwnedObject> away;
    away.reserve(order.size());
    for (const std::uint32_t id : order)
        away.push_back(m_assembly.takeObject(id));
    EXPECT_EQ(m_assembly.getObjectCount(), 0U);
    for (; !away.empty(); away.pop_back())
        m_assembly.restoreObject(std::move(away.back()));
    EXPECT_EQ(m_assembly.getObjects(), before);
    EXPECT_EQ(names(), namesBefore);
    EXPECT_EQ(before[1234]->label.getValue(), "label 1234");
}

TEST_F(ProjectTest, DeterminesTheStatesOfItsObjectsAgain)
{
    Part& part = m_assembly.addPart("a");
    m_assembly.update();
    EXPECT_EQ(part.getObjectState(), Obj::eVXObjectState::Ready);
    EXPECT_EQ(m_assembly.check_input(), Obj::eVXObjectState::Initial);
    EXPECT_STREQ(m_assembly.get_viewfeeder_name(), "");
    m_assembly.collect_frontend_data();
}

TEST_F(ProjectTest, TellsOfItsOwnProperties)
{
    std::vector<const Obj::Property*> changes;
    m_assembly.changed.connect([&changes](const Obj::Property* property) { changes.push_back(property); });
    m_assembly.classLabel.setValue("Machine");
    EXPECT_THAT(changes, ElementsAre(&m_assembly.classLabel));
}

TEST_F(ProjectTest, DescribesItselfAndItsObjectsInARecord)
{
    m_assembly.addPart("a");
    m_assembly.addPart("b");
    Json::Value record;
    m_assembly.save_jsonDB(record);
    EXPECT_EQ(record["proj_id"], Json::Value(m_assembly.getProjectId()));
    EXPECT_EQ(record["name"], "Assembly");
    EXPECT_EQ(record["tag"], Json::Value(1U));
    ASSERT_EQ(record["objects"].size(), 2U);
    EXPECT_EQ(record["objects"][1]["name_internal"], "b");
    m_assembly.load_jsonDB(record);
    EXPECT_THAT(names(), ElementsAre("a", "b"));
}

// --- Listeners that remove the signal's argument ---

TEST_F(ProjectTest, ReturnsNoObjectThatAListenerHasRemoved)
{
    std::vector<std::string> told;
    m_assembly.objectAdded.connect([this](ProjectObject& object) { m_assembly.removeObject(object.getObjectId()); });
    m_assembly.objectAdded.connect([&told](ProjectObject& object) { told.emplace_back(object.get_name_in_project()); });
    EXPECT_EQ(m_assembly.add_object("vxtest::Part", "a"), nullptr);
    EXPECT_EQ(m_assembly.add_object("vxtest::Part", "b", 7), nullptr);
    EXPECT_THAT(told, ElementsAre("a", "b")) << "the next listener gets a complete object";
    EXPECT_EQ(m_assembly.getObjectCount(), 0U);
    EXPECT_EQ(Part::count(), 0);
}

TEST_F(ProjectTest, ReturnsNoObjectIfAListenerHasClosedIt)
{
    m_assembly.objectAdded.connect([this](ProjectObject&) { application().closeProject(m_assembly); });
    EXPECT_EQ(m_assembly.add_object("vxtest::Part", "a"), nullptr);
    EXPECT_EQ(Part::count(), 0);
}

TEST_F(ProjectTest, ReturnsNullIfAListenerRemovesARestoredObject)
{
    m_assembly.addPart("a");
    Obj::OwnedObject away = m_assembly.takeObject(1);
    m_assembly.objectAdded.connect([this](ProjectObject& object) { m_assembly.removeObject(object.getObjectId()); });
    EXPECT_EQ(m_assembly.restoreObject(std::move(away)), nullptr);
    EXPECT_EQ(m_assembly.add_object("vxtest::Part", "b", 1), nullptr) << "its id is still not free";
    EXPECT_EQ(Part::count(), 0);
}

/// Makes every object remove itself in one of its operations.
void removeThemselvesWhen(const std::string& operation)
{
    Part::hooks().action = [operation](ProjectObject& object, const std::string& current) {
        if (current == operation && object.get_project() != nullptr)
            object.get_project()->removeObject(object.getObjectId());
    };
}

TEST_F(ProjectTest, SurvivesObjectsThatRemoveThemselvesInTheirOwnOperations)
{
    Part& changed = m_assembly.addPart("changed");
    Part& refreshed = m_assembly.addPart("refreshed");
    m_assembly.addPart("checked");
    removeThemselvesWhen("changing");
    changed.width.setValue(0);
    EXPECT_THAT(names(), ElementsAre("refreshed", "checked"));
    removeThemselvesWhen("checking");
    refreshed.refreshProperties(true);
    EXPECT_THAT(names(), ElementsAre("checked"));
    m_assembly.update();
    EXPECT_THAT(names(), IsEmpty());
    removeThemselvesWhen("configuring");
    EXPECT_EQ(m_assembly.add_object("vxtest::Part", "configured"), nullptr);
    EXPECT_EQ(Part::count(), 0);
}

TEST_F(ProjectTest, UpdatesTheObjectsThatAreLeftWhenOneRemovesOthers)
{
    std::vector<std::string> checked;
    for (const char* const name : {"a", "b", "c", "d"})
        m_assembly.addPart(name);
    Part::hooks().action = [&](ProjectObject& object, const std::string& operation) {
        if (operation != "checking")
            return;
        checked.emplace_back(object.get_name_in_project());
        if (checked.size() == 1) {
            m_assembly.removeObject(1);
            m_assembly.removeObject(2);
            m_assembly.addPart("e");
        }
    };
    m_assembly.update();
    Part::hooks().action = nullptr;
    EXPECT_THAT(checked, ElementsAre("a", "c", "d"));
    EXPECT_THAT(names(), ElementsAre("c", "d", "e"));
}

TEST_F(ProjectTest, MayBeClosedDuringItsUpdate)
{
    m_assembly.addPart("a");
    m_assembly.addPart("b");
    m_assembly.objectChanged.connect(
        [this](ProjectObject&, const Obj::Property*) { application().closeProject(m_assembly); });
    m_assembly.update();
    EXPECT_TRUE(Obj::Application::get_projects().empty());
}

TEST_F(ProjectTest, MakesNoNameOfAnObjectThatMayBeRestored)
{
    m_assembly.addPart("Bolt");
    m_assembly.addPart("Bolt1");
    Obj::OwnedObject away = m_assembly.takeObject(2);
    EXPECT_STREQ(m_assembly.addPart("Bolt").get_name_in_project(), "Bolt2");
    const vxtest::Reports reports;
    m_assembly.restoreObject(std::move(away));
    EXPECT_EQ(reports.text(), "");
    EXPECT_THAT(names(), ElementsAre("Bolt", "Bolt1", "Bolt2"));
}

TEST_F(ProjectTest, AddsAnObjectThatCodeHasMade)
{
    auto part = std::make_unique<Part>();
    part->width.setValue(4);
    const Part& added = *part;
    EXPECT_EQ(m_assembly.add_object(std::move(part), "a"), &added);
    EXPECT_EQ(added.getObjectId(), 1U);
    const vxtest::Reports reports;
    EXPECT_EQ(m_assembly.add_object(std::make_unique<Part>(), "a", 5), nullptr) << "the name is taken";
    EXPECT_EQ(m_assembly.add_object(std::make_unique<Part>(), "b", 1), nullptr) << "the id is taken";
    EXPECT_EQ(reports.errors(), 2);
    EXPECT_EQ(Part::count(), 1);
}

TEST_F(ProjectTest, TellsItsObjectsThatTheyHaveBeenRead)
{
    m_assembly.addPart("a");
    m_assembly.addPart("b");
    Part::hooks().calls.clear();
    Part::hooks().restoredThrows = true;
    const vxtest::Reports reports;
    m_assembly.notifyRestored();
    EXPECT_THAT(Part::hooks().calls, ElementsAre("restored a", "restored b"));
    EXPECT_EQ(reports.errors(), 2);
}

TEST_F(ProjectTest, TakesTheMemoryOfItsObjectsToo)
{
    const std::size_t empty = m_assembly.get_memory_usage();
    EXPECT_GE(empty, sizeof(Assembly));
    std::size_t objects = 0;
    for (int i = 0; i < 100; ++i)
        objects += m_assembly.addPart().get_memory_usage();
    EXPECT_GE(m_assembly.get_memory_usage(), empty + objects);
    EXPECT_LT(m_assembly.get_memory_usage(), empty + 2 * objects);
}

// --- Executing objects ---

class ExecutionTest : public ProjectTest
{
protected:
    /// Returns the names of the objects that are executed now, in order.
    std::vector<std::string> executed()
    {
        std::vector<std::string> names;
        for (const auto& result : m_assembly.executeDue())
            names.push_back(result->text);
        return names;
    }
};

TEST_F(ExecutionTest, ExecutesAnObjectWhenItIsNewAndWhenItHasChanged)
{
    Part& a = m_assembly.addPart("a");
    m_assembly.addPart("b");
    EXPECT_THAT(executed(), ElementsAre("a", "b"));
    EXPECT_THAT(executed(), IsEmpty()) << "nothing has changed";
    a.width.setValue(9);
    EXPECT_THAT(executed(), ElementsAre("a"));
    a.notifyChange();
    EXPECT_THAT(executed(), ElementsAre("a"));
}

TEST_F(ExecutionTest, ExecutesAnObjectThatAlwaysRuns)
{
    m_assembly.addPart("a");
    Part::hooks().alwaysRuns = true;
    EXPECT_THAT(executed(), ElementsAre("a"));
    EXPECT_THAT(executed(), ElementsAre("a"));
}

TEST_F(ExecutionTest, ExecutesWhatAnObjectNeedsBeforeItAndTheObjectAfterIt)
{
    Part& a = m_assembly.addPart("a");
    Part& b = m_assembly.addPart("b");
    Part& c = m_assembly.addPart("c");
    a.linkTo(b);
    b.linkTo(c);
    EXPECT_THAT(executed(), ElementsAre("c", "b", "a"));
    c.width.setValue(1);
    EXPECT_THAT(executed(), ElementsAre("c", "b", "a"));
    b.width.setValue(1);
    EXPECT_THAT(executed(), ElementsAre("b", "a"));
}

TEST_F(ExecutionTest, FollowsACircleOfNeedsOnce)
{
    Part& a = m_assembly.addPart("a");
    Part& b = m_assembly.addPart("b");
    a.linkTo(b);
    b.linkTo(a);
    EXPECT_THAT(executed(), testing::UnorderedElementsAre("a", "b"));
    EXPECT_THAT(executed(), IsEmpty());
}

TEST_F(ExecutionTest, FollowsAChainOfAnyLength)
{
    constexpr int count = 50000;
    Part* needing = &m_assembly.addPart();
    for (int i = 1; i < count; ++i) {
        Part& needed = m_assembly.addPart();
        needing->linkTo(needed);
        needing = &needed;
    }
    const auto results = m_assembly.executeDue();
    ASSERT_EQ(results.size(), static_cast<std::size_t>(count));
    EXPECT_EQ(results.front()->object, needing) << "the object that all others need";
    EXPECT_EQ(results.back()->object->getObjectId(), 1U);
}

TEST_F(ExecutionTest, LeavesOutWhatIsSuppressed)
{
    m_assembly.addPart("a").setSuppressed(true);
    EXPECT_THAT(executed(), IsEmpty());
    m_assembly.get_object("a")->setSuppressed(false);
    EXPECT_THAT(executed(), ElementsAre("a"));
}

TEST_F(ExecutionTest, ReportsWhatAnObjectThrowsAndTriesItAgain)
{
    m_assembly.addPart("a");
    m_assembly.addPart("b");
    Part::hooks().executionThrows = true;
    const vxtest::Reports reports;
    EXPECT_THAT(executed(), IsEmpty());
    EXPECT_EQ(reports.errors(), 2);
    EXPECT_THAT(reports.text(), HasSubstr("The execution of an object failed: a part cannot be executed"));
    Part::hooks().executionThrows = false;
    EXPECT_THAT(executed(), ElementsAre("a", "b"));
}

/// The base class without overrides.
class BareProject : public Project
{
public:
    using Project::get_property_data;
    using Project::get_property_data_ref;
};

TEST_F(ProjectTest, IsOfNoKindAndInNoApplicationAtFirst)
{
    const BareProject project;
    EXPECT_EQ(project.getProjectId(), 0U);
    EXPECT_STREQ(project.get_name(), "");
    EXPECT_EQ(project.getDocumentTag(), Kelta::eDocumentTag::Undefined);
    EXPECT_STREQ(project.getTypeId().get_name(), "Obj::Project");
    EXPECT_STREQ(project.getTypeId().getParent().get_name(), "Obj::PropertyDS");
    EXPECT_EQ(&project.get_property_data(), BareProject::get_property_data_ref());
}

TEST_F(ProjectTest, KeepsSettingsAndReportsOnlyChanges)
{
    int changes = 0;
    const boost::signals2::scoped_connection connection =
        m_assembly.changed.connect([&](const Obj::Property* property) {
            EXPECT_EQ(property, nullptr);
            ++changes;
        });
    EXPECT_EQ(m_assembly.getSetting("view"), "");
    const std::size_t empty = m_assembly.get_memory_usage();
    m_assembly.setSetting("view", "side");
    m_assembly.setSetting("view", "side");
    EXPECT_EQ(m_assembly.getSetting("view"), "side");
    EXPECT_THAT(m_assembly.getSettings(), ElementsAre(testing::Pair("view", "side")));
    EXPECT_GT(m_assembly.get_memory_usage(), empty);
    EXPECT_EQ(changes, 1);
    m_assembly.setSetting("view", "");
    m_assembly.setSetting("other", "");
    EXPECT_THAT(m_assembly.getSettings(), IsEmpty());
    EXPECT_EQ(changes, 2);
}

TEST_F(ProjectTest, HasItsVirtualOperationsAfterThoseOfASetOfProperties)
{
    if (!vxtest::slotsCanBeRead)
        GTEST_SKIP() << "pointers to members are written differently here";
    const std::vector<std::ptrdiff_t> places{slotOf(&Project::get_viewfeeder_name),
                                             slotOf(&Project::check_input),
                                             slotOf(&Project::collect_frontend_data),
                                             slotOf(&Project::update),
                                             slotOf(&Project::save_jsonDB),
                                             slotOf(&Project::load_jsonDB),
                                             slotOf(&Project::Save),
                                             slotOf(&Project::Load)};
    EXPECT_THAT(places, ElementsAre(25, 26, 27, 28, 29, 30, 31, 32));
}

} // namespace
