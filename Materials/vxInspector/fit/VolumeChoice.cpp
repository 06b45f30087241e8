#include "fit/VolumeChoice.h"

#include "curves/ConstitutiveTexts.h"
#include "vxPlot/drawing/PlotItems.h"
#include "vxUnits/Reading.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace vxInspector {

namespace {

using vxConstitutive::D1Treatment;
using vxConstitutive::FittedVolume;

bool isSame(const std::optional<FittedVolume>& one, const std::optional<FittedVolume>& other)
{
    return one.has_value() == other.has_value() &&
           (!one || (one->shearModulus == other->shearModulus && one->bulkRatio == other->bulkRatio));
}

} // namespace

VolumeChoice::VolumeChoice(QWidget* parent)
    : QWidget(parent),
      m_sentence(new QLabel(this)),
      m_label(new QLabel(this)),
      m_treatment(new QComboBox(this)),
      m_ratio(new QLineEdit(this)),
      m_times(new QLabel(this))
{
    m_sentence->setObjectName(QStringLiteral("fitVolume"));
    m_sentence->setTextFormat(Qt::PlainText);
    m_sentence->setWordWrap(true);
    m_sentence->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_treatment->setObjectName(QStringLiteral("fitD1"));
    m_treatment->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_treatment->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_label->setBuddy(m_treatment);
    m_ratio->setObjectName(QStringLiteral("fitBulkRatio"));
    m_ratio->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_ratio->setText(vxPlot::numberText(vxConstitutive::usualBulkRatio, 6));
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_sentence, 0, 0, 1, 3);
    layout->addWidget(m_label, 1, 0);
    layout->addWidget(m_treatment, 1, 1, 1, 2);
    layout->addWidget(m_ratio, 2, 1);
    layout->addWidget(m_times, 2, 2);
    layout->setColumnStretch(1, 1);
    layout->setColumnStretch(2, 1);
    connect(m_treatment, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        showSentence();
        showChoice();
        Q_EMIT changed();
    });
    connect(m_ratio, &QLineEdit::textChanged, this, &VolumeChoice::changed);
    retranslate();
    hide();
}

VolumeChoice::~VolumeChoice() = default;

void VolumeChoice::retranslate()
{
    fillChoices(std::max(m_treatment->currentIndex(), 0));
    m_label->setText(tr("&D1:"));
    m_treatment->setToolTip(tr("What happens to the compressibility of the material"));
    m_times->setText(tr("times the shear modulus"));
    m_ratio->setToolTip(tr("The ratio of the initial bulk modulus 2/D1 to the initial shear modulus of the fit"));
    m_ratio->setAccessibleName(tr("Ratio of bulk to shear modulus"));
    showSentence();
    showChoice();
}

bool VolumeChoice::hasD1() const
{
    return m_volume && m_volume->bulkRatio;
}

/// A material without D1 has none to keep or to remove.
void VolumeChoice::fillChoices(int chosen)
{
    const QSignalBlocker blocker(m_treatment);
    m_treatment->clear();
    if (hasD1()) {
        m_treatment->addItem(tr("keep"), static_cast<int>(D1Treatment::Keep));
        m_treatment->addItem(tr("remove: incompressible"), static_cast<int>(D1Treatment::Remove));
    } else {
        m_treatment->addItem(tr("none: incompressible"), static_cast<int>(D1Treatment::Keep));
    }
    m_treatment->setItemData(m_treatment->count() - 1, missingText(), Qt::ToolTipRole);
    m_treatment->addItem(tr("set the bulk modulus to"), static_cast<int>(D1Treatment::Set));
    m_treatment->setCurrentIndex(std::min(chosen, m_treatment->count() - 1));
}

void VolumeChoice::setVolume(const std::optional<FittedVolume>& volume, const vxUnits::UnitSystem& system)
{
    const bool stays = isSame(volume, m_volume);
    m_volume = volume;
    m_system = system;
    setHidden(!volume);
    if (stays) {
        showSentence();
        return;
    }
    fillChoices(0);
    if (volume)
        m_treatment->setCurrentIndex(m_treatment->findData(static_cast<int>(m_volume->usualTreatment())));
    showSentence();
    showChoice();
}

/// Says what the fit means for D1, and what the check of materials says if D1 is removed.
void VolumeChoice::showSentence()
{
    if (!m_volume)
        return;
    QString text = m_volume->finding ? translated(*m_volume->finding, m_system)
                                     : tr("The fit is incompressible, and the material has no D1.");
    if (treatment() == D1Treatment::Remove || (treatment() == D1Treatment::Keep && !hasD1()))
        text += QLatin1Char(' ') + missingText();
    m_sentence->setText(text);
}

QString VolumeChoice::missingText()
{
    return tr("The check of materials then reports that D1 is missing.");
}

void VolumeChoice::showChoice()
{
    m_ratio->setVisible(treatment() == D1Treatment::Set);
    m_times->setVisible(treatment() == D1Treatment::Set);
}

D1Treatment VolumeChoice::treatment() const
{
    return static_cast<D1Treatment>(m_treatment->currentData().toInt());
}

std::optional<double> VolumeChoice::bulkRatio() const
{
    const auto read = vxUnits::readNumber(m_ratio->text().trimmed().toStdString(), vxUnits::Unit());
    return read && std::isfinite(read->value) && read->value > 0.0 ? std::optional(read->value) : std::nullopt;
}

bool VolumeChoice::isComplete() const
{
    return !m_volume || treatment() != D1Treatment::Set || bulkRatio().has_value();
}

vxConstitutive::MaterialChange VolumeChoice::changeOf(const vxConstitutive::FitResult& result) const
{
    if (!m_volume)
        return result.change;
    return vxConstitutive::changeOf(result, *m_volume, treatment(),
                                    bulkRatio().value_or(vxConstitutive::usualBulkRatio));
}

} // namespace vxInspector
