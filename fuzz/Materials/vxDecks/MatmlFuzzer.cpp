#include "DeckFuzzing.h"

/// Reads any bytes as a MatML document.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return vxfuzz::readAndWrite(vxDecks::Format::Matml, data, size);
}
