#include "vxUnits/MaterialValues.h"

#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>

namespace vxUnits {

namespace {

QuantityForm formOf(std::int32_t id)
{
    const Quantity* const quantity = findQuantity(id);
    return quantity != nullptr ? quantity->form : QuantityForm::Switch;
}

} // namespace

MaterialValues::MaterialValues(const vxMat::MaterialBase& material)
{
    for (const auto& [key, property] : material.properties)
        set({key, formOf(key), property->value, property->values, property->text});
}

void MaterialValues::setNumber(std::int32_t id, double number)
{
    set({id, formOf(id), number, {}, {}});
}

void MaterialValues::setList(std::int32_t id, std::vector<double> numbers)
{
    set({id, formOf(id), 0.0, std::move(numbers), {}});
}

void MaterialValues::setWord(std::int32_t id, std::string word)
{
    set({id, formOf(id), 0.0, {}, std::move(word)});
}

void MaterialValues::setSwitch(std::int32_t id)
{
    set({id, formOf(id), 1.0, {}, {}});
}

void MaterialValues::transform(std::int32_t id, const std::function<double(double)>& image)
{
    if (const auto one = number(id))
        setNumber(id, image(*one));
    std::vector<double> numbers = list(id);
    std::transform(numbers.begin(), numbers.end(), numbers.begin(), image);
    if (!numbers.empty())
        setList(id, std::move(numbers));
}

void MaterialValues::set(Entry entry)
{
    const auto place = std::lower_bound(m_entries.begin(), m_entries.end(), entry.id,
                                        [](const Entry& one, std::int32_t id) { return one.id < id; });
    if (place != m_entries.end() && place->id == entry.id)
        *place = std::move(entry);
    else
        m_entries.insert(place, std::move(entry));
}

const MaterialValues::Entry* MaterialValues::find(std::int32_t id) const
{
    const auto place = std::lower_bound(m_entries.begin(), m_entries.end(), id,
                                        [](const Entry& one, std::int32_t other) { return one.id < other; });
    return place != m_entries.end() && place->id == id ? &*place : nullptr;
}

bool MaterialValues::has(std::int32_t id) const
{
    return find(id) != nullptr;
}

std::optional<double> MaterialValues::number(std::int32_t id) const
{
    const Entry* const entry = find(id);
    if (entry == nullptr || entry->form != QuantityForm::Number)
        return std::nullopt;
    return entry->number;
}

const std::vector<double>& MaterialValues::list(std::int32_t id) const
{
    static const std::vector<double> none;
    const Entry* const entry = find(id);
    return entry == nullptr || entry->form != QuantityForm::NumberList ? none : entry->numbers;
}

std::string MaterialValues::word(std::int32_t id) const
{
    const Entry* const entry = find(id);
    return entry == nullptr ? std::string() : entry->word;
}

std::vector<std::int32_t> MaterialValues::numericIds() const
{
    std::vector<std::int32_t> ids;
    for (const Entry& entry : m_entries) {
        if (entry.form == QuantityForm::Number || entry.form == QuantityForm::NumberList)
            ids.push_back(entry.id);
    }
    return ids;
}

std::optional<CreepExponents> MaterialValues::creepExponents() const
{
    const auto n = number(vxMat::PropertyId::CreepModulusN);
    const auto m = number(vxMat::PropertyId::CreepModulusM);
    return n || m ? std::optional<CreepExponents>({n, m}) : std::nullopt;
}

void convertMaterial(vxMat::MaterialBase& material, const UnitSystem& from, const UnitSystem& to)
{
    const auto creep = creepExponents(material);
    for (const auto& [key, property] : material.properties) {
        const auto one = unitOfQuantity(key, from, creep);
        const auto other = unitOfQuantity(key, to, creep);
        if (!one || !other)
            continue;
        property->value = convertNumber(property->value, *one, *other);
        for (double& number : property->values)
            number = convertNumber(number, *one, *other);
    }
}

std::vector<std::int32_t> slotsWithoutUnit(const vxMat::MaterialBase& material)
{
    const auto creep = creepExponents(material);
    std::vector<std::int32_t> slots;
    for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(material)) {
        const Quantity* const quantity = findQuantity(slot);
        if (quantity == nullptr || (quantity->hasNumber() && !unitOfQuantity(slot, UnitSystem::si(), creep)))
            slots.push_back(slot);
    }
    return slots;
}

} // namespace vxUnits
