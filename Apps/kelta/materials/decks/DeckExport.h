#pragma once

#include "vxDecks/Format.h"

#include <QString>

#include <optional>
#include <string>

class QWidget;

namespace Mat {
class DocumentMaterial;
} // namespace Mat

namespace Obj {
class Project;
} // namespace Obj

namespace desktop {

struct DeckRequest;
struct DeckSource;
struct MadeDeck;

/// The settings of a project with the format, its form and the unit system of the last deck. The setting of the form has the
/// name of a form, see vxInspector/decks/DeckForms.h, and is empty for the usual one. The setting of the units has the text
/// of a system, and is missing for that of the project.
inline constexpr const char* deckFormatSetting = "deck_format";
inline constexpr const char* deckFormSetting = "deck_form";
inline constexpr const char* deckUnitsSetting = "deck_units";

/// What the user chose for the last deck of a project.
struct DeckChoice
{
    vxDecks::Format format = vxDecks::Format::Calculix;
    std::string form; ///< the name of a form of the format; empty for the usual one
    QString units;    ///< the text of a system; empty for that of the project
};

/// Returns what the user chose for the last deck of a project; the first format and the units of the project if there was
/// none.
DeckChoice lastChoice(const Obj::Project& project);

/// Keeps a choice with the project, which saves it. Makes no step of the history, since no data changes.
void keepChoice(const DeckChoice& choice, Obj::Project& project);

/// Asks for the file of a deck, and proposes a name, to which the extension of the format is added. Returns an empty text if
/// the user cancels.
QString askForDeckFile(QString proposedName, vxDecks::Format format, QWidget& parent);

/// Writes a deck to a file. Asks in front of `parent` before it replaces a project file, and tells the user if the file
/// cannot be written. Reports the number of materials and what the deck lacks to the message log. Returns whether the file
/// is written.
bool saveDeck(const MadeDeck& made, const DeckSource& source, const QString& path, QWidget& parent);

/// Asks about changes that are not applied, and opens the dialog of the export for the current project.
void exportForSolver();

/// Writes the materials of a project to a file; for a list of commands. Returns the reason if that fails.
std::optional<QString> exportForSolver(Mat::DocumentMaterial& project, const DeckRequest& request, const QString& path);

} // namespace desktop
