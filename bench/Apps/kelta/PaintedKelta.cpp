#include "FirstPicture.h"
#include "Start.h"
#include "Startup.h"
#include "UserSettings.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/PictureFactory.h"
#include "Gui/Translator.h"

#include <QLabel>

namespace {

/// Returns the title of the welcome page, which is painted with the other texts of the page.
const QLabel& titleIn(const Gui::MainWindow& window)
{
    return *window.findChild<QWidget*>(QStringLiteral("welcomePage"))->findChild<QLabel*>();
}

} // namespace

/// Starts like kelta with a user. Tells when the welcome page is painted and when the window is complete, and ends.
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
    {
        Gui::MainWindow window(Gui::MainWindow::Parts::OutlineFirst);
        desktop::startFiles(window, {});
        desktop::Start start(window, [&] { isComplete = true; });
        start.show();
        const vxbench::PaintWatch watch(window, titleIn(window));
        while (!watch.hasTold() || !isComplete)
            QCoreApplication::processEvents();
        // The complete window is painted.
        QCoreApplication::processEvents();
        vxbench::tell(vxbench::completed);
        // For the next start.
        window.saveLayout();
        hasWorkbench = window.getWorkbench() != nullptr;
    }
    desktop::shutDown();
    return hasWorkbench ? 0 : 1;
}
