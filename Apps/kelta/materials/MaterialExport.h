#pragma once

#include <QString>

namespace Mat {
class DocumentMaterial;
} // namespace Mat

namespace desktop {

/// Returns the reason, in the user's language, why readers would refuse the document of a project: the first of
/// vxCAE::findExportObstacles. Returns an empty text if there is none.
QString findExportObstacle(const Mat::DocumentMaterial& project);

/// Returns the reason, in the user's language, why a file cannot be opened for writing; an empty text if it can. An
/// existing file is unchanged.
QString findWriteObstacle(const QString& path);

/// Reads the file that the export of a project has written, and reports to the user: the number of materials, the
/// number of suppressed materials, and for each material the values that the document does not carry
/// (vxCAE::findLostValues). Reports an error if the file is not a whole document.
void reportExport(const Mat::DocumentMaterial& project, const QString& path);

} // namespace desktop
