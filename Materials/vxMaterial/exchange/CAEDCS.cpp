#include "vxMaterial/exchange/CAEDCS.h"

#include "SectionMembers.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace vxCAE {

namespace {

Json::Value toJson(std::uint32_t objectId, const DomainEntry& domain)
{
    Json::Value json(Json::objectValue);
    json["obj_id"] = objectId;
    json["bforce"] = detail::toArray(domain.bforce);
    json["mat_name"] = domain.material->material->name;
    detail::writeMembers(domain, detail::domainMembers, json);
    if (domain.isShell())
        detail::writeMembers(domain, detail::shellMembers, json);
    return json;
}

std::unique_ptr<DomainEntry> toDomain(const Json::Value& json)
{
    auto domain = std::make_unique<DomainEntry>();
    detail::readMembers(*domain, detail::domainMembers, json);
    domain->material->material->name = json["mat_name"].asString();
    std::size_t component = 0;
    detail::forEachElement(json["bforce"], [&](const Json::Value& force) {
        if (component < domain->bforce.size())
            domain->bforce[component++] = force.asDouble();
    });
    if (domain->isShell())
        detail::readMembers(*domain, detail::shellMembers, json);
    return domain;
}

} // namespace

DomainEntry::DomainEntry() : material(std::make_unique<MaterialEntry>()) {}

DomainEntry::~DomainEntry() = default;

bool DomainEntry::isShell() const
{
    return topo == "Shell" || topo == "shell";
}

ContactEntry::ContactEntry(std::uint32_t objectId) : obj_id(objectId) {}

const char* ContactEntry::getSlidingText() const
{
    return finite_sliding ? "FSLID" : "SSLID";
}

const char* CAEDCS::typeName() const
{
    return "CAEDCS";
}

void CAEDCS::writeJson(Json::Value& document) const
{
    Json::Value conditions;
    for (const auto& [id, domain] : domains)
        conditions["DCs"].append(toJson(id, *domain));
    document["domaincondition"] = std::move(conditions);

    Json::Value connections;
    for (const auto& [id, contact] : contacts) {
        Json::Value json(Json::objectValue);
        detail::writeMembers(*contact, detail::contactMembers, json);
        json["obj_id"] = id;
        connections["contacts"].append(std::move(json));
    }
    document["connections"] = std::move(connections);
}

void CAEDCS::readJson(const Json::Value& document)
{
    detail::forEachElement(document["domaincondition"]["DCs"], [this](const Json::Value& element) {
        const std::uint32_t id = element["obj_id"].asUInt();
        addDomain(id, toDomain(element));
    });
    detail::forEachElement(document["connections"]["contacts"], [this](const Json::Value& element) {
        auto contact = std::make_unique<ContactEntry>(0);
        detail::readMembers(*contact, detail::contactMembers, element);
        const std::uint32_t id = contact->obj_id;
        addContact(id, std::move(contact));
    });
}

void CAEDCS::addDomain(std::uint32_t objectId, std::unique_ptr<DomainEntry> domain)
{
    assert(domain != nullptr);
    domains.insert_or_assign(domains.end(), objectId, std::move(domain));
}

void CAEDCS::addContact(std::uint32_t objectId, std::unique_ptr<ContactEntry> contact)
{
    assert(contact != nullptr);
    contacts.insert_or_assign(contacts.end(), objectId, std::move(contact));
}

MaterialEntry* CAEDCS::getDomainMaterial(std::uint32_t objectId) const
{
    const auto found = domains.find(objectId);
    return found != domains.end() ? found->second->material.get() : nullptr;
}

bool CAEDCS::hasNonlinearMaterial() const
{
    return std::any_of(domains.begin(), domains.end(),
                       [](const auto& entry) { return entry.second->material->kind != MaterialKind::Linear; });
}

bool CAEDCS::hasCreepOrViscousMaterial() const
{
    return std::any_of(domains.begin(), domains.end(), [](const auto& entry) {
        const std::int32_t kind = entry.second->material->kind;
        return kind == MaterialKind::CreepOrViscous || kind == MaterialKind::ViscoElastic ||
               kind == MaterialKind::Creep;
    });
}

} // namespace vxCAE
