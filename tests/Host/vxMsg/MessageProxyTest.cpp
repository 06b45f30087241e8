#include "vxMsg/MessageProxy.h"

#include "HostTesting.h"

#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/Module.h"

#include <boost/signals2/connection.hpp>
#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <stdexcept>

namespace {

using Mat::MaterialObject;
using Obj::Application;
using Obj::ProjectObject;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using vxMsg::MessageProxy;

class MessageProxyTest : public testing::Test
{
protected:
    MessageProxyTest()
    {
        Obj::initObj();
        initMat();
        EXPECT_TRUE(vxMsg::runCommand(1030, 1, {"Materials"}));
        m_project = application().get_project("Materials");
        stack().clear();
    }
    ~MessageProxyTest() override
    {
        stack().clear();
        application().close_all_projects();
    }

    static Application& application() { return Application::instance(); }
    static QUndoStack& stack() { return MessageProxy::instance().undoStack(); }

    static bool add(const std::string& name) { return vxMsg::doCommand({1027, "Materials", name, 0.0}); }
    static bool remove(const std::string& name) { return vxMsg::doCommand({3, "Materials", name, 0.0}); }

    /// Adds a material, which must succeed.
    MaterialObject& material(const std::string& name)
    {
        if (!add(name))
            throw std::logic_error("a material was not added");
        return static_cast<MaterialObject&>(*m_project->get_objects().back());
    }

    std::vector<std::string> names() const
    {
        std::vector<std::string> names;
        for (const ProjectObject* const object : m_project->get_objects())
            names.emplace_back(object->get_name_in_project());
        return names;
    }

    static std::vector<std::string> projects()
    {
        std::vector<std::string> names;
        for (const Obj::Project* const project : Application::get_projects())
            names.emplace_back(project->get_name());
        return names;
    }

    Obj::Project* m_project = nullptr;
};

// --- Projects ---

TEST_F(MessageProxyTest, MakesAMaterialProject)
{
    EXPECT_EQ(Application::get_projects(2).size(), 1U);
    EXPECT_STREQ(m_project->getTypeId().get_name(), "Mat::DocumentMaterial");
    EXPECT_EQ(Application::get_current_project(), m_project);
}

TEST_F(MessageProxyTest, KeepsAProjectForRedoWhenItsCreationIsUndone)
{
    EXPECT_TRUE(vxMsg::runCommand(1030, 1, {"Second"}));
    Obj::Project* const second = application().get_project("Second");
    const std::uint32_t id = second->getProjectId();
    EXPECT_EQ(stack().undoText(), QStringLiteral("New project \"Second\""));
    EXPECT_TRUE(vxMsg::doCommand({1027, "Second", "Steel", 0.0}));
    stack().undo();
    stack().undo();
    EXPECT_THAT(projects(), ElementsAre("Materials"));
    EXPECT_EQ(Application::get_current_project(), m_project);
    stack().redo();
    stack().redo();
    EXPECT_EQ(application().get_project("Second"), second);
    EXPECT_EQ(second->getProjectId(), id);
    EXPECT_NE(second->get_object("Steel"), nullptr);
}

TEST_F(MessageProxyTest, BringsBackTheVeryProjectWhenItsClosingIsUndone)
{
    const MaterialObject& steel = material("Steel");
    EXPECT_TRUE(vxMsg::runCommand(22, 1, {"Materials"}));
    EXPECT_THAT(projects(), IsEmpty());
    EXPECT_EQ(stack().undoText(), QStringLiteral("Close project \"Materials\""));
    stack().undo();
    EXPECT_EQ(application().get_project("Materials"), m_project);
    EXPECT_EQ(m_project->get_object("Steel"), &steel);
    stack().undo();
    EXPECT_THAT(names(), IsEmpty()) << "what was before can be undone too";
    stack().redo();
    stack().redo();
    EXPECT_THAT(projects(), IsEmpty());
}

TEST_F(MessageProxyTest, MakesANameUniqueThatAProjectHas)
{
    EXPECT_TRUE(vxMsg::runCommand(1030, 1, {"Materials"}));
    ASSERT_EQ(projects().size(), 2U);
    EXPECT_THAT(projects()[1], testing::StartsWith("Materials"));
    EXPECT_NE(projects()[1], "Materials");
}

// --- What is not known ---

TEST_F(MessageProxyTest, ReportsCodesThatItDoesNotKnow)
{
    const vxtest::Reports reports;
    for (const int code : {0, -1, 3, 1027, 1028, 4711})
        EXPECT_FALSE(vxMsg::runCommand(code, 1, {"Materials"})) << code;
    for (const int code : {0, -1, 22, 1030, 1028, 4711})
        EXPECT_FALSE(vxMsg::doCommand({code, "Materials", "Steel", 0.0})) << code;
    EXPECT_EQ(reports.errors(), 12);
    EXPECT_THAT(reports.text(), HasSubstr("The request 4711 is not known; nothing was done."));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(projects(), ElementsAre("Materials"));
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(MessageProxyTest, ReportsNamesThatItDoesNotKnow)
{
    const vxtest::Reports reports;
    EXPECT_FALSE(vxMsg::runCommand(22, 1, {"Others"}));
    EXPECT_FALSE(vxMsg::doCommand({1027, "Others %1", "Steel", 0.0}));
    EXPECT_FALSE(vxMsg::doCommand({3, "Others", "Steel", 0.0}));
    EXPECT_FALSE(vxMsg::doCommand({3, "Materials", "%1 %2", 0.0}));
    EXPECT_FALSE(vxMsg::doCommand({3, "Materials", "", 0.0}));
    EXPECT_EQ(reports.errors(), 5);
    EXPECT_THAT(reports.text(), HasSubstr("There is no project \"Others %1\"; nothing was done."));
    EXPECT_THAT(reports.text(), HasSubstr("The project \"Materials\" has no object \"%1 %2\"; nothing was done."));
    EXPECT_THAT(projects(), ElementsAre("Materials"));
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(MessageProxyTest, ReportsCountsThatAreNotThoseOfTheNames)
{
    const vxtest::Reports reports;
    EXPECT_FALSE(vxMsg::runCommand(1030, 2, {"a"}));
    EXPECT_FALSE(vxMsg::runCommand(1030, 1, {"a", "b"}));
    EXPECT_FALSE(vxMsg::runCommand(1030, 2, {"a", "b"}));
    EXPECT_FALSE(vxMsg::runCommand(22, 0, {}));
    EXPECT_FALSE(vxMsg::runCommand(22, 1, {}));
    EXPECT_FALSE(vxMsg::runCommand(22, -1, {"Materials"}));
    EXPECT_EQ(reports.errors(), 6);
    EXPECT_THAT(reports.text(), HasSubstr("The request 1030 takes one name; nothing was done."));
    EXPECT_THAT(projects(), ElementsAre("Materials"));
    EXPECT_EQ(stack().count(), 0);
}

TEST_F(MessageProxyTest, ReportsThatAllIdsAreUsedUp)
{
    m_project->skip_object_ids(4294967296);
    const vxtest::Reports reports;
    EXPECT_FALSE(add("Steel"));
    EXPECT_EQ(reports.errors(), 1);
    EXPECT_EQ(stack().count(), 0);
}

// --- Objects ---

TEST_F(MessageProxyTest, AddsAMaterialThatUndoTakesAwayAndRedoBringsBack)
{
    MaterialObject& steel = material("Steel");
    EXPECT_EQ(steel.getObjectId(), 1U);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Add \"Steel\""));
    steel.initCMaterial(vxMat::eMaterialType::StructuralSteel);
    stack().undo();
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(steel.get_project(), nullptr) << "it is kept";
    stack().redo();
    EXPECT_EQ(m_project->get_object("Steel"), &steel);
    EXPECT_EQ(steel.getObjectId(), 1U);
    EXPECT_EQ(steel.getCMaterial()->properties.size(), 9U) << "with what it had become";
}

TEST_F(MessageProxyTest, BringsBackTheVeryObjectWithItsMaterialWhenADeletionIsUndone)
{
    material("Air");
    MaterialObject& steel = material("Steel");
    material("Water");
    steel.initCMaterial(vxMat::eMaterialType::StructuralSteel);
    steel.label.setValue("Baustahl");
    const vxMat::CMaterial* const content = steel.getCMaterial();
    EXPECT_TRUE(remove("Steel"));
    EXPECT_THAT(names(), ElementsAre("Air", "Water"));
    EXPECT_EQ(stack().undoText(), QStringLiteral("Delete \"Baustahl\""));
    stack().undo();
    EXPECT_THAT(names(), ElementsAre("Air", "Steel", "Water"));
    EXPECT_EQ(m_project->get_object("Steel"), &steel);
    EXPECT_EQ(m_project->get_object(2U), &steel);
    EXPECT_EQ(steel.label.getValue(), "Baustahl");
    EXPECT_EQ(steel.getCMaterial(), content);
    EXPECT_EQ(content->properties.size(), 9U);
    EXPECT_EQ(steel.getObjectState(), Obj::eVXObjectState::Ready);
    stack().redo();
    EXPECT_THAT(names(), ElementsAre("Air", "Water"));
}

TEST_F(MessageProxyTest, NeverGivesAnIdTwiceThroughUndoAndRedo)
{
    material("a");
    material("b");
    stack().undo();
    EXPECT_EQ(material("c").getObjectId(), 3U) << "the redo of b is gone, but not its id";
    EXPECT_TRUE(remove("c"));
    stack().undo();
    stack().redo();
    EXPECT_EQ(material("d").getObjectId(), 4U);
    stack().undo();
    stack().undo();
    EXPECT_EQ(material("e").getObjectId(), 5U);
    EXPECT_THAT(names(), ElementsAre("a", "c", "e"));
}

TEST_F(MessageProxyTest, ComesThroughTenThousandMaterialsDeletedInRandomOrderAndAllUndone)
{
    constexpr int count = 10000;
    for (int i = 0; i < count; ++i)
        ASSERT_TRUE(add("Material"));
    const std::vector<ProjectObject*> objects = m_project->get_objects();
    const std::vector<std::string> namesBefore = names();
    ASSERT_EQ(objects.size(), 10000U);
    for (std::size_t i = 0; i < objects.size(); ++i)
        objects[i]->label.setValue("label " + std::to_string(i));
    std::vector<std::string> order = namesBefore;
    std::mt19937 random(3);
    std::shuffle(order.begin(), order.end(), random);
    for (const std::string& name : order)
        ASSERT_TRUE(remove(name));
    EXPECT_EQ(m_project->get_object_count(), 0U);
    EXPECT_EQ(stack().count(), 2 * count);

    for (int i = 0; i < count; ++i)
        stack().undo();
    EXPECT_EQ(m_project->get_objects(), objects) << "the very objects, in the same order";
    EXPECT_EQ(names(), namesBefore);
    for (std::size_t i = 0; i < objects.size(); ++i) {
        ASSERT_EQ(objects[i]->getObjectId(), i + 1);
        ASSERT_EQ(objects[i]->label.getValue(), "label " + std::to_string(i));
        ASSERT_EQ(m_project->get_object(namesBefore[i]), objects[i]);
    }
    stack().setIndex(0);
    EXPECT_EQ(m_project->get_object_count(), 0U) << "their creation undone too";
    EXPECT_EQ(material("next").getObjectId(), 10001U);
}

TEST_F(MessageProxyTest, TakesLabelsOfEveryKind)
{
    for (const std::string& label :
         {std::string(), std::string(10000, 'x'), std::string("结构钢"), std::string("%1 %2")}) {
        MaterialObject& object = material("Material");
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
        EXPECT_EQ(material(name).get_name_in_project(), name);
        EXPECT_EQ(stack().undoText(), QStringLiteral("Add \"") + QString::fromStdString(name) + QLatin1Char('"'));
        EXPECT_TRUE(remove(name));
    }
    EXPECT_STREQ(material("").get_name_in_project(), "Object");
}

TEST_F(MessageProxyTest, TellsOnceOfAnObjectThatARequestMade)
{
    std::vector<const ProjectObject*> made;
    const boost::signals2::scoped_connection connection =
        MessageProxy::instance().objectCreated.connect([&](ProjectObject& object) {
            EXPECT_EQ(object.get_project(), m_project);
            made.push_back(&object);
        });
    const MaterialObject& steel = material("Steel");
    EXPECT_THAT(made, ElementsAre(&steel));
    stack().undo();
    stack().redo();
    EXPECT_TRUE(remove("Steel"));
    stack().undo();
    EXPECT_EQ(made.size(), 1U);
    m_project->add_object("Mat::MaterialObject", "direct");
    EXPECT_EQ(made.size(), 1U) << "nobody requested it";
}

TEST_F(MessageProxyTest, TellsOnceOfAProjectThatARequestMade)
{
    std::vector<std::string> made;
    const boost::signals2::scoped_connection connection = MessageProxy::instance().projectCreated.connect(
        [&made](const Obj::Project& project) { made.emplace_back(project.get_name()); });
    EXPECT_TRUE(MessageProxy::instance().newProject("Alloys"));
    stack().undo();
    stack().redo();
    EXPECT_THAT(made, ElementsAre("Alloys"));
    EXPECT_TRUE(MessageProxy::instance().closeProject("Alloys"));
    stack().undo();
    EXPECT_NE(MessageProxy::instance().openProject("Opened", [](Obj::Project&) {}), nullptr);
    EXPECT_EQ(made.size(), 1U);
}

TEST_F(MessageProxyTest, DoesWhatIsRequestedThoughAListenerFails)
{
    const boost::signals2::scoped_connection connection = MessageProxy::instance().objectCreated.connect(
        [this](ProjectObject&) { throw std::runtime_error("I cannot fill " + names().back()); });
    const vxtest::Reports reports;
    EXPECT_TRUE(add("Steel"));
    EXPECT_THAT(reports.text(), HasSubstr("I cannot fill Steel"));
    EXPECT_EQ(stack().count(), 1);
    stack().undo();
    EXPECT_THAT(names(), IsEmpty());
}

// --- What happens past the proxy ---

TEST_F(MessageProxyTest, MakesObjectsUndoableThatAreAddedWithoutARequest)
{
    const ProjectObject* const object = m_project->add_object("Mat::MaterialObject", "Imported");
    EXPECT_EQ(stack().count(), 1);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Add \"Imported\""));
    stack().undo();
    EXPECT_THAT(names(), IsEmpty());
    stack().redo();
    EXPECT_EQ(m_project->get_object("Imported"), object);
}

TEST_F(MessageProxyTest, WatchesProjectsThatWereMadeWithoutARequest)
{
    Obj::Project* const project = application().create_project("Mat::DocumentMaterial", "Direct");
    ASSERT_NE(project, nullptr);
    project->add_object("Mat::MaterialObject", "Imported");
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(MessageProxyTest, WatchesAProjectOnceThatWasAwayAndCameBack)
{
    application().restore_project(application().take_project(*m_project));
    m_project->add_object("Mat::MaterialObject", "a");
    EXPECT_EQ(stack().count(), 1);
    EXPECT_TRUE(vxMsg::runCommand(22, 1, {"Materials"}));
    stack().undo();
    m_project->add_object("Mat::MaterialObject", "b");
    EXPECT_EQ(stack().count(), 2) << "the closing can be redone no more";
    stack().undo();
    EXPECT_THAT(names(), ElementsAre("a"));
}

TEST_F(MessageProxyTest, EndsTheHistoryWhenAProjectIsClosedDirectly)
{
    material("Steel");
    EXPECT_TRUE(application().close_project(*m_project));
    EXPECT_EQ(stack().count(), 0);
    EXPECT_FALSE(stack().canUndo());
}

TEST_F(MessageProxyTest, EndsTheHistoryWhenAnObjectIsDestroyedDirectly)
{
    material("Steel");
    material("Air");
    EXPECT_TRUE(m_project->remove_object(1));
    EXPECT_EQ(stack().count(), 0);
    EXPECT_THAT(names(), ElementsAre("Air"));
}

TEST_F(MessageProxyTest, LetsObjectsOfAClosedProjectGoWithItsHistory)
{
    MaterialObject& steel = material("Steel");
    MaterialObject& air = material("Air");
    air.link_to(steel);
    EXPECT_TRUE(remove("Steel"));
    EXPECT_TRUE(vxMsg::runCommand(22, 1, {"Materials"}));
    stack().clear(); // the deleted object first, then the project
    EXPECT_THAT(projects(), IsEmpty());
}

TEST_F(MessageProxyTest, LeavesTheStackWholeWhenAListenerAddsAnObjectDuringAnUndo)
{
    material("Steel");
    int calls = 0;
    m_project->objectRemoved.connect([&](ProjectObject&) {
        ++calls;
        m_project->add_object("Mat::MaterialObject", "Substitute");
    });
    stack().undo();
    EXPECT_EQ(calls, 1);
    EXPECT_THAT(names(), ElementsAre("Substitute"));
    EXPECT_EQ(stack().count(), 1);
    stack().redo();
    EXPECT_THAT(names(), ElementsAre("Steel", "Substitute"));
}

TEST_F(MessageProxyTest, RefusesRequestsOfListenersDuringAnUndo)
{
    material("Steel");
    std::vector<bool> answers;
    m_project->objectAdded.connect([&answers](ProjectObject&) {
        answers = {add("a"), remove("Steel"), vxMsg::runCommand(22, 1, {"Materials"}),
                   vxMsg::runCommand(1030, 1, {"Second"})};
    });
    stack().undo();
    const vxtest::Reports reports;
    stack().redo();
    EXPECT_THAT(answers, ElementsAre(false, false, false, false));
    EXPECT_EQ(reports.errors(), 4);
    EXPECT_THAT(reports.text(), HasSubstr("Nothing can be requested while something is undone or redone"));
    EXPECT_THAT(names(), ElementsAre("Steel"));
    EXPECT_THAT(projects(), ElementsAre("Materials"));
    EXPECT_EQ(stack().count(), 1);
}

/// A step of somebody else's on the same stack.
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
    MessageProxy::instance().pushDone(std::make_unique<OtherCommand>(QStringLiteral("edit"), notes));
    EXPECT_EQ(stack().undoText(), QStringLiteral("edit"));
    stack().undo();
    EXPECT_THAT(notes, ElementsAre("redo edit", "undo edit"));
}

TEST_F(MessageProxyTest, EndsTheHistoryWhenOthersPushAStepDuringAnUndo)
{
    material("Steel");
    std::vector<std::string> notes;
    m_project->objectRemoved.connect([&notes](ProjectObject&) {
        MessageProxy::instance().pushDone(std::make_unique<OtherCommand>(QStringLiteral("edit"), notes));
    });
    stack().undo();
    EXPECT_EQ(stack().count(), 0);
    EXPECT_THAT(notes, IsEmpty());
    EXPECT_THAT(names(), IsEmpty());
}

// --- Groups ---

TEST_F(MessageProxyTest, UndoesAGroupInOneStep)
{
    material("Air");
    {
        const MessageProxy::Group group(QStringLiteral("Three changes"));
        material("Steel");
        m_project->add_object("Mat::MaterialObject", "Imported");
        EXPECT_TRUE(remove("Air"));
    }
    EXPECT_EQ(stack().count(), 2);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Three changes"));
    EXPECT_THAT(names(), ElementsAre("Steel", "Imported"));
    stack().undo();
    EXPECT_THAT(names(), ElementsAre("Air"));
    stack().redo();
    EXPECT_THAT(names(), ElementsAre("Steel", "Imported"));
}

TEST_F(MessageProxyTest, LeavesNoTraceOfAGroupInWhichNothingHappens)
{
    const vxtest::Reports reports;
    material("Air");
    stack().undo();
    {
        const MessageProxy::Group group(QStringLiteral("Nothing"));
        EXPECT_FALSE(remove("Nobody"));
    }
    EXPECT_EQ(stack().count(), 1);
    EXPECT_TRUE(stack().canRedo()) << "not even the redo is gone";
}

TEST_F(MessageProxyTest, NamesNestedGroupsByTheOutermost)
{
    {
        const MessageProxy::Group outer(QStringLiteral("Outer"));
        {
            const MessageProxy::Group inner(QStringLiteral("Inner"));
            material("a");
        }
        material("b");
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
        material("a");
        material("b");
    }
    EXPECT_EQ(stack().count(), 1);
    EXPECT_EQ(stack().undoText(), QStringLiteral("Add \"a\""));
}

TEST_F(MessageProxyTest, EndsTheHistoryBehindAGroupInWhichAnObjectIsDestroyed)
{
    material("Air");
    {
        const MessageProxy::Group group(QStringLiteral("Group"));
        material("Steel");
        EXPECT_TRUE(m_project->remove_object(1));
    }
    EXPECT_EQ(stack().count(), 0);
    EXPECT_THAT(names(), ElementsAre("Steel"));
    material("Water");
    EXPECT_EQ(stack().count(), 1) << "and begins anew";
}

TEST_F(MessageProxyTest, UndoesWhatListenersAddBecauseOfARequestWithIt)
{
    boost::signals2::scoped_connection connection = m_project->objectAdded.connect([this](ProjectObject& object) {
        if (object.label.getValue() == "Steel" && m_project->get_object("Coating") == nullptr)
            m_project->add_object("Mat::MaterialObject", "Coating");
    });
    material("Steel");
    EXPECT_EQ(stack().count(), 1);
    connection.disconnect();
    stack().undo();
    EXPECT_THAT(names(), IsEmpty());
    stack().redo();
    EXPECT_THAT(names(), ElementsAre("Steel", "Coating"));
}

} // namespace
