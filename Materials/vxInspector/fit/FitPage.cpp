#include "fit/FitPage.h"

#include "Gui/MainWindow.h"
#include "Kelta/Exceptions.h"
#include "curves/ConstitutiveTexts.h"
#include "fit/FitApplying.h"
#include "fit/FitOptions.h"
#include "fit/FitTables.h"
#include "fit/ModulusChoice.h"
#include "fit/PageWheel.h"
#include "fit/ResultPanel.h"
#include "fit/TestPanel.h"
#include "fit/VolumeChoice.h"
#include "measured/BesideJob.h"
#include "subject/InspectedMaterial.h"
#include "subject/SubjectWatch.h"
#include "vxMaterial/model/MaterialProperty.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>
#include <stdexcept>
#include <utility>

namespace vxInspector {

namespace {

using vxConstitutive::FitResult;
using vxConstitutive::Mode;

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

QHBoxLayout* rowOf(std::initializer_list<QWidget*> widgets)
{
    auto* const row = new QHBoxLayout;
    for (QWidget* const widget : widgets)
        row->addWidget(widget);
    row->addStretch(1);
    return row;
}

/// Returns a material as the inspector shows it. Rows of an open editor count.
InspectedMaterial inspectWithEditor(const Mat::MaterialObject& object)
{
    return inspect(object, SubjectWatch::editorOf(object));
}

} // namespace

FitPage::FitPage(MeasurementsCache& cache, QWidget* parent)
    : QWidget(parent),
      m_tests(new FitTests(cache, this)),
      m_sentence(makeText(this, "sentence")),
      m_panel(new TestPanel(*m_tests, this)),
      m_options(new FitOptions(this)),
      m_optionsProblem(makeText(this, "fitOptionsProblem")),
      m_leftOut(makeText(this, "fitLeftOut")),
      m_fit(named(new QPushButton(this), "fitStart")),
      m_cancel(named(new QPushButton(this), "fitCancel")),
      m_progress(named(new QProgressBar(this), "fitProgress")),
      m_results(new ResultPanel(*m_tests, this)),
      m_modulus(new ModulusChoice(this)),
      m_volume(new VolumeChoice(this)),
      m_apply(named(new QPushButton(this), "fitApply")),
      m_appliedText(makeText(this, "fitApplied"))
{
    setObjectName(QStringLiteral("inspectorFit"));
    m_progress->setRange(0, 100);
    m_appliedText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    for (QPushButton* const button : {m_fit, m_cancel, m_apply})
        button->setAutoDefault(false);
    layOut();
    retranslate();
    connectControls();
}

FitPage::~FitPage() = default;

void FitPage::layOut()
{
    m_scroll = new QScrollArea(this);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setWidget(makeContent());
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(m_scroll);
    new PageWheel(this);
}

QWidget* FitPage::makeContent()
{
    auto* const content = new QWidget;
    auto* const layout = new QVBoxLayout(content);
    for (QWidget* const widget :
         std::initializer_list<QWidget*>{m_sentence, m_panel, m_options, m_optionsProblem, m_leftOut})
        layout->addWidget(widget);
    layout->addLayout(rowOf({m_fit, m_cancel}));
    for (QWidget* const widget : std::initializer_list<QWidget*>{m_progress, m_results, m_modulus, m_volume})
        layout->addWidget(widget);
    layout->addLayout(rowOf({m_apply}));
    layout->addWidget(m_appliedText);
    layout->addStretch(1);
    content->setMinimumWidth(1); // it scrolls downwards only
    return content;
}

void FitPage::connectControls()
{
    const auto guard = [this](void (FitPage::*action)()) {
        return [this, action] {
            Kelta::guarded(tr("The test data cannot be used"), [this, action] { (this->*action)(); });
        };
    };
    connect(m_tests, &FitTests::changed, this, guard(&FitPage::takeChangedTests));
    connect(m_tests, &FitTests::readingBegins, this, guard(&FitPage::enableControls));
    connect(m_fit, &QPushButton::clicked, this, guard(&FitPage::startFit));
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        if (m_job != nullptr)
            m_job->cancel();
    });
    connect(m_apply, &QPushButton::clicked, this,
            [this] { Kelta::guarded(tr("The constants cannot be applied"), [this] { apply(); }); });
    connect(m_results, &ResultPanel::chosen, this, guard(&FitPage::showModel));
    connect(m_options, &FitOptions::changed, this, guard(&FitPage::enableControls));
    connect(m_volume, &VolumeChoice::changed, this, guard(&FitPage::enableControls));
    connect(m_modulus, &ModulusChoice::chosen, this, [this](bool isOfMaterial) {
        Kelta::guarded(tr("The test data cannot be used"), [this, isOfMaterial] { chooseModulus(isOfMaterial); });
    });
}

void FitPage::retranslate()
{
    m_panel->retranslate();
    m_options->retranslate();
    m_fit->setText(tr("F&it"));
    m_cancel->setText(tr("&Cancel"));
    m_results->retranslate();
    m_modulus->retranslate();
    m_volume->retranslate();
    showOptions();
    showModel();
    showApplied();
}

void FitPage::setSubject(const Subject& subject, const vxUnits::UnitSystem& system)
{
    const bool isMaterial = subject.kind == Subject::Kind::Materials && !subject.materials.empty();
    m_target = {};
    m_targetLabel.clear();
    if (isMaterial) {
        const Mat::MaterialObject& object = *subject.materials.front();
        m_target = placeOf(object);
        m_targetLabel = shortened(QString::fromStdString(object.label.getValue()), 30);
        m_tests->follow(object);
    } else {
        m_tests->checkKept();
    }
    if (m_system != system) {
        m_system = system;
        showOptions();
        showModel();
    }
    m_panel->showRemovals();
    showVolume();
    showModulus();
    showApplied();
    enableControls();
}

const std::vector<FitResult>& FitPage::results() const
{
    return m_results->results();
}

PlotView& FitPage::plot() const
{
    return m_results->plot();
}

void FitPage::addTest(LoadedTest test)
{
    m_tests->add(std::move(test));
}

/// Results of other tests must not be taken for those of the present ones. Tests that have been fitted before get their results
/// again.
void FitPage::takeChangedTests()
{
    keepResults();
    m_curveModulus.reset();
    showOptions();
    dropResults();
    const std::vector<const vxConstitutive::TestData*> tests = m_tests->data();
    const FinishedFit* const earlier = tests.size() == m_tests->all().size() ? m_finished.of(tests) : nullptr;
    if (earlier == nullptr)
        return;
    m_order = earlier->order;
    m_curveModulus = earlier->curveModulus;
    m_results->setResults(earlier->results, earlier->model);
    showModel();
}

/// Keeps the present results, for the case that their tests are shown again.
void FitPage::keepResults()
{
    if (const FitResult* const current = m_results->current())
        m_finished.keep({m_order, m_results->results(), current->model, m_curveModulus});
}

/// Shows the options that belong to the tests.
void FitPage::showOptions()
{
    std::vector<Mode> modes;
    for (const LoadedTest& test : m_tests->all())
        if (test.mode)
            modes.push_back(*test.mode);
    m_options->setModes(modes, m_system);
}

void FitPage::dropResults()
{
    m_job.reset();
    m_results->setResults({});
    showModel();
}

void FitPage::startFit()
{
    fitWith({});
}

/// Fits with a Young's modulus, unless the user has entered another one.
void FitPage::fitWith(std::optional<double> youngsModulus)
{
    FitOrder order;
    for (const vxConstitutive::TestData* const test : m_tests->data())
        order.tests.push_back(*test);
    order.youngsModulus = youngsModulus;
    if (order.tests.empty() || !m_options->fill(order).isEmpty())
        return;
    m_applied.reset();
    showApplied();
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
    m_results->setResults(job->results(), std::exchange(m_wantedModel, {}));
    for (const FitResult& result : m_results->results())
        if (const auto* const modulus = result.find(vxMat::PropertyId::YoungsModulus))
            m_curveModulus = modulus->value;
    showModel();
    QTimer::singleShot(0, this, [this] { scrollToResults(); }); // when the layout has a place for them
    if (!job->failure().isEmpty())
        throw std::runtime_error(tr("The fit has failed: %1").arg(job->failure()).toStdString());
}

/// Fits again with the modulus of the material, or with that of the curve. The selected model stays.
void FitPage::chooseModulus(bool isOfMaterial)
{
    const FitResult* const result = m_results->current();
    std::string model = result != nullptr ? result->model : std::string();
    fitWith(isOfMaterial ? modulusOfMaterial() : std::nullopt);
    m_wantedModel = std::move(model);
}

/// Scrolls to the models, and as far towards the button that applies them as the models stay visible.
void FitPage::scrollToResults()
{
    if (m_results->results().empty())
        return;
    m_scroll->widget()->layout()->activate();
    const int top = m_results->mapTo(m_scroll->widget(), QPoint()).y();
    const int end = m_apply->mapTo(m_scroll->widget(), QPoint(0, m_apply->height())).y();
    const int room = m_scroll->viewport()->height();
    QScrollBar& bar = *m_scroll->verticalScrollBar();
    if (top < bar.value() || end > bar.value() + room)
        bar.setValue(std::min(top, std::max(end - room, bar.value())));
}

void FitPage::showModel()
{
    m_results->showModel(m_system);
    showVolume();
    showModulus();
    enableControls();
}

/// Shows what the D1 of the material means for the selected model.
void FitPage::showVolume()
{
    const FitResult* const result = m_results->current();
    const Mat::MaterialObject* const object = materialAt(m_target);
    std::optional<vxConstitutive::FittedVolume> volume;
    if (result != nullptr && object != nullptr)
        volume = vxConstitutive::fittedVolume(*result, *inspectWithEditor(*object).material);
    m_volume->setVolume(volume, m_system);
}

/// Returns the Young's modulus of the material that gets the constants, in Pa; absent if it has none greater than 0.
std::optional<double> FitPage::modulusOfMaterial() const
{
    const Mat::MaterialObject* const object = materialAt(m_target);
    if (object == nullptr)
        return std::nullopt;
    const InspectedMaterial inspected = inspectWithEditor(*object);
    const vxMat::MaterialProperty* const modulus = inspected.material->findProperty(vxMat::PropertyId::YoungsModulus);
    return modulus != nullptr && modulus->value > 0.0 ? std::optional(modulus->value) : std::nullopt;
}

/// Shows what the Young's modulus of the material means for a fit of hardening.
void FitPage::showModulus()
{
    FitOrder options;
    const bool isTensile = std::any_of(m_order.tests.begin(), m_order.tests.end(),
                                       [](const auto& test) { return test.mode == Mode::Tensile; });
    const std::optional<double> used = m_order.youngsModulus ? m_order.youngsModulus : m_curveModulus;
    std::optional<FitModuli> moduli;
    if (m_results->current() != nullptr && isTensile && used && m_options->fill(options).isEmpty())
        moduli = FitModuli{m_curveModulus, options.youngsModulus, modulusOfMaterial(), *used};
    m_modulus->setModuli(moduli, m_system);
}

QString FitPage::sentence() const
{
    if (m_tests->keptThere() != nullptr && m_tests->keptThere()->fault && m_target.isSet())
        return faultText(*m_tests->keptThere()->fault);
    if (m_tests->isLoading())
        return tr("A table of test data is being read.");
    if (m_tests->all().empty())
        return tr("Load test data from a file, or paste columns of numbers, to fit the constants of models "
                  "to them.");
    return keptFitText();
}

/// Tells the latest fit that the material keeps, unless there is one in this tab.
QString FitPage::keptFitText() const
{
    const KeptMeasurements* const kept = m_tests->keptThere();
    const bool isShown = kept != nullptr && !kept->measurements.fits.empty() && m_target.isSet() &&
                         !m_tests->hasOwn() && m_results->results().empty() && !isFitting();
    return isShown ? recordText(kept->measurements.fits.back(), m_system) : QString();
}

/// Names the tests that a fit leaves out because they cannot be read yet; empty if there are none, or if nothing can be fitted.
QString FitPage::leftOutText() const
{
    const QString names = namesOf(m_tests->all(), [](const LoadedTest& test) {
        return !test.reading.data.has_value() && test.pending == nullptr;
    });
    if (names.isEmpty() || m_tests->data().empty())
        return {};
    return tr("The fit leaves out these tests, and \"Apply\" does not keep them: %1. Select a test to see what is "
              "missing.")
        .arg(names);
}

void FitPage::enableControls()
{
    m_sentence->setText(sentence());
    m_sentence->setHidden(m_sentence->text().isEmpty());
    FitOrder order;
    const bool hasTests = !m_tests->all().empty();
    const QString problem = hasTests ? m_options->fill(order) : QString();
    m_optionsProblem->setText(problem);
    m_optionsProblem->setHidden(problem.isEmpty());
    m_leftOut->setText(leftOutText());
    m_leftOut->setHidden(m_leftOut->text().isEmpty());
    m_fit->setHidden(!hasTests);
    m_fit->setEnabled(!m_tests->data().empty() && !isFitting() && !m_tests->isReading() && problem.isEmpty());
    m_cancel->setVisible(isFitting());
    m_progress->setVisible(isFitting());
    enableApply();
}

void FitPage::enableApply()
{
    const FitResult* const result = m_results->current();
    const bool hasConstants = result != nullptr && !result->change.set.empty();
    m_apply->setHidden(m_results->results().empty());
    m_apply->setEnabled(hasConstants && m_target.isSet() && m_volume->isComplete() && m_writing == nullptr);
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
    if (refused)
        return;
    m_tests->checkKept();
    if (!m_tests->hasOwn())
        return;
    Kelta::guarded(tr("The program does not close"), [this, &refused] {
        refused = true;
        QMessageBox box(
            QMessageBox::Question, tr("Tests are not kept"),
            tr("These tests of the tab Fit are not kept with a material: %1. If the program closes, they are "
               "lost. \"Apply\" in the tab keeps those that the fit uses.")
                .arg(namesOf(m_tests->all(), isOwn)),
            QMessageBox::Discard | QMessageBox::Cancel, window());
        box.setTextFormat(Qt::PlainText);
        box.setDefaultButton(QMessageBox::Cancel);
        refused = box.exec() != QMessageBox::Discard;
    });
}

void FitPage::apply()
{
    const FitResult* const result = m_results->current();
    if (result == nullptr || materialAt(m_target) == nullptr || m_writing != nullptr)
        return;
    writeTests(std::make_shared<Applying>(Applying{m_target,
                                                   m_targetLabel,
                                                   *result,
                                                   m_volume->changeOf(*result),
                                                   m_order.tests,
                                                   recordOf(*result, m_order),
                                                   {},
                                                   {}}));
}

/// Makes the text in which the material keeps the tests. This takes seconds for long tests, so it is then done beside the interface.
void FitPage::writeTests(const std::shared_ptr<Applying>& applying)
{
    constexpr std::size_t mostAtOnce = 500000; // bytes
    applying->before = materialAt(applying->material)->getSetting(vxConstitutive::measurementsSetting);
    const auto write = [applying] { applying->kept = addFit(applying->before, applying->tests, applying->record); };
    std::size_t points = 0;
    for (const vxConstitutive::TestData& test : applying->tests)
        points += test.abscissas.size();
    if (applying->before.size() <= mostAtOnce && points <= mostReadAtOnce) {
        Kelta::guarded(tr("The tests are not kept with \"%1\"").arg(applying->label), write);
        return finishApply(*applying);
    }
    m_writing = std::make_unique<BesideJob>(write);
    connect(m_writing.get(), &BesideJob::finished, this, [this, applying] {
        Kelta::guarded(tr("The constants cannot be applied"), [&] { takeWrittenTests(applying); });
    });
    showApplied();
    scrollToApplied();
    enableControls();
}

/// Scrolls to what Apply says, when the layout has a place for it.
void FitPage::scrollToApplied()
{
    QTimer::singleShot(0, m_appliedText, [this] { m_scroll->ensureWidgetVisible(m_appliedText, 0, 0); });
}

/// The user may have changed or closed anything since Apply.
void FitPage::takeWrittenTests(const std::shared_ptr<Applying>& applying)
{
    BesideJob* const job = m_writing.release();
    job->deleteLater(); // this is a slot of its signal
    Kelta::guarded(tr("The tests are not kept with \"%1\"").arg(applying->label), [job] {
        if (!job->failure().isEmpty())
            throw std::runtime_error(job->failure().toStdString());
    });
    const Mat::MaterialObject* const object = materialAt(applying->material);
    if (object != nullptr && object->getSetting(vxConstitutive::measurementsSetting) != applying->before)
        return writeTests(applying);
    if (object != nullptr)
        finishApply(*applying);
    showApplied();
    enableControls();
}

/// Tests that cannot be kept do not prevent the constants from being applied. Tests that the fit leaves out stay own tests.
void FitPage::finishApply(const Applying& applying)
{
    Mat::MaterialObject& object = *materialAt(applying.material);
    MatGui::MaterialView* const editor = SubjectWatch::editorOf(object);
    const AppliedFit fit{applying.change, applying.kept ? std::optional(applying.kept->text) : std::nullopt};
    AppliedResult applied{
        applying.result, fit.change, {}, removedBy(fit.change, inspectWithEditor(object)), editor != nullptr};
    if (applying.kept) {
        m_tests->noteKept(object, *applying.kept);
        applied.tests.emplace();
        for (const vxConstitutive::TestData& test : applying.tests)
            *applied.tests << QString::fromStdString(test.name);
    }
    applyFit(fit, object, editor);
    m_applied = Applied{applying.material, std::move(applied)};
    showApplied();
    scrollToApplied();
    m_panel->showRemovals();
    Gui::MainWindow::announce(appliedText(m_applied->fit, inspectWithEditor(object), m_system),
                              Kelta::LogMessage::Severity::Information,
                              {applying.material.projectId, applying.material.objectId, 0});
}

/// Says that Apply is at work, or what the last one has written, as long as the selected material has it.
void FitPage::showApplied()
{
    const Mat::MaterialObject* const object =
        m_applied && m_applied->material == m_target ? materialAt(m_target) : nullptr;
    QString text;
    if (m_writing != nullptr) {
        text = tr("The tests are being written for the material.");
    } else if (object != nullptr) {
        const InspectedMaterial inspected = inspectWithEditor(*object);
        if (hasWritten(m_applied->fit.change, inspected))
            text = appliedText(m_applied->fit, inspected, m_system);
    }
    m_appliedText->setText(text);
    m_appliedText->setHidden(text.isEmpty());
}

} // namespace vxInspector
