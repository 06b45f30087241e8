#include "SampleMaterials.h"

#include "vxMaterial/model/PropertyId.h"

namespace vxtest {

using Id = vxMat::PropertyId;

namespace {

std::unique_ptr<MaterialMaker> solid()
{
    auto maker = elastic();
    maker->number(Id::Density, 7850.0);
    return maker;
}

std::unique_ptr<MaterialMaker> plastic(const char* hardening)
{
    auto maker = solid();
    maker->on(Id::Plasticity).word(Id::PlasticYieldType, "Mises").word(Id::PlasticHardeningType, hardening);
    return maker;
}

} // namespace

std::unique_ptr<MaterialMaker> steel()
{
    auto maker = solid();
    maker->number(Id::ThermalConductivity, 54.0).number(Id::SpecificHeat, 490.0);
    return maker;
}

std::unique_ptr<MaterialMaker> bilinear()
{
    auto maker = plastic("Bilinear");
    maker->number(Id::PlasticInitialYieldStress, 2.5e8).number(Id::PlasticHardeningFactor, 1.45e9);
    return maker;
}

std::unique_ptr<MaterialMaker> multilinear()
{
    auto maker = plastic("Multilinear");
    maker->list(Id::PlasticYieldStress, {2.5e8, 3e8}).list(Id::PlasticStrain, {0.0, 0.05});
    return maker;
}

std::unique_ptr<MaterialMaker> neoHooke()
{
    auto maker = std::make_unique<MaterialMaker>();
    maker->on(Id::NeoHooke).number(Id::MaterialConstantC10, 5e5).number(Id::IncompressibilityParameterD1, 2e-9);
    maker->number(Id::Density, 1000.0);
    return maker;
}

std::unique_ptr<MaterialMaker> mooney()
{
    auto maker = std::make_unique<MaterialMaker>();
    maker->on(Id::MooneyRivlin).number(Id::MaterialConstantC10, 3e5).number(Id::MaterialConstantC01, 2e5);
    maker->number(Id::IncompressibilityParameterD1, 2e-9);
    return maker;
}

std::unique_ptr<MaterialMaker> arrudaBoyce()
{
    auto maker = std::make_unique<MaterialMaker>();
    maker->on(Id::ArrudaBoyce).number(Id::InitialShearModulusMu, 1e6).number(Id::LimitingNetworkStretch, 5.0);
    maker->number(Id::IncompressibilityParameterD1, 2e-9);
    return maker;
}

std::unique_ptr<MaterialMaker> prony()
{
    auto maker = solid();
    maker->on(Id::ViscoElasticity).number(Id::ShearRelaxationModulus, 0.5).number(Id::RelaxationTime, 2.0);
    return maker;
}

std::unique_ptr<MaterialMaker> creeping()
{
    auto maker = solid();
    maker->on(Id::Creep).number(Id::CreepModulusA, 1e-40).number(Id::CreepModulusN, 5.0);
    maker->number(Id::CreepModulusM, 0.0);
    return maker;
}

std::unique_ptr<MaterialMaker> fluid()
{
    auto maker = std::make_unique<MaterialMaker>();
    maker->number(Id::Density, 1000.0).number(Id::SpeedOfSound, 1480.0).number(Id::DynamicViscosity, 0.001);
    maker->number(Id::ThermalConductivity, 0.6).number(Id::SpecificHeat, 4200.0);
    return maker;
}

std::string bodyOf(vxDecks::Format format, const MaterialMaker& material)
{
    const std::string text = deckOf(format, material.get(), "mm-t-s").text;
    return text.substr(text.find('\n') + 1);
}

} // namespace vxtest
