#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vxConstitutive {

/// A text in UTF-8, held or referred to.
struct DecodedText
{
    std::string storage; ///< if the bytes were not UTF-8
    bool converted = false;
    std::string_view original;

    std::string_view text() const { return converted ? std::string_view(storage) : original; }
};

/// The text of a file's bytes: UTF-8 with or without a byte order mark, UTF-16 with one, Latin-1 else. The result
/// refers to `bytes`.
DecodedText decodeText(std::string_view bytes);

/// Where the first byte is that no text has; absent if there is none.
std::optional<std::size_t> findBinary(std::string_view text);

/// The lines of a text, without their ends: "\n", "\r\n" or "\r".
class Lines
{
public:
    explicit Lines(std::string_view text) : m_rest(text) {}

    /// Writes the next line to `line` and returns true; returns false at the end.
    bool next(std::string_view& line);

private:
    std::string_view m_rest;
};

/// `text` without blanks around it, the non-breaking ones included.
std::string_view trimmed(std::string_view text);

} // namespace vxConstitutive
