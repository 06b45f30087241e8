#pragma once

#include "MemberTable.h"

#include "vxMaterial/exchange/DocumentCheck.h"

#include <cstdint>
#include <map>
#include <string>

namespace vxCAE::detail {

/// The numbers of the elements of a list so far, each with the path of its element.
using SeenNumbers = std::map<std::uint32_t, std::string>;

/// Returns the text for a value in a message: a number or truth value itself, the kind of every other value.
std::string shown(const Json::Value& value);

/// Returns a message such as "is a text; a number is needed".
std::string wrongKind(const Json::Value& value, const char* needed);

/// Returns the path of an element of the array at `path`.
std::string elementPath(const std::string& path, Json::ArrayIndex index);

/// Returns the value that readers use for a missing member.
const char* fallbackName(Conversion conversion);

/// The parts of the check of a section: whether values exist, and have a kind that the reader takes without loss. They
/// add their findings to the report.
class MemberCheck
{
public:
    explicit MemberCheck(CheckReport& report) : m_report(report) {}

    void find(const std::string& path, const std::string& message);
    void note(const std::string& path, const std::string& message);

    /// Returns whether the member `key` of `parent` exists and fits.
    bool checkValue(const Json::Value& parent, const char* key, Conversion conversion, const std::string& parentPath);

    /// Returns whether the member `key` of `parent` is an array, or missing, and all its elements fit.
    bool checkArray(const Json::Value& parent, const char* key, Conversion conversion, const std::string& parentPath);

    /// Reports an element with the number of an earlier element; readers drop it.
    void checkRepetition(const Json::Value& json, const char* key, const std::string& path, SeenNumbers& seen);

    /// Checks each member of a list as its reader takes it.
    template <class Members>
    void checkMembers(const Json::Value& json, const Members& members, const std::string& path)
    {
        forEachMember(members, [&](const auto& member) { checkValue(json, member.readKey, member.conversion, path); });
    }

    /// Visits the objects of the array under `key`, which may be missing, each with its path. Reports other
    /// elements.
    template <class Visit>
    void checkList(const Json::Value& parent, const char* key, const std::string& parentPath, Visit visit)
    {
        const std::string path = parentPath + "." + key;
        if (!isArrayOrMissing(parent[key], path))
            return;
        Json::ArrayIndex index = 0;
        forEachElement(parent[key], [&](const Json::Value& json) {
            const std::string visited = elementPath(path, index++);
            if (json.isObject())
                visit(json, visited);
            else
                find(visited, wrongKind(json, "an object"));
        });
    }

private:
    bool isArrayOrMissing(const Json::Value& value, const std::string& path);

    CheckReport& m_report;
};

} // namespace vxCAE::detail
