#include "GuiTesting.h"

namespace {

/// Edits in the tree and the panel, and suppression, as steps of the history.
class Edits : public vxtest::Host
{
protected:
    Edits() : project(makeProject()), object(addObject(project, "Object")) { undoStack().clear(); }

    bool editLabel(const char* text) const
    {
        model().synchronize();
        return model().setData(model().indexOf(object), QLatin1String(text), Qt::EditRole);
    }
    void deleteUndoably(const Obj::ProjectObject& which) const
    {
        EXPECT_TRUE(vxMsg::MessageProxy::instance().deleteObject(project.get_name(), which.get_name_in_project()));
    }

    vxtest::TestProject& project;
    vxtest::TestObject& object;
};

TEST_F(Edits, NameTheChangedPropertyAndItsObject)
{
    EXPECT_TRUE(editLabel("Beam"));
    EXPECT_EQ(undoStack().undoText(), "Change \"Label\" of \"Object\"");
    select({&object});
    EXPECT_TRUE(run("Std_Suppress"));
    EXPECT_EQ(undoStack().undoText(), "Suppress");
}

TEST_F(Edits, AreUndoneAndDoneAgain)
{
    EXPECT_TRUE(editLabel("Beam"));
    EXPECT_TRUE(editLabel("Plate"));
    undoStack().undo();
    EXPECT_EQ(object.label.getValue(), "Beam");
    undoStack().undo();
    EXPECT_EQ(object.label.getValue(), "Object");
    undoStack().redo();
    undoStack().redo();
    EXPECT_EQ(object.label.getValue(), "Plate");
}

TEST_F(Edits, ThatChangeNothingAreNoStep)
{
    EXPECT_TRUE(editLabel("Object"));
    EXPECT_EQ(undoStack().count(), 0);
}

TEST_F(Edits, ToALabelThatShowsNothingAreRefused)
{
    EXPECT_FALSE(editLabel("  "));
    EXPECT_EQ(object.label.getValue(), "Object");
    EXPECT_EQ(undoStack().count(), 0);
}

TEST_F(Edits, FindAnObjectThatWasDeletedAndBroughtBack)
{
    EXPECT_TRUE(editLabel("Beam"));
    select({&object});
    EXPECT_TRUE(run("Std_Suppress"));
    deleteUndoably(object);
    for (int i = 0; i < 3; ++i)
        undoStack().undo();
    EXPECT_EQ(object.label.getValue(), "Object");
    EXPECT_FALSE(object.isSuppressed());
}

TEST_F(Edits, AreNoStepIfAListenerDeletesTheObject)
{
    const boost::signals2::scoped_connection connection =
        project.objectChanged.connect([this](Obj::ProjectObject& changed, const Obj::Property* property) {
            if (property == &object.label && changed.get_project() != nullptr)
                deleteUndoably(changed);
        });
    EXPECT_TRUE(editLabel("Beam"));
    EXPECT_EQ(project.getObjectCount(), 0U);
    EXPECT_EQ(undoStack().count(), 1);
    EXPECT_EQ(undoStack().text(0).toStdString(), R"(Delete "Beam")");
    undoStack().undo();
    EXPECT_EQ(project.getObjectCount(), 1U);
}

TEST_F(Edits, OfSuppressionAreNoStepIfAListenerDeletesTheObject)
{
    const boost::signals2::scoped_connection connection =
        project.objectChanged.connect([this](Obj::ProjectObject& changed, const Obj::Property*) {
            if (changed.get_project() != nullptr)
                deleteUndoably(changed);
        });
    select({&object});
    EXPECT_TRUE(run("Std_Suppress"));
    EXPECT_EQ(project.getObjectCount(), 0U);
    undoStack().undo();
    EXPECT_EQ(project.getObjectCount(), 1U);
    EXPECT_TRUE(object.isSuppressed());
}

TEST_F(Edits, OfSuppressionPassOverObjectsThatAListenerDeletes)
{
    vxtest::TestObject& second = addObject(project, "Second");
    vxtest::TestObject& third = addObject(project, "Third");
    select({&object, &second, &third});
    const boost::signals2::scoped_connection connection =
        project.objectChanged.connect([&](Obj::ProjectObject& changed, const Obj::Property*) {
            if (&changed == &object && second.get_project() != nullptr)
                deleteUndoably(second);
        });
    EXPECT_TRUE(run("Std_Suppress"));
    EXPECT_TRUE(object.isSuppressed() && third.isSuppressed());
    EXPECT_FALSE(second.isSuppressed());
}

} // namespace
