#include "materials/Find.h"

#include "documents/Documents.h"
#include "documents/MaterialNames.h"
#include "materials/ForeignNames.h"
#include "program/Files.h"
#include "program/TextTable.h"
#include "units/ChosenUnits.h"
#include "vxMaterial/model/NumberText.h"
#include "vxUnits/Filter.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace commandline {

namespace {

using vxUnits::FilterQuantity;
using vxUnits::FilterSubject;
using vxUnits::QuantityForm;
using vxUnits::UnitSystem;

constexpr const char* librarySource = "library";

/// Returns the number of a character of a UTF-8 text, from 1.
std::size_t characterAt(std::string_view text, std::size_t byte)
{
    const std::string_view before = text.substr(0, byte);
    const auto isFirst = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    return static_cast<std::size_t>(std::count_if(before.begin(), before.end(), isFirst)) + 1;
}

vxUnits::FilterReading readExpression(const std::string& expression, const UnitSystem& system)
{
    vxUnits::ReadingContext context;
    context.plainNumbers = &system;
    vxUnits::FilterReading reading = vxUnits::readFilter(expression, context);
    if (!reading && reading.failure.code == vxUnits::FaultCode::UnknownQuantity)
        if (std::string english = findEnglishName(expression.substr(reading.position, reading.length));
            !english.empty())
            reading.failure.suggestion = std::move(english);
    if (!reading)
        throw Failure("the expression, character " + std::to_string(characterAt(expression, reading.position)) + ": " +
                      reading.failure.text());
    return reading;
}

/// A found material, which its source owns.
struct FoundMaterial
{
    std::optional<std::uint32_t> number; ///< absent for a material of the library
    std::string label;
    vxUnits::MaterialValues values;
};

class Search
{
public:
    /// Plain numbers of the expression are in `typed`; printed numbers are in `shown`.
    Search(const std::string& expression, const UnitSystem& typed, UnitSystem shown) : m_system(std::move(shown))
    {
        vxUnits::FilterReading reading = readExpression(expression, typed);
        m_filter = *std::move(reading.filter);
        if (reading.remark)
            m_note = "note: " + reading.remark->text();
    }

    void add(std::optional<std::uint32_t> number, const std::string& label, const vxMat::MaterialBase& material)
    {
        vxUnits::MaterialValues values(material);
        if (m_filter.matches(FilterSubject(label, values)))
            m_found.push_back({number, label, std::move(values)});
    }

    const std::vector<FoundMaterial>& found() const { return m_found; }
    /// Returns a note about an expression that was probably meant in another way; empty if there is none.
    const std::string& note() const { return m_note; }
    std::string text() const;
    Json::Value json() const;

private:
    /// The values of a quantity: numbers in `unit`, or a word.
    struct Shown
    {
        std::vector<double> numbers;
        std::string word;
        std::string unit; ///< empty for words and switches, and if it is not known
        const char* kind;
    };

    std::optional<Shown> show(const FilterQuantity& quantity, const FoundMaterial& material) const;
    static std::optional<double> derivedValue(const FilterQuantity& quantity, const FoundMaterial& material);
    std::string heading(const FilterQuantity& quantity) const;
    std::string cell(const FilterQuantity& quantity, const FoundMaterial& material) const;
    Json::Value json(const FilterQuantity& quantity, const FoundMaterial& material) const;

    UnitSystem m_system;
    vxUnits::Filter m_filter;
    std::string m_note;
    std::vector<FoundMaterial> m_found;
};

/// Returns whether all materials have the same unit of a quantity, which is then in the heading.
bool hasOneUnit(const FilterQuantity& quantity)
{
    return quantity.derived != nullptr || vxUnits::unitOfQuantity(quantity.id).hasValue();
}

std::optional<double> Search::derivedValue(const FilterQuantity& quantity, const FoundMaterial& material)
{
    for (const vxUnits::DerivedValue& value : vxUnits::derivedValues(material.values))
        if (std::string_view(value.id) == quantity.derived->id)
            return value.value;
    return std::nullopt;
}

std::optional<Search::Shown> Search::show(const FilterQuantity& quantity, const FoundMaterial& material) const
{
    if (quantity.derived != nullptr) {
        const auto value = derivedValue(quantity, material);
        const vxUnits::Unit unit = m_system.unitOf(quantity.derived->dimension);
        if (!value)
            return std::nullopt;
        const vxUnits::Unit stored = UnitSystem::si().unitOf(quantity.derived->dimension);
        return Shown{{vxUnits::convertNumber(*value, stored, unit)}, "", textOf(unit), "number"};
    }
    if (!material.values.has(quantity.id))
        return std::nullopt;
    const QuantityForm form = vxUnits::findQuantity(quantity.id)->form;
    if (form == QuantityForm::Word)
        return Shown{{}, material.values.word(quantity.id), "", "word"};
    if (form == QuantityForm::Switch)
        return Shown{{}, "on", "", "switch"};
    const bool isList = form == QuantityForm::NumberList;
    Shown shown{material.values.list(quantity.id), "", "", isList ? "list" : "number"};
    if (const auto number = material.values.number(quantity.id))
        shown.numbers = {*number};
    const auto creep = material.values.creepExponents();
    const auto stored = vxUnits::unitOfQuantity(quantity.id, UnitSystem::si(), creep);
    const auto unit = vxUnits::unitOfQuantity(quantity.id, m_system, creep);
    if (!stored || !unit)
        return shown;
    for (double& number : shown.numbers)
        number = vxUnits::convertNumber(number, *stored, *unit);
    shown.unit = textOf(*unit);
    return shown;
}

std::string Search::heading(const FilterQuantity& quantity) const
{
    std::string name = quantity.name();
    if (!hasOneUnit(quantity))
        return name;
    const vxUnits::Unit unit = quantity.derived != nullptr ? m_system.unitOf(quantity.derived->dimension)
                                                           : *vxUnits::unitOfQuantity(quantity.id, m_system);
    return name + " [" + textOf(unit) + "] (" + m_system.text() + ")";
}

std::string Search::cell(const FilterQuantity& quantity, const FoundMaterial& material) const
{
    const auto shown = show(quantity, material);
    if (!shown)
        return {};
    const std::string text = shown->word.empty() ? vxMat::formatNumberList(shown->numbers) : printable(shown->word);
    return hasOneUnit(quantity) || shown->unit.empty() ? text : text + " " + shown->unit;
}

std::string Search::text() const
{
    const bool isLibrary = !m_found.empty() && !m_found.front().number;
    TextTable::Row head;
    if (!isLibrary)
        head.emplace_back("Number");
    head.emplace_back("Name");
    for (const FilterQuantity& quantity : m_filter.quantities())
        head.push_back(heading(quantity));
    TextTable table(head);
    for (const FoundMaterial& material : m_found) {
        TextTable::Row row;
        if (!isLibrary)
            row.push_back(std::to_string(*material.number));
        row.push_back(printable(material.label));
        for (const FilterQuantity& quantity : m_filter.quantities())
            row.push_back(cell(quantity, material));
        table.add(std::move(row));
    }
    return m_found.empty() ? std::string() : table.text();
}

Json::Value Search::json(const FilterQuantity& quantity, const FoundMaterial& material) const
{
    Json::Value json;
    json["id"] = quantity.derived == nullptr ? Json::Value(quantity.id) : Json::Value();
    json["derived"] = quantity.derived != nullptr ? Json::Value(quantity.derived->id) : Json::Value();
    json["name"] = quantity.name();
    json["value"] = Json::Value();
    const auto shown = show(quantity, material);
    if (!shown)
        return json;
    json["kind"] = shown->kind;
    json["unit"] = shown->unit;
    Json::Value list(Json::arrayValue);
    for (const double number : shown->numbers)
        list.append(toJsonNumber(number));
    const bool isList = std::string_view(shown->kind) == "list";
    if (!shown->word.empty() || (list.empty() && !isList))
        json["value"] = shown->word;
    else
        json["value"] = isList ? list : list[0];
    return json;
}

Json::Value Search::json() const
{
    Json::Value list(Json::arrayValue);
    for (const FoundMaterial& material : m_found) {
        Json::Value json;
        json["number"] = material.number ? Json::Value(*material.number) : Json::Value();
        json["name"] = material.label;
        json["values"] = Json::arrayValue;
        for (const FilterQuantity& quantity : m_filter.quantities())
            json["values"].append(this->json(quantity, material));
        list.append(std::move(json));
    }
    return list;
}

void addLibrary(Search& search)
{
    const MaterialNames names;
    for (const vxMat::eMaterialType type : names.types()) {
        const vxMat::MaterialBase& material = names.get(type);
        search.add(std::nullopt, material.name, material);
    }
}

} // namespace

Answer findMaterials(const std::string& source, const std::string& expression, Form form, const ChosenUnits& units)
{
    Answer answer;
    const bool isLibrary = source == librarySource;
    const MaterialFile file = isLibrary ? MaterialFile() : readMaterials(source);
    answer.messages = file.doubts;
    const ChosenUnits shown = units.orOfProject(file.unitSystem, source, answer.messages);
    Search search(expression, units.system(), shown.system());
    if (!search.note().empty())
        answer.messages.push_back(search.note());
    if (isLibrary)
        addLibrary(search);
    for (const FileMaterial& material : file.materials)
        search.add(material.number, material.label, *material.entry->material);
    answer.status = search.found().empty() ? Status::Findings : Status::Clean;
    answer.text = search.text();
    if (form == Form::Json) {
        Json::Value document;
        document["file"] = isLibrary ? Json::Value() : Json::Value(source);
        document["expression"] = expression;
        document["units"] = shown.system().text();
        document["materials"] = search.json();
        answer.text = toJsonText(document);
    }
    return answer;
}

} // namespace commandline
