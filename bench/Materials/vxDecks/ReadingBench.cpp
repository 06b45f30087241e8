#include "Contest.h"

#include "projectfile/ExchangeImport.h"
#include "vxDecks/Deck.h"
#include "vxDecks/DeckReading.h"
#include "vxMaterial/exchange/CAEMaterials.h"
#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/model/MatDBManager.h"

#include <json/writer.h>

#include <cstdint>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

/// Compares reading decks with reading the exchange document of the same materials. Both sides give materials that are
/// complete. Memory has no limit, because a deck has lists and words that the document does not have, and a report.
namespace {

using vxbench::lazily;
using vxbench::timed;
using vxDecks::Format;

constexpr double limit = 3.0;

/// The materials of the library in the order of their types, which the materials of a measurement repeat.
class Library
{
public:
    Library()
    {
        vxMat::MatDBManager library;
        library.initMaterialLibrary();
        const std::map<std::int32_t, std::unique_ptr<vxMat::MaterialBase>> sorted(
            std::make_move_iterator(library.materials.begin()), std::make_move_iterator(library.materials.end()));
        for (const auto& [type, material] : sorted) {
            m_materials.push_back(std::make_unique<vxMat::CMaterial>());
            m_materials.back()->copyFrom(*material);
        }
    }

    const vxMat::CMaterial& at(std::uint32_t index) const { return *m_materials[index % m_materials.size()]; }

private:
    std::vector<std::unique_ptr<vxMat::CMaterial>> m_materials;
};

std::string makeDeck(Format format, std::uint32_t count)
{
    const Library library;
    std::vector<vxDecks::DeckMaterial> materials;
    for (std::uint32_t number = 1; number <= count; ++number)
        materials.push_back({"Material " + std::to_string(number), number, &library.at(number)});
    return vxDecks::writeDeck(format, materials, {*vxUnits::UnitSystem::parse("mm-t-s"), std::nullopt}).text;
}

std::string makeDocument(std::uint32_t count)
{
    const Library library;
    vxCAE::CAESet set(0, vxCAE::ProjectKind::Material);
    for (std::uint32_t number = 1; number <= count; ++number) {
        auto entry = std::make_unique<vxCAE::MaterialEntry>();
        entry->material->copyFrom(library.at(number));
        entry->material->name = "Material " + std::to_string(number);
        set.materials->addMaterial(number, std::move(entry));
    }
    Json::Value document;
    set.writeJson(document);
    return Json::writeString(Json::StreamWriterBuilder(), document);
}

void addContest(const vxDecks::FormatInfo& format, std::uint32_t count)
{
    const auto deck = lazily([format, count] { return makeDeck(format.format, count); });
    const auto document = lazily([count] { return makeDocument(count); });
    // The first call of deck() and document() makes the text before the clock starts.
    const auto readDeck = [=] {
        std::istringstream file(deck());
        return timed([&] { return vxDecks::readDeck(format.format, file, {}); });
    };
    const auto readDocument = [=] {
        document();
        return timed([&] { return projectfile::importExchange(document()); });
    };
    vxbench::addContest({std::string("read ") + std::to_string(count) + " materials of " + format.title, readDeck,
                         readDocument, limit, false});
}

} // namespace

int main(int argc, char** argv)
{
    for (const vxDecks::FormatInfo& format : vxDecks::formats())
        if (vxDecks::canRead(format.format))
            addContest(format, 10000);
    return vxbench::runContests(argc, argv);
}
