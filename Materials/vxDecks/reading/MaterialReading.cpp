#include "reading/MaterialReading.h"

#include "reading/TextOfDeck.h"
#include "reading/ValueFindings.h"
#include "texts/ReadingTexts.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/MaterialValues.h"
#include "vxUnits/Quantity.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vxDecks {

namespace {

using vxUnits::Message;
using vxUnits::UnitSystem;

/// The number of lost cards of a material that are told one by one.
constexpr std::size_t mostLostRows = 100;

std::string nameOrNumber(const std::string& name, const std::optional<std::uint32_t>& number)
{
    if (!name.empty())
        return toUtf8(name);
    return number ? std::to_string(*number) : "Material";
}

bool isFinite(const vxMat::MaterialProperty& property)
{
    return std::isfinite(property.value) && std::all_of(property.values.begin(), property.values.end(),
                                                        [](double number) { return std::isfinite(number); });
}

std::vector<Message> findChange(std::int32_t id, const std::optional<vxUnits::CreepExponents>& creep,
                                const UnitSystem& units)
{
    const vxUnits::Quantity* const quantity = vxUnits::findQuantity(id);
    if (quantity == nullptr || !quantity->hasNumber())
        return {};
    const auto read = vxUnits::unitOfQuantity(id, units, creep);
    const auto stored = vxUnits::unitOfQuantity(id, UnitSystem::si(), creep);
    if (!read || !stored || read->factor() == stored->factor())
        return {};
    return {makeMessage(ReadText::ReadOtherUnit, {read->text(), stored->text()})};
}

} // namespace

std::vector<Message> ReadUnits::change(std::int32_t id, const std::optional<vxUnits::CreepExponents>& creep) const
{
    if (id == vxMat::PropertyId::CreepModulusA) // depends on the material
        return findChange(id, creep, system());
    const auto found = m_changes.find(id);
    return found != m_changes.end() ? found->second
                                    : m_changes.emplace(id, findChange(id, creep, system())).first->second;
}

MaterialReading::MaterialReading(Format format, const std::string& name, std::optional<std::uint32_t> number)
    : m_format(format),
      m_name(nameOrNumber(name, number)),
      m_number(number),
      m_material(std::make_unique<vxMat::CMaterial>(m_name.c_str()))
{
    if (name.empty())
        m_notes.push_back(makeMessage(ReadText::NameAdded));
}

std::optional<double> MaterialReading::number(std::int32_t id) const
{
    const vxMat::MaterialProperty* const property = m_material->findProperty(id);
    return property == nullptr ? std::nullopt : std::optional<double>(property->value);
}

/// Returns the property of a quantity with its default value.
vxMat::MaterialProperty& MaterialReading::take(std::int32_t id)
{
    auto made = vxMat::findPropertyRecord(id)->create();
    vxMat::MaterialProperty& property = *made;
    m_material->setProperty(id, std::move(made));
    m_forms[id] = {m_card, m_line, Outcome::Carried, {}};
    return property;
}

void MaterialReading::setNumber(std::int32_t id, double number)
{
    take(id).value = number;
}

void MaterialReading::setList(std::int32_t id, std::vector<double> numbers)
{
    take(id).values = std::move(numbers);
}

void MaterialReading::setWord(std::int32_t id, const std::string& word)
{
    take(id).text = word;
}

void MaterialReading::setSwitch(std::int32_t id)
{
    take(id);
}

void MaterialReading::remove(std::int32_t id)
{
    m_material->removeProperty(m_material->findProperty(id));
    m_forms.erase(id);
}

void MaterialReading::convert(std::int32_t id, Message how)
{
    Form& form = m_forms[id];
    form.outcome = std::max(form.outcome, Outcome::Converted);
    form.how.push_back(std::move(how));
}

void MaterialReading::approximate(std::int32_t id, Message how)
{
    Form& form = m_forms[id];
    form.outcome = Outcome::Approximated;
    form.how.push_back(std::move(how));
}

void MaterialReading::lose(const std::string& what, Message why)
{
    addLost({0, toUtf8(what), Outcome::Lost, {}, {std::move(why)}, false});
}

void MaterialReading::refuse(const std::string& what, Message why)
{
    addLost({0, toUtf8(what), Outcome::Lost, {}, {std::move(why)}, true});
}

void MaterialReading::addLost(ReportRow row)
{
    if (m_lost.size() < mostLostRows)
        m_lost.push_back(std::move(row));
    else
        ++m_omitted;
}

void MaterialReading::note(Message message)
{
    m_notes.push_back(std::move(message));
}

void MaterialReading::noteTemperature(const std::string& card, double temperature)
{
    std::string& list = m_temperatures[temperature];
    list += (list.empty() ? "" : ", ") + card;
}

ReportRow MaterialReading::rowOf(std::int32_t id, const std::optional<vxUnits::CreepExponents>& creep,
                                 const ReadUnits& units) const
{
    ReportRow row{id,   vxMat::findPropertyRecord(id)->name, Outcome::Carried, findMapping(m_format, id)->card, {},
                  false};
    if (!hasOwnUnits(m_format))
        row.how = units.change(id, creep);
    if (!row.how.empty())
        row.outcome = Outcome::Converted;
    if (const auto form = m_forms.find(id); form != m_forms.end()) {
        if (!form->second.card.empty())
            row.card = form->second.card;
        row.outcome = std::max(row.outcome, form->second.outcome);
        row.how.insert(row.how.end(), form->second.how.begin(), form->second.how.end());
    }
    return row;
}

void MaterialReading::refuseWhatIsNotFinite()
{
    for (const auto& [id, property] : vxMat::propertiesInCatalogueOrder(*m_material)) {
        const vxUnits::Quantity* const quantity = vxUnits::findQuantity(id);
        if (quantity == nullptr || !quantity->hasNumber() || isFinite(*property))
            continue;
        refuse(property->name, makeMessage(ReadText::NotFiniteInCatalogue));
        remove(id);
    }
}

std::vector<Finding> MaterialReading::findings() const
{
    std::vector<Finding> all;
    for (ValueFault& fault : findImpossibleValues(*m_material)) {
        Finding finding{std::move(fault.message), findMapping(m_format, fault.id)->card, 0, fault.id};
        if (const auto form = m_forms.find(fault.id); form != m_forms.end() && !form->second.card.empty()) {
            finding.card = form->second.card;
            finding.line = form->second.line;
        }
        all.push_back(std::move(finding));
    }
    return all;
}

/// Adds the notes that are known when all cards are read.
void MaterialReading::addLastNotes()
{
    for (const auto& [temperature, list] : m_temperatures)
        note(makeMessage(ReadText::AtTemperature, {list, vxMat::formatNumber(temperature)}));
    if (m_material->properties.empty())
        note(makeMessage(ReadText::NothingRead));
    if (m_omitted > 0)
        note(makeMessage(ReadText::MoreCards, {std::to_string(m_omitted)}));
}

void MaterialReading::finish(const ReadUnits& units, ReadDeck& deck)
{
    MaterialReport report;
    report.findings = findings();
    const auto creep = vxUnits::MaterialValues(*m_material).creepExponents();
    if (!hasOwnUnits(m_format))
        units.convert(*m_material);
    refuseWhatIsNotFinite();
    addLastNotes();
    report.name = m_name;
    report.writtenName = m_name;
    report.id = m_number.value_or(0);
    report.notes = std::move(m_notes);
    for (const auto& [id, property] : vxMat::propertiesInCatalogueOrder(*m_material))
        report.rows.push_back(rowOf(id, creep, units));
    report.rows.insert(report.rows.end(), m_lost.begin(), m_lost.end());
    deck.report.materials.push_back(std::move(report));
    deck.materials.push_back({std::move(m_name), m_number, std::move(m_material)});
}

} // namespace vxDecks
