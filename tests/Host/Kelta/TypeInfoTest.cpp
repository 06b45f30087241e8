#include "Kelta/TypeInfo.h"

#include "Kelta/DataPersistence.h"
#include "Kelta/RootClass.h"

#include <gmock/gmock.h>

namespace {

using Kelta::RootClass;
using Kelta::TypeInfo;

TEST(TypeInfo, OfNoTypeIsHarmless)
{
    const TypeInfo none;
    EXPECT_FALSE(none.namesAType());
    EXPECT_STREQ(none.get_name(), "");
    EXPECT_EQ(none.getParent(), none);
    EXPECT_EQ(none.create(), nullptr);
    EXPECT_FALSE(none.is_inherited_from(none));
    EXPECT_FALSE(none.is_inherited_from(RootClass::getClassTypeId()));
    EXPECT_FALSE(RootClass::getClassTypeId().is_inherited_from(none));
}

TEST(TypeInfo, IsFoundByItsRegisteredName)
{
    EXPECT_EQ(TypeInfo::find("Kelta::RootClass"), RootClass::getClassTypeId());
    EXPECT_STREQ(RootClass::getClassTypeId().get_name(), "Kelta::RootClass");
    EXPECT_EQ(TypeInfo::find("Test::Nobody"), TypeInfo());
    EXPECT_EQ(TypeInfo::find(""), TypeInfo());
    EXPECT_EQ(TypeInfo::find(nullptr), TypeInfo());
}

TEST(TypeInfo, HasTheSizeOfAPointer)
{
    EXPECT_EQ(sizeof(TypeInfo), sizeof(void*));
}

TEST(TypeInfo, OfTheRootHasNoParentAndCreatesNothing)
{
    EXPECT_FALSE(RootClass::getClassTypeId().getParent().namesAType());
    EXPECT_EQ(RootClass::getClassTypeId().create(), nullptr);
}

TEST(TypeInfo, FindsAParentThatIsRegisteredLater)
{
    TypeInfo child;
    TypeInfo parent;
    RootClass::initSubclass(child, "Test::EarlyChild", "Test::LateParent", nullptr);
    EXPECT_FALSE(child.getParent().namesAType());
    EXPECT_TRUE(child.is_inherited_from(child));
    EXPECT_FALSE(child.is_inherited_from(RootClass::getClassTypeId()));
    RootClass::initSubclass(parent, "Test::LateParent", "Kelta::RootClass", nullptr);
    EXPECT_EQ(child.getParent(), parent);
    EXPECT_EQ(child.getParent(), parent) << "also when asked again";
    EXPECT_TRUE(child.is_inherited_from(RootClass::getClassTypeId()));
    EXPECT_FALSE(parent.is_inherited_from(child));
}

TEST(TypeInfo, ComparesByType)
{
    Kelta::DataPersistence::init();
    EXPECT_EQ(TypeInfo::find("Kelta::DataPersistence"), Kelta::DataPersistence::getClassTypeId());
    EXPECT_NE(TypeInfo::find("Kelta::DataPersistence"), RootClass::getClassTypeId());
    EXPECT_NE(TypeInfo(), RootClass::getClassTypeId());
}

} // namespace
