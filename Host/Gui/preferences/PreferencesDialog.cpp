#include "preferences/PreferencesDialog.h"

#include "Gui/MainWindow.h"
#include "Gui/PreferencesPage.h"
#include "Kelta/Exceptions.h"
#include "Kelta/MessageLog.h"
#include "preferences/GeneralPage.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QShortcut>
#include <QShowEvent>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Gui {

namespace {

/// A page in a small window scrolls; in a large one it has the size of the tab.
class PageFrame : public QScrollArea
{
public:
    explicit PageFrame(PreferencesPage& page)
    {
        setWidget(&page);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        // The ground of the tab shows through.
        viewport()->setAutoFillBackground(false);
        page.setAutoFillBackground(false);
    }

    /// With room for the vertical scroll bar, which would otherwise need a horizontal one.
    QSize sizeHint() const override
    {
        return widget()->sizeHint() + QSize(2 + verticalScrollBar()->sizeHint().width(), 2);
    }
};

PreferencesEntry generalEntry()
{
    return {"General", {"Gui::PreferencesDialog", QT_TRANSLATE_NOOP("Gui::PreferencesDialog", "General")}, [] {
                return new GeneralPage;
            }};
}

} // namespace

PreferencesDialog::PreferencesDialog(const std::vector<PreferencesEntry>& entries, QWidget* parent)
    : QDialog(parent),
      m_tabs(new QTabWidget(this)),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, this))
{
    setObjectName(QStringLiteral("preferences"));
    // There is no what's-this help.
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    addPage(generalEntry());
    for (const PreferencesEntry& entry : entries)
        Kelta::guarded(tr("A page of the preferences cannot be made"), [&] { addPage(entry); });
    buildLayout();
    retranslate();
    updateButtons();
}

PreferencesDialog::~PreferencesDialog() = default;

void PreferencesDialog::addPage(const PreferencesEntry& entry)
{
    PreferencesPage* const page = entry.make();
    if (page == nullptr)
        return;
    m_tabs->addTab(new PageFrame(*page), QString()); // the tabs own both
    m_pages.push_back({page, entry.title});
    connect(page, &PreferencesPage::edited, this, &PreferencesDialog::updateButtons);
}

void PreferencesDialog::buildLayout()
{
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    layout->addWidget(m_buttons);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &PreferencesDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &PreferencesDialog::reject);
    connect(m_buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, [this] { apply(); });
    // Not left to the tabs, because a closed list of choices takes the keys.
    addKey(Qt::CTRL + Qt::Key_Tab, 1);
    addKey(Qt::CTRL + Qt::SHIFT + Qt::Key_Backtab, -1);
}

/// Adds a key that shows the page `step` tabs further, in a circle.
void PreferencesDialog::addKey(int key, int step)
{
    connect(new QShortcut(key, this), &QShortcut::activated, this, [this, step] {
        const int count = m_tabs->count();
        m_tabs->setCurrentIndex((m_tabs->currentIndex() + step + count) % count);
    });
}

void PreferencesDialog::retranslate()
{
    setWindowTitle(tr("Preferences"));
    for (std::size_t index = 0; index < m_pages.size(); ++index)
        m_tabs->setTabText(static_cast<int>(index), m_pages[index].title.translated());
}

/// The tabs forget the focus of a page that was not shown yet.
void PreferencesDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        m_pages.front().page->setFocus();
}

void PreferencesDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void PreferencesDialog::updateButtons()
{
    m_buttons->button(QDialogButtonBox::Apply)
        ->setEnabled(
            std::any_of(m_pages.begin(), m_pages.end(), [](const Page& one) { return one.page->isChanged(); }));
}

/// Shows the first page that cannot be stored. Returns false if there is none.
bool PreferencesDialog::showInvalidPage()
{
    const auto invalid = std::find_if(m_pages.begin(), m_pages.end(),
                                      [](const Page& one) { return one.page->isChanged() && !one.page->isValid(); });
    if (invalid == m_pages.end())
        return false;
    m_tabs->setCurrentIndex(static_cast<int>(invalid - m_pages.begin()));
    invalid->page->setFocus();
    return true;
}

/// Returns false if nothing was stored because a page is not valid.
bool PreferencesDialog::apply()
{
    if (showInvalidPage())
        return false;
    for (const Page& one : m_pages)
        if (one.page->isChanged())
            Kelta::guarded(tr("A page of the preferences cannot be stored"), [&one] { one.page->store(); });
    QSettings settings;
    settings.sync();
    if (settings.status() == QSettings::AccessError)
        Kelta::MessageLog::warning(
            tr("The preferences are in use, but cannot be stored for the next start: \"%1\" cannot be written.")
                .arg(QDir::toNativeSeparators(settings.fileName())));
    updateButtons();
    return true;
}

void PreferencesDialog::accept()
{
    if (apply())
        QDialog::accept();
}

void openPreferences()
{
    MainWindow& window = *MainWindow::get_main_window_inst();
    // A dialog that has just been closed is destroyed later.
    auto* const open = window.findChild<PreferencesDialog*>(QString(), Qt::FindDirectChildrenOnly);
    if (open != nullptr && open->isVisible())
        return open->activateWindow();
    auto* const dialog = new PreferencesDialog(window.contributions().preferencesPages(), &window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

} // namespace Gui
