#pragma once

#include "vxMaterial/model/ModelExport.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vxMat {

/// The physics group of a quantity. The editor shows one page per group that has quantities; Thermal and Acoustic
/// have none, their quantities being Basic ones.
enum class ePropertyCategory : std::int32_t
{
    Basic = 0,
    LinearElastic = 1,
    Hyperelastic = 2,
    Plastic = 3,
    Creep = 4,
    Viscoelastic = 5,
    Thermal = 6,
    Electric = 7,
    Acoustic = 8,
    Undefined = 9,
};

/// The form that a quantity's value takes.
enum class eValueKind
{
    Number,      ///< one number, in MaterialProperty::value
    Word,        ///< a word out of a fixed list, in MaterialProperty::text
    NumberList,  ///< numbers, in MaterialProperty::values
    ModelSwitch, ///< a material model is on when the property is there; MaterialProperty::value says nothing
                 ///< more
};

/// How text typed for the quantity `id` is read. The switches of visco-elasticity (42) and creep (45) are read as
/// numbers, unlike the other switches: a text that is none is refused.
VXMAT_MODEL_EXPORT eValueKind getValueKind(std::int32_t id);

/// The display name of a category number, "Linear Elastic" for 1; "Undefined" for every number outside 0 to 8.
VXMAT_MODEL_EXPORT const char* getPropertyCategoryName(std::int32_t category);

/// The display name of five quantities, capitalised otherwise than MaterialProperty::name ("Electrical Conductivity"
/// for 301); empty for every other id. 201, thermal expansion, has a name here though the catalogue has no such
/// quantity yet.
VXMAT_MODEL_EXPORT const char* getPropertyTypeName(std::int32_t id);

/// The root of what a material holds.
class VXMAT_MODEL_EXPORT ObjectBase
{
public:
    ObjectBase() = default;
    ObjectBase(const ObjectBase&) = delete;
    ObjectBase& operator=(const ObjectBase&) = delete;
    virtual ~ObjectBase();

    std::int32_t objectTag = 0; ///< free for the owner; nothing here sets or reads it
};

/// One physical quantity of a material: a density of 7850 kg/m3, a yield type "Mises", a list of yield stresses.
///
/// Which of `value`, `text` and `values` holds the data is fixed by the id (getValueKind). The concrete quantities
/// are the classes of PropertyCatalogue.h;/// they differ in their defaults and metadata only. A copy is always a
/// plain MaterialProperty: it has all the data, and nothing looks at the class once a property is made.
class VXMAT_MODEL_EXPORT MaterialProperty : public ObjectBase
{
public:
    MaterialProperty() = default;

    /// A property from a row of the property table. `valueText` is read as getValueKind says: switches become 1
    /// whatever the text, words are taken as they stand, lists by readNumberList, numbers by readNumber. The unit
    /// stays empty and the category Undefined.
    /// \throws std::invalid_argument, std::out_of_range as readNumber and readNumberList do
    MaterialProperty(std::int32_t propertyId, std::string displayName, const std::string& valueText,
                     std::string shortKey, std::string hint);

    /// A property as exchange documents carry it: no more than id, name, key and number. The unit is "-", the
    /// category Undefined.
    MaterialProperty(std::int32_t propertyId, std::string displayName, std::string shortKey, double number);

    /// Copies everything but `marked` and `objectTag`, which are false and 0 in the copy.
    MaterialProperty(const MaterialProperty& other);
    MaterialProperty& operator=(const MaterialProperty&) = delete;
    ~MaterialProperty() override;

    /// Sets the metadata (name, key, unit, description, category, id) of a concrete quantity; nothing here.
    virtual void initProperty();

    double getValue() const { return value; }
    const std::string& getText() const { return text; }

    std::int32_t id = 0;        ///< which quantity (PropertyId); as a rule the key in the material too
    std::string name;           ///< what the user sees: "Density"
    std::string key;            ///< short name in documents: "rho"
    double value = 0.0;         ///< the number, in `unit`
    std::string text;           ///< the word
    std::vector<double> values; ///< the list
    std::string description;    ///< a hint for the user: "Between [0.001, 0.499]"
    std::string unit;           ///< "kg/m3"; "-" where there is none
    ePropertyCategory category = ePropertyCategory::Undefined;
    bool marked = false; ///< free for the owner, never copied
};

/// The value of a property as a table shows it, by getValueKind: the word as it stands, the list joined by ", ", the
/// number otherwise, switches included. Numbers are written by formatNumber, so that a property made from the text has
/// the same value, switches excepted.
VXMAT_MODEL_EXPORT std::string formatValue(const MaterialProperty& property);

} // namespace vxMat
