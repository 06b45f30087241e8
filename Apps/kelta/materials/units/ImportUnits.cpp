#include "ImportUnits.h"

#include "UnitChoice.h"

#include "Gui/MainWindow.h"
#include "Gui/WindowTitle.h"
#include "projectfile/ExchangeImport.h"
#include "vxInspector/units/UnitTexts.h"
#include "vxUnits/MaterialValues.h"
#include "vxUnits/SystemFit.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

#include <string>
#include <utility>
#include <vector>

namespace desktop {

namespace {

using projectfile::ImportedMaterial;
using projectfile::ImportedMaterials;
using vxUnits::UnitSystem;

const UnaskedImport*& unaskedImport()
{
    static const UnaskedImport* current = nullptr;
    return current;
}

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::ImportUnitsDialog", text);
}

/// Returns the first doubt about numbers in a system, with the label of its material; empty if there is none.
QString firstDoubt(const ImportedMaterials& imported, const UnitSystem& system)
{
    for (const ImportedMaterial& entry : imported.materials) {
        const auto doubts = vxUnits::checkPlausibilityIn(system, *entry.material);
        if (!doubts.empty())
            return QString::fromStdString(entry.label) + QStringLiteral(": ") +
                   vxInspector::translated(doubts.front().message);
    }
    return {};
}

/// Returns the text of the button that takes the numbers to be in a system.
QString textOfButton(const QString& system)
{
    return system == QString::fromStdString(UnitSystem::si().text()) ? tr("&Import as they are")
                                                                     : tr("&Convert from %1").arg(system);
}

/// Asks which of two systems numbers are in. Absent if the user cancels.
std::optional<UnitSystem> askForSystem(const QString& path, const UnitSystem& chosen, const UnitSystem& fitting,
                                       const QString& doubt)
{
    const QString chosenName = QString::fromStdString(chosen.text());
    const QString fittingName = QString::fromStdString(fitting.text());
    QMessageBox box(QMessageBox::Question, tr("Import exchange document"),
                    tr("The numbers in \"%1\" look like %2.").arg(QFileInfo(path).fileName(), fittingName),
                    QMessageBox::Cancel, Gui::MainWindow::get_main_window_inst());
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("In %1, they would be unusual. %2").arg(chosenName, doubt));
    QPushButton* const other = box.addButton(textOfButton(fittingName), QMessageBox::AcceptRole);
    const QAbstractButton* const keep = box.addButton(textOfButton(chosenName), QMessageBox::AcceptRole);
    box.setDefaultButton(other);
    box.exec();
    if (box.clickedButton() == other)
        return fitting;
    return box.clickedButton() == keep ? std::optional<UnitSystem>(chosen) : std::nullopt;
}

/// Asks about numbers that look like another system than the chosen one.
std::optional<ImportUnits> confirm(const QString& path, const ImportedMaterials& imported, const UnitSystem& chosen)
{
    const QString fitting = findFittingSystem(imported, chosen);
    const auto system = UnitSystem::parse(fitting.toStdString());
    if (fitting.isEmpty() || !system)
        return ImportUnits{chosen};
    const auto decided = askForSystem(path, chosen, *system, firstDoubt(imported, chosen));
    return decided ? std::optional<ImportUnits>(ImportUnits{*decided, true}) : std::nullopt;
}

/// Returns a sentence about the numbers that no conversion changes; empty if there are none.
std::string doubtUnchanged(const ImportedMaterial& entry)
{
    QStringList names;
    for (const std::int32_t slot : vxUnits::slotsWithoutUnit(*entry.material))
        names << QStringLiteral("\"%1\"").arg(QString::fromStdString(entry.material->findProperty(slot)->name));
    return names.isEmpty() ? std::string()
                           : tr("\"%1\": these numbers were not converted, because their units are not known: %2")
                                 .arg(QString::fromStdString(entry.label), names.join(QStringLiteral(", ")))
                                 .toStdString();
}

/// Returns sentences about numbers that look like another system than the assumed one: one sentence if this system
/// explains most doubts about all materials, otherwise one for each such material.
std::vector<std::string> doubtSystem(const ImportedMaterials& imported, const UnitSystem& assumed)
{
    const QString name = QString::fromStdString(assumed.text());
    if (const QString fitting = findFittingSystem(imported, assumed); !fitting.isEmpty())
        return {tr("The numbers look like %1, not %2. Import the document again in this unit system; in a list of "
                   "commands, the second argument of Std_ImportDocument gives it.")
                    .arg(fitting, name)
                    .toStdString()};
    std::vector<std::string> doubts;
    for (const ImportedMaterial& entry : imported.materials) {
        const std::string fitting = vxUnits::betterFittingSystem({entry.material.get()}, assumed);
        if (!fitting.empty())
            doubts.push_back(tr("\"%1\": the numbers look like %2, not %3.")
                                 .arg(QString::fromStdString(entry.label), QString::fromStdString(fitting), name)
                                 .toStdString());
    }
    return doubts;
}

void add(std::string doubt, ImportedMaterials& imported)
{
    if (!doubt.empty())
        imported.doubts.push_back(std::move(doubt));
}

} // namespace

UnaskedImport::UnaskedImport(std::optional<UnitSystem> system) : m_system(std::move(system))
{
    unaskedImport() = this;
}

UnaskedImport::~UnaskedImport()
{
    unaskedImport() = nullptr;
}

const UnaskedImport* UnaskedImport::current()
{
    return unaskedImport();
}

std::optional<ImportUnits> chooseImportUnits(const QString& path, const ImportedMaterials& imported)
{
    if (const UnaskedImport* const unasked = UnaskedImport::current())
        return ImportUnits{unasked->system().value_or(UnitSystem::si())};
    ImportUnitsDialog dialog(path, Gui::MainWindow::get_main_window_inst());
    const auto system = dialog.exec() == QDialog::Accepted ? dialog.system() : std::nullopt;
    if (!system)
        return std::nullopt;
    return confirm(path, imported, *system);
}

QString findFittingSystem(const ImportedMaterials& imported, const UnitSystem& assumed)
{
    std::vector<const vxMat::MaterialBase*> materials;
    for (const ImportedMaterial& entry : imported.materials)
        materials.push_back(entry.material.get());
    return QString::fromStdString(vxUnits::betterFittingSystem(materials, assumed));
}

QString convertToCatalogue(ImportedMaterials& imported, const ImportUnits& units)
{
    const bool areOther = units.system != UnitSystem::si();
    if (!units.areConfirmed)
        for (std::string& doubt : doubtSystem(imported, units.system))
            add(std::move(doubt), imported);
    for (const ImportedMaterial& entry : imported.materials) {
        vxUnits::convertMaterial(*entry.material, units.system, UnitSystem::si());
        if (areOther)
            add(doubtUnchanged(entry), imported);
    }
    if (!areOther)
        return {};
    return tr("The numbers were converted from %1 to the units of the catalogue. Materials: %2")
        .arg(QString::fromStdString(units.system.text()), QString::number(imported.materials.size()));
}

ImportUnitsDialog::ImportUnitsDialog(const QString& path, QWidget* parent)
    : QDialog(parent), m_choice(new UnitChoice(UnitChoice::Preference::NotOffered, this))
{
    setObjectName(QStringLiteral("importUnits"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowTitle(tr("Import exchange document"));
    const QString name = Gui::escapedForMnemonics(QFileInfo(path).fileName());
    auto* const title = new QLabel(tr("&Unit system of the numbers in \"%1\":").arg(name), this);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton* const import = buttons->addButton(tr("&Import"), QDialogButtonBox::AcceptRole);
    title->setTextFormat(Qt::PlainText);
    title->setWordWrap(true);
    title->setBuddy(m_choice);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(m_choice);
    layout->addWidget(buttons);
    import->setDefault(true);
    m_choice->setFocus();
    connect(m_choice, &UnitChoice::edited, this, [this, import] { import->setEnabled(m_choice->isValid()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &ImportUnitsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ImportUnitsDialog::reject);
}

ImportUnitsDialog::~ImportUnitsDialog() = default;

std::optional<UnitSystem> ImportUnitsDialog::system() const
{
    const auto chosen = UnitSystem::parse(m_choice->system().toStdString());
    return chosen ? std::optional<UnitSystem>(*chosen) : std::nullopt;
}

} // namespace desktop
