#include "ProjectUnitsDialog.h"

#include "UnitChoice.h"

#include "Gui/MainWindow.h"
#include "Gui/WindowTitle.h"
#include "Kelta/Exceptions.h"
#include "Obj/Application.h"
#include "vxInspector/units/ProjectUnits.h"
#include "vxMsg/MessageProxy.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace desktop {

bool setProjectUnits(const Obj::Project& project, const QString& text)
{
    const QString name = QString::fromUtf8(project.get_name());
    const QString step =
        text.isEmpty()
            ? QCoreApplication::translate("desktop::ProjectUnitsDialog", "Show \"%1\" in the units of the preferences")
                  .arg(name)
            : QCoreApplication::translate("desktop::ProjectUnitsDialog", R"(Show "%1" in %2)").arg(name, text);
    const vxMsg::MessageProxy::Group oneStep(step);
    return vxMsg::MessageProxy::instance().setSetting(project.get_name(), vxInspector::unitSystemSetting,
                                                      text.toStdString());
}

ProjectUnitsDialog::ProjectUnitsDialog(const Obj::Project& project, QWidget& parent)
    : QDialog(&parent),
      m_projectId(project.getProjectId()),
      m_choice(new UnitChoice(UnitChoice::Preference::Offered, this))
{
    setObjectName(QStringLiteral("projectUnits"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowTitle(tr("Units"));
    auto* const title = new QLabel(tr("&Unit system in which \"%1\" is shown:")
                                       .arg(Gui::escapedForMnemonics(QString::fromUtf8(project.get_name()))),
                                   this);
    auto* const remark =
        new QLabel(tr("The values do not change, nor do the documents and cards of the solver."), this);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    title->setBuddy(m_choice);
    for (QLabel* const label : {title, remark}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_choice->setSystem(QString::fromStdString(project.getSetting(vxInspector::unitSystemSetting)));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(m_choice);
    layout->addWidget(remark);
    layout->addWidget(buttons);
    m_choice->setFocus();
    const auto allow = [this, ok = buttons->button(QDialogButtonBox::Ok)] { ok->setEnabled(m_choice->isValid()); };
    allow();
    connect(m_choice, &UnitChoice::edited, this, allow);
    connect(buttons, &QDialogButtonBox::accepted, this, &ProjectUnitsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ProjectUnitsDialog::reject);
}

ProjectUnitsDialog::~ProjectUnitsDialog() = default;

void ProjectUnitsDialog::accept()
{
    Kelta::guarded(tr("The units cannot be set"), [this] {
        // The project may have been closed while the dialog was open.
        const Obj::Project* const project = Obj::Application::instance().get_project(m_projectId);
        if (project != nullptr && m_choice->isValid())
            setProjectUnits(*project, m_choice->system());
    });
    QDialog::accept();
}

void openProjectUnits(const Obj::Project& project, Gui::MainWindow& window)
{
    auto* const dialog = new ProjectUnitsDialog(project, window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

} // namespace desktop
