#pragma once

#include "vxDecks/DecksExport.h"
#include "vxDecks/Format.h"
#include "vxUnits/Message.h"

#include <cstdint>
#include <vector>

namespace vxDecks {

/// The way in which a format takes a quantity.
enum class Transport
{
    Same,        ///< as it is, apart from its unit
    OtherForm,   ///< in another form with the same meaning
    Approximate, ///< in a form with nearly the same meaning
    None,        ///< not at all
};

/// The evidence that a solver understands a quantity as it is written.
enum class Proof
{
    Run,    ///< the solver computes the expected result
    Read,   ///< the solver, or another program, reads the deck without complaint
    NotRun, ///< the deck follows the manual; no program has read it
};

/// The place of a quantity in a format.
struct Mapping
{
    Format format = Format::Calculix;
    std::int32_t id = 0; ///< vxMat::PropertyId
    Transport transport = Transport::None;
    const char* card = "";  ///< "*ELASTIC"; empty if the format does not take the quantity
    const char* field = ""; ///< "number 1"
    vxUnits::MessageText
        how;                 ///< the form, or the reason why the format does not take the quantity; the id may be empty
    const char* manual = ""; ///< the keyword or section of the manual of the format
    Proof proof = Proof::NotRun;
};

/// Returns one row for each format and each of the 36 quantities, by format and in the order of the catalogue. Writers walk
/// these rows, and the document of the formats is made from them.
VXDECKS_EXPORT const std::vector<Mapping>& mappings();

/// Returns the row of a quantity; null if the catalogue does not have the id.
VXDECKS_EXPORT const Mapping* findMapping(Format format, std::int32_t id);

/// Returns the rows of the format of a dialect, or the rows of all formats for Dialect::Standard.
VXDECKS_EXPORT const std::vector<Mapping>& mappings(Dialect dialect);

/// Returns the row of a quantity in a dialect of a format; null if the catalogue does not have the id. A format without the
/// dialect has its standard row.
VXDECKS_EXPORT const Mapping* findMapping(Format format, std::int32_t id, Dialect dialect);

/// Returns "run", "read by another program" or "not run".
VXDECKS_EXPORT const char* nameOf(Proof proof);

/// Returns every text of the messages of this library, for translators.
VXDECKS_EXPORT const std::vector<vxUnits::MessageText>& messageTexts();

} // namespace vxDecks
