#include "vxMaterial/gui/ViewFeederMaterialObject.h"

#include "TestObjects.h"
#include "VirtualOrder.h"
#include "WorkbenchTesting.h"

#include "Gui/PictureFactory.h"
#include "Gui/ProjectExplorer.h"
#include "Gui/Translator.h"
#include "Obj/ObjectHomes.h"

#include <QMenu>
#include <QWindow>

#include <type_traits>

namespace {

/// Returns the properties that reached editors.
std::vector<const Obj::Property*>& arrivedProperties()
{
    static std::vector<const Obj::Property*> properties;
    return properties;
}

} // namespace

// The editor's own operation is empty, so that a call of it would have no visible effect. The loader finds this
// definition first, also for calls from inside the plug-in.
void MatGui::MaterialView::updateCell(const Obj::Property* property)
{
    arrivedProperties().push_back(property);
}

namespace {

using MatGui::ViewFeederMaterialObject;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using vxtest::slotOf;

/// A node whose protected operations are accessible to the tests.
class OpenNode : public ViewFeederMaterialObject
{
public:
    using ViewFeederMaterialObject::get_property_data;
    using ViewFeederMaterialObject::showMaterialView;
    using ViewFeederMaterialObject::updateData;
};

class OpenObjectNode : public Gui::ViewFeederProjectObject
{
public:
    using ViewFeederProjectObject::get_property_data_ref;
};

class MaterialNode : public vxtest::Workbench
{
protected:
    MaterialNode() : project(makeProject()), material(addMaterial(project, "Frame")), node(feeder(material))
    {
        arrivedProperties().clear();
    }

    static ViewFeederMaterialObject& feeder(Mat::MaterialObject& object)
    {
        return dynamic_cast<ViewFeederMaterialObject&>(nodeOf(object));
    }

    std::vector<std::string> contextMenu() const
    {
        Gui::MenuItem menu;
        node.build_context_menu("Tree", &menu);
        std::vector<std::string> names;
        for (const auto& item : menu.items())
            names.push_back(item->command());
        return names;
    }

    Mat::DocumentMaterial& project;
    Mat::MaterialObject& material;
    ViewFeederMaterialObject& node;
};

TEST_F(MaterialNode, IsTheNodeOfAMaterial)
{
    EXPECT_STREQ(node.getTypeId().get_name(), "MatGui::ViewFeederMaterialObject");
    EXPECT_STREQ(node.getTypeId().getParent().get_name(), "Gui::ViewFeederProjectObject");
    EXPECT_STREQ(node.getPixmapName(), "norvex_materialobject");
    EXPECT_EQ(node.getMaterialObject(), &material);
}

TEST_F(MaterialNode, HasNoMaterialWhenItIsAttachedToNone)
{
    vxtest::initForeignClasses();
    ViewFeederMaterialObject other;
    EXPECT_EQ(other.getMaterialObject(), nullptr);
    other.attach(*project.add_object("Fem::FemLoad", "Load"));
    EXPECT_EQ(other.getMaterialObject(), nullptr);
    EXPECT_TRUE(other.on_double_clicked());
    EXPECT_TRUE(window->getMdiWindows().isEmpty());
}

TEST(ViewFeederMaterialObject, HasTheVirtualOperationsInTheOrderOfTheHost)
{
    using Gui::ViewFeeder;
    using TextMenu = void (ViewFeeder::*)(const char*, Gui::MenuItem*);
    using ActionMenu = void (ViewFeeder::*)(QMenu*, QObject*, const char*);
    const std::size_t first = slotOf(&ViewFeeder::useNewSelectionModel);
    const std::vector<std::size_t> places = {
        slotOf(&ViewFeeder::onDelete),
        slotOf(&ViewFeeder::updateData),
        slotOf(&ViewFeeder::setDisplayMode),
        slotOf(&ViewFeeder::getDisplayModes),
        slotOf(&ViewFeeder::isShow),
        slotOf(&ViewFeeder::setEdit),
        slotOf(&ViewFeeder::on_double_clicked),
        slotOf(static_cast<TextMenu>(&ViewFeeder::build_context_menu)),
        slotOf(static_cast<ActionMenu>(&ViewFeeder::build_context_menu)),
    };
    EXPECT_THAT(places, ElementsAre(first + 1, first + 2, first + 3, first + 4, first + 5, first + 6, first + 7,
                                    first + 8, first + 9));
    EXPECT_EQ(slotOf(&ViewFeederMaterialObject::setEdit), slotOf(&ViewFeeder::setEdit));
    EXPECT_EQ(slotOf(&OpenNode::updateData), slotOf(&ViewFeeder::updateData));
}

TEST_F(MaterialNode, HasAColourThatTheUserSeesAndEdits)
{
    Obj::Property* const property = node.get_property_by_name("MaterialColor");
    ASSERT_EQ(property, &node.materialColor);
    EXPECT_STREQ(node.get_property_group("MaterialColor"), "Definition");
    EXPECT_EQ(node.get_property_type("MaterialColor"), 8);
    EXPECT_STREQ(node.get_property_description("MaterialColor"), "Color of material.");
    EXPECT_FALSE(node.is_read_only("MaterialColor"));
    EXPECT_FALSE(node.is_hidden("MaterialColor"));
    const Obj::Color colour = node.materialColor.getValue();
    EXPECT_FLOAT_EQ(colour.red, 129.0F / 255.0F);
    EXPECT_FLOAT_EQ(colour.green, 146.0F / 255.0F);
    EXPECT_FLOAT_EQ(colour.blue, 164.0F / 255.0F);
    EXPECT_EQ(colour.alpha, 0.0F);
}

TEST_F(MaterialNode, DescribesItsPropertiesBeforeThoseOfEveryNode)
{
    EXPECT_EQ(OpenNode().get_property_data().parent(), OpenObjectNode::get_property_data_ref());
}

TEST_F(MaterialNode, ReturnsFixedValuesToTheHost)
{
    EXPECT_TRUE(node.isShow());
    EXPECT_FALSE(node.useNewSelectionModel());
    EXPECT_TRUE(node.onDelete({}));
    EXPECT_TRUE(node.onDelete({"part"}));
    EXPECT_THAT(node.getDisplayModes(), ElementsAre("MaterialObject"));
    node.setDisplayMode("MaterialObject");
    EXPECT_EQ(node.getDisplayMode(), "MaterialObject");
}

TEST_F(MaterialNode, OffersItsCommandsInTheirOrder)
{
    EXPECT_THAT(contextMenu(), ElementsAre("Mat_Edit", "Separator", "Mat_AddMaterial", "Std_Copy", "Std_Paste",
                                           "Std_DuplicateSelection", "Mat_Delete", "Separator", "Std_Suppress"));
    material.setSuppressed(true);
    ASSERT_THAT(contextMenu(), SizeIs(9));
    EXPECT_EQ(contextMenu().back(), "Std_Unsuppress");
}

/// Stores the data of the action that called it.
class Receiver : public QObject
{
    Q_OBJECT

public:
    QVariant data;

public Q_SLOTS:
    void chosen() { data = qobject_cast<QAction*>(sender())->data(); }
};

TEST_F(MaterialNode, AddsAnActionThatCarriesTheEditMode)
{
    QMenu menu;
    Receiver receiver;
    node.build_context_menu(&menu, &receiver, SLOT(chosen()));
    ASSERT_EQ(menu.actions().size(), 1);
    const QAction& action = *menu.actions()[0];
    EXPECT_EQ(action.text(), "Show material");
    EXPECT_TRUE(action.shortcut().isEmpty());
    EXPECT_EQ(action.data(), QVariant(0));
    menu.actions()[0]->trigger();
    EXPECT_EQ(receiver.data, QVariant(0));
}

TEST_F(MaterialNode, NamesItsActionInTheLanguageOfTheUser)
{
    const auto shown = [this](const char* language) {
        Gui::Translator::instance()->setLanguage(QLatin1String(language));
        QMenu menu;
        node.build_context_menu(&menu, window.get(), SLOT(close()));
        Gui::Translator::instance()->setLanguage("en");
        return menu.actions()[0]->text().toStdString();
    };
    EXPECT_EQ(shown("de"), "Material anzeigen");
    EXPECT_EQ(shown("zh_CN"), "显示材料");
}

TEST_F(MaterialNode, OpensOneEditorAndActivatesItTheSecondTime)
{
    EXPECT_TRUE(node.on_double_clicked());
    MatGui::MaterialView* const editor = activeEditor();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->getMaterialObject(), &material);
    Mat::MaterialObject& other = addMaterial(project, "Other");
    nodeOf(other).on_double_clicked();
    EXPECT_NE(activeEditor(), editor);
    EXPECT_TRUE(node.on_double_clicked());
    EXPECT_EQ(activeEditor(), editor);
    EXPECT_EQ(window->getMdiWindows().size(), 2);
}

TEST_F(MaterialNode, OpensOneEditorWhenItIsDoubleClickedQuickly)
{
    Gui::ProjectExplorer& explorer = window->getProjectExplorer();
    auto& model = dynamic_cast<Gui::ProjectTreeModel&>(*explorer.model());
    model.synchronize();
    const QModelIndex index = model.indexOf(material);
    explorer.scrollTo(index);
    const QPoint position = explorer.visualRect(index).center();
    for (int i = 0; i < 5; ++i)
        QTest::mouseDClick(explorer.viewport(), Qt::LeftButton, {}, position);
    EXPECT_EQ(window->getMdiWindows().size(), 1);
    EXPECT_NE(activeEditor(), nullptr);
}

TEST_F(MaterialNode, ShowsTheMaterialInTheWindowOfTheEditor)
{
    material.label.setValue("Grün");
    node.on_double_clicked();
    const MatGui::MaterialView* const editor = activeEditor();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->windowTitle(), QStringLiteral("Grün[*]"));
    const QImage icon = editor->windowIcon().pixmap(32).toImage();
    EXPECT_EQ(icon, QIcon(Gui::PictureFactory::get_pixmap(":icons/norvex_materialobject.svg")).pixmap(32).toImage());
}

/// Returns the title that a frame shows for a window with this title, without the name of the program.
QString shownTitle(const QString& windowTitle, bool isModified)
{
    QWidget frame;
    frame.setWindowTitle(windowTitle);
    frame.setWindowModified(isModified);
    frame.show();
    return frame.windowHandle()->title().section(QStringLiteral(" - "), 0, 0);
}

TEST_F(MaterialNode, ShowsALabelLiterallyInTheTitleOfTheEditor)
{
    node.on_double_clicked();
    const MatGui::MaterialView* const editor = activeEditor();
    ASSERT_NE(editor, nullptr);
    for (const char* const label : {"[*] <b>Steel</b>[*] 100 %1", "Frame[*]", "[*]", "[*][*]", "[*[*]]", "a & b"}) {
        material.label.setValue(label);
        EXPECT_EQ(shownTitle(editor->windowTitle(), false), label);
        EXPECT_EQ(shownTitle(editor->windowTitle(), true), QString(label) + "*");
    }
}

TEST_F(MaterialNode, FollowsTheLabelInTheTitleOfTheEditor)
{
    node.on_double_clicked();
    ASSERT_NE(activeEditor(), nullptr);
    material.label.setValue("Beam");
    EXPECT_EQ(activeEditor()->windowTitle(), "Beam[*]");
    addMaterial(project, "Other").label.setValue("Another");
    EXPECT_EQ(activeEditor()->windowTitle(), "Beam[*]");
}

TEST_F(MaterialNode, OpensNothingInAnotherEditModeThanTheUsual)
{
    EXPECT_FALSE(node.setEdit(1));
    EXPECT_FALSE(node.setEdit(-1));
    EXPECT_TRUE(window->getMdiWindows().isEmpty());
}

TEST_F(MaterialNode, OpensTheEditorInTheUsualEditModeAndReturnsFalseToo)
{
    EXPECT_FALSE(node.setEdit(0));
    EXPECT_EQ(window->getMdiWindows().size(), 1);
    EXPECT_FALSE(node.setEdit(0));
    EXPECT_EQ(window->getMdiWindows().size(), 1);
}

TEST_F(MaterialNode, MakesANewEditorAfterTheUserHasClosedTheFirst)
{
    node.on_double_clicked();
    const QPointer<MatGui::MaterialView> first = activeEditor();
    window->close_current_window();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(first, nullptr);
    node.on_double_clicked();
    EXPECT_NE(activeEditor(), nullptr);
    EXPECT_EQ(window->getMdiWindows().size(), 1);
}

TEST_F(MaterialNode, MakesANewEditorRightAfterTheUserHasClosedTheFirst)
{
    node.on_double_clicked();
    const QPointer<MatGui::MaterialView> first = activeEditor();
    window->close_current_window();
    ASSERT_NE(first, nullptr) << "the event loop has not run";
    EXPECT_TRUE(node.on_double_clicked());
    const QPointer<MatGui::MaterialView> second = activeEditor();
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second, first);
    EXPECT_EQ(window->getMdiWindows().size(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(first, nullptr);
    EXPECT_EQ(activeEditor(), second);
    material.label.setValue("Beam");
    EXPECT_EQ(second->windowTitle(), "Beam[*]");
}

constexpr char projectWithMaterials[] = "Test::ProjectWithMaterials";

TEST_F(MaterialNode, OpensNothingForAMaterialInAProjectOfAnotherKind)
{
    // Another module may have projects that take materials.
    vxtest::ForeignProject<projectWithMaterials>::init();
    Obj::registerHome("Mat::MaterialObject", projectWithMaterials);
    Obj::Project& other = *Obj::Application::instance().createProject(projectWithMaterials, "Other");
    ViewFeederMaterialObject& foreign = feeder(addMaterial(other));
    ASSERT_NE(foreign.getMaterialObject(), nullptr);
    EXPECT_TRUE(foreign.on_double_clicked());
    EXPECT_FALSE(foreign.setEdit(0));
    select({foreign.getMaterialObject()});
    EXPECT_TRUE(run("Mat_Edit"));
    EXPECT_TRUE(window->getMdiWindows().isEmpty());
}

TEST_F(MaterialNode, ReturnsTheOpenEditor)
{
    OpenNode open;
    EXPECT_EQ(open.showMaterialView(), nullptr);
    open.attach(material);
    MatGui::MaterialView* const editor = open.showMaterialView();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(open.showMaterialView(), editor);
    EXPECT_EQ(window->getMdiWindows().size(), 1);
}

TEST_F(MaterialNode, DoesNothingWhenAPropertyChangesWithoutAnEditor)
{
    material.label.setValue("Beam");
    EXPECT_THAT(arrivedProperties(), IsEmpty());
}

TEST_F(MaterialNode, PassesAChangedPropertyToTheEditorExactlyOnce)
{
    node.on_double_clicked();
    material.label.setValue("Beam");
    EXPECT_THAT(arrivedProperties(), ElementsAre(&material.label));
}

TEST_F(MaterialNode, PassesNothingOnWhenOtherThanAPropertyChanges)
{
    node.on_double_clicked();
    material.setSuppressed(true);
    EXPECT_THAT(arrivedProperties(), IsEmpty());
}

TEST_F(MaterialNode, TakesItsEditorWithIt)
{
    node.on_double_clicked();
    const QPointer<MatGui::MaterialView> editor = activeEditor();
    project.removeObject(material.getObjectId());
    EXPECT_EQ(editor, nullptr);
    EXPECT_TRUE(window->getMdiWindows().isEmpty());
}

TEST_F(MaterialNode, TakesTheEditorsOfAllMaterialsWithTheProject)
{
    for (int i = 0; i < 10; ++i)
        nodeOf(addMaterial(project)).on_double_clicked();
    EXPECT_EQ(window->getMdiWindows().size(), 10);
    Obj::Application::instance().closeProject(project);
    EXPECT_TRUE(window->getMdiWindows().isEmpty());
}

TEST_F(MaterialNode, OpensNothingWithoutAMainWindow)
{
    window.reset();
    EXPECT_TRUE(node.on_double_clicked());
    EXPECT_FALSE(node.setEdit(0));
}

} // namespace

#include "ViewFeederMaterialObjectTest.moc"
