#pragma once

#include <QFontMetricsF>
#include <QString>

#include <vector>

/// Texts of cells in columns that may be narrower than the texts.
namespace vxInspector {

/// Returns the pieces of a text between which a line may end: words, numbers and units at blanks that may break, words at hyphens, and the characters of
/// Chinese, Japanese and Korean texts, which have no blanks.
std::vector<QString> textPieces(const QString& text);

/// Returns a text whose lines do not end inside a unit such as m/s or W/(m K): its slashes and blanks do not break.
QString withWholeUnits(QString text);

/// The widths that the pieces of a text need in a line.
struct PieceWidths
{
    int longest = 0;
    int longestNumber = 0;
};

PieceWidths pieceWidths(const QString& text, const QFontMetricsF& font);

/// Returns a text in which pieces that are wider than `width` can be broken after each character. Numbers are never broken.
QString breakable(const QString& text, const QFontMetricsF& font, double width);

} // namespace vxInspector
