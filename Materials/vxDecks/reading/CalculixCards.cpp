#include "reading/CalculixCards.h"

#include "models/ModelQuantities.h"
#include "models/Vacuum.h"
#include "numbers/NumberField.h"
#include "reading/CardsWithoutQuantity.h"
#include "reading/HardeningCurve.h"
#include "reading/KeywordNames.h"
#include "reading/TextOfDeck.h"
#include "texts/DeckTexts.h"
#include "texts/ReadingTexts.h"
#include "vxMaterial/json/Utf8.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;
using Numbers = std::vector<double>;
using vxUnits::Message;

/// Beyond this plastic strain no solid is computed, so that a second point at it means a slope.
constexpr double unlimitedStrain = 10.0;

/// A second D that is this many times the first one has no effect.
constexpr double withoutEffect = 1e5;

/// The number of constants in a line of a card, and the number of those that must be given. The temperature follows them.
struct Constants
{
    std::size_t all = 1;
    std::size_t needed = 1;
};

Message tooFew(const KeywordCard& card, std::size_t needed)
{
    return makeMessage(ReadText::TooFewNumbers, {card.name, std::to_string(needed)});
}

/// Returns the reason why no numbers of a card can be read; absent if they can.
std::optional<Message> findObstacle(const KeywordCard& card)
{
    if (card.isElsewhere)
        return makeMessage(ReadText::InAnotherFile);
    if (card.hasParametersAsNumbers)
        return makeMessage(ReadText::ByParameters);
    const std::string dependencies = card.word("DEPENDENCIES");
    if (!dependencies.empty() && dependencies != "0")
        return makeMessage(ReadText::MoreThanTemperature);
    return std::nullopt;
}

/// Returns the constants of a card that has one line, blank ones as 0. Without them, reports the reason.
/// \throws DeckError if constants are missing
std::optional<Numbers> takeConstants(const KeywordCard& card, Constants constants, MaterialReading& material)
{
    if (card.rows.empty())
        throw DeckError(tooFew(card, constants.needed), card.line);
    if (card.rows.size() > 1) {
        material.refuse(card.name, makeMessage(ReadText::TemperatureTable));
        return std::nullopt;
    }
    const KeywordCard::Row& row = card.rows.front();
    if (row.size() > constants.all + 1) {
        material.refuse(card.name, makeMessage(ReadText::MoreThanTemperature));
        return std::nullopt;
    }
    const auto isMissing = [&row](std::size_t at) { return at >= row.size() || !row[at]; };
    Numbers numbers;
    for (std::size_t i = 0; i < constants.all; ++i) {
        if (i < constants.needed && isMissing(i))
            throw DeckError(tooFew(card, constants.needed), card.line);
        numbers.push_back(isMissing(i) ? 0.0 : *row[i]);
    }
    if (!isMissing(constants.all))
        material.noteTemperature(card.name, *row[constants.all]);
    return numbers;
}

bool isGiven(const KeywordCard& card, std::size_t at)
{
    const KeywordCard::Row& row = card.rows.front();
    return at < row.size() && row[at];
}

/// Returns whether a card with a type is isotropic; otherwise reports the type.
bool requireIsotropic(const KeywordCard& card, MaterialReading& material)
{
    const std::string type = card.word("TYPE");
    if (type.empty() || type == "ISO" || type == "ISOTROPIC")
        return true;
    material.refuse(card.name, makeMessage(ReadText::TypeNotIsotropic, {card.given}));
    return false;
}

void readNumber(const KeywordCard& card, std::int32_t id, MaterialReading& material)
{
    if (!requireIsotropic(card, material))
        return;
    if (const auto constants = takeConstants(card, {1, 1}, material))
        material.setNumber(id, constants->front());
}

void readDensity(const KeywordCard& card, MaterialReading& material)
{
    readNumber(card, Id::Density, material);
}

void readSpecificHeat(const KeywordCard& card, MaterialReading& material)
{
    readNumber(card, Id::SpecificHeat, material);
}

void readConductivity(const KeywordCard& card, MaterialReading& material)
{
    readNumber(card, Id::ThermalConductivity, material);
}

void readElectricalConductivity(const KeywordCard& card, MaterialReading& material)
{
    readNumber(card, Id::ElectricalConductivity, material);
}

void readViscosity(const KeywordCard& card, MaterialReading& material)
{
    readNumber(card, Id::DynamicViscosity, material);
}

/// The number is absolute until takeRelative().
void readDielectric(const KeywordCard& card, MaterialReading& material)
{
    readNumber(card, Id::RelativePermittivity, material);
}

/// The number, which is absolute until takeRelative(), may have the domain of CalculiX behind it, 1 or 2, or the temperature.
void readPermeability(const KeywordCard& card, MaterialReading& material)
{
    if (card.hasParameter("NONLINEAR")) {
        material.refuse(card.name, makeMessage(ReadText::NoModelForKind, {card.given}));
        return;
    }
    if (!requireIsotropic(card, material))
        return;
    const auto constants = takeConstants(card, {2, 1}, material);
    if (!constants)
        return;
    material.setNumber(Id::RelativePermeability, constants->front());
    const double domain = constants->back();
    if (isGiven(card, 1) && domain != 1.0 && domain != 2.0)
        material.noteTemperature(card.name, domain);
}

/// The specific heat of *SPECIFIC HEAT takes precedence.
void readFluidConstants(const KeywordCard& card, MaterialReading& material)
{
    const auto constants = takeConstants(card, {2, 2}, material);
    if (!constants)
        return;
    const auto heat = material.number(Id::SpecificHeat);
    if (!heat)
        material.setNumber(Id::SpecificHeat, (*constants)[0]);
    else if (*heat != (*constants)[0])
        material.lose(card.name, makeMessage(ReadText::OtherSpecificHeat));
    material.setNumber(Id::DynamicViscosity, (*constants)[1]);
}

void readElastic(const KeywordCard& card, MaterialReading& material)
{
    if (!requireIsotropic(card, material))
        return;
    const auto constants = takeConstants(card, {2, 1}, material);
    if (!constants)
        return;
    material.setSwitch(Id::IsotropicElasticity);
    material.setNumber(Id::YoungsModulus, (*constants)[0]);
    material.setNumber(Id::PoissonsRatio, (*constants)[1]);
    if (!isGiven(card, 1))
        material.convert(Id::PoissonsRatio, makeMessage(ReadText::ValueAbsent));
}

void setD1(double d1, MaterialReading& material)
{
    material.setNumber(Id::IncompressibilityParameterD1, d1);
    if (d1 == 0.0)
        material.approximate(Id::IncompressibilityParameterD1, makeMessage(ReadText::IncompressibleByZero));
}

void readNeoHooke(const KeywordCard& card, MaterialReading& material)
{
    const auto constants = takeConstants(card, {2, 1}, material);
    if (!constants)
        return;
    material.setSwitch(Id::NeoHooke);
    material.setNumber(Id::MaterialConstantC10, (*constants)[0]);
    setD1((*constants)[1], material);
}

void readMooneyRivlin(const KeywordCard& card, MaterialReading& material)
{
    const auto constants = takeConstants(card, {3, 2}, material);
    if (!constants)
        return;
    material.setSwitch(Id::MooneyRivlin);
    material.setNumber(Id::MaterialConstantC10, (*constants)[0]);
    material.setNumber(Id::MaterialConstantC01, (*constants)[1]);
    setD1((*constants)[2], material);
}

void readArrudaBoyce(const KeywordCard& card, MaterialReading& material)
{
    const auto constants = takeConstants(card, {3, 2}, material);
    if (!constants)
        return;
    material.setSwitch(Id::ArrudaBoyce);
    material.setNumber(Id::InitialShearModulusMu, (*constants)[0]);
    material.setNumber(Id::LimitingNetworkStretch, (*constants)[1]);
    setD1((*constants)[2], material);
}

/// The polynomial of the first order is the model of Mooney and Rivlin. That of the second order is too, with C11, if its
/// other constants are 0.
void readSecondOrder(const KeywordCard& card, MaterialReading& material)
{
    const auto constants = takeConstants(card, {7, 4}, material);
    if (!constants)
        return;
    const Numbers& all = *constants; // C10, C01, C20, C11, C02, D1, D2
    if (all[2] != 0.0 || all[4] != 0.0) {
        material.refuse(card.name, makeMessage(ReadText::NoModelForTerms));
        return;
    }
    material.setSwitch(Id::MooneyRivlin);
    material.setNumber(Id::MaterialConstantC10, all[0]);
    material.setNumber(Id::MaterialConstantC01, all[1]);
    material.setNumber(Id::MaterialConstantC11, all[3]);
    material.convert(Id::MaterialConstantC11, makeMessage(ReadText::FromPolynomial));
    setD1(all[5], material);
    if (all[6] != 0.0 && all[6] < withoutEffect * all[5])
        material.approximate(Id::IncompressibilityParameterD1, makeMessage(ReadText::SecondOrderOfVolume));
}

/// A form of *HYPERELASTIC, and the order of a form that has one.
struct HyperelasticForm
{
    const char* parameter;
    const char* order; ///< "" if the form has none
    void (*read)(const KeywordCard& card, MaterialReading& material);
};

constexpr HyperelasticForm hyperelasticForms[] = {
    {"NEOHOOKE", "", readNeoHooke},        {"MOONEY-RIVLIN", "", readMooneyRivlin},
    {"ARRUDA-BOYCE", "", readArrudaBoyce}, {"REDUCEDPOLYNOMIAL", "1", readNeoHooke},
    {"POLYNOMIAL", "1", readMooneyRivlin}, {"POLYNOMIAL", "2", readSecondOrder},
};

/// Without a form, the card is a polynomial; without an order, the order is 1.
void readHyperelastic(const KeywordCard& card, MaterialReading& material)
{
    const std::string given = card.word("N");
    const std::string order = given.empty() ? "1" : given;
    const bool isPlain = std::all_of(card.parameters.begin(), card.parameters.end(), [](const auto& parameter) {
        return parameter.first == "N" || parameter.first == "MODULI";
    });
    for (const HyperelasticForm& form : hyperelasticForms) {
        const bool isForm =
            card.hasParameter(form.parameter) || (isPlain && form.parameter == std::string("POLYNOMIAL"));
        if (isForm && !card.hasParameter("TESTDATAINPUT") && (*form.order == '\0' || order == form.order)) {
            form.read(card, material);
            return;
        }
    }
    material.refuse(card.name, makeMessage(ReadText::NoModelForKind, {card.given}));
}

/// The points of a hardening curve.
struct Curve
{
    Numbers stresses;
    Numbers strains;
};

std::optional<double> fieldOf(const KeywordCard::Row& row, std::size_t at)
{
    return at < row.size() ? row[at] : std::nullopt;
}

/// Returns the reason why the lines of a card are not one curve of stress over strain; absent if they are.
std::optional<Message> findObstacleToCurve(const KeywordCard& card)
{
    for (const KeywordCard::Row& row : card.rows) {
        if (fieldOf(row, 2) != fieldOf(card.rows.front(), 2))
            return makeMessage(ReadText::TemperatureTable);
        if (row.size() > 3)
            return makeMessage(ReadText::MoreThanTemperature);
    }
    return std::nullopt;
}

/// Returns the points of a curve, of which a blank strain is 0.
/// \throws DeckError if there is no line, or a line has no stress
Curve takeCurve(const KeywordCard& card)
{
    Curve curve;
    for (const KeywordCard::Row& row : card.rows) {
        curve.stresses.push_back(fieldOf(row, 0).value_or(std::nan("")));
        curve.strains.push_back(fieldOf(row, 1).value_or(0.0));
    }
    const auto isMissing = [](double stress) { return std::isnan(stress); };
    if (curve.stresses.empty() || std::any_of(curve.stresses.begin(), curve.stresses.end(), isMissing))
        throw DeckError(tooFew(card, 2), card.line);
    return curve;
}

/// Takes a curve of one point, or of two points of which the second is beyond all strains, as yield stress and modulus.
/// Returns whether it is one.
bool takeModulus(const Curve& curve, MaterialReading& material)
{
    const std::size_t count = curve.strains.size();
    if (count > 2 || curve.strains[0] != 0.0 || (count == 2 && curve.strains[1] < unlimitedStrain))
        return false;
    const double modulus = count == 1 ? 0.0 : (curve.stresses[1] - curve.stresses[0]) / curve.strains[1];
    material.setNumber(Id::PlasticInitialYieldStress, curve.stresses[0]);
    material.setNumber(Id::PlasticHardeningFactor, modulus);
    material.convert(Id::PlasticHardeningFactor,
                     count == 1 ? makeMessage(ReadText::FromOnePoint)
                                : makeMessage(ReadText::FromTwoPoints, {vxMat::formatNumber(curve.strains[1])}));
    return true;
}

/// Returns the reason why a plastic card cannot be read; absent if it can.
std::optional<Message> findObstacleToPlasticity(const KeywordCard& card)
{
    const std::string hardening = card.word("HARDENING");
    if (!hardening.empty() && hardening != "KINEMATIC" && hardening != "ISOTROPIC")
        return makeMessage(ReadText::NoModelForKind, {card.given});
    if (card.hasParameter("RATE"))
        return makeMessage(ReadText::OverStrainRate);
    return findObstacleToCurve(card);
}

void readPlastic(const KeywordCard& card, MaterialReading& material)
{
    if (auto obstacle = findObstacleToPlasticity(card)) {
        material.refuse(card.name, std::move(*obstacle));
        return;
    }
    Curve curve = takeCurve(card);
    if (const auto temperature = fieldOf(card.rows.front(), 2))
        material.noteTemperature(card.name, *temperature);
    material.setSwitch(Id::Plasticity);
    material.setWord(Id::PlasticYieldType, "Mises");
    const bool isModulus = takeModulus(curve, material);
    if (!isModulus)
        setHardeningCurve(material, std::move(curve.stresses), std::move(curve.strains));
    const bool isKinematic = card.word("HARDENING") == "KINEMATIC";
    material.setWord(Id::PlasticHardeningType, isKinematic ? "Kinematic" : isModulus ? "Bilinear" : "Multilinear");
}

/// Returns whether a law is time hardening. Strain hardening is, if the strain rate does not depend on the time.
bool isTimeHardening(const std::string& law, double m)
{
    return law.empty() || law == "NORTON" || law == "TIME" || (law == "STRAIN" && m == 0.0);
}

void setCreep(const KeywordCard& card, const Numbers& constants, MaterialReading& material)
{
    material.setSwitch(Id::Creep);
    material.setNumber(Id::CreepModulusA, constants[0]);
    material.setNumber(Id::CreepModulusN, constants[1]);
    material.setNumber(Id::CreepModulusM, constants[2]);
    if (!isGiven(card, 2))
        material.convert(Id::CreepModulusM, makeMessage(ReadText::ValueAbsent));
    if (!card.hasParameter("LAW") && constants[2] != 0.0)
        material.note(makeMessage(ReadText::HardeningOfTime));
}

void readCreep(const KeywordCard& card, MaterialReading& material)
{
    const std::string law = card.word("LAW");
    std::optional<Numbers> constants;
    if (isTimeHardening(law, 0.0))
        constants = takeConstants(card, {3, 2}, material);
    if (constants && isTimeHardening(law, (*constants)[2]))
        setCreep(card, *constants, material);
    else if (constants || !isTimeHardening(law, 0.0))
        material.refuse(card.name, makeMessage(ReadText::NoModelForKind, {card.given}));
}

/// One term of a Prony series, g, k and tau, in one line.
void readViscoelastic(const KeywordCard& card, MaterialReading& material)
{
    if (card.word("TIME") != "PRONY") {
        material.refuse(card.name, makeMessage(ReadText::OverFrequency));
        return;
    }
    if (card.rows.size() > 1) {
        material.refuse(card.name, makeMessage(ReadText::SeveralTerms, {std::to_string(card.rows.size())}));
        return;
    }
    const auto constants = takeConstants(card, {3, 1}, material);
    if (!constants)
        return;
    if (!isGiven(card, 2))
        throw DeckError(tooFew(card, 3), card.line);
    if ((*constants)[1] != 0.0) {
        material.refuse(card.name, makeMessage(ReadText::BulkRelaxes));
        return;
    }
    material.setSwitch(Id::ViscoElasticity);
    material.setNumber(Id::ShearRelaxationModulus, (*constants)[0]);
    material.setNumber(Id::RelaxationTime, (*constants)[2]);
}

/// The bulk modulus of a fluid. With the density, it gives the speed of sound.
void readAcousticMedium(const KeywordCard& card, MaterialReading& material)
{
    const bool isBulkModulus = card.parameters.empty() || card.hasParameter("BULKMODULUS");
    if (!isBulkModulus) {
        material.refuse(card.name, makeMessage(ReadText::NoModelForKind, {card.given}));
        return;
    }
    const auto constants = takeConstants(card, {1, 1}, material);
    if (!constants)
        return;
    const double squared = constants->front() / material.number(Id::Density).value_or(0.0);
    if (!(squared > 0.0) || !std::isfinite(squared)) {
        material.refuse(card.name, makeMessage(ReadText::NoSpeedOfSound));
        return;
    }
    material.setNumber(Id::SpeedOfSound, std::sqrt(squared));
    material.convert(Id::SpeedOfSound, makeMessage(ReadText::FromBulkModulus));
}

/// A card of a material whose numbers are read. The cards are read in this order.
struct CardReader
{
    const char* card;
    void (*read)(const KeywordCard& card, MaterialReading& material);
    const char* parameters; ///< those that the function reads, in capitals and without blanks, each between blanks
};

constexpr CardReader cardReaders[] = {
    {"*DENSITY", readDensity, ""},
    {"*SPECIFIC HEAT", readSpecificHeat, ""},
    {"*CONDUCTIVITY", readConductivity, " TYPE "},
    {"*FLUID CONSTANTS", readFluidConstants, ""},
    {"*ELASTIC", readElastic, " TYPE MODULI "},
    {"*HYPERELASTIC", readHyperelastic, " NEOHOOKE MOONEY-RIVLIN ARRUDA-BOYCE REDUCEDPOLYNOMIAL POLYNOMIAL N MODULI "},
    {"*PLASTIC", readPlastic, " HARDENING RATE "},
    {"*CREEP", readCreep, " LAW "},
    {"*ELECTRICAL CONDUCTIVITY", readElectricalConductivity, " TYPE "},
    {"*VISCOSITY", readViscosity, ""},
    {"*VISCOELASTIC", readViscoelastic, " TIME "},
    {"*ACOUSTIC MEDIUM", readAcousticMedium, " BULKMODULUS "},
    {"*DIELECTRIC", readDielectric, " TYPE "},
    {"*MAGNETIC PERMEABILITY", readPermeability, " TYPE NONLINEAR "},
};

/// Reports the parameters of a card that are not evaluated. They may change the meaning of its numbers.
void refuseOtherParameters(const KeywordCard& card, const CardReader& reader, MaterialReading& material)
{
    for (const auto& [name, value] : card.parameters) {
        const bool isKnown = name == "DEPENDENCIES" || name == "INPUT" ||
                             std::string_view(reader.parameters).find(" " + name + " ") != std::string_view::npos;
        if (!isKnown)
            material.refuse(card.name, makeMessage(ReadText::ParameterNotRead, {vxjson::shortened(toUtf8(name))}));
    }
}

void removeAll(const std::vector<std::int32_t>& ids, MaterialReading& material)
{
    for (const std::int32_t id : ids)
        material.remove(id);
}

/// Without MODULI=INSTANTANEOUS, the elastic constants beside *VISCOELASTIC are those after relaxation. The catalogue has
/// those before: the shear modulus over 1 - g, with the same bulk modulus.
void takeInstantaneous(const KeywordCard& elastic, MaterialReading& material)
{
    if (elastic.word("MODULI") == "INSTANTANEOUS")
        return;
    const double remains = 1.0 - *material.number(Id::ShearRelaxationModulus);
    const double e = *material.number(Id::YoungsModulus);
    const double nu = *material.number(Id::PoissonsRatio);
    const double shear = e / (2.0 * (1.0 + nu)) / remains;
    // The shear modulus over three bulk moduli, which is 0 if the solid is incompressible.
    const double ratio = (1.0 - 2.0 * nu) / (2.0 * (1.0 + nu)) / remains;
    const double instantaneous = 3.0 * shear / (1.0 + ratio);
    if (!(remains > 0.0) || !std::isfinite(instantaneous)) {
        removeAll(pronyIds(), material);
        material.refuse("*VISCOELASTIC",
                        makeMessage(remains > 0.0 ? ReadText::NotFiniteInCatalogue : ReadText::RelaxesWholly));
        return;
    }
    material.beginCard(elastic.name, elastic.line);
    material.setNumber(Id::YoungsModulus, instantaneous);
    material.setNumber(Id::PoissonsRatio, (1.0 - 2.0 * ratio) / (2.0 * (1.0 + ratio)));
    for (const std::int32_t id : {Id::YoungsModulus, Id::PoissonsRatio})
        material.convert(id, makeMessage(ReadText::FromLongTerm));
}

/// Completes viscoelasticity, which the catalogue has beside linear elasticity only.
void completeViscoelasticity(const MaterialCards& cards, MaterialReading& material)
{
    if (!material.has(Id::ViscoElasticity))
        return;
    if (material.has(Id::YoungsModulus)) {
        takeInstantaneous(cards.at(keywordOf("*ELASTIC")), material);
        return;
    }
    removeAll(pronyIds(), material);
    material.refuse("*VISCOELASTIC", makeMessage(Text::NeedsModel));
}

/// Divides an absolute number by that of vacuum, because the catalogue has the relative one.
void takeRelative(const MaterialCards& cards, const char* card, std::int32_t id, const VacuumConstant& vacuum,
                  const vxUnits::UnitSystem& units, MaterialReading& material)
{
    const auto absolute = material.number(id);
    if (!absolute)
        return;
    material.beginCard(card, cards.at(keywordOf(card)).line);
    material.setNumber(id, withoutRoundingError(*absolute / vacuum.in(units)));
    material.convert(id, makeMessage(ReadText::FromAbsolute));
}

/// Beside plasticity, the solver does not apply the creep law as the catalogue means it.
void completeCreep(MaterialReading& material)
{
    if (!material.has(Id::Creep) || !material.has(Id::Plasticity))
        return;
    removeAll(creepIds(), material);
    material.refuse("*CREEP", makeMessage(Text::CreepBesidePlasticity));
}

} // namespace

bool hasReadNumbers(const std::string& keyword)
{
    static const std::set<std::string> all = [] {
        std::set<std::string> made;
        for (const CardReader& one : cardReaders)
            made.insert(keywordOf(one.card));
        return made;
    }();
    return all.count(keyword) != 0;
}

bool isMaterialCard(const std::string& keyword)
{
    return hasReadNumbers(keyword) || isCardWithoutQuantity(keyword);
}

Message reasonWithoutNumbers(const std::string& keyword)
{
    return makeMessage(isCardWithoutQuantity(keyword) ? ReadText::NoQuantity : ReadText::UnknownKeyword);
}

void readCards(const MaterialCards& cards, const vxUnits::UnitSystem& units, MaterialReading& material)
{
    for (const CardReader& reader : cardReaders) {
        const auto found = cards.find(keywordOf(reader.card));
        if (found == cards.end())
            continue;
        const KeywordCard& card = found->second;
        if (auto obstacle = findObstacle(card)) {
            material.refuse(card.name, std::move(*obstacle));
            continue;
        }
        material.beginCard(card.name, card.line);
        const std::size_t lost = material.countLost();
        reader.read(card, material);
        if (card.includedBehind != 0)
            material.note(makeMessage(ReadText::MayGoOnElsewhere, {card.name, std::to_string(card.includedBehind)}));
        if (material.countLost() == lost)
            refuseOtherParameters(card, reader, material);
    }
    completeViscoelasticity(cards, material);
    completeCreep(material);
    takeRelative(cards, "*DIELECTRIC", Id::RelativePermittivity, vacuumPermittivity(), units, material);
    takeRelative(cards, "*MAGNETIC PERMEABILITY", Id::RelativePermeability, vacuumPermeability(), units, material);
}

} // namespace vxDecks
