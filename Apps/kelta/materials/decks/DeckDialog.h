#pragma once

#include "decks/DeckMaking.h"
#include "decks/LatestTask.h"
#include "vxDecks/Format.h"

#include <QDialog>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QWidget;

namespace Gui {
class MainWindow;
} // namespace Gui

namespace Mat {
class DocumentMaterial;
} // namespace Mat

namespace desktop {

class DeckReportView;
class UnitChoice;

/// The dialog of the export for a solver: format, form, units and materials of the deck, and below them the beginning of its text
/// and the report of what it carries, converts, approximates and loses. Both follow the choices; they are made in another
/// thread. "Export" asks for the file. The dialog stays open if no file is written.
class DeckDialog : public QDialog
{
    Q_OBJECT

public:
    DeckDialog(const Mat::DocumentMaterial& project, QWidget& parent);
    ~DeckDialog() override;

    void accept() override;

private:
    void createFields(const Mat::DocumentMaterial& project);
    void createViews();
    void buildLayout();
    void connectFields();
    QWidget* buildChoices();
    QWidget* buildViews();
    vxDecks::Format format() const;
    std::string form() const;
    void offerForms(const std::string& chosen);
    void takeMaterials();
    void followChoices();
    void makeDeck(const vxUnits::UnitSystem& units);
    void clearDeck();
    void showDeck(std::shared_ptr<const MadeDeck> made);
    void showFailure(const QString& reason);
    void exportDeck();

    std::uint32_t m_projectId;
    std::vector<std::uint32_t> m_selected; ///< the ids of the selected materials
    std::shared_ptr<const DeckSource> m_source;
    std::shared_ptr<const MadeDeck> m_made; ///< null while it is being made, and if it cannot be made
    LatestTask m_making;
    QComboBox* m_formats; // in the order of the keyboard
    QLabel* m_formsTitle;
    QComboBox* m_forms;
    QRadioButton* m_all;
    QRadioButton* m_onlySelected;
    UnitChoice* m_units;
    QLabel* m_previewTitle;
    QPlainTextEdit* m_preview;
    QLabel* m_summary;
    DeckReportView* m_report;
    QPushButton* m_export;
};

/// Opens the dialog for a project in front of the main window. Returns at once.
void openDeckDialog(const Mat::DocumentMaterial& project, Gui::MainWindow& window);

} // namespace desktop
