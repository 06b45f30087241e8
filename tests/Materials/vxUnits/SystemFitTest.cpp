#include "vxUnits/SystemFit.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/MaterialValues.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iostream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using vxUnits::betterFittingSystem;
using vxUnits::UnitSystem;

/// Materials whose numbers are in a unit system.
class Numbers
{
public:
    void add(std::unique_ptr<vxMat::MaterialBase> material, const UnitSystem& system = UnitSystem::si())
    {
        vxUnits::convertMaterial(*material, UnitSystem::si(), system);
        m_materials.push_back(std::move(material));
    }
    std::string fitting(const UnitSystem& assumed = UnitSystem::si()) const
    {
        std::vector<const vxMat::MaterialBase*> all;
        for (const auto& material : m_materials)
            all.push_back(material.get());
        return betterFittingSystem(all, assumed);
    }

private:
    std::vector<std::unique_ptr<vxMat::MaterialBase>> m_materials;
};

Numbers libraryIn(const UnitSystem& system)
{
    Numbers numbers;
    for (const auto& entry : vxMat::libraryEntries())
        numbers.add(entry.create(), system);
    return numbers;
}

TEST(SystemFit, NamesTheSystemOfTheWholeLibraryWhateverIsAssumed)
{
    for (const UnitSystem& written : UnitSystem::builtIn()) {
        const Numbers numbers = libraryIn(written);
        for (const UnitSystem& assumed : UnitSystem::builtIn())
            EXPECT_EQ(numbers.fitting(assumed), assumed == written ? "" : written.text())
                << written.text() << " read as " << assumed.text();
    }
}

/// Returns the materials of the library that are not doubted.
std::vector<const vxMat::LibraryEntry*> sensibleMaterials()
{
    std::vector<const vxMat::LibraryEntry*> sensible;
    for (const auto& entry : vxMat::libraryEntries())
        if (vxUnits::checkPlausibility(*entry.create()).empty())
            sensible.push_back(&entry);
    return sensible;
}

TEST(SystemFit, NamesNoOtherSystemForASensibleMaterialInItsOwn)
{
    for (const auto* const entry : sensibleMaterials()) {
        for (const UnitSystem& system : UnitSystem::builtIn()) {
            Numbers numbers;
            numbers.add(entry->create(), system);
            EXPECT_EQ(numbers.fitting(system), "") << entry->create()->name << " in " << system.text();
        }
    }
}

TEST(SystemFit, NamesTheSystemOfNearlyAllSensibleMaterials)
{
    int all = 0;
    int named = 0;
    for (const auto* const entry : sensibleMaterials()) {
        for (const UnitSystem& written : UnitSystem::builtIn()) {
            Numbers numbers;
            numbers.add(entry->create(), written);
            for (const UnitSystem& assumed : UnitSystem::builtIn()) {
                all += assumed == written ? 0 : 1;
                named += assumed != written && numbers.fitting(assumed) == written.text() ? 1 : 0;
            }
        }
    }
    std::cout << "single library materials whose system is named: " << named << " of " << all << '\n';
    EXPECT_GT(named * 10, all * 9);
}

TEST(SystemFit, IsNotHiddenByOneMaterialThatFitsAnotherSystem)
{
    const UnitSystem inches = *UnitSystem::parse("in-lbf-s");
    Numbers numbers;
    numbers.add(std::make_unique<vxMat::StructuralSteel>(), inches);
    numbers.add(std::make_unique<vxMat::Concrete>(), inches);
    numbers.add(std::make_unique<vxMat::AluminumAlloy>(), *UnitSystem::parse("ft-slug-s"));
    EXPECT_EQ(numbers.fitting(), "in-lbf-s");
}

TEST(SystemFit, ComparesWithASystemOfTheUser)
{
    Numbers numbers;
    numbers.add(std::make_unique<vxMat::StructuralSteel>());
    EXPECT_EQ(numbers.fitting(*UnitSystem::parse("length cm, mass g, time us")), "SI");
    EXPECT_EQ(Numbers().fitting(), "") << "no materials";
}

TEST(SystemFit, IsNotHiddenByValuesThatAreWrongInAnyUnit)
{
    auto steel = std::make_unique<vxMat::StructuralSteelNL>();
    auto strains = std::make_unique<vxMat::MaterialProperty>();
    strains->values = {0.0, 0.1, 0.05};
    steel->setProperty(vxMat::PropertyId::PlasticStrain, std::move(strains));
    auto aluminium = std::make_unique<vxMat::AluminumAlloy>();
    aluminium->properties.at(vxMat::PropertyId::Density)->value = -1.0;
    Numbers numbers;
    numbers.add(std::move(steel));
    numbers.add(std::move(aluminium));
    EXPECT_EQ(numbers.fitting(*UnitSystem::parse("mm-t-s")), "SI");
    EXPECT_EQ(numbers.fitting(UnitSystem::si()), "");
}

TEST(SystemFit, IsNoneIfOneNumberIsUnusual)
{
    auto steel = std::make_unique<vxMat::StructuralSteel>();
    steel->properties.at(vxMat::PropertyId::Density)->value = 7.85e-9;
    Numbers numbers;
    numbers.add(std::move(steel));
    EXPECT_EQ(numbers.fitting(), "");
}

} // namespace
