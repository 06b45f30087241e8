#pragma once

#include "Gui/GuiExport.h"
#include "Kelta/TypeInfo.h"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

namespace Obj {
class Project;
class ProjectObject;
} // namespace Obj

namespace Gui {

/// One selected object. It is kept by its names, so that it may be gone when it is asked for.
class GUI_EXPORT CSelectionType
{
public:
    explicit CSelectionType(const Obj::ProjectObject& object);

    /// The object; null when it has gone since.
    Obj::ProjectObject* get_object() const;
    const std::string& get_project_name() const { return m_projectName; }
    const std::string& get_object_name() const { return m_objectName; }
    /// The selected parts of the object; none when it is selected as a whole, as the tree does.
    const std::vector<std::string>& get_subelement_names() const { return m_subElements; }

private:
    std::string m_projectName;
    std::string m_objectName;
    std::vector<std::string> m_subElements;
};

/// What is selected in the project tree: projects and objects. What leaves the tree leaves the selection.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): there is one, and nobody else ends its life
class GUI_EXPORT TreeSelectionSingleton final : public QObject
{
    Q_OBJECT

public:
    static TreeSelectionSingleton& instance();

    /// The selected projects with this document tag, in the order of the application.
    std::vector<Obj::Project*> get_projects(std::uint32_t tag) const;
    std::vector<Obj::Project*> get_projects() const;
    /// The selected objects of this type in a project, in its order; of all projects for a null or empty name.
    std::vector<Obj::ProjectObject*> get_objects_of_type(Kelta::TypeInfo type, const char* projectName = nullptr) const;
    std::vector<CSelectionType> get_selection2(const char* projectName, Kelta::TypeInfo type) const;
    /// `subElement` names a part of the object; null asks for the object as a whole.
    bool is_selected(const Obj::ProjectObject* object, const char* subElement) const;
    bool is_selected(const Obj::Project* project) const { return m_projects.count(project) != 0; }
    std::size_t get_count() const { return m_objects.size() + m_projects.size(); }

    void select(const Obj::Project& project);
    void select(const Obj::ProjectObject& object);
    void deselect(const Obj::Project& project);
    void deselect(const Obj::ProjectObject& object);
    /// Replaces the whole selection; selectionChanged is sent once.
    void set_selection(const std::vector<Obj::Project*>& projects, const std::vector<Obj::ProjectObject*>& objects);
    void clear();
    /// A project or object has left the tree. The signal follows when the event loop is next idle, once for all.
    void forget(const Obj::Project& project);
    void forget(const Obj::ProjectObject& object);

Q_SIGNALS:
    void selectionChanged();

private:
    TreeSelectionSingleton();
    ~TreeSelectionSingleton() override;

    std::unordered_set<const Obj::Project*> m_projects;
    std::unordered_set<const Obj::ProjectObject*> m_objects;
    QTimer m_forgotten;
};

} // namespace Gui
