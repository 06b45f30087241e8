#pragma once

#include "fit/FitJob.h"
#include "vxUnits/UnitSystem.h"

#include <QWidget>

#include <optional>
#include <vector>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace vxInspector {

/// The options of a fit: where rubber must be stable, which differences are made small, bounds of constants, and what a
/// hardening curve needs. Shows those that belong to the tests. An empty field means the default, which it shows in grey.
class FitOptions : public QWidget
{
    Q_OBJECT

public:
    explicit FitOptions(QWidget* parent = nullptr);
    ~FitOptions() override;

    /// Shows the options of fits to tests of some modes. Numbers without a unit are in `system`.
    void setModes(const std::vector<vxConstitutive::Mode>& modes, const vxUnits::UnitSystem& system);

    /// Writes the options into an order. If a text cannot be read, leaves the order as it is and returns why.
    QString fill(FitOrder& order) const;

    void retranslate();

Q_SIGNALS:
    void changed();

private:
    struct Field
    {
        QLabel* label = nullptr;
        QLineEdit* edit = nullptr;
    };

    Field addField(QFormLayout& layout, const char* name);
    void setShown(const Field& field, bool isShown) const;
    QString fillStability(FitOrder& order) const;
    QString fillHardening(FitOrder& order) const;
    QString fillBounds(FitOrder& order) const;

    std::vector<vxConstitutive::Mode> m_modes;
    vxUnits::UnitSystem m_system = vxUnits::UnitSystem::si();
    QCheckBox* m_stable;
    Field m_stableRange;
    QLabel* m_errorLabel = nullptr;
    QComboBox* m_error = nullptr;
    Field m_bounds;
    Field m_youngsModulus;
    Field m_poissonsRatio;
    Field m_offset;
    Field m_tolerance;
};

} // namespace vxInspector
