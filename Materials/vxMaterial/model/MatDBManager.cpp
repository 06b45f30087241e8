#include "vxMaterial/model/MatDBManager.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <algorithm>
#include <utility>

namespace vxMat {

namespace {

/// Returns the entries of a map in ascending order of the `position` of their numbers, then of the numbers.
template <class Entry, class Position>
std::vector<Entry*> ordered(const std::unordered_map<std::int32_t, std::unique_ptr<Entry>>& map, Position position)
{
    std::vector<std::pair<std::pair<std::size_t, std::int32_t>, Entry*>> entries;
    entries.reserve(map.size());
    for (const auto& [number, entry] : map)
        entries.push_back({{position(number), number}, entry.get()});
    std::sort(entries.begin(), entries.end(),
              [](const auto& one, const auto& other) { return one.first < other.first; });
    std::vector<Entry*> all;
    all.reserve(entries.size());
    for (const auto& entry : entries)
        all.push_back(entry.second);
    return all;
}

} // namespace

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

std::vector<MaterialBase*> materialsInLibraryOrder(const MatDBManager& database)
{
    return ordered(database.materials,
                   [](std::int32_t type) { return getLibraryPosition(static_cast<eMaterialType>(type)); });
}

std::vector<MaterialProperty*> propertiesInCatalogueOrder(const MatDBManager& database)
{
    return ordered(database.propertyCatalogue, getCataloguePosition);
}

} // namespace vxMat
