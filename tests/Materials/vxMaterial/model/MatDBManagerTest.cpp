#include "vxMaterial/model/MatDBManager.h"

#include "vxMaterial/model/PropertyCatalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cfloat>
#include <memory>
#include <type_traits>

namespace {

using testing::IsEmpty;
using testing::SizeIs;
using vxMat::MatDBManager;

static_assert(!std::is_copy_constructible_v<MatDBManager> && !std::is_copy_assignable_v<MatDBManager>);

TEST(MatDBManager, StartsEmpty)
{
    const MatDBManager manager;
    EXPECT_THAT(manager.materials, IsEmpty());
    EXPECT_THAT(manager.propertyCatalogue, IsEmpty());
}

TEST(MatDBManager, HoldsTheLibraryByTypeAndTheCatalogueById)
{
    MatDBManager manager;
    manager.initMaterialLibrary();
    manager.initPropertyCatalogue();
    ASSERT_THAT(manager.materials, SizeIs(26));
    EXPECT_THAT(manager.propertyCatalogue, SizeIs(36));
    EXPECT_EQ(manager.materials.at(53)->name, "Water");
    for (const auto& [id, property] : manager.propertyCatalogue)
        EXPECT_EQ(property->id, id);
}

TEST(MatDBManager, FindsNothingInTheGapsOfItsNumberings)
{
    MatDBManager manager;
    manager.initMaterialLibrary();
    manager.initPropertyCatalogue();
    for (const int type : {1, 37})
        EXPECT_EQ(manager.materials.count(type), 0U) << type;
    for (const int id : {40, 201})
        EXPECT_EQ(manager.propertyCatalogue.count(id), 0U) << id;
}

TEST(MatDBManager, RebuildsTheCatalogueOfNewObjects)
{
    // A mark distinguishes properties of the first catalogue from new ones, since a new object may have the address of
    // an old one.
    MatDBManager manager;
    manager.initPropertyCatalogue();
    for (const auto& [id, property] : manager.propertyCatalogue)
        property->marked = true;
    manager.propertyCatalogue[40] = std::make_unique<vxMat::Density>();
    manager.initPropertyCatalogue();
    EXPECT_THAT(manager.propertyCatalogue, SizeIs(36));
    for (const auto& [id, property] : manager.propertyCatalogue)
        EXPECT_FALSE(property->marked) << id;
}

TEST(MatDBManager, RebuildsTheLibraryOfNewObjects)
{
    MatDBManager manager;
    manager.initMaterialLibrary();
    for (const auto& [type, material] : manager.materials)
        material->name = "changed";
    manager.materials[1] = std::make_unique<vxMat::CMaterial>();
    manager.initMaterialLibrary();
    EXPECT_THAT(manager.materials, SizeIs(26));
    for (const auto& [type, material] : manager.materials)
        EXPECT_NE(material->name, "changed") << type;
}

TEST(MatDBManager, ClearsOneMapWithoutTheOther)
{
    MatDBManager manager;
    manager.initMaterialLibrary();
    manager.initPropertyCatalogue();
    manager.clearMaterials();
    EXPECT_THAT(manager.materials, IsEmpty());
    EXPECT_THAT(manager.propertyCatalogue, SizeIs(36));
    manager.initMaterialLibrary();
    manager.clearPropertyCatalogue();
    EXPECT_THAT(manager.materials, SizeIs(26));
    EXPECT_THAT(manager.propertyCatalogue, IsEmpty());
}

TEST(MatDBManager, ClearsBothMaps)
{
    MatDBManager manager;
    manager.initMaterialLibrary();
    manager.initPropertyCatalogue();
    manager.clear();
    EXPECT_THAT(manager.materials, IsEmpty());
    EXPECT_THAT(manager.propertyCatalogue, IsEmpty());
}

TEST(MatDBManager, HoldsTheLargestDoubleForElasticityAndTwoDensitiesForTheAcousticMaterial)
{
    MatDBManager manager;
    manager.initMaterialLibrary();
    manager.initPropertyCatalogue();
    EXPECT_EQ(manager.propertyCatalogue.at(31)->value, DBL_MAX);
    const auto& acoustic = *manager.materials.at(49);
    ASSERT_THAT(acoustic.properties, SizeIs(2));
    for (const auto& [slot, property] : acoustic.properties)
        EXPECT_NE(dynamic_cast<const vxMat::Density*>(property.get()), nullptr) << slot;
}

} // namespace
