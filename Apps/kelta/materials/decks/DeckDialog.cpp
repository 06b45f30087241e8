#include "decks/DeckDialog.h"

#include "UnitChoice.h"

#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Kelta/Exceptions.h"
#include "Obj/Application.h"
#include "decks/DeckExport.h"
#include "decks/DeckReportView.h"
#include "decks/TitledView.h"
#include "vxInspector/units/ProjectUnits.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <exception>
#include <utility>

namespace desktop {

namespace {

Mat::DocumentMaterial* findProject(std::uint32_t id)
{
    return dynamic_cast<Mat::DocumentMaterial*>(Obj::Application::instance().get_project(id));
}

/// Returns the ids of the selected materials of a project.
std::vector<std::uint32_t> selectedIn(const Mat::DocumentMaterial& project)
{
    std::vector<std::uint32_t> ids;
    const Gui::TreeSelectionSingleton& selection = Gui::TreeSelectionSingleton::instance();
    for (const Obj::ProjectObject* const object : selection.get_objects_of_type(Mat::MaterialObject::getClassTypeId()))
        if (object->get_project() == &project)
            ids.push_back(object->getObjectId());
    std::sort(ids.begin(), ids.end());
    return ids;
}

/// Returns the title of the preview, which says what the preview leaves out.
QString titleOf(const Beginning& beginning)
{
    const QString lines = QString::number(beginning.lines);
    const QString all = QString::number(beginning.allLines);
    const QString longest = QString::number(longestLine);
    if (beginning.lines == beginning.allLines)
        return beginning.hasCutLines ? DeckDialog::tr("&Preview (long lines are cut after %1 characters):").arg(longest)
                                     : DeckDialog::tr("&Preview:");
    return beginning.hasCutLines
               ? DeckDialog::tr("&Preview (the first %1 of %2 lines, long lines cut after %3 characters):")
                     .arg(lines, all, longest)
               : DeckDialog::tr("&Preview (the first %1 of %2 lines):").arg(lines, all);
}

} // namespace

DeckDialog::DeckDialog(const Mat::DocumentMaterial& project, QWidget& parent)
    : QDialog(&parent),
      m_projectId(project.getProjectId()),
      m_selected(selectedIn(project)),
      m_formats(new QComboBox(this)),
      m_formsTitle(new QLabel(this)),
      m_forms(new QComboBox(this)),
      m_all(new QRadioButton(this)),
      m_onlySelected(new QRadioButton(this)),
      m_units(new UnitChoice(vxInspector::shownSystem(project), this)),
      m_previewTitle(new QLabel(this)),
      m_preview(new QPlainTextEdit(this)),
      m_summary(new QLabel(this)),
      m_report(new DeckReportView(this)),
      m_export(new QPushButton(tr("E&xport..."), this))
{
    setObjectName(QStringLiteral("exportForSolver"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowTitle(tr("Export for solver"));
    createFields(project);
    createViews();
    buildLayout();
    connectFields();
    resizeDeckDialog(*this);
    m_formats->setFocus();
    takeMaterials();
}

DeckDialog::~DeckDialog() = default;

void DeckDialog::createFields(const Mat::DocumentMaterial& project)
{
    const DeckChoice last = lastChoice(project);
    m_formats->setObjectName(QStringLiteral("deckFormats"));
    for (const vxDecks::FormatInfo& info : vxDecks::formats())
        m_formats->addItem(QString::fromLatin1(info.title), static_cast<int>(info.format));
    m_formats->setCurrentIndex(m_formats->findData(static_cast<int>(last.format)));
    m_formsTitle->setText(tr("F&orm:"));
    m_formsTitle->setBuddy(m_forms);
    m_forms->setObjectName(QStringLiteral("deckForms"));
    m_forms->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    offerForms(last.form);
    m_units->setSystem(last.units);
    m_all->setObjectName(QStringLiteral("allMaterials"));
    m_all->setText(tr("&All materials of the project (%1)").arg(Mat::materialsOf(project).size()));
    m_all->setChecked(true);
    m_onlySelected->setObjectName(QStringLiteral("selectedMaterials"));
    m_onlySelected->setText(tr("Only the &selected ones (%1)").arg(m_selected.size()));
    m_onlySelected->setEnabled(!m_selected.empty());
}

void DeckDialog::createViews()
{
    m_preview->setObjectName(QStringLiteral("deckPreview"));
    m_preview->setReadOnly(true);
    m_preview->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_preview->setTabChangesFocus(true);
    m_preview->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_preview->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_preview->setAccessibleName(tr("Beginning of the deck"));
    m_summary->setObjectName(QStringLiteral("deckSummary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
}

QWidget* DeckDialog::buildChoices()
{
    auto* const choices = new QWidget(this);
    auto* const formatTitle = new QLabel(tr("&Format:"), choices);
    auto* const unitsTitle = new QLabel(tr("&Units of the deck:"), choices);
    formatTitle->setBuddy(m_formats);
    unitsTitle->setBuddy(m_units);
    auto* const layout = new QGridLayout(choices);
    layout->setContentsMargins({});
    layout->addWidget(formatTitle, 0, 0);
    layout->addWidget(m_formats, 1, 0);
    layout->addWidget(m_formsTitle, 2, 0);
    layout->addWidget(m_forms, 3, 0);
    layout->addWidget(m_all, 4, 0);
    layout->addWidget(m_onlySelected, 5, 0);
    layout->addWidget(unitsTitle, 0, 1);
    layout->addWidget(m_units, 1, 1, 6, 1);
    layout->setRowStretch(6, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    return choices;
}

QWidget* DeckDialog::buildViews()
{
    auto* const views = new QSplitter(Qt::Vertical, this);
    views->addWidget(makeTitledView(m_previewTitle, m_preview, views));
    views->addWidget(makeTitledView(new QLabel(tr("&Report:"), this), m_report, views));
    views->setChildrenCollapsible(false);
    views->setStretchFactor(0, 1);
    views->setStretchFactor(1, 1);
    return views;
}

void DeckDialog::buildLayout()
{
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(m_export, QDialogButtonBox::AcceptRole);
    m_export->setDefault(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(buildChoices());
    layout->addWidget(buildViews(), 1);
    layout->addWidget(m_summary);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &DeckDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &DeckDialog::reject);
}

void DeckDialog::connectFields()
{
    const auto updateNow = [this] { Kelta::guarded(tr("The deck cannot be shown"), [this] { followChoices(); }); };
    connect(m_formats, qOverload<int>(&QComboBox::currentIndexChanged), this, [this, updateNow] {
        offerForms({});
        updateNow();
    });
    connect(m_forms, qOverload<int>(&QComboBox::currentIndexChanged), this, updateNow);
    connect(m_units, &UnitChoice::edited, this, updateNow);
    connect(m_all, &QRadioButton::toggled, this,
            [this] { Kelta::guarded(tr("The deck cannot be shown"), [this] { takeMaterials(); }); });
}

vxDecks::Format DeckDialog::format() const
{
    return static_cast<vxDecks::Format>(m_formats->currentData().toInt());
}

std::string DeckDialog::form() const
{
    return m_forms->currentData().toString().toStdString();
}

/// Fills the list of forms for the chosen format. A format with a single form has no list.
void DeckDialog::offerForms(const std::string& chosen)
{
    const QSignalBlocker blocker(m_forms);
    m_forms->clear();
    for (const vxInspector::DeckForm& one : vxInspector::deckForms(format()))
        m_forms->addItem(one.title, QString::fromStdString(one.name));
    m_forms->setCurrentIndex(std::max(m_forms->findData(QString::fromStdString(chosen)), 0));
    m_forms->setHidden(m_forms->count() == 0);
    m_formsTitle->setHidden(m_forms->count() == 0);
}

void DeckDialog::takeMaterials()
{
    const Mat::DocumentMaterial* const project = findProject(m_projectId);
    if (project == nullptr)
        return;
    std::vector<Mat::MaterialObject*> objects = Mat::materialsOf(*project);
    if (m_onlySelected->isChecked())
        objects.erase(std::remove_if(objects.begin(), objects.end(),
                                     [this](const Mat::MaterialObject* object) {
                                         return !std::binary_search(m_selected.begin(), m_selected.end(),
                                                                    object->getObjectId());
                                     }),
                      objects.end());
    m_source = copyForDeck(objects);
    followChoices();
}

/// The old text stays until the new one is made, so that the view does not flicker.
void DeckDialog::followChoices()
{
    m_export->setEnabled(false);
    m_made.reset();
    m_making.drop();
    const auto units = m_units->read();
    if (units && m_source != nullptr && !m_source->materials.empty()) {
        m_summary->setText(tr("The deck is being made..."));
        return makeDeck(*units);
    }
    clearDeck();
    m_summary->setText(units ? tr("The project has no materials.") : tr("The base units cannot be read."));
}

void DeckDialog::makeDeck(const vxUnits::UnitSystem& units)
{
    const DeckRequest request{vxInspector::deckForm(format(), form()), units};
    m_making.begin([this, source = m_source, request](const std::atomic<bool>&) -> LatestTask::Finish {
        try {
            auto made = std::make_shared<const MadeDeck>(desktop::makeDeck(*source, request));
            return [this, made = std::move(made)] {
                Kelta::guarded(tr("The deck cannot be shown"), [&] { showDeck(made); });
            };
        } catch (const std::exception& error) {
            return [this, reason = QString::fromUtf8(error.what())] { showFailure(reason); };
        }
    });
}

void DeckDialog::clearDeck()
{
    m_preview->clear();
    m_report->setLines({});
    m_previewTitle->setText(tr("&Preview:"));
}

void DeckDialog::showDeck(std::shared_ptr<const MadeDeck> made)
{
    m_made = std::move(made);
    const Beginning& beginning = m_made->beginning;
    m_preview->setPlainText(beginning.text);
    m_previewTitle->setText(titleOf(beginning));
    m_report->setLines(m_made->lines);
    QStringList sentences{m_made->summary, vxInspector::deckRemarks(m_made->deck.report)};
    if (!m_source->settings.isEmpty())
        sentences << m_source->settings;
    m_summary->setText(sentences.join(QLatin1Char(' ')));
    m_export->setEnabled(true);
}

void DeckDialog::showFailure(const QString& reason)
{
    clearDeck();
    m_summary->setText(tr("The deck cannot be made: %1").arg(reason));
}

void DeckDialog::accept()
{
    Kelta::guarded(tr("The materials cannot be exported"), [this] { exportDeck(); });
}

void DeckDialog::exportDeck()
{
    Mat::DocumentMaterial* project = findProject(m_projectId);
    if (project == nullptr)
        return QDialog::reject();
    const auto made = m_made; // stays while the user answers
    if (made == nullptr)
        return;
    const QString path = askForDeckFile(QString::fromUtf8(project->get_name()), format(), *this);
    if (path.isEmpty() || !saveDeck(*made, *m_source, path, *this))
        return;
    // The project may have been closed while the user answered.
    project = findProject(m_projectId);
    if (project != nullptr)
        keepChoice({format(), form(), m_units->system()}, *project);
    QDialog::accept();
}

void openDeckDialog(const Mat::DocumentMaterial& project, Gui::MainWindow& window)
{
    auto* const dialog = new DeckDialog(project, window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

} // namespace desktop
