#pragma once

#include "vxUnits/DerivedValues.h"
#include "vxUnits/MaterialValues.h"
#include "vxUnits/Reading.h"
#include "vxUnits/Result.h"
#include "vxUnits/UnitsExport.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Finds materials by their labels and values:
///
///     E > 100 GPa and rho < 3 g/cm3
///     steel or has Creep
///     not (Yield type = Mises) nu 0.25..0.35
///
/// A condition is a comparison of a quantity with a value, `has` with a quantity, or a word, which must occur in the label.
/// `and`, `or`, `not` and parentheses combine conditions; `not` binds before `and`, and `and` before `or`. Conditions
/// beside each other must all be satisfied. Upper and lower case are equal. A label with blanks or signs is put in quotes.
///
/// A quantity is a name, key or id of the catalogue, the name or symbol of a derived quantity, or a name in the language of
/// the user. A symbol that is typed
/// exactly wins, so that "g" and "G" differ. The comparisons are `<`, `<=`, `>`, `>=`, `=` and `!=`; "E 100..200 GPa" is a
/// range with both ends. A list matches if one of its numbers does. A material without the quantity matches no comparison.
namespace vxUnits {

/// Numbers are equal if they differ by at most this share of the typed number. A smaller number is less than the typed
/// number.
inline constexpr double filterTolerance = 1e-6;

/// A quantity that a filter names: one of the catalogue or a derived one.
struct FilterQuantity
{
    std::int32_t id = 0;                      ///< vxMat::PropertyId; 0 for a derived quantity
    const DerivedQuantity* derived = nullptr; ///< null for a quantity of the catalogue

    /// Returns the name that users see.
    VXUNITS_EXPORT const char* name() const;
    friend bool operator==(const FilterQuantity& one, const FilterQuantity& other)
    {
        return one.id == other.id && one.derived == other.derived;
    }
};

/// A name by which filters take a quantity besides those that they know.
struct FilterName
{
    FilterQuantity quantity;
    std::string text; ///< UTF-8
};

/// The names of quantities in the language of a user, which messages, suggestions and completions then use. English names,
/// keys and symbols win against them.
using FilterNames = std::vector<FilterName>;

/// A material as filters look at it. Made once and matched many times; to be made again if the material changes. A filter
/// computes the derived values when it first needs them, so that a subject must not be used in several threads at once.
class FilterSubject
{
public:
    /// A subject without values.
    VXUNITS_EXPORT explicit FilterSubject(std::string_view label);
    VXUNITS_EXPORT FilterSubject(std::string_view label, MaterialValues values);

    /// Gives the subject its values, for callers that read them only for filters that look at values.
    VXUNITS_EXPORT void setValues(MaterialValues values);
    bool hasValues() const { return m_values.has_value(); }

    /// Returns the label without differences of case.
    const std::string& foldedLabel() const { return m_label; }
    /// Returns the number of a quantity of the catalogue; NaN if there is none.
    VXUNITS_EXPORT double number(std::int32_t id) const;
    VXUNITS_EXPORT const std::vector<double>& list(std::int32_t id) const;
    VXUNITS_EXPORT std::string word(std::int32_t id) const;
    VXUNITS_EXPORT bool has(std::int32_t id) const;
    /// Returns a derived value in SI; NaN if the material has none.
    VXUNITS_EXPORT double derived(const DerivedQuantity& quantity) const;

private:
    std::string m_label;
    std::optional<MaterialValues> m_values;
    mutable std::optional<std::vector<double>> m_derived; ///< in the order of derivedQuantities()
};

struct FilterReading;

/// A filter expression that was read. Its numbers are converted once. Copies are independent.
class Filter
{
public:
    /// A filter that matches everything.
    Filter() = default;

    VXUNITS_EXPORT bool matches(const FilterSubject& subject) const;

    /// Returns whether the filter has no condition, so that it matches everything.
    bool isEmpty() const { return m_steps.empty(); }
    /// Returns whether matches() needs the values of a subject.
    bool looksAtValues() const { return !m_quantities.empty(); }
    /// Returns the quantities that the expression names, in its order.
    const std::vector<FilterQuantity>& quantities() const { return m_quantities; }

private:
    friend class FilterParser;

    /// A condition. A number satisfies it if it is in a closed interval.
    struct Test
    {
        enum class Kind
        {
            Label,
            Number,
            List,
            Word,
            Derived,
            Has,
            HasDerived
        };
        Kind kind = Kind::Label;
        FilterQuantity quantity;
        double lowest = 0.0;
        double highest = 0.0;
        bool isInside = true; ///< false if the number must be outside the interval, or the word another one
        std::string text;     ///< folded: part of the label, or the word
    };

    /// A step of the evaluation, which has one result so far. A jump leaves out what cannot change it.
    struct Step
    {
        enum class Kind
        {
            Test,
            Not,
            JumpIfFalse,
            JumpIfTrue
        };
        Kind kind = Kind::Test;
        std::size_t index = 0; ///< of the test, or of the next step
    };

    static bool holds(const Test& test, const FilterSubject& subject);
    static bool accepts(const Test& test, double number);

    std::vector<Test> m_tests;
    std::vector<Step> m_steps;
    std::vector<FilterQuantity> m_quantities;
};

/// A filter, or the reason why a text is not one.
struct FilterReading
{
    std::optional<Filter> filter;
    Failure failure;          ///< if there is no filter; its suggestion replaces the part of the text that is at fault
    std::size_t position = 0; ///< of this part, in bytes
    std::size_t length = 0;   ///< of this part, in bytes; 0 if something is missing at the position

    /// Says that words of a filter that look like a condition are searched in labels, and suggests an expression. Absent if
    /// no words do. A symbol of one letter beside a plain number is taken to be a label: "A 36".
    std::optional<Message> remark;

    explicit operator bool() const { return filter.has_value(); }
};

/// The most parentheses and `not` inside each other.
inline constexpr std::size_t deepestFilter = 100;

/// Reads a filter expression; an empty text is a filter that matches everything. Numbers without a unit are in the system
/// of the context, SI if it has none. Takes linear time in the length of the text. Safe to call from several threads.
VXUNITS_EXPORT FilterReading readFilter(std::string_view text, const ReadingContext& context = {},
                                        const FilterNames& names = {});

/// Returns the quantity that filters take a name, key, symbol or id to be: "Young's modulus", "E", "D1", "5". Absent if there
/// is none.
VXUNITS_EXPORT std::optional<FilterQuantity> findQuantityNamed(std::string_view name);

/// Returns the English names or symbols of the quantities of the catalogue that a text probably means, at most three; empty if
/// none is near.
VXUNITS_EXPORT std::vector<std::string> nearestQuantityNames(std::string_view typed);

} // namespace vxUnits
