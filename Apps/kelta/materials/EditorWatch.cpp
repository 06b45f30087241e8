#include "EditorWatch.h"

#include "MaterialChange.h"

#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Kelta/Exceptions.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <memory>
#include <utility>

namespace kelta {

namespace {

/// Follows one editor, which owns it.
class EditorRecorder final : public QObject
{
public:
    explicit EditorRecorder(MatGui::MaterialView& editor) : QObject(&editor), m_editor(editor)
    {
        connect(&editor, &Gui::MDIWindow::applying, this, &EditorRecorder::begin);
        connect(&editor, &Gui::MDIWindow::applied, this, &EditorRecorder::record);
    }

private:
    void begin(Gui::ApplyRefusal& refusal)
    {
        Kelta::guarded(EditorWatch::tr("The values of an editor cannot be checked"), [&] {
            if (auto ignored = m_editor.findIgnoredText())
                refusal = std::move(*ignored);
            m_before = copyOf(*material());
        });
    }

    void record()
    {
        Kelta::guarded(EditorWatch::tr("What was changed in an editor cannot be recorded"), [&] {
            vxMat::restoreCatalogueTexts(*material());
            if (m_before != nullptr)
                recordChange(*m_editor.getMaterialObject(), std::move(m_before));
        });
    }

    vxMat::CMaterial* material() const { return m_editor.getMaterialObject()->getCMaterial(); }

    MatGui::MaterialView& m_editor;
    std::unique_ptr<vxMat::CMaterial> m_before; ///< the material before the Apply that is in progress
};

} // namespace

EditorWatch::EditorWatch(Gui::MainWindow& mainWindow) : QObject(&mainWindow)
{
    connect(&mainWindow, &Gui::MainWindow::mdi_window_added, this, &EditorWatch::watch);
}

EditorWatch::~EditorWatch() = default;

void EditorWatch::watch(Gui::MDIWindow* window)
{
    if (auto* const editor = qobject_cast<MatGui::MaterialView*>(window))
        new EditorRecorder(*editor); // the editor owns it
}

} // namespace kelta
