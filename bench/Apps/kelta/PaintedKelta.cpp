#include "FirstPicture.h"
#include "Startup.h"
#include "UserSettings.h"

#include "Gui/GuiApplication.h"
#include "Gui/MainWindow.h"
#include "Gui/PictureFactory.h"
#include "Gui/Translator.h"

/// Starts like kelta with a user, paints the window, and ends.
int main(int argc, char** argv)
{
    Gui::GuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kelta"));
    QCoreApplication::setOrganizationName(QStringLiteral("vxMaterial"));
    QGuiApplication::setWindowIcon(Gui::PictureFactory::getIcon(QStringLiteral("kelta")));
    desktop::chooseUserSettings();
    Gui::Translator::instance()->restoreLanguage();
    int status = 0;
    {
        Gui::MainWindow window;
        desktop::startFiles(window, {});
        const bool loaded = desktop::loadModules(window);
        window.restoreLayout();
        status = loaded ? vxbench::paintOnce(window) : 1;
    }
    desktop::shutDown();
    return status;
}
