#pragma once

#include "fit/AppliedText.h"
#include "fit/FinishedFits.h"
#include "fit/FitJob.h"
#include "fit/FitTests.h"
#include "subject/Subject.h"
#include "vxUnits/UnitSystem.h"

#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>
#include <string>
#include <vector>

class QLabel;
class QProgressBar;
class QPushButton;
class QScrollArea;

namespace Gui {
class MainWindow;
} // namespace Gui

namespace Mat {
class MaterialObject;
} // namespace Mat

namespace vxInspector {

class BesideJob;
class FitOptions;
class ModulusChoice;
class PlotView;
class ResultPanel;
class TestPanel;
class VolumeChoice;

/// The tab of the fits: tests from files or the clipboard, models that are fitted to them beside the interface, their
/// constants and curves, and a button that writes the constants of one model into the selected material and keeps the tests
/// with it. Shows the tests that the selected material keeps, and their latest fit, if they have been fitted here. Tests that the
/// user has loaded or changed stay while the user selects other materials, until they are kept.
class FitPage : public QWidget
{
    Q_OBJECT

public:
    /// `cache` reads the measurements of materials. It must outlive the widget; after it has sent done(), setSubject() must be
    /// called.
    explicit FitPage(MeasurementsCache& cache, QWidget* parent = nullptr);
    ~FitPage() override;

    /// Takes note of the material into which constants would be written.
    void setSubject(const Subject& subject, const vxUnits::UnitSystem& system);
    void retranslate();

    /// Adds a test; gives it another name if a test has the name.
    void addTest(LoadedTest test);
    const std::vector<LoadedTest>& tests() const { return m_tests->all(); }
    const std::vector<vxConstitutive::FitResult>& results() const;
    bool isFitting() const { return m_job != nullptr; }
    PlotView& plot() const;

    /// Asks whether the program may close although tests are lost that no material keeps. Sets `refused` if it may not.
    void askBeforeClosing(bool& refused);

protected:
    void showEvent(QShowEvent* event) override;

private:
    /// A fit that is about to be written into a material.
    struct Applying
    {
        RowPlace material;
        QString label; ///< of the material
        vxConstitutive::FitResult result;
        vxConstitutive::MaterialChange change;
        std::vector<vxConstitutive::TestData> tests;
        vxConstitutive::FitRecord record;
        std::string before;           ///< what the material keeps
        std::optional<KeptText> kept; ///< what it will keep; absent if the tests cannot be kept
    };

    void layOut();
    QWidget* makeContent();
    void connectControls();

    void takeChangedTests();
    void showOptions();
    void startFit();
    void fitWith(std::optional<double> youngsModulus);
    void finishFit();
    void dropResults();
    void keepResults();
    void chooseModulus(bool isOfMaterial);

    void showModel();
    void showVolume();
    void showModulus();
    void scrollToResults();
    void enableControls();
    void enableApply();
    std::optional<double> modulusOfMaterial() const;
    QString sentence() const;
    QString keptFitText() const;
    QString leftOutText() const;

    void apply();
    void writeTests(const std::shared_ptr<Applying>& applying);
    void takeWrittenTests(const std::shared_ptr<Applying>& applying);
    void finishApply(const Applying& applying);
    void showApplied();
    void scrollToApplied();

    /// A fit that has been written into a material.
    struct Applied
    {
        RowPlace material;
        AppliedResult fit;
    };

    FitTests* m_tests;
    FitOrder m_order; ///< of the results
    FinishedFits m_finished;
    std::optional<double>
        m_curveModulus;            ///< Pa; that the last fit to the present tests has found; absent if there was none
    std::string m_wantedModel;     ///< that is selected after the next fit; empty for the best one
    std::unique_ptr<FitJob> m_job; ///< null if no fit runs
    std::unique_ptr<BesideJob> m_writing; ///< makes the text of long tests for Apply; null if there is nothing to make
    vxUnits::UnitSystem m_system = vxUnits::UnitSystem::si();
    RowPlace m_target; ///< the material that gets the constants
    QString m_targetLabel;
    std::optional<Applied> m_applied; ///< the last one, until the next fit begins

    QLabel* m_sentence;
    TestPanel* m_panel;
    FitOptions* m_options;
    QLabel* m_optionsProblem;
    QLabel* m_leftOut;
    QPushButton* m_fit;
    QPushButton* m_cancel;
    QProgressBar* m_progress;
    ResultPanel* m_results;
    ModulusChoice* m_modulus;
    VolumeChoice* m_volume;
    QPushButton* m_apply;
    QLabel* m_appliedText;
    QScrollArea* m_scroll = nullptr;
    QPointer<Gui::MainWindow> m_window; ///< that asks before it closes
};

} // namespace vxInspector
