#include "EditorWatch.h"

#include "KeptEdits.h"
#include "MaterialChange.h"

#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Kelta/Exceptions.h"
#include "Obj/Project.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <boost/signals2/connection.hpp>

#include <memory>
#include <utility>

namespace desktop {

namespace {

/// Follows one editor, which owns it.
class EditorRecorder final : public QObject
{
public:
    EditorRecorder(MatGui::MaterialView& editor, KeptEdits& kept) : QObject(&editor), m_editor(editor), m_kept(kept)
    {
        // Connected at the front, because another listener closes the editor.
        Obj::Project& project = *material().get_project();
        m_objectRemoved = project.objectRemoved.connect(
            [this, &project](const Obj::ProjectObject& removed) { keepEdits(project, removed); },
            boost::signals2::at_front);
        connect(&editor, &Gui::MDIWindow::applying, this, &EditorRecorder::begin);
        connect(&editor, &Gui::MDIWindow::applied, this, &EditorRecorder::record);
    }

private:
    void begin(Gui::ApplyRefusal& refusal)
    {
        Kelta::guarded(EditorWatch::tr("The values of an editor cannot be checked"), [&] {
            if (auto ignored = m_editor.findIgnoredText())
                refusal = std::move(*ignored);
            m_before = copyOf(*material().getCMaterial());
        });
    }

    void record()
    {
        Kelta::guarded(EditorWatch::tr("The changes in an editor cannot be recorded"), [&] {
            vxMat::restoreCatalogueTexts(*material().getCMaterial());
            if (m_before != nullptr)
                recordChange(material(), std::move(m_before));
        });
    }

    void keepEdits(Obj::Project& project, const Obj::ProjectObject& removed)
    {
        if (&removed == &material())
            m_kept.keep(project, removed.getObjectId(), m_editor.unappliedEdits());
    }

    Mat::MaterialObject& material() const { return *m_editor.getMaterialObject(); }

    MatGui::MaterialView& m_editor;
    KeptEdits& m_kept;
    boost::signals2::scoped_connection m_objectRemoved;
    std::unique_ptr<vxMat::CMaterial> m_before; ///< the material before the Apply that is in progress
};

} // namespace

EditorWatch::EditorWatch(Gui::MainWindow& mainWindow) : QObject(&mainWindow), m_kept(new KeptEdits(this))
{
    connect(&mainWindow, &Gui::MainWindow::mdiWindowAdded, this, &EditorWatch::watch);
}

EditorWatch::~EditorWatch() = default;

void EditorWatch::watch(Gui::MDIWindow* window)
{
    if (auto* const editor = qobject_cast<MatGui::MaterialView*>(window))
        new EditorRecorder(*editor, *m_kept); // the editor owns it
}

} // namespace desktop
