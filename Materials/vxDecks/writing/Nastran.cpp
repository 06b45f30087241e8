#include "numbers/NumberField.h"
#include "texts/DeckTexts.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "writing/DeckWriter.h"
#include "writing/ModelReports.h"

#include <algorithm>
#include <variant>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;

/// A field of an entry: blank, a text or an integer, or a real number.
using Cell = std::variant<std::monostate, std::string, Real>;
using Cells = std::vector<Cell>;

const Cell blank{};
constexpr std::size_t smallWidth = 8;
constexpr std::size_t largeWidth = 16;
constexpr std::size_t longestComment = 70;

/// Returns a cell of a quantity of the material; blank if it does not have the quantity.
Cell cellOf(const MaterialDeck& deck, std::int32_t id)
{
    const auto number = deck.values().number(id);
    return number ? Cell(Real{*number, id}) : blank;
}

std::string textOf(const Cell& cell, std::size_t width)
{
    if (const auto* const text = std::get_if<std::string>(&cell))
        return *text;
    if (const auto* const number = std::get_if<Real>(&cell))
        return writeBulkReal(number->value, width);
    return {};
}

bool fits(const Cell& cell, std::size_t width)
{
    const auto* const number = std::get_if<Real>(&cell);
    return number == nullptr || isSameNumber(readBulkReal(writeBulkReal(number->value, width)), number->value);
}

bool fitsSmall(const Cell& cell)
{
    return fits(cell, smallWidth);
}

std::string padded(const std::string& text, std::size_t width)
{
    return text + std::string(width - std::min(width, text.size()), ' ');
}

/// Returns a line without the blanks and commas at its end, which have no meaning.
std::string withoutEnd(std::string line)
{
    line.erase(line.find_last_not_of(" ,") + 1);
    return line;
}

/// The form of an entry: fields of one width, in lines of 64 characters.
struct EntryForm
{
    bool isSmall = true;
    bool isFree = false; ///< divided by commas

    std::size_t width() const { return isSmall ? smallWidth : largeWidth; }
    std::size_t perLine() const { return isSmall ? 8 : 4; }
    const char* continuation() const { return isSmall ? "+" : "*"; }
    std::string field(const std::string& text, std::size_t wide) const
    {
        return isFree ? text + "," : padded(text, wide);
    }
};

EntryForm formOf(const MaterialDeck& deck, const Cells& cells)
{
    const FieldForm fields = deck.options().fields;
    const bool fitInSmall = std::all_of(cells.begin(), cells.end(), fitsSmall);
    const bool isSmall = fields == FieldForm::Small || (fields != FieldForm::Large && fitInSmall);
    return {isSmall, fields == FieldForm::Free};
}

void noteRounding(MaterialDeck& deck, const Cells& cells, std::size_t width)
{
    for (const Cell& cell : cells) {
        const auto* const number = std::get_if<Real>(&cell);
        if (number != nullptr && number->id != 0 && !fits(cell, width))
            deck.noteRounding(number->id, width);
    }
}

/// Writes an entry in the form that the user chose. By default, the fields have 8 characters, or 16 characters if a number
/// would lose digits.
void writeEntry(MaterialDeck& deck, const std::string& keyword, Cells cells)
{
    while (!cells.empty() && cells.back() == blank)
        cells.pop_back();
    const EntryForm form = formOf(deck, cells);
    noteRounding(deck, cells, form.width());
    const std::size_t perLine = form.perLine();
    // An entry in large fields has an even number of lines.
    const std::size_t lines = (cells.size() + 7) / 8 * (8 / perLine);
    for (std::size_t line = 0; line < lines; ++line) {
        const std::string mark = form.isSmall ? "" : "*";
        std::string text = form.field(line == 0 ? keyword + mark : form.continuation(), smallWidth);
        for (std::size_t i = line * perLine; i < (line + 1) * perLine; ++i)
            text += form.field(i < cells.size() ? textOf(cells[i], form.width()) : "", form.width());
        if (line + 1 < lines)
            text += form.continuation();
        deck.line(withoutEnd(std::move(text)));
    }
}

std::string numberOf(const MaterialDeck& deck)
{
    return std::to_string(deck.heading().number);
}

/// MAT1: MID, E, G, NU, RHO
void writeMat1(MaterialDeck& deck)
{
    const auto& model = deck.models().elastic.model;
    if (!model)
        return;
    writeEntry(deck, "MAT1",
               {numberOf(deck), Real{model->youngsModulus, Id::YoungsModulus}, blank,
                Real{model->poissonsRatio, Id::PoissonsRatio}, cellOf(deck, Id::Density)});
    reportElastic(deck);
    deck.carry(Id::Density);
}

/// TABLES1: number, seven blank fields, then pairs of total strain and stress from the origin
Cells stressStrainTable(const MaterialDeck& deck, const PlasticModel& model)
{
    const double youngs = deck.models().elastic.model->youngsModulus;
    Cells cells{numberOf(deck), blank, blank, blank, blank, blank, blank, blank, Real{0.0}, Real{0.0}};
    for (std::size_t i = 0; i < model.stresses.size(); ++i) {
        cells.emplace_back(
            Real{withoutRoundingError(model.strains[i] + model.stresses[i] / youngs), Id::PlasticStrain});
        cells.emplace_back(Real{model.stresses[i], Id::PlasticYieldStress});
    }
    cells.emplace_back("ENDT");
    return cells;
}

/// Returns whether each total strain of a table is larger than the one before, in the digits of its field too.
bool ascends(const MaterialDeck& deck, const Cells& table)
{
    const std::size_t width = formOf(deck, table).width();
    constexpr std::size_t first = 8;
    for (std::size_t i = first; i + 3 < table.size(); i += 2) {
        const bool isLarger = std::get<Real>(table[i]).value < std::get<Real>(table[i + 2]).value;
        if (!isLarger || textOf(table[i], width) == textOf(table[i + 2], width))
            return false;
    }
    return true;
}

const std::vector<std::int32_t> plasticIds{Id::Plasticity,         Id::PlasticYieldType, Id::PlasticHardeningType,
                                           Id::PlasticYieldStress, Id::PlasticStrain,    Id::PlasticInitialYieldStress};

/// MATS1: MID, TID, TYPE, H, YF, HR, LIMIT1
void writeMats1(MaterialDeck& deck)
{
    const auto& model = deck.models().plastic.model;
    if (!model)
        return;
    const std::string rule = model->isKinematic ? "2" : "1";
    const bool isTabulated = model->source == HardeningSource::Points;
    const Cell table = isTabulated ? Cell(numberOf(deck)) : blank;
    const Cells points = isTabulated ? stressStrainTable(deck, *model) : Cells();
    if (isTabulated && !ascends(deck, points)) {
        deck.refuse(plasticIds, makeMessage(Text::TotalStrainsDoNotAscend));
        return;
    }
    const Cell modulus = isTabulated ? blank : Cell(Real{model->modulus, Id::PlasticHardeningFactor});
    writeEntry(deck, "MATS1",
               {numberOf(deck), table, "PLASTIC", modulus, "1", rule,
                Real{model->yieldStress, isTabulated ? Id::PlasticYieldStress : Id::PlasticInitialYieldStress}});
    if (isTabulated) {
        writeEntry(deck, "TABLES1", points);
        deck.convert(Id::PlasticStrain, makeMessage(Text::AsTotalStrain));
    }
    reportPlastic(deck, *model, std::nullopt);
}

/// MATHP: MID, A10, A01, D1, RHO; the next lines are NA and A11
void writeMathp(MaterialDeck& deck)
{
    const auto& model = deck.models().hyperelastic.model;
    if (!model || model->kind == HyperelasticKind::ArrudaBoyce) {
        if (model)
            deck.refuse({Id::IncompressibilityParameterD1}, makeMessage(Text::NoArrudaBoyce));
        return;
    }
    const double bulk = takeBulkModulus(deck, *model, makeMessage(Text::AsHalfBulkModulus));
    Cells cells{numberOf(deck), Real{model->c10, Id::MaterialConstantC10}, Real{model->c01, Id::MaterialConstantC01},
                Real{withoutRoundingError(bulk / 2.0), Id::IncompressibilityParameterD1}, cellOf(deck, Id::Density)};
    if (model->c11 != 0.0) {
        cells.resize(17);
        cells[9] = "2"; // NA
        cells.emplace_back(Real{model->c11, Id::MaterialConstantC11});
    }
    writeEntry(deck, "MATHP", std::move(cells));
    reportConstants(deck, *model);
    deck.carry(Id::Density);
}

/// MAT4: MID, K, CP, RHO, H, mu
void writeMat4(MaterialDeck& deck)
{
    const std::vector<std::int32_t> ids{Id::ThermalConductivity, Id::SpecificHeat, Id::DynamicViscosity};
    if (!deck.values().has(Id::ThermalConductivity)) {
        deck.refuse(ids, makeMessage(Text::NeedsAnother, {vxMat::findPropertyRecord(Id::ThermalConductivity)->name}));
        return;
    }
    const bool hasDensity = deck.values().has(Id::Density);
    if (!hasDensity) // its default would be 1
        deck.refuse({Id::SpecificHeat},
                    makeMessage(Text::NeedsAnother, {vxMat::findPropertyRecord(Id::Density)->name}));
    writeEntry(deck, "MAT4",
               {numberOf(deck), cellOf(deck, Id::ThermalConductivity),
                hasDensity ? cellOf(deck, Id::SpecificHeat) : blank, cellOf(deck, Id::Density), blank,
                cellOf(deck, Id::DynamicViscosity)});
    carryAll(deck, ids);
    deck.carry(Id::Density);
}

/// MAT10: MID, BULK, RHO, C. It shares its numbers with MAT1 and MATHP.
void writeMat10(MaterialDeck& deck)
{
    if (!deck.values().has(Id::SpeedOfSound))
        return;
    const bool isSolid = deck.models().elastic.model || deck.models().hyperelastic.model;
    if (isSolid || !deck.values().has(Id::Density)) {
        deck.refuse({Id::SpeedOfSound},
                    isSolid ? makeMessage(Text::SolidHasNumber)
                            : makeMessage(Text::NeedsAnother, {vxMat::findPropertyRecord(Id::Density)->name}));
        return;
    }
    writeEntry(deck, "MAT10", {numberOf(deck), blank, cellOf(deck, Id::Density), cellOf(deck, Id::SpeedOfSound)});
    carryAll(deck, {Id::Density, Id::SpeedOfSound});
}

/// CREEP: MID, T0, EXP, FORM; TYPE, a, b, c, d. Type 300 is strain = a stress^b time^d.
void writeCreep(MaterialDeck& deck)
{
    const auto& model = deck.models().creep.model;
    if (!model)
        return;
    const double power = model->m + 1.0;
    const bool isTaken = model->n > 1.0 && model->n < 8.0 && power > 0.2 && power < 2.0;
    if (!isTaken) {
        deck.refuse(creepIds(), makeMessage(Text::CreepExponents, {"1 < N < 8", "-0.8 < M < 1"}));
        return;
    }
    writeEntry(deck, "CREEP",
               {numberOf(deck), blank, blank, "CRLAW", blank, blank, blank, blank, "300",
                Real{withoutRoundingError(model->factor / power), Id::CreepModulusA}, Real{model->n, Id::CreepModulusN},
                blank, Real{withoutRoundingError(power), Id::CreepModulusM}});
    deck.convert(Id::CreepModulusA, makeMessage(Text::AsTotalCreep));
    deck.convert(Id::CreepModulusM, makeMessage(Text::AsTotalCreep));
    carryAll(deck, creepIds());
}

std::string beginDeck(const vxUnits::UnitSystem& units)
{
    return "$ Units: " + baseUnits(units) + "\n";
}

void beginMaterial(MaterialDeck& deck)
{
    deck.line("$ Material " + std::to_string(deck.heading().number) + ": " + deck.heading().name);
}

} // namespace

const CardFormat& nastranFormat()
{
    static const CardFormat format{Format::Nastran,
                                   anyText(longestComment),
                                   beginDeck,
                                   beginMaterial,
                                   {{"MAT1", writeMat1},
                                    {"MAT10", writeMat10},
                                    {"MAT4", writeMat4},
                                    {"MATHP", writeMathp},
                                    {"MATS1", writeMats1},
                                    {"CREEP", writeCreep}},
                                   nullptr};
    return format;
}

} // namespace vxDecks
