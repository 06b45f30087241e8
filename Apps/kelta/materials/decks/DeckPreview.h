#pragma once

#include "decks/DeckImport.h"
#include "vxInspector/decks/DeckLines.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <atomic>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// What a user sees of a deck before its materials are imported. All functions may be called in any thread.
namespace desktop {

/// The state of a file, which shows whether it has changed since it was read.
struct FileState
{
    qint64 size = -1; ///< -1 if there is no file
    QDateTime modified;

    friend bool operator==(const FileState& one, const FileState& other)
    {
        return one.size == other.size && one.modified == other.modified;
    }
};

FileState stateOf(const QString& path);

/// A deck whose numbers are those of the file, and the unit system that they show.
struct SurveyedDeck
{
    vxDecks::ReadDeck asIs; ///< as readDeckFile() reads it in SI
    std::string
        fitting;     ///< the name of the built-in system that the numbers fit; empty if none fits better than others
    QString reason;  ///< a sentence that gives a material and a number for it; empty without such a system
    FileState state; ///< of the file before it was read
};

/// Reads a deck, and finds the unit system that its numbers fit. Ends early with an exception when the flag becomes true.
/// \throws std::runtime_error as readDeckFile() does, and if the deck has no materials
std::shared_ptr<const SurveyedDeck> surveyDeck(const DeckFile& file, const std::atomic<bool>& isStopped);

/// Some values of the materials of a deck, with their units.
struct ValuesOfDeck
{
    struct Material
    {
        QString name;
        QStringList values;   ///< one for each quantity; empty if the material does not have it
        QString findings;     ///< the numbers of findings and doubts in the chosen units; empty if there are none
        QString findingTexts; ///< the findings and doubts, each in a line
    };
    QStringList quantities;
    std::vector<Material> materials;
};

/// Returns the values that show best in which units they are: as they stand in the file, with the units of a system if it is
/// chosen.
ValuesOfDeck valuesOf(const SurveyedDeck& survey, const std::optional<vxUnits::UnitSystem>& units);

/// A deck that was read in a unit system, and what the user sees of it.
struct DeckPreview
{
    vxDecks::ReadDeck deck;
    std::vector<vxInspector::DeckLine> lines; ///< with findings and doubts
    QString summary;
    ValuesOfDeck values;          ///< with findings
    std::size_t withFindings = 0; ///< the number of materials
    std::size_t withDoubts = 0;   ///< the number of materials with values that no known material has
    QString doubt; ///< a sentence if the numbers look like another system than the chosen one; otherwise empty
};

/// Reads a deck in a unit system; without one, in its own units. Ends early with an exception when the flag becomes true.
/// \throws std::runtime_error as readDeckFile() does
std::shared_ptr<DeckPreview> previewDeck(const DeckFile& file, const SurveyedDeck& survey,
                                         const std::optional<vxUnits::UnitSystem>& units,
                                         const std::atomic<bool>& isStopped);

} // namespace desktop
