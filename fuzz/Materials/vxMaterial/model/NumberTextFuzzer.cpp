#include "vxMaterial/model/NumberText.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string_view>

/// Reading any text succeeds or throws one of the two documented exceptions. A number that was read can be written and
/// read back unchanged.
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
