#include "GuiTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using vxtest::MessageBoxes;

/// A node that refuses the deletion of its object.
class FirmNode final : public Gui::ViewFeederProjectObject
{
public:
    Kelta::TypeInfo getTypeId() const override { return type; }
    bool onDelete(const std::vector<std::string>& subElements) override { return !subElements.empty(); }
    static void init()
    {
        initSubclass(type, "Test::FirmNode", "Gui::ViewFeederProjectObject",
                     []() -> void* { return static_cast<Kelta::RootClass*>(new FirmNode); });
    }

private:
    static inline Kelta::TypeInfo type;
};

class FirmObject final : public Obj::ProjectObject
{
public:
    Kelta::TypeInfo getTypeId() const override { return type; }
    const char* get_viewfeeder_name() const override { return "Test::FirmNode"; }
    static void init()
    {
        initSubclass(type, "Test::FirmObject", "Obj::ProjectObject",
                     []() -> void* { return static_cast<Kelta::RootClass*>(new FirmObject); });
    }

private:
    static inline Kelta::TypeInfo type;
};

/// Deletion of objects and closing of projects by the commands of the host.
class Deletion : public vxtest::Host
{
protected:
    Deletion() : project(makeProject())
    {
        FirmNode::init();
        FirmObject::init();
    }

    static std::vector<std::string> openProjects()
    {
        std::vector<std::string> names;
        for (const Obj::Project* const open : Obj::Application::get_projects())
            names.emplace_back(open->get_name());
        return names;
    }

    vxtest::TestProject& project;
};

TEST_F(Deletion, TakesSelectedObjectsOfAllProjectsInOneStep)
{
    vxtest::TestObject& first = addObject(project, "First");
    vxtest::TestObject& kept = addObject(project, "Kept");
    vxtest::TestProject& other = makeProject("Other");
    vxtest::TestObject& there = addObject(other, "There");
    undoStack().clear();
    select({&first, &there});
    const MessageBoxes boxes;
    EXPECT_TRUE(run("Std_Delete"));
    EXPECT_THAT(boxes.shown(), IsEmpty());
    EXPECT_THAT(project.getObjects(), ElementsAre(&kept));
    EXPECT_THAT(other.getObjects(), IsEmpty());
    EXPECT_EQ(undoStack().count(), 1);
    EXPECT_EQ(undoStack().undoText(), "Delete 2 objects");
    undoStack().undo();
    EXPECT_THAT(project.getObjects(), ElementsAre(&first, &kept));
    EXPECT_THAT(other.getObjects(), ElementsAre(&there));
}

TEST_F(Deletion, LeavesObjectsWhoseNodesRefuse)
{
    Obj::ProjectObject* const firm = project.add_object("Test::FirmObject", "Firm");
    ASSERT_NE(firm, nullptr);
    select({firm, &addObject(project)});
    EXPECT_TRUE(run("Std_Delete"));
    EXPECT_THAT(project.getObjects(), ElementsAre(firm));
}

TEST_F(Deletion, NamesTheObjectsThatNeedWhatIsDeleted)
{
    vxtest::TestObject& bolt = addObject(project, "Bolt");
    vxtest::TypedObject& plate = addTyped(project, "Plate");
    plate.partner.setValue(&bolt);
    vxtest::TestObject& joint = addObject(project, "Joint");
    joint.linkTo(bolt);
    addObject(project, "Bystander");
    select({&bolt});
    {
        const MessageBoxes boxes(QMessageBox::No);
        EXPECT_TRUE(run("Std_Delete"));
        ASSERT_THAT(boxes.shown(), SizeIs(1));
        EXPECT_EQ(boxes.shown().front().icon, QMessageBox::Question);
        EXPECT_EQ(boxes.shown().front().title, "Delete objects");
        EXPECT_EQ(boxes.shown().front().text,
                  "These objects refer to the objects to be deleted, and lose the references: \"Plate\", \"Joint\".\n"
                  "Delete anyway?");
        EXPECT_EQ(boxes.shown().front().parent, window.get());
    }
    EXPECT_THAT(project.getObjects(), SizeIs(4));
    const MessageBoxes boxes(QMessageBox::Yes);
    EXPECT_TRUE(run("Std_Delete"));
    EXPECT_THAT(project.getObjects(), SizeIs(3));
    EXPECT_EQ(plate.partner.getValue(), nullptr);
    undoStack().undo();
    EXPECT_EQ(plate.partner.getValue(), &bolt);
}

TEST_F(Deletion, NamesTenObjectsAtMost)
{
    vxtest::TestObject& bolt = addObject(project, "Bolt");
    for (int number = 1; number <= 12; ++number)
        addObject(project, ("Plate " + std::to_string(number)).c_str()).linkTo(bolt);
    select({&bolt});
    const MessageBoxes boxes(QMessageBox::No);
    EXPECT_TRUE(run("Std_Delete"));
    ASSERT_THAT(boxes.shown(), SizeIs(1));
    EXPECT_THAT(boxes.shown().front().text.toStdString(),
                testing::HasSubstr("\"Plate 1\", \"Plate 2\", \"Plate 3\", \"Plate 4\", \"Plate 5\", \"Plate 6\", "
                                   "\"Plate 7\", \"Plate 8\", \"Plate 9\", \"Plate 10\" and 2 more."));
}

TEST_F(Deletion, AsksNothingAboutObjectsThatAreDeletedTogetherOrNeeded)
{
    vxtest::TestObject& bolt = addObject(project, "Bolt");
    vxtest::TestObject& joint = addObject(project, "Joint");
    vxtest::TestObject& plate = addObject(project, "Plate");
    joint.linkTo(bolt);
    joint.linkTo(plate);
    select({&bolt, &joint});
    const MessageBoxes boxes(QMessageBox::No);
    EXPECT_TRUE(run("Std_Delete"));
    EXPECT_THAT(boxes.shown(), IsEmpty());
    EXPECT_THAT(project.getObjects(), ElementsAre(&plate));
}

TEST_F(Deletion, PassesOverObjectsThatAListenerDeletes)
{
    vxtest::TestObject& first = addObject(project, "First");
    vxtest::TestObject& second = addObject(project, "Second");
    vxtest::TestObject& third = addObject(project, "Third");
    const boost::signals2::scoped_connection connection =
        project.objectRemoved.connect([&](const Obj::ProjectObject& removed) {
            if (&removed == &first)
                vxMsg::MessageProxy::instance().deleteObject(project.get_name(), second.get_name_in_project());
        });
    select({&first, &second, &third});
    const std::size_t errors = Kelta::MessageLog::instance().errorCount();
    EXPECT_TRUE(run("Std_Delete"));
    EXPECT_THAT(project.getObjects(), IsEmpty());
    EXPECT_EQ(Kelta::MessageLog::instance().errorCount(), errors);
}

TEST_F(Deletion, ClosesTheSelectedProjectBeforeTheCurrentOne)
{
    makeProject("Other");
    selection().setSelection({&project}, {});
    EXPECT_TRUE(run("Std_CloseProject"));
    EXPECT_THAT(openProjects(), ElementsAre("Other"));
    undoStack().undo();
    EXPECT_THAT(openProjects(), ElementsAre("Project", "Other"));
}

TEST_F(Deletion, ClosesTheProjectOfTheSelectedObject)
{
    vxtest::TestObject& object = addObject(project);
    vxtest::TestProject& other = makeProject("Other");
    select({&object});
    Obj::Application::instance().setCurrentProject(other);
    EXPECT_TRUE(run("Std_CloseProject"));
    EXPECT_THAT(openProjects(), ElementsAre("Other"));
}

TEST_F(Deletion, ClosesTheCurrentProjectWithoutASelection)
{
    makeProject("Other");
    selection().clear();
    EXPECT_TRUE(run("Std_CloseProject"));
    EXPECT_THAT(openProjects(), ElementsAre("Project"));
}

TEST_F(Deletion, EndsAtAProjectThatIsKeptOpen)
{
    vxtest::TestProject& other = makeProject("Other");
    vxtest::TestProject& last = makeProject("Last");
    selection().setSelection({&project, &other, &last}, {});
    const boost::signals2::scoped_connection keeper = vxMsg::MessageProxy::instance().projectClosing.connect(
        [&other](Obj::Project& closing, bool& refused) { refused = &closing == &other; });
    EXPECT_TRUE(run("Std_CloseProject"));
    EXPECT_THAT(openProjects(), ElementsAre("Other", "Last"));
}

TEST_F(Deletion, SelectsTheNeighbour)
{
    std::vector<Obj::ProjectObject*> objects;
    for (const char* const label : {"A", "B", "C", "D"})
        objects.push_back(&addObject(project, label));
    const auto selected = [] { return selection().get_objects_of_type(Obj::ProjectObject::getClassTypeId()); };
    const auto expectAfterDeletion = [&](const std::vector<Obj::ProjectObject*>& deleted,
                                         Obj::ProjectObject* neighbour) {
        focusExplorer();
        select(deleted);
        EXPECT_TRUE(run("Std_Delete"));
        EXPECT_TRUE(vxtest::waitFor([&] { return selection().getCount() == 1; }));
        EXPECT_THAT(selected(), ElementsAre(neighbour));
        EXPECT_EQ(explorer().currentIndex(), model().indexOf(*neighbour));
    };
    expectAfterDeletion({objects[1]}, objects[2]);
    expectAfterDeletion({objects[3]}, objects[2]);
    expectAfterDeletion({objects[0]}, objects[2]);
    EXPECT_TRUE(run("Std_Delete"));
    EXPECT_TRUE(vxtest::waitFor([&] { return selection().getCount() == 1; }));
    EXPECT_THAT(selection().get_projects(), ElementsAre(&project));
}

TEST_F(Deletion, SelectsNothingElseWhileOtherObjectsAreSelected)
{
    vxtest::TestObject& first = addObject(project, "First");
    vxtest::TestObject& second = addObject(project, "Second");
    addObject(project, "Third");
    focusExplorer();
    select({&first, &second});
    EXPECT_TRUE(project.removeObject(first.getObjectId()));
    QCoreApplication::processEvents();
    EXPECT_TRUE(selection().is_selected(&second, nullptr));
    EXPECT_EQ(selection().getCount(), 1U);
}

} // namespace
