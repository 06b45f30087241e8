#include "texts/DeckTexts.h"
#include "vxMaterial/model/NumberText.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/model/PropertyId.h"
#include "writing/DeckWriter.h"
#include "writing/ModelReports.h"
#include "writing/NumberField.h"

#include <algorithm>
#include <variant>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;

/// A field of an entry: blank, a text or an integer, or a real number.
using Cell = std::variant<std::monostate, std::string, double>;
using Cells = std::vector<Cell>;

const Cell blank{};
constexpr std::size_t smallWidth = 8;
constexpr std::size_t largeWidth = 16;
constexpr std::size_t longestComment = 70;

/// Returns a cell of a quantity of the material; blank if it does not have the quantity.
Cell cellOf(const MaterialDeck& deck, std::int32_t id)
{
    const auto number = deck.values().number(id);
    return number ? Cell(*number) : blank;
}

std::string textOf(const Cell& cell, std::size_t width)
{
    if (const auto* const text = std::get_if<std::string>(&cell))
        return *text;
    if (const auto* const number = std::get_if<double>(&cell))
        return writeBulkReal(*number, width);
    return {};
}

bool fitsSmall(const Cell& cell)
{
    const auto* const number = std::get_if<double>(&cell);
    return number == nullptr || isSameNumber(readBulkReal(writeBulkReal(*number, smallWidth)), *number);
}

std::string padded(const std::string& text, std::size_t width)
{
    return text + std::string(width - std::min(width, text.size()), ' ');
}

std::string withoutBlanksAtEnd(std::string line)
{
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

/// Writes an entry in fields of 8 characters, eight of them in a line, or if a number would lose digits there, in fields of 16
/// characters, four of them in a line.
void writeEntry(MaterialDeck& deck, const std::string& keyword, Cells cells)
{
    while (!cells.empty() && cells.back() == blank)
        cells.pop_back();
    const bool isSmall = std::all_of(cells.begin(), cells.end(), fitsSmall);
    const std::size_t width = isSmall ? smallWidth : largeWidth;
    const std::size_t perLine = isSmall ? 8 : 4;
    const std::string mark = isSmall ? "" : "*";
    // An entry in large fields has an even number of lines.
    const std::size_t lines = (cells.size() + 7) / 8 * (8 / perLine);
    for (std::size_t line = 0; line < lines; ++line) {
        std::string text = padded(line == 0 ? keyword + mark : (isSmall ? "+" : "*"), smallWidth);
        for (std::size_t i = line * perLine; i < (line + 1) * perLine; ++i)
            text += padded(i < cells.size() ? textOf(cells[i], width) : "", width);
        if (line + 1 < lines)
            text += isSmall ? "+" : "*";
        deck.line(withoutBlanksAtEnd(std::move(text)));
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
               {numberOf(deck), model->youngsModulus, blank, model->poissonsRatio, cellOf(deck, Id::Density)});
    reportElastic(deck);
    deck.carry(Id::Density);
}

/// TABLES1: number, seven blank fields, then pairs of total strain and stress from the origin
void writeStressStrainTable(MaterialDeck& deck, const PlasticModel& model)
{
    const double youngs = deck.models().elastic.model->youngsModulus;
    Cells cells{numberOf(deck), blank, blank, blank, blank, blank, blank, blank, 0.0, 0.0};
    for (std::size_t i = 0; i < model.stresses.size(); ++i) {
        cells.emplace_back(model.strains[i] + model.stresses[i] / youngs);
        cells.emplace_back(model.stresses[i]);
    }
    cells.emplace_back("ENDT");
    writeEntry(deck, "TABLES1", std::move(cells));
}

/// MATS1: MID, TID, TYPE, H, YF, HR, LIMIT1
void writeMats1(MaterialDeck& deck)
{
    const auto& model = deck.models().plastic.model;
    if (!model)
        return;
    const std::string rule = model->isKinematic ? "2" : "1";
    const bool isTabulated = model->source == HardeningSource::Points;
    const Cell table = isTabulated ? Cell(numberOf(deck)) : blank;
    const Cell modulus = isTabulated ? blank : Cell(model->modulus);
    writeEntry(deck, "MATS1", {numberOf(deck), table, "PLASTIC", modulus, "1", rule, model->yieldStress});
    if (isTabulated) {
        writeStressStrainTable(deck, *model);
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
    Cells cells{numberOf(deck), model->c10, model->c01, bulk / 2.0, cellOf(deck, Id::Density)};
    if (model->c11 != 0.0) {
        cells.resize(17);
        cells[9] = "2"; // NA
        cells.emplace_back(model->c11);
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
    writeEntry(deck, "MAT4",
               {numberOf(deck), cellOf(deck, Id::ThermalConductivity), cellOf(deck, Id::SpecificHeat),
                cellOf(deck, Id::Density), blank, cellOf(deck, Id::DynamicViscosity)});
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
               {numberOf(deck), blank, blank, "CRLAW", blank, blank, blank, blank, "300", model->factor / power,
                model->n, blank, power});
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
    deck.line("$ Material " + std::to_string(deck.heading().number) + ": " +
              commentText(deck.userName(), longestComment));
}

} // namespace

const CardFormat& nastranFormat()
{
    static const CardFormat format{Format::Nastran,
                                   {anyName(), 99999999},
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
