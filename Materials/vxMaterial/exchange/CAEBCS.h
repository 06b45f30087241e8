#pragma once

#include "vxMaterial/exchange/CAEBase.h"
#include "vxMaterial/exchange/ExchangeExport.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace vxCAE {

/// The values of a boundary condition in one load step, one for each component, with a flag for each imposed value.
struct VXCAE_EXPORT StepValue
{
    std::vector<double> values;
    std::vector<bool> imposed; ///< a flag for each value; fewer flags than values are a programming error
    std::uint32_t count = 0;   ///< the required number of values; a step with another number is incomplete
    std::int32_t valType = 0;  ///< numbered by the solver
};

/// One boundary condition with its values per load step, which it owns.
class VXCAE_EXPORT CAEBC
{
public:
    CAEBC() = default;
    CAEBC(std::uint32_t objectId, std::string conditionName, std::int32_t conditionType, std::uint32_t components);
    CAEBC(const CAEBC&) = delete;
    CAEBC& operator=(const CAEBC&) = delete;

    /// Sets the condition's members in `json`. Of an incomplete step only id and type are written.
    virtual void writeJson(Json::Value& json) const;
    /// Reads the condition and adds its steps to the existing steps. Skips a step whose arrays differ in length;
    /// checkDocument reports such a step.
    /// \throws Json::LogicError if a value cannot be converted; the condition keeps the values before it
    virtual void readJson(const Json::Value& json);
    // Writing and reading must be the first two virtual operations, in front of the destructor.
    virtual ~CAEBC();

    /// Stores `step`, which must not be null, under `setId`, and destroys an earlier one.
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

    /// Stores `condition`, which must not be null, under its object id, and destroys an earlier one with the same id.
    void addCondition(std::unique_ptr<CAEBC> condition);

    std::map<std::uint32_t, std::unique_ptr<CAEBC>> conditions; ///< by object id
};

} // namespace vxCAE
