#include "vxPlot/pictures/PictureWriter.h"

#include "vxPlot/drawing/Picture.h"

#include <QApplication>
#include <QThread>

#include <clocale>
#include <exception>
#include <memory>
#include <optional>
#include <stdexcept>

namespace {

using vxPlot::PictureFormat;

PictureFormat formatOf(const std::string& name)
{
    if (name == "png")
        return PictureFormat::Png;
    if (name == "svg")
        return PictureFormat::Svg;
    if (name == "pdf")
        return PictureFormat::Pdf;
    throw std::invalid_argument("The format \"" + name + "\" is unknown. Use png, svg or pdf.");
}

QSize sizeOf(int width, int height)
{
    constexpr int least = 100;
    constexpr int most = 10000;
    if (width < least || width > most || height < least || height > most)
        throw std::invalid_argument("The size of a picture must be from 100 to 10000 pixels in each direction.");
    return {width, height};
}

/// An application without a display, if the program has none. Making it changes the locale of the process.
class OwnApplication
{
public:
    OwnApplication() : m_locale(std::setlocale(LC_ALL, nullptr))
    {
        const auto* const present = QCoreApplication::instance();
        if (present == nullptr)
            m_application = std::make_unique<QApplication>(m_count, m_arguments);
        else if (qobject_cast<const QApplication*>(present) == nullptr || QThread::currentThread() != present->thread())
            throw std::logic_error("Pictures need an application with windows and its thread.");
        std::setlocale(LC_ALL, m_locale.c_str());
    }
    ~OwnApplication() = default;
    OwnApplication(const OwnApplication&) = delete;
    OwnApplication& operator=(const OwnApplication&) = delete;

private:
    std::string m_locale;
    char m_name[5] = "plot";
    char m_option[10] = "-platform";
    char m_platform[10] = "offscreen";
    char* m_arguments[4] = {m_name, m_option, m_platform, nullptr};
    int m_count = 3;
    std::unique_ptr<QApplication> m_application;
};

std::string madePicture(const vxPlot::PlotData& plot, const char* format, int width, int height)
{
    const PictureFormat known = formatOf(format);
    const QSize size = sizeOf(width, height);
    const OwnApplication application;
    const QByteArray bytes = vxPlot::pictureFile(plot, known, size);
    if (bytes.isEmpty())
        throw std::runtime_error("The picture cannot be made: there is too little memory.");
    return bytes.toStdString();
}

} // namespace

extern "C" __attribute__((visibility("default"))) int vxWritePicture(const vxPlot::PlotData& plot, const char* format,
                                                                     int width, int height, std::string& bytes,
                                                                     std::string& error) noexcept
{
    try {
        bytes = madePicture(plot, format, width, height);
        return vxPlot::PictureMade;
    } catch (const std::exception& problem) {
        try {
            error = problem.what();
        } catch (const std::exception&) {
            error.clear();
        }
    } catch (...) {
        error.clear();
    }
    return vxPlot::PictureFailed;
}
