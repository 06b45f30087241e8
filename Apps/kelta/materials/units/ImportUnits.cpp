#include "ImportUnits.h"

#include "UnitChoice.h"

#include "Gui/MainWindow.h"
#include "Gui/WindowTitle.h"
#include "projectfile/ExchangeImport.h"
#include "vxInspector/units/UnitTexts.h"
#include "vxUnits/MaterialValues.h"
#include "vxUnits/Plausibility.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace desktop {

namespace {

using projectfile::ImportedMaterial;
using projectfile::ImportedMaterials;
using vxUnits::UnitSystem;

std::optional<UnitSystem>& unaskedSystem()
{
    static std::optional<UnitSystem> system;
    return system;
}

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::ImportUnitsDialog", text);
}

/// Returns whether a conversion of a material from a system gives it more doubts than it has.
bool suffersFrom(const UnitSystem& system, const vxMat::MaterialBase& material)
{
    vxMat::MaterialBase converted;
    converted.copyAllFrom(material);
    vxUnits::convertMaterial(converted, system, UnitSystem::si());
    return vxUnits::checkPlausibility(converted).size() > vxUnits::checkPlausibility(material).size();
}

/// Returns the first doubt that another unit system explains, with the label of its material; empty if there is none.
QString firstDoubt(const ImportedMaterials& imported)
{
    for (const ImportedMaterial& entry : imported.materials)
        for (const vxUnits::Doubt& doubt : vxUnits::checkPlausibility(*entry.material))
            if (doubt.remedy && !doubt.remedy->system.empty())
                return QString::fromStdString(entry.label) + QStringLiteral(": ") + vxInspector::translated(doubt);
    return {};
}

enum class Answer
{
    Convert,
    Keep,
    Cancel,
};

Answer askToConvert(const QString& path, const QString& system, const QString& doubt)
{
    QMessageBox box(QMessageBox::Question, tr("Import exchange document"),
                    tr("The numbers in \"%1\" look like %2.").arg(QFileInfo(path).fileName(), system),
                    QMessageBox::Cancel, Gui::MainWindow::get_main_window_inst());
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("In SI, they would be unusual. %1").arg(doubt));
    QPushButton* const convert = box.addButton(tr("&Convert from %1").arg(system), QMessageBox::AcceptRole);
    const QAbstractButton* const keep = box.addButton(tr("&Import as they are"), QMessageBox::AcceptRole);
    box.setDefaultButton(convert);
    box.exec();
    if (box.clickedButton() == convert)
        return Answer::Convert;
    return box.clickedButton() == keep ? Answer::Keep : Answer::Cancel;
}

/// Asks about numbers that look like another system than SI.
std::optional<ImportUnits> confirmSi(const QString& path, const ImportedMaterials& imported)
{
    const QString fitting = findFittingSystem(imported);
    const auto system = UnitSystem::parse(fitting.toStdString());
    if (fitting.isEmpty() || !system)
        return ImportUnits{};
    switch (askToConvert(path, fitting, firstDoubt(imported))) {
    case Answer::Convert:
        return ImportUnits{*system, true};
    case Answer::Keep:
        return ImportUnits{UnitSystem::si(), true};
    default:
        return std::nullopt;
    }
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

/// Returns a sentence about a material that looks like another unit system; empty otherwise.
std::string doubtSystem(const ImportedMaterial& entry)
{
    const std::string fitting = vxUnits::fittingSystem(*entry.material);
    return fitting.empty() ? std::string()
                           : tr("\"%1\": the numbers look like %2. The import of the document can convert them.")
                                 .arg(QString::fromStdString(entry.label), QString::fromStdString(fitting))
                                 .toStdString();
}

void add(std::string doubt, ImportedMaterials& imported)
{
    if (!doubt.empty())
        imported.doubts.push_back(std::move(doubt));
}

} // namespace

UnaskedImport::UnaskedImport(UnitSystem system)
{
    unaskedSystem() = std::move(system);
}

UnaskedImport::~UnaskedImport()
{
    unaskedSystem() = std::nullopt;
}

std::optional<ImportUnits> chooseImportUnits(const QString& path, const ImportedMaterials& imported)
{
    if (unaskedSystem())
        return ImportUnits{*unaskedSystem()};
    ImportUnitsDialog dialog(path, Gui::MainWindow::get_main_window_inst());
    const auto system = dialog.exec() == QDialog::Accepted ? dialog.system() : std::nullopt;
    if (!system)
        return std::nullopt;
    return *system == UnitSystem::si() ? confirmSi(path, imported) : ImportUnits{*system};
}

QString findFittingSystem(const ImportedMaterials& imported)
{
    std::string fitting;
    for (const ImportedMaterial& entry : imported.materials) {
        const std::string system = vxUnits::fittingSystem(*entry.material);
        if (!fitting.empty() && !system.empty() && system != fitting)
            return {};
        fitting = system.empty() ? fitting : system;
    }
    const auto system = UnitSystem::parse(fitting);
    const bool isShared = system && std::none_of(imported.materials.begin(), imported.materials.end(),
                                                 [&system](const ImportedMaterial& entry) {
                                                     return suffersFrom(*system, *entry.material);
                                                 });
    return isShared ? QString::fromStdString(fitting) : QString();
}

QString convertToCatalogue(ImportedMaterials& imported, const ImportUnits& units)
{
    const bool areOther = units.system != UnitSystem::si();
    for (const ImportedMaterial& entry : imported.materials) {
        vxUnits::convertMaterial(*entry.material, units.system, UnitSystem::si());
        if (areOther)
            add(doubtUnchanged(entry), imported);
        if (!units.areConfirmed)
            add(doubtSystem(entry), imported);
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
