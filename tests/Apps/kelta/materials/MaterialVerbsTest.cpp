#include "MaterialsTesting.h"

#include "Gui/ViewFeeder.h"
#include "Obj/Application.h"
#include "kelta/Batch.h"
#include "vxCAE/CaeManager.h"
#include "vxMaterial/exchange/CAESet.h"

#include <QFile>

namespace {

using testing::HasSubstr;

class Verbs : public vxtest::Materials
{
protected:
    /// Runs a line of a list. Returns the reason if the line fails; otherwise an empty text.
    static std::string run(const char* name, const QStringList& arguments = {})
    {
        return desktop::Batch::runCommand(QLatin1String(name), arguments).value_or(QString()).toStdString();
    }
    Mat::MaterialObject& selectedSteel()
    {
        Mat::MaterialObject& steel = addMaterial(newProject());
        select({&steel});
        return steel;
    }
};

TEST_F(Verbs, SetAQuantity)
{
    const Mat::MaterialObject& steel = selectedSteel();
    EXPECT_EQ(run("set", {"Young's modulus", "7e10"}), "");
    EXPECT_EQ(run("set", {"Densty", "7850"}), R"(the catalogue has no quantity "Densty"; did you mean "Density"?)");
    EXPECT_EQ(run("set", {"G", "7850"}), R"(the catalogue has no quantity "G")");
    EXPECT_EQ(run("set", {"D1", "0.4 1/GPa"}), "") << "by its usual symbol";
    EXPECT_EQ(steel.getCMaterial()->findProperty(25)->value, 0.4e-9);
    history().undo();
    EXPECT_EQ(modulusOf(steel), 7e10);
    history().undo();
    EXPECT_EQ(modulusOf(steel), 2e11);
}

TEST_F(Verbs, SetANumberWithAUnit)
{
    const Mat::MaterialObject& steel = selectedSteel();
    EXPECT_EQ(run("set", {"Young's modulus", "210 GPa"}), "");
    EXPECT_EQ(modulusOf(steel), 2.1e11);
    EXPECT_EQ(run("set", {"Density", "7.85 g/cm^3"}), "");
    EXPECT_EQ(steel.getCMaterial()->findProperty(density)->value, 7850.0);
    EXPECT_EQ(run("set", {"Yield stress", "250, 300 MPa"}), "");
    EXPECT_THAT(steel.getCMaterial()->findProperty(38)->values, testing::ElementsAre(2.5e8, 3e8));
}

TEST_F(Verbs, TakeTheUnitOfTheCreepFactorFromTheExponentsOfTheMaterial)
{
    const Mat::MaterialObject& steel = selectedSteel();
    EXPECT_THAT(run("set", {"Creep Modulus A", "1 MPa^-2 s^-1"}),
                testing::StartsWith("The unit of Creep Modulus A depends on Creep Modulus N and Creep Modulus M"));
    EXPECT_EQ(run("set", {"Creep Modulus N", "2"}), "");
    EXPECT_EQ(run("set", {"Creep Modulus M", "0"}), "");
    EXPECT_EQ(run("set", {"Creep Modulus A", "1 MPa^-2 s^-1"}), "");
    EXPECT_EQ(steel.getCMaterial()->findProperty(46)->value, 1e-12);
}

TEST_F(Verbs, SetNoValueThatCannotBeRead)
{
    const Mat::MaterialObject& steel = selectedSteel();
    const int steps = history().count();
    EXPECT_EQ(run("set", {"E", "210 GPas"}), "The unit \"GPas\" is not known. Did you mean \"210 GPa\"?");
    EXPECT_EQ(run("set", {"E", "2,1e11"}),
              "\"2,1e11\" has a decimal comma; the decimal sign is a point. Did you mean \"2.1e11\"?");
    EXPECT_THAT(run("set", {"Density", "7850 kg"}),
                testing::StartsWith("\"7850 kg\" measures mass; Density needs a unit"));
    EXPECT_EQ(run("set", {"E", ""}), "Nothing was typed; a number is needed.");
    EXPECT_EQ(modulusOf(steel), 2e11);
    EXPECT_EQ(history().count(), steps);
}

TEST_F(Verbs, SetNoNumberThatBreaksARule)
{
    selectedSteel();
    EXPECT_EQ(run("set", {"Poisson's ratio", "60 %"}), "Poisson's ratio must be between [0.001, 0.499]!");
}

TEST_F(Verbs, SetNoNumberThatIsNotFinite)
{
    const Mat::MaterialObject& steel = selectedSteel();
    const auto before = messages().size();
    for (const char* const value : {"inf", "nan", "-inf", "INF"}) {
        SCOPED_TRACE(value);
        EXPECT_NE(run("set", {"Dynamic viscosity", value}), "");
        EXPECT_NE(run("set", {"E", value}), "");
    }
    EXPECT_EQ(run("set", {"Dynamic viscosity", "inf"}), "\"inf\" is not a finite number.");
    EXPECT_EQ(modulusOf(steel), 2e11);
    EXPECT_EQ(messages().size(), before);
}

TEST_F(Verbs, MakeNoSecondProject)
{
    EXPECT_EQ(run("Mat_NewDoc"), "");
    EXPECT_EQ(run("Mat_NewDoc"), "the material project \"Materials\" is open; close it first with select-project and "
                                 "Mat_DelDoc");
    EXPECT_EQ(Obj::Application::get_projects().size(), 1U);
    EXPECT_EQ(run("select-project"), "");
    EXPECT_EQ(run("Mat_DelDoc"), "");
    EXPECT_EQ(run("Mat_NewDoc"), "");
}

TEST_F(Verbs, ExportToTheFileThatIsNamed)
{
    selectedSteel();
    EXPECT_EQ(run("Mat_Export", {path("a.json")}), "");
    EXPECT_TRUE(QFile::exists(path("a.json")));
}

TEST_F(Verbs, ExportNothingWithoutAName)
{
    selectedSteel();
    for (const QStringList& arguments : {QStringList(), QStringList{""}, QStringList{"a", "b"}})
        EXPECT_EQ(run("Mat_Export", arguments), "Mat_Export needs one argument, the name of the file to write");
}

TEST_F(Verbs, FailToExportWithoutAProject)
{
    EXPECT_EQ(run("Mat_Export", {path("a.json")}), "Mat_Export cannot be done now");
}

TEST_F(Verbs, FailToExportOneOfTwoProjects)
{
    selectedSteel();
    newProject("Second");
    EXPECT_THAT(run("Mat_Export", {path("a.json")}), HasSubstr("Only one project can be exported."));
    EXPECT_FALSE(QFile::exists(path("a.json")));
}

TEST_F(Verbs, FailToExportToAPlaceThatCannotBeWritten)
{
    selectedSteel();
    EXPECT_THAT(run("Mat_Export", {path("no/folder.json")}), HasSubstr("cannot be written"));
    EXPECT_THAT(run("Mat_Export", {"/dev/full"}), HasSubstr("is not a regular file"));
}

TEST_F(Verbs, HandTheCurrentProjectOver)
{
    EXPECT_EQ(run("collect"), "no project is open");
    addMaterial(newProject());
    Mat::DocumentMaterial& current = newProject("Current");
    addMaterials(current, 2);
    EXPECT_EQ(run("select-project", {"Current"}), "");
    const int steps = history().count();
    EXPECT_EQ(run("collect"), "");
    const vxCAE::CAESet* const set = vxCAE::GetCaeManager().getCAE(current.getProjectId());
    ASSERT_NE(set, nullptr);
    EXPECT_EQ(set->materials->entries.size(), 2U);
    EXPECT_EQ(history().count(), steps);
}

TEST_F(Verbs, SetALabelAsAProperty)
{
    const Mat::MaterialObject& steel = selectedSteel();
    EXPECT_EQ(run("label", {"Frame"}), "");
    EXPECT_EQ(steel.label.getValue(), "Frame");
    EXPECT_EQ(run("label", {""}), "The label must not be empty; nothing was changed.");
    EXPECT_EQ(run("property", {"Label", ""}), "The label must not be empty; nothing was changed.");
    EXPECT_EQ(run("label"), "give a label, and select exactly one object");
    EXPECT_EQ(steel.label.getValue(), "Frame");
}

TEST_F(Verbs, SetThePropertiesOfTheTreeNodeToo)
{
    Mat::MaterialObject& steel = selectedSteel();
    const Obj::Property* const colour =
        Gui::GuiApplication::Instance->get_view_feeder(&steel)->get_property_by_name("MaterialColor");
    const std::string before = colour->toText();
    EXPECT_EQ(run("property", {"MaterialColor", "1, 0.25, 0, 0"}), "");
    EXPECT_EQ(colour->toText(), "1, 0.25, 0, 0");
    EXPECT_THAT(run("property", {"MaterialColor", "red"}), HasSubstr("four numbers from 0 to 1"));
    EXPECT_EQ(run("property", {"Colour", "1, 0, 0, 0"}), "\"Steel\" has no property \"Colour\"");
    history().undo();
    EXPECT_EQ(colour->toText(), before);
}

TEST_F(Verbs, FailWithoutASelection)
{
    addMaterial(newProject());
    select({});
    EXPECT_EQ(run("Mat_Edit"), "nothing is selected that Mat_Edit acts on");
    EXPECT_EQ(run("Mat_Delete"), "nothing is selected that Mat_Delete acts on");
    EXPECT_EQ(run("Mat_DelDoc"), "one selected material project is needed");
}

TEST_F(Verbs, FailToEditMoreThanAHundredMaterials)
{
    Mat::DocumentMaterial& project = newProject();
    addMaterials(project, 101);
    select(project.getObjects());
    EXPECT_THAT(run("Mat_Edit"), HasSubstr("At most 100 can be opened at a time."));
    EXPECT_TRUE(window->getMdiWindows().isEmpty());
}

} // namespace
