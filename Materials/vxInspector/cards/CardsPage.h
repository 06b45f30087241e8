#pragma once

#include "plugin/TabPage.h"
#include "table/TableContent.h"
#include "vxDecks/Format.h"

#include <optional>

class QComboBox;
class QLabel;
class QPushButton;

namespace vxInspector {

/// The tab of the cards. A choice above the table selects the cards that the solver of the program gets, or the deck of
/// another solver. A button copies their text.
class CardsPage : public TabPage
{
    Q_OBJECT

public:
    explicit CardsPage(QWidget* parent = nullptr);
    ~CardsPage() override;

    /// Returns the chosen format; absent for the cards of the solver of the program.
    std::optional<vxDecks::Format> format() const;
    void setContent(TableContent content);
    void retranslate() override;

Q_SIGNALS:
    /// Sent when the user has chosen another format.
    void chosen();

private:
    void createControls();
    void copyCards() const;

    QWidget* m_controls;
    QLabel* m_label;
    QComboBox* m_formats;
    QPushButton* m_copy;
};

} // namespace vxInspector
