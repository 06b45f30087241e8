#include "FailingAllocation.h"

#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace {

using testing::SizeIs;
using vxMat::CMaterial;
using vxMat::MatDBManager;

/// Returns the first keys of `order` that a map contains; the test fails if the map contains other keys as well.
template <class Map>
std::size_t countOfFirst(const Map& map, const std::vector<std::int32_t>& order)
{
    std::size_t count = 0;
    while (count < order.size() && map.count(order[count]) != 0)
        ++count;
    EXPECT_THAT(map, SizeIs(count));
    return count;
}

/// A material whose copies allocate: names and lists that are not short.
class ExhaustedMemory : public testing::Test
{
protected:
    ExhaustedMemory()
    {
        source.id = 7;
        source.name = "a name that does not fit into the text object itself";
        source.addProperty(vxMat::PropertyId::PlasticYieldStress, "Yield stress of the material", "450,608", "PYStress",
                           "Vector; values are separated by comma");
        source.addProperty(vxMat::PropertyId::Density, "Density", "7850", "rho", "Mass density");
        fill(target);
    }

    static void fill(CMaterial& material)
    {
        material.id = 1;
        material.name = "before";
        material.libraryGroup = 3;
        material.addProperty(vxMat::PropertyId::PoissonsRatio, "Poisson's ratio", "0.3", "nu", "");
    }

    void expectTargetUnchanged() const
    {
        EXPECT_EQ(target.id, 1);
        EXPECT_EQ(target.name, "before");
        EXPECT_EQ(target.libraryGroup, 3);
        ASSERT_THAT(target.properties, SizeIs(1));
        double ratio = 0.0;
        EXPECT_TRUE(target.getPropertyValue(vxMat::PropertyId::PoissonsRatio, ratio));
        EXPECT_EQ(ratio, 0.3);
    }

    /// Copies with each allocation failing in turn; then the copy succeeds.
    template <class Copy>
    void expectAllOrNothing(const Copy& copy)
    {
        const long before = vxtest::blocksInUse();
        const int failed = vxtest::failEachAllocationOf(copy, [this, before] {
            expectTargetUnchanged();
            EXPECT_EQ(vxtest::blocksInUse(), before);
        });
        // There are at least the two properties and the list of one of them.
        EXPECT_GE(failed, 3);
        EXPECT_THAT(target.properties, SizeIs(2));
        EXPECT_THAT(target.getPropertyValues(vxMat::PropertyId::PlasticYieldStress),
                    testing::ElementsAre(450.0, 608.0));
    }

    CMaterial source;
    CMaterial target;
};

TEST_F(ExhaustedMemory, LeavesTheTargetOfCopiedPropertiesAsItWas)
{
    expectAllOrNothing([this] { target.copyPropertiesFrom(source); });
    EXPECT_EQ(target.name, "before");
}

TEST_F(ExhaustedMemory, LeavesTheMaterialThatCopiesAsItWas)
{
    expectAllOrNothing([this] { target.copyFrom(source); });
    EXPECT_EQ(target.name, source.name);
    EXPECT_EQ(target.id, 7);
}

TEST_F(ExhaustedMemory, LeavesTheMaterialThatIsCopiedToAsItWas)
{
    expectAllOrNothing([this] { source.copyTo(&target); });
    EXPECT_EQ(target.name, source.name);
    EXPECT_EQ(target.id, 7);
}

TEST_F(ExhaustedMemory, LeavesTheLibraryWithTheMaterialsMadeBeforeAndNothingElse)
{
    const std::vector<std::int32_t> order{0,  26, 4,  11, 46, 10, 27, 40, 39, 36, 38, 41, 32,
                                          33, 34, 35, 42, 43, 44, 45, 47, 48, 49, 50, 2,  53};
    MatDBManager().initMaterialLibrary(); // makes the data that lives until the program ends
    MatDBManager manager;
    const long before = vxtest::blocksInUse();
    std::size_t most = 0;
    vxtest::failEachAllocationOf([&manager] { manager.initMaterialLibrary(); },
                                 [&] {
                                     const std::size_t count = countOfFirst(manager.materials, order);
                                     EXPECT_GE(count, most);
                                     most = count;
                                     // The manager owns the content of the map; all other memory must be free.
                                     MatDBManager().materials.swap(manager.materials);
                                     EXPECT_EQ(vxtest::blocksInUse(), before);
                                 });
    EXPECT_EQ(most, 25U);
    EXPECT_EQ(countOfFirst(manager.materials, order), 26U);
}

TEST_F(ExhaustedMemory, LeavesTheCatalogueWithThePropertiesMadeBeforeAndNothingElse)
{
    const std::vector<std::int32_t> order{4,  401, 202, 203, 21, 31, 5,  6,  28, 29,  30,  23,
                                          27, 26,  128, 127, 25, 32, 33, 37, 34, 35,  36,  41,
                                          38, 39,  42,  44,  43, 45, 46, 47, 48, 301, 302, 303};
    MatDBManager().initPropertyCatalogue(); // makes the data that lives until the program ends
    MatDBManager manager;
    const long before = vxtest::blocksInUse();
    std::size_t most = 0;
    vxtest::failEachAllocationOf([&manager] { manager.initPropertyCatalogue(); },
                                 [&] {
                                     const std::size_t count = countOfFirst(manager.propertyCatalogue, order);
                                     EXPECT_GE(count, most);
                                     most = count;
                                     MatDBManager().propertyCatalogue.swap(manager.propertyCatalogue);
                                     EXPECT_EQ(vxtest::blocksInUse(), before);
                                 });
    EXPECT_EQ(most, 35U);
    EXPECT_EQ(countOfFirst(manager.propertyCatalogue, order), 36U);
}

TEST_F(ExhaustedMemory, DoesNotKeepAManagerFromBeingFilledLater)
{
    MatDBManager manager;
    manager.initMaterialLibrary();
    manager.initPropertyCatalogue();
    {
        const vxtest::FailingAllocation failing(20);
        EXPECT_THROW(manager.initMaterialLibrary(), std::bad_alloc);
    }
    {
        const vxtest::FailingAllocation failing(20);
        EXPECT_THROW(manager.initPropertyCatalogue(), std::bad_alloc);
    }
    manager.initMaterialLibrary();
    manager.initPropertyCatalogue();
    EXPECT_THAT(manager.materials, SizeIs(26));
    EXPECT_THAT(manager.propertyCatalogue, SizeIs(36));
}

} // namespace
