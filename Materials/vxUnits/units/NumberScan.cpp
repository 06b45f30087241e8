#include "units/NumberScan.h"

#include "units/FoldedText.h"
#include "units/Reader.h"
#include "units/ScaleArithmetic.h"
#include "units/Texts.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace vxUnits {

namespace {

constexpr int largestExponent = 1000000; // far beyond what any mantissa that fits into memory makes up for

std::string without(std::string_view text, std::string_view characters)
{
    std::string kept;
    std::copy_if(text.begin(), text.end(), std::back_inserter(kept),
                 [&](char c) { return characters.find(c) == std::string_view::npos; });
    return kept;
}

/// The number of an exponent with its sign, cut to what matters.
int readExponent(std::string_view text)
{
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    int exponent = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), exponent);
    if (read.ec == std::errc::result_out_of_range)
        return text.front() == '-' ? -largestExponent : largestExponent;
    return std::clamp(exponent, -largestExponent, largestExponent);
}

/// Reads one number. Each step returns whether it succeeds; otherwise m_failure is the reason.
class Scanner
{
public:
    Scanner(std::string_view text, std::string_view typed) : m_text(text), m_typed(typed), m_reader(text) {}

    Result<ScannedNumber> scan()
    {
        if (m_text.empty())
            return makeFailure(FaultCode::Empty, Text::Empty);
        if (readSign() && readDigits() && readExponentByLetter() && readPowerOfTen() && checkWhatFollows()) {
            m_reader.skipBlanks();
            m_number.rest = m_reader.rest();
            return std::move(m_number);
        }
        return std::move(m_failure);
    }

private:
    bool refuse(FaultCode code, Text text, std::string suggestion = {})
    {
        m_failure = makeFailure(code, text, {excerpt(m_typed)}, std::move(suggestion));
        return false;
    }

    /// The text with everything up to the reader replaced by `number`.
    std::string corrected(const std::string& number) const { return number + std::string(m_reader.rest()); }

    bool readSign()
    {
        if (m_reader.peek() == '-' || m_reader.peek() == '+') {
            m_negative = m_reader.peek() == '-';
            m_reader.skip();
        }
        const bool begins = isDigit(m_reader.peek()) || (m_reader.peek() == '.' && isDigit(m_reader.peek(1)));
        return begins || refuseWithoutDigit();
    }

    bool refuseWithoutDigit()
    {
        const std::string word = vxMat::toUpperAscii(m_reader.rest().substr(0, 3));
        if (word == "NAN" || word == "INF")
            return refuse(FaultCode::NotFinite, Text::NotFinite);
        const bool sign = m_reader.position() > 0;
        m_reader.skipBlanks();
        if (sign && isDigit(m_reader.peek()))
            return refuse(FaultCode::NumberMissing, Text::NumberMissing, corrected(m_negative ? "-" : ""));
        return refuse(FaultCode::NumberMissing, Text::NumberMissing, sign ? "" : "1 " + std::string(m_text));
    }

    /// Reads the mantissa, together with the separators that must not be in it.
    bool readDigits()
    {
        if (m_reader.peek() == '0' && (m_reader.peek(1) == 'x' || m_reader.peek(1) == 'X'))
            return refuse(FaultCode::Hexadecimal, Text::Hexadecimal);
        const auto digits =
            m_reader.takeWhile([](char c) { return isDigit(c) || c == '.' || c == ',' || c == '\'' || c == '_'; });
        m_number.mantissa = (m_negative ? "-" : "") + std::string(digits);
        const auto points = std::count(digits.begin(), digits.end(), '.');
        if (digits.find_first_of(",'_") != std::string_view::npos || points > 1)
            return refuseSeparators(digits, points);
        return true;
    }

    bool refuseSeparators(std::string_view digits, std::ptrdiff_t points)
    {
        if (digits.back() == '\'')
            return refuseFoot(digits);
        if (digits.find_first_of("'_") != std::string_view::npos)
            return refuse(FaultCode::ThousandsSeparator, Text::ThousandsSeparator,
                          corrected(signedText(without(digits, "'_"))));
        const auto commas = std::count(digits.begin(), digits.end(), ',');
        if (commas == 0)
            return refusePoints(digits);
        if (digits.back() == ',')
            return refuse(FaultCode::SeveralNumbers, Text::SeveralNumbers);
        if (commas == 1)
            return refuseOneComma(digits, points);
        return inThousands(digits.substr(0, digits.find('.')), ',')
                   ? refuse(FaultCode::ThousandsSeparator, Text::ThousandsSeparator,
                            corrected(signedText(without(digits, ","))))
                   : refuse(FaultCode::SeveralNumbers, Text::SeveralNumbers);
    }

    /// Refuses "5'", which separates no groups of digits.
    bool refuseFoot(std::string_view digits)
    {
        m_failure = makeFailure(FaultCode::IllegalCharacter, Text::IllegalCharacter, {excerpt(m_typed), nameOf('\'')},
                                corrected(signedText(without(digits, "'")) + " ft"));
        return false;
    }

    bool refusePoints(std::string_view digits)
    {
        if (inThousands(digits, '.'))
            return refuse(FaultCode::ThousandsSeparator, Text::ThousandsSeparator,
                          corrected(signedText(without(digits, "."))));
        return refuse(FaultCode::MalformedNumber, Text::TwoPoints);
    }

    bool refuseOneComma(std::string_view digits, std::ptrdiff_t points)
    {
        const std::size_t comma = digits.find(',');
        const std::string decimal = decimalText(without(digits.substr(0, comma), "."), digits.substr(comma + 1));
        const std::string whole = without(digits, ",");
        if (points > 0 && comma < digits.find('.') && inThousands(digits.substr(0, digits.find('.')), ','))
            return refuse(FaultCode::ThousandsSeparator, Text::ThousandsSeparator, corrected(signedText(whole)));
        if (points > 0 && !inThousands(digits.substr(0, comma), '.'))
            return refuse(FaultCode::SeveralNumbers, Text::SeveralNumbers);
        if (points > 0 || !inThousands(digits, ',') || digits.front() == '0')
            return refuse(FaultCode::DecimalComma, Text::DecimalComma, corrected(decimal));
        m_failure = makeFailure(FaultCode::ThousandsSeparator, Text::CommaNotClear,
                                {excerpt(m_typed), signedText(whole), decimal}, corrected(signedText(whole)));
        return false;
    }

    std::string signedText(const std::string& digits) const { return (m_negative ? "-" : "") + digits; }
    std::string decimalText(const std::string& whole, std::string_view decimals) const
    {
        return signedText(whole + "." + std::string(decimals));
    }

    /// Returns whether `separator` splits the digits into a group of one to three and further groups of three.
    static bool inThousands(std::string_view digits, char separator)
    {
        std::size_t begin = 0;
        for (bool first = true;; first = false) {
            const std::size_t end = std::min(digits.find(separator, begin), digits.size());
            const std::size_t length = end - begin;
            const bool plain = digits.substr(begin, length).find_first_not_of("0123456789") == std::string_view::npos;
            if (!plain || (first ? length < 1 || length > 3 : length != 3))
                return false;
            if (end == digits.size())
                return !first;
            begin = end + 1;
        }
    }

    /// Reads "e11", but not "eV" and "erg", which are units.
    bool readExponentByLetter()
    {
        const char letter = m_reader.peek();
        if (letter == 'd' || letter == 'D')
            return refuseLetterD();
        if ((letter == '+' || letter == '-') && isDigit(m_reader.peek(1)))
            return refuseSignWithoutLetter();
        if ((letter != 'e' && letter != 'E') || isLetter(m_reader.peek(1)) || m_reader.peek(1) == '_')
            return true;
        m_reader.skip();
        return readExponentDigits();
    }

    bool readExponentDigits()
    {
        const std::size_t begin = m_reader.position();
        skipSign();
        const std::string_view sign = m_reader.from(begin);
        if (m_reader.takeWhile(isDigit).empty())
            return refuseWithoutExponent(sign);
        if (m_reader.peek() == '.' && isDigit(m_reader.peek(1)))
            return refuse(FaultCode::MalformedNumber, Text::ExponentNotWhole);
        m_number.exponent = readExponent(m_reader.from(begin));
        m_exponent = true;
        return true;
    }

    void skipSign()
    {
        if (m_reader.peek() == '+' || m_reader.peek() == '-')
            m_reader.skip();
    }

    /// Refuses "1e GPa", and "1e 5", whose digits are apart.
    bool refuseWithoutExponent(std::string_view sign)
    {
        m_reader.skipBlanks();
        return isDigit(m_reader.peek()) ? refuseApart(sign)
                                        : refuse(FaultCode::MalformedNumber, Text::ExponentWithoutDigits);
    }

    /// Refuses a number with a blank in its exponent. The reader is before the digits of the exponent.
    bool refuseApart(std::string_view sign)
    {
        return refuse(FaultCode::MalformedNumber, Text::ExponentApart,
                      corrected(m_number.mantissa + "e" + std::string(sign)));
    }

    /// Refuses "2.1D11", as some solvers write it. Without digits after it, the letter is the unit of days.
    bool refuseLetterD()
    {
        const char next = m_reader.peek(1);
        const bool digits = isDigit(next) || ((next == '+' || next == '-') && isDigit(m_reader.peek(2)));
        if (!digits)
            return true;
        m_reader.skip();
        return refuse(FaultCode::MalformedNumber, Text::ExponentLetter, corrected(m_number.mantissa + "e"));
    }

    /// Refuses "2.1+11", as some solvers write it, and "200-210", which is a range.
    bool refuseSignWithoutLetter()
    {
        std::size_t end = 1;
        while (isDigit(m_reader.peek(end)))
            ++end;
        const bool exponent = m_number.mantissa.find('.') != std::string::npos && m_reader.peek(end) != '.';
        if (!exponent)
            return refuse(FaultCode::SeveralNumbers, Text::SeveralNumbers);
        return refuse(FaultCode::MalformedNumber, Text::ExponentLetter, corrected(m_number.mantissa + "e"));
    }

    /// Reads "*10^11" after a mantissa, and "10^11" alone.
    bool readPowerOfTen()
    {
        const std::size_t before = m_reader.position();
        if (m_exponent)
            return true;
        if ((m_number.mantissa == "10" || m_number.mantissa == "-10") && m_reader.skipPowerSign())
            m_number.mantissa.resize(m_number.mantissa.size() - 1);
        else if (!skipTimesTen()) {
            m_reader.goTo(before);
            return true;
        }
        return readExponentDigits();
    }

    bool skipTimesTen()
    {
        m_reader.skipBlanks();
        const char sign = m_reader.peek();
        if (sign != '*' && sign != 'x' && sign != 'X')
            return false;
        m_reader.skip();
        m_reader.skipBlanks();
        if (m_reader.peek() != '1' || m_reader.peek(1) != '0')
            return false;
        m_reader.skip(2);
        return m_reader.skipPowerSign();
    }

    /// Refuses "1 e5", whose exponent is apart, and "200 - 210", a range.
    bool checkSignAndExponent()
    {
        const std::size_t begin = m_reader.position();
        const bool letter = !m_exponent && (m_reader.peek() == 'e' || m_reader.peek() == 'E');
        m_reader.skip(letter ? 1 : 0);
        m_reader.skipBlanks();
        const std::size_t signBegin = m_reader.position();
        skipSign();
        const std::string_view sign = m_reader.from(signBegin);
        m_reader.skipBlanks();
        if (isDigit(m_reader.peek()) && letter)
            return refuseApart(sign);
        if (isDigit(m_reader.peek()) && !sign.empty())
            return refuse(FaultCode::SeveralNumbers, Text::SeveralNumbers);
        m_reader.goTo(begin);
        return true;
    }

    /// Checks that no second number follows, except the 1 of "1/Pa".
    bool checkWhatFollows()
    {
        const std::size_t end = m_reader.position();
        m_reader.skipBlanks();
        if (!checkSignAndExponent())
            return false;
        if (!isDigit(m_reader.peek()) || isReciprocal()) {
            m_reader.goTo(end);
            return true;
        }
        if (m_reader.rest().substr(0, 3) == "10^") // "1.2 10^6"
            return refuse(FaultCode::SeveralNumbers, Text::SeveralNumbers, corrected(m_number.mantissa + "*"));
        const std::string joined = joinGroups();
        return joined.empty() ? refuse(FaultCode::SeveralNumbers, Text::SeveralNumbers)
                              : refuse(FaultCode::ThousandsSeparator, Text::ThousandsSeparator, corrected(joined));
    }

    bool isReciprocal() const
    {
        std::size_t next = 1;
        while (m_reader.peek(next) == ' ')
            ++next;
        return m_reader.peek() == '1' && m_reader.peek(next) == '/';
    }

    /// Reads "1 000 000" and returns its digits without blanks; empty if they are not groups of thousands.
    std::string joinGroups()
    {
        const std::string_view first = std::string_view(m_number.mantissa).substr(m_negative ? 1 : 0);
        if (m_exponent || first.size() > 3 || first.find('.') != std::string_view::npos)
            return {};
        std::string joined = m_number.mantissa;
        while (isDigit(m_reader.peek())) {
            const std::string_view group = m_reader.takeWhile(isDigit);
            if (group.size() != 3)
                return {};
            joined += group;
            if (m_reader.peek() == ' ' && isDigit(m_reader.peek(1)))
                m_reader.skip();
        }
        return joined;
    }

    std::string_view m_text;
    std::string_view m_typed; ///< for messages
    Reader m_reader;
    ScannedNumber m_number;
    Failure m_failure;
    bool m_negative = false;
    bool m_exponent = false; ///< whether an exponent was read
};

/// The significant digits, and the power of ten that multiplies them.
struct Digits
{
    std::uint64_t integer = 0;
    int exponent = 0;
};

Digits readDigits(std::string_view mantissa)
{
    constexpr int most = 19;
    Digits digits;
    int count = 0;
    bool behindPoint = false;
    for (const char c : mantissa) {
        if (c == '.')
            behindPoint = true;
        if (!isDigit(c))
            continue;
        const bool counts = count < most;
        if (counts) {
            digits.integer = digits.integer * 10 + static_cast<std::uint64_t>(c - '0');
            count += digits.integer > 0 ? 1 : 0;
        }
        digits.exponent += (behindPoint ? -1 : 0) + (counts ? 0 : 1);
    }
    return digits;
}

std::optional<double> finite(double number, bool zero)
{
    // A number that is too small is refused too, because a value must not become 0 without notice.
    return std::isfinite(number) && (number != 0.0 || zero) ? std::optional<double>(number) : std::nullopt;
}

std::optional<double> readDecimal(const std::string& mantissa, int exponent)
{
    const std::string text = mantissa + "e" + std::to_string(exponent);
    double number = 0.0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc() ? std::optional<double>(number) : std::nullopt;
}

} // namespace

std::optional<double> ScannedNumber::times(const Scale& scale) const
{
    if (isPowerOfTen(scale))
        return readDecimal(mantissa, exponent + scale.exponent);
    const Digits digits = readDigits(mantissa);
    const DoubleDouble product = vxUnits::times(toDoubleDouble(digits.integer),
                                                {scale.high, scale.low, scale.exponent + exponent + digits.exponent});
    const double number = mantissa.front() == '-' ? -product.high : product.high;
    return finite(number, digits.integer == 0);
}

DoubleDouble ScannedNumber::exact() const
{
    const Digits digits = readDigits(mantissa);
    const DoubleDouble number = timesPowerOfTen(toDoubleDouble(digits.integer), exponent + digits.exponent);
    return mantissa.front() == '-' ? -number : number;
}

Result<ScannedNumber> scanNumber(std::string_view text, std::string_view typed)
{
    return Scanner(text, typed.empty() ? text : typed).scan();
}

} // namespace vxUnits
