#include "Gui/TreeSelectionSingleton.h"

#include "GuiTesting.h"

#include <QSignalSpy>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Selection = vxtest::Host;

TEST_F(Selection, ListsProjectsAndObjectsInTheOrderOfTheTree)
{
    vxtest::TestProject& first = makeProject("First");
    vxtest::TestProject& second = makeProject("Second");
    vxtest::TestObject& a = addObject(first);
    vxtest::TestObject& b = addObject(first);
    vxtest::TestObject& c = addObject(second);
    selection().setSelection({&second, &first}, {&c, &b, &a});
    const auto type = Obj::ProjectObject::getClassTypeId();
    EXPECT_THAT(selection().get_projects(), ElementsAre(&first, &second));
    EXPECT_THAT(selection().get_objects_of_type(type), ElementsAre(&a, &b, &c));
    EXPECT_THAT(selection().get_objects_of_type(type, ""), ElementsAre(&a, &b, &c));
    EXPECT_THAT(selection().get_objects_of_type(type, "First"), ElementsAre(&a, &b));
    EXPECT_THAT(selection().get_objects_of_type(type, "Third"), IsEmpty());
    EXPECT_THAT(selection().get_objects_of_type(Kelta::TypeInfo(), "First"), IsEmpty());
    EXPECT_EQ(selection().getCount(), 5U);
}

TEST_F(Selection, ListsProjectsByTheirTag)
{
    vxtest::TestProject& project = makeProject();
    selection().select(project);
    EXPECT_THAT(selection().get_projects(2), IsEmpty());
    EXPECT_THAT(selection().get_projects(static_cast<std::uint32_t>(project.getDocumentTag())), ElementsAre(&project));
}

TEST_F(Selection, KeepsEntriesByNameSoThatTheirObjectsMayGo)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& object = addObject(project, "Beam");
    selection().select(object);
    const auto entries = selection().get_selection2("Project", Obj::ProjectObject::getClassTypeId());
    ASSERT_THAT(entries, SizeIs(1));
    EXPECT_EQ(entries[0].get_object(), &object);
    EXPECT_EQ(entries[0].getProjectName(), "Project");
    EXPECT_EQ(entries[0].getObjectName(), "Beam");
    EXPECT_THAT(entries[0].getSubelementNames(), IsEmpty());
    project.removeObject(object.getObjectId());
    EXPECT_EQ(entries[0].get_object(), nullptr);
    Obj::Application::instance().closeProject(project);
    EXPECT_EQ(entries[0].get_object(), nullptr);
}

TEST_F(Selection, LosesEntriesThatLeaveTheTreeAndNotifiesOnce)
{
    vxtest::TestProject& project = makeProject();
    std::vector<Obj::ProjectObject*> objects;
    for (int i = 0; i < 100; ++i)
        objects.push_back(&addObject(project));
    select(objects);
    QSignalSpy spy(&selection(), &Gui::TreeSelectionSingleton::selectionChanged);
    for (int i = 0; i < 99; ++i)
        project.removeObject(objects[static_cast<std::size_t>(i)]->getObjectId());
    EXPECT_EQ(selection().getCount(), 1U);
    EXPECT_EQ(spy.count(), 0);
    EXPECT_TRUE(spy.wait());
    EXPECT_EQ(spy.count(), 1);
}

TEST_F(Selection, LosesAProjectAndItsObjectsWhenTheProjectCloses)
{
    vxtest::TestProject& project = makeProject();
    selection().setSelection({&project}, {&addObject(project)});
    Obj::Application::instance().closeProject(project);
    EXPECT_EQ(selection().getCount(), 0U);
    EXPECT_THAT(selection().get_projects(), IsEmpty());
}

TEST_F(Selection, ReturnsObjectsThatAreSelectedAsAWhole)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& object = addObject(project);
    EXPECT_FALSE(selection().is_selected(&object, nullptr));
    selection().select(object);
    EXPECT_TRUE(selection().is_selected(&object, nullptr));
    EXPECT_FALSE(selection().is_selected(&object, "part"));
    EXPECT_FALSE(selection().is_selected(static_cast<Obj::ProjectObject*>(nullptr), nullptr));
    selection().deselect(object);
    EXPECT_FALSE(selection().is_selected(&object, nullptr));
}

TEST_F(Selection, SaysWhenItChangesAndOnlyThen)
{
    vxtest::TestProject& project = makeProject();
    vxtest::TestObject& object = addObject(project);
    QSignalSpy spy(&selection(), &Gui::TreeSelectionSingleton::selectionChanged);
    selection().select(object);
    selection().select(object);
    selection().select(project);
    selection().deselect(project);
    selection().deselect(project);
    selection().clear();
    selection().clear();
    EXPECT_EQ(spy.count(), 4);
}

} // namespace
