#include "vxDecks/Format.h"

#include "vxMaterial/model/NumberText.h"

#include <algorithm>

namespace vxDecks {

const std::vector<FormatInfo>& formats()
{
    static const std::vector<FormatInfo> all{
        {Format::Calculix, "calculix", "CalculiX", "CalculiX CrunchiX User's Manual, version 2.20", "inp"},
        {Format::Nastran, "nastran", "Nastran", "MSC Nastran Quick Reference Guide, bulk data entries", "bdf"},
        {Format::Apdl, "apdl", "Mechanical APDL", "Mechanical APDL Command Reference and Material Reference", "mac"},
        {Format::LsDyna, "lsdyna", "LS-DYNA", "LS-DYNA Keyword User's Manual, volumes I and II", "k"},
        {Format::Elmer, "elmer", "Elmer", "Elmer Models Manual", "sif"},
        {Format::Matml, "matml", "MatML", "MatML 3.1 schema", "xml"},
    };
    return all;
}

const FormatInfo* findFormat(std::string_view name)
{
    const auto& all = formats();
    const auto found = std::find_if(all.begin(), all.end(), [name](const FormatInfo& one) {
        return vxMat::equalIgnoringAsciiCase(one.name, name);
    });
    return found == all.end() ? nullptr : &*found;
}

const FormatInfo& infoOf(Format format)
{
    const auto& all = formats();
    return *std::find_if(all.begin(), all.end(), [format](const FormatInfo& one) { return one.format == format; });
}

} // namespace vxDecks
