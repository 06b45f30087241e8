#pragma once

#include <cstddef>
#include <string>

namespace vxtest {

/// The outcome of the runs of decks in one analysis.
struct RunRow
{
    std::string analysis;
    std::size_t builtIn = 0;  ///< number of built-in materials
    std::size_t ofCorpus = 0; ///< number of materials of decks as people write them
    std::size_t random = 0;   ///< number of random materials
    std::string systems;      ///< the unit systems of the decks of each material
    double difference = 0.0;  ///< the largest one of the results in both systems, relative
    std::string reference;    ///< of the deviation: "curve of uniaxial tension"
    double deviation = 0.0;   ///< the largest one from the reference, relative
};

/// Adds a row to the table of runs, which is printed after the last test. Expects that docs/decks.md has the row. If the
/// environment variable VX_DECK_RUNS has the path of a document, writes the table into it instead.
void recordRun(const RunRow& row);

} // namespace vxtest
