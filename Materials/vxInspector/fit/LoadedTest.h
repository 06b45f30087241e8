#pragma once

#include "vxConstitutive/data/TestReading.h"
#include "vxConstitutive/data/TestTable.h"

#include <QString>

#include <memory>
#include <optional>
#include <string>

namespace vxInspector {

/// A table of measured numbers that the user has loaded, and how a test is taken from it.
struct LoadedTest
{
    std::shared_ptr<const vxConstitutive::TestTable> table;
    std::optional<vxConstitutive::Mode> mode; ///< absent until the user has said which test it is
    vxConstitutive::TestReadRequest request = {};
    vxConstitutive::TestReading reading = {}; ///< empty without a mode
};

/// Returns the table in the bytes of a file or in pasted text, without a mode.
LoadedTest loadTest(const QString& name, const std::string& bytes);

/// Returns a test that a material keeps, with a table of its points in SI units. Its mode must be one of measuredModes().
LoadedTest keptTest(const vxConstitutive::TestData& data);

/// Takes the test from its table again after the user has changed the mode or the request.
void readAgain(LoadedTest& test);

/// Returns what was understood of a test, what the user must still tell, and what was found, one sentence in each line.
QString readingText(const LoadedTest& test);

/// The modes that are measured.
std::vector<vxConstitutive::Mode> measuredModes();

} // namespace vxInspector
