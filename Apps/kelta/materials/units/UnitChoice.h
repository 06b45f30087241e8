#pragma once

#include "vxUnits/Result.h"
#include "vxUnits/UnitSystem.h"

#include <QString>
#include <QWidget>

#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;

namespace desktop {

/// Fields in which the user chooses a unit system: one of the built-in systems, or base units of the user's own. Below
/// them is a line with the units of some quantities in the system, or with the reason why the base units cannot be read.
class UnitChoice : public QWidget
{
    Q_OBJECT

public:
    /// Whether the user can choose the system of the preferences, which has an empty text.
    enum class Preference
    {
        Offered,
        NotOffered,
        Undecided, ///< not offered; nothing is chosen at first, and the choice is not valid
    };
    explicit UnitChoice(Preference preference, QWidget* parent = nullptr);
    /// Offers the system of a project, which has an empty text, in place of that of the preferences.
    explicit UnitChoice(vxUnits::UnitSystem ofProject, QWidget* parent = nullptr);
    ~UnitChoice() override;

    /// Shows a system by its text (vxUnits::UnitSystem::text()), or any other text as base units of the user's own. An empty
    /// text is the system of the project or of the preferences if it is offered, nothing if the user is undecided, and SI
    /// otherwise.
    void setSystem(const QString& text);
    /// Returns the text of the chosen system; empty for the system of the project or of the preferences, and if the base
    /// units cannot be read.
    QString system() const;
    /// Returns the chosen system; the reason if the base units cannot be read.
    vxUnits::Result<vxUnits::UnitSystem> read() const;
    /// Returns whether the chosen system can be read.
    bool isValid() const;

Q_SIGNALS:
    /// Sent after each change by the user or by setSystem().
    void edited();

protected:
    void changeEvent(QEvent* event) override;

private:
    UnitChoice(Preference preference, std::optional<vxUnits::UnitSystem> ofProject, QWidget* parent);
    void fillSystems();
    void buildLayout();
    void retranslate();
    void systemChosen();
    void showUnits();
    bool isOwn() const;
    bool isPreference() const;
    bool isUndecided() const;

    Preference m_preference;
    std::optional<vxUnits::UnitSystem> m_ofProject; ///< in place of the system of the preferences
    QComboBox* m_systems;
    QLineEdit* m_bases; ///< the base units; read-only for built-in systems
    QLabel* m_remark;
};

} // namespace desktop
