#include "curves/CurvesPage.h"

#include "Kelta/Exceptions.h"
#include "curves/ConstitutiveTexts.h"
#include "curves/CurveRanges.h"
#include "plot/PlotView.h"
#include "table/ContentView.h"
#include "table/ViewHeight.h"
#include "vxPlot/CurvePlot.h"
#include "vxUnits/Reading.h"
#include "vxUnits/Writing.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace vxInspector {

namespace {

using vxConstitutive::Mode;
using vxPlot::Scale;

// The tab scrolls if there is no room for both.
constexpr int plotLines = 16;
constexpr int mostFindingLines = 12;

QToolButton* makeButton(QWidget* parent, const char* name)
{
    auto* const button = new QToolButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    return button;
}

QLineEdit* makeField(QWidget* parent, const char* name)
{
    constexpr int fewest = 6; // letters
    auto* const field = new QLineEdit(parent);
    field->setObjectName(QLatin1String(name));
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * fewest);
    field->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return field;
}

/// Returns the unit of the horizontal axis of a mode.
vxUnits::Unit abscissaUnit(Mode mode, const vxPlot::PlotData& plot)
{
    const auto shown = vxUnits::Unit::parse(plot.x.unit);
    if (shown)
        return *shown;
    const auto unit =
        vxUnits::Unit::parse(vxConstitutive::quantityRecord(vxConstitutive::modeRecord(mode).abscissa).unit);
    return unit ? *unit : vxUnits::Unit();
}

} // namespace

CurvesPage::CurvesPage(QWidget* parent)
    : QWidget(parent),
      m_sentence(new QLabel(this)),
      m_controls(new QWidget(this)),
      m_modes(makeButton(m_controls, "curveModes")),
      m_modeMenu(new QMenu(m_modes)),
      m_ordinates(new QComboBox(m_controls)),
      m_fromLabel(new QLabel(m_controls)),
      m_from(makeField(m_controls, "curveFrom")),
      m_toLabel(new QLabel(m_controls)),
      m_to(makeField(m_controls, "curveTo")),
      m_parameterLabel(new QLabel(m_controls)),
      m_parameterField(makeField(m_controls, "curveParameter")),
      m_horizontal(makeButton(m_controls, "curveLogX")),
      m_vertical(makeButton(m_controls, "curveLogY")),
      m_plot(new PlotView(this)),
      m_buttons(new QWidget(this)),
      m_reset(makeButton(m_buttons, "curveReset")),
      m_copy(makeButton(m_buttons, "curveCopy")),
      m_save(makeButton(m_buttons, "curveSave")),
      m_findings(new ContentView(this))
{
    setObjectName(QStringLiteral("inspectorCurves"));
    m_sentence->setObjectName(QStringLiteral("sentence"));
    m_sentence->setTextFormat(Qt::PlainText);
    m_sentence->setWordWrap(true);
    m_sentence->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_ordinates->setObjectName(QStringLiteral("curveOrdinates"));
    m_ordinates->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_modes->setMenu(m_modeMenu);
    m_modes->setPopupMode(QToolButton::InstantPopup);
    m_modes->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_modeMenu->setObjectName(QStringLiteral("curveModeMenu"));
    m_copy->setPopupMode(QToolButton::InstantPopup);
    m_findings->setObjectName(QStringLiteral("curveFindings"));
    m_plot->setUsualHeight(plotLines);
    for (QToolButton* const scale : {m_horizontal, m_vertical})
        scale->setCheckable(true);
    layOut();
    connectControls();
    retranslate();
    showControls(false);
}

CurvesPage::~CurvesPage() = default;

void CurvesPage::layOut()
{
    auto* const first = new QHBoxLayout;
    first->addWidget(m_modes, 1);
    first->addWidget(m_ordinates, 1);
    auto* const second = new QHBoxLayout;
    for (auto [label, field] : {std::pair(m_fromLabel, m_from), std::pair(m_toLabel, m_to)}) {
        label->setBuddy(field);
        second->addWidget(label);
        second->addWidget(field, 1);
    }
    second->addWidget(m_horizontal);
    second->addWidget(m_vertical);
    auto* const third = new QHBoxLayout;
    m_parameterLabel->setBuddy(m_parameterField);
    third->addWidget(m_parameterLabel);
    third->addWidget(m_parameterField, 1);
    auto* const controls = new QVBoxLayout(m_controls);
    controls->setContentsMargins(0, 0, 0, 0);
    controls->addLayout(first);
    controls->addLayout(second);
    controls->addLayout(third);
    auto* const buttons = new QHBoxLayout(m_buttons);
    buttons->setContentsMargins(0, 0, 0, 0);
    for (QToolButton* const button : {m_reset, m_copy, m_save})
        buttons->addWidget(button);
    buttons->addStretch(1);
    auto* const content = new QWidget;
    auto* const layout = new QVBoxLayout(content);
    layout->addWidget(m_sentence);
    layout->addWidget(m_controls);
    layout->addWidget(m_plot, 1);
    layout->addWidget(m_buttons);
    layout->addWidget(m_findings);
    content->setMinimumWidth(1); // it scrolls downwards only
    // A low window must not become higher than the screen.
    auto* const scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll);
}

void CurvesPage::connectControls()
{
    // Rows become higher when the table becomes narrower, one after the other.
    m_findingsChange.setSingleShot(true);
    connect(m_findings->verticalHeader(), &QHeaderView::sectionResized, &m_findingsChange,
            [this] { m_findingsChange.start(0); });
    connect(&m_findingsChange, &QTimer::timeout, this, [this] { fitHeight(*m_findings, mostFindingLines); });
    const auto guard = [](auto action) {
        return [action] { Kelta::guarded(tr("The curves cannot be drawn"), action); };
    };
    connect(m_modeMenu, &QMenu::aboutToShow, this, guard([this] { fillModeMenu(); }));
    connect(m_ordinates, QOverload<int>::of(&QComboBox::activated), this, guard([this] {
                m_settings.ordinates = static_cast<std::size_t>(std::max(m_ordinates->currentIndex(), 0));
                Q_EMIT chosen();
            }));
    for (QLineEdit* const field : {m_from, m_to})
        connect(field, &QLineEdit::textChanged, this, guard([this] { readRange(); }));
    connect(m_parameterField, &QLineEdit::textChanged, this, guard([this] { readParameterField(); }));
    connect(m_horizontal, &QToolButton::clicked, this, guard([this] {
                m_settings.horizontal = m_horizontal->isChecked() ? Scale::Logarithmic : Scale::Linear;
                Q_EMIT chosen();
            }));
    connect(m_vertical, &QToolButton::clicked, this, guard([this] {
                m_settings.vertical = m_vertical->isChecked() ? Scale::Logarithmic : Scale::Linear;
                Q_EMIT chosen();
            }));
    connect(m_reset, &QToolButton::clicked, m_plot, &PlotView::resetZoom);
    connect(m_plot, &PlotView::zoomChanged, this, [this] { m_reset->setEnabled(m_plot->isZoomed()); });
    connect(m_save, &QToolButton::clicked, m_plot, &PlotView::save);
    auto* const copies = new QMenu(m_copy);
    copies->addActions({m_plot->actions()[0], m_plot->actions()[1]});
    m_copy->setMenu(copies);
    m_reset->setEnabled(false);
}

void CurvesPage::retranslate()
{
    m_fromLabel->setText(tr("&From:"));
    m_toLabel->setText(tr("t&o:"));
    m_horizontal->setText(tr("log x"));
    m_horizontal->setToolTip(tr("Horizontal axis with a logarithmic scale"));
    m_vertical->setText(tr("log y"));
    m_vertical->setToolTip(tr("Vertical axis with a logarithmic scale"));
    m_modes->setToolTip(tr("The tests whose curves are drawn. Tests with the same axes can be drawn together."));
    m_ordinates->setToolTip(tr("The quantity on the vertical axis"));
    m_ordinates->setAccessibleName(tr("Vertical axis"));
    m_from->setAccessibleName(tr("Beginning of the horizontal axis"));
    m_to->setAccessibleName(tr("End of the horizontal axis"));
    m_reset->setText(tr("Show everything"));
    m_copy->setText(tr("Copy"));
    m_save->setText(tr("Save as…"));
    m_findings->setAccessibleName(tr("Findings about the curves"));
    m_plot->retranslate();
    m_findings->retranslate();
    m_ordinatesOf.clear();
    m_parameter = CurveParameter::None;
}

void CurvesPage::showControls(bool isShown)
{
    for (QWidget* const widget : {m_controls, static_cast<QWidget*>(m_plot), m_buttons})
        widget->setVisible(isShown);
}

void CurvesPage::setSentence(const QString& sentence)
{
    m_sentence->setText(sentence);
    showControls(false);
    m_findings->setContent({});
    m_findings->hide();
}

void CurvesPage::setMaterials(const std::vector<DrawnMaterial>& materials, const vxUnits::UnitSystem& system,
                              const QString& limit)
{
    const bool hasOtherSystem = m_system != system;
    m_system = system;
    if (hasOtherSystem)
        m_parameter = CurveParameter::None; // the text of its field is in the former units
    CurvesContent content = curvesOf(materials, m_settings, system, m_cache);
    if (!limit.isEmpty())
        content.sentence += QLatin1Char(' ') + limit;
    content.sentence = content.sentence.trimmed();
    showContent(std::move(content));
}

void CurvesPage::showContent(CurvesContent content)
{
    m_sentence->setText(content.sentence);
    m_sentence->setHidden(content.sentence.isEmpty());
    m_available = content.modes;
    m_shown = content.shown;
    m_canBeIncompressible = content.canBeIncompressible;
    m_hasChains = content.hasChains;
    showControls(!m_shown.empty());
    if (!m_shown.empty()) {
        showModes();
        fillOrdinates(content);
        fillRange(content);
        fillParameter(content);
        fillScales(content);
    }
    m_findings->setHidden(content.findings.rows.empty());
    m_findings->setContent(std::move(content.findings));
    fitHeight(*m_findings, mostFindingLines);
    m_plot->setPlot(std::move(content.plot));
}

void CurvesPage::showModes()
{
    const vxUnits::Translator translator = constitutiveTranslator();
    QStringList names;
    for (const Mode mode : m_shown)
        names << QString::fromStdString(vxPlot::shortModeName(mode, translator));
    m_modeNames = names.join(QStringLiteral(", "));
    m_modes->setAccessibleName(tr("Tests: %1").arg(m_modeNames));
    elideModes();
}

/// Fills the menu before it opens: an action must not be deleted while it is being triggered.
void CurvesPage::fillModeMenu()
{
    m_modeMenu->clear();
    for (std::size_t i = 0; i < m_available.size(); ++i) {
        if (i > 0 && !vxPlot::fitTogether(m_available[i - 1], m_available[i]))
            m_modeMenu->addSeparator();
        addMode(m_available[i]);
    }
    if (m_canBeIncompressible || m_hasChains)
        m_modeMenu->addSeparator();
    if (m_canBeIncompressible)
        addCompressibility();
    if (m_hasChains)
        addChains();
}

void CurvesPage::addMode(Mode mode)
{
    QAction* const action = m_modeMenu->addAction(constitutiveWord(vxConstitutive::modeRecord(mode).name));
    action->setCheckable(true);
    action->setChecked(std::count(m_shown.begin(), m_shown.end(), mode) != 0);
    connect(action, &QAction::triggered, this, [this, mode](bool isOn) {
        Kelta::guarded(tr("The curves cannot be drawn"), [this, mode, isOn] { chooseMode(mode, isOn); });
    });
}

void CurvesPage::addCompressibility()
{
    using vxConstitutive::Compressibility;
    addSwitch(tr("Draw as incompressible"), m_settings.compressibility == Compressibility::Incompressible,
              [this](bool isOn) {
                  m_settings.compressibility = isOn ? Compressibility::Incompressible : Compressibility::AsGiven;
              });
}

void CurvesPage::addChains()
{
    using vxConstitutive::ChainStatistics;
    addSwitch(tr("Draw chains by the inverse Langevin function"), m_settings.chains == ChainStatistics::InverseLangevin,
              [this](bool isOn) {
                  m_settings.chains = isOn ? ChainStatistics::InverseLangevin : ChainStatistics::FiveTermSeries;
              });
}

void CurvesPage::addSwitch(const QString& text, bool isOn, const std::function<void(bool)>& change)
{
    QAction* const action = m_modeMenu->addAction(text);
    action->setCheckable(true);
    action->setChecked(isOn);
    connect(action, &QAction::triggered, this, [this, change](bool isNowOn) {
        change(isNowOn);
        Q_EMIT chosen();
    });
}

void CurvesPage::elideModes()
{
    constexpr int arrow = 24; // pixels for the arrow of the menu and the frame
    m_modes->setText(m_modes->fontMetrics().elidedText(m_modeNames, Qt::ElideRight, m_modes->width() - arrow));
}

void CurvesPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    elideModes();
}

/// A mode that does not fit to the others replaces them. The last mode cannot be taken away.
void CurvesPage::chooseMode(Mode mode, bool isOn)
{
    std::set<Mode> modes(m_shown.begin(), m_shown.end());
    const bool fits = modes.empty() || vxPlot::fitTogether(*modes.begin(), mode);
    if (isOn && !fits) {
        m_settings = {};
        const QSignalBlocker from(m_from);
        const QSignalBlocker to(m_to);
        m_from->clear();
        m_to->clear();
        modes.clear();
    }
    if (isOn)
        modes.insert(mode);
    else if (modes.size() > 1)
        modes.erase(mode);
    m_settings.modes = std::move(modes);
    Q_EMIT chosen();
}

void CurvesPage::fillOrdinates(const CurvesContent& content)
{
    if (m_ordinatesOf == content.shown)
        return;
    m_ordinatesOf = content.shown;
    const auto& choices = vxPlot::ordinatesOf(content.shown.front());
    const QSignalBlocker blocker(m_ordinates);
    m_ordinates->clear();
    for (const vxPlot::Ordinates& one : choices) {
        const QString name = constitutiveWord(one.name);
        m_ordinates->addItem(name == QLatin1String(one.name) ? QCoreApplication::translate("vxPlot", one.name) : name);
    }
    m_settings.ordinates = std::min(m_settings.ordinates, choices.size() - 1);
    m_ordinates->setCurrentIndex(static_cast<int>(m_settings.ordinates));
    m_ordinates->setVisible(choices.size() > 1);
}

/// The fields show the usual range as placeholders until the user types another one.
void CurvesPage::fillRange(const CurvesContent& content)
{
    constexpr int digits = 5;
    const vxUnits::Unit unit = abscissaUnit(content.shown.front(), content.plot);
    const bool hasOtherUnit = m_rangeUnit != unit.text();
    m_rangeUnit = unit.text();
    m_from->setPlaceholderText(QString::fromStdString(vxUnits::writeNumber(content.range.from, unit, digits)));
    m_to->setPlaceholderText(QString::fromStdString(vxUnits::writeNumber(content.range.to, unit, digits)));
    if (!hasOtherUnit)
        return;
    // Typed numbers keep their value in the new unit.
    const auto rewrite = [&unit](QLineEdit& field, const std::optional<double>& value) {
        const QSignalBlocker blocker(field);
        if (value)
            field.setText(QString::fromStdString(vxUnits::writeNumber(*value, unit, digits)));
    };
    rewrite(*m_from, m_settings.from);
    rewrite(*m_to, m_settings.to);
}

/// The field shows the used numbers as a placeholder until the user types others.
void CurvesPage::fillParameter(const CurvesContent& content)
{
    const bool isShown = content.parameter != CurveParameter::None;
    m_parameterLabel->setVisible(isShown);
    m_parameterField->setVisible(isShown);
    m_parameterField->setPlaceholderText(content.usedParameter.empty()
                                             ? tr("not known: multiples of it")
                                             : parameterText(content.parameter, content.usedParameter, m_system));
    if (content.parameter == m_parameter)
        return;
    m_parameter = content.parameter;
    const QString names[] = {QString(), tr("&Stresses:"), tr("T&ime:"), tr("Co&hesion:")};
    const QString tips[] = {QString(),
                            tr("The stresses of the creep curves, separated by semicolons, with a unit if you like"),
                            tr("The time after loading at which the creep rates are drawn"),
                            tr("The cohesion of the yield surface, which the material does not have")};
    m_parameterLabel->setText(names[static_cast<std::size_t>(m_parameter)]);
    m_parameterField->setToolTip(tips[static_cast<std::size_t>(m_parameter)]);
    std::vector<double> typed;
    if (m_parameter == CurveParameter::Stresses)
        typed = m_settings.stresses;
    else if (const auto& number = m_parameter == CurveParameter::Time ? m_settings.time : m_settings.cohesion)
        typed = {*number};
    const QSignalBlocker blocker(m_parameterField);
    m_parameterField->setText(parameterText(m_parameter, typed, m_system));
}

void CurvesPage::readParameterField()
{
    const QString text = m_parameterField->text();
    const auto numbers = readParameter(m_parameter, text, m_system);
    showReadability(*m_parameterField, numbers || text.trimmed().isEmpty());
    const std::vector<double> read = numbers.value_or(std::vector<double>());
    const std::optional<double> first = read.empty() ? std::nullopt : std::optional(read.front());
    if (m_parameter == CurveParameter::Stresses)
        m_settings.stresses = read;
    else
        (m_parameter == CurveParameter::Time ? m_settings.time : m_settings.cohesion) = first;
    Q_EMIT chosen();
}

void CurvesPage::fillScales(const CurvesContent& content)
{
    m_horizontal->setChecked(content.plot.x.scale == Scale::Logarithmic);
    m_vertical->setChecked(content.plot.y.scale == Scale::Logarithmic);
}

/// Returns the number in a field in SI units; absent if the field is empty or cannot be read, which its tool tip tells.
std::optional<double> CurvesPage::readBound(QLineEdit& field) const
{
    const QString text = field.text().trimmed();
    QString problem;
    std::optional<double> number;
    if (!text.isEmpty()) {
        const auto unit = vxUnits::Unit::parse(m_rangeUnit);
        const auto reading = vxUnits::readNumber(text.toStdString(), unit ? *unit : vxUnits::Unit());
        if (reading)
            number = reading->value * (unit ? unit->factor() : 1.0);
        else
            problem = tr("This number cannot be read.");
    }
    showReadability(field, problem.isEmpty());
    field.setToolTip(problem);
    return number;
}

/// Colours the text of a field that cannot be read.
void CurvesPage::showReadability(QLineEdit& field, bool isReadable) const
{
    QPalette colours = palette();
    if (!isReadable)
        colours.setColor(QPalette::Text, QColor(0xd5, 0x5e, 0x00));
    field.setPalette(colours);
}

void CurvesPage::readRange()
{
    m_settings.from = readBound(*m_from);
    m_settings.to = readBound(*m_to);
    Q_EMIT chosen();
}

} // namespace vxInspector
