#include "materials/ModelKeys.h"

#include "program/Answer.h"
#include "vxMaterial/model/NumberText.h"

namespace commandline {

namespace {

/// Returns the keys of records, separated by commas.
template <class Records>
std::string keysOf(const Records& records)
{
    std::string keys;
    for (const auto& record : records)
        keys += (keys.empty() ? "" : ", ") + std::string(record.key);
    return keys;
}

} // namespace

vxConstitutive::Mode readMode(const std::string& option, const std::string& key)
{
    if (const auto mode = vxConstitutive::findMode(key))
        return *mode;
    throw Failure(option + ": \"" + key + "\" is not a mode; the modes are " + keysOf(vxConstitutive::modeRecords()));
}

vxConstitutive::ModelKind readModelKind(const std::string& option, const std::string& key)
{
    for (const vxConstitutive::ModelRecord& record : vxConstitutive::modelRecords()) {
        if (vxMat::equalIgnoringAsciiCase(key, record.key))
            return record.kind;
    }
    throw Failure(option + ": \"" + key + "\" is not a model; the models are " +
                  keysOf(vxConstitutive::modelRecords()));
}

} // namespace commandline
