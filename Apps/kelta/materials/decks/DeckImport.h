#pragma once

#include "MaterialCheck.h"

#include "projectfile/ExchangeImport.h"
#include "vxDecks/DeckReading.h"
#include "vxUnits/UnitSystem.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <optional>
#include <string>
#include <vector>

namespace desktop {

/// A file with a deck whose format is known.
struct DeckFile
{
    QString path;
    vxDecks::Format format = vxDecks::Format::Calculix;
    std::optional<vxUnits::UnitSystem> declared; ///< the unit system that it declares
};

/// Returns the deck in a file, recognised by its content; absent if the content is of no format of a solver, or if the file
/// is not a regular file that can be read.
std::optional<DeckFile> recogniseDeck(const QString& path);

/// Reads a deck; without a unit system, in the units that it declares. Ends early with an exception when the flag becomes
/// true, unless it is null. May be called in any thread.
/// \throws std::runtime_error with the path and the reason, in the user's language
vxDecks::ReadDeck readDeckFile(const DeckFile& file, const std::optional<vxUnits::UnitSystem>& units,
                               const std::atomic<bool>* isStopped = nullptr);

/// Throws if a deck has no materials.
/// \throws std::runtime_error with the path, in the user's language
void requireMaterials(const DeckFile& file, const vxDecks::ReadDeck& deck);

/// Returns the name of the built-in unit system that the numbers of a deck fit better than an assumed one; empty if there is
/// none. `asIs` is the deck as readDeckFile() reads it in SI, so that its numbers are those of the file.
std::string fittingSystem(const vxDecks::ReadDeck& asIs, const vxUnits::UnitSystem& assumed);

/// The materials of a deck for a project.
struct ImportedDeck
{
    projectfile::ImportedMaterials materials;        ///< the doubts are what the user must check
    QStringList reports;                             ///< further sentences for the message log
    std::vector<std::vector<CheckedValue>> findings; ///< about each material
};

/// Returns what is wrong with each material of a deck: the impossible values, with their lines in the file, and what
/// vxMat::checkMaterial() finds besides them. May be called in any thread.
std::vector<std::vector<CheckedValue>> findingsOf(const vxDecks::ReadDeck& deck);

/// Reads a deck in a dialog, in which the user chooses the unit system and sees the report, or why the deck cannot be read.
/// Absent if the user cancels. While an UnaskedImport lives, asks nothing: the numbers are in its system, or in the one that
/// the deck declares.
/// \throws std::runtime_error without a dialog, if the deck cannot be read or has no materials
std::optional<ImportedDeck> importDeck(const DeckFile& file);

/// Returns the patterns of the names of decks that can be read, for file dialogs: "*.inp *.k".
QString deckPatterns();

} // namespace desktop
