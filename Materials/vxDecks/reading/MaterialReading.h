#pragma once

#include "numbers/DeckUnits.h"
#include "vxDecks/DeckReading.h"
#include "vxDecks/Mapping.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vxDecks {

/// The unit system of a deck, and the units of its quantities, which are looked up once for all materials.
class ReadUnits
{
public:
    explicit ReadUnits(vxUnits::UnitSystem system) : m_units(std::move(system)) {}

    const vxUnits::UnitSystem& system() const { return m_units.system(); }
    /// Returns the unit of a quantity in the catalogue, up to the next call; absent if it has no numbers.
    const std::optional<vxUnits::Unit>& catalogueUnit(std::int32_t id,
                                                      const std::optional<vxUnits::CreepExponents>& creep) const
    {
        return m_units.of(id, creep).stored;
    }
    /// Converts the numbers of a material to the units of the catalogue.
    void convert(vxMat::MaterialBase& material) const { m_units.convertToCatalogue(material); }
    /// Returns the message that a quantity has another unit in the catalogue; empty if it has the same one, or no unit.
    std::vector<vxUnits::Message> change(std::int32_t id, const std::optional<vxUnits::CreepExponents>& creep) const;

private:
    mutable DeckUnits m_units;                                               ///< remembers units
    mutable std::map<std::int32_t, std::vector<vxUnits::Message>> m_changes; ///< of quantities whose units are fixed
};

/// One material while it is read: its quantities in the unit system of the deck, and the outcome for each of them and for the
/// cards that are not taken. finish() converts the numbers to the units of the catalogue.
class MaterialReading
{
public:
    /// `name` is the name in the deck. If it is empty, the material gets its number, or "Material", as its name. Bytes that
    /// are not UTF-8 are read as Latin-1.
    MaterialReading(Format format, const std::string& name, std::optional<std::uint32_t> number);

    const std::string& name() const { return m_name; }
    bool has(std::int32_t id) const { return m_material->hasProperty(id); }
    /// Returns the number of a quantity in the unit of the deck; absent if the material does not have it.
    std::optional<double> number(std::int32_t id) const;

    /// Names the card from which the next quantities come, and its line, for the report. Without it, the report has the cards of
    /// the mapping table.
    void beginCard(const std::string& card, std::size_t line)
    {
        m_card = card;
        m_line = line;
    }

    // Each of these replaces an earlier value.
    void setNumber(std::int32_t id, double number);
    void setList(std::int32_t id, std::vector<double> numbers);
    void setWord(std::int32_t id, const std::string& word);
    void setSwitch(std::int32_t id);
    /// Removes a quantity. Does nothing if the material does not have it.
    void remove(std::int32_t id);

    /// Reports a quantity as read from another form. Quantities are otherwise reported as carried, or as converted if the
    /// unit differs.
    void convert(std::int32_t id, vxUnits::Message how);
    void approximate(std::int32_t id, vxUnits::Message how);
    /// Reports a card, or a part of one, as not taken because the catalogue has no quantity for it. `what` is its keyword:
    /// "*EXPANSION". Of many cards only the first ones are told one by one.
    void lose(const std::string& what, vxUnits::Message why);
    /// Reports a card as not taken although the catalogue has its quantities, so that the user must give them.
    void refuse(const std::string& what, vxUnits::Message why);
    /// Returns the number of cards that are reported as not taken.
    std::size_t countLost() const { return m_lost.size() + m_omitted; }
    /// Adds a note about the material.
    void note(vxUnits::Message message);

    /// Notes that the numbers of a card are those at a temperature, in the unit of the deck, which the material does not keep.
    void noteTemperature(const std::string& card, double temperature);

    /// Adds the material and its report to a deck whose numbers are in a unit system. The object must not be used again.
    void finish(const ReadUnits& units, ReadDeck& deck);

private:
    struct Form
    {
        std::string card;     ///< empty if it is that of the mapping table
        std::size_t line = 0; ///< of the card; 0 if it is not known
        Outcome outcome = Outcome::Carried;
        std::vector<vxUnits::Message> how;
    };

    vxMat::MaterialProperty& take(std::int32_t id);
    ReportRow rowOf(std::int32_t id, const std::optional<vxUnits::CreepExponents>& creep, const ReadUnits& units) const;
    void addLost(ReportRow row);
    void refuseWhatIsNotFinite();
    std::vector<Finding> findings() const;
    void addLastNotes();

    Format m_format;
    std::string m_name;
    std::optional<std::uint32_t> m_number;
    std::unique_ptr<vxMat::CMaterial> m_material;
    std::map<std::int32_t, Form> m_forms;
    std::string m_card;
    std::size_t m_line = 0;
    std::vector<ReportRow> m_lost;
    std::size_t m_omitted = 0; ///< lost cards that m_lost does not have
    std::vector<vxUnits::Message> m_notes;
    std::map<double, std::string> m_temperatures; ///< the lists of cards by their temperature
};

} // namespace vxDecks
