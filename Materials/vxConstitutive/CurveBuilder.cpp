#include "CurveBuilder.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vxConstitutive {

CurveBuilder::CurveBuilder(const Model& model, const CurveRequest& request) : m_request(request)
{
    m_curve.mode = request.mode;
    const std::vector<Mode> modes = model.modes();
    m_refused = std::find(modes.begin(), modes.end(), request.mode) == modes.end();
    if (m_refused)
        note(makeFinding(FindingId::ModeNotOfModel,
                         {std::string(modeRecord(request.mode).name), std::string(modelRecord(model.kind()).name)}));
}

void CurveBuilder::add(Quantity quantity, const char* unit, std::optional<double> parameter, Relative relative)
{
    Column column;
    column.quantity = quantity;
    column.unit = unit != nullptr ? unit : quantityRecord(quantity).unit;
    column.parameter = parameter;
    column.relative = relative;
    column.values.reserve(m_request.abscissas.size());
    m_curve.columns.push_back(std::move(column));
}

void CurveBuilder::row(std::initializer_list<double> values)
{
    append(values.begin(), values.size());
}

void CurveBuilder::row(const std::vector<double>& values)
{
    append(values.data(), values.size());
}

void CurveBuilder::append(const double* values, std::size_t count)
{
    const double abscissa = values[0];
    bool finite = true;
    for (std::size_t i = 0; i < m_curve.columns.size() && i < count; ++i) {
        const bool inRange = std::fabs(values[i]) <= largest;
        m_curve.columns[i].values.push_back(inRange || i == 0 ? values[i] : std::numeric_limits<double>::quiet_NaN());
        finite = finite && inRange;
    }
    if (!finite) {
        m_notFinite.add(abscissa);
        return;
    }
    m_range =
        m_range ? Range{std::min(m_range->from, abscissa), std::max(m_range->to, abscissa)} : Range{abscissa, abscissa};
}

bool CurveBuilder::checkDomain(double abscissa, bool inside)
{
    if (inside)
        return true;
    appendEmpty(abscissa);
    m_outside.add(abscissa);
    return false;
}

void CurveBuilder::gap(double abscissa)
{
    appendEmpty(abscissa);
    m_largestGap = std::max(m_largestGap, abscissa);
}

void CurveBuilder::noEquilibrium(double abscissa)
{
    appendEmpty(abscissa);
    m_noEquilibrium.add(abscissa);
}

void CurveBuilder::appendEmpty(double abscissa)
{
    for (Column& column : m_curve.columns)
        column.values.push_back(std::numeric_limits<double>::quiet_NaN());
    m_curve.columns.front().values.back() = abscissa;
}

void CurveBuilder::Count::add(double abscissa)
{
    if (number++ == 0)
        first = abscissa;
}

Curve CurveBuilder::take()
{
    const ModeRecord& mode = modeRecord(m_request.mode);
    const auto report = [&](FindingId id, const Count& count) {
        if (count.number > 0)
            note(makeFinding(id, {std::string(quantityRecord(mode.abscissa).name), count.first,
                                  static_cast<double>(count.number), std::string(mode.name)}));
    };
    report(FindingId::AbscissaOutside, m_outside);
    report(FindingId::ResultNotFinite, m_notFinite);
    report(FindingId::NoEquilibrium, m_noEquilibrium);
    return std::move(m_curve);
}

} // namespace vxConstitutive
