#pragma once

#include "plugin/TabPage.h"
#include "table/TableContent.h"

class QPushButton;

namespace vxInspector {

/// The tab of the findings. A click on a finding, and Return, show its row in the editor. A button applies the remedy of
/// the current finding.
class FindingsPage : public TabPage
{
    Q_OBJECT

public:
    explicit FindingsPage(QWidget* parent = nullptr);
    ~FindingsPage() override;

    void setContent(TableContent content);
    void retranslate() override;

private:
    void enableButton();
    void showPlace(int row, int column) const;
    void applyRemedy() const;
    const Row* currentRow() const;

    QPushButton* m_apply;
};

} // namespace vxInspector
