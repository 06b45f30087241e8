#include "DatabaseRecord.h"

#include "JsonMembers.h"

#include "Obj/Placeholder.h"

#include <cstdint>
#include <unordered_map>
#include <utility>

namespace desktop {

namespace {

using Entries = std::unordered_map<std::uint64_t, const Json::Value*>;

/// Returns the list of the objects in a record; null if there is none. Records of material projects have it one level
/// deeper than those of other projects.
const Json::Value& objectsOf(const Json::Value& database)
{
    const Json::Value& objects = database.isObject() ? database["objects"] : database;
    if (objects.isArray())
        return objects;
    const Json::Value& list = objects.isObject() ? objects["object"] : Json::Value::nullSingleton();
    return list.isArray() ? list : Json::Value::nullSingleton();
}

Entries entriesById(const Json::Value& list)
{
    Entries entries;
    for (const Json::Value& entry : list)
        if (entry.isObject() && entry["obj_id"].isUInt64())
            entries.emplace(entry["obj_id"].asUInt64(), &entry);
    return entries;
}

const Json::Value& find(const Entries& entries, std::uint64_t id)
{
    const auto found = entries.find(id);
    return found != entries.end() ? *found->second : Json::Value::nullSingleton();
}

Json::Value entryOf(const projectfile::ObjectRecord& object, const Json::Value& present, const Json::Value& earlier)
{
    Json::Value entry = present;
    entry["obj_id"] = object.objectId;
    entry["class"] = object.className;
    entry["name_internal"] = object.internalName;
    entry["label"] = object.label;
    addMissing(entry, earlier);
    return entry;
}

/// Completes the record of a material project: afterwards it has an entry for each material, those of missing classes
/// included. Entries of other objects are unchanged.
void completeMaterials(Json::Value& database, const projectfile::ProjectRecord& record, const Json::Value& earlier)
{
    const Json::Value present = objectsOf(database);
    const Entries presentEntries = entriesById(present);
    const Entries earlierEntries = entriesById(objectsOf(earlier));
    Json::Value list;
    for (const projectfile::ObjectRecord& object : record.objects) {
        const Json::Value& entry = find(presentEntries, object.objectId);
        if (object.material != nullptr || !entry.isNull())
            list.append(entryOf(object, entry, find(earlierEntries, object.objectId)));
    }
    Json::Value objects = database["objects"].isObject() ? database["objects"] : Json::Value();
    if (!list.isNull())
        objects["object"] = std::move(list);
    else if (objects.isObject())
        objects.removeMember("object");
    database["objects"] = objects.empty() ? Json::Value() : std::move(objects);
}

/// Copies the members of the earlier entries that this host does not write.
void addMissingOfObjects(Json::Value& list, const Json::Value& earlierList)
{
    const Entries earlierEntries = entriesById(earlierList);
    for (Json::Value& entry : list)
        addMissing(entry, find(earlierEntries, entry["obj_id"].asUInt64()));
}

} // namespace

Json::Value recordDatabase(Obj::Project& project, const projectfile::ProjectRecord& record, const Json::Value& earlier)
{
    const bool isPlaceholder = dynamic_cast<const Obj::PlaceholderProject*>(&project) != nullptr;
    const bool holdsMaterials = record.className == projectfile::materialProjectClass;
    if (isPlaceholder && (!holdsMaterials || earlier.isNull()))
        return earlier;
    Json::Value database = earlier;
    if (!isPlaceholder) {
        database = Json::Value();
        project.save_jsonDB(database);
        addMissing(database, earlier);
        if (earlier.isObject() && earlier["objects"].isObject() && database["objects"].isObject())
            addMissing(database["objects"], earlier["objects"]);
    }
    if (holdsMaterials)
        completeMaterials(database, record, earlier);
    else if (database.isObject() && database["objects"].isArray())
        addMissingOfObjects(database["objects"], objectsOf(earlier));
    return database;
}

} // namespace desktop
