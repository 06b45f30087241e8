#include "Obj/Project.h"

#include "NameIndex.h"

#include "Kelta/Exceptions.h"
#include "Kelta/MessageLog.h"

#include <QCoreApplication>
#include <QString>

#include <iterator>
#include <limits>
#include <utility>

namespace Obj {

namespace {

constexpr std::uint64_t lastObjectId = std::numeric_limits<std::uint32_t>::max();

QString quoted(std::string_view text)
{
    return QLatin1Char('"') + QString::fromUtf8(text.data(), static_cast<int>(text.size())) + QLatin1Char('"');
}

std::uint64_t nextSerial()
{
    static std::uint64_t last = 0;
    return ++last;
}

} // namespace

OBJ_REGISTER_ABSTRACT_CLASS(Obj::Project, Obj::PropertyDS)

Project::Project() : m_serial(nextSerial()), m_objectsByName(std::make_unique<NameIndex>()) {}

Project::~Project()
{
    // While objects are destroyed one by one, none of them may find a project that is half gone, nor a neighbour that
    // is.
    for (const auto& [objectId, object] : m_objects)
        object->forgetLinks();
    for (const auto& [objectId, object] : m_objects)
        object->m_project = nullptr;
    m_objectsByName->clear();
    m_objectsById.clear();
    m_objects.clear();
}

const char* Project::get_viewfeeder_name() const
{
    return "";
}

eVXObjectState Project::check_input()
{
    return eVXObjectState::Initial;
}

void Project::collect_frontend_data() {}

void Project::update()
{
    for (const auto& [objectId, object] : m_objects)
        object->check_input();
}

void Project::save_jsonDB(Json::Value& record)
{
    record["proj_id"] = Json::Value::UInt(m_projectId);
    record["name"] = m_name;
    record["tag"] = Json::Value::UInt(static_cast<std::uint32_t>(documentTag));
    Json::Value& objects = record["objects"] = Json::Value(Json::arrayValue);
    for (const auto& [objectId, object] : m_objects)
        object->save_jsonDB(objects.append(Json::Value()));
}

void Project::load_jsonDB(Json::Value&) {}

void Project::Save(Kelta::FileWriter&) const {} // NOLINT(bugprone-virtual-near-miss): see the header

void Project::Load(Kelta::XMLFileReader&) {} // NOLINT(bugprone-virtual-near-miss): see the header

ProjectObject* Project::get_object(std::uint32_t objectId) const
{
    if (objectId < m_objectsById.size())
        return m_objectsById[objectId];
    const auto found = m_objects.find(objectId);
    return found != m_objects.end() ? found->second.get() : nullptr;
}

ProjectObject* Project::get_object(std::string_view name) const
{
    return m_objectsByName->find(name);
}

std::vector<ProjectObject*> Project::get_objects() const
{
    std::vector<ProjectObject*> objects;
    objects.reserve(m_objects.size());
    for (const auto& [objectId, object] : m_objects)
        objects.push_back(object.get());
    return objects;
}

std::vector<ProjectObject*> Project::get_objects_of_type(Kelta::TypeInfo type) const
{
    std::vector<ProjectObject*> objects;
    for (const auto& [objectId, object] : m_objects)
        if (object->is_inherited_from(type))
            objects.push_back(object.get());
    return objects;
}

std::string Project::get_unique_object_name(std::string_view stem)
{
    return m_names.make(stem, [this](const std::string& name) { return get_object(name) != nullptr; });
}

ProjectObject* Project::add_object(const char* className, std::string_view name)
{
    if (m_nextObjectId > lastObjectId) {
        Kelta::MessageLog::error(
            QStringLiteral("No object can be added to the project %1: all ids are used up.").arg(quoted(m_name)));
        return nullptr;
    }
    std::unique_ptr<ProjectObject> object = createObject(className);
    if (object == nullptr)
        return nullptr;
    const bool free = !name.empty() && get_object(name) == nullptr;
    return insertNew(std::move(object), free ? std::string(name) : get_unique_object_name(name),
                     static_cast<std::uint32_t>(m_nextObjectId));
}

ProjectObject* Project::add_object(const char* className, std::string_view name, std::uint64_t objectId)
{
    if (!isUnused(objectId) || name.empty() || get_object(name) != nullptr) {
        Kelta::MessageLog::error(
            QStringLiteral("The object %1 cannot be added to the project %2 under the id %3: ids are "
                           "whole numbers from 1 to 4294967295 that no object of the project has or "
                           "had, and the name must be one that no object has.")
                .arg(quoted(name), quoted(m_name), QString::number(objectId)));
        return nullptr;
    }
    std::unique_ptr<ProjectObject> object = createObject(className);
    return object != nullptr ? insertNew(std::move(object), std::string(name), static_cast<std::uint32_t>(objectId))
                             : nullptr;
}

std::unique_ptr<ProjectObject> Project::take_object(std::uint32_t objectId)
{
    const auto found = m_objects.find(objectId);
    if (found == m_objects.end())
        return nullptr;
    std::unique_ptr<ProjectObject> object = withdraw(found);
    object->breakLinks();
    objectRemoved(*object);
    return object;
}

ProjectObject* Project::restore_object(std::unique_ptr<ProjectObject> object)
{
    if (object == nullptr || object->m_origin != m_serial) {
        Kelta::MessageLog::error(
            QStringLiteral("What is to come back to the project %1 has not come from it.").arg(quoted(m_name)));
        return nullptr;
    }
    if (get_object(object->m_name) != nullptr) {
        const std::string name = get_unique_object_name(object->m_name);
        Kelta::MessageLog::warning(QStringLiteral("The object %1 came back as %2: another one has its name.")
                                       .arg(quoted(object->m_name), quoted(name)));
        object->m_name = name;
    }
    ProjectObject* const restored = insert(std::move(object));
    Kelta::guarded(QCoreApplication::translate("Obj", "An object failed when it came back"),
                   [restored] { restored->on_project_restored(); });
    objectAdded(*restored);
    return restored;
}

bool Project::remove_object(std::uint32_t objectId)
{
    return take_object(objectId) != nullptr;
}

void Project::skip_object_ids(std::uint64_t nextId)
{
    if (nextId <= m_nextObjectId)
        return;
    m_unusedIds.emplace_hint(m_unusedIds.end(), m_nextObjectId, nextId);
    m_nextObjectId = nextId;
}

void Project::on_changed(const Property* property)
{
    changed(property);
}

std::unique_ptr<ProjectObject> Project::createObject(const char* className) const
{
    const Kelta::TypeInfo type = Kelta::TypeInfo::find(className);
    QString reason;
    if (!type.names_a_type())
        reason = QStringLiteral("this class is not known");
    else if (!type.is_inherited_from(ProjectObject::getClassTypeId()))
        reason = QStringLiteral("this class is not one of objects of a project");
    else if (void* const created = type.create())
        return std::unique_ptr<ProjectObject>(static_cast<ProjectObject*>(static_cast<Kelta::RootClass*>(created)));
    else
        reason = QStringLiteral("the class made none");
    Kelta::MessageLog::error(QStringLiteral("No object of class %1 was added to the project %2: %3.")
                                 .arg(quoted(className != nullptr ? className : ""), quoted(m_name), reason));
    return nullptr;
}

ProjectObject* Project::insertNew(std::unique_ptr<ProjectObject> object, std::string name, std::uint32_t objectId)
{
    object->m_origin = m_serial;
    object->m_objectId = objectId;
    object->m_name = std::move(name);
    object->id.setValue(objectId);
    object->label.setValue(object->m_name);
    ProjectObject* const inserted = insert(std::move(object));
    useId(objectId);
    try {
        inserted->on_configuring_project();
    } catch (...) {
        withdraw(m_objects.find(objectId));
        throw;
    }
    objectAdded(*inserted);
    return inserted;
}

ProjectObject* Project::insert(std::unique_ptr<ProjectObject> object)
{
    ProjectObject* const inserted = object.get();
    const auto place = m_objects.emplace_hint(m_objects.end(), inserted->m_objectId, std::move(object));
    try {
        listById(*inserted);
        m_objectsByName->insert(inserted->m_name, inserted);
    } catch (...) {
        unlistById(inserted->m_objectId);
        m_objects.erase(place);
        throw;
    }
    inserted->m_project = this;
    return inserted;
}

void Project::listById(ProjectObject& object)
{
    // Ids that leave a wide gap are not worth the room.
    constexpr std::size_t widestGap = 1000;
    const std::size_t listed = m_objectsById.size();
    if (object.m_objectId > 2 * listed + widestGap)
        return;
    if (object.m_objectId >= listed) {
        m_objectsById.resize(std::size_t{object.m_objectId} + 1);
        for (auto other = m_objects.lower_bound(static_cast<std::uint32_t>(listed));
             other != m_objects.end() && other->first < object.m_objectId; ++other)
            m_objectsById[other->first] = other->second.get();
    }
    m_objectsById[object.m_objectId] = &object;
}

void Project::unlistById(std::uint32_t objectId)
{
    if (objectId < m_objectsById.size())
        m_objectsById[objectId] = nullptr;
}

std::unique_ptr<ProjectObject> Project::withdraw(Objects::iterator place)
{
    std::unique_ptr<ProjectObject> object = std::move(place->second);
    m_objects.erase(place);
    m_objectsByName->erase(object->m_name);
    unlistById(object->m_objectId);
    object->m_project = nullptr;
    return object;
}

bool Project::isUnused(std::uint64_t objectId) const
{
    if (objectId == 0 || objectId > lastObjectId)
        return false;
    if (objectId >= m_nextObjectId)
        return true;
    const auto after = m_unusedIds.upper_bound(objectId);
    return after != m_unusedIds.begin() && objectId < std::prev(after)->second;
}

void Project::useId(std::uint64_t objectId)
{
    if (objectId >= m_nextObjectId) {
        skip_object_ids(objectId);
        m_nextObjectId = objectId + 1;
        return;
    }
    const auto range = std::prev(m_unusedIds.upper_bound(objectId));
    const std::uint64_t end = std::exchange(range->second, objectId);
    if (range->first == objectId)
        m_unusedIds.erase(range);
    if (objectId + 1 < end)
        m_unusedIds.emplace(objectId + 1, end);
}

} // namespace Obj
