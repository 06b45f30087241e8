#pragma once

#include "vxMaterial/model/Material.h"
#include "vxMaterial/model/ModelExport.h"

#include <cstdint>
#include <memory>
#include <unordered_map>

namespace vxMat {

/// The material database of one material project: the library that the user picks materials from and the catalogue of
/// quantities. A project holds one; editors read both maps. The user's own materials are not in it.
///
/// Both maps own what they hold. Filling one again destroys what was handed out of it earlier.
class VXMAT_MODEL_EXPORT MatDBManager
{
public:
    /// Two empty maps; the owner fills them.
    MatDBManager();
    MatDBManager(const MatDBManager&) = delete;
    MatDBManager& operator=(const MatDBManager&) = delete;
    ~MatDBManager();

    /// Replaces `materials` by a new instance of each of the 26 built-in materials.
    void initMaterialLibrary();
    /// Replaces `propertyCatalogue` by a default instance of each of the 36 quantities.
    void initPropertyCatalogue();

    void clearMaterials();
    void clearPropertyCatalogue();
    void clear();

    std::unordered_map<std::int32_t, std::unique_ptr<MaterialBase>> materials;             ///< by eMaterialType
    std::unordered_map<std::int32_t, std::unique_ptr<MaterialProperty>> propertyCatalogue; ///< by PropertyId
};

} // namespace vxMat
