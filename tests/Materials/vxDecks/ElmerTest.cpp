#include "SampleMaterials.h"

#include "vxMaterial/model/PropertyId.h"

#include <gtest/gtest.h>

namespace {

using Id = vxMat::PropertyId;
using vxDecks::Format;

TEST(ElmerDeck, HasOneSectionForEachMaterial)
{
    auto steel = vxtest::steel();
    steel->number(Id::ElectricalConductivity, 4e6).number(Id::RelativePermittivity, 1.0);
    steel->number(Id::RelativePermeability, 5.0);
    EXPECT_EQ(vxtest::deckOf(Format::Elmer, steel->get(), "SI", "Steel \"S355\"").text,
              "! Units: m, kg, s, K, A\n"
              "\n"
              "! Steel \"S355\"\n"
              "Material 1\n"
              "  Name = \"Steel _S355\"\n"
              "  Density = Real 7850\n"
              "  Heat Capacity = Real 490\n"
              "  Heat Conductivity = Real 54\n"
              "  Youngs Modulus = Real 2e11\n"
              "  Poisson Ratio = Real 0.3\n"
              "  Electric Conductivity = Real 4e6\n"
              "  Relative Permittivity = Real 1\n"
              "  Relative Permeability = Real 5\n"
              "End\n");
}

TEST(ElmerDeck, HasFluids)
{
    EXPECT_EQ(vxtest::bodyOf(Format::Elmer, *vxtest::fluid()), "\n"
                                                               "Material 1\n"
                                                               "  Name = \"Test\"\n"
                                                               "  Density = Real 1e-9\n"
                                                               "  Sound Speed = Real 1480000\n"
                                                               "  Heat Capacity = Real 4.2e9\n"
                                                               "  Heat Conductivity = Real 0.6\n"
                                                               "  Viscosity = Real 1e-9\n"
                                                               "End\n");
}

TEST(ElmerDeck, LosesWhatTheSolverHasAsUserFunctionsOnly)
{
    const auto deck = vxtest::deckOf(Format::Elmer, vxtest::bilinear()->get(), "SI");
    EXPECT_EQ(vxtest::outcomeOf(deck, Id::PlasticHardeningFactor),
              "lost: the solver has it only as a function that the user programs");
    EXPECT_FALSE(vxtest::rowOf(deck, Id::PlasticHardeningFactor).refused);
}

} // namespace
