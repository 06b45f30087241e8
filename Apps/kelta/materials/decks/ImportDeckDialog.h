#pragma once

#include "decks/DeckImport.h"
#include "decks/LatestTask.h"
#include "vxInspector/decks/DeckLines.h"

#include <QDialog>

#include <memory>
#include <vector>

class QLabel;
class QPushButton;

namespace desktop {

class DeckReportView;
class UnitChoice;

/// The dialog before the materials of a deck are added: the unit system of its numbers, and below it the report of what is
/// read. If the deck does not declare a system, the user chooses one; the system that the numbers fit is proposed. The report
/// follows the choice; it is made in another thread.
class ImportDeckDialog : public QDialog
{
    Q_OBJECT

public:
    /// `asIs` is the deck with the numbers of the file, see fittingSystem().
    ImportDeckDialog(DeckFile file, std::shared_ptr<const vxDecks::ReadDeck> asIs, QWidget* parent);
    ~ImportDeckDialog() override;

    /// Returns the deck in the chosen units, once, after the dialog was accepted.
    vxDecks::ReadDeck takeDeck();

    void accept() override;

private:
    struct Reading
    {
        vxDecks::ReadDeck deck;
        std::vector<vxInspector::DeckLine> lines;
        QString summary;
    };
    void createFields();
    void buildLayout();
    void proposeUnits();
    void update();
    void read(const std::optional<vxUnits::UnitSystem>& units);
    void showReading(std::shared_ptr<Reading> reading);
    void showFailure(const QString& reason);
    QString doubtAbout(const vxUnits::UnitSystem& units) const;

    DeckFile m_file;
    std::shared_ptr<const vxDecks::ReadDeck> m_asIs;
    std::shared_ptr<Reading> m_reading; ///< null while the deck is being read, and if it cannot be read
    LatestTask m_task;
    QLabel* m_title;
    QLabel* m_unitsTitle;
    UnitChoice* m_units;
    QLabel* m_doubt;
    DeckReportView* m_report;
    QLabel* m_summary;
    QPushButton* m_import;
};

} // namespace desktop
