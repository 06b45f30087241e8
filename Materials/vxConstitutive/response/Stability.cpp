#include "vxConstitutive/response/Stability.h"

#include "Spacing.h"

#include <algorithm>
#include <cmath>

namespace vxConstitutive {

namespace {

using Margin = std::function<double(double)>;

/// Returns the abscissa between `one` and `other` at which the margin changes its sign.
double findEdge(const Margin& margin, double one, double other)
{
    const bool stableAtOne = margin(one) > 0.0;
    for (int step = 0; step < 60; ++step) {
        const double middle = 0.5 * (one + other);
        if (middle == one || middle == other)
            break;
        ((margin(middle) > 0.0) == stableAtOne ? one : other) = middle;
    }
    return other;
}

struct Sample
{
    double at = 0.0;
    double margin = 0.0;
};

/// Returns the sample with the smallest margin between two samples around a minimum. Uses golden sections.
Sample findMinimum(const Margin& margin, double from, double to)
{
    constexpr double golden = 0.61803398874989485;
    Sample low{to - golden * (to - from), 0.0};
    Sample high{from + golden * (to - from), 0.0};
    low.margin = margin(low.at);
    high.margin = margin(high.at);
    for (int step = 0; step < 30 && low.margin > 0.0 && high.margin > 0.0; ++step) {
        if (low.margin < high.margin) {
            to = high.at;
            high = low;
            low.at = to - golden * (to - from);
            low.margin = margin(low.at);
        } else {
            from = low.at;
            low = high;
            high.at = from + golden * (to - from);
            high.margin = margin(high.at);
        }
    }
    return low.margin < high.margin ? low : high;
}

/// Returns samples from `rest` to `end`, with the minima between them at which the margin is less than 0.
std::vector<Sample> sampleWay(const Margin& margin, double rest, double end)
{
    const std::vector<double> way = rest > 0.0 && end > 0.0 ? spreadByFactor(rest, end, stabilitySamples + 1)
                                                            : spread(rest, end, stabilitySamples + 1);
    std::vector<Sample> samples;
    for (const double at : way) {
        const Sample sample{at, margin(at)};
        if (std::isnan(sample.margin))
            break;
        const std::size_t count = samples.size();
        const bool dip = count >= 2 && samples[count - 1].margin > 0.0 && sample.margin > 0.0 &&
                         samples[count - 1].margin <= sample.margin &&
                         samples[count - 1].margin < samples[count - 2].margin;
        if (dip) {
            const Sample lowest = findMinimum(margin, samples[count - 2].at, at);
            const bool beforeLast = (lowest.at - samples[count - 1].at) * (end - rest) < 0.0;
            if (lowest.margin <= 0.0)
                samples.insert(beforeLast ? samples.end() - 1 : samples.end(), lowest);
        }
        samples.push_back(sample);
    }
    return samples;
}

/// Returns the unstable ranges from `rest` to `end`, in this order.
std::vector<Range> walk(const Margin& margin, double rest, double end)
{
    std::vector<Range> parts;
    double before = rest;
    bool stable = true;
    for (const Sample& sample : sampleWay(margin, rest, end)) {
        if ((sample.margin > 0.0) != stable) {
            const double edge = sample.at == before ? before : findEdge(margin, before, sample.at);
            if (stable)
                parts.push_back({edge, edge});
            else
                parts.back().to = edge;
            stable = !stable;
        }
        if (!stable)
            parts.back().to = sample.at;
        before = sample.at;
    }
    return parts;
}

} // namespace

StabilityReport findInstability(const Margin& margin, double rest, Range range)
{
    StabilityReport report;
    const auto add = [&](const Range& part) {
        const Range clipped{std::max(std::min(part.from, part.to), range.from),
                            std::min(std::max(part.from, part.to), range.to)};
        if (clipped.from <= clipped.to)
            report.unstable.push_back(clipped);
    };
    if (range.from < rest) {
        const std::vector<Range> parts = walk(margin, rest, range.from);
        std::for_each(parts.rbegin(), parts.rend(), add);
        if (!parts.empty())
            report.firstBelow = parts.front().from;
    }
    if (range.to > rest) {
        const std::vector<Range> parts = walk(margin, rest, range.to);
        std::for_each(parts.begin(), parts.end(), add);
        if (!parts.empty())
            report.firstAbove = parts.front().from;
    }
    return report;
}

} // namespace vxConstitutive
