#pragma once

#include "kelta/DocumentImport.h"

#include <QString>

namespace Mat {
class DocumentMaterial;
} // namespace Mat

namespace desktop {

/// Adds the materials of an exchange document to a project, with new ids of the project, as one step of the history.
/// Takes data that the document does not contain from the catalogue.
/// \throws std::exception if the file cannot be read or is not such a document; nothing is then added
ImportOutcome importDocument(Mat::DocumentMaterial& project, const QString& path);

} // namespace desktop
