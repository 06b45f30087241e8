#include "documents/MaterialNames.h"

#include "program/Answer.h"
#include "program/Suggestions.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>

namespace commandline {

MaterialNames::MaterialNames()
{
    m_manager.initMaterialLibrary();
}

std::vector<vxMat::eMaterialType> MaterialNames::types() const
{
    std::vector<vxMat::eMaterialType> types;
    for (const auto& [type, material] : m_manager.materials)
        types.push_back(static_cast<vxMat::eMaterialType>(type));
    std::sort(types.begin(), types.end());
    return types;
}

const vxMat::MaterialBase& MaterialNames::get(vxMat::eMaterialType type) const
{
    return *m_manager.materials.at(static_cast<std::int32_t>(type));
}

std::optional<vxMat::eMaterialType> MaterialNames::find(const std::string& name) const
{
    for (const auto& [type, material] : m_manager.materials) {
        if (vxMat::equalIgnoringAsciiCase(material->name, name))
            return static_cast<vxMat::eMaterialType>(type);
    }
    return std::nullopt;
}

const vxMat::MaterialBase& MaterialNames::get(const std::string& name) const
{
    const auto type = find(name);
    if (!type)
        throw Failure(unknown(name));
    return get(*type);
}

std::string MaterialNames::unknown(const std::string& name) const
{
    std::vector<std::string> names;
    for (const auto& [type, material] : m_manager.materials)
        names.push_back(material->name);
    const std::string question = didYouMean(nearestNames(name, names));
    return "no material is called \"" + name + "\"; " + (question.empty() ? "\"vxmat library\" lists them" : question);
}

std::string MaterialNames::unknownNameOrFile(const std::string& name) const
{
    const std::string text = unknown(name);
    return text + (text.back() == '?' ? "" : ".") + " There is no file of that name either.";
}

} // namespace commandline
