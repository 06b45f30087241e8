#pragma once

#include "vxConstitutive/fit/FittedVolume.h"
#include "vxUnits/UnitSystem.h"

#include <QWidget>

#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;

namespace vxInspector {

/// Says what the D1 of a material means for the constants of an incompressible fit, and asks what happens to it: it is kept,
/// removed, or set by the ratio of bulk to shear modulus, which is the usual choice for a material without D1. Hidden if there is no such fit.
class VolumeChoice : public QWidget
{
    Q_OBJECT

public:
    explicit VolumeChoice(QWidget* parent = nullptr);
    ~VolumeChoice() override;

    /// Shows the volume of a fit in a unit system; the widget is hidden if it is absent. The choice of the user stays while the volume is the
    /// same as before; otherwise it is the usual treatment.
    void setVolume(const std::optional<vxConstitutive::FittedVolume>& volume, const vxUnits::UnitSystem& system);

    /// Returns the change of the material to a fit, which must be that of the volume, and to the chosen D1.
    vxConstitutive::MaterialChange changeOf(const vxConstitutive::FitResult& result) const;

    /// Returns whether the choice is complete: a ratio that is needed can be read and is greater than 0.
    bool isComplete() const;

    void retranslate();

Q_SIGNALS:
    void changed();

private:
    vxConstitutive::D1Treatment treatment() const;
    std::optional<double> bulkRatio() const;
    bool hasD1() const;
    void fillChoices(int chosen);
    void showSentence();
    static QString missingText();
    void showChoice();

    std::optional<vxConstitutive::FittedVolume> m_volume;
    vxUnits::UnitSystem m_system = vxUnits::UnitSystem::si();
    QLabel* m_sentence;
    QLabel* m_label;
    QComboBox* m_treatment;
    QLineEdit* m_ratio;
    QLabel* m_times;
};

} // namespace vxInspector
