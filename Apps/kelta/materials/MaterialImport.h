#pragma once

#include "kelta/DocumentImport.h"

#include <QString>

namespace Mat {
class DocumentMaterial;
} // namespace Mat

namespace desktop {

/// Adds the materials of an exchange document to a project, under numbers of the project's own, as one step of the
/// history. What did not travel comes from the catalogue.
/// \throws std::exception if the file cannot be read or is not such a document; nothing has been added then
ImportOutcome importDocument(Mat::DocumentMaterial& project, const QString& path);

} // namespace desktop
