#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/data/TestData.h"
#include "vxConstitutive/data/TestTable.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vxConstitutive {

/// The fixed properties of a measure.
struct MeasureRecord
{
    Measure measure;
    const char* key;  ///< on command lines: "true-stress"
    const char* name; ///< English, the source of translations: "true stress"
    Dimension dimension;
};

/// Returns all measures, in the order of Measure.
VXCONSTITUTIVE_EXPORT const std::vector<MeasureRecord>& measureRecords();
VXCONSTITUTIVE_EXPORT const MeasureRecord& measureRecord(Measure measure);

/// Return the measures that a test of a mode can have on each axis; empty for modes without test data.
VXCONSTITUTIVE_EXPORT const std::vector<Measure>& abscissaMeasures(Mode mode);
VXCONSTITUTIVE_EXPORT const std::vector<Measure>& ordinateMeasures(Mode mode);

/// A column of a table for one axis of a test. Absent members are taken from the header.
struct ColumnChoice
{
    std::optional<std::size_t> column;
    std::optional<Measure> measure;
    std::optional<std::string> unit;
};

/// A request to read a test from a table.
struct TestReadRequest
{
    std::string name;
    Mode mode = Mode::Uniaxial;
    ColumnChoice abscissa;
    ColumnChoice ordinate;
    std::optional<double> stress; ///< Pa; of a creep test; of one of them, if the table has a column of stresses
    double weight = 1.0;
};

/// The kind of information that a user must add.
enum class QuestionKind
{
    WhichColumn,
    WhichMeasure,
    WhichUnit,
    WhichStress
};

enum class Axis
{
    Abscissa,
    Ordinate
};

struct Question
{
    QuestionKind kind;
    Axis axis;
};

/// The result of reading a test from a table.
struct TestReading
{
    std::optional<TestData> data; ///< absent if there are questions
    ColumnChoice abscissa;        ///< as understood
    ColumnChoice ordinate;
    std::optional<std::size_t> stressColumn; ///< of a table of creep tests whose rows have their stress
    std::vector<Question> questions;
    std::vector<Finding> findings; ///< about the columns and points of this test
    std::size_t leftOut = 0;       ///< rows without a number, or outside the domain of the mode
    std::size_t unsorted = 0;      ///< points with a smaller abscissa than the point before
    std::size_t repeated = 0;      ///< points that are equal to another point
    std::size_t negative = 0;      ///< points with an abscissa or ordinate below that of the unloaded state
};

/// Reads a test from a table: chooses the columns by their headers, converts units and measures, leaves out points outside the
/// domain of the mode, and counts unusual points. Keeps the order of the points. Never guesses a unit: if one is missing or
/// unknown, there is a question. A stretch or volume ratio without a unit is a plain number. A strain or stress is taken as
/// engineering, with a finding, if the header does not say that it is true.
///
/// If a table of creep tests has a column of stresses with a unit in its header, the stress of the request chooses the rows; a
/// measured stress may scatter by 2 %. If the column has one stress, the request need not have it. If it has several,
/// creepStresses() tells them, and each of them is a test.
VXCONSTITUTIVE_EXPORT TestReading takeTest(const TestTable& table, const TestReadRequest& request,
                                           const UnitFactor& units);

/// A table of two columns, and how takeTest() reads the same test from it.
struct TableOfTest
{
    TestTable table;
    TestReadRequest request;
};

/// Returns a test as it was measured: its columns have the names, units and measures of the file. An axis whose column is not known,
/// or has an unknown unit, is in SI, with an empty name and the usual measure of its mode. takeTest() returns the same points, but
/// for the rounding of the conversion. The mode of the test must have measures.
VXCONSTITUTIVE_EXPORT TableOfTest tableOfTest(const TestData& test, const UnitFactor& units);

/// A table of creep tests has at most this number of stresses.
inline constexpr std::size_t mostCreepStresses = 100;

/// Returns the stresses (Pa, rising) of the creep tests in a table: the means of the groups in its column of stresses. Returns none
/// if the table has no column whose header names a stress with its unit, or if there are more than mostCreepStresses.
VXCONSTITUTIVE_EXPORT std::vector<double> creepStresses(const TestTable& table, const UnitFactor& units);

} // namespace vxConstitutive
