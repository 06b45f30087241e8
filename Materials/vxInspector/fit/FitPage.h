#pragma once

#include "fit/FitJob.h"
#include "fit/LoadedTest.h"
#include "subject/Subject.h"
#include "table/TableContent.h"
#include "vxUnits/UnitSystem.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
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
class ContentView;
class FitOptions;
class PlotView;
class VolumeChoice;

/// The tab of the fits: tests from files or the clipboard, models that are fitted to them beside the interface, their
/// constants and curves, and a button that writes the constants of one model into the selected material and keeps the tests
/// with it. Shows the tests that the selected material keeps. Tests that the user has loaded or changed stay while the user
/// selects other materials, until they are kept.
class FitPage : public QWidget
{
    Q_OBJECT

public:
    explicit FitPage(QWidget* parent = nullptr);
    ~FitPage() override;

    /// Takes note of the material into which constants would be written.
    void setSubject(const Subject& subject, const vxUnits::UnitSystem& system);
    void retranslate();

    /// Adds a test; gives it another name if a test has the name.
    void addTest(LoadedTest test);
    const std::vector<LoadedTest>& tests() const { return m_tests; }
    const std::vector<vxConstitutive::FitResult>& results() const { return m_results; }
    bool isFitting() const { return m_job != nullptr; }
    PlotView& plot() const { return *m_plot; }

    /// Asks whether the program may close although tests are lost that no material keeps. Sets `refused` if it may not.
    void askBeforeClosing(bool& refused);

protected:
    void showEvent(QShowEvent* event) override;

private:
    /// The controls of one axis of a test.
    struct AxisControls
    {
        QLabel* label;
        QComboBox* column;
        QComboBox* measure;
        QLineEdit* unit;
    };

    void layOut();
    AxisControls makeAxis(const char* name);
    void addAxis(QGridLayout& grid, int row, const AxisControls& axis) const;
    void connectControls();
    void connectAxis(const AxisControls& axis, vxConstitutive::ColumnChoice vxConstitutive::TestReadRequest::*choice);
    void retranslateAxis(const AxisControls& axis, const QString& label) const;

    void runBeside(std::function<void()> work, std::function<void()> whenDone);
    void load();
    void loadFile(const QString& path);
    void addText(const QString& name, std::string text);
    void takeLoaded();
    void readBeside(LoadedTest& test);
    void takeReading(const std::shared_ptr<vxConstitutive::TestReading>& reading);
    void paste();
    void removeTest();
    void readKept(const Mat::MaterialObject& object);
    void markKept(const std::vector<vxConstitutive::TestData>& tests, bool isSameMaterial);
    bool hasOwnTests() const;
    void setTests(const std::vector<vxConstitutive::TestData>& tests);
    std::string freeName(const std::string& name) const;
    LoadedTest* currentTest();
    void readForm();
    void readCurrent(LoadedTest& test);
    void showTests();
    void showForm();
    void showAxis(const AxisControls& axis, const LoadedTest& test,
                  vxConstitutive::ColumnChoice vxConstitutive::TestReadRequest::*choice,
                  vxConstitutive::ColumnChoice vxConstitutive::TestReading::*understood,
                  const std::vector<vxConstitutive::Measure>& measures) const;
    std::vector<vxConstitutive::TestData> readTests() const;
    std::vector<const vxConstitutive::TestData*> shownTests() const;
    bool isReading() const;
    void showPlot();
    void dropResults();

    void showOptions();
    void scrollToResults();
    void startFit();
    void finishFit();
    void showResults();
    void showModel();
    void showVolume();
    void enableControls();
    const vxConstitutive::FitResult* currentResult() const;
    QString sentence() const;
    QString leftOutText() const;
    void apply();
    std::optional<std::string> measurementsWith(const vxConstitutive::FitResult& result,
                                                const Mat::MaterialObject& object) const;

    /// A test whose file is read beside the interface.
    struct Loading
    {
        LoadedTest test;
        bool isDone = false;
    };

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

    std::vector<LoadedTest> m_tests;
    std::size_t m_testsRevision = 0;   ///< changes with m_tests
    std::size_t m_resultsRevision = 0; ///< changes with m_results
    std::optional<PlotKey> m_plotted;
    std::vector<std::shared_ptr<Loading>> m_loading; ///< in the order in which the user has chosen them
    std::vector<std::unique_ptr<BesideJob>> m_jobsBeside;
    std::vector<vxConstitutive::FitResult> m_results;
    FitOrder m_order;              ///< of the results
    std::unique_ptr<FitJob> m_job; ///< null if no fit runs
    vxUnits::UnitSystem m_system = vxUnits::UnitSystem::si();
    RowPlace m_target; ///< the material that gets the constants
    QString m_targetLabel;
    RowPlace m_keptOf;                            ///< the material of m_keptText
    std::string m_keptText;                       ///< the measurements of the material, as they were last read
    std::optional<vxjson::JsonError> m_keptFault; ///< of m_keptText

    QLabel* m_sentence;
    QPushButton* m_load;
    QPushButton* m_paste;
    QPushButton* m_remove;
    ContentView* m_testView;
    QWidget* m_form;
    QLabel* m_modeLabel;
    QComboBox* m_mode;
    AxisControls m_abscissa;
    AxisControls m_ordinate;
    QLabel* m_stressLabel;
    QLineEdit* m_stress;
    QLabel* m_weightLabel;
    QLineEdit* m_weight;
    QLabel* m_preview;
    FitOptions* m_options;
    QLabel* m_optionsProblem;
    QLabel* m_leftOut;
    QPushButton* m_fit;
    QPushButton* m_cancel;
    QProgressBar* m_progress;
    ContentView* m_models;
    ContentView* m_constants;
    PlotView* m_plot;
    VolumeChoice* m_volume;
    QPushButton* m_apply;
    QScrollArea* m_scroll = nullptr;
    QPointer<Gui::MainWindow> m_window; ///< that asks before it closes
};

} // namespace vxInspector
