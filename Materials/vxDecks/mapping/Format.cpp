#include "vxDecks/Format.h"

#include "vxMaterial/model/NumberText.h"

#include <algorithm>

namespace vxDecks {

const std::vector<FormatInfo>& formats()
{
    static const std::vector<FormatInfo> all{
        {Format::Calculix, "calculix", "CalculiX", "CalculiX CrunchiX User's Manual, version 2.20", "inp", 0},
        {Format::Nastran, "nastran", "Nastran", "MSC Nastran Quick Reference Guide, bulk data entries", "bdf",
         99999999},
        {Format::Apdl, "apdl", "Mechanical APDL", "Mechanical APDL Command Reference and Material Reference", "mac",
         99999},
        {Format::LsDyna, "lsdyna", "LS-DYNA", "LS-DYNA Keyword User's Manual, volumes I and II", "k", 99999999},
        {Format::Elmer, "elmer", "Elmer", "Elmer Models Manual", "sif", 999999999},
        {Format::Matml, "matml", "MatML", "MatML 3.1 schema", "xml", 999999999},
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

const std::vector<DialectInfo>& dialects()
{
    static const std::vector<DialectInfo> all{
        {Dialect::Standard, Format::Calculix, "calculix", "CalculiX", infoOf(Format::Calculix).manual},
        {Dialect::Commercial, Format::Calculix, "commercial", "the commercial relative of CalculiX",
         "the keywords reference of the commercial solver"},
    };
    return all;
}

const DialectInfo* findDialect(Format format, std::string_view name)
{
    const auto& all = dialects();
    const auto found = std::find_if(all.begin(), all.end(), [format, name](const DialectInfo& one) {
        return one.format == format && vxMat::equalIgnoringAsciiCase(one.name, name);
    });
    return found == all.end() ? nullptr : &*found;
}

} // namespace vxDecks
