#pragma once

#include "vxDecks/DecksExport.h"

#include <cstdint>
#include <string_view>
#include <vector>

/// Decks: the materials of a project in the input format of a solver, and a report of what the format does not carry.
namespace vxDecks {

/// A format in which materials can be written.
enum class Format
{
    Calculix,
    Nastran,
    Apdl,
    LsDyna,
    Elmer,
    Matml,
};

/// The name, the manual and the file name extension of a format.
struct FormatInfo
{
    Format format = Format::Calculix;
    const char* name = "";           ///< "calculix", as users type it; never changes
    const char* title = "";          ///< "CalculiX"
    const char* manual = "";         ///< the public manual that the mapping table follows
    const char* extension = "";      ///< "inp"
    std::uint32_t largestNumber = 0; ///< of a material; 0 if materials have names only
};

/// Returns every format that can be written, in the order of tables.
VXDECKS_EXPORT const std::vector<FormatInfo>& formats();

/// Returns the format with a name, in upper or lower case; null if there is none.
VXDECKS_EXPORT const FormatInfo* findFormat(std::string_view name);

/// Returns the entry of a format.
VXDECKS_EXPORT const FormatInfo& infoOf(Format format);

/// The dialect of a format: solvers of one family take different cards.
enum class Dialect
{
    Standard,   ///< that of the solver after which the format is named
    Commercial, ///< of the keywords of CalculiX: that of the commercial solver that they come from
};

/// The name and the manual of a dialect.
struct DialectInfo
{
    Dialect dialect = Dialect::Standard;
    Format format = Format::Calculix;
    const char* name = "";   ///< "commercial", as users type it; never changes
    const char* title = "";  ///< "commercial relative of CalculiX"
    const char* manual = ""; ///< the public manual that the dialect follows
};

/// Returns the dialects of the formats that have several, Dialect::Standard first.
VXDECKS_EXPORT const std::vector<DialectInfo>& dialects();

/// Returns the dialect of a format with a name, in upper or lower case; null if there is none.
VXDECKS_EXPORT const DialectInfo* findDialect(Format format, std::string_view name);

} // namespace vxDecks
