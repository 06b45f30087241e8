#pragma once

#include "curves/CurveCache.h"
#include "measured/KeptMeasurements.h"
#include "vxUnits/UnitSystem.h"

#include <QWidget>

#include <optional>

class QComboBox;
class QLabel;

namespace vxInspector {

class CardsPage;
class CurvesPage;
class FindingsPage;
class FitPage;
class InspectorTabs;
class SubjectWatch;
class TabPage;
struct Subject;
struct TableContent;

/// The tabs of the inspector below the choice of the unit system. Only the visible tab is updated, and the number of findings
/// in the title of their tab, once for all changes before the event loop is next idle.
class Inspector : public QWidget
{
    Q_OBJECT

public:
    /// `watch` must outlive the widget.
    explicit Inspector(SubjectWatch& watch, QWidget* parent = nullptr);
    ~Inspector() override;

    /// Updates the visible tab at once.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;

private:
    void createTabs();
    void retranslate();
    void fillSystems(const vxUnits::UnitSystem& ofProject);
    vxUnits::UnitSystem chosenSystem(const vxUnits::UnitSystem& ofProject) const;
    TableContent findFindings(const Subject& subject, const vxUnits::UnitSystem& system);
    void fillTable(const Subject& subject, const vxUnits::UnitSystem& system);
    void fillVisibleTab(const Subject& subject, const vxUnits::UnitSystem& system);
    void setFindingsTitle(std::size_t count);

    SubjectWatch& m_watch;
    MeasurementsCache m_measurements; ///< before the pages that use it
    CurveCache m_findingCurves;       ///< in which the findings look for instabilities
    QLabel* m_unitsLabel;
    QComboBox* m_systems;
    InspectorTabs* m_tabs;
    TabPage* m_values;
    FindingsPage* m_findings;
    CardsPage* m_cards;
    TabPage* m_compare;
    CurvesPage* m_curves;
    FitPage* m_fit;
    std::string m_ofProject; ///< the unit system of the project in the first entry of the choice
};

} // namespace vxInspector
