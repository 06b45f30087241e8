#include "MaterialsTesting.h"

#include "Gui/Translator.h"
#include "vxMaterial/gui/MaterialChange.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/model/MatDBManager.h"
#include "vxMaterial/model/PropertyId.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QListWidget>
#include <QStatusBar>

#include <set>

namespace {

using testing::HasSubstr;
using vxtest::MessageBoxes;

class AppliedEdits : public vxtest::Materials
{
protected:
    Mat::MaterialObject& steel = addMaterial(newProject());
    int stepsBefore = history().count();
};

TEST_F(AppliedEdits, AreOneStepOfTheHistory)
{
    MatGui::MaterialView& editor = edit(steel);
    type(editor, density, "4321");
    type(editor, modulus, "7e10");
    EXPECT_EQ(history().count(), stepsBefore);
    apply(editor);
    EXPECT_EQ(history().count(), stepsBefore + 1);
    EXPECT_EQ(modulusOf(steel), 7e10);
    history().undo();
    EXPECT_EQ(modulusOf(steel), 2e11);
    history().redo();
    EXPECT_EQ(modulusOf(steel), 7e10);
}

TEST_F(AppliedEdits, AreAStepEachTime)
{
    MatGui::MaterialView& editor = edit(steel);
    type(editor, modulus, "7e10");
    apply(editor);
    type(editor, modulus, "8e10");
    apply(editor);
    EXPECT_EQ(history().count(), stepsBefore + 2);
    history().undo();
    EXPECT_EQ(modulusOf(steel), 7e10);
}

TEST_F(AppliedEdits, AreNoStepIfTheMaterialIsAsBefore)
{
    MatGui::MaterialView& editor = edit(steel);
    const int steps = history().count();
    apply(editor);
    EXPECT_EQ(history().count(), steps);
    type(editor, modulus, "7e10");
    type(editor, modulus, "2e11");
    apply(editor);
    EXPECT_EQ(history().count(), steps);
}

TEST_F(AppliedEdits, KeepTheNumberOfASwitchIfNothingElseChanges)
{
    MatGui::MaterialView& editor = edit(steel);
    const auto numberOfSwitch = [this] {
        return steel.getCMaterial()->findProperty(vxMat::PropertyId::IsotropicElasticity)->value;
    };
    const double before = numberOfSwitch();
    ASSERT_NE(before, 1.0);
    apply(editor);
    EXPECT_EQ(numberOfSwitch(), before);
    EXPECT_EQ(messages().back(), "\"Steel\" was applied: no property has changed.");
    type(editor, modulus, "7e10");
    apply(editor);
    EXPECT_EQ(numberOfSwitch(), 1.0);
    EXPECT_EQ(modulusOf(steel), 7e10);
}

TEST_F(AppliedEdits, FollowWhatCommandsDidWhileTheEditorWasOpen)
{
    MatGui::MaterialView& editor = edit(steel);
    auto before = MatGui::copyOf(*steel.getCMaterial());
    setNumber(steel, density, 1000.0);
    MatGui::recordChange(steel, std::move(before));
    type(editor, modulus, "7e10");
    apply(editor);
    history().undo();
    // Undo restores the density, which the editor showed and wrote, together with the modulus.
    EXPECT_EQ(modulusOf(steel), 2e11);
    EXPECT_EQ(steel.getCMaterial()->findProperty(density)->value, 1000.0);
}

TEST_F(AppliedEdits, HaveTheUnitsAndCategoriesOfTheCatalogue)
{
    MatGui::MaterialView& editor = edit(steel);
    type(editor, modulus, "7e10");
    apply(editor);
    const vxMat::MaterialProperty& held = *steel.getCMaterial()->findProperty(modulus);
    EXPECT_EQ(held.name, "Young's modulus");
    EXPECT_EQ(held.unit, "Pa");
    EXPECT_EQ(held.category, vxMat::ePropertyCategory::LinearElastic);
}

TEST_F(AppliedEdits, AreRefusedIfTheUnitOfANumberIsNotKnown)
{
    MatGui::MaterialView& editor = edit(steel);
    // A cell stores the number alone; recovery copies of earlier versions can have such a text.
    auto* const table = editor.findChild<MatGui::SheetTableView*>();
    table->model()->setData(table->model()->index(table->findRow(modulus), MatGui::SheetTableView::Value), "210 giga");
    const MessageBoxes boxes;
    apply(editor);
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_THAT(
        boxes.shown().front().text.toStdString(),
        HasSubstr("The value \"210 giga\" of \"Young's modulus\" cannot be read. The unit \"giga\" is not known."));
    EXPECT_EQ(modulusOf(steel), 2e11);
    EXPECT_EQ(history().count(), stepsBefore);
    EXPECT_EQ(table->currentIndex().row(), table->findRow(modulus));
    EXPECT_TRUE(editor.isWindowModified());
}

TEST_F(AppliedEdits, AreShownAsTheMaterialHoldsThem)
{
    MatGui::MaterialView& editor = edit(steel);
    type(editor, modulus, " 7.0e10 ");
    apply(editor);
    EXPECT_EQ(shownValue(editor, modulus), "7e+10");
    EXPECT_FALSE(editor.isWindowModified());
}

TEST_F(AppliedEdits, AreReportedWithTheirNumbers)
{
    MatGui::MaterialView& editor = edit(steel);
    // Apply sets the number of a switch, which has no meaning, to 1. This is not counted.
    type(editor, modulus, "7e10");
    type(editor, density, "4321");
    apply(editor);
    EXPECT_EQ(messages().back(), "\"Steel\" was applied. Properties added: 0, changed: 2, removed: 0.");
    EXPECT_EQ(window->statusBar()->currentMessage().toStdString(), messages().back());
    apply(editor);
    EXPECT_EQ(messages().back(), "\"Steel\" was applied: no property has changed.");
}

/// A new material for which the user takes a material of the library.
class PickedMaterial : public vxtest::Materials
{
protected:
    static void pick(MatGui::MaterialView& editor, const char* name)
    {
        for (QListWidget* const list : editor.findChildren<QListWidget*>())
            for (QListWidgetItem* const item : list->findItems(QLatin1String(name), Qt::MatchExactly))
                Q_EMIT list->itemDoubleClicked(item);
    }

    Mat::DocumentMaterial& project = newProject();
};

TEST_F(PickedMaterial, GivesANewMaterialItsNameInTheSameStep)
{
    Mat::MaterialObject& material = addMaterial(project, "Material");
    const int steps = history().count();
    MatGui::MaterialView& editor = edit(material);
    pick(editor, "Concrete");
    EXPECT_EQ(material.label.getValue(), "Material") << "not applied";
    apply(editor);
    EXPECT_EQ(material.label.getValue(), "Concrete");
    EXPECT_EQ(history().count(), steps + 1);
    history().undo();
    EXPECT_EQ(material.label.getValue(), "Material");
}

TEST_F(PickedMaterial, NumbersItsNameIfAnotherMaterialHasIt)
{
    addMaterial(project, "Concrete");
    Mat::MaterialObject& material = addMaterial(project, "Material");
    MatGui::MaterialView& editor = edit(material);
    pick(editor, "Concrete");
    apply(editor);
    EXPECT_EQ(material.label.getValue(), "Concrete 2");
}

TEST_F(PickedMaterial, LeavesTheLabelOfTheUser)
{
    Mat::MaterialObject& material = addMaterial(project, "Material");
    material.label.setValue("Foundation");
    MatGui::MaterialView& editor = edit(material);
    pick(editor, "Concrete");
    apply(editor);
    EXPECT_EQ(material.label.getValue(), "Foundation");
}

TEST_F(PickedMaterial, GivesNoNameIfItWasUndone)
{
    Mat::MaterialObject& material = addMaterial(project, "Material");
    MatGui::MaterialView& editor = edit(material);
    pick(editor, "Concrete");
    editor.getUndoStack()->undo();
    type(editor, modulus, "7e10");
    apply(editor);
    EXPECT_EQ(material.label.getValue(), "Material");
}

class UnappliedEdits : public vxtest::Materials
{
protected:
    bool isEdited() const { return !window->getMdiWindows().isEmpty(); }
    /// Waits until the editor of the steel is open again and shows the modulus that was typed and not applied.
    void expectEditsAreBack()
    {
        ASSERT_TRUE(
            vxtest::waitFor([this] { return isEdited() && window->getMdiWindows().front()->isWindowModified(); }));
        const auto& editor = dynamic_cast<const MatGui::MaterialView&>(*window->getMdiWindows().front());
        EXPECT_EQ(editor.getMaterialObject(), &steel);
        EXPECT_EQ(shownValue(editor, modulus), "7e+10");
        EXPECT_EQ(modulusOf(steel), 2e11);
    }

    Mat::MaterialObject& steel = addMaterial(newProject());
};

TEST_F(UnappliedEdits, AreRestoredWithANewMaterialThatIsUndoneAndRedone)
{
    type(edit(steel), modulus, "7e10");
    history().undo();
    ASSERT_TRUE(vxtest::waitFor([this] { return !isEdited(); }));
    history().redo();
    expectEditsAreBack();
}

TEST_F(UnappliedEdits, AreRestoredWithAMaterialWhoseDeletionIsUndone)
{
    type(edit(steel), modulus, "7e10");
    for (int round = 0; round < 2; ++round) {
        select({&steel});
        EXPECT_TRUE(run("Mat_Delete"));
        ASSERT_TRUE(vxtest::waitFor([this] { return !isEdited(); }));
        history().undo();
        expectEditsAreBack();
    }
}

TEST_F(UnappliedEdits, ThatWereUndoneInTheEditorCanBeRedoneAfterTheMaterialComesBack)
{
    type(edit(steel), modulus, "7e10");
    EXPECT_TRUE(run("Std_Undo"));
    EXPECT_TRUE(run("Std_Undo"));
    ASSERT_TRUE(vxtest::waitFor([this] { return !isEdited(); }));
    EXPECT_TRUE(run("Std_Redo"));
    ASSERT_TRUE(vxtest::waitFor([this] { return isEdited(); }));
    EXPECT_FALSE(window->getMdiWindows().front()->isWindowModified());
    EXPECT_TRUE(run("Std_Redo"));
    expectEditsAreBack();
}

TEST_F(UnappliedEdits, ThatFollowedAnApplyComeBackByRedoInTheirOrder)
{
    MatGui::MaterialView& editor = edit(steel);
    type(editor, modulus, "6e10");
    apply(editor);
    type(editor, modulus, "7e10");
    // The typed value, the Apply, and the addition of the material.
    for (int step = 0; step < 3; ++step)
        EXPECT_TRUE(run("Std_Undo"));
    ASSERT_TRUE(vxtest::waitFor([this] { return !isEdited(); }));
    EXPECT_TRUE(run("Std_Redo"));
    QCoreApplication::processEvents();
    EXPECT_EQ(modulusOf(steel), 2e11);
    EXPECT_TRUE(run("Std_Redo"));
    EXPECT_EQ(modulusOf(steel), 6e10);
    ASSERT_TRUE(vxtest::waitFor([this] { return isEdited(); }));
    const auto& again = dynamic_cast<const MatGui::MaterialView&>(*window->getMdiWindows().front());
    EXPECT_FALSE(again.isWindowModified());
    EXPECT_TRUE(run("Std_Redo"));
    EXPECT_EQ(shownValue(again, modulus), "7e+10");
    EXPECT_TRUE(again.isWindowModified());
    EXPECT_EQ(modulusOf(steel), 6e10);
}

TEST_F(UnappliedEdits, AreNotRestoredAfterTheyWereApplied)
{
    MatGui::MaterialView& editor = edit(steel);
    type(editor, modulus, "7e10");
    apply(editor);
    select({&steel});
    EXPECT_TRUE(run("Mat_Delete"));
    history().undo();
    QCoreApplication::processEvents();
    EXPECT_FALSE(isEdited());
}

TEST_F(UnappliedEdits, AreForgottenWhenTheHistoryEnds)
{
    Obj::Project& project = *steel.get_project();
    const std::size_t listeners = project.objectAdded.num_slots();
    type(edit(steel), modulus, "7e10");
    select({&steel});
    EXPECT_TRUE(run("Mat_Delete"));
    EXPECT_EQ(project.objectAdded.num_slots(), listeners + 1) << "the edits wait for the material";
    history().clear();
    EXPECT_EQ(project.objectAdded.num_slots(), listeners);
}

TEST_F(UnappliedEdits, AreRestoredIfTheHistoryEndsBeforeTheyAreShown)
{
    type(edit(steel), modulus, "7e10");
    select({&steel});
    EXPECT_TRUE(run("Mat_Delete"));
    history().undo();
    history().clear();
    expectEditsAreBack();
}

/// The materials of the library, edited in another language.
class Language : public vxtest::Materials, public testing::WithParamInterface<const char*>
{
protected:
    Language()
    {
        for (const auto& [type, material] : project.getMatMgr().materials) {
            objects.push_back(&addMaterial(project, material->name));
            objects.back()->setCMaterial(material.get());
        }
        Gui::Translator::instance()->setLanguage(QLatin1String(GetParam()));
        QCoreApplication::processEvents();
    }
    ~Language() override
    {
        Gui::Translator::instance()->setLanguage(QStringLiteral("en"));
        QCoreApplication::processEvents();
    }

    const vxMat::MaterialProperty& catalogued(int id) const { return *project.getMatMgr().propertyCatalogue.at(id); }

    /// Opens the editor of a material, which shows names in the other language, and presses Apply.
    void applyInEditor(Mat::MaterialObject& object)
    {
        MatGui::MaterialView& editor = edit(object);
        const QAbstractItemModel& rows = *editor.findChild<MatGui::SheetTableView*>()->model();
        int translated = 0;
        for (int row = 0; row < rows.rowCount(); ++row) {
            const int id = rows.index(row, MatGui::SheetTableView::Id).data().toInt();
            const QString name = rows.index(row, MatGui::SheetTableView::Name).data().toString();
            translated += name.toStdString() != catalogued(id).name ? 1 : 0;
        }
        EXPECT_GT(translated, 0);
        const MessageBoxes boxes;
        apply(editor);
        EXPECT_TRUE(boxes.shown().empty());
        editor.remove_viewself();
    }

    void expectCatalogueTexts(const vxMat::MaterialBase& before, const vxMat::MaterialBase& now) const
    {
        EXPECT_FALSE(now.properties.empty());
        for (const auto& [slot, property] : now.properties) {
            SCOPED_TRACE(catalogued(slot).name);
            EXPECT_EQ(property->name, catalogued(slot).name);
            EXPECT_EQ(property->unit, catalogued(slot).unit);
            EXPECT_EQ(property->description, catalogued(slot).description);
            EXPECT_EQ(property->category, catalogued(slot).category);
            EXPECT_EQ(property->key, before.findProperty(slot)->key);
            EXPECT_EQ(property->text, before.findProperty(slot)->text);
        }
    }

    Mat::DocumentMaterial& project = newProject();
    std::vector<Mat::MaterialObject*> objects;
};

TEST_P(Language, LeavesNoTranslationInMaterials)
{
    for (Mat::MaterialObject* const object : objects) {
        SCOPED_TRACE(object->label.getValue());
        const auto before = MatGui::copyOf(*object->getCMaterial());
        applyInEditor(*object);
        expectCatalogueTexts(*before, *object->getCMaterial());
    }
}

TEST_P(Language, LeavesNoTranslationInDocuments)
{
    for (Mat::MaterialObject* const object : objects)
        applyInEditor(*object);
    ASSERT_TRUE(run("Mat_Export", path("a.json")));
    QFile file(path("a.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    std::set<std::string> names;
    for (const auto& [id, quantity] : project.getMatMgr().propertyCatalogue)
        names.insert({quantity->name, quantity->key});
    const QJsonObject document = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonArray materials = document["material"].toArray();
    EXPECT_EQ(materials.size(), static_cast<int>(objects.size()));
    for (const QJsonValue material : materials)
        for (const QJsonValue property : material["Props"].toArray()) {
            EXPECT_THAT(names, testing::Contains(property["prop_name"].toString().toStdString()));
            EXPECT_THAT(names, testing::Contains(property["prop_key"].toString().toStdString()));
        }
}

TEST_P(Language, NamesWhatAnExportLosesAsTheEditorDoes)
{
    const std::string yieldStress = GetParam() == std::string("de") ? "Fließspannung" : "屈服应力";
    ASSERT_TRUE(run("Mat_Export", path("a.json")));
    EXPECT_THAT(messages(), testing::Contains(testing::HasSubstr('"' + yieldStress + '"')));
}

INSTANTIATE_TEST_SUITE_P(OfTheProgram, Language, testing::Values("de", "zh_CN"),
                         [](const testing::TestParamInfo<const char*>& language) {
                             return std::string(language.param);
                         });

} // namespace
