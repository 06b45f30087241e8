#pragma once

#include "vxDecks/Deck.h"
#include "vxInspector/decks/DeckForms.h"
#include "vxInspector/decks/DeckLines.h"
#include "vxMaterial/model/Material.h"

#include <QString>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace Mat {
class MaterialObject;
} // namespace Mat

namespace desktop {

/// Copies of the materials of a project. A deck is made of them in another thread while the project may change.
struct DeckSource
{
    std::vector<std::unique_ptr<vxMat::CMaterial>> copies;
    std::vector<vxDecks::DeckMaterial> materials; ///< refer to the copies
    std::size_t suppressed = 0;                   ///< the number of suppressed materials, which are in the deck too
    QString settings; ///< a sentence about data that the project keeps beside the materials; empty if there is none
};

/// Copies materials, with their labels as names and the numbers that they have in their project.
std::shared_ptr<const DeckSource> copyForDeck(const std::vector<Mat::MaterialObject*>& objects);

/// The beginning of a text, as much of it as a view shows without delay.
struct Beginning
{
    QString text;
    std::size_t lines = 0;    ///< of `text`
    std::size_t allLines = 0; ///< of the whole text
    bool hasCutLines = false; ///< whether a line of `text` ends after longestLine characters, with an ellipsis
};

/// The number of characters of a line that a view shows.
inline constexpr int longestLine = 1000;

/// Returns the beginning of a text in UTF-8.
Beginning beginningOf(const std::string& text);

/// How a user wants a deck.
struct DeckRequest
{
    vxInspector::DeckForm form;
    vxUnits::UnitSystem units = vxUnits::UnitSystem::si();
};

/// A deck, and what a user sees of it.
struct MadeDeck
{
    vxDecks::Deck deck;
    Beginning beginning;
    std::vector<vxInspector::DeckLine> lines;
    QString summary;
};

/// Makes a deck. May be called in any thread.
MadeDeck makeDeck(const DeckSource& source, const DeckRequest& request);

} // namespace desktop
