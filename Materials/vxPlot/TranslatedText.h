#pragma once

/// Marks an English text that user interfaces translate. The name is the one that the tools of Qt's translations look
/// for, so that they find the texts of this library, which does not use Qt.
#define QT_TRANSLATE_NOOP(context, text) text
