#pragma once

#include "vxMaterial/model/Material.h"
#include "vxMaterial/model/ModelExport.h"

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

namespace vxMat {

/// The material database of one material project: the library from which the user picks materials, and the catalogue of
/// quantities. A project holds one database; editors read both maps. The materials of the user are not in it.
///
/// Both maps own their entries. Filling a map again destroys its earlier entries and invalidates pointers to them.
class VXMAT_MODEL_EXPORT MatDBManager
{
public:
    /// Makes two empty maps; the owner fills them.
    MatDBManager();
    MatDBManager(const MatDBManager&) = delete;
    MatDBManager& operator=(const MatDBManager&) = delete;
    ~MatDBManager();

    /// Replaces `materials` by a new instance of each of the 26 built-in materials. If memory runs out, the entries
    /// made so far stay.
    /// \throws std::bad_alloc
    void initMaterialLibrary();
    /// Replaces `propertyCatalogue` by a default instance of each of the 36 quantities. If memory runs out, the entries
    /// made so far stay.
    /// \throws std::bad_alloc
    void initPropertyCatalogue();

    void clearMaterials();
    void clearPropertyCatalogue();
    void clear();

    std::unordered_map<std::int32_t, std::unique_ptr<MaterialBase>> materials;             ///< by eMaterialType
    std::unordered_map<std::int32_t, std::unique_ptr<MaterialProperty>> propertyCatalogue; ///< by PropertyId
};

/// Returns the materials of a database, which owns them, in the order of listings: built-in materials by
/// getLibraryPosition, then other materials in ascending order of their numbers.
VXMAT_MODEL_EXPORT std::vector<MaterialBase*> materialsInLibraryOrder(const MatDBManager& database);

/// Returns the properties in the catalogue of a database, which owns them, in the order of the catalogue
/// (propertyRecords), then other properties in ascending order of their ids.
VXMAT_MODEL_EXPORT std::vector<MaterialProperty*> propertiesInCatalogueOrder(const MatDBManager& database);

} // namespace vxMat
