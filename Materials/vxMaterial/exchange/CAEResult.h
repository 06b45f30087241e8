#pragma once

#include "vxMaterial/exchange/CAEBase.h"
#include "vxMaterial/exchange/ExchangeExport.h"

#include <cstdint>
#include <string>

namespace vxCAE {

/// The form and place of the results and logs of the solver. A field has the name of its JSON member. The solver
/// numbers the result formats; the section does not interpret the numbers.
class VXCAE_EXPORT CAEResult : public CAEBase
{
public:
    const char* typeName() const override;
    void writeJson(Json::Value& document) const override;
    void readJson(const Json::Value& document) override;

    std::int32_t rst_format = 4;
    std::string rst_fname = "noname_rst.dat";
    std::string rst_path;
    bool output_iter_log = false;
    bool output_time_log = false;
    std::uint32_t output_freq = 1; ///< output frequency
    bool monitor_trans = false;
};

} // namespace vxCAE
