#include "vxMaterial/gui/MaterialChange.h"

#include "Gui/GuiApplication.h"
#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Gui/ViewFeeder.h"
#include "Obj/Application.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMsg/MessageProxy.h"

#include <QCoreApplication>
#include <QUndoCommand>

#include <algorithm>
#include <cmath>
#include <utility>

namespace MatGui {

namespace {

bool areSameNumbers(const double& first, const double& second)
{
    return first == second ? std::signbit(first) == std::signbit(second) : std::isnan(first) && std::isnan(second);
}

bool areSame(const vxMat::MaterialProperty& first, const vxMat::MaterialProperty& second)
{
    return first.id == second.id && first.name == second.name && first.key == second.key &&
           areSameNumbers(first.value, second.value) && first.text == second.text &&
           std::equal(first.values.begin(), first.values.end(), second.values.begin(), second.values.end(),
                      areSameNumbers) &&
           first.description == second.description && first.unit == second.unit && first.category == second.category;
}

/// Returns whether a property means the same: the number of a switch has no meaning, and an Apply may replace it.
bool meanSame(const vxMat::MaterialProperty& first, const vxMat::MaterialProperty& second)
{
    return first.id == second.id &&
           (vxMat::getValueKind(first.id) == vxMat::ValueKind::ModelSwitch || areSame(first, second));
}

/// Returns whether two materials have the same fields, and properties for which `same` returns true.
bool agree(const vxMat::MaterialBase& first, const vxMat::MaterialBase& second,
           bool (*same)(const vxMat::MaterialProperty&, const vxMat::MaterialProperty&))
{
    return first.id == second.id && first.name == second.name && first.libraryGroup == second.libraryGroup &&
           first.properties.size() == second.properties.size() &&
           std::all_of(first.properties.begin(), first.properties.end(), [&](const auto& held) {
               const vxMat::MaterialProperty* const other = second.findProperty(held.first);
               return other != nullptr && same(*held.second, *other);
           });
}

Mat::MaterialObject* findMaterial(std::uint32_t projectId, std::uint32_t objectId)
{
    const Obj::Project* const project = Obj::Application::instance().get_project(projectId);
    return project != nullptr ? dynamic_cast<Mat::MaterialObject*>(project->get_object(objectId)) : nullptr;
}

/// Returns the open editor of a material; null if there is none, or if it has edits that are not applied, which must
/// stay.
Gui::MDIWindow* editorToReopen(const Mat::MaterialObject& object)
{
    const Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst();
    Gui::MDIWindow* const editor = mainWindow != nullptr ? mainWindow->editorOf(object) : nullptr;
    return editor != nullptr && !editor->isWindowModified() ? editor : nullptr;
}

/// Reopens the editor of a material to show its present values. Keeps an editor with edits that are not applied.
void reopenEditor(Mat::MaterialObject& object)
{
    Gui::MDIWindow* const editor = editorToReopen(object);
    if (editor == nullptr)
        return;
    Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst();
    Gui::MDIWindow* const inFront = mainWindow->get_active_mdi_window();
    const bool wasInFront = inFront == editor;
    editor->remove_viewself();
    Gui::GuiApplication::Instance->get_view_feeder(&object)->setEdit(0);
    if (!wasInFront)
        mainWindow->set_active_mdi_window(inFront);
}

/// Shows edits, a record of MDIWindow::editSteps, in the editor of a material. Opens the editor if it is not open.
void showEdits(Mat::MaterialObject& object, const Json::Value& edits)
{
    const Gui::MainWindow* const mainWindow = Gui::MainWindow::get_main_window_inst();
    Gui::ViewFeeder* const node = Gui::GuiApplication::Instance->get_view_feeder(&object);
    if (mainWindow == nullptr || node == nullptr)
        return;
    if (mainWindow->editorOf(object) == nullptr)
        node->setEdit(0);
    if (Gui::MDIWindow* const editor = mainWindow->editorOf(object))
        editor->restoreEdits(edits);
}

/// A change of a material. Stores the ids of project and object, because the object may be deleted and restored.
class MaterialChange final : public QUndoCommand
{
public:
    MaterialChange(const Mat::MaterialObject& object, std::unique_ptr<vxMat::CMaterial> before)
        : QUndoCommand(QCoreApplication::translate("MatGui::MaterialChange", "Change \"%1\"")
                           .arg(QString::fromStdString(object.label.getValue()))),
          m_projectId(object.get_project()->getProjectId()),
          m_objectId(object.getObjectId()),
          m_other(std::move(before))
    {}

    void undo() override
    {
        Mat::MaterialObject* const object = findMaterial(m_projectId, m_objectId);
        if (object == nullptr)
            return;
        // The user has undone the edits that followed this change, and can redo them after this change.
        const Gui::MDIWindow* const editor = editorToReopen(*object);
        m_laterEdits = editor != nullptr ? editor->editSteps() : Json::Value();
        swap(*object);
    }

    void redo() override
    {
        Mat::MaterialObject* const object = findMaterial(m_projectId, m_objectId);
        if (!std::exchange(m_done, true) || object == nullptr)
            return;
        swap(*object);
        const Json::Value edits = std::exchange(m_laterEdits, {});
        if (!edits.isNull())
            showEdits(*object, edits);
    }

private:
    void swap(Mat::MaterialObject& object)
    {
        object.getCMaterial()->swap(*m_other);
        object.refreshProperties(true);
        materialChanged()(object);
        reopenEditor(object);
    }

    std::uint32_t m_projectId;
    std::uint32_t m_objectId;
    std::unique_ptr<vxMat::CMaterial> m_other; ///< before the change; while the change is undone, after the change
    Json::Value m_laterEdits; ///< while the change is undone, the steps of the editor that followed it; null for none
    bool m_done = false;
};

} // namespace

std::unique_ptr<vxMat::CMaterial> copyOf(const vxMat::MaterialBase& material)
{
    auto copy = std::make_unique<vxMat::CMaterial>();
    copy->copyAllFrom(material);
    return copy;
}

bool areSame(const vxMat::MaterialBase& first, const vxMat::MaterialBase& second)
{
    return agree(first, second, areSame);
}

void keepSwitchNumbers(vxMat::MaterialBase& material, const vxMat::MaterialBase& before)
{
    if (!agree(before, material, meanSame))
        return;
    for (const auto& [slot, property] : material.properties)
        property->value = before.findProperty(slot)->value;
}

ChangeCount countChanges(const vxMat::MaterialBase& before, const vxMat::MaterialBase& after)
{
    ChangeCount count;
    for (const auto& [slot, property] : after.properties) {
        const vxMat::MaterialProperty* const earlier = before.findProperty(slot);
        if (earlier == nullptr)
            ++count.added;
        else if (!meanSame(*earlier, *property))
            ++count.changed;
    }
    count.removed = before.properties.size() + count.added - after.properties.size();
    return count;
}

Obj::Signal<void(Mat::MaterialObject&)>& materialChanged()
{
    static Obj::Signal<void(Mat::MaterialObject&)> signal;
    return signal;
}

bool recordChange(Mat::MaterialObject& object, std::unique_ptr<vxMat::CMaterial> before)
{
    if (areSame(*object.getCMaterial(), *before))
        return false;
    object.refreshProperties(true);
    vxMsg::MessageProxy::instance().pushDone(std::make_unique<MaterialChange>(object, std::move(before)));
    materialChanged()(object);
    return true;
}

} // namespace MatGui
