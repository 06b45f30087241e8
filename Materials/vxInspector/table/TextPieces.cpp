#include "table/TextPieces.h"

#include <QRegularExpression>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>

namespace vxInspector {

namespace {

/// Returns whether a character belongs to a writing in which lines end between characters.
bool isOfTextWithoutBlanks(QChar character)
{
    constexpr ushort firstRadical = 0x2e80; // the blocks of Chinese, Japanese and Korean begin here
    return character.unicode() >= firstRadical && character.unicode() != QChar::ReplacementCharacter;
}

/// Returns whether a hyphen between the letters of two words is at a place, as in "DRUCKER-PRAGER".
bool isHyphen(const QString& text, int place)
{
    constexpr int fewest = 3; // "mm-t-s" remains whole
    const auto areLetters = [&text](int begin, int end) {
        return begin >= 0 && end <= text.size() &&
               std::all_of(text.begin() + begin, text.begin() + end, [](QChar one) { return one.isLetter(); });
    };
    return text[place] == QLatin1Char('-') && areLetters(place - fewest, place) &&
           areLetters(place + 1, place + 1 + fewest);
}

bool isNumber(const QString& piece)
{
    static const QRegularExpression number(QStringLiteral("^[-+]?[.0-9][-+.0-9eE]{0,30}[,;:.]?\\s*$"));
    return number.match(piece).hasMatch();
}

} // namespace

std::vector<QString> textPieces(const QString& text)
{
    std::vector<QString> pieces;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    int begin = 0;
    const auto add = [&](int end) {
        if (end > begin)
            pieces.push_back(text.mid(begin, end - begin));
        begin = end;
    };
    for (int end = 1; end < text.size(); ++end) {
        if ((text[end - 1].isSpace() && text[end - 1] != QChar::Nbsp) || isHyphen(text, end - 1))
            add(end);
        else if (isOfTextWithoutBlanks(text[end - 1]) || isOfTextWithoutBlanks(text[end])) {
            finder.setPosition(end);
            if (finder.isAtBoundary())
                add(end);
        }
    }
    add(text.size());
    return pieces;
}

QString withWholeUnits(QString text)
{
    constexpr int mostInUnit = 12; // characters; longer texts in parentheses are no units, or need more lines
    for (int begin = text.indexOf(QLatin1String("/(")); begin >= 0;
         begin = text.indexOf(QLatin1String("/("), begin + 1)) {
        const int end = text.indexOf(QLatin1Char(')'), begin);
        if (end < 0)
            break;
        if (end - begin <= mostInUnit)
            std::replace(text.begin() + begin, text.begin() + end, QChar(QLatin1Char(' ')), QChar(QChar::Nbsp));
    }
    // The layout ends lines behind a slash.
    constexpr QChar joiner(0x2060); // has no width
    for (int i = text.size() - 2; i > 0; --i)
        if (text[i] == QLatin1Char('/') && text[i - 1].isLetterOrNumber() && !text[i + 1].isSpace())
            text.insert(i + 1, joiner);
    return text;
}

PieceWidths pieceWidths(const QString& text, const QFontMetricsF& font)
{
    PieceWidths widths;
    for (const QString& piece : textPieces(text)) {
        const int width = static_cast<int>(std::ceil(font.horizontalAdvance(piece.trimmed())));
        widths.longest = std::max(widths.longest, width);
        if (isNumber(piece))
            widths.longestNumber = std::max(widths.longestNumber, width);
    }
    return widths;
}

QString breakable(const QString& text, const QFontMetricsF& font, double width)
{
    constexpr QChar breakPlace(0x200b); // has no width
    if (font.horizontalAdvance(text) <= width)
        return text;
    QString broken;
    for (QString piece : textPieces(text)) {
        if (!isNumber(piece) && font.horizontalAdvance(piece.trimmed()) > width)
            for (int i = piece.size() - 1; i > 0; --i)
                if (!piece.at(i).isLowSurrogate())
                    piece.insert(i, breakPlace);
        broken += piece;
    }
    return broken;
}

} // namespace vxInspector
