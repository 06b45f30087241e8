#pragma once

#include <json/value.h>

#include <optional>
#include <string>
#include <string_view>

namespace commandline {

/// The measurements that a project keeps beside a material, as listings show them.
struct Measured
{
    std::string text; ///< "2 tests (tension, shear), 1 fit (Neo-Hookean)", or "unreadable"
    /// "tests", each with "name", "mode" and "points", and "fits", the names of the models; null if they are unreadable
    Json::Value json;
    std::string fault; ///< the reason and the place if they are unreadable, otherwise empty
};

/// Returns the measurements in a setting of a project; absent if the setting is empty.
std::optional<Measured> summariseMeasurements(std::string_view setting);

} // namespace commandline
