#include "record/MeasurementMembers.h"
#include "vxConstitutive/Curve.h"
#include "vxConstitutive/data/TestReading.h"
#include "vxMaterial/json/JsonPath.h"
#include "vxMaterial/json/JsonTree.h"
#include "vxMaterial/json/NumberWords.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>

namespace vxConstitutive {

namespace {

using vxjson::JsonNode;

template <class Field>
inline constexpr bool isOptional = false;
template <class Value>
inline constexpr bool isOptional<std::optional<Value>> = true;

/// Reads values, and refuses wrong ones with their path.
class Reading
{
public:
    void read(JsonNode node, std::string& field)
    {
        demand(node.isText(), R"("%1" must be a text)");
        field = node.text();
    }
    void read(JsonNode node, bool& field)
    {
        demand(node.isBoolean(), R"("%1" must be true or false)");
        field = node.boolean();
    }
    void read(JsonNode node, std::int32_t& field)
    {
        using Limits = std::numeric_limits<std::int32_t>;
        const auto whole = node.whole();
        demand(whole && *whole >= Limits::min() && *whole <= Limits::max(),
               R"("%1" must be a whole number of 32 bits)");
        field = static_cast<std::int32_t>(*whole);
    }
    void read(JsonNode node, std::int64_t& version)
    {
        const auto whole = node.whole();
        demand(whole == members::formatVersion, R"("%1" must be 1; a later program wrote another version)");
        version = *whole;
    }
    void read(JsonNode node, std::size_t& field)
    {
        const auto whole = node.whole();
        demand(whole && *whole >= 0, R"("%1" must be a whole number from 0)");
        field = static_cast<std::size_t>(*whole);
    }
    void read(JsonNode node, double& field)
    {
        const auto word = vxjson::numberOfWord(node.text());
        demand(node.isNumber() || word, R"("%1" must be a number)");
        field = word.value_or(node.number());
    }
    void read(JsonNode node, members::Finite<double> field) { readFinite(node, field.number); }
    void read(JsonNode node, Mode& field)
    {
        const auto mode = findMode(node.text());
        demand(mode.has_value(), R"("%1" must be the name of a mode)");
        field = *mode;
    }
    void read(JsonNode node, Measure& field)
    {
        const auto& all = measureRecords();
        const auto found = std::find_if(all.begin(), all.end(),
                                        [&](const MeasureRecord& record) { return node.text() == record.key; });
        demand(found != all.end(), R"("%1" must be the name of a measured quantity)");
        field = found->measure;
    }
    void read(JsonNode node, std::vector<double>& field)
    {
        readArray(node, field, [this](JsonNode element, double& number) { readFinite(element, number); });
    }
    template <class Record>
    void read(JsonNode node, std::vector<Record>& field)
    {
        readArray(node, field, [this](JsonNode element, Record& record) { read(element, record); });
    }
    template <class Value>
    void read(JsonNode node, std::optional<Value>& field)
    {
        read(node, field.emplace());
    }
    template <class Value>
    void read(JsonNode node, Value& field)
    {
        if constexpr (std::is_enum_v<Value>)
            readWord(node, field);
        else
            readObject(node, [&](const auto& visit) {
                members::visitMembers(field, visit, static_cast<const Value*>(nullptr));
            });
    }
    void read(JsonNode node, TestData& test)
    {
        readObject(node, [&](const auto& visit) { members::visitMembers(test, visit, &test); });
        demand(test.ordinates.size() == test.abscissas.size(), members::lengthsDiffer);
    }

    /// Reads an object whose fields `visitFields(visit)` visits.
    template <class VisitFields>
    void readObject(JsonNode node, const VisitFields& visitFields)
    {
        demand(node.isObject(), R"("%1" must be an object)");
        m_path.enter();
        // The version is the first member, so a text of a later version is refused because of that.
        visitFields([&](const char* name, auto&& field) { readMember(node, name, field); });
        refuseUnknownMembers(node, visitFields);
        m_path.leave();
    }

private:
    void demand(bool isRight, const char* reason) const
    {
        if (!isRight)
            throw MeasurementsError({0, 0, reason, m_path.toText()});
    }

    void readFinite(JsonNode node, double& field)
    {
        demand(node.isNumber(), R"("%1" must be a finite number)");
        field = node.number();
    }

    template <class Value>
    void readWord(JsonNode node, Value& field)
    {
        bool isKnown = false;
        for (const auto& word : members::wordsOf(field)) {
            if (node.text() != word.word)
                continue;
            field = word.value;
            isKnown = true;
        }
        demand(isKnown, R"("%1" is not a word that this member can have)");
    }

    template <class VisitFields>
    void refuseUnknownMembers(JsonNode node, const VisitFields& visitFields)
    {
        for (std::size_t index = 0; index < node.size(); ++index) {
            const std::string_view name = node.memberName(index);
            bool isKnown = false;
            visitFields([&](std::string_view known, auto&&) { isKnown = isKnown || known == name; });
            m_path.setName(name);
            demand(isKnown, R"("%1" is not a known member)");
        }
    }

    template <class Field>
    void readMember(JsonNode object, const char* name, Field& field)
    {
        m_path.setName(name);
        if (has(object, name))
            return read(object[name], field);
        demand(isOptional<Field>, R"("%1" is missing)");
    }

    static bool has(JsonNode object, std::string_view name)
    {
        for (std::size_t index = 0; index < object.size(); ++index)
            if (object.memberName(index) == name)
                return true;
        return false;
    }

    template <class Element, class ReadElement>
    void readArray(JsonNode node, std::vector<Element>& field, const ReadElement& readElement)
    {
        demand(node.isArray(), R"("%1" must be an array)");
        const std::size_t size = node.size();
        field.reserve(size);
        m_path.enter();
        for (std::size_t index = 0; index < size; ++index) {
            m_path.setIndex(index);
            readElement(node.element(index), field.emplace_back());
        }
        m_path.leave();
    }

    vxjson::JsonPath m_path;
};

} // namespace

Measurements readMeasurements(std::string_view text)
{
    if (text.empty())
        return {};
    const auto tree = vxjson::JsonTree::read(text, vxjson::JsonDialect::Strict);
    if (tree.error())
        throw MeasurementsError(*tree.error());
    if (!tree.root().isObject())
        throw MeasurementsError({0, 0, "the text is not an object", {}});
    Measurements measurements;
    std::int64_t version = 0;
    Reading().readObject(tree.root(), [&](const auto& visit) { members::visitDocument(version, measurements, visit); });
    return measurements;
}

} // namespace vxConstitutive
