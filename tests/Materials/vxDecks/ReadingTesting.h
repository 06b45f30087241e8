#pragma once

#include "vxDecks/DeckReading.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vxtest {

/// Reads a text. Without the name of a unit system, the units are not chosen.
vxDecks::ReadDeck readText(vxDecks::Format format, const std::string& text, const std::string& units = {});

/// Returns the materials of all decks of the corpus, in the order of the names of their files.
std::vector<vxDecks::ReadMaterial> readCorpus();

/// Returns the number of a quantity of the only material of a deck; the test fails if there is none.
double numberOf(const vxDecks::ReadDeck& deck, std::int32_t id);

/// Returns the text of the error of a text that cannot be read; empty if it can be read.
std::string errorOf(vxDecks::Format format, const std::string& text, const std::string& units = "SI");

/// Returns the lines of a report that tell more than that a quantity is taken, material by material.
std::vector<std::string> remarkableLines(const vxDecks::Report& report);

} // namespace vxtest
