#include "fit/FitOptions.h"

#include "curves/ConstitutiveTexts.h"
#include "vxConstitutive/fit/FitBounds.h"
#include "vxUnits/Quantity.h"
#include "vxUnits/Reading.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>

namespace vxInspector {

namespace {

using vxConstitutive::ErrorMeasure;
using vxConstitutive::Mode;
using vxConstitutive::StabilityDemand;

bool hasAny(const std::vector<Mode>& modes, std::initializer_list<Mode> wanted)
{
    return std::any_of(modes.begin(), modes.end(),
                       [&wanted](Mode mode) { return std::find(wanted.begin(), wanted.end(), mode) != wanted.end(); });
}

bool hasRubber(const std::vector<Mode>& modes)
{
    return hasAny(modes, {Mode::Uniaxial, Mode::Equibiaxial, Mode::Planar, Mode::SimpleShear, Mode::Volumetric});
}

bool hasMetal(const std::vector<Mode>& modes)
{
    return hasAny(modes, {Mode::Tensile, Mode::Plastic});
}

/// Returns the number of a text in SI units; absent if it cannot be read. A number without a unit is in `unit`.
std::optional<double> numberOf(const QString& text, const vxUnits::Unit& unit)
{
    const auto read = vxUnits::readNumber(text.trimmed().toStdString(), unit);
    return read && std::isfinite(read->value) ? std::optional(read->value * unit.factor()) : std::nullopt;
}

/// Reads a field whose number must be greater than `least` and not greater than `most`. Returns false if it cannot be read;
/// an empty field leaves `number` as it is.
template <class Number>
bool readField(const QLineEdit& field, const vxUnits::Unit& unit, double least, double most, Number& number)
{
    if (field.text().trimmed().isEmpty())
        return true;
    const std::optional<double> read = numberOf(field.text(), unit);
    if (!read || !(*read > least) || !(*read <= most))
        return false;
    number = *read;
    return true;
}

} // namespace

FitOptions::FitOptions(QWidget* parent) : QWidget(parent), m_stable(new QCheckBox(this))
{
    auto* const layout = new QFormLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    layout->setRowWrapPolicy(QFormLayout::WrapLongRows);
    m_stable->setObjectName(QStringLiteral("fitStable"));
    m_stable->setChecked(true);
    layout->addRow(m_stable);
    m_stableRange = addField(*layout, "fitStableRange");
    m_errorLabel = new QLabel(this);
    m_error = new QComboBox(this); // after the field above it, which comes first for the Tab key
    m_errorLabel->setBuddy(m_error);
    m_error->setObjectName(QStringLiteral("fitError"));
    m_error->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_error->setMinimumContentsLength(8);
    layout->addRow(m_errorLabel, m_error);
    m_bounds = addField(*layout, "fitBounds");
    m_youngsModulus = addField(*layout, "fitYoungsModulus");
    m_poissonsRatio = addField(*layout, "fitPoissonsRatio");
    m_offset = addField(*layout, "fitOffset");
    m_tolerance = addField(*layout, "fitTolerance");
    connect(m_stable, &QCheckBox::toggled, this, [this](bool isOn) {
        m_stableRange.edit->setEnabled(isOn);
        Q_EMIT changed();
    });
    connect(m_error, QOverload<int>::of(&QComboBox::activated), this, &FitOptions::changed);
    retranslate();
    setModes({}, m_system);
}

FitOptions::~FitOptions() = default;

FitOptions::Field FitOptions::addField(QFormLayout& layout, const char* name)
{
    constexpr int fewest = 8; // letters
    const Field field{new QLabel(this), new QLineEdit(this)};
    field.edit->setObjectName(QLatin1String(name));
    field.edit->setMinimumWidth(field.edit->fontMetrics().averageCharWidth() * fewest);
    field.label->setBuddy(field.edit);
    layout.addRow(field.label, field.edit);
    connect(field.edit, &QLineEdit::textChanged, this, &FitOptions::changed);
    return field;
}

void FitOptions::retranslate()
{
    m_stable->setText(tr("&Keep rubber stable"));
    m_stable->setToolTip(tr("Without this, a fit may be unstable in tests that were not made."));
    m_stableRange.label->setText(tr("at stretc&hes:"));
    m_stableRange.edit->setPlaceholderText(tr("those of the tests"));
    m_stableRange.edit->setToolTip(tr("The first and the last stretch, such as 0.5:3"));
    m_errorLabel->setText(tr("Diff&erences:"));
    m_error->setToolTip(
        tr("What is made small: the differences between tests and model, divided by the largest value of "
           "their test, by each value, or not divided"));
    const QSignalBlocker blocker(m_error);
    const int chosen = std::max(m_error->currentIndex(), 0);
    m_error->clear();
    m_error->addItem(tr("by the largest value"), static_cast<int>(ErrorMeasure::OfLargest));
    m_error->addItem(tr("by each value"), static_cast<int>(ErrorMeasure::OfEach));
    m_error->addItem(tr("absolute"), static_cast<int>(ErrorMeasure::Absolute));
    m_error->setCurrentIndex(chosen);
    m_bounds.label->setText(tr("&Bounds:"));
    m_bounds.edit->setPlaceholderText(tr("none"));
    m_bounds.edit->setToolTip(tr("Bounds of constants, or their values, separated by semicolons, such as C10=0:1 MPa; "
                                 "C01=0. The symbols are those of the results."));
    m_youngsModulus.label->setText(tr("&Young's modulus:"));
    m_youngsModulus.edit->setPlaceholderText(tr("the slope of the curve"));
    m_poissonsRatio.label->setText(tr("Poisson's ratio:"));
    m_poissonsRatio.edit->setPlaceholderText(QStringLiteral("0.5"));
    m_offset.label->setText(tr("&Offset strain:"));
    m_offset.edit->setPlaceholderText(QStringLiteral("0.2 %"));
    m_offset.edit->setToolTip(tr("The plastic strain at which a metal yields"));
    m_tolerance.label->setText(tr("Tolerance:"));
    m_tolerance.edit->setPlaceholderText(QStringLiteral("0.5 %"));
    m_tolerance.edit->setToolTip(
        tr("The distance of a multilinear curve from the points, as a part of the largest stress"));
}

void FitOptions::setShown(const Field& field, bool isShown) const
{
    field.label->setVisible(isShown);
    field.edit->setVisible(isShown);
}

void FitOptions::setModes(const std::vector<Mode>& modes, const vxUnits::UnitSystem& system)
{
    m_modes = modes;
    m_system = system;
    const bool isRubber = hasRubber(modes);
    const bool isMetal = hasMetal(modes);
    const bool isOther = hasAny(modes, {Mode::Creep, Mode::CreepRate, Mode::Relaxation});
    m_stable->setVisible(isRubber);
    setShown(m_stableRange, isRubber);
    m_errorLabel->setVisible(isRubber || isOther);
    m_error->setVisible(isRubber || isOther);
    setShown(m_bounds, !modes.empty());
    for (const Field& field : {m_youngsModulus, m_poissonsRatio, m_offset, m_tolerance})
        setShown(field, isMetal);
    setHidden(modes.empty());
}

QString FitOptions::fill(FitOrder& order) const
{
    FitOrder filled = order;
    filled.error = static_cast<ErrorMeasure>(m_error->currentData().toInt());
    for (const auto part : {&FitOptions::fillStability, &FitOptions::fillHardening, &FitOptions::fillBounds}) {
        QString problem = (this->*part)(filled);
        if (!problem.isEmpty())
            return problem;
    }
    order = std::move(filled);
    return {};
}

QString FitOptions::fillStability(FitOrder& order) const
{
    const QString text = m_stableRange.edit->text().trimmed();
    order.stability = m_stable->isChecked() ? StabilityDemand::OverData : StabilityDemand::None;
    if (!m_stable->isChecked() || text.isEmpty() || !hasRubber(m_modes))
        return {};
    const std::optional<double> from = numberOf(text.section(QLatin1Char(':'), 0, 0), vxUnits::Unit());
    const std::optional<double> to = numberOf(text.section(QLatin1Char(':'), 1), vxUnits::Unit());
    if (!from || !to || !(*from > 0.0) || !(*to >= *from))
        return tr("The stretches of stability must be two numbers greater than 0 that rise, such as 0.5:3.");
    order.stability = StabilityDemand::OverRange;
    order.stableRange = {*from, *to};
    return {};
}

QString FitOptions::fillHardening(FitOrder& order) const
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const vxUnits::Unit one;
    if (!hasMetal(m_modes))
        return {};
    if (!readField(*m_youngsModulus.edit, m_system.unitOf(vxUnits::dimensions::pressure), 0.0, infinity,
                   order.youngsModulus))
        return tr("Young's modulus cannot be read, or is not greater than 0.");
    if (!readField(*m_poissonsRatio.edit, one, -1.0, 0.5, order.poissonsRatio))
        return tr("Poisson's ratio must be greater than -1 and not greater than 0.5.");
    if (!readField(*m_offset.edit, one, 0.0, 1.0, order.offset))
        return tr("The offset strain must be greater than 0 and not greater than 1.");
    if (!readField(*m_tolerance.edit, one, 0.0, 1.0, order.tolerance))
        return tr("The tolerance must be greater than 0 and not greater than 1.");
    return {};
}

QString FitOptions::fillBounds(FitOrder& order) const
{
    if (m_modes.empty())
        return {};
    auto read = vxConstitutive::readBounds(m_bounds.edit->text().toStdString(), m_modes.front(), m_system,
                                           constitutiveTranslator());
    if (!read.problem.empty())
        return tr("Bounds: %1").arg(QString::fromStdString(read.problem));
    order.bounds = std::move(read.bounds);
    return {};
}

} // namespace vxInspector
