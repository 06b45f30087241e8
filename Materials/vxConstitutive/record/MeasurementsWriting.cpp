#include "record/MeasurementMembers.h"
#include "vxConstitutive/Curve.h"
#include "vxConstitutive/data/TestReading.h"
#include "vxMaterial/json/JsonWriter.h"
#include "vxMaterial/json/NumberWords.h"

#include <type_traits>

namespace vxConstitutive {

namespace {

using vxjson::JsonLayout;
using vxjson::JsonWriter;

/// Writes values in one line. Records are those types for which visitMembers exists.
class Writing
{
public:
    explicit Writing(JsonWriter& writer) : m_writer(writer) {}

    void write(const std::string& text) { m_writer.text(text); }
    void write(bool value) { m_writer.boolean(value); }
    void write(std::int32_t number) { m_writer.whole(std::int64_t{number}); }
    void write(std::int64_t number) { m_writer.whole(number); }
    void write(std::size_t number) { m_writer.whole(std::uint64_t{number}); }
    void write(Mode mode) { m_writer.text(modeRecord(mode).key); }
    void write(Measure measure) { m_writer.text(measureRecord(measure).key); }
    void write(members::Finite<const double> finite) { m_writer.number(finite.number); }
    void write(double number)
    {
        const std::string_view word = vxjson::wordOfNumber(number);
        if (word.empty())
            m_writer.number(number);
        else
            m_writer.text(word);
    }
    void write(const std::vector<double>& numbers)
    {
        writeArray(numbers, [this](double number) { m_writer.number(number); });
    }
    template <class Record>
    void write(const std::vector<Record>& records)
    {
        writeArray(records, [this](const Record& record) { write(record); });
    }
    template <class Value>
    void write(const Value& value)
    {
        if constexpr (std::is_enum_v<Value>)
            writeWord(value);
        else
            writeObject(
                [&](const auto& visit) { members::visitMembers(value, visit, static_cast<const Value*>(nullptr)); });
    }
    void write(const TestData& test)
    {
        writeObject([&](const auto& visit) { members::visitMembers(test, visit, &test); });
        if (test.ordinates.size() != test.abscissas.size())
            m_writer.fail(members::lengthsDiffer);
    }
    template <class WriteMembers>
    void writeObject(const WriteMembers& writeMembers)
    {
        m_writer.beginObject(JsonLayout::Line);
        writeMembers([this](const char* name, const auto& field) { this->writeMember(name, field); });
        m_writer.endObject();
    }

private:
    template <class Field>
    void writeMember(const char* name, const Field& field)
    {
        m_writer.name(name);
        write(field);
    }
    /// An absent field has no member.
    template <class Field>
    void writeMember(const char* name, const std::optional<Field>& field)
    {
        if (field)
            writeMember(name, *field);
    }
    template <class Value>
    void writeWord(Value value)
    {
        for (const auto& word : members::wordsOf(value))
            if (word.value == value)
                return m_writer.text(word.word);
    }
    template <class Element, class WriteElement>
    void writeArray(const std::vector<Element>& elements, const WriteElement& writeElement)
    {
        m_writer.beginArray(JsonLayout::Line);
        for (const Element& element : elements) {
            m_writer.element();
            writeElement(element);
        }
        m_writer.endArray();
    }

    JsonWriter& m_writer;
};

} // namespace

std::string writeMeasurements(const Measurements& measurements)
{
    if (measurements.empty())
        return {};
    JsonWriter writer;
    Writing(writer).writeObject(
        [&](const auto& visit) { members::visitDocument(members::formatVersion, measurements, visit); });
    if (writer.fault())
        throw MeasurementsError(*writer.fault());
    return writer.take();
}

} // namespace vxConstitutive
