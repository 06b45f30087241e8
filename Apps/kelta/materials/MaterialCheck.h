#pragma once

#include "Gui/ObjectStatus.h"

#include <QString>

#include <cstddef>

namespace Mat {
class DocumentMaterial;
class MaterialObject;
} // namespace Mat

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

/// Returns the status of a material for the tree, by the same check.
Gui::ObjectStatus judgeMaterial(const Mat::MaterialObject& object);

} // namespace desktop
