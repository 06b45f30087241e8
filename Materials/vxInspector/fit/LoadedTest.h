#pragma once

#include "table/TableContent.h"
#include "vxConstitutive/data/TestReading.h"
#include "vxConstitutive/data/TestTable.h"

#include <QString>

#include <functional>
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
    std::shared_ptr<vxConstitutive::TestReading> pending =
        nullptr;          ///< gets the reading; null if the test is not being read
    bool isKept = false;  ///< whether a material keeps the test as it is here; otherwise it is the user's own
    RowPlace keeper = {}; ///< the material that keeps the test, or kept it last; not set if there was none
};

/// The most rows of a table that are read at once. Larger tables are read beside the interface.
inline constexpr std::size_t mostReadAtOnce = 20000;

/// Returns the table in the bytes of a file or in pasted text, without a mode.
LoadedTest loadTest(const QString& name, const std::string& bytes);

/// Returns a test that a material keeps, with a table of its points as they were measured. Its mode must be one of
/// measuredModes().
LoadedTest keptTest(const vxConstitutive::TestData& data);

/// Takes the test from its table again after the user has changed the mode or the request.
void readAgain(LoadedTest& test);

/// Empties the reading of a test, and returns work that takes it from the table into `pending` again. The work may run in any
/// thread, and after the test does not exist any more.
std::function<void()> readingLater(LoadedTest& test);

/// Returns what was understood of a test, what the user must still tell, and what was found, one sentence in each line.
QString readingText(const LoadedTest& test);

/// The modes that are measured.
std::vector<vxConstitutive::Mode> measuredModes();

} // namespace vxInspector
