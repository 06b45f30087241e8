#include "Kelta/RootClass.h"

#include "HostTesting.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace {

using Kelta::RootClass;
using Kelta::TypeInfo;
using testing::HasSubstr;

class Screw : public RootClass
{
public:
    static void* create() { return static_cast<RootClass*>(new Screw); }
    static void init() { initSubclass(classTypeId, "Test::Screw", "Kelta::RootClass", &Screw::create); }
    TypeInfo getTypeId() const override { return classTypeId; }
    static inline TypeInfo classTypeId;
};

void* createOther()
{
    return nullptr;
}

void* createThrowing()
{
    throw std::runtime_error("no memory left");
}

TEST(RootClass, CreatesAnObjectByItsRegisteredName)
{
    Screw::init();
    const std::unique_ptr<RootClass> object = RootClass::createByName("Test::Screw");
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->getTypeId(), Screw::classTypeId);
    EXPECT_TRUE(object->is_inherited_from(RootClass::getClassTypeId()));
    EXPECT_FALSE(object->is_inherited_from(TypeInfo::find("Kelta::DataPersistence")));
}

TEST(RootClass, CreatesNothingOfAClassThatIsNotRegistered)
{
    EXPECT_EQ(RootClass::createByName("Test::Nail"), nullptr);
    EXPECT_EQ(RootClass::createByName(""), nullptr);
    EXPECT_EQ(RootClass::createByName(nullptr), nullptr);
    EXPECT_EQ(RootClass::createByName("Kelta::RootClass"), nullptr) << "the root class cannot be created";
}

TEST(RootClass, LetsThroughWhatAConstructorThrows)
{
    TypeInfo type;
    RootClass::initSubclass(type, "Test::Throwing", "Kelta::RootClass", &createThrowing);
    EXPECT_THROW(RootClass::createByName("Test::Throwing"), std::runtime_error);
}

TEST(RootClass, IsTheTypeOfAnObjectWhoseClassDoesNotSayItsOwn)
{
    const RootClass object;
    EXPECT_EQ(object.getTypeId(), RootClass::getClassTypeId());
}

TEST(RootClass, RegistersTheSameClassAgainWithoutAReport)
{
    Screw::init();
    const TypeInfo before = Screw::classTypeId;
    const vxtest::Reports reports;
    Screw::init();
    EXPECT_EQ(Screw::classTypeId, before);
    EXPECT_EQ(reports.text(), "");
}

TEST(RootClass, RefusesAnotherClassUnderTheSameName)
{
    Screw::init();
    const vxtest::Reports reports;
    TypeInfo other;
    RootClass::initSubclass(other, "Test::Screw", "Kelta::RootClass", &createOther);
    EXPECT_EQ(reports.errors(), 1);
    EXPECT_THAT(reports.text(), HasSubstr("\"Test::Screw\" cannot be registered: another class has this name"));
    EXPECT_FALSE(other.namesAType()) << "it must not be mistaken for the registered class";
    EXPECT_NE(RootClass::createByName("Test::Screw"), nullptr) << "the first class stays registered";
}

TEST(RootClass, RefusesTheSameClassUnderAnotherParent)
{
    Screw::init();
    const TypeInfo before = Screw::classTypeId;
    const vxtest::Reports reports;
    RootClass::initSubclass(Screw::classTypeId, "Test::Screw", "Kelta::DataPersistence", &Screw::create);
    EXPECT_EQ(reports.errors(), 1);
    EXPECT_EQ(Screw::classTypeId, before);
    EXPECT_EQ(before.getParent(), RootClass::getClassTypeId());
}

TEST(RootClass, RefusesAClassWithoutAName)
{
    const vxtest::Reports reports;
    TypeInfo type;
    RootClass::initSubclass(type, "", "Kelta::RootClass", nullptr);
    RootClass::initSubclass(type, nullptr, "Kelta::RootClass", nullptr);
    EXPECT_EQ(reports.errors(), 2);
    EXPECT_FALSE(type.namesAType());
}

TEST(RootClass, RefusesAClassThatWouldDescendFromItself)
{
    const vxtest::Reports reports;
    TypeInfo own;
    RootClass::initSubclass(own, "Test::OwnParent", "Test::OwnParent", nullptr);
    EXPECT_FALSE(own.namesAType());
    TypeInfo egg;
    TypeInfo hen;
    TypeInfo chick;
    RootClass::initSubclass(egg, "Test::Egg", "Test::Hen", nullptr);
    RootClass::initSubclass(chick, "Test::Chick", "Test::Egg", nullptr);
    RootClass::initSubclass(hen, "Test::Hen", "Test::Chick", nullptr);
    EXPECT_FALSE(hen.namesAType());
    EXPECT_EQ(reports.errors(), 2);
    EXPECT_THAT(reports.text(), HasSubstr("\"Test::Hen\" cannot be registered: it would be derived from itself"));
}

TEST(RootClass, MayBeTheRootOfALineOfItsOwn)
{
    TypeInfo type;
    RootClass::initSubclass(type, "Test::Lonely", nullptr, nullptr);
    EXPECT_TRUE(type.namesAType());
    EXPECT_FALSE(type.getParent().namesAType());
}

} // namespace
