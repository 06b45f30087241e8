#include "ProjectCheck.h"

#include "JsonPath.h"

#include "projectfile/MaterialRecord.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace projectfile::detail {

namespace {

std::string quoted(std::string_view text)
{
    return "\"" + shortened(text) + "\"";
}

std::string pathOfObject(std::size_t index)
{
    return "materials[" + std::to_string(index) + "]";
}

void checkNumbersAndNames(const std::vector<ObjectRecord>& objects)
{
    std::unordered_map<std::uint32_t, std::size_t> numbers;
    std::unordered_map<std::string_view, std::size_t> names;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const ObjectRecord& object = objects[i];
        if (object.objectId == 0)
            throw RecordError("\"" + pathOfObject(i) + ".object_id\" is 0 but must be from 1 to 4294967295");
        const auto number = numbers.emplace(object.objectId, i);
        if (!number.second)
            throw RecordError("\"" + pathOfObject(i) + ".object_id\" is " + std::to_string(object.objectId) +
                              ", as that of " + pathOfObject(number.first->second) + " is");
        const auto name = names.emplace(object.internalName, i);
        if (!name.second)
            throw RecordError("\"" + pathOfObject(i) + ".name_internal\" is " + quoted(object.internalName) +
                              ", as that of " + pathOfObject(name.first->second) + " is");
    }
}

void checkNextNumber(const ProjectRecord& project)
{
    constexpr std::uint64_t most = std::uint64_t{std::numeric_limits<std::uint32_t>::max()} + 1U;
    std::uint32_t largest = 0;
    for (const ObjectRecord& object : project.objects)
        largest = std::max(largest, object.objectId);
    if (project.nextObjectId <= largest || project.nextObjectId > most)
        throw RecordError("\"next_object_id\" is " + std::to_string(project.nextObjectId) + " but must be from " +
                          std::to_string(std::uint64_t{largest} + 1U) + " to " + std::to_string(most) +
                          ", since no number of an object is used again");
}

/// A member of an object of the database; null when it is not there.
const Json::Value& memberOf(const Json::Value& object, std::string_view name)
{
    const Json::Value* const member = object.isObject() ? object.find(name.data(), name.data() + name.size()) : nullptr;
    return member != nullptr ? *member : Json::Value::nullSingleton();
}

/// The array of objects in the database of the host; null when it has none.
const Json::Value& objectsOf(const Json::Value& database)
{
    if (!database.isNull() && !database.isObject())
        throw RecordError("\"database\" must be an object");
    const Json::Value& objects = memberOf(database, "objects");
    if (!objects.isNull() && !objects.isObject())
        throw RecordError("\"database.objects\" must be an object");
    const Json::Value& list = memberOf(objects, "object");
    if (!list.isNull() && !list.isArray())
        throw RecordError("\"database.objects.object\" must be an array");
    return list;
}

std::string pathInDatabase(Json::ArrayIndex index, const char* member)
{
    return "\"database.objects.object[" + std::to_string(index) + "]." + member + "\"";
}

void checkText(const Json::Value& found, const std::string& expected, Json::ArrayIndex index, const char* member)
{
    if (!found.isString())
        throw RecordError(pathInDatabase(index, member) + " must be a text");
    if (found.asString() != expected)
        throw RecordError(pathInDatabase(index, member) + " is " + quoted(found.asString()) + " but " +
                          quoted(expected) + " beside the material");
}

using ObjectIndex = std::unordered_map<std::uint32_t, const ObjectRecord*>;

ObjectIndex byNumber(const std::vector<ObjectRecord>& objects)
{
    ObjectIndex index;
    for (const ObjectRecord& object : objects)
        index.emplace(object.objectId, &object);
    return index;
}

/// Each object of the database has its material, once, and each material its object.
void checkDatabase(const ProjectRecord& project)
{
    if (project.database.isNull())
        return;
    ObjectIndex missing = byNumber(project.objects);
    std::unordered_set<std::uint32_t> found;
    const Json::Value& list = objectsOf(project.database);
    for (Json::ArrayIndex i = 0; i < list.size(); ++i) {
        const Json::Value& number = memberOf(list[i], "obj_id");
        if (!number.isUInt())
            throw RecordError(pathInDatabase(i, "obj_id") + " must be the number of an object");
        if (!found.insert(number.asUInt()).second)
            throw RecordError(pathInDatabase(i, "obj_id") + " is " + number.asString() + ", which stands there twice");
        const auto object = missing.find(number.asUInt());
        if (object == missing.end())
            throw RecordError(pathInDatabase(i, "obj_id") + " is " + number.asString() +
                              ", but \"materials\" has no such object");
        checkText(memberOf(list[i], "class"), object->second->className, i, "class");
        checkText(memberOf(list[i], "name_internal"), object->second->internalName, i, "name_internal");
        missing.erase(object);
    }
    for (std::size_t i = 0; i < project.objects.size() && !missing.empty(); ++i) {
        if (missing.count(project.objects[i].objectId) != 0)
            throw RecordError("\"" + pathOfObject(i) + "\" is object " + std::to_string(project.objects[i].objectId) +
                              ", which \"database.objects.object\" has not");
    }
}

} // namespace

void checkProject(const ProjectRecord& project)
{
    checkNumbersAndNames(project.objects);
    checkNextNumber(project);
    checkDatabase(project);
}

std::vector<std::string> findDoubts(const ProjectRecord& project)
{
    std::vector<std::string> doubts;
    const Json::Value& list = objectsOf(project.database);
    if (list.empty())
        return doubts;
    std::unordered_map<std::uint32_t, const Json::Value*> inDatabase;
    for (const Json::Value& object : list)
        inDatabase.emplace(memberOf(object, "obj_id").asUInt(), &object);
    for (std::size_t i = 0; i < project.objects.size(); ++i) {
        const ObjectRecord& object = project.objects[i];
        const Json::Value& label = memberOf(*inDatabase.at(object.objectId), "label");
        if (!label.isString() || label.asString() != object.label)
            doubts.push_back("\"" + pathOfObject(i) + ".label\" is " + quoted(object.label) + " but in the database " +
                             (label.isString() ? quoted(label.asString()) : "no text") + "; the former counts.");
    }
    return doubts;
}

} // namespace projectfile::detail
