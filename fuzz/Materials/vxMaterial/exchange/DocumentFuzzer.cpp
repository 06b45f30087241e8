#include "vxMaterial/exchange/CAESet.h"
#include "vxMaterial/exchange/CardSet.h"
#include "vxMaterial/exchange/DocumentCheck.h"
#include "vxMaterial/json/JsonText.h"
#include "vxMaterial/json/JsonWriter.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

/// Reading any bytes gives a document or an error. A text that the strict dialect takes is the same document in the other
/// one. A document can be written, and reading the text gives the same document; in the strict dialect too, which only
/// takes arrays and objects.
vxjson::JsonReading readInBothDialects(std::string_view text)
{
    vxjson::JsonReading reading = vxjson::readJsonText(text);
    const vxjson::JsonReading strict = vxjson::readJsonText(text, vxjson::JsonDialect::Strict);
    if (!strict.error && (reading.error || reading.document != strict.document))
        std::abort();
    if (reading.error)
        return reading;
    vxjson::JsonWriter writer;
    writer.any(reading.document);
    if (writer.fault())
        std::abort();
    const std::string written = writer.take();
    if (vxjson::readJsonText(written).document != reading.document)
        std::abort();
    const bool isWhole = reading.document.isArray() || reading.document.isObject();
    if (isWhole && vxjson::readJsonText(written, vxjson::JsonDialect::Strict).document != reading.document)
        std::abort();
    return reading;
}

/// Reading a document into a set succeeds or throws an exception of the JSON library. Making the cards of its materials
/// and writing it throw nothing.
void readAsSet(const Json::Value& document, std::uint32_t kind)
{
    vxCAE::CAESet set(1, kind);
    try {
        set.readJson(document);
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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const vxjson::JsonReading reading = readInBothDialects({reinterpret_cast<const char*>(data), size});
    if (reading.error)
        return 0;
    vxCAE::checkDocument(reading.document);
    for (const std::uint32_t kind : {vxCAE::ProjectKind::Analysis, vxCAE::ProjectKind::Material})
        readAsSet(reading.document, kind);
    return 0;
}
