#include "GuiTesting.h"

#include <QImage>
#include <QTabBar>

#include <algorithm>

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

TEST(HostStyle, DrawsTheCloseButtonsOfTabsVisiblyInEveryColourScheme)
{
    EXPECT_GT(contrastOfCloseButton(QColor(0x23, 0x26, 0x29), QColor(0xef, 0xf0, 0xf1)), 100);
    EXPECT_GT(contrastOfCloseButton(QColor(0xef, 0xf0, 0xf1), QColor(0x23, 0x26, 0x29)), 100);
}

} // namespace
