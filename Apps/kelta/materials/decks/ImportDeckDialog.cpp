#include "decks/ImportDeckDialog.h"

#include "UnitChoice.h"

#include "Kelta/Exceptions.h"
#include "decks/DeckReportView.h"
#include "decks/TitledView.h"
#include "decks/ValuesOfDeckModel.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <exception>
#include <utility>

namespace desktop {

using vxDecks::ReadDeck;
using vxUnits::UnitSystem;

ImportDeckDialog::ImportDeckDialog(DeckFile file, QWidget* parent)
    : QDialog(parent),
      m_file(std::move(file)),
      m_title(new QLabel(this)),
      m_unitsTitle(new QLabel(this)),
      m_units(new UnitChoice(UnitChoice::Preference::Undecided, this)),
      m_doubt(new QLabel(this)),
      m_materials(new QTableView(this)),
      m_values(new ValuesOfDeckModel(this)),
      m_report(new DeckReportView(this)),
      m_summary(new QLabel(this)),
      m_import(new QPushButton(tr("&Import"), this))
{
    setObjectName(QStringLiteral("importDeck"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowTitle(tr("Import deck"));
    createFields();
    createMaterials();
    buildLayout();
    resizeDeckDialog(*this);
    askForUnits();
    connect(m_units, &UnitChoice::edited, this,
            [this] { Kelta::guarded(tr("The deck cannot be shown"), [this] { unitsChosen(); }); });
    readFile();
}

ImportDeckDialog::~ImportDeckDialog() = default;

void ImportDeckDialog::createFields()
{
    m_title->setText(
        tr("\"%1\" is a deck of %2.")
            .arg(QFileInfo(m_file.path).fileName(), QString::fromLatin1(vxDecks::infoOf(m_file.format).title)));
    m_unitsTitle->setBuddy(m_units);
    m_doubt->setObjectName(QStringLiteral("unitDoubt"));
    m_summary->setObjectName(QStringLiteral("deckSummary"));
    for (QLabel* const label : {m_title, m_doubt, m_summary}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_unitsTitle->setWordWrap(true);
}

void ImportDeckDialog::createMaterials()
{
    m_materials->setObjectName(QStringLiteral("materialsOfDeck"));
    m_materials->setAccessibleName(tr("Materials"));
    m_materials->setModel(m_values);
    m_materials->setTabKeyNavigation(false);
    m_materials->setEditTriggers(QTableView::NoEditTriggers);
    m_materials->setSelectionBehavior(QTableView::SelectRows);
    m_materials->setAlternatingRowColors(true);
    m_materials->setShowGrid(false);
    m_materials->verticalHeader()->hide();
    QHeaderView& header = *m_materials->horizontalHeader();
    header.setHighlightSections(false);
    header.setStretchLastSection(true);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header.setResizeContentsPrecision(100); // the rows that decide the widths
}

void ImportDeckDialog::buildLayout()
{
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(m_import, QDialogButtonBox::AcceptRole);
    m_import->setDefault(true);
    auto* const views = new QSplitter(Qt::Vertical, this);
    views->addWidget(makeTitledView(new QLabel(tr("&Materials:"), this), m_materials, views));
    views->addWidget(makeTitledView(new QLabel(tr("&Report:"), this), m_report, views));
    views->setChildrenCollapsible(false);
    auto* const layout = new QVBoxLayout(this);
    for (QWidget* const part : {static_cast<QWidget*>(m_title), static_cast<QWidget*>(m_unitsTitle),
                                static_cast<QWidget*>(m_units), static_cast<QWidget*>(m_doubt)})
        layout->addWidget(part);
    layout->addWidget(views, 1);
    layout->addWidget(m_summary);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &ImportDeckDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ImportDeckDialog::reject);
}

void ImportDeckDialog::askForUnits()
{
    const bool hasUnits = vxDecks::hasOwnUnits(m_file.format);
    m_units->setHidden(hasUnits);
    m_doubt->setHidden(hasUnits);
    if (hasUnits) {
        m_unitsTitle->setText(tr("Each number in the file has its unit."));
        m_materials->setFocus();
        return;
    }
    m_units->setFocus();
    m_unitsTitle->setText(m_file.declared ? tr("&Unit system of the numbers, which the file declares:")
                                          : tr("&Unit system of the numbers, which the file does not say:"));
    if (m_file.declared)
        m_units->setSystem(QString::fromStdString(m_file.declared->text()));
}

/// Returns the units that the user has chosen or the file declares; absent if each number has its unit.
std::optional<UnitSystem> ImportDeckDialog::chosenUnits() const
{
    if (vxDecks::hasOwnUnits(m_file.format))
        return std::nullopt;
    const auto units = m_units->read();
    return units ? std::optional<UnitSystem>(*units) : std::nullopt;
}

void ImportDeckDialog::unitsChosen()
{
    m_hasChosen = true;
    readFile();
}

/// Reads the file for the choice that the dialog shows now. The old tables stay until they are replaced, so that they do
/// not flicker.
void ImportDeckDialog::readFile()
{
    m_import->setEnabled(false);
    m_preview.reset();
    m_summary->setText(tr("The deck is being read..."));
    const auto units = chosenUnits();
    const bool isDecided = units || vxDecks::hasOwnUnits(m_file.format);
    m_task.begin([this, file = m_file, survey = m_survey, units,
                  isDecided](const std::atomic<bool>& isDropped) -> LatestTask::Finish {
        try {
            Reading reading;
            const bool isCurrent = survey != nullptr && survey->state == stateOf(file.path);
            reading.survey = isCurrent ? survey : surveyDeck(file, isDropped);
            if (isDecided)
                reading.preview = previewDeck(file, *reading.survey, units, isDropped);
            else
                reading.values = valuesOf(*reading.survey, std::nullopt);
            return [this, reading = std::move(reading)] {
                Kelta::guarded(tr("The deck cannot be shown"), [&] { showReading(reading); });
            };
        } catch (const std::exception& error) {
            return [this, reason = QString::fromUtf8(error.what())] { showFailure(reason); };
        }
    });
}

void ImportDeckDialog::showReading(const Reading& reading)
{
    const bool isNew = reading.survey != m_survey;
    m_survey = reading.survey;
    if (isNew && proposeUnits())
        return readFile();
    if (reading.preview != nullptr)
        return showPreview(reading.preview);
    showValues(reading.values);
    m_report->setLines({});
    m_doubt->setText(m_hasChosen || !m_survey->fitting.empty()
                         ? QString()
                         : tr("The numbers are usual in several unit systems, so that none is proposed."));
    m_summary->setText(tr("Choose the unit system; then the report is shown."));
}

/// Shows what the survey has found. Returns whether it proposes a unit system; the user's own choice stays.
bool ImportDeckDialog::proposeUnits()
{
    m_title->setText(tr("\"%1\" is a deck of %2. Materials: %3")
                         .arg(QFileInfo(m_file.path).fileName(),
                              QString::fromLatin1(vxDecks::infoOf(m_file.format).title),
                              QString::number(m_survey->asIs.materials.size())));
    if (vxDecks::hasOwnUnits(m_file.format) || m_file.declared || m_survey->fitting.empty())
        return false;
    const QString fitting = QString::fromStdString(m_survey->fitting);
    m_unitsTitle->setText(
        tr("&Unit system of the numbers, which the file does not say. They look like %1:").arg(fitting));
    if (m_hasChosen)
        return false;
    const QSignalBlocker blocker(m_units);
    m_units->setSystem(fitting);
    return true;
}

void ImportDeckDialog::showValues(const ValuesOfDeck& values)
{
    m_values->setValues(values);
    m_materials->resizeColumnsToContents();
    // Long names leave room for the numbers.
    m_materials->setColumnWidth(0, std::min(m_materials->columnWidth(0), m_materials->viewport()->width() / 3));
}

void ImportDeckDialog::showPreview(std::shared_ptr<DeckPreview> preview)
{
    m_preview = std::move(preview);
    showValues(m_preview->values);
    m_report->setLines(m_preview->lines);
    const auto units = chosenUnits();
    const bool isProposed = units && !m_file.declared && units->text() == m_survey->fitting;
    m_doubt->setText(isProposed && m_preview->doubt.isEmpty() ? m_survey->reason : m_preview->doubt);
    QStringList sentences{m_preview->summary, vxInspector::deckRemarks(m_preview->deck.report)};
    if (m_preview->withFindings > 0)
        sentences << tr("Materials with findings: %1.").arg(m_preview->withFindings);
    if (m_preview->withDoubts > 0)
        sentences << tr("Materials with doubts: %1.").arg(m_preview->withDoubts);
    if (m_hasFileChanged)
        sentences.prepend(tr("The file has changed and was read again. Check the report before you import it."));
    m_summary->setText(sentences.join(QLatin1Char(' ')));
    m_import->setEnabled(true);
}

void ImportDeckDialog::showFailure(const QString& reason)
{
    showValues({});
    m_report->setLines({});
    m_doubt->clear();
    m_summary->setText(reason);
}

ReadDeck ImportDeckDialog::takeDeck()
{
    return std::move(m_preview->deck);
}

void ImportDeckDialog::accept()
{
    if (m_preview == nullptr)
        return;
    if (m_survey->state == stateOf(m_file.path))
        return QDialog::accept();
    m_hasFileChanged = true;
    readFile();
}

} // namespace desktop
