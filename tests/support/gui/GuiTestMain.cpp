#include "Gui/GuiApplication.h"
#include "Gui/Translator.h"
#include "Obj/Application.h"
#include "vxMsg/MessageProxy.h"

#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

#include <memory>

namespace {

/// Qt's offscreen platform never frees its screen; that leak is not one of the tests.
std::unique_ptr<Gui::GuiApplication> makeApplication(int& argc, char** argv)
{
#ifdef __SANITIZE_ADDRESS__
    const __lsan::ScopedDisabler disabler;
#endif
    return std::make_unique<Gui::GuiApplication>(argc, argv);
}

} // namespace

/// Runs the tests inside a real application on the offscreen platform, with its own settings and English texts.
int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    // Tests run side by side, each in its own process; none must read what another one has written.
    const QTemporaryDir home;
    for (const char* const variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qputenv(variable, QFile::encodeName(home.path()));
    const std::unique_ptr<Gui::GuiApplication> application = makeApplication(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("vxMaterial-tests"));
    Gui::Translator::instance()->setLanguage(QStringLiteral("en"));
    const int failed = RUN_ALL_TESTS();
    vxMsg::MessageProxy::instance().undoStack().clear();
    Obj::Application::instance().close_all_projects();
    return failed;
}
