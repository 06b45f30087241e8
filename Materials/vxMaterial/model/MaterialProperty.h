#pragma once

#include "vxMaterial/model/ModelExport.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vxMat {

/// The physics group of a quantity. The editor shows one page for each group that has quantities. Thermal and Acoustic
/// have none, since the thermal and acoustic quantities belong to Basic.
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

/// The form of a quantity's value.
enum class ValueKind
{
    Number,      ///< one number, in MaterialProperty::value
    Word,        ///< a word of a fixed list, in MaterialProperty::text
    NumberList,  ///< numbers, in MaterialProperty::values
    ModelSwitch, ///< the presence of the property switches a material model on; its value has no meaning
};

/// Returns the form in which text typed for the quantity `id` is read. The switches of visco-elasticity (42) and creep
/// (45) are read as numbers, unlike the other switches; they refuse a text that is not a number.
VXMAT_MODEL_EXPORT ValueKind getValueKind(std::int32_t id);

/// Returns the display name of a category number, "Linear Elastic" for 1; "Undefined" for a number outside 0 to 8.
VXMAT_MODEL_EXPORT const char* getPropertyCategoryName(std::int32_t category);

/// Returns the display name of five quantities, whose capitals differ from MaterialProperty::name ("Electrical
/// Conductivity" for 301); the empty text for every other id. 201, thermal expansion, has a name here although the
/// catalogue has no such quantity.
VXMAT_MODEL_EXPORT const char* getPropertyTypeName(std::int32_t id);

/// The base class of the properties of a material.
class VXMAT_MODEL_EXPORT ObjectBase
{
public:
    ObjectBase() = default;
    ObjectBase(const ObjectBase&) = delete;
    ObjectBase& operator=(const ObjectBase&) = delete;
    virtual ~ObjectBase();

    std::int32_t objectTag = 0; ///< free for use by the owner; the model neither sets nor reads it
};

/// One physical quantity of a material: a density of 7850 kg/m3, a yield type "Mises", a list of yield stresses.
///
/// The id fixes which of `value`, `text` and `values` holds the data (getValueKind). The concrete quantities are the
/// classes of PropertyCatalogue.h; they differ only in their defaults and metadata. A copy is always a plain
/// MaterialProperty with all the data: the class of a property matters only while it is made.
class VXMAT_MODEL_EXPORT MaterialProperty : public ObjectBase
{
public:
    MaterialProperty() = default;

    /// Makes a property from a row of the property table. `valueText` is read by its kind (getValueKind): a switch
    /// becomes 1 for every text, a word is stored unchanged, a list is read by readNumberList, a number by readNumber.
    /// The unit is empty and the category Undefined.
    /// \throws std::invalid_argument, std::out_of_range as readNumber and readNumberList do
    MaterialProperty(std::int32_t propertyId, std::string displayName, const std::string& valueText,
                     std::string shortKey, std::string hint);

    /// Makes a property from the data in an exchange document: id, name, key and number. The unit is "-" and the
    /// category Undefined.
    MaterialProperty(std::int32_t propertyId, std::string displayName, std::string shortKey, double number);

    /// Copies everything except `marked` and `objectTag`, which are false and 0 in the copy.
    MaterialProperty(const MaterialProperty& other);
    MaterialProperty& operator=(const MaterialProperty&) = delete;
    ~MaterialProperty() override;

    /// Sets the metadata (name, key, unit, description if there is one, category, id) of a concrete quantity. Does
    /// nothing in this class.
    virtual void initProperty();

    double getValue() const { return value; }
    const std::string& getText() const { return text; }

    std::int32_t id = 0;        ///< id of the quantity (PropertyId); normally also the slot in the material
    std::string name;           ///< the name that the user sees: "Density"
    std::string key;            ///< short name in documents and solver cards: "rho"
    double value = 0.0;         ///< the number, in `unit`
    std::string text;           ///< the word
    std::vector<double> values; ///< the list
    std::string description;    ///< a hint for the user: "Between [0.001, 0.499]"
    std::string unit;           ///< "kg/m3"; "-" for a quantity without a unit
    ePropertyCategory category = ePropertyCategory::Undefined;
    bool marked = false; ///< free for use by the owner; never copied
};

/// Returns the value of a property in the form of a table: the word unchanged, the list joined by ", ", or the number,
/// also for a switch. Numbers are written by formatNumber, so that a property made from the text has the same value,
/// unless it is a switch.
VXMAT_MODEL_EXPORT std::string formatValue(const MaterialProperty& property);

} // namespace vxMat
