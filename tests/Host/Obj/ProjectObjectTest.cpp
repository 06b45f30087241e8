#include "Obj/ProjectObject.h"

#include "HostTesting.h"
#include "ObjTesting.h"

#include "Obj/ProjectObjectExecReturn.h"

#include <stdexcept>

namespace {

using Obj::eVXObjectState;
using Obj::ProjectObject;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using vxtest::Assembly;
using vxtest::namesOf;
using vxtest::Part;
using vxtest::slotOf;

using ProjectObjectTest = vxtest::ObjTest;

/// The base class without overrides.
class BareObject : public ProjectObject
{
public:
    using ProjectObject::get_property_data;
    using ProjectObject::get_property_data_ref;
    using ProjectObject::on_configuring_project;
};

TEST_F(ProjectObjectTest, IsInNoProjectAtFirst)
{
    BareObject object;
    EXPECT_EQ(object.getObjectId(), 0U);
    EXPECT_STREQ(object.get_name_in_project(), "");
    EXPECT_EQ(object.get_project(), nullptr);
    EXPECT_EQ(object.getObjectState(), eVXObjectState::Initial);
    EXPECT_FALSE(object.isSuppressed());
    EXPECT_THAT(object.get_linked_objects(), IsEmpty());
    EXPECT_EQ(object.label.getValue(), "");
}

TEST_F(ProjectObjectTest, DoesNothingOfItsOwn)
{
    BareObject object;
    EXPECT_STREQ(object.get_viewfeeder_name(), "");
    EXPECT_STREQ(object.getCoreEditor(), "");
    EXPECT_EQ(object.always_run(), 0);
    EXPECT_EQ(object.execute(), nullptr);
    EXPECT_EQ(object.check_input(), eVXObjectState::Initial);
    object.refresh();
    object.refreshProperties(true);
    object.on_break_object_link(nullptr);
    object.on_project_restored();
    object.on_configuring_project();
    Json::Value record;
    object.load_jsonDB(record);
    EXPECT_TRUE(record.isNull());
    EXPECT_STREQ(object.getTypeId().get_name(), "Obj::ProjectObject");
    EXPECT_STREQ(object.getTypeId().getParent().get_name(), "Obj::PropertyDS");
    EXPECT_EQ(&object.get_property_data(), BareObject::get_property_data_ref());
    EXPECT_NE(object.get_property_data().parent(), nullptr);
}

TEST_F(ProjectObjectTest, DescribesItselfInARecord)
{
    addAssembly().skipObjectIds(4);
    Part& part = static_cast<Assembly*>(Obj::Application::get_current_project())->addPart("Bolt");
    part.label.setValue("钢 %1");
    Json::Value record;
    part.save_jsonDB(record);
    EXPECT_EQ(record["obj_id"], Json::Value(4U));
    EXPECT_TRUE(record["obj_id"].isUInt());
    EXPECT_EQ(record["class"], "vxtest::Part");
    EXPECT_EQ(record["name_internal"], "Bolt");
    EXPECT_EQ(record["label"], "钢 %1");
    EXPECT_EQ(record.size(), 4U);
}

TEST_F(ProjectObjectTest, TellsItsProjectWhatChanges)
{
    Assembly& assembly = addAssembly();
    Part& part = assembly.addPart();
    std::vector<std::pair<ProjectObject*, const Obj::Property*>> changes;
    assembly.objectChanged.connect(
        [&changes](ProjectObject& object, const Obj::Property* property) { changes.emplace_back(&object, property); });
    const auto changesNow = [&changes] { return std::exchange(changes, {}); };
    const std::pair<ProjectObject*, const Obj::Property*> otherChange{&part, nullptr};

    part.width.setValue(3);
    EXPECT_THAT(changesNow(), ElementsAre(std::pair(&part, &part.width)));
    part.setObjectState(eVXObjectState::Ready);
    EXPECT_THAT(changesNow(), ElementsAre(otherChange));
    part.setObjectState(eVXObjectState::Ready);
    EXPECT_THAT(changesNow(), IsEmpty());
    part.setSuppressed(true);
    EXPECT_THAT(changesNow(), ElementsAre(otherChange));
    part.setSuppressed(true);
    EXPECT_THAT(changesNow(), IsEmpty());
    part.refreshProperties(false);
    EXPECT_THAT(changesNow(), ElementsAre(otherChange));
    part.notifyChange();
    EXPECT_THAT(changesNow(), ElementsAre(otherChange));
}

TEST_F(ProjectObjectTest, KeepsSettingsAndReportsOnlyChanges)
{
    Assembly& assembly = addAssembly();
    Part& part = assembly.addPart();
    int changes = 0;
    assembly.objectChanged.connect([&](ProjectObject& object, const Obj::Property* property) {
        EXPECT_EQ(&object, &part);
        EXPECT_EQ(property, nullptr);
        ++changes;
    });
    EXPECT_EQ(part.getSetting("measurements"), "");
    const std::size_t empty = part.get_memory_usage();
    part.setSetting("measurements", std::string(1000, 'm'));
    part.setSetting("measurements", std::string(1000, 'm'));
    EXPECT_EQ(part.getSetting("measurements"), std::string(1000, 'm'));
    EXPECT_GT(part.get_memory_usage(), empty + 1000);
    EXPECT_EQ(changes, 1);
    part.setSetting("measurements", "");
    part.setSetting("other", "");
    EXPECT_THAT(part.getSettings(), IsEmpty());
    EXPECT_EQ(part.get_memory_usage(), empty);
    EXPECT_EQ(changes, 2);
}

TEST_F(ProjectObjectTest, FindsItsStateWhenItIsRefreshed)
{
    Part& part = addAssembly().addPart();
    EXPECT_EQ(part.getObjectState(), eVXObjectState::Initial);
    part.refresh();
    EXPECT_EQ(part.getObjectState(), eVXObjectState::Ready);
    part.width.setValue(0);
    part.refreshProperties(false);
    EXPECT_EQ(part.getObjectState(), eVXObjectState::Ready) << "only the properties";
    part.refreshProperties(true);
    EXPECT_EQ(part.getObjectState(), eVXObjectState::Initial);
    EXPECT_EQ(static_cast<int>(eVXObjectState::Initial), 0);
    EXPECT_EQ(static_cast<int>(eVXObjectState::Ready), 3);
}

TEST_F(ProjectObjectTest, IsSuppressedWithoutBeingDeleted)
{
    Assembly& assembly = addAssembly();
    Part& part = assembly.addPart();
    part.setSuppressed(true);
    EXPECT_TRUE(part.isSuppressed());
    EXPECT_EQ(assembly.get_object(part.getObjectId()), &part);
    const std::uint32_t id = part.getObjectId();
    assembly.restoreObject(assembly.takeObject(id));
    EXPECT_TRUE(part.isSuppressed()) << "also after an undo";
    part.setSuppressed(false);
    EXPECT_FALSE(part.isSuppressed());
}

TEST_F(ProjectObjectTest, ReturnsTheObjectsThatAreLinkedWithItInEitherDirection)
{
    Assembly& assembly = addAssembly();
    Part& a = assembly.addPart("a");
    Part& b = assembly.addPart("b");
    Part& c = assembly.addPart("c");
    a.linkTo(b);
    a.linkTo(b);
    a.linkTo(a);
    c.linkTo(a);
    EXPECT_THAT(namesOf(a.get_linked_objects()), ElementsAre("b", "c"));
    EXPECT_THAT(namesOf(a.getNeededObjects()), ElementsAre("b"));
    EXPECT_THAT(namesOf(b.get_linked_objects()), ElementsAre("a"));
    EXPECT_THAT(b.getNeededObjects(), IsEmpty());
}

TEST_F(ProjectObjectTest, UnlinksOneDirectionAndLeavesTheOther)
{
    Assembly& assembly = addAssembly();
    Part& a = assembly.addPart("a");
    Part& b = assembly.addPart("b");
    a.linkTo(b);
    b.linkTo(a);
    EXPECT_THAT(namesOf(a.get_linked_objects()), ElementsAre("b")) << "once, though each needs the other";
    Part::hooks().calls.clear();
    a.unlinkFrom(b);
    EXPECT_THAT(Part::hooks().calls, ElementsAre("break b"));
    EXPECT_THAT(a.getNeededObjects(), IsEmpty());
    EXPECT_THAT(namesOf(b.getNeededObjects()), ElementsAre("a"));
    a.unlinkFrom(b);
    EXPECT_EQ(Part::hooks().calls.size(), 1U) << "the link was removed already";
}

TEST_F(ProjectObjectTest, KeepsItsLinksWhileOneOfTheTwoIsAwayForUndo)
{
    Assembly& assembly = addAssembly();
    Part& a = assembly.addPart("a");
    Part& b = assembly.addPart("b");
    a.linkTo(b);
    Part::hooks().calls.clear();
    Obj::OwnedObject away = assembly.takeObject(b.getObjectId());
    EXPECT_THAT(Part::hooks().calls, ElementsAre("break b"));
    EXPECT_THAT(a.get_linked_objects(), IsEmpty());
    EXPECT_THAT(a.getNeededObjects(), IsEmpty());
    assembly.restoreObject(std::move(away));
    EXPECT_THAT(namesOf(a.getNeededObjects()), ElementsAre("b"));

    away = assembly.takeObject(a.getObjectId());
    EXPECT_EQ(Part::hooks().calls.back(), "restored b") << "an object that needs no other object is not notified";
    EXPECT_THAT(b.get_linked_objects(), IsEmpty());
    assembly.restoreObject(std::move(away));
    EXPECT_THAT(namesOf(b.get_linked_objects()), ElementsAre("a"));
}

TEST_F(ProjectObjectTest, IsForgottenByOthersWhenItIsDestroyed)
{
    Assembly& assembly = addAssembly();
    Part& a = assembly.addPart("a");
    Part& b = assembly.addPart("b");
    a.linkTo(b);
    b.linkTo(a);
    assembly.removeObject(b.getObjectId());
    EXPECT_THAT(a.get_linked_objects(), IsEmpty());
    EXPECT_THAT(a.getNeededObjects(), IsEmpty());
}

TEST_F(ProjectObjectTest, MayOutliveTheProjectThatItIsLinkedInto)
{
    Assembly& assembly = addAssembly();
    Part& a = assembly.addPart("a");
    Part& b = assembly.addPart("b");
    a.linkTo(b);
    b.linkTo(a);
    const Obj::OwnedObject away = assembly.takeObject(b.getObjectId());
    EXPECT_TRUE(application().closeProject(assembly));
    EXPECT_THAT(away->get_linked_objects(), IsEmpty());
}

TEST_F(ProjectObjectTest, MayBeRemovedWithTheObjectThatItNeeds)
{
    Assembly& assembly = addAssembly();
    Part& needed = assembly.addPart("needed");
    for (int i = 0; i < 4; ++i)
        assembly.addPart("dependent").linkTo(needed);
    Part::hooks().removesItselfWithWhatItNeeds = true;
    EXPECT_TRUE(assembly.removeObject(needed.getObjectId()));
    EXPECT_EQ(assembly.getObjectCount(), 0U);
}

TEST_F(ProjectObjectTest, ThatFailsWhenALinkIsRemovedDoesNotPreventOtherNotifications)
{
    Assembly& assembly = addAssembly();
    Part& needed = assembly.addPart("needed");
    assembly.addPart("a").linkTo(needed);
    assembly.addPart("b").linkTo(needed);
    Part::hooks().calls.clear();
    Part::hooks().breakThrows = true;
    const vxtest::Reports reports;
    EXPECT_TRUE(assembly.removeObject(needed.getObjectId()));
    EXPECT_THAT(Part::hooks().calls, ElementsAre("break needed", "break needed"));
    EXPECT_EQ(reports.errors(), 2);
    EXPECT_THAT(reports.text(), HasSubstr("a link cannot be broken"));
}

TEST_F(ProjectObjectTest, NamesItselfInTheResultOfAnExecution)
{
    Part part;
    const Obj::ProjectObjectExecReturn result("done", &part);
    EXPECT_EQ(result.text, "done");
    EXPECT_EQ(result.object, &part);
    EXPECT_EQ(Obj::ProjectObjectExecReturn("nothing").object, nullptr);
}

struct Slots : ProjectObject
{
    static std::ptrdiff_t configuring() { return slotOf(&Slots::on_configuring_project); }
};

TEST_F(ProjectObjectTest, HasItsVirtualOperationsAfterThoseOfASetOfProperties)
{
    if (!vxtest::slotsCanBeRead)
        GTEST_SKIP() << "pointers to members are written differently here";
    const std::vector<std::ptrdiff_t> places{
        slotOf(&ProjectObject::get_viewfeeder_name),
        slotOf(&ProjectObject::refresh),
        slotOf(&ProjectObject::refreshProperties),
        slotOf(&ProjectObject::always_run),
        slotOf(&ProjectObject::on_break_object_link),
        slotOf(&ProjectObject::save_jsonDB),
        slotOf(&ProjectObject::load_jsonDB),
        slotOf(&ProjectObject::check_input),
        slotOf(&ProjectObject::setObjectState),
        slotOf(&ProjectObject::getCoreEditor),
        slotOf(&ProjectObject::execute),
        slotOf(&ProjectObject::notifyChange),
        slotOf(&ProjectObject::on_project_restored),
        Slots::configuring(),
    };
    EXPECT_THAT(places, ElementsAre(25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38));
}

TEST_F(ProjectObjectTest, RefusesLinksToOtherProjectsAndToItself)
{
    Part& here = addAssembly("here").addPart("a");
    Part& there = addAssembly("there").addPart("b");
    Part loose;
    const vxtest::Reports reports;
    EXPECT_FALSE(here.linkTo(there));
    EXPECT_FALSE(here.linkTo(loose));
    EXPECT_FALSE(loose.linkTo(here));
    EXPECT_EQ(reports.errors(), 3);
    EXPECT_THAT(reports.text(), HasSubstr("\"a\" cannot be linked to \"b\": both must be in the same project"));
    EXPECT_FALSE(here.linkTo(here));
    EXPECT_THAT(here.get_linked_objects(), IsEmpty());
    EXPECT_THAT(there.get_linked_objects(), IsEmpty());
}

TEST_F(ProjectObjectTest, HasLinksBackThatItGaveUpWhenTheOtherLeft)
{
    Assembly& assembly = addAssembly();
    Part& a = assembly.addPart("a");
    Part& b = assembly.addPart("b");
    a.linkTo(b);
    Part::hooks().unlinksWhatLeaves = true;
    Obj::OwnedObject away = assembly.takeObject(b.getObjectId());
    assembly.restoreObject(std::move(away));
    EXPECT_THAT(namesOf(a.getNeededObjects()), ElementsAre("b"));
    EXPECT_THAT(namesOf(b.get_linked_objects()), ElementsAre("a"));
}

TEST_F(ProjectObjectTest, IsNotNotifiedOfRemovalsWhileItIsRemovedItself)
{
    Assembly& assembly = addAssembly();
    Part& a = assembly.addPart("a");
    Part& b = assembly.addPart("b");
    a.linkTo(b);
    Obj::OwnedObject awayA = assembly.takeObject(a.getObjectId());
    Part::hooks().calls.clear();
    Obj::OwnedObject awayB = assembly.takeObject(b.getObjectId());
    EXPECT_THAT(Part::hooks().calls, IsEmpty());
    assembly.restoreObject(std::move(awayB));
    assembly.restoreObject(std::move(awayA));
    EXPECT_THAT(namesOf(a.getNeededObjects()), ElementsAre("b"));
}

TEST_F(ProjectObjectTest, TakesTheMemoryOfItsClassAndOfItsTexts)
{
    Part& part = addAssembly().addPart();
    const std::size_t before = part.get_memory_usage();
    EXPECT_GE(before, sizeof(Part));
    EXPECT_LT(before, 2 * sizeof(Part));
    part.label.setValue(std::string(100000, 'x'));
    EXPECT_GT(part.get_memory_usage(), before + 100000);
    EXPECT_LT(part.get_memory_usage(), before + 250000);
}

} // namespace
