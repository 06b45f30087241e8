#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Gui {

/// A tree of command names, from which menus or toolbars are built. An item without children stands for the command of
/// its text, or, as "Separator", for a line between commands; one with children is a menu or a toolbar of that text.
/// An item owns its children.
template <typename Item>
class CommandTree
{
public:
    CommandTree() = default;
    CommandTree(const CommandTree&) = delete;
    CommandTree& operator=(const CommandTree&) = delete;

    static constexpr const char* separator = "Separator";

    void set_command(std::string text) { m_text = std::move(text); }
    const std::string& command() const { return m_text; }
    bool is_separator() const { return m_text == separator; }

    bool has_items() const { return !m_items.empty(); }
    const std::vector<std::unique_ptr<Item>>& items() const { return m_items; }

    /// The item of this text among this one and all below it; null when there is none.
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

    /// Inserts `item` in front of the child `before`, at the end when that is null or no child. Takes ownership of
    /// `item`; null is ignored.
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
        auto item = std::make_unique<Item>();
        item->set_command(text);
        m_items.push_back(std::move(item));
        return *this;
    }

private:
    std::string m_text;
    std::vector<std::unique_ptr<Item>> m_items;
};

/// An item of a menu bar or a context menu.
class MenuItem final : public CommandTree<MenuItem>
{};

/// A set of toolbars, a toolbar, or an entry of one.
class ToolBarGadget final : public CommandTree<ToolBarGadget>
{};

} // namespace Gui
