#include "MaterialsTesting.h"

#include <QHelpEvent>
#include <QListWidget>
#include <QScrollBar>
#include <QTabWidget>
#include <QToolBox>
#include <QToolTip>

namespace {

/// The list of the constants of rubber, whose names differ at their end only.
class NamesInLists : public vxtest::Materials
{
protected:
    NamesInLists()
    {
        auto& tabs = *editor.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
        tabs.setCurrentWidget(tabs.findChild<QWidget*>(QStringLiteral("tabBuild")));
        auto& pages = *editor.findChild<QToolBox*>(QStringLiteral("toolBoxBuild"));
        pages.setCurrentWidget(pages.findChild<QWidget*>(QStringLiteral("pg_build_hyper")));
        QCoreApplication::processEvents();
    }

    /// Makes the list so narrow that it has no place for the whole name of a constant.
    void makeNarrow() const
    {
        list.setFixedWidth(list.fontMetrics().horizontalAdvance(QStringLiteral("Material Constant C")));
        QCoreApplication::processEvents();
    }

    QListWidgetItem& itemOf(const char* name) const
    {
        return *list.findItems(QString::fromUtf8(name), Qt::MatchExactly).value(0);
    }

    /// Returns what the user sees of a row.
    QImage pictureOf(const char* name) const
    {
        const QRect row = list.visualItemRect(&itemOf(name));
        return list.viewport()->grab(row & list.viewport()->rect()).toImage();
    }

    /// Returns the tool tip of a row; empty if it has none.
    QString toolTipOf(const char* name) const
    {
        QToolTip::hideText();
        EXPECT_TRUE(vxtest::waitFor([] { return !QToolTip::isVisible(); }));
        const QPoint place = list.visualItemRect(&itemOf(name)).center();
        QHelpEvent help(QEvent::ToolTip, place, list.viewport()->mapToGlobal(place));
        QApplication::sendEvent(list.viewport(), &help);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }

    Mat::MaterialObject& steel = addMaterial(newProject());
    MatGui::MaterialView& editor = edit(steel);
    QListWidget& list = *editor.findChild<QListWidget*>(QStringLiteral("lw_build_hyper"));
};

TEST_F(NamesInLists, AreDistinguishableInANarrowList)
{
    makeNarrow();
    const QImage first = pictureOf("Material Constant C10");
    ASSERT_FALSE(first.isNull());
    EXPECT_NE(first, pictureOf("Material Constant C01"));
    EXPECT_NE(first, pictureOf("Material Constant C11"));
    EXPECT_NE(pictureOf("Material Constant C01"), pictureOf("Material Constant C11"));
}

TEST_F(NamesInLists, NeedNoScrollBar)
{
    makeNarrow();
    EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
}

TEST_F(NamesInLists, AreWholeInTheToolTipIfTheyAreCut)
{
    makeNarrow();
    EXPECT_EQ(toolTipOf("Material Constant C10"), "Material Constant C10");
    list.setFixedWidth(10 * list.width());
    QCoreApplication::processEvents();
    EXPECT_EQ(toolTipOf("Material Constant C10"), "");
}

} // namespace
