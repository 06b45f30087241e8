#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/exchange/CardSet.h"
#include "vxMaterial/exchange/DocumentCheck.h"
#include "vxMaterial/json/JsonText.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Any bytes are a document or an error. Any document is read or refused by an exception of the JSON library, is
/// checked without one, and gives cards.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    vxCAE::findRepeatedMembers(text);
    const vxjson::JsonReading reading = vxjson::readJsonText(text);
    if (reading.error)
        return 0;
    vxCAE::checkDocument(reading.document);

    for (const std::uint32_t kind : {vxCAE::ProjectKind::Analysis, vxCAE::ProjectKind::Material}) {
        vxCAE::CAESet set(1, kind);
        try {
            set.readJson(reading.document);
        } catch (const Json::Exception&) {
        }
        for (auto& [number, entry] : set.materials->entries) {
            entry->classifyKind();
            makeCardSet(*entry, vxCAE::MaterialSource::Document);
        }
        Json::Value written;
        set.writeJson(written);
        set.getAnalysisLabel();
    }
    return 0;
}
