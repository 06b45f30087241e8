#pragma once

#include "vxMaterial/gui/SheetRow.h"
#include "vxMaterial/model/Material.h"
#include "vxUnits/MaterialValues.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace Mat {
class MaterialObject;
} // namespace Mat

namespace MatGui {
class MaterialView;
} // namespace MatGui

namespace vxInspector {

/// A row of an editor whose value cannot be read.
struct UnreadRow
{
    std::int32_t id = 0;
    int number = 0; ///< from 1
    QString value;
    QString reason; ///< a translated sentence
};

/// A material as the inspector sees it: a copy of an applied material, or the rows of its editor that are not applied.
struct InspectedMaterial
{
    std::uint32_t projectId = 0;
    std::uint32_t objectId = 0;
    QString label;
    bool isSuppressed = false;
    bool hasUnappliedRows = false;
    std::unique_ptr<vxMat::CMaterial> material; ///< never null; its name is the label, as the solver gets it
    vxUnits::MaterialValues values;
    std::vector<UnreadRow> unreadRows; ///< which `material` lacks
};

/// Returns the material of an object: the rows of `editor` if they are not applied, including the text that the user is
/// typing; otherwise the applied material. `editor` is null if the object has no open editor.
InspectedMaterial inspect(const Mat::MaterialObject& object, const MatGui::MaterialView* editor);

/// Reads rows of an editor into a material, as Apply would, and numbers with units in addition. If several rows have the
/// same id, the last one counts. Rows that cannot be read are listed in `unreadRows`.
void readRows(const std::vector<MatGui::SheetRow>& rows, InspectedMaterial& into);

} // namespace vxInspector
