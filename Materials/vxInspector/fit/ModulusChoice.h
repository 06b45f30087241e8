#pragma once

#include "vxUnits/UnitSystem.h"

#include <QWidget>

#include <optional>

class QComboBox;
class QLabel;

namespace vxInspector {

/// The Young's moduli that meet in a fit of hardening; Pa.
struct FitModuli
{
    std::optional<double> ofCurve;    ///< the slope of the curve; absent if it is not known
    std::optional<double> entered;    ///< by the user in the options of the fit
    std::optional<double> ofMaterial; ///< that gets the constants; absent if it has none
    double used = 0.0;                ///< with which the elastic part of the present fit was taken off

    friend bool operator==(const FitModuli& one, const FitModuli& other)
    {
        return one.ofCurve == other.ofCurve && one.entered == other.entered && one.ofMaterial == other.ofMaterial &&
               one.used == other.used;
    }
};

/// Says that the Young's modulus of a fit differs from that of the material, and asks which one takes the elastic part off the
/// measured strain. Hidden if they do not differ.
class ModulusChoice : public QWidget
{
    Q_OBJECT

public:
    explicit ModulusChoice(QWidget* parent = nullptr);
    ~ModulusChoice() override;

    /// Shows the moduli of a fit; hides the widget if they are absent.
    void setModuli(const std::optional<FitModuli>& moduli, const vxUnits::UnitSystem& system);

    void retranslate();

Q_SIGNALS:
    /// Sent when the user has chosen the modulus of the material, or that of the curve.
    void chosen(bool isOfMaterial);

private:
    void showAll();
    void showChoice();
    QString sentence() const;
    QString text(double modulus) const;

    std::optional<FitModuli> m_moduli;
    vxUnits::UnitSystem m_system = vxUnits::UnitSystem::si();
    QLabel* m_sentence;
    QLabel* m_label;
    QComboBox* m_choice;
};

} // namespace vxInspector
