#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace vxUnits {

inline bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

inline bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Returns a text without the blanks around it.
inline std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

/// Reads a text from the left.
class Reader
{
public:
    explicit Reader(std::string_view text) : m_text(text) {}

    /// The character so far ahead; '\0' behind the end.
    char peek(std::size_t ahead = 0) const { return m_at + ahead < m_text.size() ? m_text[m_at + ahead] : '\0'; }
    bool atEnd() const { return m_at == m_text.size(); }
    void skip(std::size_t count = 1) { m_at = std::min(m_at + count, m_text.size()); }
    void skipBlanks()
    {
        while (peek() == ' ')
            skip();
    }

    std::size_t position() const { return m_at; }
    void goTo(std::size_t position) { m_at = position; }
    std::string_view from(std::size_t begin) const { return m_text.substr(begin, m_at - begin); }
    std::string_view rest() const { return m_text.substr(m_at); }

    /// Takes "^" or "**" if it comes next.
    bool skipPowerSign()
    {
        const bool stars = peek() == '*' && peek(1) == '*';
        if (!stars && peek() != '^')
            return false;
        skip(stars ? 2 : 1);
        return true;
    }

    /// Takes all characters that `belongs` accepts.
    template <class Predicate>
    std::string_view takeWhile(Predicate belongs)
    {
        const std::size_t begin = m_at;
        while (m_at < m_text.size() && belongs(m_text[m_at]))
            ++m_at;
        return from(begin);
    }

private:
    std::string_view m_text;
    std::size_t m_at = 0;
};

} // namespace vxUnits
