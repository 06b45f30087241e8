#pragma once

#include "MemberTable.h"

#include "vxMaterial/exchange/DocumentCheck.h"

#include <cstdint>
#include <map>
#include <string>

namespace vxCAE::detail {

/// The numbers of the elements of a list so far, each with the path of the element that has it.
using SeenNumbers = std::map<std::uint32_t, std::string>;

/// A value as a message shows it: numbers and truth values themselves, of the others the kind.
std::string shown(const Json::Value& value);

/// "is a text; a number is needed" and the like.
std::string wrongKind(const Json::Value& value, const char* needed);

/// The path of an element of the array at `path`.
std::string elementPath(const std::string& path, Json::ArrayIndex index);

/// What a reader makes of a member that is not there.
const char* fallbackName(Conversion conversion);

/// The checks of which a section's check is made: whether values are there, and of the kind that the reader takes
/// without loss. Each notes what it finds in the report.
class MemberCheck
{
public:
    explicit MemberCheck(CheckReport& report) : m_report(report) {}

    void find(const std::string& path, const std::string& message);
    void note(const std::string& path, const std::string& message);

    /// Whether the member `key` of `parent` is there and fits.
    bool checkValue(const Json::Value& parent, const char* key, Conversion conversion, const std::string& parentPath);

    /// Whether the member `key` of `parent` is an array, or missing, and all its elements fit.
    bool checkArray(const Json::Value& parent, const char* key, Conversion conversion, const std::string& parentPath);

    /// Reports that an element has the number of an earlier one, which readers drop for it.
    void checkRepetition(const Json::Value& json, const char* key, const std::string& path, SeenNumbers& seen);

    /// Checks each member of a list as its reader takes it.
    template <class Members>
    void checkMembers(const Json::Value& json, const Members& members, const std::string& path)
    {
        forEachMember(members, [&](const auto& member) { checkValue(json, member.readKey, member.conversion, path); });
    }

    /// Visits the objects of the array under `key`, which may be missing, each with its path. What is no object is
    /// reported.
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
