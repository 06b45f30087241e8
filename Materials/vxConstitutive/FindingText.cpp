#include "vxConstitutive/Curve.h"
#include "vxConstitutive/Finding.h"
#include "vxConstitutive/Texts.h"
#include "vxMaterial/model/NumberText.h"
#include "vxUnits/Unit.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace vxConstitutive {

namespace {

using vxUnits::Unit;
using vxUnits::UnitSystem;

/// Returns whether a text has an argument in quotation marks.
bool isQuoted(std::string_view text, std::size_t argument)
{
    return text.find("\"%" + std::to_string(argument + 1) + '"') != std::string_view::npos;
}

bool isLetterOrDigit(char character)
{
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z');
}

/// Returns where a unit stands behind the place of an argument, as in "%2 Pa"; std::string::npos if it does not.
std::size_t findUnit(const std::string& text, std::size_t argument, std::string_view unit)
{
    const std::string place = "%" + std::to_string(argument + 1) + " ";
    const std::size_t at = text.find(place);
    if (at == std::string::npos || text.compare(at + place.size(), unit.size(), unit) != 0)
        return std::string::npos;
    const std::size_t end = at + place.size() + unit.size();
    const bool isWhole = end == text.size() || !isLetterOrDigit(text[end]);
    return isWhole ? at + place.size() : std::string::npos;
}

/// Writes numbers of SI in the units of a system.
class Shown
{
public:
    /// `kept` is a unit of SI.
    Shown(const UnitSystem& system, const char* kept)
        : m_kept(*Unit::parse(kept)), m_unit(system.unitOf(m_kept.dimension())), m_isSame(m_unit.factor() == 1.0)
    {}

    /// A frequency in Hz does not become one in 1/s.
    bool isSame() const { return m_isSame; }
    const std::string& unit() const { return m_isSame ? m_kept.text() : m_unit.text(); }

    std::string convert(const std::string& number) const
    {
        if (m_isSame)
            return number;
        return vxMat::formatGeneral(vxUnits::convertNumber(vxMat::readNumber(number), m_kept, m_unit));
    }

private:
    Unit m_kept;
    Unit m_unit;
    bool m_isSame;
};

bool namesAbscissa(FindingId id)
{
    return id == FindingId::AbscissaOutside || id == FindingId::ResultNotFinite || id == FindingId::NoEquilibrium;
}

/// Adds the unit to the abscissa of a finding that names the abscissa first. A pressure may be a multiple of an unknown
/// cohesion and gets no unit.
void addUnitOfAbscissa(const Finding& finding, const UnitSystem& system, std::vector<std::string>& arguments)
{
    if (!namesAbscissa(finding.id) || arguments.size() < 2)
        return;
    const std::vector<QuantityRecord>& quantities = quantityRecords();
    const auto found = std::find_if(quantities.begin(), quantities.end(),
                                    [&](const QuantityRecord& record) { return record.name == arguments[0]; });
    const bool hasUnit = found != quantities.end() && found->quantity != Quantity::Pressure && found->unit[0] != '\0' &&
                         std::strcmp(found->unit, "1") != 0;
    if (!hasUnit)
        return;
    const Shown shown(system, found->unit);
    arguments[1] = shown.convert(arguments[1]) + ' ' + shown.unit();
}

/// Writes the numbers of a text with the units that the text names behind them in a system.
void convertNumbers(const UnitSystem& system, std::string& text, std::vector<std::string>& arguments)
{
    for (const char* const kept : {"Pa", "1/Pa", "s"}) {
        const Shown shown(system, kept);
        for (std::size_t i = 0; !shown.isSame() && i < arguments.size(); ++i) {
            const std::size_t at = findUnit(text, i, kept);
            if (at == std::string::npos)
                continue;
            text.replace(at, std::strlen(kept), shown.unit());
            arguments[i] = shown.convert(arguments[i]);
        }
    }
}

} // namespace

std::string describe(const Finding& finding, const vxUnits::Translator& translator, const UnitSystem& system)
{
    const FindingRecord& record = findingRecord(finding.id);
    std::string text = translator ? translator("vxConstitutive::Finding", record.text) : record.text;
    std::vector<std::string> arguments = finding.arguments;
    addUnitOfAbscissa(finding, system, arguments);
    convertNumbers(system, text, arguments);
    for (std::size_t i = 0; translator && i < arguments.size(); ++i)
        if (!isQuoted(record.text, i))
            arguments[i] = translatedWord(arguments[i], translator);
    return vxUnits::Message{record.key, text.c_str(), std::move(arguments)}.text();
}

} // namespace vxConstitutive
