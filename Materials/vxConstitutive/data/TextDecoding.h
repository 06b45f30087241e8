#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vxConstitutive {

/// A text in UTF-8, stored or referred to.
struct DecodedText
{
    std::string storage; ///< the text, if the bytes were not UTF-8
    bool converted = false;
    std::string_view original;

    std::string_view text() const { return converted ? std::string_view(storage) : original; }
};

/// Returns the text of the bytes of a file: UTF-8 with or without a byte order mark, UTF-16 with one, otherwise Latin-1. The
/// result refers to `bytes`.
DecodedText decodeText(std::string_view bytes);

/// Returns the position of the first byte that text does not have; nothing if there is none.
std::optional<std::size_t> findBinary(std::string_view text);

/// The lines of a text, without their ends: "\n", "\r\n" or "\r".
class Lines
{
public:
    explicit Lines(std::string_view text) : m_rest(text) {}

    /// Stores the next line in `line` and returns true. Returns false at the end.
    bool next(std::string_view& line);

private:
    std::string_view m_rest;
};

/// Returns `text` without blanks and non-breaking blanks around it.
std::string_view trimmed(std::string_view text);

} // namespace vxConstitutive
