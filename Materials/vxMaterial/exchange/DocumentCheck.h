#pragma once

#include "vxMaterial/exchange/ExchangeExport.h"

#include <json/value.h>

#include <cstddef>
#include <string>
#include <vector>

namespace vxCAE {

/// A message about a place in a document, and the path of the place: "$.material[2].Props[0].prop_value".
struct Finding
{
    std::string path;
    std::string message;
};

/// The maximum number of findings, and of notes, in a CheckReport. A document may have millions of empty elements, and a
/// message about each of them takes many times as much memory as the element.
inline constexpr std::size_t mostFindings = 1000;

/// The result of a check, in the order of the document's sections. The messages are English: only the command line
/// shows them, and other programs read its output.
struct CheckReport
{
    /// Add a finding or note, or count it if there are mostFindings already.
    void find(const std::string& path, const std::string& message) { add(findings, omittedFindings, path, message); }
    void note(const std::string& path, const std::string& message) { add(notes, omittedNotes, path, message); }

    std::vector<Finding> findings; ///< faults: a reader loses, misreads or refuses a value, or it is out of its range
    std::vector<Finding> notes;    ///< correct but worth knowing: words and lists are not exchanged
    std::size_t omittedFindings = 0;
    std::size_t omittedNotes = 0;

private:
    static void add(std::vector<Finding>& list, std::size_t& omitted, const std::string& path,
                    const std::string& message)
    {
        if (list.size() < mostFindings)
            list.push_back({path, message});
        else
            ++omitted;
    }
};

/// Checks whether readers take every value of an exchange document of either kind without loss, and whether it keeps
/// the rules for property values (vxMat::checkNumber, vxMat::CombinationCheck). Does not throw because of a value.
///
/// `materials` is the material document that belongs to an analysis document, or null. Domains may refer to its
/// materials and to the materials in `document` itself.
///
/// Does not find repeated members: a document contains only the last of them. The reader of the JSON text returns their
/// paths (vxjson::JsonReading::repeatedMembers).
VXCAE_EXPORT CheckReport checkDocument(const Json::Value& document, const Json::Value* materials = nullptr);

} // namespace vxCAE
