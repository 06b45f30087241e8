#pragma once

#include "vxMaterial/exchange/CAEBase.h"
#include "vxMaterial/exchange/ExchangeExport.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace vxCAE {

/// One initial condition: a value of a type at the start of the analysis. Unlike a section, it is the only content of
/// its JSON object.
class VXCAE_EXPORT CAEIC : public CAEBase
{
public:
    const char* typeName() const override;
    void writeJson(Json::Value& json) const override;
    void readJson(const Json::Value& json) override;

    std::uint32_t obj_id = 0;
    std::string name = "unnamed";
    std::string type = "unknown";
    double value = 0.0;
};

/// The initial conditions of an analysis, which it owns.
class VXCAE_EXPORT CAEICS : public CAEBase
{
public:
    CAEICS() = default;
    CAEICS(const CAEICS&) = delete;
    CAEICS& operator=(const CAEICS&) = delete;
    ~CAEICS() override = default;

    const char* typeName() const override;
    void writeJson(Json::Value& document) const override;
    void readJson(const Json::Value& document) override;

    /// Stores `condition`, which must not be null, under its object id, and destroys an earlier one with the same id.
    void addCondition(std::unique_ptr<CAEIC> condition);

    std::map<std::uint32_t, std::unique_ptr<CAEIC>> conditions; ///< by object id
};

} // namespace vxCAE
