#include "vxInspector/units/ProjectUnits.h"

#include "ObjTesting.h"

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <string>

namespace {

using vxUnits::UnitSystem;

class ProjectUnits : public vxtest::ObjTest
{
protected:
    ProjectUnits()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("vxtest"));
        QCoreApplication::setApplicationName(QStringLiteral("units"));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
        QSettings().clear();
    }

    Obj::Project& m_project = addAssembly();

private:
    QTemporaryDir m_folder;
};

TEST_F(ProjectUnits, AreSiUnlessAUserOrAProjectHasOthers)
{
    EXPECT_EQ(vxInspector::shownSystem(m_project), UnitSystem::si());
    vxInspector::setDefaultSystem(*UnitSystem::parse("mm-t-s"));
    EXPECT_EQ(vxInspector::defaultSystem().text(), "mm-t-s");
    EXPECT_EQ(vxInspector::shownSystem(m_project).text(), "mm-t-s");
    m_project.setSetting(vxInspector::unitSystemSetting, "length cm, mass g, time us");
    EXPECT_EQ(vxInspector::shownSystem(m_project), *UnitSystem::parse("length cm, mass g, time us"));
    EXPECT_EQ(vxInspector::defaultSystem().text(), "mm-t-s");
}

TEST_F(ProjectUnits, AreTheDefaultIfTheTextOfAProjectIsNoUnitSystem)
{
    vxInspector::setDefaultSystem(*UnitSystem::parse("cm-g-s"));
    m_project.setSetting(vxInspector::unitSystemSetting, "furlongs");
    EXPECT_EQ(vxInspector::shownSystem(m_project).text(), "cm-g-s");
}

TEST_F(ProjectUnits, AreSiIfTheSettingsOfTheUserAreDamaged)
{
    QSettings().setValue(QStringLiteral("units/system"), QByteArray("\xff\xfe mm"));
    EXPECT_EQ(vxInspector::defaultSystem(), UnitSystem::si());
}

} // namespace
