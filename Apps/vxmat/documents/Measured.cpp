#include "documents/Measured.h"

#include "program/Files.h"
#include "vxConstitutive/Curve.h"
#include "vxConstitutive/record/Measurements.h"

#include <vector>

namespace commandline {

namespace {

/// Returns "2 tests (a, b)"; empty if there are no names.
std::string counted(const std::vector<std::string>& names, const std::string& what)
{
    if (names.empty())
        return {};
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + printable(name);
    return std::to_string(names.size()) + " " + what + (names.size() == 1 ? "" : "s") + " (" + text + ")";
}

Json::Value toJson(const vxConstitutive::TestData& test)
{
    Json::Value json;
    json["name"] = test.name;
    json["mode"] = vxConstitutive::modeRecord(test.mode).key;
    json["points"] = static_cast<Json::UInt64>(test.abscissas.size());
    return json;
}

Measured summarise(const vxConstitutive::Measurements& measurements)
{
    Measured measured;
    std::vector<std::string> tests;
    std::vector<std::string> fits;
    measured.json["tests"] = measured.json["fits"] = Json::arrayValue;
    for (const vxConstitutive::TestData& test : measurements.tests) {
        tests.push_back(test.name);
        measured.json["tests"].append(toJson(test));
    }
    for (const vxConstitutive::FitRecord& fit : measurements.fits) {
        fits.push_back(fit.model);
        measured.json["fits"].append(fit.model);
    }
    measured.text = counted(tests, "test");
    const std::string fitted = counted(fits, "fit");
    measured.text += (measured.text.empty() || fitted.empty() ? "" : ", ") + fitted;
    return measured;
}

} // namespace

std::optional<Measured> summariseMeasurements(std::string_view setting)
{
    if (setting.empty())
        return std::nullopt;
    try {
        return summarise(vxConstitutive::readMeasurements(setting));
    } catch (const vxConstitutive::MeasurementsError& error) {
        return Measured{"unreadable", {}, error.what()};
    }
}

} // namespace commandline
