#pragma once

#include "vxConstitutive/Model.h"
#include "vxMaterial/model/Material.h"

#include <memory>
#include <string>
#include <vector>

namespace vxInspector {

/// Keeps the curves of the last plot, so that only those of materials that have changed are computed again.
class CurveCache
{
public:
    /// Begins a plot: curves that the plot before did not ask for are dropped.
    void begin();

    /// Returns a curve of a model of a material, computed if the cache does not have it. All numbers and words of the
    /// material count, since all of them may be constants of the model.
    std::shared_ptr<const vxConstitutive::Curve> curve(const vxMat::MaterialBase& material,
                                                       const vxConstitutive::Model& model,
                                                       const vxConstitutive::CurveRequest& request);

private:
    struct Entry
    {
        std::string key;
        std::shared_ptr<const vxConstitutive::Curve> curve;
    };

    std::vector<Entry> m_before; ///< of the plot before
    std::vector<Entry> m_now;
};

} // namespace vxInspector
