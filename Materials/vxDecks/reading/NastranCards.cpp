#include "reading/NastranCards.h"

#include "reading/BulkTitles.h"
#include "reading/HardeningCurve.h"
#include "reading/TextOfDeck.h"
#include "texts/BulkTexts.h"
#include "texts/DeckTexts.h"
#include "texts/ReadingTexts.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>
#include <sstream>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;

/// A field of an entry: its name in the manual, and whether its number is taken. A number that is not taken has no effect if it
/// is 0, or the default.
struct Field
{
    std::string name;
    bool isTaken = false;
    double ineffective = 0.0;
};

/// Returns the fields of a list of names: with "*" if the number is taken, with "=1" if 1 is the default; "." is a field
/// without a name.
std::vector<Field> fieldsOf(const char* list)
{
    std::vector<Field> fields;
    std::istringstream words{std::string(list)};
    for (std::string word; words >> word;) {
        const std::size_t end = std::min(word.find_first_of("*=."), word.size());
        const bool hasDefault = word.find("=1") != std::string::npos;
        fields.push_back({word.substr(0, end), word.back() == '*', hasDefault ? 1.0 : 0.0});
    }
    return fields;
}

class CardReader;

/// An entry whose quantities are taken. Fields without a name are not in the manual.
struct Card
{
    const char* name;
    void (*read)(CardReader& card);
    std::vector<Field> fields;
};

/// One entry of a material while its quantities are set.
class CardReader
{
public:
    CardReader(const Card& card, const BulkEntry& entry, const BulkTables& tables, MaterialReading& material)
        : m_card(card), m_entry(entry), m_tables(tables), m_material(material)
    {}

    void read();

    MaterialReading& material() { return m_material; }
    const BulkTables& tables() const { return m_tables; }
    std::size_t line() const { return m_entry.line; }
    std::string_view text(std::size_t index) const { return m_entry.field(index); }
    /// Returns "MAT1 E".
    std::string nameOf(std::size_t index) const;
    /// Returns the number of a field; absent if it is blank.
    /// \throws DeckError if it is no number
    std::optional<double> number(std::size_t index) const;
    double numberOr(std::size_t index, double blank) const { return number(index).value_or(blank); }
    /// Sets a quantity to the number of a field. Does nothing if the field is blank.
    void set(std::size_t index, std::int32_t id);
    void lose(std::size_t index, vxUnits::Message why) { m_material.lose(nameOf(index), std::move(why)); }
    void refuse(std::size_t index, vxUnits::Message why) { m_material.refuse(nameOf(index), std::move(why)); }
    /// Reports a number that is not kept beside others that give it: as refused, if it contradicts them.
    void loseRedundant(std::size_t index, double number, double given, const char* formula);
    /// Reports that nothing of the entry is taken although the catalogue has its quantities.
    void refuseAll(vxUnits::Message why) { m_material.refuse(m_card.name, std::move(why)); }

private:
    void loseOtherFields();

    const Card& m_card;
    const BulkEntry& m_entry;
    const BulkTables& m_tables;
    MaterialReading& m_material;
};

std::string CardReader::nameOf(std::size_t index) const
{
    const bool isKnown = index < m_card.fields.size() && !m_card.fields[index].name.empty();
    return std::string(m_card.name) + " " + (isKnown ? m_card.fields[index].name : std::to_string(index + 2));
}

std::optional<double> CardReader::number(std::size_t index) const
{
    const std::string_view field = text(index);
    if (field.empty())
        return std::nullopt;
    const auto number = readFortranNumber(field);
    if (!number)
        throw DeckError(makeMessage(BulkText::FieldWithoutNumber, {nameOf(index), toUtf8(field)}), m_entry.line);
    return number;
}

void CardReader::set(std::size_t index, std::int32_t id)
{
    if (const auto value = number(index))
        m_material.setNumber(id, *value);
}

void CardReader::loseOtherFields()
{
    static const Field unknown;
    for (std::size_t i = 0; i < m_entry.fields.size(); ++i) {
        const Field& field = i < m_card.fields.size() ? m_card.fields[i] : unknown;
        if (field.isTaken || text(i).empty() || readFortranNumber(text(i)) == field.ineffective)
            continue;
        lose(i, makeMessage(ReadText::NoQuantity));
    }
}

void CardReader::read()
{
    m_material.beginCard(m_card.name, m_entry.line);
    m_card.read(*this);
    loseOtherFields();
    if (!m_entry.missing.empty())
        m_material.note(makeMessage(BulkText::ContinuationMissing, {toUtf8(m_entry.missing), m_card.name}));
}

/// Returns a number without the error of the calculation of which it is the result: rounded to the 14th digit of the largest
/// number in it.
double withoutRounding(double number, double largest)
{
    constexpr int digits = 14;
    constexpr int largestExactPower = 22;
    if (largest == 0.0 || !std::isfinite(largest))
        return number;
    const int places =
        std::clamp(digits - static_cast<int>(std::floor(std::log10(std::abs(largest)))), 0, largestExactPower);
    const double power = std::pow(10.0, places);
    const double scaled = std::round(number * power) / power;
    return std::isfinite(scaled) && places < largestExactPower ? scaled : number;
}

/// Returns whether two numbers differ by more than a hundredth, which solvers take as a contradiction.
bool contradict(double one, double other)
{
    constexpr double tolerance = 0.01;
    return std::abs(one - other) > tolerance * std::abs(other);
}

void CardReader::loseRedundant(std::size_t index, double number, double given, const char* formula)
{
    if (contradict(number, given))
        refuse(index, makeMessage(BulkText::Contradicts));
    else
        lose(index, makeMessage(BulkText::Redundant, {formula}));
}

void setElastic(CardReader& card, double youngs, std::optional<double> poissons)
{
    MaterialReading& material = card.material();
    material.setSwitch(Id::IsotropicElasticity);
    material.setNumber(Id::YoungsModulus, youngs);
    material.setNumber(Id::PoissonsRatio, poissons.value_or(0.0));
    if (!poissons)
        material.convert(Id::PoissonsRatio, makeMessage(BulkText::BlankMeans, {card.nameOf(3), "0"}));
}

/// Reads MAT1: MID, E, G, NU, RHO. Two of E, G and NU give the third one.
void readMat1(CardReader& card)
{
    const auto youngs = card.number(1);
    const auto shear = card.number(2);
    const auto poissons = card.number(3);
    card.set(4, Id::Density);
    const bool canDivide = shear && *shear != 0.0;
    if (youngs && (poissons || !canDivide)) {
        setElastic(card, *youngs, poissons);
        if (canDivide)
            card.loseRedundant(2, *shear, *youngs / (2.0 * (1.0 + *poissons)), "E / (2 (1 + NU))");
    } else if (youngs) {
        setElastic(card, *youngs, withoutRounding(*youngs / (2.0 * *shear) - 1.0, 1.0));
        card.material().convert(Id::PoissonsRatio, makeMessage(BulkText::FromShearModulus, {"E / (2 G) - 1"}));
    } else if (shear && poissons) {
        setElastic(card, 2.0 * (1.0 + *poissons) * *shear, poissons);
        card.material().convert(Id::YoungsModulus, makeMessage(BulkText::FromShearModulus, {"2 (1 + NU) G"}));
    } else if (shear) {
        card.lose(2, makeMessage(ReadText::NoQuantity));
    } else if (poissons) {
        card.set(3, Id::PoissonsRatio);
    }
}

/// Reads MAT10: MID, BULK, RHO, C. Two of the three numbers give the third one.
void readMat10(CardReader& card)
{
    const auto bulk = card.number(1);
    const auto density = card.number(2);
    const auto speed = card.number(3);
    MaterialReading& material = card.material();
    card.set(2, Id::Density);
    card.set(3, Id::SpeedOfSound);
    if (bulk && density && !speed && *bulk > 0.0 && *density > 0.0) {
        material.setNumber(Id::SpeedOfSound, std::sqrt(*bulk / *density));
        material.convert(Id::SpeedOfSound, makeMessage(BulkText::FromBulkModulus, {"sqrt(BULK / RHO)"}));
    } else if (bulk && speed && !density && *speed > 0.0) {
        material.setNumber(Id::Density, *bulk / (*speed * *speed));
        material.convert(Id::Density, makeMessage(BulkText::FromBulkModulus, {"BULK / C^2"}));
    } else if (bulk && density && speed) {
        card.loseRedundant(1, *bulk, *density * *speed * *speed, "RHO C^2");
    } else if (bulk && !density && !speed) {
        card.lose(1, makeMessage(ReadText::NoQuantity));
    }
}

/// Reads MAT4: MID, K, CP, RHO, H, mu
void readMat4(CardReader& card)
{
    MaterialReading& material = card.material();
    card.set(1, Id::ThermalConductivity);
    card.set(2, Id::SpecificHeat);
    card.set(5, Id::DynamicViscosity);
    const auto density = card.number(3);
    const auto known = material.number(Id::Density);
    if (density && known && *density != *known)
        card.loseRedundant(3, *density, *known, "RHO");
    if (!known)
        card.set(3, Id::Density);
    if (!density && material.has(Id::SpecificHeat))
        material.note(makeMessage(BulkText::HeatPerVolume));
}

/// Returns whether a field of MATHP is a constant of the strain energy that the catalogue does not have.
bool isOtherConstant(std::size_t index)
{
    constexpr std::size_t first = 16;
    constexpr std::size_t a11 = 17;
    constexpr std::size_t end = 48;
    return index >= first && index < end && index != a11;
}

/// Reads MATHP: MID, A10, A01, D1, RHO; the next lines have the constants of higher order.
void readMathp(CardReader& card)
{
    MaterialReading& material = card.material();
    card.set(4, Id::Density);
    for (std::size_t i = 0; i < 48; ++i) {
        if (isOtherConstant(i) && !card.text(i).empty() && readFortranNumber(card.text(i)) != 0.0) {
            card.refuseAll(makeMessage(BulkText::OtherMeaningWithout, {card.nameOf(i)}));
            return;
        }
    }
    const double a10 = card.numberOr(1, 0.0);
    const double a01 = card.numberOr(2, 0.0);
    const double a11 = card.numberOr(17, 0.0);
    const auto half = card.number(3);
    const bool isMooney = a01 != 0.0 || a11 != 0.0;
    material.setSwitch(isMooney ? Id::MooneyRivlin : Id::NeoHooke);
    material.setNumber(Id::MaterialConstantC10, a10);
    if (isMooney)
        material.setNumber(Id::MaterialConstantC01, a01);
    if (a11 != 0.0)
        material.setNumber(Id::MaterialConstantC11, a11);
    const double halfBulk = half.value_or(1000.0 * (a10 + a01));
    if (halfBulk == 0.0) {
        material.refuse(card.nameOf(3), makeMessage(Text::ValueOutside, {"D1", "0", "above 0"}));
        return;
    }
    material.setNumber(Id::IncompressibilityParameterD1, 1.0 / halfBulk);
    material.convert(Id::IncompressibilityParameterD1,
                     half ? makeMessage(BulkText::FromHalfBulkModulus)
                          : makeMessage(BulkText::BlankMeans, {card.nameOf(3), "1000 (A10 + A01)"}));
}

/// Sets the points of a table over total strain, which begins at the origin and then has the yield point.
void setCurveOfTotalStrain(CardReader& card, const BulkTable& table, double youngs)
{
    MaterialReading& material = card.material();
    constexpr double roundedDigits = 1e-6;
    std::vector<double> strains;
    std::vector<double> stresses;
    for (std::size_t i = 1; i < table.strains.size(); ++i) {
        stresses.push_back(table.stresses[i]);
        strains.push_back(withoutRounding(table.strains[i] - table.stresses[i] / youngs, table.strains[i]));
    }
    const bool isOfOtherSlope = contradict(table.stresses[1] / table.strains[1], youngs);
    const bool isRounded = std::abs(strains.front()) > roundedDigits * std::abs(table.strains[1]);
    strains.front() = 0.0;
    setHardeningCurve(material, std::move(stresses), std::move(strains));
    if (isOfOtherSlope)
        material.approximate(Id::PlasticStrain, makeMessage(BulkText::OtherFirstSlope));
    else if (isRounded)
        material.approximate(Id::PlasticStrain, makeMessage(BulkText::FromTotalStrainRounded));
    else
        material.convert(Id::PlasticStrain, makeMessage(BulkText::FromTotalStrain));
}

/// Removes the points of compression, which mirror those of tension.
BulkTable withoutCompression(BulkTable table)
{
    std::size_t count = 0;
    while (count < table.strains.size() && table.strains[count] < 0.0)
        ++count;
    const auto end = static_cast<std::ptrdiff_t>(count);
    table.strains.erase(table.strains.begin(), table.strains.begin() + end);
    table.stresses.erase(table.stresses.begin(), table.stresses.begin() + end);
    return table;
}

/// Returns the table of MATS1; null if there is none. Reports why it is not taken.
const BulkTable* findTable(CardReader& card)
{
    const auto number = readBulkId(card.text(1));
    const auto& tables = card.tables().tables;
    const auto found = number ? tables.find(*number) : tables.end();
    if (found == tables.end()) {
        card.refuse(1, makeMessage(card.tables().isFull ? BulkText::TableBeyondBound : BulkText::TableMissing,
                                   {toUtf8(card.text(1)), std::to_string(BulkTables::mostPoints)}));
        return nullptr;
    }
    const BulkTable& table = found->second;
    if (table.repeatedInLine != 0)
        card.material().refuse("TABLES1", makeMessage(BulkText::EntryRepeated, {std::to_string(table.repeatedInLine)}));
    if (!table.badNumber.empty())
        throw DeckError(makeMessage(BulkText::FieldWithoutNumber, {"TABLES1", toUtf8(table.badNumber)}), table.line);
    return &table;
}

/// Returns whether the points of a table are over plastic strain; absent if they have another meaning.
std::optional<bool> isOverPlasticStrain(const CardReader& card, const BulkTable& table)
{
    const std::string_view measure = card.text(8);
    const bool isKnownMeasure =
        measure.empty() || measure == "0" || measure == "1" || measure == "UNDEF" || measure == "TRUE";
    if (!isKnownMeasure || !(table.kind.empty() || table.kind == "0"))
        return std::nullopt;
    return card.text(2) == "PLSTRN" || measure == "1";
}

void readTable(CardReader& card)
{
    const BulkTable* const found = findTable(card);
    if (found == nullptr)
        return;
    const auto isPlasticStrain = isOverPlasticStrain(card, *found);
    const BulkTable table = withoutCompression(*found);
    MaterialReading& material = card.material();
    const double youngs = material.number(Id::YoungsModulus).value_or(0.0);
    const std::size_t count = table.strains.size();
    if (!isPlasticStrain) {
        card.refuse(1, makeMessage(BulkText::TableOfOtherKind));
    } else if (count == 0) {
        card.refuse(1, makeMessage(BulkText::TableWithoutPoints));
    } else if (*isPlasticStrain) {
        setHardeningCurve(material, table.stresses, table.strains);
    } else if (youngs == 0.0) {
        card.refuse(1, makeMessage(Text::NeedsModel));
    } else if (count < 2 || table.strains[0] != 0.0 || table.stresses[0] != 0.0 || table.strains[1] == 0.0) {
        card.refuse(1, makeMessage(BulkText::TableNotFromOrigin));
    } else {
        setCurveOfTotalStrain(card, table, youngs);
    }
    if (material.has(Id::PlasticStrain) && count != found->strains.size())
        material.approximate(Id::PlasticStrain, makeMessage(BulkText::CompressionNotTaken));
}

/// Sets a word of plasticity by the number of a field, of which 1 is the default. Returns whether the catalogue has it.
bool setWord(CardReader& card, std::size_t index, std::int32_t id, const std::vector<const char*>& words)
{
    const std::size_t number = card.text(index).empty() ? 1 : readBulkId(card.text(index)).value_or(0);
    if (number == 0 || number > words.size() || *words[number - 1] == '\0') {
        card.refuseAll(
            makeMessage(BulkText::OtherMeaningWithout, {card.nameOf(index) + " = " + toUtf8(card.text(index))}));
        return false;
    }
    card.material().setWord(id, words[number - 1]);
    return true;
}

void readYieldStress(CardReader& card)
{
    constexpr std::size_t limit = 6;
    constexpr std::size_t angle = 7;
    const bool isMises = card.text(4).empty() || card.text(4) == "1";
    if (isMises) {
        card.set(limit, Id::PlasticInitialYieldStress);
        if (!card.text(angle).empty() && readFortranNumber(card.text(angle)) != 0.0)
            card.lose(angle, makeMessage(ReadText::NoQuantity));
        return;
    }
    card.set(angle, Id::PlasticFAI);
    if (!card.text(limit).empty())
        card.lose(limit, makeMessage(ReadText::NoQuantity));
}

/// Reads MATS1: MID, TID, TYPE, H, YF, HR, LIMIT1, LIMIT2
void readMats1(CardReader& card)
{
    const std::string_view type = card.text(2);
    MaterialReading& material = card.material();
    if (type != "PLASTIC" && type != "PLSTRN") {
        card.refuseAll(makeMessage(BulkText::OtherMeaningWithout, {card.nameOf(2) + " = " + toUtf8(type)}));
        return;
    }
    const bool isTabulated = !card.text(1).empty() && card.text(1) != "0";
    if (!setWord(card, 4, Id::PlasticYieldType, {"Mises", "", "Mohr-Coulomb", "Drucker-Prager"}))
        return;
    if (!setWord(card, 5, Id::PlasticHardeningType,
                 {isTabulated ? "Multilinear" : "Bilinear", "Kinematic", "Combined"})) {
        material.remove(Id::PlasticYieldType);
        return;
    }
    material.setSwitch(Id::Plasticity);
    readYieldStress(card);
    if (isTabulated) {
        if (!card.text(3).empty() && readFortranNumber(card.text(3)) != 0.0)
            card.lose(3, makeMessage(BulkText::TableReplaces));
        readTable(card);
        return;
    }
    material.setNumber(Id::PlasticHardeningFactor, card.numberOr(3, 0.0));
    if (card.text(3).empty())
        material.convert(Id::PlasticHardeningFactor, makeMessage(BulkText::BlankMeans, {card.nameOf(3), "0"}));
}

/// Reads CREEP: MID, T0, EXP, FORM; TYPE, a, b, c, d. Type 300 is strain = a stress^b time^d.
void readCreep(CardReader& card)
{
    const std::string_view form = card.text(3);
    const auto factor = card.number(9);
    const auto power = card.number(10);
    const auto time = card.number(12);
    if ((form != "CRLAW" && !form.empty()) || card.text(8) != "300" || !factor || !power || !time) {
        card.refuseAll(makeMessage(BulkText::OtherCreepLaw));
        return;
    }
    MaterialReading& material = card.material();
    material.setSwitch(Id::Creep);
    material.setNumber(Id::CreepModulusA, *factor * *time);
    material.setNumber(Id::CreepModulusN, *power);
    material.setNumber(Id::CreepModulusM, withoutRounding(*time - 1.0, 1.0));
    material.convert(Id::CreepModulusA, makeMessage(BulkText::FromTotalCreep));
    material.convert(Id::CreepModulusM, makeMessage(BulkText::FromTotalCreep));
}

/// Returns the entries whose quantities are taken, in the order in which they are read: an entry needs the numbers of those
/// before it.
const std::vector<Card>& cards()
{
    static const std::vector<Card> all{
        {"MAT1", readMat1, fieldsOf("MID* E* G* NU* RHO* A TREF GE ST SC SS MCSID")},
        {"MATHP", readMathp,
         fieldsOf("MID* A10* A01* D1* RHO* AV TREF GE "
                  ". NA* .* . . . . . "
                  "A20 A11* A02 D2 . . . . "
                  "A30 A21 A12 A03 D3 . . . "
                  "A40 A31 A22 A13 A04 D4 . . "
                  "A50 A41 A32 A23 A14 A05 D5 . "
                  "TAB1 TAB2 TAB3 TAB4 . . TABD ")},
        {"MAT10", readMat10, fieldsOf("MID* BULK* RHO* C* GE ALPHA")},
        {"MAT4", readMat4, fieldsOf("MID* K* CP* RHO* H mu* HGEN=1 REFENTH TCH TDELTA QLAT")},
        {"MATS1", readMats1, fieldsOf("MID* TID* TYPE* H* YF* HR* LIMIT1* LIMIT2* STRMEAS*")},
        {"CREEP", readCreep, fieldsOf("MID* T0 EXP=1 FORM* TIDKP TIDCP TIDCS THRESH TYPE* a* b* c d* e f g")},
    };
    return all;
}

/// Returns whether an entry has tables over temperature for the fields of another one.
bool hasTemperatureTables(std::string_view name)
{
    return name.substr(0, 4) == "MATT";
}

/// Returns whether an entry is one of those of which a number has only one.
bool isOfOwnNumber(std::string_view name)
{
    return name == "MAT1" || name == "MATHP" || name == "MAT10";
}

} // namespace

void BulkTables::add(const BulkEntry& entry)
{
    constexpr std::size_t firstPoint = 8;
    const auto number = readBulkId(entry.field(0));
    if (const auto known = number ? tables.find(*number) : tables.end(); known != tables.end()) {
        known->second.repeatedInLine = entry.line;
        return;
    }
    const std::size_t size = entry.fields.size() / 2;
    isFull = isFull || points + size > mostPoints;
    if (!number || isFull)
        return;
    BulkTable table;
    table.line = entry.line;
    table.kind = entry.field(1);
    for (std::size_t i = firstPoint; i + 1 < entry.fields.size() && entry.fields[i] != "ENDT"; i += 2) {
        const std::string_view strain = entry.fields[i];
        const std::string_view stress = entry.fields[i + 1];
        if ((strain.empty() && stress.empty()) || strain == "SKIP" || stress == "SKIP")
            continue;
        const auto x = readFortranNumber(strain);
        const auto y = readFortranNumber(stress);
        if (!x || !y) {
            table.badNumber = x ? stress : strain;
            break;
        }
        table.strains.push_back(*x);
        table.stresses.push_back(*y);
    }
    points += table.strains.size();
    tables.emplace(*number, std::move(table));
}

bool isReadCard(std::string_view name)
{
    const auto& all = cards();
    return std::any_of(all.begin(), all.end(), [name](const Card& one) { return name == one.name; });
}

void readBulkCards(const std::vector<BulkEntry>& entries, const BulkTables& tables, MaterialReading& material)
{
    std::set<std::string_view> done;
    std::string_view owner;
    for (const Card& card : cards()) {
        for (const BulkEntry& entry : entries) {
            if (entry.name != card.name)
                continue;
            const bool isTaken = isOfOwnNumber(entry.name) && !owner.empty();
            if (isTaken || !done.insert(entry.name).second) {
                material.refuse(entry.name, makeMessage(BulkText::EntryRepeated, {std::to_string(entry.line)}));
                continue;
            }
            if (isOfOwnNumber(entry.name))
                owner = entry.name;
            CardReader(card, entry, tables, material).read();
        }
    }
    for (const BulkEntry& entry : entries) {
        if (hasTemperatureTables(entry.name))
            material.refuse(entry.name, makeMessage(BulkText::TemperatureTables));
        else if (!isReadCard(entry.name))
            material.lose(entry.name, makeMessage(ReadText::NoQuantity));
    }
}

} // namespace vxDecks
