#include "vxInspector/units/ProjectUnits.h"

#include "Obj/Project.h"

#include <QSettings>

namespace vxInspector {

namespace {

QString settingsKey()
{
    return QStringLiteral("units/system");
}

vxUnits::UnitSystem systemOf(const std::string& text, const vxUnits::UnitSystem& otherwise)
{
    const auto system = vxUnits::UnitSystem::parse(text);
    return system ? *system : otherwise;
}

} // namespace

vxUnits::UnitSystem shownSystem(const Obj::Project& project)
{
    return systemOf(project.getSetting(unitSystemSetting), defaultSystem());
}

vxUnits::UnitSystem defaultSystem()
{
    return systemOf(QSettings().value(settingsKey()).toString().toStdString(), vxUnits::UnitSystem::si());
}

void setDefaultSystem(const vxUnits::UnitSystem& system)
{
    QSettings().setValue(settingsKey(), QString::fromStdString(system.text()));
}

} // namespace vxInspector
