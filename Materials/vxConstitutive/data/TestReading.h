#pragma once

#include "vxConstitutive/ConstitutiveExport.h"
#include "vxConstitutive/data/TestData.h"
#include "vxConstitutive/data/TestTable.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vxConstitutive {

/// What a column was measured as.
enum class Measure
{
    Stretch,
    EngineeringStrain,
    TrueStrain,       ///< logarithmic
    VolumeRatio,      ///<
    VolumetricStrain, ///< volume ratio - 1
    AmountOfShear,    ///<
    PlasticStrain,    ///< logarithmic
    NominalStress,    ///< engineering
    TrueStress,
    Pressure, ///< positive in compression
    Time,
    CreepStrain,
    StrainRate,
    Modulus
};

/// What is fixed about a measure.
struct MeasureRecord
{
    Measure measure;
    const char* key;  ///< on command lines: "true-stress"
    const char* name; ///< English, the source of translations: "true stress"
    Dimension dimension;
};

/// All measures in the order of Measure.
VXCONSTITUTIVE_EXPORT const std::vector<MeasureRecord>& measureRecords();
VXCONSTITUTIVE_EXPORT const MeasureRecord& measureRecord(Measure measure);

/// The measures that a test of a mode can have on each axis; empty for modes that are not measured.
VXCONSTITUTIVE_EXPORT const std::vector<Measure>& abscissaMeasures(Mode mode);
VXCONSTITUTIVE_EXPORT const std::vector<Measure>& ordinateMeasures(Mode mode);

/// A column of a table as one axis of a test. What is absent is taken from the header.
struct ColumnChoice
{
    std::optional<std::size_t> column;
    std::optional<Measure> measure;
    std::optional<std::string> unit;
};

/// How a test is taken from a table.
struct TestReadRequest
{
    std::string name;
    Mode mode = Mode::Uniaxial;
    ColumnChoice abscissa;
    ColumnChoice ordinate;
    std::optional<double> stress; ///< Pa; of a creep test
    double weight = 1.0;
};

/// What a user has to be asked before the test can be used.
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

/// What was taken from a table.
struct TestReading
{
    std::optional<TestData> data; ///< absent while there are questions
    ColumnChoice abscissa;        ///< as understood
    ColumnChoice ordinate;
    std::vector<Question> questions;
    std::vector<Finding> findings; ///< about the columns and points of this test
    std::size_t leftOut = 0;       ///< rows without a number, or outside the domain of the mode
    std::size_t unsorted = 0;      ///< points whose abscissa is less than that of the point before
    std::size_t repeated = 0;      ///< points that another point equals
    std::size_t negative = 0;      ///< points whose abscissa or ordinate is less than that of the state of rest
};

/// Takes one test from a table: chooses the columns by their headers, converts units and measures, drops what is
/// outside the domain of the mode, and counts what is unusual. The points stay in their order. A unit that is not
/// known is asked for, never guessed; a stretch or volume ratio without a unit is a plain number. A strain or stress
/// whose header does not say whether it is true is taken as engineering, which a finding says.
VXCONSTITUTIVE_EXPORT TestReading takeTest(const TestTable& table, const TestReadRequest& request,
                                           const UnitFactor& units);

} // namespace vxConstitutive
