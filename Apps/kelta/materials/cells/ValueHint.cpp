#include "ValueHint.h"

#include "TableColours.h"

#include <QAccessible>

#include <algorithm>
#include <array>

namespace desktop {

namespace {

constexpr int gap = 2;     ///< between the editor and the note
constexpr int padding = 6; ///< around the text, without the border
constexpr int narrowest = 120;

using Styles = std::array<const char*, 3>; ///< the style sheets of the tones, in their order

constexpr Styles lightStyles{
    "color: #102a43; background: #eaf3fd; border: 1px solid #7fb0df; border-radius: 3px;",
    "color: #8c1d18; background: #fdecea; border: 1px solid #d9867f; border-radius: 3px;",
    "color: #ffffff; background: #b3261e; border: 1px solid #7a1510; border-radius: 3px;",
};
constexpr Styles darkStyles{
    "color: #dcebfa; background: #1d3b58; border: 1px solid #5b8fc0; border-radius: 3px;",
    "color: #ffdad6; background: #5a1d19; border: 1px solid #c4655e; border-radius: 3px;",
    "color: #ffffff; background: #b3261e; border: 1px solid #f2b8b5; border-radius: 3px;",
};

/// Returns the part of a widget that no widget around it cuts off. A window with docks can be narrower than its content.
QRect visiblePart(const QWidget& widget)
{
    QRect part = widget.rect();
    QPoint place; // of the widget in the one around it
    for (const QWidget* inner = &widget; !inner->isWindow() && inner->parentWidget() != nullptr;
         inner = inner->parentWidget())
    {
        place += inner->pos();
        part &= inner->parentWidget()->rect().translated(-place);
    }
    return part.isEmpty() ? widget.rect() : part;
}

/// Returns the point beside the bottom right corner, since QRect::right() is the last pixel inside.
QPoint endOf(const QRect& area)
{
    return {area.x() + area.width(), area.y() + area.height()};
}

} // namespace

ValueHint::ValueHint(QWidget& editor) : QLabel(editor.parentWidget()), m_editor(editor)
{
    setObjectName(QStringLiteral("valueHint"));
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setContentsMargins(padding, 1, padding, 1);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTone(Tone::Neutral);
    hide();
}

void ValueHint::say(const QString& text, Tone tone)
{
    setText(text);
    setTone(tone);
    follow();
    if (tone != Tone::Insisting)
        return;
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void ValueHint::setTone(Tone tone)
{
    const QString style = QLatin1String(
        (isDark(parentWidget()->palette()) ? darkStyles : lightStyles).at(static_cast<std::size_t>(tone)));
    if (styleSheet() != style)
        setStyleSheet(style);
}

void ValueHint::follow()
{
    setVisible(m_editor.isVisible() && !text().isEmpty());
    setGeometry(placeFor(m_editor.geometry()));
    raise();
}

/// Breaks the text into lines if it is wider than `width`, and returns the size of the note.
QSize ValueHint::wrappedTo(int width)
{
    ensurePolished();
    setWordWrap(false);
    const QSize oneLine = sizeHint();
    if (oneLine.width() <= width)
        return oneLine;
    setWordWrap(true);
    const int enough = std::max(narrowest, width);
    return {enough, heightForWidth(enough)};
}

QRect ValueHint::placeFor(const QRect& editor)
{
    const QRect area = visiblePart(*parentWidget());
    const QSize size = wrappedTo(area.width());
    const int left = std::max(area.left(), std::min(editor.left(), endOf(area).x() - size.width()));
    const QRect below(QPoint(left, editor.bottom() + gap), size);
    const QRect above(QPoint(left, editor.top() - gap - size.height()), size);
    if (area.contains(below))
        return below;
    if (area.contains(above))
        return above;
    const QSize atSide = wrappedTo(endOf(area).x() - editor.right() - gap);
    const int top = std::max(area.top(), endOf(area).y() - atSide.height());
    const QRect right(QPoint(editor.right() + gap, top), atSide);
    if (area.contains(right))
        return right;
    // A part of the text is better than none.
    wrappedTo(area.width());
    const bool isRoomBelow = area.bottom() - editor.bottom() > editor.top() - area.top();
    return (isRoomBelow ? below : above).intersected(area);
}

} // namespace desktop
