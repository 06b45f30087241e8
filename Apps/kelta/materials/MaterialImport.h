#pragma once

#include "kelta/DocumentImport.h"

#include <QString>

namespace desktop {

/// Reads an exchange document, and asks in which units its numbers are (ImportUnits.h), or the deck of a solver, which is
/// recognised by its content (DeckImport.h). The step adds the materials to a material project, with new ids of the project.
/// Takes data that the file does not contain from the catalogue. Returns an empty step if the user cancels.
/// \throws std::exception if the file cannot be read or is neither
ImportStep readMaterialDocument(const QString& path);

} // namespace desktop
