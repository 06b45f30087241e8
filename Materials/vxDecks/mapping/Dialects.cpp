#include "vxDecks/Mapping.h"
#include "vxMaterial/model/PropertyId.h"

#include <algorithm>

namespace vxDecks {

namespace {

using Id = vxMat::PropertyId;
using vxUnits::MessageText;

constexpr Transport same = Transport::Same;
constexpr Transport otherForm = Transport::OtherForm;

constexpr MessageText plain{"", ""};
constexpr MessageText byParameter{"decks.how.by-parameter", "switched on by a parameter of the card"};
constexpr MessageText bulkModulus{"decks.how.acoustic-bulk",
                                  "as the bulk modulus, the density times the square of the speed"};
constexpr MessageText permittivity{"decks.how.permittivity", "as the permittivity, times that of vacuum"};
constexpr MessageText permeability{"decks.how.permeability", "as the permeability, times that of vacuum"};

/// The rows of the commercial dialect that differ from those of CalculiX.
const std::vector<Mapping>& differences()
{
    static const std::vector<Mapping> rows{
        {Format::Calculix, Id::SpeedOfSound, otherForm, "*ACOUSTIC MEDIUM", "BULK MODULUS: number 1", bulkModulus,
         "*ACOUSTIC MEDIUM"},
        {Format::Calculix, Id::DynamicViscosity, same, "*VISCOSITY", "number 1", plain, "*VISCOSITY"},
        {Format::Calculix, Id::IncompressibilityParameterD1, same, "*HYPERELASTIC", "last number", plain,
         "*HYPERELASTIC"},
        {Format::Calculix, Id::ViscoElasticity, same, "*VISCOELASTIC", "TIME=PRONY", byParameter, "*VISCOELASTIC"},
        {Format::Calculix, Id::RelaxationTime, same, "*VISCOELASTIC", "number 3", plain, "*VISCOELASTIC"},
        {Format::Calculix, Id::ShearRelaxationModulus, same, "*VISCOELASTIC", "number 1", plain, "*VISCOELASTIC"},
        {Format::Calculix, Id::Creep, same, "*CREEP", "LAW=TIME", byParameter, "*CREEP"},
        {Format::Calculix, Id::RelativePermittivity, otherForm, "*DIELECTRIC", "number 1", permittivity, "*DIELECTRIC"},
        {Format::Calculix, Id::RelativePermeability, otherForm, "*MAGNETIC PERMEABILITY", "number 1", permeability,
         "*MAGNETIC PERMEABILITY"},
    };
    return rows;
}

std::vector<Mapping> commercialRows()
{
    std::vector<Mapping> rows;
    for (const Mapping& standard : mappings()) {
        if (standard.format != Format::Calculix)
            continue;
        const auto& other = differences();
        const auto found =
            std::find_if(other.begin(), other.end(), [&standard](const Mapping& row) { return row.id == standard.id; });
        rows.push_back(found == other.end() ? standard : *found);
        rows.back().proof = Proof::NotRun;
    }
    return rows;
}

} // namespace

const std::vector<Mapping>& mappings(Dialect dialect)
{
    static const std::vector<Mapping> commercial = commercialRows();
    return dialect == Dialect::Commercial ? commercial : mappings();
}

const Mapping* findMapping(Format format, std::int32_t id, Dialect dialect)
{
    const auto& rows = mappings(dialect);
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [format, id](const Mapping& row) { return row.format == format && row.id == id; });
    return found == rows.end() ? findMapping(format, id) : &*found;
}

} // namespace vxDecks
