#include "vxMaterial/gui/Commands.h"

#include "DependencyQuestion.h"

#include "Gui/FileDialog.h"
#include "Gui/GuiApplication.h"
#include "Gui/GuiProject.h"
#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Gui/ViewFeeder.h"
#include "Obj/Application.h"
#include "Obj/ProjectObjectGroup.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxMaterial/project/Requests.h"
#include "vxMsg/MessageProxy.h"

#include <QMessageBox>

#include <algorithm>
#include <array>
#include <cassert>
#include <iterator>
#include <memory>
#include <optional>
#include <string_view>

namespace MatGui {

namespace {

constexpr auto materialProjectTag = static_cast<std::uint32_t>(Mat::materialProjectTag);

/// The fields of one command. Fields that are absent keep the host's default.
struct Row
{
    const char* name = nullptr;
    const char* menuText = nullptr;
    const char* tip = nullptr; ///< tool tip and status tip
    const char* whatsThis = nullptr;
    const char* pixmap = nullptr;
    const char* module = nullptr;
    const char* group = nullptr;
    std::optional<QKeySequence::StandardKey> shortcut;
    std::optional<int> typeFlags;
};

constexpr Row rows[] = {
    {"Mat_NewDoc", QT_TRANSLATE_NOOP("MatCmdNewDoc", "&New material project"),
     QT_TRANSLATE_NOOP("MatCmdNewDoc", "Create a new material project"), "Mat_NewDoc", "norvex_materialproject",
     nullptr, "File", std::nullopt, std::nullopt},
    {"Mat_DelDoc", QT_TRANSLATE_NOOP("MatCmdDelDoc", "Close project"),
     QT_TRANSLATE_NOOP("MatCmdDelDoc", "Delete a material project"), "Mat_DelDoc", "norvex_gui_closedoc", "Mat", "Mat",
     std::nullopt, 0},
    {"Mat_AddMaterial", QT_TRANSLATE_NOOP("MatCmdMaterial", "Add material"),
     QT_TRANSLATE_NOOP("MatCmdMaterial", "Add a new material"), "Mat_AddMaterial", "norvex_materialobject", "Mat",
     "Mat", std::nullopt, 0},
    {"Mat_Delete", QT_TRANSLATE_NOOP("MatCmdDelete", "&Delete"),
     QT_TRANSLATE_NOOP("MatCmdDelete", "Deletes the selected material objects"), "Mat_Delete", nullptr, nullptr, "Edit",
     QKeySequence::Delete, 8},
    {"Mat_Edit", QT_TRANSLATE_NOOP("MatCmdEdit", "Edit"), QT_TRANSLATE_NOOP("MatCmdEdit", "Edit current material"),
     "Mat_Edit", nullptr, "Mat", "Mat", std::nullopt, 0},
    {"Mat_Import", QT_TRANSLATE_NOOP("CmdMatImport", "Import materials"),
     QT_TRANSLATE_NOOP("CmdMatImport", "Import CSV file into material"), "Import CSV file into material",
     "norvex_importmaterial", "AppMaterial", "AppMaterial", std::nullopt, std::nullopt},
    {"Mat_Export", QT_TRANSLATE_NOOP("CmdMatExport", "Export materials"),
     QT_TRANSLATE_NOOP("CmdMatExport", "Export materials to JSON file"), "Export materials to JSON file",
     "norvex_exportmaterial", "AppMaterial", "AppMaterial", std::nullopt, std::nullopt},
};

/// Objects of these classes are parts of every analysis. The command does not delete them.
constexpr std::array<std::string_view, 5> protectedClasses = {
    "Fem::FemGeometryGroup", "Fem::FemMeshGroup", "Fem::FemStudy", "Fem::FemSolution", "Fem::FemConnections"};

bool isProtected(const Obj::ProjectObject& object)
{
    return std::find(protectedClasses.begin(), protectedClasses.end(), object.getTypeId().get_name()) !=
           protectedClasses.end();
}

/// Returns the first material project; null if there is none.
Obj::Project* findMaterialProject()
{
    const std::vector<Obj::Project*> projects = Obj::Application::get_projects(materialProjectTag);
    return projects.empty() ? nullptr : projects.front();
}

bool hasCurrentProject()
{
    return Obj::Application::get_current_project() != nullptr;
}

bool breaksLinks(const Obj::ProjectObject& object)
{
    const Gui::TreeSelectionSingleton& selection = Gui::TreeSelectionSingleton::instance();
    const std::vector<Obj::ProjectObject*> linked = object.get_linked_objects();
    return std::any_of(linked.begin(), linked.end(), [&selection](const Obj::ProjectObject* other) {
        return !isProtected(*other) && !other->is_inherited_from(Obj::ProjectObjectGroup::getClassTypeId()) &&
               !selection.is_selected(other, nullptr);
    });
}

bool mayDelete(const std::vector<Gui::CSelectionType>& entries)
{
    const bool asks = std::any_of(entries.begin(), entries.end(), [](const Gui::CSelectionType& entry) {
        const Obj::ProjectObject* const object = entry.get_object();
        return object != nullptr && breaksLinks(*object);
    });
    return !asks || askAboutDependencies(Gui::MainWindow::get_main_window_inst());
}

/// Switches off the repainting of the main window as long as the object exists.
class UpdatesOff
{
public:
    UpdatesOff() : m_window(Gui::MainWindow::get_main_window_inst())
    {
        if (m_window != nullptr)
            m_window->setUpdatesEnabled(false);
    }
    UpdatesOff(const UpdatesOff&) = delete;
    UpdatesOff& operator=(const UpdatesOff&) = delete;
    ~UpdatesOff()
    {
        if (m_window == nullptr)
            return;
        m_window->setUpdatesEnabled(true);
        m_window->update();
    }

private:
    Gui::MainWindow* m_window;
};

void deleteEntries(const std::vector<Gui::CSelectionType>& entries)
{
    const UpdatesOff quiet;
    for (const Gui::CSelectionType& entry : entries) {
        // The deletion of one entry may delete another entry or close the project.
        Obj::ProjectObject* const object = entry.get_object();
        if (object == nullptr || isProtected(*object))
            continue;
        Gui::GuiProject* const guiProject = Gui::GuiApplication::Instance->get_project(object->get_project());
        Gui::ViewFeeder* const node = guiProject != nullptr ? guiProject->get_view_feeder(object) : nullptr;
        if (node != nullptr && node->onDelete(entry.getSubelementNames()))
            vxMsg::doCommand(
                vxMsg::MessageData(vxMsg::vxCommand::DeleteObject, entry.getProjectName(), entry.getObjectName(), 0.0));
    }
}

bool isOpen(std::uint32_t projectId)
{
    return Obj::Application::instance().get_project(projectId) != nullptr;
}

/// Returns the only material project; null if there is none or more than one.
Mat::DocumentMaterial* findProjectToExport()
{
    const std::vector<Obj::Project*> projects = Obj::Application::get_projects(materialProjectTag);
    // Projects of other modules may have the same tag.
    const bool isOne =
        projects.size() == 1 && projects.front()->is_inherited_from(Mat::DocumentMaterial::getClassTypeId());
    return isOne ? static_cast<Mat::DocumentMaterial*>(projects.front()) : nullptr;
}

} // namespace

MaterialCommand::MaterialCommand(const char* name) : Command(name)
{
    const auto* const row = std::find_if(std::begin(rows), std::end(rows),
                                         [name](const Row& r) { return std::string_view(r.name) == name; });
    assert(row != std::end(rows));
    menuText = row->menuText;
    toolTip = row->tip;
    statusTip = row->tip;
    whatsThis = row->whatsThis;
    pixmap = row->pixmap != nullptr ? row->pixmap : pixmap;
    module = row->module != nullptr ? row->module : module;
    group = row->group;
    shortcut = row->shortcut ? get_shortcut_from_keys(*row->shortcut) : shortcut;
    typeFlags = row->typeFlags.value_or(typeFlags);
}

MaterialCommand::~MaterialCommand() = default;

MatCmdNewDoc::MatCmdNewDoc() : MaterialCommand("Mat_NewDoc") {}

MatCmdNewDoc::~MatCmdNewDoc() = default;

const char* MatCmdNewDoc::getClassName() const
{
    return "MatCmdNewDoc";
}

void MatCmdNewDoc::activated(int)
{
    if (findMaterialProject() != nullptr) {
        QMessageBox::warning(Gui::MainWindow::get_main_window_inst(), translated("Material project"),
                             translated("Material project is already presented in Project Explorer window."),
                             QMessageBox::Ok);
        return;
    }
    vxMsg::runCommand(Mat::Request::NewMaterialProject, 1, {Obj::Application::get_unique_project_name("Materials")});
}

MatCmdDelDoc::MatCmdDelDoc() : MaterialCommand("Mat_DelDoc") {}

MatCmdDelDoc::~MatCmdDelDoc() = default;

const char* MatCmdDelDoc::getClassName() const
{
    return "MatCmdDelDoc";
}

void MatCmdDelDoc::activated(int)
{
    const auto projects = Gui::TreeSelectionSingleton::instance().get_projects(materialProjectTag);
    if (projects.size() == 1)
        vxMsg::runCommand(vxMsg::vxCommand::CloseProject, 1, {projects.front()->get_name()});
}

MatCmdMaterial::MatCmdMaterial() : MaterialCommand("Mat_AddMaterial") {}

MatCmdMaterial::~MatCmdMaterial() = default;

const char* MatCmdMaterial::getClassName() const
{
    return "MatCmdMaterial";
}

void MatCmdMaterial::activated(int)
{
    const Obj::Project* const project = findMaterialProject();
    if (project == nullptr) {
        QMessageBox::critical(Gui::MainWindow::get_main_window_inst(), translated("Invalid project"),
                              translated("No material project."), QMessageBox::Ok);
        return;
    }
    const std::string name = get_unique_object_name("Material");
    if (!name.empty())
        vxMsg::doCommand(vxMsg::MessageData(Mat::Request::AddMaterial, project->get_name(), name, 0.0));
}

bool MatCmdMaterial::is_applicable()
{
    return hasCurrentProject();
}

MatCmdDelete::MatCmdDelete() : MaterialCommand("Mat_Delete") {}

MatCmdDelete::~MatCmdDelete() = default;

const char* MatCmdDelete::getClassName() const
{
    return "MatCmdDelete";
}

void MatCmdDelete::activated(int)
{
    std::vector<std::uint32_t> projectIds;
    for (const Obj::Project* const project : Obj::Application::get_projects())
        projectIds.push_back(project->getProjectId());
    for (const std::uint32_t projectId : projectIds) {
        // The project may be closed while a question about this project or another project is open.
        const Obj::Project* const project = Obj::Application::instance().get_project(projectId);
        if (project == nullptr)
            continue;
        const auto entries = Gui::TreeSelectionSingleton::instance().get_selection2(
            project->get_name(), Obj::ProjectObject::getClassTypeId());
        if (!entries.empty() && mayDelete(entries) && isOpen(projectId))
            deleteEntries(entries);
    }
}

bool MatCmdDelete::is_applicable()
{
    return hasCurrentProject();
}

MatCmdEdit::MatCmdEdit() : MaterialCommand("Mat_Edit") {}

MatCmdEdit::~MatCmdEdit() = default;

const char* MatCmdEdit::getClassName() const
{
    return "MatCmdEdit";
}

void MatCmdEdit::activated(int)
{
    const Obj::Project* const project = findMaterialProject();
    if (project == nullptr)
        return;
    for (Obj::ProjectObject* const object : Gui::TreeSelectionSingleton::instance().get_objects_of_type(
             Mat::MaterialObject::getClassTypeId(), project->get_name()))
        if (Gui::ViewFeeder* const node = Gui::GuiApplication::Instance->get_view_feeder(object))
            node->on_double_clicked();
}

bool MatCmdEdit::is_applicable()
{
    return hasCurrentProject();
}

CmdMatImport::CmdMatImport() : MaterialCommand("Mat_Import") {}

CmdMatImport::~CmdMatImport() = default;

const char* CmdMatImport::getClassName() const
{
    return "CmdMatImport";
}

void CmdMatImport::activated(int)
{
    QString selectedFilter;
    const QString path =
        Gui::FileDialog::getOpenFileName(Gui::MainWindow::get_main_window_inst(), translated("Import file"), QString(),
                                         translated("All (*)"), &selectedFilter);
    if (path.isEmpty())
        return;
    // The project may be closed while the dialog is open.
    Obj::Project* const project = Obj::Application::get_current_project();
    if (project == nullptr)
        return;
    Obj::ProjectObject* const added = project->add_object("Mat::MaterialObject", get_unique_object_name("Material"));
    auto* const object = dynamic_cast<Mat::MaterialObject*>(added);
    if (object == nullptr)
        return;
    object->importFromFile(path.toStdString(), '\t', '"', '\\');
    const std::unique_ptr<Obj::ProjectObjectExecReturn> ignored(object->execute());
}

bool CmdMatImport::is_applicable()
{
    return hasCurrentProject();
}

CmdMatExport::CmdMatExport() : MaterialCommand("Mat_Export") {}

CmdMatExport::~CmdMatExport() = default;

const char* CmdMatExport::getClassName() const
{
    return "CmdMatExport";
}

void CmdMatExport::activated(int)
{
    const Mat::DocumentMaterial* const chosen = findProjectToExport();
    if (chosen == nullptr)
        return;
    const std::uint32_t projectId = chosen->getProjectId();
    QString selectedFilter;
    const QString filter = translated("JSON file(*.json)") + QStringLiteral(";;") + QStringLiteral("All files(*.*)");
    const QString path = Gui::FileDialog::getSaveFileName(
        Gui::MainWindow::get_main_window_inst(), translated("Export materials"), QString(), filter, &selectedFilter);
    if (path.isEmpty())
        return;
    // The project may be closed while the dialog is open.
    if (Obj::Project* const project = Obj::Application::instance().get_project(projectId))
        static_cast<Mat::DocumentMaterial*>(project)->exportToFile(path.toStdString(), '\t', '"', '\\');
}

bool CmdMatExport::is_applicable()
{
    return hasCurrentProject();
}

} // namespace MatGui
