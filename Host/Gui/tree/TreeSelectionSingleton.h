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

/// One selected object, stored by names: the object may be deleted while the entry lives.
class GUI_EXPORT CSelectionType
{
public:
    explicit CSelectionType(const Obj::ProjectObject& object);

    /// Returns the object; null if it was deleted.
    Obj::ProjectObject* get_object() const;
    const std::string& getProjectName() const { return m_projectName; }
    const std::string& getObjectName() const { return m_objectName; }
    /// Returns the selected parts of the object; none if it is selected as a whole, as in the tree.
    const std::vector<std::string>& getSubelementNames() const { return m_subElements; }

private:
    std::string m_projectName;
    std::string m_objectName;
    std::vector<std::string> m_subElements;
};

/// The selection of the project tree: projects and objects. Deleted objects and closed projects are not selected.
class GUI_EXPORT TreeSelectionSingleton final : public QObject
{
    Q_OBJECT

public:
    static TreeSelectionSingleton& instance();
    ~TreeSelectionSingleton() override;

    /// Returns the selected projects with this document tag, in the order of the application.
    std::vector<Obj::Project*> get_projects(std::uint32_t tag) const;
    std::vector<Obj::Project*> get_projects() const;
    /// Returns the selected objects of this type in a project, in its order; of all projects for a null or empty name.
    std::vector<Obj::ProjectObject*> get_objects_of_type(Kelta::TypeInfo type, const char* projectName = nullptr) const;
    std::vector<CSelectionType> get_selection2(const char* projectName, Kelta::TypeInfo type) const;
    /// Returns whether a part of the object is selected, or, if `subElement` is null, the object as a whole.
    bool is_selected(const Obj::ProjectObject* object, const char* subElement) const;
    bool is_selected(const Obj::Project* project) const { return m_projects.count(project) != 0; }
    std::size_t getCount() const { return m_objects.size() + m_projects.size(); }

    void select(const Obj::Project& project);
    void select(const Obj::ProjectObject& object);
    void deselect(const Obj::Project& project);
    void deselect(const Obj::ProjectObject& object);
    /// Replaces the whole selection, and sends selectionChanged once.
    void setSelection(const std::vector<Obj::Project*>& projects, const std::vector<Obj::ProjectObject*>& objects);
    void clear();
    /// Removes a closed project or a deleted object. The signal is sent when the event loop is next idle, once for all
    /// removals.
    void forget(const Obj::Project& project);
    void forget(const Obj::ProjectObject& object);

Q_SIGNALS:
    void selectionChanged();

private:
    TreeSelectionSingleton();

    std::unordered_set<const Obj::Project*> m_projects;
    std::unordered_set<const Obj::ProjectObject*> m_objects;
    QTimer m_forgotten;
};

} // namespace Gui
