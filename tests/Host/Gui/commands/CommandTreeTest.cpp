#include "Gui/CommandTree.h"

#include <gmock/gmock.h>

namespace {

using Gui::MenuItem;
using testing::ElementsAre;

std::vector<std::string> childrenOf(const MenuItem& item)
{
    std::vector<std::string> names;
    for (const auto& child : item.items())
        names.push_back(child->command());
    return names;
}

MenuItem* makeItem(const char* text)
{
    auto* const item = new MenuItem;
    item->setCommand(text);
    return item;
}

TEST(CommandTree, AddsAtTheEnd)
{
    MenuItem root;
    root << "A"
         << "Separator" << makeItem("B");
    EXPECT_THAT(childrenOf(root), ElementsAre("A", "Separator", "B"));
    EXPECT_TRUE(root.items()[1]->isSeparator());
    EXPECT_FALSE(root.items()[0]->isSeparator());
}

TEST(CommandTree, InsertsBeforeAChild)
{
    MenuItem root;
    root << "A"
         << "C";
    root.insert_item(root.look_for_item("C"), makeItem("B"));
    root.insert_item(root.look_for_item("A"), makeItem("0"));
    EXPECT_THAT(childrenOf(root), ElementsAre("0", "A", "B", "C"));
}

TEST(CommandTree, InsertsAtTheEndBeforeNullAndBeforeWhatIsNoChild)
{
    MenuItem root;
    const MenuItem stranger;
    root << "A";
    root.insert_item(nullptr, makeItem("B"));
    root.insert_item(&stranger, makeItem("C"));
    EXPECT_THAT(childrenOf(root), ElementsAre("A", "B", "C"));
}

TEST(CommandTree, IgnoresNull)
{
    MenuItem root;
    root.insert_item(nullptr, nullptr);
    root << static_cast<MenuItem*>(nullptr);
    EXPECT_FALSE(root.hasItems());
}

TEST(CommandTree, FindsItemsAtAnyDepth)
{
    MenuItem root;
    MenuItem* const menu = makeItem("&Edit");
    *menu << "Copy";
    root << menu;
    EXPECT_EQ(root.look_for_item("&Edit"), menu);
    EXPECT_EQ(root.look_for_item("Copy"), menu->items()[0].get());
    EXPECT_EQ(root.look_for_item("Paste"), nullptr);
}

TEST(CommandTree, DividesItsChildrenIntoSections)
{
    MenuItem menu;
    menu.beginSection("New", Gui::SectionLine::Hidden);
    menu.beginSection("Open", Gui::SectionLine::Shown);
    menu << "Open";
    EXPECT_THAT(childrenOf(menu), ElementsAre("", "Separator", "Open"));
    EXPECT_TRUE(menu.items()[0]->isSection());
    EXPECT_FALSE(menu.items()[0]->isSeparator());
    EXPECT_TRUE(menu.items()[1]->isSeparator());
    EXPECT_EQ(menu.items()[1]->section(), "Open");
    EXPECT_FALSE(menu.items()[2]->isSection());
}

TEST(CommandTree, AddsAtTheEndOfASection)
{
    MenuItem menu;
    menu.beginSection("New", Gui::SectionLine::Hidden);
    menu.beginSection("Open", Gui::SectionLine::Hidden);
    menu << "Open"
         << "Separator"
         << "After";
    menu.addToSection("New", makeItem("New"));
    menu.addToSection("Open", makeItem("Second"));
    menu.addToSection("New", makeItem("Third"));
    menu.addToSection("New", nullptr);
    EXPECT_THAT(childrenOf(menu), ElementsAre("", "New", "Third", "", "Open", "Second", "Separator", "After"));
}

TEST(CommandTree, BeginsASectionThatDoesNotExistAtTheEnd)
{
    MenuItem menu;
    menu << "A";
    menu.addToSection("Own", makeItem("B"));
    menu.addToSection("Own", makeItem("C"));
    EXPECT_THAT(childrenOf(menu), ElementsAre("A", "Separator", "B", "C"));
    EXPECT_EQ(menu.items()[1]->section(), "Own");
}

} // namespace
