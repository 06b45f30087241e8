#include "projectfile/ExchangeImport.h"

#include "Messages.h"

#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/json/JsonTree.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <unordered_map>
#include <utility>

namespace projectfile {

namespace {

using vxjson::JsonNode;

QString tr(const char* source)
{
    return QCoreApplication::translate("projectfile::ExchangeImport", source);
}

QString text(std::string_view utf8)
{
    return detail::toQString(utf8);
}

const char* kindName(const JsonNode& value)
{
    switch (value.kind()) {
    case vxjson::JsonKind::Null:
        return QT_TRANSLATE_NOOP("projectfile::ExchangeImport", "null");
    case vxjson::JsonKind::Boolean:
        return QT_TRANSLATE_NOOP("projectfile::ExchangeImport", "true or false");
    case vxjson::JsonKind::Text:
        return QT_TRANSLATE_NOOP("projectfile::ExchangeImport", "a text");
    case vxjson::JsonKind::Array:
        return QT_TRANSLATE_NOOP("projectfile::ExchangeImport", "an array");
    case vxjson::JsonKind::Object:
        return QT_TRANSLATE_NOOP("projectfile::ExchangeImport", "an object");
    case vxjson::JsonKind::Number:
        break;
    }
    return QT_TRANSLATE_NOOP("projectfile::ExchangeImport", "a number");
}

[[noreturn]] void refuse(const std::string& path, const JsonNode& value, const QString& needed)
{
    detail::refuseMember(path, tr("%1: is %2; %3 is needed"), tr(kindName(value)), needed);
}

/// Returns an element of an array, which must be an object. `path` is the path of the element.
JsonNode objectAt(const JsonNode& array, std::size_t index, const std::string& path)
{
    const JsonNode element = array.element(index);
    if (!element.isObject())
        refuse(path, element, tr("an object"));
    return element;
}

/// Returns the array under `key`; null if there is none.
JsonNode arrayUnder(const JsonNode& parent, const char* key, const std::string& parentPath)
{
    const JsonNode array = parent[key];
    if (!array.isArray() && !array.isNull())
        refuse(parentPath + "." + key, array, tr("an array"));
    return array;
}

std::string textUnder(const JsonNode& parent, const char* key, const std::string& parentPath)
{
    const JsonNode value = parent[key];
    if (!value.isText() && !value.isNull())
        refuse(parentPath + "." + key, value, tr("a text"));
    return std::string(value.text());
}

std::string pathOf(const std::string& parent, const char* key, std::size_t index)
{
    return parent + "." + key + "[" + std::to_string(index) + "]";
}

/// Returns a value as an unsigned number; absent if it is not a whole number from 0 to 4294967295.
std::optional<std::uint32_t> unsignedNumber(const JsonNode& value)
{
    const std::optional<std::int64_t> whole = value.whole();
    if (!whole || *whole < 0 || *whole > std::numeric_limits<std::uint32_t>::max())
        return std::nullopt;
    return static_cast<std::uint32_t>(*whole);
}

/// Returns the number of a material; 0 if it is missing or no object can have it.
std::uint32_t numberOf(const JsonNode& material, const std::string& path)
{
    const JsonNode number = material["mat_id"];
    if (!number.isNumber() && !number.isNull())
        refuse(path + ".mat_id", number, tr("a number"));
    return unsignedNumber(number).value_or(0);
}

/// Returns the id under which a material holds a property.
std::int32_t idOf(const JsonNode& property, const std::string& path)
{
    const JsonNode type = property["prop_type"];
    if (type.isNull())
        return 0;
    const std::optional<std::int64_t> whole = type.whole();
    if (whole && *whole < 0 && *whole >= std::numeric_limits<std::int32_t>::min())
        return static_cast<std::int32_t>(*whole);
    // Documents store ids as unsigned numbers. The conversion restores an id below 0.
    if (const auto number = unsignedNumber(type))
        return static_cast<std::int32_t>(*number);
    refuse(path + ".prop_type", type, tr("a whole number from 0 to 4294967295"));
}

/// Collects the first doubts about a document, and counts the others.
class Doubts
{
public:
    /// Adds the text that `make` returns, unless there are mostDoubts already: texts cost time.
    template <class Make>
    void add(const Make& make)
    {
        if (m_list.size() < mostDoubts)
            m_list.push_back(make().toStdString());
        else
            ++m_omitted;
    }

    std::vector<std::string> take()
    {
        if (m_omitted > 0)
            m_list.push_back(tr("Further doubts are not listed: %1.").arg(m_omitted).toStdString());
        return std::move(m_list);
    }

private:
    std::vector<std::string> m_list;
    std::size_t m_omitted = 0;
};

/// Makes one material, and collects the doubts about it.
class MaterialImport
{
public:
    MaterialImport(const ImportedMaterial& target, Doubts& doubts)
        : m_number(QString::number(target.objectId)), m_label(text(target.label)), m_doubts(doubts)
    {}

    void doubt(const QString& about)
    {
        m_doubts.add([&] { return tr("material %1 \"%2\": %3").arg(m_number, m_label, about); });
    }
    void addProperty(const JsonNode& json, const std::string& path);

    std::unique_ptr<vxMat::MaterialBase> material = std::make_unique<vxMat::CMaterial>();

private:
    void doubtProperty(const vxMat::MaterialProperty& property, const QString& about)
    {
        const QString id = QString::number(property.id);
        doubt(property.name.empty() ? tr("property %1: %2").arg(id, about)
                                    : tr("property %1 \"%2\": %3").arg(id, text(property.name), about));
    }
    void takeNumber(vxMat::MaterialProperty& property, const JsonNode& json, const std::string& path);
    void takeNameAndKey(vxMat::MaterialProperty& property, const JsonNode& json, const std::string& path);
    void restoreWordOrList(vxMat::MaterialProperty& property, const vxMat::PropertyRecord& quantity);

    QString m_number;
    QString m_label;
    Doubts& m_doubts;
};

void MaterialImport::takeNumber(vxMat::MaterialProperty& property, const JsonNode& json, const std::string& path)
{
    const JsonNode number = json["prop_value"];
    if (!number.isNumber() && !number.isNull())
        refuse(path + ".prop_value", number, tr("a number"));
    if (number.isNull())
        doubtProperty(property, tr("the document has no number for it, which is read as 0"));
    property.value = number.number();
}

void MaterialImport::takeNameAndKey(vxMat::MaterialProperty& property, const JsonNode& json, const std::string& path)
{
    const auto take = [&](std::string& field, const char* key, const QString& doubt) {
        std::string taken = textUnder(json, key, path);
        if (taken.empty() || taken == field)
            return;
        if (!field.empty())
            doubtProperty(property, doubt.arg(text(taken), text(field)));
        field = std::move(taken);
    };
    // The name is last, because the doubt about the key shows the name in the catalogue.
    take(property.key, "prop_key",
         tr(R"(its key is "%1" in the document and "%2" in the catalogue; the key of the document was kept)"));
    take(property.name, "prop_name",
         tr(R"(its name is "%1" in the document and "%2" in the catalogue; the name of the document was kept)"));
}

void MaterialImport::restoreWordOrList(vxMat::MaterialProperty& property, const vxMat::PropertyRecord& quantity)
{
    if (quantity.kind == vxMat::ValueKind::Word) {
        doubtProperty(property,
                      tr("documents carry no words; \"%1\" of the catalogue was taken").arg(text(property.text)));
    } else if (quantity.kind == vxMat::ValueKind::NumberList) {
        property.values.clear();
        doubtProperty(property, tr("documents carry no lists; it is empty"));
    }
}

void MaterialImport::addProperty(const JsonNode& json, const std::string& path)
{
    const std::int32_t id = idOf(json, path);
    const vxMat::PropertyRecord* const quantity = vxMat::findPropertyRecord(id);
    auto property =
        quantity != nullptr ? quantity->create() : std::make_unique<vxMat::MaterialProperty>(id, "", "", 0.0);
    if (quantity != nullptr)
        restoreWordOrList(*property, *quantity);
    takeNameAndKey(*property, json, path);
    takeNumber(*property, json, path);
    if (quantity == nullptr)
        doubtProperty(*property, tr("it is not in the catalogue; its unit, description and category are lost"));
    if (material->hasProperty(id))
        doubtProperty(*property, tr("the document has it more than once; the last one was used"));
    // Copies of materials hold plain properties too.
    material->setProperty(id, std::make_unique<vxMat::MaterialProperty>(*property));
}

/// Assigns object numbers to the materials of a document.
class Numbers
{
public:
    /// `stated` has the numbers in the document; 0 if there is no valid number.
    explicit Numbers(const std::vector<std::uint32_t>& stated)
    {
        for (std::size_t i = 0; i < stated.size(); ++i)
            if (stated[i] != 0)
                m_last[stated[i]] = i;
    }

    /// Returns whether the material at `index` keeps its number in the document.
    bool keeps(std::size_t index, std::uint32_t stated) const { return stated != 0 && m_last.at(stated) == index; }

    /// Returns a number that no material has.
    std::uint32_t next()
    {
        // The loop ends, because a document has fewer materials than there are numbers.
        while (m_last.count(m_next) != 0)
            ++m_next;
        return m_next++;
    }

private:
    std::unordered_map<std::uint32_t, std::size_t> m_last; ///< the last material with a number
    std::uint32_t m_next = 1;
};

/// Returns the reason why a material has the number `objectId`, which differs from its number in the document.
QString renumbered(const JsonNode& material, std::uint32_t stated, std::uint32_t objectId)
{
    const JsonNode number = material["mat_id"];
    const QString given = QString::number(objectId);
    if (number.isNull())
        return tr("the document has no number for it; it was given the number %1").arg(given);
    const QString said = detail::shown(number);
    if (stated != 0)
        return tr("its number in the document is %1, which a later material has too; it was given the number %2")
            .arg(said, given);
    return tr("its number in the document is %1, which no object can have; it was given the number %2")
        .arg(said, given);
}

/// `stated` is the number in the document; 0 if there is no valid number.
ImportedMaterial readMaterial(const JsonNode& json, const std::string& path, std::uint32_t stated,
                              std::uint32_t objectId, Doubts& doubts)
{
    ImportedMaterial target;
    target.objectId = objectId;
    const std::string name = textUnder(json, "mat_name", path);
    target.label = name.empty() ? "Material" : name;
    MaterialImport import(target, doubts);
    if (target.objectId != stated)
        import.doubt(renumbered(json, stated, target.objectId));
    if (name.empty())
        import.doubt(tr("the document has no name for it"));
    const JsonNode properties = arrayUnder(json, "Props", path);
    for (std::size_t i = 0; i < properties.size(); ++i) {
        const std::string propertyPath = pathOf(path, "Props", i);
        import.addProperty(objectAt(properties, i, propertyPath), propertyPath);
    }
    import.material->name = target.label;
    import.material->id = static_cast<std::int32_t>(target.objectId);
    target.material = std::move(import.material);
    return target;
}

void requireMaterialDocument(const JsonNode& document)
{
    if (!document.isObject())
        refuse("$", document, tr("an object"));
    if (isProject(document))
        throw ContentError(tr("it is a project file, which needs no import").toStdString());
    const std::uint32_t kind = unsignedNumber(document["proj_type"]).value_or(0);
    if (kind == vxCAE::ProjectKind::Analysis)
        throw ContentError(tr("an analysis document holds no materials; give the material document").toStdString());
    if (kind != vxCAE::ProjectKind::Material)
        throw ContentError(tr("it is not a material document: \"proj_type\" must be 2").toStdString());
}

void doubtRepeatedMembers(const vxjson::JsonTree& tree, Doubts& doubts)
{
    for (const std::string& path : tree.repeatedMembers())
        doubts.add([&] { return tr("%1: occurs more than once; the last one was used").arg(text(path)); });
}

} // namespace

ImportedMaterials importExchange(std::string_view text, Numbering numbering)
{
    const vxjson::JsonTree tree = vxjson::JsonTree::read(text, vxjson::JsonDialect::WithComments);
    if (tree.error())
        detail::refuseText(*tree.error());
    const JsonNode document = tree.root();
    requireMaterialDocument(document);
    const JsonNode list = arrayUnder(document, "material", "$");
    std::vector<std::uint32_t> stated;
    stated.reserve(list.size());
    for (std::size_t i = 0; i < list.size(); ++i) {
        const std::string path = pathOf("$", "material", i);
        stated.push_back(numberOf(objectAt(list, i, path), path));
    }

    Numbers numbers(stated);
    ImportedMaterials imported;
    imported.materials.reserve(list.size());
    Doubts doubts;
    doubtRepeatedMembers(tree, doubts);
    if (list.size() == 0)
        doubts.add([] { return tr("the document holds no materials"); });
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (numbering == Numbering::Anew)
            stated[i] = static_cast<std::uint32_t>(i + 1);
        const std::uint32_t objectId =
            numbering == Numbering::Anew || numbers.keeps(i, stated[i]) ? stated[i] : numbers.next();
        imported.materials.push_back(
            readMaterial(list.element(i), pathOf("$", "material", i), stated[i], objectId, doubts));
    }
    imported.doubts = doubts.take();
    std::sort(imported.materials.begin(), imported.materials.end(),
              [](const auto& one, const auto& other) { return one.objectId < other.objectId; });
    return imported;
}

bool isMaterialDocument(std::string_view text)
{
    const vxjson::JsonTree tree = vxjson::JsonTree::read(text, vxjson::JsonDialect::WithComments);
    const auto kind = unsignedNumber(tree.root()["proj_type"]);
    return kind && *kind == vxCAE::ProjectKind::Material && !isProject(tree.root());
}

ProjectRecord makeProject(const std::string& name, std::vector<ImportedMaterial> materials)
{
    ProjectRecord project;
    project.name = name;
    project.database["proj_tag"] = "Material";
    project.database["proj_id"] = 1U;
    project.database["physics_type"] = "Material";
    project.objects.reserve(materials.size());
    Json::Value objects; // stays null, as in the host, if there are no materials
    for (ImportedMaterial& imported : materials) {
        ObjectRecord object;
        object.objectId = imported.objectId;
        object.className = materialClass;
        // The internal names that the host gives to new materials.
        object.internalName = "Material" + (project.objects.empty() ? "" : std::to_string(project.objects.size()));
        object.label = std::move(imported.label);
        object.ownMaterial = std::move(imported.material);
        object.material = object.ownMaterial.get();

        Json::Value& record = objects["object"].append(Json::Value());
        record["obj_id"] = object.objectId;
        record["class"] = object.className;
        record["name_internal"] = object.internalName;
        record["label"] = object.label;

        project.nextObjectId = std::max(project.nextObjectId, std::uint64_t{object.objectId} + 1);
        project.objects.push_back(std::move(object));
    }
    project.database["objects"] = std::move(objects);
    return project;
}

} // namespace projectfile
