// The library that programs without windows load to make pictures.

#include "vxPlot/pictures/PictureWriter.h"

#include <QCoreApplication>
#include <QImage>
#include <QLibrary>
#include <gmock/gmock.h>

#include <clocale>

namespace {

using testing::HasSubstr;

struct Picture
{
    int result = -1;
    std::string bytes;
    std::string error;
};

class PictureWriter : public testing::Test
{
protected:
    PictureWriter() : m_library(QStringLiteral(VX_PICTURES))
    {
        m_write = reinterpret_cast<vxPlot::WritePicture*>(m_library.resolve(vxPlot::picturesEntry));
        m_plot.title = "Seal";
        m_plot.x = {"stretch", "1"};
        m_plot.y = {"nominal stress", "MPa"};
        m_plot.series = {{"Curve", vxPlot::SeriesKind::Line, 0, {1.0, 2.0}, {0.0, 0.5}}};
    }

    void SetUp() override { ASSERT_NE(m_write, nullptr) << m_library.errorString().toStdString(); }

    Picture write(const char* format, int width = 450, int height = 300) const
    {
        Picture picture;
        picture.result = m_write(m_plot, format, width, height, picture.bytes, picture.error);
        return picture;
    }

private:
    QLibrary m_library;
    vxPlot::WritePicture* m_write = nullptr;
    vxPlot::PlotData m_plot;
};

TEST_F(PictureWriter, MakesPicturesWithoutAnApplicationAndADisplay)
{
    const Picture png = write("png");
    EXPECT_EQ(png.result, vxPlot::PictureMade) << png.error;
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(png.bytes)).size(), QSize(900, 600));
    EXPECT_EQ(QCoreApplication::instance(), nullptr);
    EXPECT_THAT(write("svg").bytes, HasSubstr("nominal stress [MPa]"));
    EXPECT_EQ(write("pdf").bytes.substr(0, 5), "%PDF-");
    EXPECT_EQ(write("png").bytes, png.bytes);
}

TEST_F(PictureWriter, RefusesUnknownFormatsAndSizes)
{
    const Picture unknown = write("bmp");
    EXPECT_EQ(unknown.result, vxPlot::PictureFailed);
    EXPECT_EQ(unknown.error, "The format \"bmp\" is unknown. Use png, svg or pdf.");
    for (const int width : {-1, 0, 99, 10001})
        EXPECT_THAT(write("png", width).error, HasSubstr("from 100 to 10000 pixels"));
    EXPECT_EQ(unknown.bytes, "");
}

TEST_F(PictureWriter, KeepsTheLocaleOfTheProgram)
{
    ASSERT_NE(std::setlocale(LC_ALL, "C"), nullptr);
    qputenv("LC_ALL", "de_DE.UTF-8");
    EXPECT_EQ(write("svg").result, vxPlot::PictureMade);
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
}

TEST_F(PictureWriter, DoesNotDependOnTheSettingsOfTheScreen)
{
    const std::string usual = write("png").bytes;
    qputenv("QT_FONT_DPI", "200");
    EXPECT_EQ(write("png").bytes, usual);
    qunsetenv("QT_FONT_DPI");
}

TEST_F(PictureWriter, RefusesAnApplicationWithoutWindows)
{
    int count = 0;
    const QCoreApplication application(count, nullptr);
    EXPECT_EQ(write("png").error, "Pictures need an application with windows and its thread.");
}

} // namespace
