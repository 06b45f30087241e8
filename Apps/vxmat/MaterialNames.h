#pragma once

#include "vxMaterial/model/MatDBManager.h"

#include <optional>
#include <string>
#include <vector>

namespace vxmat {

/// The built-in materials by name, without regard to case.
class MaterialNames
{
public:
    MaterialNames();

    /// Returns the type of a material of the library; absent if none has the name.
    std::optional<vxMat::eMaterialType> find(const std::string& name) const;

    /// Returns the material of that name, which belongs to the library.
    /// \throws Failure if there is none; the text suggests the nearest names
    const vxMat::MaterialBase& get(const std::string& name) const;

    /// Returns the types of all materials, in order.
    std::vector<vxMat::eMaterialType> types() const;
    const vxMat::MaterialBase& get(vxMat::eMaterialType type) const;

    /// Returns the message about a name that no material has, with the nearest names.
    std::string unknown(const std::string& name) const;
    /// The same for an argument that may also be the name of a file.
    std::string unknownNameOrFile(const std::string& name) const;

private:
    std::vector<std::string> nearest(const std::string& name) const;

    vxMat::MatDBManager m_manager;
};

} // namespace vxmat
