#include "Obj/ProjectObject.h"

#include "Kelta/Exceptions.h"
#include "Obj/Project.h"
#include "Obj/PropertyType.h"

#include <QCoreApplication>

#include <algorithm>

namespace Obj {

OBJ_REGISTER_ABSTRACT_CLASS(Obj::ProjectObject, Obj::PropertyDS)

ProjectObject::ProjectObject()
{
    register_property(propertyData, label, "Label", "Info", PropertyType::None, "Name shown in the project tree");
}

ProjectObject::~ProjectObject()
{
    for (const Link& link : m_links)
        link.other->eraseLink(this, !link.needsOther);
}

const char* ProjectObject::get_viewfeeder_name() const
{
    return "";
}

void ProjectObject::refresh()
{
    check_input();
}

void ProjectObject::refreshProperties(bool stateToo)
{
    if (stateToo)
        check_input();
    notifyChange();
}

short ProjectObject::always_run() const
{
    return 0;
}

void ProjectObject::on_break_object_link(ProjectObject*) {}

void ProjectObject::save_jsonDB(Json::Value& record)
{
    record["obj_id"] = Json::Value::UInt(m_objectId);
    record["class"] = getTypeId().get_name();
    record["name_internal"] = m_name;
    record["label"] = label.getValue();
}

void ProjectObject::load_jsonDB(Json::Value&) {}

eVXObjectState ProjectObject::check_input()
{
    return m_state;
}

void ProjectObject::setObjectState(eVXObjectState state)
{
    if (m_state == state)
        return;
    m_state = state;
    notifyChange();
}

const char* ProjectObject::getCoreEditor() const
{
    return "";
}

ProjectObjectExecReturn* ProjectObject::execute()
{
    return nullptr;
}

void ProjectObject::notifyChange()
{
    if (m_project != nullptr)
        m_project->objectChanged(*this, nullptr);
}

void ProjectObject::on_project_restored() {}

void ProjectObject::on_configuring_project() {}

void ProjectObject::on_changed(const Property* property)
{
    if (m_project != nullptr)
        m_project->objectChanged(*this, property);
}

void ProjectObject::link_to(ProjectObject& other)
{
    if (needs(other) || &other == this)
        return;
    m_links.push_back({&other, true});
    try {
        other.m_links.push_back({this, false});
    } catch (...) {
        m_links.pop_back();
        throw;
    }
}

void ProjectObject::unlink_from(ProjectObject& other)
{
    if (!needs(other))
        return;
    eraseLink(&other, true);
    other.eraseLink(this, false);
    on_break_object_link(&other);
}

std::vector<ProjectObject*> ProjectObject::get_linked_objects() const
{
    std::vector<ProjectObject*> objects;
    for (const Link& link : m_links) {
        // Of two that need each other either link may come first.
        const bool isSecond = link.other->needs(*this) && needs(*link.other) &&
                              std::find(objects.begin(), objects.end(), link.other) != objects.end();
        if (link.other->m_project != nullptr && !isSecond)
            objects.push_back(link.other);
    }
    return objects;
}

std::vector<ProjectObject*> ProjectObject::get_needed_objects() const
{
    std::vector<ProjectObject*> objects;
    for (const Link& link : m_links)
        if (link.needsOther && link.other->m_project != nullptr)
            objects.push_back(link.other);
    return objects;
}

void ProjectObject::setSuppressed(bool suppressed)
{
    if (m_suppressed == suppressed)
        return;
    m_suppressed = suppressed;
    notifyChange();
}

bool ProjectObject::needs(const ProjectObject& other) const
{
    // Both know of it; one of the two may have very many links.
    return m_links.size() <= other.m_links.size() ? hasLink(&other, true) : other.hasLink(this, false);
}

bool ProjectObject::hasLink(const ProjectObject* other, bool needsOther) const
{
    return std::any_of(m_links.begin(), m_links.end(), [other, needsOther](const Link& link) {
        return link.other == other && link.needsOther == needsOther;
    });
}

void ProjectObject::eraseLink(const ProjectObject* other, bool needsOther)
{
    const auto isIt = [other, needsOther](const Link& link) {
        return link.other == other && link.needsOther == needsOther;
    };
    m_links.erase(std::remove_if(m_links.begin(), m_links.end(), isIt), m_links.end());
}

void ProjectObject::forgetLinks()
{
    for (const Link& link : m_links)
        if (link.other->m_project != m_project)
            link.other->eraseLink(this, !link.needsOther);
    m_links.clear();
}

void ProjectObject::breakLinks()
{
    // Who is told may link anew, or be gone with this one.
    const std::vector<Link> links = m_links;
    for (const Link& link : links) {
        if (link.needsOther || !hasLink(link.other, false))
            continue;
        Kelta::guarded(QCoreApplication::translate("Obj", "An object failed when its link was broken"),
                       [&] { link.other->on_break_object_link(this); });
    }
}

} // namespace Obj
