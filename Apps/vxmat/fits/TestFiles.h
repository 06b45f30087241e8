#pragma once

#include "program/Answer.h"
#include "vxConstitutive/data/TestReading.h"
#include "vxUnits/UnitSystem.h"

#include <optional>
#include <string>
#include <vector>

namespace commandline {

/// How measured tests are given on the command line. An option whose value has the form TEST=VALUE is about one test,
/// otherwise about all of them. TEST is the argument of the test, its file, its mode, or its position from 1.
struct TestArguments
{
    std::vector<std::string> files;  ///< FILE or MODE=FILE; "-" is standard input
    std::optional<std::string> mode; ///< of files without a mode
    std::vector<std::string> xColumns;
    std::vector<std::string> yColumns;
    std::vector<std::string> xMeasures;
    std::vector<std::string> yMeasures;
    std::vector<std::string> xUnits;
    std::vector<std::string> yUnits;
    std::vector<std::string> stresses; ///< of creep curves
    std::vector<std::string> weights;
    std::vector<std::string> separators;
    std::vector<std::string> decimalMarks;
};

/// A column of a file as one axis of a test.
struct TestAxis
{
    std::size_t column = 0; ///< from 0
    std::string name;       ///< from the header; empty if there is none
    vxConstitutive::Measure measure = vxConstitutive::Measure::Stretch;
    std::string unit; ///< "1" for pure numbers
};

/// A measured test, and what was understood of its file.
struct MeasuredTest
{
    std::string file;
    vxConstitutive::TestData data; ///< its name is the file without folders, or the argument if that is not unique
    vxConstitutive::TableFormat format;
    TestAxis abscissa;
    TestAxis ordinate;
    std::optional<TestAxis> stress; ///< the column with the stress of a creep test
    std::size_t leftOut = 0;        ///< rows that are not points of the test
    std::vector<vxConstitutive::Finding> findings;
};

/// Reads measured tests. Adds to `answer` what is doubtful about them. If a file does not say what is needed, adds which
/// option gives it, and sets the status Error; the result then lacks this test. Stresses without a unit are in `system`.
/// \throws Failure for options that cannot be read, tests without a mode, files that cannot be read
std::vector<MeasuredTest> readTests(const TestArguments& arguments, const vxUnits::UnitSystem& system, Answer& answer);

/// Returns one line about what was understood of a test, with the stress of a creep test in the unit of `system`.
std::string describe(const MeasuredTest& test, const vxUnits::UnitSystem& system);

} // namespace commandline
