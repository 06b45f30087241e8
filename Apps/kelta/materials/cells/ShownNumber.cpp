#include "ShownNumber.h"

#include "vxMaterial/model/NumberText.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace desktop {

namespace {

constexpr QChar ellipsis(0x2026);

/// Returns whether a text that is cut at its end shows the magnitude of its number.
bool showsMagnitude(const QString& number, const QFontMetrics& font, int width)
{
    const int point = number.indexOf(QLatin1Char('.'));
    const bool hasExponent = number.contains(QLatin1Char('e'), Qt::CaseInsensitive);
    return !hasExponent && point >= 0 && font.horizontalAdvance(number.left(point + 3) + ellipsis) <= width;
}

} // namespace

QString withMagnitudeInSight(const QString& text, const QFontMetrics& font, int width)
{
    constexpr int longestNumber = 40; // characters; a longer text is a list
    if (text.size() > longestNumber || font.horizontalAdvance(text) <= width || showsMagnitude(text, font, width))
        return text;
    const auto number = vxMat::readWholeNumber(text.toStdString());
    if (!number || !std::isfinite(*number))
        return text;
    const QString exact = QLocale::c().toString(*number, 'e', QLocale::FloatingPointShortest);
    const int mark = exact.indexOf(QLatin1Char('e'));
    constexpr int fewest = 3; // characters of the mantissa
    for (int kept = mark; kept >= std::min(fewest, mark); --kept) {
        QString shown = exact.left(kept) + (kept < mark ? QString(ellipsis) : QString()) + exact.mid(mark);
        if (font.horizontalAdvance(shown) <= width)
            return shown;
    }
    return text;
}

} // namespace desktop
