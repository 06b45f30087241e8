#include "Contest.h"

#include "vxDecks/Deck.h"
#include "vxMaterial/exchange/CAEMaterials.h"
#include "vxMaterial/model/MaterialLibrary.h"

#include <json/writer.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// Compares writing decks with writing the exchange document of the same materials, as text.
namespace {

using vxbench::lazily;
using vxbench::timed;
using vxCAE::CAEMaterials;

constexpr std::uint32_t materialCount = 10000;
constexpr double limit = 3.0;

/// Makes materials of steel, each third of which has plasticity.
std::shared_ptr<CAEMaterials> makeMaterials()
{
    const vxMat::StructuralSteel elastic;
    const vxMat::StructuralSteelNL plastic;
    auto section = std::make_shared<CAEMaterials>();
    for (std::uint32_t number = 1; number <= materialCount; ++number) {
        auto entry = std::make_unique<vxCAE::MaterialEntry>();
        if (number % 3 == 0)
            entry->material->copyFrom(plastic);
        else
            entry->material->copyFrom(elastic);
        section->addMaterial(number, std::move(entry));
    }
    return section;
}

std::string writeDocument(const CAEMaterials& section)
{
    Json::Value document;
    section.writeJson(document);
    return Json::writeString(Json::StreamWriterBuilder(), document);
}

vxDecks::Deck writeDeck(vxDecks::Format format, const CAEMaterials& section)
{
    std::vector<vxDecks::DeckMaterial> materials;
    for (const auto& [number, entry] : section.entries)
        materials.push_back({"Material " + std::to_string(number), number, entry->material.get()});
    vxDecks::DeckOptions options;
    options.units = *vxUnits::UnitSystem::parse("mm-t-s"); // every number is converted
    return vxDecks::writeDeck(format, materials, options);
}

} // namespace

int main(int argc, char** argv)
{
    for (const vxDecks::FormatInfo& format : vxDecks::formats()) {
        const auto section = lazily(makeMaterials);
        vxbench::addContest({std::string("write 10000 materials: ") + format.name,
                             [=] { return timed([&] { return writeDeck(format.format, *section()); }); },
                             [=] { return timed([&] { return writeDocument(*section()); }); }, limit});
    }
    return vxbench::runContests(argc, argv);
}
