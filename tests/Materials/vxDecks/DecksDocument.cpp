#include "DecksDocument.h"

#include "MarkdownTable.h"

#include "vxDecks/Mapping.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <vector>

namespace vxtest {

namespace {

using vxDecks::FormatInfo;
using vxDecks::Mapping;
using vxDecks::Transport;

using Cells = std::vector<std::string>;

std::string code(const std::string& text)
{
    return text.empty() ? "-" : "`" + text + "`";
}

std::string overview()
{
    Cells heading{"quantity"};
    for (const FormatInfo& format : vxDecks::formats())
        heading.emplace_back(format.title);
    std::string text = tableHeader(heading);
    for (const vxMat::PropertyRecord& record : vxMat::propertyRecords()) {
        Cells cells{record.name};
        for (const FormatInfo& format : vxDecks::formats()) {
            const Mapping& mapping = *vxDecks::findMapping(format.format, record.id);
            const bool isCarried = mapping.transport != Transport::None;
            cells.push_back(isCarried ? code(mapping.card) + ", " + nameOf(mapping.proof) : "-");
        }
        text += tableRow(cells);
    }
    return text;
}

/// The rows of a dialect that differ from those of its format.
std::string differencesOf(const vxDecks::DialectInfo& dialect)
{
    std::string text = tableHeader({"quantity", "card", "field", "form", "section of the manual", "proof"});
    for (const Mapping& one : vxDecks::mappings(dialect.dialect)) {
        const Mapping& standard = *vxDecks::findMapping(one.format, one.id);
        const bool isOther = std::string(one.card) != standard.card || std::string(one.field) != standard.field ||
                             one.transport != standard.transport;
        if (isOther)
            text += tableRow({vxMat::findPropertyRecord(one.id)->name, code(one.card), one.field,
                              *one.how.english ? one.how.english : "as it is", one.manual, nameOf(one.proof)});
    }
    return text;
}

std::string detailsOf(const FormatInfo& format)
{
    std::string text =
        tableHeader({"quantity", "card", "field", "form, or why it is lost", "section of the manual", "proof"});
    for (const vxMat::PropertyRecord& record : vxMat::propertyRecords()) {
        const Mapping& one = *vxDecks::findMapping(format.format, record.id);
        const bool isCarried = one.transport != Transport::None;
        text += tableRow({record.name, code(one.card), isCarried ? one.field : "-",
                          *one.how.english ? one.how.english : "as it is", one.manual,
                          isCarried ? nameOf(one.proof) : "-"});
    }
    return text;
}

constexpr const char* tablesHeading = "## Tables\n";

} // namespace

std::string decksTables()
{
    std::string text =
        std::string(tablesHeading) +
        "\nThe tables are made from the table of `vxMaterial::decks` by `ninja vx_decks_document`; do not "
        "edit them.\n\n" +
        overview();
    for (const FormatInfo& format : vxDecks::formats())
        text += std::string("\n### ") + format.title + "\n\nAfter: " + format.manual + ".\n\n" + detailsOf(format);
    for (const vxDecks::DialectInfo& dialect : vxDecks::dialects()) {
        if (dialect.dialect != vxDecks::Dialect::Standard)
            text += std::string("\n### Dialect ") + dialect.name + "\n\nAfter: " + dialect.manual +
                    ". Quantities that " + vxDecks::infoOf(dialect.format).title + " has in another way:\n\n" +
                    differencesOf(dialect);
    }
    return text;
}

std::string withNewTables(const std::string& document)
{
    return document.substr(0, document.find(tablesHeading)) + decksTables();
}

} // namespace vxtest
