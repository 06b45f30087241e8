#pragma once

#include "vxConstitutive/fit/Fit.h"
#include "vxUnits/UnitSystem.h"

#include <QWidget>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vxInspector {

class ContentView;
class FitTests;
class PlotView;

/// The fitted models side by side, the tests with the curves of the selected model, and its constants.
class ResultPanel : public QWidget
{
    Q_OBJECT

public:
    /// `tests` must outlive the widget.
    explicit ResultPanel(const FitTests& tests, QWidget* parent = nullptr);
    ~ResultPanel() override;

    /// Shows results and selects a model by its English name; the first one if there is no such model.
    void setResults(std::vector<vxConstitutive::FitResult> results, const std::string& model = {});
    const std::vector<vxConstitutive::FitResult>& results() const { return m_results; }
    /// Returns the result of the selected model; null if there are no results.
    const vxConstitutive::FitResult* current() const;
    /// Shows the selected model and the tests, which may have changed, in a unit system.
    void showModel(const vxUnits::UnitSystem& system);

    PlotView& plot() const { return *m_plot; }
    void retranslate();

Q_SIGNALS:
    void chosen(); ///< sent when another model is selected

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showModels(const std::string& model);
    void showPlot();
    void showHeights();

    /// What decides on the content of the plot.
    struct PlotKey
    {
        std::size_t tests = 0;
        std::size_t results = 0;
        const vxConstitutive::FitResult* result = nullptr;
        std::string system;

        bool operator==(const PlotKey& other) const
        {
            return tests == other.tests && results == other.results && result == other.result && system == other.system;
        }
    };

    const FitTests& m_tests;
    std::vector<vxConstitutive::FitResult> m_results;
    std::size_t m_revision = 0; ///< changes with m_results
    bool m_isFilling = false;   ///< whether the table of models is being filled
    std::optional<PlotKey> m_plotted;
    vxUnits::UnitSystem m_system = vxUnits::UnitSystem::si();
    ContentView* m_models;
    PlotView* m_plot;
    ContentView* m_constants;
};

} // namespace vxInspector
