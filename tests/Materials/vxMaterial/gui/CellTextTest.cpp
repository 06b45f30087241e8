#include "CellText.h"

#include <QApplication>
#include <QFontMetrics>
#include <gtest/gtest.h>

namespace {

QStringList linesOf(const QString& text, int width)
{
    return MatGui::wrapCellText(text, QApplication::font(), QSize(width, 1000)).split(QLatin1Char('\n'));
}

int widthOf(const QString& text)
{
    return QFontMetrics(QApplication::font()).horizontalAdvance(text);
}

/// Returns the lines without the places for line breaks, which have no width.
QStringList wordsOf(const QString& text, int width)
{
    return linesOf(text, width).replaceInStrings(QString(QChar(0x200b)), QString());
}

TEST(CellText, CutsANumberThatIsWiderThanTheCell)
{
    const QString number = QStringLiteral("-1.7976931348623157e+308");
    for (int width = widthOf(QStringLiteral("-1.79")) + 20; width < widthOf(number); width += 7) {
        const QStringList lines = linesOf(number, width);
        ASSERT_EQ(lines.size(), 1) << width;
        EXPECT_TRUE(lines[0].endsWith(QChar(0x2026))) << lines[0].toStdString();
        EXPECT_TRUE(number.startsWith(lines[0].chopped(1)));
        EXPECT_TRUE(MatGui::isCellTextCut(number, QApplication::font(), QSize(width, 1000)));
    }
    EXPECT_EQ(linesOf(number, widthOf(number) + 1), QStringList(number));
    EXPECT_FALSE(MatGui::isCellTextCut(number, QApplication::font(), QSize(widthOf(number) + 1, 1000)));
}

TEST(CellText, BreaksAListOnlyBetweenItsNumbers)
{
    const QString wide = QStringLiteral("-1.7976931348623157e+308");
    const QStringList lines = wordsOf(QStringLiteral("206.5,1.25e-10;300.125,") + wide, widthOf("1.25e-10;W"));
    EXPECT_EQ(lines.mid(0, 3), QStringList({"206.5,", "1.25e-10;", "300.125,"}));
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(lines[3].endsWith(QChar(0x2026)));
}

TEST(CellText, BreaksALongWordWithHyphens)
{
    const QString word = QStringLiteral("Elastizitaetskonstantenmatrix");
    const int width = widthOf(word) / 2 + 10;
    const QStringList lines = linesOf(word, width);
    ASSERT_GT(lines.size(), 1);
    for (const QString& line : lines) {
        EXPECT_EQ(line.endsWith(QLatin1Char('-')), line != lines.back()) << line.toStdString();
        EXPECT_LE(widthOf(line), width);
    }
    EXPECT_EQ(lines.join(QString()).remove(QLatin1Char('-')), word);
    EXPECT_LE(MatGui::cellTextSize(word, QApplication::font(), width).width(), width);
}

TEST(CellText, HasNoHyphenBetweenWordsOrChineseCharacters)
{
    const QString name = QStringLiteral("Mass density");
    EXPECT_EQ(linesOf(name, widthOf(QStringLiteral("density")) + 2), QStringList({"Mass ", "density"}));
    const QString chinese = QString::fromUtf8("\u5f39\u6027\u6a21\u91cf\u4e0e\u5bc6\u5ea6");
    EXPECT_FALSE(linesOf(chinese, widthOf(chinese) / 2).join(QString()).contains(QLatin1Char('-')));
}

TEST(CellText, EndsWithAnEllipsisWithoutAHyphenIfAWordIsCutOff)
{
    const QString word = QStringLiteral("Elastizitaetskonstantenmatrix");
    const QFont font = QApplication::font();
    const QString shown =
        MatGui::wrapCellText(word, font, QSize(widthOf(word) / 2, QFontMetrics(font).lineSpacing() + 2));
    EXPECT_TRUE(shown.endsWith(QChar(0x2026)));
    EXPECT_FALSE(shown.contains(QLatin1Char('-')));
}

TEST(CellText, IsCutIfItHasMoreLinesThanTheCell)
{
    const QFont font = QApplication::font();
    const int line = QFontMetrics(font).lineSpacing();
    EXPECT_TRUE(MatGui::isCellTextCut(QStringLiteral("Mass density"), font, QSize(widthOf("density") + 2, line)));
    EXPECT_FALSE(MatGui::isCellTextCut(QStringLiteral("Mass density"), font, QSize(widthOf("density") + 2, 3 * line)));
}

} // namespace
