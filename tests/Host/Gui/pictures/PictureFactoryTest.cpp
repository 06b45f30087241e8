#include "Gui/PictureFactory.h"

#include "GuiTesting.h"

#include <QFile>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QTemporaryDir>

namespace {

using Gui::PictureFactory;

using Pictures = vxtest::Host;

TEST_F(Pictures, AreFoundByABareName)
{
    const QPixmap pixmap = PictureFactory::get_pixmap("kelta_copy");
    EXPECT_EQ(pixmap.size(), QSize(32, 32));
    EXPECT_EQ(pixmap.toImage(), PictureFactory::get_pixmap(":icons/kelta_copy.svg").toImage());
}

TEST_F(Pictures, AreSharpAtTheSizeAskedFor)
{
    EXPECT_EQ(PictureFactory::get_pixmap(QStringLiteral("kelta_copy"), 128).size(), QSize(128, 128));
}

TEST_F(Pictures, AreAGreySquareWhenMissingAndReportedOnce)
{
    const auto& messages = Kelta::MessageLog::instance().messages();
    const QPixmap pixmap = PictureFactory::get_pixmap("no_such_picture");
    const std::size_t count = messages.size();
    EXPECT_EQ(lastMessage(), "The picture :icons/no_such_picture.svg is missing.");
    EXPECT_EQ(messages.back().severity, Kelta::LogMessage::Severity::Warning);
    EXPECT_EQ(pixmap.size(), QSize(32, 32));
    EXPECT_EQ(pixmap.toImage().pixelColor(16, 16), QColor(Qt::gray));
    PictureFactory::get_pixmap("no_such_picture");
    EXPECT_EQ(messages.size(), count);
}

TEST_F(Pictures, AreAGreySquareWhenTheFileIsBroken)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("broken.svg"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<svg this is no picture");
    file.close();
    EXPECT_EQ(PictureFactory::get_pixmap(path).toImage().pixelColor(16, 16), QColor(Qt::gray));
}

TEST_F(Pictures, AreSharpIconsAtEverySize)
{
    const QIcon icon = PictureFactory::getIcon(QStringLiteral("kelta_copy"));
    for (const int size : {16, 24, 100})
        EXPECT_EQ(icon.pixmap(size).toImage(),
                  PictureFactory::get_pixmap(QStringLiteral("kelta_copy"), size).toImage());
}

TEST_F(Pictures, AreGreyIconsWhereDisabled)
{
    const QImage image = PictureFactory::getIcon(QStringLiteral("kelta_paste")).pixmap(32, QIcon::Disabled).toImage();
    const QImage enabled = PictureFactory::getIcon(QStringLiteral("kelta_paste")).pixmap(32).toImage();
    EXPECT_LT(image.pixelColor(7, 24).saturation(), enabled.pixelColor(7, 24).saturation() / 2);
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
}

/// Returns how much an icon differs from its ground, over all pixels.
int strengthOn(const QColor& ground, QIcon::Mode mode)
{
    QImage image(32, 32, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    PictureFactory::getIcon(QStringLiteral("kelta_paste")).paint(&painter, image.rect(), Qt::AlignCenter, mode);
    painter.end();
    int strength = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            strength += std::abs(qGray(image.pixel(x, y)) - qGray(ground.rgb()));
    return strength;
}

TEST_F(Pictures, AreMuchPalerWhereDisabledOnLightAndOnDarkWindows)
{
    const QPalette before = QApplication::palette();
    for (const QColor& ground : {QColor(0xef, 0xf0, 0xf1), QColor(0x23, 0x26, 0x29)}) {
        QPalette colors = before;
        colors.setColor(QPalette::Window, ground);
        QApplication::setPalette(colors);
        const int enabled = strengthOn(ground, QIcon::Normal);
        EXPECT_LT(strengthOn(ground, QIcon::Disabled), enabled / 2);
        EXPECT_GT(strengthOn(ground, QIcon::Disabled), enabled / 5) << "it remains visible";
    }
    QApplication::setPalette(before);
}

/// Returns the brightness of the most opaque pixel in the middle row of a picture.
int brightnessOf(const QImage& picture)
{
    QColor opaque(0, 0, 0, 0);
    for (int x = 0; x < picture.width(); ++x)
        if (const QColor color = picture.pixelColor(x, picture.height() / 2); color.alpha() > opaque.alpha())
            opaque = color;
    return opaque.lightness();
}

TEST_F(Pictures, OfArrowsAreVisibleOnDarkWindowsToo)
{
    const QIcon icon = PictureFactory::getIcon(QStringLiteral("kelta_undo"));
    const QPalette before = QApplication::palette();
    EXPECT_LT(brightnessOf(icon.pixmap(32).toImage()), 110);
    QPalette dark = before;
    dark.setColor(QPalette::Window, QColor(0x23, 0x26, 0x29));
    QApplication::setPalette(dark);
    EXPECT_GT(brightnessOf(icon.pixmap(32).toImage()), 170);
    QApplication::setPalette(before);
    EXPECT_LT(brightnessOf(icon.pixmap(32).toImage()), 110);
}

TEST_F(Pictures, AreDrawnAsIconsAtThePlaceAskedFor)
{
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    PictureFactory::getIcon(QStringLiteral("kelta_copy")).paint(&painter, QRect(32, 0, 32, 32));
    painter.end();
    EXPECT_EQ(image.copy(32, 0, 32, 32), PictureFactory::get_pixmap("kelta_copy").toImage());
    EXPECT_EQ(image.copy(0, 0, 32, 64).pixelColor(16, 16).alpha(), 0);
}

TEST_F(Pictures, OfOtherFormatsAreRead)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("red.png"));
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(path));
    EXPECT_EQ(PictureFactory::get_pixmap(path).toImage().pixelColor(16, 16), QColor(Qt::red));
}

TEST_F(Pictures, OfButtonsThatANarrowWindowNeedsAreThere)
{
    const QIcon icon = window->style()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
    const QImage image = icon.pixmap(16).toImage();
    ASSERT_FALSE(image.isNull());
    bool seen = false;
    for (int x = 0; x < image.width(); ++x)
        seen = seen || image.pixelColor(x, image.height() / 2).alpha() != 0;
    EXPECT_TRUE(seen);
    EXPECT_FALSE(window->style()->standardIcon(QStyle::SP_TitleBarCloseButton).isNull());
}

TEST_F(Pictures, OfAllCommandsAreThere)
{
    const auto isThere = [](const char* name) {
        return QFile::exists(QStringLiteral(":icons/%1.svg").arg(QLatin1String(name)));
    };
    for (const Gui::Command* const command : commands().getCommands())
        EXPECT_TRUE(*command->get_pixmap() == '\0' || isThere(command->get_pixmap())) << command->getName();
    // The pictures of the program's commands.
    for (const char* const name : {"kelta_open", "kelta_save"})
        EXPECT_TRUE(isThere(name)) << name;
}

TEST_F(Pictures, MissingLeaveACommandUsable)
{
    class WithoutPicture final : public vxtest::TestCommand
    {
    public:
        WithoutPicture() : TestCommand("Test_WithoutPicture", {}) { pixmap = "another_missing_picture"; }
    };
    WithoutPicture command;
    EXPECT_FALSE(command.new_action(window.get())->icon().isNull());
    EXPECT_TRUE(command.invoke());
}

} // namespace
