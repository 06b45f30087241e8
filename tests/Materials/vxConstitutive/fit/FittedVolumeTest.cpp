#include "vxConstitutive/fit/FittedVolume.h"

#include "ConstitutiveTesting.h"

#include "vxConstitutive/MaterialModels.h"
#include "vxConstitutive/fit/HyperelasticFit.h"
#include "vxConstitutive/response/HyperelasticModel.h"
#include "vxMaterial/model/PropertyId.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace vxConstitutive;
using vxMat::PropertyId;

namespace {

constexpr std::int32_t d1Id = PropertyId::IncompressibilityParameterD1;

/// A Neo-Hookean rubber with C10 = 0.5 MPa: the initial shear modulus is 1 MPa.
FitResult rubberFit(std::vector<TestData> more = {})
{
    HyperelasticFitRequest request;
    request.tests = std::move(more);
    request.tests.push_back(vxtest::makeTest(Mode::Uniaxial, evenlySpaced(1.1, 3.0, 20),
                                             [](double l) { return 1e6 * (l - 1.0 / (l * l)); }));
    request.forms = {HyperelasticForm::NeoHooke};
    return fitHyperelastic(request).front();
}

/// A material with a D1, in 1/Pa.
struct Seal : vxMat::CMaterial
{
    explicit Seal(const std::string& d1) : CMaterial("Seal") { addProperty(d1Id, "", d1, "", ""); }
};

bool removesD1(const MaterialChange& change)
{
    return std::count(change.remove.begin(), change.remove.end(), d1Id) != 0;
}

TEST(VolumeOfAFit, TellsWhatAnOldD1WouldMakeOfTheFittedRubber)
{
    // K0 = 2/0.0789 = 25.3 Pa beside a shear modulus of 1 MPa; nu = (3 K - 2 mu)/(6 K + 2 mu) is nearly -1.
    const auto volume = fittedVolume(rubberFit(), Seal("0.0789"));
    ASSERT_TRUE(volume && volume->bulkRatio && volume->finding);
    EXPECT_NEAR(volume->shearModulus, 1e6, 1.0);
    EXPECT_NEAR(*volume->bulkRatio, 25.3485e-6, 1e-9);
    EXPECT_TRUE(volume->contradictsFit());
    EXPECT_EQ(volume->usualTreatment(), D1Treatment::Set);
    EXPECT_EQ(volume->finding->id, FindingId::FitContradictsD1);
    EXPECT_NEAR(std::stod(volume->finding->arguments[1]), -0.999886, 1e-5);
}

TEST(VolumeOfAFit, ReplacesAContradictingD1ByThatOfANearlyIncompressibleRubber)
{
    const FitResult fit = rubberFit();
    const auto volume = fittedVolume(fit, Seal("0.0789"));
    ASSERT_TRUE(volume);
    const MaterialChange change = changeOf(fit, *volume, volume->usualTreatment());
    EXPECT_FALSE(removesD1(change));
    ASSERT_EQ(change.set.back().propertyId, d1Id);
    EXPECT_NEAR(change.set.back().value, 4e-9, 1e-14); // K0 = 500 MPa
}

TEST(VolumeOfAFit, KeepsTheD1OfARubberThatIsNearlyIncompressible)
{
    const auto volume = fittedVolume(rubberFit(), Seal("4e-9")); // K0 = 500 MPa
    ASSERT_TRUE(volume && volume->bulkRatio && volume->finding);
    EXPECT_NEAR(*volume->bulkRatio, 500.0, 1e-3);
    EXPECT_EQ(volume->usualTreatment(), D1Treatment::Keep);
    EXPECT_EQ(volume->finding->id, FindingId::FitKeepsD1);
    EXPECT_NEAR(std::stod(volume->finding->arguments[1]), 1498.0 / 3002.0, 1e-6);
}

TEST(VolumeOfAFit, ANegativeD1ContradictsTheFit)
{
    const auto volume = fittedVolume(rubberFit(), Seal("-4e-9"));
    ASSERT_TRUE(volume);
    EXPECT_TRUE(volume->contradictsFit());
}

TEST(VolumeOfAFit, AMissingD1IsSetUnlessTheUserWantsNone)
{
    const Seal zero("0");
    const vxMat::CMaterial none("Pad");
    for (const vxMat::CMaterial* const material : {static_cast<const vxMat::CMaterial*>(&zero), &none}) {
        const auto volume = fittedVolume(rubberFit(), *material);
        ASSERT_TRUE(volume);
        EXPECT_FALSE(volume->bulkRatio || volume->finding);
        EXPECT_FALSE(volume->contradictsFit());
        EXPECT_EQ(volume->usualTreatment(), D1Treatment::Set);
    }
}

TEST(VolumeOfAFit, AVolumetricTestDeterminesD1Itself)
{
    // 3 K0 (l - 1)-like data of K0 = 1 GPa: P = K0 (J - 1) l^2 with J = l^3
    const TestData volumetric = vxtest::makeTest(Mode::Volumetric, {0.97, 0.98, 0.99, 1.01, 1.02},
                                                 [](double l) { return 1e9 * (l * l * l - 1.0) * l * l; });
    EXPECT_FALSE(fittedVolume(rubberFit({volumetric}), Seal("0.0789")));
}

TEST(VolumeOfAFit, ChangesD1AsTheUserChooses)
{
    const FitResult fit = rubberFit();
    const auto volume = fittedVolume(fit, Seal("0.0789"));
    ASSERT_TRUE(volume);
    const MaterialChange kept = changeOf(fit, *volume, D1Treatment::Keep);
    EXPECT_EQ(kept.set.size(), fit.change.set.size());
    EXPECT_FALSE(removesD1(kept));
    EXPECT_TRUE(removesD1(changeOf(fit, *volume, D1Treatment::Remove)));
    const MaterialChange set = changeOf(fit, *volume, D1Treatment::Set, 100.0);
    ASSERT_EQ(set.set.back().propertyId, d1Id);
    EXPECT_NEAR(set.set.back().value, 2e-8, 1e-13); // K0 = 100 MPa
}

} // namespace
