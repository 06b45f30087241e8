#include "Gui/GuiApplication.h"
#include "Gui/Translator.h"
#include "Obj/Application.h"
#include "vxMsg/MessageProxy.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#ifdef VX_ADDRESS_SANITIZER
#include <sanitizer/lsan_interface.h>
#endif

#include <memory>

namespace {

/// Makes the application without leak detection, because Qt's offscreen platform never frees its screen.
std::unique_ptr<Gui::GuiApplication> makeApplication(int& argc, char** argv)
{
#ifdef VX_ADDRESS_SANITIZER
    const __lsan::ScopedDisabler disabler;
#endif
    return std::make_unique<Gui::GuiApplication>(argc, argv);
}

/// Gives each test its own empty folder for settings and files. Closes all projects and clears the undo history after
/// each test.
class FreshStart : public testing::EmptyTestEventListener
{
private:
    void OnTestStart(const testing::TestInfo& /*test*/) override
    {
        m_home = std::make_unique<QTemporaryDir>();
        for (const char* const variable : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            qputenv(variable, QFile::encodeName(m_home->path()));
        // QSettings reads the environment only once.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_home->path());
        if (Gui::Translator::instance()->language() != QLatin1String("en"))
            Gui::Translator::instance()->setLanguage(QStringLiteral("en"));
    }

    void OnTestEnd(const testing::TestInfo& /*test*/) override
    {
        vxMsg::MessageProxy::instance().undoStack().clear();
        Obj::Application::instance().closeAllProjects();
        m_home.reset();
    }

    std::unique_ptr<QTemporaryDir> m_home;
};

} // namespace

/// Runs the tests inside a real application.
int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();
    const std::unique_ptr<Gui::GuiApplication> application = makeApplication(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("vxMaterial-tests"));
    testing::UnitTest::GetInstance()->listeners().Append(new FreshStart);
    return RUN_ALL_TESTS();
}
