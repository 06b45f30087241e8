#include "texts/BulkTexts.h"

#include "texts/TextTable.h"

#include <array>
#include <utility>

namespace vxDecks {

namespace {

constexpr std::array<vxUnits::MessageText, static_cast<std::size_t>(BulkText::Count)> texts{{
    {"decks.nastran.too-many-fields", "the entry %1 has more than %2 fields"},
    {"decks.nastran.too-many-entries", "the material %1 has more than %2 entries"},
    {"decks.nastran.no-material-number", R"("%1" is not the number of a material; %2 needs a whole number above 0)"},
    {"decks.nastran.field-without-number", R"(the field %1 has "%2", which is not a number)"},
    {"decks.nastran.entries-not-taken",
     "The catalogue has no quantities for %1 (number of entries: %2, first in line %3)."},
    {"decks.nastran.more-entries-not-taken", "The catalogue has no quantities for %1 more kinds of entries."},
    {"decks.nastran.entry-repeated", "another entry has this number; that of line %1 is not taken"},
    {"decks.nastran.continuation-missing", R"(the continuation "%1" of %2 is not in the file)"},
    {"decks.nastran.temperature-tables", "tables over temperature are not taken"},
    {"decks.nastran.contradicts", "the number contradicts the others of the material"},
    {"decks.nastran.blank-means", "%1 is blank, which means %2"},
    {"decks.nastran.from-shear-modulus", "from the shear modulus: %1"},
    {"decks.nastran.from-bulk-modulus", "from the bulk modulus: %1"},
    {"decks.nastran.from-half-bulk-modulus", "from half the bulk modulus, 1 / D1"},
    {"decks.nastran.from-total-creep", "from the total form, strain = A / (M + 1) stress^N time^(M + 1)"},
    {"decks.nastran.from-total-strain", "from total strains, less stress / E"},
    {"decks.nastran.from-total-strain-rounded",
     "from total strains, less stress / E; the first one is not exactly stress / E, but read as plastic strain 0"},
    {"decks.nastran.other-first-slope", "from total strains, less stress / E; the slope up to the first stress is not "
                                        "E, but its plastic strain is read as 0"},
    {"decks.nastran.compression-not-taken", "the points of compression are not taken"},
    {"decks.nastran.heat-per-volume",
     "RHO of MAT4 is blank, which means 1: if the solver used the deck so, CP is the heat capacity of a volume"},
    {"decks.nastran.other-meaning-without", "the catalogue has no quantity for %1, and without it the others would "
                                            "mean something else"},
    {"decks.nastran.other-creep-law", "only the creep law of type 300 with a, b and d is taken"},
    {"decks.nastran.table-missing", "the table %1 is not in the file"},
    {"decks.nastran.table-beyond-bound",
     "the table %1 is not read, because the tables of the file have more than %2 points"},
    {"decks.nastran.table-of-other-kind", "the table does not have true stress over strain"},
    {"decks.nastran.table-not-from-origin",
     "the table is over total strain, but does not begin with the origin and the yield point"},
    {"decks.nastran.table-without-points", "the table has no points"},
    {"decks.matml.too-large", "the file has more than %1 MB; divide it into several files"},
    {"decks.matml.not-well-formed", "the XML is not well-formed: %1"},
    {"decks.matml.doctype", "the file has a document type declaration (DOCTYPE), which is not read because it may "
                            "define entities; remove it"},
    {"decks.matml.no-matml", "the file has no element MatML_Doc"},
    {"decks.matml.own-units", "The numbers of the file have their own units."},
    {"decks.matml.property-not-declared", "the file does not declare the property"},
    {"decks.matml.property-without-value", "the property has no value"},
    {"decks.matml.property-repeated", "the material has the quantity already"},
    {"decks.matml.unit-not-readable", R"(the unit "%1" is not known)"},
    {"decks.matml.unit-of-other-kind", R"(the unit "%1" does not fit the quantity)"},
    {"decks.matml.value-over-parameter", "the values depend on %1, which the catalogue does not have"},
    {"decks.matml.data-without-word", R"(the quantity does not take the word "%1")"},
    {"decks.nastran.redundant",
     "the other numbers of the material give it within 1 %: %1; the number itself is not kept"},
    {"decks.nastran.table-replaces", "the table replaces it"},
    {"decks.matml.too-many-nodes", "the file has more than %1 elements and attributes; divide it into several files"},
}};

} // namespace

vxUnits::Message makeMessage(BulkText text, std::vector<std::string> arguments)
{
    return messageOf(texts, text, std::move(arguments));
}

std::vector<vxUnits::MessageText> bulkTexts()
{
    return {texts.begin(), texts.end()};
}

} // namespace vxDecks
