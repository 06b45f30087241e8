#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace vxDecks {

/// Returns a text without the mark of UTF-8 at its beginning, which some editors write.
std::string_view withoutMark(std::string_view text);

/// The lines of a deck, of which one is in memory at a time. Lines end with a line feed, a carriage return, or both. A mark of
/// UTF-8 before the first line is skipped.
class DeckLines
{
public:
    /// The longest line that is kept; a longer one is cut.
    static constexpr std::size_t longest = 65536;

    /// The stream must live as long as the object.
    explicit DeckLines(std::istream& file) : m_file(*file.rdbuf()) {}

    /// Reads the next line, and returns whether there is one.
    /// \throws DeckError if the line has a zero byte
    bool next();

    /// Returns the line without its end; valid until the next call of next().
    std::string_view line() const { return m_number == 1 ? withoutMark(m_line) : m_line; }
    /// Returns the number of the line, from 1.
    std::size_t number() const { return m_number; }
    /// Returns whether the line was longer than `longest`.
    bool isCut() const { return m_isCut; }

private:
    void keep(char character);

    std::streambuf& m_file;
    std::string m_line;
    std::size_t m_number = 0;
    bool m_isCut = false;
};

/// Returns a text without blanks and tabs at its ends.
std::string_view trimmed(std::string_view text);

/// Returns the number that is the whole text, as solvers read it: "1.5", "-.5e3", "2.1D+5", with blanks around it. A decimal
/// point in any locale. Absent if the text is no decimal number, or a double cannot hold it; a number below the range of a
/// double is 0.
std::optional<double> readDeckNumber(std::string_view text);

/// Returns the number that is the whole text, as solvers in Fortran read it: as readDeckNumber(), and an exponent with a sign
/// needs no letter, "7.85-9".
std::optional<double> readFortranNumber(std::string_view text);

/// Returns a text of a deck in UTF-8: bytes that are not UTF-8 are read as Latin-1, control characters become blanks.
std::string toUtf8(std::string_view text);

} // namespace vxDecks
