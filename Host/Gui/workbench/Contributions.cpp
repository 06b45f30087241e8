#include "Gui/Contributions.h"

#include "Gui/TreeFilter.h"

#include <QCoreApplication>

#include <algorithm>
#include <functional>
#include <utility>

namespace Gui {

namespace {

bool isSameWelcome(const WelcomeEntry& a, const WelcomeEntry& b)
{
    return a.step == b.step && a.projectClass == b.projectClass && a.title == b.title && a.text == b.text &&
           a.commands == b.commands;
}

} // namespace

QString TranslatableText::translated() const
{
    return QCoreApplication::translate(context, source);
}

Contributions::Contributions() = default;

Contributions::~Contributions() = default;

void Contributions::addToMenu(const char* menu, const char* section, const char* command, const char* workbench)
{
    add(m_menuPlaces, {menu, section, command, workbench}, std::equal_to<>());
}

void Contributions::addToToolBar(const char* bar, const char* section, const char* command, const char* workbench)
{
    add(m_toolBarPlaces, {bar, section, command, workbench}, std::equal_to<>());
}

void Contributions::addToTreeMenu(const char* command)
{
    add(m_treeMenu, std::string(command), std::equal_to<>());
}

void Contributions::addWelcomeEntry(WelcomeEntry entry)
{
    add(m_welcomeEntries, std::move(entry), isSameWelcome);
}

void Contributions::addWelcomeList(WelcomeList list)
{
    add(m_welcomeLists, std::move(list),
        [](const WelcomeList& a, const WelcomeList& b) { return a.step == b.step && a.title == b.title; });
}

void Contributions::addAboutText(TranslatableText text)
{
    add(m_aboutTexts, text, std::equal_to<>());
}

void Contributions::addDock(DockEntry entry)
{
    add(m_docks, std::move(entry), [](const DockEntry& a, const DockEntry& b) { return a.name == b.name; });
}

void Contributions::addPreferencesPage(PreferencesEntry entry)
{
    add(m_preferencesPages, std::move(entry),
        [](const PreferencesEntry& a, const PreferencesEntry& b) { return a.name == b.name; });
}

void Contributions::addWorkbench(WorkbenchEntry entry)
{
    add(m_workbenches, std::move(entry),
        [](const WorkbenchEntry& a, const WorkbenchEntry& b) { return a.className == b.className; });
}

void Contributions::setTreeFilter(std::unique_ptr<TreeFilter> filter)
{
    // The former filter lives until its users have heard of the new one.
    m_treeFilter.swap(filter);
    Q_EMIT changed();
}

template <typename Entry, typename IsSame>
void Contributions::add(std::vector<Entry>& entries, Entry entry, const IsSame& isSame)
{
    const auto same = [&](const Entry& other) { return isSame(other, entry); };
    if (std::any_of(entries.begin(), entries.end(), same))
        return;
    entries.push_back(std::move(entry));
    Q_EMIT changed();
}

} // namespace Gui
