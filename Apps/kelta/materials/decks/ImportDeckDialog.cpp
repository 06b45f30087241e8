#include "decks/ImportDeckDialog.h"

#include "UnitChoice.h"

#include "Kelta/Exceptions.h"
#include "decks/DeckReportView.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <exception>
#include <utility>

namespace desktop {

using vxDecks::ReadDeck;
using vxUnits::UnitSystem;

ImportDeckDialog::ImportDeckDialog(DeckFile file, std::shared_ptr<const ReadDeck> asIs, QWidget* parent)
    : QDialog(parent),
      m_file(std::move(file)),
      m_asIs(std::move(asIs)),
      m_title(new QLabel(this)),
      m_unitsTitle(new QLabel(this)),
      m_units(new UnitChoice(UnitChoice::Preference::Undecided, this)),
      m_doubt(new QLabel(this)),
      m_report(new DeckReportView(this)),
      m_summary(new QLabel(this)),
      m_import(new QPushButton(tr("&Import"), this))
{
    setObjectName(QStringLiteral("importDeck"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowTitle(tr("Import deck"));
    createFields();
    buildLayout();
    resize(800, 560);
    proposeUnits();
    connect(m_units, &UnitChoice::edited, this,
            [this] { Kelta::guarded(tr("The deck cannot be shown"), [this] { update(); }); });
    update();
}

ImportDeckDialog::~ImportDeckDialog() = default;

void ImportDeckDialog::createFields()
{
    m_title->setText(tr("\"%1\" is a deck of %2. Materials: %3")
                         .arg(QFileInfo(m_file.path).fileName(),
                              QString::fromLatin1(vxDecks::infoOf(m_file.format).title),
                              QString::number(m_asIs->materials.size())));
    m_unitsTitle->setBuddy(m_units);
    m_doubt->setObjectName(QStringLiteral("unitDoubt"));
    m_summary->setObjectName(QStringLiteral("deckSummary"));
    for (QLabel* const label : {m_title, m_doubt, m_summary}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_unitsTitle->setWordWrap(true);
}

void ImportDeckDialog::buildLayout()
{
    auto* const reportTitle = new QLabel(tr("&Report:"), this);
    reportTitle->setBuddy(m_report);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(m_import, QDialogButtonBox::AcceptRole);
    m_import->setDefault(true);
    auto* const layout = new QVBoxLayout(this);
    for (QWidget* const part :
         {static_cast<QWidget*>(m_title), static_cast<QWidget*>(m_unitsTitle), static_cast<QWidget*>(m_units),
          static_cast<QWidget*>(m_doubt), static_cast<QWidget*>(reportTitle)})
        layout->addWidget(part);
    layout->addWidget(m_report, 1);
    layout->addWidget(m_summary);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &ImportDeckDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ImportDeckDialog::reject);
}

void ImportDeckDialog::proposeUnits()
{
    const bool hasUnits = vxDecks::hasOwnUnits(m_file.format);
    m_units->setHidden(hasUnits);
    m_doubt->setHidden(hasUnits);
    if (hasUnits)
        return m_unitsTitle->setText(tr("Each number in the file has its unit."));
    m_units->setFocus();
    if (m_file.declared) {
        m_unitsTitle->setText(tr("&Unit system of the numbers, which the file declares:"));
        return m_units->setSystem(QString::fromStdString(m_file.declared->text()));
    }
    const std::string fitting = fittingSystem(*m_asIs, UnitSystem::si());
    if (fitting.empty())
        return m_unitsTitle->setText(tr("&Unit system of the numbers, which the file does not say:"));
    m_unitsTitle->setText(tr("&Unit system of the numbers, which the file does not say. They look like %1:")
                              .arg(QString::fromStdString(fitting)));
    m_units->setSystem(QString::fromStdString(fitting));
}

/// Returns a sentence if the numbers look like another system than the chosen one; an empty text otherwise.
QString ImportDeckDialog::doubtAbout(const UnitSystem& units) const
{
    const std::string fitting = fittingSystem(*m_asIs, units);
    return fitting.empty() ? QString()
                           : tr("The numbers look like %1. In %2, they would be unusual.")
                                 .arg(QString::fromStdString(fitting), QString::fromStdString(units.text()));
}

void ImportDeckDialog::update()
{
    m_import->setEnabled(false);
    m_reading.reset();
    m_task.drop();
    if (vxDecks::hasOwnUnits(m_file.format))
        return read(std::nullopt);
    const auto units = m_units->read();
    m_doubt->setText(units ? doubtAbout(*units) : QString());
    if (units)
        return read(*units);
    m_report->setLines({});
    m_summary->setText(tr("Choose the unit system; then the report is shown."));
}

void ImportDeckDialog::read(const std::optional<UnitSystem>& units)
{
    m_summary->setText(tr("The deck is being read..."));
    m_task.begin([this, file = m_file, units]() -> LatestTask::Finish {
        try {
            auto reading = std::make_shared<Reading>();
            reading->deck = readDeckFile(file, units);
            reading->lines = vxInspector::deckLines(reading->deck.report);
            reading->summary = vxInspector::deckSummary(reading->deck.report);
            return [this, reading = std::move(reading)] {
                Kelta::guarded(tr("The deck cannot be shown"), [&] { showReading(reading); });
            };
        } catch (const std::exception& error) {
            return [this, reason = QString::fromUtf8(error.what())] { showFailure(reason); };
        }
    });
}

void ImportDeckDialog::showReading(std::shared_ptr<Reading> reading)
{
    m_reading = std::move(reading);
    m_report->setLines(m_reading->lines);
    m_summary->setText(m_reading->summary + QLatin1Char(' ') + vxInspector::deckRemarks(m_reading->deck.report));
    m_import->setEnabled(true);
}

void ImportDeckDialog::showFailure(const QString& reason)
{
    m_report->setLines({});
    m_summary->setText(reason);
}

ReadDeck ImportDeckDialog::takeDeck()
{
    return std::move(m_reading->deck);
}

void ImportDeckDialog::accept()
{
    if (m_reading != nullptr)
        QDialog::accept();
}

} // namespace desktop
