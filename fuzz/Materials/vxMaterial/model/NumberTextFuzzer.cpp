#include "vxMaterial/model/NumberText.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string_view>

/// Any text is read or refused by the two exceptions that are documented, and what is read is written so that it
/// reads back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        for (const double number : vxMat::readNumberList(text)) {
            if (vxMat::readNumber(vxMat::formatNumber(number)) != number)
                std::abort();
        }
    } catch (const std::out_of_range&) {
    }
    try {
        vxMat::readNumber(text);
    } catch (const std::invalid_argument&) {
    } catch (const std::out_of_range&) {
    }
    vxMat::readWholeNumber(text);
    return 0;
}
