#include "values/RangeBar.h"

#include "vxInspector/units/UnitTexts.h"
#include "vxUnits/Writing.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace vxInspector {

namespace {

using vxUnits::KnownRange;
using vxUnits::Quantity;

QString tr(const char* text)
{
    return QCoreApplication::translate("vxInspector::RangeBar", text);
}

/// The ranges of a quantity by the states of matter.
struct StateRange
{
    RangeBar::Matter matter;
    const std::optional<KnownRange> Quantity::*range;
    const char* title; ///< "%1" and "%2" are the ends
};

constexpr StateRange states[] = {
    {RangeBar::Matter::Solids, &Quantity::solids, QT_TRANSLATE_NOOP("vxInspector::RangeBar", "Solids: %1 to %2")},
    {RangeBar::Matter::Liquids, &Quantity::liquids, QT_TRANSLATE_NOOP("vxInspector::RangeBar", "Liquids: %1 to %2")},
    {RangeBar::Matter::Gases, &Quantity::gases, QT_TRANSLATE_NOOP("vxInspector::RangeBar", "Gases: %1 to %2")},
};

/// The range over all states of matter, and the map from it to the interval from 0 to 1. A range that begins with 0 is
/// logarithmic from its smallest positive end on, because steel and rubber would have the same place otherwise; 0 is at the
/// left end too.
class Scale
{
public:
    explicit Scale(const Quantity& quantity)
    {
        for (const StateRange& state : states)
            if (const auto& range = quantity.*state.range) {
                m_lowest = std::min(m_lowest, range->lowest);
                m_highest = std::max(m_highest, range->highest);
                noteEnd(range->lowest);
                noteEnd(range->highest);
            }
        // Shares and strains from 0 on remain linear.
        constexpr double decades = 1e6;
        if (m_lowest == 0.0 && m_first == m_highest && !quantity.dimension.isNone())
            m_first = m_highest / decades;
    }

    bool isKnown() const { return m_lowest <= m_highest; }
    bool isLogarithmic() const { return m_lowest >= 0.0 && m_highest / m_first > 100.0; }
    bool beginsWithZero() const { return m_lowest == 0.0; }

    double position(double value) const
    {
        const double begin = isLogarithmic() ? m_first : m_lowest;
        if (value <= begin || m_highest == begin)
            return 0.0;
        const double share = isLogarithmic() ? std::log(value / begin) / std::log(m_highest / begin)
                                             : (value - begin) / (m_highest - begin);
        return std::clamp(share, 0.0, 1.0);
    }

    RangeBar::Mark mark(double value) const
    {
        using Side = RangeBar::Side;
        return {position(value), value < m_lowest ? Side::Below : value > m_highest ? Side::Above : Side::Inside};
    }

private:
    void noteEnd(double end)
    {
        if (end > 0.0)
            m_first = std::min(m_first, end);
    }

    double m_first = std::numeric_limits<double>::infinity(); ///< the smallest positive end
    double m_lowest = std::numeric_limits<double>::infinity();
    double m_highest = -std::numeric_limits<double>::infinity();
};

std::vector<RangeBar::Mark> marksOf(const std::vector<double>& values, const Scale& scale)
{
    const auto isFinite = [](double value) { return std::isfinite(value); };
    if (values.empty() || !std::all_of(values.begin(), values.end(), isFinite))
        return {};
    const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
    std::vector<RangeBar::Mark> marks{scale.mark(*lowest)};
    if (*highest != *lowest)
        marks.push_back(scale.mark(*highest));
    return marks;
}

QString endText(const Quantity& quantity, double value, const char* material, const vxUnits::UnitSystem& system)
{
    constexpr int digits = 3;
    const auto written = vxUnits::writeQuantity(quantity.id, value, system, std::nullopt, digits);
    if (!written)
        return {};
    const QString number = QString::fromStdString(written->number);
    const QString unit = QString::fromStdString(written->unit);
    return QStringLiteral("%1 (%2)").arg(unit.isEmpty() ? number : number + QLatin1Char(' ') + unit,
                                         translatedWord(material));
}

} // namespace

std::optional<RangeBar> rangeBar(const Quantity& quantity, const std::vector<double>& values)
{
    const Scale scale(quantity);
    RangeBar bar;
    if (scale.isKnown())
        bar.marks = marksOf(values, scale);
    if (bar.marks.empty())
        return std::nullopt;
    bar.isLogarithmic = scale.isLogarithmic();
    for (const StateRange& state : states)
        if (const auto& range = quantity.*state.range)
            bar.spans.push_back({state.matter, scale.position(range->lowest), scale.position(range->highest)});
    return bar;
}

QString rangeText(const RangeBar& bar)
{
    const auto has = [&bar](RangeBar::Side side) {
        return std::any_of(bar.marks.begin(), bar.marks.end(), [side](const auto& mark) { return mark.side == side; });
    };
    if (has(RangeBar::Side::Below))
        return has(RangeBar::Side::Above) ? tr("beyond the known range") : tr("below the known range");
    return has(RangeBar::Side::Above) ? tr("above the known range") : tr("within the known range");
}

QString rangeToolTip(const Quantity& quantity, const vxUnits::UnitSystem& system)
{
    QStringList lines;
    for (const StateRange& state : states)
        if (const auto& range = quantity.*state.range)
            lines << tr(state.title)
                         .arg(endText(quantity, range->lowest, range->lowestIs, system),
                              endText(quantity, range->highest, range->highestIs, system));
    if (const Scale scale(quantity); scale.isLogarithmic())
        lines << (scale.beginsWithZero() ? tr("The scale is logarithmic; 0 is at its left end.")
                                         : tr("The scale is logarithmic."));
    if (!lines.isEmpty())
        lines << tr("Source: %1").arg(QString::fromUtf8(quantity.rangeSource));
    return lines.join(QLatin1Char('\n'));
}

} // namespace vxInspector
