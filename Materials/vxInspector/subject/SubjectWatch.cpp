#include "subject/SubjectWatch.h"

#include "Gui/MDIWindow.h"
#include "Gui/MainWindow.h"
#include "Gui/TreeSelectionSingleton.h"
#include "Kelta/Exceptions.h"
#include "Obj/Application.h"
#include "vxInspector/units/ProjectUnits.h"
#include "vxMaterial/gui/MaterialView.h"
#include "vxMaterial/gui/SheetTableView.h"
#include "vxMaterial/project/DocumentMaterial.h"
#include "vxMaterial/project/MaterialObject.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QLineEdit>

#include <set>
#include <utility>

namespace vxInspector {

namespace {

/// Returns the material editor that is, or contains, a widget; null if there is none.
MatGui::MaterialView* editorAround(QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget())
        if (auto* const editor = qobject_cast<MatGui::MaterialView*>(widget))
            return editor;
    return nullptr;
}

/// Returns the material of an open editor; null if the editor is about to close because its material was removed.
Mat::MaterialObject* materialOf(MatGui::MaterialView* editor)
{
    const Gui::MainWindow* const window = Gui::MainWindow::get_main_window_inst();
    if (editor == nullptr || window == nullptr || !window->getMdiWindows().contains(editor))
        return nullptr;
    Mat::MaterialObject* const material = editor->getMaterialObject();
    return material->get_project() != nullptr ? material : nullptr;
}

} // namespace

SubjectWatch::SubjectWatch(QObject* parent) : QObject(parent)
{
    m_note.setSingleShot(true);
    m_note.setInterval(0);
    connect(&m_note, &QTimer::timeout, this, &SubjectWatch::changed);
    watchHost();
}

SubjectWatch::~SubjectWatch() = default;

void SubjectWatch::watchHost()
{
    connect(&Gui::TreeSelectionSingleton::instance(), &Gui::TreeSelectionSingleton::selectionChanged, this,
            &SubjectWatch::followSelection);
    connect(qApp, &QApplication::focusChanged, this, &SubjectWatch::followFocus);
    if (const Gui::MainWindow* const window = Gui::MainWindow::get_main_window_inst())
        connect(window, &Gui::MainWindow::updated, this, &SubjectWatch::followWindow);
    Obj::Application& application = Obj::Application::instance();
    m_projectRemoved = application.projectRemoved.connect([this](const Obj::Project& project) {
        m_projects.erase(project.getProjectId());
        noteLater();
    });
    // An editor may be open already when the inspector is shown for the first time.
    followWindow();
}

void SubjectWatch::noteLater()
{
    if (!m_note.isActive())
        m_note.start();
}

MatGui::MaterialView* SubjectWatch::editorOf(const Mat::MaterialObject& object)
{
    const Gui::MainWindow* const window = Gui::MainWindow::get_main_window_inst();
    return window != nullptr ? qobject_cast<MatGui::MaterialView*>(window->editorOf(object)) : nullptr;
}

void SubjectWatch::followSelection()
{
    m_editor = nullptr;
    noteLater();
}

void SubjectWatch::followWindow()
{
    const Gui::MainWindow* const window = Gui::MainWindow::get_main_window_inst();
    Gui::MDIWindow* const front = window != nullptr ? window->get_active_mdi_window() : nullptr;
    // The window does not say whether the user has changed a preference.
    if (std::string preferred = defaultSystem().text(); preferred != m_preferredSystem) {
        m_preferredSystem = std::move(preferred);
        noteLater();
    }
    if (m_front == front)
        return;
    m_front = front;
    m_editor = qobject_cast<MatGui::MaterialView*>(front);
    noteLater();
}

void SubjectWatch::followFocus(QWidget* /*before*/, QWidget* now)
{
    MatGui::MaterialView* const editor = editorAround(now);
    if (editor == nullptr)
        return;
    // The text in a cell is not in the model of the table until the user has finished it.
    if (const auto* const line = qobject_cast<QLineEdit*>(now)) {
        connect(line, &QLineEdit::textChanged, this, &SubjectWatch::noteLater, Qt::UniqueConnection);
        connect(line, &QObject::destroyed, this, &SubjectWatch::noteLater, Qt::UniqueConnection);
        noteLater();
    }
    if (m_editor == editor)
        return;
    m_editor = editor;
    noteLater();
}

Subject SubjectWatch::current() const
{
    if (Mat::MaterialObject* const edited = materialOf(m_editor))
        return {Subject::Kind::Materials, {edited}};
    Subject selected = ofSelection();
    if (selected.kind != Subject::Kind::Nothing)
        return selected;
    Mat::MaterialObject* const inFront = materialOf(qobject_cast<MatGui::MaterialView*>(m_front.data()));
    return inFront != nullptr ? Subject{Subject::Kind::Materials, {inFront}} : selected;
}

Subject SubjectWatch::ofSelection() const
{
    const Gui::TreeSelectionSingleton& selection = Gui::TreeSelectionSingleton::instance();
    Subject subject;
    for (Obj::ProjectObject* const object : selection.get_objects_of_type(Mat::MaterialObject::getClassTypeId()))
        subject.materials.push_back(static_cast<Mat::MaterialObject*>(object));
    if (!subject.materials.empty()) {
        subject.kind = Subject::Kind::Materials;
        return subject;
    }
    const auto projects = selection.get_projects(static_cast<std::uint32_t>(Mat::materialProjectTag));
    for (const Obj::Project* const project : projects)
        for (Mat::MaterialObject* const object : Mat::materialsOf(*project))
            subject.materials.push_back(object);
    if (!projects.empty())
        subject.kind = Subject::Kind::Project;
    else if (selection.getCount() != 0)
        subject.kind = Subject::Kind::OtherObjects;
    return subject;
}

void SubjectWatch::follow(const Subject& subject)
{
    for (const QMetaObject::Connection& connection : std::exchange(m_editorConnections, {}))
        disconnect(connection);
    std::set<const Obj::ProjectObject*> shown;
    for (const Mat::MaterialObject* const material : subject.materials) {
        watchProject(*material->get_project());
        shown.insert(material);
    }
    if (const Gui::MainWindow* const window = Gui::MainWindow::get_main_window_inst())
        for (const Gui::MDIWindow* const document : window->getMdiWindows())
            if (shown.count(document->getEditedObject()) != 0)
                watchEditor(*document);
}

void SubjectWatch::watchEditor(const Gui::MDIWindow& editor)
{
    const auto* const table = editor.findChild<MatGui::SheetTableView*>();
    if (table == nullptr)
        return;
    const QAbstractItemModel* const model = table->model();
    m_editorConnections.push_back(connect(model, &QAbstractItemModel::dataChanged, this, &SubjectWatch::noteLater));
    m_editorConnections.push_back(connect(model, &QAbstractItemModel::rowsInserted, this, &SubjectWatch::noteLater));
    m_editorConnections.push_back(connect(model, &QAbstractItemModel::rowsRemoved, this, &SubjectWatch::noteLater));
    m_editorConnections.push_back(connect(&editor, &QObject::destroyed, this, &SubjectWatch::noteLater));
}

void SubjectWatch::watchProject(Obj::Project& project)
{
    const auto [place, isNew] = m_projects.try_emplace(project.getProjectId());
    if (!isNew)
        return;
    auto& connections = place->second;
    connections.emplace_back(project.objectAdded.connect([this](const auto&) { noteLater(); }));
    connections.emplace_back(project.objectRemoved.connect([this](const auto&) { noteLater(); }));
    connections.emplace_back(project.objectChanged.connect([this](const auto&, const auto*) { noteLater(); }));
    connections.emplace_back(project.changed.connect([this](const auto*) { noteLater(); }));
}

} // namespace vxInspector
