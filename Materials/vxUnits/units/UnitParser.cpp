#include "units/UnitParser.h"

#include "units/FoldedText.h"
#include "units/Reader.h"
#include "units/ScaleArithmetic.h"
#include "units/Texts.h"
#include "units/UnitDatabase.h"
#include "vxMaterial/model/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace vxUnits {

namespace {

// Far more than a user types. A hostile text is refused before it takes time.
constexpr std::size_t mostTerms = 40;
constexpr std::size_t mostGroups = 20;
constexpr double largestPower = 50.0;
constexpr std::size_t longestSpelling = 40;

/// An open parenthesis: its first term, and the sign of the powers of its terms.
struct Group
{
    std::size_t firstTerm;
    double sign;
};

/// Returns a power without the error of sums such as 1 - 0.667: nine decimals, which are more than a user types.
double withoutError(double power)
{
    constexpr double decimals = 1e9;
    return std::round(power * decimals) / decimals;
}

/// Returns the terms with those of the same symbol combined, without those whose power is 0.
std::vector<Term> drawnTogether(const std::vector<Term>& terms)
{
    std::vector<Term> together;
    for (const Term& term : terms) {
        const auto same = std::find_if(together.begin(), together.end(),
                                       [&](const Term& one) { return one.atom.symbol == term.atom.symbol; });
        if (same == together.end())
            together.push_back(term);
        else
            same->power += term.power;
    }
    for (Term& term : together)
        term.power = withoutError(term.power);
    together.erase(std::remove_if(together.begin(), together.end(), [](const Term& one) { return one.power == 0.0; }),
                   together.end());
    return together;
}

class Parser
{
public:
    Parser(std::string_view text, std::string_view whole) : m_reader(text), m_whole(whole) {}

    ParsedUnit parse()
    {
        m_unit.valid = readAll() && checkPowers(drawnTogether(m_unit.terms));
        return std::move(m_unit);
    }

private:
    bool refuse(Text text, const std::string& detail = {}, FaultCode code = FaultCode::MalformedUnit)
    {
        m_unit.failure = makeFailure(code, text, {excerpt(m_whole), detail});
        return false;
    }

    bool readAll()
    {
        if (m_reader.atEnd() || m_reader.rest() == "-" || m_reader.rest() == "1")
            return true;
        if (m_reader.peek() == '*') // "5*MPa"
            m_reader.skip();
        startGroup();
        if (!readOperand())
            return false;
        while (m_reader.skipBlanks(), !m_reader.atEnd()) {
            if (!readOperatorAndOperand())
                return false;
        }
        return m_groups.empty() || refuse(Text::ParenthesisNotClosed);
    }

    /// A group may begin with "1/", "/" or "per".
    void startGroup()
    {
        m_reader.skipBlanks();
        const std::size_t begin = m_reader.position();
        if (m_reader.peek() == '1' && !isDigit(m_reader.peek(1)))
            m_reader.skip();
        m_reader.skipBlanks();
        if (!startDenominator())
            m_reader.goTo(begin);
    }

    /// Takes "/" or "per" if it comes next. Returns whether it does.
    bool startDenominator()
    {
        const bool slash = m_reader.peek() == '/';
        if (!slash && !startsWithPer())
            return false;
        m_reader.skip(slash ? 1 : 3);
        m_sign = -1.0;
        m_behindSlash = true;
        return true;
    }

    bool readOperatorAndOperand()
    {
        if (m_reader.peek() == ')')
            return closeGroup();
        m_sign = 1.0;
        readOperator();
        return readOperand();
    }

    /// Reads the sign between two units. No sign means a product.
    void readOperator()
    {
        const char sign = m_reader.peek();
        if (!startDenominator() && (sign == '*' || sign == '.' || (sign == '-' && isLetter(m_reader.peek(1)))))
            m_reader.skip();
    }

    bool startsWithPer() const
    {
        return m_reader.rest().substr(0, 3) == "per" && (m_reader.peek(3) == ' ' || m_reader.peek(3) == '(');
    }

    bool readOperand()
    {
        for (m_reader.skipBlanks(); m_reader.peek() == '('; m_reader.skipBlanks()) {
            if (!openGroup())
                return false;
        }
        if (isLetter(m_reader.peek()) || m_reader.peek() == '_')
            return readTerm();
        if (isDigit(m_reader.peek()))
            return refuse(Text::NumberInUnit, excerpt(m_reader.takeWhile(isNumeric)));
        if (m_reader.peek() == ')' && m_groups.empty())
            return refuse(Text::ParenthesisNotOpened);
        if (!m_reader.atEnd() && std::string_view("/*.-^()").find(m_reader.peek()) == std::string_view::npos)
            return refuse(Text::IllegalCharacter, nameOf(static_cast<unsigned char>(m_reader.peek())),
                          FaultCode::IllegalCharacter);
        return refuse(Text::UnitMissing, excerpt(m_reader.from(0)));
    }

    static bool isNumeric(char c) { return isDigit(c) || c == '.' || c == ','; }

    bool openGroup()
    {
        if (m_groups.size() == mostGroups)
            return refuse(Text::UnitTooDeep);
        m_reader.skip();
        m_groups.push_back({m_unit.terms.size(), m_sign});
        m_sign = 1.0;
        startGroup();
        return true;
    }

    bool closeGroup()
    {
        if (m_groups.empty())
            return refuse(Text::ParenthesisNotOpened);
        m_reader.skip();
        const Group group = m_groups.back();
        m_groups.pop_back();
        double power = 1.0;
        if (!readPower(power))
            return false;
        for (std::size_t i = group.firstTerm; i < m_unit.terms.size(); ++i)
            m_unit.terms[i].power *= power * group.sign;
        return checkPowers(m_unit.terms);
    }

    bool checkPowers(const std::vector<Term>& terms)
    {
        const auto tooLarge = [](const Term& term) { return std::abs(term.power) > largestPower; };
        return std::none_of(terms.begin(), terms.end(), tooLarge) || refuse(Text::PowerTooLarge);
    }

    bool readTerm()
    {
        const Place place = takeSpelling();
        Term term;
        term.behindSlash = m_behindSlash;
        if (!resolve(place, term.atom) || !readPower(term.power))
            return false;
        term.power *= m_sign;
        if (m_unit.terms.size() == mostTerms)
            return refuse(Text::UnitTooLong);
        m_unit.terms.push_back(std::move(term));
        return true;
    }

    /// Reads letters and underscores, also the 2 of "mmH2O" and the letter of "deg C".
    Place takeSpelling()
    {
        const std::size_t begin = m_reader.position();
        const std::string_view letters = m_reader.takeWhile([](char c) { return isLetter(c) || c == '_'; });
        if (letters.back() == 'H' && m_reader.rest().substr(0, 2) == "2O" && !isLetter(m_reader.peek(2)))
            m_reader.skip(2);
        m_spelling = m_reader.from(begin);
        const std::size_t length = m_reader.position() - begin;
        return {begin, length + takeScaleLetter()};
    }

    /// Returns the length of " C" in "deg C" if it comes next, and makes "degC" the spelling; otherwise 0.
    std::size_t takeScaleLetter()
    {
        if (m_spelling != "deg" && m_spelling != "degree" && m_spelling != "degrees")
            return 0;
        std::size_t blanks = 0;
        while (m_reader.peek(blanks) == ' ')
            ++blanks;
        const char letter = m_reader.peek(blanks);
        const char next = m_reader.peek(blanks + 1);
        const bool scale = letter == 'C' || letter == 'F' || letter == 'K' || letter == 'R';
        if (blanks == 0 || !scale || isLetter(next) || next == '_')
            return 0;
        m_spelling = std::string("deg") + letter;
        m_reader.skip(blanks + 1);
        return blanks + 1;
    }

    bool resolve(const Place& place, Atom& atom)
    {
        m_unit.unresolved = place;
        m_unit.failure = makeFailure(FaultCode::UnknownUnit, Text::UnknownUnit, {excerpt(m_spelling)});
        if (m_spelling.size() > longestSpelling)
            return false;
        if (auto found = findBuiltIn(m_spelling)) {
            atom = std::move(*found);
            m_unit.unresolved = {};
            return true;
        }
        if (const AmbiguousSpelling* const ambiguous = findAmbiguous(m_spelling)) {
            m_unit.failure =
                makeFailure(FaultCode::AmbiguousUnit, Text::AmbiguousUnit, {m_spelling, ambiguous->choices});
            return false;
        }
        return resolveByDatabase(atom);
    }

    bool resolveByDatabase(Atom& atom)
    {
        constexpr std::size_t shortestName = 3;
        if (m_spelling.size() < shortestName)
            return false;
        const auto& builtIn = commonSpellings();
        const bool inOtherCase = std::any_of(builtIn.begin(), builtIn.end(), [this](const std::string& one) {
            return vxMat::equalIgnoringAsciiCase(one, m_spelling);
        });
        if (inOtherCase) // the names of the database ignore case, and some of its units have fewer digits
            return false;
        auto found = findInDatabase(m_spelling);
        if (const auto* const fault = std::get_if<DatabaseFault>(&found)) {
            m_unit.failure =
                makeFailure(FaultCode::DatabaseUnreadable, Text::DatabaseUnreadable, {m_spelling, fault->reason});
            return false;
        }
        auto& unit = std::get<std::optional<Atom>>(found);
        if (!unit)
            return false;
        atom = std::move(*unit);
        m_unit.unresolved = {};
        return true;
    }

    /// Reads "^-4.5", "^(-4.5)", "2" or "-2". Without a power, the power is 1.
    bool readPower(double& power)
    {
        const std::size_t before = m_reader.position();
        m_reader.skipBlanks();
        if (m_reader.skipPowerSign())
            return readPowerBehindSign(power);
        m_reader.goTo(before);
        const bool sign = m_reader.peek() == '-' || m_reader.peek() == '+';
        if (isDigit(m_reader.peek()) || (sign && isDigit(m_reader.peek(1))))
            return readPowerNumber(power, false);
        return true;
    }

    bool readPowerBehindSign(double& power)
    {
        m_reader.skipBlanks();
        const bool parenthesis = m_reader.peek() == '(';
        if (parenthesis)
            m_reader.skip();
        if (!readPowerNumber(power, true))
            return false;
        if (!parenthesis)
            return true;
        if (m_reader.peek() != ')')
            return refuse(Text::ParenthesisNotClosed);
        m_reader.skip();
        return true;
    }

    bool readPowerNumber(double& power, bool decimals)
    {
        const bool negative = m_reader.peek() == '-';
        if (negative || m_reader.peek() == '+')
            m_reader.skip();
        const std::size_t begin = m_reader.position();
        m_reader.takeWhile(isDigit);
        if (decimals && m_reader.peek() == '.' && isDigit(m_reader.peek(1))) {
            m_reader.skip();
            m_reader.takeWhile(isDigit);
        }
        const std::string_view digits = m_reader.from(begin);
        if (digits.empty())
            return refuse(Text::PowerMissing);
        const char next = m_reader.peek(1);
        if ((m_reader.peek() == 'e' || m_reader.peek() == 'E') && (isDigit(next) || next == '-' || next == '+'))
            return refuse(Text::PowerWithExponent);
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), power);
        power = negative ? -power : power;
        return (read.ec == std::errc() && std::abs(power) <= largestPower) || refuse(Text::PowerTooLarge);
    }

    Reader m_reader;
    std::string_view m_whole;
    ParsedUnit m_unit;
    std::vector<Group> m_groups;
    std::string m_spelling;
    double m_sign = 1.0; ///< of the powers of the next term
    bool m_behindSlash = false;
};

/// Returns a blank, or a "*" between "deg" and "C", because "deg C" is a temperature.
const char* separator(const std::string& before, const std::string& symbol)
{
    constexpr std::string_view degree = "deg";
    const bool ends =
        before.size() >= degree.size() && before.compare(before.size() - degree.size(), degree.size(), degree) == 0;
    if (ends && (symbol == "C" || symbol == "F" || symbol == "K"))
        return "*";
    return before.empty() ? "" : " ";
}

/// Returns the product of the terms whose powers have this sign, "m K^2", and their number.
std::pair<std::string, std::size_t> product(const std::vector<Term>& terms, bool negative)
{
    std::string text;
    std::size_t count = 0;
    for (const Term& term : terms) {
        if ((term.power < 0.0) != negative)
            continue;
        ++count;
        text += separator(text, term.atom.symbol) + term.atom.symbol;
        if (std::abs(term.power) != 1.0)
            text += "^" + vxMat::formatNumber(std::abs(term.power));
    }
    return {text, count};
}

std::string textOf(const std::vector<Term>& terms)
{
    auto [above, countAbove] = product(terms, false);
    const auto [below, countBelow] = product(terms, true);
    if (countAbove == 0)
        above = "1";
    if (countBelow == 0)
        return above;
    return above + (countBelow > 1 ? "/(" + below + ")" : "/" + below);
}

} // namespace

ParsedUnit parseUnit(std::string_view folded, std::string_view whole)
{
    return Parser(folded, whole).parse();
}

Unit UnitBuilder::build(const std::vector<Term>& terms)
{
    const std::vector<Term> together = drawnTogether(terms);
    Unit unit;
    unit.m_text = textOf(together);
    unit.m_dimension = dimensionOf(together);
    for (const Term& term : together) {
        unit.m_scale = unit.m_scale * power(term.atom.scale, term.power);
        if (*unit.m_note.id == '\0')
            unit.m_note = term.atom.note;
    }
    if (together.size() == 1 && together.front().power == 1.0)
        unit.m_zero = together.front().atom.zero;
    return unit;
}

Dimension dimensionOf(const std::vector<Term>& terms)
{
    Dimension dimension;
    for (const Term& term : terms)
        dimension = dimension * term.atom.dimension.power(term.power);
    return dimension;
}

} // namespace vxUnits
