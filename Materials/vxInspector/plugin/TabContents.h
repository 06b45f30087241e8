#pragma once

#include "curves/CurvesContent.h"
#include "subject/Subject.h"
#include "table/TableContent.h"
#include "vxInspector/decks/DeckForms.h"
#include "vxUnits/UnitSystem.h"

#include <optional>

/// The contents of the tabs of the inspector for everything that can be selected.
namespace vxInspector {

/// The most materials of a selection or a project that are checked. A table that omits materials says so.
inline constexpr std::size_t mostChecked = 200;

/// Returns the values of the first material, with a sign for each one that has findings; for a project the numbers of its
/// materials. `findings` are those of the first material or of more.
TableContent valuesTab(const Subject& subject, const vxUnits::UnitSystem& system, const TableContent& findings);
/// Returns the findings of the first materials, at most `most`, in a unit system. Takes curves of unchanged materials from a
/// cache.
TableContent findingsTab(const Subject& subject, const vxUnits::UnitSystem& system, std::size_t most,
                         CurveCache& cache);
/// Returns the cards of the first material: as a deck in a form of a format and a unit system, or those that the
/// solver of the program gets if there is no form.
TableContent cardsTab(const Subject& subject, const std::optional<DeckForm>& form, const vxUnits::UnitSystem& system);
/// Returns the comparison of all materials.
TableContent compareTab(const Subject& subject, const vxUnits::UnitSystem& system);

/// The materials whose curves and tests are drawn.
struct DrawnMaterials
{
    QString sentence = {}; ///< why there are none
    std::vector<DrawnMaterial> materials = {};
    QString limit = {}; ///< says that further ones are not drawn; empty if all are
};
DrawnMaterials drawnMaterials(const Subject& subject, MeasurementsCache& cache);

} // namespace vxInspector
