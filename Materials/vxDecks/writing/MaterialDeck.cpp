#include "writing/MaterialDeck.h"

#include "texts/DeckTexts.h"
#include "vxMaterial/model/CataloguedMaterial.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;
using vxUnits::Message;
using vxUnits::UnitSystem;

bool isFinite(const vxMat::MaterialProperty& property)
{
    return std::isfinite(property.value) && std::all_of(property.values.begin(), property.values.end(),
                                                        [](double number) { return std::isfinite(number); });
}

/// Returns the reason why a quantity that the format takes has no outcome; absent if its model is written without it.
std::optional<Message> reasonOf(std::int32_t id, const MaterialModels& models, const vxUnits::MaterialValues& values)
{
    switch (vxMat::findPropertyRecord(id)->category) {
    case vxMat::ePropertyCategory::LinearElastic:
        return models.elastic.reason;
    case vxMat::ePropertyCategory::Hyperelastic:
        return models.hyperelastic.model ? makeMessage(Text::NotUsedByModel) : models.hyperelastic.reason;
    case vxMat::ePropertyCategory::Plastic:
        if (!values.has(Id::Plasticity))
            return makeMessage(Text::NoModel);
        return models.plastic.model ? makeMessage(Text::NotUsedByModel) : models.plastic.reason;
    case vxMat::ePropertyCategory::Creep:
        return models.creep.reason;
    case vxMat::ePropertyCategory::Viscoelastic:
        return models.prony.reason;
    default:
        return makeMessage(Text::NoCardHasPlace);
    }
}

} // namespace

MaterialDeck::MaterialDeck(Format format, const DeckMaterial& material, Heading heading, DeckUnits& units,
                           const DeckOptions& options)
    : m_format(format), m_source(material), m_heading(std::move(heading)), m_units(units), m_options(options)
{
    m_converted.copyAllFrom(*material.material);
    units.convertToDeck(m_converted);
    removeNumbersThatAreNotFinite();
    m_values = vxUnits::MaterialValues(m_converted);
    m_models = resolveModels(m_values);
}

void MaterialDeck::removeNumbersThatAreNotFinite()
{
    for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(m_converted)) {
        const vxUnits::Quantity* const quantity = vxUnits::findQuantity(slot);
        if (quantity == nullptr || !quantity->hasNumber() || isFinite(*property))
            continue;
        refuse({slot}, makeMessage(Text::NotFinite));
        m_converted.removeProperty(property);
    }
}

void MaterialDeck::line(std::string_view text)
{
    m_text.append(text).append("\n");
}

std::vector<Message> MaterialDeck::unitChange(std::int32_t id) const
{
    if (units() == UnitSystem::si())
        return {};
    const UnitPair& one = unitsOf(id);
    if (!one.areBothKnown() || one.stored->factor() == one.written->factor())
        return {};
    return {makeMessage(Text::OtherUnit, {one.written->text(), one.stored->text()})};
}

void MaterialDeck::decide(std::int32_t id, Outcome outcome, std::vector<Message> how)
{
    if (m_source.material->hasProperty(id) && m_rows.count(id) == 0)
        addRow(id, outcome, std::move(how));
}

void MaterialDeck::addRow(std::int32_t id, Outcome outcome, std::vector<Message> how)
{
    const Mapping* const mapping = findMapping(m_format, id, m_options.dialect);
    const vxMat::PropertyRecord* const record = vxMat::findPropertyRecord(id);
    const bool isLost = outcome == Outcome::Lost;
    m_rows[id] = {id, record->name, outcome, isLost ? "" : mapping->card, std::move(how), isLost};
}

void MaterialDeck::carry(std::int32_t id)
{
    std::vector<Message> change = unitChange(id);
    const Outcome outcome = change.empty() ? Outcome::Carried : Outcome::Converted;
    decide(id, outcome, std::move(change));
}

void MaterialDeck::carry(std::int32_t id, Message remark)
{
    std::vector<Message> all = unitChange(id);
    const Outcome outcome = all.empty() ? Outcome::Carried : Outcome::Converted;
    all.push_back(std::move(remark));
    decide(id, outcome, std::move(all));
}

void MaterialDeck::convert(std::int32_t id, Message how)
{
    std::vector<Message> all = unitChange(id);
    all.push_back(std::move(how));
    decide(id, Outcome::Converted, std::move(all));
}

void MaterialDeck::approximate(std::int32_t id, Message how)
{
    std::vector<Message> all = unitChange(id);
    all.push_back(std::move(how));
    decide(id, Outcome::Approximated, std::move(all));
}

void MaterialDeck::assume(std::int32_t id, Message how)
{
    if (m_source.material->hasProperty(id))
        approximate(id, std::move(how));
    else
        addRow(id, Outcome::Approximated, {std::move(how)});
}

std::string MaterialDeck::written(const Real& number, std::size_t longest)
{
    std::string text = writeWithin(number.value, longest);
    if (number.id != 0 && !isSameNumber(readWritten(text), number.value))
        noteRounding(number.id, longest);
    return text;
}

void MaterialDeck::refuse(const std::vector<std::int32_t>& ids, const Message& why)
{
    for (const std::int32_t id : ids)
        decide(id, Outcome::Lost, {why});
}

ReportRow MaterialDeck::lostRow(std::int32_t id) const
{
    ReportRow row;
    row.slot = id;
    const Mapping* const mapping = findMapping(m_format, id, m_options.dialect);
    if (mapping == nullptr) {
        row.name = m_source.material->findProperty(id)->name;
        row.how = {makeMessage(Text::NotInCatalogue)};
        return row;
    }
    row.name = vxMat::findPropertyRecord(id)->name;
    if (mapping->transport == Transport::None) {
        row.how = {{mapping->how.id, mapping->how.english, {}}};
        return row;
    }
    row.how = {reasonOf(id, m_models, m_values).value_or(makeMessage(Text::NotUsedByModel))};
    row.refused = true;
    return row;
}

void MaterialDeck::tellRounding()
{
    for (const auto& [id, width] : m_rounded) {
        const auto row = m_rows.find(id);
        if (row == m_rows.end() || row->second.outcome == Outcome::Lost)
            continue;
        row->second.outcome = Outcome::Approximated;
        row->second.how.push_back(makeMessage(Text::RoundedToField, {std::to_string(width)}));
    }
}

/// The built-in acoustic materials name their speed of sound "Density".
void MaterialDeck::tellOtherNames()
{
    for (auto& [id, row] : m_rows) {
        const vxMat::MaterialProperty* const property = m_source.material->findProperty(id);
        if (property == nullptr || property->id == id || row.outcome == Outcome::Lost)
            continue;
        row.outcome = std::max(row.outcome, Outcome::Converted);
        row.how.push_back(makeMessage(Text::OtherName, {property->name}));
    }
}

MaterialReport MaterialDeck::finish()
{
    tellRounding();
    tellOtherNames();
    MaterialReport report;
    report.name = m_source.name;
    for (const auto& [slot, property] : vxMat::propertiesInCatalogueOrder(*m_source.material)) {
        const auto found = m_rows.find(slot);
        report.rows.push_back(found != m_rows.end() ? found->second : lostRow(slot));
    }
    for (const auto& [slot, row] : m_rows) {
        if (!m_source.material->hasProperty(slot))
            report.rows.push_back(row);
    }
    return report;
}

} // namespace vxDecks
