#pragma once

#include "vxUnits/UnitSystem.h"

#include <QDialog>
#include <QString>

#include <optional>

namespace projectfile {
struct ImportedMaterials;
} // namespace projectfile

namespace desktop {

class UnitChoice;

/// The units of the numbers in a document.
struct ImportUnits
{
    vxUnits::UnitSystem system = vxUnits::UnitSystem::si();
    bool areConfirmed = false; ///< whether the user has decided about numbers that look like another system
};

/// While an instance lives, imports take the numbers of files to be in its system and ask nothing; for a program without a
/// user. Without a system, the numbers of exchange documents are in SI, and those of decks in the system that they declare.
class UnaskedImport
{
public:
    explicit UnaskedImport(std::optional<vxUnits::UnitSystem> system);
    UnaskedImport(const UnaskedImport&) = delete;
    UnaskedImport& operator=(const UnaskedImport&) = delete;
    ~UnaskedImport();

    /// Returns the instance that lives; null if there is none.
    static const UnaskedImport* current();
    const std::optional<vxUnits::UnitSystem>& system() const { return m_system; }

private:
    std::optional<vxUnits::UnitSystem> m_system;
};

/// Asks the user for the unit system of the numbers in a document. The proposal is SI, which the format of documents
/// prescribes. If the numbers fit another system than the chosen one, asks which of both they are in. Absent if the user
/// cancels.
std::optional<ImportUnits> chooseImportUnits(const QString& path, const projectfile::ImportedMaterials& imported);

/// Returns the built-in unit system that the numbers of the materials together fit better than the assumed one (see
/// vxUnits/SystemFit.h). Empty if there is none.
QString findFittingSystem(const projectfile::ImportedMaterials& imported,
                          const vxUnits::UnitSystem& assumed = vxUnits::UnitSystem::si());

/// Converts all numbers to the units of the catalogue. Adds to the doubts which numbers stay unchanged because their units
/// are not known, and which other unit system the numbers of all materials, or of single ones, look like, unless the user
/// has decided about it. Returns a sentence about the conversion; empty if the numbers are in SI.
QString convertToCatalogue(projectfile::ImportedMaterials& imported, const ImportUnits& units);

/// The dialog in which the user chooses the units of a document.
class ImportUnitsDialog : public QDialog
{
    Q_OBJECT

public:
    ImportUnitsDialog(const QString& path, QWidget* parent);
    ~ImportUnitsDialog() override;

    /// Returns the chosen system; absent if it cannot be read.
    std::optional<vxUnits::UnitSystem> system() const;

private:
    UnitChoice* m_choice;
};

} // namespace desktop
