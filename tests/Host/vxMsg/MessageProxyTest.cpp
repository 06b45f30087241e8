#include "vxMsg/MessageProxy.h"

#include "HostTesting.h"
#include "ProxyTesting.h"

#include "Obj/Placeholder.h"
#include "Obj/ProjectObjectGroup.h"

#include <boost/signals2/connection.hpp>

#include <algorithm>
#include <random>
#include <stdexcept>

namespace {

using Obj::Application;
using Obj::ProjectObject;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using vxMsg::MessageProxy;
using vxMsg::PropertyPlace;
using vxtest::Assembly;
using vxtest::Joint;
using vxtest::MessageProxyTest;
using vxtest::Part;

// --- Projects ---

TEST_F(MessageProxyTest, MakesAProjectOfARegisteredClass)
{
    EXPECT_EQ(Application::get_projects(vxtest::assemblyTag).size(), 1U);
    EXPECT_STREQ(m_project->getTypeId().get_name(), "vxtest::Assembly");
    EXPECT_EQ(Application::get_current_project(), m_project);
}

TEST_F(MessageProxyTest, KeepsAProjectForRedoWhenItsCreationIsUndone)
{
    EXPECT_TRUE(makeProject("Second"));
    Obj::Project* const second = application().get_project("Second");
    const std::uint32_t id = second->getProjectId();
    EXPECT_EQ(stack().undoText(), QStringLiteral("New project \"Second\""));
    EXPECT_TRUE(add("Bolt", "Second"));
    stack().undo();
    stack().undo();
    EXPECT_THAT(projects(), ElementsAre("Machine"));
    EXPECT_EQ(Application::get_current_project(), m_project);
    stack().redo();
    stack().redo();
    EXPECT_EQ(application().get_project("Second"), second);
    EXPECT_EQ(second->getProjectId(), id);
    EXPECT_NE(second->get_object("Bolt"), nullptr);
}

TEST_F(MessageProxyTest, BringsBackTheVeryProjectWhenItsClosingIsUndone)
{
    const Part& bolt = part("Bolt");
    EXPECT_TRUE(closeProject("Machine"));
    EXPECT_THAT(projects(), IsEmpty());
    EXPECT_EQ(stack().undoText(), QStringLiteral("Close project \"Machine\""));
    stack().undo();
    EXPECT_EQ(application().get_project("Machine"), m_project);
    EXPECT_EQ(m_project->get_object("Bolt"), &bolt);
    stack().undo();
    EXPECT_THAT(names(), IsEmpty()) << "earlier steps can be undone too";
    stack().redo();
    stack().redo();
    EXPECT_THAT(projects(), IsEmpty());
}

TEST_F(MessageProxyTest, MakesANameUniqueThatAProjectHas)
{
    EXPECT_TRUE(makeProject("Machine"));
    ASSERT_EQ(projects().size(), 2U);
    EXPECT_THAT(projects()[1], testing::StartsWith("Machine"));
    EXPECT_NE(projects()[1], "Machine");
}

// --- Unknown names ---

TEST_F(MessageProxyTest, ReportsNamesThatItDoesNotKnow)
{
    const vxtest::Reports reports;
    EXPECT_FALSE(closeProject("Others"));
    EXPECT_FALSE(add("Bolt", "Others %1"));
    EXPECT_FALSE(remove("Bolt", "Others"));
    EXPECT_FALSE(remove("%1 %2", "Machine"));
    EXPECT_FALSE(remove("", "Machine"));
    EXPECT_EQ(reports.errors(), 5);
    EXPECT_THAT(reports.text(), HasSubstr("There is no project \"Others %1\"; nothing was done."));
    EXPECT_THAT(reports.text(), HasSubstr("The project \"Machine\" has no object \"%1 %2\"; nothing was done."));
    EXPECT_THAT(projects(), ElementsAre("Machine"));
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(MessageProxyTest, ReportsThatAllIdsAreUsedUp)
{
    m_project->skipObjectIds(4294967296);
    const vxtest::Reports reports;
    EXPECT_FALSE(add("Bolt"));
    EXPECT_EQ(reports.errors(), 1);
    EXPECT_EQ(stack().count(), 0);
}

// --- Objects ---

TEST_F(MessageProxyTest, AddsAnObjectThatUndoTakesAwayAndRedoBringsBack)
{
    Part& bolt = part("Bolt");
    EXPECT_EQ(bolt.getObjectId(), 1U);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Add \"Bolt\""));
    bolt.width.setValue(21);
    stack().undo();
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(bolt.get_project(), nullptr) << "the object is outside the project, but exists";
    stack().redo();
    EXPECT_EQ(m_project->get_object("Bolt"), &bolt);
    EXPECT_EQ(bolt.getObjectId(), 1U);
    EXPECT_EQ(bolt.width.getValue(), 21) << "with its changed value";
}

TEST_F(MessageProxyTest, BringsBackTheVeryObjectWhenADeletionIsUndone)
{
    part("Nut");
    Part& bolt = part("Bolt");
    part("Washer");
    bolt.width.setValue(21);
    bolt.refresh();
    bolt.label.setValue("Schraube");
    EXPECT_TRUE(remove("Bolt"));
    EXPECT_THAT(names(), ElementsAre("Nut", "Washer"));
    EXPECT_EQ(stack().undoText(), QStringLiteral("Delete \"Schraube\""));
    stack().undo();
    EXPECT_THAT(names(), ElementsAre("Nut", "Bolt", "Washer"));
    EXPECT_EQ(m_project->get_object("Bolt"), &bolt);
    EXPECT_EQ(m_project->get_object(2U), &bolt);
    EXPECT_EQ(bolt.label.getValue(), "Schraube");
    EXPECT_EQ(bolt.width.getValue(), 21);
    EXPECT_EQ(bolt.getObjectState(), Obj::eVXObjectState::Ready);
    stack().redo();
    EXPECT_THAT(names(), ElementsAre("Nut", "Washer"));
}

TEST_F(MessageProxyTest, NeverGivesAnIdTwiceThroughUndoAndRedo)
{
    part("a");
    part("b");
    stack().undo();
    EXPECT_EQ(part("c").getObjectId(), 3U) << "the redo of b is lost, but its id is still used";
    EXPECT_TRUE(remove("c"));
    stack().undo();
    stack().redo();
    EXPECT_EQ(part("d").getObjectId(), 4U);
    stack().undo();
    stack().undo();
    EXPECT_EQ(part("e").getObjectId(), 5U);
    EXPECT_THAT(names(), ElementsAre("a", "c", "e"));
}

TEST_F(MessageProxyTest, ComesThroughTenThousandObjectsDeletedInRandomOrderAndAllUndone)
{
    constexpr int count = 10000;
    for (int i = 0; i < count; ++i)
        ASSERT_TRUE(add("Part"));
    const std::vector<ProjectObject*> objects = m_project->getObjects();
    const std::vector<std::string> namesBefore = names();
    ASSERT_EQ(objects.size(), 10000U);
    for (std::size_t i = 0; i < objects.size(); ++i)
        objects[i]->label.setValue("label " + std::to_string(i));
    std::vector<std::string> order = namesBefore;
    std::mt19937 random(3);
    std::shuffle(order.begin(), order.end(), random);
    for (const std::string& name : order)
        ASSERT_TRUE(remove(name));
    EXPECT_EQ(m_project->getObjectCount(), 0U);
    EXPECT_EQ(stack().count(), 2 * count);

    for (int i = 0; i < count; ++i)
        stack().undo();
    EXPECT_EQ(m_project->getObjects(), objects) << "the same objects, in the same order";
    EXPECT_EQ(names(), namesBefore);
    for (std::size_t i = 0; i < objects.size(); ++i) {
        ASSERT_EQ(objects[i]->getObjectId(), i + 1);
        ASSERT_EQ(objects[i]->label.getValue(), "label " + std::to_string(i));
        ASSERT_EQ(m_project->get_object(namesBefore[i]), objects[i]);
    }
    stack().setIndex(0);
    EXPECT_EQ(m_project->getObjectCount(), 0U) << "their creation is undone too";
    EXPECT_EQ(part("next").getObjectId(), 10001U);
}

TEST_F(MessageProxyTest, TakesLabelsOfEveryKind)
{
    for (const std::string& label :
         {std::string(), std::string(10000, 'x'), std::string("结构钢"), std::string("%1 %2")}) {
        Part& object = part("Part");
        const std::string name = object.get_name_in_project();
        object.label.setValue(label);
        EXPECT_TRUE(remove(name));
        EXPECT_EQ(stack().undoText(), QStringLiteral("Delete \"") + QString::fromStdString(label) + QLatin1Char('"'));
        stack().undo();
        EXPECT_EQ(m_project->get_object(name), &object);
        EXPECT_EQ(object.label.getValue(), label);
    }
}

TEST_F(MessageProxyTest, TakesNamesOfEveryKind)
{
    for (const std::string& name : {std::string(10000, 'x'), std::string("结构钢"), std::string("%1 %2")}) {
        EXPECT_EQ(part(name).get_name_in_project(), name);
        EXPECT_EQ(stack().undoText(), QStringLiteral("Add \"") + QString::fromStdString(name) + QLatin1Char('"'));
        EXPECT_TRUE(remove(name));
    }
    EXPECT_STREQ(part("").get_name_in_project(), "Object");
}

TEST_F(MessageProxyTest, TellsOnceOfAnObjectThatARequestMade)
{
    std::vector<const ProjectObject*> made;
    const boost::signals2::scoped_connection connection = proxy().objectCreated.connect([&](ProjectObject& object) {
        EXPECT_EQ(object.get_project(), m_project);
        made.push_back(&object);
    });
    const Part& bolt = part("Bolt");
    EXPECT_THAT(made, ElementsAre(&bolt));
    stack().undo();
    stack().redo();
    EXPECT_TRUE(remove("Bolt"));
    stack().undo();
    EXPECT_EQ(made.size(), 1U);
    m_project->add_object("vxtest::Part", "direct");
    EXPECT_EQ(made.size(), 1U) << "there was no request for it";
}

TEST_F(MessageProxyTest, TellsOnceOfAProjectThatARequestMade)
{
    std::vector<std::string> made;
    const boost::signals2::scoped_connection connection =
        proxy().projectCreated.connect([&made](const Obj::Project& project) { made.emplace_back(project.get_name()); });
    EXPECT_TRUE(proxy().newProject("vxtest::Assembly", "Alloys"));
    stack().undo();
    stack().redo();
    EXPECT_THAT(made, ElementsAre("Alloys"));
    EXPECT_TRUE(proxy().closeProject("Alloys"));
    stack().undo();
    EXPECT_NE(proxy().openProject("vxtest::Assembly", "Opened", [](Obj::Project&) {}), nullptr);
    EXPECT_EQ(made.size(), 1U);
}

TEST_F(MessageProxyTest, DoesWhatIsRequestedThoughAListenerFails)
{
    const boost::signals2::scoped_connection connection = proxy().objectCreated.connect(
        [this](ProjectObject&) { throw std::runtime_error("I cannot fill " + names().back()); });
    const vxtest::Reports reports;
    EXPECT_TRUE(add("Bolt"));
    EXPECT_THAT(reports.text(), HasSubstr("I cannot fill Bolt"));
    EXPECT_EQ(stack().count(), 1);
    stack().undo();
    EXPECT_THAT(names(), IsEmpty());
}

// --- Changes without a request ---

TEST_F(MessageProxyTest, MakesObjectsUndoableThatAreAddedWithoutARequest)
{
    const ProjectObject* const object = m_project->add_object("vxtest::Part", "Imported");
    EXPECT_EQ(stack().count(), 1);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Add \"Imported\""));
    stack().undo();
    EXPECT_THAT(names(), IsEmpty());
    stack().redo();
    EXPECT_EQ(m_project->get_object("Imported"), object);
}

TEST_F(MessageProxyTest, WatchesProjectsThatWereMadeWithoutARequest)
{
    Obj::Project* const project = application().createProject("vxtest::Assembly", "Direct");
    ASSERT_NE(project, nullptr);
    project->add_object("vxtest::Part", "Imported");
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(MessageProxyTest, WatchesARestoredProjectOnlyOnce)
{
    application().restoreProject(application().takeProject(*m_project));
    m_project->add_object("vxtest::Part", "a");
    EXPECT_EQ(stack().count(), 1);
    EXPECT_TRUE(closeProject("Machine"));
    stack().undo();
    m_project->add_object("vxtest::Part", "b");
    EXPECT_EQ(stack().count(), 2) << "the closing cannot be redone any more";
    stack().undo();
    EXPECT_THAT(names(), ElementsAre("a"));
}

TEST_F(MessageProxyTest, EndsTheHistoryWhenAProjectIsClosedDirectly)
{
    part("Bolt");
    EXPECT_TRUE(application().closeProject(*m_project));
    EXPECT_EQ(stack().count(), 0);
    EXPECT_FALSE(stack().canUndo());
}

TEST_F(MessageProxyTest, EndsTheHistoryWhenAnObjectIsDestroyedDirectly)
{
    part("Bolt");
    part("Nut");
    EXPECT_TRUE(m_project->removeObject(1));
    EXPECT_EQ(stack().count(), 0);
    EXPECT_THAT(names(), ElementsAre("Nut"));
}

TEST_F(MessageProxyTest, DestroysObjectsOfAClosedProjectWithItsHistory)
{
    Part& bolt = part("Bolt");
    Part& nut = part("Nut");
    nut.linkTo(bolt);
    EXPECT_TRUE(remove("Bolt"));
    EXPECT_TRUE(closeProject("Machine"));
    stack().clear(); // the deleted object first, then the project
    EXPECT_THAT(projects(), IsEmpty());
}

TEST_F(MessageProxyTest, LeavesTheStackWholeWhenAListenerAddsAnObjectDuringAnUndo)
{
    part("Bolt");
    int calls = 0;
    m_project->objectRemoved.connect([&](ProjectObject&) {
        ++calls;
        m_project->add_object("vxtest::Part", "Substitute");
    });
    stack().undo();
    EXPECT_EQ(calls, 1);
    EXPECT_THAT(names(), ElementsAre("Substitute"));
    EXPECT_EQ(stack().count(), 1);
    stack().redo();
    EXPECT_THAT(names(), ElementsAre("Bolt", "Substitute"));
}

TEST_F(MessageProxyTest, RefusesRequestsOfListenersDuringAnUndo)
{
    part("Bolt");
    std::vector<bool> answers;
    m_project->objectAdded.connect([&answers](ProjectObject&) {
        answers = {add("a"), remove("Bolt"), closeProject("Machine"), makeProject("Second")};
    });
    stack().undo();
    const vxtest::Reports reports;
    stack().redo();
    EXPECT_THAT(answers, ElementsAre(false, false, false, false));
    EXPECT_EQ(reports.errors(), 4);
    EXPECT_THAT(reports.text(), HasSubstr("Requests are refused during undo and redo"));
    EXPECT_THAT(names(), ElementsAre("Bolt"));
    EXPECT_THAT(projects(), ElementsAre("Machine"));
    EXPECT_EQ(stack().count(), 1);
}

/// A step that another module records on the same stack.
class OtherCommand : public QUndoCommand
{
public:
    OtherCommand(const QString& text, std::vector<std::string>& notes) : QUndoCommand(text), m_notes(notes) {}
    void undo() override { m_notes.emplace_back("undo " + text().toStdString()); }
    void redo() override { m_notes.emplace_back("redo " + text().toStdString()); }

private:
    std::vector<std::string>& m_notes;
};

TEST_F(MessageProxyTest, TakesStepsOfOthers)
{
    std::vector<std::string> notes;
    proxy().pushDone(std::make_unique<OtherCommand>(QStringLiteral("edit"), notes));
    EXPECT_EQ(stack().undoText(), QStringLiteral("edit"));
    stack().undo();
    EXPECT_THAT(notes, ElementsAre("redo edit", "undo edit"));
}

TEST_F(MessageProxyTest, EndsTheHistoryWhenOthersPushAStepDuringAnUndo)
{
    part("Bolt");
    std::vector<std::string> notes;
    m_project->objectRemoved.connect(
        [&notes](ProjectObject&) { proxy().pushDone(std::make_unique<OtherCommand>(QStringLiteral("edit"), notes)); });
    stack().undo();
    EXPECT_EQ(stack().count(), 0);
    EXPECT_THAT(notes, IsEmpty());
    EXPECT_THAT(names(), IsEmpty());
}

// --- Groups ---

TEST_F(MessageProxyTest, UndoesAGroupInOneStep)
{
    part("Nut");
    {
        const MessageProxy::Group group(QStringLiteral("Three changes"));
        part("Bolt");
        m_project->add_object("vxtest::Part", "Imported");
        EXPECT_TRUE(remove("Nut"));
    }
    EXPECT_EQ(stack().count(), 2);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Three changes"));
    EXPECT_THAT(names(), ElementsAre("Bolt", "Imported"));
    stack().undo();
    EXPECT_THAT(names(), ElementsAre("Nut"));
    stack().redo();
    EXPECT_THAT(names(), ElementsAre("Bolt", "Imported"));
}

TEST_F(MessageProxyTest, NamesAGroupOfDeletionsByItsObjects)
{
    for (const char* const name : {"Nut", "Bolt", "Washer"})
        part(name);
    {
        const MessageProxy::Group group(QStringLiteral("Delete"));
        EXPECT_TRUE(remove("Nut"));
    }
    EXPECT_EQ(stack().undoText(), QStringLiteral("Delete \"Nut\""));
    {
        const MessageProxy::Group group(QStringLiteral("Delete"));
        EXPECT_TRUE(remove("Bolt"));
        EXPECT_TRUE(remove("Washer"));
    }
    EXPECT_EQ(stack().undoText(), QStringLiteral("Delete 2 objects"));
}

TEST_F(MessageProxyTest, LeavesNoTraceOfAGroupInWhichNothingHappens)
{
    const vxtest::Reports reports;
    part("Nut");
    stack().undo();
    {
        const MessageProxy::Group group(QStringLiteral("Nothing"));
        EXPECT_FALSE(remove("Nobody"));
    }
    EXPECT_EQ(stack().count(), 1);
    EXPECT_TRUE(stack().canRedo()) << "an empty group keeps the redo";
}

TEST_F(MessageProxyTest, NamesNestedGroupsByTheOutermost)
{
    {
        const MessageProxy::Group outer(QStringLiteral("Outer"));
        {
            const MessageProxy::Group inner(QStringLiteral("Inner"));
            part("a");
        }
        part("b");
        const MessageProxy::Group second(QStringLiteral("Second"));
    }
    EXPECT_EQ(stack().count(), 1);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Outer"));
    stack().undo();
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(MessageProxyTest, NamesAGroupWithoutATextByItsFirstStep)
{
    {
        const MessageProxy::Group group{QString()};
        part("a");
        part("b");
    }
    EXPECT_EQ(stack().count(), 1);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Add \"a\""));
}

TEST_F(MessageProxyTest, EndsTheHistoryAfterAGroupInWhichAnObjectIsDestroyed)
{
    part("Nut");
    {
        const MessageProxy::Group group(QStringLiteral("Group"));
        part("Bolt");
        EXPECT_TRUE(m_project->removeObject(1));
    }
    EXPECT_EQ(stack().count(), 0);
    EXPECT_THAT(names(), ElementsAre("Bolt"));
    part("Washer");
    EXPECT_EQ(stack().count(), 1) << "a new history begins";
}

TEST_F(MessageProxyTest, UndoesWhatListenersAddBecauseOfARequestWithIt)
{
    boost::signals2::scoped_connection connection = m_project->objectAdded.connect([this](ProjectObject& object) {
        if (object.label.getValue() == "Bolt" && m_project->get_object("Coating") == nullptr)
            m_project->add_object("vxtest::Part", "Coating");
    });
    part("Bolt");
    EXPECT_EQ(stack().count(), 1);
    connection.disconnect();
    stack().undo();
    EXPECT_THAT(names(), IsEmpty());
    stack().redo();
    EXPECT_THAT(names(), ElementsAre("Bolt", "Coating"));
}

// --- Requests for objects of any class ---

TEST_F(MessageProxyTest, AddsObjectsOfAnyRegisteredClass)
{
    EXPECT_TRUE(proxy().addObject("Machine", "Obj::ProjectObjectGroup", "Group"));
    EXPECT_TRUE(proxy().addObject("Machine", "vxtest::Joint", "Hinge"));
    EXPECT_THAT(names(), ElementsAre("Group", "Hinge"));
    stack().undo();
    stack().undo();
    EXPECT_THAT(names(), IsEmpty());
    const vxtest::Reports reports;
    EXPECT_FALSE(proxy().addObject("Machine", "Nobody", "a"));
    EXPECT_FALSE(proxy().addObject("Nowhere", "vxtest::Part", "a"));
    EXPECT_FALSE(proxy().newProject("Nobody", "a"));
    EXPECT_EQ(reports.errors(), 3);
    EXPECT_EQ(stack().count(), 2);
}

TEST_F(MessageProxyTest, HasLinksReferencesAndMembersBackWhenADeletionIsUndone)
{
    auto* const group =
        static_cast<Obj::ProjectObjectGroup*>(m_project->add_object("Obj::ProjectObjectGroup", "Group"));
    Part& bolt = part("Bolt");
    Joint& joint = m_project->addJoint();
    group->addMember(bolt);
    joint.linkTo(bolt);
    joint.first.setValue(&bolt);
    Part::hooks().unlinksWhatLeaves = true;
    EXPECT_TRUE(remove("Bolt"));
    EXPECT_EQ(joint.first.getValue(), nullptr);
    EXPECT_THAT(joint.getNeededObjects(), IsEmpty());
    stack().undo();
    EXPECT_EQ(joint.first.getValue(), &bolt);
    EXPECT_THAT(vxtest::namesOf(joint.getLinks()), ElementsAre("Bolt"));
    EXPECT_EQ(bolt.getParentGroup(), group);
    EXPECT_TRUE(remove("Group"));
    EXPECT_EQ(bolt.getParentGroup(), nullptr);
    stack().undo();
    EXPECT_EQ(bolt.getParentGroup(), group);
}

// --- Properties ---

TEST_F(MessageProxyTest, ChangesAPropertyInOneStep)
{
    Part& bolt = part("Bolt");
    EXPECT_TRUE(proxy().setProperty(PropertyPlace(bolt), "Width", "12"));
    EXPECT_EQ(bolt.width.getValue(), 12);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Change \"Width\" of \"Bolt\""));
    stack().undo();
    EXPECT_EQ(bolt.width.getValue(), 7);
    stack().redo();
    EXPECT_EQ(bolt.width.getValue(), 12);
}

TEST_F(MessageProxyTest, NamesAnObjectWithANewLabelByTheOldOne)
{
    Part& bolt = part("Bolt");
    bolt.label.setValue("Bolt %1");
    EXPECT_TRUE(proxy().setProperty(PropertyPlace(bolt), "Label", "Screw"));
    EXPECT_EQ(stack().undoText(), QStringLiteral("Change \"Label\" of \"Bolt %1\""));
}

TEST_F(MessageProxyTest, ChangesPropertiesOfEveryTypeAndBack)
{
    part("Bolt");
    Joint& joint = m_project->addJoint();
    stack().clear();
    const std::vector<std::pair<std::string, std::string>> edits{
        {"First", "Bolt"},         {"Torque", "0.1"},       {"Locked", "false"}, {"Kind", "sliding"},
        {"Color", "1, 0, 0.5, 0"}, {"Curve", "0, 1; 2, 3"}, {"Label", "钢"}};
    std::vector<std::string> before;
    for (const auto& [name, text] : edits) {
        before.push_back(joint.get_property_by_name(name.c_str())->toText());
        EXPECT_TRUE(proxy().setProperty(PropertyPlace(joint), name, text)) << name;
        EXPECT_EQ(joint.get_property_by_name(name.c_str())->toText(), text);
    }
    EXPECT_EQ(stack().count(), 7);
    stack().setIndex(0);
    for (std::size_t i = 0; i < edits.size(); ++i)
        EXPECT_EQ(joint.get_property_by_name(edits[i].first.c_str())->toText(), before[i]) << edits[i].first;
    stack().setIndex(7);
    EXPECT_EQ(joint.first.getValue(), m_project->get_object("Bolt"));
}

TEST_F(MessageProxyTest, ChangesAPropertyOfAProject)
{
    EXPECT_TRUE(proxy().setProperty(PropertyPlace(*m_project), "ClassLabel", "Engine"));
    EXPECT_EQ(m_project->classLabel.getValue(), "Engine");
    EXPECT_EQ(stack().undoText(), QStringLiteral("Change \"Class label\""));
    stack().undo();
    EXPECT_EQ(m_project->classLabel.getValue(), "");
}

// --- Settings of projects ---

TEST_F(MessageProxyTest, ChangesASettingInOneStep)
{
    EXPECT_TRUE(proxy().setSetting("Machine", "drawing_scale", "1:10"));
    EXPECT_EQ(m_project->getSetting("drawing_scale"), "1:10");
    EXPECT_EQ(stack().count(), 1);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Change \"drawing_scale\" to \"1:10\""));
    EXPECT_TRUE(proxy().setSetting("Machine", "drawing_scale", ""));
    EXPECT_EQ(stack().undoText(), QStringLiteral("Reset \"drawing_scale\""));
    EXPECT_THAT(m_project->getSettings(), IsEmpty());
    stack().undo();
    EXPECT_EQ(m_project->getSetting("drawing_scale"), "1:10");
    stack().undo();
    EXPECT_THAT(m_project->getSettings(), IsEmpty());
    stack().redo();
    EXPECT_EQ(m_project->getSetting("drawing_scale"), "1:10");
}

TEST_F(MessageProxyTest, TellsListenersOfASettingAndItsUndo)
{
    std::vector<std::string> seen;
    const boost::signals2::scoped_connection listening = m_project->changed.connect([&](const Obj::Property* property) {
        EXPECT_EQ(property, nullptr);
        seen.push_back(m_project->getSetting("drawing_scale"));
    });
    EXPECT_TRUE(proxy().setSetting("Machine", "drawing_scale", "1:10"));
    stack().undo();
    stack().redo();
    EXPECT_THAT(seen, ElementsAre("1:10", "", "1:10"));
}

TEST_F(MessageProxyTest, MakesNoStepOfTheTextThatASettingHas)
{
    EXPECT_TRUE(proxy().setSetting("Machine", "drawing_scale", ""));
    EXPECT_EQ(stack().count(), 0);
    EXPECT_TRUE(proxy().setSetting("Machine", "drawing_scale", "1:10"));
    EXPECT_TRUE(proxy().setSetting("Machine", "drawing_scale", "1:10"));
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(MessageProxyTest, RefusesASettingWithoutANameAndOfNoProject)
{
    const vxtest::Reports reports;
    EXPECT_FALSE(proxy().setSetting("Machine", "", "1:10"));
    EXPECT_FALSE(proxy().setSetting("Nowhere", "drawing_scale", "1:10"));
    EXPECT_EQ(reports.errors(), 2);
    EXPECT_THAT(reports.text(), HasSubstr("The name of a setting must not be empty; nothing was changed."));
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(MessageProxyTest, RestoresASettingWithItsProject)
{
    EXPECT_TRUE(proxy().setSetting("Machine", "drawing_scale", "1:10"));
    EXPECT_TRUE(closeProject("Machine"));
    stack().undo();
    EXPECT_EQ(application().get_project("Machine")->getSetting("drawing_scale"), "1:10");
    stack().undo();
    EXPECT_EQ(application().get_project("Machine")->getSetting("drawing_scale"), "");
}

// --- Settings of objects ---

TEST_F(MessageProxyTest, ChangesASettingOfAnObjectInOneStep)
{
    Part& bolt = part("Bolt");
    bolt.label.setValue("Long bolt");
    const int before = stack().count();
    EXPECT_TRUE(proxy().setSetting(bolt, "measurements", "first"));
    EXPECT_TRUE(proxy().setSetting(bolt, "measurements", "first"));
    EXPECT_EQ(stack().count(), before + 1) << "the present text makes no step";
    EXPECT_EQ(stack().undoText(), QStringLiteral("Change \"measurements\" of \"Long bolt\""));
    EXPECT_TRUE(proxy().setSetting(bolt, "measurements", "second"));
    EXPECT_TRUE(proxy().setSetting(bolt, "measurements", ""));
    EXPECT_EQ(stack().undoText(), QStringLiteral("Remove \"measurements\" of \"Long bolt\""));
    EXPECT_THAT(bolt.getSettings(), IsEmpty());
    stack().undo();
    EXPECT_EQ(bolt.getSetting("measurements"), "second");
    stack().undo();
    EXPECT_EQ(bolt.getSetting("measurements"), "first");
    stack().undo();
    EXPECT_THAT(bolt.getSettings(), IsEmpty());
    stack().redo();
    EXPECT_EQ(bolt.getSetting("measurements"), "first");
    EXPECT_THAT(m_project->getSettings(), IsEmpty());
}

TEST_F(MessageProxyTest, RefusesASettingOfAnObjectWithoutANameOrAProject)
{
    Part& bolt = part("Bolt");
    const int before = stack().count();
    const vxtest::Reports reports;
    EXPECT_FALSE(proxy().setSetting(bolt, "", "first"));
    EXPECT_THAT(reports.text(), HasSubstr("The name of a setting must not be empty; nothing was changed."));
    Part outside;
    outside.label.setValue("Loose");
    EXPECT_FALSE(proxy().setSetting(outside, "measurements", "first"));
    EXPECT_THAT(reports.text(), HasSubstr("\"Loose\" is in no project; nothing was changed."));
    EXPECT_THAT(outside.getSettings(), IsEmpty());
    EXPECT_EQ(stack().count(), before);
}

TEST_F(MessageProxyTest, RestoresASettingWithItsObjectAndItsProject)
{
    EXPECT_TRUE(proxy().setSetting(part("Bolt"), "measurements", "first"));
    EXPECT_TRUE(proxy().deleteObject("Machine", "Bolt"));
    stack().undo();
    EXPECT_EQ(application().get_project("Machine")->get_object("Bolt")->getSetting("measurements"), "first");
    EXPECT_TRUE(closeProject("Machine"));
    stack().undo();
    const Obj::ProjectObject* const bolt = application().get_project("Machine")->get_object("Bolt");
    EXPECT_EQ(bolt->getSetting("measurements"), "first");
    stack().undo();
    EXPECT_EQ(bolt->getSetting("measurements"), "") << "the step finds the object that has returned";
}

TEST_F(MessageProxyTest, MakesNoStepOfTheValueThatAPropertyHas)
{
    Part& bolt = part("Bolt");
    EXPECT_TRUE(proxy().setProperty(PropertyPlace(bolt), "Width", "7"));
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(MessageProxyTest, RefusesPropertiesThatCannotBeSet)
{
    Part& bolt = part("Bolt");
    const PropertyPlace place(bolt);
    const vxtest::Reports reports;
    EXPECT_FALSE(proxy().setProperty(place, "Depth", "1"));
    EXPECT_FALSE(proxy().setProperty(place, "ID", "9"));
    EXPECT_FALSE(proxy().setProperty(place, "Width", "wide %1"));
    EXPECT_FALSE(proxy().setProperty(place, "Label", ""));
    EXPECT_FALSE(proxy().setProperty(place, "Label", " \t"));
    EXPECT_EQ(reports.errors(), 5);
    EXPECT_THAT(reports.text(), HasSubstr("There is no property \"Depth\"; nothing was changed."));
    EXPECT_THAT(reports.text(), HasSubstr("The property \"ID\" is read-only; nothing was changed."));
    EXPECT_THAT(reports.text(), HasSubstr("The property \"Width\" cannot be \"wide %1\"; nothing was changed."));
    EXPECT_THAT(reports.text(), HasSubstr("The label must not be empty; nothing was changed."));
    EXPECT_EQ(bolt.label.getValue(), "Bolt");
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(MessageProxyTest, FindsTheOwnerOfAPropertyAgainAfterDeletionsAndTheirUndo)
{
    Part& bolt = part("Bolt");
    EXPECT_TRUE(proxy().setProperty(PropertyPlace(bolt), "Width", "12"));
    EXPECT_TRUE(remove("Bolt"));
    const PropertyPlace lost(*m_project->get_object(m_project->addPart("Nut").getObjectId()));
    EXPECT_TRUE(closeProject("Machine"));
    EXPECT_EQ(lost.find(), nullptr);
    EXPECT_EQ(lost.findObject(), nullptr);
    stack().setIndex(1);
    EXPECT_EQ(bolt.width.getValue(), 7);
    stack().redo();
    EXPECT_EQ(bolt.width.getValue(), 12);
}

TEST_F(MessageProxyTest, FindsNodesByTheirFinder)
{
    Part& bolt = part("Bolt");
    Part node;
    const auto finder = [&node](Obj::Project&, ProjectObject* object) -> Obj::PropertyDS* {
        return object != nullptr ? &node : nullptr;
    };
    EXPECT_EQ(PropertyPlace(*m_project, finder).find(), nullptr);
    const PropertyPlace place(bolt, finder);
    EXPECT_EQ(place.find(), &node);
    EXPECT_EQ(place.findObject(), &bolt);
    EXPECT_TRUE(proxy().setProperty(place, "Width", "3"));
    EXPECT_EQ(node.width.getValue(), 3);
    stack().undo();
    EXPECT_EQ(node.width.getValue(), 7);
    EXPECT_TRUE(remove("Bolt"));
    EXPECT_EQ(place.find(), nullptr) << "a node is removed with its object";
}

TEST_F(MessageProxyTest, RecordsAChangeThoughTheObjectFailsAtIt)
{
    Part& bolt = part("Bolt");
    Part::hooks().action = [](ProjectObject&, const std::string& operation) {
        if (operation == "changing")
            throw std::runtime_error("no such width in the shop");
    };
    const vxtest::Reports reports;
    EXPECT_TRUE(proxy().setProperty(PropertyPlace(bolt), "Width", "12"));
    Part::hooks().action = nullptr;
    EXPECT_THAT(reports.text(), HasSubstr("\"Width\" was changed: no such width in the shop"));
    EXPECT_EQ(bolt.width.getValue(), 12);
    stack().undo();
    EXPECT_EQ(bolt.width.getValue(), 7);
}

TEST_F(MessageProxyTest, SuppressesAnObjectInOneStep)
{
    Part& bolt = part("Bolt");
    EXPECT_TRUE(proxy().setSuppressed(bolt, true));
    EXPECT_TRUE(bolt.isSuppressed());
    EXPECT_EQ(stack().undoText(), QStringLiteral("Suppress \"Bolt\""));
    EXPECT_TRUE(proxy().setSuppressed(bolt, true));
    EXPECT_EQ(stack().count(), 2) << "it was suppressed already";
    stack().undo();
    EXPECT_FALSE(bolt.isSuppressed());
    stack().redo();
    EXPECT_TRUE(bolt.isSuppressed());
    EXPECT_TRUE(proxy().setSuppressed(bolt, false));
    EXPECT_EQ(stack().undoText(), QStringLiteral("Unsuppress \"Bolt\""));
    Part loose;
    EXPECT_FALSE(proxy().setSuppressed(loose, true)) << "it is in no project";
}

// --- Passing data to the solver side ---

TEST_F(MessageProxyTest, HandsAProjectOverAfterTheExecutionOfDueObjects)
{
    part("Bolt");
    Part::hooks().calls.clear();
    EXPECT_TRUE(proxy().handOver("Machine"));
    EXPECT_TRUE(proxy().handOver("Machine"));
    EXPECT_THAT(Part::hooks().calls, ElementsAre("executed Bolt", "collected", "collected"));
    EXPECT_EQ(stack().count(), 1) << "this is no step";
}

TEST_F(MessageProxyTest, ReportsAProjectThatCannotBeHandedOver)
{
    Assembly::collectingThrows() = true;
    const vxtest::Reports reports;
    EXPECT_FALSE(proxy().handOver("Machine"));
    EXPECT_FALSE(proxy().handOver("Nowhere"));
    EXPECT_EQ(reports.errors(), 2);
    EXPECT_THAT(reports.text(), HasSubstr("\"Machine\" cannot be handed over: nothing can be collected"));
}

// --- Opening ---

TEST_F(MessageProxyTest, OpensAProjectWithANewHistoryAndTellsItsObjects)
{
    part("Bolt");
    Part::hooks().calls.clear();
    Obj::Project* const opened = proxy().openProject("vxtest::Assembly", "Opened", [](Obj::Project& project) {
        project.add_object("vxtest::Part", "a", 3);
        project.add_object("vxtest::Part", "b", 5);
    });
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(opened->getObjectCount(), 2U);
    EXPECT_EQ(stack().count(), 0);
    EXPECT_EQ(Part::hooks().calls.back(), "restored b");
    EXPECT_EQ(*(Part::hooks().calls.end() - 2), "restored a");
    EXPECT_TRUE(add("c", "Opened"));
    EXPECT_EQ(stack().count(), 1) << "it is watched from now on";
}

TEST_F(MessageProxyTest, LeavesTheHistoryAndTheCurrentProjectWhenAProjectCannotBeFilled)
{
    makeProject("Last");
    Application::instance().setCurrentProject(*m_project);
    part("Bolt");
    EXPECT_THROW(proxy().openProject("vxtest::Assembly", "Opened",
                                     [](Obj::Project& project) {
                                         project.add_object("vxtest::Part", "a");
                                         throw std::runtime_error("the file is cut off");
                                     }),
                 std::runtime_error);
    EXPECT_THAT(projects(), ElementsAre("Machine", "Last"));
    EXPECT_EQ(Application::get_current_project(), m_project);
    EXPECT_EQ(stack().count(), 2);
    stack().undo();
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(MessageProxyTest, OpensAProjectThatCodeHasMade)
{
    Obj::Project* const opened =
        proxy().openProject(std::make_unique<Obj::PlaceholderProject>("Fastening::Assembly", Json::Value()), "Kept",
                            [](Obj::Project& project) {
                                project.add_object(std::make_unique<Obj::PlaceholderObject>("Any", Json::Value()), "a");
                            });
    ASSERT_NE(opened, nullptr);
    EXPECT_STREQ(opened->get_name(), "Kept");
    EXPECT_EQ(opened->getObjectCount(), 1U);
    EXPECT_TRUE(remove("a", "Kept"));
    stack().undo();
    EXPECT_EQ(opened->getObjectCount(), 1U);
}

TEST_F(MessageProxyTest, OpensNothingOfAClassThatIsNotRegistered)
{
    part("Bolt");
    const vxtest::Reports reports;
    EXPECT_EQ(proxy().openProject("Nobody", "Opened", [](Obj::Project&) { FAIL(); }), nullptr);
    EXPECT_EQ(reports.errors(), 1);
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(MessageProxyTest, CanStillUndoWhatIsAddedElsewhereWhileAProjectIsOpened)
{
    part("Bolt");
    const boost::signals2::scoped_connection listening =
        application().projectAdded.connect([this](Obj::Project& opened) {
            m_project->addPart("Elsewhere");
            opened.add_object("vxtest::Part", "Inside");
        });
    Obj::Project* const opened = proxy().openProject("vxtest::Assembly", "Opened", [](Obj::Project&) {});
    EXPECT_EQ(stack().count(), 1);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Add \"Elsewhere\""));
    stack().undo();
    EXPECT_THAT(names(), ElementsAre("Bolt")) << "the earlier history has ended";
    EXPECT_EQ(opened->getObjectCount(), 1U) << "the objects of the opened project stay";
}

} // namespace
