#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/exchange/CardSet.h"
#include "vxMaterial/exchange/DocumentCheck.h"
#include "vxMaterial/json/JsonText.h"
#include "vxMaterial/json/JsonWriter.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

/// Reading any bytes gives a document or an error. Reading a document into a set succeeds or throws an exception of the
/// JSON library. Checking a document and making the cards of its materials throw nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const vxjson::JsonReading reading = vxjson::readJsonText(text);
    if (reading.error)
        return 0;
    // A document that was read can be written, and reading the text gives the same document.
    vxjson::JsonWriter writer;
    writer.any(reading.document);
    if (writer.fault() || vxjson::readJsonText(writer.take()).document != reading.document)
        std::abort();
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
