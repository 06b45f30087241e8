#pragma once

#include "vxConstitutive/record/Measurements.h"

#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The measurements that materials keep as a setting of their objects.
namespace vxInspector {

/// The measurements of a text, or the reason why they cannot be read.
struct KeptMeasurements
{
    vxConstitutive::Measurements measurements = {};
    std::optional<vxjson::JsonError> fault = std::nullopt; ///< if it is set, there are no measurements
};

/// Returns the measurements of a setting; none if the text is empty.
KeptMeasurements readMeasurements(const std::string& text);

/// Returns a sentence in the user's language that says why the measurements of a material cannot be read.
QString faultText(const vxjson::JsonError& fault);

/// Returns whether two lists have the same tests in the same order.
bool areSame(const std::vector<vxConstitutive::TestData>& one, const std::vector<vxConstitutive::TestData>& other);

/// Returns the text of the measurements `text` with tests and the record of a fit. A test replaces a kept one of its name.
/// \throws std::runtime_error with a translated text if `text` cannot be read, or if the tests cannot be written
std::string addFit(const std::string& text, const std::vector<vxConstitutive::TestData>& tests,
                   vxConstitutive::FitRecord record);

/// Reads texts once: the texts of unchanged materials are read again and again.
class MeasurementsCache
{
public:
    /// Returns the measurements of a text; null if it is empty.
    std::shared_ptr<const KeptMeasurements> read(const std::string& text);

private:
    std::vector<std::pair<std::string, std::shared_ptr<const KeptMeasurements>>> m_read; ///< the latest is first
};

} // namespace vxInspector
