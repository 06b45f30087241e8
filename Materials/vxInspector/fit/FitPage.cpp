#include "fit/FitPage.h"

#include "Gui/FileDialog.h"
#include "Gui/MainWindow.h"
#include "Kelta/Exceptions.h"
#include "Obj/Application.h"
#include "curves/ConstitutiveTexts.h"
#include "fit/BesideJob.h"
#include "fit/FitApplying.h"
#include "fit/FitOptions.h"
#include "fit/FitTables.h"
#include "fit/VolumeChoice.h"
#include "measured/KeptMeasurements.h"
#include "plot/PlotView.h"
#include "subject/InspectedMaterial.h"
#include "subject/SubjectWatch.h"
#include "table/ContentView.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxPlot/CurvePlot.h"
#include "vxPlot/drawing/PlotItems.h"
#include "vxUnits/Reading.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QGridLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <stdexcept>
#include <utility>

namespace vxInspector {

namespace {

using vxConstitutive::ColumnChoice;
using vxConstitutive::FitResult;
using vxConstitutive::Measure;
using vxConstitutive::Mode;
using vxConstitutive::TestReading;
using vxConstitutive::TestReadRequest;

constexpr qint64 mostBytes = qint64(200) * 1024 * 1024; // of a file with test data

template <class Widget>
Widget* named(Widget* widget, const char* name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

QLabel* makeText(QWidget* parent, const char* name)
{
    QLabel* const label = named(new QLabel(parent), name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}

QComboBox* makeChoice(QWidget* parent, const QString& name)
{
    auto* const choice = new QComboBox(parent);
    choice->setObjectName(name);
    choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    choice->setMinimumContentsLength(4);
    return choice;
}

/// Returns the number in a field in the unit `unit`; absent if it cannot be read.
std::optional<double> numberIn(const QLineEdit& field, const char* unit)
{
    const auto read = vxUnits::readNumber(field.text().trimmed().toStdString(), *vxUnits::Unit::parse(unit));
    return read ? std::optional(read->value) : std::nullopt;
}

bool isSame(const ColumnChoice& one, const ColumnChoice& other)
{
    return one.column == other.column && one.measure == other.measure && one.unit == other.unit;
}

/// Returns the names of the tests that fulfil a condition, in quotes; no more than ten.
template <class Condition>
QString namesOf(const std::vector<LoadedTest>& tests, const Condition& condition)
{
    constexpr int most = 10;
    QStringList names;
    for (const LoadedTest& test : tests)
        if (condition(test))
            names << QStringLiteral("\"%1\"").arg(shortened(QString::fromStdString(test.request.name), 30));
    const QString text = names.mid(0, most).join(QStringLiteral(", "));
    return names.size() > most ? text + QStringLiteral(", …") : text;
}

bool isOwn(const LoadedTest& test)
{
    return !test.isKept;
}

/// Returns whether a test is in a list as it is.
bool isAmong(const LoadedTest& test, const std::vector<vxConstitutive::TestData>& tests)
{
    return test.reading.data && std::any_of(tests.begin(), tests.end(), [&test](const vxConstitutive::TestData& one) {
               return one.name == test.reading.data->name && areSame({one}, {*test.reading.data});
           });
}

Mat::MaterialObject* findMaterial(const RowPlace& place)
{
    const Obj::Project* const project = Obj::Application::instance().get_project(place.projectId);
    return project != nullptr ? dynamic_cast<Mat::MaterialObject*>(project->get_object(place.objectId)) : nullptr;
}

} // namespace

FitPage::FitPage(QWidget* parent)
    : QWidget(parent),
      m_sentence(makeText(this, "sentence")),
      m_load(named(new QPushButton(this), "fitLoad")),
      m_paste(named(new QPushButton(this), "fitPaste")),
      m_remove(named(new QPushButton(this), "fitRemove")),
      m_testView(named(new ContentView(this), "fitTests")),
      m_form(new QWidget(this)),
      m_modeLabel(new QLabel(m_form)),
      m_mode(makeChoice(m_form, QStringLiteral("fitMode"))),
      m_abscissa(makeAxis("fitX")),
      m_ordinate(makeAxis("fitY")),
      m_stressLabel(new QLabel(m_form)),
      m_stress(named(new QLineEdit(m_form), "fitStress")),
      m_weightLabel(new QLabel(m_form)),
      m_weight(named(new QLineEdit(m_form), "fitWeight")),
      m_preview(makeText(this, "fitPreview")),
      m_options(new FitOptions(this)),
      m_optionsProblem(makeText(this, "fitOptionsProblem")),
      m_leftOut(makeText(this, "fitLeftOut")),
      m_fit(named(new QPushButton(this), "fitStart")),
      m_cancel(named(new QPushButton(this), "fitCancel")),
      m_progress(named(new QProgressBar(this), "fitProgress")),
      m_models(named(new ContentView(this), "fitModels")),
      m_constants(named(new ContentView(this), "fitConstants")),
      m_plot(new PlotView(this)),
      m_volume(new VolumeChoice(this)),
      m_apply(named(new QPushButton(this), "fitApply"))
{
    setObjectName(QStringLiteral("inspectorFit"));
    m_progress->setRange(0, 100);
    m_testView->setMaximumHeight(m_testView->fontMetrics().lineSpacing() * 6);
    for (const auto& [view, lines] : {std::pair(m_testView, 4), std::pair(m_models, 6), std::pair(m_constants, 6)})
        view->setMinimumHeight(view->fontMetrics().lineSpacing() * lines);
    for (QPushButton* const button : {m_load, m_paste, m_remove, m_fit, m_cancel, m_apply})
        button->setAutoDefault(false);
    layOut();
    retranslate();
    connectControls();
    showTests();
    showResults();
}

FitPage::~FitPage() = default;

FitPage::AxisControls FitPage::makeAxis(const char* name)
{
    const QString own = QLatin1String(name);
    AxisControls axis{new QLabel(m_form), makeChoice(m_form, own + QStringLiteral("Column")),
                      makeChoice(m_form, own + QStringLiteral("Measure")), new QLineEdit(m_form)};
    axis.unit->setObjectName(own + QStringLiteral("Unit"));
    // The row must not be wider than the dock.
    for (QWidget* const widget : std::initializer_list<QWidget*>{axis.column, axis.measure, axis.unit}) {
        widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        widget->setMinimumWidth(widget->fontMetrics().averageCharWidth() * 5);
    }
    axis.label->setBuddy(axis.column);
    return axis;
}

void FitPage::addAxis(QGridLayout& grid, int row, const AxisControls& axis) const
{
    grid.addWidget(axis.label, row, 0);
    grid.addWidget(axis.column, row, 1, 1, 2);
    grid.addWidget(axis.measure, row + 1, 1);
    grid.addWidget(axis.unit, row + 1, 2);
}

void FitPage::layOut()
{
    auto* const grid = new QGridLayout(m_form);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_modeLabel, 0, 0);
    grid->addWidget(m_mode, 0, 1, 1, 2);
    addAxis(*grid, 1, m_abscissa);
    addAxis(*grid, 3, m_ordinate);
    grid->addWidget(m_stressLabel, 5, 0);
    grid->addWidget(m_stress, 5, 1, 1, 2);
    grid->addWidget(m_weightLabel, 6, 0);
    grid->addWidget(m_weight, 6, 1);
    for (const auto& [column, stretch] : {std::pair(1, 3), std::pair(2, 1)})
        grid->setColumnStretch(column, stretch);
    const auto rowOf = [](std::initializer_list<QWidget*> widgets) {
        auto* const row = new QHBoxLayout;
        for (QWidget* const widget : widgets)
            row->addWidget(widget);
        row->addStretch(1);
        return row;
    };
    auto* const content = new QWidget;
    auto* const layout = new QVBoxLayout(content);
    layout->addWidget(m_sentence);
    layout->addLayout(rowOf({m_load, m_paste, m_remove}));
    for (QWidget* const widget :
         {static_cast<QWidget*>(m_testView), m_form, static_cast<QWidget*>(m_preview), static_cast<QWidget*>(m_options),
          static_cast<QWidget*>(m_optionsProblem), static_cast<QWidget*>(m_leftOut)})
        layout->addWidget(widget);
    layout->addLayout(rowOf({m_fit, m_cancel}));
    for (QWidget* const widget :
         {static_cast<QWidget*>(m_progress), static_cast<QWidget*>(m_models), static_cast<QWidget*>(m_plot),
          static_cast<QWidget*>(m_constants), static_cast<QWidget*>(m_volume)})
        layout->addWidget(widget);
    layout->addLayout(rowOf({m_apply}));
    layout->addStretch(1);
    content->setMinimumWidth(1); // it scrolls downwards only
    m_scroll = new QScrollArea(this);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setWidget(content);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(m_scroll);
}

void FitPage::connectControls()
{
    const auto guard = [this](void (FitPage::*action)()) {
        return [this, action] {
            Kelta::guarded(tr("The test data cannot be used"), [this, action] { (this->*action)(); });
        };
    };
    connect(m_load, &QPushButton::clicked, this, guard(&FitPage::load));
    connect(m_paste, &QPushButton::clicked, this, guard(&FitPage::paste));
    connect(m_remove, &QPushButton::clicked, this, guard(&FitPage::removeTest));
    connect(m_fit, &QPushButton::clicked, this, guard(&FitPage::startFit));
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        if (m_job != nullptr)
            m_job->cancel();
    });
    connect(m_apply, &QPushButton::clicked, this,
            [this] { Kelta::guarded(tr("The constants cannot be applied"), [this] { apply(); }); });
    connect(m_testView->selectionModel(), &QItemSelectionModel::currentRowChanged, this, guard(&FitPage::showForm));
    connect(m_models->selectionModel(), &QItemSelectionModel::currentRowChanged, this, guard(&FitPage::showModel));
    connect(m_mode, QOverload<int>::of(&QComboBox::activated), this, guard(&FitPage::readForm));
    connect(m_options, &FitOptions::changed, this, guard(&FitPage::enableControls));
    connect(m_volume, &VolumeChoice::changed, this, guard(&FitPage::enableControls));
    connectAxis(m_abscissa, &TestReadRequest::abscissa);
    connectAxis(m_ordinate, &TestReadRequest::ordinate);
    for (QLineEdit* const field : {m_stress, m_weight})
        connect(field, &QLineEdit::editingFinished, this, guard(&FitPage::readForm));
}

/// The first entry of a choice leaves it to the header of the column.
void FitPage::connectAxis(const AxisControls& axis, ColumnChoice TestReadRequest::*choice)
{
    const auto change = [this, axis, choice] {
        LoadedTest* const test = currentTest();
        if (test == nullptr)
            return;
        ColumnChoice chosen;
        if (axis.column->currentIndex() > 0)
            chosen.column = static_cast<std::size_t>(axis.column->currentIndex() - 1);
        if (axis.measure->currentIndex() > 0)
            chosen.measure = static_cast<Measure>(axis.measure->currentData().toInt());
        if (!axis.unit->text().trimmed().isEmpty())
            chosen.unit = axis.unit->text().trimmed().toStdString();
        if (isSame(chosen, test->request.*choice))
            return;
        test->request.*choice = chosen;
        readCurrent(*test);
    };
    const auto guarded = [change] { Kelta::guarded(tr("The test data cannot be used"), change); };
    connect(axis.column, QOverload<int>::of(&QComboBox::activated), this, guarded);
    connect(axis.measure, QOverload<int>::of(&QComboBox::activated), this, guarded);
    connect(axis.unit, &QLineEdit::editingFinished, this, guarded);
}

void FitPage::retranslateAxis(const AxisControls& axis, const QString& label) const
{
    axis.label->setText(label);
    axis.column->setAccessibleName(tr("Column"));
    axis.measure->setAccessibleName(tr("Measured quantity"));
    axis.unit->setAccessibleName(tr("Unit"));
    axis.column->setToolTip(tr("The column of the file"));
    axis.measure->setToolTip(tr("What the column measures"));
    axis.unit->setToolTip(tr("The unit of the column, such as MPa or %"));
}

void FitPage::retranslate()
{
    m_load->setText(tr("&Load…"));
    m_load->setToolTip(tr("Load test data from a file with columns of numbers"));
    m_paste->setText(tr("&Paste"));
    m_paste->setToolTip(tr("Take columns of numbers from the clipboard"));
    m_remove->setText(tr("&Remove"));
    m_modeLabel->setText(tr("&Test:"));
    m_modeLabel->setBuddy(m_mode);
    retranslateAxis(m_abscissa, tr("Hori&zontal:"));
    retranslateAxis(m_ordinate, tr("&Vertical:"));
    m_stressLabel->setText(tr("&Stress:"));
    m_stressLabel->setBuddy(m_stress);
    m_weightLabel->setText(tr("&Weight:"));
    m_weightLabel->setBuddy(m_weight);
    m_options->retranslate();
    m_fit->setText(tr("F&it"));
    m_cancel->setText(tr("&Cancel"));
    m_testView->setAccessibleName(tr("Tests"));
    m_models->setAccessibleName(tr("Fitted models"));
    m_constants->setAccessibleName(tr("Constants of the model"));
    for (ContentView* const view : {m_testView, m_models, m_constants})
        view->retranslate();
    m_plot->retranslate();
    m_volume->retranslate();
    const QSignalBlocker blocker(m_mode);
    m_mode->clear();
    m_mode->addItem(tr("Choose the test"));
    for (const Mode mode : measuredModes())
        m_mode->addItem(constitutiveWord(vxConstitutive::modeRecord(mode).name), static_cast<int>(mode));
    m_plotted.reset(); // names of the plot are in the language of the user
    showTests();
    showResults();
}

void FitPage::setSubject(const Subject& subject, const vxUnits::UnitSystem& system)
{
    const bool isMaterial = subject.kind == Subject::Kind::Materials && !subject.materials.empty();
    m_target = {};
    m_targetLabel.clear();
    if (isMaterial) {
        const Mat::MaterialObject& object = *subject.materials.front();
        m_target = {object.get_project()->getProjectId(), object.getObjectId(), 0};
        m_targetLabel = shortened(QString::fromStdString(object.label.getValue()), 30);
        readKept(object);
    }
    if (m_system != system) {
        m_system = system;
        showOptions();
        showModel();
    }
    showVolume();
    enableControls();
}

/// Shows the tests that a material keeps. If the measurements of the same material change, as by Undo, the shown tests stay:
/// they may not be kept any more.
void FitPage::readKept(const Mat::MaterialObject& object)
{
    const std::string& text = object.getSetting(vxConstitutive::measurementsSetting);
    const bool isSameMaterial = std::exchange(m_keptOf, m_target) == m_target;
    if (text == m_keptText)
        return;
    const KeptMeasurements kept = readMeasurements(text);
    m_keptText = text;
    m_keptFault = kept.fault;
    const std::vector<vxConstitutive::TestData>& tests = kept.measurements.tests;
    if (isSameMaterial || hasOwnTests())
        markKept(tests, isSameMaterial);
    if (!hasOwnTests() && !areSame(tests, readTests()))
        setTests(tests);
}

/// Takes note of the shown tests that a material keeps: Undo and Redo change that. Another material may keep the others.
void FitPage::markKept(const std::vector<vxConstitutive::TestData>& tests, bool isSameMaterial)
{
    for (LoadedTest& test : m_tests)
        test.isKept = isAmong(test, tests) || (test.isKept && !isSameMaterial);
}

bool FitPage::hasOwnTests() const
{
    return std::any_of(m_tests.begin(), m_tests.end(), isOwn);
}

void FitPage::setTests(const std::vector<vxConstitutive::TestData>& tests)
{
    ++m_testsRevision;
    m_tests.clear();
    for (const vxConstitutive::TestData& test : tests)
        if (!vxConstitutive::abscissaMeasures(test.mode).empty())
            m_tests.push_back(keptTest(test));
    dropResults();
    showTests();
}

/// Runs work in another thread, and then a function in the thread of the interface, even if the work fails.
void FitPage::runBeside(std::function<void()> work, std::function<void()> whenDone)
{
    m_jobsBeside.push_back(std::make_unique<BesideJob>(std::move(work)));
    BesideJob* const job = m_jobsBeside.back().get();
    connect(job, &BesideJob::finished, this, [this, job, whenDone = std::move(whenDone)] {
        const QString failure = job->failure();
        const auto isJob = [job](const std::unique_ptr<BesideJob>& one) { return one.get() == job; };
        const auto found = std::find_if(m_jobsBeside.begin(), m_jobsBeside.end(), isJob);
        found->release()->deleteLater(); // this is a slot of its signal
        m_jobsBeside.erase(found);
        Kelta::guarded(tr("The test data cannot be used"), [&] {
            whenDone();
            if (!failure.isEmpty())
                throw std::runtime_error(failure.toStdString());
        });
    });
}

void FitPage::load()
{
    const QStringList paths = Gui::FileDialog::getOpenFileNames(
        this, tr("Load test data"), {}, tr("Test data (*.csv *.txt *.dat *.tsv);;All files (*)"));
    for (const QString& path : paths)
        Kelta::guarded(tr("The test data cannot be used"), [this, &path] { loadFile(path); });
}

void FitPage::loadFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(tr(R"(The file "%1" cannot be read: %2)").arg(path, file.errorString()).toStdString());
    if (file.size() > mostBytes)
        throw std::runtime_error(tr(R"(The file "%1" is larger than 200 MB and is not read.)").arg(path).toStdString());
    addText(QFileInfo(path).completeBaseName(), file.readAll().toStdString());
}

void FitPage::paste()
{
    const QString text = QApplication::clipboard()->text();
    if (!text.isEmpty())
        addText(tr("Test %1").arg(m_tests.size() + m_loading.size() + 1), text.toStdString());
}

/// Adds a test with the table in a text, which is read beside the interface if it is long.
void FitPage::addText(const QString& name, std::string text)
{
    constexpr std::size_t mostAtOnce = 500000; // bytes
    if (text.size() <= mostAtOnce && m_loading.empty())
        return addTest(loadTest(name, text));
    const auto loading = std::make_shared<Loading>();
    m_loading.push_back(loading);
    runBeside([loading, name, text = std::move(text)] { loading->test = loadTest(name, text); },
              [this, loading] {
                  loading->isDone = true;
                  takeLoaded();
              });
    enableControls();
}

/// Adds the tests whose files have been read, in the order in which the user has chosen them.
void FitPage::takeLoaded()
{
    while (!m_loading.empty() && m_loading.front()->isDone) {
        const std::shared_ptr<Loading> loading = m_loading.front();
        m_loading.erase(m_loading.begin());
        if (loading->test.table != nullptr)
            addTest(std::move(loading->test));
    }
    enableControls();
}

void FitPage::readBeside(LoadedTest& test)
{
    std::function<void()> work = readingLater(test);
    runBeside(std::move(work), [this, reading = test.pending] { takeReading(reading); });
}

/// Takes a reading that another thread has made. A test that has changed since waits for another one.
void FitPage::takeReading(const std::shared_ptr<TestReading>& reading)
{
    const auto found = std::find_if(m_tests.begin(), m_tests.end(),
                                    [&reading](const LoadedTest& test) { return test.pending == reading; });
    if (found == m_tests.end())
        return;
    found->pending = nullptr;
    found->reading = std::move(*reading);
    ++m_testsRevision;
    dropResults();
    showTests();
}

void FitPage::addTest(LoadedTest test)
{
    test.request.name = freeName(test.request.name);
    m_tests.push_back(std::move(test));
    ++m_testsRevision;
    dropResults();
    showTests();
    m_testView->setCurrentIndex(m_testView->model()->index(static_cast<int>(m_tests.size()) - 1, 0));
    showForm();
}

/// Materials keep one test of each name.
std::string FitPage::freeName(const std::string& name) const
{
    std::string free = name;
    const auto hasName = [&free](const LoadedTest& test) { return test.request.name == free; };
    for (int number = 2; std::any_of(m_tests.begin(), m_tests.end(), hasName); ++number)
        free = name + " (" + std::to_string(number) + ')';
    return free;
}

void FitPage::removeTest()
{
    const int row = m_testView->currentIndex().row();
    if (row < 0 || static_cast<std::size_t>(row) >= m_tests.size())
        return;
    // The rest of kept tests is a choice of the user, and stays if another material is selected.
    if (m_tests[static_cast<std::size_t>(row)].isKept)
        for (LoadedTest& test : m_tests)
            test.isKept = false;
    m_tests.erase(m_tests.begin() + row);
    ++m_testsRevision;
    dropResults();
    showTests();
}

LoadedTest* FitPage::currentTest()
{
    const int row = m_testView->currentIndex().row();
    return row >= 0 && static_cast<std::size_t>(row) < m_tests.size() ? &m_tests[static_cast<std::size_t>(row)]
                                                                      : nullptr;
}

/// Reads the fields of the form into the current test.
void FitPage::readForm()
{
    LoadedTest* const test = currentTest();
    if (test == nullptr)
        return;
    std::optional<Mode> mode;
    if (m_mode->currentIndex() > 0)
        mode = static_cast<Mode>(m_mode->currentData().toInt());
    const std::optional<double> stress = numberIn(*m_stress, "Pa");
    const double weight = numberIn(*m_weight, "1").value_or(1.0);
    // A field that only loses the keyboard changes nothing.
    if (mode == test->mode && stress == test->request.stress && weight == test->request.weight)
        return;
    test->mode = mode;
    test->request.stress = stress;
    test->request.weight = weight;
    readCurrent(*test);
}

void FitPage::readCurrent(LoadedTest& test)
{
    if (test.table->rows() > mostReadAtOnce && test.mode)
        readBeside(test);
    else
        readAgain(test);
    test.isKept = false;
    ++m_testsRevision;
    dropResults();
    showTests();
    showForm();
}

void FitPage::showTests()
{
    const int row = m_testView->currentIndex().row();
    m_testView->setContent(testTable(m_tests));
    m_testView->setHidden(m_tests.empty());
    if (!m_tests.empty() && !m_testView->currentIndex().isValid())
        m_testView->setCurrentIndex(
            m_testView->model()->index(std::clamp(row, 0, static_cast<int>(m_tests.size()) - 1), 0));
    showOptions();
    showForm();
    showModel();
}

/// Shows the options that belong to the tests.
void FitPage::showOptions()
{
    std::vector<Mode> modes;
    for (const LoadedTest& test : m_tests)
        if (test.mode)
            modes.push_back(*test.mode);
    m_options->setModes(modes, m_system);
}

void FitPage::showForm()
{
    const LoadedTest* const test = currentTest();
    m_form->setHidden(test == nullptr);
    m_preview->setHidden(test == nullptr);
    if (test != nullptr) {
        m_mode->setCurrentIndex(test->mode ? m_mode->findData(static_cast<int>(*test->mode)) : 0);
        const Mode mode = test->mode.value_or(Mode::Uniaxial);
        showAxis(m_abscissa, *test, &TestReadRequest::abscissa, &TestReading::abscissa,
                 vxConstitutive::abscissaMeasures(mode));
        showAxis(m_ordinate, *test, &TestReadRequest::ordinate, &TestReading::ordinate,
                 vxConstitutive::ordinateMeasures(mode));
        const bool isCreep = test->mode == Mode::Creep;
        m_stressLabel->setVisible(isCreep);
        m_stress->setVisible(isCreep);
        constexpr int digits = 10;
        m_stress->setText(test->request.stress ? vxPlot::numberText(*test->request.stress, digits) + tr(" Pa")
                                               : QString());
        m_weight->setText(vxPlot::numberText(test->request.weight, digits));
        m_preview->setText(readingText(*test));
    }
    enableControls();
}

void FitPage::showAxis(const AxisControls& axis, const LoadedTest& test, ColumnChoice TestReadRequest::*choice,
                       ColumnChoice TestReading::*understood, const std::vector<Measure>& measures) const
{
    const ColumnChoice& chosen = test.request.*choice;
    axis.column->clear();
    axis.column->addItem(tr("by its header"));
    for (std::size_t i = 0; i < test.table->columns.size(); ++i) {
        const std::string& name = test.table->columns[i].name;
        axis.column->addItem(name.empty() ? tr("Column %1").arg(i + 1) : QString::fromStdString(name));
    }
    axis.column->setCurrentIndex(chosen.column ? static_cast<int>(*chosen.column) + 1 : 0);
    axis.measure->clear();
    axis.measure->addItem(tr("by its header"));
    for (const Measure measure : measures)
        axis.measure->addItem(constitutiveWord(vxConstitutive::measureRecord(measure).name), static_cast<int>(measure));
    axis.measure->setCurrentIndex(
        chosen.measure ? std::max(axis.measure->findData(static_cast<int>(*chosen.measure)), 0) : 0);
    axis.unit->setText(QString::fromStdString(chosen.unit.value_or("")));
    axis.unit->setPlaceholderText(QString::fromStdString((test.reading.*understood).unit.value_or("")));
    const bool isKnown = test.mode.has_value();
    for (QWidget* const widget :
         {static_cast<QWidget*>(axis.column), static_cast<QWidget*>(axis.measure), static_cast<QWidget*>(axis.unit)})
        widget->setEnabled(isKnown);
}

std::vector<vxConstitutive::TestData> FitPage::readTests() const
{
    std::vector<vxConstitutive::TestData> all;
    for (const LoadedTest& test : m_tests)
        if (test.reading.data)
            all.push_back(*test.reading.data);
    return all;
}

std::vector<const vxConstitutive::TestData*> FitPage::shownTests() const
{
    std::vector<const vxConstitutive::TestData*> all;
    for (const LoadedTest& test : m_tests)
        if (test.reading.data)
            all.push_back(&*test.reading.data);
    return all;
}

/// Returns whether a file or a test is being read beside the interface.
bool FitPage::isReading() const
{
    return !m_loading.empty() ||
           std::any_of(m_tests.begin(), m_tests.end(), [](const LoadedTest& test) { return test.pending != nullptr; });
}

/// Results of other tests must not be taken for those of the present ones.
void FitPage::dropResults()
{
    m_job.reset();
    m_results.clear();
    ++m_resultsRevision;
    showResults();
}

void FitPage::startFit()
{
    FitOrder order{readTests()};
    if (order.tests.empty() || !m_options->fill(order).isEmpty())
        return;
    dropResults();
    m_order = order;
    m_progress->setValue(0);
    m_progress->setFormat(QStringLiteral("%p %"));
    m_job = std::make_unique<FitJob>(std::move(order));
    connect(m_job.get(), &FitJob::progressed, this, [this](const QString& model, double part) {
        m_progress->setValue(static_cast<int>(part * 100.0));
        m_progress->setFormat(constitutiveWord(model.toStdString()) + QStringLiteral(" %p %"));
    });
    connect(m_job.get(), &FitJob::finished, this,
            [this] { Kelta::guarded(tr("The result of the fit cannot be shown"), [this] { finishFit(); }); });
    enableControls();
}

void FitPage::finishFit()
{
    FitJob* const job = m_job.release();
    job->deleteLater(); // this is a slot of its signal
    m_results = job->results();
    ++m_resultsRevision;
    showResults();
    QTimer::singleShot(0, this, [this] { scrollToResults(); }); // when the layout has a place for them
    if (!job->failure().isEmpty())
        throw std::runtime_error(tr("The fit has failed: %1").arg(job->failure()).toStdString());
}

/// Scrolls to the models, and as far towards the button that applies them as the models stay visible.
void FitPage::scrollToResults()
{
    if (m_results.empty())
        return;
    m_scroll->widget()->layout()->activate();
    const int top = m_models->mapTo(m_scroll->widget(), QPoint()).y();
    const int end = m_apply->mapTo(m_scroll->widget(), QPoint(0, m_apply->height())).y();
    const int room = m_scroll->viewport()->height();
    QScrollBar& bar = *m_scroll->verticalScrollBar();
    if (top < bar.value() || end > bar.value() + room)
        bar.setValue(std::min(top, std::max(end - room, bar.value())));
}

void FitPage::showResults()
{
    m_models->setContent(modelTable(m_results));
    m_models->setHidden(m_results.empty());
    if (!m_results.empty())
        m_models->setCurrentIndex(m_models->model()->index(0, 0));
    showModel();
}

const FitResult* FitPage::currentResult() const
{
    const int row = m_models->currentIndex().row();
    return row >= 0 && static_cast<std::size_t>(row) < m_results.size() ? &m_results[static_cast<std::size_t>(row)]
                                                                        : nullptr;
}

void FitPage::showModel()
{
    const FitResult* const result = currentResult();
    m_constants->setHidden(result == nullptr);
    m_constants->setContent(result != nullptr ? constantTable(*result, m_system) : TableContent{});
    showPlot();
    showVolume();
    enableControls();
}

/// Plots only if tests, model or units are others than before: a test may have a million points.
void FitPage::showPlot()
{
    const FitResult* const result = currentResult();
    PlotKey key{m_testsRevision, m_resultsRevision, result, m_system.text()};
    if (m_plotted == key)
        return;
    m_plotted = std::move(key);
    const std::vector<const vxConstitutive::TestData*> tests = shownTests();
    m_plot->setHidden(tests.empty());
    if (!tests.empty())
        m_plot->setPlot(
            fitPlot(tests, result != nullptr ? std::vector{result} : std::vector<const FitResult*>{}, m_system));
}

/// Shows what the D1 of the material means for the selected model. Rows of an open editor count.
void FitPage::showVolume()
{
    const FitResult* const result = currentResult();
    const Mat::MaterialObject* const object = findMaterial(m_target);
    std::optional<vxConstitutive::FittedVolume> volume;
    if (result != nullptr && object != nullptr)
        volume = vxConstitutive::fittedVolume(*result, *inspect(*object, SubjectWatch::editorOf(*object)).material);
    m_volume->setVolume(volume);
}

QString FitPage::sentence() const
{
    if (m_keptFault && m_target.isSet())
        return faultText(*m_keptFault);
    if (!m_loading.empty())
        return tr("A table of test data is being read.");
    return m_tests.empty()
               ? tr("Load test data from a file, or paste columns of numbers, to fit the constants of models "
                    "to them.")
               : QString();
}

/// Names the tests that a fit leaves out because they cannot be read yet; empty if there are none, or if nothing can be fitted.
QString FitPage::leftOutText() const
{
    const QString names = namesOf(
        m_tests, [](const LoadedTest& test) { return !test.reading.data.has_value() && test.pending == nullptr; });
    if (names.isEmpty() || shownTests().empty())
        return {};
    return tr("The fit leaves out these tests, and \"Apply\" does not keep them: %1. Select a test to see what is "
              "missing.")
        .arg(names);
}

void FitPage::enableControls()
{
    const FitResult* const result = currentResult();
    const bool hasConstants = result != nullptr && !result->change.set.empty();
    m_sentence->setText(sentence());
    m_sentence->setHidden(m_sentence->text().isEmpty());
    m_remove->setEnabled(currentTest() != nullptr);
    FitOrder order;
    const QString problem = m_tests.empty() ? QString() : m_options->fill(order);
    m_optionsProblem->setText(problem);
    m_optionsProblem->setHidden(problem.isEmpty());
    m_leftOut->setText(leftOutText());
    m_leftOut->setHidden(m_leftOut->text().isEmpty());
    m_fit->setHidden(m_tests.empty());
    m_fit->setEnabled(!shownTests().empty() && !isFitting() && !isReading() && problem.isEmpty());
    m_cancel->setVisible(isFitting());
    m_progress->setVisible(isFitting());
    m_apply->setHidden(m_results.empty());
    m_apply->setEnabled(hasConstants && m_target.isSet() && m_volume->isComplete());
    m_apply->setText(
        m_target.isSet()
            ? tr("&Apply to \"%1\"").arg(QString(m_targetLabel).replace(QLatin1Char('&'), QLatin1String("&&")))
            : tr("&Apply"));
    m_apply->setToolTip(
        m_target.isSet()
            ? tr("Write the constants of the selected model into the material, and keep the tests with it. The "
                 "change can be undone.")
            : tr("Select a material that gets the constants."));
}

void FitPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    Gui::MainWindow* const window = Gui::MainWindow::get_main_window_inst();
    if (window == nullptr || m_window == window)
        return;
    m_window = window;
    connect(window, &Gui::MainWindow::closing, this, &FitPage::askBeforeClosing);
}

void FitPage::askBeforeClosing(bool& refused)
{
    if (refused || !hasOwnTests())
        return;
    Kelta::guarded(tr("The program does not close"), [this, &refused] {
        refused = true;
        QMessageBox box(
            QMessageBox::Question, tr("Tests are not kept"),
            tr("These tests of the tab Fit are not kept with a material: %1. If the program closes, they are "
               "lost. \"Apply\" in the tab keeps those that the fit uses.")
                .arg(namesOf(m_tests, isOwn)),
            QMessageBox::Discard | QMessageBox::Cancel, window());
        box.setTextFormat(Qt::PlainText);
        box.setDefaultButton(QMessageBox::Cancel);
        refused = box.exec() != QMessageBox::Discard;
    });
}

/// Tests that cannot be kept do not prevent the constants from being applied. Tests that the fit leaves out stay own tests.
void FitPage::apply()
{
    const FitResult* const result = currentResult();
    Mat::MaterialObject* const object = findMaterial(m_target);
    if (result == nullptr || object == nullptr)
        return;
    const AppliedFit fit{m_volume->changeOf(*result), measurementsWith(*result, *object)};
    if (fit.measurements) {
        m_keptText = *fit.measurements;
        m_keptFault.reset();
        for (LoadedTest& test : m_tests)
            test.isKept = test.reading.data.has_value();
    }
    applyFit(fit, *object, SubjectWatch::editorOf(*object));
}

/// Returns the measurements of a material with the tests and the fit; absent if they cannot be kept, which the message log
/// tells.
std::optional<std::string> FitPage::measurementsWith(const FitResult& result, const Mat::MaterialObject& object) const
{
    std::optional<std::string> text;
    Kelta::guarded(tr("The tests are not kept with \"%1\"").arg(m_targetLabel), [&] {
        text = addFit(object.getSetting(vxConstitutive::measurementsSetting), m_order.tests, recordOf(result, m_order));
    });
    return text;
}

} // namespace vxInspector
