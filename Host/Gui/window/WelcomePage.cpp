#include "window/WelcomePage.h"

#include "Gui/CommandController.h"
#include "Gui/WindowTitle.h"
#include "Obj/Project.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Gui {

namespace {

/// The texts of the page if no module or several modules contribute a title. In the order of WelcomeStep.
struct HostTexts
{
    const char* title;
    const char* text;
};

constexpr HostTexts hostTexts[] = {
    {QT_TRANSLATE_NOOP("Gui::WelcomePage", "No project is open"),
     QT_TRANSLATE_NOOP("Gui::WelcomePage", "Make a new project, or open a saved one.")},
    {QT_TRANSLATE_NOOP("Gui::WelcomePage", "The project is empty"),
     QT_TRANSLATE_NOOP("Gui::WelcomePage", "The project menu offers what can be added.")},
    {QT_TRANSLATE_NOOP("Gui::WelcomePage", "No document is open"),
     QT_TRANSLATE_NOOP("Gui::WelcomePage", "Double-click an object in the project explorer.")},
};

constexpr HostTexts withoutModules = {
    QT_TRANSLATE_NOOP("Gui::WelcomePage", "No module is loaded"),
    QT_TRANSLATE_NOOP("Gui::WelcomePage",
                      "The message log names the modules that could not be loaded, and the reasons.")};

WelcomeStep stepOf(const Obj::Project* project)
{
    if (project == nullptr)
        return WelcomeStep::NoProject;
    return project->getObjectCount() == 0 ? WelcomeStep::EmptyProject : WelcomeStep::NoDocument;
}

bool appliesTo(const WelcomeEntry& entry, const Obj::Project* project)
{
    return entry.step == stepOf(project) &&
           (project == nullptr || entry.projectClass.empty() ||
            project->is_inherited_from(Kelta::TypeInfo::find(entry.projectClass.c_str())));
}

/// Returns the entries that apply now.
std::vector<const WelcomeEntry*> entriesFor(const Obj::Project* project, const std::vector<WelcomeEntry>& all)
{
    std::vector<const WelcomeEntry*> entries;
    for (const WelcomeEntry& entry : all)
        if (appliesTo(entry, project))
            entries.push_back(&entry);
    return entries;
}

bool haveOneTitle(const std::vector<const WelcomeEntry*>& entries)
{
    return !entries.empty() && std::all_of(entries.begin(), entries.end(), [&](const WelcomeEntry* entry) {
        return entry->title == entries.front()->title;
    });
}

bool canRun(const std::string& command, const std::vector<const WelcomeEntry*>& entries)
{
    return std::all_of(entries.begin(), entries.end(), [&command](const WelcomeEntry* entry) {
        const auto& offered = entry->commands;
        return !entry->canRun || std::find(offered.begin(), offered.end(), command) == offered.end() || entry->canRun();
    });
}

} // namespace

WelcomePage::WelcomePage(CommandController& commands, const Contributions& contributions, QWidget* parent)
    : QWidget(parent),
      m_commands(commands),
      m_contributions(contributions),
      m_title(new QLabel(this)),
      m_text(new QLabel(this)),
      m_buttonRow(new QHBoxLayout),
      m_listTitle(new QLabel(this)),
      m_links(new QVBoxLayout)
{
    setObjectName(QStringLiteral("welcomePage"));
    QFont font = m_title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    m_title->setFont(font);
    for (QLabel* const label : {m_title, m_text, m_listTitle}) {
        label->setAlignment(Qt::AlignCenter);
        label->setTextFormat(Qt::PlainText);
    }
    m_text->setWordWrap(true);
    buildLayout();
}

WelcomePage::~WelcomePage() = default;

void WelcomePage::refresh(const Obj::Project* project)
{
    const WelcomeStep step = stepOf(project);
    const std::vector<const WelcomeEntry*> entries = entriesFor(project, m_contributions.welcomeEntries());
    const PageOutline outline = outlineOf(step, entries);
    showTexts(outline);
    showButtons(outline.buttons);
    for (QPushButton* const button : m_buttons)
        button->setEnabled(canRun(button->objectName().toStdString(), entries));
    showLists(step);
}

PageOutline WelcomePage::outline() const
{
    return outlineOf(WelcomeStep::NoProject, entriesFor(nullptr, m_contributions.welcomeEntries()));
}

void WelcomePage::showOutline(const PageOutline& outline)
{
    showTexts(outline);
    showButtons(outline.buttons);
    showLists(WelcomeStep::NoProject);
    // The first widget that gets the focus is one of the complete window.
    for (QPushButton* const button : findChildren<QPushButton*>())
        button->setFocusPolicy(Qt::NoFocus);
}

void WelcomePage::removeOutline()
{
    replaceButtons({});
    replaceLinks({}, {});
    m_shownLinks.clear();
}

void WelcomePage::buildLayout()
{
    auto* const layout = new QVBoxLayout(this);
    layout->addStretch(2);
    layout->addWidget(m_title);
    layout->addWidget(m_text);
    layout->addSpacing(12);
    layout->addLayout(m_buttonRow);
    layout->addSpacing(12);
    layout->addWidget(m_listTitle);
    layout->addLayout(m_links);
    layout->addStretch(3);
    m_buttonRow->addStretch();
    m_buttonRow->addStretch();
}

PageOutline WelcomePage::outlineOf(WelcomeStep step, const std::vector<const WelcomeEntry*>& entries) const
{
    const bool hasModules = !m_contributions.welcomeEntries().empty();
    const HostTexts& host = hasModules ? hostTexts[static_cast<std::size_t>(step)] : withoutModules;
    QStringList texts;
    for (const WelcomeEntry* const entry : entries)
        texts << entry->text.translated();
    PageOutline outline{haveOneTitle(entries) ? entries.front()->title.translated() : tr(host.title),
                        texts.isEmpty() ? tr(host.text) : texts.join(QLatin1Char('\n')),
                        {}};
    for (const std::string& name : offeredCommands(step, entries))
        outline.buttons.push_back({QString::fromStdString(name), m_commands.findCommand(name)->get_menu_info()});
    return outline;
}

void WelcomePage::showTexts(const PageOutline& outline)
{
    m_title->setText(outline.title);
    m_text->setText(outline.text);
}

void WelcomePage::showButtons(const std::vector<PageOutline::Button>& buttons)
{
    const auto shows = [](const QPushButton* shown, const PageOutline::Button& button) {
        return shown->objectName() == button.command;
    };
    if (!std::equal(m_buttons.begin(), m_buttons.end(), buttons.begin(), buttons.end(), shows))
        replaceButtons(buttons);
    for (std::size_t i = 0; i < buttons.size(); ++i)
        m_buttons[i]->setText(buttons[i].text);
}

/// Returns the existing commands, each once. Opening a file and the example of the program are always offered.
std::vector<std::string> WelcomePage::offeredCommands(WelcomeStep step,
                                                      const std::vector<const WelcomeEntry*>& entries) const
{
    std::vector<std::string> names;
    const auto offer = [&](const std::string& name) {
        if (m_commands.findCommand(name) != nullptr && std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    };
    for (const WelcomeEntry* const entry : entries)
        std::for_each(entry->commands.begin(), entry->commands.end(), offer);
    if (step == WelcomeStep::NoProject)
        for (const char* const name : {"Std_Open", "Std_OpenExample"})
            offer(name);
    return names;
}

void WelcomePage::replaceButtons(const std::vector<PageOutline::Button>& buttons)
{
    // A button's own command may replace the button, so the button is destroyed later.
    for (QPushButton* const button : m_buttons) {
        button->hide();
        button->setObjectName(QString());
        button->deleteLater();
    }
    m_buttons.clear();
    for (const PageOutline::Button& button : buttons)
        addButton(button.command);
    setFocusProxy(m_buttons.empty() ? nullptr : m_buttons.front());
}

void WelcomePage::addButton(const QString& commandName)
{
    auto* const button = new QPushButton(this);
    button->setObjectName(commandName);
    connect(button, &QPushButton::clicked, this,
            [this, name = commandName.toStdString()] { m_commands.runCommand(name); });
    // Before the stretch at the end of the row.
    m_buttonRow->insertWidget(m_buttonRow->count() - 1, button);
    m_buttons.push_back(button);
    button->show();
}

void WelcomePage::showLists(WelcomeStep step)
{
    QString title;
    std::vector<WelcomeLink> links;
    for (const WelcomeList& list : m_contributions.welcomeLists()) {
        if (list.step != step)
            continue;
        title = list.title.translated();
        for (WelcomeLink& link : list.entries())
            links.push_back(std::move(link));
    }
    QStringList shown{title};
    for (const WelcomeLink& link : links)
        shown << link.text << link.toolTip;
    m_listTitle->setVisible(!links.empty());
    if (shown != m_shownLinks)
        replaceLinks(title, links);
    m_shownLinks = shown;
}

void WelcomePage::replaceLinks(const QString& title, const std::vector<WelcomeLink>& links)
{
    m_listTitle->setText(title);
    // A link may be replaced while it is clicked, so it is destroyed later.
    while (QLayoutItem* const item = m_links->takeAt(0)) {
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    for (const WelcomeLink& link : links) {
        auto* const button = new QPushButton(escapedForMnemonics(link.text), this);
        button->setObjectName(QStringLiteral("welcomeLink"));
        button->setFlat(true);
        button->setToolTip(escapedForToolTip(link.toolTip));
        connect(button, &QPushButton::clicked, this, [open = link.open] { open(); });
        m_links->addWidget(button, 0, Qt::AlignHCenter);
        button->show();
    }
}

} // namespace Gui
