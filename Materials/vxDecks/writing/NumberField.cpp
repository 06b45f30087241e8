#include "writing/NumberField.h"

#include "vxMaterial/model/NumberText.h"

#include <iomanip>
#include <locale>
#include <sstream>

namespace vxDecks {

namespace {

/// Removes the sign and the zeros in front of an exponent that have no meaning: "1e-09" becomes "1e-9", "2e+11" "2e11".
std::string withShortExponent(const std::string& text)
{
    const std::size_t e = text.find('e');
    if (e == std::string::npos)
        return text;
    const bool negative = text[e + 1] == '-';
    const std::size_t digits = text.find_first_not_of("+-0", e + 1);
    return text.substr(0, e + 1) + (negative ? "-" : "") + text.substr(digits);
}

std::string rounded(double number, int digits)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::setprecision(digits) << number;
    return withShortExponent(text.str());
}

} // namespace

std::string writeWithin(double number, std::size_t longest)
{
    std::string text = withShortExponent(vxMat::formatNumber(number));
    for (int digits = 16; text.size() > longest && digits > 0; --digits)
        text = rounded(number, digits);
    return text;
}

} // namespace vxDecks
