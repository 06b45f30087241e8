#include "Gui/GuiApplication.h"

#include "GuiTesting.h"

#include <stdexcept>

namespace {

using testing::HasSubstr;

/// Runs a function that throws when the object receives an event.
class Thrower : public QObject
{
public:
    explicit Thrower(std::function<void()> action) : m_action(std::move(action)) {}
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::User)
            m_action();
        return QObject::event(event);
    }

private:
    std::function<void()> m_action;
};

using Application = vxtest::Host;

TEST_F(Application, IsTheOneInstance)
{
    EXPECT_EQ(Gui::GuiApplication::Instance, qApp);
}

TEST_F(Application, DoesNotEndByWhatReachesItsEventLoop)
{
    Thrower thrower([] { throw std::runtime_error("no more memory cards"); });
    QCoreApplication::postEvent(&thrower, new QEvent(QEvent::User));
    QCoreApplication::processEvents();
    EXPECT_EQ(lastMessage(), "An error occurred: no more memory cards");
    Thrower other([] { throw 42; });
    QCoreApplication::postEvent(&other, new QEvent(QEvent::User));
    QCoreApplication::processEvents();
    EXPECT_THAT(lastMessage(), HasSubstr("an exception of an unknown kind"));
}

TEST_F(Application, HasTheUsersSideOfEachOpenProject)
{
    EXPECT_EQ(Gui::GuiApplication::Instance->get_current_project(), nullptr);
    EXPECT_EQ(Gui::GuiApplication::Instance->get_project(nullptr), nullptr);
    vxtest::TestProject& first = makeProject("First");
    vxtest::TestProject& second = makeProject("Second");
    Gui::GuiProject* const side = Gui::GuiApplication::Instance->get_project(&first);
    ASSERT_NE(side, nullptr);
    EXPECT_EQ(&side->get_project(), &first);
    EXPECT_EQ(Gui::GuiApplication::Instance->get_current_project(),
              Gui::GuiApplication::Instance->get_project(&second));
    const auto closed = Obj::Application::instance().takeProject(first);
    EXPECT_EQ(Gui::GuiApplication::Instance->get_project(&first), nullptr);
}

TEST_F(Application, HasTheNodesOfObjectsInOpenProjectsAlone)
{
    EXPECT_EQ(Gui::GuiApplication::Instance->get_view_feeder(nullptr), nullptr);
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& object = addObject(project);
    EXPECT_NE(Gui::GuiApplication::Instance->get_view_feeder(&object), nullptr);
    const auto taken = project.takeObject(object.getObjectId());
    EXPECT_EQ(Gui::GuiApplication::Instance->get_view_feeder(taken.get()), nullptr);
}

TEST_F(Application, ForgetsAView)
{
    vxtest::TestProject& project = makeProject();
    Gui::GuiProject* const side = Gui::GuiApplication::Instance->get_project(&project);
    Gui::MDIWindow view(side, nullptr);
    EXPECT_EQ(side->getViews().size(), 1U);
    Gui::GuiApplication::Instance->disconnect_view(&view);
    Gui::GuiApplication::Instance->disconnect_view(&view);
    EXPECT_TRUE(side->getViews().empty());
}

} // namespace
