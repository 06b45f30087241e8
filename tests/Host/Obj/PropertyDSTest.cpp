#include "Obj/PropertyDS.h"

#include "HostTesting.h"
#include "ObjTesting.h"

#include <QTemporaryDir>

namespace {

using Obj::Property;
using Obj::PropertyDS;
using testing::ElementsAre;
using testing::HasSubstr;
using vxtest::Part;
using vxtest::slotOf;

class PropertyDSTest : public vxtest::ObjTest
{
protected:
    Part m_part;
    Part m_other;
};

TEST_F(PropertyDSTest, FindsPropertiesByNameAndNamesOfProperties)
{
    EXPECT_EQ(m_part.get_property_by_name("Width"), &m_part.width);
    EXPECT_EQ(m_part.get_property_by_name("width"), nullptr);
    EXPECT_EQ(m_part.get_property_by_name(""), nullptr);
    EXPECT_EQ(m_part.get_property_by_name(nullptr), nullptr);
    EXPECT_STREQ(m_part.get_property_name(&m_part.width), "Width");
    EXPECT_EQ(m_part.get_property_name(&m_other.width), nullptr);
    EXPECT_EQ(m_part.get_property_name(nullptr), nullptr);
}

TEST_F(PropertyDSTest, ListsPropertiesInTheOrderOfTheirRegistration)
{
    std::vector<Property*> properties;
    m_part.get_property_array(properties);
    EXPECT_THAT(properties, ElementsAre(&m_part.label, &m_part.id, &m_part.classLabel, &m_part.width, &m_part.secret));
    std::map<std::string, Property*> byName;
    m_part.get_property_dataset(byName);
    EXPECT_EQ(byName.size(), 5U);
    EXPECT_EQ(byName["Secret"], &m_part.secret);
}

TEST_F(PropertyDSTest, DescribesPropertiesByNameAndByProperty)
{
    EXPECT_EQ(m_part.get_property_type("ID"), 1);
    EXPECT_EQ(m_part.get_property_type(&m_part.id), 1);
    EXPECT_STREQ(m_part.get_property_group("Width"), "Size");
    EXPECT_STREQ(m_part.get_property_group(&m_part.width), "Size");
    EXPECT_STREQ(m_part.get_property_description("Width"), "in mm");
    EXPECT_STREQ(m_part.get_property_description(&m_part.width), "in mm");
    EXPECT_TRUE(m_part.is_read_only("ID"));
    EXPECT_TRUE(m_part.is_read_only(&m_part.id));
    EXPECT_FALSE(m_part.is_read_only("Width"));
    EXPECT_TRUE(m_part.is_hidden("Secret"));
    EXPECT_TRUE(m_part.is_hidden(&m_part.secret));
    EXPECT_FALSE(m_part.is_hidden("ID"));
}

TEST_F(PropertyDSTest, ReturnsNothingForPropertiesOfOtherSets)
{
    EXPECT_EQ(m_part.get_property_type("Depth"), 0);
    EXPECT_EQ(m_part.get_property_type(&m_other.id), 0);
    EXPECT_STREQ(m_part.get_property_group("Depth"), "");
    EXPECT_STREQ(m_part.get_property_group(&m_other.width), "");
    EXPECT_STREQ(m_part.get_property_description("Depth"), "");
    EXPECT_STREQ(m_part.get_property_description(&m_other.width), "");
    EXPECT_FALSE(m_part.is_read_only("Depth"));
    EXPECT_FALSE(m_part.is_read_only(&m_other.id));
    EXPECT_FALSE(m_part.is_hidden("Depth"));
    EXPECT_FALSE(m_part.is_hidden(&m_other.secret));
}

/// A part that describes a property of its base class again.
class SpecialPart : public Part
{
public:
    SpecialPart() { registerProperty(data, width, "Width", "Special", 9, "in special mm"); }
    static inline Obj::PropertyCoreData data;
};

TEST_F(PropertyDSTest, HasAPropertyOnlyOnceIfADerivedClassRegistersItAgain)
{
    const SpecialPart special;
    std::vector<Property*> properties;
    special.get_property_array(properties);
    EXPECT_EQ(properties.size(), 5U);
    EXPECT_STREQ(special.get_property_group("Width"), "Special");
    EXPECT_EQ(special.get_property_type(&special.width), 9);
    EXPECT_STREQ(m_part.get_property_group("Width"), "Size") << "other objects are unchanged";
}

/// The base class without overrides.
class BareSet : public PropertyDS
{
public:
    using PropertyDS::get_property_data;
    using PropertyDS::get_property_data_ref;
    using PropertyDS::registerProperty;

    Obj::PropertyInteger number;
};

TEST_F(PropertyDSTest, IsARootOfDescriptions)
{
    BareSet set;
    EXPECT_EQ(set.getTypeId(), PropertyDS::getClassTypeId());
    EXPECT_STREQ(set.getTypeId().get_name(), "Obj::PropertyDS");
    EXPECT_STREQ(set.getTypeId().getParent().get_name(), "Kelta::DataPersistence");
    EXPECT_EQ(&set.get_property_data(), BareSet::get_property_data_ref());
    EXPECT_EQ(set.get_property_data().parent(), nullptr);
    Obj::PropertyCoreData data;
    set.registerProperty(data, set.number, "Number", "", 0, "");
    set.number.setValue(4);
    EXPECT_EQ(set.number.getValue(), 4);
}

/// Makes the protected operations accessible.
struct Slots : PropertyDS
{
    static std::vector<std::ptrdiff_t> all()
    {
        using ByName = short (PropertyDS::*)(const char*) const;
        using ByProperty = short (PropertyDS::*)(const Property*) const;
        using TextByName = const char* (PropertyDS::*)(const char*) const;
        using TextByProperty = const char* (PropertyDS::*)(const Property*) const;
        using IsByName = bool (PropertyDS::*)(const char*) const;
        using IsByProperty = bool (PropertyDS::*)(const Property*) const;
        return {slotOf(&Kelta::RootClass::getTypeId),
                // two for the destructor
                slotOf(&Kelta::DataPersistence::get_memory_usage), slotOf(&Kelta::DataPersistence::save),
                slotOf(&Kelta::DataPersistence::load), slotOf(&Kelta::DataPersistence::save_to_file),
                slotOf(&Kelta::DataPersistence::load_from_file), slotOf(&PropertyDS::get_property_by_name),
                slotOf(&PropertyDS::get_property_name), slotOf(&PropertyDS::get_property_dataset),
                slotOf(&PropertyDS::get_property_array), slotOf(static_cast<ByName>(&PropertyDS::get_property_type)),
                slotOf(static_cast<ByProperty>(&PropertyDS::get_property_type)),
                slotOf(static_cast<TextByName>(&PropertyDS::get_property_group)),
                slotOf(static_cast<TextByProperty>(&PropertyDS::get_property_group)),
                slotOf(static_cast<TextByName>(&PropertyDS::get_property_description)),
                slotOf(static_cast<TextByProperty>(&PropertyDS::get_property_description)),
                slotOf(static_cast<IsByName>(&PropertyDS::is_read_only)),
                slotOf(static_cast<IsByProperty>(&PropertyDS::is_read_only)),
                slotOf(static_cast<IsByName>(&PropertyDS::is_hidden)),
                slotOf(static_cast<IsByProperty>(&PropertyDS::is_hidden)), slotOf(&Slots::on_changed),
                slotOf(&Slots::on_change_before), slotOf(&Slots::get_property_data)};
    }
};

TEST_F(PropertyDSTest, HasItsVirtualOperationsInTheOrderThatModulesAreBuiltFor)
{
    if (!vxtest::slotsCanBeRead)
        GTEST_SKIP() << "pointers to members are written differently here";
    EXPECT_THAT(Slots::all(),
                ElementsAre(0, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24));
}

} // namespace
