#include "vxMaterial/model/MatDBManager.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyCatalogue.h"

namespace vxMat {

MatDBManager::MatDBManager() = default;

MatDBManager::~MatDBManager()
{
    clear();
}

void MatDBManager::initMaterialLibrary()
{
    clearMaterials();
    for (const LibraryEntry& entry : libraryEntries())
        materials.insert_or_assign(static_cast<std::int32_t>(entry.type), entry.create());
}

void MatDBManager::initPropertyCatalogue()
{
    clearPropertyCatalogue();
    for (const PropertyRecord& record : propertyRecords())
        propertyCatalogue.insert_or_assign(record.id, record.create());
}

void MatDBManager::clearMaterials()
{
    materials.clear();
}

void MatDBManager::clearPropertyCatalogue()
{
    propertyCatalogue.clear();
}

void MatDBManager::clear()
{
    clearMaterials();
    clearPropertyCatalogue();
}

} // namespace vxMat
