#include "vxDecks/Mapping.h"

#include "texts/DeckTexts.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;
using vxUnits::MessageText;

constexpr Format calculix = Format::Calculix;
constexpr Transport same = Transport::Same;
constexpr Transport otherForm = Transport::OtherForm;
constexpr Transport approximate = Transport::Approximate;
constexpr Transport none = Transport::None;
constexpr Proof run = Proof::Run;
constexpr Proof read = Proof::Read;
constexpr Proof notRun = Proof::NotRun;

constexpr MessageText plain{"", ""};
constexpr MessageText byCard{"decks.how.by-card", "switched on by the card"};
constexpr MessageText byParameter{"decks.how.by-parameter", "switched on by a parameter of the card"};
constexpr MessageText misesOnly{"decks.how.mises-only", "the card is of the yield criterion of Mises only"};
constexpr MessageText asCurve{"decks.how.as-curve", "as points of the curve of true stress over plastic strain"};
constexpr MessageText compressible{"decks.how.compressible", "0 is written as a bulk modulus of 500 shear moduli"};
constexpr MessageText polynomial{"decks.how.polynomial",
                                 "as polynomial of the second order whose other constants have no effect"};
constexpr MessageText noCard{"decks.lost.no-card", "the format has no card for it"};
constexpr MessageText noViscoelasticity{"decks.lost.no-viscoelasticity", "the solver has no viscoelastic material"};
constexpr MessageText noFriction{"decks.lost.no-friction", "the solver has no plasticity with internal friction"};
constexpr MessageText overstressOnly{"decks.lost.overstress-only",
                                     "the solver has viscoplasticity only as a creep law of the overstress"};
constexpr MessageText heatAnalogy{"decks.lost.heat-analogy",
                                  "the solver computes sound only as an analogy of heat conduction"};
constexpr MessageText domainNeeded{"decks.lost.domain-needed",
                                   "the card also needs the number of a domain, which depends on the model"};

const std::vector<Mapping> table{
    // CalculiX
    {calculix, Id::Density, same, "*DENSITY", "number 1", plain, "*DENSITY", run},
    {calculix, Id::SpeedOfSound, none, "", "", heatAnalogy, "Shallow water motion and acoustics", notRun},
    {calculix, Id::SpecificHeat, same, "*SPECIFIC HEAT", "number 1", plain, "*SPECIFIC HEAT", run},
    {calculix, Id::ThermalConductivity, same, "*CONDUCTIVITY", "number 1", plain, "*CONDUCTIVITY", run},
    {calculix, Id::DynamicViscosity, same, "*FLUID CONSTANTS", "number 2, after the specific heat", plain,
     "*FLUID CONSTANTS", read},
    {calculix, Id::IsotropicElasticity, same, "*ELASTIC", "keyword", byCard, "*ELASTIC", run},
    {calculix, Id::YoungsModulus, same, "*ELASTIC", "number 1", plain, "*ELASTIC", run},
    {calculix, Id::PoissonsRatio, same, "*ELASTIC", "number 2", plain, "*ELASTIC", run},
    {calculix, Id::NeoHooke, same, "*HYPERELASTIC", "NEO HOOKE", byParameter, "*HYPERELASTIC", run},
    {calculix, Id::MooneyRivlin, same, "*HYPERELASTIC", "MOONEY-RIVLIN", byParameter, "*HYPERELASTIC", run},
    {calculix, Id::ArrudaBoyce, same, "*HYPERELASTIC", "ARRUDA-BOYCE", byParameter, "*HYPERELASTIC", run},
    {calculix, Id::InitialShearModulusMu, same, "*HYPERELASTIC", "ARRUDA-BOYCE: number 1", plain, "*HYPERELASTIC", run},
    {calculix, Id::MaterialConstantC01, same, "*HYPERELASTIC", "MOONEY-RIVLIN: number 2", plain, "*HYPERELASTIC", run},
    {calculix, Id::MaterialConstantC10, same, "*HYPERELASTIC", "NEO HOOKE, MOONEY-RIVLIN: number 1", plain,
     "*HYPERELASTIC", run},
    {calculix, Id::MaterialConstantC11, otherForm, "*HYPERELASTIC", "POLYNOMIAL, N=2: number 4", polynomial,
     "*HYPERELASTIC", run},
    {calculix, Id::LimitingNetworkStretch, same, "*HYPERELASTIC", "ARRUDA-BOYCE: number 2", plain, "*HYPERELASTIC",
     run},
    {calculix, Id::IncompressibilityParameterD1, approximate, "*HYPERELASTIC", "last number", compressible,
     "*HYPERELASTIC", run},
    {calculix, Id::Plasticity, same, "*PLASTIC", "keyword", byCard, "*PLASTIC", run},
    {calculix, Id::PlasticYieldType, same, "*PLASTIC", "keyword", misesOnly, "*PLASTIC", run},
    {calculix, Id::PlasticHardeningType, same, "*PLASTIC", "HARDENING", byParameter, "*PLASTIC", run},
    {calculix, Id::PlasticViscosity, none, "", "", overstressOnly, "*CREEP", notRun},
    {calculix, Id::PlasticFAI, none, "", "", noFriction, "Materials", notRun},
    {calculix, Id::PlasticHardeningFactor, otherForm, "*PLASTIC", "numbers of both lines", asCurve, "*PLASTIC", run},
    {calculix, Id::PlasticInitialYieldStress, same, "*PLASTIC", "number 1 of line 1", plain, "*PLASTIC", run},
    {calculix, Id::PlasticYieldStress, same, "*PLASTIC", "number 1 of each line", plain, "*PLASTIC", run},
    {calculix, Id::PlasticStrain, same, "*PLASTIC", "number 2 of each line", plain, "*PLASTIC", run},
    {calculix, Id::ViscoElasticity, none, "", "", noViscoelasticity, "Materials", notRun},
    {calculix, Id::RelaxationTime, none, "", "", noViscoelasticity, "Materials", notRun},
    {calculix, Id::ShearRelaxationModulus, none, "", "", noViscoelasticity, "Materials", notRun},
    {calculix, Id::Creep, same, "*CREEP", "keyword", byCard, "*CREEP", run},
    {calculix, Id::CreepModulusA, same, "*CREEP", "number 1", plain, "*CREEP", run},
    {calculix, Id::CreepModulusN, same, "*CREEP", "number 2", plain, "*CREEP", run},
    {calculix, Id::CreepModulusM, same, "*CREEP", "number 3", plain, "*CREEP", run},
    {calculix, Id::ElectricalConductivity, same, "*ELECTRICAL CONDUCTIVITY", "number 1", plain,
     "*ELECTRICAL CONDUCTIVITY", read},
    {calculix, Id::RelativePermittivity, none, "", "", noCard, "Materials", notRun},
    {calculix, Id::RelativePermeability, none, "", "", domainNeeded, "*MAGNETIC PERMEABILITY", notRun},
};

} // namespace

const std::vector<Mapping>& mappings()
{
    return table;
}

const Mapping* findMapping(Format format, std::int32_t id)
{
    const auto found = std::find_if(table.begin(), table.end(),
                                    [format, id](const Mapping& row) { return row.format == format && row.id == id; });
    return found == table.end() ? nullptr : &*found;
}

const char* nameOf(Proof proof)
{
    static constexpr const char* names[] = {"run", "read by another program", "not run"};
    return names[static_cast<std::size_t>(proof)];
}

const std::vector<MessageText>& messageTexts()
{
    static const std::vector<MessageText> all = [] {
        std::vector<MessageText> collected = deckTexts();
        for (const Mapping& row : table) {
            const bool known = std::any_of(collected.begin(), collected.end(), [&row](const MessageText& one) {
                return std::string_view(one.id) == row.how.id;
            });
            if (*row.how.id != '\0' && !known)
                collected.push_back(row.how);
        }
        return collected;
    }();
    return all;
}

} // namespace vxDecks
