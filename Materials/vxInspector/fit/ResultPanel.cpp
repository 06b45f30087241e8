#include "fit/ResultPanel.h"

#include "fit/FitTables.h"
#include "fit/FitTests.h"
#include "plot/PlotView.h"
#include "table/ContentView.h"
#include "table/ViewHeight.h"

#include <QItemSelectionModel>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace vxInspector {

using vxConstitutive::FitResult;

ResultPanel::ResultPanel(const FitTests& tests, QWidget* parent)
    : QWidget(parent),
      m_tests(tests),
      m_models(new ContentView(this)),
      m_plot(new PlotView(this)),
      m_constants(new ContentView(this))
{
    m_models->setObjectName(QStringLiteral("fitModels"));
    m_constants->setObjectName(QStringLiteral("fitConstants"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_models);
    layout->addWidget(m_plot);
    layout->addWidget(m_constants);
    connect(m_models->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        if (!m_isFilling)
            Q_EMIT chosen();
    });
    retranslate();
}

ResultPanel::~ResultPanel() = default;

void ResultPanel::retranslate()
{
    m_models->setAccessibleName(tr("Fitted models"));
    m_constants->setAccessibleName(tr("Constants of the model"));
    for (ContentView* const view : {m_models, m_constants})
        view->retranslate();
    m_plot->retranslate();
    m_plotted.reset(); // names of the plot are in the language of the user
    showModels(current() != nullptr ? current()->model : std::string());
}

void ResultPanel::setResults(std::vector<FitResult> results, const std::string& model)
{
    m_results = std::move(results);
    ++m_revision;
    showModels(model);
}

void ResultPanel::showModels(const std::string& model)
{
    const QScopedValueRollback<bool> filling(m_isFilling, true);
    m_models->setContent(modelTable(m_results));
    m_models->setHidden(m_results.empty());
    if (m_results.empty())
        return;
    const auto found = std::find_if(m_results.begin(), m_results.end(),
                                    [&model](const FitResult& result) { return result.model == model; });
    const auto row = static_cast<int>(found - m_results.begin()) % static_cast<int>(m_results.size());
    m_models->setCurrentIndex(m_models->model()->index(row, 0));
}

const FitResult* ResultPanel::current() const
{
    const int row = m_models->currentIndex().row();
    return row >= 0 && static_cast<std::size_t>(row) < m_results.size() ? &m_results[static_cast<std::size_t>(row)]
                                                                        : nullptr;
}

void ResultPanel::showModel(const vxUnits::UnitSystem& system)
{
    m_system = system;
    const FitResult* const result = current();
    m_constants->setHidden(result == nullptr);
    m_constants->setContent(result != nullptr ? constantTable(*result, m_system) : TableContent{});
    showHeights();
    showPlot();
}

/// Plots only if tests, model or units are others than before: a test may have a million points.
void ResultPanel::showPlot()
{
    const FitResult* const result = current();
    PlotKey key{m_tests.revision(), m_revision, result, m_system.text()};
    if (m_plotted == key)
        return;
    m_plotted = std::move(key);
    const std::vector<const vxConstitutive::TestData*> tests = m_tests.data();
    m_plot->setHidden(tests.empty());
    if (!tests.empty())
        m_plot->setPlot(
            fitPlot(tests, result != nullptr ? std::vector{result} : std::vector<const FitResult*>{}, m_system));
}

void ResultPanel::showHeights()
{
    constexpr int mostModels = 12; // lines
    constexpr int mostConstants = 24;
    fitHeight(*m_models, mostModels);
    fitHeight(*m_constants, mostConstants);
}

/// Rows are higher in a narrow table.
void ResultPanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    showHeights();
}

} // namespace vxInspector
