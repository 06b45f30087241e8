#include "FilesTesting.h"
#include "FrameModule.h"
#include "HostTesting.h"

#include "Obj/ProjectObjectGroup.h"
#include "projectfile/ProjectFile.h"

#include <QAction>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using vxtest::Answers;
using vxtest::Beam;
using vxtest::Frame;

/// Files of projects of a module that the program does not know.
class FrameFiles : public vxtest::FilesWindow
{
protected:
    FrameFiles() { vxtest::registerFrames(); }

    static vxMsg::MessageProxy& requests() { return vxMsg::MessageProxy::instance(); }

    static Frame& newFrame()
    {
        if (!requests().newProject("vxtest::Frame", "Frame"))
            throw std::logic_error("a frame was not made");
        return frame();
    }
    static Frame& frame() { return dynamic_cast<Frame&>(*Obj::Application::get_current_project()); }

    template <class Object>
    static Object& add(const char* className, const char* name)
    {
        if (!requests().addObject(frame().get_name(), className, name))
            throw std::logic_error("an object was not added");
        return dynamic_cast<Object&>(*frame().get_object(name));
    }
    static Beam& addBeam(const char* name) { return add<Beam>("vxtest::Beam", name); }
    static Beam& beam(const char* name) { return dynamic_cast<Beam&>(*frame().get_object(name)); }

    static bool set(const Obj::ProjectObject& object, const char* property, const char* text)
    {
        return requests().setProperty(vxMsg::PropertyPlace(object), property, text);
    }
    static vxtest::BeamNode& node(Beam& beam)
    {
        return dynamic_cast<vxtest::BeamNode&>(*Gui::GuiApplication::Instance->get_view_feeder(&beam));
    }
    /// Closes the frame with the command of the menu. Returns whether the frame is closed.
    static bool close()
    {
        const std::size_t open = Obj::Application::get_projects().size();
        return run("Std_CloseProject") && Obj::Application::get_projects().size() < open;
    }
    bool isModified() const { return files->isModified(frame()); }

    /// Makes a frame of two beams in a group. No value is the default.
    static void buildFrame()
    {
        Frame& project = newFrame();
        project.site.setValue("Aachen");
        project.standard = "EN 1993";
        Beam& column = addBeam("Column");
        Beam& girder = addBeam("Girder");
        auto& group = add<Obj::ProjectObjectGroup>("Obj::ProjectObjectGroup", "Bay");
        EXPECT_TRUE(set(girder, "Length", "6.25"));
        EXPECT_TRUE(set(girder, "Hollow", "true"));
        EXPECT_TRUE(set(girder, "Profile", "tube"));
        EXPECT_TRUE(set(girder, "Support", "Column"));
        girder.loads = {1e3, 0.1};
        girder.label.setValue("Girder \xE9\x92\xA2");
        girder.linkTo(column);
        column.setSuppressed(true);
        node(girder).lineWidth.setValue(4);
        group.addMember(column);
        group.addMember(girder);
    }
};

TEST_F(FrameFiles, GiveBackEverythingThatAModuleKeeps)
{
    buildFrame();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(close());
    history().clear();
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));

    EXPECT_EQ(frame().site.getValue(), "Aachen");
    EXPECT_EQ(frame().standard, "EN 1993");
    Beam& girder = beam("Girder");
    EXPECT_EQ(girder.getObjectId(), 2U);
    EXPECT_EQ(girder.label.getValue(), "Girder \xE9\x92\xA2");
    EXPECT_EQ(girder.length.getValue(), 6.25);
    EXPECT_TRUE(girder.hollow.getValue());
    EXPECT_EQ(girder.profile.getWord(), "tube");
    EXPECT_EQ(girder.support.getValue(), &beam("Column"));
    EXPECT_THAT(girder.loads, ElementsAre(1e3, 0.1));
    EXPECT_THAT(girder.getLinks(), ElementsAre(&beam("Column")));
    EXPECT_EQ(node(girder).lineWidth.getValue(), 4);
    EXPECT_TRUE(beam("Column").isSuppressed());
    const auto& group = dynamic_cast<Obj::ProjectObjectGroup&>(*frame().get_object("Bay"));
    EXPECT_THAT(group.getMembers(), ElementsAre(&beam("Column"), &girder));
    EXPECT_FALSE(isModified());
    EXPECT_FALSE(history().canUndo());
}

TEST_F(FrameFiles, AreTheSameBytesAfterTheyWereOpened)
{
    buildFrame();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(close());
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    ASSERT_TRUE(run("Std_SaveAs", path("b.vxmat")));
    projectfile::ProjectRecord first = projectfile::readProject(contentOf(path("a.vxmat")).toStdString());
    projectfile::ProjectRecord second = projectfile::readProject(contentOf(path("b.vxmat")).toStdString());
    // The host's record contains the number of the project in this run.
    first.database = second.database;
    EXPECT_EQ(projectfile::writeProject(first), projectfile::writeProject(second));
}

TEST_F(FrameFiles, TellEachObjectThatItWasRestored)
{
    buildFrame();
    EXPECT_EQ(beam("Girder").restorations, 0);
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(close());
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    EXPECT_EQ(beam("Girder").restorations, 1);
    EXPECT_EQ(beam("Column").restorations, 1);
}

TEST_F(FrameFiles, AreSelectedWhenTheyAreOpened)
{
    newFrame();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(close());
    newFrame();
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    EXPECT_EQ(files->getFile(frame()), QFileInfo(path("a.vxmat")).canonicalFilePath());
    EXPECT_TRUE(Gui::TreeSelectionSingleton::instance().is_selected(&frame()));
}

TEST_F(FrameFiles, AreModifiedByEveryChangeAndNotByTheState)
{
    buildFrame();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    Beam& girder = beam("Girder");
    girder.check_input();
    girder.notifyChange();
    EXPECT_FALSE(isModified());
    const std::vector<std::function<void()>> changes = {
        [&] { girder.profile.setValue(0); },
        [&] { node(girder).lineWidth.setValue(2); },
        [&] { dynamic_cast<Obj::ProjectObjectGroup&>(*frame().get_object("Bay")).removeMember(girder); },
        [&] {
            girder.loads.clear();
            girder.notifyChange();
        },
        [&] { girder.setSuppressed(true); },
        [&] { frame().site.setValue("Bonn"); },
    };
    for (std::size_t index = 0; index < changes.size(); ++index) {
        changes[index]();
        EXPECT_TRUE(isModified()) << index;
        ASSERT_TRUE(run("Std_Save"));
        EXPECT_FALSE(isModified()) << index;
    }
}

TEST_F(FrameFiles, AreUnmodifiedAgainWhenAnEditOfAPropertyIsUndone)
{
    buildFrame();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(set(beam("Girder"), "Profile", "U"));
    EXPECT_TRUE(isModified());
    history().undo();
    EXPECT_EQ(beam("Girder").profile.getWord(), "tube");
    EXPECT_FALSE(isModified());
}

TEST_F(FrameFiles, AskBeforeAFrameWithChangesIsClosed)
{
    buildFrame();
    {
        const Answers answers({"Cancel"});
        EXPECT_FALSE(close());
    }
    Gui::FileDialog::answerNext(path("a.vxmat"));
    const Answers answers({"Save"});
    EXPECT_TRUE(close());
    EXPECT_TRUE(contentOf(path("a.vxmat")).contains("EN 1993"));
}

TEST_F(FrameFiles, RecoverAFrameAfterACrash)
{
    buildFrame();
    files->keepCopies();
    crash();
    const Answers answers({"Recover"});
    files->offerRecovery();
    EXPECT_EQ(frame().standard, "EN 1993");
    EXPECT_THAT(beam("Girder").loads, ElementsAre(1e3, 0.1));
    EXPECT_TRUE(isModified());
}

TEST_F(FrameFiles, KeepACopyWhenAModuleTellsOfAChange)
{
    newFrame();
    Beam& column = addBeam("Column");
    EXPECT_EQ(copies().size(), 0);
    desktop::FileService::instance()->contentChanged(column);
    EXPECT_TRUE(isModified());
    EXPECT_EQ(copies().size(), 1);
}

TEST_F(FrameFiles, LeaveNothingOpenWhenAContentCannotBeRead)
{
    buildFrame();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    writeFile(path("b.vxmat"), contentOf(path("a.vxmat")).replace("1000", "-1000"));
    Obj::Project* const before = &frame();
    const Answers answers({"OK"});
    run("Std_Open", path("b.vxmat"));
    EXPECT_THAT(answers.boxes().join('\n').toStdString(), HasSubstr("a load is negative"));
    EXPECT_THAT(Obj::Application::get_projects(), ElementsAre(before));
    EXPECT_EQ(Obj::Application::get_current_project(), before);
    EXPECT_EQ(copies().size(), 0);
}

TEST_F(FrameFiles, KeepAProjectWhoseClassIsNotAProject)
{
    newFrame();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(close());
    writeFile(path("b.vxmat"), contentOf(path("a.vxmat")).replace("vxtest::Frame", "vxtest::Beam"));
    ASSERT_TRUE(run("Std_Open", path("b.vxmat")));
    ASSERT_TRUE(run("Std_SaveAs", path("c.vxmat")));
    EXPECT_EQ(contentOf(path("c.vxmat")), contentOf(path("b.vxmat")));
}

TEST_F(FrameFiles, KeepPropertiesThatTheClassDoesNotHave)
{
    buildFrame();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(close());
    QByteArray content = contentOf(path("a.vxmat"));
    content.replace("\"Hollow\"", "\"Camber\": 0.02, \"Hollow\"")
        .replace("\"LineWidth\"", "\"Dash\": 3, \"LineWidth\"");
    content.replace("\"Site\"", "\"Altitude\": 173, \"Site\"");
    writeFile(path("b.vxmat"), content);
    const vxtest::Reports reports;
    ASSERT_TRUE(run("Std_Open", path("b.vxmat")));
    EXPECT_THAT(reports.text(), HasSubstr("Camber"));
    EXPECT_FALSE(isModified());
    beam("Girder").hollow.setValue(false);
    ASSERT_TRUE(run("Std_Save"));
    const QByteArray saved = contentOf(path("b.vxmat"));
    EXPECT_EQ(saved.count("\"Camber\": 0.02"), 2);
    EXPECT_EQ(saved.count("\"Dash\": 3"), 2);
    EXPECT_EQ(saved.count("\"Altitude\": 173"), 1);
}

TEST_F(FrameFiles, CannotImportWithoutAnImportOfTheirModule)
{
    newFrame();
    EXPECT_FALSE(run("Std_ImportDocument", path("a.json")));
}

TEST_F(FrameFiles, ForgetAClosedProjectWhenTheHistoryEnds)
{
    Frame& project = newFrame();
    ASSERT_TRUE(run("Std_SaveAs", path("a.vxmat")));
    ASSERT_TRUE(close());
    EXPECT_EQ(files->getFile(project), QFileInfo(path("a.vxmat")).canonicalFilePath()) << "closing can be undone";
    history().undo();
    Frame& again = frame();
    EXPECT_EQ(files->getFile(again), QFileInfo(path("a.vxmat")).canonicalFilePath());
    std::unique_ptr<Obj::Project, Obj::GuardedDelete> closed = Obj::Application::instance().takeProject(again);
    history().clear();
    EXPECT_EQ(files->getFile(*closed), "");
}

} // namespace
