#include "fit/FinishedFits.h"

#include "measured/KeptMeasurements.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace vxInspector {

namespace {

bool isOfTests(const FinishedFit& fit, const std::vector<const vxConstitutive::TestData*>& tests)
{
    return std::equal(fit.order.tests.begin(), fit.order.tests.end(), tests.begin(), tests.end(),
                      [](const vxConstitutive::TestData& one, const auto* other) { return isSame(one, *other); });
}

std::size_t pointsOf(const FinishedFit& fit)
{
    std::size_t points = 0;
    for (const vxConstitutive::TestData& test : fit.order.tests)
        points += test.abscissas.size();
    return points;
}

} // namespace

void FinishedFits::keep(FinishedFit fit)
{
    constexpr std::size_t mostFits = 20;          // as many materials are drawn
    constexpr std::size_t mostPoints = 4'000'000; // of 16 bytes
    std::vector<const vxConstitutive::TestData*> tests;
    for (const vxConstitutive::TestData& test : fit.order.tests)
        tests.push_back(&test);
    m_fits.erase(std::remove_if(m_fits.begin(), m_fits.end(),
                                [&tests](const FinishedFit& one) { return isOfTests(one, tests); }),
                 m_fits.end());
    m_fits.insert(m_fits.begin(), std::move(fit));
    std::size_t points = 0;
    std::size_t count = 0;
    while (count < std::min(m_fits.size(), mostFits) && (points += pointsOf(m_fits[count])) <= mostPoints)
        ++count;
    m_fits.resize(std::max<std::size_t>(count, 1));
}

const FinishedFit* FinishedFits::of(const std::vector<const vxConstitutive::TestData*>& tests) const
{
    const auto found =
        std::find_if(m_fits.begin(), m_fits.end(), [&tests](const FinishedFit& fit) { return isOfTests(fit, tests); });
    return found != m_fits.end() ? &*found : nullptr;
}

} // namespace vxInspector
