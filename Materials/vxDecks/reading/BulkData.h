#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vxDecks {

/// An entry of bulk data.
struct BulkEntry
{
    std::string name;     ///< "MAT1": in capitals, without the mark of large fields
    std::size_t line = 0; ///< its first line, from 1
    std::string title;    ///< free for the visitor
    /// The fields from the second one on, eight for each line of small fields or two lines of large ones; in capitals, without
    /// blanks at their ends.
    std::vector<std::string> fields;
    std::string missing; ///< the name of a continuation that the file does not have; empty if the entry is whole

    /// Returns a field; empty if it is blank, or if the entry ends before it.
    std::string_view field(std::size_t index) const;
};

/// Receives the parts of bulk data.
class BulkVisitor
{
public:
    virtual ~BulkVisitor() = default;

    /// Takes a comment with its dollar sign, and its line.
    virtual void comment(std::string_view text, std::size_t line) = 0;
    /// Is called at BEGIN BULK. What came before belongs to other sections of the file, if this is the first one.
    virtual void beginBulk() = 0;
    /// Takes an INCLUDE statement with the name of the file.
    virtual void include(std::string_view file, std::size_t line) = 0;
    /// Is called at the first line of an entry, whose name and line are set. Returns whether the entry is wanted; the fields of
    /// other entries are skipped.
    virtual bool begin(BulkEntry& entry) = 0;
    /// Takes a wanted entry with all of its fields. Entries whose continuation lines stand elsewhere come later than entries
    /// between them.
    virtual void take(BulkEntry entry) = 0;
};

/// Reads bulk data up to ENDDATA or the end of the file, line by line. Fields are small (8 columns), large (16 columns) or free
/// (separated by commas). Continuation lines follow their entry, or have its name of continuation and stand anywhere after
/// it. Only wanted entries are in memory, and of these only such as wait for their continuation.
///
/// \throws DeckError if the file is binary, the stream fails, or a wanted entry has more than 200,000 fields
/// \throws std::bad_alloc
void readBulkData(std::istream& file, BulkVisitor& visitor);

/// Returns whether the beginning of a file is bulk data: it has a section of Nastran or the entry of a model or a material.
bool isBulkData(std::string_view beginning);

} // namespace vxDecks
