#include "ProjectCheck.h"

#include "Messages.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace projectfile::detail {

namespace {

/// Returns the path in the file of each object, in the order of `objects`: "materials[3]" or "objects[0]".
std::vector<std::string> pathsOf(const std::vector<ObjectRecord>& objects)
{
    std::size_t materials = 0;
    std::size_t others = 0;
    std::vector<std::string> paths;
    paths.reserve(objects.size());
    for (const ObjectRecord& object : objects) {
        paths.push_back(object.material != nullptr ? "materials[" + std::to_string(materials++) + "]"
                                                   : "objects[" + std::to_string(others++) + "]");
    }
    return paths;
}

/// Refuses a name that no registered class and no object of the host can have.
void checkName(const std::string& path, const std::string& name)
{
    if (name.empty())
        refuseMember(path, tr(R"("%1" must not be empty)"));
    if (name.find('\0') != std::string::npos)
        refuseMember(path, tr(R"("%1" is %2, which contains a zero character)"), quoted(name));
}

void checkNumbersAndNames(const std::vector<ObjectRecord>& objects)
{
    const std::vector<std::string> paths = pathsOf(objects);
    std::unordered_map<std::uint32_t, std::size_t> numbers;
    std::unordered_map<std::string_view, std::size_t> names;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const ObjectRecord& object = objects[i];
        checkName(paths[i] + ".class", object.className);
        if (object.material == nullptr && object.className == materialClass)
            refuseMember(paths[i] + ".class", tr(R"("%1" is %2, but objects of this class belong in "materials")"),
                         quoted(object.className));
        checkName(paths[i] + ".name_internal", object.internalName);
        if (object.objectId == 0)
            refuseMember(paths[i] + ".object_id", tr(R"("%1" is 0 but must be from 1 to 4294967295)"));
        if (const auto number = numbers.emplace(object.objectId, i); !number.second)
            refuseMember(paths[i] + ".object_id", tr(R"("%1" is %2, which is the number of %3 too)"),
                         QString::number(object.objectId), toQString(paths[number.first->second]));
        if (const auto name = names.emplace(object.internalName, i); !name.second)
            refuseMember(paths[i] + ".name_internal", tr(R"("%1" is %2, which is the name of %3 too)"),
                         quoted(object.internalName), toQString(paths[name.first->second]));
    }
}

void checkNextNumber(const ProjectRecord& project)
{
    constexpr std::uint64_t most = std::uint64_t{std::numeric_limits<std::uint32_t>::max()} + 1U;
    std::uint32_t largest = 0;
    for (const ObjectRecord& object : project.objects)
        largest = std::max(largest, object.objectId);
    if (project.nextObjectId <= largest || project.nextObjectId > most)
        refuseMember(
            "next_object_id", tr(R"("%1" is %2 but must be from %3 to %4, because object numbers are not reused)"),
            QString::number(project.nextObjectId), QString::number(std::uint64_t{largest} + 1U), QString::number(most));
}

void checkIsObject(const std::string& path, const Json::Value& value)
{
    if (!value.isNull() && !value.isObject())
        refuseMember(path, tr(R"("%1" must be an object)"));
}

void checkProperties(const ProjectRecord& project)
{
    checkIsObject("properties", project.properties);
    const std::vector<std::string> paths = pathsOf(project.objects);
    for (std::size_t i = 0; i < project.objects.size(); ++i) {
        checkIsObject(paths[i] + ".properties", project.objects[i].properties);
        checkIsObject(paths[i] + ".node", project.objects[i].node);
    }
}

// --- The database of the host ---

/// Returns a member of an object of the database; null if it is missing.
const Json::Value& memberOf(const Json::Value& object, std::string_view name)
{
    const Json::Value* const member = object.isObject() ? object.find(name.data(), name.data() + name.size()) : nullptr;
    return member != nullptr ? *member : Json::Value::nullSingleton();
}

/// Returns the array of objects in the database of a material project; null if there is none.
const Json::Value& objectsOf(const Json::Value& database)
{
    checkIsObject("database", database);
    const Json::Value& objects = memberOf(database, "objects");
    checkIsObject("database.objects", objects);
    const Json::Value& list = memberOf(objects, "object");
    if (!list.isNull() && !list.isArray())
        refuseMember("database.objects.object", tr(R"("%1" must be an array)"));
    return list;
}

std::string pathInDatabase(Json::ArrayIndex index, const char* member)
{
    return "database.objects.object[" + std::to_string(index) + "]." + member;
}

void checkText(const Json::Value& found, const std::string& expected, const std::string& path)
{
    if (!found.isString())
        refuseMember(path, tr(R"("%1" must be a text)"));
    if (found.asString() != expected)
        refuseMember(path, tr(R"("%1" is %2, but the object itself has %3)"), quoted(found.asString()),
                     quoted(expected));
}

using ObjectIndex = std::unordered_map<std::uint32_t, const ObjectRecord*>;

ObjectIndex byNumber(const std::vector<ObjectRecord>& objects)
{
    ObjectIndex index;
    for (const ObjectRecord& object : objects)
        index.emplace(object.objectId, &object);
    return index;
}

/// Returns the object of the project that a record of the database describes.
const ObjectRecord& findObject(const ObjectIndex& objects, const Json::Value& record, Json::ArrayIndex index)
{
    const std::string path = pathInDatabase(index, "obj_id");
    const Json::Value& number = memberOf(record, "obj_id");
    if (!number.isUInt())
        refuseMember(path, tr(R"("%1" must be the number of an object)"));
    const auto object = objects.find(number.asUInt());
    if (object == objects.end())
        refuseMember(path, tr(R"("%1" is %2, but "materials" and "objects" have no such object)"),
                     toQString(number.asString()));
    return *object->second;
}

/// Checks the database of a material project: each of its objects is an object of the project, and each material occurs
/// in it once. The database of a project of another class is not checked.
void checkDatabase(const ProjectRecord& project)
{
    if (project.database.isNull() || project.className != materialProjectClass)
        return;
    const ObjectIndex objects = byNumber(project.objects);
    std::unordered_set<const ObjectRecord*> found;
    Json::ArrayIndex index = 0;
    for (const Json::Value& record : objectsOf(project.database)) {
        const ObjectRecord& object = findObject(objects, record, index);
        if (!found.insert(&object).second)
            refuseMember(pathInDatabase(index, "obj_id"), tr(R"("%1" is %2, which occurs twice)"),
                         QString::number(object.objectId));
        checkText(memberOf(record, "class"), object.className, pathInDatabase(index, "class"));
        checkText(memberOf(record, "name_internal"), object.internalName, pathInDatabase(index, "name_internal"));
        ++index;
    }
    const std::vector<std::string> paths = pathsOf(project.objects);
    for (std::size_t i = 0; i < project.objects.size(); ++i) {
        const ObjectRecord& object = project.objects[i];
        if (object.material != nullptr && found.count(&object) == 0)
            refuseMember(paths[i], tr(R"("%1" is object %2, which "database.objects.object" does not have)"),
                         QString::number(object.objectId));
    }
}

// --- Doubts ---

void doubtLabels(const ProjectRecord& project, std::vector<std::string>& doubts)
{
    if (project.database.isNull() || project.className != materialProjectClass)
        return;
    std::unordered_map<std::uint32_t, const Json::Value*> inDatabase;
    for (const Json::Value& object : objectsOf(project.database))
        inDatabase.emplace(memberOf(object, "obj_id").asUInt(), &object);
    const std::vector<std::string> paths = pathsOf(project.objects);
    for (std::size_t i = 0; i < project.objects.size(); ++i) {
        const ObjectRecord& object = project.objects[i];
        const auto record = inDatabase.find(object.objectId);
        if (record == inDatabase.end())
            continue;
        const Json::Value& label = memberOf(*record->second, "label");
        if (!label.isString() || label.asString() != object.label)
            doubts.push_back(tr(R"("%1" is %2 but %3 in the database; %2 is used.)")
                                 .arg(toQString(paths[i] + ".label"), quoted(object.label),
                                      label.isString() ? quoted(label.asString()) : tr("not a text"))
                                 .toStdString());
    }
}

/// Removes labels from the properties of objects, because the label is a member of the object.
void removeSecondLabels(ProjectRecord& project, std::vector<std::string>& doubts)
{
    constexpr const char* name = "Label";
    const auto hasSecond = [](const ObjectRecord& object) {
        return object.properties.isObject() && object.properties.isMember(name);
    };
    if (std::none_of(project.objects.begin(), project.objects.end(), hasSecond))
        return;
    const std::vector<std::string> paths = pathsOf(project.objects);
    for (std::size_t i = 0; i < project.objects.size(); ++i) {
        if (!hasSecond(project.objects[i]))
            continue;
        project.objects[i].properties.removeMember(name);
        doubts.push_back(tr(R"("%1" is left out; the label of the object is %2.)")
                             .arg(toQString(paths[i] + ".properties." + name), quoted(project.objects[i].label))
                             .toStdString());
    }
}

/// The groups of objects. An object is in one group at most, no group is inside itself, and groups are nested only as
/// deeply as the program nests them.
class Groups
{
public:
    /// Puts an object into a group. Returns the reason, without a change, if this is not possible, and otherwise null.
    const char* take(std::uint32_t member, std::uint32_t group)
    {
        int levels = m_places[member].levelsBelow;
        for (std::uint32_t around = group; around != 0; around = m_places[around].group, ++levels)
            if (around == member)
                return impossible;
        if (m_places[member].group != 0)
            return impossible;
        if (levels > deepestGroups)
            return QT_TRANSLATE_NOOP("projectfile::ProjectFile", R"("%1" is %2, which is nested in too many groups.)");
        put(member, group);
        return nullptr;
    }

private:
    struct Place
    {
        std::uint32_t group = 0; ///< 0 if the object is in no group
        int levelsBelow = 0;     ///< how many levels of members the object has
    };

    void put(std::uint32_t member, std::uint32_t group)
    {
        m_places[member].group = group;
        int levels = m_places[member].levelsBelow;
        for (std::uint32_t around = group; around != 0; around = m_places[around].group)
            m_places[around].levelsBelow = std::max(m_places[around].levelsBelow, ++levels);
    }

    static constexpr const char* impossible = QT_TRANSLATE_NOOP(
        "projectfile::ProjectFile", R"("%1" is %2, which is in another group or contains this group.)");

    std::unordered_map<std::uint32_t, Place> m_places; ///< by the number of the object
};

/// An invalid link.
struct FalseLink
{
    std::size_t object; ///< the index of the object in the project
    std::size_t link;   ///< the index of the link in the object
    const char* reason; ///< not translated yet; %1 is the path, %2 the number
};

std::vector<FalseLink> falseLinks(const std::vector<ObjectRecord>& objects)
{
    constexpr std::string_view groupClass = "Obj::ProjectObjectGroup";
    const ObjectIndex known = byNumber(objects);
    Groups groups;
    std::vector<FalseLink> found;
    for (std::size_t object = 0; object < objects.size(); ++object) {
        std::unordered_set<std::uint32_t> seen;
        for (std::size_t link = 0; link < objects[object].links.size(); ++link) {
            const std::uint32_t number = objects[object].links[link];
            if (number == objects[object].objectId)
                found.push_back(
                    {object, link, QT_TRANSLATE_NOOP("projectfile::ProjectFile", R"("%1" is %2, the object itself.)")});
            else if (known.count(number) == 0)
                found.push_back(
                    {object, link,
                     QT_TRANSLATE_NOOP("projectfile::ProjectFile", R"("%1" is %2, but there is no such object.)")});
            else if (!seen.insert(number).second)
                found.push_back({object, link,
                                 QT_TRANSLATE_NOOP("projectfile::ProjectFile", R"("%1" is %2, which occurs twice.)")});
            else if (const char* const reason = objects[object].className == groupClass
                                                    ? groups.take(number, objects[object].objectId)
                                                    : nullptr)
                found.push_back({object, link, reason});
        }
    }
    return found;
}

void removeFalseLinks(std::vector<ObjectRecord>& objects)
{
    for (const FalseLink& wrong : falseLinks(objects))
        objects[wrong.object].links[wrong.link] = 0;
    for (ObjectRecord& object : objects)
        object.links.erase(std::remove(object.links.begin(), object.links.end(), 0U), object.links.end());
}

} // namespace

void checkProject(const ProjectRecord& project)
{
    checkName("class", project.className);
    checkNumbersAndNames(project.objects);
    checkNextNumber(project);
    checkProperties(project);
    checkDatabase(project);
}

std::vector<std::string> findFalseLinks(const ProjectRecord& project)
{
    std::vector<std::string> doubts;
    const std::vector<std::string> paths = pathsOf(project.objects);
    for (const FalseLink& wrong : falseLinks(project.objects)) {
        const std::string path = paths[wrong.object] + ".links[" + std::to_string(wrong.link) + "]";
        const QString number = QString::number(project.objects[wrong.object].links[wrong.link]);
        doubts.push_back(tr(wrong.reason).arg(toQString(path), number).toStdString());
    }
    return doubts;
}

std::vector<std::string> takeDoubts(ProjectRecord& project)
{
    std::vector<std::string> doubts = findFalseLinks(project);
    removeFalseLinks(project.objects);
    removeSecondLabels(project, doubts);
    doubtLabels(project, doubts);
    return doubts;
}

} // namespace projectfile::detail
