#include "RecordReading.h"

#include "Messages.h"
#include "RecordMembers.h"

#include "vxMaterial/json/NumberWords.h"
#include "vxMaterial/json/Utf8.h"

#include <QCoreApplication>

#include <array>
#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace projectfile::detail {

namespace {

using vxjson::JsonNode;

/// A value of a document and its path.
struct Node
{
    JsonNode value;
    const Node* parent = nullptr; ///< null for the document
    std::string_view name{};      ///< of a member; empty in an array
    std::size_t index = 0;        ///< of an element
};

/// Returns a path such as "materials[3].material.name"; empty for the document.
std::string pathOf(const Node& node) // NOLINT(misc-no-recursion): as deep as the records are
{
    if (node.parent == nullptr)
        return {};
    const std::string path = pathOf(*node.parent);
    if (node.parent->value.isArray())
        return path + "[" + std::to_string(node.index) + "]";
    return path + (path.empty() ? "" : ".") + vxjson::shortened(node.name);
}

// Descriptions of the expected values for messages. They are translated where a message is made.
constexpr const char* anObject = QT_TRANSLATE_NOOP("projectfile::ProjectFile", "an object");
constexpr const char* arrayOfObjects = QT_TRANSLATE_NOOP("projectfile::ProjectFile", "an array of objects");
constexpr const char* arrayOfNumbers = QT_TRANSLATE_NOOP("projectfile::ProjectFile", "an array of numbers");
constexpr const char* arrayOfObjectNumbers =
    QT_TRANSLATE_NOOP("projectfile::ProjectFile", "an array of the numbers of objects");
constexpr const char* fourNumbers =
    QT_TRANSLATE_NOOP("projectfile::ProjectFile", "an array of four numbers: red, green, blue and opacity");
constexpr const char* aText = QT_TRANSLATE_NOOP("projectfile::ProjectFile", "a text");
constexpr const char* aRealNumber = QT_TRANSLATE_NOOP("projectfile::ProjectFile", "a number");
constexpr const char* aFraction = QT_TRANSLATE_NOOP("projectfile::ProjectFile", "a number from 0 to 1");
constexpr const char* trueOrFalse = QT_TRANSLATE_NOOP("projectfile::ProjectFile", "true or false");
constexpr const char* signedNumber = QT_TRANSLATE_NOOP("projectfile::ProjectFile", "a whole number of 32 bits");
constexpr const char* objectNumber =
    QT_TRANSLATE_NOOP("projectfile::ProjectFile", "the number of an object, from 1 to 4294967295");
constexpr const char* nextObjectNumber =
    QT_TRANSLATE_NOOP("projectfile::ProjectFile", "the number of the next object, from 1 to 4294967296");
constexpr const char* aCategory = QT_TRANSLATE_NOOP("projectfile::ProjectFile", "the number of a category, 0 to 9");
constexpr const char* aVersion =
    QT_TRANSLATE_NOOP("projectfile::ProjectFile", "the version of the format, a whole number from 1");

[[noreturn]] void refuse(const Node& node, const char* needed)
{
    if (node.parent == nullptr)
        throw ContentError(tr("The text is %1 but must be %2").arg(shown(node.value), tr(needed)).toStdString());
    refuseMember(pathOf(node), tr(R"("%1" is %2 but must be %3)"), shown(node.value), tr(needed));
}

void demand(const Node& node, bool isRight, const char* needed)
{
    if (!isRight)
        refuse(node, needed);
}

std::int64_t readWholeBetween(const Node& node, std::int64_t least, std::int64_t most, const char* needed)
{
    const std::optional<std::int64_t> whole = node.value.whole();
    demand(node, whole && *whole >= least && *whole <= most, needed);
    return *whole;
}

template <class OnElement>
void forEachElement(const Node& array, const OnElement& onElement)
{
    const std::size_t size = array.value.size();
    for (std::size_t index = 0; index < size; ++index)
        onElement(Node{array.value.element(index), &array, {}, index});
}

void readField(const Node& node, std::int32_t& field)
{
    using Limits = std::numeric_limits<std::int32_t>;
    field = static_cast<std::int32_t>(readWholeBetween(node, Limits::min(), Limits::max(), signedNumber));
}

void readField(const Node& node, std::uint32_t& field)
{
    constexpr std::int64_t most = std::numeric_limits<std::uint32_t>::max();
    field = static_cast<std::uint32_t>(readWholeBetween(node, 1, most, objectNumber));
}

void readField(const Node& node, std::uint64_t& field)
{
    constexpr std::int64_t most = std::int64_t{1} << 32U;
    field = static_cast<std::uint64_t>(readWholeBetween(node, 1, most, nextObjectNumber));
}

/// The version of the format. Later versions are refused earlier.
struct Version
{};

void readField(const Node& node, const Version& /*version*/)
{
    readWholeBetween(node, 1, formatVersion, aVersion);
}

void readField(const Node& node, bool& field)
{
    demand(node, node.value.isBoolean(), trueOrFalse);
    field = node.value.boolean();
}

void readField(const Node& node, std::string& field)
{
    demand(node, node.value.isText(), aText);
    field = node.value.text();
}

void readField(const Node& node, std::map<std::string, std::string>& field)
{
    demand(node, node.value.isObject(), anObject);
    const std::size_t size = node.value.size();
    for (std::size_t index = 0; index < size; ++index) {
        const Node member{node.value.member(index), &node, node.value.memberName(index)};
        readField(member, field[std::string(member.name)]);
    }
}

void readField(const Node& node, double& field)
{
    const auto word = vxjson::numberOfWord(node.value.text());
    demand(node, node.value.isNumber() || word, aRealNumber);
    field = word.value_or(node.value.number());
}

void readField(const Node& node, std::vector<double>& field)
{
    demand(node, node.value.isArray(), arrayOfNumbers);
    field.reserve(node.value.size());
    forEachElement(node, [&field](const Node& element) { readField(element, field.emplace_back()); });
}

void readField(const Node& node, std::vector<std::uint32_t>& field)
{
    demand(node, node.value.isArray(), arrayOfObjectNumbers);
    field.reserve(node.value.size());
    forEachElement(node, [&field](const Node& element) { readField(element, field.emplace_back()); });
}

void readField(const Node& node, std::array<float, 4>& field)
{
    demand(node, node.value.isArray() && node.value.size() == field.size(), fourNumbers);
    forEachElement(node, [&field](const Node& element) {
        const double part = element.value.number();
        demand(element, element.value.isNumber() && part >= 0.0 && part <= 1.0, aFraction);
        field[element.index] = static_cast<float>(part);
    });
}

void readField(const Node& node, vxMat::ePropertyCategory& field)
{
    const auto last = static_cast<std::int64_t>(vxMat::ePropertyCategory::Undefined);
    field = static_cast<vxMat::ePropertyCategory>(readWholeBetween(node, 0, last, aCategory));
}

void readField(const Node& node, Json::Value& field)
{
    field = node.value.toJsonValue();
}

void readField(const Node& node, const Optional<Json::Value>& field)
{
    field.value = node.value.toJsonValue();
}

void readField(const Node& node, const OptionalObject<Json::Value>& field)
{
    demand(node, node.value.isObject(), anObject);
    field.value = node.value.toJsonValue();
}

template <class Field>
void readField(const Node& node, std::optional<Field>& field)
{
    readField(node, field.emplace());
}

using ReadProperties = Properties<vxMat::MaterialBase::PropertyMap, Json::Value*>;

/// The target of reading the material of an object.
struct MaterialOfObject
{
    ObjectRecord& object;
};

/// The target of reading the objects that are materials.
struct Materials
{
    ProjectRecord& project;
};

/// The target of reading the other objects.
struct OtherObjects
{
    ProjectRecord& project;
};

void readField(const Node& node, const ReadProperties& properties);
void readField(const Node& node, const MaterialOfObject& field);
void readField(const Node& node, const Materials& field);
void readField(const Node& node, const OtherObjects& field);

template <class Field>
void readField(const Node& node, const Required<Field>& required)
{
    readField(node, required.field);
}

template <class Field>
inline constexpr bool isRequired = false;
template <class Field>
inline constexpr bool isRequired<Required<Field>> = true;

/// Reads the members of an object into the fields that `visitMembers(visit)` visits. Stores unknown members in
/// `further` unless `further` is null.
template <class VisitMembers>
void readMembers(const Node& node, const VisitMembers& visitMembers, Json::Value* further)
{
    demand(node, node.value.isObject(), anObject);
    std::uint32_t seen = 0;
    const std::size_t size = node.value.size();
    for (std::size_t index = 0; index < size; ++index) {
        const Node child{node.value.member(index), &node, node.value.memberName(index)};
        const std::uint32_t before = seen;
        std::uint32_t bit = 1;
        visitMembers([&](std::string_view name, auto&& field) {
            if (name == child.name) {
                readField(child, field);
                seen |= bit;
            }
            bit <<= 1U;
        });
        if (seen == before && further != nullptr)
            (*further)[std::string(child.name)] = child.value.toJsonValue();
    }
    std::uint32_t bit = 1;
    visitMembers([&](std::string_view name, auto&& field) {
        if (isRequired<std::decay_t<decltype(field)>> && (seen & bit) == 0U)
            refuseMember(pathOf(Node{node.value[name], &node, name}), tr(R"("%1" is missing)"));
        bit <<= 1U;
    });
}

void readField(const Node& node, const ReadProperties& properties)
{
    demand(node, node.value.isArray(), arrayOfObjects);
    properties.map.reserve(node.value.size());
    forEachElement(node, [&](const Node& element) {
        auto property = std::make_unique<vxMat::MaterialProperty>();
        std::optional<std::int32_t> heldAs;
        Json::Value unknown;
        readMembers(
            element, [&](const auto& visit) { visitPropertyMembers(heldAs, *property, visit); },
            properties.further != nullptr ? &unknown : nullptr);
        const std::int32_t number = heldAs.value_or(property->id);
        if (!properties.map.emplace(number, std::move(property)).second)
            refuseMember(pathOf(element) + ".held_as", tr(R"("%1" is %2, which occurs twice)"),
                         QString::number(number));
        if (!unknown.isNull())
            (*properties.further)[std::to_string(number)] = std::move(unknown);
    });
}

/// Stores unknown members of the material in `further`, and of its properties in `ofProperties`, unless these are null.
void readMaterial(const Node& node, vxMat::MaterialBase& material, Json::Value* further, Json::Value* ofProperties)
{
    material.name.clear(); // a new material has the name of its class
    readMembers(
        node, [&](const auto& visit) { visitMaterialMembers(material, ofProperties, visit); }, further);
}

/// Stores unknown members in the object, if there are any.
void keep(ObjectRecord& object, const char* part, Json::Value further)
{
    if (!further.isNull())
        object.further[part] = std::move(further);
}

void readField(const Node& node, const MaterialOfObject& field)
{
    Json::Value further;
    Json::Value ofProperties;
    field.object.ownMaterial = std::make_unique<vxMat::MaterialBase>();
    field.object.material = field.object.ownMaterial.get();
    readMaterial(node, *field.object.ownMaterial, &further, &ofProperties);
    keep(field.object, partOfMaterial, std::move(further));
    keep(field.object, partOfProperties, std::move(ofProperties));
}

/// Reads an array of objects into the fields that `visitMembers(object, visit)` visits.
template <class VisitMembers>
void readObjects(const Node& node, std::vector<ObjectRecord>& objects, const VisitMembers& visitMembers)
{
    demand(node, node.value.isArray(), arrayOfObjects);
    objects.reserve(objects.size() + node.value.size());
    forEachElement(node, [&](const Node& element) {
        ObjectRecord object;
        Json::Value further;
        readMembers(
            element, [&](const auto& visit) { visitMembers(object, visit); }, &further);
        keep(object, partOfObject, std::move(further));
        objects.push_back(std::move(object));
    });
}

void readField(const Node& node, const Materials& field)
{
    readObjects(node, field.project.objects, [](ObjectRecord& object, const auto& visit) {
        const MaterialOfObject material{object};
        visitMaterialObjectMembers(object, material, visit);
    });
}

void readField(const Node& node, const OtherObjects& field)
{
    readObjects(node, field.project.objects,
                [](ObjectRecord& object, const auto& visit) { visitOtherObjectMembers(object, visit); });
}

} // namespace

void readMaterialRecord(const JsonNode& record, vxMat::MaterialBase& material)
{
    readMaterial(Node{record}, material, nullptr, nullptr);
}

ProjectRecord readProjectRecord(const JsonNode& document)
{
    ProjectRecord project;
    std::string format;
    const Version version;
    std::optional<std::string> className;
    const Materials materials{project};
    const OtherObjects others{project};
    readMembers(
        Node{document},
        [&](const auto& visit) { visitProjectMembers(format, version, className, project, materials, others, visit); },
        &project.further);
    if (className)
        project.className = std::move(*className);
    return project;
}

} // namespace projectfile::detail
