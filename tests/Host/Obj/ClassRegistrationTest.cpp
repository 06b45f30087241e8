#include "Obj/ClassRegistration.h"

#include "ObjTesting.h"

namespace {

using vxtest::Joint;
using vxtest::Part;

class PropertyClassRegistration : public vxtest::ObjTest
{};

/// Makes the protected operations accessible.
class OpenPart : public Part
{
public:
    using Part::get_property_data;
    using Part::get_property_data_ref;
};

class OpenJoint : public Joint
{
public:
    using Joint::get_property_data;
};

class OpenObject : public Obj::ProjectObject
{
public:
    using ProjectObject::get_property_data_ref;
};

TEST_F(PropertyClassRegistration, LinksThePropertiesOfAClassToThoseOfItsParent)
{
    EXPECT_EQ(&OpenPart().get_property_data(), OpenPart::get_property_data_ref());
    EXPECT_EQ(OpenPart().get_property_data().parent(), OpenObject::get_property_data_ref());
    EXPECT_EQ(OpenJoint().get_property_data().parent(), OpenPart::get_property_data_ref());
    EXPECT_NE(OpenJoint().get_property_data().find("Torque"), nullptr);
    EXPECT_EQ(OpenJoint().get_property_data().find("Width"), nullptr) << "its parent describes it";
}

TEST_F(PropertyClassRegistration, MakesTheClassKnownWithTheSizeOfItsObjects)
{
    EXPECT_STREQ(Joint::getClassTypeId().get_name(), "vxtest::Joint");
    EXPECT_EQ(Joint::getClassTypeId().getParent(), Part::getClassTypeId());
    EXPECT_EQ(Joint::getClassTypeId().getObjectSize(), sizeof(Joint));
    EXPECT_EQ(Joint().getTypeId(), Joint::getClassTypeId());
}

} // namespace
