#pragma once

#include "Obj/ObjExport.h"
#include "Obj/Removal.h"

#include <json/value.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Obj {

class PropertyDS;

/// A typed value of a property set, which the user sees in the property panel. It is a member of the object that owns
/// it.
///
/// Once a property is registered with its owner, each new value calls the owner's on_change_before and then, with the
/// new value set, on_changed, also if the value is unchanged. Before that there are no notifications.
class OBJ_EXPORT Property
{
public:
    Property() = default;
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;
    virtual ~Property();

    /// Returns the set that registered the property; null before registration.
    PropertyDS* getOwner() const { return m_owner; }

    /// Returns the value as text, in UTF-8 and with decimal points in every locale.
    virtual std::string toText() const = 0;
    /// Sets the value from such a text. Returns false, and leaves the value unchanged, if the text cannot be read.
    [[nodiscard]] virtual bool fromText(std::string_view text) = 0;

    /// Returns the value as project files store it. Here this is the text.
    virtual Json::Value toJson() const;
    /// Sets the value from such JSON. Returns false, and leaves the value unchanged, if the JSON cannot be read.
    [[nodiscard]] virtual bool fromJson(const Json::Value& json);

    /// Returns the bytes that the value takes outside the property itself, an estimate.
    virtual std::size_t get_memory_usage() const;

protected:
    /// Sets `target` to `value` between the two notifications.
    template <typename Value>
    void change(Value& target, Value value)
    {
        // A listener may remove the owner, whose operations are still running.
        const RemovalGuard guard;
        notifyBefore();
        target = std::move(value);
        notifyAfter();
    }
    void notifyBefore() const;
    void notifyAfter() const;

private:
    friend class PropertyDS;
    PropertyDS* m_owner = nullptr;
};

/// A text in UTF-8.
class OBJ_EXPORT PropertyString : public Property
{
public:
    explicit PropertyString(std::string value = {}) : m_value(std::move(value)) {}

    const std::string& getValue() const { return m_value; }
    void setValue(std::string value) { change(m_value, std::move(value)); }

    std::string toText() const override { return m_value; }
    bool fromText(std::string_view text) override;
    std::size_t get_memory_usage() const override;

private:
    std::string m_value;
};

/// A whole number, wide enough for every id. A number in JSON.
class OBJ_EXPORT PropertyInteger : public Property
{
public:
    explicit PropertyInteger(std::int64_t value = 0) : m_value(value) {}

    std::int64_t getValue() const { return m_value; }
    void setValue(std::int64_t value) { change(m_value, value); }

    std::string toText() const override;
    bool fromText(std::string_view text) override;
    Json::Value toJson() const override;
    bool fromJson(const Json::Value& json) override;

private:
    std::int64_t m_value;
};

/// A real number, always finite. As text the shortest that reads back to the same number; a number in JSON.
class OBJ_EXPORT PropertyReal : public Property
{
public:
    /// \throws std::invalid_argument if `value` is not finite; so does setValue
    explicit PropertyReal(double value = 0.0);

    double getValue() const { return m_value; }
    void setValue(double value);

    std::string toText() const override;
    /// Refuses the spellings of infinity and NaN.
    bool fromText(std::string_view text) override;
    Json::Value toJson() const override;
    bool fromJson(const Json::Value& json) override;

private:
    double m_value;
};

/// Yes or no; "true" or "false" as text, and a boolean in JSON.
class OBJ_EXPORT PropertyBool : public Property
{
public:
    explicit PropertyBool(bool value = false) : m_value(value) {}

    bool getValue() const { return m_value; }
    void setValue(bool value) { change(m_value, value); }

    std::string toText() const override;
    bool fromText(std::string_view text) override;
    Json::Value toJson() const override;
    bool fromJson(const Json::Value& json) override;

private:
    bool m_value;
};

/// One word of a fixed list; the word as text and in JSON, so that files outlive a list that gets further words.
class OBJ_EXPORT PropertyChoice : public Property
{
public:
    /// \throws std::invalid_argument if there are no words or one of them occurs twice
    /// \throws std::out_of_range if the list has no word at this index; so does setValue
    explicit PropertyChoice(std::vector<std::string> words, std::size_t index = 0);

    /// Returns the index of the word in the list.
    std::size_t getValue() const { return m_index; }
    void setValue(std::size_t index);
    const std::string& getWord() const { return m_words[m_index]; }
    /// Returns the list to choose from.
    const std::vector<std::string>& getWords() const { return m_words; }

    std::string toText() const override { return getWord(); }
    bool fromText(std::string_view text) override;
    std::size_t get_memory_usage() const override;

private:
    std::vector<std::string> m_words;
    std::size_t m_index;
};

/// Four components, usually between 0 and 1.
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

/// A colour. As text "0.5, 0.25, 1, 0", each component between 0 and 1; an array of the four numbers in JSON.
class OBJ_EXPORT PropertyColor : public Property
{
public:
    explicit PropertyColor(Color value = {}) : m_value(value) {}

    const Color& getValue() const { return m_value; }
    void setValue(Color value) { change(m_value, value); }

    std::string toText() const override;
    bool fromText(std::string_view text) override;
    Json::Value toJson() const override;
    bool fromJson(const Json::Value& json) override;

private:
    Color m_value;
};

/// Pairs of numbers, a curve point by point. As text "0, 1; 0.5, 2"; an array of arrays of two numbers in JSON.
class OBJ_EXPORT PropertyCoupleArray : public Property
{
public:
    using Couples = std::vector<std::pair<double, double>>;

    const Couples& getValue() const { return m_value; }
    void setValue(Couples value) { change(m_value, std::move(value)); }

    std::string toText() const override;
    bool fromText(std::string_view text) override;
    Json::Value toJson() const override;
    bool fromJson(const Json::Value& json) override;
    std::size_t get_memory_usage() const override;

private:
    Couples m_value;
};

/// Returns the bytes that a text takes outside the string itself.
OBJ_EXPORT std::size_t heapSizeOf(const std::string& text);

} // namespace Obj
