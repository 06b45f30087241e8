#include "HostTesting.h"

#include "Obj/Application.h"
#include "vxMsg/MessageProxy.h"

#include <gmock/gmock.h>

#include <stdexcept>
#include <utility>

namespace {

using testing::HasSubstr;
using vxMsg::MessageProxy;

bool constructorsThrow = false;
bool configuringThrows = false;
bool addsAnotherWhenConfigured = false;
bool removesItselfWithWhatItNeeds = false;
bool restoredThrowsNoException = false;

class FailingObject : public Obj::ProjectObject
{
public:
    FailingObject()
    {
        if (constructorsThrow)
            throw std::runtime_error("no object of 100 %1");
    }
    static void* create() { return static_cast<Kelta::RootClass*>(new FailingObject); }
    static inline Kelta::TypeInfo type;
    Kelta::TypeInfo getTypeId() const override { return type; }
    void on_project_restored() override
    {
        if (restoredThrowsNoException)
            throw 42;
    }
    void on_break_object_link(Obj::ProjectObject*) override
    {
        if (removesItselfWithWhatItNeeds)
            get_project()->remove_object(getObjectId());
    }

protected:
    void on_configuring_project() override
    {
        if (configuringThrows)
            throw 42;
        if (std::exchange(addsAnotherWhenConfigured, false))
            get_project()->add_object("Mat::MaterialObject", "companion");
    }
};

class FailingProject : public Obj::Project
{
public:
    FailingProject()
    {
        if (constructorsThrow)
            throw std::runtime_error("no project");
    }
    static void* create() { return static_cast<Kelta::RootClass*>(new FailingProject); }
    static inline Kelta::TypeInfo type;
    Kelta::TypeInfo getTypeId() const override { return type; }
};

class FailingClassTest : public testing::Test
{
protected:
    FailingClassTest()
    {
        Obj::initObj();
        Kelta::RootClass::initSubclass(FailingProject::type, "Mat::DocumentMaterial", "Obj::Project",
                                       &FailingProject::create);
        Kelta::RootClass::initSubclass(FailingObject::type, "Mat::MaterialObject", "Obj::ProjectObject",
                                       &FailingObject::create);
        EXPECT_TRUE(vxMsg::runCommand(1030, 1, {"Project"}));
        m_project = Obj::Application::instance().get_project("Project");
    }
    ~FailingClassTest() override
    {
        constructorsThrow = configuringThrows = addsAnotherWhenConfigured = false;
        removesItselfWithWhatItNeeds = restoredThrowsNoException = false;
        MessageProxy::instance().undoStack().clear();
        Obj::Application::instance().close_all_projects();
    }

    static QUndoStack& stack() { return MessageProxy::instance().undoStack(); }

    Obj::Project* m_project = nullptr;
};

TEST_F(FailingClassTest, WhatAConstructorThrowsIsReportedAndChangesNothing)
{
    constructorsThrow = true;
    const vxtest::Reports reports;
    EXPECT_FALSE(vxMsg::doCommand({1027, "Project", "a", 0.0}));
    EXPECT_FALSE(vxMsg::runCommand(1030, 1, {"Second"}));
    EXPECT_EQ(reports.errors(), 2);
    EXPECT_THAT(reports.text(), HasSubstr("A request failed: no object of 100 %1\n"));
    EXPECT_THAT(reports.text(), HasSubstr("A request failed: no project\n"));
    EXPECT_EQ(m_project->get_object_count(), 0U);
    EXPECT_EQ(Obj::Application::get_projects().size(), 1U);
    EXPECT_EQ(stack().count(), 1) << "the project of the test";
}

TEST_F(FailingClassTest, WhatIsThrownWithoutATextIsReportedToo)
{
    configuringThrows = true;
    const vxtest::Reports reports;
    EXPECT_FALSE(vxMsg::doCommand({1027, "Project", "a", 0.0}));
    EXPECT_THAT(reports.text(), HasSubstr("A request failed: an exception of an unknown kind"));
    EXPECT_EQ(m_project->get_object_count(), 0U);
    EXPECT_EQ(stack().count(), 1);
    configuringThrows = false;
    EXPECT_TRUE(vxMsg::doCommand({1027, "Project", "a", 0.0})) << "the next request is not disturbed";
}

TEST_F(FailingClassTest, AnObjectThatComesWithAnotherGoesAndComesWithItInOneStep)
{
    addsAnotherWhenConfigured = true;
    EXPECT_TRUE(vxMsg::doCommand({1027, "Project", "a", 0.0}));
    EXPECT_EQ(m_project->get_object_count(), 2U);
    EXPECT_EQ(stack().count(), 2);
    stack().undo();
    EXPECT_EQ(m_project->get_object_count(), 0U);
    stack().redo();
    EXPECT_NE(m_project->get_object("companion"), nullptr);
    EXPECT_NE(m_project->get_object("a"), nullptr);
}

TEST_F(FailingClassTest, HistoryEndsWhenAnObjectDestroysItselfWithTheOneThatItNeeds)
{
    EXPECT_TRUE(vxMsg::doCommand({1027, "Project", "a", 0.0}));
    EXPECT_TRUE(vxMsg::doCommand({1027, "Project", "b", 0.0}));
    m_project->get_object("b")->link_to(*m_project->get_object("a"));
    removesItselfWithWhatItNeeds = true;
    EXPECT_TRUE(vxMsg::doCommand({3, "Project", "a", 0.0}));
    EXPECT_EQ(m_project->get_object_count(), 0U);
    EXPECT_EQ(stack().count(), 0) << "the past cannot be had again";
}

TEST_F(FailingClassTest, AnObjectThatFailsWhenItComesBackIsBackAllTheSame)
{
    EXPECT_TRUE(vxMsg::doCommand({1027, "Project", "a", 0.0}));
    const Obj::ProjectObject* const object = m_project->get_object("a");
    stack().undo();
    restoredThrowsNoException = true;
    const vxtest::Reports reports;
    stack().redo();
    EXPECT_EQ(m_project->get_object("a"), object);
    EXPECT_EQ(reports.errors(), 1);
    stack().undo();
    EXPECT_EQ(m_project->get_object_count(), 0U);
}

TEST_F(FailingClassTest, HistoryEndsWhenAListenerClosesTheProjectDuringAnUndo)
{
    EXPECT_TRUE(vxMsg::doCommand({1027, "Project", "a", 0.0}));
    EXPECT_TRUE(vxMsg::runCommand(1030, 1, {"Other"}));
    EXPECT_TRUE(vxMsg::doCommand({1027, "Other", "b", 0.0}));
    int calls = 0;
    Obj::Project* const other = Obj::Application::instance().get_project("Other");
    other->objectRemoved.connect([&calls, this](Obj::ProjectObject&) {
        ++calls;
        Obj::Application::instance().close_project(*m_project);
    });
    stack().undo();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(stack().count(), 0);
    EXPECT_EQ(Obj::Application::get_projects().size(), 1U);
}

} // namespace
