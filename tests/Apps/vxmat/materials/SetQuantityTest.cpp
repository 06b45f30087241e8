#include "DataFile.h"
#include "VxmatTesting.h"

#include "projectfile/ProjectFile.h"
#include "projectfile/ProjectStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using vxtest::Folder;
using vxtest::Outcome;
using vxtest::vxmat;

class SetQuantity : public testing::Test
{
protected:
    SetQuantity()
    {
        EXPECT_EQ(vxmat({"new", "Structural Steel=Frame", "Creep Example=Pipe", "--empty", "New", "-o", m_file}).status,
                  0);
    }

    Outcome set(const std::string& material, const std::string& quantity, const std::string& value) const
    {
        return vxmat({"set", m_file, material, quantity, value});
    }

    /// Returns the property of a material of the file; a default one if the material does not have it.
    vxMat::MaterialProperty propertyOf(const std::string& label, std::int32_t id) const
    {
        const auto project = projectfile::readProject(vxtest::readText(m_file));
        for (const auto& object : project.objects) {
            const auto* const property = object.label == label ? object.material->findProperty(id) : nullptr;
            if (property != nullptr)
                return *property;
        }
        return {};
    }

    const std::string& file() const { return m_file; }

private:
    Folder m_folder;
    std::string m_file = m_folder.path("p.vxmat");
};

TEST_F(SetQuantity, TakesANumberWithAUnit)
{
    const Outcome run = set("Frame", "Young's modulus", "210 GPa");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "Frame: Young's modulus: 210 GPa = 2.1e+11 Pa\n");
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(propertyOf("Frame", 5).value, 2.1e11);
    EXPECT_EQ(propertyOf("Frame", 5).unit, "Pa");
}

TEST_F(SetQuantity, TakesAPlainNumberInTheUnitOfTheCatalogue)
{
    EXPECT_EQ(set("Frame", "RHO", "7900").out, "Frame: Density: 7900 kg/m^3\n");
    EXPECT_EQ(propertyOf("Frame", 4).value, 7900.0);
}

TEST_F(SetQuantity, FindsAQuantityByTheSymbolsOfFilters)
{
    const std::tuple<const char*, const char*, int, double> cases[] = {
        {"Mu", "0.4MPa", 23, 0.4e6},
        {"D1", "0.4 1/GPa", 25, 0.4e-9},
        {"C10", "0.4 MPa", 26, 0.4e6},
        {"c01", "5 kPa", 27, 5000.0},
        {"C11", "1 kPa", 128, 1000.0},
        {"lm", "5", 127, 5.0},
        {"\xCF\x81", "1.1 g/cm^3", 4, 1100.0},
        {"E", "2 MPa", 5, 2e6},
        {"nu", "0.3", 6, 0.3},
        {"cp", "0.49 kJ/(kg K)", 202, 490.0},
        {"eta", "1 mPa s", 21, 1e-3},
        {"phi", "30 deg", 35, 30.0},
        {"H", "1 GPa", 36, 1e9},
        {"tau", "1 min", 44, 60.0},
        {"Youngs modulus", "3 GPa", 5, 3e9},
        {"epsr", "2.5", 302, 2.5},
        {"n", "5", 47, 5.0},
        {"m", "-0.5", 48, -0.5},
    };
    for (const auto& [symbol, text, id, value] : cases) {
        EXPECT_EQ(set("New", symbol, text).status, 0) << symbol;
        EXPECT_EQ(propertyOf("New", id).value, value) << symbol;
    }
}

TEST_F(SetQuantity, AddsAQuantityThatTheMaterialDoesNotHave)
{
    EXPECT_EQ(set("New", "203", "54 W/(m K)").status, 0);
    EXPECT_EQ(propertyOf("New", 203).value, 54.0);
    EXPECT_EQ(propertyOf("New", 203).name, "Thermal conductivity");
    EXPECT_EQ(propertyOf("New", 203).unit, "W/(m*K)");
    EXPECT_EQ(propertyOf("New", 203).category, vxMat::ePropertyCategory::Basic);
}

TEST_F(SetQuantity, TakesListsWordsAndSwitches)
{
    EXPECT_EQ(set("New", "Yield stress", "250, 300 MPa").out, "New: Yield stress: 250, 300 MPa = 2.5e+08, 3e+08 Pa\n");
    EXPECT_THAT(propertyOf("New", 38).values, ElementsAre(250e6, 300e6));
    EXPECT_EQ(set("New", "Plastic strain", "0, 5 %").status, 0);
    EXPECT_THAT(propertyOf("New", 39).values, ElementsAre(0.0, 0.05));
    EXPECT_EQ(set("New", "Hardening type", "multilinear").out, "New: Hardening type: Multilinear\n");
    EXPECT_EQ(propertyOf("New", 37).text, "Multilinear");
    EXPECT_EQ(set("New", "Isotropic elasticity", "on").status, 0);
    EXPECT_EQ(propertyOf("New", 31).value, 1.7976931348623157e308) << "as in the catalogue";
    EXPECT_EQ(set("New", "Creep", "1").status, 0);
    EXPECT_EQ(propertyOf("New", 45).value, 1.0);
}

TEST_F(SetQuantity, KnowsTheUnitOfTheCreepFactorByTheExponents)
{
    EXPECT_EQ(set("Pipe", "CreepA", "3.6e-17 MPa^-5 h^-1").status, 0); // N = 5, M = 0
    EXPECT_EQ(propertyOf("Pipe", 46).value, 1e-50);
    EXPECT_THAT(set("New", "CreepA", "1e-17 MPa^-5 h^-1").err, HasSubstr("which are not given"));
    EXPECT_EQ(set("New", "CreepA", "1e-17").status, 0);
}

TEST_F(SetQuantity, RefusesWhatCannotBeReadOrBreaksARule)
{
    const std::string before = vxtest::readText(file());
    const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
        {"Frame", "E", "2,1e11", "vxmat: Young's modulus: \"2,1e11\" has a decimal comma"},
        {"Frame", "E", "", "vxmat: Young's modulus: Nothing was typed; a number is needed."},
        {"Frame", "Yield stress", "", "vxmat: Yield stress: Nothing was typed"},
        {"Frame", "E", "210 kg",
         "vxmat: Young's modulus: \"210 kg\" measures mass; Young's modulus needs a unit such as Pa."},
        {"Frame", "rho", "-5", "vxmat: Density: Mass density must be positive!"},
        {"Frame", "Hardening type", "soft", "vxmat: Hardening type must be Bilinear"},
        {"Frame", "nu", "-3", "vxmat: Poisson's ratio must be between [0.001, 0.499]!"},
        {"Frame", "Plasticity", "off", "vxmat: Plasticity: \"off\" is not a value of a switch; give \"on\""},
        {"Frame", "Plastic strain", "0, 0,05", "vxmat: Plastic strain: "},
        {"Frame", "Elasticity", "1",
         "vxmat: no quantity is called \"Elasticity\"; did you mean \"Isotropic elasticity\" or \"Visco-elasticity\"?"},
        {"Frame", "Youngs", "1", "did you mean \"Young's modulus\"?"},
        {"Frame", "C12", "1 MPa", "vxmat: no quantity is called \"C12\"; did you mean \"C10\" or \"C11\"?"},
        {"Frame", "G", "80 GPa", "vxmat: \"G\" is derived and cannot be set: Shear modulus = E / (2 (1 + nu))"},
        {"Frame", "D1", "0.4 MPa",
         "\"0.4 MPa\" measures pressure or stress; Incompressibility Parameter D1 needs a unit such as 1/Pa. Did you "
         "mean "
         "\"0.4 1/MPa\"?"},
        {"Frame", "modulus", "1", "did you mean \"Young's modulus\", "},
        {"Frame", "weight", "1", "vxmat: no quantity is called \"weight\"; \"vxmat catalogue\" lists them"},
        {"Frame", "Densty", "1", "vxmat: no quantity is called \"Densty\"; did you mean \"Density\"?"},
        {"FRAME", "E", "1 GPa", "no material has the label or number \"FRAME\"; did you mean \"Frame\"?"},
        {"Frme", "E", "1 GPa", "no material has the label or number \"Frme\"; did you mean \"Frame\"?"},
        {"4711", "E", "1 GPa", "no material has the label or number \"4711\"\n"},
    };
    for (const auto& [material, quantity, value, reason] : cases) {
        const Outcome run = set(material, quantity, value);
        EXPECT_EQ(run.status, 2) << value;
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, HasSubstr(reason));
    }
    EXPECT_EQ(vxtest::readText(file()), before);
}

TEST_F(SetQuantity, QuotesTheBeginningOfLongTexts)
{
    std::string longText(100000, 'x');
    longText.insert(59, "\xC3\xA4"); // the end of the excerpt is not inside a letter
    for (const Outcome& run : {set(longText, "E", "1 GPa"), set("Frame", longText, "1 GPa"),
                               set("Frame", "E", longText), set("Frame", "Plasticity", longText)})
    {
        EXPECT_EQ(run.status, 2);
        EXPECT_LT(run.err.size(), 400U);
        EXPECT_THAT(run.err, HasSubstr("xxx...\""));
    }
}

TEST_F(SetQuantity, FindsAMaterialByItsNumber)
{
    EXPECT_EQ(set("1", "E", "70 GPa").out, "Frame: Young's modulus: 70 GPa = 7e+10 Pa\n");
    ASSERT_EQ(vxmat({"new", "Air", "--empty", "1", "-o", file(), "--force"}).status, 0);
    EXPECT_EQ(set("1", "E", "70 GPa").out, "1: Young's modulus: 70 GPa = 7e+10 Pa\n") << "labels are first";
}

TEST_F(SetQuantity, WritesADoubtAboutTheNewValue)
{
    const Outcome run = set("Frame", "E", "206900");
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.err, StartsWith("vxmat: doubt: Young's modulus = 206900 Pa with Density = 7850 kg/m^3 gives"));
    EXPECT_THAT(run.err, HasSubstr("206900 MPa is usual for steel: multiply by 1e6."));
    EXPECT_EQ(set("Frame", "E", "206900 MPa").err, "");
}

TEST_F(SetQuantity, DoesNotChangeAFileThatAnotherProgramHasOpen)
{
    const std::string before = vxtest::readText(file());
    projectfile::FileLock lock(QString::fromStdString(file()));
    ASSERT_TRUE(lock.tryLock());
    const Outcome run = set("Frame", "E", "1 GPa");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, HasSubstr("another program has it open"));
    EXPECT_EQ(vxtest::readText(file()), before);
}

TEST_F(SetQuantity, NeedsAProjectFileThatItCanReplace)
{
    EXPECT_THAT(vxmat({"set", "-", "a", "E", "1"}, "{}").err, HasSubstr("the path of a regular file is needed"));
    EXPECT_EQ(vxmat({"set", "/no/such.vxmat", "a", "E", "1"}).status, 2);
    const Folder folder;
    const std::string document = folder.path("m.json");
    ASSERT_EQ(vxmat({"export", "Air", "-o", document}).status, 0);
    EXPECT_THAT(vxmat({"set", document, "Air", "rho", "1"}).err, HasSubstr("This is not a project file"));
    EXPECT_THAT(folder.names(), ElementsAre("m.json")) << "no lock file is left";
}

TEST_F(SetQuantity, RecordsTheUnitSystemInWhichTheProjectIsShown)
{
    const auto before = propertyOf("Frame", 5);
    const Outcome run = vxmat({"set", file(), "--project-units", "MM-T-S"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "unit system: mm-t-s\n");
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(projectfile::readProject(vxtest::readText(file())).settings,
                ElementsAre(std::pair<const std::string, std::string>("unit_system", "mm-t-s")));
    EXPECT_EQ(propertyOf("Frame", 5).value, before.value) << "the numbers of the file are in SI";
}

TEST_F(SetQuantity, KeepsWhatTheProjectKeepsBesideAMaterial)
{
    projectfile::ProjectRecord before = projectfile::readProject(vxtest::readText(file()));
    before.objects.at(1).settings = {{"measurements", "[1, 2]"}, {"later", "\xC2\xB5"}};
    projectfile::writeFile(QString::fromStdString(file()), projectfile::writeProject(before));
    ASSERT_EQ(set("Pipe", "E", "210 GPa").status, 0);
    ASSERT_EQ(vxmat({"set", file(), "--project-units", "mm-t-s"}).status, 0);
    EXPECT_EQ(projectfile::readProject(vxtest::readText(file())).objects.at(1).settings, before.objects[1].settings);
}

TEST_F(SetQuantity, RemovesTheUnitSystemOfTheProject)
{
    ASSERT_EQ(vxmat({"set", file(), "--project-units", "mm-t-s"}).status, 0);
    for (int i = 0; i < 2; ++i) {
        const Outcome run = vxmat({"set", file(), "--project-units", ""});
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_EQ(run.out, "unit system: none\n");
        EXPECT_TRUE(projectfile::readProject(vxtest::readText(file())).settings.empty());
    }
}

TEST_F(SetQuantity, TakesAValueAndAUnitSystemAtOnce)
{
    const Outcome run = vxmat({"set", file(), "Frame", "E", "210 GPa", "--project-units", "cm-g-s"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "Frame: Young's modulus: 210 GPa = 2.1e+11 Pa\nunit system: cm-g-s\n");
}

TEST_F(SetQuantity, ChangesNothingIfTheUnitSystemCannotBeRead)
{
    const std::string before = vxtest::readText(file());
    const Outcome run = vxmat({"set", file(), "Frame", "E", "210 GPa", "--project-units", "mm-t"});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, StartsWith("vxmat: --project-units: "));
    EXPECT_THAT(run.err, HasSubstr("\"vxmat units\" lists the systems"));
    EXPECT_EQ(vxtest::readText(file()), before);
}

TEST_F(SetQuantity, NeedsAWholeValueOrAUnitSystem)
{
    for (const auto& arguments : {std::vector<std::string>{"set", file()},
                                  {"set", file(), "Frame"},
                                  {"set", file(), "Frame", "E"},
                                  {"set", file(), "Frame", "--project-units", "SI"}})
    {
        const Outcome run = vxmat(arguments);
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.err, "vxmat: give a material, a quantity and a value, or --project-units\n");
    }
}

} // namespace
