#include "MemberCheck.h"

#include "vxMaterial/model/NumberText.h"

namespace vxCAE::detail {

namespace {

/// Returns the kind of a value that is neither a number nor a truth value.
const char* kindName(const Json::Value& value)
{
    switch (value.type()) {
    case Json::nullValue:
        return "null";
    case Json::stringValue:
        return "a text";
    case Json::arrayValue:
        return "an array";
    default:
        return "an object";
    }
}

const char* neededName(Conversion conversion)
{
    switch (conversion) {
    case Conversion::Boolean:
        return "true or false";
    case Conversion::Text:
        return "a text";
    case Conversion::Unsigned:
        return "a whole number from 0 to 4294967295";
    case Conversion::Count:
        return "a whole number from 0 to 2147483647";
    case Conversion::Signed:
        return "a whole number from -2147483648 to 2147483647";
    default:
        return "a number";
    }
}

bool fits(const Json::Value& value, Conversion conversion)
{
    switch (conversion) {
    case Conversion::Boolean:
        return value.isBool();
    case Conversion::Text:
        return value.isString();
    case Conversion::Unsigned:
        return value.isUInt();
    case Conversion::Count:
        return value.isUInt() && value.isInt();
    case Conversion::Signed:
        return value.isInt();
    default:
        return value.isNumeric();
    }
}

} // namespace

std::string shown(const Json::Value& value)
{
    if (value.isBool())
        return value.asBool() ? "true" : "false";
    if (value.isNumeric())
        return value.isIntegral() ? value.asString() : vxMat::formatNumber(value.asDouble());
    return kindName(value);
}

std::string wrongKind(const Json::Value& value, const char* needed)
{
    return "is " + shown(value) + "; " + needed + " is needed";
}

std::string elementPath(const std::string& path, Json::ArrayIndex index)
{
    return path + "[" + std::to_string(index) + "]";
}

const char* fallbackName(Conversion conversion)
{
    switch (conversion) {
    case Conversion::Boolean:
        return "false";
    case Conversion::Text:
        return "the empty text";
    default:
        return "0";
    }
}

void MemberCheck::find(const std::string& path, const std::string& message)
{
    m_report.find(path, message);
}

void MemberCheck::note(const std::string& path, const std::string& message)
{
    m_report.note(path, message);
}

bool MemberCheck::checkValue(const Json::Value& parent, const char* key, Conversion conversion,
                             const std::string& parentPath)
{
    const Json::Value& value = parent[key];
    const std::string path = parentPath + "." + key;
    if (value.isNull()) {
        const char* const lack = parent.isMember(key) ? "is null" : "is missing";
        find(path, std::string(lack) + " and read as " + fallbackName(conversion));
        return false;
    }
    if (!fits(value, conversion)) {
        find(path, wrongKind(value, neededName(conversion)));
        return false;
    }
    return true;
}

bool MemberCheck::isArrayOrMissing(const Json::Value& value, const std::string& path)
{
    if (value.isArray() || value.isNull())
        return true;
    find(path, wrongKind(value, "an array"));
    return false;
}

bool MemberCheck::checkArray(const Json::Value& parent, const char* key, Conversion conversion,
                             const std::string& parentPath)
{
    const std::string path = parentPath + "." + key;
    if (!isArrayOrMissing(parent[key], path))
        return false;
    bool allFit = true;
    Json::ArrayIndex index = 0;
    forEachElement(parent[key], [&](const Json::Value& value) {
        if (!fits(value, conversion)) {
            find(elementPath(path, index), wrongKind(value, neededName(conversion)));
            allFit = false;
        }
        ++index;
    });
    return allFit;
}

void MemberCheck::checkRepetition(const Json::Value& json, const char* key, const std::string& path, SeenNumbers& seen)
{
    const Json::Value& number = json[key];
    if (!number.isUInt())
        return;
    const auto [earlier, isNew] = seen.emplace(number.asUInt(), path);
    if (isNew)
        return;
    find(path + "." + key, "is " + number.asString() + " again; readers drop " + earlier->second + " for this one");
    earlier->second = path;
}

} // namespace vxCAE::detail
