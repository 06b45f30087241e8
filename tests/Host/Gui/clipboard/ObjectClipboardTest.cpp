#include "Gui/ObjectClipboard.h"

#include "GuiTesting.h"

#include "Obj/ContentCodec.h"
#include "Obj/ObjectHomes.h"
#include "Obj/Placeholder.h"
#include "Obj/ProjectObjectGroup.h"

#include <QClipboard>
#include <QMimeData>
#include <json/reader.h>

#include <stdexcept>

namespace {

using Gui::ObjectClipboard;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class Clipboard : public vxtest::Host
{
protected:
    Clipboard() : project(makeProject())
    {
        Obj::registerContentCodec("Test::Object", {writeContent, readContent});
        undoStack().clear();
    }

    static Json::Value writeContent(const Obj::ProjectObject& object)
    {
        return static_cast<const vxtest::TestObject&>(object).content;
    }
    static void readContent(Obj::ProjectObject& object, const Json::Value& content)
    {
        if (content == "unreadable")
            throw std::runtime_error("the content is unreadable");
        static_cast<vxtest::TestObject&>(object).content = content.asString();
    }

    static ObjectClipboard& clipboard() { return Gui::GuiApplication::Instance->objectClipboard(); }

    vxtest::TestProject& project;
};

TEST_F(Clipboard, CarriesLabelContentAndSuppression)
{
    vxtest::TestObject& object = addObject(project, "Träger \"1\"");
    object.content = "gelb \xE2\x82\xAC";
    object.setSuppressed(true);
    clipboard().copy({&object});
    vxtest::TestProject& other = makeProject("Other");
    const auto pasted = clipboard().paste(other);
    ASSERT_THAT(pasted, SizeIs(1));
    const auto& copy = static_cast<const vxtest::TestObject&>(*pasted[0]);
    EXPECT_EQ(copy.get_project(), &other);
    EXPECT_EQ(copy.label.getValue(), "Träger \"1\"");
    EXPECT_EQ(copy.content, "gelb \xE2\x82\xAC");
    EXPECT_TRUE(copy.isSuppressed());
    EXPECT_FALSE(object.content.empty());
}

TEST_F(Clipboard, CarriesSettings)
{
    vxtest::TestObject& object = addObject(project, "Beam");
    const std::string text("{\"a\": [1, 2]} \xE2\x82\xAC\n\0.", 20);
    object.setSetting("measurements", text);
    object.setSetting("later", "kept");
    for (const auto& copies :
         {clipboard().duplicate({&object}), clipboard().read(clipboard().write({&object}), makeProject("Other"))})
    {
        ASSERT_THAT(copies, SizeIs(1));
        EXPECT_EQ(copies[0]->getSettings(), object.getSettings());
        EXPECT_EQ(copies[0]->getSetting("measurements"), text);
    }
    undoStack().undo();
    undoStack().redo();
    EXPECT_EQ(Obj::Application::instance().get_project("Other")->getObjects().at(0)->getSettings(),
              object.getSettings());
}

TEST_F(Clipboard, AddsNothingWhoseSettingsCannotBeRead)
{
    for (const char* const settings : {"[]", "7", "\"text\"", "{\"measurements\": 3}", "{\"measurements\": null}"}) {
        SCOPED_TRACE(settings);
        const QByteArray text =
            QByteArray(R"({"kelta_objects": 1, "objects": [{"class": "Test::Object", "label": "A", "settings": )") +
            settings + "}]}";
        EXPECT_THAT(clipboard().read(text, project), IsEmpty());
        EXPECT_THAT(lastMessage(), HasSubstr("setting"));
    }
    EXPECT_EQ(undoStack().count(), 0);
}

TEST_F(Clipboard, HoldsTheSameAsTextForOthers)
{
    clipboard().copy({&addObject(project)});
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    EXPECT_TRUE(data->hasFormat("application/x-kelta-objects+json"));
    EXPECT_EQ(data->text().toUtf8(), data->data("application/x-kelta-objects+json"));
    EXPECT_THAT(data->text().toStdString(), HasSubstr("\"kelta_objects\" : 1"));
}

TEST_F(Clipboard, ReadsTextThatCameThroughAnotherProgram)
{
    const QByteArray text = clipboard().write({&addObject(project, "Beam")});
    QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
    EXPECT_TRUE(clipboard().holdsObjects());
    EXPECT_THAT(clipboard().paste(project), SizeIs(1));
}

TEST_F(Clipboard, PastesNothingOfWhatIsNotOurs)
{
    for (const char* const text :
         {"", "garbage", "{", "[]", "null", "{}", "{\"kelta_objects\": 2, \"objects\": []}",
          "{\"kelta_objects\": 1, \"objects\": {}}", "{\"kelta_objects\": \"1\", \"objects\": []}",
          "{\"objects\": [{\"class\": \"Test::Object\"}]}"})
    {
        SCOPED_TRACE(text);
        QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
        EXPECT_FALSE(clipboard().holdsObjects());
        EXPECT_THAT(clipboard().paste(project), IsEmpty());
        EXPECT_EQ(project.getObjectCount(), 0U);
    }
}

TEST_F(Clipboard, SurvivesObjectsThatAreNone)
{
    for (const char* const object :
         {"1", "null", "\"text\"", "[]", "{}", "{\"class\": 7}", "{\"class\": {}}", "{\"class\": \"No::Such\"}",
          "{\"class\": \"Test::Project\"}", "{\"class\": \"Test::Object\", \"label\": []}",
          "{\"class\": \"Test::Object\", \"label\": \"A\", \"suppressed\": {}}"})
    {
        SCOPED_TRACE(object);
        const QByteArray text = QByteArray("{\"kelta_objects\": 1, \"objects\": [") + object + "]}";
        const std::size_t errors = Kelta::MessageLog::instance().errorCount();
        EXPECT_THAT(clipboard().read(text, project), IsEmpty());
        EXPECT_EQ(project.getObjectCount(), 0U);
        EXPECT_GT(Kelta::MessageLog::instance().errorCount(), errors);
    }
    EXPECT_EQ(undoStack().count(), 0);
}

TEST_F(Clipboard, SurvivesTextsNestedBeyondReason)
{
    const QByteArray text = QByteArray("{\"kelta_objects\": 1, \"objects\": ") + QByteArray(100000, '[');
    EXPECT_THAT(clipboard().read(text, project), IsEmpty());
}

TEST_F(Clipboard, AddsNothingWhoseContentCannotBeRead)
{
    vxtest::TestObject& object = addObject(project);
    object.content = "unreadable";
    const QByteArray text = clipboard().write({&object});
    undoStack().clear();
    EXPECT_THAT(clipboard().read(text, project), IsEmpty());
    EXPECT_EQ(lastMessage(), "An object cannot be pasted: the content is unreadable");
    EXPECT_EQ(project.getObjectCount(), 1U);
    EXPECT_EQ(undoStack().count(), 0);
}

TEST_F(Clipboard, PastesTheOthersWhenOneCannotBeRead)
{
    vxtest::TestObject& bad = addObject(project, "Bad");
    bad.content = "unreadable";
    clipboard().copy({&addObject(project, "Good"), &bad, &addObject(project, "Better")});
    vxtest::TestProject& other = makeProject("Other");
    undoStack().clear();
    ASSERT_TRUE(run("Std_Paste"));
    EXPECT_EQ(other.getObjectCount(), 2U);
    EXPECT_EQ(undoStack().count(), 1);
    undoStack().undo();
    EXPECT_EQ(other.getObjectCount(), 0U);
    undoStack().redo();
    EXPECT_EQ(other.getObjects()[1]->label.getValue(), "Better");
}

TEST_F(Clipboard, UndoesAndRedoesAPasteWithLabelAndContent)
{
    vxtest::TestObject& object = addObject(project, "Beam");
    object.content = "red";
    clipboard().copy({&object});
    undoStack().clear();
    ASSERT_TRUE(run("Std_Paste"));
    undoStack().undo();
    EXPECT_EQ(project.getObjectCount(), 1U);
    undoStack().redo();
    ASSERT_EQ(project.getObjectCount(), 2U);
    const auto& copy = static_cast<const vxtest::TestObject&>(*project.getObjects()[1]);
    EXPECT_EQ(copy.label.getValue(), "Beam copy");
    EXPECT_EQ(copy.content, "red");
}

TEST_F(Clipboard, CarriesPropertiesOfObjectAndNode)
{
    vxtest::TypedObject& object = addTyped(project, "Beam");
    object.length.setValue(2.5e-3);
    object.active.setValue(true);
    object.kind.setValue(1);
    nodeOf(object).color.setValue({1.0F, 0.25F, 0.0F, 1.0F});
    clipboard().copy({&object});
    vxtest::TestProject& other = makeProject("Other");
    const auto pasted = clipboard().paste(other);
    ASSERT_THAT(pasted, SizeIs(1));
    auto& copy = static_cast<vxtest::TypedObject&>(*pasted[0]);
    EXPECT_EQ(copy.label.getValue(), "Beam");
    EXPECT_EQ(copy.length.getValue(), 2.5e-3);
    EXPECT_TRUE(copy.active.getValue());
    EXPECT_EQ(copy.kind.getWord(), "Hollow");
    EXPECT_EQ(nodeOf(copy).color.getValue(), (Obj::Color{1.0F, 0.25F, 0.0F, 1.0F}));
}

TEST_F(Clipboard, ReadsCopiesOfEarlierPrograms)
{
    const QByteArray text = R"({"kelta_objects": 1, "objects": [
        {"class": "Test::Object", "label": "Beam", "suppressed": true, "content": "red"}]})";
    const auto pasted = clipboard().read(text, project);
    ASSERT_THAT(pasted, SizeIs(1));
    EXPECT_EQ(pasted[0]->label.getValue(), "Beam");
    EXPECT_TRUE(pasted[0]->isSuppressed());
    EXPECT_EQ(static_cast<const vxtest::TestObject&>(*pasted[0]).content, "red");
}

TEST_F(Clipboard, WritesWhatEarlierProgramsRead)
{
    vxtest::TestObject& object = addObject(project, "Beam");
    object.content = "red";
    const QByteArray text = clipboard().write({&object});
    Json::Value root;
    ASSERT_TRUE(Json::Reader().parse(text.toStdString(), root));
    EXPECT_EQ(root["kelta_objects"], Json::Value(1));
    const Json::Value& description = root["objects"][0];
    EXPECT_EQ(description["class"].asString(), "Test::Object");
    EXPECT_EQ(description["label"].asString(), "Beam");
    EXPECT_EQ(description["suppressed"], Json::Value(false));
    EXPECT_EQ(description["content"].asString(), "red");
}

TEST_F(Clipboard, NamesCopiesLikeTheirOriginals)
{
    Obj::ProjectObject& object = *project.add_object("Test::Object", "Beam7");
    const auto pasted = clipboard().read(clipboard().write({&object}), project);
    ASSERT_THAT(pasted, SizeIs(1));
    EXPECT_THAT(pasted[0]->get_name_in_project(), testing::StartsWith("Beam"));
    EXPECT_STRNE(pasted[0]->get_name_in_project(), "Beam7");
}

TEST_F(Clipboard, WarnsOfPropertiesThatTheClassDoesNotHave)
{
    const QByteArray text = R"({"kelta_objects": 1, "objects": [
        {"class": "Test::Typed", "label": "Beam", "properties": {"Length": 3, "Depth": 4, "Kind": "Round"}}]})";
    const auto pasted = clipboard().read(text, project);
    ASSERT_THAT(pasted, SizeIs(1));
    EXPECT_EQ(static_cast<const vxtest::TypedObject&>(*pasted[0]).length.getValue(), 3.0);
    EXPECT_EQ(lastMessage(), "These properties of \"Beam\" could not be pasted: Depth, Kind.");
}

TEST_F(Clipboard, SurvivesPartsThatAreOfTheWrongKind)
{
    for (const char* const part :
         {R"("properties": 1)", R"("node": [])", R"("links": {})", R"("id": "x")", R"("project": 3)", R"("group": {})",
          R"("name": [])", R"("record": 7)", R"("properties": {"Partner": "x"})", R"("links": [null, "x", -1, 99])"})
    {
        SCOPED_TRACE(part);
        const QByteArray text =
            QByteArray(R"({"kelta_objects": 1, "objects": [{"class": "Test::Typed", "label": "A", )") + part + "}]}";
        EXPECT_THAT(clipboard().read(text, project), SizeIs(1));
    }
}

/// References and links between objects, and to other objects.
class CopiedReferences : public Clipboard
{
protected:
    CopiedReferences() : first(addTyped(project, "First")), second(addTyped(project, "Second"))
    {
        first.partner.setValue(&second);
    }

    static vxtest::TypedObject& typed(Obj::ProjectObject* object) { return *static_cast<vxtest::TypedObject*>(object); }

    vxtest::TypedObject& first;
    vxtest::TypedObject& second;
};

TEST_F(CopiedReferences, ReferToTheCopiesOfWhatIsPastedToo)
{
    clipboard().copy({&first, &second});
    for (Obj::Project* const target :
         {static_cast<Obj::Project*>(&project), static_cast<Obj::Project*>(&makeProject("B"))}) {
        const auto pasted = clipboard().paste(*target);
        ASSERT_THAT(pasted, SizeIs(2));
        EXPECT_EQ(typed(pasted[0]).partner.getValue(), pasted[1]);
        EXPECT_EQ(typed(pasted[1]).partner.getValue(), nullptr);
    }
    EXPECT_EQ(first.partner.getValue(), &second);
}

TEST_F(CopiedReferences, ReferToTheOriginalsWithinTheirProject)
{
    const auto pasted = clipboard().read(clipboard().write({&first}), project);
    ASSERT_THAT(pasted, SizeIs(1));
    EXPECT_EQ(typed(pasted[0]).partner.getValue(), &second);
}

TEST_F(CopiedReferences, AreLeftOutInOtherProjects)
{
    vxtest::TestProject& other = makeProject("Other");
    addTyped(other, "Same id as the first");
    addTyped(other, "Same id as the second");
    const auto pasted = clipboard().read(clipboard().write({&first}), other);
    ASSERT_THAT(pasted, SizeIs(1));
    EXPECT_EQ(typed(pasted[0]).partner.getValue(), nullptr);
}

TEST_F(CopiedReferences, AreLeftOutInOtherPrograms)
{
    // A project of another program with the same number.
    QByteArray text = clipboard().write({&first});
    text.replace(QByteArray("\"project\" : \""), QByteArray("\"project\" : \"another "));
    const auto pasted = clipboard().read(text, project);
    ASSERT_THAT(pasted, SizeIs(1));
    EXPECT_EQ(typed(pasted[0]).partner.getValue(), nullptr);
}

TEST_F(CopiedReferences, AreUndoneWithThePaste)
{
    clipboard().copy({&first, &second});
    undoStack().clear();
    ASSERT_TRUE(run("Std_Paste"));
    EXPECT_EQ(undoStack().count(), 1);
    undoStack().undo();
    EXPECT_EQ(project.getObjectCount(), 2U);
    undoStack().redo();
    ASSERT_EQ(project.getObjectCount(), 4U);
    EXPECT_EQ(typed(project.getObjects()[2]).partner.getValue(), project.getObjects()[3]);
}

TEST_F(CopiedReferences, OfGroupsHaveTheCopiesOfTheirMembers)
{
    auto& group = *static_cast<Obj::ProjectObjectGroup*>(project.add_object("Obj::ProjectObjectGroup", "Group"));
    group.addMember(first);
    group.addMember(second);
    clipboard().copy({&group, &first});
    const auto pasted = clipboard().paste(makeProject("Other"));
    ASSERT_THAT(pasted, SizeIs(2));
    EXPECT_THAT(static_cast<Obj::ProjectObjectGroup*>(pasted[0])->getMembers(), testing::ElementsAre(pasted[1]));
    EXPECT_THAT(group.getMembers(), testing::ElementsAre(&first, &second));
}

TEST_F(CopiedReferences, OfGroupsAloneLeaveTheMembersWhereTheyAre)
{
    auto& group = *static_cast<Obj::ProjectObjectGroup*>(project.add_object("Obj::ProjectObjectGroup", "Group"));
    group.addMember(first);
    const auto copies = clipboard().duplicate({&group});
    ASSERT_THAT(copies, SizeIs(1));
    EXPECT_THAT(static_cast<Obj::ProjectObjectGroup*>(copies[0])->getMembers(), IsEmpty());
    EXPECT_EQ(first.getParentGroup(), &group);
}

TEST_F(CopiedReferences, OfMembersAreInTheSameGroup)
{
    auto& group = *static_cast<Obj::ProjectObjectGroup*>(project.add_object("Obj::ProjectObjectGroup", "Group"));
    group.addMember(first);
    const auto copies = clipboard().duplicate({&first});
    ASSERT_THAT(copies, SizeIs(1));
    EXPECT_EQ(copies[0]->getParentGroup(), &group);
}

TEST_F(Clipboard, RefusesWhatAProjectDoesNotTakeAndAddsNothing)
{
    Obj::registerHome("Test::Typed", "Test::Project");
    clipboard().copy({&addObject(project, "Plain"), &addTyped(project, "Beam")});
    Obj::Project& other = *Obj::Application::instance().createProject("Test::OtherProject", "Other");
    undoStack().clear();
    ASSERT_TRUE(run("Std_Paste"));
    EXPECT_EQ(other.getObjectCount(), 0U);
    EXPECT_EQ(undoStack().count(), 0);
    EXPECT_EQ(lastMessage(),
              "\"Beam\" cannot be pasted into \"Other\": a project of this kind does not take such objects. "
              "Nothing was pasted.");
}

/// Objects whose module is missing.
class CopiedPlaceholders : public Clipboard
{
protected:
    static Json::Value record()
    {
        Json::Value record;
        record["properties"]["Depth"] = 4;
        record["own"] = "kept";
        return record;
    }
    static Obj::PlaceholderObject& addPlaceholder(Obj::Project& to)
    {
        Obj::ProjectObject* const object =
            to.add_object(std::make_unique<Obj::PlaceholderObject>("Lost::Bolt", record()), "Bolt");
        return dynamic_cast<Obj::PlaceholderObject&>(*object);
    }
};

TEST_F(CopiedPlaceholders, KeepTheirClassRecordAndSettings)
{
    Obj::PlaceholderObject& bolt = addPlaceholder(project);
    bolt.label.setValue("The bolt");
    bolt.setSetting("torque_test", "80 Nm");
    const auto copies = clipboard().duplicate(project.getObjects());
    ASSERT_THAT(copies, SizeIs(1));
    const auto* const copy = dynamic_cast<const Obj::PlaceholderObject*>(copies[0]);
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->getOriginalClass(), "Lost::Bolt");
    EXPECT_EQ(copy->getRecord(), record());
    EXPECT_EQ(copy->getSetting("torque_test"), "80 Nm");
    EXPECT_EQ(copy->label.getValue(), "The bolt copy");
}

TEST_F(CopiedPlaceholders, AreTakenByProjectsOfTheSameClassAlone)
{
    clipboard().copy({&addPlaceholder(project)});
    EXPECT_THAT(clipboard().paste(makeProject("Same class")), SizeIs(1));
    Obj::Project& other = *Obj::Application::instance().createProject("Test::OtherProject", "Other");
    EXPECT_THAT(clipboard().paste(other), IsEmpty());
    EXPECT_THAT(lastMessage(), HasSubstr("\"Bolt\" cannot be pasted into \"Other\""));
}

TEST_F(CopiedPlaceholders, BecomeObjectsOfTheirClassWhereItIsThere)
{
    Json::Value typed;
    typed["properties"]["Length"] = 8;
    typed["content"] = "red";
    typed["node"]["Color"] = Json::Value(Json::arrayValue);
    for (const double part : {1.0, 0.0, 0.0, 1.0})
        typed["node"]["Color"].append(part);
    project.add_object(std::make_unique<Obj::PlaceholderObject>("Test::Typed", typed), "Beam");
    const auto copies = clipboard().duplicate(project.getObjects());
    ASSERT_THAT(copies, SizeIs(1));
    auto* const copy = dynamic_cast<vxtest::TypedObject*>(copies[0]);
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->length.getValue(), 8.0);
    EXPECT_EQ(nodeOf(*copy).color.getValue(), (Obj::Color{1.0F, 0.0F, 0.0F, 1.0F}));
}

} // namespace
