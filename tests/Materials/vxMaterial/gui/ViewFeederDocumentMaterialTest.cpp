#include "vxMaterial/gui/ViewFeederDocumentMaterial.h"

#include "WorkbenchTesting.h"

#include "Gui/GuiProject.h"

#include <QMenu>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DocumentNode : public vxtest::Workbench
{
protected:
    static Gui::ViewFeederProject& node()
    {
        return *Gui::GuiApplication::Instance->get_project(&makeProject())->get_view_feeder();
    }
};

TEST_F(DocumentNode, IsTheNodeOfAMaterialProject)
{
    Gui::ViewFeederProject& feeder = node();
    EXPECT_STREQ(feeder.getTypeId().get_name(), "MatGui::ViewFeederDocumentMaterial");
    EXPECT_STREQ(feeder.getTypeId().getParent().get_name(), "Gui::ViewFeederProject");
    EXPECT_STREQ(feeder.getPixmapName(), "norvex_materialproject");
}

TEST_F(DocumentNode, HasNoPropertiesOfItsOwn)
{
    std::vector<Obj::Property*> properties;
    node().get_property_array(properties);
    EXPECT_THAT(properties, IsEmpty());
}

/// Gives the tests access to the descriptions of a node's properties.
class OpenProjectNode : public Gui::ViewFeederProject
{
public:
    using ViewFeederProject::get_property_data;
    using ViewFeederProject::get_property_data_ref;
};

TEST_F(DocumentNode, DescribesItsPropertiesBeforeThoseOfEveryProjectNode)
{
    const Obj::PropertyCoreData& data = (node().*&OpenProjectNode::get_property_data)();
    EXPECT_NE(&data, OpenProjectNode::get_property_data_ref());
    EXPECT_EQ(data.parent(), OpenProjectNode::get_property_data_ref());
}

TEST_F(DocumentNode, OffersItsCommandsInTheirOrder)
{
    Gui::MenuItem menu;
    node().build_context_menu("Tree", &menu);
    std::vector<std::string> names;
    for (const auto& item : menu.items())
        names.push_back(item->command());
    EXPECT_THAT(names, ElementsAre("Mat_AddMaterial", "Separator", "Mat_Export"));
}

TEST_F(DocumentNode, AddsNoActionsOfItsOwn)
{
    QMenu menu;
    node().build_context_menu(&menu, window.get(), SLOT(close()));
    EXPECT_TRUE(menu.isEmpty());
}

TEST_F(DocumentNode, NeverVetoesDeletion)
{
    Gui::ViewFeederProject& feeder = node();
    EXPECT_TRUE(feeder.onDelete({}));
    EXPECT_TRUE(feeder.onDelete({"part"}));
}

TEST_F(DocumentNode, OpensNothingOnADoubleClick)
{
    EXPECT_TRUE(node().on_double_clicked());
    EXPECT_TRUE(window->getMdiWindows().isEmpty());
}

} // namespace
