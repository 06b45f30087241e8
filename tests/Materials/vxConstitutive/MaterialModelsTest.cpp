#include "vxConstitutive/MaterialModels.h"

#include "ConstitutiveTesting.h"

#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace vxConstitutive;
using vxMat::PropertyId;
using vxtest::has;
using vxtest::valueAt;

namespace {

/// Sets quantities of a material by their ids.
vxMat::CMaterial& fill(vxMat::CMaterial& material, const std::vector<std::pair<std::int32_t, double>>& numbers)
{
    for (const auto& [id, number] : numbers)
        material.setProperty(id, std::make_unique<vxMat::MaterialProperty>(id, "", "", number));
    return material;
}

void setWord(vxMat::CMaterial& material, std::int32_t id, const std::string& word)
{
    material.addProperty(id, "", word, "", "");
}

std::vector<ModelKind> kindsOf(const vxMat::MaterialBase& material)
{
    std::vector<ModelKind> kinds;
    const MaterialModels models = modelsOf(material);
    for (const auto& model : models.models)
        kinds.push_back(model->kind());
    return kinds;
}

TEST(LibraryMaterial, HasTheModelsOfItsSwitches)
{
    EXPECT_EQ(kindsOf(vxMat::StructuralSteel()), std::vector<ModelKind>{ModelKind::LinearElasticity});
    EXPECT_EQ(kindsOf(vxMat::StructuralSteelNL()),
              (std::vector<ModelKind>{ModelKind::LinearElasticity, ModelKind::MisesPlasticity}));
    EXPECT_EQ(kindsOf(vxMat::PlasticMaterial1()),
              (std::vector<ModelKind>{ModelKind::LinearElasticity, ModelKind::MisesPlasticity}));
    EXPECT_EQ(kindsOf(vxMat::PlasticMaterial2()),
              (std::vector<ModelKind>{ModelKind::LinearElasticity, ModelKind::DruckerPrager}));
    EXPECT_EQ(kindsOf(vxMat::ViscoElasticMaterial1()),
              (std::vector<ModelKind>{ModelKind::LinearElasticity, ModelKind::ViscoElasticity}));
    EXPECT_EQ(kindsOf(vxMat::CreepMaterial1()),
              (std::vector<ModelKind>{ModelKind::LinearElasticity, ModelKind::NortonCreep}));
    EXPECT_EQ(kindsOf(vxMat::Elastomer1()), std::vector<ModelKind>{ModelKind::NeoHooke});
    EXPECT_EQ(kindsOf(vxMat::Elastomer2()), std::vector<ModelKind>{ModelKind::MooneyRivlin});
    EXPECT_EQ(kindsOf(vxMat::Elastomer3()), std::vector<ModelKind>{ModelKind::ArrudaBoyce});
    EXPECT_TRUE(kindsOf(vxMat::Air()).empty());
}

TEST(LibraryMaterial, CurvesHaveTheLibrarysNumbers)
{
    const MaterialModels steel = modelsOf(vxMat::StructuralSteelNL());
    ASSERT_NE(steel.find(Mode::Plastic), nullptr);
    EXPECT_DOUBLE_EQ(valueAt(*steel.find(Mode::Plastic), Mode::Plastic, 0.1, Quantity::TrueStress), 3.95e8);
    const MaterialModels example = modelsOf(vxMat::PlasticMaterial1());
    EXPECT_DOUBLE_EQ(valueAt(*example.find(Mode::Plastic), Mode::Plastic, 0.5, Quantity::TrueStress), 780.0);
    const MaterialModels visco = modelsOf(vxMat::ViscoElasticMaterial1());
    EXPECT_NEAR(valueAt(*visco.find(Mode::Relaxation), Mode::Relaxation, 0.0, Quantity::RelaxationModulus),
                206900.0 / 2.58, 1e-9);
    EXPECT_EQ(steel.find(Mode::Creep), nullptr);
    EXPECT_EQ(steel.find(ModelKind::NeoHooke), nullptr);
}

TEST(LibraryMaterial, ElastomersFarFromIncompressibleAreReported)
{
    // K/mu of 1, 20 and 15; neoprene has 257.
    EXPECT_TRUE(has(modelsOf(vxMat::Elastomer1()).findings, FindingId::FarFromIncompressible));
    EXPECT_TRUE(has(modelsOf(vxMat::Elastomer3()).findings, FindingId::FarFromIncompressible));
    EXPECT_FALSE(has(modelsOf(vxMat::NeopreneRubber()).findings, FindingId::FarFromIncompressible));
}

TEST(LibraryMaterial, DrawingElastomerOneIncompressibleIsWrongByAnOrderOfMagnitude)
{
    const MaterialModels models = modelsOf(vxMat::Elastomer1());
    CurveRequest request;
    request.mode = Mode::Equibiaxial;
    request.abscissas = evenlySpaced(0.3, 1.0, 71);
    request.compressibility = Compressibility::Incompressible;
    const Curve curve = models.models.front()->curve(request);
    EXPECT_GT(std::stod(vxtest::firstArgument(curve.findings, FindingId::DrawnIncompressible)), 10.0);
}

TEST(MaterialConstants, AMissingOneIsNamed)
{
    vxMat::CMaterial material;
    fill(material, {{PropertyId::MooneyRivlin, 1.0}, {PropertyId::MaterialConstantC10, 1.0}});
    const MaterialModels models = modelsOf(material);
    EXPECT_TRUE(models.models.empty());
    ASSERT_EQ(models.missing.size(), 1U);
    EXPECT_EQ(models.missing[0].model, ModelKind::MooneyRivlin);
    EXPECT_EQ(models.missing[0].propertyId, PropertyId::MaterialConstantC01);
    EXPECT_EQ(vxtest::firstArgument(models.findings, FindingId::ConstantMissing, 1), "Material Constant C01");
}

TEST(MaterialConstants, EverySwitchAloneReportsAllItsConstants)
{
    const std::vector<std::pair<std::int32_t, std::size_t>> needs{
        {PropertyId::IsotropicElasticity, 2}, {PropertyId::NeoHooke, 1},        {PropertyId::MooneyRivlin, 2},
        {PropertyId::ArrudaBoyce, 2},         {PropertyId::ViscoElasticity, 2}, {PropertyId::Creep, 3},
        {PropertyId::Plasticity, 1}};
    for (const auto& [id, count] : needs) {
        vxMat::CMaterial material;
        fill(material, {{id, 1.0}});
        EXPECT_EQ(modelsOf(material).missing.size(), count) << id;
    }
}

TEST(MaterialConstants, NeoHookeanTakesHalfOfMuIfC10IsAbsent)
{
    vxMat::CMaterial material;
    fill(material, {{PropertyId::NeoHooke, 1.0}, {PropertyId::InitialShearModulusMu, 2.0}});
    EXPECT_DOUBLE_EQ(valueAt(*modelsOf(material).models.at(0), Mode::Uniaxial, 2.0, Quantity::NominalStress), 3.5);
    fill(material, {{PropertyId::MaterialConstantC10, 1.0}});
    EXPECT_FALSE(has(modelsOf(material).findings, FindingId::C10AndMuDiffer));
    fill(material, {{PropertyId::MaterialConstantC10, 3.0}});
    const MaterialModels both = modelsOf(material);
    EXPECT_TRUE(has(both.findings, FindingId::C10AndMuDiffer));
    EXPECT_DOUBLE_EQ(valueAt(*both.models.at(0), Mode::Uniaxial, 2.0, Quantity::NominalStress), 10.5);
}

TEST(MaterialConstants, C11IsTakenIfItIsPresent)
{
    vxMat::CMaterial material;
    fill(material, {{PropertyId::MooneyRivlin, 1.0},
                    {PropertyId::MaterialConstantC10, 0.0},
                    {PropertyId::MaterialConstantC01, 0.0},
                    {PropertyId::MaterialConstantC11, 1.0}});
    EXPECT_NEAR(valueAt(*modelsOf(material).models.at(0), Mode::Uniaxial, 2.0, Quantity::NominalStress), 7.875, 1e-13);
}

TEST(MaterialConstants, D1OfZeroOrLessIsIncompressibleAndReported)
{
    vxMat::CMaterial material;
    fill(material, {{PropertyId::NeoHooke, 1.0},
                    {PropertyId::MaterialConstantC10, 1.0},
                    {PropertyId::IncompressibilityParameterD1, 0.0}});
    EXPECT_TRUE(has(modelsOf(material).findings, FindingId::D1Zero));
    fill(material, {{PropertyId::IncompressibilityParameterD1, -1.0}});
    const MaterialModels negative = modelsOf(material);
    EXPECT_TRUE(has(negative.findings, FindingId::D1Negative));
    EXPECT_DOUBLE_EQ(valueAt(*negative.models.at(0), Mode::Uniaxial, 2.0, Quantity::NominalStress), 3.5);
}

TEST(MaterialConstants, OneThatIsNotFiniteLeavesTheModelOut)
{
    vxMat::CMaterial material;
    fill(material, {{PropertyId::NeoHooke, 1.0}, {PropertyId::MaterialConstantC10, std::nan("")}});
    const MaterialModels models = modelsOf(material);
    EXPECT_TRUE(models.models.empty());
    EXPECT_TRUE(models.missing.empty());
    EXPECT_TRUE(has(models.findings, FindingId::ConstantNotFinite));
}

TEST(PlasticWords, HardeningTypesWithoutConstantsAreReported)
{
    for (const char* word : {"Swift", "Ramberg-Osgood", "KINEMATIC", "combined"}) {
        vxMat::CMaterial material;
        fill(material, {{PropertyId::Plasticity, 1.0}});
        setWord(material, PropertyId::PlasticYieldType, "Mises");
        setWord(material, PropertyId::PlasticHardeningType, word);
        const MaterialModels models = modelsOf(material);
        EXPECT_TRUE(models.models.empty());
        EXPECT_EQ(vxtest::firstArgument(models.findings, FindingId::HardeningWithoutData), word);
    }
}

TEST(PlasticWords, UnknownOnesAreQuoted)
{
    vxMat::CMaterial material;
    fill(material, {{PropertyId::Plasticity, 1.0}});
    setWord(material, PropertyId::PlasticYieldType, "Hill");
    EXPECT_EQ(vxtest::firstArgument(modelsOf(material).findings, FindingId::YieldTypeUnknown), "Hill");
    setWord(material, PropertyId::PlasticYieldType, "mises");
    setWord(material, PropertyId::PlasticHardeningType, "Voce");
    EXPECT_EQ(vxtest::firstArgument(modelsOf(material).findings, FindingId::HardeningUnknown), "Voce");
}

TEST(PlasticWords, AnAbsentHardeningTypeIsBilinearAsInTheCards)
{
    vxMat::CMaterial material;
    fill(material, {{PropertyId::Plasticity, 1.0},
                    {PropertyId::PlasticInitialYieldStress, 250.0},
                    {PropertyId::PlasticHardeningFactor, 100.0}});
    setWord(material, PropertyId::PlasticYieldType, "Mises");
    EXPECT_DOUBLE_EQ(valueAt(*modelsOf(material).models.at(0), Mode::Plastic, 1.0, Quantity::TrueStress), 350.0);
}

TEST(PlasticTables, ListsOfDifferentLengthsArePairedAndReported)
{
    vxMat::CMaterial material;
    fill(material, {{PropertyId::Plasticity, 1.0}});
    setWord(material, PropertyId::PlasticYieldType, "Mises");
    setWord(material, PropertyId::PlasticHardeningType, "Multilinear");
    EXPECT_EQ(modelsOf(material).missing.size(), 2U);
    setWord(material, PropertyId::PlasticYieldStress, "450, 600, 700");
    setWord(material, PropertyId::PlasticStrain, "0, 0.1");
    const MaterialModels models = modelsOf(material);
    EXPECT_TRUE(has(models.findings, FindingId::TableLengthsDiffer));
    EXPECT_DOUBLE_EQ(valueAt(*models.models.at(0), Mode::Plastic, 0.2, Quantity::TrueStress), 600.0);
}

TEST(PlasticTables, NumbersThatAreNotFiniteLeaveTheModelOut)
{
    vxMat::CMaterial material;
    fill(material, {{PropertyId::Plasticity, 1.0}});
    setWord(material, PropertyId::PlasticYieldType, "Mises");
    setWord(material, PropertyId::PlasticHardeningType, "Multilinear");
    material.setProperty(PropertyId::PlasticYieldStress,
                         std::make_unique<vxMat::PlasticYieldStress>(std::vector<double>{450.0, std::nan("")}));
    material.setProperty(PropertyId::PlasticStrain,
                         std::make_unique<vxMat::PlasticStrain>(std::vector<double>{0.0, 0.1}));
    const MaterialModels models = modelsOf(material);
    EXPECT_TRUE(models.models.empty());
    EXPECT_TRUE(has(models.findings, FindingId::ConstantNotFinite));
}

TEST(ViscoElasticConstants, WithoutElasticOnesCurvesAreRelative)
{
    vxMat::CMaterial material;
    fill(material, {{PropertyId::ViscoElasticity, 1.0},
                    {PropertyId::ShearRelaxationModulus, 0.5},
                    {PropertyId::RelaxationTime, 1.0}});
    EXPECT_EQ(valueAt(*modelsOf(material).models.at(0), Mode::Relaxation, 0.0, Quantity::RelaxationModulus), 1.0);
}

} // namespace
