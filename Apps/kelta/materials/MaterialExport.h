#pragma once

#include <QString>
#include <QStringList>

namespace Mat {
class DocumentMaterial;
} // namespace Mat

namespace vxMat {
class MaterialBase;
} // namespace vxMat

namespace desktop {

/// Returns the names of the properties of which an exchange document carries no value, in the order of the catalogue:
/// words and lists. Units and descriptions, which the catalogue knows, do not count.
QStringList findLostValues(const vxMat::MaterialBase& material);

/// Returns the reason, in the user's language, against exporting a project: a number that is infinite or not a number,
/// which an exchange document cannot contain. An empty text if there is none.
QString findExportObstacle(const Mat::DocumentMaterial& project);

/// Returns the reason, in the user's language, if a file cannot be opened for writing; an empty text if it can. An existing
/// file stays as it is.
QString findWriteObstacle(const QString& path);

/// Tells the user what the export of a project has written to a file, which is read for this: the number of materials, how
/// many of them are suppressed, and for each material the values that the document does not carry. Tells an error if the file is not a whole document.
void reportExport(const Mat::DocumentMaterial& project, const QString& path);

} // namespace desktop
