#pragma once

#include "models/MaterialModels.h"
#include "numbers/DeckUnits.h"
#include "numbers/NumberField.h"
#include "vxDecks/Deck.h"
#include "vxDecks/Mapping.h"
#include "vxMaterial/model/Material.h"
#include "vxUnits/MaterialValues.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vxDecks {

/// The name and the number of a material in a deck.
struct Heading
{
    std::string name;
    std::uint32_t number = 0; ///< 0 if materials have names only
};

/// One material while it is written: its values in the unit system of the deck, its text, and the outcome for each of its
/// quantities. A writer adds lines and says what becomes of the quantities; finish() reports the others as lost.
class MaterialDeck
{
public:
    /// Keeps references to the units and the options.
    MaterialDeck(Format format, const DeckMaterial& material, Heading heading, DeckUnits& units,
                 const DeckOptions& options);

    const Heading& heading() const { return m_heading; }
    /// Returns the name that the user sees.
    const std::string& userName() const { return m_source.name; }
    const vxUnits::MaterialValues& values() const { return m_values; }
    const MaterialModels& models() const { return m_models; }
    const vxUnits::UnitSystem& units() const { return m_units.system(); }
    /// Returns the units of a quantity of the material.
    const UnitPair& unitsOf(std::int32_t id) const { return m_units.of(id, m_values.creepExponents()); }
    const DeckOptions& options() const { return m_options; }
    bool isCommercial() const { return m_options.dialect == Dialect::Commercial; }

    /// Adds a line to the text.
    void line(std::string_view text);

    /// Reports a quantity as carried, or as converted if its unit differs from the unit of the catalogue. Does nothing if the
    /// material does not have the quantity.
    void carry(std::int32_t id);
    /// Does the same, and adds a remark for the user.
    void carry(std::int32_t id, vxUnits::Message remark);
    /// Reports a quantity as written in another form.
    void convert(std::int32_t id, vxUnits::Message how);
    void approximate(std::int32_t id, vxUnits::Message how);
    /// Does the same for a quantity that the deck needs, also if the material does not have it.
    void assume(std::int32_t id, vxUnits::Message how);
    /// Reports a quantity, when it has an outcome, as approximated, because its number is rounded to a field.
    void noteRounding(std::int32_t id, std::size_t width) { m_rounded[id] = width; }
    /// Returns the text of a number of at most `longest` characters, and notes the rounding of its quantity.
    std::string written(const Real& number, std::size_t longest);
    /// Reports quantities as lost although the format takes them.
    void refuse(const std::vector<std::int32_t>& ids, const vxUnits::Message& why);

    /// Reports each quantity that has no outcome yet as lost, and returns the report.
    MaterialReport finish();

    const std::string& text() const { return m_text; }

private:
    void removeNumbersThatAreNotFinite();
    void decide(std::int32_t id, Outcome outcome, std::vector<vxUnits::Message> how);
    void addRow(std::int32_t id, Outcome outcome, std::vector<vxUnits::Message> how);
    void tellRounding();
    void tellOtherNames();
    ReportRow lostRow(std::int32_t id) const;
    std::vector<vxUnits::Message> unitChange(std::int32_t id) const;

    Format m_format;
    const DeckMaterial& m_source;
    Heading m_heading;
    DeckUnits& m_units;
    const DeckOptions& m_options;
    vxMat::CMaterial m_converted;
    vxUnits::MaterialValues m_values;
    MaterialModels m_models;
    std::map<std::int32_t, ReportRow> m_rows;
    std::map<std::int32_t, std::size_t> m_rounded; ///< the widths of the fields of rounded numbers
    std::string m_text;
};

} // namespace vxDecks
