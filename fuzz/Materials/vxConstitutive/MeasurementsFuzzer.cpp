#include "vxConstitutive/record/Measurements.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

/// Reading any bytes as measurements succeeds or throws a MeasurementsError. Measurements that were read can be written,
/// and reading and writing them again gives the same text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    vxConstitutive::Measurements measurements;
    try {
        measurements = vxConstitutive::readMeasurements(text);
    } catch (const vxConstitutive::MeasurementsError&) {
        return 0;
    }
    const std::string written = vxConstitutive::writeMeasurements(measurements);
    if (vxConstitutive::writeMeasurements(vxConstitutive::readMeasurements(written)) != written)
        std::abort();
    return 0;
}
