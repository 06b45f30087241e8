#include "vxMaterial/exchange/CAESystem.h"

#include "SectionMembers.h"

#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vxCAE {

const char* CAESystem::typeName() const
{
    return "CAESystem";
}

void CAESystem::writeJson(Json::Value& document) const
{
    // The modal and spectrum members are never written. The format requires that the analysis type equals a word, but
    // the type is a number.
    Json::Value system(Json::objectValue);
    detail::writeMembers(*this, detail::systemMembers, system);
    document["system"] = std::move(system);
}

void CAESystem::readJson(const Json::Value& document)
{
    const Json::Value& system = document["system"];
    CAESystem read(*this);
    detail::readMembers(read, detail::systemMembers, system);
    if (read.analysis_type == AnalysisType::Modal)
        detail::readMembers(read, detail::modalMembers, system);
    else if (read.analysis_type == AnalysisType::SpectrumResponse)
        detail::readMembers(read, detail::spectrumMembers, system);
    *this = std::move(read);
}

void CAESystem::setPhysicsType(std::int32_t type)
{
    physics_type = type;
}

void CAESystem::setPhysicsType(std::string& word)
{
    static constexpr std::array<std::pair<const char*, std::int32_t>, 5> words{{
        {"STRUCTURAL", PhysicsType::Structural},
        {"THERMAL", PhysicsType::Thermal},
        {"ELECTROMAGNETIC", PhysicsType::Electromagnetic},
        {"ACOUSTIC", PhysicsType::Acoustic},
        {"FLUIDS", PhysicsType::Fluids},
    }};
    word = vxMat::toUpperAscii(word);
    const auto* const found =
        std::find_if(words.begin(), words.end(), [&word](const auto& entry) { return word == entry.first; });
    if (found != words.end())
        physics_type = found->second;
}

void CAESystem::setAnalysisType(std::int32_t type)
{
    analysis_type = type;
}

void CAESystem::setPhysicsAndAnalysis(std::int32_t physics, std::int32_t analysis)
{
    setPhysicsType(physics);
    setAnalysisType(analysis);
}

std::int32_t CAESystem::getDimension() const
{
    return dim;
}

void CAESystem::setDimension(std::int32_t dimension)
{
    dim = dimension;
}

bool CAESystem::isNonlinear() const
{
    constexpr std::int32_t largeDeformation = 1;
    return has_contact || deform_type == largeDeformation;
}

} // namespace vxCAE
