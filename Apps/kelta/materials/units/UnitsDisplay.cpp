#include "UnitsDisplay.h"

#include "MaterialProjects.h"

#include "Gui/MainWindow.h"
#include "Gui/WindowTitle.h"
#include "Kelta/Exceptions.h"
#include "Kelta/MessageLog.h"
#include "vxInspector/units/ProjectUnits.h"
#include "vxInspector/units/UnitTexts.h"
#include "vxMaterial/project/DocumentMaterial.h"

#include <QLabel>
#include <QStatusBar>

namespace desktop {

UnitsDisplay::UnitsDisplay(Gui::MainWindow& mainWindow)
    : QObject(&mainWindow), m_label(new QLabel(mainWindow.statusBar()))
{
    m_label->setObjectName(QStringLiteral("shownUnits"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setContentsMargins(m_label->fontMetrics().averageCharWidth(), 0, 0, 0);
    m_label->hide();
    mainWindow.statusBar()->addPermanentWidget(m_label);
    connect(&mainWindow, &Gui::MainWindow::updated, this,
            [this] { Kelta::guarded(tr("The unit system cannot be shown"), [this] { update(); }); });
}

UnitsDisplay::~UnitsDisplay() = default;

void UnitsDisplay::update()
{
    const Mat::DocumentMaterial* const project = currentMaterialProject();
    m_label->setVisible(project != nullptr);
    if (project != nullptr)
        show(*project);
}

void UnitsDisplay::show(const Mat::DocumentMaterial& project)
{
    const vxUnits::UnitSystem system = vxInspector::shownSystem(project);
    const QString text = QString::fromStdString(system.text());
    m_label->setText(tr("Units: %1").arg(system.isBuiltIn() ? text : tr("own")));
    const QString fault = findFault(project);
    const QString isShown =
        tr(R"("%1" is shown in %2. "Project > Units" changes this.)").arg(QString::fromUtf8(project.get_name()), text);
    m_label->setToolTip(Gui::escapedForToolTip(fault.isEmpty() ? isShown : fault + QLatin1Char('\n') + isShown));
}

/// Returns the reason if the setting of the project cannot be read; an empty text otherwise.
QString UnitsDisplay::findFault(const Mat::DocumentMaterial& project)
{
    const std::string setting = project.getSetting(vxInspector::unitSystemSetting);
    if (setting.empty())
        return {};
    const auto system = vxUnits::UnitSystem::parse(setting);
    if (system)
        return {};
    QString fault = tr("The unit system of the project \"%1\" cannot be read: %2")
                        .arg(QString::fromUtf8(project.get_name()), vxInspector::translated(system.failure()));
    if (project.getProjectId() != m_warnedProject || setting != m_warnedSetting)
        Kelta::MessageLog::warning(fault);
    m_warnedProject = project.getProjectId();
    m_warnedSetting = setting;
    return fault;
}

} // namespace desktop
