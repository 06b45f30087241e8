#pragma once

#include "Obj/ObjExport.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Obj {

class PropertyDS;

/// A typed value of a property set, which the user sees in the property panel. It belongs to the object of which it
/// is a member.
///
/// Once it is registered with its owner, setting it calls the owner's on_change_before and then, with the new value in
/// place, on_changed; also when the value is the one it had. Before that it is set in silence.
class OBJ_EXPORT Property
{
public:
    Property() = default;
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;
    virtual ~Property();

    /// The set that it is registered with; null before.
    PropertyDS* get_owner() const { return m_owner; }

    /// The value as text, in UTF-8 and with decimal points in every locale.
    virtual std::string to_text() const = 0;
    /// Sets the value from such a text. False when it cannot be read; the value is then as it was.
    [[nodiscard]] virtual bool from_text(std::string_view text) = 0;

protected:
    /// Sets `target` to `value` between the two notifications.
    template <typename Value>
    void change(Value& target, Value value)
    {
        notifyBefore();
        target = std::move(value);
        notifyAfter();
    }

private:
    friend class PropertyDS;
    void notifyBefore() const;
    void notifyAfter() const;

    PropertyDS* m_owner = nullptr;
};

/// A text in UTF-8.
class OBJ_EXPORT PropertyString : public Property
{
public:
    explicit PropertyString(std::string value = {}) : m_value(std::move(value)) {}

    const std::string& getValue() const { return m_value; }
    void setValue(std::string value) { change(m_value, std::move(value)); }

    std::string to_text() const override { return m_value; }
    bool from_text(std::string_view text) override;

private:
    std::string m_value;
};

/// A whole number, wide enough for every id.
class OBJ_EXPORT PropertyInteger : public Property
{
public:
    explicit PropertyInteger(std::int64_t value = 0) : m_value(value) {}

    std::int64_t getValue() const { return m_value; }
    void setValue(std::int64_t value) { change(m_value, value); }

    std::string to_text() const override;
    bool from_text(std::string_view text) override;

private:
    std::int64_t m_value;
};

/// Four components, which as a rule are between 0 and 1.
struct Color
{
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    float alpha = 0.0F;

    friend bool operator==(const Color& a, const Color& b)
    {
        return a.red == b.red && a.green == b.green && a.blue == b.blue && a.alpha == b.alpha;
    }
    friend bool operator!=(const Color& a, const Color& b) { return !(a == b); }
};

/// A colour; as text "0.5, 0.25, 1, 0", each component between 0 and 1.
class OBJ_EXPORT PropertyColor : public Property
{
public:
    explicit PropertyColor(Color value = {}) : m_value(value) {}

    const Color& getValue() const { return m_value; }
    void setValue(Color value) { change(m_value, value); }

    std::string to_text() const override;
    bool from_text(std::string_view text) override;

private:
    Color m_value;
};

/// Pairs of numbers, a curve point by point; as text "0, 1; 0.5, 2".
class OBJ_EXPORT PropertyCoupleArray : public Property
{
public:
    using Couples = std::vector<std::pair<double, double>>;

    const Couples& getValue() const { return m_value; }
    void setValue(Couples value) { change(m_value, std::move(value)); }

    std::string to_text() const override;
    bool from_text(std::string_view text) override;

private:
    Couples m_value;
};

} // namespace Obj
