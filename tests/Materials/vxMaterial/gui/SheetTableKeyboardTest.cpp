// The property table with the keyboard: the focus, opening values, and completing words.

#include "EditorTesting.h"

#include "vxMaterial/model/PropertyCatalogue.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QtTest/QtTestGui>
#include <QtTest/qtestmouse.h>
#include <gtest/gtest.h>

namespace {

using vxtest::Editor;

QModelIndex valueIn(Editor& editor, int id)
{
    return editor.table().model()->index(editor.rowOf(id), 2);
}

TEST(SheetTableKeyboard, ComesToTheColumnOfTheValues)
{
    Editor editor;
    editor.child<QPushButton>("btnAddMat").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), &editor.table());
    EXPECT_EQ(editor.table().currentIndex(), editor.table().model()->index(0, 2));
    editor.table().setCurrentIndex(editor.table().model()->index(3, 1));
    editor.child<QPushButton>("btnOk").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_EQ(QApplication::focusWidget(), &editor.table());
    EXPECT_EQ(editor.table().currentIndex(), editor.table().model()->index(3, 2));
}

TEST(SheetTableKeyboard, StaysInTheCellThatTheMouseChooses)
{
    Editor editor;
    editor.child<QPushButton>("btnAddMat").setFocus();
    const QModelIndex name = editor.table().model()->index(2, 1);
    QTest::mouseClick(editor.table().viewport(), Qt::LeftButton, {}, editor.table().visualRect(name).center());
    EXPECT_EQ(editor.table().currentIndex(), name);
}

TEST(SheetTableKeyboard, EditsTheValueFromEveryColumnByF2AndReturn)
{
    Editor editor;
    editor.table().setFocus();
    for (const auto key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
        for (const int column : {1, 2, 3}) {
            editor.table().setCurrentIndex(editor.table().model()->index(4, column));
            QTest::keyClick(&editor.table(), key);
            QLineEdit* const line = vxtest::openEditor(editor.table());
            ASSERT_NE(line, nullptr) << key << " in column " << column;
            EXPECT_EQ(line, editor.table().indexWidget(editor.table().model()->index(4, 2)));
            QTest::keyClick(line, Qt::Key_Escape);
            EXPECT_EQ(vxtest::openEditor(editor.table()), nullptr);
        }
    }
}

TEST(SheetTableKeyboard, ReturnsToTheTableAfterReturnInAValue)
{
    Editor editor;
    QLineEdit* const line = editor.openValue(5);
    ASSERT_NE(line, nullptr);
    line->setText("3");
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_EQ(vxtest::openEditor(editor.table()), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), &editor.table());
    EXPECT_EQ(editor.table().currentIndex(), valueIn(editor, 5));
}

TEST(SheetTableKeyboard, KeepsAListOfAnyLengthThatIsOpenedAndClosed)
{
    const std::vector<double> numbers(20000, 0.125);
    Editor editor([&numbers](vxtest::MaterialProject& project) {
        project.material().setProperty(38, std::make_unique<vxMat::PlasticYieldStress>(numbers));
    });
    const QString before = editor.cell(editor.rowOf(38), 2);
    ASSERT_GT(before.size(), 32767);
    QLineEdit* const line = editor.openValue(38);
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->text().size(), before.size());
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_TRUE(editor.cell(editor.rowOf(38), 2) == before);
    EXPECT_FALSE(editor.view()->isWindowModified());
}

// --- Words ---

/// Adds rows for both words to an editor and returns it.
Editor& withWords(Editor& editor)
{
    editor.doubleClick(editor.item("Nonlinear Structural Steel"));
    return editor;
}

TEST(WordCompletion, OffersTheWordsThatBeginAsTyped)
{
    Editor editor;
    QLineEdit* const line = withWords(editor).openValue(37);
    ASSERT_NE(line, nullptr);
    line->selectAll();
    QTest::keyClicks(line, "s");
    const QCompleter* const completer = line->completer();
    ASSERT_NE(completer, nullptr);
    EXPECT_TRUE(completer->popup()->isVisible());
    ASSERT_EQ(completer->completionCount(), 1);
    EXPECT_EQ(completer->currentCompletion(), "Swift");
    EXPECT_NE(vxtest::openEditor(editor.table()), nullptr);
}

TEST(WordCompletion, TakesTheChosenWordOnReturn)
{
    Editor editor;
    QLineEdit* const line = withWords(editor).openValue(33);
    ASSERT_NE(line, nullptr);
    line->selectAll();
    QTest::keyClicks(line, "m");
    ASSERT_NE(line->completer(), nullptr);
    ASSERT_EQ(line->completer()->completionCount(), 2);
    QWidget* const popup = line->completer()->popup();
    QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Return);
    EXPECT_EQ(editor.cell(editor.rowOf(33), 2), "Mohr-Coulomb");
    EXPECT_EQ(vxtest::openEditor(editor.table()), nullptr);
}

TEST(WordCompletion, TakesTheOnlyWordOnReturn)
{
    Editor editor;
    withWords(editor).typeValue(37, "s");
    EXPECT_EQ(editor.cell(editor.rowOf(37), 2), "Swift");
}

TEST(WordCompletion, LeavesOtherTextAsItIsTyped)
{
    Editor editor;
    withWords(editor);
    for (const char* const text : {"mises", "Tresca", "M", ""}) {
        editor.typeValue(33, text);
        EXPECT_EQ(editor.cell(editor.rowOf(33), 2), text);
    }
}

TEST(WordCompletion, IsInTheLanguageOfTheUser)
{
    const vxtest::TestTranslator translator(vxtest::Translations{{"vxMat::PropertyValue||Swift", "Flink"}});
    Editor editor;
    QLineEdit* const line = withWords(editor).openValue(37);
    ASSERT_NE(line, nullptr);
    line->selectAll();
    QTest::keyClicks(line, "fl");
    ASSERT_NE(line->completer(), nullptr);
    EXPECT_EQ(line->completer()->currentCompletion(), "Flink");
}

TEST(WordCompletion, IsForWordsOnly)
{
    Editor editor;
    QLineEdit* const line = editor.openValue(5);
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->completer(), nullptr);
}

} // namespace
