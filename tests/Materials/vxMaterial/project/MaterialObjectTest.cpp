#include "vxMaterial/project/MaterialObject.h"

#include "CommaLocale.h"
#include "MessageBoxes.h"
#include "ProjectTesting.h"

#include "Gui/MainWindow.h"
#include "Gui/Translator.h"
#include "Obj/PropertyType.h"
#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyId.h"

#include <limits>
#include <memory>
#include <type_traits>

namespace {

using Mat::MaterialObject;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using vxMat::eMaterialType;
using vxtest::MessageBoxes;

class MaterialObjectTest : public vxtest::MaterialProject
{
protected:
    /// Returns the warnings of the check of a material whose only property has this number.
    std::vector<vxtest::ShownBox> warningsFor(double number) const
    {
        MaterialObject& object = addMaterial("Steel");
        setNumber(object, vxMat::PropertyId::Density, number);
        const MessageBoxes boxes;
        const bool passes = object.check_input_data();
        EXPECT_EQ(passes, boxes.shown().empty());
        return boxes.shown();
    }

    static void expectWarning(const std::vector<vxtest::ShownBox>& boxes)
    {
        ASSERT_THAT(boxes, SizeIs(1));
        EXPECT_EQ(boxes[0].icon, QMessageBox::Warning);
        EXPECT_EQ(boxes[0].title, "Input check");
        EXPECT_EQ(boxes[0].text, "Material property defined in 'Steel' has value equal or less than zero.");
        EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok);
        EXPECT_FALSE(boxes[0].hasDefaultButton);
        EXPECT_EQ(boxes[0].parent, Gui::MainWindow::get_main_window_inst());
    }

    static void setNumber(MaterialObject& object, int id, double number)
    {
        object.getCMaterial()->setProperty(id, std::make_unique<vxMat::MaterialProperty>(id, "name", "key", number));
    }
};

TEST_F(MaterialObjectTest, StartsWithoutPropertiesInTheInitialState)
{
    const MaterialObject object;
    EXPECT_THAT(object.getCMaterial()->properties, IsEmpty());
    EXPECT_EQ(object.getCMaterial()->name, "MaterialObject");
    EXPECT_EQ(object.getObjectState(), Obj::eVXObjectState::Initial);
    EXPECT_EQ(object.getRowCounts(), 0);
    EXPECT_EQ(object.getColumnCounts(), 4);
}

TEST_F(MaterialObjectTest, KeepsARowCount)
{
    MaterialObject object;
    object.setRowCounts(12);
    EXPECT_EQ(object.getRowCounts(), 12);
}

TEST_F(MaterialObjectTest, ShowsItsIdentityAsReadOnlyHostProperties)
{
    const MaterialObject object;
    std::vector<Obj::Property*> properties;
    object.get_property_array(properties);
    std::vector<std::string> names;
    for (const Obj::Property* property : properties)
        names.emplace_back(object.get_property_name(property));
    EXPECT_THAT(names, ElementsAre("Label", "ID", "ClassLabel"));
    EXPECT_EQ(object.id.getValue(), 0);
    EXPECT_EQ(object.classLabel.getValue(), "Material");
    for (const char* name : {"ID", "ClassLabel"}) {
        EXPECT_STREQ(object.get_property_group(name), "Info");
        EXPECT_EQ(object.get_property_type(name), 1);
        EXPECT_TRUE(object.is_read_only(name));
    }
    EXPECT_STREQ(object.get_property_description("ID"), "Identity of the tree object");
    EXPECT_STREQ(object.get_property_description("ClassLabel"), "class name");
}

TEST_F(MaterialObjectTest, ChecksItsStateBeforeAPropertyChangeIsPassedOn)
{
    MaterialObject& object = addMaterial("Steel");
    setNumber(object, vxMat::PropertyId::Density, 7850);
    ASSERT_EQ(object.getObjectState(), Obj::eVXObjectState::Initial);
    Obj::eVXObjectState seen = Obj::eVXObjectState::Initial;
    const boost::signals2::scoped_connection watch =
        project->objectChanged.connect([&](Obj::ProjectObject& changed, const Obj::Property* property) {
            if (property == &object.label)
                seen = changed.getObjectState();
        });
    object.label.setValue("Stainless");
    EXPECT_EQ(seen, Obj::eVXObjectState::Ready);
}

TEST_F(MaterialObjectTest, IsReadyWithAPropertyAndInitialWithout)
{
    MaterialObject& object = addSteel("Steel");
    EXPECT_EQ(object.check_input(), Obj::eVXObjectState::Ready);
    EXPECT_EQ(object.getObjectState(), Obj::eVXObjectState::Ready);
    object.getCMaterial()->clearProperties();
    EXPECT_EQ(object.check_input(), Obj::eVXObjectState::Initial);
    EXPECT_EQ(object.getObjectState(), Obj::eVXObjectState::Initial);
}

TEST_F(MaterialObjectTest, BecomesStructuralSteelForTypeZero)
{
    const MaterialObject& object = addSteel("Mine");
    EXPECT_EQ(object.getCMaterial()->name, "Structural Steel");
    EXPECT_EQ(object.getCMaterial()->libraryGroup, 0);
    EXPECT_EQ(object.getCMaterial()->properties.at(vxMat::PropertyId::Density)->value, 7850);
}

TEST_F(MaterialObjectTest, KeepsItsMaterialForEveryOtherTypeAndChecksItsState)
{
    for (int type = -1; type < 100; ++type) {
        if (type == static_cast<int>(eMaterialType::StructuralSteel))
            continue;
        SCOPED_TRACE(type);
        MaterialObject& object = addMaterial("Mine");
        setNumber(object, vxMat::PropertyId::Density, 1.2);
        ASSERT_EQ(object.getObjectState(), Obj::eVXObjectState::Initial);
        object.initCMaterial(static_cast<eMaterialType>(type));
        ASSERT_THAT(object.getCMaterial()->properties, SizeIs(1));
        EXPECT_EQ(object.getCMaterial()->properties.at(vxMat::PropertyId::Density)->value, 1.2);
        EXPECT_EQ(object.getCMaterial()->name, "MaterialObject");
        EXPECT_EQ(static_cast<int>(object.getObjectState()), 3);
    }
}

TEST_F(MaterialObjectTest, CopiesAMaterialIntoItsOwn)
{
    MaterialObject& object = addMaterial("Copy");
    const vxMat::CMaterial* const own = object.getCMaterial();
    const vxMat::StructuralSteelNL source;
    object.setCMaterial(&source);
    EXPECT_EQ(object.getCMaterial(), own);
    EXPECT_EQ(own->name, source.name);
    EXPECT_EQ(own->libraryGroup, 0);
    EXPECT_EQ(own->properties.size(), source.properties.size());
}

TEST_F(MaterialObjectTest, ReachesTheDatabaseOfItsProject)
{
    EXPECT_EQ(&addMaterial("A").getMatMgr(), &project->getMatMgr());
}

TEST_F(MaterialObjectTest, IsAlwaysToBeRunAndExecutesNothing)
{
    MaterialObject& object = addMaterial("A");
    // Changes the material without the object, whose state is not updated.
    setNumber(object, vxMat::PropertyId::Density, 7850);
    EXPECT_EQ(object.always_run(), -1);
    const std::unique_ptr<Obj::ProjectObjectExecReturn> result(object.execute());
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(result->text, "MaterialObject::execute().");
    EXPECT_EQ(result->object, &object);
    ASSERT_THAT(object.getCMaterial()->properties, SizeIs(1));
    EXPECT_EQ(object.getCMaterial()->properties.at(vxMat::PropertyId::Density)->value, 7850);
    EXPECT_EQ(object.getCMaterial()->name, "MaterialObject");
    EXPECT_EQ(object.label.getValue(), "A");
    EXPECT_EQ(object.getObjectState(), Obj::eVXObjectState::Initial);
}

TEST_F(MaterialObjectTest, NeitherImportsNorExportsItself)
{
    MaterialObject& object = addMaterial("A");
    EXPECT_TRUE(object.exportToFile("/nonexistent/file", '\t', '"', '\\'));
    EXPECT_FALSE(object.importFromFile("/nonexistent/file", '\t', '"', '\\'));
}

TEST_F(MaterialObjectTest, TellsThatNoPropertyIsDefined)
{
    Gui::MainWindow mainWindow;
    MaterialObject& object = addMaterial("Steel");
    const MessageBoxes boxes;
    EXPECT_FALSE(object.check_input_data());
    ASSERT_THAT(boxes.shown(), SizeIs(1));
    EXPECT_EQ(boxes.shown()[0].icon, QMessageBox::Critical);
    EXPECT_EQ(boxes.shown()[0].title, "Input check");
    EXPECT_EQ(boxes.shown()[0].text, "No property is defined in 'Steel'.");
    EXPECT_EQ(boxes.shown()[0].buttons, QMessageBox::Ok);
    EXPECT_FALSE(boxes.shown()[0].hasDefaultButton);
    EXPECT_EQ(boxes.shown()[0].parent, &mainWindow);
}

TEST_F(MaterialObjectTest, TellsWithoutAMainWindowToo)
{
    const MessageBoxes boxes;
    EXPECT_FALSE(addMaterial("Steel").check_input_data());
    ASSERT_THAT(boxes.shown(), SizeIs(1));
    EXPECT_EQ(boxes.shown()[0].parent, nullptr);
}

TEST_F(MaterialObjectTest, RefusesASingleZero)
{
    const Gui::MainWindow mainWindow;
    expectWarning(warningsFor(0.0));
    expectWarning(warningsFor(-0.0));
}

TEST_F(MaterialObjectTest, RefusesASingleNegativeNumber)
{
    const Gui::MainWindow mainWindow;
    expectWarning(warningsFor(-1.0));
    expectWarning(warningsFor(-1e-300));
}

TEST_F(MaterialObjectTest, AcceptsASingleNumberHoweverSmall)
{
    EXPECT_THAT(warningsFor(1e-300), IsEmpty());
}

TEST_F(MaterialObjectTest, WarnsOnceHoweverManyPropertiesFail)
{
    const Gui::MainWindow mainWindow;
    MaterialObject& object = addMaterial("Steel");
    setNumber(object, vxMat::PropertyId::Density, 0.0);
    setNumber(object, vxMat::PropertyId::YoungsModulus, -1.0);
    const MessageBoxes boxes;
    EXPECT_FALSE(object.check_input_data());
    expectWarning(boxes.shown());
}

TEST_F(MaterialObjectTest, AcceptsTheSmallestPositiveValuesAndWhatIsNoNumber)
{
    MaterialObject& object = addMaterial("Steel");
    setNumber(object, vxMat::PropertyId::Density, 1e-300);
    setNumber(object, vxMat::PropertyId::YoungsModulus, std::numeric_limits<double>::quiet_NaN());
    const MessageBoxes boxes;
    EXPECT_TRUE(object.check_input_data());
    EXPECT_THAT(boxes.shown(), IsEmpty());
}

TEST_F(MaterialObjectTest, RefusesWordsAndListsBecauseTheirNumberIsZero)
{
    struct Row
    {
        int id;
        const char* text;
    };
    for (const Row& row : {Row{33, "Mises"}, Row{37, "Bilinear"}, Row{38, "1, 2"}, Row{39, "1, 2"}}) {
        MaterialObject& object = addMaterial("Plastic");
        object.getCMaterial()->addProperty(row.id, "name", row.text, "key", "");
        const MessageBoxes boxes;
        EXPECT_FALSE(object.check_input_data()) << row.id;
        ASSERT_THAT(boxes.shown(), SizeIs(1)) << row.id;
        EXPECT_EQ(boxes.shown()[0].icon, QMessageBox::Warning) << row.id;
    }
}

TEST_F(MaterialObjectTest, ShowsEveryLabelLiterally)
{
    const std::string longLabel(10000, 'x');
    for (const std::string& label :
         {std::string(), longLabel, std::string("结构钢"), std::string("100%1 %2"), std::string("<b>bold</b>")})
    {
        const MessageBoxes boxes;
        EXPECT_FALSE(addMaterial(label).check_input_data());
        ASSERT_THAT(boxes.shown(), SizeIs(1));
        EXPECT_EQ(boxes.shown()[0].text.toStdString(), "No property is defined in '" + label + "'.");
    }
}

TEST_F(MaterialObjectTest, SpeaksTheLanguageOfTheUser)
{
    Gui::Translator::instance()->setLanguage("de");
    {
        const MessageBoxes boxes;
        EXPECT_FALSE(addMaterial("Stahl").check_input_data());
        ASSERT_THAT(boxes.shown(), SizeIs(1));
        EXPECT_EQ(boxes.shown()[0].title.toStdString(), "Eingabeprüfung");
        EXPECT_EQ(boxes.shown()[0].text.toStdString(), "In „Stahl“ ist keine Eigenschaft definiert.");
    }
    Gui::Translator::instance()->setLanguage("en");
}

TEST_F(MaterialObjectTest, DescribesItselfInTheProjectDatabase)
{
    MaterialObject& object = addSteel("Mein Stahl");
    Json::Value record;
    object.save_jsonDB(record);
    EXPECT_THAT(record.getMemberNames(), ElementsAre("class", "label", "name_internal", "obj_id"));
    EXPECT_EQ(record["obj_id"], Json::Value(1U));
    EXPECT_TRUE(record["obj_id"].isUInt());
    EXPECT_EQ(record["class"], "Mat::MaterialObject");
    EXPECT_EQ(record["name_internal"], "Material");
    EXPECT_EQ(record["label"], "Mein Stahl");
}

TEST_F(MaterialObjectTest, TakesNothingFromARecord)
{
    MaterialObject& object = addSteel("Steel");
    for (Json::Value record : vxtest::recordsOfEveryKind()) {
        SCOPED_TRACE(record.toStyledString());
        const vxtest::Identity before(object);
        object.load_jsonDB(record);
        EXPECT_EQ(vxtest::Identity(object), before);
        EXPECT_EQ(object.label.getValue(), "Steel");
    }
}

// The module does not send this signal. Listeners depend on its type.
template <auto Member>
struct SignalAccess
{
    friend auto& requestsOf(MaterialObject& object) { return object.*Member; }
};
auto& requestsOf(MaterialObject& object);
template struct SignalAccess<&MaterialObject::m_dataRequested>;

TEST_F(MaterialObjectTest, ReturnsTheResultOfTheLastListenerToARequestForData)
{
    auto& requests = requestsOf(addMaterial("Steel"));
    requests.connect([] { return boost::any(1); });
    requests.connect([] { return boost::any(std::string("last")); });
    const auto answer = requests();
    static_assert(std::is_same_v<decltype(answer), const boost::any>);
    EXPECT_EQ(boost::any_cast<std::string>(answer), "last");
}

/// A material that gives the tests access to the descriptions of its properties.
class OpenMaterial : public MaterialObject
{
public:
    using MaterialObject::get_property_data;
};

class OpenObject : public Obj::ProjectObject
{
public:
    using ProjectObject::get_property_data_ref;
};

TEST_F(MaterialObjectTest, DescribesItsPropertiesBeforeThoseOfEveryProjectObject)
{
    EXPECT_EQ(OpenMaterial().get_property_data().parent(), OpenObject::get_property_data_ref());
}

TEST_F(MaterialObjectTest, MakesObserversReadItsPropertiesAgain)
{
    MaterialObject& object = addSteel("Steel");
    int changes = 0;
    const boost::signals2::scoped_connection watch =
        project->objectChanged.connect([&](Obj::ProjectObject&, const Obj::Property*) { ++changes; });
    object.refreshProperties(true);
    EXPECT_EQ(changes, 1);
}

} // namespace
