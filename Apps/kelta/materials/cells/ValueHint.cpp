#include "ValueHint.h"

#include <QAccessible>

#include <algorithm>
#include <array>

namespace desktop {

namespace {

constexpr int gap = 2;     ///< between the editor and the note
constexpr int padding = 6; ///< around the text, without the border
constexpr int narrowest = 120;

/// The style sheets of the tones, in their order.
constexpr std::array<const char*, 3> styles{
    "color: #102a43; background: #eaf3fd; border: 1px solid #7fb0df; border-radius: 3px;",
    "color: #8c1d18; background: #fdecea; border: 1px solid #d9867f; border-radius: 3px;",
    "color: #ffffff; background: #b3261e; border: 1px solid #7a1510; border-radius: 3px;",
};

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
    const QString style = QLatin1String(styles.at(static_cast<std::size_t>(tone)));
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
    const QSize area = parentWidget()->size();
    const QSize size = wrappedTo(area.width());
    const int left = std::max(0, std::min(editor.left(), area.width() - size.width()));
    const QRect below(QPoint(left, editor.bottom() + gap), size);
    const QRect above(QPoint(left, editor.top() - gap - size.height()), size);
    if (below.bottom() < area.height())
        return below;
    if (above.top() >= 0)
        return above;
    const QSize atSide = wrappedTo(area.width() - editor.right() - gap);
    const QRect right(QPoint(editor.right() + gap, std::max(0, area.height() - atSide.height())), atSide);
    if (right.right() < area.width() && right.bottom() < area.height())
        return right;
    // A part of the text is better than none.
    wrappedTo(area.width());
    const bool isRoomBelow = area.height() - editor.bottom() > editor.top();
    return (isRoomBelow ? below : above).intersected(QRect(QPoint(), area));
}

} // namespace desktop
