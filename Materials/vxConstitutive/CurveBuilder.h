#pragma once

#include "vxConstitutive/Curve.h"
#include "vxConstitutive/Model.h"

#include <initializer_list>
#include <limits>
#include <optional>

namespace vxConstitutive {

/// Collects the columns, rows and findings of a curve. Counts the abscissas at which the model has no value and reports them
/// once.
class CurveBuilder
{
public:
    /// Adds a finding if the model does not have the mode; refused() is true then.
    CurveBuilder(const Model& model, const CurveRequest& request);

    /// The largest magnitude of a value. Differences and other units of larger ones would overflow.
    static constexpr double largest = 1e300;

    bool refused() const { return m_refused; }
    const CurveRequest& request() const { return m_request; }

    /// Adds a column. Its unit is that of the quantity unless one is given.
    void add(Quantity quantity, const char* unit = nullptr, std::optional<double> parameter = std::nullopt,
             Relative relative = Relative::No);

    /// Appends a value to each column. Ignores values beyond the last column, so that a caller can pass the values of
    /// Detail::Full in each case. Values beyond `largest` become NaN, and their rows are counted.
    void row(std::initializer_list<double> values);
    void row(const std::vector<double>& values);

    /// Returns `inside`. If it is false, appends a row of NaN after the abscissa and counts it.
    bool checkDomain(double abscissa, bool inside);

    /// Appends a row of NaN after the abscissa, which is not counted as an error.
    void gap(double abscissa);

    /// Appends a row of NaN after an abscissa without a state of equilibrium, and counts it.
    void noEquilibrium(double abscissa);

    /// Returns the largest abscissa of a gap.
    double largestGap() const { return m_largestGap; }

    const std::vector<double>& values(std::size_t column) const { return m_curve.columns[column].values; }

    /// Returns the smallest and largest abscissa with finite values; nothing if there is none.
    std::optional<Range> abscissaRange() const { return m_range; }

    void note(Finding finding) { m_curve.findings.push_back(std::move(finding)); }
    void setUnstable(std::vector<Range> unstable) { m_curve.unstable = std::move(unstable); }

    /// Returns the curve. Adds findings about the counted abscissas.
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
    Count m_noEquilibrium;
    std::optional<Range> m_range;
    double m_largestGap = -std::numeric_limits<double>::infinity();
    bool m_refused = false;
};

} // namespace vxConstitutive
