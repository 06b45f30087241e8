#pragma once

#include "vxUnits/Message.h"
#include "vxUnits/UnitsExport.h"

#include <string>
#include <utility>
#include <variant>

namespace vxUnits {

/// The kind of fault of a text.
enum class FaultCode
{
    Empty,               ///< no text
    BadEncoding,         ///< not UTF-8
    NumberMissing,       ///< a unit without a number: "GPa"
    NotFinite,           ///< nan, inf
    Hexadecimal,         ///< 0x10
    MalformedNumber,     ///< "1e GPa", "2.1D11", "1.2.3"
    DecimalComma,        ///< "2,1 GPa"
    ThousandsSeparator,  ///< "1 000", "1'000"
    SeveralNumbers,      ///< "5 5 MPa"
    OutOfRange,          ///< a double cannot hold the number
    IllegalCharacter,    ///< a character that occurs in no number and no unit
    MalformedUnit,       ///< "W/(m K", "m^"
    UnknownUnit,         ///< "GPas"
    AmbiguousUnit,       ///< "ton", "gr"
    WrongDimension,      ///< a mass for a pressure
    UnitMissing,         ///< one number of a list has no unit, others have one
    TemperatureScale,    ///< "20 degC" for a difference of temperatures
    BelowAbsoluteZero,   ///< "-300 degC"
    TakesNoNumber,       ///< the value of the quantity is a word or a switch, or no quantity has this id
    UnitNotKnown,        ///< the unit of the creep factor without the exponents that it depends on
    DatabaseUnreadable,  ///< the unit is not built in, and the database of UDUNITS cannot be read
    MalformedUnitSystem, ///< the text of a unit system
    MalformedFilter,     ///< a condition, value, quotation mark or parenthesis of a filter is missing or out of place
    UnknownQuantity,     ///< a filter compares something that is not a quantity
    UnknownWord,         ///< a filter compares a quantity with a word that it does not take
};

/// The reason of a failure, and what the user probably meant.
struct Failure
{
    FaultCode code = FaultCode::Empty;
    Message message;
    std::string suggestion; ///< a text that is accepted in place of the typed one; empty if there is none

    /// Returns the message, followed by `Did you mean "..."?` if there is a suggestion: in English, or translated.
    VXUNITS_EXPORT std::string text(const Translator& translator = {}) const;
};

/// A value, or the reason why there is none. Test it before using the value:
///
///     const auto modulus = readQuantity(PropertyId::YoungsModulus, "210 GPa");
///     if (!modulus)
///         return show(modulus.failure().text());
///     store(modulus->value); // 2.1e11
template <class T>
class [[nodiscard]] Result
{
public:
    Result(T value) : m_outcome(std::in_place_index<0>, std::move(value)) {}
    Result(Failure failure) : m_outcome(std::in_place_index<1>, std::move(failure)) {}

    bool hasValue() const { return m_outcome.index() == 0; }
    explicit operator bool() const { return hasValue(); }

    /// Returns the value. Throws std::bad_variant_access if there is none.
    const T& operator*() const& { return std::get<0>(m_outcome); }
    T&& operator*() && { return std::get<0>(std::move(m_outcome)); }
    const T* operator->() const { return &std::get<0>(m_outcome); }

    /// Returns the reason. Throws std::bad_variant_access if there is a value.
    const Failure& failure() const { return std::get<1>(m_outcome); }

private:
    std::variant<T, Failure> m_outcome;
};

} // namespace vxUnits
