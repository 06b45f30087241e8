#pragma once

#include "vxMaterial/model/MatDBManager.h"

#include <optional>
#include <string>
#include <vector>

namespace commandline {

/// The built-in materials by name, without regard to case.
class MaterialNames
{
public:
    MaterialNames();

    /// Returns the type of the library material with this name; absent if there is none.
    std::optional<vxMat::eMaterialType> find(const std::string& name) const;

    /// Returns the library material with this name. The library owns it.
    /// \throws Failure if there is none; the message suggests the nearest names
    const vxMat::MaterialBase& get(const std::string& name) const;

    /// Returns the types of all library materials in ascending order.
    std::vector<vxMat::eMaterialType> types() const;
    const vxMat::MaterialBase& get(vxMat::eMaterialType type) const;

    /// Returns the message about an unknown name, with suggestions.
    std::string unknown(const std::string& name) const;
    /// Returns the message about an argument that is neither a material nor a file.
    std::string unknownNameOrFile(const std::string& name) const;

private:
    vxMat::MatDBManager m_manager;
};

} // namespace commandline
