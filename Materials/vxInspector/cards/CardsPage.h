#pragma once

#include "plugin/TabPage.h"
#include "table/TableContent.h"
#include "vxInspector/decks/DeckForms.h"

#include <optional>

class QComboBox;
class QLabel;
class QPushButton;

namespace vxInspector {

/// The tab of the cards. A choice above the table selects the cards that the solver of the program gets, or the deck of
/// another solver, of which a second choice selects the form if there are several. A button copies their text.
class CardsPage : public TabPage
{
    Q_OBJECT

public:
    explicit CardsPage(QWidget* parent = nullptr);
    ~CardsPage() override;

    /// Returns the chosen form of the chosen format; absent for the cards of the solver of the program.
    std::optional<DeckForm> form() const;
    void setContent(TableContent content);
    void retranslate() override;

Q_SIGNALS:
    /// Sent when the user has chosen another format or form.
    void chosen();

private:
    void createControls();
    std::optional<vxDecks::Format> format() const;
    void offerForms();
    void copyCards() const;

    QWidget* m_controls;
    QLabel* m_label;
    QComboBox* m_formats;
    QComboBox* m_forms;
    QPushButton* m_copy;
};

} // namespace vxInspector
