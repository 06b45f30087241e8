#pragma once

#include <QLabel>

namespace desktop {

/// A note beside the editor of a table cell, inside the visible part of the table: below the editor if there is room, otherwise above it or
/// at its side, so that the typed text stays visible. It takes neither the keyboard nor the mouse. Its colours fit those of
/// the table.
class ValueHint : public QLabel
{
public:
    enum class Tone
    {
        Neutral,  ///< the value is understood
        Refused,  ///< the value cannot be read as typed
        Insisting ///< the user has tried to store a value that cannot be read
    };

    /// Makes a hidden note in the parent of `editor`, which owns the note.
    explicit ValueHint(QWidget& editor);

    /// Shows a plain text. A screen reader announces the text of an insisting note.
    void say(const QString& text, Tone tone);

    /// Moves the note to the editor; hides it with the editor.
    void follow();

private:
    void setTone(Tone tone);
    QSize wrappedTo(int width);
    QRect placeFor(const QRect& editor);

    QWidget& m_editor; ///< a sibling, which outlives the note as long as the note is used
};

} // namespace desktop
