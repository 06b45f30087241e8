#pragma once

#include "vxMaterial/exchange/CAEBase.h"
#include "vxMaterial/exchange/ExchangeExport.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace vxCAE {

/// What a boundary condition imposes in one load step: one value per component, and whether it is imposed.
struct VXCAE_EXPORT StepValue
{
    std::vector<double> values;
    std::vector<bool> imposed;
    std::uint32_t count = 0;  ///< how many values there should be; a step with another number is not complete
    std::int32_t valType = 0; ///< numbered by the solver
};

/// One boundary condition with its values per load step, which it owns.
class VXCAE_EXPORT CAEBC
{
public:
    CAEBC() = default;
    CAEBC(std::uint32_t objectId, std::string conditionName, std::int32_t conditionType, std::uint32_t components);
    CAEBC(const CAEBC&) = delete;
    CAEBC& operator=(const CAEBC&) = delete;

    /// Sets the condition's members in `json`. Of a step with another number of values than its count, or with fewer
    /// flags than values, only id and type are written.
    virtual void writeJson(Json::Value& json) const;
    /// Reads the condition, adding its steps to those held. A step whose arrays differ in length is passed over;
    /// checkDocument reports it.
    /// \throws Json::LogicError when a value cannot be converted; what was read before stays read
    virtual void readJson(const Json::Value& json);
    // Writing and reading are the first two virtual operations, so the destructor stands behind them.
    virtual ~CAEBC();

    /// Stores `step`, not null, under `setId`, destroying an earlier one.
    void addStep(std::int32_t setId, std::unique_ptr<StepValue> step);

    std::uint32_t obj_id = 0;
    std::int32_t type = 0; ///< numbered by the solver
    std::string name = "Unknown";
    std::uint32_t componentCount = 3;                         ///< not exchanged
    std::map<std::int32_t, std::unique_ptr<StepValue>> steps; ///< by set id
};

/// The boundary conditions of an analysis, which it owns.
class VXCAE_EXPORT CAEBCS : public CAEBase
{
public:
    CAEBCS() = default;
    CAEBCS(const CAEBCS&) = delete;
    CAEBCS& operator=(const CAEBCS&) = delete;
    ~CAEBCS() override = default;

    const char* typeName() const override;
    void writeJson(Json::Value& document) const override;
    void readJson(const Json::Value& document) override;

    /// Stores `condition`, not null, under its object id, destroying an earlier one with the same id.
    void addCondition(std::unique_ptr<CAEBC> condition);

    std::map<std::uint32_t, std::unique_ptr<CAEBC>> conditions; ///< by object id
};

} // namespace vxCAE
