#include "curves/CurveTable.h"

#include "materials/Findings.h"
#include "program/Files.h"
#include "units/ShownUnits.h"
#include "vxMaterial/model/NumberText.h"

#include <json/value.h>

#include <cmath>
#include <utility>

namespace commandline {

namespace {

using vxConstitutive::Column;
using vxConstitutive::Quantity;
using vxUnits::UnitSystem;

/// Texts are passed on in parts of about this length.
constexpr std::size_t partLength = 1U << 16U;

/// Collects a text and passes it on in parts.
class PartedText
{
public:
    explicit PartedText(const TextSink& sink) : m_sink(sink) {}
    PartedText(const PartedText&) = delete;
    PartedText& operator=(const PartedText&) = delete;

    void add(const std::string& text)
    {
        m_text += text;
        if (m_text.size() >= partLength)
            flush();
    }

    void flush()
    {
        m_sink(m_text);
        m_text.clear();
    }

private:
    const TextSink& m_sink;
    std::string m_text;
};

/// Returns a cell, in quotation marks if it needs them.
std::string cellOf(const std::string& text)
{
    if (text.find_first_of(",\"\n\r") == std::string::npos)
        return text;
    std::string cell = "\"";
    for (const char c : text)
        cell += c == '"' ? std::string("\"\"") : std::string(1, c);
    return cell + "\"";
}

/// A column of the table.
struct Field
{
    std::string heading;
    const std::vector<double>* values;
    vxUnits::Converter convert;
};

Field fieldOf(const Column& column, const std::string& title, const UnitSystem& system)
{
    ShownUnit unit = showIn(system, column.unit);
    const std::string of = title.empty() ? "" : title + ": ";
    return {cellOf(of + nameOfColumn(column, system) + " [" + unit.text + "]"), &column.values, unit.convert};
}

std::vector<Field> fieldsOf(const std::vector<CurveSeries>& series, const UnitSystem& system)
{
    std::vector<Field> fields{fieldOf(series.front().curve.columns.front(), {}, system)};
    for (const CurveSeries& one : series) {
        const std::string title = series.size() > 1 ? one.title : std::string();
        for (std::size_t i = 1; i < one.curve.columns.size(); ++i)
            fields.push_back(fieldOf(one.curve.columns[i], title, system));
    }
    return fields;
}

std::string numberOf(double value)
{
    return std::isfinite(value) ? vxMat::formatNumber(value) : std::string();
}

const char* nameOf(vxConstitutive::Relative relative)
{
    static constexpr const char* names[] = {nullptr, "cohesion", "shear modulus"};
    return names[static_cast<std::size_t>(relative)];
}

Json::Value parameterOf(const Column& column, const UnitSystem& system)
{
    if (!column.parameter)
        return {};
    const ShownUnit unit = showIn(system, column.quantity == Quantity::CreepStrainRate ? "s" : "Pa");
    Json::Value json;
    json["value"] = unit.convert(*column.parameter);
    json["unit"] = unit.text;
    return json;
}

Json::Value headOf(const Column& column, const UnitSystem& system)
{
    Json::Value json;
    json["name"] = nameOfColumn(column, system);
    json["quantity"] = vxConstitutive::quantityRecord(column.quantity).name;
    json["unit"] = showIn(system, column.unit).text;
    const char* const relative = nameOf(column.relative);
    json["relative_to"] = relative != nullptr ? Json::Value(relative) : Json::Value();
    json["at"] = parameterOf(column, system);
    return json;
}

Json::Value rangesOf(const CurveSeries& series, const UnitSystem& system)
{
    const ShownUnit unit = showIn(system, series.curve.columns.front().unit);
    Json::Value json = Json::arrayValue;
    for (const vxConstitutive::Range& range : series.curve.unstable) {
        Json::Value item;
        item["from"] = toJsonNumber(unit.convert(range.from));
        item["to"] = toJsonNumber(unit.convert(range.to));
        json.append(std::move(item));
    }
    return json;
}

Json::Value constantsOf(const CurveSeries& series, const UnitSystem& system)
{
    Json::Value json = Json::arrayValue;
    for (const vxConstitutive::Constant& constant : series.constants) {
        const bool isKnown = vxUnits::Unit::parse(constant.unit).hasValue();
        const ShownUnit unit = isKnown ? showIn(system, constant.unit) : ShownUnit{constant.unit, {}};
        Json::Value item;
        item["name"] = constant.name;
        item["symbol"] = constant.symbol;
        item["unit"] = unit.text;
        item["value"] = toJsonNumber(unit.convert(constant.value));
        item["derived"] = constant.origin == vxConstitutive::Origin::Derived;
        json.append(std::move(item));
    }
    return json;
}

/// Returns a curve without the values of its columns.
Json::Value headOf(const CurveSeries& series, const UnitSystem& system)
{
    Json::Value json;
    json["source"] = series.source.empty() ? Json::Value() : Json::Value(series.source);
    json["number"] = series.number ? Json::Value(*series.number) : Json::Value();
    json["material"] = series.material;
    json["model"] = modelRecord(series.model).key;
    json["constants"] = constantsOf(series, system);
    json["unstable"] = rangesOf(series, system);
    json["findings"] = findingsToJson(series.findings, system);
    return json;
}

/// Returns the text of an object without its closing brace, for more members.
std::string openTextOf(const Json::Value& object)
{
    std::string text = toJsonText(object);
    text.erase(text.rfind('}'));
    return text.substr(0, text.find_last_not_of('\n') + 1);
}

void writeColumn(const Column& column, const UnitSystem& system, PartedText& text)
{
    const ShownUnit unit = showIn(system, column.unit);
    text.add(openTextOf(headOf(column, system)) + ",\n\"values\": [");
    for (std::size_t i = 0; i < column.values.size(); ++i) {
        const std::string number = numberOf(unit.convert(column.values[i]));
        text.add((i == 0 ? "" : ", ") + (number.empty() ? "null" : number));
    }
    text.add("]}");
}

} // namespace

std::string nameOfColumn(const Column& column, const UnitSystem& system)
{
    std::string name = vxConstitutive::columnName({column.quantity, {}, column.relative, std::nullopt, {}});
    if (!column.parameter)
        return name;
    const ShownUnit unit = showIn(system, column.quantity == Quantity::CreepStrainRate ? "s" : "Pa");
    return name + " at " + vxMat::formatNumber(unit.convert(*column.parameter)) + " " + unit.text;
}

void writeCsv(const std::vector<CurveSeries>& series, const UnitSystem& system, const TextSink& sink)
{
    PartedText text(sink);
    const std::vector<Field> fields = fieldsOf(series, system);
    for (std::size_t i = 0; i < fields.size(); ++i)
        text.add((i == 0 ? "" : ",") + fields[i].heading);
    text.add("\n");
    for (std::size_t row = 0; row < fields.front().values->size(); ++row) {
        for (std::size_t i = 0; i < fields.size(); ++i)
            text.add((i == 0 ? "" : ",") + numberOf(fields[i].convert((*fields[i].values)[row])));
        text.add("\n");
    }
    text.flush();
}

void writeCurvesJson(const std::vector<CurveSeries>& series, vxConstitutive::Mode mode, const UnitSystem& system,
                     const TextSink& sink)
{
    PartedText text(sink);
    Json::Value document;
    document["mode"] = vxConstitutive::modeRecord(mode).key;
    document["units"] = system.text();
    text.add(openTextOf(document) + ",\n\"curves\": [");
    for (std::size_t i = 0; i < series.size(); ++i) {
        text.add((i == 0 ? "" : ",\n") + openTextOf(headOf(series[i], system)) + ",\n\"columns\": [");
        const std::vector<Column>& columns = series[i].curve.columns;
        for (std::size_t j = 0; j < columns.size(); ++j) {
            text.add(j == 0 ? "" : ",\n");
            writeColumn(columns[j], system, text);
        }
        text.add("]}");
    }
    text.add("]}\n");
    text.flush();
}

} // namespace commandline
