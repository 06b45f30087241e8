#include "curves/CurvePicture.h"

#include "vxMaterial/model/NumberText.h"
#include "vxPlot/CurvePlot.h"
#include "vxPlot/pictures/PictureWriter.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>

#include <string_view>

namespace commandline {

namespace {

/// The size in pixels.
constexpr int pictureWidth = 900;
constexpr int pictureHeight = 600;

/// Returns the path of the library that makes pictures: beside the plug-ins of an installed copy, or of the build tree.
QString findLibrary()
{
    const QDir folder = QFileInfo(QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget()).absoluteDir();
    const QString name = QLatin1String(vxPlot::picturesLibrary) + QStringLiteral(".so");
    const QString installed = folder.filePath(QStringLiteral("../lib/vxMaterial/") + name);
    return QFileInfo::exists(installed) ? installed : folder.filePath(QStringLiteral("../lib/") + name);
}

vxPlot::WritePicture* loadWriter()
{
    QLibrary library(findLibrary()); // stays loaded
    auto* const write = reinterpret_cast<vxPlot::WritePicture*>(library.resolve(vxPlot::picturesEntry));
    if (write == nullptr)
        throw Failure("pictures cannot be made: " + library.errorString().toStdString());
    return write;
}

/// While an object of this class exists, Qt prints no messages, such as one about a missing folder of the desktop.
class QuietQt
{
public:
    QuietQt() : m_before(qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {})) {}
    ~QuietQt() { qInstallMessageHandler(m_before); }
    QuietQt(const QuietQt&) = delete;
    QuietQt& operator=(const QuietQt&) = delete;

private:
    QtMessageHandler m_before;
};

vxPlot::PlotData plotOf(const std::vector<CurveSeries>& series, const std::vector<MeasuredTest>& tests,
                        vxConstitutive::Mode mode, const vxUnits::UnitSystem& system, AbscissaScale scale)
{
    vxPlot::CurvePlotRequest request;
    request.title = vxConstitutive::modeRecord(mode).name;
    for (const CurveSeries& one : series)
        request.curves.push_back({one.title, &one.curve});
    for (const MeasuredTest& test : tests)
        request.tests.push_back({test.data.name, &test.data});
    request.system = system;
    if (scale == AbscissaScale::Logarithmic)
        request.horizontal = vxPlot::Scale::Logarithmic;
    vxPlot::PlotData plot = curvePlot(request);
    // The legend names a material by its curve, but not if the material has several.
    if (series.size() == 1 && plot.series.size() - tests.size() > 1)
        plot.title = series.front().title + ", " + plot.title;
    return plot;
}

} // namespace

std::optional<std::string> pictureFormatOf(const std::string& path)
{
    for (const std::string_view format : {"svg", "png", "pdf"}) {
        const std::size_t length = format.size() + 1;
        if (path.size() > length && path[path.size() - length] == '.' &&
            vxMat::equalIgnoringAsciiCase(std::string_view(path).substr(path.size() - format.size()), format))
            return std::string(format);
    }
    return std::nullopt;
}

std::string makePicture(const std::vector<CurveSeries>& series, const std::vector<MeasuredTest>& tests,
                        vxConstitutive::Mode mode, const vxUnits::UnitSystem& system, AbscissaScale scale,
                        const std::string& format)
{
    vxPlot::WritePicture* const write = loadWriter();
    const vxPlot::PlotData plot = plotOf(series, tests, mode, system, scale);
    std::string bytes;
    std::string error;
    const QuietQt quiet;
    if (write(plot, format.c_str(), pictureWidth, pictureHeight, bytes, error) != vxPlot::PictureMade)
        throw Failure("the picture cannot be made: " + error);
    return bytes;
}

} // namespace commandline
