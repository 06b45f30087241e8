#include "FilesTesting.h"
#include "FrameModule.h"
#include "HostTesting.h"
#include "SchemaJudge.h"

#include "Gui/FileDialog.h"
#include "Obj/Placeholder.h"
#include "projectfile/ExchangeImport.h"
#include "projectfile/MaterialRecord.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using vxtest::Answers;

/// Files of projects whose modules are missing.
class PlaceholderFiles : public vxtest::FilesWindow
{
protected:
    static Obj::Project& project() { return *Obj::Application::get_current_project(); }
    /// Deletes an object with the command, and presses these buttons in the questions.
    static void deleteObject(Obj::ProjectObject& object, const QStringList& buttons = {})
    {
        const Answers answers(buttons);
        Gui::TreeSelectionSingleton::instance().setSelection({}, {&object});
        EXPECT_TRUE(run("Std_Delete"));
    }
    projectfile::ProjectRecord recordIn(const char* name) const
    {
        return projectfile::readProject(contentOf(path(name)).toStdString());
    }
    static std::string textOf(projectfile::ProjectRecord record) { return projectfile::writeProject(record); }

    static QByteArray frameText()
    {
        return R"({
  "format": "vxMaterial project", "format_version": 1, "class": "absent::Frame", "name": "Frame",
  "next_object_id": 9, "properties": {"Site": "Aachen"}, "record": {"standard": "EN 1993"},
  "database": {"proj_id": 7, "owner": "Ada"}, "materials": [], "objects": [
    {"object_id": 2, "class": "absent::Beam", "name_internal": "Column", "label": "Column", "suppressed": true,
     "properties": {"Length": 1.25, "Hollow": false, "Support": null}, "node": {"LineWidth": 3},
     "settings": {"load_test": "kept"},
     "content": {"loads": [0.1, 1e300]}, "supplier": "Mill 7"},
    {"object_id": 5, "class": "absent::Beam", "name_internal": "Girder", "label": "Girder", "suppressed": false,
     "properties": {"Support": 2}, "links": [2], "content": [1, {"deep": [null, true]}]},
    {"object_id": 8, "class": "Obj::ProjectObjectGroup", "name_internal": "Bay", "label": "Bay", "suppressed": false,
     "links": [5, 2]}]})";
    }

    /// Makes a project of two materials.
    static std::string materialText()
    {
        std::vector<projectfile::ImportedMaterial> materials(2);
        for (std::uint32_t index = 0; index < 2; ++index) {
            materials[index].objectId = index + 1;
            materials[index].label = index == 0 ? "Steel" : "Foam";
            materials[index].material = std::make_unique<vxMat::MaterialBase>();
            materials[index].material->name = materials[index].label;
            auto property = std::make_unique<vxMat::MaterialProperty>(5, "Young's modulus", "E", 0.1 + index);
            property->unit = "Pa";
            materials[index].material->properties[5] = std::move(property);
        }
        projectfile::ProjectRecord record = projectfile::makeProject("Materials", std::move(materials));
        record.objects[0].colour = {0.25F, 0.5F, 0.1F, 1.0F};
        record.objects[0].further["object"]["supplier"] = "Mill 7";
        return projectfile::writeProject(record);
    }
};

TEST_F(PlaceholderFiles, SayWhichClassesAreMissing)
{
    writeFile(path("a.vxmat"), frameText());
    const vxtest::Reports reports;
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    EXPECT_THAT(reports.text(), HasSubstr("absent::Beam, absent::Frame"));
    EXPECT_EQ(reports.errors(), 0);
    const auto& placeholder = dynamic_cast<Obj::PlaceholderProject&>(project());
    EXPECT_EQ(placeholder.getOriginalClass(), "absent::Frame");
    const auto& beam = dynamic_cast<Obj::PlaceholderObject&>(*project().get_object("Column"));
    EXPECT_EQ(beam.getOriginalClass(), "absent::Beam");
    EXPECT_TRUE(beam.isSuppressed());
    EXPECT_FALSE(files->isModified(project()));
}

TEST_F(PlaceholderFiles, AreTheSameWhenNothingHasChanged)
{
    writeFile(path("a.vxmat"), frameText());
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    ASSERT_TRUE(run("Std_SaveAs", path("b.vxmat")));
    EXPECT_EQ(textOf(recordIn("b.vxmat")), textOf(recordIn("a.vxmat")));
}

TEST_F(PlaceholderFiles, ChangeOnlyWhereTheUserChangesThem)
{
    writeFile(path("a.vxmat"), frameText());
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    project().get_object("Girder")->label.setValue("Beam 1");
    EXPECT_TRUE(files->isModified(project()));
    deleteObject(*project().get_object("Column"), {"Yes"});
    ASSERT_TRUE(run("Std_SaveAs", path("b.vxmat")));
    history().undo();
    EXPECT_TRUE(files->isModified(project()));
    ASSERT_TRUE(run("Std_SaveAs", path("c.vxmat")));

    projectfile::ProjectRecord expected = recordIn("a.vxmat");
    expected.objects[1].label = "Beam 1";
    EXPECT_EQ(textOf(recordIn("c.vxmat")), textOf(std::move(expected)));
    projectfile::ProjectRecord without = recordIn("b.vxmat");
    ASSERT_EQ(without.objects.size(), 2U);
    EXPECT_THAT(without.objects[0].links, testing::IsEmpty());
    EXPECT_THAT(without.objects[1].links, ElementsAre(5U));
}

TEST_F(PlaceholderFiles, BecomeObjectsOfTheModuleWhenItIsThere)
{
    writeFile(path("a.vxmat"),
              frameText().replace("absent::", "vxtest::").replace("[1, {\"deep\": [null, true]}]", "null"));
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    ASSERT_TRUE(run("Std_SaveAs", path("b.vxmat")));
    ASSERT_TRUE(run("Std_CloseProject"));
    ASSERT_THAT(Obj::Application::get_projects(), testing::IsEmpty());
    vxtest::registerFrames();
    const Answers none;
    ASSERT_TRUE(run("Std_Open", path("b.vxmat")));
    const auto& girder = dynamic_cast<vxtest::Beam&>(*project().get_object("Girder"));
    EXPECT_EQ(girder.support.getValue(), project().get_object("Column"));
    EXPECT_THAT(dynamic_cast<vxtest::Beam&>(*project().get_object("Column")).loads, ElementsAre(0.1, 1e300));
    EXPECT_EQ(dynamic_cast<vxtest::Frame&>(project()).standard, "EN 1993");
}

TEST_F(PlaceholderFiles, AskBeforeAPlaceholderWithChangesIsClosed)
{
    writeFile(path("a.vxmat"), frameText());
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    project().get_object("Girder")->label.setValue("Beam 1");
    const Answers answers({"Discard"});
    EXPECT_TRUE(run("Std_CloseProject"));
    EXPECT_THAT(Obj::Application::get_projects(), testing::IsEmpty());
}

TEST_F(PlaceholderFiles, AreRecovered)
{
    writeFile(path("a.vxmat"), frameText());
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    project().get_object("Girder")->label.setValue("Beam 1");
    files->keepCopies();
    crash();
    {
        const Answers answers({"Recover"});
        files->offerRecovery();
    }
    // The commands belong to the files of before the crash.
    Gui::FileDialog::answerNext(path("b.vxmat"));
    ASSERT_TRUE(files->saveAs(project()));
    projectfile::ProjectRecord expected = recordIn("a.vxmat");
    expected.objects[1].label = "Beam 1";
    EXPECT_EQ(textOf(recordIn("b.vxmat")), textOf(std::move(expected)));
}

TEST_F(PlaceholderFiles, KeepMaterialsWithoutTheirModule)
{
    const std::string before = materialText();
    writeFile(path("a.vxmat"), QByteArray::fromStdString(before));
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    EXPECT_EQ(dynamic_cast<Obj::PlaceholderProject&>(project()).getOriginalClass(), "Mat::DocumentMaterial");
    ASSERT_TRUE(run("Std_SaveAs", path("b.vxmat")));
    EXPECT_EQ(contentOf(path("b.vxmat")).toStdString(), before);
    project().get_object(2)->label.setValue("Foil");
    deleteObject(*project().get_object(1));
    ASSERT_TRUE(run("Std_Save"));
    const projectfile::ProjectRecord after = recordIn("b.vxmat");
    ASSERT_EQ(after.objects.size(), 1U);
    EXPECT_EQ(after.objects[0].label, "Foil");
    EXPECT_THAT(after.doubts, testing::IsEmpty());
    EXPECT_EQ(after.objects[0].material->properties.at(5)->value, 1.1);
    EXPECT_EQ(vxtest::faultsBySchema("project-file.schema.json", {path("b.vxmat").toStdString()}), "");
}

TEST_F(PlaceholderFiles, PairMaterialsWithTheDatabaseByIdInAnyOrder)
{
    projectfile::ProjectRecord turned = projectfile::readProject(materialText());
    std::swap(turned.objects[0], turned.objects[1]);
    writeFile(path("a.vxmat"), QByteArray::fromStdString(projectfile::writeProject(turned)));
    ASSERT_TRUE(run("Std_Open", path("a.vxmat")));
    EXPECT_EQ(project().get_object(2)->label.getValue(), "Foam");
    ASSERT_TRUE(run("Std_SaveAs", path("b.vxmat")));
    EXPECT_EQ(contentOf(path("b.vxmat")).toStdString(), materialText());
}

} // namespace
