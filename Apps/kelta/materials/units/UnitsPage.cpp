#include "UnitsPage.h"

#include "UnitChoice.h"

#include "Gui/MainWindow.h"
#include "vxInspector/units/ProjectUnits.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace desktop {

UnitsPage::UnitsPage(QWidget* parent)
    : PreferencesPage(parent),
      m_title(new QLabel(this)),
      m_remark(new QLabel(this)),
      m_choice(new UnitChoice(UnitChoice::Preference::NotOffered, this)),
      m_stored(QString::fromStdString(vxInspector::defaultSystem().text()))
{
    m_choice->setSystem(m_stored);
    m_title->setBuddy(m_choice);
    m_remark->setWordWrap(true);
    setFocusProxy(m_choice);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_title);
    layout->addWidget(m_choice);
    layout->addWidget(m_remark);
    layout->addStretch(1);
    retranslate();
    connect(m_choice, &UnitChoice::edited, this, &UnitsPage::edited);
}

UnitsPage::~UnitsPage() = default;

bool UnitsPage::isChanged() const
{
    return !m_choice->isValid() || m_choice->system() != m_stored;
}

bool UnitsPage::isValid() const
{
    return m_choice->isValid();
}

void UnitsPage::store()
{
    const auto chosen = vxUnits::UnitSystem::parse(m_choice->system().toStdString());
    if (!chosen)
        return;
    vxInspector::setDefaultSystem(*chosen);
    m_stored = m_choice->system();
    // What shows values compares the unit systems then.
    if (Gui::MainWindow* const window = Gui::MainWindow::get_main_window_inst())
        window->updateCommands();
}

void UnitsPage::retranslate()
{
    m_title->setText(tr("&Unit system of projects:"));
    m_remark->setText(tr("Projects that have no unit system of their own are shown in it. \"Project > Units\" gives a "
                         "project its own."));
}

void UnitsPage::changeEvent(QEvent* event)
{
    PreferencesPage::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

} // namespace desktop
