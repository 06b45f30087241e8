#include "FirstPicture.h"
#include "Start.h"
#include "Startup.h"
#include "UserSettings.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/PictureFactory.h"
#include "Gui/Translator.h"

#include <QImage>

namespace {

/// Returns whether two pictures of the window are the same but for the frame of the focus and the like.
bool areAlike(const QImage& one, const QImage& other)
{
    if (one.size() != other.size())
        return false;
    constexpr int mostInThousand = 5;
    int differences = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            differences += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
    return differences <= one.width() * one.height() * mostInThousand / 1000;
}

QImage pictureOf(Gui::MainWindow& window)
{
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

/// Starts like kelta with a user. Tells when the window is painted and when it is complete, and ends as if the user closed
/// it. With an argument, it fails unless the first picture shows the complete window.
int main(int argc, char** argv)
{
    Gui::GuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kelta"));
    QCoreApplication::setOrganizationName(QStringLiteral("vxMaterial"));
    QGuiApplication::setWindowIcon(Gui::PictureFactory::getIcon(QStringLiteral("kelta")));
    desktop::chooseUserSettings();
    Gui::Translator::instance()->restoreLanguage();
    bool isComplete = false;
    bool hasWorkbench = false;
    QImage first;
    QImage last;
    {
        Gui::MainWindow window(Gui::MainWindow::Parts::OutlineFirst);
        desktop::startFiles(window, {});
        desktop::Start start(window, [&] { isComplete = true; });
        start.show();
        const vxbench::PaintWatch watch(window, [&] {
            if (argc > 1)
                first = pictureOf(window);
        });
        while (!watch.hasTold() || !isComplete)
            QCoreApplication::processEvents();
        // The complete window is painted.
        QCoreApplication::processEvents();
        vxbench::tell(vxbench::completed);
        if (argc > 1)
            last = pictureOf(window);
        hasWorkbench = window.getWorkbench() != nullptr;
        // For the next start. The screen of the measurement may be smaller, the compared window is not.
        window.resize(Gui::MainWindow::usualSize);
        QCoreApplication::processEvents();
        window.saveLayout();
        window.hide();
        desktop::keepStartPicture(window);
    }
    desktop::shutDown();
    return hasWorkbench && areAlike(first, last) ? 0 : 1;
}
