#include "GuiTesting.h"

#include <QHBoxLayout>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPaintEngine>
#include <QPainter>
#include <QSet>
#include <QStyleOptionToolBox>
#include <QTabBar>

#include <algorithm>
#include <vector>

namespace {

/// Returns the largest difference in brightness between the ground at the corner of a picture and a pixel in it.
int contrast(const QImage& picture)
{
    const int ground = qGray(picture.pixel(0, 0));
    int most = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            most = std::max(most, std::abs(qGray(picture.pixel(x, y)) - ground));
    return most;
}

int contrastOfCloseButton(const QColor& ground, const QColor& text)
{
    QPalette colors;
    colors.setColor(QPalette::Window, ground);
    colors.setColor(QPalette::Button, ground);
    colors.setColor(QPalette::WindowText, text);
    QTabBar bar;
    bar.setPalette(colors);
    bar.setTabsClosable(true);
    bar.addTab("Frame");
    QWidget* const button = bar.tabButton(0, QTabBar::RightSide);
    button->setPalette(colors);
    button->setAutoFillBackground(true);
    bar.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&bar));
    const QImage picture = button->grab().toImage();
    EXPECT_FALSE(picture.isNull());
    return contrast(picture);
}

/// Collects the texts that are drawn, as they are seen.
class TextCollector final : public QPaintEngine
{
public:
    TextCollector() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPixmap(const QRectF& /*target*/, const QPixmap& /*pixmap*/, const QRectF& /*source*/) override {}
    Type type() const override { return User; }
    void drawTextItem(const QPointF& /*place*/, const QTextItem& item) override
    {
        text += item.text();
        hasUnderline = hasUnderline || (item.renderFlags() & QTextItem::Underline) != 0;
    }

    QString text;
    bool hasUnderline = false;
};

class TextDevice final : public QPaintDevice
{
public:
    QPaintEngine* paintEngine() const override { return &collector; }
    mutable TextCollector collector;

protected:
    int metric(PaintDeviceMetric which) const override { return which == PdmWidth || which == PdmHeight ? 1000 : 96; }
};

TEST(HostStyle, KeepsTheAmpersandInATitleOfAToolBoxThatIsCut)
{
    const QString whole = QStringLiteral("Thermal & Fluid Materials");
    QStyleOptionToolBox title;
    title.text = QStringLiteral("Thermal && Fluid Materials");
    title.fontMetrics = QFontMetrics(QApplication::font());
    QSet<QString> texts;
    for (int width = 100; width < 400; ++width) {
        title.rect = QRect(0, 0, width, 30);
        TextDevice device;
        QPainter painter(&device);
        QApplication::style()->drawControl(QStyle::CE_ToolBoxTabLabel, &title, &painter);
        painter.end();
        const QString shown = device.collector.text;
        EXPECT_TRUE(shown == whole || (shown.endsWith(QChar(0x2026)) && whole.startsWith(shown.chopped(1))))
            << shown.toStdString() << ", width " << width;
        EXPECT_FALSE(device.collector.hasUnderline) << shown.toStdString();
        texts.insert(shown);
    }
    EXPECT_TRUE(texts.contains(whole));
    EXPECT_TRUE(texts.contains(QStringLiteral("Thermal &") + QChar(0x2026)));
}

TEST(HostStyle, DrawsTheCloseButtonsOfTabsVisiblyInEveryColourScheme)
{
    EXPECT_GT(contrastOfCloseButton(QColor(0x23, 0x26, 0x29), QColor(0xef, 0xf0, 0xf1)), 100);
    EXPECT_GT(contrastOfCloseButton(QColor(0xef, 0xf0, 0xf1), QColor(0x23, 0x26, 0x29)), 100);
}

QPalette paletteOf(const QColor& ground, const QColor& text)
{
    QPalette colors = QApplication::style()->standardPalette();
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button})
        colors.setColor(role, ground);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colors.setColor(role, text);
    return colors;
}

const std::vector<QPalette>& lightAndDark()
{
    static const std::vector<QPalette> palettes{paletteOf(Qt::white, Qt::black),
                                                paletteOf(QColor(0x23, 0x26, 0x29), QColor(0xef, 0xf0, 0xf1))};
    return palettes;
}

int distance(const QColor& one, const QColor& other)
{
    return std::abs(one.red() - other.red()) + std::abs(one.green() - other.green()) +
           std::abs(one.blue() - other.blue());
}

/// Returns how much the selected row differs from the ground below it.
int strengthOfSelection(QListWidget& list)
{
    const QRect row = list.visualItemRect(list.currentItem());
    const QImage picture = list.viewport()->grab().toImage();
    return distance(picture.pixelColor(row.right() - 5, row.center().y()),
                    picture.pixelColor(row.right() - 5, picture.height() - 2));
}

TEST(HostStyle, DrawsASelectionPalerWhereTheKeyboardDoesNotAct)
{
    for (const QPalette& colors : lightAndDark()) {
        QWidget window;
        window.setPalette(colors);
        QHBoxLayout layout(&window);
        std::vector<QListWidget*> lists;
        for (int i = 0; i < 2; ++i) {
            lists.push_back(new QListWidget);
            lists.back()->addItems({"a", "b"});
            lists.back()->setCurrentRow(0);
            layout.addWidget(lists.back());
        }
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        for (const std::size_t focused : {0U, 1U}) {
            lists.at(focused)->setFocus();
            const int strong = strengthOfSelection(*lists.at(focused));
            const int pale = strengthOfSelection(*lists.at(1 - focused));
            EXPECT_GT(strong, 2 * pale);
            EXPECT_GT(pale, 40) << "the selection remains visible";
        }
        // The editor of a cell belongs to the view.
        QListWidgetItem* const edited = lists[0]->item(1);
        edited->setFlags(edited->flags() | Qt::ItemIsEditable);
        lists[0]->openPersistentEditor(edited);
        lists[0]->viewport()->findChild<QLineEdit*>()->setFocus();
        EXPECT_GT(strengthOfSelection(*lists[0]), 2 * strengthOfSelection(*lists[1]));
    }
}

TEST(HostStyle, DrawsEmptyCheckBoxesVisiblyInEveryColourScheme)
{
    for (const QPalette& colors : lightAndDark()) {
        QListWidget list;
        list.setPalette(colors);
        list.setFrameShape(QFrame::NoFrame);
        auto* const item = new QListWidgetItem(QString(), &list);
        item->setCheckState(Qt::Unchecked);
        list.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
        EXPECT_GT(contrast(list.viewport()->grab().toImage()), 55);
    }
}

} // namespace
