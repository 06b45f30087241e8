#include "Obj/Project.h"

#include "ObjectIndex.h"

#include "Kelta/Exceptions.h"
#include "Kelta/MessageLog.h"
#include "Obj/ObjectHomes.h"

#include <QCoreApplication>

#include <algorithm>
#include <cassert>
#include <functional>
#include <limits>
#include <utility>

namespace Obj {

namespace {

constexpr std::uint64_t lastObjectId = std::numeric_limits<std::uint32_t>::max();

QString tr(const char* text)
{
    return QCoreApplication::translate("Obj::Project", text);
}

QString shown(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

std::uint64_t nextSerial()
{
    static std::uint64_t last = 0;
    return ++last;
}

std::vector<std::uint32_t> idsOf(const std::vector<ProjectObject*>& objects)
{
    std::vector<std::uint32_t> ids;
    ids.reserve(objects.size());
    for (const ProjectObject* const object : objects)
        ids.push_back(object->getObjectId());
    return ids;
}

} // namespace

OBJ_REGISTER_ABSTRACT_CLASS(Obj::Project, Obj::PropertyDS)

Project::Project() : m_serial(nextSerial()), m_index(std::make_unique<ObjectIndex>()) {}

Project::~Project()
{
    // The destructor of an object must not find a project or an object that is partly destroyed.
    for (const auto& [objectId, object] : m_objects)
        object->forgetLinks();
    for (const auto& [objectId, object] : m_objects)
        object->m_project = nullptr;
    m_index->clear();
    m_objects.clear();
}

std::size_t Project::get_memory_usage() const
{
    // Each entry of the tables costs about three pointers besides its content.
    constexpr std::size_t perEntry = 3 * sizeof(void*);
    std::size_t bytes = PropertyDS::get_memory_usage() + heapSizeOf(m_name);
    bytes += m_objects.size() * (perEntry + sizeof(Objects::value_type));
    bytes += sizeof(ObjectIndex) + m_index->getMemoryUsage();
    bytes += m_goneObjects.size() * perEntry + m_goneNames.size() * (perEntry + sizeof(std::string));
    bytes += m_settings.getMemoryUsage();
    for (const auto& [objectId, object] : m_objects)
        bytes += object->get_memory_usage();
    return bytes;
}

void Project::setSetting(const std::string& name, std::string text)
{
    if (m_settings.set(name, std::move(text)))
        changed(nullptr);
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
    const RemovalGuard guard;
    for (const std::uint32_t objectId : idsOf(getObjects()))
        if (ProjectObject* const object = get_object(objectId))
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

void Project::on_changed(const Property* property)
{
    changed(property);
}

// --- Finding objects ---

ProjectObject* Project::get_object(std::uint32_t objectId) const
{
    return m_index->find(objectId);
}

ProjectObject* Project::get_object(std::string_view name) const
{
    return m_index->find(name);
}

std::vector<ProjectObject*> Project::getObjects() const
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

// --- Adding objects ---

std::string Project::get_unique_object_name(std::string_view stem)
{
    return m_names.make(
        stem, [this](const std::string& name) { return get_object(name) != nullptr || m_goneNames.count(name) != 0; });
}

bool Project::canTake(Kelta::TypeInfo objectType) const
{
    return isHome(getTypeId(), objectType);
}

ProjectObject* Project::add_object(const char* className, std::string_view name)
{
    OwnedObject object = hasFreeId() ? createObject(className) : nullptr;
    return object != nullptr ? add_object(std::move(object), name) : nullptr;
}

ProjectObject* Project::add_object(const char* className, std::string_view name, std::uint64_t objectId)
{
    OwnedObject object = mayUse(name, objectId) ? createObject(className) : nullptr;
    return object != nullptr ? add_object(std::move(object), name, objectId) : nullptr;
}

ProjectObject* Project::add_object(OwnedObject object, std::string_view name)
{
    if (!hasFreeId() || !mayTake(*object))
        return nullptr;
    return insertNew(std::move(object), freeName(name), static_cast<std::uint32_t>(m_nextObjectId));
}

ProjectObject* Project::add_object(OwnedObject object, std::string_view name, std::uint64_t objectId)
{
    if (!mayUse(name, objectId) || !mayTake(*object))
        return nullptr;
    return insertNew(std::move(object), std::string(name), static_cast<std::uint32_t>(objectId));
}

void Project::skipObjectIds(std::uint64_t nextId)
{
    m_nextObjectId = std::max(m_nextObjectId, nextId);
}

OwnedObject Project::createObject(const char* className) const
{
    const Kelta::TypeInfo type = Kelta::TypeInfo::find(className);
    QString reason;
    if (!type.namesAType())
        reason = tr("this class is not known");
    else if (!type.is_inherited_from(ProjectObject::getClassTypeId()))
        reason = tr("this is not a class of objects of a project");
    else if (void* const created = type.create())
        return OwnedObject(static_cast<ProjectObject*>(static_cast<Kelta::RootClass*>(created)));
    else
        reason = tr("the class cannot create objects");
    Kelta::MessageLog::error(tr(R"(No object of class "%1" was added to the project "%2": %3.)")
                                 .arg(shown(className != nullptr ? className : ""), shown(m_name), reason));
    return nullptr;
}

bool Project::mayTake(const ProjectObject& object) const
{
    if (canTake(object.getTypeId()))
        return true;
    Kelta::MessageLog::error(
        tr(R"(No object of class "%1" was added to the project "%2": projects of class "%3" do )"
           "not take such objects.")
            .arg(shown(object.getTypeId().get_name()), shown(m_name), shown(getTypeId().get_name())));
    return false;
}

bool Project::mayUse(std::string_view name, std::uint64_t objectId) const
{
    const auto key = static_cast<std::uint32_t>(objectId);
    const bool isUnused =
        objectId != 0 && objectId <= lastObjectId && m_objects.count(key) == 0 && m_goneObjects.count(key) == 0;
    if (isUnused && !name.empty() && get_object(name) == nullptr)
        return true;
    Kelta::MessageLog::error(
        tr("The object \"%1\" cannot be added to the project \"%2\" under the id %3: ids are whole numbers from 1 to "
           "4294967295 that no object of the project has or had, and the name must be one that no object has.")
            .arg(shown(name), shown(m_name), QString::number(objectId)));
    return false;
}

bool Project::hasFreeId() const
{
    if (m_nextObjectId <= lastObjectId)
        return true;
    Kelta::MessageLog::error(
        tr("No object can be added to the project \"%1\": all ids are used up.").arg(shown(m_name)));
    return false;
}

std::string Project::freeName(std::string_view name)
{
    return name.empty() || get_object(name) != nullptr ? get_unique_object_name(name) : std::string(name);
}

ProjectObject* Project::insertNew(OwnedObject object, std::string name, std::uint32_t objectId)
{
    assert(object->m_origin == 0);
    const RemovalGuard guard;
    object->m_origin = m_serial;
    object->m_objectId = objectId;
    object->m_name = std::move(name);
    object->id.setValue(objectId);
    object->label.setValue(object->m_name);
    ProjectObject* const inserted = insert(std::move(object));
    skipObjectIds(std::uint64_t{objectId} + 1);
    try {
        inserted->on_configuring_project();
    } catch (...) {
        if (inserted->m_project == this)
            withdraw(m_objects.find(objectId));
        throw;
    }
    if (inserted->m_project == this)
        objectAdded(*inserted);
    return ifStillThere(objectId);
}

ProjectObject* Project::insert(OwnedObject object)
{
    ProjectObject* const inserted = object.get();
    const auto place = m_objects.emplace_hint(m_objects.end(), inserted->m_objectId, nullptr);
    try {
        m_index->add(*inserted, inserted->m_name);
    } catch (...) {
        m_objects.erase(place);
        throw;
    }
    place->second.reset(object.release());
    inserted->m_project = this;
    return inserted;
}

/// Returns null also if the project itself is about to be destroyed: the object is then destroyed with it.
ProjectObject* Project::ifStillThere(std::uint32_t objectId) const
{
    return RemovalGuard::isDoomed(*this) ? nullptr : get_object(objectId);
}

// --- Removing and restoring objects ---

OwnedObject Project::takeObject(std::uint32_t objectId)
{
    const RemovalGuard guard;
    const auto found = m_objects.find(objectId);
    if (found == m_objects.end())
        return nullptr;
    OwnedObject object = withdraw(found);
    m_goneObjects[objectId] = object->breakLinks();
    objectRemoved(*object);
    return object;
}

OwnedObject Project::withdraw(Objects::iterator place)
{
    m_goneObjects[place->first];
    m_goneNames.insert(place->second->m_name);
    OwnedObject object(place->second.release());
    m_objects.erase(place);
    m_index->remove(*object, object->m_name);
    object->m_project = nullptr;
    return object;
}

ProjectObject* Project::restoreObject(OwnedObject object)
{
    const RemovalGuard guard;
    if (object == nullptr || object->m_origin != m_serial) {
        Kelta::MessageLog::error(
            tr("The object cannot be restored in the project \"%1\", because it does not belong to this project.")
                .arg(shown(m_name)));
        return nullptr;
    }
    const std::uint32_t objectId = object->m_objectId;
    giveFreeName(*object);
    ProjectObject* const restored = insert(std::move(object));
    const std::vector<ProjectObject::Dependent> dependents = std::move(m_goneObjects[objectId]);
    m_goneObjects.erase(objectId);
    m_goneNames.erase(restored->m_name);
    restored->mendLinks(dependents);
    if (restored->m_project == this)
        Kelta::guarded(tr("An object failed when it was restored"), [restored] { restored->on_project_restored(); });
    if (restored->m_project == this)
        objectAdded(*restored);
    return ifStillThere(objectId);
}

void Project::giveFreeName(ProjectObject& object)
{
    if (get_object(object.m_name) == nullptr)
        return;
    std::string name = get_unique_object_name(object.m_name);
    Kelta::MessageLog::warning(tr(R"(The object "%1" was restored as "%2", because another object has its name.)")
                                   .arg(shown(object.m_name), shown(name)));
    object.m_name = std::move(name);
}

bool Project::removeObject(std::uint32_t objectId)
{
    return takeObject(objectId) != nullptr;
}

void Project::notifyRestored()
{
    const RemovalGuard guard;
    for (const std::uint32_t objectId : idsOf(getObjects()))
        if (ProjectObject* const object = get_object(objectId))
            Kelta::guarded(tr("An object failed after its project had been read"),
                           [object] { object->on_project_restored(); });
}

// --- Executing objects ---

/// One pass over the objects of a project.
class Project::Execution
{
public:
    explicit Execution(const Project& project) : m_project(project) {}

    /// Executes the object if it is due, after the objects that it needs.
    void visit(ProjectObject& object);
    std::vector<std::unique_ptr<ProjectObjectExecReturn>> results;

private:
    /// An object whose needed objects are visited before it.
    struct Visit
    {
        ProjectObject* object;
        std::vector<ProjectObject*> needed;
        std::size_t next; ///< index in `needed`
        bool isDue;
    };

    void enter(ProjectObject& object);
    bool advance(Visit& visit);
    void leave();
    bool execute(ProjectObject& object);

    const Project& m_project;
    std::vector<Visit> m_path;                                 ///< a chain of needs may be too long for the call stack
    std::unordered_map<const ProjectObject*, bool> m_executed; ///< results for the entered objects
};

void Project::Execution::visit(ProjectObject& object)
{
    if (m_executed.count(&object) == 0)
        enter(object);
    while (!m_path.empty())
        if (!advance(m_path.back()))
            leave();
}

void Project::Execution::enter(ProjectObject& object)
{
    // An object of a cycle counts as not executed while the cycle is followed.
    m_executed[&object] = false;
    bool isDue = object.m_isDue;
    Kelta::guarded(tr("The execution of an object failed"), [&] { isDue = object.always_run() != 0 || isDue; });
    m_path.push_back({&object, object.getNeededObjects(), 0, isDue});
}

/// Uses the result of the next needed object, or enters that object. Returns false if there is none.
bool Project::Execution::advance(Visit& visit)
{
    if (visit.next == visit.needed.size())
        return false;
    ProjectObject& needed = *visit.needed[visit.next];
    const auto found = m_executed.find(&needed);
    if (found == m_executed.end()) {
        enter(needed);
        return true;
    }
    visit.isDue = visit.isDue || found->second;
    ++visit.next;
    return true;
}

void Project::Execution::leave()
{
    const Visit visit = std::move(m_path.back());
    m_path.pop_back();
    ProjectObject& object = *visit.object;
    const bool isDue = visit.isDue && !object.isSuppressed() && object.m_project == &m_project;
    m_executed[&object] = isDue && execute(object);
}

bool Project::Execution::execute(ProjectObject& object)
{
    return Kelta::guarded(tr("The execution of an object failed"), [&] {
        std::unique_ptr<ProjectObjectExecReturn> result(object.execute());
        if (result != nullptr)
            results.push_back(std::move(result));
        object.m_isDue = false;
    });
}

std::vector<std::unique_ptr<ProjectObjectExecReturn>> Project::executeDue()
{
    const RemovalGuard guard;
    Execution execution(*this);
    for (ProjectObject* const object : getObjects())
        execution.visit(*object);
    return std::move(execution.results);
}

} // namespace Obj
