#pragma once

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Gui {

/// Whether a line separates a section of a menu or toolbar from the commands before it.
enum class SectionLine
{
    Shown,
    Hidden,
};

/// A tree of command names, from which menus or toolbars are built. An item without children names a command, or, as
/// "Separator", a line between commands. An item with children is a menu or a toolbar with the item's text as its
/// title. An item owns its children.
///
/// The children of a menu or toolbar can be divided into named sections, so that modules can add commands at the end of
/// a section. The items of a section are those between its beginning and the next section or separator.
template <typename Item>
class CommandTree
{
public:
    CommandTree() = default;
    CommandTree(const CommandTree&) = delete;
    CommandTree& operator=(const CommandTree&) = delete;

    static constexpr const char* separator = "Separator";

    void setCommand(std::string text) { m_text = std::move(text); }
    const std::string& command() const { return m_text; }
    bool isSeparator() const { return m_text == separator; }
    /// Returns true if the item begins a section, false if it names a command.
    bool isSection() const { return !m_section.empty(); }
    const std::string& section() const { return m_section; }

    bool hasItems() const { return !m_items.empty(); }
    const std::vector<std::unique_ptr<Item>>& items() const { return m_items; }

    /// Returns the item with this text among this item and all items below it; null if there is none.
    // NOLINTNEXTLINE(misc-no-recursion): menus are a few levels deep
    Item* look_for_item(std::string_view text)
    {
        if (m_text == text)
            return static_cast<Item*>(this);
        for (const auto& item : m_items)
            if (Item* const found = item->look_for_item(text))
                return found;
        return nullptr;
    }

    /// Inserts `item` in front of the child `before`, or at the end if `before` is null or not a child. Takes ownership
    /// of `item`; null is ignored.
    void insert_item(const Item* before, Item* item)
    {
        std::unique_ptr<Item> owned(item);
        if (owned == nullptr)
            return;
        auto place = m_items.begin();
        while (place != m_items.end() && (before == nullptr || place->get() != before))
            ++place;
        m_items.insert(place, std::move(owned));
    }

    /// Adds a child at the end. Takes ownership of `item`.
    CommandTree& operator<<(Item* item)
    {
        insert_item(nullptr, item);
        return *this;
    }

    /// Adds a child for the command `text`, or a "Separator".
    CommandTree& operator<<(const char* text)
    {
        m_items.push_back(makeItem(text));
        return *this;
    }

    /// Begins a section at the end: items that are added afterwards belong to it.
    void beginSection(std::string_view name, SectionLine line)
    {
        std::unique_ptr<Item> item = makeItem(line == SectionLine::Shown ? separator : "");
        item->m_section = name;
        m_items.push_back(std::move(item));
    }

    /// Adds a child at the end of a section. If the section does not exist, begins it at the end, after a line. Takes
    /// ownership of `item`; null is ignored.
    void addToSection(std::string_view name, Item* item)
    {
        std::unique_ptr<Item> owned(item);
        if (owned == nullptr)
            return;
        auto place = std::find_if(m_items.begin(), m_items.end(),
                                  [name](const auto& child) { return child->isSection() && child->section() == name; });
        if (place == m_items.end()) {
            beginSection(name, SectionLine::Shown);
            place = std::prev(m_items.end());
        }
        place = std::find_if(std::next(place), m_items.end(),
                             [](const auto& child) { return child->isSection() || child->isSeparator(); });
        m_items.insert(place, std::move(owned));
    }

private:
    static std::unique_ptr<Item> makeItem(const char* text)
    {
        auto item = std::make_unique<Item>();
        item->setCommand(text);
        return item;
    }

    std::string m_text;
    std::string m_section;
    std::vector<std::unique_ptr<Item>> m_items;
};

/// An item of a menu bar or a context menu.
class MenuItem final : public CommandTree<MenuItem>
{};

/// A set of toolbars, a toolbar, or an entry of a toolbar.
class ToolBarGadget final : public CommandTree<ToolBarGadget>
{};

} // namespace Gui
