#pragma once

#include "VxmatTesting.h"

#include "vxMaterial/json/JsonText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace vxtest {

/// Returns the table of a uniaxial test of an incompressible Neo-Hookean material: P = 2 C10 (l - 1/l^2), in MPa.
inline std::string neoHookean(double c10, const std::string& header)
{
    std::string text = header;
    for (int i = 1; i <= 10; ++i) {
        const double stretch = 1.0 + 0.1 * i;
        text +=
            std::to_string(stretch) + "," + std::to_string(2.0 * c10 * (stretch - 1.0 / (stretch * stretch))) + "\n";
    }
    return text;
}

/// Returns the JSON output of a fit.
inline Json::Value fitJson(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "fit");
    arguments.emplace_back("--json");
    const Outcome run = vxmat(arguments);
    EXPECT_EQ(run.status, 0) << run.err;
    return vxjson::readJsonText(run.out).document;
}

/// Returns the constant of a fit with a symbol; null if there is none.
inline Json::Value constantOf(const Json::Value& fit, const std::string& symbol)
{
    for (const Json::Value& constant : fit["constants"]) {
        if (constant["symbol"].asString() == symbol)
            return constant;
    }
    return {};
}

class Fit : public testing::Test
{
protected:
    std::string file(const std::string& name, const std::string& text) const { return m_folder.file(name, text); }
    const Folder& folder() const { return m_folder; }

    /// Returns a project with a material "Seal" of structural steel.
    std::string project() const
    {
        const std::string path = m_folder.path("p.vxmat");
        EXPECT_EQ(vxmat({"new", "Structural Steel=Seal", "-o", path}).status, 0);
        return path;
    }

private:
    Folder m_folder;
};

/// Returns the engineering curve of a metal that yields at 200 MPa and hardens, in MPa, up to a strain of 8 %, with a
/// point at each multiple of a step.
inline std::string tensileTest(double step = 0.0005)
{
    std::string text = "eng strain [%],eng stress [MPa]\n";
    const double modulus = 200000.0;
    const double yield = 200.0;
    const double hardening = 1000.0;
    for (int i = 0; step * i < 0.08 + 0.5 * step; ++i) {
        const double strain = step * i;
        const double total = std::log1p(strain);
        const double elastic = modulus * total;
        const double plastic = (elastic - yield) / (modulus + hardening);
        const double stress = elastic <= yield ? elastic : yield + hardening * plastic;
        text += std::to_string(100.0 * strain) + "," + std::to_string(stress / (1.0 + strain)) + "\n";
    }
    return text;
}

} // namespace vxtest
