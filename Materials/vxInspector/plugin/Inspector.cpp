#include "plugin/Inspector.h"

#include "Kelta/Exceptions.h"
#include "Obj/Application.h"
#include "cards/CardsPage.h"
#include "curves/CurvesPage.h"
#include "findings/FindingsPage.h"
#include "fit/FitPage.h"
#include "plugin/InspectorTabs.h"
#include "plugin/TabContents.h"
#include "plugin/TabPage.h"
#include "subject/SubjectWatch.h"
#include "table/ContentView.h"
#include "vxInspector/units/ProjectUnits.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace vxInspector {

namespace {

/// Returns the unit system in which a subject is shown if the user has not chosen one.
vxUnits::UnitSystem systemOf(const Subject& subject)
{
    const Obj::Project* const project =
        subject.materials.empty() ? Obj::Application::get_current_project() : subject.materials.front()->get_project();
    return project != nullptr ? shownSystem(*project) : defaultSystem();
}

} // namespace

Inspector::Inspector(SubjectWatch& watch, QWidget* parent)
    : QWidget(parent),
      m_watch(watch),
      m_unitsLabel(new QLabel(this)),
      m_systems(new QComboBox(this)),
      m_tabs(new InspectorTabs(this)),
      m_values(new TabPage("inspectorValues", m_tabs)),
      m_findings(new FindingsPage(m_tabs)),
      m_cards(new CardsPage(m_tabs)),
      m_compare(new TabPage("inspectorCompare", m_tabs)),
      m_curves(new CurvesPage(m_tabs)),
      m_fit(new FitPage(m_measurements, m_tabs))
{
    m_systems->setObjectName(QStringLiteral("inspectorUnits"));
    m_systems->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_unitsLabel->setBuddy(m_systems);
    auto* const units = new QHBoxLayout;
    units->addWidget(m_unitsLabel);
    units->addWidget(m_systems, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(units);
    layout->addWidget(m_tabs, 1);
    createTabs();
    retranslate();
    const auto refreshNow = [this] { Kelta::guarded(tr("The inspector cannot be updated"), [this] { refresh(); }); };
    connect(m_tabs, &QTabWidget::currentChanged, this, refreshNow);
    connect(m_cards, &CardsPage::chosen, this, refreshNow);
    connect(m_curves, &CurvesPage::chosen, this, refreshNow);
    connect(m_systems, QOverload<int>::of(&QComboBox::currentIndexChanged), this, refreshNow);
    connect(&m_measurements, &MeasurementsCache::done, this, refreshNow);
}

Inspector::~Inspector() = default;

void Inspector::createTabs()
{
    for (QWidget* const page :
         {static_cast<QWidget*>(m_values), static_cast<QWidget*>(m_findings), static_cast<QWidget*>(m_cards),
          static_cast<QWidget*>(m_compare), static_cast<QWidget*>(m_curves), static_cast<QWidget*>(m_fit)})
        m_tabs->addTab(page, QString());
}

void Inspector::retranslate()
{
    m_unitsLabel->setText(tr("&Units:"));
    m_systems->setToolTip(
        tr("The unit system of values, findings, decks, comparison and curves. It changes no value."));
    const QString titles[] = {tr("Values"), tr("Findings"), tr("Cards"), tr("Compare"), tr("Curves"), tr("Fit")};
    for (int tab = 0; tab < m_tabs->count(); ++tab)
        m_tabs->setTitle(tab, titles[tab]);
    for (TabPage* const page : {m_values, static_cast<TabPage*>(m_findings), static_cast<TabPage*>(m_cards), m_compare})
    {
        page->view().setAccessibleName(titles[m_tabs->indexOf(page)]);
        page->retranslate();
    }
    m_curves->retranslate();
    m_fit->retranslate();
    m_ofProject.clear();
}

/// The first entry follows the project.
void Inspector::fillSystems(const vxUnits::UnitSystem& ofProject)
{
    if (m_ofProject == ofProject.text())
        return;
    m_ofProject = ofProject.text();
    const int chosen = std::max(m_systems->currentIndex(), 0);
    const QSignalBlocker blocker(m_systems);
    m_systems->clear();
    m_systems->addItem(tr("As the project (%1)").arg(QString::fromStdString(m_ofProject)));
    for (const vxUnits::UnitSystem& system : vxUnits::UnitSystem::builtIn())
        m_systems->addItem(QString::fromStdString(system.text()));
    m_systems->setCurrentIndex(chosen);
}

vxUnits::UnitSystem Inspector::chosenSystem(const vxUnits::UnitSystem& ofProject) const
{
    const int chosen = m_systems->currentIndex();
    return chosen <= 0 ? ofProject : vxUnits::UnitSystem::builtIn()[static_cast<std::size_t>(chosen - 1)];
}

void Inspector::refresh()
{
    const Subject subject = m_watch.current();
    const vxUnits::UnitSystem ofProject = systemOf(subject);
    fillSystems(ofProject);
    m_watch.follow(subject);
    fillVisibleTab(subject, chosenSystem(ofProject));
}

void Inspector::fillVisibleTab(const Subject& subject, const vxUnits::UnitSystem& system)
{
    if (m_tabs->currentWidget() != m_fit && m_tabs->currentWidget() != m_curves)
        return fillTable(subject, system);
    findFindings(subject, system);
    if (m_tabs->currentWidget() == m_fit)
        return m_fit->setSubject(subject, system);
    const DrawnMaterials drawn = drawnMaterials(subject, m_measurements);
    if (drawn.materials.empty())
        m_curves->setSentence(drawn.sentence);
    else
        m_curves->setMaterials(drawn.materials, system, drawn.limit);
}

/// Returns the findings for the visible tab, and counts them. Materials of a large selection are not counted for the other
/// tabs, because that would take longer than these tabs.
TableContent Inspector::findFindings(const Subject& subject, const vxUnits::UnitSystem& system)
{
    constexpr std::size_t mostCounted = 10;
    const bool isShown = m_tabs->currentWidget() == m_findings;
    const bool isCounted = isShown || subject.materials.size() <= mostCounted;
    const std::size_t most = isShown ? mostChecked : isCounted ? mostCounted : 1;
    TableContent findings = findingsTab(subject, system, most, m_findingCurves);
    setFindingsTitle(isCounted ? findings.rows.size() : 0);
    return findings;
}

void Inspector::setFindingsTitle(std::size_t count)
{
    const QString title = tr("Findings");
    const int tab = m_tabs->indexOf(m_findings);
    m_tabs->setTitle(tab, count == 0 ? title : tr("%1 (%2)").arg(title).arg(count));
}

void Inspector::fillTable(const Subject& subject, const vxUnits::UnitSystem& system)
{
    TableContent findings = findFindings(subject, system);
    const QWidget* const page = m_tabs->currentWidget();
    if (page == m_values)
        m_values->setContent(valuesTab(subject, system, findings));
    else if (page == m_findings)
        m_findings->setContent(std::move(findings), system);
    else if (page == m_cards)
        m_cards->setContent(cardsTab(subject, m_cards->form(), system));
    else
        m_compare->setContent(compareTab(subject, system));
}

void Inspector::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Kelta::guarded(tr("The inspector cannot be updated"), [this] {
            retranslate();
            refresh();
        });
}

} // namespace vxInspector
