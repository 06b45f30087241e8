#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace vxUnits {

/// The features that distinguish kinds of materials. Speed of sound and viscosity are features of fluids.
enum class Feature : std::size_t
{
    Density,
    YoungsModulus, ///< the initial one for hyperelastic materials
    PoissonsRatio,
    YieldStress,
    SpecificHeat,
    ThermalConductivity,
    ElectricalConductivity,
    SpeedOfSound,
    Viscosity,
    WaveSpeed, ///< in a bar: the square root of modulus over density; light materials are soft
    Count
};
inline constexpr std::size_t featureCount = static_cast<std::size_t>(Feature::Count);

/// The lowest and highest value of a kind; both 0 if the value is not known or the kind does not have it.
struct Span
{
    double lowest = 0.0;
    double highest = 0.0;

    bool known() const { return highest > 0.0; }
};

/// A kind of materials, with the spans of its values at room temperature over grades, products and scatter.
struct MaterialKind
{
    const char* name = ""; ///< a word for messages: "steel"
    std::array<Span, featureCount> spans;
    double rareness = 1.0;  ///< 0 for the common kinds of a desk, which are more likely than others
    bool elastomer = false; ///< whether hyperelastic models are made for it: it bears large elastic strains

    const Span& span(Feature feature) const { return spans[static_cast<std::size_t>(feature)]; }
    bool isFluid() const { return span(Feature::Viscosity).known(); }
};

const std::vector<MaterialKind>& materialKinds();

} // namespace vxUnits
