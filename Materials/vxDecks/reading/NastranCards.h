#pragma once

#include "reading/BulkData.h"
#include "reading/MaterialReading.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vxDecks {

/// A curve of a TABLES1 entry.
struct BulkTable
{
    std::size_t line = 0;
    std::string kind;               ///< the field behind the number; blank for stress over total strain
    std::size_t repeatedInLine = 0; ///< of the last other table with the same number; 0 if there is none
    std::string badNumber;          ///< the first field that is no number; empty if there is none
    std::vector<double> strains;
    std::vector<double> stresses;
};

/// The tables of a file, by their numbers.
struct BulkTables
{
    /// The number of points that are kept. Tables after them are not read.
    static constexpr std::size_t mostPoints = 2000000;

    std::map<std::uint32_t, BulkTable> tables;
    std::size_t points = 0;
    bool isFull = false;

    /// Adds the table of a TABLES1 entry. Of several tables with the same number, the first one is kept.
    void add(const BulkEntry& entry);
};

/// Returns whether the quantities of an entry are taken.
bool isReadCard(std::string_view name);

/// Sets the quantities of a material from its entries, which are not changed, and reports the fields that are not taken. Of
/// several entries with the same name, the first one is taken.
/// \throws DeckError if a field that is taken has no number
void readBulkCards(const std::vector<BulkEntry>& entries, const BulkTables& tables, MaterialReading& material);

} // namespace vxDecks
