#pragma once

#include "Gui/ObjectStatus.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Mat {
class DocumentMaterial;
class MaterialObject;
} // namespace Mat

namespace vxMat {
class MaterialBase;
} // namespace vxMat

namespace vxUnits {
class UnitSystem;
} // namespace vxUnits

namespace desktop {

/// The result of a check of all materials of a project.
struct CheckSummary
{
    std::size_t materials = 0; ///< the number that was checked
    std::size_t notReady = 0;  ///< the number with findings
    std::size_t findings = 0;  ///< of all materials together
    std::size_t unapplied = 0; ///< editors with edits that are not applied, which were not checked
    bool isReady() const { return notReady == 0; }
    /// Returns a sentence for the user about the project of this name.
    QString toText(const QString& projectName) const;
};

/// Checks all materials of a project by vxMat::checkMaterial and writes each finding, with the label of its material,
/// to the message log as a warning that leads to the row of the finding; after the first 1000 findings only a line that says that there are more.
CheckSummary checkAndReport(const Mat::DocumentMaterial& project);

/// A finding about a material, or a doubt about a value (vxUnits/Plausibility.h), in the language of the user.
struct CheckedValue
{
    std::int32_t slot = 0; ///< of the property to change; 0 for the whole material
    QString text;
};

/// Returns the doubts about the values of a material that have no findings, with the numbers in a unit system. May be called in
/// any thread.
std::vector<CheckedValue> doubtsBesides(const std::vector<CheckedValue>& findings, const vxMat::MaterialBase& material,
                                        const vxUnits::UnitSystem& shown);

/// Writes the findings about each of the materials that were imported, and the doubts about their other values, to the message
/// log like checkAndReport(). Returns the number of materials that it is about.
std::size_t reportImported(const std::vector<const Mat::MaterialObject*>& objects,
                           const std::vector<std::vector<CheckedValue>>& findings);

/// Returns the status of a material for the tree, by the same check.
Gui::ObjectStatus judgeMaterial(const Mat::MaterialObject& object);

} // namespace desktop
