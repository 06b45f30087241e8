#include "vxMaterial/gui/ItemDelegates.h"

#include "EditorTesting.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest/QtTestGui>
#include <QtTest/qtestmouse.h>
#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <vector>

namespace {

using namespace MatGui;

/// A table of three rows and columns with one delegate.
class Cells
{
public:
    explicit Cells(QAbstractItemDelegate& delegate) : m_delegate(delegate), m_model(3, 3)
    {
        m_view.setModel(&m_model);
        m_view.setItemDelegate(&delegate);
    }

    QStandardItemModel& model() { return m_model; }
    QTableView& view() { return m_view; }
    QModelIndex index(int row, int column) const { return m_model.index(row, column); }

    /// Returns the editor of the delegate for a cell, with the data of the cell. Fails the test if its class differs.
    template <class Editor>
    Editor* open(int row, int column, const QVariant& data)
    {
        m_model.setData(index(row, column), data);
        auto* const editor = qobject_cast<Editor*>(m_delegate.createEditor(m_view.viewport(), {}, index(row, column)));
        if (editor == nullptr)
            throw std::logic_error("the delegate makes no editor of this class");
        m_delegate.setEditorData(editor, index(row, column));
        return editor;
    }
    QString commit(QWidget* editor, int row, int column)
    {
        m_delegate.setModelData(editor, &m_model, index(row, column));
        return index(row, column).data(Qt::EditRole).toString();
    }
    QRect place(QWidget* editor) const
    {
        QStyleOptionViewItem option;
        option.rect = QRect(11, 13, 117, 19);
        m_delegate.updateEditorGeometry(editor, option, index(0, 0));
        return editor->geometry();
    }

private:
    QAbstractItemDelegate& m_delegate;
    QStandardItemModel m_model;
    QTableView m_view;
};

const QRect cellRect(11, 13, 117, 19);

QStringList itemTexts(const QComboBox& box)
{
    QStringList texts;
    for (int i = 0; i < box.count(); ++i) {
        texts << box.itemText(i);
        EXPECT_FALSE(box.itemData(i).isValid());
    }
    return texts;
}

/// Returns whether the delegate closes the editor on Escape, which it does as the editor's event filter.
bool filtersEventsOf(QAbstractItemDelegate& delegate, QWidget* editor)
{
    bool closed = false;
    const auto connection =
        QObject::connect(&delegate, &QAbstractItemDelegate::closeEditor, [&closed] { closed = true; });
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(editor, &escape);
    QObject::disconnect(connection);
    return closed;
}

TEST(ItemDelegates, HaveTheBasesThatTheirDrawingDependsOn)
{
    EXPECT_STREQ(NotEditableDelegate::staticMetaObject.superClass()->className(), "QItemDelegate");
    EXPECT_STREQ(ComboBoxItemDelegate::staticMetaObject.superClass()->className(), "QStyledItemDelegate");
    EXPECT_STREQ(ComboDelegate::staticMetaObject.superClass()->className(), "QItemDelegate");
    EXPECT_STREQ(DateDelegate::staticMetaObject.superClass()->className(), "QItemDelegate");
    EXPECT_STREQ(SpinBoxDelegate::staticMetaObject.superClass()->className(), "QStyledItemDelegate");
    EXPECT_STREQ(SpinDelegate::staticMetaObject.superClass()->className(), "QItemDelegate");
}

TEST(ItemDelegates, HaveNamesInTheirNamespaces)
{
    EXPECT_STREQ(NotEditableDelegate::staticMetaObject.className(), "MatGui::NotEditableDelegate");
    EXPECT_STREQ(ComboBoxItemDelegate::staticMetaObject.className(), "ComboBoxItemDelegate");
    EXPECT_STREQ(ComboDelegate::staticMetaObject.className(), "MatGui::ComboDelegate");
    EXPECT_STREQ(DateDelegate::staticMetaObject.className(), "MatGui::DateDelegate");
    EXPECT_STREQ(SpinBoxDelegate::staticMetaObject.className(), "MatGui::SpinBoxDelegate");
    EXPECT_STREQ(SpinDelegate::staticMetaObject.className(), "MatGui::SpinDelegate");
}

TEST(ItemDelegates, BelongToTheirParent)
{
    QObject parent;
    for (const QObject* const delegate : std::initializer_list<QObject*>{
             new NotEditableDelegate(&parent), new ComboBoxItemDelegate(&parent), new ComboDelegate(&parent),
             new DateDelegate(&parent), new SpinBoxDelegate(&parent), new SpinDelegate(&parent)})
        EXPECT_EQ(delegate->parent(), &parent);
}

TEST(NotEditableDelegate, OpensNoEditorOnDoubleClickOrKey)
{
    NotEditableDelegate delegate;
    Cells cells(delegate);
    QTableView& view = cells.view();
    cells.model().setData(cells.index(0, 0), "fixed");
    view.show();
    ASSERT_TRUE(vxtest::waitUntilActive(&view));
    const QPoint position = view.visualRect(cells.index(0, 0)).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, position);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, position);
    EXPECT_EQ(vxtest::openEditor(view), nullptr);
    QTest::keyClick(&view, Qt::Key_F2);
    QTest::keyClick(&view, Qt::Key_7);
    EXPECT_EQ(vxtest::openEditor(view), nullptr);
    EXPECT_EQ(cells.index(0, 0).data().toString(), "fixed");
}

TEST(NotEditableDelegate, LetsNoEventTickACheckBox)
{
    NotEditableDelegate delegate;
    Cells cells(delegate);
    QStandardItemModel model(1, 1);
    model.setItem(0, 0, new QStandardItem("ticked"));
    model.item(0, 0)->setCheckable(true);
    cells.view().setModel(&model);
    cells.view().show();
    ASSERT_TRUE(vxtest::waitUntilActive(&cells.view()));
    cells.view().setCurrentIndex(model.index(0, 0));
    QTest::keyClick(&cells.view(), Qt::Key_Space);
    EXPECT_EQ(model.item(0, 0)->checkState(), Qt::Unchecked);
}

TEST(ComboBoxItemDelegate, OffersThreeWordsWithTheRowCountedFromZero)
{
    ComboBoxItemDelegate delegate;
    Cells cells(delegate);
    const auto* const box = cells.open<QComboBox>(0, 1, "");
    EXPECT_EQ(itemTexts(*box), QStringList({"one in row 0", "two in row 0", "three in row 0"}));
    EXPECT_EQ(itemTexts(*cells.open<QComboBox>(2, 1, "")),
              QStringList({"one in row 2", "two in row 2", "three in row 2"}));
}

TEST(ComboBoxItemDelegate, EditsOtherColumnsAsQtDoes)
{
    ComboBoxItemDelegate delegate;
    Cells cells(delegate);
    auto* const line = cells.open<QLineEdit>(0, 2, "text");
    EXPECT_EQ(line->text(), "text");
    line->setText("other");
    EXPECT_EQ(cells.commit(line, 0, 2), "other");
}

TEST(ComboBoxItemDelegate, SelectsTheVeryWordAndKeepsTheSelectionForAnother)
{
    ComboBoxItemDelegate delegate;
    Cells cells(delegate);
    auto* const box = cells.open<QComboBox>(1, 1, "two in row 1");
    EXPECT_EQ(box->currentIndex(), 1);
    for (const char* const other : {"THREE in row 1", "four", ""}) {
        cells.model().setData(cells.index(1, 1), other);
        delegate.setEditorData(box, cells.index(1, 1));
        EXPECT_EQ(box->currentIndex(), 1) << other;
    }
}

TEST(ComboBoxItemDelegate, StoresTheSelectedWord)
{
    ComboBoxItemDelegate delegate;
    Cells cells(delegate);
    auto* const box = cells.open<QComboBox>(1, 1, "");
    box->setCurrentIndex(2);
    EXPECT_EQ(cells.commit(box, 1, 1), "three in row 1");
}

TEST(ComboBoxItemDelegate, IsNotTheEventFilterOfItsEditor)
{
    ComboBoxItemDelegate delegate;
    Cells cells(delegate);
    EXPECT_FALSE(filtersEventsOf(delegate, cells.open<QComboBox>(0, 1, "")));
}

TEST(ComboDelegate, OffersFiveOccupationsInTheirOrder)
{
    ComboDelegate delegate;
    Cells cells(delegate);
    EXPECT_EQ(itemTexts(*cells.open<QComboBox>(0, 0, "")),
              QStringList({QString::fromUtf8("工人"), QString::fromUtf8("农民"), QString::fromUtf8("医生"),
                           QString::fromUtf8("律师"), QString::fromUtf8("军人")}));
}

TEST(ComboDelegate, SelectsTheVeryTextAndClearsTheSelectionForAnother)
{
    ComboDelegate delegate;
    Cells cells(delegate);
    auto* const box = cells.open<QComboBox>(0, 0, QString::fromUtf8("律师"));
    EXPECT_EQ(box->currentIndex(), 3);
    cells.model().setData(cells.index(0, 0), "nobody");
    delegate.setEditorData(box, cells.index(0, 0));
    EXPECT_EQ(box->currentIndex(), -1);
}

TEST(ComboDelegate, StoresItsTextFillsItsCellAndFiltersEvents)
{
    ComboDelegate delegate;
    Cells cells(delegate);
    auto* const box = cells.open<QComboBox>(0, 0, "");
    box->setCurrentIndex(4);
    EXPECT_EQ(cells.commit(box, 0, 0), QString::fromUtf8("军人"));
    EXPECT_EQ(cells.place(box), cellRect);
    EXPECT_TRUE(filtersEventsOf(delegate, box));
}

TEST(DateDelegate, WritesTheLastOfFebruaryOfALeapYearAsAnIsoDate)
{
    DateDelegate delegate;
    Cells cells(delegate);
    auto* const editor = cells.open<QDateTimeEdit>(0, 0, "2020-01-31");
    EXPECT_EQ(editor->date(), QDate(2020, 1, 31));
    editor->setDate(QDate(2024, 2, 29));
    EXPECT_EQ(cells.commit(editor, 0, 0), "2024-02-29");
}

TEST(DateDelegate, ShowsYearMonthDayWithACalendar)
{
    DateDelegate delegate;
    Cells cells(delegate);
    auto* const editor = cells.open<QDateTimeEdit>(0, 0, "2024-02-29");
    EXPECT_EQ(editor->displayFormat(), "yyyy-MM-dd");
    EXPECT_TRUE(editor->calendarPopup());
    EXPECT_EQ(editor->text(), "2024-02-29");
    EXPECT_EQ(cells.place(editor), cellRect);
    EXPECT_TRUE(filtersEventsOf(delegate, editor));
}

TEST(DateDelegate, ShowsNoDateForAnotherFormOfText)
{
    DateDelegate delegate;
    Cells cells(delegate);
    for (const char* const text :
         {"", "tomorrow", "29.02.2024", "2024/02/29", "2023-02-29", "2024-2-29", "2024-02-29T10:00:00", " 2024-02-29"})
    {
        auto* const editor = cells.open<QDateTimeEdit>(0, 0, text);
        EXPECT_EQ(editor->text(), "") << text;
        EXPECT_EQ(cells.commit(editor, 0, 0), text);
    }
}

/// A table whose first cell contains a text that is not a date. The editor of the cell can be opened.
class DateTable
{
public:
    DateTable() : m_cells(m_delegate)
    {
        m_cells.model().setData(m_cells.index(0, 0), "tomorrow");
        m_cells.view().show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_cells.view()));
        m_cells.view().setCurrentIndex(m_cells.index(0, 0));
    }
    QTableView& view() { return m_cells.view(); }
    QString text() const { return m_cells.index(0, 0).data().toString(); }
    QModelIndex otherCell() const { return m_cells.index(1, 1); }
    QDateTimeEdit* open()
    {
        QTest::keyClick(&view(), Qt::Key_F2);
        return qobject_cast<QDateTimeEdit*>(view().indexWidget(m_cells.index(0, 0)));
    }
    bool isClosed() { return view().indexWidget(m_cells.index(0, 0)) == nullptr; }

private:
    DateDelegate m_delegate;
    Cells m_cells;
};

TEST(DateDelegate, KeepsATextThatIsNoDateWhenItsEditorIsOpenedAndClosed)
{
    DateTable table;
    const std::vector<std::function<void(QDateTimeEdit*)>> ways{
        [](QDateTimeEdit* editor) { QTest::keyClick(editor, Qt::Key_Return); },
        [](QDateTimeEdit* editor) { QTest::keyClick(editor, Qt::Key_Escape); },
        [](QDateTimeEdit* editor) { QTest::keyClick(editor, Qt::Key_Tab); },
        [&table](QDateTimeEdit*) {
            table.view().setFocus();
            table.view().setCurrentIndex(table.otherCell());
        },
    };
    for (const auto& close : ways) {
        table.view().setCurrentIndex(table.view().model()->index(0, 0));
        QDateTimeEdit* const editor = table.open();
        ASSERT_NE(editor, nullptr);
        EXPECT_EQ(editor->text().trimmed(), "");
        close(editor);
        EXPECT_TRUE(QTest::qWaitFor([&table] { return table.isClosed(); }));
        EXPECT_EQ(table.text(), "tomorrow");
    }
}

TEST(DateDelegate, TakesADateTypedOverATextThatIsNoDate)
{
    DateTable table;
    QDateTimeEdit* const editor = table.open();
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, "20240229");
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&table] { return table.isClosed(); }));
    EXPECT_EQ(table.text(), "2024-02-29");
}

TEST(DateDelegate, TakesADateTypedWhereNoneWasShown)
{
    DateDelegate delegate;
    Cells cells(delegate);
    auto* const editor = cells.open<QDateTimeEdit>(0, 0, "some day");
    editor->setDate(QDate(1999, 12, 31));
    EXPECT_EQ(cells.commit(editor, 0, 0), "1999-12-31");
}

TEST(SpinBoxDelegate, ClampsToAHundredAndStartsAtZeroForATextThatIsNoNumber)
{
    SpinBoxDelegate delegate;
    Cells cells(delegate);
    EXPECT_EQ(cells.open<QSpinBox>(0, 0, 101)->value(), 100);
    EXPECT_EQ(cells.open<QSpinBox>(0, 0, -1)->value(), 0);
    EXPECT_EQ(cells.open<QSpinBox>(0, 0, "42")->value(), 42);
    EXPECT_EQ(cells.open<QSpinBox>(0, 0, "many")->value(), 0);
}

TEST(SpinBoxDelegate, TakesOverTypedTextBeforeItStoresTheValue)
{
    SpinBoxDelegate delegate;
    Cells cells(delegate);
    auto* const box = cells.open<QSpinBox>(0, 0, 1);
    box->setKeyboardTracking(false);
    box->selectAll();
    QTest::keyClicks(box, "77");
    EXPECT_EQ(cells.commit(box, 0, 0), "77");
}

TEST(SpinBoxDelegate, HasAFramelessEditorThatFillsItsCellAndIsNotFiltered)
{
    SpinBoxDelegate delegate;
    Cells cells(delegate);
    auto* const box = cells.open<QSpinBox>(0, 0, 1);
    EXPECT_FALSE(box->hasFrame());
    EXPECT_EQ(cells.place(box), cellRect);
    EXPECT_FALSE(filtersEventsOf(delegate, box));
}

TEST(SpinDelegate, ClampsToTenThousandAndStartsAtZeroForATextThatIsNoNumber)
{
    SpinDelegate delegate;
    Cells cells(delegate);
    EXPECT_EQ(cells.open<QSpinBox>(0, 0, 10001)->value(), 10000);
    EXPECT_EQ(cells.open<QSpinBox>(0, 0, -1)->value(), 0);
    EXPECT_EQ(cells.open<QSpinBox>(0, 0, "many")->value(), 0);
}

TEST(SpinDelegate, StoresTheValueThatItHadBeforeTypedTextWasTakenOver)
{
    SpinDelegate delegate;
    Cells cells(delegate);
    auto* const box = cells.open<QSpinBox>(0, 0, 1);
    box->setKeyboardTracking(false);
    box->selectAll();
    QTest::keyClicks(box, "77");
    EXPECT_EQ(cells.commit(box, 0, 0), "1");
}

TEST(SpinDelegate, HasAFramedEditorThatFillsItsCellAndIsFiltered)
{
    SpinDelegate delegate;
    Cells cells(delegate);
    auto* const box = cells.open<QSpinBox>(0, 0, 1);
    EXPECT_TRUE(box->hasFrame());
    EXPECT_EQ(cells.place(box), cellRect);
    EXPECT_TRUE(filtersEventsOf(delegate, box));
}

/// A model that distinguishes two roles. QStandardItemModel does not distinguish them.
class TwoRoles : public QStandardItemModel
{
public:
    using QStandardItemModel::QStandardItemModel;
    QVariant data(const QModelIndex& /*index*/, int role) const override
    {
        if (role == Qt::DisplayRole)
            return shown;
        return role == Qt::EditRole ? edited : QVariant();
    }
    QVariant shown;
    QVariant edited;
};

TEST(ItemDelegates, ReadTheRoleThatEachOfThemReads)
{
    TwoRoles model(1, 2);
    QWidget parent;
    model.shown = 11;
    model.edited = 22;
    const auto spin = [&](const QAbstractItemDelegate& delegate) {
        auto* const box = qobject_cast<QSpinBox*>(delegate.createEditor(&parent, {}, model.index(0, 0)));
        delegate.setEditorData(box, model.index(0, 0));
        return box->value();
    };
    EXPECT_EQ(spin(SpinBoxDelegate()), 22);
    EXPECT_EQ(spin(SpinDelegate()), 11);

    model.shown = QString::fromUtf8("医生");
    model.edited = QString::fromUtf8("军人");
    const ComboDelegate occupations;
    auto* const box = qobject_cast<QComboBox*>(occupations.createEditor(&parent, {}, model.index(0, 0)));
    occupations.setEditorData(box, model.index(0, 0));
    EXPECT_EQ(box->currentIndex(), 2);

    model.shown = "one in row 0";
    model.edited = "three in row 0";
    const ComboBoxItemDelegate words;
    auto* const word = qobject_cast<QComboBox*>(words.createEditor(&parent, {}, model.index(0, 1)));
    words.setEditorData(word, model.index(0, 1));
    EXPECT_EQ(word->currentIndex(), 2);

    model.shown = "2024-02-29";
    model.edited = "1999-12-31";
    const DateDelegate dates;
    auto* const date = qobject_cast<QDateTimeEdit*>(dates.createEditor(&parent, {}, model.index(0, 0)));
    dates.setEditorData(date, model.index(0, 0));
    EXPECT_EQ(date->date(), QDate(2024, 2, 29));
}

} // namespace
