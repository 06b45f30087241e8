#pragma once

#include "vxDecks/DecksExport.h"

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
    const char* name = "";      ///< "calculix", as users type it; never changes
    const char* title = "";     ///< "CalculiX"
    const char* manual = "";    ///< the public manual that the mapping table follows
    const char* extension = ""; ///< "inp"
};

/// Returns every format that can be written, in the order of tables.
VXDECKS_EXPORT const std::vector<FormatInfo>& formats();

/// Returns the format with a name, in upper or lower case; null if there is none.
VXDECKS_EXPORT const FormatInfo* findFormat(std::string_view name);

/// Returns the entry of a format.
VXDECKS_EXPORT const FormatInfo& infoOf(Format format);

} // namespace vxDecks
