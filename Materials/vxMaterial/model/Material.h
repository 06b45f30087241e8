#pragma once

#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/ModelExport.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace vxMat {

/// The built-in materials. Each value selects the class of the same name in MaterialLibrary.h. The numbers, gaps
/// included, never change.
enum class eMaterialType : std::int32_t
{
    StructuralSteel = 0,
    Air = 2,
    AluminumAlloy = 4,
    CastIron = 10,
    Concrete = 11,
    StainlessSteel = 26,
    TitaniumBeta21S = 27,
    PlasticMaterial1 = 32,
    PlasticMaterial2 = 33,
    ViscoElasticMaterial1 = 34,
    CreepMaterial1 = 35,
    AluminumAlloyNL = 36,
    CopperAlloyNL = 38,
    StainlessSteelNL = 39,
    StructuralSteelNL = 40,
    TitaniumAlloyNL = 41,
    Elastomer1 = 42,
    Elastomer2 = 43,
    Elastomer3 = 44,
    NeopreneRubber = 45,
    CopperAlloy = 46,
    EMMaterial1 = 47,
    EMMaterial2 = 48,
    AcousticMaterial1 = 49,
    AcousticMaterial2 = 50,
    Water = 53,
};

/// A named set of properties, which the material owns.
///
/// The integer under which a material holds a property is the property's **slot**. It is normally the id of the
/// property, but need not be: the acoustic library materials hold the speed of sound in slot 401 as a second density,
/// whose id is 4. Copies keep the slots.
///
/// Materials are not copied by value: copyAllFrom copies everything; the comments of copyPropertiesFrom and of
/// CMaterial's copyTo and copyFrom tell which parts they copy.
class VXMAT_MODEL_EXPORT MaterialBase
{
public:
    using PropertyMap = std::unordered_map<std::int32_t, std::unique_ptr<MaterialProperty>>;

    MaterialBase();
    MaterialBase(const MaterialBase&) = delete;
    MaterialBase& operator=(const MaterialBase&) = delete;
    virtual ~MaterialBase();

    /// Makes a property from a row of the property table (see MaterialProperty's constructor from text) and stores it
    /// in the slot `propertyId`, as setProperty does.
    /// \throws std::invalid_argument, std::out_of_range if the text cannot be read; the material is unchanged
    void addProperty(std::int32_t propertyId, const std::string& displayName, const std::string& valueText,
                     const std::string& key, const std::string& description);

    /// Stores `property`, which must not be null, in a slot and takes ownership of it. Destroys an earlier property of
    /// the slot.
    void setProperty(std::int32_t slot, std::unique_ptr<MaterialProperty> property);

    bool hasProperty(std::int32_t slot) const;

    /// Returns the property in a slot, which the material owns; null if the slot is empty.
    const MaterialProperty* findProperty(std::int32_t slot) const;

    /// Writes the number of the property in a slot to `number` and returns true; if the slot is empty, leaves `number`
    /// unchanged and returns false.
    [[nodiscard]] bool getPropertyValue(std::int32_t slot, double& number) const;

    /// Returns the word of the property in a slot; the empty text if the slot is empty.
    std::string getPropertyText(std::int32_t slot) const;

    /// Returns the list of the property in a slot, which is valid as long as the property exists; an empty list if the
    /// slot is empty.
    const std::vector<double>& getPropertyValues(std::int32_t slot) const;

    /// Destroys the property to which the pointer points. Does nothing if the material does not hold it.
    void removeProperty(const MaterialProperty* property);

    void clearProperties();

    /// Replaces the properties by plain copies of the properties of `other`, in the same slots. Id, name and library
    /// group are unchanged. If memory runs out, the material is unchanged.
    /// \throws std::bad_alloc
    void copyPropertiesFrom(const MaterialBase& other);

    /// Makes this material the same as `other`: id, whole name, library group, and plain copies of the properties in
    /// the same slots. If memory runs out, the material is unchanged.
    /// \throws std::bad_alloc
    void copyAllFrom(const MaterialBase& other);

    /// Exchanges id, name, library group and properties with `other`.
    void swap(MaterialBase& other) noexcept;

    std::int32_t id = 0;           ///< "mat_id" of a material read from a document; 0 in the library
    std::string name;              ///< the name that the user sees
    std::int32_t libraryGroup = 0; ///< page of the editor's library; 0 for a material of the user
    PropertyMap properties; ///< by slot, unordered; CataloguedMaterial.h walks them in the order of the catalogue
};

/// A material of the user: the material of a project object, or a material in an exchange document.
class VXMAT_MODEL_EXPORT CMaterial : public MaterialBase
{
public:
    CMaterial();
    explicit CMaterial(const char* materialName); ///< must not be null

    /// Copies id, name and properties to `target`, whose library group stays. Does nothing if `target` is null. If
    /// memory runs out, the target is unchanged.
    /// \throws std::bad_alloc
    void copyTo(MaterialBase* target) const;

    /// Copies id, name and properties from `source`; the name ends at its first zero byte. The library group stays, so
    /// that it is 0 in a copy of a built-in material. If memory runs out, this material is unchanged.
    /// \throws std::bad_alloc
    void copyFrom(const MaterialBase& source);
};

} // namespace vxMat
