#pragma once

#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/ModelExport.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace vxMat {

/// The built-in materials; each value selects the class of MaterialLibrary.h of the same name. The numbering is fixed,
/// gaps included.
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

/// A named set of properties, keyed by quantity. It owns its properties.
///
/// The key is normally the id of the property under it, but need not be: the acoustic library materials keep the
/// speed of sound as a second density under 401, and copies keep the key. Materials are not copied by value:
/// copyAllFrom copies everything, copyPropertiesFrom and CMaterial's copyTo and copyFrom what they say.
class VXMAT_MODEL_EXPORT MaterialBase
{
public:
    using PropertyMap = std::unordered_map<std::int32_t, std::unique_ptr<MaterialProperty>>;

    MaterialBase();
    MaterialBase(const MaterialBase&) = delete;
    MaterialBase& operator=(const MaterialBase&) = delete;
    virtual ~MaterialBase();

    /// Builds a property from a row of the property table (see MaterialProperty's constructor from text) and stores
    /// it as setProperty does.
    /// \throws std::invalid_argument, std::out_of_range if the text cannot be read; the material is unchanged
    void addProperty(std::int32_t propertyId, const std::string& displayName, const std::string& valueText,
                     const std::string& key, const std::string& description);

    /// Takes ownership of `property`, not null, and stores it under `key`; an earlier one under the key is destroyed.
    void setProperty(std::int32_t key, std::unique_ptr<MaterialProperty> property);

    bool hasProperty(std::int32_t key) const;

    /// Returns the property under `key`; null if there is none. The material keeps it.
    const MaterialProperty* findProperty(std::int32_t key) const;

    /// Writes the number of the property under `key` to `number` and returns true; without such a property leaves
    /// `number` as it is and returns false.
    [[nodiscard]] bool getPropertyValue(std::int32_t key, double& number) const;

    /// Returns the word of the property under `key`; empty if there is none.
    std::string getPropertyText(std::int32_t key) const;

    /// Returns the list of the property under `key`; an empty list if there is none. The reference to a property's list
    /// lives as long as the property does.
    const std::vector<double>& getPropertyValues(std::int32_t key) const;

    /// Destroys the property; a pointer that the material does not hold changes nothing.
    void removeProperty(const MaterialProperty* property);

    void clearProperties();

    /// Replaces the properties by plain copies of those of `other`, under the same keys. Id, name and library group
    /// stay. If memory runs out half-way, the material is unchanged.
    void copyPropertiesFrom(const MaterialBase& other);

    /// Makes this material the same as `other`: id, whole name, library group, and plain copies of the properties, each
    /// held as there. If memory runs out half-way, the material is unchanged.
    void copyAllFrom(const MaterialBase& other);

    /// Exchanges id, name, library group and properties with `other`.
    void swap(MaterialBase& other) noexcept;

    std::int32_t id = 0;           ///< "mat_id" of a material read from a document; 0 in the library
    std::string name;              ///< what the user sees
    std::int32_t libraryGroup = 0; ///< page of the editor's library; 0 for the user's own materials
    PropertyMap properties;        ///< in no particular order
};

/// A material of the user, as an object of a project or an entry of an exchange document holds it.
class VXMAT_MODEL_EXPORT CMaterial : public MaterialBase
{
public:
    CMaterial();
    explicit CMaterial(const char* materialName); ///< not null

    /// Copies id, name and properties to `target`, whose library group stays; does nothing for null. If memory runs out
    /// half-way, the target is unchanged.
    void copyTo(MaterialBase* target) const;

    /// Copies id, name and properties of `source`; the library group of this material stays, which is 0 for one of the
    /// user. The name ends at its first zero byte. If memory runs out half-way, this material is unchanged.
    void copyFrom(const MaterialBase& source);
};

} // namespace vxMat
