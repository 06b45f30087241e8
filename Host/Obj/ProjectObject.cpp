#include "Obj/ProjectObject.h"

#include "Kelta/Exceptions.h"
#include "Kelta/MessageLog.h"
#include "Obj/Project.h"
#include "Obj/ProjectObjectGroup.h"
#include "Obj/PropertyReference.h"
#include "Obj/PropertyType.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Obj {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Obj::ProjectObject", text);
}

} // namespace

OBJ_REGISTER_ABSTRACT_CLASS(Obj::ProjectObject, Obj::PropertyDS)

ProjectObject::ProjectObject()
{
    registerProperty(propertyData, label, "Label", "Info", PropertyType::none, "Name shown in the project tree");
}

ProjectObject::~ProjectObject()
{
    for (const Link& link : m_links)
        link.other->eraseLink(*this, link.direction == Direction::Needs ? Direction::IsNeededBy : Direction::Needs);
}

std::size_t ProjectObject::get_memory_usage() const
{
    return PropertyDS::get_memory_usage() + heapSizeOf(m_name) + m_links.capacity() * sizeof(Link) +
           m_settings.getMemoryUsage();
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
    const RemovalGuard guard;
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
    m_isDue = true;
    if (m_project != nullptr)
        m_project->objectChanged(*this, nullptr);
}

void ProjectObject::on_project_restored() {}

void ProjectObject::on_configuring_project() {}

void ProjectObject::on_changed(const Property* property)
{
    m_isDue = true;
    if (m_project != nullptr)
        m_project->objectChanged(*this, property);
}

void ProjectObject::setSuppressed(bool suppressed)
{
    if (m_suppressed == suppressed)
        return;
    m_suppressed = suppressed;
    notifyChange();
}

void ProjectObject::setSetting(const std::string& name, std::string text)
{
    if (m_settings.set(name, std::move(text)))
        notifyChange();
}

// --- Links ---

bool ProjectObject::linkTo(ProjectObject& other)
{
    if (&other == this)
        return false;
    if (!isOfSameProject(other)) {
        Kelta::MessageLog::error(
            tr(R"("%1" cannot be linked to "%2": both must be in the same project.)")
                .arg(QString::fromStdString(label.getValue()), QString::fromStdString(other.label.getValue())));
        return false;
    }
    needLink(other);
    setDeclared(other, true);
    return true;
}

void ProjectObject::unlinkFrom(ProjectObject& other)
{
    const auto link = findLink(other, Direction::Needs);
    if (link == m_links.end() || !link->isDeclared)
        return;
    setDeclared(other, false);
    if (dropIfUnused(link))
        on_break_object_link(&other);
}

std::vector<ProjectObject*> ProjectObject::get_linked_objects() const
{
    std::vector<ProjectObject*> objects;
    for (const Link& link : m_links) {
        // If two objects need each other, either link may be first.
        const bool isSecond = link.other->needs(*this) && needs(*link.other) &&
                              std::find(objects.begin(), objects.end(), link.other) != objects.end();
        if (link.other->m_project != nullptr && !isSecond)
            objects.push_back(link.other);
    }
    return objects;
}

std::vector<ProjectObject*> ProjectObject::getNeededObjects() const
{
    std::vector<ProjectObject*> objects;
    for (const Link& link : m_links)
        if (link.direction == Direction::Needs && link.other->m_project != nullptr)
            objects.push_back(link.other);
    return objects;
}

std::vector<ProjectObject*> ProjectObject::getLinks() const
{
    std::vector<ProjectObject*> objects;
    for (const Link& link : m_links)
        if (link.direction == Direction::Needs && link.isDeclared && link.other->m_project != nullptr)
            objects.push_back(link.other);
    return objects;
}

ProjectObjectGroup* ProjectObject::getParentGroup() const
{
    // The latest link counts: a group that returns after an undo may have lost the member to another group.
    for (auto link = m_links.rbegin(); link != m_links.rend(); ++link) {
        const bool isNeeded =
            link->direction == Direction::IsNeededBy && link->isDeclared && link->other->m_project != nullptr;
        if (auto* const group = isNeeded ? dynamic_cast<ProjectObjectGroup*>(link->other) : nullptr)
            return group;
    }
    return nullptr;
}

ProjectObject::Links::iterator ProjectObject::findLink(const ProjectObject& other, Direction direction)
{
    // From the end, which has the newest links.
    const auto found = std::find_if(m_links.rbegin(), m_links.rend(), [&other, direction](const Link& link) {
        return link.other == &other && link.direction == direction;
    });
    return found != m_links.rend() ? std::prev(found.base()) : m_links.end();
}

bool ProjectObject::hasLink(const ProjectObject& other, Direction direction) const
{
    return std::any_of(m_links.begin(), m_links.end(), [&other, direction](const Link& link) {
        return link.other == &other && link.direction == direction;
    });
}

bool ProjectObject::needs(const ProjectObject& other) const
{
    // Both objects store the link; one of them may have very many links.
    return m_links.size() <= other.m_links.size() ? hasLink(other, Direction::Needs)
                                                  : other.hasLink(*this, Direction::IsNeededBy);
}

bool ProjectObject::isOfSameProject(const ProjectObject& other) const
{
    return m_origin != 0 && m_origin == other.m_origin;
}

/// Returns the link by which this object needs `other`, a new one if there is none.
ProjectObject::Link& ProjectObject::needLink(ProjectObject& other)
{
    if (needs(other))
        return *findLink(other, Direction::Needs);
    other.m_links.push_back({this, Direction::IsNeededBy});
    try {
        return m_links.emplace_back(Link{&other, Direction::Needs});
    } catch (...) {
        other.m_links.pop_back();
        throw;
    }
}

/// Both ends of the link store it, so that a member of a large group need not search the group.
void ProjectObject::setDeclared(ProjectObject& other, bool declared)
{
    findLink(other, Direction::Needs)->isDeclared = declared;
    other.findLink(*this, Direction::IsNeededBy)->isDeclared = declared;
}

/// Returns whether the link was removed.
bool ProjectObject::dropIfUnused(Links::iterator link)
{
    if (link->isDeclared || link->references > 0)
        return false;
    link->other->eraseLink(*this, Direction::IsNeededBy);
    m_links.erase(link);
    return true;
}

void ProjectObject::eraseLink(const ProjectObject& other, Direction direction)
{
    const auto link = findLink(other, direction);
    if (link != m_links.end())
        m_links.erase(link);
}

void ProjectObject::addReference(ProjectObject& target)
{
    if (&target != this)
        ++needLink(target).references;
}

void ProjectObject::removeReference(std::uint32_t targetId)
{
    const auto link = std::find_if(m_links.begin(), m_links.end(), [targetId](const Link& candidate) {
        return candidate.references > 0 && candidate.other->m_objectId == targetId;
    });
    if (link == m_links.end())
        return;
    --link->references;
    dropIfUnused(link);
}

std::vector<PropertyReference*> ProjectObject::findReferences(std::uint32_t targetId) const
{
    std::vector<Property*> properties;
    get_property_array(properties);
    std::vector<PropertyReference*> references;
    for (Property* const property : properties)
        if (auto* const reference = dynamic_cast<PropertyReference*>(property);
            reference != nullptr && reference->m_objectId == targetId)
            references.push_back(reference);
    return references;
}

void ProjectObject::notifyReferences(std::uint32_t targetId) const
{
    for (const PropertyReference* const reference : findReferences(targetId))
        reference->notifyAfter();
}

// --- Links of an object that leaves and returns ---

std::vector<ProjectObject::Dependent> ProjectObject::breakLinks()
{
    // A notified dependent may make new links, or leave with this object.
    const Links links = m_links;
    std::vector<Dependent> dependents;
    for (const Link& link : links) {
        if (link.direction == Direction::Needs || link.other->m_project == nullptr ||
            !hasLink(*link.other, Direction::IsNeededBy))
            continue;
        dependents.push_back(describeDependent(link));
        Kelta::guarded(tr("An object failed when its link was removed"), [&] {
            link.other->on_break_object_link(this);
            link.other->notifyReferences(m_objectId);
        });
    }
    return dependents;
}

ProjectObject::Dependent ProjectObject::describeDependent(const Link& link) const
{
    Dependent dependent{link.other->m_objectId, link.isDeclared, {}};
    for (const PropertyReference* const reference : link.other->findReferences(m_objectId))
        dependent.references.emplace_back(link.other->get_property_name(reference));
    return dependent;
}

void ProjectObject::mendLinks(const std::vector<Dependent>& dependents)
{
    for (const Dependent& before : dependents) {
        ProjectObject* const dependent = m_project != nullptr ? m_project->get_object(before.objectId) : nullptr;
        if (dependent != nullptr)
            Kelta::guarded(tr("An object failed when its link was restored"),
                           [&] { mendLink(*dependent, *this, before); });
    }
}

void ProjectObject::mendLink(ProjectObject& dependent, ProjectObject& target, const Dependent& before)
{
    if (before.isDeclared)
        dependent.linkTo(target);
    for (const std::string& name : before.references) {
        auto* const reference = dynamic_cast<PropertyReference*>(dependent.get_property_by_name(name.c_str()));
        if (reference != nullptr && reference->m_objectId == 0)
            reference->setValue(&target);
        else if (reference != nullptr && reference->m_objectId == target.m_objectId)
            reference->notifyAfter();
    }
}

void ProjectObject::forgetLinks()
{
    for (const Link& link : m_links)
        if (link.other->m_project != m_project)
            link.other->eraseLink(*this, link.direction == Direction::Needs ? Direction::IsNeededBy : Direction::Needs);
    m_links.clear();
}

} // namespace Obj
