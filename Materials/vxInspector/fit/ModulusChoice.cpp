#include "fit/ModulusChoice.h"

#include "vxUnits/Quantity.h"
#include "vxUnits/Writing.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <cmath>

namespace vxInspector {

namespace {

/// Returns whether two moduli differ by more than is shown.
bool differ(double one, double other)
{
    constexpr double tolerance = 5e-4;
    return std::fabs(one - other) > tolerance * std::fabs(other);
}

bool areShown(const FitModuli& moduli)
{
    if (!moduli.ofMaterial)
        return false;
    return differ(moduli.used, *moduli.ofMaterial) || (moduli.ofCurve && differ(*moduli.ofCurve, *moduli.ofMaterial));
}

/// Returns by how much a modulus is greater than that of the material: "+2.5 %".
QString difference(double modulus, double ofMaterial)
{
    constexpr double hundred = 100.0;
    const double percent = hundred * (modulus / ofMaterial - 1.0);
    const QString sign = percent < 0.0 ? QString(QChar(0x2212)) : QStringLiteral("+");
    return sign + QString::number(std::fabs(percent), 'g', 3) + QStringLiteral(" %");
}

} // namespace

ModulusChoice::ModulusChoice(QWidget* parent)
    : QWidget(parent), m_sentence(new QLabel(this)), m_label(new QLabel(this)), m_choice(new QComboBox(this))
{
    m_sentence->setObjectName(QStringLiteral("fitModulus"));
    m_sentence->setTextFormat(Qt::PlainText);
    m_sentence->setWordWrap(true);
    m_sentence->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_choice->setObjectName(QStringLiteral("fitModulusChoice"));
    m_choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_choice->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_label->setBuddy(m_choice);
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_sentence, 0, 0, 1, 2);
    layout->addWidget(m_label, 1, 0);
    layout->addWidget(m_choice, 1, 1);
    layout->setColumnStretch(1, 1);
    connect(m_choice, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { Q_EMIT chosen(index == 1); });
    retranslate();
    hide();
}

ModulusChoice::~ModulusChoice() = default;

void ModulusChoice::retranslate()
{
    m_label->setText(tr("&Modulus:"));
    m_choice->setToolTip(tr("The Young's modulus with which the elastic part is taken off the measured strain"));
    showAll();
}

void ModulusChoice::setModuli(const std::optional<FitModuli>& moduli, const vxUnits::UnitSystem& system)
{
    if (m_moduli == moduli && m_system == system)
        return;
    m_moduli = moduli;
    m_system = system;
    showAll();
}

void ModulusChoice::showAll()
{
    setHidden(!m_moduli || !areShown(*m_moduli));
    if (!m_moduli || !m_moduli->ofMaterial)
        return;
    m_sentence->setText(sentence());
    showChoice();
}

/// An entered modulus is the choice of the user already.
void ModulusChoice::showChoice()
{
    const bool hasChoice = m_moduli->ofCurve && !m_moduli->entered;
    m_label->setVisible(hasChoice);
    m_choice->setVisible(hasChoice);
    if (!hasChoice)
        return;
    const QSignalBlocker blocker(m_choice);
    m_choice->clear();
    m_choice->addItem(tr("of the curve: %1").arg(text(*m_moduli->ofCurve)));
    m_choice->addItem(tr("of the material: %1").arg(text(*m_moduli->ofMaterial)));
    m_choice->setCurrentIndex(m_moduli->used == *m_moduli->ofCurve ? 0 : 1);
}

QString ModulusChoice::sentence() const
{
    const double ofMaterial = *m_moduli->ofMaterial;
    if (m_moduli->entered || !m_moduli->ofCurve)
        return tr("The elastic part is taken off with Young's modulus %1 (%3 beside the material). The material keeps "
                  "its "
                  "%2.")
            .arg(text(m_moduli->used), text(ofMaterial), difference(m_moduli->used, ofMaterial));
    const QString both =
        tr("Young's modulus is %1 by the curve and %2 in the material (%3).")
            .arg(text(*m_moduli->ofCurve), text(ofMaterial), difference(*m_moduli->ofCurve, ofMaterial));
    const QString use =
        m_moduli->used == *m_moduli->ofCurve
            ? tr("Unless you choose otherwise, the elastic part is taken off with that of the curve, and "
                 "\"Apply\" writes it.")
            : tr("The elastic part is taken off with that of the material, which keeps it.");
    return both + QLatin1Char(' ') + use;
}

QString ModulusChoice::text(double modulus) const
{
    constexpr int digits = 5;
    const vxUnits::Unit unit = m_system.unitOf(vxUnits::dimensions::pressure);
    return QString::fromStdString(vxUnits::writeNumber(modulus, unit, digits) + ' ' + unit.text());
}

} // namespace vxInspector
