#pragma once

#include "plugin/TabPage.h"
#include "table/TableContent.h"
#include "vxUnits/UnitSystem.h"

class QPushButton;

namespace vxInspector {

/// The tab of the findings. A click on a finding, and Return, show its row in the editor. A button applies the remedy of
/// the current finding, or the only remedy.
class FindingsPage : public TabPage
{
    Q_OBJECT

public:
    explicit FindingsPage(QWidget* parent = nullptr);
    ~FindingsPage() override;

    /// Shows findings whose numbers are in a unit system.
    void setContent(TableContent content, const vxUnits::UnitSystem& system);
    void retranslate() override;

private:
    void selectOnlyRemedy();
    void enableButton();
    void showPlace(int row, int column) const;
    void applyRemedy() const;
    const Row* currentRow() const;

    QPushButton* m_apply;
    vxUnits::UnitSystem m_system = vxUnits::UnitSystem::si();
};

} // namespace vxInspector
