#include "vxUnits/Filter.h"

#include "filter/FoldedLabel.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <algorithm>
#include <cmath>

namespace vxUnits {

const char* FilterQuantity::name() const
{
    return derived != nullptr ? derived->name : vxMat::findPropertyRecord(id)->name;
}

FilterSubject::FilterSubject(std::string_view label) : m_label(foldLabel(label)) {}

FilterSubject::FilterSubject(std::string_view label, MaterialValues values) : FilterSubject(label)
{
    setValues(std::move(values));
}

void FilterSubject::setValues(MaterialValues values)
{
    m_values = std::move(values);
    m_derived.reset();
}

double FilterSubject::number(std::int32_t id) const
{
    return m_values ? m_values->number(id).value_or(std::nan("")) : std::nan("");
}

const std::vector<double>& FilterSubject::list(std::int32_t id) const
{
    static const std::vector<double> none;
    return m_values ? m_values->list(id) : none;
}

std::string FilterSubject::word(std::int32_t id) const
{
    return m_values ? m_values->word(id) : std::string();
}

bool FilterSubject::has(std::int32_t id) const
{
    return m_values && m_values->has(id);
}

double FilterSubject::derived(const DerivedQuantity& quantity) const
{
    if (!m_values)
        return std::nan("");
    const std::vector<DerivedQuantity>& all = derivedQuantities();
    if (!m_derived) {
        m_derived.emplace(all.size(), std::nan(""));
        auto place = all.begin();
        for (const DerivedValue& value : derivedValues(*m_values)) {
            place = std::find_if(place, all.end(), [&value](const auto& one) { return one.id == value.id; });
            (*m_derived)[static_cast<std::size_t>(place - all.begin())] = value.value;
        }
    }
    return (*m_derived)[static_cast<std::size_t>(&quantity - all.data())];
}

bool Filter::matches(const FilterSubject& subject) const
{
    bool result = true;
    for (std::size_t i = 0; i < m_steps.size();) {
        const Step& step = m_steps[i++];
        switch (step.kind) {
        case Step::Kind::Test:
            result = holds(m_tests[step.index], subject);
            break;
        case Step::Kind::Not:
            result = !result;
            break;
        case Step::Kind::JumpIfFalse:
            i = result ? i : step.index;
            break;
        case Step::Kind::JumpIfTrue:
            i = result ? step.index : i;
            break;
        }
    }
    return result;
}

/// An absent number is NaN, which no comparison accepts.
bool Filter::accepts(const Test& test, double number)
{
    const bool isInside = number >= test.lowest && number <= test.highest;
    return isInside == test.isInside && !std::isnan(number);
}

bool Filter::holds(const Test& test, const FilterSubject& subject)
{
    const std::int32_t id = test.quantity.id;
    switch (test.kind) {
    case Test::Kind::Label:
        return subject.foldedLabel().find(test.text) != std::string::npos;
    case Test::Kind::Number:
        return accepts(test, subject.number(id));
    case Test::Kind::List: {
        const std::vector<double>& list = subject.list(id);
        return std::any_of(list.begin(), list.end(), [&test](double number) { return accepts(test, number); });
    }
    case Test::Kind::Word:
        return subject.has(id) && (foldName(subject.word(id)) == test.text) == test.isInside;
    case Test::Kind::Derived:
        return accepts(test, subject.derived(*test.quantity.derived));
    case Test::Kind::Has:
        return subject.has(id);
    case Test::Kind::HasDerived:
        return !std::isnan(subject.derived(*test.quantity.derived));
    }
    return false;
}

} // namespace vxUnits
