#include "ExactNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vxtest {

namespace {

class Evaluator
{
public:
    explicit Evaluator(std::string_view text) : m_text(text) {}

    Rational evaluate()
    {
        Rational value = sum();
        EXPECT_EQ(m_at, m_text.size()) << m_text;
        return value;
    }

private:
    char peek() const { return m_at < m_text.size() ? m_text[m_at] : '\0'; }
    bool take(char c)
    {
        if (peek() != c)
            return false;
        ++m_at;
        return true;
    }

    // Parentheses are as deep as the tables of these tests have them.
    // NOLINTBEGIN(misc-no-recursion)
    Rational sum()
    {
        Rational value = product();
        for (;;) {
            if (take('+'))
                value += product();
            else if (take('-'))
                value -= product();
            else
                return value;
        }
    }

    Rational product()
    {
        Rational value = factor();
        for (;;) {
            if (take('*'))
                value *= factor();
            else if (take('/'))
                value /= factor();
            else
                return value;
        }
    }

    Rational factor()
    {
        if (take('-'))
            return -factor();
        if (!take('('))
            return number();
        Rational value = sum();
        EXPECT_TRUE(take(')')) << m_text;
        return value;
    }

    // NOLINTEND(misc-no-recursion)

    Rational number()
    {
        boost::multiprecision::cpp_int digits = 0;
        int exponent = 0;
        bool behindPoint = false;
        const std::size_t begin = m_at;
        for (; (peek() >= '0' && peek() <= '9') || peek() == '.'; ++m_at) {
            if (peek() == '.') {
                behindPoint = true;
                continue;
            }
            digits = digits * 10 + (peek() - '0');
            exponent -= behindPoint ? 1 : 0;
        }
        EXPECT_GT(m_at, begin) << m_text;
        if (take('e'))
            exponent += wholeNumber();
        const boost::multiprecision::cpp_int power =
            boost::multiprecision::pow(boost::multiprecision::cpp_int(10), static_cast<unsigned>(std::abs(exponent)));
        return exponent < 0 ? Rational(digits, power) : Rational(digits * power);
    }

    int wholeNumber()
    {
        const bool negative = take('-');
        int value = 0;
        for (; peek() >= '0' && peek() <= '9'; ++m_at)
            value = value * 10 + (peek() - '0');
        return negative ? -value : value;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
};

} // namespace

Rational evaluate(std::string_view expression)
{
    return Evaluator(expression).evaluate();
}

bool isNearest(double number, const Rational& exact)
{
    if (!std::isfinite(number))
        return false;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const Rational distance = abs(Rational(number) - exact);
    return distance <= abs(Rational(std::nextafter(number, infinity)) - exact) &&
           distance <= abs(Rational(std::nextafter(number, -infinity)) - exact);
}

double relativeError(double number, const Rational& exact)
{
    if (exact == 0)
        return number == 0.0 ? 0.0 : 1.0;
    return static_cast<double>(Rational(abs(Rational(number) - exact) / abs(exact)));
}

} // namespace vxtest
