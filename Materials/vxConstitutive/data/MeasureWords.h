#pragma once

#include "vxConstitutive/data/TestReading.h"

#include <optional>
#include <string>
#include <vector>

namespace vxConstitutive {

bool contains(const std::vector<Measure>& measures, Measure measure);

/// The measure that a header names. `stated` is false if the header does not say whether a strain or stress is true or
/// engineering.
struct Recognised
{
    Measure measure;
    bool stated;
};

/// Returns which of the possible measures a name in a header means; nothing if it means none of them.
std::optional<Recognised> recognise(const std::string& name, const std::vector<Measure>& possible);

} // namespace vxConstitutive
