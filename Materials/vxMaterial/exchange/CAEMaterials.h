#pragma once

#include "vxMaterial/exchange/CAEBase.h"
#include "vxMaterial/exchange/ExchangeExport.h"
#include "vxMaterial/exchange/MaterialEntry.h"

#include <cstdint>
#include <map>
#include <memory>

namespace vxCAE {

/// The materials of a project as they are passed to the solver, by material number.
///
/// Documents carry only the number of each property, not words, lists, units, descriptions and categories. The number of
/// materials is not written; it is the length of the array.
class VXCAE_EXPORT CAEMaterials : public CAEBase
{
public:
    CAEMaterials() = default;
    CAEMaterials(const CAEMaterials&) = delete;
    CAEMaterials& operator=(const CAEMaterials&) = delete;
    ~CAEMaterials() override = default;

    const char* typeName() const override;
    /// Appends to "material"; an empty section adds no member.
    void writeJson(Json::Value& document) const override;
    /// Adds the materials of the document to those that the section holds, and replaces those with the same number.
    /// Entries that were read keep the linear kind until their owner calls classifyKind.
    void readJson(const Json::Value& document) override;

    /// Stores `entry`, not null, under `number`, and destroys an earlier one with its material.
    void addMaterial(std::uint32_t number, std::unique_ptr<MaterialEntry> entry);
    /// Returns the entry under `number`, which belongs to the section; null if there is none.
    MaterialEntry* getMaterial(std::uint32_t number) const;

    std::map<std::uint32_t, std::unique_ptr<MaterialEntry>> entries; ///< by material number
};

} // namespace vxCAE
