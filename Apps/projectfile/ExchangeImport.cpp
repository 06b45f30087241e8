#include "projectfile/ExchangeImport.h"

#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <utility>

namespace projectfile {

namespace {

constexpr const char* materialClass = "Mat::MaterialObject";

QString tr(const char* source)
{
    return QCoreApplication::translate("projectfile::ExchangeImport", source);
}

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

const char* kindName(const Json::Value& value)
{
    switch (value.type()) {
    case Json::nullValue:
        return QT_TRANSLATE_NOOP("projectfile::ExchangeImport", "null");
    case Json::stringValue:
        return QT_TRANSLATE_NOOP("projectfile::ExchangeImport", "a text");
    case Json::booleanValue:
        return QT_TRANSLATE_NOOP("projectfile::ExchangeImport", "true or false");
    case Json::arrayValue:
        return QT_TRANSLATE_NOOP("projectfile::ExchangeImport", "an array");
    case Json::objectValue:
        return QT_TRANSLATE_NOOP("projectfile::ExchangeImport", "an object");
    default:
        return QT_TRANSLATE_NOOP("projectfile::ExchangeImport", "a number");
    }
}

[[noreturn]] void refuse(const std::string& path, const Json::Value& value, const QString& needed)
{
    throw ImportError(tr("%1: is %2; %3 is needed").arg(text(path), tr(kindName(value)), needed).toStdString());
}

/// The element of an array that stands at `path`, which must be an object.
const Json::Value& objectAt(const Json::Value& array, Json::ArrayIndex index, const std::string& path)
{
    const Json::Value& element = array[index];
    if (!element.isObject())
        refuse(path, element, tr("an object"));
    return element;
}

/// The array under `key`; null when there is none.
const Json::Value& arrayUnder(const Json::Value& parent, const char* key, const std::string& parentPath)
{
    const Json::Value& array = parent[key];
    if (!array.isArray() && !array.isNull())
        refuse(parentPath + "." + key, array, tr("an array"));
    return array;
}

std::string textUnder(const Json::Value& parent, const char* key, const std::string& parentPath)
{
    const Json::Value& value = parent[key];
    if (value.isNull())
        return {};
    if (!value.isString())
        refuse(parentPath + "." + key, value, tr("a text"));
    return value.asString();
}

std::string pathOf(const std::string& parent, const char* key, Json::ArrayIndex index)
{
    return parent + "." + key + "[" + std::to_string(index) + "]";
}

/// A number that the object of a material can have; 0 for every other, and for none.
std::uint32_t numberOf(const Json::Value& material, const std::string& path)
{
    const Json::Value& number = material["mat_id"];
    if (!number.isNumeric() && !number.isNull())
        refuse(path + ".mat_id", number, tr("a number"));
    return number.isUInt() ? number.asUInt() : 0;
}

/// The id under which a material keeps a property.
std::int32_t keyOf(const Json::Value& property, const std::string& path)
{
    const Json::Value& type = property["prop_type"];
    if (type.isInt())
        return type.asInt();
    // Readers take the number for one with a sign, so that an id which has one comes back as it was.
    if (type.isUInt())
        return static_cast<std::int32_t>(type.asUInt());
    refuse(path + ".prop_type", type, tr("a whole number from 0 to 4294967295"));
}

/// Makes one material, and says what is doubtful about it.
class MaterialImport
{
public:
    MaterialImport(const ImportedMaterial& target, std::vector<std::string>& doubts)
        : m_number(QString::number(target.objectId)), m_label(text(target.label)), m_doubts(doubts)
    {}

    void doubt(const QString& about)
    {
        m_doubts.push_back(tr("material %1 \"%2\": %3").arg(m_number, m_label, about).toStdString());
    }
    void addProperty(const Json::Value& json, const std::string& path);

    std::unique_ptr<vxMat::MaterialBase> material = std::make_unique<vxMat::CMaterial>();

private:
    void doubtProperty(const vxMat::MaterialProperty& property, const QString& about)
    {
        const QString id = QString::number(property.id);
        doubt(property.name.empty() ? tr("property %1: %2").arg(id, about)
                                    : tr("property %1 \"%2\": %3").arg(id, text(property.name), about));
    }
    void takeNumber(vxMat::MaterialProperty& property, const Json::Value& json, const std::string& path);
    void takeNameAndKey(vxMat::MaterialProperty& property, const Json::Value& json, const std::string& path);
    void restoreWordOrList(vxMat::MaterialProperty& property, const vxMat::PropertyRecord& quantity);

    QString m_number;
    QString m_label;
    std::vector<std::string>& m_doubts;
};

void MaterialImport::takeNumber(vxMat::MaterialProperty& property, const Json::Value& json, const std::string& path)
{
    const Json::Value& number = json["prop_value"];
    if (!number.isNumeric() && !number.isNull())
        refuse(path + ".prop_value", number, tr("a number"));
    if (number.isNull())
        doubtProperty(property, tr("the document has no number for it, which is read as 0"));
    property.value = number.isNull() ? 0.0 : number.asDouble();
}

void MaterialImport::takeNameAndKey(vxMat::MaterialProperty& property, const Json::Value& json, const std::string& path)
{
    const auto take = [&](std::string& field, const char* key, const QString& doubt) {
        std::string taken = textUnder(json, key, path);
        if (taken.empty() || taken == field)
            return;
        if (!field.empty())
            doubtProperty(property, doubt.arg(text(taken), text(field)));
        field = std::move(taken);
    };
    // The name last, as the doubts show the catalogue's.
    take(property.key, "prop_key",
         tr(R"(its key is "%1" in the document and "%2" in the catalogue; that of the document was kept)"));
    take(property.name, "prop_name",
         tr(R"(its name is "%1" in the document and "%2" in the catalogue; that of the document was kept)"));
}

void MaterialImport::restoreWordOrList(vxMat::MaterialProperty& property, const vxMat::PropertyRecord& quantity)
{
    if (quantity.kind == vxMat::eValueKind::Word) {
        doubtProperty(property,
                      tr("documents carry no words; \"%1\" of the catalogue was taken").arg(text(property.text)));
    } else if (quantity.kind == vxMat::eValueKind::NumberList) {
        property.values.clear();
        doubtProperty(property, tr("documents carry no lists; it is empty"));
    }
}

void MaterialImport::addProperty(const Json::Value& json, const std::string& path)
{
    const std::int32_t key = json["prop_type"].isNull() ? 0 : keyOf(json, path);
    const vxMat::PropertyRecord* const quantity = vxMat::findPropertyRecord(key);
    auto property =
        quantity != nullptr ? quantity->create() : std::make_unique<vxMat::MaterialProperty>(key, "", "", 0.0);
    if (quantity != nullptr)
        restoreWordOrList(*property, *quantity);
    takeNameAndKey(*property, json, path);
    takeNumber(*property, json, path);
    if (quantity == nullptr)
        doubtProperty(*property, tr("the catalogue does not know it; its unit, description and category are lost"));
    if (material->hasProperty(key))
        doubtProperty(*property, tr("it stands twice in the document; the last one was taken"));
    // A plain property, as every copy of a material has them.
    material->setProperty(key, std::make_unique<vxMat::MaterialProperty>(*property));
}

/// The numbers that the objects of a document's materials get.
class Numbers
{
public:
    /// By the numbers that the document says, of which 0 is none.
    explicit Numbers(const std::vector<std::uint32_t>& stated)
    {
        for (std::size_t i = 0; i < stated.size(); ++i)
            if (stated[i] != 0)
                m_last[stated[i]] = i;
    }

    /// Whether the material at `index` keeps the number that it states.
    bool keeps(std::size_t index, std::uint32_t stated) const { return stated != 0 && m_last.at(stated) == index; }

    /// A number that nobody has.
    std::uint32_t next()
    {
        // There is one: a document has fewer materials than there are numbers.
        while (m_last.count(m_next) != 0)
            ++m_next;
        return m_next++;
    }

private:
    std::unordered_map<std::uint32_t, std::size_t> m_last; ///< the last material that states a number
    std::uint32_t m_next = 1;
};

/// Why a material has got the number `objectId`, which is not what the document says.
QString renumbered(const Json::Value& material, std::uint32_t stated, std::uint32_t objectId)
{
    const Json::Value& number = material["mat_id"];
    const QString given = QString::number(objectId);
    if (number.isNull())
        return tr("the document has no number for it; it was given the number %1").arg(given);
    const QString said = text(number.asString());
    if (stated != 0)
        return tr("its number in the document is %1, as that of a later material is; it was given the number %2")
            .arg(said, given);
    return tr("its number in the document is %1, which no object can have; it was given the number %2")
        .arg(said, given);
}

/// `stated` is the number in the document, 0 for none that an object can have.
ImportedMaterial readMaterial(const Json::Value& json, const std::string& path, std::uint32_t stated,
                              std::uint32_t objectId, std::vector<std::string>& doubts)
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
    const Json::Value& properties = arrayUnder(json, "Props", path);
    for (Json::ArrayIndex i = 0; i < properties.size(); ++i) {
        const std::string propertyPath = pathOf(path, "Props", i);
        import.addProperty(objectAt(properties, i, propertyPath), propertyPath);
    }
    import.material->name = target.label;
    import.material->id = static_cast<std::int32_t>(target.objectId);
    target.material = std::move(import.material);
    return target;
}

void requireMaterialDocument(const Json::Value& document)
{
    if (!document.isObject())
        refuse("$", document, tr("an object"));
    if (isProject(document))
        throw ImportError(tr("it is a project file, which needs no import").toStdString());
    const std::uint32_t kind = vxCAE::readProjectKind(document);
    if (kind == vxCAE::ProjectKind::Analysis)
        throw ImportError(tr("an analysis document holds no materials; give the material document").toStdString());
    if (kind != vxCAE::ProjectKind::Material)
        throw ImportError(tr("it is no material document: \"proj_type\" must be 2").toStdString());
}

} // namespace

ImportError::~ImportError() = default;

ImportedMaterials importExchange(const Json::Value& document, Numbering numbering)
{
    requireMaterialDocument(document);
    const Json::Value& list = arrayUnder(document, "material", "$");
    std::vector<std::uint32_t> stated;
    for (Json::ArrayIndex i = 0; i < list.size(); ++i) {
        const std::string path = pathOf("$", "material", i);
        stated.push_back(numberOf(objectAt(list, i, path), path));
    }

    Numbers numbers(stated);
    ImportedMaterials imported;
    if (list.empty())
        imported.doubts.push_back(tr("the document holds no materials").toStdString());
    for (Json::ArrayIndex i = 0; i < list.size(); ++i) {
        if (numbering == Numbering::Anew)
            stated[i] = i + 1;
        const std::uint32_t objectId =
            numbering == Numbering::Anew || numbers.keeps(i, stated[i]) ? stated[i] : numbers.next();
        imported.materials.push_back(
            readMaterial(list[i], pathOf("$", "material", i), stated[i], objectId, imported.doubts));
    }
    std::sort(imported.materials.begin(), imported.materials.end(),
              [](const auto& one, const auto& other) { return one.objectId < other.objectId; });
    return imported;
}

ProjectRecord makeProject(const std::string& name, std::vector<ImportedMaterial> materials)
{
    ProjectRecord project;
    project.name = name;
    project.database["proj_tag"] = "Material";
    project.database["proj_id"] = 1U;
    project.database["physics_type"] = "Material";
    Json::Value objects; // null, as the host has it, when there is none
    for (ImportedMaterial& imported : materials) {
        ObjectRecord object;
        object.objectId = imported.objectId;
        object.className = materialClass;
        // As the host names new materials, of which the user sees the label alone.
        object.internalName = "Material" + (project.objects.empty() ? "" : std::to_string(project.objects.size()));
        object.label = std::move(imported.label);
        object.material = imported.material.get();

        Json::Value& record = objects["object"].append(Json::Value());
        record["obj_id"] = object.objectId;
        record["class"] = object.className;
        record["name_internal"] = object.internalName;
        record["label"] = object.label;

        project.nextObjectId = std::max(project.nextObjectId, std::uint64_t{object.objectId} + 1);
        project.objects.push_back(std::move(object));
        project.materials.push_back(std::move(imported.material));
    }
    project.database["objects"] = std::move(objects);
    return project;
}

} // namespace projectfile
