#pragma once

#include "vxMaterial/exchange/CAEBase.h"
#include "vxMaterial/exchange/ExchangeExport.h"
#include "vxMaterial/exchange/MaterialEntry.h"

#include <cstdint>
#include <map>
#include <memory>

namespace vxCAE {

/// The materials of a project in the form for the solver, by material number.
///
/// Documents contain only the number of each property, not words, lists, units, descriptions and categories. They do
/// not contain the number of materials, which is the length of the array.
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
    /// Adds the materials of the document to the section, and replaces materials with the same number. The new entries
    /// have the linear kind until their owner calls classifyKind.
    void readJson(const Json::Value& document) override;

    /// Stores `entry`, which must not be null, under `number`, and destroys an earlier one with its material.
    void addMaterial(std::uint32_t number, std::unique_ptr<MaterialEntry> entry);
    /// Returns the entry under `number`, which the section owns; null if there is none.
    MaterialEntry* getMaterial(std::uint32_t number) const;

    std::map<std::uint32_t, std::unique_ptr<MaterialEntry>> entries; ///< by material number
};

} // namespace vxCAE
