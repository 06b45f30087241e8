#include "Gui/ViewFeeder.h"

#include "GuiTesting.h"

#include <QMenu>

namespace {

using testing::IsEmpty;

using ViewFeederTest = vxtest::Host;

TEST_F(ViewFeederTest, AllowsEverythingAndDoesNothingByItself)
{
    Gui::ViewFeederProjectObject node;
    EXPECT_FALSE(node.useNewSelectionModel());
    EXPECT_TRUE(node.onDelete({}));
    EXPECT_THAT(node.getDisplayModes(), IsEmpty());
    EXPECT_TRUE(node.isShow());
    EXPECT_FALSE(node.setEdit(0));
    EXPECT_FALSE(node.on_double_clicked());
    EXPECT_EQ(node.getObject(), nullptr);
    EXPECT_STREQ(node.getPixmapName(), "");
    Gui::MenuItem items;
    QMenu menu;
    node.build_context_menu("Tree", &items);
    node.build_context_menu(&menu, nullptr, "");
    EXPECT_FALSE(items.hasItems());
    EXPECT_TRUE(menu.isEmpty());
}

TEST_F(ViewFeederTest, KeepsTheDisplayMode)
{
    Gui::ViewFeederProject node;
    node.setDisplayMode("Shaded");
    EXPECT_EQ(node.getDisplayMode(), "Shaded");
    node.setDisplayMode(nullptr);
    EXPECT_EQ(node.getDisplayMode(), "");
}

TEST_F(ViewFeederTest, IsCreatedByItsName)
{
    for (const char* const name : {"Gui::ViewFeederProject", "Gui::ViewFeederProjectObject"}) {
        const auto created = Kelta::RootClass::createByName(name);
        ASSERT_NE(created, nullptr);
        EXPECT_TRUE(created->is_inherited_from(Gui::ViewFeeder::getClassTypeId()));
    }
    EXPECT_EQ(Kelta::RootClass::createByName("Gui::ViewFeeder"), nullptr);
}

} // namespace
