#include "Gui/PictureFactory.h"

#include "GuiTesting.h"

#include <QFile>
#include <QImage>
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
