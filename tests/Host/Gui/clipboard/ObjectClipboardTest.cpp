#include "Gui/ObjectClipboard.h"

#include "GuiTesting.h"

#include <QClipboard>
#include <QMimeData>

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
        ObjectClipboard::register_codec("Test::Object", {writeContent, readContent});
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

    vxtest::TestProject& project;
};

TEST_F(Clipboard, CarriesLabelContentAndSuppression)
{
    vxtest::TestObject& object = addObject(project, "Träger \"1\"");
    object.content = "gelb \xE2\x82\xAC";
    object.setSuppressed(true);
    ObjectClipboard::copy({&object});
    vxtest::TestProject& other = makeProject("Other");
    const auto pasted = ObjectClipboard::paste(other);
    ASSERT_THAT(pasted, SizeIs(1));
    const auto& copy = static_cast<const vxtest::TestObject&>(*pasted[0]);
    EXPECT_EQ(copy.get_project(), &other);
    EXPECT_EQ(copy.label.getValue(), "Träger \"1\"");
    EXPECT_EQ(copy.content, "gelb \xE2\x82\xAC");
    EXPECT_TRUE(copy.isSuppressed());
    EXPECT_FALSE(object.content.empty());
}

TEST_F(Clipboard, HoldsTheSameAsTextForOthers)
{
    ObjectClipboard::copy({&addObject(project)});
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    EXPECT_TRUE(data->hasFormat("application/x-kelta-objects+json"));
    EXPECT_EQ(data->text().toUtf8(), data->data("application/x-kelta-objects+json"));
    EXPECT_THAT(data->text().toStdString(), HasSubstr("\"kelta_objects\" : 1"));
}

TEST_F(Clipboard, ReadsTextThatCameThroughAnotherProgram)
{
    const QByteArray text = ObjectClipboard::write({&addObject(project, "Beam")});
    QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
    EXPECT_TRUE(ObjectClipboard::holds_objects());
    EXPECT_THAT(ObjectClipboard::paste(project), SizeIs(1));
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
        EXPECT_FALSE(ObjectClipboard::holds_objects());
        EXPECT_THAT(ObjectClipboard::paste(project), IsEmpty());
        EXPECT_EQ(project.get_object_count(), 0U);
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
        EXPECT_THAT(ObjectClipboard::read(text, project), IsEmpty());
        EXPECT_EQ(project.get_object_count(), 0U);
        EXPECT_GT(Kelta::MessageLog::instance().errorCount(), errors);
    }
    EXPECT_EQ(undoStack().count(), 0);
}

TEST_F(Clipboard, SurvivesTextsNestedBeyondReason)
{
    const QByteArray text = QByteArray("{\"kelta_objects\": 1, \"objects\": ") + QByteArray(100000, '[');
    EXPECT_THAT(ObjectClipboard::read(text, project), IsEmpty());
}

TEST_F(Clipboard, AddsNothingWhoseContentCannotBeRead)
{
    vxtest::TestObject& object = addObject(project);
    object.content = "unreadable";
    const QByteArray text = ObjectClipboard::write({&object});
    undoStack().clear();
    EXPECT_THAT(ObjectClipboard::read(text, project), IsEmpty());
    EXPECT_EQ(lastMessage(), "An object cannot be pasted: the content is unreadable");
    EXPECT_EQ(project.get_object_count(), 1U);
    EXPECT_EQ(undoStack().count(), 0);
}

TEST_F(Clipboard, PastesTheOthersWhenOneCannotBeRead)
{
    vxtest::TestObject& bad = addObject(project, "Bad");
    bad.content = "unreadable";
    ObjectClipboard::copy({&addObject(project, "Good"), &bad, &addObject(project, "Better")});
    vxtest::TestProject& other = makeProject("Other");
    undoStack().clear();
    ASSERT_TRUE(run("Std_Paste"));
    EXPECT_EQ(other.get_object_count(), 2U);
    EXPECT_EQ(undoStack().count(), 1);
    undoStack().undo();
    EXPECT_EQ(other.get_object_count(), 0U);
    undoStack().redo();
    EXPECT_EQ(other.get_objects()[1]->label.getValue(), "Better");
}

TEST_F(Clipboard, UndoesAndRedoesAPasteWithLabelAndContent)
{
    vxtest::TestObject& object = addObject(project, "Beam");
    object.content = "red";
    ObjectClipboard::copy({&object});
    undoStack().clear();
    ASSERT_TRUE(run("Std_Paste"));
    undoStack().undo();
    EXPECT_EQ(project.get_object_count(), 1U);
    undoStack().redo();
    ASSERT_EQ(project.get_object_count(), 2U);
    const auto& copy = static_cast<const vxtest::TestObject&>(*project.get_objects()[1]);
    EXPECT_EQ(copy.label.getValue(), "Beam");
    EXPECT_EQ(copy.content, "red");
}

} // namespace
