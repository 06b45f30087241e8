#include "Kelta/RootClass.h"

#include "TypeRegistry.h"

#include "Kelta/MessageLog.h"

#include <QCoreApplication>

#include <map>

namespace Kelta {

namespace {

constexpr const char* rootName = "Kelta::RootClass";

QString tr(const char* text)
{
    return QCoreApplication::translate("Kelta::RootClass", text);
}

using TypeRegistry = std::map<std::string, TypeRecord, std::less<>>;

TypeRegistry& typeRegistry()
{
    static TypeRegistry registry{{rootName, {rootName, ""}}};
    return registry;
}

bool descendsFrom(std::string_view name, std::string_view ancestor)
{
    for (const TypeRecord* record = findTypeRecord(name); record != nullptr;
         record = findTypeRecord(record->parentName))
        if (record->parentName == ancestor)
            return true;
    return name == ancestor;
}

void refuse(const QString& name, const QString& reason)
{
    MessageLog::error(tr("The class \"%1\" cannot be registered: %2").arg(name, reason));
}

} // namespace

const TypeRecord* findTypeRecord(std::string_view name)
{
    const TypeRegistry& registry = typeRegistry();
    const auto found = registry.find(name);
    return found != registry.end() ? &found->second : nullptr;
}

const TypeRecord* addTypeRecord(TypeRecord record)
{
    std::string name = record.name;
    return &typeRegistry().emplace(std::move(name), std::move(record)).first->second;
}

TypeInfo RootClass::getClassTypeId()
{
    return TypeInfo::find(rootName);
}

TypeInfo RootClass::getTypeId() const
{
    return getClassTypeId();
}

RootClass::~RootClass() = default;

void RootClass::initSubclass(TypeInfo& classTypeId, const char* name, const char* parentName, void* (*create)(),
                             std::size_t objectSize)
{
    const std::string_view parent = parentName != nullptr ? parentName : "";
    if (name == nullptr || *name == '\0')
        return refuse(QString(), tr("it has no name"));
    const TypeRecord* record = findTypeRecord(name);
    if (record == nullptr && descendsFrom(parent, name))
        return refuse(QString::fromUtf8(name), tr("it would be derived from itself"));

    if (record == nullptr)
        record = addTypeRecord({name, std::string(parent), create, objectSize});
    else if (record->parentName != parent || record->create != create)
        return refuse(QString::fromUtf8(name), tr("another class has this name"));
    classTypeId.m_record = record;
}

std::unique_ptr<RootClass> RootClass::createByName(const char* name)
{
    return std::unique_ptr<RootClass>(static_cast<RootClass*>(TypeInfo::find(name).create()));
}

} // namespace Kelta
