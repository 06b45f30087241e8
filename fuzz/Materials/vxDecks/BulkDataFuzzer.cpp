#include "DeckFuzzing.h"

/// Reads any bytes as bulk data of Nastran.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return vxfuzz::readAndWrite(vxDecks::Format::Nastran, data, size);
}
