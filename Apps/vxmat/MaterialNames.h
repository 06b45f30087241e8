#pragma once

#include "vxMaterial/model/MatDBManager.h"

#include <optional>
#include <string>
#include <vector>

namespace vxmat {

/// The built-in materials as the command line knows them: by name, without regard to case.
class MaterialNames
{
public:
    MaterialNames();

    /// The type of a material of the library; absent when none has the name.
    std::optional<vxMat::eMaterialType> find(const std::string& name) const;

    /// The material of that name, which the library keeps.
    /// \throws Failure when there is none; the text suggests the nearest names
    const vxMat::MaterialBase& get(const std::string& name) const;

    /// The materials in the order of their types.
    std::vector<vxMat::eMaterialType> types() const;
    const vxMat::MaterialBase& get(vxMat::eMaterialType type) const;

    /// What to say of a name that no material has: the names nearest to it.
    std::string unknown(const std::string& name) const;
    /// The same where a file could have been meant as well.
    std::string unknownNameOrFile(const std::string& name) const;

private:
    std::vector<std::string> nearest(const std::string& name) const;

    vxMat::MatDBManager m_manager;
};

} // namespace vxmat
