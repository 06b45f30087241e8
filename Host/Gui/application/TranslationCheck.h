#pragma once

#include <QByteArray>

namespace Gui {

/// Returns whether QTranslator can use the content of a translation file (*.qm) without reading past its end.
/// QTranslator checks the sections of a file, but not the positions and lengths in them, so a damaged file would end the
/// program when a text is looked up. Files that refer to other translation files are refused too.
bool isSoundTranslation(const QByteArray& content);

} // namespace Gui
