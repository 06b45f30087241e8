#include "vxMaterial/exchange/CAEResult.h"

#include "SectionMembers.h"

#include <utility>

namespace vxCAE {

const char* CAEResult::typeName() const
{
    return "CAEResult";
}

void CAEResult::writeJson(Json::Value& document) const
{
    Json::Value result(Json::objectValue);
    detail::writeMembers(*this, detail::resultMembers, result);
    document["result"] = std::move(result);
}

void CAEResult::readJson(const Json::Value& document)
{
    CAEResult read;
    detail::readMembers(read, detail::resultMembers, document["result"]);
    *this = std::move(read);
}

} // namespace vxCAE
