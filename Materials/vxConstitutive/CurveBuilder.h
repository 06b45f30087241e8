#pragma once

#include "vxConstitutive/Curve.h"
#include "vxConstitutive/Model.h"

#include <initializer_list>
#include <limits>
#include <optional>

namespace vxConstitutive {

/// Collects the columns, rows and findings of a curve. Counts the abscissas that the model has no value for, and
/// reports them once.
class CurveBuilder
{
public:
    /// Notes a finding if the mode is not one of the model's; refused() then tells so.
    CurveBuilder(const Model& model, const CurveRequest& request);

    bool refused() const { return m_refused; }
    const CurveRequest& request() const { return m_request; }

    /// Adds a column, with the unit of the quantity unless another one is given.
    void add(Quantity quantity, const char* unit = nullptr, std::optional<double> parameter = std::nullopt,
             Relative relative = Relative::No);

    /// Appends a value to each column. Values beyond the number of columns are left out, so that a caller can pass
    /// what only some details show. A response that is not finite is counted.
    void row(std::initializer_list<double> values);
    void row(const std::vector<double>& values);

    /// Returns `inside`. If it is false, appends a row of NaN with the abscissa, and counts it.
    bool checkDomain(double abscissa, bool inside);

    /// Appends a row of NaN with an abscissa at which the model says on purpose that there is no value.
    void gap(double abscissa);

    /// The largest abscissa of a gap.
    double largestGap() const { return m_largestGap; }

    const std::vector<double>& values(std::size_t column) const { return m_curve.columns[column].values; }

    /// The smallest and largest abscissa inside the domain; absent if there is none.
    std::optional<Range> abscissaRange() const { return m_range; }

    void note(Finding finding) { m_curve.findings.push_back(std::move(finding)); }
    void setUnstable(std::vector<Range> unstable) { m_curve.unstable = std::move(unstable); }

    /// The curve, with what was counted among its findings.
    Curve take();

private:
    struct Count
    {
        std::size_t number = 0;
        double first = 0.0;
        void add(double abscissa);
    };

    void appendEmpty(double abscissa);
    void append(const double* values, std::size_t count);

    const CurveRequest& m_request;
    Curve m_curve;
    Count m_outside;
    Count m_notFinite;
    std::optional<Range> m_range;
    double m_largestGap = -std::numeric_limits<double>::infinity();
    bool m_refused = false;
};

} // namespace vxConstitutive
