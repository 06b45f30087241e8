#pragma once

#include "vxMaterial/exchange/CAEBase.h"
#include "vxMaterial/exchange/ExchangeExport.h"
#include "vxMaterial/exchange/MaterialEntry.h"

#include <cstdint>
#include <map>
#include <memory>

namespace vxCAE {

/// The materials of a project on their way to the solver, by material number.
///
/// Documents carry of each property the number alone: words, lists, units, descriptions and categories stay
/// behind. The number of materials is nowhere written; it is the length of the array.
class VXCAE_EXPORT CAEMaterials : public CAEBase
{
public:
    CAEMaterials() = default;
    CAEMaterials(const CAEMaterials&) = delete;
    CAEMaterials& operator=(const CAEMaterials&) = delete;
    ~CAEMaterials() override = default;

    const char* typeName() const override;
    /// Appends to "material"; an empty section adds no member at all.
    void writeJson(Json::Value& document) const override;
    /// Adds the materials of the document to those held, replacing those with the same number. Entries read
    /// keep the linear kind until their owner calls classifyKind.
    void readJson(const Json::Value& document) override;

    /// Stores `entry`, not null, under `number`, destroying an earlier one with its material.
    void addMaterial(std::uint32_t number, std::unique_ptr<MaterialEntry> entry);
    /// The entry under `number`, which the section keeps; null when there is none.
    MaterialEntry* getMaterial(std::uint32_t number) const;

    std::map<std::uint32_t, std::unique_ptr<MaterialEntry>> entries; ///< by material number
};

} // namespace vxCAE
