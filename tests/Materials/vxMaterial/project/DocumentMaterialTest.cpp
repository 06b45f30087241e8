#include "vxMaterial/project/DocumentMaterial.h"

#include "CommaLocale.h"
#include "DataFile.h"
#include "MessageBoxes.h"
#include "ProjectTesting.h"

#include "Kelta/FileWriter.h"
#include "Kelta/XMLFileReader.h"
#include "vxCAE/CaeManager.h"
#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/model/MaterialLibrary.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <json/json.h>

#include <filesystem>
#include <memory>
#include <utility>

namespace {

using Mat::DocumentMaterial;
using Mat::MaterialObject;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using vxtest::MessageBoxes;

class DocumentMaterialTest : public vxtest::MaterialProject
{
protected:
    std::string path(const char* name) const { return folder.filePath(name).toStdString(); }
    void exportTo(const std::string& file) const { EXPECT_TRUE(project->exportToFile(file, '\t', '"', '\\')); }

    const vxCAE::CAEMaterials& collected() const
    {
        project->collect_frontend_data();
        return *vxCAE::GetCaeManager().getCAE(project->getProjectId())->materials;
    }

    QTemporaryDir folder;
};

TEST_F(DocumentMaterialTest, IsAMaterialProjectWithAFilledDatabase)
{
    EXPECT_EQ(project->getDocumentTag(), Mat::materialProjectTag);
    EXPECT_EQ(static_cast<int>(project->getDocumentTag()), 2);
    EXPECT_THAT(project->getMatMgr().materials, SizeIs(26));
    EXPECT_THAT(project->getMatMgr().propertyCatalogue, SizeIs(36));
}

TEST_F(DocumentMaterialTest, HasThreeHostPropertiesInTheirOrder)
{
    std::vector<Obj::Property*> properties;
    project->get_property_array(properties);
    std::vector<std::string> names;
    for (const Obj::Property* property : properties)
        names.emplace_back(project->get_property_name(property));
    EXPECT_THAT(names, ElementsAre("ID", "ClassLabel", "PhysicsType"));
    EXPECT_EQ(project->classLabel.getValue(), "Material Project");
    EXPECT_EQ(project->physicsType.getValue(), "Structural");
    EXPECT_STREQ(project->get_property_group("PhysicsType"), "Definition");
    EXPECT_EQ(project->get_property_type("PhysicsType"), 9);
    EXPECT_STREQ(project->get_property_description("PhysicsType"), "Physics type simulated in this project");
    EXPECT_STREQ(project->get_property_group("ID"), "Info");
    EXPECT_EQ(project->get_property_type("ID"), 1);
    EXPECT_STREQ(project->get_property_description("ID"), "Identity of the tree object");
    EXPECT_EQ(DocumentMaterial().id.getValue(), 0);
}

TEST_F(DocumentMaterialTest, IsNeverReadyAsAWhole)
{
    addSteel("Steel");
    EXPECT_EQ(project->check_input(), Obj::eVXObjectState::Initial);
}

TEST_F(DocumentMaterialTest, PassesWithoutMaterials)
{
    const MessageBoxes boxes;
    EXPECT_TRUE(project->check_all_materials());
    EXPECT_THAT(boxes.shown(), IsEmpty());
}

TEST_F(DocumentMaterialTest, PassesWhenAllMaterialsDo)
{
    addSteel("A");
    addSteel("B");
    const MessageBoxes boxes;
    EXPECT_TRUE(project->check_all_materials());
    EXPECT_THAT(boxes.shown(), IsEmpty());
}

TEST_F(DocumentMaterialTest, TellsOfTheFirstMaterialThatFailsAlone)
{
    addSteel("Good");
    addMaterial("Empty");
    MaterialObject& zero = addSteel("Zero");
    zero.getCMaterial()->addProperty(4, "Density", "0", "rho", "");
    const MessageBoxes boxes;
    EXPECT_FALSE(project->check_all_materials());
    ASSERT_THAT(boxes.shown(), SizeIs(1));
    EXPECT_EQ(boxes.shown()[0].icon, QMessageBox::Critical);
    EXPECT_EQ(boxes.shown()[0].text, "No property is defined in 'Empty'.");
}

TEST_F(DocumentMaterialTest, ChecksOneMaterialById)
{
    const MaterialObject& steel = addSteel("Steel");
    const MaterialObject& empty = addMaterial("Empty");
    const MessageBoxes boxes;
    EXPECT_TRUE(project->check_material_input(steel.getObjectId()));
    EXPECT_FALSE(project->check_material_input(empty.getObjectId()));
    EXPECT_THAT(boxes.shown(), SizeIs(1));
}

TEST_F(DocumentMaterialTest, ReturnsFalseForAMissingIdAndShowsNothing)
{
    const MessageBoxes boxes;
    EXPECT_FALSE(project->check_material_input(77));
    EXPECT_THAT(boxes.shown(), IsEmpty());
}

TEST_F(DocumentMaterialTest, HandsOverAnEmptySetWithoutMaterials)
{
    EXPECT_THAT(collected().entries, IsEmpty());
    EXPECT_EQ(vxCAE::GetCaeManager().getCAE(project->getProjectId())->projectKind, 2U);
}

TEST_F(DocumentMaterialTest, LetsGoOfItsSetWhenItIsClosed)
{
    auto* const other =
        static_cast<DocumentMaterial*>(Obj::Application::instance().createProject("Mat::DocumentMaterial", "Other"));
    const vxCAE::CCaeManager& manager = vxCAE::GetCaeManager();
    const std::uint32_t projectId = project->getProjectId();
    addSteel("Frame");
    project->collect_frontend_data();
    other->collect_frontend_data();

    // The project itself stays in memory, as if its closing may be undone.
    Obj::OwnedProject closed = Obj::Application::instance().takeProject(*project);
    EXPECT_EQ(manager.getCAE(projectId), nullptr);
    EXPECT_NE(manager.getCAE(other->getProjectId()), nullptr);

    Obj::Application::instance().restoreProject(std::move(closed));
    EXPECT_EQ(manager.getCAE(projectId), nullptr) << "the next hand-over makes a new set";
    EXPECT_THAT(collected().entries, SizeIs(1));
    Obj::Application::instance().closeAllProjects();
    EXPECT_EQ(manager.getCount(), 0U);
}

TEST_F(DocumentMaterialTest, HandsOverCopiesByObjectIdUnderTheLabels)
{
    const MaterialObject& first = addSteel("Frame");
    const MaterialObject& second = addSteel("Bolt");
    const vxCAE::CAEMaterials& materials = collected();
    EXPECT_THAT(materials.entries, SizeIs(2));
    EXPECT_EQ(materials.entries.at(first.getObjectId())->material->name, "Frame");
    EXPECT_EQ(materials.entries.at(second.getObjectId())->material->name, "Bolt");
    EXPECT_NE(materials.entries.at(first.getObjectId())->material.get(), first.getCMaterial());
    EXPECT_EQ(first.getCMaterial()->name, "Frame");
    EXPECT_EQ(second.getCMaterial()->name, "Bolt");
}

TEST_F(DocumentMaterialTest, ReplacesTheSetWhenCollectedAgain)
{
    const MaterialObject& steel = addSteel("Old");
    EXPECT_THAT(collected().entries, SizeIs(1));
    project->get_object(steel.getObjectId())->label.setValue("New");
    const vxCAE::CAEMaterials& materials = collected();
    EXPECT_THAT(materials.entries, SizeIs(1));
    EXPECT_EQ(materials.entries.at(steel.getObjectId())->material->name, "New");
    EXPECT_EQ(steel.getCMaterial()->name, "New");
}

TEST_F(DocumentMaterialTest, RecordsItsMaterialsByIdentityAlone)
{
    addSteel("Material");
    Json::Value record;
    project->save_jsonDB(record);
    EXPECT_EQ(Json::StyledWriter().write(record), "{\n"
                                                  "   \"objects\" : {\n"
                                                  "      \"object\" : [\n"
                                                  "         {\n"
                                                  "            \"class\" : \"Mat::MaterialObject\",\n"
                                                  "            \"label\" : \"Material\",\n"
                                                  "            \"name_internal\" : \"Material\",\n"
                                                  "            \"obj_id\" : 1\n"
                                                  "         }\n"
                                                  "      ]\n"
                                                  "   },\n"
                                                  "   \"physics_type\" : \"Material\",\n"
                                                  "   \"proj_id\" : " +
                                                      std::to_string(project->getProjectId()) +
                                                      ",\n"
                                                      "   \"proj_tag\" : \"Material\"\n"
                                                      "}\n");
}

TEST_F(DocumentMaterialTest, RecordsItsMaterialsInTheOrderOfTheProject)
{
    addSteel("Zinc");
    MaterialObject& removed = addSteel("Lead");
    addSteel("Air");
    addMaterial("Middle");
    project->removeObject(removed.getObjectId());
    Json::Value record;
    project->save_jsonDB(record);
    const Json::Value& objects = record["objects"]["object"];
    std::vector<std::string> labels;
    std::vector<unsigned int> ids;
    for (const Json::Value& object : objects) {
        labels.push_back(object["label"].asString());
        ids.push_back(object["obj_id"].asUInt());
    }
    EXPECT_THAT(labels, ElementsAre("Zinc", "Air", "Middle"));
    EXPECT_THAT(ids, ElementsAre(1, 3, 4));
}

TEST_F(DocumentMaterialTest, RecordsNoMaterialsAsNull)
{
    Json::Value record;
    project->save_jsonDB(record);
    EXPECT_TRUE(record.isMember("objects"));
    EXPECT_TRUE(record["objects"].isNull());
}

TEST_F(DocumentMaterialTest, RecordsTheKindOfProjectWhereThePropertyNamesThePhysics)
{
    Json::Value record;
    project->save_jsonDB(record);
    EXPECT_EQ(record["physics_type"], "Material");
    EXPECT_EQ(project->physicsType.getValue(), "Structural");
}

TEST_F(DocumentMaterialTest, TakesNothingFromARecord)
{
    MaterialObject& steel = addSteel("Steel");
    MaterialObject& empty = addMaterial("Empty");
    Json::Value before;
    project->save_jsonDB(before);
    for (Json::Value record : vxtest::recordsOfEveryKind()) {
        SCOPED_TRACE(record.toStyledString());
        const vxtest::Identity steelBefore(steel);
        const vxtest::Identity emptyBefore(empty);
        project->load_jsonDB(record);
        Json::Value after;
        project->save_jsonDB(after);
        EXPECT_EQ(after, before);
        EXPECT_THAT(project->getObjects(), ElementsAre(&steel, &empty));
        EXPECT_EQ(vxtest::Identity(steel), steelBefore);
        EXPECT_EQ(vxtest::Identity(empty), emptyBefore);
        EXPECT_EQ(project->physicsType.getValue(), "Structural");
        EXPECT_EQ(project->classLabel.getValue(), "Material Project");
        EXPECT_EQ(project->getDocumentTag(), Mat::materialProjectTag);
    }
}

/// A project that gives the tests access to the descriptions of its properties.
class OpenDocument : public DocumentMaterial
{
public:
    using DocumentMaterial::get_property_data;
};

class OpenProject : public Obj::Project
{
public:
    using Project::get_property_data_ref;
};

TEST_F(DocumentMaterialTest, DescribesItsPropertiesBeforeThoseOfEveryProject)
{
    EXPECT_EQ(OpenDocument().get_property_data().parent(), OpenProject::get_property_data_ref());
}

TEST_F(DocumentMaterialTest, HasNoPartInTheXmlFile)
{
    addSteel("Steel");
    const QString file = folder.filePath("project.xml");
    Kelta::FileWriter writer(file);
    writer.xml().writeStartElement("project");
    project->Save(writer);
    ASSERT_TRUE(writer.commit());
    EXPECT_THAT(vxtest::readText(file.toStdString()), testing::HasSubstr("<project/>"));

    Kelta::XMLFileReader reader(file);
    ASSERT_TRUE(reader.xml().readNextStartElement());
    project->Load(reader);
    EXPECT_EQ(project->getObjectCount(), 1U);
}

TEST_F(DocumentMaterialTest, ExportsTheStyledDocumentOfTheSet)
{
    const vxMat::StructuralSteelNL steel;
    addMaterial("Frame").setCMaterial(&steel);
    addSteel("Bolt");
    exportTo(path("export.json"));

    Json::Value expected;
    project->collect_frontend_data();
    vxCAE::GetCaeManager().getCAE(project->getProjectId())->writeJson(expected);
    EXPECT_EQ(vxtest::readText(path("export.json")), Json::StyledWriter().write(expected));
    EXPECT_THAT(expected.getMemberNames(), ElementsAre("material", "proj_type"));
    EXPECT_EQ(expected["proj_type"].asInt(), 2);
    EXPECT_EQ(expected["material"][0]["mat_name"], "Frame");
    EXPECT_EQ(expected["material"][1]["mat_id"].asInt(), 2);
}

TEST_F(DocumentMaterialTest, ExportsTheSameFileTwice)
{
    addSteel("Steel");
    exportTo(path("first.json"));
    exportTo(path("second.json"));
    EXPECT_EQ(vxtest::readText(path("first.json")), vxtest::readText(path("second.json")));
}

TEST_F(DocumentMaterialTest, ReplacesALongerFileWhole)
{
    addSteel("Steel");
    exportTo(path("new.json"));
    {
        QFile longer(folder.filePath("old.json"));
        ASSERT_TRUE(longer.open(QIODevice::WriteOnly));
        longer.write(QByteArray(100000, 'x'));
    }
    exportTo(path("old.json"));
    EXPECT_EQ(vxtest::readText(path("old.json")), vxtest::readText(path("new.json")));
}

TEST_F(DocumentMaterialTest, ExportsUnderThePresentLabel)
{
    MaterialObject& steel = addSteel("Old");
    exportTo(path("export.json"));
    steel.label.setValue("New");
    exportTo(path("export.json"));
    EXPECT_THAT(vxtest::readText(path("export.json")), testing::HasSubstr("\"New\""));
    EXPECT_THAT(vxtest::readText(path("export.json")), testing::Not(testing::HasSubstr("\"Old\"")));
}

TEST_F(DocumentMaterialTest, ExportsWithDecimalPointsInEveryLocale)
{
    addSteel("Steel");
    exportTo(path("point.json"));
    const vxtest::CommaLocale comma;
    exportTo(path("comma.json"));
    EXPECT_EQ(vxtest::readText(path("comma.json")), vxtest::readText(path("point.json")));
}

TEST_F(DocumentMaterialTest, ExportsIntoAMissingFolderWithoutAMessageAndWritesNothing)
{
    addSteel("Steel");
    exportTo(path("missing/export.json"));
    EXPECT_FALSE(std::filesystem::exists(path("missing")));
}

TEST_F(DocumentMaterialTest, ExportsToAFolderWithoutAWord)
{
    exportTo(folder.path().toStdString());
    EXPECT_TRUE(std::filesystem::is_empty(folder.path().toStdString()));
}

TEST_F(DocumentMaterialTest, ExportsToAFullDiskWithoutAWord)
{
    addSteel("Steel");
    exportTo("/dev/full");
}

TEST_F(DocumentMaterialTest, ExportsMaterialsThatWouldNotPassTheCheck)
{
    addMaterial("Empty");
    const MessageBoxes boxes;
    exportTo(path("export.json"));
    EXPECT_THAT(boxes.shown(), IsEmpty());
    EXPECT_THAT(vxtest::readText(path("export.json")), testing::HasSubstr("\"Empty\""));
}

TEST_F(DocumentMaterialTest, ExportsAnEmptyProject)
{
    exportTo(path("export.json"));
    EXPECT_EQ(vxtest::readText(path("export.json")), "{\n   \"proj_type\" : 2\n}\n");
}

} // namespace
