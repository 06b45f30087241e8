#pragma once

#include "decks/DeckImport.h"
#include "decks/DeckPreview.h"
#include "decks/LatestTask.h"

#include <QDialog>

#include <memory>
#include <optional>

class QLabel;
class QPushButton;
class QTableView;

namespace desktop {

class DeckReportView;
class UnitChoice;
class ValuesOfDeckModel;

/// The dialog before the materials of a deck are added: the unit system of its numbers, and below it some values of the
/// materials and the report of what is read. If the deck does not declare a system, the user chooses one; the system that the
/// numbers fit is proposed, with the reason. The file is read in another thread, again for each choice, and the dialog can be
/// closed at any time. What is imported is what the dialog shows.
class ImportDeckDialog : public QDialog
{
    Q_OBJECT

public:
    ImportDeckDialog(DeckFile file, QWidget* parent);
    ~ImportDeckDialog() override;

    /// Returns the deck in the chosen units, once, after the dialog was accepted.
    vxDecks::ReadDeck takeDeck();

    void accept() override;

private:
    /// What a reading has given.
    struct Reading
    {
        std::shared_ptr<const SurveyedDeck> survey;
        std::shared_ptr<DeckPreview> preview; ///< null if no units are chosen
        ValuesOfDeck values;                  ///< without units if there is no preview
    };
    void createFields();
    void createMaterials();
    void buildLayout();
    void askForUnits();
    std::optional<vxUnits::UnitSystem> chosenUnits() const;
    void unitsChosen();
    void readFile();
    void showReading(const Reading& reading);
    bool proposeUnits();
    void showValues(const ValuesOfDeck& values);
    void showPreview(std::shared_ptr<DeckPreview> preview);
    void showFailure(const QString& reason);

    DeckFile m_file;
    std::shared_ptr<const SurveyedDeck> m_survey; ///< null until the file has been read
    std::shared_ptr<DeckPreview> m_preview;       ///< null while the deck is being read, and if it cannot be read
    bool m_hasChosen = false;                     ///< whether the user has chosen units; then none are proposed
    bool m_hasFileChanged = false;                ///< whether the file was read again because it has changed
    LatestTask m_task;
    QLabel* m_title;
    QLabel* m_unitsTitle; // in the order of the keyboard
    UnitChoice* m_units;
    QLabel* m_doubt;
    QTableView* m_materials;
    ValuesOfDeckModel* m_values;
    DeckReportView* m_report;
    QLabel* m_summary;
    QPushButton* m_import;
};

} // namespace desktop
